#include "grid/GridInput.h"

#include "base/Rounding.h"

#include <algorithm>

namespace orvanta {

namespace {

constexpr std::int16_t kLeftButton = 1;
constexpr std::int32_t kEdgeReach = 3; // pixels to either side of a column's right edge
constexpr std::int32_t kKeyScroll = 10;
constexpr std::int32_t kPageOfManyLines = 5;

// The platform's virtual key codes.
constexpr std::int16_t kPageUp = 33;
constexpr std::int16_t kPageDown = 34;
constexpr std::int16_t kEnd = 35;
constexpr std::int16_t kHome = 36;
constexpr std::int16_t kLeft = 37;
constexpr std::int16_t kUp = 38;
constexpr std::int16_t kRight = 39;
constexpr std::int16_t kDown = 40;

std::int32_t Pixel(float sng) {
    return RoundToInteger<std::int32_t>(sng);
}

} // namespace

// In the header, or right of the last column.
bool GridInput::IsBesideRows(float X, float Y) const {
    const GridLayout& layout = m_grid.Layout();
    return layout.IsHeaderCoord(Pixel(Y)) || (layout.HScroll_Max() < 1 && Pixel(X) >= layout.TotalWidth());
}

void GridInput::MouseDown(std::int16_t Button, std::int16_t Shift, float X, float Y) {
    if (!m_view.UserMode()) return;
    m_sngDownX = X;
    m_sngDownY = Y;
    m_bDblClicked = false;
    if (Button == kLeftButton && !IsBesideRows(X, Y)) {
        const std::int32_t iRow = m_grid.Layout().GetRowByY(Pixel(Y));
        if (iRow >= 0 && iRow <= m_grid.Rows()) {
            const std::weak_ptr<const bool> alive = m_grid.Layout().Watch();
            m_grid.ApplyRowSelection(iRow, false, false);
            m_grid.MoveTo(iRow);
            if (!m_grid.FocusSelectedRow(true, true)) return;
            m_grid.SelectionChange.Raise();
            if (alive.expired()) return;
        }
    }
    m_mouse.MouseDown.Raise(Button, Shift, X, Y);
}

void GridInput::Click() {
    if (m_view.UserMode() && !IsBesideRows(m_sngDownX, m_sngDownY)) m_mouse.Click.Raise();
}

void GridInput::DblClick() {
    if (!m_view.UserMode()) return;
    m_bDblClicked = true;
    if (m_bOnColEdge) {
        const std::weak_ptr<const bool> alive = m_grid.Layout().Watch();
        const std::int32_t iCol = m_iEdgeCol;
        m_bOnColEdge = false;
        if (m_grid.ColResizable(iCol)) m_grid.ColWidth(iCol, -1);
        if (alive.expired()) return;
    }
    if (!IsBesideRows(m_sngDownX, m_sngDownY)) m_mouse.DblClick.Raise();
}

void GridInput::MouseMove(std::int16_t Button, std::int16_t Shift, float X, float Y) {
    if (!m_view.UserMode()) return;
    m_bDblClicked = false;
    m_view.ShowTip();
    const std::weak_ptr<const bool> alive = m_grid.Layout().Watch();
    const std::int16_t iButton = Button;
    const float sngX = X;
    const float sngY = Y;
    m_mouse.MouseMove.Raise(Button, Shift, X, Y);
    if (alive.expired()) return;
    if (iButton == kLeftButton && m_bOnColEdge) {
        const double dWidth = double{sngX} + m_grid.Layout().HScroll_Value() - m_lEdgeColLeft;
        m_grid.ColWidth(m_iEdgeCol, RoundToInteger<std::int32_t>(std::max(dWidth, 0.0)));
    }
    if (iButton != 0) return;
    if (m_grid.Layout().IsHeaderCoord(Pixel(sngY))) {
        LookForEdge(sngX);
    } else {
        LeaveEdge();
    }
}

void GridInput::LeaveEdge() {
    m_bOnColEdge = false;
    m_iEdgeCol = -1;
    m_lEdgeColLeft = -1;
    m_view.EdgePointer(false);
}

void GridInput::LookForEdge(float X) {
    const double dX = double{X} + m_grid.Layout().HScroll_Value();
    std::int32_t lRight = 0;
    for (std::int32_t iCol = 1; iCol <= m_grid.Columns().Count(); ++iCol) {
        const clsCtlUniGrid_Column& column = *m_grid.Columns().At(iCol);
        lRight += column.iCurrentWidth - (column.iCurrentWidth > 0 ? 1 : 0);
        if (!column.bResizable || dX <= lRight - kEdgeReach || dX >= lRight + kEdgeReach) continue;
        m_bOnColEdge = true;
        m_iEdgeCol = iCol;
        m_lEdgeColLeft = lRight - column.iCurrentWidth;
        m_view.EdgePointer(true);
        return;
    }
    LeaveEdge();
}

void GridInput::MouseUp(std::int16_t Button, std::int16_t Shift, float X, float Y) {
    if (!m_view.UserMode()) return;
    // Any sideways move between press and release cancels the sort.
    if (Button == kLeftButton && m_grid.Layout().IsHeaderCoord(Pixel(m_sngDownY)) && !m_bOnColEdge && !m_bDblClicked &&
        X == m_sngDownX && !SortByHeader())
        return;
    m_bDblClicked = false;
    m_mouse.MouseUp.Raise(Button, Shift, X, Y);
}

bool GridInput::SortByHeader() {
    const std::int32_t iCol = m_grid.Layout().GetColByX(Pixel(m_sngDownX));
    if (iCol == -1 || !m_grid.ColSortable(iCol)) return true;
    const std::weak_ptr<const bool> alive = m_grid.Layout().Watch();
    m_grid.SortByColum(iCol, m_grid.HasSortArrow(iCol) ? !m_grid.SortAsc() : true);
    return !alive.expired();
}

void GridInput::KeyDown(std::int16_t& KeyCode, std::int16_t& Shift) {
    const std::weak_ptr<const bool> alive = m_grid.Layout().Watch();
    m_keys.KeyDown.Raise(KeyCode, Shift);
    if (alive.expired() || !m_view.UserMode()) return;
    const std::int16_t iKey = KeyCode;
    if (iKey < kPageUp || iKey > kDown) return;
    KeyCode = 0; // also when the row cannot move
    ActOnKey(iKey);
    if (!alive.expired()) m_grid.ApplyRowSelection(m_grid.Row(), true, true);
}

void GridInput::ActOnKey(std::int16_t KeyCode) {
    GridLayout& layout = m_grid.Layout();
    const std::int32_t lRow = m_grid.Row();
    const std::int32_t lRows = m_grid.Rows();
    const auto page = [&] {
        return m_grid.AllowMultiLineText() ? kPageOfManyLines
                                           : RoundToInteger<std::int32_t>(layout.GetVisibleRows() / 2.0);
    };
    switch (KeyCode) {
    case kDown:
        if (lRow < lRows) MoveTo(lRow + 1);
        break;
    case kUp:
        if (lRow >= 2) MoveTo(lRow - 1);
        break;
    case kPageDown: MoveTo(std::min(lRow + page(), lRows)); break;
    case kPageUp: MoveTo(std::max(lRow - page(), 1)); break;
    case kEnd:
        if (lRows > 0) MoveTo(lRows);
        break;
    case kHome: {
        const std::weak_ptr<const bool> alive = layout.Watch();
        if (lRows > 0) {
            MoveTo(1);
        } else {
            layout.VScroll_Value(0);
        }
        if (!alive.expired()) layout.HScroll_Value(0);
        break;
    }
    case kRight: layout.HScroll_Value(std::min(layout.HScroll_Value() + kKeyScroll, layout.HScroll_Max())); break;
    case kLeft: layout.HScroll_Value(std::max(layout.HScroll_Value() - kKeyScroll, 0)); break;
    default: break;
    }
}

// With several rows to select the picture is left to the selection rules.
void GridInput::MoveTo(std::int32_t iRow) {
    m_grid.MoveTo(iRow);
    if (m_grid.FocusSelectedRow(!m_grid.MultiSelect(), true)) m_grid.SelectionChange.Raise();
}

void GridInput::Wheel(std::int16_t iKeys, std::int16_t iDelta, std::int16_t iX, std::int16_t iY) {
    const std::weak_ptr<const bool> alive = m_grid.Layout().Watch();
    float X = iX;
    float Y = iY;
    std::int16_t Shift = m_view.KeyShiftState();
    auto Button =
        static_cast<std::int16_t>((iKeys & 1) | (iKeys & 2) | ((iKeys & 16) != 0 ? 4 : 0)); // left, right, middle
    bool bDown = iDelta < 0;
    MouseWheel.Raise(Button, Shift, X, Y, bDown);
    if (alive.expired() || !m_grid.ScrollOnMouseWheel()) return;

    // One step, whatever the size of the delta.
    GridLayout& layout = m_grid.Layout();
    const std::int32_t lStep = m_grid.AllowMultiLineText() ? 25 : 3;
    const std::int32_t lValue = layout.VScroll_Value();
    if (bDown) {
        layout.VScroll_Value(lValue > layout.VScroll_Max() - lStep ? layout.VScroll_Max() : lValue + lStep);
    } else {
        layout.VScroll_Value(lValue < lStep ? 0 : lValue - lStep);
    }
}

} // namespace orvanta
