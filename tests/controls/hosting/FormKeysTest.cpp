#include "controls/hosting/ComObject.h"
#include "tests/controls/support/FormFixture.h"
#include "tests/controls/support/ProbeControl.h"

#include <gmock/gmock.h>

namespace orvanta::testing {

namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

class FormKeysTest : public FormFixture {
protected:
    FormKeysTest()
        : first(form.Add<ProbeControl>(u"First", {10, 10, 80, 20})),
          frame(form.Add<ProbeFrame>(u"Frame", {10, 40, 200, 100})),
          inner(form.Add<ProbeControl>(u"Inner", {150, 150, 600, 300}, &frame)),
          second(form.Add<ProbeControl>(u"Second", {10, 160, 80, 20})),
          button(form.Add<ProbeButton>(u"Button", {10, 200, 80, 20})) {
        Show();
        for (ProbeControl* probe : {&first, &inner, &second})
            probe->TakeNotes();
        button.TakeNotes();
    }

    std::u16string Active() const {
        const Control* control = form.ActiveControl();
        return control ? control->Host().Extender().Name() : u"none";
    }

    ProbeControl& first;
    ProbeFrame& frame;
    ProbeControl& inner;
    ProbeControl& second;
    ProbeButton& button;
};

TEST_F(FormKeysTest, TheFirstControlHasTheFocusWhenTheFormIsShown) {
    EXPECT_EQ(Active(), u"First");
}

TEST_F(FormKeysTest, TabGoesInTabOrderThroughFramesAndRound) {
    Press(VK_TAB);
    EXPECT_EQ(Active(), u"Inner");
    Press(VK_TAB);
    EXPECT_EQ(Active(), u"Second");
    Press(VK_TAB);
    EXPECT_EQ(Active(), u"Button");
    Press(VK_TAB);
    EXPECT_EQ(Active(), u"First");
}

TEST_F(FormKeysTest, ShiftTabGoesBackwards) {
    PressWith(VK_SHIFT, VK_TAB);
    EXPECT_EQ(Active(), u"Button");
    PressWith(VK_SHIFT, VK_TAB);
    EXPECT_EQ(Active(), u"Second");
}

TEST_F(FormKeysTest, TabIndexDecidesTheOrder) {
    EXPECT_EQ(first.Host().Extender().TabIndex(), 0);
    EXPECT_EQ(frame.Host().Extender().TabIndex(), -1);
    EXPECT_EQ(button.Host().Extender().TabIndex(), 3);
    button.Host().Extender().TabIndex(1);
    EXPECT_EQ(second.Host().Extender().TabIndex(), 3);
    Press(VK_TAB);
    EXPECT_EQ(Active(), u"Button");
    Press(VK_TAB);
    EXPECT_EQ(Active(), u"Inner");
}

TEST_F(FormKeysTest, TabLeavesOutWhatIsDisabledHiddenOrNoTabStop) {
    inner.Enabled(false);
    second.Host().Extender().TabStop(false);
    Press(VK_TAB);
    EXPECT_EQ(Active(), u"Button");
    button.Host().Extender().Visible(false);
    EXPECT_EQ(Active(), u"First");
    Press(VK_TAB);
    EXPECT_EQ(Active(), u"First");
}

TEST_F(FormKeysTest, TabLeavesOutControlsOfADisabledOrHiddenFrame) {
    frame.Enabled(false);
    Press(VK_TAB);
    EXPECT_EQ(Active(), u"Second");
    frame.Enabled(true);
    frame.Host().Extender().Visible(false);
    PressWith(VK_SHIFT, VK_TAB);
    EXPECT_EQ(Active(), u"First");
    Press(VK_TAB);
    EXPECT_EQ(Active(), u"Second");
}

TEST_F(FormKeysTest, TabIsNoKeyOfTheControlAndArrowsAre) {
    Press(VK_TAB);
    EXPECT_THAT(inner.TakeNotes(), ElementsAre("EnterFocus", "KeyUp 9 0"));
    Press(VK_RIGHT);
    EXPECT_THAT(inner.TakeNotes(), ElementsAre("KeyDown 39 0", "KeyUp 39 0"));
    EXPECT_EQ(Active(), u"Inner");
}

TEST_F(FormKeysTest, FocusComesAndGoesOnce) {
    Press(VK_TAB);
    EXPECT_THAT(first.TakeNotes(), ElementsAre("ExitFocus"));
}

TEST_F(FormKeysTest, AltAndTheAccessKeyMoveTheFocusAndPressTheControl) {
    second.Host().AccessKeys(u"s");
    PressWith(VK_MENU, 'S');
    EXPECT_EQ(Active(), u"Second");
    EXPECT_THAT(second.TakeNotes(), Contains("AccessKeyPress 115"));
    EXPECT_THAT(first.TakeNotes(), Not(Contains("AccessKeyPress 115")));
}

TEST_F(FormKeysTest, AccessKeysHaveNoCase) {
    second.Host().AccessKeys(u"S");
    PressWith(VK_MENU, 'S');
    EXPECT_THAT(second.TakeNotes(), Contains("AccessKeyPress 115"));
}

TEST_F(FormKeysTest, ASharedAccessKeyGoesOnToTheNextControl) {
    inner.Host().AccessKeys(u"x");
    second.Host().AccessKeys(u"x");
    PressWith(VK_MENU, 'X');
    EXPECT_EQ(Active(), u"Inner");
    PressWith(VK_MENU, 'X');
    EXPECT_EQ(Active(), u"Second");
    PressWith(VK_MENU, 'X');
    EXPECT_EQ(Active(), u"Inner");
}

TEST_F(FormKeysTest, TheAccessKeyOfADisabledControlDoesNothing) {
    second.Host().AccessKeys(u"s");
    second.Enabled(false);
    PressWith(VK_MENU, 'S');
    EXPECT_EQ(Active(), u"First");
    EXPECT_THAT(second.TakeNotes(), Not(Contains("AccessKeyPress 115")));
}

TEST_F(FormKeysTest, TheLetterWithoutAltIsTyped) {
    second.Host().AccessKeys(u"s");
    Press('S');
    EXPECT_EQ(Active(), u"First");
    EXPECT_THAT(first.TakeNotes(), ElementsAre("KeyDown 83 0", "KeyPress 115", "KeyUp 83 0"));
}

TEST_F(FormKeysTest, EnterPressesTheDefaultButtonAndLeavesTheFocus) {
    button.Host().Extender().Default(true);
    button.TakeNotes();
    Press(VK_RETURN);
    EXPECT_THAT(button.TakeNotes(), ElementsAre("AccessKeyPress 13"));
    EXPECT_EQ(Active(), u"First");
    EXPECT_THAT(first.TakeNotes(), ElementsAre("KeyUp 13 0"));
}

TEST_F(FormKeysTest, EscapePressesTheCancelButton) {
    button.Host().Extender().Cancel(true);
    button.TakeNotes();
    Press(VK_ESCAPE);
    EXPECT_THAT(button.TakeNotes(), ElementsAre("AccessKeyPress 27"));
}

TEST_F(FormKeysTest, EnterOnAButtonIsItsOwn) {
    second.Host().Extender().Default(true);
    button.Host().Extender().SetFocus();
    button.TakeNotes();
    Press(VK_RETURN);
    EXPECT_THAT(button.TakeNotes(), ElementsAre("KeyDown 13 0", "KeyPress 13", "KeyUp 13 0"));
    EXPECT_THAT(second.TakeNotes(), Not(Contains("AccessKeyPress 13")));
}

TEST_F(FormKeysTest, WithoutADefaultButtonEnterIsTheControls) {
    Press(VK_RETURN);
    EXPECT_THAT(first.TakeNotes(), ElementsAre("KeyDown 13 0", "KeyPress 13", "KeyUp 13 0"));
}

TEST_F(FormKeysTest, ADisabledDefaultButtonLeavesEnterToTheControl) {
    button.Host().Extender().Default(true);
    button.Enabled(false);
    button.TakeNotes();
    Press(VK_RETURN);
    EXPECT_THAT(button.TakeNotes(), IsEmpty());
    EXPECT_THAT(first.TakeNotes(), Contains("KeyPress 13"));
}

TEST_F(FormKeysTest, OneControlOfAFormIsTheDefault) {
    button.Host().Extender().Default(true);
    second.Host().Extender().Default(true);
    EXPECT_FALSE(button.Host().Extender().Default());
    EXPECT_TRUE(second.Host().Extender().Default());
    second.Host().Extender().Default(false);
    EXPECT_FALSE(second.Host().Extender().Default());
    button.Host().Extender().Cancel(true);
    first.Host().Extender().Cancel(true);
    EXPECT_FALSE(button.Host().Extender().Cancel());
}

TEST_F(FormKeysTest, BecomingTheDefaultRepaintsBothControls) {
    button.Host().Extender().Default(true);
    Pump();
    button.nPaints = second.nPaints = 0;
    second.Host().Extender().Default(true);
    Pump();
    EXPECT_EQ(button.nPaints, 1);
    EXPECT_EQ(second.nPaints, 1);
}

TEST_F(FormKeysTest, DisablingHidingOrRemovingTheActiveControlMovesTheFocusOn) {
    first.Enabled(false);
    EXPECT_EQ(Active(), u"Inner");
    inner.Host().Extender().Visible(false);
    EXPECT_EQ(Active(), u"Second");
    form.Remove(second);
    EXPECT_EQ(Active(), u"Button");
}

TEST_F(FormKeysTest, RemovingTheActiveControlOfAFrameMovesTheFocusOn) {
    inner.Host().Extender().SetFocus();
    frame.TakeNotes();
    form.Remove(inner);
    EXPECT_EQ(Active(), u"Second");
    EXPECT_THAT(frame.TakeNotes(), IsEmpty());
}

TEST_F(FormKeysTest, ClosingTheFormBringsTheFocusToNobody) {
    std::vector<std::string> journal;
    second.journal = button.journal = &journal;
    form.Close();
    EXPECT_THAT(journal, ElementsAre(" Terminate", " Terminate"));
}

TEST_F(FormKeysTest, AClickBringsTheFocusBeforeTheMousePress) {
    Click(second, 5, 5);
    EXPECT_EQ(Active(), u"Second");
    EXPECT_THAT(second.TakeNotes(), ElementsAre("EnterFocus", "MouseDown 1 0", "MouseUp 1 0", "Click"));
}

TEST_F(FormKeysTest, AClickOnAControlThatTakesNoFocusLeavesItWhereItIs) {
    Click(frame, 150, 80);
    EXPECT_EQ(Active(), u"First");
    EXPECT_THAT(frame.TakeNotes(), Contains("Click"));
}

TEST_F(FormKeysTest, TheFocusComesBackToItsControlWithTheForm) {
    second.Host().Extender().SetFocus();
    Form other(u"Other", true, WS_POPUP);
    other.Show();
    SetForegroundWindow(other.hWnd());
    Pump();
    EXPECT_EQ(Active(), u"none");
    EXPECT_THAT(second.TakeNotes(), ElementsAre("EnterFocus", "ExitFocus"));
    SetForegroundWindow(form.hWnd());
    Pump();
    EXPECT_EQ(Active(), u"Second");
}

TEST_F(FormKeysTest, TheActiveObjectIsAskedFirstForEachKey) {
    struct Greedy final : ComObject<IOleInPlaceActiveObject> {
        HRESULT STDMETHODCALLTYPE GetWindow(HWND*) override { return E_FAIL; }
        HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }
        HRESULT STDMETHODCALLTYPE TranslateAccelerator(LPMSG message) override {
            seen.push_back(message->message);
            return message->message == WM_KEYDOWN && message->wParam == VK_TAB ? S_OK : S_FALSE;
        }
        HRESULT STDMETHODCALLTYPE OnFrameWindowActivate(BOOL) override { return S_OK; }
        HRESULT STDMETHODCALLTYPE OnDocWindowActivate(BOOL) override { return S_OK; }
        HRESULT STDMETHODCALLTYPE ResizeBorder(LPCRECT, IOleInPlaceUIWindow*, BOOL) override { return S_OK; }
        HRESULT STDMETHODCALLTYPE EnableModeless(BOOL) override { return S_OK; }
        bool Answers(REFIID) const override { return false; }
        std::vector<UINT> seen;
    };
    auto* greedy = new Greedy;
    ComReference<IOleInPlaceFrame> frameObject;
    ComReference<IOleInPlaceUIWindow> document;
    RECT place{};
    RECT clip{};
    OLEINPLACEFRAMEINFO info{};
    info.cb = sizeof info;
    ASSERT_EQ(
        first.Host().InPlaceSite()->GetWindowContext(frameObject.Receive(), document.Receive(), &place, &clip, &info),
        S_OK);
    EXPECT_EQ(info.hwndFrame, form.hWnd());
    frameObject->SetActiveObject(greedy, nullptr);
    document->SetActiveObject(greedy, nullptr);
    Press(VK_TAB);
    EXPECT_EQ(Active(), u"First");
    Press('A');
    EXPECT_THAT(greedy->seen, ElementsAre(WM_KEYDOWN, WM_KEYUP, WM_KEYDOWN, WM_CHAR, WM_KEYUP));
    second.Host().Extender().SetFocus();
    Press(VK_TAB);
    EXPECT_EQ(Active(), u"Button");
    EXPECT_EQ(greedy->Release(), 0U);
}

