#pragma once

#include <cstdint>
#include <functional>

// Smooth lines and curves in their plain form: every step computed anew, every pixel read and written by a call.
namespace orvanta::reference {

struct PlainSurface {
    std::function<std::uint32_t(int x, int y)> getPixel; // 0x00BBGGRR; 0xFFFFFFFF outside
    std::function<void(int x, int y, std::uint32_t color)> setPixel;
};

void PlainPlotBlended(const PlainSurface& surface, std::uint32_t color, int x, int y, int a);

void PlainLineGP(const PlainSurface& surface, int x1, int y1, int x2, int y2, std::uint32_t color, int maxBlend);
void PlainArcGP(const PlainSurface& surface, int x1, int y1, int radiusX, int radiusY, float startAngle,
                float stopAngle, std::uint32_t color, int thickness);
void PlainCircleGP(const PlainSurface& surface, int x1, int y1, int radiusX, int radiusY, std::uint32_t color,
                   int thickness);

} // namespace orvanta::reference
