#pragma once

#include "drawing/OctreeQuantizer.h"

#include <cstdint>

namespace orvanta::testing {

inline PaletteEntry Rgb(int red, int green, int blue) {
    return {static_cast<std::uint8_t>(blue), static_cast<std::uint8_t>(green), static_cast<std::uint8_t>(red)};
}

} // namespace orvanta::testing
