#pragma once

#include "base/PixelRect.h"

#include <cstdint>

namespace orvanta {

// Where the drawing surface and the two bars stand in the grid's client area. The surface runs on under the horizontal
// bar, which lies over its bottom edge. In a grid that is too small a width or height is below 0: that child stays
// where it is.
struct GridPlacement {
    PixelRect surface;
    PixelRect vertical;
    PixelRect horizontal;
};

// lBarWidth is the width of the vertical bar, lBarHeight the height of the horizontal one; both stay.
constexpr GridPlacement PlaceGridChildren(std::int32_t lWidth, std::int32_t lHeight, std::int32_t lBarWidth,
                                          std::int32_t lBarHeight) {
    const std::int32_t lBarLeft = lWidth - lBarWidth - 2;
    const std::int32_t lBarTop = lHeight - lBarHeight - 2;
    return {{2, 2, lBarLeft - 1, lHeight - 2},
            {lBarLeft, 2, lBarLeft + lBarWidth, lHeight - 2},
            {2, lBarTop, lBarLeft - 1, lBarTop + lBarHeight}};
}

} // namespace orvanta
