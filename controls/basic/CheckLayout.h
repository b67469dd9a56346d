#pragma once

#include "base/PixelRect.h"

#include <array>
#include <cstdint>
#include <optional>

namespace orvanta {

// Where the parts of a check box stand: arithmetic alone, for painting and for tests. Units are pixels, the frame is
// the control's client area.

inline constexpr std::int32_t kCheckBoxSide = 15;

// The middle of the client area, halves rounded to the even row; above 0 when the control is lower than the box. Raises
// Overflow for what is no 16-bit row.
std::int16_t CheckBoxTop(std::int32_t H);

// Align 0 puts the box at the left, any other value at the right.
PixelRect CheckBoxRect(std::int32_t W, std::int16_t top, std::int16_t iAlign);

// The four pixels that rounded corners leave open.
struct PixelPoint {
    std::int32_t x = 0;
    std::int32_t y = 0;
    bool operator==(const PixelPoint&) const = default;
};
std::array<PixelPoint, 4> CheckBoxCorners(const PixelRect& box);

// The tick: six lines, none of which draws its last point.
struct PixelLine {
    PixelPoint from, to;
    bool operator==(const PixelLine&) const = default;
};
std::array<PixelLine, 6> CheckTick(const PixelRect& box);

// The room for the caption.
PixelRect CheckCaptionRoom(PixelSize client, std::int16_t iAlign);
// The caption of a measured size in it: in the middle of the height, close to the box.
PixelRect CheckCaptionRect(PixelSize client, std::int16_t iAlign, PixelSize text);
// The focus mark around it, cut off at the right and lower edge of the client area only.
PixelRect CheckFocusRect(PixelSize client, const PixelRect& caption);

} // namespace orvanta
