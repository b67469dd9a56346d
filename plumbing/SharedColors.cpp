#include "plumbing/SharedColors.h"

#include "base/Rounding.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>

namespace orvanta {

namespace {

struct Components {
    std::int16_t r;
    std::int16_t g;
    std::int16_t b;
};

Components ComponentsOf(OleColor c) {
    Components parts{};
    SplitRGB(c, parts.r, parts.g, parts.b);
    return parts;
}

int Shaded(std::int16_t iComponent, std::int16_t d) {
    return std::clamp(iComponent + d, 0, 255);
}

// Both products and their sum are kept in single precision: a shade may depend on the last bit. Between two weights
// that make 1 the result stays within 0 to 255.
int Blended(std::int16_t a, float wA, std::int16_t b, float wB) {
    const float fA = static_cast<float>(a) * wA;
    const float fB = static_cast<float>(b) * wB;
    const float fSum = fA + fB;
    return static_cast<int>(RoundHalfEven(fSum));
}

OleColor BlendedColor(const Components& a, float wA, const Components& b, float wB) {
    return MakeColor(Blended(a.r, wA, b.r, wB), Blended(a.g, wA, b.g, wB), Blended(a.b, wA, b.b, wB));
}

} // namespace

OleColor ResolveColor(OleColor c) {
    return c < 0 ? SystemColor(c & 31) : c;
}

void SplitRGB(OleColor c, std::int16_t& r, std::int16_t& g, std::int16_t& b) {
    const OleColor plain = ResolveColor(c);
    r = static_cast<std::int16_t>(plain & 0xFF);
    g = static_cast<std::int16_t>(plain >> 8 & 0xFF);
    b = static_cast<std::int16_t>(plain >> 16 & 0xFF);
}

OleColor ShadeColor(OleColor c, std::int16_t d) {
    const Components parts = ComponentsOf(c);
    return MakeColor(Shaded(parts.r, d), Shaded(parts.g, d), Shaded(parts.b, d));
}

OleColor MixColors(OleColor a, OleColor b, std::int32_t p) {
    const float wA = static_cast<float>(100 - std::clamp(p, 0, 100)) / 100.0F;
    return BlendedColor(ComponentsOf(a), wA, ComponentsOf(b), 1.0F - wA);
}

std::int16_t ColorLuma(OleColor c) {
    const Components parts = ComponentsOf(c);
    const double dLuma = 0.3 * parts.r + 0.59 * parts.g + 0.11 * parts.b;
    return ClampColorByte(static_cast<std::int16_t>(RoundHalfEven(dLuma)));
}

OleColor SetColorLuma(OleColor c, std::int16_t target) {
    return ShadeColor(c, static_cast<std::int16_t>(target - ColorLuma(c)));
}

OleColor BorderColorFor(OleColor border, OleColor back) {
    return border != kAutomatic ? border : ShadeColor(back, -68);
}

OleColor DisabledTextColor(OleColor fallback, OleColor back) {
    const Components gray = ComponentsOf(kSystemGrayText);
    const Components on = ComponentsOf(back);
    const bool bShows = std::abs(gray.r - on.r) >= 5 || std::abs(gray.g - on.g) >= 5 || std::abs(gray.b - on.b) >= 5;
    return bShows ? kSystemGrayText : fallback;
}

std::vector<OleColor> GradientColors(OleColor from, OleColor to, std::int32_t n) {
    std::vector<OleColor> colors;
    if (n < 1) return colors;
    colors.reserve(static_cast<std::size_t>(n));
    const Components first = ComponentsOf(from);
    const Components second = ComponentsOf(to);
    const float step = 1.0F / static_cast<float>(n);
    float w = 1.0F;
    for (std::int32_t i = 0; i < n; ++i) {
        colors.push_back(BlendedColor(first, w, second, 1.0F - w));
        w = std::max(w - step, 0.0F);
    }
    return colors;
}

} // namespace orvanta
