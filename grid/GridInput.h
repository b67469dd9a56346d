#pragma once

#include "base/Event.h"
#include "controls/contract/ContractEvents.h"
#include "grid/GridModel.h"

#include <cstdint>
#include <memory>

namespace orvanta {

// How the user moves the current row, selects, resizes and sorts columns, and scrolls. The window hands in what happens
// on the drawing surface, with positions in its pixels; Button and Shift are those of MouseEvents. In design mode
// nothing happens but that keys are told.
class GridInput {
public:
    // All of them outlive it. The events are those that the control raises.
    GridInput(GridModel& grid, GridView& view, const MouseEvents& mouse, const KeyEvents& keys)
        : m_grid(grid), m_view(view), m_mouse(mouse), m_keys(keys) {}

    void MouseDown(std::int16_t Button, std::int16_t Shift, float X, float Y);
    void MouseMove(std::int16_t Button, std::int16_t Shift, float X, float Y);
    void MouseUp(std::int16_t Button, std::int16_t Shift, float X, float Y);
    void Click();
    void DblClick();
    // A key that the grid acts on becomes 0.
    void KeyDown(std::int16_t& KeyCode, std::int16_t& Shift);
    // The words of WM_MOUSEWHEEL: the low and high one of its first parameter, and the position on the screen.
    void Wheel(std::int16_t iKeys, std::int16_t iDelta, std::int16_t iX, std::int16_t iY);

    // Button, Shift, the position on the screen, and whether it went down.
    Event<std::int16_t&, std::int16_t&, float&, float&, bool&> MouseWheel;

private:
    bool IsBesideRows(float X, float Y) const;
    void LeaveEdge();
    void LookForEdge(float X);
    bool SortByHeader();
    void ActOnKey(std::int16_t KeyCode);
    void MoveTo(std::int32_t iRow);

    GridModel& m_grid;
    GridView& m_view;
    const MouseEvents& m_mouse;
    const KeyEvents& m_keys;

    float m_sngDownX = 0;
    float m_sngDownY = 0;
    bool m_bDblClicked = false;
    bool m_bOnColEdge = false;
    std::int32_t m_iEdgeCol = -1;
    std::int32_t m_lEdgeColLeft = -1; // unscrolled, with shared borders
};

} // namespace orvanta
