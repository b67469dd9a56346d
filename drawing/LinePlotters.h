#pragma once

#include "drawing/LineColor.h"
#include "drawing/PixelBits.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace orvanta {

// Plotters for LineWalk.h. Colours are plain values, 0x00BBGGRR.

static_assert(std::endian::native == std::endian::little, "a pixel is read as one number");

// Draws on anything that reads and writes single pixels:
//
//     std::uint32_t Get(std::int32_t x, std::int32_t y);
//     void Set(std::int32_t x, std::int32_t y, std::uint32_t lColor);
template<typename Target>
class PixelPlotter {
public:
    PixelPlotter(Target& target, std::uint32_t lColor) : m_target(target), m_lColor(lColor) {}

    void Solid(std::int32_t x, std::int32_t y) { m_target.Set(x, y, m_lColor); }
    void Blended(std::int32_t x, std::int32_t y, std::int32_t iStrength) {
        if (iStrength <= 0) return;
        if (iStrength >= kFullStrength) return Solid(x, y);
        m_target.Set(x, y, BlendLineColor(m_target.Get(x, y), m_lColor, iStrength));
    }

private:
    Target& m_target;
    std::uint32_t m_lColor;
};

// Whether a plotter must look at each pixel's place. Inside promises that every pixel lies in the picture.
enum class LineClipping { Checked, Inside };

// True when a rectangle, right and bottom included, lies in the picture.
constexpr bool LiesInside(const PixelBits& pixels, std::int64_t left, std::int64_t top, std::int64_t right,
                          std::int64_t bottom) {
    return left >= 0 && top >= 0 && right < pixels.width && bottom < pixels.height;
}

// Draws straight into bytes of 24 or 32 bits per pixel; what lies outside is left out. With 32 bits the fourth byte
// becomes 0, as when the platform sets a pixel.
template<int BytesPerPixel, LineClipping Clipping = LineClipping::Checked>
class BitsPlotter {
    static_assert(BytesPerPixel == 3 || BytesPerPixel == 4);

public:
    BitsPlotter(const PixelBits& pixels, std::uint32_t lColor)
        : m_top(pixels.Row(pixels.height - 1)), m_lUp(static_cast<std::ptrdiff_t>(pixels.bytesPerScanLine)),
          m_width(static_cast<std::uint32_t>(pixels.width)), m_height(static_cast<std::uint32_t>(pixels.height)),
          m_lColor((lColor & 0xFF) << 16 | (lColor & 0xFF00) | (lColor >> 16 & 0xFF)) {}

    void Solid(std::int32_t x, std::int32_t y) {
        if (Inside(x, y)) Store(At(x, y), m_lColor);
    }
    void Blended(std::int32_t x, std::int32_t y, std::int32_t iStrength) {
        if (iStrength <= 0 || !Inside(x, y)) return;
        std::uint8_t* pixel = At(x, y);
        Store(pixel, iStrength >= kFullStrength ? m_lColor : BlendLineColor(Load(pixel), m_lColor, iStrength));
    }

private:
    bool Inside(std::int32_t x, std::int32_t y) const {
        if constexpr (Clipping == LineClipping::Inside) return true;
        return static_cast<std::uint32_t>(x) < m_width && static_cast<std::uint32_t>(y) < m_height;
    }
    std::uint8_t* At(std::int32_t x, std::int32_t y) const {
        return m_top - y * m_lUp + std::ptrdiff_t{x} * BytesPerPixel;
    }
    // The pixel as it lies in memory, 0x00RRGGBB. The blend treats the outer channels alike, and drops a fourth byte.
    static std::uint32_t Load(const std::uint8_t* pixel) {
        std::uint32_t lColor = 0;
        std::memcpy(&lColor, pixel, BytesPerPixel);
        return lColor;
    }
    static void Store(std::uint8_t* pixel, std::uint32_t lColor) { std::memcpy(pixel, &lColor, BytesPerPixel); }

    std::uint8_t* m_top; // of the topmost row
    std::ptrdiff_t m_lUp;
    std::uint32_t m_width, m_height;
    std::uint32_t m_lColor;
};

} // namespace orvanta
