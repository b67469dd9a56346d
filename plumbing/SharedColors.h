#pragma once

#include <cstdint>
#include <vector>

namespace orvanta {

// Colour arithmetic of all controls. A control keeps one or two base colours; every shade it draws comes from these
// rules.
//
// A colour is 0x00BBGGRR. A negative one names a system colour by its low five bits. -1 means "automatic" where a
// function says so.
using OleColor = std::int32_t;

inline constexpr OleColor kAutomatic = -1;
// The system colours by which controls start.
inline constexpr OleColor kSystemWindow = static_cast<OleColor>(0x80000005u);
inline constexpr OleColor kSystemWindowFrame = static_cast<OleColor>(0x80000006u);
inline constexpr OleColor kSystemWindowText = static_cast<OleColor>(0x80000008u);
inline constexpr OleColor kSystemHighlight = static_cast<OleColor>(0x8000000Du);
inline constexpr OleColor kSystemHighlightText = static_cast<OleColor>(0x8000000Eu);
inline constexpr OleColor kSystemButtonFace = static_cast<OleColor>(0x8000000Fu);
inline constexpr OleColor kSystemGrayText = static_cast<OleColor>(0x80000011u);
inline constexpr OleColor kSystemButtonText = static_cast<OleColor>(0x80000012u);

constexpr OleColor MakeColor(int r, int g, int b) {
    return r | g << 8 | b << 16;
}

// The one question to the platform: the plain value of a system colour, by its index 0 to 31.
OleColor SystemColor(std::int32_t iIndex);

// The plain value of any colour.
OleColor ResolveColor(OleColor c);

// The three components of the resolved colour, 0 to 255 each.
void SplitRGB(OleColor c, std::int16_t& r, std::int16_t& g, std::int16_t& b);

constexpr std::int16_t ClampColorByte(std::int16_t i) {
    return i < 0 ? std::int16_t{0} : i > 255 ? std::int16_t{255} : i;
}

// d is added to each component.
OleColor ShadeColor(OleColor c, std::int16_t d);

// p is the share of b in percent, 0 to 100; values beyond count as the nearer end.
OleColor MixColors(OleColor a, OleColor b, std::int32_t p);

// Brightness, 0 to 255, and the colour brought to a brightness by the same step on each component.
std::int16_t ColorLuma(OleColor c);
OleColor SetColorLuma(OleColor c, std::int16_t target);

// The colour of a border: as given, or 68 darker than the back for kAutomatic. A given system colour stays one.
OleColor BorderColorFor(OleColor border, OleColor back);

// The colour of disabled text: the system's grey, unless it would not show on back; then the fallback.
OleColor DisabledTextColor(OleColor fallback, OleColor back);

// The colours of n rows (or columns) that run from one colour to another, plain values. The first is exactly the first
// colour, the last is one step short of the second. None for n below 1.
std::vector<OleColor> GradientColors(OleColor from, OleColor to, std::int32_t n);

} // namespace orvanta
