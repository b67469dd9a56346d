#include "plumbing/SharedColors.h"
#include "tests/support/DialogUser.h"
#include "tests/support/GdiCensus.h"
#include "tests/support/PatchedImport.h"
#include "tests/support/WindowCensus.h"
#include "utilities/clsCommDialogs.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <commctrl.h>
#include <commdlg.h>

namespace orvanta {
namespace {

using testing::DialogUser;

int g_nInitialized = 0;
void WINAPI CountInitCommonControls() {
    ++g_nInitialized;
}

CHOOSECOLORA g_colorRecord;
COLORREF g_firstCustom = 0;

// A user who chooses blue and makes the first custom color green.
BOOL WINAPI ChooseBlue(CHOOSECOLORA* record) {
    g_colorRecord = *record;
    g_firstCustom = record->lpCustColors[0];
    record->lpCustColors[0] = 0x00FF00;
    record->rgbResult = 0xFF0000;
    return TRUE;
}

class ColorDialogTest : public ::testing::Test {
protected:
    ColorDialogTest() : m_sCustom(dialogs.GetCustomColorsString()) {}
    ~ColorDialogTest() override { dialogs.SetCustomColorsString(m_sCustom); }

    OleColor Show(OleColor lStartColor, int iButton) {
        DialogUser user([iButton](DialogUser& u) { DialogUser::Press(u.NextDialog(), iButton); });
        return dialogs.ShowColor(nullptr, lStartColor);
    }

    clsCommDialogs dialogs;

private:
    std::u16string m_sCustom;
};

TEST_F(ColorDialogTest, InitDialogsRegistersTheCommonControls) {
    const testing::PatchedImport<void WINAPI()> import("InitCommonControls", &CountInitCommonControls);
    g_nInitialized = 0;
    dialogs.InitDialogs();
    EXPECT_EQ(g_nInitialized, 1);
}

TEST_F(ColorDialogTest, OpensOnTheStartColorAndGivesItBackOnOk) {
    EXPECT_EQ(Show(0x0000FF, IDOK), 0x0000FF);
}

TEST_F(ColorDialogTest, SystemColorComesBackAsItsPlainValueOnOk) {
    const OleColor lWindowText = static_cast<OleColor>(0x80000008u);
    EXPECT_EQ(Show(lWindowText, IDOK), ResolveColor(lWindowText));
}

TEST_F(ColorDialogTest, CancelGivesTheStartColorUntouched) {
    const OleColor lButtonFace = static_cast<OleColor>(0x8000000Fu);
    EXPECT_EQ(Show(lButtonFace, IDCANCEL), lButtonFace);
    EXPECT_EQ(Show(0x123456, IDCANCEL), 0x123456);
}

TEST_F(ColorDialogTest, CustomColorsGoInAsTextAndComeOutAsTheDialogLeftThem) {
    const testing::PatchedImport<BOOL WINAPI(CHOOSECOLORA*)> import("ChooseColorA", &ChooseBlue);
    dialogs.SetCustomColorsString(u"255,1,2");
    EXPECT_EQ(dialogs.ShowColor(nullptr, 0), 0xFF0000);
    EXPECT_EQ(g_firstCustom, 255u);
    EXPECT_TRUE(dialogs.GetCustomColorsString().starts_with(u"65280,1,2,16777215,"));
    dialogs.ShowColor(nullptr, 0);
    EXPECT_EQ(g_firstCustom, 65280u);
}

TEST_F(ColorDialogTest, OwnerAndSizeReachThePlatform) {
    const testing::PatchedImport<BOOL WINAPI(CHOOSECOLORA*)> import("ChooseColorA", &ChooseBlue);
    HWND owner = GetDesktopWindow();
    dialogs.ShowColor(owner, 0x010203);
    EXPECT_EQ(g_colorRecord.hwndOwner, owner);
    EXPECT_EQ(g_colorRecord.lStructSize, sizeof(CHOOSECOLORA));
    EXPECT_EQ(g_colorRecord.rgbResult, 0x010203u);
}

TEST_F(ColorDialogTest, LeavesNothingBehind) {
    for (int n = 0; n < 3; ++n)
        Show(0, IDCANCEL);
    const auto before = testing::GdiCensus::Take();
    const int nWindows = testing::CountOwnWindows();
    for (int n = 0; n < 5; ++n)
        Show(0, IDCANCEL);
    EXPECT_EQ(testing::GdiCensus::Take().count, before.count);
    EXPECT_EQ(testing::CountOwnWindows(), nWindows);
}

} // namespace
} // namespace orvanta
