#include "controls/basic/ctlUniCheckXP.h"

#include "base/Failure.h"
#include "controls/contract/ObjectValues.h"
#include "tests/controls/basic/FakeTip.h"
#include "tests/controls/basic/Witness.h"

#include <gtest/gtest.h>

namespace orvanta::testing {
namespace {

using Check = Witness<ctlUniCheckXP>;
using Texts = std::vector<std::string>;

constexpr ControlPlace kCheckPlace{10, 10, 120, 20};

std::vector<std::pair<std::u16string, PropertyValue>> OtherCheckValues() {
    return {
        {u"Font", PropertyKind<OleFont>::Make(OleFont::Create(u"Tahoma", 12))},
        {u"Caption", u"\u0416&x"},
        {u"Enabled", false},
        {u"Align", -2},
        {u"CheckBackColor", 0x102030},
        {u"CheckForeColor", 0x203040},
        {u"BackColor", 0x304050},
        {u"ForeColor", 0x405060},
        {u"BorderColor", 0x506070},
        {u"Pressed", true},
        {u"Tip", u"a tip"},
        {u"Style", 7},
        {u"OLEDropMode", 1},
        {u"MousePointer", 99},
        {u"MouseIcon", PropertyKind<OlePicture>::Make(SolidPicture(8, 6, 0x2040C0, 0))},
        {u"ShowFocus", false},
    };
}

class CheckBoxProperties : public FormFixture {};

// A check box as a program has it, and another one that has the focus.
class CheckBox : public FormFixture {
protected:
    CheckBox() {
        Show();
        other.Host().Extender().SetFocus();
        Pump();
        check.Taken();
        other.Taken();
    }

