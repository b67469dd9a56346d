#pragma once

#include <cstdint>

namespace orvanta {

// A width and a height in pixels.
struct PixelSize {
    std::int32_t width = 0;
    std::int32_t height = 0;

    bool operator==(const PixelSize&) const = default;
};

// A rectangle of pixels; right and bottom are exclusive. What layout code works with where no window is needed.
struct PixelRect {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;

    constexpr std::int32_t Width() const { return right - left; }
    constexpr std::int32_t Height() const { return bottom - top; }
    // Each edge that many pixels further in; further out for a negative number.
    constexpr PixelRect Shrunk(std::int32_t l) const { return {left + l, top + l, right - l, bottom - l}; }

    bool operator==(const PixelRect&) const = default;
};

} // namespace orvanta
