#include "drawing/clsFontHDC.h"

#include "base/Failure.h"
#include "tests/drawing/SurfaceFixture.h"
#include "tests/support/PatchedImport.h"

namespace orvanta {
namespace {

using testing::PatchedImport;

class FontHdc : public ::testing::Test {
protected:
    FontHdc() {
        surface.CreateDC(30, 30, OPAQUE);
        stock = GetCurrentObject(surface.Hdc(), OBJ_FONT);
    }
    // The plain call: no colour change, default quality, no weight change, real resolution.
    void Set(const std::u16string& sName, int iSize, bool bForce96DPI = false) {
        font.SetFontToDC(surface.Hdc(), sName, static_cast<std::int16_t>(iSize), -1, false, false, false, false, 0, 0,
                         bForce96DPI);
    }
    LOGFONTW Selected() const {
        LOGFONTW record{};
        GetObjectW(GetCurrentObject(surface.Hdc(), OBJ_FONT), sizeof record, &record);
        return record;
    }

    clsMEMDC surface; // goes after the font
    HGDIOBJ stock = nullptr;
    clsFontHDC font;
};

TEST_F(FontHdc, ADcOfZeroFails) {
    Set(u"Tahoma", 8);
    HFONT before = font.hFont();
    testing::ExpectFailure(u"clsFontHDC.SetFontToDC", u"Cannot use this DC!", [&] {
        font.SetFontToDC(nullptr, u"Tahoma", 8, -1, false, false, false, false, 0, 0, false);
    });
    EXPECT_EQ(font.hFont(), before);
    EXPECT_EQ(GetCurrentObject(surface.Hdc(), OBJ_FONT), before) << "nothing is undone by a call that is refused";
}

TEST_F(FontHdc, AnOwnResolutionCountsInPlaceOfThatOfTheDc) {
    Set(u"Tahoma", 9);
    font.Resolution(144);
    EXPECT_EQ(GetCurrentObject(surface.Hdc(), OBJ_FONT), stock);
    Set(u"Tahoma", 9);
    EXPECT_EQ(Selected().lfHeight, -18);
    Set(u"Tahoma", 9, true);
    EXPECT_EQ(Selected().lfHeight, -18) << "a change of bForce96DPI alone keeps the height";
    Set(u"Tahoma", 12, true);
    EXPECT_EQ(Selected().lfHeight, -16);
    font.Resolution(0);
    Set(u"Tahoma", 9);
    EXPECT_EQ(Selected().lfHeight, -MulDiv(9, GetDeviceCaps(surface.Hdc(), LOGPIXELSY), 72));
}

TEST_F(FontHdc, SelectsTheFontAsDescribed) {
    font.SetFontToDC(surface.Hdc(), u"Tahoma", 12, -1, true, true, true, true, 4, 0, false);
    EXPECT_NE(font.hFont(), nullptr);
    EXPECT_EQ(GetCurrentObject(surface.Hdc(), OBJ_FONT), font.hFont());
    LOGFONTW record = Selected();
    EXPECT_EQ(record.lfHeight, -MulDiv(12, GetDeviceCaps(surface.Hdc(), LOGPIXELSY), 72));
    EXPECT_EQ(record.lfWidth, 0);
    EXPECT_EQ(record.lfWeight, 700);
    EXPECT_EQ(record.lfItalic, 1);
    EXPECT_EQ(record.lfUnderline, 1);
    EXPECT_EQ(record.lfStrikeOut, 1);
    EXPECT_EQ(record.lfCharSet, 1);
    EXPECT_EQ(record.lfQuality, 4);
    EXPECT_STREQ(record.lfFaceName, L"Tahoma");
    Set(u"MS Sans Serif", 8);
    record = Selected();
    EXPECT_EQ(record.lfWeight, 400);
    EXPECT_EQ(record.lfItalic, 0);
    EXPECT_EQ(record.lfQuality, 0);
}

TEST_F(FontHdc, DestroyPutsTheOldFontBackAndDeletesTheNewOne) {
    Set(u"Tahoma", 8);
    HFONT own = font.hFont();
    font.Destroy();
    EXPECT_EQ(GetCurrentObject(surface.Hdc(), OBJ_FONT), stock);
    EXPECT_EQ(GetObjectType(own), 0u);
    EXPECT_EQ(font.hFont(), nullptr);
    font.Destroy();
}

TEST_F(FontHdc, ItsEndPutsTheOldFontBack) {
    {
        clsFontHDC other;
        other.SetFontToDC(surface.Hdc(), u"Tahoma", 8, -1, false, false, false, false, 0, 0, false);
        EXPECT_NE(GetCurrentObject(surface.Hdc(), OBJ_FONT), stock);
    }
    EXPECT_EQ(GetCurrentObject(surface.Hdc(), OBJ_FONT), stock);
}

TEST_F(FontHdc, AnotherDcUndoesTheFirstOne) {
    clsMEMDC second;
    second.CreateDC(10, 10, OPAQUE);
    Set(u"Tahoma", 8);
    font.SetFontToDC(second.Hdc(), u"Tahoma", 8, -1, false, false, false, false, 0, 0, false);
    EXPECT_EQ(GetCurrentObject(surface.Hdc(), OBJ_FONT), stock);
    EXPECT_EQ(GetCurrentObject(second.Hdc(), OBJ_FONT), font.hFont());
    font.Destroy();
}

int g_nCaps, g_nMulDivs;
int WINAPI CapsOf120Dpi(HDC, int iIndex) {
    EXPECT_EQ(iIndex, LOGPIXELSY);
    ++g_nCaps;
    return 120;
}
int WINAPI CountMulDiv(int a, int b, int c) {
    ++g_nMulDivs;
    return (a * b + c / 2) / c;
}

class FontHdcAt120Dpi : public FontHdc {
protected:
    FontHdcAt120Dpi() : m_caps("GetDeviceCaps", CapsOf120Dpi), m_mulDiv("MulDiv", CountMulDiv) {
        g_nCaps = g_nMulDivs = 0;
    }

private:
    PatchedImport<decltype(::GetDeviceCaps)> m_caps;
    PatchedImport<decltype(::MulDiv)> m_mulDiv;
};

TEST_F(FontHdcAt120Dpi, TheHeightFollowsTheResolutionUnlessForced) {
    Set(u"Tahoma", 8);
    EXPECT_EQ(Selected().lfHeight, -13); // 8 * 120 / 72 = 13.3
    font.Destroy();
    Set(u"Tahoma", 8, true);
    EXPECT_EQ(Selected().lfHeight, -11); // 8 * 96 / 72 = 10.7
    EXPECT_EQ(g_nCaps, 1);
}

TEST_F(FontHdcAt120Dpi, ASecondCallOnTheSameDcWithTheSameSizeComputesNothingAnew) {
    Set(u"Tahoma", 8);
    EXPECT_EQ(g_nCaps, 1);
    EXPECT_EQ(g_nMulDivs, 1);
    Set(u"MS Sans Serif", 8);
    EXPECT_EQ(g_nCaps, 1);
    EXPECT_EQ(g_nMulDivs, 1);
    EXPECT_EQ(Selected().lfHeight, -13);
    Set(u"MS Sans Serif", 12);
    EXPECT_EQ(g_nCaps, 1);
    EXPECT_EQ(g_nMulDivs, 2);
}

TEST_F(FontHdcAt120Dpi, AfterDestroyBothAreComputedAnew) {
    Set(u"Tahoma", 8);
    font.Destroy();
    Set(u"Tahoma", 8);
    EXPECT_EQ(g_nCaps, 2);
    EXPECT_EQ(g_nMulDivs, 2);
}

TEST_F(FontHdcAt120Dpi, AChangeOfForce96DPIAloneKeepsTheHeight) {
    Set(u"Tahoma", 8);
    Set(u"Tahoma", 8, true);
    EXPECT_EQ(Selected().lfHeight, -13);
    Set(u"Tahoma", 9, true);
    EXPECT_EQ(Selected().lfHeight, -12);
}

TEST_F(FontHdc, TheTextColourIsSetUnlessItIsMinusOne) {
    SetTextColor(surface.Hdc(), RGB(1, 2, 3));
    Set(u"Tahoma", 8);
    EXPECT_EQ(GetTextColor(surface.Hdc()), RGB(1, 2, 3));
    font.SetFontToDC(surface.Hdc(), u"Tahoma", 8, RGB(9, 8, 7), false, false, false, false, 0, 0, false);
    EXPECT_EQ(GetTextColor(surface.Hdc()), RGB(9, 8, 7));
    font.SetFontToDC(surface.Hdc(), u"Tahoma", 8, static_cast<std::int32_t>(0x80000000u | COLOR_HIGHLIGHT), false,
                     false, false, false, 0, 0, false);
    EXPECT_EQ(GetTextColor(surface.Hdc()), GetSysColor(COLOR_HIGHLIGHT));
}

TEST_F(FontHdc, TheWeightIncreaseWidensTheCharacters) {
    TEXTMETRICA metrics{};
    Set(u"Tahoma", 8);
    GetTextMetricsA(surface.Hdc(), &metrics);
    font.SetFontToDC(surface.Hdc(), u"Tahoma", 8, -1, true, false, false, false, 3, 4, false);
    TEXTMETRICA bold{};
    font.SetFontToDC(surface.Hdc(), u"Tahoma", 8, -1, true, false, false, false, 3, 0, false);
    GetTextMetricsA(surface.Hdc(), &bold);
    font.SetFontToDC(surface.Hdc(), u"Tahoma", 8, -1, true, false, false, false, 3, 4, false);
    EXPECT_EQ(Selected().lfWidth, bold.tmAveCharWidth + 4);
    EXPECT_EQ(Selected().lfWeight, 700);
    EXPECT_EQ(Selected().lfQuality, 3);
    EXPECT_EQ(GetCurrentObject(surface.Hdc(), OBJ_FONT), font.hFont());
    font.Destroy();
    EXPECT_EQ(GetCurrentObject(surface.Hdc(), OBJ_FONT), stock);
}

TEST_F(FontHdc, AWeightIncreaseBelowTheWidthGivesWidthOneAndNoFailure) {
    font.SetFontToDC(surface.Hdc(), u"Tahoma", 8, -1, false, false, false, false, 0, -100, false);
    EXPECT_EQ(Selected().lfWidth, 1);
    font.SetFontToDC(surface.Hdc(), u"Tahoma", 8, -1, false, false, false, false, 0, -32768, false);
    EXPECT_EQ(Selected().lfWidth, 1);
    Set(u"Tahoma", 8);
    TEXTMETRICA metrics{};
    GetTextMetricsA(surface.Hdc(), &metrics);
    font.SetFontToDC(surface.Hdc(), u"Tahoma", 8, -1, false, false, false, false, 0,
                     static_cast<std::int16_t>(-metrics.tmAveCharWidth), false);
    EXPECT_EQ(Selected().lfWidth, 1) << "0 would mean the width of the font's own";
}

TEST_F(FontHdc, AWidthBeyond16BitsRaisesOverflow) {
    EXPECT_THROW(font.SetFontToDC(surface.Hdc(), u"Tahoma", 8, -1, false, false, false, false, 0, 32767, false),
                 Failure);
}

std::vector<std::vector<long long>> g_fontCalls;
decltype(&::CreateFontW) g_createFont;
HFONT WINAPI RecordFont(int height, int width, int escapement, int orientation, int weight, DWORD italic,
                        DWORD underline, DWORD strikeOut, DWORD charSet, DWORD outPrecision, DWORD clipPrecision,
                        DWORD quality, DWORD pitchAndFamily, LPCWSTR name) {
    g_fontCalls.push_back({height, width, escapement, orientation, weight, italic, underline, strikeOut, charSet,
                           outPrecision, clipPrecision, quality, pitchAndFamily});
    return g_createFont(height, width, escapement, orientation, weight, italic, underline, strikeOut, charSet,
                        outPrecision, clipPrecision, quality, pitchAndFamily, name);
}

TEST_F(FontHdcAt120Dpi, EveryArgumentOfTheFontIsToldAndAWidenedOneDiffersInItsWidthOnly) {
    const PatchedImport<decltype(::CreateFontW)> patch("CreateFontW", RecordFont);
    g_createFont = patch.Original();
    g_fontCalls.clear();
    font.SetFontToDC(surface.Hdc(), u"Tahoma", 12, -1, true, false, true, false, 77, -100, false);
    const std::vector<long long> asToldFirst{-20, 0, 0, 0, 700, 0, 1, 0, 1, 0, 0, 77, 0};
    std::vector<long long> widened = asToldFirst;
    widened[1] = 1;
    EXPECT_EQ(g_fontCalls, (std::vector{asToldFirst, widened}));
}

HFONT WINAPI NoFont(int, int, int, int, int, DWORD, DWORD, DWORD, DWORD, DWORD, DWORD, DWORD, DWORD, LPCWSTR) {
    return nullptr;
}

TEST_F(FontHdc, AFontThatCannotBeMadeIsSilentAndSelectsNothing) {
    const PatchedImport<decltype(::CreateFontW)> patch("CreateFontW", NoFont);
    SetTextColor(surface.Hdc(), RGB(1, 2, 3));
    font.SetFontToDC(surface.Hdc(), u"Tahoma", 8, RGB(9, 8, 7), false, false, false, false, 0, 4, false);
    EXPECT_EQ(font.hFont(), nullptr);
    EXPECT_EQ(GetCurrentObject(surface.Hdc(), OBJ_FONT), stock);
    EXPECT_EQ(GetTextColor(surface.Hdc()), RGB(1, 2, 3));
}

TEST_F(FontHdc, AFontObjectIsReadAndTheFractionOfItsSizeDropped) {
    OleFont object = OleFont::Create(u"Tahoma", 9.75);
    object.Bold(true);
    object.Underline(true);
    ASSERT_DOUBLE_EQ(object.Size(), 9.75);
    font.SetFontToDCStdFont(surface.Hdc(), object, -1, 0, 0, false);
    EXPECT_EQ(Selected().lfHeight, -12); // 9 points, not 9.75 (-13) and not 10 (-13)
    EXPECT_EQ(Selected().lfWeight, 700);
    EXPECT_EQ(Selected().lfUnderline, 1);
    EXPECT_EQ(Selected().lfItalic, 0);
    EXPECT_STREQ(Selected().lfFaceName, L"Tahoma");
    object = OleFont::Create(u"MS Sans Serif", 8.25);
    object.Italic(true);
    object.Strikethrough(true);
    font.SetFontToDCStdFont(surface.Hdc(), object, -1, 2, 0, true);
    EXPECT_EQ(Selected().lfHeight, -11);
    EXPECT_EQ(Selected().lfItalic, 1);
    EXPECT_EQ(Selected().lfStrikeOut, 1);
    EXPECT_EQ(Selected().lfQuality, 2);
}

} // namespace
} // namespace orvanta
