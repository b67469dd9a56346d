#pragma once

#include "base/PixelRect.h"

#include <cstdint>

namespace orvanta {

// Where the text of a label goes, and how a label that follows its text grows. Units are pixels of the client area.
struct LabelLayout {
    std::int32_t Alignment = 0;  // 0 left, 1 right, 2 centred
    std::int32_t VAlignment = 0; // 0 top, 1 centred, 2 bottom
    std::int32_t BorderStyle = 0;
    bool AutoSize = false;
    std::int16_t Margin = 0;

    bool HasBorder() const { return BorderStyle == 1; }

    // What a label that follows its text has around it, both sides together. Overflow beyond 16 bits.
    std::int16_t Extra() const;

    // The rectangle of the text in a client area of that size.
    PixelRect TextRect(std::int32_t lWidth, std::int32_t lHeight) const;

    // True when the text's top depends on its height.
    bool PlacesByHeight() const { return !AutoSize && VAlignment != 0; }
    // The top of a text of that height; negative when it is higher than the label, so that both ends are cut.
    std::int32_t TextTop(const PixelRect& text, std::int32_t lTextHeight) const;

    // The flags of DrawTextW.
    std::uint32_t TextFlags() const;

    // The left edge, in pixels of the container, of a label that goes from one width to another: it keeps its left
    // edge, its right edge or its centre. Only the step is rounded; a fraction of the edge itself stays.
    double LeftEdge(double dLeft, std::int32_t lWidth, std::int32_t lNewWidth) const;
};

} // namespace orvanta
