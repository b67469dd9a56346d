#include "controls/text/ActiveHook.h"

#include "base/Failure.h"
#include "controls/text/ctlUniListBoxXP.h"
#include "drawing/ComReference.h"
#include "plumbing/ISubclass.h"
#include "plumbing/MSubclass.h"
#include "tests/controls/support/FormFixture.h"
#include "tests/controls/support/ProbeControl.h"

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <vector>

namespace orvanta::testing {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// A control with an EDIT window inside that the hook works for.
class HookedEdit final : public Control, private ISubclass {
public:
    explicit HookedEdit(ControlHost& host) : Control(host) {
        hEdit = CreateWindowExW(0, L"EDIT", L"abc", WS_CHILD | WS_VISIBLE, 0, 0, 80, 20, host.hWnd(), nullptr, nullptr,
                                nullptr);
        hook.InstallActiveHook(*this);
        HookMessage(*this, hEdit, WM_SETFOCUS, mrBeforePrevious);
        HookMessage(*this, host.hWnd(), WM_SETFOCUS, mrAfterPrevious);
    }
    void OnTerminate() override {
        UnhookMessage(*this, hEdit, WM_SETFOCUS);
        UnhookMessage(*this, Host().hWnd(), WM_SETFOCUS);
        hook.RemoveActiveHook();
        DestroyWindow(hEdit);
    }
    bool TakeKey(UINT uMsg, WPARAM wParam, LPARAM lParam) {
        if (bFail) throw OwnFailure(u"HookedEdit", u"no");
        if (uMsg != WM_KEYDOWN && uMsg != WM_KEYUP) return false;
        if (wParam == VK_TAB && bTrapTab) {
            trapped.push_back(uMsg == WM_KEYDOWN ? "down" : "up");
            return true;
        }
        if (wParam < VK_PRIOR || wParam > VK_DOWN) return false;
        SendMessageW(hEdit, uMsg, wParam, lParam);
        return true;
    }

    ActiveHook<HookedEdit> hook;
    HWND hEdit = nullptr;
    bool bTrapTab = false;
    bool bFail = false;
    std::vector<std::string> trapped;

private:
    void WindowProc(bool, bool&, LRESULT&, HWND window, UINT, WPARAM, LPARAM) override {
        if (window == hEdit) {
            hook.Activate();
        } else {
            SetFocus(hEdit);
        }
    }
};

class ActiveHookTest : public FormFixture {
protected:
    ActiveHookTest()
        : first(form.Add<ProbeControl>(u"First", {10, 10, 80, 20})),
          edit(form.Add<HookedEdit>(u"Edit", {10, 40, 80, 20})),
          last(form.Add<ProbeControl>(u"Last", {10, 70, 80, 20})) {
        Show();
        edit.Host().Extender().SetFocus();
    }
    int Caret() const {
        DWORD lStart = 0;
        SendMessageW(edit.hEdit, EM_GETSEL, reinterpret_cast<WPARAM>(&lStart), 0);
        return static_cast<int>(lStart);
    }

