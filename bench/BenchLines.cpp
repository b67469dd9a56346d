// Smooth lines into the memory of a picture, beside cairo stroking the same lines on an image surface with its own
// antialiasing.
#include "bench/support/Measure.h"
#include "drawing/LinePlotters.h"
#include "drawing/LineWalk.h"

#include <cairo/cairo.h>

#include <array>
#include <cmath>
#include <cstdio>
#include <vector>

namespace {

using namespace orvanta;

constexpr int kSize = 512;
constexpr int kLines = 360;

// A star of lines, one per degree.
std::vector<std::array<std::int16_t, 4>> Star(double dLength) {
    std::vector<std::array<std::int16_t, 4>> lines;
    for (int n = 0; n < kLines; ++n) {
        const double t = n * 3.14159265 / 180;
        lines.push_back({kSize / 2, kSize / 2, static_cast<std::int16_t>(kSize / 2 + dLength * std::cos(t)),
                         static_cast<std::int16_t>(kSize / 2 + dLength * std::sin(t))});
    }
    return lines;
}

void Compare(int length) {
    const auto lines = Star(length);
    std::vector<std::uint8_t> ours(4 * kSize * kSize, 255);
    const PixelBits bits{ours.data(), kSize, kSize, 4 * kSize};
    cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_RGB24, kSize, kSize);
    cairo_t* context = cairo_create(surface);
    cairo_set_source_rgb(context, 0.8, 0.2, 0.1);
    cairo_set_line_width(context, 1);

    const bench::Pair best = bench::BestPair(
        200,
        [&] {
            for (const auto& line : lines) {
                BitsPlotter<4> plotter(bits, 0x1A33CCu);
                WalkLine(plotter, line[0], line[1], line[2], line[3], 255);
            }
        },
        [&] {
            for (const auto& line : lines) {
                cairo_move_to(context, line[0] + 0.5, line[1] + 0.5);
                cairo_line_to(context, line[2] + 0.5, line[3] + 0.5);
                cairo_stroke(context);
            }
        });
    bench::Keep(ours[0]);
    cairo_destroy(context);
    cairo_surface_destroy(surface);
    std::printf("RATIO | LineGP, %d pixels | ours %.0f ns | peer cairo %.0f ns | ratio %.1f | wanted at least 4\n",
                length, best.dOurs * 1e9 / kLines, best.dPeer * 1e9 / kLines, best.dPeer / best.dOurs);
}

} // namespace

int main() {
    for (const int length : {10, 50, 200})
        Compare(length);
}
