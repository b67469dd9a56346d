// Pictures and smooth lines on off-screen surfaces, beside what the platform offers for the same: TransparentBlt for a
// keyed picture, GDI+ with antialiasing for lines and arcs.
#include "bench/support/Measure.h"
#include "drawing/clsLineGSMini.h"
#include "drawing/clsMEMDC.h"
#include "drawing/modCtlCommon_alphaImg.h"

#include <windows.h>

#include <objidl.h>

#include <gdiplus.h>

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <memory>

namespace {

using namespace orvanta;

constexpr int kPicture = 256;
constexpr int kSurface = 300;
constexpr COLORREF kKey = RGB(255, 0, 255);

// A quarter of the pixels have the key colour, in discs as a picture has them.
void DrawPicture(HDC dc) {
    for (int y = 0; y < kPicture; ++y) {
        for (int x = 0; x < kPicture; ++x) {
            const bool bHole = (x % 64 - 32) * (x % 64 - 32) + (y % 64 - 32) * (y % 64 - 32) < 18 * 18;
            SetPixelV(dc, x, y, bHole ? kKey : RGB(x, y, x ^ y));
        }
    }
}

void Report(const char* szName, const bench::Pair& best, double dCalls, const char* szPeer, const char* szWanted) {
    std::printf("RATIO | %s | ours %.2f us | peer %s %.2f us | ratio %.2f | wanted %s\n", szName,
                best.dOurs * 1e6 / dCalls, szPeer, best.dPeer * 1e6 / dCalls, best.dPeer / best.dOurs, szWanted);
}

void ComparePictures() {
    clsMEMDC target, source;
    target.CreateDC(kSurface, kSurface, TRANSPARENT);
    target.DrawBackColor(RGB(240, 240, 240));
    source.CreateDC(kPicture, kPicture, TRANSPARENT);
    DrawPicture(source.Hdc());
    clsMEMDC copy;
    copy.CloneFromHdc(source.Hdc());
    const OlePicture picture = copy.Picture();
    const RECT area{20, 20, 20 + kPicture, 20 + kPicture};
    constexpr int kCalls = 20;
    const auto peer = [&] {
        for (int n = 0; n < kCalls; ++n) {
            TransparentBlt(target.Hdc(), 20, 20, kPicture, kPicture, source.Hdc(), 0, 0, kPicture, kPicture, kKey);
        }
    };
    for (const bool bDisabled : {false, true}) {
        const bench::Pair best = bench::BestPair(
            60,
            [&] {
                for (int n = 0; n < kCalls; ++n) {
                    pvOverlapImage(target.Hdc(), area, bDisabled, picture, true, -1, -1, 0, 0,
                                   static_cast<std::int32_t>(kKey));
                }
            },
            peer);
        Report(bDisabled ? "pvOverlapImage keyed and greyed, 256 x 256" : "pvOverlapImage keyed, 256 x 256", best,
               kCalls, "TransparentBlt", "at least 1");
    }
    const bench::Pair grey = bench::BestPair(
        60,
        [&] {
            for (int n = 0; n < kCalls; ++n)
                pvOverlapImage(target.Hdc(), area, true, picture, false);
        },
        peer);
    Report("pvOverlapImage greyed, 256 x 256", grey, kCalls, "TransparentBlt", "at least 1");
}

void CompareLines() {
    clsDIBSection ours, theirs;
    for (clsDIBSection* section : {&ours, &theirs}) {
        section->CreateDC(kSurface, kSurface, 32);
        section->DrawBackColor(RGB(255, 255, 255));
    }
    Gdiplus::Graphics graphics(theirs.Hdc());
    graphics.SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
    const Gdiplus::Pen pen(Gdiplus::Color(255, 26, 51, 204), 1);
    const clsLineGSMini lines;
    const std::int32_t lColor = static_cast<std::int32_t>(RGB(26, 51, 204));
    constexpr int kCalls = 12;
    for (const int length : {20, 100}) {
        const auto each = [&](const auto& draw) {
            for (int n = 0; n < kCalls; ++n) {
                const double t = n * 0.5236 + 0.2;
                draw(static_cast<std::int16_t>(kSurface / 2 + length * std::cos(t)),
                     static_cast<std::int16_t>(kSurface / 2 + length * std::sin(t)));
            }
        };
        const bench::Pair best = bench::BestPair(
            40,
            [&] {
                each([&](std::int16_t x, std::int16_t y) {
                    lines.LineGP(ours.Hdc(), kSurface / 2, kSurface / 2, x, y, lColor, 255);
                });
            },
            [&] {
                each([&](std::int16_t x, std::int16_t y) {
                    graphics.DrawLine(&pen, kSurface / 2, kSurface / 2, int{x}, int{y});
                });
            });
        Report(length == 20 ? "LineGP, 20 pixels" : "LineGP, 100 pixels", best, kCalls, "GDI+", "at least 25");
    }
    for (const int radius : {20, 100}) {
        const bench::Pair best = bench::BestPair(
            40, [&] { lines.ArcGP(ours.Hdc(), kSurface / 2, kSurface / 2, radius, radius, 0.0f, 270.0f, lColor, 1); },
            [&] {
                graphics.DrawArc(&pen, kSurface / 2 - radius, kSurface / 2 - radius, 2 * radius, 2 * radius, -90.0f,
                                 270.0f);
            });
        Report(radius == 20 ? "ArcGP, radius 20" : "ArcGP, radius 100", best, 1, "GDI+", "at least 3");
    }
}

} // namespace

int main() {
    Gdiplus::GdiplusStartupInput input;
    ULONG_PTR token = 0;
    if (Gdiplus::GdiplusStartup(&token, &input, nullptr) != Gdiplus::Ok) {
        std::printf("GDI+ does not start\n");
        return 1;
    }
    ComparePictures();
    CompareLines();
    Gdiplus::GdiplusShutdown(token);
}
