#include "plumbing/WideText.h"
#include "tests/support/DialogUser.h"
#include "tests/support/PatchedImport.h"
#include "utilities/clsCommDialogs.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <ole2.h>
#include <shlobj.h>

namespace orvanta {
namespace {

using testing::DialogUser;
using testing::PatchedImport;

struct FolderCalls {
    int nWide = 0, nAnsi = 0, nFreed = 0, nInitialized = 0, nUninitialized = 0;
    bool bFreedBeforeUninitialized = false;
    bool bShellInsideOle = false;
};
FolderCalls g_calls;

decltype(SHBrowseForFolderW)* g_browseWide = nullptr;
decltype(SHBrowseForFolderA)* g_browseAnsi = nullptr;
decltype(CoTaskMemFree)* g_free = nullptr;
decltype(OleInitialize)* g_initialize = nullptr;
decltype(OleUninitialize)* g_uninitialize = nullptr;

LPITEMIDLIST WINAPI CountWide(BROWSEINFOW* info) {
    ++g_calls.nWide;
    g_calls.bShellInsideOle = g_calls.nInitialized == 1 && g_calls.nUninitialized == 0;
    return g_browseWide(info);
}
LPITEMIDLIST WINAPI CountAnsi(BROWSEINFOA* info) {
    ++g_calls.nAnsi;
    return g_browseAnsi(info);
}
void WINAPI CountFree(void* p) {
    if (p) {
        ++g_calls.nFreed;
        g_calls.bFreedBeforeUninitialized = g_calls.nUninitialized == 0;
    }
    g_free(p);
}
HRESULT WINAPI CountInitialize(void* p) {
    ++g_calls.nInitialized;
    return g_initialize(p);
}
void WINAPI CountUninitialize() {
    ++g_calls.nUninitialized;
    g_uninitialize();
}

// A folder whose content does not change.
const std::u16string kFolder = u"C:\\windows\\system32";

class FolderDialogTest : public ::testing::Test {
protected:
    FolderDialogTest() {
        g_calls = FolderCalls();
        g_browseWide = m_wide.Original();
        g_browseAnsi = m_ansi.Original();
        g_free = m_free.Original();
        g_initialize = m_initialize.Original();
        g_uninitialize = m_uninitialize.Original();
    }

    // Answers the dialog, once the folder that it starts from has been selected.
    std::u16string Show(int iButton) {
        DialogUser user([iButton](DialogUser& u) {
            HWND dialog = u.NextDialog();
            DialogUser::AwaitTreeSelection(dialog, u"system32");
            DialogUser::Press(dialog, iButton);
        });
        return clsCommDialogs().ShowDir(nullptr, kFolder, u"Choose \u0416");
    }

private:
    const PatchedImport<decltype(SHBrowseForFolderW)> m_wide{"SHBrowseForFolderW", &CountWide};
    const PatchedImport<decltype(SHBrowseForFolderA)> m_ansi{"SHBrowseForFolderA", &CountAnsi};
    const PatchedImport<decltype(CoTaskMemFree)> m_free{"CoTaskMemFree", &CountFree};
    const PatchedImport<decltype(OleInitialize)> m_initialize{"OleInitialize", &CountInitialize};
    const PatchedImport<decltype(OleUninitialize)> m_uninitialize{"OleUninitialize", &CountUninitialize};
};

TEST_F(FolderDialogTest, GivesTheFolderThatItStartsFrom) {
    EXPECT_EQ(Show(IDOK), kFolder);
}

TEST_F(FolderDialogTest, TakesTheWideFormOnASystemThatHasIt) {
    Show(IDOK);
    EXPECT_EQ(g_calls.nWide, 1);
    EXPECT_EQ(g_calls.nAnsi, 0);
}

TEST_F(FolderDialogTest, StandsInsideAnOleSessionAndFreesTheItemListInIt) {
    Show(IDOK);
    EXPECT_TRUE(g_calls.bShellInsideOle);
    EXPECT_EQ(g_calls.nFreed, 1);
    EXPECT_TRUE(g_calls.bFreedBeforeUninitialized);
    EXPECT_EQ(g_calls.nUninitialized, 1);
}

TEST_F(FolderDialogTest, CancelGivesAnEmptyTextAndEndsTheOleSession) {
    EXPECT_EQ(Show(IDCANCEL), u"");
    EXPECT_EQ(g_calls.nFreed, 0);
    EXPECT_EQ(g_calls.nInitialized, 1);
    EXPECT_EQ(g_calls.nUninitialized, 1);
}

TEST_F(FolderDialogTest, ShowsItsTitleAndNeedsNoStartFolder) {
    bool bTitle = false;
    {
        DialogUser user([&bTitle](DialogUser& u) {
            HWND dialog = u.NextDialog();
            EnumChildWindows(
                dialog,
                [](HWND child, LPARAM result) -> BOOL {
                    if (DialogUser::TextOf(child) == u"Choose \u0416") *reinterpret_cast<bool*>(result) = true;
                    return TRUE;
                },
                reinterpret_cast<LPARAM>(&bTitle));
            DialogUser::Press(dialog, IDCANCEL);
        });
        clsCommDialogs().ShowDir(nullptr, u"", u"Choose \u0416");
    }
    EXPECT_TRUE(bTitle);
}

} // namespace
} // namespace orvanta
