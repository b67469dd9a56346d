#include "tests/controls/support/FormFixture.h"
#include "tests/controls/support/ProbeControl.h"

#include "plumbing/WideText.h"

#include <gmock/gmock.h>

namespace orvanta::testing {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class WindowHostTest : public FormFixture {
protected:
    WindowHostTest() : probe(form.Add<ProbeControl>(u"Probe1", {10, 20, 100, 30})), host(*form.HostOf(probe)) {}

    std::u16string WindowText() const {
        wchar_t text[100] = {};
        GetWindowTextW(probe.hwnd(), text, 100);
        return TextOfWide(text);
    }

    ProbeControl& probe;
    WindowHost& host;
};

TEST_F(WindowHostTest, AFreshControlGetsItsPropertiesThenItsSizeThenPaints) {
    EXPECT_THAT(probe.TakeNotes(), ElementsAre("InitProperties", "Resize"));
    EXPECT_EQ(probe.nPaints, 0);
    Show();
    EXPECT_EQ(probe.nPaints, 1);
    EXPECT_EQ(host.ScaleWidth(), 100.0F);
    EXPECT_EQ(host.ScaleHeight(), 30.0F);
    EXPECT_EQ(Grab(probe).At(1, 1), 0xC0C0C0);
    EXPECT_EQ(Grab(form.hWnd()).At(10, 20), 0xC0C0C0);
    EXPECT_NE(Grab(form.hWnd()).At(9, 20), 0xC0C0C0);
}

TEST_F(WindowHostTest, AThousandSettersGiveOnePaint) {
    Show();
    probe.nPaints = 0;
    for (int n = 0; n < 1000; ++n)
        probe.BackColor(n);
    EXPECT_EQ(probe.nPaints, 0);
    Pump();
    EXPECT_EQ(probe.nPaints, 1);
    EXPECT_EQ(Grab(probe).At(1, 1), 999);
}

TEST_F(WindowHostTest, PrintingAndPaintingGiveTheSamePixels) {
    probe.Caption(u"Print me");
    Show();
    PixelCanvas canvas(100, 30, 0);
    SendMessageW(probe.hwnd(), WM_PRINTCLIENT, reinterpret_cast<WPARAM>(canvas.Dc()), PRF_CLIENT);
    EXPECT_EQ(canvas.Pixels(), Grab(probe).All());
}

TEST_F(WindowHostTest, PrintingLeavesTheForeignDeviceContextAsItWas) {
    PixelCanvas canvas(100, 30, 0);
    const COLORREF before = SetTextColor(canvas.Dc(), 0x123456);
    SetTextColor(canvas.Dc(), before);
    HGDIOBJ font = GetCurrentObject(canvas.Dc(), OBJ_FONT);
    SendMessageW(probe.hwnd(), WM_PRINTCLIENT, reinterpret_cast<WPARAM>(canvas.Dc()), PRF_CLIENT);
    EXPECT_EQ(GetTextColor(canvas.Dc()), before);
    EXPECT_EQ(GetCurrentObject(canvas.Dc(), OBJ_FONT), font);
    EXPECT_EQ(GetBkMode(canvas.Dc()), OPAQUE);
}

TEST_F(WindowHostTest, TheOwnDeviceContextKeepsFontAndTextColour) {
    Show();
    host.ForeColor(0x0000FF);
    const WindowDc dc(probe.hwnd());
    EXPECT_EQ(dc.Get(), host.hDC());
    EXPECT_EQ(GetTextColor(dc.Get()), 0x0000FFU);
    EXPECT_EQ(GetCurrentObject(dc.Get(), OBJ_FONT), static_cast<HGDIOBJ>(host.Font().hFont()));
    EXPECT_EQ(GetBkMode(dc.Get()), TRANSPARENT);
    const OleFont font = OleFont::Create(u"Tahoma", 20);
    host.Font(font);
    EXPECT_EQ(GetCurrentObject(host.hDC(), OBJ_FONT), static_cast<HGDIOBJ>(font.hFont()));
}

TEST_F(WindowHostTest, ASystemColourIsResolvedWhenItIsSelected) {
    host.ForeColor(kSystemGrayText);
    EXPECT_EQ(host.ForeColor(), kSystemGrayText);
    EXPECT_EQ(GetTextColor(host.hDC()), GetSysColor(COLOR_GRAYTEXT));
}

TEST_F(WindowHostTest, NoFontBecomesTheAmbientOne) {
    host.Font({});
    EXPECT_TRUE(host.Font().IsEqual(form.Font()));
    EXPECT_NE(host.Font().Object(), form.Font().Object());
}

TEST_F(WindowHostTest, ARetainedImageIsShownWithoutAskingTheControl) {
    Show();
    probe.nPaints = 0;
    host.BackColor(0x00FFFF);
    host.AutoRedraw(true);
    EXPECT_TRUE(host.AutoRedraw());
    FillOrFrame(host.hDC(), {10, 10, 20, 20}, 0x0000FF, true);
    host.Refresh();
    const WindowPixels pixels(probe.hwnd());
    EXPECT_EQ(pixels.At(15, 15), 0x0000FF);
    EXPECT_EQ(pixels.At(0, 0), 0x00FFFF);
    InvalidateRect(probe.hwnd(), nullptr, TRUE);
    Pump();
    EXPECT_EQ(probe.nPaints, 0);
    EXPECT_EQ(WindowPixels(probe.hwnd()).At(15, 15), 0x0000FF);
    host.AutoRedraw(false);
    host.Refresh();
    EXPECT_EQ(probe.nPaints, 1);
}

TEST_F(WindowHostTest, ARetainedImageKeepsItsContentWhenTheSizeChanges) {
    host.BackColor(0x00FFFF);
    host.AutoRedraw(true);
    Show();
    FillOrFrame(host.hDC(), {0, 0, 100, 30}, 0x0000FF, true);
    host.ForeColor(0x00FF00);
    host.Size(150, 20);
    EXPECT_EQ(GetTextColor(host.hDC()), 0x00FF00U);
    host.Refresh();
    const WindowPixels pixels(probe.hwnd());
    EXPECT_EQ(pixels.At(99, 19), 0x0000FF);
    EXPECT_EQ(pixels.At(100, 5), 0x00FFFF);
    EXPECT_EQ(pixels.Width(), 150);
}

TEST_F(WindowHostTest, APictureLiesUnderEachPaint) {
    probe.duringPaint = nullptr;
    clsMEMDC surface;
    surface.CreateDC(20, 10, TRANSPARENT);
    surface.DrawBackColor(0xFF0000);
    host.Picture(surface.Picture());
    PixelCanvas canvas(100, 30, 0x00FF00);
    probe.bBlank = true;
    SendMessageW(probe.hwnd(), WM_PRINTCLIENT, reinterpret_cast<WPARAM>(canvas.Dc()), PRF_CLIENT);
    EXPECT_EQ(canvas.At(19, 9), 0xFF0000);
    EXPECT_EQ(canvas.At(20, 9), 0x00FF00);
    host.Picture({});
    canvas.Clear(0x00FF00);
    SendMessageW(probe.hwnd(), WM_PRINTCLIENT, reinterpret_cast<WPARAM>(canvas.Dc()), PRF_CLIENT);
    EXPECT_EQ(canvas.At(5, 5), 0x00FF00);
}

TEST_F(WindowHostTest, TheBackgroundIsNotErasedBeforeAPaint) {
    Show();
    PixelCanvas canvas(100, 30, 0x00FF00);
    EXPECT_EQ(SendMessageW(probe.hwnd(), WM_ERASEBKGND, reinterpret_cast<WPARAM>(canvas.Dc()), 0), 1);
    EXPECT_EQ(canvas.At(5, 5), 0x00FF00);
}

TEST_F(WindowHostTest, AClickIsPressReleaseClickForEveryButton) {
    Show();
    probe.TakeNotes();
    Click(probe, 5, 5);
    RightClick(probe, 8, 8);
    MoveTo(probe, 20, 20);
    Mouse(MOUSEEVENTF_MIDDLEDOWN);
    Mouse(MOUSEEVENTF_MIDDLEUP);
    EXPECT_THAT(probe.TakeNotes(), ElementsAre("MouseDown 1 0", "MouseUp 1 0", "Click", "MouseDown 2 0", "MouseUp 2 0",
                                               "Click", "MouseDown 4 0", "MouseUp 4 0", "Click"));
}

TEST_F(WindowHostTest, TheSecondPressOfADoubleClickIsDblClickAlone) {
    Show();
    probe.TakeNotes();
    NoDoubleClick();
    DoubleClick(probe, 5, 5);
    EXPECT_THAT(probe.TakeNotes(), ElementsAre("MouseDown 1 0", "MouseUp 1 0", "Click", "DblClick", "MouseUp 1 0"));
}

TEST_F(WindowHostTest, AReleaseOutsideReachesTheControlAndIsNoClick) {
    Show();
    probe.TakeNotes();
    NoDoubleClick();
    MoveTo(probe, 5, 5);
    Mouse(MOUSEEVENTF_LEFTDOWN);
    EXPECT_EQ(GetCapture(), probe.hwnd());
    float X = 0;
    probe.MouseUp.Add([&X](auto&, auto&, float& x, auto&) { X = x; });
    MoveTo(probe, 300, 5);
    Mouse(MOUSEEVENTF_LEFTUP);
    EXPECT_THAT(probe.TakeNotes(), ElementsAre("MouseDown 1 0", "MouseUp 1 0"));
    EXPECT_EQ(X, 300.0F);
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(WindowHostTest, MovesCarryTheSumOfTheButtonsAndShiftKeys) {
    Show();
    std::vector<std::string> moves;
    probe.MouseMove.Add([&](std::int16_t& Button, std::int16_t& Shift, float& X, float& Y) {
        moves.push_back(std::to_string(Button) + " " + std::to_string(Shift) + " " +
                        std::to_string(static_cast<int>(X)) + " " + std::to_string(static_cast<int>(Y)));
    });
    SendMessageW(probe.hwnd(), WM_MOUSEMOVE, MK_LBUTTON | MK_MBUTTON | MK_SHIFT | MK_CONTROL, MAKELPARAM(-3, 7));
    EXPECT_THAT(moves, ElementsAre("5 3 -3 7"));
}

TEST_F(WindowHostTest, KeysComeWithTheirShiftKeys) {
    Show();
    probe.TakeNotes();
    PressWith(VK_SHIFT, 'A');
    EXPECT_THAT(probe.TakeNotes(),
                ElementsAre("KeyDown 16 1", "KeyDown 65 1", "KeyPress 65", "KeyUp 65 1", "KeyUp 16 0"));
}

TEST_F(WindowHostTest, TypedTextArrivesAsCodeUnits) {
    Show();
    std::u16string sTyped;
    probe.KeyPress.Add([&sTyped](std::int16_t& KeyAscii) { sTyped.push_back(static_cast<char16_t>(KeyAscii)); });
    Type(u"aé€Ж中\U0001F600");
    EXPECT_EQ(sTyped, u"aé€Ж中\U0001F600");
}

TEST_F(WindowHostTest, TheWindowTextFollowsTheCaption) {
    EXPECT_EQ(WindowText(), u"Probe1");
    probe.Caption(u"Größe 中");
    EXPECT_EQ(WindowText(), u"Größe 中");
    PropertyBag bag;
    bag.WriteProperty(u"Caption", u"loaded");
    auto& other = form.Load<ProbeControl>(u"Probe2", {10, 60, 100, 30}, bag);
    wchar_t text[100] = {};
    GetWindowTextW(other.hwnd(), text, 100);
    EXPECT_STREQ(text, L"loaded");
}

TEST_F(WindowHostTest, ThePointerIsTheOneOfMousePointer) {
    Show();
    MoveTo(probe, 5, 5);
    probe.MousePointer(2);
    SendMessageW(probe.hwnd(), WM_SETCURSOR, reinterpret_cast<WPARAM>(probe.hwnd()),
                 MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_CROSS));
    probe.MousePointer(11);
    SendMessageW(probe.hwnd(), WM_SETCURSOR, reinterpret_cast<WPARAM>(probe.hwnd()),
                 MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_WAIT));
    probe.MousePointer(0);
    SendMessageW(probe.hwnd(), WM_SETCURSOR, reinterpret_cast<WPARAM>(probe.hwnd()),
                 MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_ARROW));
}

