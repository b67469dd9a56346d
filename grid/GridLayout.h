#pragma once

#include "grid/GridColumns.h"
#include "grid/GridPicture.h"
#include "grid/GridView.h"
#include "grid/ScaledBar.h"

#include <cstdint>
#include <memory>
#include <string_view>

namespace orvanta {

// Turns columns and rows into pixels and back. In single-line mode all rows have the height of the header and the
// vertical bar counts rows; in multi-line mode each row has its own and the bar counts pixels. Neighbours share their
// border line.
//
// Two coordinate frames, and callers rely on the difference: GetRowByY, GetColByX, IsHeaderCoord and GetCellRect count
// from the top left of the drawing surface, scrolled; GetRowY, GetColX and GetCellAbsRect from that of the control,
// where the surface begins at 2, unscrolled. Row 0 is the header.
class GridLayout {
public:
    // All of them outlive the layout.
    GridLayout(const GridColumns& columns, GridView& view, const OwnerDrawPictureEvent& ownerDraw)
        : m_columns(columns), m_view(view), m_ownerDraw(ownerDraw) {}

    // Cells up to this row count in an automatic width in single-line mode: large tables stay fast.
    static constexpr std::int32_t kLastMeasuredRow = 749;
    static constexpr std::int32_t kFlagSize = 7;       // the check mark, square
    static constexpr std::int32_t kSortArrowWidth = 9; // either arrow
    static constexpr std::int32_t kSortArrowHeight = 4;

    bool AllowMultiLineText = false;
    std::int16_t MinRowHeight = 0;

    std::int16_t RowHeight() const { return m_iRowHeight; }   // of the header and, in single-line mode, of each row
    std::int32_t TotalWidth() const { return m_lTotalWidth; } // of all columns
    bool HScrollShown() const { return m_bHScrollShown; }
    std::int32_t OwnerDrawState() const { return m_lOwnerDrawState; } // 0 measuring, 1 drawing

    std::int32_t Rows() const; // of the first column

    // As if nothing had been measured yet, with the bars at rest.
    void Reset();
    void HideHScroll();

    // Measures rows and columns. False when an owner's handler destroyed the grid meanwhile: touch nothing then.
    bool CalcSizes();
    bool NeedsSizes() const { return m_iRowHeight <= 0 || m_lTotalWidth <= 0; }
    // Sets the ranges of the bars, and shows or hides the horizontal one.
    void UpdateHScroll();
    void UpdateVScroll();

    std::int32_t GetRowY(std::int32_t iRow) const;
    std::int32_t GetRowByY(std::int32_t Y) const;
    std::int32_t GetRowByAbsY(std::int32_t Y) const;
    std::int32_t GetColX(std::int32_t iCol) const;
    std::int32_t GetColByX(std::int32_t X) const;
    std::int32_t GetColByAbsX(std::int32_t X) const;
    bool IsHeaderCoord(std::int32_t Y) const { return Y < m_iRowHeight; }
    bool IsRowCompletelyVisible(std::int32_t r) const;
    std::int16_t GetVisibleRows() const; // with the line of the header; -1 in multi-line mode
    std::int32_t CellHeight(std::int32_t iRow, const TaggedValue& vColKey) const;
    std::int32_t ColWidth(const TaggedValue& vColKey) const;
    void GetCellRect(std::int32_t iRow, std::int32_t iCol, std::int32_t& X1, std::int32_t& Y1, std::int32_t& X2,
                     std::int32_t& Y2) const;
    void GetCellAbsRect(std::int32_t iRow, std::int32_t iCol, std::int32_t& X1, std::int32_t& Y1, std::int32_t& X2,
                        std::int32_t& Y2) const;
    // The row at or above an offset from the first row, 0 above it, the last row below all; -1 without rows.
    std::int32_t RowByOffset(std::int32_t l) const;

    std::int32_t ViewPortWidth() const { return m_view.ScaleWidth(); }
    std::int32_t ViewPortHeight() const {
        return m_view.ScaleHeight() - (m_bHScrollShown ? m_view.HScrollHeight() : 0);
    }

    std::int32_t VScroll_Max() const { return m_vertical.Max(m_view.VScrollBar()); }
    void VScroll_Max(std::int32_t l) { m_vertical.Max(m_view.VScrollBar(), l); }
    std::int32_t VScroll_Value() const { return m_vertical.Value(m_view.VScrollBar()); }
    void VScroll_Value(std::int32_t l) { m_vertical.Value(m_view.VScrollBar(), l); }
    std::int32_t HScroll_Max() const { return m_horizontal.Max(m_view.HScrollBar()); }
    void HScroll_Max(std::int32_t l) { m_horizontal.Max(m_view.HScrollBar(), l); }
    std::int32_t HScroll_Value() const { return m_horizontal.Value(m_view.HScrollBar()); }
    void HScroll_Value(std::int32_t l) { m_horizontal.Value(m_view.HScrollBar(), l); }

    // The cell's picture as the owner wants it, asked while measuring (lState 0) or drawing (1). Look after the call
    // whether the grid is still there.
    OwnerPicture AskOwner(const GridColumns::Column& column, std::int32_t iCol, std::int32_t iRow, std::int32_t lState);

    // Expires with the grid, or when it leaves its window.
    std::weak_ptr<const bool> Watch() const { return m_alive; }
    void Leave() { m_alive.reset(); }

private:
    void MeasureRowHeight();
    bool MeasureColumn(GridColumns::Column& column, std::int32_t iCol);
    std::int32_t HeaderWidth(const GridColumns::Column& column, GridColumns::Column::Findings& found);
    bool MeasureCell(GridColumns::Column& column, std::int32_t iCol, std::int32_t iRow, CellStore::Measure& measure);
    CellStore::Measure MeasureText(GridColumns::Column& column, std::int32_t iRow);
    void PlaceRows();
    std::int32_t TallestCell(std::int32_t iRow) const;
    void SumWidths();
    std::int32_t ScrolledRowTop(std::int32_t iRow) const;

    const GridColumns& m_columns;
    GridView& m_view;
    const OwnerDrawPictureEvent& m_ownerDraw;
    ScaledBar m_vertical;
    ScaledBar m_horizontal;
    std::int16_t m_iRowHeight = 0;
    std::int32_t m_lTotalWidth = 0;
    std::int32_t m_lOwnerDrawState = 0;
    bool m_bHScrollShown = false;

    // What was found last, so that only what changed is looked at again.
    std::int32_t m_lTextLineHeight = 0;
    std::uint64_t m_nTextLineFont = 0;
    std::uint64_t m_nPlacedColumns = 0;
    std::int32_t m_lPlacedRowHeight = -1;
    std::int32_t m_lResizedFrom = 1;
    std::shared_ptr<const bool> m_alive = std::make_shared<const bool>(true);
};

} // namespace orvanta
