// Controls beside those of the system in the same run: making, showing and destroying one, painting one, and opening a
// form with many.
#include "bench/support/Measure.h"
#include "controls/basic/ctlUniButtonImageXP.h"
#include "controls/basic/ctlUniCheckXP.h"
#include "controls/basic/ctlUniFrameXP.h"
#include "controls/basic/ctlUniImage.h"
#include "controls/basic/ctlUniLabel.h"
#include "controls/basic/ctlUniLabelNoFlick.h"
#include "controls/hosting/Form.h"
#include "drawing/clsMEMDC.h"

#include <windows.h>

#include <array>
#include <cstdio>
#include <memory>
#include <string>

namespace {

using namespace orvanta;

constexpr int kWidth = 200;
constexpr int kHeight = 30;
constexpr char16_t kCaption[] = u"Next step";

// One kind of control and what a user would take instead.
struct Kind {
    const char* szName;
    const char* szPeer;
    Control& (*add)(Form& form, const ControlPlace& place);
    const wchar_t* szPeerClass;
    DWORD peerStyle;
};

template<typename ControlType>
Control& AddControl(Form& form, const ControlPlace& place) {
    PropertyBag bag;
    bag.WriteProperty(u"Caption", kCaption);
    return form.Load<ControlType>(u"ctl", place, bag);
}

// One picture for all, as a program shares its own.
const OlePicture& SharedPicture() {
    static const OlePicture picture = [] {
        clsMEMDC surface;
        surface.CreateDC(24, 24, TRANSPARENT);
        surface.DrawBackColor(0x80FF00);
        return surface.Picture();
    }();
    return picture;
}

Control& AddImage(Form& form, const ControlPlace& place) {
    auto& image = form.Load<ctlUniImage>(u"img", place, {});
    image.Picture(SharedPicture());
    return image;
}

constexpr std::array kKinds{
    Kind{"ctlUniButtonImageXP", "BUTTON", AddControl<ctlUniButtonImageXP>, L"BUTTON", BS_PUSHBUTTON | WS_TABSTOP},
    Kind{"ctlUniCheckXP", "BUTTON check box", AddControl<ctlUniCheckXP>, L"BUTTON", BS_AUTOCHECKBOX | WS_TABSTOP},
    Kind{"ctlUniLabel", "STATIC", AddControl<ctlUniLabel>, L"STATIC", SS_LEFT},
    Kind{"ctlUniLabelNoFlick", "STATIC", AddControl<ctlUniLabelNoFlick>, L"STATIC", SS_LEFT},
    Kind{"ctlUniFrameXP", "BUTTON group box", AddControl<ctlUniFrameXP>, L"BUTTON", BS_GROUPBOX},
    Kind{"ctlUniImage", "STATIC with a bitmap", AddImage, L"STATIC", SS_BITMAP | SS_CENTERIMAGE},
};

void Row(const std::string& sWhat, double dOurs, const char* szPeer, double dPeer, const char* szWanted) {
    std::printf("RATIO | %s | ours %.1f us | peer %s %.1f us | ratio %.2f | wanted %s\n", sWhat.c_str(), dOurs * 1e6,
                szPeer, dPeer * 1e6, dPeer / dOurs, szWanted);
}

void Pump() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
        DispatchMessageW(&message);
}

HWND MakePeer(const Kind& kind, HWND parent, int x, int y, HFONT font) {
    HWND window = CreateWindowExW(0, kind.szPeerClass, L"Next step", WS_CHILD | WS_VISIBLE | kind.peerStyle, x, y,
                                  kWidth, kHeight, parent, nullptr, nullptr, nullptr);
    SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    if (kind.peerStyle & SS_CENTERIMAGE) {
        SendMessageW(window, STM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(SharedPicture().Handle()));
    }
    return window;
}

void CompareOne(const Kind& kind) {
    Form form(u"Bench");
    form.ScaleMode(ScaleUnit::Pixels);
    form.InnerSize(600, 400);
    form.Show();
    Pump();
    HFONT font = form.Font().hFont();
    constexpr int kCalls = 20;
    const auto repeat = [](auto&& call) {
        return [call] {
            for (int n = 0; n < kCalls; ++n)
                call();
            GdiFlush();
        };
    };

    const bench::Pair life = bench::BestPair(30, repeat([&] {
                                                 Control& control = kind.add(form, {10, 10, kWidth, kHeight});
                                                 UpdateWindow(control.hwnd());
                                                 form.Remove(control);
                                             }),
                                             repeat([&] {
                                                 HWND window = MakePeer(kind, form.hWnd(), 10, 10, font);
                                                 UpdateWindow(window);
                                                 DestroyWindow(window);
                                             }));
    Row(std::string(kind.szName) + ": make, show, destroy", life.dOurs / kCalls, kind.szPeer, life.dPeer / kCalls,
        "reported");

    HWND ours = kind.add(form, {10, 10, kWidth, kHeight}).hwnd();
    HWND peer = MakePeer(kind, form.hWnd(), 10, 60, font);
    const auto repaint = [](HWND window) {
        InvalidateRect(window, nullptr, FALSE);
        UpdateWindow(window);
    };
    const bench::Pair paint = bench::BestPair(60, repeat([&] { repaint(ours); }), repeat([&] { repaint(peer); }));
    Row(std::string(kind.szName) + ": repaint, 200 x 30", paint.dOurs / kCalls, kind.szPeer, paint.dPeer / kCalls,
        "reported");
}

