#include "controls/basic/LabelLayout.h"

#include "base/Rounding.h"

namespace orvanta {

namespace {

constexpr std::int32_t kRight = 1;
constexpr std::int32_t kCentered = 2;
constexpr std::int32_t kMiddle = 1;
constexpr std::int32_t kBottom = 2;
constexpr std::int32_t kBorderRoom = 2;

// DT_CENTER, DT_RIGHT, DT_WORDBREAK and DT_EXPANDTABS of the platform.
constexpr std::uint32_t kTextCenter = 0x1;
constexpr std::uint32_t kTextRight = 0x2;
constexpr std::uint32_t kTextWordBreak = 0x10;
constexpr std::uint32_t kTextExpandTabs = 0x40;

std::int32_t HalfOf(std::int32_t l) {
    return static_cast<std::int32_t>(RoundHalfEven(l / 2.0));
}

} // namespace

std::int16_t LabelLayout::Extra() const {
    const auto iMargins = RoundToInteger<std::int16_t>(2 * Margin);
    return RoundToInteger<std::int16_t>((HasBorder() ? 2 * kBorderRoom : 0) + iMargins);
}

PixelRect LabelLayout::TextRect(std::int32_t lWidth, std::int32_t lHeight) const {
    // Deliberately nothing for the margin of a label that keeps its size.
    const std::int32_t lInset = (HasBorder() ? kBorderRoom : 0) + (AutoSize ? Margin : 0);
    return {lInset, lInset, lWidth - lInset, lHeight - lInset};
}

std::int32_t LabelLayout::TextTop(const PixelRect& text, std::int32_t lTextHeight) const {
    if (!PlacesByHeight()) return text.top;
    switch (VAlignment) {
    case kMiddle: return HalfOf(text.bottom - lTextHeight);
    case kBottom: return text.bottom - lTextHeight;
    default: return text.top;
    }
}

std::uint32_t LabelLayout::TextFlags() const {
    std::uint32_t flags = kTextExpandTabs;
    if (!AutoSize) flags |= kTextWordBreak;
    if (Alignment == kCentered) flags |= kTextCenter;
    if (Alignment == kRight) flags |= kTextRight;
    return flags;
}

double LabelLayout::LeftEdge(double dLeft, std::int32_t lWidth, std::int32_t lNewWidth) const {
    switch (Alignment) {
    case kRight: return dLeft + (lWidth - lNewWidth);
    case kCentered: return dLeft + HalfOf(lWidth - lNewWidth);
    default: return dLeft;
    }
}

} // namespace orvanta
