#include "tests/controls/support/FormFixture.h"
#include "tests/controls/support/ProbeControl.h"

#include "base/Failure.h"
#include "tests/support/DialogUser.h"
#include "tests/support/WindowCensus.h"

#include <gmock/gmock.h>

#include <functional>
#include <stdexcept>

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

TEST_F(LifetimeTest, AnExceptionOfTheLibraryInAHandlerIsShownToo) {
    mortal->Click.Add([] { throw std::length_error("too long"); });
    std::u16string sShown;
    {
        DialogUser user([&sShown](DialogUser& u) {
            HWND box = u.NextDialog();
            sShown = DialogUser::TextOf(GetDlgItem(box, 0xFFFF));
            DialogUser::Press(box, IDOK);
        });
        Click(*mortal, 5, 5);
    }
    EXPECT_EQ(sShown, u"too long");
}

// The next control's message about its focus arrives while the setter is still at work.
TEST_F(LifetimeTest, ASetterThatTakesTheFocusAwayOutlivesTheRemovalOfItsControl) {
    form.Add<ProbeControl>(u"Other", {10, 60, 100, 30});
    const std::function<void(Control&)> setters[] = {
        [](Control& c) { c.Enabled(false); },
        [](Control& c) { c.Host().Enabled(false); },
        [](Control& c) { c.Host().Extender().Visible(false); },
    };
    for (const auto& setter : setters) {
        mortal->Host().Extender().SetFocus();
        ASSERT_EQ(form.ActiveControl(), mortal);
        mortal->duringExit = [this] { Remove(); };
        setter(*mortal);
        EXPECT_FALSE(IsWindow(window));
        EXPECT_EQ(g_nMortals, 1);
        PostMessageW(form.hWnd(), WM_NULL, 0, 0);
        Pump();
        EXPECT_EQ(g_nMortals, 0);
        mortal = &form.Add<Mortal>(u"Mortal1", {10, 20, 100, 30});
        window = mortal->hwnd();
    }
}

// Fails at one step of its start, with a window of its own on the host already.
class Stillborn final : public ProbeControl {
public:
    enum Step { Constructor, Init, Read };
    static inline Step failsAt = Constructor;

    explicit Stillborn(ControlHost& host) : ProbeControl(host) {
        host.Extender().Default(true);
        if (failsAt == Constructor) throw OwnFailure(u"Test", u"not made");
    }
    void OnInitProperties() override {
        if (failsAt == Init) throw OwnFailure(u"Test", u"not initialized");
    }
    void OnReadProperties(const PropertyBag&) override {
        if (failsAt == Read) throw OwnFailure(u"Test", u"not read");
    }
};

TEST_F(LifetimeTest, AControlThatCannotBeStartedLeavesNothingOnTheForm) {
    for (const Stillborn::Step step : {Stillborn::Constructor, Stillborn::Init, Stillborn::Read}) {
        Stillborn::failsAt = step;
        const int nWindows = CountOwnWindows();
        EXPECT_THROW(step == Stillborn::Read ? form.Load<Stillborn>(u"Still1", {0, 0, 10, 10}, {})
                                             : form.Add<Stillborn>(u"Still1", {0, 0, 10, 10}),
                     Failure);
        EXPECT_EQ(CountOwnWindows(), nWindows);
        EXPECT_EQ(form.Find(u"Still1"), nullptr);
        EXPECT_THAT(form.Controls(), ElementsAre(mortal));
        EXPECT_EQ(form.HostOf(*mortal)->HostedOne().hwnd(), window);
        EXPECT_EQ(form.DefaultHost(), nullptr);
        Press(VK_TAB);
        EXPECT_EQ(form.ActiveControl(), mortal);
    }
}

// Looks around on its form while it is made.
class Curious final : public ProbeControl {
public:
    static inline std::function<void()> look;
    explicit Curious(ControlHost& host) : ProbeControl(host) { look(); }
};

TEST_F(LifetimeTest, AControlIsNotAmongThoseOfItsFormBeforeItIsMade) {
    int nLooks = 0;
    Curious::look = [&] {
        ++nLooks;
        EXPECT_EQ(form.Find(u"Curious1"), nullptr);
        EXPECT_THAT(form.Controls(), ElementsAre(mortal));
        EXPECT_EQ(form.ActiveControl(), mortal);
    };
    auto& curious = form.Add<Curious>(u"Curious1", {0, 0, 10, 10});
    Curious::look = nullptr;
    EXPECT_EQ(nLooks, 1);
    EXPECT_EQ(form.Find(u"Curious1"), &curious);
}

} // namespace

} // namespace orvanta::testing
