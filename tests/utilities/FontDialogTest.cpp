#include "plumbing/WideText.h"
#include "tests/support/DialogUser.h"
#include "tests/support/GdiCensus.h"
#include "tests/support/PatchedImport.h"
#include "utilities/clsCommDialogs.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <commdlg.h>
#include <ocidl.h>
#include <olectl.h>

#include <cstring>

namespace orvanta {
namespace {

using testing::DialogUser;
using testing::PatchedImport;

using FontCall = BOOL WINAPI(CHOOSEFONTA*);

CHOOSEFONTA g_fontRecord;
LOGFONTA g_startFont;

// A user who takes Tahoma at 9.8 points with every effect, in green.
BOOL WINAPI ChooseTahoma(CHOOSEFONTA* record) {
    g_fontRecord = *record;
    g_startFont = *record->lpLogFont;
    std::strcpy(record->lpLogFont->lfFaceName, "Tahoma");
    record->lpLogFont->lfWeight = FW_BOLD;
    record->lpLogFont->lfItalic = TRUE;
    record->lpLogFont->lfUnderline = TRUE;
    record->lpLogFont->lfStrikeOut = TRUE;
    record->iPointSize = 98;
    record->rgbColors = 0x00FF00;
    return TRUE;
}

BOOL WINAPI CancelFont(CHOOSEFONTA* record) {
    ChooseTahoma(record);
    return FALSE;
}

// What ShowFont is given and gives back.
struct ChosenFont {
    std::u16string sName = u"MS Sans Serif";
    OleColor lColor = 0x0000FF;
    bool bBold = false, bItalic = false, bUnderline = false, bStrikeout = false;
    std::int16_t iSize = 8;

    bool Show() { return clsCommDialogs().ShowFont(sName, lColor, bBold, bItalic, bUnderline, bStrikeout, iSize); }
};

class FontObject {
public:
    FontObject() {
        FONTDESC description{};
        description.cbSizeofstruct = sizeof description;
        description.lpstrName = const_cast<wchar_t*>(L"MS Sans Serif");
        description.cySize.int64 = 120000;
        description.sWeight = FW_NORMAL;
        description.sCharset = DEFAULT_CHARSET;
        OleCreateFontIndirect(&description, IID_IFont, reinterpret_cast<void**>(&m_font));
    }
    ~FontObject() { m_font->Release(); }
    FontObject(const FontObject&) = delete;
    FontObject& operator=(const FontObject&) = delete;

