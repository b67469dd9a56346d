#pragma once

#include <cstdint>

namespace orvanta {

// How a smooth line colours a pixel. Colours are plain values, 0x00BBGGRR.

// A strength from which on the line's colour is written without looking at what stands there.
inline constexpr std::int32_t kFullStrength = 253;

// The colour over a background with a strength above 0 and below kFullStrength. The division by 256, not 255, darkens
// slightly; lines keep that look.
constexpr std::uint32_t BlendLineColor(std::uint32_t lBackground, std::uint32_t lColor, std::int32_t iStrength) {
    const auto a = static_cast<std::uint32_t>(iStrength);
    constexpr std::uint32_t kOuter = 0xFF00FF, kMiddle = 0x00FF00;
    const std::uint32_t lOuter = (lBackground & kOuter) * (255 - a) + (lColor & kOuter) * a;
    const std::uint32_t lMiddle = (lBackground & kMiddle) * (255 - a) + (lColor & kMiddle) * a;
    return (lOuter >> 8 & kOuter) | (lMiddle >> 8 & kMiddle);
}

} // namespace orvanta
