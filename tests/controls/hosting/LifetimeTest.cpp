#include "tests/controls/support/FormFixture.h"
#include "tests/controls/support/ProbeControl.h"

#include "base/Failure.h"
#include "tests/support/DialogUser.h"

#include <gmock/gmock.h>

namespace orvanta::testing {

namespace {

using ::testing::ElementsAre;

int g_nMortals = 0;

// A probe whose life is counted.
class Mortal final : public ProbeControl {
public:
    explicit Mortal(ControlHost& host) : ProbeControl(host) { ++g_nMortals; }
    ~Mortal() override { --g_nMortals; }
};

class LifetimeTest : public FormFixture {
protected:
    LifetimeTest() : mortal(&form.Add<Mortal>(u"Mortal1", {10, 20, 100, 30})), window(mortal->hwnd()) { Show(); }

    // The control has gone, and after the next messages its memory too.
    void ExpectGone() {
        EXPECT_FALSE(IsWindow(window));
        EXPECT_TRUE(form.Controls().empty());
        PostMessageW(form.hWnd(), WM_NULL, 0, 0);
        Pump();
        EXPECT_EQ(g_nMortals, 0);
    }
    void Remove() {
        form.Remove(*mortal);
        EXPECT_TRUE(mortal->Host().IsGone());
    }

    Mortal* mortal;
    HWND window;
};

TEST_F(LifetimeTest, RemovedInItsOwnClick) {
    mortal->Click.Add([this] { Remove(); });
    Click(*mortal, 5, 5);
    ExpectGone();
}

TEST_F(LifetimeTest, RemovedInItsOwnMousePress) {
    mortal->MouseDown.Add([this](auto&, auto&, auto&, auto&) { Remove(); });
    Click(*mortal, 5, 5);
    ExpectGone();
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(LifetimeTest, RemovedInItsOwnMouseRelease) {
    bool bClicked = false;
    mortal->Click.Add([&bClicked] { bClicked = true; });
    mortal->MouseUp.Add([this](auto&, auto&, auto&, auto&) { Remove(); });
    Click(*mortal, 5, 5);
    EXPECT_FALSE(bClicked);
    ExpectGone();
}

TEST_F(LifetimeTest, RemovedInItsOwnMouseMove) {
    mortal->MouseMove.Add([this](auto&, auto&, auto&, auto&) {
        if (IsWindow(window)) Remove();
    });
    MoveTo(*mortal, 5, 5);
    ExpectGone();
}

TEST_F(LifetimeTest, RemovedInItsOwnKeyEvents) {
    mortal->KeyDown.Add([this](auto&, auto&) { Remove(); });
    Press('A');
    ExpectGone();
}

TEST_F(LifetimeTest, RemovedWhileItIsPainted) {
    mortal->duringPaint = [this] { Remove(); };
    mortal->BackColor(1);
    Pump();
    ExpectGone();
}

TEST_F(LifetimeTest, RemovedInItsOwnResize) {
    mortal->Resize.Add([this] { Remove(); });
    mortal->Host().Size(50, 50);
    ExpectGone();
}

TEST_F(LifetimeTest, RemovedWhenTheFocusGoes) {
    mortal->duringExit = [this] { Remove(); };
    auto& other = form.Add<ProbeControl>(u"Other", {10, 60, 100, 30});
    other.Host().Extender().SetFocus();
    EXPECT_FALSE(IsWindow(window));
    EXPECT_EQ(form.ActiveControl(), &other);
    Pump();
    EXPECT_EQ(g_nMortals, 0);
}

TEST_F(LifetimeTest, RemovedByAHandlerOfAnotherControlsEvent) {
    auto& other = form.Add<ProbeControl>(u"Other", {10, 60, 100, 30});
    other.Click.Add([this] { Remove(); });
    Click(other, 5, 5);
    EXPECT_FALSE(IsWindow(window));
    Pump();
    EXPECT_EQ(g_nMortals, 0);
}

TEST_F(LifetimeTest, TheFormClosedInAnEventOfItsControl) {
    mortal->Click.Add([this] { form.Close(); });
    Click(*mortal, 5, 5);
    EXPECT_TRUE(form.IsClosed());
    EXPECT_FALSE(IsWindow(window));
}

TEST_F(LifetimeTest, WindowsDestroyedFromOutsideEndTheirControls) {
    DestroyWindow(window);
    ExpectGone();
}

TEST_F(LifetimeTest, AFrameDestroyedFromOutsideEndsWhatStandsOnIt) {
    auto& frame = form.Add<ProbeFrame>(u"Frame", {10, 60, 200, 100});
    form.Add<Mortal>(u"Inner", {0, 0, 600, 225}, &frame);
    EXPECT_EQ(g_nMortals, 2);
    DestroyWindow(frame.hwnd());
    Remove();
    ExpectGone();
}

TEST_F(LifetimeTest, TerminateComesWhileTheWindowStillStands) {
    bool bWindow = false;
    HWND child = CreateWindowExW(0, L"EDIT", L"", WS_CHILD, 0, 0, 10, 10, window, nullptr, nullptr, nullptr);
    mortal->duringTerminate = [&] { bWindow = IsWindow(window) && IsWindow(child) && mortal->hwnd() == window; };
    Remove();
    EXPECT_TRUE(bWindow);
    ExpectGone();
}

TEST_F(LifetimeTest, AFailureInAHandlerIsShownAndTheProgramGoesOn) {
    mortal->Click.Add([] { throw OwnFailure(u"Test", u"It did not work: 中"); });
    int nAfter = 0;
    mortal->MouseDown.Add([&nAfter](auto&, auto&, auto&, auto&) { ++nAfter; });
    std::u16string sShown;
    {
        DialogUser user([&sShown](DialogUser& u) {
            HWND box = u.NextDialog();
            sShown = DialogUser::TextOf(GetDlgItem(box, 0xFFFF));
            DialogUser::Press(box, IDOK);
        });
        Click(*mortal, 5, 5);
    }
    EXPECT_EQ(sShown, u"It did not work: 中");
    NoDoubleClick();
    MoveTo(*mortal, 6, 6);
    Mouse(MOUSEEVENTF_LEFTDOWN);
    EXPECT_EQ(nAfter, 2);
    mortal->MouseUp.Add([this](auto&, auto&, auto&, auto&) { Remove(); });
    Mouse(MOUSEEVENTF_LEFTUP);
    ExpectGone();
}

TEST_F(LifetimeTest, AFailureWhileTheFormIsClosedDoesNotKeepItOpen) {
    form.Unload.Add([] { throw OwnFailure(u"Test", u"cannot save"); });
    {
        DialogUser user([](DialogUser& u) { DialogUser::Press(u.NextDialog(), IDOK); });
        form.Close();
    }
    EXPECT_TRUE(form.IsClosed());
}

TEST_F(LifetimeTest, AFormThatGoesTakesItsControlsWithIt) {
    {
        Form other(u"Other");
        auto& frame = other.Add<ProbeFrame>(u"Frame", {0, 0, 3000, 3000});
        other.Add<Mortal>(u"A", {0, 0, 100, 100}, &frame);
        other.Add<Mortal>(u"B", {0, 0, 100, 100});
        other.Show();
        EXPECT_EQ(g_nMortals, 3);
    }
    EXPECT_EQ(g_nMortals, 1);
}

} // namespace

} // namespace orvanta::testing
