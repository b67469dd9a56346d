#pragma once

#include "base/PixelRect.h"

#include <cstdint>
#include <optional>

namespace orvanta {

// Where the image control puts its picture: pixels of its client area.
struct ImagePlacement {
    PixelRect rect;
    // The whole picture is drawn, smaller than it is. Otherwise its top left part is, as large as the rectangle.
    bool bScaled;

    bool operator==(const ImagePlacement&) const = default;
};

// How far the picture stays away from each edge: a border takes one pixel, a rounded one two. Rounding without a border
// takes nothing.
constexpr std::int32_t ImageInset(bool bBorder, bool bRounded) {
    if (!bBorder) return 0;
    return bRounded ? 2 : 1;
}

// Places a picture of that size in a room; nothing when the room is empty. A picture that fits is centred. One
// that does not is scaled down with bStretch, its proportions kept; else it is cut on each axis on which it is too
// large, and centred on the other. A picture is never enlarged.
std::optional<ImagePlacement> PlaceImage(const PixelRect& room, PixelSize picture, bool bStretch);

} // namespace orvanta
