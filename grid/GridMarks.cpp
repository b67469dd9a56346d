#include "grid/GridMarks.h"

#include "drawing/clsMEMDC.h"
#include "plumbing/SharedColors.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace orvanta {

namespace {

// '#' is black, 'o' is white, '.' is the red that is left out.
constexpr std::array<std::string_view, 7> kFlag{
    "....ooo", //
    "...oo#o", //
    "ooo##oo", //
    "o#o#oo.", //
    "o##oo..", //
    "oo#o...", //
    ".ooo...",
};
constexpr std::array<std::string_view, 4> kSortUp{
    "....#....", //
    "...###...", //
    "..#####..", //
    ".#######.",
};

template<std::size_t nRows>
OlePicture PictureOf(const std::array<std::string_view, nRows>& rows, bool bUpsideDown) {
    clsMEMDC image;
    image.CreateDC(static_cast<std::int32_t>(rows[0].size()), static_cast<std::int32_t>(nRows), TRANSPARENT);
    for (std::size_t y = 0; y < nRows; ++y) {
        const std::string_view row = rows[bUpsideDown ? nRows - 1 - y : y];
        for (std::size_t x = 0; x < row.size(); ++x) {
            const OleColor c = row[x] == '#' ? 0 : row[x] == 'o' ? 0xFFFFFF : 0x0000FF;
            SetPixelV(image.Hdc(), static_cast<int>(x), static_cast<int>(y), static_cast<COLORREF>(c));
        }
    }
    return image.Picture();
}

} // namespace

const OlePicture& FlagPicture() {
    static const OlePicture picture = PictureOf(kFlag, false);
    return picture;
}

const OlePicture& SortUpPicture() {
    static const OlePicture picture = PictureOf(kSortUp, false);
    return picture;
}

const OlePicture& SortDownPicture() {
    static const OlePicture picture = PictureOf(kSortUp, true);
    return picture;
}

} // namespace orvanta
