#include "controls/basic/FrameLayout.h"

namespace orvanta {

FrameBand BandLayout(std::int32_t W, std::int32_t lTextHeight) {
    const std::int32_t lHeight = lTextHeight + 2;
    return {{0, 0, W, lHeight}, {3, 0, W - 3, lHeight}};
}

FrameEtching EtchedLayout(std::int32_t W, std::int32_t H, std::int32_t lTextWidth, std::int32_t lTextHeight) {
    const std::int32_t h = lTextHeight / 2;
    return {{0, h, W, H}, {1, h + 1, W - 1, H - 1}, {5, 0, 5 + lTextWidth, lTextHeight}, {5, 0, W, H}};
}

std::array<FrameLine, 2> CutEdges(std::int32_t W) {
    return {{{0, 2, 2, 0}, {W - 1, 2, W - 3, 0}}};
}

std::array<FrameLine, 4> CutCorners(std::int32_t W) {
    return {{{0, 0, 2, 0}, {0, 0, 0, 2}, {W - 1, 0, W - 3, 0}, {W - 1, 0, W - 1, 2}}};
}

FrameBandColors BandColors(OleColor backColor, OleColor titleBackColor) {
    if (titleBackColor == kAutomatic) return {ShadeColor(backColor, -17), ShadeColor(backColor, -34)};
    return {ShadeColor(titleBackColor, 17), ShadeColor(titleBackColor, -17)};
}

OleColor TitleShadowColor(OleColor text) {
    const OleColor c = ResolveColor(text);
    return ColorLuma(c) < 171 ? SetColorLuma(c, 255) : ShadeColor(c, -85);
}

} // namespace orvanta
