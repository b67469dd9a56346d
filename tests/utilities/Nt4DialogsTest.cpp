#include "tests/files/PretendedVersion.h"
#include "tests/support/DialogUser.h"
#include "tests/utilities/ClipboardFixture.h"
#include "utilities/clsClipboard.h"
#include "utilities/clsCommDialogs.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <shlobj.h>

namespace orvanta {
namespace {

using testing::DialogUser;
using testing::PatchedImport;

// This whole program believes that it runs on NT 4, the last system before Windows 2000.
const testing::PretendedVersion<2, 4, 0> g_version;

class Nt4ClipboardTest : public testing::ClipboardFixture {};

TEST_F(Nt4ClipboardTest, SetGivesPlainTextInTheCodePageAndReportsSuccess) {
    EXPECT_TRUE(clsClipboard().Text(u"caf\u00E9"));
    const auto bytes = Bytes(CF_TEXT);
    ASSERT_TRUE(bytes);
    EXPECT_EQ(bytes->substr(0, 5), std::string("caf\xE9\0", 5));
    EXPECT_EQ(Opened(), Closed());
}

TEST_F(Nt4ClipboardTest, CharactersOutsideTheCodePageAreLost) {
    EXPECT_TRUE(clsClipboard().Text(u"a\u0416b"));
    EXPECT_EQ(clsClipboard().Text(), u"a?b");
}

TEST_F(Nt4ClipboardTest, GetStillTakesUnicodeTextWhenThereIsSome) {
    Put(CF_UNICODETEXT, u"\u0416", 4);
    EXPECT_EQ(clsClipboard().Text(), u"\u0416");
}

int g_nAnsiFolders = 0;
decltype(SHBrowseForFolderA)* g_browse = nullptr;
LPITEMIDLIST WINAPI CountAnsiFolder(BROWSEINFOA* info) {
    ++g_nAnsiFolders;
    return g_browse(info);
}

class Nt4FolderDialogTest : public ::testing::Test {
protected:
    Nt4FolderDialogTest() {
        g_nAnsiFolders = 0;
        g_browse = m_browse.Original();
    }

    std::u16string Show(int iButton) {
        DialogUser user([iButton](DialogUser& u) {
            HWND dialog = u.NextDialog();
            DialogUser::AwaitTreeSelection(dialog, u"system32");
            DialogUser::Press(dialog, iButton);
        });
        return clsCommDialogs().ShowDir(nullptr, u"C:\\windows\\system32", u"Choose");
    }

private:
    const PatchedImport<decltype(SHBrowseForFolderA)> m_browse{"SHBrowseForFolderA", &CountAnsiFolder};
};

TEST_F(Nt4FolderDialogTest, TakesTheAnsiFormOfTheFolderDialog) {
    EXPECT_EQ(Show(IDOK), u"C:\\windows\\system32");
    EXPECT_EQ(g_nAnsiFolders, 1);
}

TEST_F(Nt4FolderDialogTest, CancelGivesAnEmptyText) {
    EXPECT_EQ(Show(IDCANCEL), u"");
}

} // namespace
} // namespace orvanta
