// What a label shows: its face and its text, compared pixel by pixel with what the platform draws in rectangles worked
// out by hand.
#include "tests/controls/basic/LabelFixture.h"

#include <functional>

namespace orvanta::testing {
namespace {

using Notes = std::vector<std::string>;

template<typename LabelType>
class LabelPaint : public LabelFixture<LabelType> {
protected:
    LabelPaint() { this->Show(); }

    using Label = typename LabelFixture<LabelType>::Label;
    static std::vector<OleColor> Shown(const Label& label) { return FormFixture::Grab(label).All(); }
};
TYPED_TEST_SUITE(LabelPaint, BothLabels);

TYPED_TEST(LabelPaint, ATextStandsAtTheTopLeftOfTheWholeClientArea) {
    auto& label = this->Make({10, 10, 120, 40}, u"caption");
    EXPECT_EQ(this->Shown(label), this->Drawn(label, {0, 0, 120, 40}, kBreaks));
}

TYPED_TEST(LabelPaint, AlignmentIsRightForOneAndCentredForTwo) {
    auto& label = this->Make({10, 10, 120, 40}, u"caption");
    label.Alignment(1);
    EXPECT_EQ(this->Shown(label), this->Drawn(label, {0, 0, 120, 40}, kBreaks | DT_RIGHT));
    label.Alignment(2);
    EXPECT_EQ(this->Shown(label), this->Drawn(label, {0, 0, 120, 40}, kBreaks | DT_CENTER));
    label.Alignment(3);
    EXPECT_EQ(this->Shown(label), this->Drawn(label, {0, 0, 120, 40}, kBreaks));
}

TYPED_TEST(LabelPaint, ALongTextIsBrokenBetweenWordsAndTabsAreExpanded) {
    auto& label = this->Make({10, 10, 60, 60}, u"several words\tand a tab");
    EXPECT_EQ(this->Shown(label), this->Drawn(label, {0, 0, 60, 60}, kBreaks));
    EXPECT_NE(this->Shown(label), this->Drawn(label, {0, 0, 60, 60}, DT_WORDBREAK));
    EXPECT_NE(this->Shown(label), this->Drawn(label, {0, 0, 60, 60}, kTabs));
}

TYPED_TEST(LabelPaint, AnAmpersandUnderlinesTheNextCharacter) {
    auto& label = this->Make({10, 10, 120, 40}, u"R&D");
    EXPECT_EQ(this->Shown(label), this->Drawn(label, {0, 0, 120, 40}, kBreaks));
    EXPECT_NE(this->Shown(label), this->Drawn(label, {0, 0, 120, 40}, kBreaks | DT_NOPREFIX));
}

TYPED_TEST(LabelPaint, CarriageReturnsEndLines) {
    auto& label = this->Make({10, 10, 120, 60}, u"one\rtwo\r\nthree");
    EXPECT_EQ(this->Shown(label), this->Drawn(label, {0, 0, 120, 60}, kBreaks));
    const PixelRect ink = BoundsOf(this->Grab(label), kLabelInk);
    EXPECT_GT(ink.bottom, 2 * this->LineOf(label, u"X").cy);
}

TYPED_TEST(LabelPaint, EveryStyleIsTheFaceOfThatStyleWithAndWithoutBorders) {
    auto& label = this->Make({10, 10, 60, 40}, u"");
    label.BackColorOut(0x00FF00);
    for (const bool bRounded : {false, true}) {
        label.RoundedBorders(bRounded);
        for (const std::int32_t lBorderStyle : {0, 1, 2}) {
            label.BorderStyle(lBorderStyle);
            for (std::int32_t lStyle = -1; lStyle <= 8; ++lStyle) {
                SCOPED_TRACE(lStyle);
                label.Style(lStyle);
                EXPECT_EQ(this->Shown(label), this->Drawn(label, {}, 0));
            }
        }
    }
}

TYPED_TEST(LabelPaint, AnAutomaticBorderIsSixtyEightDarkerThanTheFaceAndStopsAtZero) {
    auto& label = this->Make({10, 10, 60, 40}, u"");
    label.BorderStyle(1);
    EXPECT_EQ(this->Grab(label).At(0, 20), 0x8CA484); // of 0xD0E8C8
    label.BackColor(0xFFFFFF);
    EXPECT_EQ(this->Grab(label).At(0, 20), 0xBBBBBB);
    label.BackColor(0x204060);
    EXPECT_EQ(this->Grab(label).At(0, 20), 0x00001C);
    label.BorderColor(0x123456);
    EXPECT_EQ(this->Grab(label).At(0, 20), 0x123456);
}

TYPED_TEST(LabelPaint, ABorderTakesTwoPixelsOfTheTextOnEachSide) {
    auto& label = this->Make({10, 10, 120, 40}, u"caption");
    label.BorderStyle(1);
    EXPECT_EQ(this->Shown(label), this->Drawn(label, {2, 2, 118, 38}, kBreaks));
    label.Alignment(1);
    EXPECT_EQ(this->Shown(label), this->Drawn(label, {2, 2, 118, 38}, kBreaks | DT_RIGHT));
    label.BorderStyle(2);
    EXPECT_EQ(this->Shown(label), this->Drawn(label, {0, 0, 120, 40}, kBreaks | DT_RIGHT));
}

TYPED_TEST(LabelPaint, AMarginWithoutAutoSizeChangesNothingOnTheScreen) {
    auto& label = this->Make({10, 10, 120, 40}, u"caption");
    const std::vector<OleColor> before = this->Shown(label);
    label.Margin(5);
    EXPECT_EQ(this->Shown(label), before);
    label.BorderStyle(1);
    EXPECT_EQ(this->Shown(label), this->Drawn(label, {2, 2, 118, 38}, kBreaks));
}

TYPED_TEST(LabelPaint, ATextInTheMiddleStartsAtHalfTheFreeHeightHalvesToEven) {
    auto& label = this->Make({10, 10, 120, 40}, u"caption");
    label.VAlignment(1);
    const int H = this->LineOf(label, u"caption").cy;
    ASSERT_EQ(H, 13);
    EXPECT_EQ(this->Shown(label), this->Drawn(label, {0, 14, 120, 40}, kBreaks)); // 13.5
    label.Host().Extender().Height(42);
    EXPECT_EQ(this->Shown(label), this->Drawn(label, {0, 14, 120, 42}, kBreaks)); // 14.5
    label.Host().Extender().Height(41);
    EXPECT_EQ(this->Shown(label), this->Drawn(label, {0, 14, 120, 41}, kBreaks));
}

TYPED_TEST(LabelPaint, ATextAtTheBottomEndsThere) {
    auto& label = this->Make({10, 10, 120, 40}, u"caption");
    label.VAlignment(2);
    EXPECT_EQ(this->Shown(label), this->Drawn(label, {0, 27, 120, 40}, kBreaks));
    label.BorderStyle(1);
    EXPECT_EQ(this->Shown(label), this->Drawn(label, {2, 25, 118, 38}, kBreaks));
}

TYPED_TEST(LabelPaint, ABorderedTextThatJustWrapsIsPlacedByTheWiderMeasure) {
    const std::u16string sText = u"two words";
    auto& probe = this->Make({10, 10, 200, 60}, sText);
    const int width = this->LineOf(probe, sText).cx + 2;
    ASSERT_EQ(this->Measured(probe, sText, width, kBreaks).cy, 13);
    ASSERT_EQ(this->Measured(probe, sText, width - 4, kBreaks).cy, 26);
    this->form.Remove(probe);

    auto& label = this->Make({10, 10, static_cast<float>(width), 60}, sText);
    label.BorderStyle(1);
    label.VAlignment(2);
    // One line of 13 above the bottom of 58, although two are drawn.
    EXPECT_EQ(this->Shown(label), this->Drawn(label, {2, 45, width - 2, 58}, kBreaks));
    label.VAlignment(1);
    EXPECT_EQ(this->Shown(label), this->Drawn(label, {2, 22, width - 2, 58}, kBreaks)); // 22.5
}

TYPED_TEST(LabelPaint, ATextInTheMiddleHigherThanTheLabelIsCutAtBothEnds) {
    auto& label = this->Make({10, 10, 120, 20}, u"one\rtwo\rthree\rfour");
    label.VAlignment(1);
    ASSERT_EQ(this->Measured(label, label.Caption(), 120, kBreaks).cy, 52);
    EXPECT_EQ(this->Shown(label), this->Drawn(label, {0, -16, 120, 20}, kBreaks));
    // The second and the third line meet in the middle; of the first nothing is left.
    EXPECT_NE(this->Shown(label), this->Drawn(label, {0, 0, 120, 20}, kBreaks));
}

TYPED_TEST(LabelPaint, VerticalAlignmentDoesNothingToALabelThatFollowsItsText) {
    auto& label = this->Make({10, 10, 120, 40}, u"caption");
    label.VAlignment(2);
    label.Margin(6);
    label.AutoSize(true);
    this->Pump();
    const PixelRect place = this->PlaceOf(label);
    EXPECT_EQ(place.Height(), 25);
    EXPECT_EQ(this->Shown(label), this->Drawn(label, {6, 6, place.Width() - 6, 19}, kTabs));
}

TYPED_TEST(LabelPaint, ADisabledLabelIsGreyAndKeepsItsFace) {
    auto& label = this->Make({10, 10, 120, 40}, u"caption");
    label.BorderStyle(1);
    label.Enabled(false);
    EXPECT_EQ(this->Shown(label), this->Drawn(label, {2, 2, 118, 38}, kBreaks, kSystemGrayText));
    EXPECT_EQ(label.Host().ForeColor(), kSystemGrayText);
    EXPECT_EQ(label.ForeColor(), kLabelInk);
    label.Enabled(true);
    EXPECT_EQ(this->Shown(label), this->Drawn(label, {2, 2, 118, 38}, kBreaks));
    EXPECT_EQ(label.Host().ForeColor(), kLabelInk);
}

TYPED_TEST(LabelPaint, SystemColorsAreResolvedAtEachPaint) {
    auto& label = this->Make({10, 10, 120, 40}, u"caption");
    label.BackColor(kSystemWindow);
    label.ForeColor(kSystemButtonText);
    const INT element = COLOR_WINDOW;
    const COLORREF before = GetSysColor(element);
    const COLORREF other = 0x40C0FF;
    SetSysColors(1, &element, &other);
    SendMessageW(this->form.hWnd(), WM_SYSCOLORCHANGE, 0, 0);
    const std::vector<OleColor> shown = this->Shown(label);
    const std::vector<OleColor> expected = this->Drawn(label, {0, 0, 120, 40}, kBreaks, kSystemButtonText);
    SetSysColors(1, &element, &before);
    EXPECT_EQ(shown, expected);
    EXPECT_EQ(shown.back(), static_cast<OleColor>(other));
}

TYPED_TEST(LabelPaint, AnyBackStyleButZeroIsOpaque) {
    auto& label = this->Make({10, 10, 120, 40}, u"caption");
    for (const std::int32_t lBackStyle : {-1, 1, 2}) {
        label.PutProperty(u"BackStyle", lBackStyle);
        EXPECT_EQ(this->Shown(label), this->Drawn(label, {0, 0, 120, 40}, kBreaks));
        EXPECT_FALSE(this->HasRegion(label));
        EXPECT_EQ(label.Host().BackStyle(), 1);
    }
}

TYPED_TEST(LabelPaint, AChangedFontIsTakenUpOnRequest) {
    auto& label = this->Make({10, 10, 120, 40}, u"caption");
    label.Font().Bold(true);
    label.ApplyFontChanges();
    EXPECT_EQ(this->Shown(label), this->Drawn(label, {0, 0, 120, 40}, kBreaks));
    EXPECT_GT(this->LineOf(label, u"caption").cx, 30);
}

TYPED_TEST(LabelPaint, ANewSizeShowsTheWholeLabelAnew) {
    auto& label = this->Make({10, 10, 120, 40}, u"caption");
    label.BorderStyle(1);
    label.Alignment(1);
    this->Pump();
    label.Taken();
    label.Host().Extender().Width(150);
    EXPECT_EQ(label.Taken(), (Notes{"repaint", "Resize"}));
    EXPECT_EQ(this->Shown(label), this->Drawn(label, {2, 2, 148, 38}, kBreaks | DT_RIGHT));
}

// What only the label does that is drawn by its paint.
class LabelRepaint : public LabelFixture<ctlUniLabel> {
protected:
    static bool AsksForPaint(const Control& control) { return GetUpdateRect(control.hwnd(), nullptr, FALSE) != 0; }
    static std::vector<std::function<void()>> SettersOf(Label& label) {
        return {
            [&] { label.Caption(u"other"); },    [&] { label.BackColor(1); },
            [&] { label.ForeColor(2); },         [&] { label.BorderColor(3); },
            [&] { label.Alignment(1); },         [&] { label.VAlignment(1); },
            [&] { label.BorderStyle(1); },       [&] { label.Style(3); },
            [&] { label.Enabled(false); },       [&] { label.Margin(4); },
            [&] { label.BackColorOut(4); },      [&] { label.UseRoundRegions(false); },
            [&] { label.RoundedBorders(true); }, [&] { label.AutoSize(true); },
            [&] { label.ApplyFontChanges(); },   [&] { label.Font(label.Font().Clone()); },
            [&] { label.Refresh(false); },
        };
    }
};

TEST_F(LabelRepaint, NoSetterPaintsInRunModeAndEachAsksForOnePaint) {
    Show();
    auto& label = Make({10, 10, 120, 40}, u"caption");
    for (const auto& set : SettersOf(label)) {
        Pump();
        const int nBefore = label.nPaints;
        EXPECT_FALSE(AsksForPaint(label));
        set();
        EXPECT_EQ(label.nPaints, nBefore);
        EXPECT_TRUE(AsksForPaint(label));
        UpdateWindow(label.hwnd());
        EXPECT_EQ(label.nPaints, nBefore + 1);
    }
}

TEST_F(LabelRepaint, ABurstOfAThousandSettersIsOnePaint) {
    Show();
    auto& label = Make({10, 10, 120, 40}, u"caption");
    Pump();
    label.nPaints = 0;
    for (int n = 0; n < 1000; ++n)
        label.Caption(n % 2 == 0 ? u"even" : u"odd");
    EXPECT_EQ(label.nPaints, 0);
    Pump();
    EXPECT_EQ(label.nPaints, 1);
}

TEST_F(LabelRepaint, EnabledAsItIsAlreadyAsksForNothing) {
    Show();
    auto& label = Make({10, 10, 120, 40}, u"caption");
    Pump();
    label.Enabled(true);
    label.AutoSize(false);
    label.Tip(u"tip");
    label.MousePointer(2);
    label.OLEDropMode(1);
    EXPECT_FALSE(AsksForPaint(label));
}

TEST_F(LabelRepaint, InDesignModeEachSetterPaintsAtOnce) {
    form.UserMode(false);
    Show();
    auto& label = Make({10, 10, 120, 40}, u"caption");
    for (const auto& set : SettersOf(label)) {
        Pump();
        const int nBefore = label.nPaints;
        set();
        EXPECT_GE(label.nPaints, nBefore + 1);
        EXPECT_FALSE(AsksForPaint(label));
    }
}

TEST_F(LabelRepaint, RefreshNowDrawsAtOnceAndLeavesNothingForThePaint) {
    Show();
    auto& label = Make({10, 10, 120, 40}, u"caption");
    Pump();
    label.nPaints = 0;
    // Something has painted over the label.
    {
        const WindowDc dc(label.hwnd());
        const RECT client = ClientOf(label);
        FillRect(dc.Get(), &client, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
    }
    label.Refresh(true);
    EXPECT_EQ(label.nPaints, 0);
    EXPECT_FALSE(AsksForPaint(label));
    EXPECT_EQ(WindowPixels(label.hwnd()).All(), Drawn(label, {0, 0, 120, 40}, kBreaks));
}

TEST_F(LabelRepaint, RefreshNowDrawsWithAFontOfItsOwnWhoseSizeHasNoFraction) {
    Show();
    auto& label = Make({10, 10, 160, 40}, u"caption");
    label.Font(OleFont::Create(u"Tahoma", 9.75));
    const auto widthOfInk = [&] { return BoundsOf(WindowPixels(label.hwnd()), kLabelInk).Width(); };
    Grab(label);
    const int painted = widthOfInk();
    label.Refresh(true);
    const int drawnNow = widthOfInk();
    EXPECT_LT(drawnNow, painted);
    // The host's own font is back for the next paint.
    label.Refresh(false);
    Grab(label);
    EXPECT_EQ(widthOfInk(), painted);
}

TEST_F(LabelRepaint, RefreshBuildsTheShapeOnceMoreWhatsoever) {
    auto& label = Make({10, 10, 120, 40}, u"caption");
    label.Refresh(false);
    EXPECT_EQ(label.Taken(), (Notes{"shape", "repaint"}));
    label.Refresh(true);
    EXPECT_EQ(label.Taken(), Notes{"shape"});
}

TEST_F(LabelRepaint, TheRepaintGuardKeepsAPaintInsideAPaintAway) {
    Show();
    auto& label = Make({10, 10, 120, 40}, u"caption");
    Pump();
    int nResized = 0;
    label.Resize.Add([&] {
        ++nResized;
        label.Refresh(true);
    });
    label.AutoSize(true);
    Pump();
    EXPECT_EQ(nResized, 1);
    EXPECT_EQ(Grab(label).All(), Drawn(label, ClientOf(label), kTabs));
}

} // namespace
} // namespace orvanta::testing
