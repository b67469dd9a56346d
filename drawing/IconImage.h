#pragma once

#include "drawing/clsDIBSection.h"

#include <windows.h>

#include <cstdint>

namespace orvanta {

// Copies of what an icon consists of: its colours and its mask, read by pixel from the top left. A monochrome icon has
// both in one bitmap of double height, the image below. A handle that is no icon gives an empty image. Raises what
// clsDIBSection raises.
class IconImage {
public:
    explicit IconImage(HICON icon);

    // Pixels.
    std::int32_t Width() const { return m_color.Width(); }
    std::int32_t Height() const { return m_color.Height(); }

    COLORREF Color(std::int32_t x, std::int32_t y) const { return GetPixel(m_color.Hdc(), x, y); }
    // True where what lies below the icon shows.
    bool IsMasked(std::int32_t x, std::int32_t y) const { return GetPixel(m_mask.Hdc(), x, y) != 0; }

private:
    void SplitMonochrome();

    clsDIBSection m_color;
    clsDIBSection m_mask;
};

} // namespace orvanta
