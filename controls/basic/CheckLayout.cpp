#include "controls/basic/CheckLayout.h"

#include "base/Rounding.h"

#include <algorithm>
#include <cstddef>

namespace orvanta {

namespace {

// From the outer edge of the box to the caption, and from the caption to the other edges.
constexpr std::int32_t kCaptionIndent = 19;
constexpr std::int32_t kCaptionEdge = 1;

} // namespace

std::int16_t CheckBoxTop(std::int32_t H) {
    return RoundToInteger<std::int16_t>(H / 2.0 - kCheckBoxSide / 2.0);
}

PixelRect CheckBoxRect(std::int32_t W, std::int16_t top, std::int16_t iAlign) {
    const std::int32_t left = iAlign == 0 ? 0 : W - kCheckBoxSide;
    return {left, top, left + kCheckBoxSide, top + kCheckBoxSide};
}

std::array<PixelPoint, 4> CheckBoxCorners(const PixelRect& box) {
    const std::int32_t right = box.right - 1;
    const std::int32_t bottom = box.bottom - 1;
    return {{{box.left, box.top}, {right, box.top}, {box.left, bottom}, {right, bottom}}};
}

std::array<PixelLine, 6> CheckTick(const PixelRect& box) {
    const std::int32_t x = box.left + 6;
    const std::int32_t y = box.top + 8;
    std::array<PixelLine, 6> lines;
    for (std::int32_t k = 0; k < 3; ++k) {
        const auto n = static_cast<std::size_t>(k);
        lines[n] = {{x, y + k}, {x - 3, y - 3 + k}};
        lines[n + 3] = {{x, y + k}, {x + 5, y - 5 + k}};
    }
    return lines;
}

PixelRect CheckCaptionRoom(PixelSize client, std::int16_t iAlign) {
    const std::int32_t bottom = client.height - kCaptionEdge;
    if (iAlign == 0) return {kCaptionIndent, kCaptionEdge, client.width - kCaptionEdge, bottom};
    return {kCaptionEdge, kCaptionEdge, client.width - kCaptionIndent, bottom};
}

PixelRect CheckCaptionRect(PixelSize client, std::int16_t iAlign, PixelSize text) {
    PixelRect rect = CheckCaptionRoom(client, iAlign);
    rect.top += RoundToInteger<std::int32_t>((client.height - text.height) / 2.0) - 1;
    rect.bottom = rect.top + text.height;
    if (iAlign == 0) {
        rect.right = rect.left + text.width;
    } else {
        rect.left = rect.right - text.width;
    }
    return rect;
}

PixelRect CheckFocusRect(PixelSize client, const PixelRect& caption) {
    return {caption.left - 1, caption.top - 1, std::min(caption.right + 2, client.width),
            std::min(caption.bottom + 2, client.height)};
}

} // namespace orvanta
