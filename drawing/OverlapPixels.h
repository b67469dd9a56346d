#pragma once

#include "drawing/PixelBits.h"

#include <cstdint>
#include <optional>

namespace orvanta {

// The pixel work of a picture that is drawn with one colour left out, or greyed, or both. Buffers have 32 bits per
// pixel.

// The grey of a disabled picture. Black becomes 134 and white 211, so that it stays legible on a button face.
std::uint8_t DisabledGrey(std::uint8_t red, std::uint8_t green, std::uint8_t blue);

// Where a picture goes: its top left w by h pixels, so many columns from the left and rows from the bottom of the
// target.
struct OverlapPlacement {
    std::int32_t w = 0;
    std::int32_t h = 0;
    std::int32_t ox = 0;
    std::int32_t oy = 0;
};

// How much of a picture fits, centred and never stretched: a larger picture shows its top left part only. A width or
// height of the caller that is negative stands for the whole picture. Empty when nothing is left to draw.
std::optional<OverlapPlacement> PlaceOverlap(std::int32_t pictureWidth, std::int32_t pictureHeight, std::int32_t width,
                                             std::int32_t height, std::int32_t areaWidth, std::int32_t areaHeight);

// Draws the source over the target. Pixels of the key colour (0x00BBGGRR) are left out; a key colour with a fourth byte
// meets no pixel. The fourth bytes of the target stay.
void OverlapPixels(const PixelBits& target, const PixelBits& source, const OverlapPlacement& placement,
                   std::optional<std::uint32_t> lKeyColor, bool bDisabled);

} // namespace orvanta
