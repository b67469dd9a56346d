#pragma once

#include "base/PixelRect.h"

#include <array>
#include <cstdint>

namespace orvanta {

// Where the parts of one line of a list box stand, in pixels of the device context that the line is drawn on.

// Presses left of this, from the left edge of the list, are on the check box.
inline constexpr std::int32_t kCheckAreaWidth = 17;

struct ListLine {
    std::int32_t x1;
    std::int32_t y1;
    std::int32_t x2; // the last point is not drawn
    std::int32_t y2;

    bool operator==(const ListLine&) const = default;
};

struct ListRow {
    PixelRect box;  // the check box; empty in a list without
    PixelRect item; // what the selection and the focus mark cover
    PixelRect picture;
    PixelRect text;

    bool operator==(const ListRow&) const = default;
};

ListRow LayoutOfRow(const PixelRect& row, bool bCheck);
// The list with pictures: everything around the box is one pixel wider, and so is the edge of the text. bImages keeps a
// column for pictures, iPictureWidth wide and with 6 more, whether the item has a picture or not.
ListRow LayoutOfPictureRow(const PixelRect& row, bool bCheck, bool bImages, std::int16_t iPictureWidth);

// The mark in a box: three pixels thick, falling 3 to the left and rising 5 to the right.
std::array<ListLine, 6> CheckMarkLines(const PixelRect& box);

// The height of a line with text of a height.
constexpr std::int32_t ItemHeightOf(std::int32_t lTextHeight) {
    return lTextHeight + 4;
}
// The size of an item with a text and a picture beside it.
PixelSize PictureItemSize(const PixelSize& text, std::int16_t iPictureWidth, std::int16_t iPictureHeight);

} // namespace orvanta
