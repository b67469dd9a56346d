#include "controls/basic/ctlUniButtonImageXP.h"
#include "controls/basic/ctlUniCheckXP.h"

#include "tests/controls/basic/FakeTip.h"
#include "tests/controls/basic/Witness.h"

#include <gtest/gtest.h>

namespace orvanta::testing {
namespace {

using Button = Witness<ctlUniButtonImageXP>;
using Texts = std::vector<std::string>;

// A button as a program has it, and another one that has the focus.
class ButtonInput : public FormFixture {
protected:
    ButtonInput() {
        Show();
        other.Host().Extender().SetFocus();
        Pump();
        button.Taken();
        other.Taken();
    }
    static void Post(const Control& control, UINT message, WPARAM keys) {
        PostMouse(control.hwnd(), message, keys, 20, 12);
        Pump();
    }
    static void GiveFocus(Button& to) {
        to.Host().Extender().SetFocus();
        Pump();
        to.Taken();
    }
    // What the face says: style 3 is lighter than the back at the top while it is up, darker while it is down.
    static bool LooksPressed(const Button& of) {
        Pump();
        const WindowPixels now = Grab(of);
        return ColorLuma(now.At(now.Width() / 4, 2)) < ColorLuma(of.BackColor());
    }

    Button& button = form.Load<Button>(u"btnOp", {10, 10, 120, 40}, {});
    Button& other = form.Load<Button>(u"btnOther", {10, 60, 120, 40}, {});
};

TEST_F(ButtonInput, ARealClickIsDownUpClick) {
    MoveTo(button, 20, 12);
    button.Taken();
    Mouse(MOUSEEVENTF_LEFTDOWN);
    EXPECT_EQ(button.TakenEvents(), Texts{"MouseDown 1 0 20,12"});
    EXPECT_TRUE(LooksPressed(button));
    Mouse(MOUSEEVENTF_LEFTUP);
    EXPECT_EQ(button.TakenEvents(), (Texts{"MouseUp 1 0 20,12", "Click"}));
    EXPECT_FALSE(LooksPressed(button));
    EXPECT_EQ(form.ActiveControl(), &button);
    NoDoubleClick();
}

TEST_F(ButtonInput, APostedClickIsTheSame) {
    Post(button, WM_LBUTTONDOWN, MK_LBUTTON | MK_SHIFT);
    Post(button, WM_LBUTTONUP, MK_SHIFT);
    EXPECT_EQ(button.TakenEvents(), (Texts{"MouseDown 1 1 20,12", "MouseUp 1 1 20,12", "Click"}));
}

TEST_F(ButtonInput, AnyMouseButtonClicksButOnlyTheLeftOnePressesTheFace) {
    Post(button, WM_RBUTTONDOWN, MK_RBUTTON);
    EXPECT_FALSE(LooksPressed(button));
    Post(button, WM_RBUTTONUP, 0);
    EXPECT_EQ(button.TakenEvents(), (Texts{"MouseDown 2 0 20,12", "MouseUp 2 0 20,12", "Click"}));
    Post(button, WM_MBUTTONDOWN, MK_MBUTTON);
    EXPECT_FALSE(LooksPressed(button));
    Post(button, WM_MBUTTONUP, 0);
    EXPECT_EQ(button.TakenEvents(), (Texts{"MouseDown 4 0 20,12", "MouseUp 4 0 20,12", "Click"}));
}

TEST_F(ButtonInput, APressThatIsReleasedOutsideIsNoClick) {
    MoveTo(button, 20, 12);
    button.Taken();
    Mouse(MOUSEEVENTF_LEFTDOWN);
    MoveTo(button, 20, 200);
    Mouse(MOUSEEVENTF_LEFTUP);
    const Texts events = button.TakenEvents();
    EXPECT_EQ(std::count(events.begin(), events.end(), "Click"), 0);
    NoDoubleClick();
}

TEST_F(ButtonInput, WithoutDblClickEventADoubleClickRaisesClickTwice) {
    MoveTo(button, 20, 12);
    button.Taken();
    for (int n = 0; n < 2; ++n) {
        Mouse(MOUSEEVENTF_LEFTDOWN);
        Mouse(MOUSEEVENTF_LEFTUP);
    }
    EXPECT_EQ(button.TakenEvents(),
              (Texts{"MouseDown 1 0 20,12", "MouseUp 1 0 20,12", "Click", "Click", "MouseUp 1 0 20,12"}));
    NoDoubleClick();
}

TEST_F(ButtonInput, WithDblClickEventItRaisesClickAndDblClick) {
    button.DblClickEvent(true);
    MoveTo(button, 20, 12);
    button.Taken();
    for (int n = 0; n < 2; ++n) {
        Mouse(MOUSEEVENTF_LEFTDOWN);
        Mouse(MOUSEEVENTF_LEFTUP);
    }
    EXPECT_EQ(button.TakenEvents(),
              (Texts{"MouseDown 1 0 20,12", "MouseUp 1 0 20,12", "Click", "DblClick", "MouseUp 1 0 20,12"}));
    NoDoubleClick();
}

TEST_F(ButtonInput, ADoubleClickTurnsATristateButtonTwiceUnlessItHasTheDblClickEvent) {
    button.Tristate(true);
    const auto doubleClick = [&] {
        Post(button, WM_LBUTTONDOWN, MK_LBUTTON);
        Post(button, WM_LBUTTONUP, 0);
        Post(button, WM_LBUTTONDBLCLK, MK_LBUTTON);
        Post(button, WM_LBUTTONUP, 0);
    };
    doubleClick();
    EXPECT_FALSE(button.Pressed());
    button.DblClickEvent(true);
    doubleClick();
    EXPECT_TRUE(button.Pressed());
}

TEST_F(ButtonInput, EachInputAsksForItsRepaintBeforeItsEvent) {
    button.OnMouseDown(1, 0, 3, 4);
    EXPECT_EQ(button.Taken(), (Texts{"repaint", "MouseDown 1 0 3,4"}));
    button.OnMouseMove(1, 0, 3, 4);
    EXPECT_EQ(button.Taken(), Texts{"MouseMove 1 0 3,4"});
    button.OnMouseUp(1, 0, 3, 4);
    EXPECT_EQ(button.Taken(), (Texts{"repaint", "MouseUp 1 0 3,4"}));
    button.OnClick();
    EXPECT_EQ(button.Taken(), Texts{"Click"});
    button.Tristate(true);
    button.Taken();
    button.OnClick();
    EXPECT_EQ(button.Taken(), (Texts{"repaint", "Click"}));
    button.OnResize();
    EXPECT_EQ(button.Taken(), (Texts{"repaint", "Resize"}));
    button.OnAmbientChanged(u"Whatever");
    EXPECT_EQ(button.Taken(), Texts{"repaint"});
    button.OnEnterFocus();
    EXPECT_EQ(button.Taken(), Texts{"repaint"});
    button.OnExitFocus();
    EXPECT_EQ(button.Taken(), Texts{"repaint"});
    button.OnExitFocus();
    EXPECT_EQ(button.Taken(), Texts{});
    button.ShowFocus(false);
    button.Taken();
    button.OnEnterFocus();
    EXPECT_EQ(button.Taken(), Texts{});
    button.OnExitFocus();
    EXPECT_EQ(button.Taken(), Texts{"repaint"});
}

TEST_F(ButtonInput, ClickIsSeenWithPressedTurnedAlready) {
    button.Tristate(true);
    bool bSeen = false;
    button.Click.Add([&] { bSeen = button.Pressed(); });
    button.Value(true);
    EXPECT_TRUE(bSeen);
}

TEST_F(ButtonInput, MovingWithTheLeftButtonAloneKeepsTheFaceDownAndAnyOtherLetsItUp) {
    for (const std::int16_t iButtons : {std::int16_t{0}, std::int16_t{2}, std::int16_t{3}, std::int16_t{5}}) {
        button.OnMouseDown(1, 0, 3, 4);
        EXPECT_TRUE(LooksPressed(button));
        button.OnMouseMove(iButtons, 0, 3, 4);
        // The move itself asks for no repaint.
        button.Refresh(false);
        EXPECT_FALSE(LooksPressed(button)) << iButtons;
        button.OnMouseMove(1, 0, 3, 4);
        button.Refresh(false);
        EXPECT_TRUE(LooksPressed(button)) << iButtons;
        button.OnMouseUp(1, 0, 3, 4);
        EXPECT_FALSE(LooksPressed(button));
    }
}

TEST_F(ButtonInput, LooksTheSameUnderTheMouseAsAwayFromIt) {
    MoveTo(button, 20, 200);
    const std::vector<OleColor> away = Grab(button).All();
    const int nPaints = button.nPaints;
    button.Taken();
    MoveTo(button, 20, 12);
    EXPECT_EQ(button.nPaints, nPaints);
    EXPECT_EQ(Grab(button).All(), away);
}

TEST_F(ButtonInput, SpaceAndEnterClickBehindKeyPress) {
    GiveFocus(button);
    Press(VK_SPACE);
    EXPECT_EQ(button.TakenEvents(), (Texts{"KeyDown 32 0", "KeyPress 32", "Click", "KeyUp 32 0"}));
    Press(VK_RETURN);
    EXPECT_EQ(button.TakenEvents(), (Texts{"KeyDown 13 0", "KeyPress 13", "Click", "KeyUp 13 0"}));
    Press('A');
    EXPECT_EQ(button.TakenEvents(), (Texts{"KeyDown 65 0", "KeyPress 97", "KeyUp 65 0"}));
}

TEST_F(ButtonInput, AKeyPressHandlerThatSetsTheKeyToZeroStopsTheClick) {
    button.Host().Extender().SetFocus();
    Pump();
    button.KeyPress.Add([](std::int16_t& KeyAscii) { KeyAscii = 0; });
    button.Taken();
    Press(VK_SPACE);
    EXPECT_EQ(button.TakenEvents(), (Texts{"KeyDown 32 0", "KeyPress 32", "KeyUp 32 0"}));
}

TEST_F(ButtonInput, AKeyPressHandlerCanTurnAnyKeyIntoAClick) {
    button.KeyPress.Add([](std::int16_t& KeyAscii) { KeyAscii = 13; });
    std::int16_t iKey = 'x';
    button.OnKeyPress(iKey);
    EXPECT_EQ(iKey, 13);
    EXPECT_EQ(button.TakenEvents(), (Texts{"KeyPress 120", "Click"}));
}

TEST_F(ButtonInput, KeyDownAndKeyUpHandlersMayChangeTheirArguments) {
    const auto change = [](std::int16_t& KeyCode, std::int16_t& Shift) {
        KeyCode = 1;
        Shift = 2;
    };
    button.KeyDown.Add(change);
    button.KeyUp.Add(change);
    std::int16_t iKey = 65, iShift = 4;
    button.OnKeyDown(iKey, iShift);
    EXPECT_EQ(iKey, 1);
    EXPECT_EQ(iShift, 2);
    iKey = 65;
    button.OnKeyUp(iKey, iShift);
    EXPECT_EQ(iKey, 1);
    EXPECT_EQ(button.Taken(), (Texts{"KeyDown 65 4", "KeyUp 65 2"}));
}

TEST_F(ButtonInput, TheAccessKeyClicksUnlessTheButtonIsDisabled) {
    button.Caption(u"Sa&ve");
    button.Taken();
    PressWith(VK_MENU, 'V');
    const Texts events = button.TakenEvents();
    EXPECT_EQ(std::count(events.begin(), events.end(), "Click"), 1);
    button.Enabled(false);
    button.Taken();
    PressWith(VK_MENU, 'V');
    EXPECT_EQ(button.TakenEvents(), Texts{});
    button.OnAccessKeyPress('v');
    EXPECT_EQ(button.TakenEvents(), Texts{});
}

TEST_F(ButtonInput, EnterAndEscOnTheFormClickTheDefaultAndTheCancelButton) {
    button.Host().Extender().Default(true);
    other.Host().Extender().Cancel(true);
    auto& third = form.Load<Witness<ctlUniButtonImageXP>>(u"btnThird", {150, 10, 60, 30}, {});
    third.Host().Extender().SetFocus();
    Pump();
    for (Button* each : {&button, &other, &third})
        each->Taken();
    Press(VK_ESCAPE);
    EXPECT_EQ(other.TakenEvents(), Texts{"Click"});
    EXPECT_EQ(third.TakenEvents(), Texts{"KeyUp 27 0"});
    // The button with the focus keeps Enter to itself.
    Press(VK_RETURN);
    EXPECT_EQ(button.TakenEvents(), Texts{});
    EXPECT_EQ(third.TakenEvents(), (Texts{"KeyDown 13 0", "KeyPress 13", "Click", "KeyUp 13 0"}));
}

TEST_F(ButtonInput, ADisabledButtonTakesNoRealClick) {
    button.Enabled(false);
    button.Taken();
    FormFixture::Click(button, 20, 12);
    EXPECT_EQ(button.TakenEvents(), Texts{});
    NoDoubleClick();
}

TEST_F(ButtonInput, AStuckButtonStaysDownWithoutTheFocusWhileAHeldOneComesUp) {
    button.Host().Extender().SetFocus();
    Pump();
    button.Tristate(true);
    button.Pressed(true);
    EXPECT_TRUE(LooksPressed(button));
    other.Host().Extender().SetFocus();
    EXPECT_TRUE(LooksPressed(button));

    button.Pressed(false);
    button.Host().Extender().SetFocus();
    Pump();
    button.OnMouseDown(1, 0, 3, 4);
    EXPECT_TRUE(LooksPressed(button));
    other.Host().Extender().SetFocus();
    EXPECT_FALSE(LooksPressed(button));
}

TEST_F(ButtonInput, PressedWithoutTristateDoesNotShow) {
    button.Pressed(true);
    EXPECT_FALSE(LooksPressed(button));
    button.Tristate(true);
    EXPECT_TRUE(LooksPressed(button));
}

TEST_F(ButtonInput, ForceLostFocusTakesTheMarkAwayWhileTheFocusStays) {
    button.Host().Extender().SetFocus();
    Pump();
    const std::vector<OleColor> focused = Grab(button).All();
    button.OnMouseDown(1, 0, 3, 4);
    button.ForceLostFocus();
    EXPECT_EQ(form.ActiveControl(), &button);
    EXPECT_FALSE(LooksPressed(button));
    EXPECT_NE(Grab(button).All(), focused);
    button.Taken();
    button.ForceLostFocus();
    EXPECT_EQ(button.Taken(), Texts{});
}

TEST_F(ButtonInput, DesignModeRaisesNoMouseMoveAndShowsNoTip) {
    FakeTipScope tips;
    form.UserMode(false);
    auto& design = form.Load<Button>(u"btnDesign", {150, 10, 60, 30}, {});
    button.Tip(u"a tip");
    design.Tip(u"a tip");
    design.Taken();
    design.OnMouseMove(1, 0, 3, 4);
    EXPECT_EQ(design.TakenEvents(), Texts{});
    EXPECT_EQ(tips.Shown(), std::vector<std::u16string>{});
    button.OnMouseMove(0, 0, 3, 4);
    EXPECT_EQ(button.Taken(), Texts{"MouseMove 0 0 3,4"});
    EXPECT_EQ(tips.Shown(), std::vector<std::u16string>{u"a tip"});
    EXPECT_EQ(tips.LastMaxWidth(), 300);
}

TEST_F(ButtonInput, InDesignModeAPressIsRaisedButTheFaceStaysUp) {
    form.UserMode(false);
    auto& design = form.Load<Button>(u"btnDesign", {150, 10, 60, 30}, {});
    design.Taken();
    design.OnMouseDown(1, 0, 3, 4);
    EXPECT_EQ(design.TakenEvents(), Texts{"MouseDown 1 0 3,4"});
    EXPECT_FALSE(LooksPressed(design));
}

TEST_F(ButtonInput, EnterOnAControlThatIsNoButtonClicksTheDefaultButton) {
    button.Host().Extender().Default(true);
    auto& check = form.Load<Witness<ctlUniCheckXP>>(u"chkOther", {150, 10, 60, 30}, {});
    check.Host().Extender().SetFocus();
    Pump();
    button.Taken();
    Press(VK_RETURN);
    EXPECT_EQ(button.TakenEvents(), Texts{"Click"});
    EXPECT_FALSE(check.Pressed());
}

TEST_F(ButtonInput, InDesignModeAMoveDoesNotPressTheFace) {
    form.UserMode(false);
    auto& design = form.Load<Button>(u"btnDesign", {150, 10, 60, 30}, {});
    design.OnMouseMove(1, 0, 3, 4);
    design.Refresh(false);
    EXPECT_FALSE(LooksPressed(design));
}

TEST_F(ButtonInput, HandlersMayRemoveTheButton) {
    using Arm = std::function<void(Button&, const std::function<void()>&)>;
    // The last event of a button whose handler takes it away.
    const auto lastOf = [this](const Arm& arm, const std::function<void(Button&)>& act) {
        auto& removed = form.Load<Button>(u"btnGone", {150, 10, 60, 30}, {});
        const Journal journal = removed.journal;
        HWND window = removed.hwnd();
        arm(removed, [this, &removed] { form.Remove(removed); });
        act(removed);
        Pump();
        EXPECT_FALSE(IsWindow(window));
        EXPECT_EQ(form.Find(u"btnGone"), nullptr);
        std::erase(*journal, "repaint"); // losing the focus asks for one
        return journal->empty() ? std::string() : journal->back();
    };
    const auto press = [](Button& b) {
        HWND window = b.hwnd();
        PostMouse(window, WM_LBUTTONDOWN, MK_LBUTTON, 20, 12);
        PostMouse(window, WM_LBUTTONUP, 0, 20, 12);
        Pump();
    };
    const auto on = [](auto member) -> Arm {
        return [member](Button& b, const std::function<void()>& remove) {
            (b.*member).Add([remove](auto&&...) { remove(); });
        };
    };

    EXPECT_EQ(lastOf(on(&Button::Click), press), "Click");
    EXPECT_EQ(lastOf(on(&Button::MouseDown), press), "MouseDown 1 0 20,12");
    EXPECT_EQ(lastOf(on(&Button::MouseUp), press), "MouseUp 1 0 20,12");
    EXPECT_EQ(lastOf(on(&Button::MouseMove), [](Button& b) { PostMouse(b.hwnd(), WM_MOUSEMOVE, 0, 20, 12); }),
              "MouseMove 0 0 20,12");
    EXPECT_EQ(lastOf(on(&Button::KeyPress), [](Button& b) { SendMessageW(b.hwnd(), WM_CHAR, VK_SPACE, 1); }),
              "KeyPress 32");
    EXPECT_EQ(lastOf(on(&Button::Resize), [](Button& b) { b.Host().Extender().Width(90); }), "Resize");
    EXPECT_EQ(lastOf(on(&Button::Click), [](Button& b) { b.Value(true); }), "Click");
    EXPECT_EQ(lastOf(on(&Button::Resize), [](Button& b) { b.UseRoundRegions(true); }), "Resize");
    EXPECT_EQ(lastOf(on(&Button::DblClick),
                     [](Button& b) {
                         b.DblClickEvent(true);
                         PostMouse(b.hwnd(), WM_LBUTTONDBLCLK, MK_LBUTTON, 20, 12);
                     }),
              "DblClick");
}

TEST_F(ButtonInput, AClickHandlerMayCloseTheForm) {
    button.Click.Add([&] { form.Close(); });
    HWND window = button.hwnd();
    PostMouse(window, WM_LBUTTONDOWN, MK_LBUTTON, 20, 12);
    PostMouse(window, WM_LBUTTONUP, 0, 20, 12);
    Pump();
    EXPECT_TRUE(form.IsClosed());
    EXPECT_FALSE(IsWindow(window));
}

} // namespace
} // namespace orvanta::testing