TEST_F(FormKeysTest, AltAndSpaceStayWithTheSystemMenuWhateverTheAccessKeysAre) {
    second.Host().AccessKeys(u" s");
    MSG message{};
    message.hwnd = first.hwnd();
    message.message = WM_SYSCHAR;
    message.wParam = ' ';
    EXPECT_FALSE(Form::DialogStep(message));
    EXPECT_EQ(Active(), u"First");
    EXPECT_THAT(second.TakeNotes(), IsEmpty());
    message.wParam = 's';
    EXPECT_TRUE(Form::DialogStep(message));
    EXPECT_THAT(second.TakeNotes(), ElementsAre("EnterFocus", "AccessKeyPress 115"));
}

TEST_F(FormKeysTest, AWindowInsideAControlThatTakesNoFocusBringsItNone) {
    frame.TakeNotes();
    HWND edit =
        CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE, 0, 0, 50, 20, frame.hwnd(), nullptr, nullptr, nullptr);
    SetFocus(edit);
    EXPECT_EQ(GetFocus(), edit);
    EXPECT_THAT(frame.TakeNotes(), IsEmpty());
    SetFocus(second.hwnd());
    EXPECT_THAT(frame.TakeNotes(), IsEmpty());
}

TEST_F(FormKeysTest, AWindowOnTheFormThatIsNoControlKeepsTabEnterAndEscape) {
    button.Host().Extender().Default(true);
    button.Host().Extender().Cancel(true);
    second.Host().AccessKeys(u"s");
    button.TakeNotes();
    HWND edit =
        CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE, 300, 0, 50, 20, form.hWnd(), nullptr, nullptr, nullptr);
    SetFocus(edit);
    for (const WORD vk : {WORD{VK_TAB}, WORD{VK_RETURN}, WORD{VK_ESCAPE}})
        Press(vk);
    EXPECT_EQ(GetFocus(), edit);
    EXPECT_THAT(button.TakeNotes(), IsEmpty());
    PressWith(VK_MENU, 'S');
    EXPECT_EQ(Active(), u"Second");
}

} // namespace

} // namespace orvanta::testing
