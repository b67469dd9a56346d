#include "grid/GridLayout.h"

#include "base/Failure.h"
#include "base/ResumeNext.h"
#include "base/Rounding.h"
#include "grid/CheckedLong.h"

#include <algorithm>

namespace orvanta {

namespace {

constexpr std::int32_t kFrame = 2; // between the control's edge and the drawing surface

} // namespace

std::int32_t GridLayout::Rows() const {
    return m_columns.Count() == 0 ? 0 : m_columns.At(1)->Rows();
}

void GridLayout::Reset() {
    m_iRowHeight = 0;
    m_lTotalWidth = 0;
    HScroll_Max(0);
    m_view.HScrollBar().Steps(25, 100);
    VScroll_Max(0);
    m_view.VScrollBar().Steps(1, 5);
}

void GridLayout::HideHScroll() {
    m_bHScrollShown = false;
    m_view.ShowHScroll(false);
}

void GridLayout::UpdateHScroll() {
    const std::int64_t lHidden = std::max(std::int64_t{m_lTotalWidth} - m_view.ScaleWidth(), std::int64_t{0});
    IgnoreFailure([&] { HScroll_Max(CheckedLong(lHidden)); });
    m_bHScrollShown = lHidden > 0;
    IgnoreFailure([&] { m_view.ShowHScroll(m_bHScrollShown); });
}

void GridLayout::UpdateVScroll() {
    const std::int32_t lRows = Rows();
    if (AllowMultiLineText) {
        IgnoreFailure([&] {
            std::int64_t lHidden = 0;
            if (lRows > 0) {
                const GridColumns::Column& first = *m_columns.At(1);
                const std::int64_t lHeight = std::int64_t{first.OffsetRow(lRows)} + first.CellHeight(lRows);
                if (lHeight > ViewPortHeight()) lHidden = m_iRowHeight + lHeight - ViewPortHeight();
            }
            VScroll_Max(CheckedLong(lHidden));
        });
        IgnoreFailure([&] { m_view.VScrollBar().Steps(25, 100); });
        return;
    }
    IgnoreFailure([&] {
        const std::int32_t lVisible = GetVisibleRows();
        const std::int32_t v = lVisible > 0 ? lVisible - 1 : lVisible;
        VScroll_Max(lRows > 0 && v < lRows ? CheckedLong(std::int64_t{lRows} - v + 1) : 0);
    });
    IgnoreFailure([&] { m_view.VScrollBar().Steps(1, 5); });
}

std::int32_t GridLayout::GetRowY(std::int32_t iRow) const {
    if (!AllowMultiLineText) return CheckedLong(std::int64_t{iRow} * (m_iRowHeight - 1) + kFrame);
    if (iRow < 1) return kFrame;
    return CheckedLong(std::int64_t{m_columns.At(1)->OffsetRow(iRow)} + kFrame + m_iRowHeight);
}

std::int32_t GridLayout::GetRowByAbsY(std::int32_t Y) const {
    std::int32_t iRow = 0;
    if (AllowMultiLineText) {
        iRow = RowByOffset(CheckedLong(std::int64_t{Y} - kFrame - m_iRowHeight));
    } else {
        if (m_iRowHeight == 1) throw DivisionByZero();
        iRow = CheckedLong(std::int64_t{Y} / (m_iRowHeight - 1));
    }
    return iRow > Rows() || iRow < 0 ? -1 : iRow;
}

std::int32_t GridLayout::GetRowByY(std::int32_t Y) const {
    if (AllowMultiLineText) return GetRowByAbsY(CheckedLong(std::int64_t{Y} + VScroll_Value()));
    if (m_iRowHeight == 1) throw DivisionByZero();
    const std::int64_t iRow = std::int64_t{Y} / (m_iRowHeight - 1) + VScroll_Value();
    return iRow > Rows() || iRow < 0 ? -1 : static_cast<std::int32_t>(iRow);
}

std::int32_t GridLayout::RowByOffset(std::int32_t l) const {
    const std::int32_t lRows = Rows();
    if (lRows == 0) return -1;
    const std::int32_t iBehind = m_columns.At(1)->FirstRowBehind(l);
    return iBehind == 0 ? lRows : iBehind - 1;
}

std::int32_t GridLayout::GetColX(std::int32_t iCol) const {
    std::int64_t lX = kFrame;
    for (std::int32_t i = 1; i < iCol; ++i) {
        const std::int32_t iWidth = m_columns.At(i)->iCurrentWidth;
        lX += iWidth - (iWidth > 0 ? 1 : 0);
    }
    return CheckedLong(lX);
}

std::int32_t GridLayout::GetColByX(std::int32_t X) const {
    const std::int64_t lX = std::int64_t{X} + HScroll_Value();
    std::int64_t lRight = 0;
    for (std::int32_t iCol = 1; iCol <= m_columns.Count(); ++iCol) {
        const std::int32_t iWidth = m_columns.At(iCol)->iCurrentWidth;
        const std::int64_t lLeft = lRight;
        lRight += iWidth - (iWidth > 0 ? 1 : 0);
        if (lLeft <= lX && lX < lRight) return iCol;
    }
    return -1;
}

std::int32_t GridLayout::GetColByAbsX(std::int32_t X) const {
    return GetColByX(CheckedLong(std::int64_t{X} - HScroll_Value()));
}

std::int32_t GridLayout::ScrolledRowTop(std::int32_t iRow) const {
    const std::int64_t lScrolled =
        AllowMultiLineText ? VScroll_Value() : std::int64_t{VScroll_Value()} * (m_iRowHeight - 1);
    return CheckedLong(GetRowY(iRow) - lScrolled);
}

bool GridLayout::IsRowCompletelyVisible(std::int32_t r) const {
    const std::int64_t lTop = ScrolledRowTop(r);
    const std::int64_t lBottom = lTop + (AllowMultiLineText ? m_columns.At(1)->CellHeight(r) : m_iRowHeight);
    return lBottom <= ViewPortHeight() && lTop >= m_iRowHeight;
}

std::int16_t GridLayout::GetVisibleRows() const {
    if (AllowMultiLineText) return -1;
    if (m_iRowHeight == 0) return 0;
    if (m_iRowHeight == 1) throw DivisionByZero();
    const std::int32_t lRows = ViewPortHeight() / (m_iRowHeight - 1);
    return RoundToInteger<std::int16_t>(lRows);
}

std::int32_t GridLayout::CellHeight(std::int32_t iRow, const TaggedValue& vColKey) const {
    return AllowMultiLineText && iRow >= 1 ? m_columns.Find(vColKey)->CellHeight(iRow) : m_iRowHeight;
}

std::int32_t GridLayout::ColWidth(const TaggedValue& vColKey) const {
    const GridColumns::Column& column = *m_columns.Find(vColKey);
    return column.iMaxWidth != -1 ? column.iMaxWidth : column.iCurrentWidth;
}

void GridLayout::GetCellRect(std::int32_t iRow, std::int32_t iCol, std::int32_t& X1, std::int32_t& Y1, std::int32_t& X2,
                             std::int32_t& Y2) const {
    X1 = CheckedLong(std::int64_t{GetColX(iCol)} - HScroll_Value());
    X2 = CheckedLong(std::int64_t{X1} + ColWidth(iCol));
    Y1 = ScrolledRowTop(iRow);
    Y2 = CheckedLong(std::int64_t{Y1} + CellHeight(iRow, iCol) - 1); // the only edge without its last pixel
}

void GridLayout::GetCellAbsRect(std::int32_t iRow, std::int32_t iCol, std::int32_t& X1, std::int32_t& Y1,
                                std::int32_t& X2, std::int32_t& Y2) const {
    X1 = GetColX(iCol);
    Y1 = GetRowY(iRow);
    X2 = CheckedLong(std::int64_t{X1} + ColWidth(iCol));
    Y2 = CheckedLong(std::int64_t{Y1} + CellHeight(iRow, iCol));
}

} // namespace orvanta
