#include "grid/OleGridPicture.h"

#include "base/Rounding.h"

namespace orvanta {

namespace {

std::int32_t Pixels(std::int32_t lHundredths, std::int32_t lDots) {
    constexpr double kHundredthsPerInch = 2540;
    return RoundToInteger<std::int32_t>(lHundredths * lDots / kHundredthsPerInch);
}

} // namespace

GridPictureRef GridPictureOf(const OlePicture& picture, std::int32_t lDotsX, std::int32_t lDotsY) {
    if (picture.IsEmpty()) return nullptr;
    return std::make_shared<const OleGridPicture>(picture, Pixels(picture.Width(), lDotsX),
                                                  Pixels(picture.Height(), lDotsY));
}

OlePicture OlePictureOf(const GridPictureRef& picture) {
    const auto* own = dynamic_cast<const OleGridPicture*>(picture.get());
    return own == nullptr ? OlePicture() : own->Picture();
}

} // namespace orvanta
