#include "drawing/clsPalette.h"

#include "base/Failure.h"

#include <cstdlib>

namespace orvanta {

namespace {

struct Rgb {
    std::uint8_t red, green, blue;
};

constexpr Rgb kDarkSystemColors[] = {{0, 0, 0},   {128, 0, 0},   {0, 128, 0},   {128, 128, 0},
                                     {0, 0, 128}, {128, 0, 128}, {0, 128, 128}, {192, 192, 192}};
constexpr Rgb kLightSystemColors[] = {{128, 128, 128}, {255, 0, 0},   {0, 255, 0},   {255, 255, 0},
                                      {0, 0, 255},     {255, 0, 255}, {0, 255, 255}, {255, 255, 255}};

void AddAll(clsPalette& palette, std::span<const Rgb> colors) {
    for (const Rgb& color : colors)
        palette.Add(color.red, color.green, color.blue);
}

// Whether a colour of the six-value cube is none of the system colours.
bool IsOutsideSystemColors(int red, int green, int blue) {
    switch (red + green + blue) {
    case 0:
    case 765: return false;
    case 510: return red != 0 && green != 0 && blue != 0;
    case 255: return (red != 0 || (green != 0 && blue != 0)) && (green != 0 || blue != 0);
    default: return true;
    }
}

} // namespace

void clsPalette::Add(std::uint8_t Red, std::uint8_t Green, std::uint8_t Blue) {
    m_entries.push_back({Blue, Green, Red});
}

const PaletteEntry& clsPalette::At(std::int32_t iIndex) const {
    if (iIndex < 1 || iIndex > Count()) throw SubscriptOutOfRange();
    return m_entries[static_cast<std::size_t>(iIndex) - 1];
}

std::int32_t clsPalette::ClosestIndex(std::uint8_t Red, std::uint8_t Green, std::uint8_t Blue) const {
    // An entry at the greatest distance of all is never chosen.
    int iBest = 3 * 255;
    std::int32_t iIndex = 0;
    for (std::int32_t i = 1; i <= Count(); ++i) {
        const PaletteEntry& entry = m_entries[static_cast<std::size_t>(i) - 1];
        const int iDistance = std::abs(entry.red - Red) + std::abs(entry.green - Green) + std::abs(entry.blue - Blue);
        if (iDistance == 0) return i;
        if (iDistance < iBest) {
            iBest = iDistance;
            iIndex = i;
        }
    }
    return iIndex;
}

void clsPalette::CreateMono2() {
    Destroy();
    Add(0, 0, 0);
    Add(255, 255, 255);
}

void clsPalette::Create16() {
    Destroy();
    AddAll(*this, kDarkSystemColors);
    AddAll(*this, kLightSystemColors);
}

void clsPalette::CreateHalfTone256() {
    constexpr std::uint8_t kValues[] = {0, 64, 128, 192, 255};
    Destroy();
    for (const std::uint8_t blue : kValues) {
        for (const std::uint8_t green : kValues) {
            for (const std::uint8_t red : kValues)
                Add(red, green, blue);
        }
    }
}

void clsPalette::CreateWebSafe256() {
    constexpr std::uint8_t kValues[] = {0, 51, 102, 153, 204, 255};
    constexpr int kGreys = 31;
    Destroy();
    AddAll(*this, kDarkSystemColors);
    for (const std::uint8_t blue : kValues) {
        for (const std::uint8_t green : kValues) {
            for (const std::uint8_t red : kValues) {
                if (IsOutsideSystemColors(red, green, blue)) Add(red, green, blue);
            }
        }
    }
    for (int i = 1; i <= kGreys; ++i) {
        const auto grey = static_cast<std::uint8_t>(8 * i);
        Add(grey, grey, grey);
    }
    AddAll(*this, kLightSystemColors);
}

} // namespace orvanta
