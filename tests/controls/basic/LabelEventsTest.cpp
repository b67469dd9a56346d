#include "tests/controls/basic/FakeTip.h"
#include "tests/controls/basic/LabelFixture.h"

#include <gmock/gmock.h>

namespace orvanta::testing {
namespace {

using Notes = std::vector<std::string>;

template<typename LabelType>
class LabelEvents : public LabelFixture<LabelType> {
protected:
    LabelEvents() {
        this->Show();
        this->NoDoubleClick();
    }
};
TYPED_TEST_SUITE(LabelEvents, BothLabels);

TYPED_TEST(LabelEvents, AClickIsDownUpClick) {
    auto& label = this->Make({10, 10, 120, 40}, u"caption");
    this->MoveTo(label, 7, 9);
    label.Taken();
    this->Mouse(MOUSEEVENTF_LEFTDOWN);
    this->Mouse(MOUSEEVENTF_LEFTUP);
    EXPECT_EQ(label.TakenEvents(), (Notes{"MouseDown 1 0 7,9", "MouseUp 1 0 7,9", "Click"}));
}

TYPED_TEST(LabelEvents, TheSecondClickOfADoubleClickIsDblClick) {
    auto& label = this->Make({10, 10, 120, 40}, u"caption");
    this->Click(label, 7, 9);
    label.Taken();
    this->Mouse(MOUSEEVENTF_LEFTDOWN);
    this->Mouse(MOUSEEVENTF_LEFTUP);
    EXPECT_EQ(label.TakenEvents(), (Notes{"DblClick", "MouseUp 1 0 7,9"}));
}

TYPED_TEST(LabelEvents, AMoveTellsButtonsAndPlace) {
    auto& label = this->Make({10, 10, 120, 40}, u"caption");
    PostMouse(label.hwnd(), WM_MOUSEMOVE, MK_RBUTTON | MK_SHIFT, 30, 4);
    this->Pump();
    EXPECT_THAT(label.Taken(), ::testing::Contains("MouseMove 2 1 30,4"));
}

TYPED_TEST(LabelEvents, ATransparentLabelHearsTheMouseOnItsGlyphsOnly) {
    auto& label = this->Make({10, 10, 120, 40}, u"HHHH");
    label.PutProperty(u"BackStyle", 0);
    this->Pump();
    label.Taken();
    this->Click(label, 100, 30);
    EXPECT_EQ(label.TakenEvents(), Notes{});
    const std::vector<bool> shape = this->ShapeOf(label);
    const auto nFirst = static_cast<int>(std::find(shape.begin(), shape.end(), true) - shape.begin());
    this->NoDoubleClick();
    this->Click(label, nFirst % 120, nFirst / 120);
    const Notes notes = label.TakenEvents();
    EXPECT_EQ(std::count(notes.begin(), notes.end(), "Click"), 1);
}

TYPED_TEST(LabelEvents, ADisabledLabelHearsNothing) {
    auto& label = this->Make({10, 10, 120, 40}, u"caption");
    label.Enabled(false);
    label.Taken();
    this->Click(label, 7, 9);
    EXPECT_EQ(label.TakenEvents(), Notes{});
}

TYPED_TEST(LabelEvents, AMoveShowsTheTipInAWidthOfThreeHundred) {
    const FakeTipScope tips;
    auto& label = this->Make({10, 10, 120, 40}, u"caption");
    label.Tip(u"what it is");
    PostMouse(label.hwnd(), WM_MOUSEMOVE, 0, 30, 4);
    this->Pump();
    ASSERT_FALSE(tips.Shown().empty());
    EXPECT_EQ(tips.Shown().back(), u"what it is");
    EXPECT_EQ(tips.LastMaxWidth(), 300);
    // From a control with a tip to one without: the popup is told.
    label.Tip(u"");
    PostMouse(label.hwnd(), WM_MOUSEMOVE, 0, 31, 4);
    this->Pump();
    EXPECT_EQ(tips.Shown().back(), u"");
}

TYPED_TEST(LabelEvents, InDesignModeAMoveShowsNoTip) {
    const FakeTipScope tips;
    this->form.UserMode(false);
    auto& label = this->Make({10, 10, 120, 40}, u"caption");
    label.Tip(u"what it is");
    PostMouse(label.hwnd(), WM_MOUSEMOVE, 0, 30, 4);
    this->Pump();
    EXPECT_TRUE(tips.Shown().empty());
    EXPECT_THAT(label.Taken(), ::testing::Contains("MouseMove 0 0 30,4"));
}

TYPED_TEST(LabelEvents, WithoutATipAnywhereNothingIsShown) {
    const FakeTipScope tips;
    auto& label = this->Make({10, 10, 120, 40}, u"caption");
    PostMouse(label.hwnd(), WM_MOUSEMOVE, 0, 30, 4);
    this->Pump();
    EXPECT_TRUE(tips.Shown().empty());
}

TYPED_TEST(LabelEvents, AHandlerMayRemoveTheLabel) {
    for (const bool bDown : {true, false}) {
        auto& label = this->Make({10, 10, 120, 40}, u"caption");
        const Journal journal = label.journal;
        const auto remove = [this, &label] { this->form.Remove(label); };
        if (bDown) {
            label.MouseDown.Add([remove](std::int16_t&, std::int16_t&, float&, float&) { remove(); });
        } else {
            label.Click.Add(remove);
        }
        this->NoDoubleClick();
        this->Click(label, 7, 9);
        EXPECT_EQ(std::count(journal->begin(), journal->end(), "Click"), bDown ? 0 : 1);
        EXPECT_TRUE(this->form.Controls().empty());
    }
}

TYPED_TEST(LabelEvents, TheTextOfTheWindowFollowsTheCaption) {
    auto& label = this->Make({10, 10, 120, 40}, u"caption");
    label.Caption(u"\u0416 other");
    wchar_t text[64] = L"";
    GetWindowTextW(label.hwnd(), text, 64);
    EXPECT_STREQ(text, L"\u0416 other");
}

} // namespace
} // namespace orvanta::testing
