#pragma once

#include <cstdint>
#include <string_view>

namespace orvanta {

// A scroll bar with the 16-bit values of the platform's. Its minimum is 0. A value beyond its range is clamped, and a
// maximum that falls below the value pulls the value along; whenever the value changes the bar tells the grid.
class GridBar {
public:
    virtual ~GridBar() = default;
    virtual std::int16_t Max() const = 0;
    virtual void Max(std::int16_t iMax) = 0;
    virtual std::int16_t Value() const = 0;
    virtual void Value(std::int16_t iValue) = 0;
    // What an arrow and what the shaft moves.
    virtual void Steps(std::int16_t iSmallChange, std::int16_t iLargeChange) = 0;
};

// What the grid needs of the window it stands on: the surface that header and cells are drawn on, its font, the two
// bars beside it, and the picture itself. All sizes are pixels.
class GridView {
public:
    virtual ~GridView() = default;

    // Run mode; in design mode there are no columns and nothing but a preview.
    virtual bool UserMode() const = 0;

    // The client size of the surface. The horizontal bar lies over its bottom edge.
    virtual std::int32_t ScaleWidth() const = 0;
    virtual std::int32_t ScaleHeight() const = 0;
    virtual std::int32_t HScrollHeight() const = 0;

    // Text in the font of the surface, without prefix characters: on one line, or with lines broken between words at
    // width w. Without bKeepWidth w becomes that of the widest line as it stands.
    virtual void MeasureTextLine(std::u16string_view s, std::int32_t& w, std::int32_t& h) = 0;
    virtual void MeasureTextBlock(std::u16string_view s, bool bKeepWidth, std::int32_t& w, std::int32_t& h) = 0;
    // Another number whenever text would measure otherwise than before.
    virtual std::uint64_t FontStamp() const = 0;

    virtual GridBar& VScrollBar() = 0;
    virtual GridBar& HScrollBar() = 0;
    virtual void ShowHScroll(bool bVisible) = 0;

    // Draws frame, header and cells as the grid stands, and shows the picture at once or with the next paint.
    virtual void Paint(bool bRefreshNow) = 0;
    virtual void PaintPreview() = 0;

    // The pointer over the surface: that of a column edge, or the usual one.
    virtual void EdgePointer(bool bOnEdge) = 0;
    virtual void ShowTip() = 0;

    // 1 Shift, 2 Ctrl, 4 Alt, as the keyboard stands now.
    virtual std::int16_t KeyShiftState() const = 0;
};

} // namespace orvanta
