#include "controls/tips/TipPlacement.h"

#include "base/Rounding.h"

#include <algorithm>

namespace orvanta {

namespace {

constexpr std::int64_t kRightOfCursor = 1;
constexpr std::int64_t kBelowCursor = 15;
constexpr std::int64_t kAboveCursor = 5;

} // namespace

TipPoint PlaceTip(const TipRequest& request, PixelSize tip, PixelSize screen) {
    std::int64_t X = request.cursor.X;
    std::int64_t Y = request.cursor.Y;
    std::int64_t lRight = screen.width;
    std::int64_t lBottom = screen.height;
    if (request.XMax > 0) {
        lRight = request.XMax;
        X = std::min(X, lRight);
    }
    if (request.YMax > 0) {
        lBottom = request.YMax;
        Y = std::min(Y, lBottom);
    }
    Y = Y + kBelowCursor + tip.height > lBottom ? Y - kAboveCursor - tip.height : Y + kBelowCursor;
    X = X + kRightOfCursor + tip.width > lRight ? lRight - tip.width : X + kRightOfCursor;
    return {static_cast<std::int32_t>(X), static_cast<std::int32_t>(Y)};
}

std::uint8_t TipOpacity(std::int16_t iPercent) {
    constexpr double kOpaque = 255;
    const double dPercent = std::clamp<double>(iPercent, 0, 100);
    return static_cast<std::uint8_t>(kOpaque - RoundHalfEven(2.55 * dPercent));
}

} // namespace orvanta
