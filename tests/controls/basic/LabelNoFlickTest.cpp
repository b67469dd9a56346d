// What the flicker-free label does otherwise than its twin.
#include "tests/controls/basic/LabelFixture.h"
#include "tests/support/PatchedImport.h"

#include <functional>

namespace orvanta::testing {
namespace {

class LabelNoFlick : public LabelFixture<ctlUniLabelNoFlick> {
protected:
    LabelNoFlick() { Show(); }

    // What stands on the screen now, without a paint for it.
    static std::vector<OleColor> OnScreen(const Control& control) { return WindowPixels(control.hwnd()).All(); }
};

TEST_F(LabelNoFlick, ItsHostRetainsTheImage) {
    auto& label = Make({10, 10, 120, 40}, u"caption");
    EXPECT_TRUE(label.Host().AutoRedraw());
    EXPECT_EQ(label.Hdc(), label.Host().hDC());
    EXPECT_EQ(GetObjectType(label.Hdc()), static_cast<DWORD>(OBJ_MEMDC));
}

TEST_F(LabelNoFlick, EverySetterShowsTheFinishedLabelAtOnceAndLeavesNothingToPaint) {
    auto& label = Make({10, 10, 120, 40}, u"caption");
    const std::function<void()> setters[] = {
        [&] { label.Caption(u"other"); },
        [&] { label.BackColor(0x80FFFF); },
        [&] { label.ForeColor(0x008000); },
        [&] { label.BorderStyle(1); },
        [&] { label.BorderColor(0xFF); },
        [&] { label.Style(3); },
        [&] { label.RoundedBorders(true); },
        [&] { label.BackColorOut(0xFF00); },
        [&] {
            label.Font().Bold(true);
            label.ApplyFontChanges();
        },
    };
    for (std::size_t n = 0; n < std::size(setters); ++n) {
        SCOPED_TRACE(n);
        setters[n]();
        const int nBorder = label.BorderStyle() == 1 ? 2 : 0;
        EXPECT_EQ(OnScreen(label),
                  Drawn(label, {nBorder, nBorder, 120 - nBorder, 40 - nBorder}, kBreaks, label.ForeColor()));
        EXPECT_EQ(GetUpdateRect(label.hwnd(), nullptr, FALSE), 0);
    }
    label.Enabled(false);
    EXPECT_EQ(OnScreen(label), Drawn(label, {2, 2, 118, 38}, kBreaks, kSystemGrayText));
    EXPECT_EQ(label.nPaints, 0);
}

TEST_F(LabelNoFlick, AWindowThatIsUncoveredShowsTheRetainedImageWithoutDrawing) {
    auto& label = Make({10, 10, 120, 40}, u"caption");
    {
        const WindowDc dc(label.hwnd());
        const RECT client = ClientOf(label);
        FillRect(dc.Get(), &client, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
    }
    label.Taken();
    InvalidateRect(label.hwnd(), nullptr, TRUE);
    Pump();
    EXPECT_EQ(OnScreen(label), Drawn(label, {0, 0, 120, 40}, kBreaks));
    EXPECT_TRUE(label.Taken().empty());
    EXPECT_EQ(label.nPaints, 0);
}

TEST_F(LabelNoFlick, ACallerMayDrawOnTheRetainedImage) {
    auto& label = Make({10, 10, 120, 40}, u"");
    SetPixelV(label.Hdc(), 100, 30, 0x123456);
    label.Host().Refresh();
    EXPECT_EQ(WindowPixels(label.hwnd()).At(100, 30), 0x123456);
    label.Refresh(false);
    EXPECT_EQ(WindowPixels(label.hwnd()).At(100, 30), kLabelFace);
}

TEST_F(LabelNoFlick, RefreshDrawsAtOnceWhateverItsArgument) {
    auto& label = Make({10, 10, 120, 40}, u"caption");
    for (const bool bNow : {false, true}) {
        PatBlt(label.Hdc(), 0, 0, 120, 40, BLACKNESS);
        label.Refresh(bNow);
        EXPECT_EQ(OnScreen(label), Drawn(label, {0, 0, 120, 40}, kBreaks));
        EXPECT_EQ(label.Taken(), std::vector<std::string>{"repaint"});
    }
}

TEST_F(LabelNoFlick, BackStyleIsPublic) {
    auto& label = Make({10, 10, 120, 40}, u"caption");
    EXPECT_EQ(label.BackStyle(), 1);
    label.BackStyle(0);
    EXPECT_EQ(label.BackStyle(), 0);
    EXPECT_EQ(label.Taken(), (std::vector<std::string>{"shape", "repaint"}));
    EXPECT_EQ(ShapeOf(label), GlyphsOf(label, {0, 0, 120, 40}, kBreaks));
}

TEST_F(LabelNoFlick, InDesignModeItDrawsJustTheSame) {
    form.UserMode(false);
    auto& label = Make({10, 10, 120, 40}, u"caption");
    label.Caption(u"other");
    EXPECT_EQ(OnScreen(label), Drawn(label, {0, 0, 120, 40}, kBreaks));
}

TEST_F(LabelNoFlick, WithoutARetainedImageAChangeOfColorWaitsForThePaint) {
    auto& label = Make({10, 10, 120, 40}, u"caption");
    label.Host().AutoRedraw(false);
    label.BackColor(0x80FFFF);
    EXPECT_NE(GetUpdateRect(label.hwnd(), nullptr, FALSE), 0);
}

TEST_F(LabelNoFlick, ALargerLabelHasALargerImage) {
    auto& label = Make({10, 10, 120, 40}, u"caption");
    label.Alignment(1);
    label.Host().Size(200, 60);
    EXPECT_EQ(OnScreen(label), Drawn(label, {0, 0, 200, 60}, kBreaks | DT_RIGHT));
}

// The fonts that are made while it lives, by their quality.
std::vector<DWORD> g_qualities;
decltype(&CreateFontW) g_createFont = nullptr;
HFONT WINAPI NoteFont(int h, int w, int e, int o, int weight, DWORD i, DWORD u, DWORD s, DWORD set, DWORD out,
                      DWORD clip, DWORD quality, DWORD pitch, LPCWSTR face) {
    g_qualities.push_back(quality);
    return g_createFont(h, w, e, o, weight, i, u, s, set, out, clip, quality, pitch, face);
}

TEST_F(LabelNoFlick, ItsGlyphsAreNotSmoothedAndABareTextTakesASecondSuchFontForTheImage) {
    auto& label = Make({10, 10, 120, 40}, u"caption");
    const PatchedImport<decltype(CreateFontW)> patched("CreateFontW", NoteFont);
    g_createFont = patched.Original();
    g_qualities.clear();
    label.Refresh(true);
    EXPECT_TRUE(g_qualities.empty()); // the host's own font draws
    label.BackStyle(0);
    g_qualities.clear();
    label.Refresh(true);
    EXPECT_EQ(g_qualities, (std::vector<DWORD>{NONANTIALIASED_QUALITY, NONANTIALIASED_QUALITY}));
}

class LabelGlyphs : public LabelFixture<ctlUniLabel> {};

TEST_F(LabelGlyphs, ThoseOfTheOtherLabelHaveTheDefaultQualityAndOneFontForTheMask) {
    Show();
    auto& label = Make({10, 10, 120, 40}, u"caption");
    label.PutProperty(u"BackStyle", 0);
    Pump();
    label.ForeColor(0x00FF00);
    const PatchedImport<decltype(CreateFontW)> patched("CreateFontW", NoteFont);
    g_createFont = patched.Original();
    g_qualities.clear();
    UpdateWindow(label.hwnd());
    EXPECT_EQ(g_qualities, std::vector<DWORD>{DEFAULT_QUALITY});
}

TEST_F(LabelNoFlick, ABareTextOfAFractionalSizeIsDrawnInTheFontOfItsMask) {
    auto& label = Make({10, 10, 160, 40}, u"caption");
    label.Font(OleFont::Create(u"Tahoma", 9.75));
    label.BackStyle(0);
    const std::vector<bool> glyphs = GlyphsOf(label, {0, 0, 160, 40}, kBreaks);
    EXPECT_EQ(ShapeOf(label), glyphs);
    const WindowPixels shown(label.hwnd());
    for (int y = 0; y < 40; ++y) {
        for (int x = 0; x < 160; ++x) {
            if (!glyphs[static_cast<std::size_t>(y * 160 + x)]) continue;
            ASSERT_EQ(shown.At(x, y), kLabelInk) << x << ", " << y;
        }
    }
}

} // namespace
} // namespace orvanta::testing
