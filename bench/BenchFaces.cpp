// DrawFace beside one control of the platform, and beside the plain way with a pen for each row.
#include "plumbing/FaceDrawing.h"
#include "plumbing/SharedShapes.h"
#include "tests/reference/PlainFace.h"
#include "tests/support/PixelCanvas.h"

#include <windows.h>

#include <uxtheme.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdio>

namespace {

using orvanta::OleColor;
using orvanta::testing::PlainBox;

constexpr RECT kRect{0, 0, 200, 30};
constexpr OleColor kBack = 0xD8C0A0;
constexpr OleColor kBorder = 0x806040;

// Microseconds for one call in one short run.
template<typename Call>
double ShortRun(const Call& call) {
    constexpr int kRounds = 60;
    LARGE_INTEGER frequency;
    LARGE_INTEGER begin;
    LARGE_INTEGER end;
    QueryPerformanceFrequency(&frequency);
    QueryPerformanceCounter(&begin);
    for (int n = 0; n < kRounds; ++n)
        call();
    GdiFlush();
    QueryPerformanceCounter(&end);
    return static_cast<double>(end.QuadPart - begin.QuadPart) * 1e6 / static_cast<double>(frequency.QuadPart) / kRounds;
}

// The best of many short runs in turn, so that a busy machine meets all calls alike.
template<typename... Calls>
std::array<double, sizeof...(Calls)> Microseconds(const Calls&... calls) {
    std::array<double, sizeof...(Calls)> best;
    best.fill(1e9);
    for (int nRun = 0; nRun < 25; ++nRun) {
        std::size_t i = 0;
        ((best[i] = std::min(best[i], ShortRun(calls)), ++i), ...);
    }
    return best;
}

// The platform, one pen for each row.
class PenPerRow final : public orvanta::testing::PlainSurface {
public:
    explicit PenPerRow(HDC dc) : m_dc(dc) {}
    void Set(int x, int y, OleColor c) override { orvanta::SetPixelOle(m_dc, x, y, c); }
    void Fill(int x1, int y1, int x2, int y2, OleColor c) override {
        orvanta::FillOrFrameCoords(m_dc, x1, y1, x2, y2, c, true);
    }
    void Frame(int x1, int y1, int x2, int y2, OleColor c) override {
        orvanta::FillOrFrameCoords(m_dc, x1, y1, x2, y2, c, false);
    }
    void BandDown(int x1, int y1, int x2, int y2, OleColor from, OleColor to) override {
        for (const OleColor c : orvanta::testing::PlainBand(from, to, y2 - y1)) {
            if (x1 == x2) {
                Set(x1, y1, c);
            } else {
                orvanta::DrawLineOle(m_dc, x1, y1, x2, y1, c, 1, PS_SOLID);
            }
            ++y1;
        }
    }
    void BandRight(int x1, int y1, int x2, int y2, OleColor from, OleColor to) override {
        for (const OleColor c : orvanta::testing::PlainBand(from, to, x2 - x1)) {
            if (y1 == y2) {
                Set(x1, y1, c);
            } else {
                orvanta::DrawLineOle(m_dc, x1, y1, x1, y2, c, 1, PS_SOLID);
            }
            ++x1;
        }
    }

private:
    HDC m_dc;
};

void Row(int style, const char* szForm, double dOurs, const char* szPeer, double dPeer) {
    std::printf(
        "RATIO | DrawFace style %d %s, 200 x 30 | ours %.1f us | peer %s %.1f us | ratio %.2f | wanted reported\n",
        style, szForm, dOurs, szPeer, dPeer, dPeer / dOurs);
}

// One button of the visual theme, where there is one.
double ThemedButton(HDC dc) {
    HMODULE library = LoadLibraryW(L"uxtheme.dll");
    if (!library) return 0;
    const auto open =
        reinterpret_cast<decltype(&OpenThemeData)>(reinterpret_cast<void*>(GetProcAddress(library, "OpenThemeData")));
    const auto draw = reinterpret_cast<decltype(&DrawThemeBackground)>(
        reinterpret_cast<void*>(GetProcAddress(library, "DrawThemeBackground")));
    const auto close =
        reinterpret_cast<decltype(&CloseThemeData)>(reinterpret_cast<void*>(GetProcAddress(library, "CloseThemeData")));
    if (!open || !draw || !close) return 0;
    HTHEME theme = open(nullptr, L"BUTTON");
    if (!theme) return 0;
    const double d = Microseconds([&] { draw(theme, dc, 1, 1, &kRect, nullptr); })[0];
    close(theme);
    return d;
}

} // namespace

int main() {
    const orvanta::testing::PixelCanvas canvas(200, 30, 0xFFFFFF);
    HDC dc = canvas.Dc();
    const auto control = [dc] {
        RECT rect = kRect;
        DrawFrameControl(dc, &rect, DFC_BUTTON, DFCS_BUTTONPUSH);
    };
    const double dTheme = ThemedButton(dc);
    if (dTheme == 0) std::printf("no visual theme here\n");

    const auto outline = [dc](const PlainBox& box, const std::function<void(int, int)>&) {
        orvanta::DrawRoundRect(dc, box.left, box.top, box.right, box.bottom, false, 0, kBorder, 1, PS_SOLID, 4);
    };
    PenPerRow plain(dc);
    bool bSame = true;
    for (int style = 0; style <= 8; ++style) {
        for (const bool bPressed : {false, true}) {
            const char* szForm = bPressed ? "pressed" : "rounded";
            const orvanta::testing::PlainFaceForm form{kBack, true,      kBorder, bPressed, false,
                                                       false, !bPressed, style,   kBack,    true};
            const auto ours = [&] {
                orvanta::DrawFace(dc, kRect, kBack, true, kBorder, bPressed, false, false, false, !bPressed, style, -1,
                                  true);
            };
            const auto theirs = [&] { PlainFace(plain, {0, 0, 200, 30}, form, outline); };
            ours();
            const auto pixels = canvas.Pixels();
            theirs();
            bSame = bSame && canvas.Pixels() == pixels;
            const auto [dOurs, dPlain, dControl] = Microseconds(ours, theirs, control);
            Row(style, szForm, dOurs, "pen per row", dPlain);
            Row(style, szForm, dOurs, "DrawFrameControl", dControl);
            if (dTheme != 0) Row(style, szForm, dOurs, "DrawThemeBackground", dTheme);
        }
    }
    if (!bSame) std::printf("the pixels differ from those of the plain way\n");
    return bSame ? 0 : 1;
}
