#pragma once

#include "base/PixelRect.h"

#include <cstdint>
#include <functional>
#include <optional>

namespace orvanta {

// Where the picture and the caption of a button stand: arithmetic alone, for painting and for tests. Units are pixels,
// the frame is the button's client area; divisions round to the nearest whole number, halves to the even one.

// What a button has to lay out. The margin is kept free at the face's edges; a button that shows its focus has a wider
// one.
struct ButtonContent {
    PixelSize face;
    std::int32_t margin = 0;
    std::optional<PixelSize> picture;
    bool bCaption = false;
};
constexpr std::int32_t ButtonMargin(bool bShowFocus) {
    return bShowFocus ? 4 : 2;
}

// What is wider or higher than its content is filled by whoever draws it: the picture is centred in its rectangle, the
// text aligned. Without layout both are empty.
struct ButtonParts {
    PixelRect picture;
    PixelRect text;
    bool operator==(const ButtonParts&) const = default;
};

// The size of the caption with lines broken between words inside a rectangle; its right edge is the limit.
using CaptionMeasure = std::function<PixelSize(const PixelRect&)>;

// The values of ImagePos are
//   0 picture over text         1 picture left of text      2 text left of picture     3 text over picture
//   4 one on the other          5 picture at the top        6 picture at the left      7 picture at the right
//   8 picture at the bottom    10 as 6, wider text         11 as 7, centred text
// 9 and all others have no layout: with picture and caption nothing is positioned, so neither shows.
ButtonParts LayOutButton(const ButtonContent& content, std::int32_t ImagePos, const CaptionMeasure& measure);

// The text stands at the right of its rectangle in layout 7 alone, centred in all others.
constexpr bool ButtonTextAtRight(std::int32_t ImagePos) {
    return ImagePos == 7;
}

// The size of a picture that is fitted into the face: none when the picture is smaller than the face in both directions
// (it is never enlarged), or when nothing would be left of it.
std::optional<PixelSize> FittedPictureSize(PixelSize face, std::int32_t margin, PixelSize picture);

} // namespace orvanta
