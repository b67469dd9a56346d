// A search while it runs: messages between the folders, stopping it, asking it, and a search within a search.
#include "files/clsSearchFiles.h"

#include "tests/files/FolderFixture.h"
#include "tests/support/PatchedImport.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace orvanta {
namespace {

using testing::FolderFixture;
using testing::PatchedImport;
using Names = std::vector<std::u16string>;

constexpr UINT kAsk = WM_APP + 1;

// The one running test's window, its handler, and the platform's function that posts to it.
HWND g_hWindow = nullptr;
std::function<void()> g_handler;
decltype(&FindFirstFileW) g_findFirst = nullptr;

LRESULT CALLBACK AnswerAsk(HWND hWindow, UINT uMsg, WPARAM wParam, LPARAM lParam) {
    if (uMsg == kAsk && g_handler) g_handler();
    return DefWindowProcW(hWindow, uMsg, wParam, lParam);
}

// Each folder that is opened brings a message, which waits for the next one.
HANDLE WINAPI FindFirstAndPost(LPCWSTR pattern, WIN32_FIND_DATAW* record) {
    PostMessageW(g_hWindow, kAsk, 0, 0);
    return g_findFirst(pattern, record);
}

class SearchRun : public FolderFixture {
protected:
    SearchRun() {
        File(u"a.txt");
        Folder(u"one");
        File(u"one\\b.txt");
        Folder(u"two");
        File(u"two\\c.txt");
        g_hWindow = CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
        SetWindowLongPtrW(g_hWindow, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(AnswerAsk));
        g_findFirst = patch.Original();
    }
    ~SearchRun() override {
        g_handler = nullptr;
        DestroyWindow(g_hWindow);
    }

    Names Found(const SearchResults& results) const {
        Names names;
        for (std::size_t n = 1; n <= results.Count(); ++n)
            names.push_back(results.Item(n)->sPathFileName().substr(Path().size() + 1));
        return names;
    }

    Names AllFiles(bool bAsync) {
        return Found(search.SearchInPath(Path(), kSearchFiles, true, bAsync, false, -1, false));
    }

    const Names all = {u"a.txt", u"one\\b.txt", u"two\\c.txt"};
    PatchedImport<decltype(FindFirstFileW)> patch{"FindFirstFileW", FindFirstAndPost};
    clsSearchFiles search;
};

TEST_F(SearchRun, MessagesRunBetweenFoldersOnlyWhenAskedFor) {
    int nAsked = 0;
    g_handler = [&] { ++nAsked; };
    EXPECT_EQ(AllFiles(false), all);
    EXPECT_EQ(nAsked, 0);
    EXPECT_EQ(AllFiles(true), all);
    EXPECT_EQ(nAsked, 3 + 2) << "three left by the first search, then one for each folder but the last";
}

TEST_F(SearchRun, HandlerSeesTheSearchAndItsFolder) {
    Names dirs;
    g_handler = [&] {
        EXPECT_TRUE(search.IsSearching());
        dirs.push_back(search.CurrentDir());
    };
    PostMessageW(g_hWindow, kAsk, 0, 0);
    EXPECT_EQ(AllFiles(true), all);
    EXPECT_EQ(dirs, (Names{Path() + u"\\", Path(u"one\\"), Path(u"two\\")}));
    EXPECT_FALSE(search.IsSearching());
    EXPECT_EQ(search.CurrentDir(), u"");
}

TEST_F(SearchRun, StopBeforeTheFirstFolderGivesNothing) {
    g_handler = [&] { search.StopSearch(); };
    PostMessageW(g_hWindow, kAsk, 0, 0);
    EXPECT_EQ(AllFiles(true), Names{});
    EXPECT_FALSE(search.IsSearching());
}

TEST_F(SearchRun, StopBetweenFoldersKeepsWhatWasFound) {
    g_handler = [&] {
        if (search.CurrentDir() == Path(u"two\\")) search.StopSearch();
    };
    EXPECT_EQ(AllFiles(true), (Names{u"a.txt", u"one\\b.txt"}));
    File(u"z.txt");
    g_handler = [&] { search.StopSearch(); };
    EXPECT_EQ(AllFiles(true), (Names{u"a.txt"})) << "and nothing further on the levels above";
}

TEST_F(SearchRun, StopEndsAFilePatternOnEveryLevelToo) {
    g_handler = [&] {
        if (search.CurrentDir() == Path(u"two\\")) search.StopSearch();
    };
    const SearchResults results =
        search.SearchFilePatternPathNoPattern(Path(u"*.txt"), kSearchFiles, true, true, false, -1);
    EXPECT_EQ(Found(results), Names{}) << "stopped while the folders were collected";
    int nOne = 0;
    g_handler = [&] {
        if (search.CurrentDir() == Path(u"one\\") && ++nOne == 2) search.StopSearch();
    };
    const SearchResults second =
        search.SearchFilePatternPathNoPattern(Path(u"*.txt"), kSearchFiles, true, true, false, -1);
    EXPECT_EQ(Found(second), (Names{u"a.txt"})) << "stopped before the first folder's files";
}

TEST_F(SearchRun, StopOutsideASearchDoesNotTouchTheNext) {
    search.StopSearch();
    EXPECT_EQ(AllFiles(false), all);
}

TEST_F(SearchRun, SearchWithinASearchIsEmptyAndDisturbsNothing) {
    int nInner = 0;
    g_handler = [&] {
        const std::u16string sDir = search.CurrentDir();
        EXPECT_TRUE(search.SearchInPath(Path(), kSearchFiles, true, true, false, 1, false).Empty());
        EXPECT_TRUE(search.SearchPathPattern(Path(u"*.txt"), kSearchFiles, false, false, false, -1, false).Empty());
        EXPECT_TRUE(
            search.SearchFilePatternPathNoPattern(Path(u"*.txt"), kSearchFiles, true, false, false, -1).Empty());
        EXPECT_TRUE(search.IsSearching());
        EXPECT_EQ(search.CurrentDir(), sDir);
        ++nInner;
    };
    EXPECT_EQ(AllFiles(true), all);
    EXPECT_EQ(nInner, 2);
    EXPECT_FALSE(search.IsSearching());
}

TEST_F(SearchRun, AnotherObjectMaySearchMeanwhile) {
    Names inner;
    g_handler = [&] {
        g_handler = nullptr;
        clsSearchFiles other;
        inner = Found(other.SearchInPath(Path(u"two"), kSearchFiles, false, false, false, -1, false));
    };
    EXPECT_EQ(AllFiles(true), all);
    EXPECT_EQ(inner, (Names{u"two\\c.txt"}));
}

TEST_F(SearchRun, CountStartsAnewWithEachSearch) {
    for (int n = 0; n < 3; ++n) {
        EXPECT_EQ(search.SearchInPath(Path(), kSearchFiles, true, false, false, 2, false).Count(), 2u);
    }
}

} // namespace
} // namespace orvanta
