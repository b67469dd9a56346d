#include "controls/text/ListItemLayout.h"

#include "base/Rounding.h"

#include <algorithm>

namespace orvanta {

namespace {

constexpr std::int32_t kBoxSize = 13;
constexpr std::int32_t kPictureEdge = 6;

PixelRect BoxOf(const PixelRect& row, std::int32_t lIndent) {
    const auto top = RoundToInteger<std::int32_t>(row.top + (row.Height() - kBoxSize) / 2.0);
    return {row.left + lIndent, top, row.left + lIndent + kBoxSize, top + kBoxSize};
}

// The indent is the gap on both sides of the box.
ListRow WithBox(const PixelRect& row, bool bCheck, std::int32_t lIndent) {
    ListRow layout;
    layout.item = row;
    if (bCheck) {
        layout.box = BoxOf(row, lIndent);
        layout.item.left = layout.box.right + lIndent;
    }
    return layout;
}

} // namespace

ListRow LayoutOfRow(const PixelRect& row, bool bCheck) {
    ListRow layout = WithBox(row, bCheck, 2);
    layout.text = layout.item.Shrunk(2);
    return layout;
}

ListRow LayoutOfPictureRow(const PixelRect& row, bool bCheck, bool bImages, std::int16_t iPictureWidth) {
    ListRow layout = WithBox(row, bCheck, 3);
    const std::int32_t lColumn = layout.item.left + kPictureEdge + iPictureWidth;
    layout.picture = {layout.item.left, layout.item.top, lColumn, layout.item.bottom};
    if (bImages) {
        layout.text = {lColumn, layout.item.top, layout.item.right - 3, layout.item.bottom};
    } else {
        layout.text = layout.item.Shrunk(3);
    }
    return layout;
}

std::array<ListLine, 6> CheckMarkLines(const PixelRect& box) {
    std::array<ListLine, 6> lines{};
    for (std::int32_t d = 0; d < 3; ++d) {
        const auto n = static_cast<std::size_t>(d);
        lines[n] = {box.left + 2, box.top + 4 + d, box.left + 5, box.top + 7 + d};
        lines[n + 3] = {box.left + 5, box.top + 7 + d, box.left + 10, box.top + 2 + d};
    }
    return lines;
}

PixelSize PictureItemSize(const PixelSize& text, std::int16_t iPictureWidth, std::int16_t iPictureHeight) {
    return {std::max<std::int32_t>(text.width, iPictureWidth) + 9,
            ItemHeightOf(std::max<std::int32_t>(text.height, iPictureHeight))};
}

} // namespace orvanta
