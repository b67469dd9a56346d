// The windows of transparent and round labels.
#include "plumbing/SharedShapes.h"
#include "tests/controls/basic/LabelFixture.h"

namespace orvanta::testing {
namespace {

template<typename LabelType>
class LabelShape : public LabelFixture<LabelType> {
protected:
    LabelShape() {
        this->form.BackColor(0x00FFFF);
        this->Show();
    }
    using Label = typename LabelFixture<LabelType>::Label;

    Label& MakeBare(const ControlPlace& place, const std::u16string& sCaption) {
        auto& label = this->Make(place, sCaption);
        label.PutProperty(u"BackStyle", 0);
        this->Pump();
        label.Taken();
        return label;
    }
    // What the user hits at a pixel of the label.
    HWND HitAt(const Control& control, int x, int y) {
        POINT point{x, y};
        ClientToScreen(control.hwnd(), &point);
        return WindowFromPoint(point);
    }
    // What the form shows where the label stands.
    std::vector<OleColor> OnForm(const Control& control) {
        RedrawWindow(this->form.hWnd(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        const PixelRect place = this->PlaceOf(control);
        const WindowPixels pixels(this->form.hWnd());
        std::vector<OleColor> shown;
        for (int y = place.top; y < place.bottom; ++y)
            for (int x = place.left; x < place.right; ++x)
                shown.push_back(pixels.At(x, y));
        return shown;
    }
    // A colour where the shape is, the form elsewhere.
    static std::vector<OleColor> Masked(const std::vector<bool>& shape, OleColor ink) {
        std::vector<OleColor> pixels;
        for (const bool b : shape)
            pixels.push_back(b ? ink : 0x00FFFF);
        return pixels;
    }
};
TYPED_TEST_SUITE(LabelShape, BothLabels);

TYPED_TEST(LabelShape, ATransparentLabelIsExactlyTheShapeOfItsGlyphs) {
    auto& label = this->MakeBare({10, 10, 120, 40}, u"caption");
    label.Alignment(2);
    label.VAlignment(2);
    this->Pump();
    const std::vector<bool> glyphs = this->GlyphsOf(label, {0, 27, 120, 40}, kBreaks | DT_CENTER);
    EXPECT_EQ(this->ShapeOf(label), glyphs);
    EXPECT_NE(std::count(glyphs.begin(), glyphs.end(), true), 0);
    EXPECT_EQ(this->OnForm(label), this->Masked(glyphs, kLabelInk));
    EXPECT_EQ(label.Host().BackStyle(), 0);
}

TYPED_TEST(LabelShape, TheMouseHitsTheGlyphsAndNothingBetweenThem) {
    auto& label = this->MakeBare({10, 10, 40, 20}, u"HI");
    const std::vector<bool> glyphs = this->GlyphsOf(label, {0, 0, 40, 20}, kBreaks);
    int nHits = 0;
    for (int y = 0; y < 20; ++y) {
        for (int x = 0; x < 40; ++x) {
            const bool bGlyph = glyphs[static_cast<std::size_t>(y * 40 + x)];
            nHits += bGlyph;
            ASSERT_EQ(this->HitAt(label, x, y), bGlyph ? label.hwnd() : this->form.hWnd()) << x << ", " << y;
        }
    }
    EXPECT_GT(nHits, 10);
}

TYPED_TEST(LabelShape, ADisabledTransparentLabelKeepsItsMaskAndShowsGrey) {
    auto& label = this->MakeBare({10, 10, 120, 40}, u"caption");
    const std::vector<bool> before = this->ShapeOf(label);
    label.Enabled(false);
    this->Pump();
    EXPECT_EQ(this->ShapeOf(label), before);
    EXPECT_EQ(this->OnForm(label), this->Masked(before, SystemColor(0x11)));
}

TYPED_TEST(LabelShape, ANewCaptionIsANewShapeAtOnce) {
    auto& label = this->MakeBare({10, 10, 120, 40}, u"caption");
    label.Caption(u"other words");
    EXPECT_EQ(this->ShapeOf(label), this->GlyphsOf(label, {0, 0, 120, 40}, kBreaks));
    this->Pump();
    EXPECT_EQ(this->OnForm(label), this->Masked(this->ShapeOf(label), kLabelInk));
}

TYPED_TEST(LabelShape, AnEmptyTransparentLabelIsNowhereUntilItHasACaption) {
    auto& label = this->MakeBare({10, 10, 120, 40}, u"");
    const std::vector<bool> shape = this->ShapeOf(label);
    EXPECT_EQ(std::count(shape.begin(), shape.end(), true), 0);
    label.Caption(u"caption");
    EXPECT_EQ(this->ShapeOf(label), this->GlyphsOf(label, {0, 0, 120, 40}, kBreaks));
}

TYPED_TEST(LabelShape, ABorderMovesTheGlyphsAndIsNotSeenItself) {
    auto& label = this->MakeBare({10, 10, 120, 40}, u"caption");
    label.BorderStyle(1);
    this->Pump();
    EXPECT_EQ(this->ShapeOf(label), this->GlyphsOf(label, {2, 2, 118, 38}, kBreaks));
    EXPECT_EQ(this->OnForm(label), this->Masked(this->ShapeOf(label), kLabelInk));
}

TYPED_TEST(LabelShape, AnOpaqueLabelAgainIsAFullRectangleAgain) {
    auto& label = this->MakeBare({10, 10, 120, 40}, u"caption");
    label.PutProperty(u"BackStyle", 1);
    this->Pump();
    EXPECT_FALSE(this->HasRegion(label));
    EXPECT_EQ(this->Grab(label).All(), this->Drawn(label, {0, 0, 120, 40}, kBreaks));
}

TYPED_TEST(LabelShape, TheShapeIsThereAfterALoad) {
    PropertyBag bag;
    bag.WriteProperty(u"Caption", u"caption");
    bag.WriteProperty(u"BackStyle", 0);
    auto& label = this->form.template Load<typename TestFixture::Label>(u"lblName", {10, 10, 120, 40}, bag);
    this->Pump();
    EXPECT_EQ(this->ShapeOf(label), this->GlyphsOf(label, {0, 0, 120, 40}, kBreaks));
}

TYPED_TEST(LabelShape, PaintingATransparentLabelComesToAnEnd) {
    auto& label = this->MakeBare({10, 10, 120, 40}, u"caption");
    label.nPaints = 0;
    label.ForeColor(0x00FF00);
    for (int n = 0; n < 20; ++n)
        this->Pump();
    EXPECT_LE(label.nPaints, 1);
    EXPECT_EQ(this->OnForm(label), this->Masked(this->ShapeOf(label), 0x00FF00));
}

// The platform rounds a corner of 2 as it likes: the same call says how.
TYPED_TEST(LabelShape, RoundRegionsTakeTheirCornersFromAMaskWithCornerTwoWhileTheBorderHasFour) {
    auto& label = this->Make({10, 10, 120, 40}, u"caption");
    label.BorderStyle(1);
    label.BackColorOut(0xFF00FF);
    label.UseRoundRegions(true);
    this->Pump();
    const PixelCanvas mask(120, 40, 0);
    DrawRoundRect(mask.Dc(), 0, 0, 120, 40, true, 0xFFFFFF, 0xFFFFFF, 1, PS_SOLID, 2);
    std::vector<bool> round;
    for (const OleColor c : mask.Pixels())
        round.push_back(c != 0);
    EXPECT_EQ(this->ShapeOf(label), round);
    EXPECT_TRUE(this->HasRegion(label));
    EXPECT_EQ(label.Host().BackStyle(), 0);
    std::vector<OleColor> expected = this->Drawn(label, {2, 2, 118, 38}, kBreaks);
    for (std::size_t n = 0; n < round.size(); ++n)
        if (!round[n]) expected[n] = 0x00FFFF;
    EXPECT_EQ(this->OnForm(label), expected);
}

TYPED_TEST(LabelShape, RoundRegionsFollowANewSizeAndGoWhenTheyAreTurnedOff) {
    auto& label = this->Make({10, 10, 120, 40}, u"caption");
    label.UseRoundRegions(true);
    this->Pump();
    label.Host().Size(150, 50);
    this->Pump();
    EXPECT_TRUE(this->ShapeOf(label)[150 * 25 + 140]);
    label.UseRoundRegions(false);
    this->Pump();
    EXPECT_FALSE(this->HasRegion(label));
    EXPECT_EQ(label.Host().BackStyle(), 1);
}

TYPED_TEST(LabelShape, ATransparentLabelIsTheShapeOfItsTextEvenWithRoundRegions) {
    auto& label = this->MakeBare({10, 10, 120, 40}, u"caption");
    label.UseRoundRegions(true);
    this->Pump();
    EXPECT_EQ(this->ShapeOf(label), this->GlyphsOf(label, {0, 0, 120, 40}, kBreaks));
}

TYPED_TEST(LabelShape, ATransparentLabelThatWasTooLowForItsTextComesBackWithItsOldSize) {
    auto& label = this->MakeBare({10, 10, 120, 40}, u"caption");
    label.Host().Size(120, 2);
    this->Pump();
    const std::vector<bool> low = this->ShapeOf(label);
    EXPECT_EQ(std::count(low.begin(), low.end(), true), 0);
    label.Host().Size(120, 40);
    this->Pump();
    EXPECT_EQ(this->ShapeOf(label), this->GlyphsOf(label, {0, 0, 120, 40}, kBreaks));
    EXPECT_EQ(this->OnForm(label), this->Masked(this->ShapeOf(label), kLabelInk));
}

TYPED_TEST(LabelShape, AtANewResolutionATransparentLabelIsTheShapeOfItsLargerGlyphs) {
    auto& label = this->Make({10, 10, 160, 60}, u"caption");
    label.Font(OleFont::Create(u"Tahoma", 9));
    label.PutProperty(u"BackStyle", 0);
    this->Pump();
    SendMessageW(this->form.hWnd(), WM_DPICHANGED, MAKEWPARAM(144, 144), 0);
    this->Pump();
    const PixelCanvas glyphs(160, 60, 0);
    const OwnedFont font(CreateFontW(-18, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS,
                                     CLIP_DEFAULT_PRECIS, kGlyphQuality<TypeParam>, DEFAULT_PITCH | FF_DONTCARE,
                                     L"Tahoma"));
    const Selection selection(glyphs.Dc(), font.Get());
    SetBkColor(glyphs.Dc(), 0);
    SetTextColor(glyphs.Dc(), 0xFFFFFF);
    RECT text{0, 0, 160, 60};
    DrawTextW(glyphs.Dc(), L"caption", 7, &text, kBreaks);
    std::vector<bool> expected;
    for (const OleColor c : glyphs.Pixels())
        expected.push_back(c != 0);
    EXPECT_EQ(this->ShapeOf(label), expected);
    const auto shown = this->OnForm(label);
    if constexpr (std::is_same_v<TypeParam, ctlUniLabelNoFlick>) {
        EXPECT_EQ(shown, this->Masked(expected, kLabelInk));
    } else {
        // Its glyphs are smooth at this size: only what they cover whole has the ink.
        const auto mask = glyphs.Pixels();
        int nWhole = 0;
        for (std::size_t n = 0; n < mask.size(); ++n) {
            if (mask[n] != 0xFFFFFF) continue;
            ++nWhole;
            EXPECT_EQ(shown[n], kLabelInk) << n;
        }
        EXPECT_GT(nWhole, 50);
    }
}

TYPED_TEST(LabelShape, AtANewResolutionAnOpaqueLabelShowsLargerText) {
    auto& label = this->Make({10, 10, 160, 60}, u"caption");
    label.Font(OleFont::Create(u"Tahoma", 9));
    this->Pump();
    const auto before = this->OnForm(label);
    EXPECT_EQ(before, this->Drawn(label, {0, 0, 160, 60}, kBreaks));
    SendMessageW(this->form.hWnd(), WM_DPICHANGED, MAKEWPARAM(144, 144), 0);
    this->Pump();
    EXPECT_GT(this->LineOf(label, u"caption").cy, 16);
    EXPECT_NE(this->OnForm(label), before);
    EXPECT_EQ(this->OnForm(label), this->Drawn(label, {0, 0, 160, 60}, kBreaks));
}

} // namespace
} // namespace orvanta::testing
