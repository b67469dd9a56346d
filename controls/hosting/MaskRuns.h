#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace orvanta {

// A rectangle of visible pixels; right and bottom are exclusive.
struct MaskRect {
    std::int32_t left;
    std::int32_t top;
    std::int32_t right;
    std::int32_t bottom;
    bool operator==(const MaskRect&) const = default;
};

// The pixels that are not the mask colour, as rectangles in bands from the top: rows with the same runs share one band,
// and the rectangles of a band go from left to right. pixels: rows from the top, 0x00RRGGBB; the top byte does not
// count.
std::vector<MaskRect> VisibleRects(std::span<const std::uint32_t> pixels, std::int32_t width, std::uint32_t maskColor);

} // namespace orvanta
