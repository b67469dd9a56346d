#pragma once

#include "base/PixelRect.h"
#include "plumbing/SharedColors.h"

#include <array>
#include <cstdint>

namespace orvanta {

// Rectangles and colours of the two looks of a frame. Units are pixels of the client area, W wide and H high.

// The gradient band with a title in it.
struct FrameBand {
    PixelRect band;
    PixelRect title;
};
FrameBand BandLayout(std::int32_t W, std::int32_t lTextHeight);

// The etched box: a dark and a light frame, both opened by a gap for the title. Without a title both sizes are 0.
struct FrameEtching {
    PixelRect dark;
    PixelRect light;
    PixelRect gap;
    PixelRect title;
};
FrameEtching EtchedLayout(std::int32_t W, std::int32_t H, std::int32_t lTextWidth, std::int32_t lTextHeight);

// A line whose last point is not drawn.
struct FrameLine {
    std::int32_t x1, y1, x2, y2;
    bool operator==(const FrameLine&) const = default;
};
// The edges of the two cut corners at the top, and what wipes the corners outside of them.
std::array<FrameLine, 2> CutEdges(std::int32_t W);
std::array<FrameLine, 4> CutCorners(std::int32_t W);

struct FrameBandColors {
    OleColor left;
    OleColor right;
    bool operator==(const FrameBandColors&) const = default;
};
// A title colour of kAutomatic derives the band from the face.
FrameBandColors BandColors(OleColor backColor, OleColor titleBackColor);

// The shadow under a title in a colour: light under a dark title, darker under a light one.
OleColor TitleShadowColor(OleColor text);

} // namespace orvanta
