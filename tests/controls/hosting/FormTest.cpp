#include "tests/controls/support/FormFixture.h"
#include "tests/controls/support/ProbeControl.h"

#include "base/Failure.h"
#include "plumbing/DoEvents.h"
#include "tests/support/NumberRaisedBy.h"

#include <gmock/gmock.h>

namespace orvanta::testing {

namespace {

using ::testing::ElementsAre;

class FormTest : public FormFixture {};

TEST_F(FormTest, InnerSizeIsTheClientAreaInTwips) {
    form.ScaleMode(ScaleUnit::Twips);
    form.InnerSize(8700, 5655);
    RECT rect{};
    GetClientRect(form.hWnd(), &rect);
    EXPECT_EQ(rect.right, 580);
    EXPECT_EQ(rect.bottom, 377);
    EXPECT_EQ(form.InnerWidth(), 8700.0F);
    EXPECT_EQ(form.InnerHeight(), 5655.0F);
}

TEST_F(FormTest, InnerSizeCountsTheFrameThatTheWindowHas) {
    HMENU menu = CreateMenu();
    AppendMenuW(menu, MF_STRING, 1, L"File");
    SetMenu(form.hWnd(), menu);
    form.InnerSize(310, 210);
    EXPECT_EQ(form.InnerWidth(), 310.0F);
    EXPECT_EQ(form.InnerHeight(), 210.0F);
    SetMenu(form.hWnd(), nullptr);
    DestroyMenu(menu);
    form.InnerSize(310, 210);
    EXPECT_EQ(form.InnerHeight(), 210.0F);
}

TEST_F(FormTest, AFreshFormCountsInTwips) {
    const Form fresh;
    EXPECT_EQ(fresh.ScaleMode(), ScaleUnit::Twips);
    EXPECT_EQ(fresh.Dpi(), 96);
    EXPECT_FALSE(fresh.Visible());
    EXPECT_EQ(fresh.Font().Name(), u"MS Sans Serif");
    EXPECT_EQ(fresh.Font().Size(), 8.25);
}

TEST_F(FormTest, CentringPutsItIntoTheMiddleOfTheWorkArea) {
    form.InnerSize(301, 201);
    form.CentreOnScreen();
    RECT work{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    RECT own{};
    GetWindowRect(form.hWnd(), &own);
    EXPECT_LE(std::abs((own.left - work.left) - (work.right - own.right)), 1);
    EXPECT_LE(std::abs((own.top - work.top) - (work.bottom - own.bottom)), 1);
}

TEST_F(FormTest, CaptionIsTheTitleOfTheWindow) {
    EXPECT_EQ(form.Caption(), u"Test");
    form.Caption(u"Größe 中");
    EXPECT_EQ(form.Caption(), u"Größe 中");
}

TEST_F(FormTest, TheBackgroundIsTheBackColour) {
    form.BackColor(0xFFFFFF);
    Show();
    EXPECT_EQ(Grab(form.hWnd()).At(300, 200), 0xFFFFFF);
    form.BackColor(0x0000FF);
    EXPECT_EQ(Grab(form.hWnd()).At(300, 200), 0x0000FF);
    PixelCanvas canvas(600, 400, 0);
    SendMessageW(form.hWnd(), WM_PRINTCLIENT, reinterpret_cast<WPARAM>(canvas.Dc()), PRF_CLIENT);
    EXPECT_EQ(canvas.At(300, 200), 0x0000FF);
}

TEST_F(FormTest, ClosingAsksFirstAndThenEndsAllControls) {
    auto& probe = form.Add<ProbeControl>(u"Probe1", {0, 0, 50, 20});
    std::vector<std::string> journal;
    probe.journal = &journal;
    probe.sNameInJournal = "probe";
    bool bRefuse = true;
    form.QueryUnload.Add([&](bool& Cancel) {
        journal.emplace_back("query");
        Cancel = bRefuse;
    });
    form.Unload.Add([&] { journal.emplace_back("unload"); });
    form.Close();
    EXPECT_FALSE(form.IsClosed());
    bRefuse = false;
    SendMessageW(form.hWnd(), WM_CLOSE, 0, 0);
    EXPECT_TRUE(form.IsClosed());
    EXPECT_THAT(journal, ElementsAre("query", "query", "unload", "probe Terminate"));
    EXPECT_TRUE(form.Controls().empty());
    EXPECT_EQ(form.Find(u"Probe1"), nullptr);
    form.Close();
    form.Show();
    form.InnerSize(10, 10);
    EXPECT_FALSE(form.Visible());
    EXPECT_EQ(NumberRaisedBy([this] {
                  form.Add<ProbeControl>(u"late", {0, 0, 1, 1});
              }),
              InvalidProcedureCall().Number());
}

TEST_F(FormTest, RunDeliversMessagesUntilTheFormIsClosed) {
    auto& probe = form.Add<ProbeControl>(u"Probe1", {0, 0, 50, 20});
    probe.Click.Add([this] { form.Close(); });
    PostMessageW(probe.hwnd(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 3));
    PostMessageW(probe.hwnd(), WM_LBUTTONUP, 0, MAKELPARAM(3, 3));
    form.Run();
    EXPECT_TRUE(form.IsClosed());
}

TEST_F(FormTest, RunPassesOnARequestToQuit) {
    PostQuitMessage(7);
    form.Run();
    EXPECT_FALSE(form.IsClosed());
    MSG message{};
    ASSERT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(message.wParam, 7U);
}

TEST_F(FormTest, ControlsAreFoundByNameWithoutRegardToCase) {
    auto& probe = form.Add<ProbeControl>(u"btnOp", {0, 0, 50, 20});
    EXPECT_EQ(form.Find(u"BTNOP"), &probe);
    EXPECT_EQ(form.Find(u"btnNo"), nullptr);
}

TEST_F(FormTest, RemovingAFrameRemovesWhatStandsOnIt) {
    auto& frame = form.Add<ProbeFrame>(u"Frame", {10, 60, 200, 100});
    form.Add<ProbeControl>(u"Inner", {150, 300, 600, 225}, &frame);
    auto& other = form.Add<ProbeControl>(u"Other", {0, 0, 50, 20});
    form.Remove(frame);
    EXPECT_THAT(form.Controls(), ElementsAre(&other));
    EXPECT_EQ(other.Host().Extender().TabIndex(), 0);
}

TEST_F(FormTest, OnlyAControlOfThisFormThatHoldsOthersIsAContainer) {
    auto& probe = form.Add<ProbeControl>(u"Probe1", {0, 0, 50, 20});
    Form other(u"Other");
    auto& strange = other.Add<ProbeFrame>(u"Frame", {0, 0, 100, 100});
    for (const Control* container : {static_cast<Control*>(&probe), static_cast<Control*>(&strange)})
        EXPECT_EQ(NumberRaisedBy([&] {
                      form.Add<ProbeControl>(u"x", {0, 0, 1, 1}, container);
                  }),
                  InvalidProcedureCall().Number());
}

TEST_F(FormTest, TwoHundredControlsStandAndPaintOnceEach) {
    std::vector<ProbeControl*> probes;
    for (int n = 0; n < 200; ++n)
        probes.push_back(&form.Add<ProbeControl>(
            u"Probe", {static_cast<float>(n % 20 * 30), static_cast<float>(n / 20 * 40), 28, 38}));
    Show();
    int nPaints = 0;
    for (const ProbeControl* probe : probes)
        nPaints += probe->nPaints;
    EXPECT_EQ(nPaints, 200);
    const WindowPixels pixels = Grab(form.hWnd());
    EXPECT_EQ(pixels.At(599 - 3, 399 - 3), 0xC0C0C0);
    EXPECT_EQ(probes[199]->Host().Extender().TabIndex(), 199);
    for (int n = 0; n < 200; n += 2)
        form.Remove(*probes[static_cast<std::size_t>(n)]);
    EXPECT_EQ(form.Controls().size(), 100U);
    EXPECT_EQ(probes[199]->Host().Extender().TabIndex(), 99);
}

TEST_F(FormTest, ANewResolutionKeepsAllSizesInUnits) {
    form.ScaleMode(ScaleUnit::Twips);
    form.Font(OleFont::Create(u"Tahoma", 9));
    auto& frame = form.Add<ProbeFrame>(u"Frame", {150, 150, 3000, 3000});
    auto& probe = form.Add<ProbeControl>(u"Probe1", {150, 300, 1500, 450}, &frame);
    Show();
    const LONG lBefore = [&] {
        TEXTMETRICW metrics{};
        GetTextMetricsW(probe.Host().hDC(), &metrics);
        return metrics.tmHeight;
    }();
    const RECT suggested{30, 30, 1000, 700};
    SendMessageW(form.hWnd(), WM_DPICHANGED, MAKEWPARAM(192, 192), reinterpret_cast<LPARAM>(&suggested));
    EXPECT_EQ(form.Dpi(), 192);
    EXPECT_EQ(probe.Host().ScaleWidth(), 200.0F);
    EXPECT_EQ(probe.Host().ScaleHeight(), 60.0F);
    EXPECT_EQ(frame.Host().ScaleWidth(), 400.0F);
    EXPECT_EQ(probe.Host().Width(), 1500.0F);
    EXPECT_EQ(probe.Host().ScaleX(1500, ScaleUnit::Twips, ScaleUnit::Pixels), 200.0F);
    RECT own{};
    GetWindowRect(form.hWnd(), &own);
    EXPECT_TRUE(EqualRect(&own, &suggested));
    TEXTMETRICW metrics{};
    GetTextMetricsW(probe.Host().hDC(), &metrics);
    EXPECT_GT(metrics.tmHeight, lBefore * 3 / 2);
    EXPECT_NEAR(probe.Font().Size(), 9, 0.4);
    auto& late = form.Add<ProbeControl>(u"Probe2", {0, 0, 1500, 450});
    EXPECT_EQ(late.Host().ScaleWidth(), 200.0F);
    TEXTMETRICW ofLate{};
    GetTextMetricsW(late.Host().hDC(), &ofLate);
    EXPECT_EQ(ofLate.tmHeight, metrics.tmHeight);
}

TEST_F(FormTest, ANewResolutionRepaintsControlsWhoseSizeInPixelsStays) {
    auto& probe = form.Add<ProbeControl>(u"Probe1", {10, 10, 200, 60});
    probe.Caption(u"caption");
    Show();
    const auto before = Grab(probe).All();
    probe.TakeNotes();
    probe.nPaints = 0;
    SendMessageW(form.hWnd(), WM_DPICHANGED, MAKEWPARAM(192, 192), 0);
    Pump();
    EXPECT_EQ(probe.Host().ScaleWidth(), 200.0F);
    EXPECT_THAT(probe.TakeNotes(), ElementsAre("AmbientChanged"));
    EXPECT_EQ(probe.nPaints, 1);
    EXPECT_NE(Grab(probe).All(), before);
}

TEST_F(FormTest, TheDefaultFontIsNotSavedAfterANewResolution) {
    auto& early = form.Add<ProbeControl>(u"Probe1", {10, 10, 200, 60});
    SendMessageW(form.hWnd(), WM_DPICHANGED, MAKEWPARAM(144, 144), 0);
    auto& late = form.Add<ProbeControl>(u"Probe2", {10, 80, 200, 60});
    for (ProbeControl* probe : {&early, &late}) {
        PropertyBag bag;
        probe->OnWriteProperties(bag);
        EXPECT_FALSE(bag.Contains(u"Font"));
        probe->Font(OleFont::Create(u"Tahoma", 14));
        probe->OnWriteProperties(bag);
        EXPECT_TRUE(bag.Contains(u"Font"));
    }
    form.Font(OleFont::Create(u"Tahoma", 8));
    auto& last = form.Add<ProbeControl>(u"Probe3", {10, 150, 200, 60});
    PropertyBag bag;
    last.OnWriteProperties(bag);
    EXPECT_FALSE(bag.Contains(u"Font"));
}

TEST_F(FormTest, NewSystemColoursRepaintEveryControl) {
    auto& frame = form.Add<ProbeFrame>(u"Frame", {10, 60, 200, 100});
    auto& inner = form.Add<ProbeControl>(u"Inner", {150, 300, 600, 225}, &frame);
    Show();
    frame.nPaints = inner.nPaints = 0;
    SendMessageW(form.hWnd(), WM_SYSCOLORCHANGE, 0, 0);
    Pump();
    EXPECT_EQ(frame.nPaints, 1);
    EXPECT_EQ(inner.nPaints, 1);
}

TEST_F(FormTest, ANewFontOfTheFormIsAnAmbientChange) {
    auto& probe = form.Add<ProbeControl>(u"Probe1", {0, 0, 50, 20});
    probe.TakeNotes();
    form.Font(OleFont::Create(u"Tahoma", 12));
    EXPECT_THAT(probe.TakeNotes(), ElementsAre("AmbientChanged"));
    EXPECT_EQ(probe.Host().Ambient().Font().Name(), u"Tahoma");
    EXPECT_EQ(probe.Font().Name(), u"MS Sans Serif");
}

TEST_F(FormTest, ALoopOutsideTheFormDoesItsDialogKeysToo) {
    auto& first = form.Add<ProbeControl>(u"First", {0, 0, 50, 20});
    auto& second = form.Add<ProbeControl>(u"Second", {0, 30, 50, 20});
    Show();
    EXPECT_EQ(form.ActiveControl(), &first);
    PostMessageW(first.hwnd(), WM_KEYDOWN, VK_TAB, 0);
    DoEvents();
    EXPECT_EQ(form.ActiveControl(), &second);
}

TEST_F(FormTest, ResizeIsRaised) {
    int nResizes = 0;
    form.Resize.Add([&nResizes] { ++nResizes; });
    form.InnerSize(300, 200);
    EXPECT_EQ(nResizes, 1);
}

} // namespace

} // namespace orvanta::testing