// A caption that changes all the time, from the call to the pixels.
void CompareCaptions() {
    Form form(u"Bench");
    form.ScaleMode(ScaleUnit::Pixels);
    form.InnerSize(600, 400);
    form.Show();
    Pump();
    auto& label = form.Load<ctlUniLabelNoFlick>(u"lbl", {10, 10, kWidth, kHeight}, {});
    HWND peer = CreateWindowExW(0, L"STATIC", L"", WS_CHILD | WS_VISIBLE, 10, 60, kWidth, kHeight, form.hWnd(), nullptr,
                                nullptr, nullptr);
    SendMessageW(peer, WM_SETFONT, reinterpret_cast<WPARAM>(form.Font().hFont()), FALSE);
    constexpr int kCalls = 50;
    const bench::Pair best = bench::BestPair(
        60,
        [&] {
            for (int n = 0; n < kCalls; ++n)
                label.Caption(n % 2 == 0 ? u"1,024 of 4,096" : u"1,025 of 4,096");
            GdiFlush();
        },
        [&] {
            for (int n = 0; n < kCalls; ++n) {
                SetWindowTextW(peer, n % 2 == 0 ? L"1,024 of 4,096" : L"1,025 of 4,096");
                UpdateWindow(peer);
            }
            GdiFlush();
        });
    std::printf("ctlUniLabelNoFlick: %.0f captions a second\n", kCalls / best.dOurs);
    Row("ctlUniLabelNoFlick: a caption drawn and shown", best.dOurs / kCalls, "STATIC", best.dPeer / kCalls,
        "2,000 a second: at most 500 us");
}

// All kinds in turn, 500 in all, from nothing to the last pixel.
void CompareForms() {
    constexpr int kControls = 500;
    constexpr int kColumns = 5;
    const auto placeOf = [](int n) { return POINT{n % kColumns * (kWidth + 2), n / kColumns * (kHeight + 2)}; };
    constexpr UINT kAll = RDW_UPDATENOW | RDW_ALLCHILDREN;

    WNDCLASSW plain{};
    plain.lpfnWndProc = DefWindowProcW;
    plain.lpszClassName = L"BenchPlainForm";
    plain.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    RegisterClassW(&plain);
    HFONT font = static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT));

    std::unique_ptr<Form> form;
    HWND peer = nullptr;
    bench::Pair best;
    for (int n = 0; n < 12; ++n) {
        best.dOurs = std::min(best.dOurs, bench::BestSeconds(1, [&] {
                                  form = std::make_unique<Form>(u"Bench");
                                  form->ScaleMode(ScaleUnit::Pixels);
                                  form->InnerSize(1010, 700);
                                  for (int i = 0; i < kControls; ++i) {
                                      const auto [x, y] = placeOf(i);
                                      kKinds[static_cast<std::size_t>(i) % kKinds.size()].add(
                                          *form, {static_cast<float>(x), static_cast<float>(y), kWidth, kHeight});
                                  }
                                  form->Show();
                                  RedrawWindow(form->hWnd(), nullptr, nullptr, kAll);
                                  GdiFlush();
                              }));
        form.reset();
        Pump();
        best.dPeer = std::min(best.dPeer, bench::BestSeconds(1, [&] {
                                  peer = CreateWindowExW(0, plain.lpszClassName, L"Bench", WS_OVERLAPPEDWINDOW, 0, 0,
                                                         1030, 740, nullptr, nullptr, nullptr, nullptr);
                                  for (int i = 0; i < kControls; ++i) {
                                      const auto [x, y] = placeOf(i);
                                      MakePeer(kKinds[static_cast<std::size_t>(i) % kKinds.size()], peer, x, y, font);
                                  }
                                  ShowWindow(peer, SW_SHOW);
                                  RedrawWindow(peer, nullptr, nullptr, kAll);
                                  GdiFlush();
                              }));
        DestroyWindow(peer);
        Pump();
    }
    Row("a form with 500 controls opens", best.dOurs, "500 of the system", best.dPeer, ">= 0.33");
}

} // namespace

int main() {
    for (const Kind& kind : kKinds)
        CompareOne(kind);
    CompareCaptions();
    CompareForms();
    return 0;
}
