#pragma once

#include "base/PixelRect.h"

#include <cstdint>

namespace orvanta {

// Pixels of the desktop.
struct TipPoint {
    std::int32_t X = 0;
    std::int32_t Y = 0;
    bool operator==(const TipPoint&) const = default;
};

// What a tip was asked for with: where the cursor was, the width at which its text wraps (below 1: it does not), and
// the right and bottom limits of its place (below 1: the virtual screen's).
struct TipRequest {
    TipPoint cursor;
    std::int32_t lMaxWidth = -1;
    std::int32_t XMax = -1;
    std::int32_t YMax = -1;
};

// The top left corner of a tip of that size: below and right of the cursor, above it where the bottom limit comes
// first, and pushed left of the right limit. screen is the size of the virtual screen.
TipPoint PlaceTip(const TipRequest& request, PixelSize tip, PixelSize screen);

// How opaque a tip of that transparency in percent is, 0 to 255. A percent beyond 0 to 100 counts as the nearer end.
std::uint8_t TipOpacity(std::int16_t iPercent);

} // namespace orvanta
