#pragma once

#include "plumbing/SharedColors.h"

#include <cstdint>

namespace orvanta {

// TransparencyType: which colour of a picture is not drawn.
inline constexpr std::int32_t kNoKey = -1;
inline constexpr std::int32_t kKeyOfPixel = 0; // that of one pixel of the picture
inline constexpr std::int32_t kKeyOfColor = 1; // TransparentColor

// As the key colour of pvOverlapImage: the pixel decides.
inline constexpr OleColor kPixelDecides = -1;

} // namespace orvanta