    Check& check = form.Load<Check>(u"chkAll", kCheckPlace, {});
    Check& other = form.Load<Check>(u"chkOther", {10, 60, 120, 20}, {});
};

TEST_F(CheckBoxProperties, ItsPropertiesStandInTheirTableInTheOrderOfTheBag) {
    const auto& check = form.Add<Check>(u"chkAll", kCheckPlace);
    std::vector<std::u16string> names;
    for (const auto& [sKey, value] : OtherCheckValues())
        names.push_back(sKey);
    EXPECT_EQ(check.PropertyNames(), names);
}

TEST_F(CheckBoxProperties, ALoadFromAnEmptyBagBringsTheDefaultsOfTheTable) {
    auto& check = form.Load<Check>(u"chkAll", kCheckPlace, {});
    EXPECT_TRUE(check.Font().IsEqual(form.Font()));
    EXPECT_EQ(check.Caption(), u"");
    EXPECT_TRUE(check.Enabled());
    EXPECT_EQ(check.Align(), 0);
    EXPECT_EQ(check.CheckBackColor(), static_cast<OleColor>(0x80000005));
    EXPECT_EQ(check.CheckForeColor(), static_cast<OleColor>(0x80000008));
    EXPECT_EQ(check.BackColor(), static_cast<OleColor>(0x8000000F));
    EXPECT_EQ(check.ForeColor(), static_cast<OleColor>(0x80000012));
    EXPECT_EQ(check.BorderColor(), -1);
    EXPECT_FALSE(check.Pressed());
    EXPECT_EQ(check.Tip(), u"");
    EXPECT_EQ(check.Style(), -1);
    EXPECT_EQ(check.OLEDropMode(), 0);
    EXPECT_EQ(check.MousePointer(), 0);
    EXPECT_TRUE(check.MouseIcon().IsEmpty());
    EXPECT_TRUE(check.ShowFocus());
    PropertyBag bag;
    check.OnWriteProperties(bag);
    EXPECT_EQ(bag.Count(), 0u);
}

TEST_F(CheckBoxProperties, AFreshOneHasTheDefaultsAndShowsItsName) {
    auto& check = form.Add<Check>(u"chkAll", kCheckPlace);
    EXPECT_EQ(check.Caption(), u"chkAll");
    PropertyBag bag;
    check.OnWriteProperties(bag);
    EXPECT_EQ(bag.Keys(), std::vector<std::u16string>{u"Caption"});
}

TEST_F(CheckBoxProperties, EveryKeyComesBackFromTheBag) {
    for (const auto& [sKey, value] : OtherCheckValues()) {
        SCOPED_TRACE(::testing::PrintToString(sKey));
        auto& saved = form.Load<Check>(u"chkSaved", kCheckPlace, {});
        ASSERT_TRUE(saved.PutProperty(sKey, value));
        PropertyBag bag;
        saved.OnWriteProperties(bag);
        EXPECT_EQ(bag.Keys(), std::vector<std::u16string>{sKey});
        auto& loaded = form.Load<Check>(u"chkLoaded", kCheckPlace, bag);
        PropertyValue before, after;
        ASSERT_TRUE(saved.GetProperty(sKey, before));
        ASSERT_TRUE(loaded.GetProperty(sKey, after));
        EXPECT_TRUE(before == after);
        EXPECT_EQ(loaded.TakenEvents(), Texts{}); // a load raises no Click
        PropertyBag again;
        loaded.OnWriteProperties(again);
        EXPECT_EQ(again.Keys(), bag.Keys());
        form.Remove(saved);
        form.Remove(loaded);
    }
}

TEST_F(CheckBoxProperties, ALoadReachesEveryField) {
    PropertyBag bag;
    for (const auto& [sKey, value] : OtherCheckValues())
        bag.WriteProperty(sKey, value);
    auto& check = form.Load<Check>(u"chkAll", kCheckPlace, bag);
    EXPECT_EQ(check.Font().Name(), u"Tahoma");
    EXPECT_EQ(check.Caption(), u"\u0416&x");
    EXPECT_FALSE(check.Enabled());
    EXPECT_EQ(check.Align(), -2);
    EXPECT_EQ(check.CheckBackColor(), 0x102030);
    EXPECT_EQ(check.CheckForeColor(), 0x203040);
    EXPECT_EQ(check.BackColor(), 0x304050);
    EXPECT_EQ(check.ForeColor(), 0x405060);
    EXPECT_EQ(check.BorderColor(), 0x506070);
    EXPECT_TRUE(check.Pressed());
    EXPECT_EQ(check.Tip(), u"a tip");
    EXPECT_EQ(check.Style(), 7);
    EXPECT_EQ(check.OLEDropMode(), 1);
    EXPECT_EQ(check.MousePointer(), 99);
    EXPECT_FALSE(check.MouseIcon().IsEmpty());
    EXPECT_FALSE(check.ShowFocus());
    EXPECT_EQ(check.Host().AccessKeys(), u"x");
}

TEST_F(CheckBox, EverySetterThatChangesTheLookAsksForARepaintEvenForTheSameValue) {
    const std::function<void()> setters[] = {
        [&] { check.Font(check.Font()); }, [&] { check.Caption(u"x"); },      [&] { check.Align(1); },
        [&] { check.CheckBackColor(1); },  [&] { check.CheckForeColor(1); },  [&] { check.BackColor(1); },
        [&] { check.ForeColor(1); },       [&] { check.BorderColor(1); },     [&] { check.Style(2); },
        [&] { check.ShowFocus(true); },    [&] { check.ApplyFontChanges(); }, [&] { check.OnAmbientChanged(u"x"); },
        [&] { check.OnResize(); },
    };
    for (std::size_t n = 0; n < std::size(setters); ++n) {
        SCOPED_TRACE(n);
        setters[n]();
        EXPECT_EQ(check.Taken(), Texts{"repaint"});
        setters[n]();
        EXPECT_EQ(check.Taken(), Texts{"repaint"});
    }
}

TEST_F(CheckBox, OnlyCaptionTipAndOLEDropModeTellTheContainer) {
    std::vector<std::u16string> changed;
    form.HostOf(check)->Changed.Add([&](const std::u16string& sName) { changed.push_back(sName); });
    for (const auto& [sKey, value] : OtherCheckValues())
        EXPECT_TRUE(check.PutProperty(sKey, value));
    EXPECT_EQ(changed, (std::vector<std::u16string>{u"Caption", u"Tip", u"OLEDropMode"}));
}

TEST_F(CheckBox, TheCaptionSetsTheAccessKeyThenTellsTheContainerThenAsksForARepaint) {
    form.HostOf(check)->Changed.Add([&](const std::u16string&) {
        check.journal->push_back("changed");
        EXPECT_EQ(check.Host().AccessKeys(), u"A");
    });
    check.Caption(u"&All");
    EXPECT_EQ(check.Taken(), (Texts{"changed", "repaint"}));
}

TEST_F(CheckBox, AChangeOfPressedAsksForARepaintThenRaisesClick) {
    check.Pressed(true);
    EXPECT_EQ(check.Taken(), (Texts{"repaint", "Click"}));
    check.Pressed(true);
    EXPECT_EQ(check.Taken(), Texts{});
    check.Pressed(false);
    EXPECT_EQ(check.Taken(), (Texts{"repaint", "Click"}));
}

TEST_F(CheckBox, AnyValueButZeroChecksTheBoxAndReadsOne) {
    EXPECT_EQ(check.Value(), 0);
    check.Value(2);
    EXPECT_EQ(check.Value(), 1);
    EXPECT_TRUE(check.Pressed());
    EXPECT_EQ(check.TakenEvents(), Texts{"Click"});
    check.Value(-1);
    EXPECT_EQ(check.TakenEvents(), Texts{});
    check.Value(0);
    EXPECT_EQ(check.Value(), 0);
    EXPECT_EQ(check.TakenEvents(), Texts{"Click"});
}

TEST_F(CheckBox, ARealClickIsDownUpClickAndTurnsTheState) {
    MoveTo(check, 5, 6);
    check.Taken();
    bool bSeen = false;
    check.Click.Add([&] { bSeen = check.Pressed(); });
    Mouse(MOUSEEVENTF_LEFTDOWN);
    EXPECT_FALSE(check.Pressed());
    Mouse(MOUSEEVENTF_LEFTUP);
    EXPECT_EQ(check.TakenEvents(), (Texts{"MouseDown 1 0 5,6", "MouseUp 1 0 5,6", "Click"}));
    EXPECT_TRUE(bSeen);
    NoDoubleClick();
}

TEST_F(CheckBox, APostedClickIsTheSame) {
    PostMouse(check.hwnd(), WM_LBUTTONDOWN, MK_LBUTTON, 5, 6);
    PostMouse(check.hwnd(), WM_LBUTTONUP, 0, 5, 6);
    Pump();
    EXPECT_EQ(check.TakenEvents(), (Texts{"MouseDown 1 0 5,6", "MouseUp 1 0 5,6", "Click"}));
    EXPECT_TRUE(check.Pressed());
}

TEST_F(CheckBox, InDesignModeAPressIsRaisedButAClickTurnsNothing) {
    form.UserMode(false);
    auto& design = form.Load<Check>(u"chkDesign", {150, 10, 60, 20}, {});
    design.OnMouseDown(1, 0, 5, 6);
    design.OnMouseUp(1, 0, 5, 6);
    design.OnClick();
    EXPECT_EQ(design.TakenEvents(), (Texts{"MouseDown 1 0 5,6", "MouseUp 1 0 5,6"}));
    EXPECT_FALSE(design.Pressed());
}

TEST_F(CheckBox, TheRightButtonRaisesDownAndUpOnly) {
    PostMouse(check.hwnd(), WM_RBUTTONDOWN, MK_RBUTTON, 5, 6);
    PostMouse(check.hwnd(), WM_RBUTTONUP, 0, 5, 6);
    Pump();
    EXPECT_EQ(check.TakenEvents(), (Texts{"MouseDown 2 0 5,6", "MouseUp 2 0 5,6"}));
    EXPECT_FALSE(check.Pressed());
}

TEST_F(CheckBox, ADoubleClickTurnsTheStateTwiceAndRaisesDblClickLast) {
    MoveTo(check, 5, 6);
    check.Taken();
    for (int n = 0; n < 2; ++n) {
        Mouse(MOUSEEVENTF_LEFTDOWN);
        Mouse(MOUSEEVENTF_LEFTUP);
    }
    EXPECT_EQ(check.TakenEvents(),
              (Texts{"MouseDown 1 0 5,6", "MouseUp 1 0 5,6", "Click", "Click", "DblClick", "MouseUp 1 0 5,6"}));
    EXPECT_FALSE(check.Pressed());
    NoDoubleClick();
}

TEST_F(CheckBox, ADoubleClickWithTheRightButtonDoesNothing) {
    check.OnMouseDown(2, 0, 5, 6);
    check.Taken();
    check.OnDblClick();
    EXPECT_EQ(check.Taken(), Texts{});
}

TEST_F(CheckBox, ReleasingTheMouseDoesNotDisarm) {
    check.OnClick();
    EXPECT_EQ(check.Taken(), Texts{}); // never armed
    check.OnMouseDown(1, 0, 5, 6);
    check.OnMouseUp(1, 0, 5, 6);
    check.OnClick();
    check.Taken();
    check.OnClick();
    EXPECT_EQ(check.Taken(), (Texts{"repaint", "Click"}));
    // Bit 0 decides: left and right together arm, right alone disarms.
    check.OnMouseDown(2, 0, 5, 6);
    check.Taken();
    check.OnClick();
    EXPECT_EQ(check.Taken(), Texts{});
    check.OnMouseDown(3, 0, 5, 6);
    check.Taken();
    check.OnClick();
    EXPECT_EQ(check.Taken(), (Texts{"repaint", "Click"}));
}

TEST_F(CheckBox, SpaceAndEnterArmAndClickBehindKeyPress) {
    check.Host().Extender().SetFocus();
    Pump();
    check.Taken();
    Press(VK_SPACE);
    EXPECT_EQ(check.TakenEvents(), (Texts{"KeyDown 32 0", "KeyPress 32", "Click", "KeyUp 32 0"}));
    EXPECT_TRUE(check.Pressed());
    Press(VK_RETURN);
    EXPECT_EQ(check.TakenEvents(), (Texts{"KeyDown 13 0", "KeyPress 13", "Click", "KeyUp 13 0"}));
    EXPECT_FALSE(check.Pressed());
}

TEST_F(CheckBox, AKeyPressHandlerThatSetsTheKeyToZeroStopsTheClick) {
    check.KeyPress.Add([](std::int16_t& KeyAscii) { KeyAscii = 0; });
    std::int16_t iKey = 32;
    check.OnKeyPress(iKey);
    EXPECT_EQ(check.Taken(), Texts{"KeyPress 32"});
}

TEST_F(CheckBox, TheAccessKeyArmsAndClicksUnlessTheBoxIsDisabled) {
    check.Caption(u"&All");
    check.Taken();
    PressWith(VK_MENU, 'A');
    EXPECT_TRUE(check.Pressed());
    check.Enabled(false);
    PressWith(VK_MENU, 'A');
    check.OnAccessKeyPress('a');
    EXPECT_TRUE(check.Pressed());
}

TEST_F(CheckBox, EnteringTheFocusAsksForNoRepaintLeavingItDoes) {
    check.OnEnterFocus();
    EXPECT_EQ(check.Taken(), Texts{});
    check.OnExitFocus();
    EXPECT_EQ(check.Taken(), Texts{"repaint"});
    check.OnExitFocus();
    EXPECT_EQ(check.Taken(), Texts{});
}

TEST_F(CheckBox, MovingShowsTheTipInRunModeOnly) {
    FakeTipScope tips;
    form.UserMode(false);
    auto& design = form.Load<Check>(u"chkDesign", {150, 10, 60, 20}, {});
    check.Tip(u"a tip");
    design.Tip(u"a tip");
    design.OnMouseMove(0, 0, 3, 4);
    EXPECT_EQ(tips.Shown(), std::vector<std::u16string>{});
    check.OnMouseMove(0, 0, 3, 4);
    EXPECT_EQ(tips.Shown(), std::vector<std::u16string>{u"a tip"});
    EXPECT_EQ(check.Taken(), Texts{"MouseMove 0 0 3,4"});
}

TEST_F(CheckBox, AClickHandlerMayRemoveTheBox) {
    const Journal journal = check.journal;
    check.Click.Add([this] { form.Remove(check); });
    HWND window = check.hwnd();
    check.OnMouseDown(1, 0, 5, 6);
    PostMouse(window, WM_LBUTTONDBLCLK, MK_LBUTTON, 5, 6);
    Pump();
    EXPECT_FALSE(IsWindow(window));
    // The double click ends with the box.
    std::erase(*journal, "repaint");
    EXPECT_EQ(journal->back(), "Click");
    EXPECT_EQ(form.Find(u"chkAll"), nullptr);
}

TEST_F(CheckBox, AHandlerOfASetByCodeMayRemoveTheBox) {
    check.Click.Add([this] { form.Remove(check); });
    check.Value(1);
    EXPECT_EQ(form.Find(u"chkAll"), nullptr);
}

} // namespace
} // namespace orvanta::testing
