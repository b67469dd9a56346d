#pragma once

#include <cstdint>

namespace orvanta {

// The unit in which a container counts the places and sizes of its controls, by the numbers that forms are saved with.
enum class ScaleUnit : std::int16_t {
    Twips = 1,  // 1,440 to the inch
    Points = 2, // 72 to the inch
    Pixels = 3, // of the screen
    Inches = 5,
    Millimeters = 6,
    Centimeters = 7,
    HiMetric = 8, // hundredths of a millimetre, the unit of picture sizes
};

// How many of a unit make an inch; lDpi is the screen's resolution in that direction. Units that have no fixed size
// count as pixels.
constexpr double UnitsPerInch(ScaleUnit unit, std::int32_t lDpi) {
    switch (unit) {
    case ScaleUnit::Twips: return 1440;
    case ScaleUnit::Points: return 72;
    case ScaleUnit::Inches: return 1;
    case ScaleUnit::Millimeters: return 25.4;
    case ScaleUnit::Centimeters: return 2.54;
    case ScaleUnit::HiMetric: return 2540;
    case ScaleUnit::Pixels: break;
    }
    return lDpi;
}

// Turns a length of one unit into another; nothing is rounded to whole pixels.
constexpr float ConvertUnits(float value, ScaleUnit from, ScaleUnit to, std::int32_t lDpi) {
    if (from == to) return value;
    return static_cast<float>(static_cast<double>(value) * UnitsPerInch(to, lDpi) / UnitsPerInch(from, lDpi));
}

} // namespace orvanta