TEST_F(WindowHostTest, Pointer99IsTheOwnIcon) {
    const OlePicture icon = OlePicture::OfIcon(CopyIcon(LoadIconW(nullptr, IDI_APPLICATION)));
    probe.MouseIcon(icon);
    probe.MousePointer(99);
    SendMessageW(probe.hwnd(), WM_SETCURSOR, reinterpret_cast<WPARAM>(probe.hwnd()),
                 MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    EXPECT_EQ(static_cast<HGDIOBJ>(GetCursor()), icon.Handle());
    SetCursor(LoadCursorW(nullptr, IDC_ARROW));
}

TEST_F(WindowHostTest, PlacesAreInTheUnitsOfTheContainer) {
    form.ScaleMode(ScaleUnit::Twips);
    auto& twips = form.Add<ProbeControl>(u"Twips", {3510, 5100, 1665, 405});
    RECT rect{};
    GetWindowRect(twips.hwnd(), &rect);
    MapWindowPoints(nullptr, form.hWnd(), reinterpret_cast<POINT*>(&rect), 2);
    EXPECT_EQ(rect.left, 234);
    EXPECT_EQ(rect.top, 340);
    EXPECT_EQ(rect.right - rect.left, 111);
    EXPECT_EQ(rect.bottom - rect.top, 27);
    EXPECT_EQ(twips.Host().Width(), 1665.0F);
    EXPECT_EQ(twips.Host().ScaleX(1665, ScaleUnit::Twips, ScaleUnit::Pixels), 111.0F);
    EXPECT_EQ(twips.Host().Extender().Left(), 3510.0F);
}

TEST_F(WindowHostTest, ControlsOnAFrameStandInItsTwips) {
    auto& frame = form.Add<ProbeFrame>(u"Frame", {10, 60, 200, 100});
    auto& inner = form.Add<ProbeControl>(u"Inner", {150, 300, 600, 225}, &frame);
    RECT rect{};
    GetWindowRect(inner.hwnd(), &rect);
    MapWindowPoints(nullptr, frame.hwnd(), reinterpret_cast<POINT*>(&rect), 2);
    EXPECT_EQ(rect.left, 10);
    EXPECT_EQ(rect.top, 20);
    EXPECT_EQ(rect.right, 50);
    EXPECT_EQ(rect.bottom, 35);
    EXPECT_EQ(GetParent(inner.hwnd()), frame.hwnd());
    ControlContainer& container = inner.Host().Extender().Container();
    EXPECT_EQ(container.ContainerKind(), ControlContainer::Kind::Other);
    EXPECT_EQ(container.ScaleMode(), ScaleUnit::Twips);
    EXPECT_EQ(container.ContainerWindow(), frame.hwnd());
    EXPECT_EQ(probe.Host().Extender().Container().ContainerKind(), ControlContainer::Kind::Form);
}

TEST_F(WindowHostTest, SizeGivesOneResizeAndWidthWithHeightTwo) {
    probe.TakeNotes();
    host.Size(50, 60);
    EXPECT_THAT(probe.TakeNotes(), ElementsAre("Resize"));
    host.Width(70);
    host.Height(80);
    EXPECT_THAT(probe.TakeNotes(), ElementsAre("Resize", "Resize"));
    host.Extender().Move(1, 2, 70, 80);
    host.Extender().Left(5);
    EXPECT_THAT(probe.TakeNotes(), IsEmpty());
    EXPECT_EQ(host.ScaleWidth(), 70.0F);
    EXPECT_EQ(host.ScaleHeight(), 80.0F);
}

TEST_F(WindowHostTest, AMoveFromOutsideChangesThePlaceInUnits) {
    form.ScaleMode(ScaleUnit::Twips);
    SetWindowPos(probe.hwnd(), nullptr, 7, 9, 40, 30, SWP_NOZORDER);
    EXPECT_EQ(host.Extender().Left(), 105.0F);
    EXPECT_EQ(host.Extender().Top(), 135.0F);
    EXPECT_EQ(host.Extender().Width(), 600.0F);
}

TEST_F(WindowHostTest, NegativeSizesCountAsNone) {
    host.Size(-5, 10);
    EXPECT_EQ(host.ScaleWidth(), 0.0F);
}

TEST_F(WindowHostTest, ShowingAndHidingIsToldWhileTheFormIsVisible) {
    Show();
    EXPECT_EQ(probe.TakeNotes().at(2), "Show");
    host.Extender().Visible(false);
    host.Extender().Visible(false);
    host.Extender().Visible(true);
    EXPECT_FALSE(probe.TakeNotes().empty());
    form.Hide();
    const std::vector<std::string> notes = probe.TakeNotes();
    EXPECT_EQ(std::count(notes.begin(), notes.end(), "Hide"), 1);
}

TEST_F(WindowHostTest, AControlWithoutAFaceIsSeenInDesignModeOnly) {
    struct Faceless final : ProbeControl {
        explicit Faceless(ControlHost& itsHost) : ProbeControl(itsHost) {
            traits.bHasFace = false;
            traits.bCanGetFocus = false;
        }
    };
    auto& run = form.Add<Faceless>(u"Bag1", {0, 0, 20, 20});
    form.UserMode(false);
    auto& design = form.Add<Faceless>(u"Bag2", {0, 30, 20, 20});
    Show();
    EXPECT_FALSE(IsWindowVisible(run.hwnd()));
    EXPECT_TRUE(IsWindowVisible(design.hwnd()));
}

TEST_F(WindowHostTest, UserModeIsAskedOfTheAmbientAtEachUse) {
    EXPECT_TRUE(host.Ambient().UserMode());
    probe.TakeNotes();
    host.UserMode(false);
    EXPECT_FALSE(host.Ambient().UserMode());
    EXPECT_THAT(probe.TakeNotes(), ElementsAre("AmbientChanged"));
    EXPECT_EQ(host.Ambient().DisplayName(), u"Probe1");
}

TEST_F(WindowHostTest, InDesignModeNoControlTakesTheFocusAndTheMouseStillReachesIt) {
    host.UserMode(false);
    Show();
    probe.TakeNotes();
    NoDoubleClick();
    Click(probe, 5, 5);
    EXPECT_EQ(form.ActiveControl(), nullptr);
    EXPECT_THAT(probe.TakeNotes(), ElementsAre("MouseDown 1 0", "MouseUp 1 0", "Click"));
}

TEST_F(WindowHostTest, ADisabledControlGetsNoMouse) {
    probe.Enabled(false);
    Show();
    probe.TakeNotes();
    Click(probe, 5, 5);
    EXPECT_THAT(probe.TakeNotes(), IsEmpty());
}

TEST_F(WindowHostTest, ADisabledFrameDisablesWhatStandsOnItAndLeavesItsFlag) {
    auto& frame = form.Add<ProbeFrame>(u"Frame", {10, 60, 200, 100});
    auto& inner = form.Add<ProbeControl>(u"Inner", {150, 300, 600, 225}, &frame);
    Show();
    frame.Enabled(false);
    inner.TakeNotes();
    Click(inner, 5, 5);
    EXPECT_THAT(inner.TakeNotes(), IsEmpty());
    EXPECT_TRUE(inner.Enabled());
    EXPECT_FALSE(form.HostOf(inner)->CanTakeFocus());
}

} // namespace

} // namespace orvanta::testing
