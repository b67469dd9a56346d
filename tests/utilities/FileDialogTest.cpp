#include "tests/support/DialogUser.h"
#include "tests/support/TempFolder.h"
#include "tests/support/WindowCensus.h"
#include "utilities/clsCommDialogs.h"

#include <gtest/gtest.h>

#include <windows.h>

namespace orvanta {
namespace {

using testing::DialogUser;

constexpr int kFileNameField = 0x47C;
constexpr int kFileTypeField = 0x470;

// Real dialogs, answered by a user in a second thread.
class FileDialogTest : public ::testing::Test {
protected:
    FileDialogTest() { GetCurrentDirectoryW(MAX_PATH, m_current); }
    // A file dialog moves the program into the folder of the choice, which could then not be removed.
    ~FileDialogTest() override { SetCurrentDirectoryW(m_current); }

    // Types a name and presses OK.
    static HWND Accept(DialogUser& user, const std::u16string& sName) {
        HWND dialog = user.NextDialog();
        DialogUser::Type(GetDlgItem(dialog, kFileNameField), sName);
        DialogUser::Press(dialog, IDOK);
        return dialog;
    }

    std::u16string Open() { return dialogs.ShowOpen(nullptr, sFilter, u"Open it", lFlags, folder.Path(), u"", u""); }
    std::u16string Save(const std::u16string& sDefaultFile) {
        return dialogs.ShowSave(nullptr, sFilter, u"Save it", lFlags, folder.Path(), sDefaultFile, 0, u"");
    }

    testing::TempFolder folder;
    clsCommDialogs dialogs;
    std::u16string sFilter{u"VB6 Files (*.vbp)\0*.vbp\0All Files (*.*)\0*.*\0", 44};
    std::int32_t lFlags = 6144;

private:
    wchar_t m_current[MAX_PATH] = {};
};

TEST_F(FileDialogTest, OpenGivesTheFullPathOfAFileWithAnyName) {
    const std::u16string sPath = folder.Write(u"\u0416\u65E5 caf\u00E9.vbp", "x");
    DialogUser user([&](DialogUser& u) { Accept(u, u"\u0416\u65E5 caf\u00E9.vbp"); });
    EXPECT_EQ(Open(), sPath);
    EXPECT_TRUE(lFlags & 0x80000);
}

TEST_F(FileDialogTest, OpenShowsItsTitle) {
    std::u16string sTitle;
    {
        DialogUser user([&](DialogUser& u) {
            HWND dialog = u.NextDialog();
            sTitle = DialogUser::TextOf(dialog);
            DialogUser::Press(dialog, IDCANCEL);
        });
        Open();
    }
    EXPECT_EQ(sTitle, u"Open it");
}

TEST_F(FileDialogTest, CancelledOpenGivesAnEmptyText) {
    folder.Write(u"a.vbp", "x");
    DialogUser user([&](DialogUser& u) {
        HWND dialog = u.NextDialog();
        DialogUser::Type(GetDlgItem(dialog, kFileNameField), u"a.vbp");
        DialogUser::Press(dialog, IDCANCEL);
    });
    EXPECT_EQ(Open(), u"");
    EXPECT_EQ(lFlags, 6144);
}

TEST_F(FileDialogTest, MissingFileIsRefusedByTheDialogItself) {
    DialogUser user([&](DialogUser& u) {
        HWND dialog = Accept(u, u"missing.vbp");
        HWND box = u.NextDialog();
        EXPECT_NE(box, nullptr);
        DialogUser::Press(box, IDOK);
        while (IsWindow(box))
            Sleep(5);
        DialogUser::Press(dialog, IDCANCEL);
    });
    EXPECT_EQ(Open(), u"");
}

TEST_F(FileDialogTest, SaveProposesTheDefaultFile) {
    std::u16string sProposed;
    {
        DialogUser user([&](DialogUser& u) {
            HWND dialog = u.NextDialog();
            sProposed = DialogUser::TextOf(GetDlgItem(dialog, kFileNameField));
            DialogUser::Press(dialog, IDOK);
        });
        sFilter = std::u16string(u"All Files (*.*)\0*.*\0", 20);
        lFlags = 2050;
        EXPECT_EQ(Save(u"log.txt"), folder / u"log.txt");
    }
    EXPECT_EQ(sProposed, u"log.txt");
    EXPECT_FALSE(testing::TempFolder::Exists(folder / u"log.txt"));
}

TEST_F(FileDialogTest, SaveAsksBeforeAnExistingFileIsNamedAndNoLeadsBack) {
    folder.Write(u"log.txt", "x");
    sFilter = std::u16string(u"All Files (*.*)\0*.*\0", 20);
    lFlags = 2050;
    DialogUser user([&](DialogUser& u) {
        HWND dialog = u.NextDialog();
        DialogUser::Press(dialog, IDOK);
        HWND box = u.NextDialog();
        DialogUser::Press(box, IDNO);
        while (IsWindow(box))
            Sleep(5);
        EXPECT_TRUE(IsWindowVisible(dialog));
        DialogUser::Press(dialog, IDOK);
        DialogUser::Press(u.NextDialog(), IDYES);
    });
    EXPECT_EQ(Save(u"log.txt"), folder / u"log.txt");
}

TEST_F(FileDialogTest, CancelledSaveGivesAnEmptyText) {
    DialogUser user([&](DialogUser& u) { DialogUser::Press(u.NextDialog(), IDCANCEL); });
    EXPECT_EQ(Save(u"log.txt"), u"");
}

TEST_F(FileDialogTest, SaveStartsWithTheFilterOfThatIndex) {
    LRESULT lSelected = -1;
    {
        DialogUser user([&](DialogUser& u) {
            HWND dialog = u.NextDialog();
            lSelected = SendMessageW(GetDlgItem(dialog, kFileTypeField), CB_GETCURSEL, 0, 0);
            DialogUser::Press(dialog, IDCANCEL);
        });
        dialogs.ShowSave(nullptr, sFilter, u"", lFlags, folder.Path(), u"", 2, u"");
    }
    EXPECT_EQ(lSelected, 1);
}

TEST_F(FileDialogTest, DefaultExtensionIsAddedToABareName) {
    DialogUser user([&](DialogUser& u) { Accept(u, u"bare"); });
    lFlags = 0;
    sFilter.clear();
    EXPECT_EQ(dialogs.ShowSave(nullptr, sFilter, u"", lFlags, folder.Path(), u"", 0, u"log"), folder / u"bare.log");
}

TEST_F(FileDialogTest, DialogsLeaveNoWindowBehind) {
    const auto round = [&] {
        DialogUser user([&](DialogUser& u) {
            DialogUser::Press(u.NextDialog(), IDCANCEL);
            DialogUser::Press(u.NextDialog(), IDCANCEL);
        });
        Open();
        Save(u"x");
    };
    round();
    const int nBefore = testing::CountOwnWindows();
    for (int n = 0; n < 5; ++n)
        round();
    EXPECT_EQ(testing::CountOwnWindows(), nBefore);
}

} // namespace
} // namespace orvanta
