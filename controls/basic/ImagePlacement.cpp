#include "controls/basic/ImagePlacement.h"

#include "base/Rounding.h"

#include <algorithm>

namespace orvanta {

namespace {

std::int32_t CentringOffset(std::int32_t lRoom, std::int32_t lSize) {
    return RoundToInteger<std::int32_t>((lRoom - lSize) / 2.0);
}

} // namespace

std::optional<ImagePlacement> PlaceImage(const PixelRect& room, PixelSize picture, bool bStretch) {
    const std::int32_t cw = room.Width();
    const std::int32_t ch = room.Height();
    if (cw < 1 || ch < 1) return std::nullopt;
    const bool bScaled = bStretch && (picture.width > cw || picture.height > ch);
    if (bScaled) {
        const double dFactor =
            std::max(picture.width / static_cast<double>(cw), picture.height / static_cast<double>(ch));
        picture.width = RoundToInteger<std::int32_t>(picture.width / dFactor);
        picture.height = RoundToInteger<std::int32_t>(picture.height / dFactor);
    }
    const std::int32_t lWidth = std::min(picture.width, cw);
    const std::int32_t lHeight = std::min(picture.height, ch);
    const std::int32_t lLeft = room.left + CentringOffset(cw, lWidth);
    const std::int32_t lTop = room.top + CentringOffset(ch, lHeight);
    return ImagePlacement{{lLeft, lTop, lLeft + lWidth, lTop + lHeight}, bScaled};
}

} // namespace orvanta