    ProbeControl& first;
    HookedEdit& edit;
    ProbeControl& last;
};

TEST_F(ActiveHookTest, TheFocusOfTheWindowInsideMakesTheHookTheActiveObject) {
    EXPECT_EQ(GetFocus(), edit.hEdit);
    EXPECT_EQ(form.Frame().ActiveObject(), edit.hook.Object());
    EXPECT_EQ(form.ActiveControl(), &edit);
    first.Host().Extender().SetFocus();
    EXPECT_EQ(form.Frame().ActiveObject(), first.Host().ActiveObject());
}

TEST_F(ActiveHookTest, AClickIntoTheWindowInsideMakesItTheActiveControlToo) {
    first.Host().Extender().SetFocus();
    first.TakeNotes();
    MoveTo(edit.hEdit, 5, 5);
    Mouse(MOUSEEVENTF_LEFTDOWN);
    Mouse(MOUSEEVENTF_LEFTUP);
    EXPECT_EQ(form.Frame().ActiveObject(), edit.hook.Object());
    EXPECT_THAT(first.TakeNotes(), ElementsAre("ExitFocus"));
    Press(VK_TAB);
    EXPECT_EQ(form.ActiveControl(), &last);
}

TEST_F(ActiveHookTest, TheInterfaceIsTheHooksAndAllOthersAreTheObjectsBehind) {
    IOleInPlaceActiveObject* object = edit.hook.Object();
    ComReference<IOleInPlaceActiveObject> itself;
    ASSERT_EQ(object->QueryInterface(IID_IOleInPlaceActiveObject, itself.ReceiveVoid()), S_OK);
    EXPECT_EQ(itself.Get(), object);
    ComReference<IUnknown> unknown;
    ASSERT_EQ(object->QueryInterface(IID_IUnknown, unknown.ReceiveVoid()), S_OK);
    EXPECT_EQ(unknown.Get(), static_cast<IUnknown*>(edit.Host().ActiveObject()));
    ComReference<IOleWindow> window;
    ASSERT_EQ(object->QueryInterface(IID_IOleWindow, window.ReceiveVoid()), S_OK);
    EXPECT_EQ(static_cast<void*>(window.Get()), static_cast<void*>(edit.Host().ActiveObject()));
    ComReference<IStream> stream;
    EXPECT_EQ(object->QueryInterface(IID_IStream, stream.ReceiveVoid()), E_NOINTERFACE);
}

TEST_F(ActiveHookTest, AllOtherOperationsGoToTheObjectBehind) {
    IOleInPlaceActiveObject* object = edit.hook.Object();
    HWND window = nullptr;
    EXPECT_EQ(object->GetWindow(&window), S_OK);
    EXPECT_EQ(window, edit.hwnd());
    EXPECT_EQ(object->ContextSensitiveHelp(TRUE), E_NOTIMPL);
    EXPECT_EQ(object->OnFrameWindowActivate(TRUE), S_OK);
    EXPECT_EQ(object->OnDocWindowActivate(TRUE), S_OK);
    EXPECT_EQ(object->ResizeBorder(nullptr, nullptr, TRUE), S_OK);
    EXPECT_EQ(object->EnableModeless(TRUE), S_OK);
    const ULONG nBefore = edit.Host().ActiveObject()->AddRef();
    EXPECT_EQ(object->AddRef(), nBefore + 1);
    EXPECT_EQ(object->Release(), nBefore);
    EXPECT_EQ(edit.Host().ActiveObject()->Release(), nBefore - 1);
}

TEST_F(ActiveHookTest, ArrowKeysReachTheWindowInsideOnce) {
    SendMessageW(edit.hEdit, EM_SETSEL, 0, 0);
    Press(VK_RIGHT);
    EXPECT_EQ(Caret(), 1);
    Press(VK_END);
    EXPECT_EQ(Caret(), 3);
    Press(VK_LEFT);
    EXPECT_EQ(Caret(), 2);
}

TEST_F(ActiveHookTest, TabLeavesTheControlUnlessItIsTrapped) {
    edit.bTrapTab = true;
    Press(VK_TAB);
    EXPECT_EQ(form.ActiveControl(), &edit);
    EXPECT_THAT(edit.trapped, ElementsAre("down", "up"));
    edit.bTrapTab = false;
    Press(VK_TAB);
    EXPECT_EQ(form.ActiveControl(), &last);
}

TEST_F(ActiveHookTest, AKeyThatIsNotTakenGoesOn) {
    MSG message{};
    message.hwnd = edit.hEdit;
    message.message = WM_KEYDOWN;
    message.wParam = 'A';
    EXPECT_EQ(edit.hook.Object()->TranslateAccelerator(&message), S_FALSE);
    message.wParam = VK_DOWN;
    EXPECT_EQ(edit.hook.Object()->TranslateAccelerator(&message), S_OK);
}

TEST_F(ActiveHookTest, AFailureOfTheControlCountsAsNotTaken) {
    edit.bFail = true;
    MSG message{};
    message.message = WM_KEYDOWN;
    message.wParam = VK_DOWN;
    EXPECT_EQ(edit.hook.Object()->TranslateAccelerator(&message), S_FALSE);
}

TEST_F(ActiveHookTest, ARemovedHookAnswersAsNobody) {
    IOleInPlaceActiveObject* object = edit.hook.Object();
    first.Host().Extender().SetFocus();
    edit.hook.RemoveActiveHook();
    HWND window = nullptr;
    EXPECT_EQ(object->GetWindow(&window), E_FAIL);
    EXPECT_EQ(object->AddRef(), 0U);
    EXPECT_EQ(object->Release(), 0U);
    MSG message{};
    message.message = WM_KEYDOWN;
    message.wParam = VK_DOWN;
    EXPECT_EQ(object->TranslateAccelerator(&message), S_FALSE);
    edit.hook.Activate();
    EXPECT_EQ(form.Frame().ActiveObject(), first.Host().ActiveObject());
}

TEST_F(ActiveHookTest, ARemovedControlIsNoLongerTheActiveObject) {
    form.Remove(edit);
    EXPECT_EQ(form.Frame().ActiveObject(), last.Host().ActiveObject());
    Press(VK_DOWN);
    EXPECT_EQ(form.ActiveControl(), &last);
}

TEST_F(ActiveHookTest, EachKindOfControlHasATableOfItsOwn) {
    auto& second = form.Add<HookedEdit>(u"Edit2", {10, 100, 80, 20});
    ActiveHook<ProbeControl> other;
    EXPECT_EQ(other.Object(), nullptr);
    const auto tableOf = [](IOleInPlaceActiveObject* object) { return *reinterpret_cast<void**>(object); };
    EXPECT_EQ(tableOf(edit.hook.Object()), tableOf(second.hook.Object()));
    EXPECT_NE(tableOf(edit.hook.Object()), tableOf(edit.Host().ActiveObject()));
}

TEST_F(ActiveHookTest, AListBoxMovesByArrowsAndIsLeftByTab) {
    PropertyBag bag;
    auto& list = form.Load<ctlUniListBoxXP>(u"lst", {200, 10, 100, 100}, bag);
    for (const char16_t* s : {u"a", u"b", u"c"})
        list.AddItem(s);
    list.Host().Extender().SetFocus();
    EXPECT_EQ(GetFocus(), list.hwnd());
    Press(VK_DOWN);
    EXPECT_EQ(list.ListIndex(), 0);
    Press(VK_END);
    EXPECT_EQ(list.ListIndex(), 2);
    Press(VK_TAB);
    EXPECT_EQ(form.ActiveControl(), &first);
}

TEST_F(ActiveHookTest, AListBoxThatTrapsTabKeepsTheFocus) {
    PropertyBag bag;
    bag.WriteProperty(u"TrapTab", true);
    auto& list = form.Load<ctlUniListBoxXP>(u"lst", {200, 10, 100, 100}, bag);
    std::vector<std::string> keys;
    list.KeyDown.Add([&](std::int16_t& KeyCode, std::int16_t& Shift) {
        keys.push_back("down " + std::to_string(KeyCode) + " " + std::to_string(Shift));
    });
    list.KeyUp.Add([&](std::int16_t& KeyCode, std::int16_t&) { keys.push_back("up " + std::to_string(KeyCode)); });
    list.Host().Extender().SetFocus();
    EXPECT_THAT(keys, IsEmpty());
    Press(VK_TAB);
    EXPECT_THAT(keys, ElementsAre("down 9 0", "up 9"));
    EXPECT_EQ(form.ActiveControl(), &list);
}

} // namespace

} // namespace orvanta::testing
