#include "drawing/OverlapPixels.h"

#include "base/Rounding.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>

namespace orvanta {

namespace {

constexpr std::uint32_t kColorBytes = 0x00FFFFFF;
// Meets no pixel, since only three bytes of a pixel are compared.
constexpr std::uint32_t kNoKey = 0xFFFFFFFF;

// Washes one channel out: 0.7 of the way to 192.
std::int32_t Washed(std::uint8_t v) {
    return static_cast<std::int32_t>(RoundHalfEven(0.3 * v + 134.4));
}

std::uint8_t GreyOfWashed(std::int32_t red, std::int32_t green, std::int32_t blue) {
    return static_cast<std::uint8_t>(RoundHalfEven(0.3 * red + 0.59 * green + 0.11 * blue));
}

// Greys a hundred times as large as they are, by channel: whole numbers, so that only sums that end in 50 could be
// rounded otherwise than the fractions are. Those are worked out from the fractions.
class GreyTables {
public:
    GreyTables() {
        for (std::size_t v = 0; v < m_washed.size(); ++v) {
            const std::int32_t lWashed = Washed(static_cast<std::uint8_t>(v));
            m_washed[v] = lWashed;
            m_red[v] = 30 * lWashed;
            m_green[v] = 59 * lWashed;
            m_blue[v] = 11 * lWashed;
        }
    }

    std::uint8_t Grey(std::uint8_t red, std::uint8_t green, std::uint8_t blue) const {
        const auto lSum = static_cast<std::uint32_t>(m_red[red] + m_green[green] + m_blue[blue]) + 50;
        const std::uint32_t lGrey = lSum / 100;
        if (lGrey * 100 == lSum) [[unlikely]] {
            return GreyOfWashed(m_washed[red], m_washed[green], m_washed[blue]);
        }
        return static_cast<std::uint8_t>(lGrey);
    }

private:
    using Table = std::array<std::int32_t, 256>;
    Table m_washed{}, m_red{}, m_green{}, m_blue{};
};

const GreyTables& Greys() {
    static const GreyTables tables;
    return tables;
}

std::uint32_t Load(const std::uint8_t* pixel) {
    std::uint32_t l;
    std::memcpy(&l, pixel, sizeof l);
    return l;
}

void Store(std::uint8_t* pixel, std::uint32_t l) {
    std::memcpy(pixel, &l, sizeof l);
}

void CopyRow(std::uint8_t* to, const std::uint8_t* from, std::size_t nPixels, std::uint32_t lKey) {
    for (std::size_t n = 0; n < nPixels; ++n) {
        const std::uint32_t lColor = Load(from + 4 * n) & kColorBytes, lOld = Load(to + 4 * n);
        Store(to + 4 * n, lColor == lKey ? lOld : lColor | (lOld & ~kColorBytes));
    }
}

void GreyRow(std::uint8_t* to, const std::uint8_t* from, std::size_t nPixels, std::uint32_t lKey) {
    const GreyTables& greys = Greys();
    for (std::size_t n = 0; n < nPixels; ++n, to += 4, from += 4) {
        if ((Load(from) & kColorBytes) == lKey) continue;
        const std::uint8_t grey = greys.Grey(from[2], from[1], from[0]);
        to[0] = to[1] = to[2] = grey;
    }
}

// The key as a pixel lies in memory, blue lowest.
std::uint32_t PixelOfKey(std::optional<std::uint32_t> lKeyColor) {
    if (!lKeyColor || *lKeyColor > kColorBytes) return kNoKey;
    return (*lKeyColor & 0xFF) << 16 | (*lKeyColor & 0xFF00) | *lKeyColor >> 16;
}

} // namespace

std::uint8_t DisabledGrey(std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
    return Greys().Grey(red, green, blue);
}

std::optional<OverlapPlacement> PlaceOverlap(std::int32_t pictureWidth, std::int32_t pictureHeight, std::int32_t width,
                                             std::int32_t height, std::int32_t areaWidth, std::int32_t areaHeight) {
    const auto fitted = [](std::int32_t wanted, std::int32_t picture, std::int32_t area) {
        return (std::min)(wanted < 0 ? picture : (std::min)(wanted, picture), area);
    };
    OverlapPlacement place;
    place.w = fitted(width, pictureWidth, areaWidth);
    place.h = fitted(height, pictureHeight, areaHeight);
    if (place.w < 1 || place.h < 1) return std::nullopt;
    place.ox = (areaWidth - place.w) / 2;
    place.oy = (areaHeight - place.h) / 2;
    return place;
}

void OverlapPixels(const PixelBits& target, const PixelBits& source, const OverlapPlacement& placement,
                   std::optional<std::uint32_t> lKeyColor, bool bDisabled) {
    const std::uint32_t lKey = PixelOfKey(lKeyColor);
    const auto nPixels = static_cast<std::size_t>(placement.w);
    const std::int32_t s = source.height - placement.h;
    for (std::int32_t j = 0; j < placement.h; ++j) {
        // Both count rows from the bottom: with an odd rest the picture stands one row lower than when drawn plainly.
        std::uint8_t* to = target.Row(placement.oy + j) + 4 * static_cast<std::size_t>(placement.ox);
        const std::uint8_t* from = source.Row(s + j);
        if (bDisabled) {
            GreyRow(to, from, nPixels, lKey);
        } else {
            CopyRow(to, from, nPixels, lKey);
        }
    }
}

} // namespace orvanta
