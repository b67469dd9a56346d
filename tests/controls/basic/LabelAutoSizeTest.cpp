#include "controls/basic/ctlUniFrameXP.h"
#include "tests/controls/basic/LabelFixture.h"

namespace orvanta::testing {
namespace {

template<typename LabelType>
class LabelAutoSize : public LabelFixture<LabelType> {
protected:
    LabelAutoSize() { this->Show(); }

    using Label = typename LabelFixture<LabelType>::Label;

    Label& MakeAutoSized(const ControlPlace& place, const std::u16string& sCaption) {
        auto& label = this->Make(place, sCaption);
        label.AutoSize(true);
        this->Pump();
        label.Taken();
        return label;
    }
    // A text that is so many pixels wider.
    static std::u16string Wider(const Control& control, const std::u16string& sText, int pixels) {
        const int wanted = LabelFixture<LabelType>::LineOf(control, sText).cx + pixels;
        for (std::size_t nNarrow = 0; nNarrow < 10; ++nNarrow) {
            for (std::size_t nMiddle = 0; nMiddle < 10; ++nMiddle) {
                const std::u16string s = sText + std::u16string(nNarrow, u'i') + std::u16string(nMiddle, u't');
                if (LabelFixture<LabelType>::LineOf(control, s).cx == wanted) return s;
            }
        }
        ADD_FAILURE() << "no text is wider by " << pixels;
        return sText;
    }
    void SetCaption(Label& label, const std::u16string& s) {
        label.Caption(s);
        this->Pump();
    }
};
TYPED_TEST_SUITE(LabelAutoSize, BothLabels);

TYPED_TEST(LabelAutoSize, AnEmptyCaptionLeavesTheSizeUnchanged) {
    auto& label = this->MakeAutoSized({10, 20, 120, 40}, u"");
    EXPECT_EQ(this->PlaceOf(label), (PixelRect{10, 20, 130, 60}));
    EXPECT_TRUE(label.TakenEvents().empty());
}

TYPED_TEST(LabelAutoSize, TheLabelTakesTheSizeOfItsText) {
    auto& label = this->MakeAutoSized({10, 20, 120, 40}, u"caption");
    const SIZE line = this->LineOf(label, u"caption");
    EXPECT_EQ(this->PlaceOf(label), (PixelRect{10, 20, 10 + line.cx, 20 + line.cy}));
    EXPECT_EQ(this->Grab(label).All(), this->Drawn(label, {0, 0, line.cx, line.cy}, kTabs));
}

TYPED_TEST(LabelAutoSize, ItIsAsWideAsItsWidestLineAndAsHighAsAllOfThem) {
    auto& label = this->MakeAutoSized({10, 20, 20, 20}, u"wide\r\nthe widest of all\rx");
    const SIZE widest = this->LineOf(label, u"the widest of all");
    EXPECT_EQ(this->PlaceOf(label), (PixelRect{10, 20, 10 + widest.cx, 20 + 3 * widest.cy}));
    EXPECT_EQ(this->Grab(label).All(), this->Drawn(label, {0, 0, widest.cx, 3 * widest.cy}, kTabs));
}

TYPED_TEST(LabelAutoSize, ABareLineFeedDoesNotEndALineWhenTheWidthIsTaken) {
    auto& label = this->MakeAutoSized({10, 20, 20, 20}, u"wide\nwider");
    const SIZE line = this->LineOf(label, u"wide\nwider");
    EXPECT_GT(line.cx, this->LineOf(label, u"wider").cx);
    EXPECT_EQ(this->PlaceOf(label).Width(), line.cx);
}

TYPED_TEST(LabelAutoSize, LinesAreNotBrokenBetweenWords) {
    auto& label = this->MakeAutoSized({10, 20, 20, 20}, u"a rather long text of many words");
    EXPECT_EQ(this->PlaceOf(label).Height(), this->LineOf(label, u"X").cy);
}

TYPED_TEST(LabelAutoSize, BorderAndMarginStandAroundTheText) {
    auto& label = this->MakeAutoSized({10, 20, 20, 20}, u"caption");
    const SIZE line = this->LineOf(label, u"caption");
    label.Margin(7);
    this->Pump();
    EXPECT_EQ(this->PlaceOf(label), (PixelRect{10, 20, 10 + line.cx + 14, 20 + line.cy + 14}));
    EXPECT_EQ(this->Grab(label).All(), this->Drawn(label, {7, 7, 7 + line.cx, 7 + line.cy}, kTabs));
    label.BorderStyle(1);
    this->Pump();
    EXPECT_EQ(this->PlaceOf(label), (PixelRect{10, 20, 10 + line.cx + 18, 20 + line.cy + 18}));
    EXPECT_EQ(this->Grab(label).All(), this->Drawn(label, {9, 9, 9 + line.cx, 9 + line.cy}, kTabs));
    label.Margin(-3);
    this->Pump();
    EXPECT_EQ(this->PlaceOf(label), (PixelRect{10, 20, 10 + line.cx - 2, 20 + line.cy - 2}));
}

TYPED_TEST(LabelAutoSize, AMarginTooLargeForSixteenBitsLeavesTheSize) {
    auto& label = this->MakeAutoSized({10, 20, 20, 20}, u"caption");
    const PixelRect before = this->PlaceOf(label);
    label.Margin(20000);
    this->Pump();
    EXPECT_EQ(this->PlaceOf(label), before);
    // It draws all the same: the face shows, the text is out of sight.
    EXPECT_EQ(this->Grab(label).All(), this->Drawn(label, {20000, 20000, -20000, -20000}, kTabs));
}

TYPED_TEST(LabelAutoSize, ATextOnTheLeftKeepsItsLeftEdge) {
    auto& label = this->MakeAutoSized({100, 20, 20, 20}, u"caption");
    this->SetCaption(label, this->Wider(label, u"caption", 10));
    EXPECT_EQ(label.Host().Extender().Left(), 100);
    EXPECT_EQ(this->PlaceOf(label).left, 100);
}

TYPED_TEST(LabelAutoSize, ATextOnTheRightGrowingByTenPixelsMovesTheLeftEdgeTenPixelsToTheLeft) {
    auto& label = this->MakeAutoSized({100, 20, 20, 20}, u"caption");
    label.Alignment(1);
    this->Pump();
    const PixelRect before = this->PlaceOf(label);
    this->SetCaption(label, this->Wider(label, u"caption", 10));
    EXPECT_EQ(label.Host().Extender().Left(), 90);
    EXPECT_EQ(this->PlaceOf(label), (PixelRect{90, 20, before.right, before.bottom}));
    this->SetCaption(label, u"caption");
    EXPECT_EQ(this->PlaceOf(label), before);
}

TYPED_TEST(LabelAutoSize, ATextInTheMiddleMovesTheLeftEdgeByHalfTheDifferenceHalvesToEven) {
    auto& label = this->MakeAutoSized({100, 20, 20, 20}, u"caption");
    label.Alignment(2);
    this->Pump();
    this->SetCaption(label, this->Wider(label, u"caption", 10));
    EXPECT_EQ(this->PlaceOf(label).left, 95);
    this->SetCaption(label, u"caption");
    EXPECT_EQ(this->PlaceOf(label).left, 100);
    this->SetCaption(label, this->Wider(label, u"caption", 3)); // -1.5
    EXPECT_EQ(this->PlaceOf(label).left, 98);
    this->SetCaption(label, this->Wider(label, u"caption", 8)); // -2.5
    EXPECT_EQ(this->PlaceOf(label).left, 96);
}

TYPED_TEST(LabelAutoSize, OneChangeIsOneResizeWhichIsToldToTheOutside) {
    auto& label = this->MakeAutoSized({10, 20, 120, 40}, u"caption");
    label.Alignment(0);
    this->Pump();
    label.Taken();
    this->SetCaption(label, u"another caption");
    EXPECT_EQ(label.TakenEvents(), (std::vector<std::string>{"shape", "Resize"}));
    this->SetCaption(label, u"another caption");
    EXPECT_EQ(label.TakenEvents(), std::vector<std::string>{"shape"});
}

TYPED_TEST(LabelAutoSize, AFormThatCountsInTwipsGetsTwips) {
    this->form.ScaleMode(ScaleUnit::Twips);
    auto& label = this->MakeAutoSized({1500, 300, 150, 150}, u"caption"); // 100, 20 at 15 twips a pixel
    label.Alignment(1);
    this->Pump();
    const SIZE line = this->LineOf(label, u"caption");
    EXPECT_EQ(label.Host().Width(), static_cast<float>(15 * line.cx));
    EXPECT_EQ(label.Host().Height(), static_cast<float>(15 * line.cy));
    this->SetCaption(label, this->Wider(label, u"caption", 10));
    EXPECT_EQ(label.Host().Extender().Left(), 1350);
}

TYPED_TEST(LabelAutoSize, AFrameCountsInTwipsWhateverTheFormCountsIn) {
    auto& frame = this->form.template Add<ctlUniFrameXP>(u"fra", {10, 10, 400, 200});
    auto& label =
        this->form.template Load<typename TestFixture::Label>(u"lblInside", {1500, 600, 150, 150}, {}, &frame);
    label.Caption(u"caption");
    label.Alignment(1);
    label.AutoSize(true);
    this->Pump();
    const SIZE line = this->LineOf(label, u"caption");
    // It was 10 pixels wide; its right edge stays at 110.
    EXPECT_EQ(this->PlaceOf(label), (PixelRect{110 - line.cx, 40, 110, 40 + line.cy}));
    EXPECT_EQ(label.Host().Width(), static_cast<float>(15 * line.cx));
}

TYPED_TEST(LabelAutoSize, TurningItOffKeepsTheSize) {
    auto& label = this->MakeAutoSized({10, 20, 120, 40}, u"caption");
    const PixelRect before = this->PlaceOf(label);
    label.AutoSize(false);
    this->SetCaption(label, u"a much longer caption");
    EXPECT_EQ(this->PlaceOf(label), before);
}

TYPED_TEST(LabelAutoSize, AHandlerOfResizeMayRemoveTheLabel) {
    auto& label = this->MakeAutoSized({10, 20, 120, 40}, u"caption");
    label.Resize.Add([this, &label] { this->form.Remove(label); });
    label.Caption(u"another caption");
    this->Pump();
    EXPECT_TRUE(this->form.Controls().empty());
}

TYPED_TEST(LabelAutoSize, ATransparentLabelGrowsAtOnceWithoutAPaint) {
    auto& label = this->MakeAutoSized({10, 20, 120, 40}, u"caption");
    label.PutProperty(u"BackStyle", 0);
    this->Pump();
    label.Caption(u"another caption");
    EXPECT_EQ(this->PlaceOf(label).Width(), this->LineOf(label, u"another caption").cx);
}

class LabelAutoSizeAtPaint : public LabelFixture<ctlUniLabel> {};

TEST_F(LabelAutoSizeAtPaint, AnOpaqueLabelTakesItsSizeWithItsNextPaint) {
    Show();
    auto& label = Make({10, 20, 120, 40}, u"caption");
    label.AutoSize(true);
    EXPECT_EQ(PlaceOf(label), (PixelRect{10, 20, 130, 60}));
    Pump();
    EXPECT_EQ(PlaceOf(label).Height(), 13);
}

TEST_F(LabelAutoSizeAtPaint, ALabelThatNobodySeesKeepsItsSizeUntilItIsShown) {
    auto& label = Make({10, 20, 120, 40}, u"caption");
    label.AutoSize(true);
    Pump();
    EXPECT_EQ(PlaceOf(label), (PixelRect{10, 20, 130, 60}));
    Show();
    EXPECT_EQ(PlaceOf(label).Height(), 13);
}

class TwinAutoSize : public LabelFixture<ctlUniLabelNoFlick> {};

TEST_F(TwinAutoSize, TheTwinTakesItsSizeAtOnceEvenWhereNobodySeesIt) {
    auto& label = Make({10, 20, 120, 40}, u"caption");
    label.AutoSize(true);
    EXPECT_EQ(PlaceOf(label).Height(), 13);
    EXPECT_EQ(PlaceOf(label).Width(), LineOf(label, u"caption").cx);
}

} // namespace
} // namespace orvanta::testing