    IFont* Get() const { return m_font; }
    std::u16string Name() const {
        BSTR name = nullptr;
        m_font->get_Name(&name);
        const std::u16string sName = TextOfWide(name);
        SysFreeString(name);
        return sName;
    }
    LONGLONG Size() const {
        CY size{};
        m_font->get_Size(&size);
        return size.int64;
    }
    bool Flag(HRESULT (STDMETHODCALLTYPE IFont::*get)(BOOL*)) const {
        BOOL b = FALSE;
        (m_font->*get)(&b);
        return b != FALSE;
    }

private:
    IFont* m_font = nullptr;
};

TEST(FontDialogTest, StartsFromTheGivenFontAndGivesItBackOnOk) {
    ChosenFont font;
    font.bItalic = true;
    {
        DialogUser user([](DialogUser& u) { DialogUser::Press(u.NextDialog(), IDOK); });
        EXPECT_TRUE(font.Show());
    }
    EXPECT_EQ(font.sName, u"MS Sans Serif");
    EXPECT_EQ(font.iSize, 8);
    EXPECT_TRUE(font.bItalic);
    EXPECT_FALSE(font.bBold);
    EXPECT_EQ(font.lColor, 0x0000FF);
}

TEST(FontDialogTest, CancelOfTheRealDialogAnswersFalse) {
    ChosenFont font;
    DialogUser user([](DialogUser& u) { DialogUser::Press(u.NextDialog(), IDCANCEL); });
    EXPECT_FALSE(font.Show());
}

TEST(FontDialogTest, ChosenFontIsGivenBackWithItsSizeRounded) {
    const PatchedImport<FontCall> import("ChooseFontA", &ChooseTahoma);
    ChosenFont font;
    EXPECT_TRUE(font.Show());
    EXPECT_EQ(font.sName, u"Tahoma");
    EXPECT_EQ(font.iSize, 10);
    EXPECT_TRUE(font.bBold && font.bItalic && font.bUnderline && font.bStrikeout);
    EXPECT_EQ(font.lColor, 0x00FF00);
}

TEST(FontDialogTest, CancelChangesNothing) {
    const PatchedImport<FontCall> import("ChooseFontA", &CancelFont);
    ChosenFont font;
    EXPECT_FALSE(font.Show());
    EXPECT_EQ(font.sName, u"MS Sans Serif");
    EXPECT_EQ(font.iSize, 8);
    EXPECT_FALSE(font.bBold || font.bItalic || font.bUnderline || font.bStrikeout);
    EXPECT_EQ(font.lColor, 0x0000FF);
}

TEST(FontDialogTest, StartingFontReachesThePlatform) {
    const PatchedImport<FontCall> import("ChooseFontA", &CancelFont);
    ChosenFont font;
    font.bBold = font.bUnderline = true;
    font.iSize = 12;
    font.lColor = static_cast<OleColor>(0x80000008u);
    font.Show();
    EXPECT_STREQ(g_startFont.lfFaceName, "MS Sans Serif");
    EXPECT_EQ(g_startFont.lfHeight, -16); // 12 points at 96 dots to the inch
    EXPECT_EQ(g_startFont.lfWeight, FW_BOLD);
    EXPECT_FALSE(g_startFont.lfItalic);
    EXPECT_TRUE(g_startFont.lfUnderline);
    EXPECT_FALSE(g_startFont.lfStrikeOut);
    EXPECT_EQ(g_fontRecord.rgbColors, static_cast<COLORREF>(ResolveColor(font.lColor)));
    EXPECT_EQ(g_fontRecord.lStructSize, sizeof(CHOOSEFONTA));
}

TEST(FontDialogTest, NameLongerThanARecordHoldsIsCut) {
    const PatchedImport<FontCall> import("ChooseFontA", &CancelFont);
    ChosenFont font;
    font.sName = std::u16string(40, u'n');
    font.Show();
    EXPECT_STREQ(g_startFont.lfFaceName, std::string(31, 'n').c_str());
}

TEST(FontDialogTest, FontObjectTakesUpTheChoice) {
    const PatchedImport<FontCall> import("ChooseFontA", &ChooseTahoma);
    const FontObject font;
    OleColor lColor = 0x0000FF;
    EXPECT_TRUE(clsCommDialogs().ShowFontEx(font.Get(), nullptr, nullptr, lColor, 0, 0, CF_EFFECTS));
    EXPECT_STREQ(g_startFont.lfFaceName, "MS Sans Serif");
    EXPECT_EQ(g_startFont.lfHeight, -16);
    EXPECT_EQ(font.Name(), u"Tahoma");
    EXPECT_EQ(font.Size(), 97500); // 9.8 points, which the font object brings to whole pixels
    EXPECT_TRUE(font.Flag(&IFont::get_Bold));
    EXPECT_TRUE(font.Flag(&IFont::get_Italic));
    EXPECT_TRUE(font.Flag(&IFont::get_Underline));
    EXPECT_TRUE(font.Flag(&IFont::get_Strikethrough));
    EXPECT_EQ(lColor, 0x00FF00);
}

TEST(FontDialogTest, CancelLeavesTheFontObjectAlone) {
    const PatchedImport<FontCall> import("ChooseFontA", &CancelFont);
    const FontObject font;
    OleColor lColor = 0x0000FF;
    EXPECT_FALSE(clsCommDialogs().ShowFontEx(font.Get(), nullptr, nullptr, lColor, 0, 0, 0));
    EXPECT_EQ(font.Name(), u"MS Sans Serif");
    EXPECT_EQ(font.Size(), 120000);
    EXPECT_FALSE(font.Flag(&IFont::get_Bold));
    EXPECT_EQ(lColor, 0x0000FF);
}

TEST(FontDialogTest, LimitsOwnerAndFlagsReachThePlatform) {
    const PatchedImport<FontCall> import("ChooseFontA", &CancelFont);
    const FontObject font;
    OleColor lColor = 0;
    HWND owner = GetDesktopWindow();
    clsCommDialogs().ShowFontEx(font.Get(), nullptr, owner, lColor, 6, 30, CF_FIXEDPITCHONLY);
    EXPECT_EQ(g_fontRecord.hwndOwner, owner);
    EXPECT_EQ(g_fontRecord.nSizeMin, 6);
    EXPECT_EQ(g_fontRecord.nSizeMax, 30);
    EXPECT_EQ(g_fontRecord.Flags, CF_FIXEDPITCHONLY | CF_SCREENFONTS | CF_LIMITSIZE | CF_INITTOLOGFONTSTRUCT);
    clsCommDialogs().ShowFontEx(font.Get(), nullptr, nullptr, lColor, 0, 0, CF_SCREENFONTS);
    EXPECT_EQ(g_fontRecord.Flags, static_cast<DWORD>(CF_SCREENFONTS | CF_INITTOLOGFONTSTRUCT));
}

TEST(FontDialogTest, PrinterBringsItsFonts) {
    const PatchedImport<FontCall> import("ChooseFontA", &CancelFont);
    const FontObject font;
    OleColor lColor = 0;
    HDC dc = CreateCompatibleDC(nullptr);
    clsCommDialogs().ShowFontEx(font.Get(), dc, nullptr, lColor, 0, 0, CF_SCREENFONTS);
    EXPECT_EQ(g_fontRecord.hDC, dc);
    EXPECT_EQ(g_fontRecord.Flags & CF_BOTH, static_cast<DWORD>(CF_BOTH));
    clsCommDialogs().ShowFontEx(font.Get(), dc, nullptr, lColor, 0, 0, 0);
    EXPECT_EQ(g_fontRecord.Flags & CF_BOTH, static_cast<DWORD>(CF_PRINTERFONTS));
    DeleteDC(dc);
}

TEST(FontDialogTest, WithoutAFontObjectNothingIsShown) {
    OleColor lColor = 7;
    EXPECT_FALSE(clsCommDialogs().ShowFontEx(nullptr, nullptr, nullptr, lColor, 0, 0, 0));
    EXPECT_EQ(lColor, 7);
}

TEST(FontDialogTest, LeavesNoGdiObjectBehind) {
    const PatchedImport<FontCall> import("ChooseFontA", &CancelFont);
    const FontObject object;
    ChosenFont font;
    OleColor lColor = 0;
    const auto round = [&] {
        font.Show();
        clsCommDialogs().ShowFontEx(object.Get(), nullptr, nullptr, lColor, 0, 0, 0);
    };
    round();
    const auto before = testing::GdiCensus::Take();
    for (int n = 0; n < 20; ++n)
        round();
    EXPECT_EQ(testing::GdiCensus::Take().count, before.count);
}

} // namespace
} // namespace orvanta
