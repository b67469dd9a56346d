#include "controls/hosting/MaskRuns.h"

#include <algorithm>

namespace orvanta {

namespace {

constexpr std::uint32_t kColorBits = 0xFFFFFF;

// Whether the rectangles from nBand to nRow stand at the same columns as those from nRow on.
bool SameRuns(const std::vector<MaskRect>& rects, std::size_t nBand, std::size_t nRow) {
    return nRow - nBand == rects.size() - nRow &&
           std::equal(rects.begin() + static_cast<std::ptrdiff_t>(nBand),
                      rects.begin() + static_cast<std::ptrdiff_t>(nRow),
                      rects.begin() + static_cast<std::ptrdiff_t>(nRow),
                      [](const MaskRect& a, const MaskRect& b) { return a.left == b.left && a.right == b.right; });
}

} // namespace

std::vector<MaskRect> VisibleRects(std::span<const std::uint32_t> pixels, std::int32_t width, std::uint32_t maskColor) {
    std::vector<MaskRect> rects;
    if (width < 1) return rects;
    const auto nWidth = static_cast<std::size_t>(width);
    std::size_t nBand = 0; // where the band above begins
    std::int32_t y = 0;
    for (std::size_t nRowStart = 0; nRowStart + nWidth <= pixels.size(); nRowStart += nWidth, ++y) {
        const std::span<const std::uint32_t> row = pixels.subspan(nRowStart, nWidth);
        const auto visible = [maskColor](std::uint32_t pixel) { return ((pixel ^ maskColor) & kColorBits) != 0; };
        const std::size_t nRow = rects.size();
        for (auto start = std::find_if(row.begin(), row.end(), visible); start != row.end();) {
            const auto end = std::find_if_not(start, row.end(), visible);
            rects.push_back({static_cast<std::int32_t>(start - row.begin()), y,
                             static_cast<std::int32_t>(end - row.begin()), y + 1});
            start = std::find_if(end, row.end(), visible);
        }
        if (nRow < rects.size() && nRow > nBand && rects[nBand].bottom == y && SameRuns(rects, nBand, nRow)) {
            rects.resize(nRow);
            for (std::size_t n = nBand; n < nRow; ++n)
                ++rects[n].bottom;
        } else {
            nBand = nRow;
        }
    }
    return rects;
}

} // namespace orvanta
