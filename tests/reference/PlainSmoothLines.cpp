#include "tests/reference/PlainSmoothLines.h"

#include <cmath>
#include <cstdlib>

namespace orvanta::reference {

namespace {

void Splat(const PlainSurface& surface, std::uint32_t color, double x, double y) {
    const double px = x - 0.5, py = y - 0.5;
    const double ix = std::nearbyint(px), iy = std::nearbyint(py), jx = ix + 1, jy = std::nearbyint(py + 1);
    const double h1 = (ix + 0.5 - px) * 255, h2 = 255 - h1;
    const double w1 = iy + 0.5 - py, w2 = py + 1 - jy + 0.5;
    const auto plot = [&](double column, double row, double strength) {
        PlainPlotBlended(surface, color, static_cast<int>(column), static_cast<int>(row),
                         static_cast<int>(std::nearbyint(strength)));
    };
    plot(ix, iy, w1 * h1);
    plot(jx, iy, w1 * h2);
    plot(ix, jy, w2 * h1);
    plot(jx, jy, w2 * h2);
}

double StepOf(int radiusX, int radiusY, int thickness) {
    const int r = radiusX > radiusY ? radiusX : radiusY;
    const double s = thickness == 1 ? 0.5340707 : 1.0681413;
    return r == 0 ? s : s / std::fabs(r);
}

double Shifted(double d) {
    return std::trunc(d) == d ? d + 0.001 : d;
}

} // namespace

void PlainPlotBlended(const PlainSurface& surface, std::uint32_t color, int x, int y, int a) {
    if (a == 0) return;
    if (a >= 253) {
        surface.setPixel(x, y, color);
        return;
    }
    const std::uint32_t background = surface.getPixel(x, y);
    std::uint32_t result = 0;
    for (unsigned shift = 0; shift <= 16; shift += 8) {
        const int channel = static_cast<int>(background >> shift & 255), own = static_cast<int>(color >> shift & 255);
        result |= static_cast<std::uint32_t>((channel * (255 - a) + own * a) / 256) << shift;
    }
    surface.setPixel(x, y, result);
}

void PlainLineGP(const PlainSurface& surface, int x1, int y1, int x2, int y2, std::uint32_t color, int maxBlend) {
    const int dx = std::abs(x2 - x1), dy = std::abs(y2 - y1);
    const int sx = x2 - x1 < 0 ? -1 : 1, sy = y2 - y1 < 0 ? -1 : 1;
    if (dx + dy == 0) return;
    const auto plot = [&](int x, int y, int a) { PlainPlotBlended(surface, color, x, y, a); };
    if (dx <= dy) {
        const int f = dx * 85 / dy;
        plot(x1 - sx, y1 - sy, f);
        plot(x1, y1 - sy, 127);
        plot(x2 + sx, y2 + sy, f);
        plot(x2, y2 + sy, 127);
        int e = static_cast<int>(std::nearbyint(dy / 2.0)), x = x1, y = y1;
        for (int step = 0; step <= dy; ++step) {
            surface.setPixel(x, y, color);
            const int a = e * maxBlend / dy;
            plot(x - sx, y, maxBlend - a);
            plot(x + sx, y, a);
            e += dx;
            if (e >= dy) {
                e -= dy;
                x += sx;
            }
            y += sy;
        }
    } else {
        const int f = dy * 85 / dx;
        plot(x1 - sx, y1 - sy, f);
        plot(x1 - sx, y1, 127);
        plot(x2 + sx, y2 + sy, f);
        plot(x2 + sx, y2, 127);
        int e = static_cast<int>(std::nearbyint(dx / 2.0)), x = x1, y = y1;
        for (int step = 0; step <= dx; ++step) {
            surface.setPixel(x, y, color);
            const int a = e * maxBlend / dx;
            plot(x, y - sy, maxBlend - a);
            plot(x, y + sy, a);
            e += dy;
            if (e >= dx) {
                e -= dx;
                y += sy;
            }
            x += sx;
        }
    }
}

void PlainArcGP(const PlainSurface& surface, int x1, int y1, int radiusX, int radiusY, float startAngle,
                float stopAngle, std::uint32_t color, int thickness) {
    const double start = static_cast<double>(startAngle);
    double stop = static_cast<double>(stopAngle);
    if (stop < start) stop += 360;
    const double step = StepOf(radiusX, radiusY, thickness);
    for (double t = start * 0.017453289; t <= stop * 0.017453289; t += step) {
        const double x = Shifted(radiusX * std::cos(t - 1.570796)), y = Shifted(radiusY * std::sin(t - 1.570796));
        Splat(surface, color, x + x1, y + y1);
    }
}

void PlainCircleGP(const PlainSurface& surface, int x1, int y1, int radiusX, int radiusY, std::uint32_t color,
                   int thickness) {
    const double step = StepOf(radiusX, radiusY, thickness);
    for (double t = 0; t <= 1.570796; t += step) {
        const double x = Shifted(radiusX * std::cos(t - 1.570796)), y = Shifted(radiusY * std::sin(t - 1.570796));
        Splat(surface, color, x1 + x, y1 + y);
        Splat(surface, color, x1 - x, y1 + y);
        Splat(surface, color, x1 + x, y1 - y);
        Splat(surface, color, x1 - x, y1 - y);
    }
}

} // namespace orvanta::reference
