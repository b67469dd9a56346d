#include "grid/GridPainter.h"

#include "base/ResumeNext.h"
#include "base/Rounding.h"
#include "base/Text.h"

#include <algorithm>
#include <memory>

namespace orvanta {

namespace {

using Target = GridCanvas::Target;
using Mark = GridCanvas::Mark;

// The platform's flags of text.
constexpr std::uint32_t kTextCenter = 0x1;
constexpr std::uint32_t kTextRight = 0x2;
constexpr std::uint32_t kOneLine = 0x824;   // centred from top to bottom, without prefix characters
constexpr std::uint32_t kManyLines = 0x810; // broken between words, without prefix characters
constexpr std::uint32_t kRightToLeft = 0x20000;

constexpr std::int32_t kArrowGap = 2;
constexpr std::int32_t kInside = 2;
constexpr std::int32_t kPicturePadding = 6;

std::uint32_t CellFlags(const clsCtlUniGrid_Column& column) {
    const std::uint32_t align = column.iAlign == 2 ? kTextCenter : column.iAlign == 1 ? kTextRight : 0;
    return align | (column.bRightToLeft ? kRightToLeft : 0);
}

// Unlike with cells, an alignment that is none means right.
std::uint32_t HeaderFlags(const clsCtlUniGrid_Column& column) {
    const std::uint32_t align = column.iHeaderAlign == 2 ? kTextCenter : column.iHeaderAlign == 0 ? 0 : kTextRight;
    return kOneLine | align | (column.bRightToLeft ? kRightToLeft : 0);
}

PixelRect CellTextRect(const PixelRect& rect) {
    return {rect.left + 4, rect.top, rect.right - 6, rect.bottom};
}

} // namespace

GridPainter::GridPainter(GridModel& grid, GridCanvas& canvas)
    : m_grid(grid), m_canvas(canvas), m_frameColor(BorderColorFor(grid.BorderColor(), grid.BackColor())),
      m_lineColor(BorderColorFor(grid.CellsBorderColor(), grid.BackColor())) {}

void GridPainter::Ground() {
    IgnoreFailure([&] { m_canvas.DrawFrame(m_grid.BackColor(), m_frameColor); });
    IgnoreFailure([&] { m_canvas.FillSurface(m_grid.BackColor()); });
}

bool GridPainter::Paint(bool bEnabled, std::int32_t lWidth, std::int32_t lHeight) {
    m_bEnabled = bEnabled;
    Ground();
    const bool bSheet = m_grid.AllowMultiLineText();
    if (bSheet) IgnoreFailure([&] { m_canvas.BeginSheet(m_grid.BackColor()); });
    std::int32_t x = -m_grid.Layout().HScroll_Value();
    for (std::int32_t iCol = 1; iCol <= m_grid.Columns().Count(); ++iCol) {
        const GridColumns::Ref column = m_grid.Columns().At(iCol);
        const std::int32_t iWidth = column->iCurrentWidth;
        if (iWidth > 0 && x + iWidth >= 0) {
            const ColumnPlace place{iCol, x, bSheet ? Target::Sheet : Target::Surface, CellFlags(*column)};
            PaintHeader(*column, place);
            bool bThere = true;
            IgnoreFailure([&] { bThere = PaintCells(*column, place, lHeight); });
            if (!bThere) return false;
            if (bSheet && column->Rows() > 0)
                IgnoreFailure([&] { m_canvas.CopyFromSheet(x, iWidth, m_grid.Layout().RowHeight()); });
        }
        if (iWidth <= 0) continue;
        x += iWidth - 1;
        if (lWidth < x) break;
    }
    if (bSheet) IgnoreFailure([&] { m_canvas.EndSheet(); });
    return true;
}

void GridPainter::PaintHeader(const clsCtlUniGrid_Column& column, const ColumnPlace& place) {
    const PixelRect rect{place.x, 0, place.x + column.iCurrentWidth, m_grid.Layout().RowHeight()};
    PixelRect text{rect.left + 4, rect.top, rect.right - 5, rect.bottom};
    if (column.bSortable) text.right = std::max(text.right - GridLayout::kSortArrowWidth - kArrowGap, text.left);
    IgnoreFailure(
        [&] { m_canvas.DrawFace(Target::Surface, rect, m_grid.HeaderBackColor(), false, m_grid.HeaderStyle()); });
    IgnoreFailure([&] { m_canvas.Frame(Target::Surface, rect, m_lineColor); });
    if (m_grid.HasSortArrow(place.iCol)) {
        const PixelRect box{rect.right - GridLayout::kSortArrowWidth - 1, rect.top, rect.right, rect.bottom};
        IgnoreFailure(
            [&] { m_canvas.DrawMark(Target::Surface, m_grid.SortAsc() ? Mark::SortDown : Mark::SortUp, box); });
    }
    IgnoreFailure(
        [&] { m_canvas.Text(Target::Surface, column.sText, text, m_grid.HeaderForeColor(), HeaderFlags(column)); });
}

bool GridPainter::PaintCells(const clsCtlUniGrid_Column& column, const ColumnPlace& place, std::int32_t lHeight) {
    if (column.Rows() == 0) return true;
    const GridLayout& layout = m_grid.Layout();
    const bool bManyLines = m_grid.AllowMultiLineText();
    std::int32_t iRow = bManyLines ? layout.RowByOffset(layout.VScroll_Value()) : layout.VScroll_Value() + 1;
    std::int32_t y = layout.RowHeight() - 1;
    if (bManyLines) y = m_grid.Columns().At(1)->OffsetRow(iRow) - layout.VScroll_Value();
    for (; iRow <= column.Rows(); ++iRow) {
        const std::int32_t lRowHeight = bManyLines ? column.CellHeight(iRow) : layout.RowHeight();
        const PixelRect rect{place.x, y, place.x + column.iCurrentWidth, y + lRowHeight};
        if (!PaintCell(column, place, iRow, rect)) return false;
        y += lRowHeight - 1;
        if (lHeight < y) break;
    }
    return true;
}

bool GridPainter::PaintCell(const clsCtlUniGrid_Column& column, const ColumnPlace& place, std::int32_t iRow,
                            const PixelRect& rect) {
    const bool bCurrent = iRow == m_grid.Row();
    const bool bSelected = m_grid.MultiSelect() ? m_grid.Columns().At(1)->Selected(iRow) : bCurrent;
    OleColor foreColor = column.ForeColor(iRow) == kAutomatic ? m_grid.ForeColor() : column.ForeColor(iRow);
    OleColor backColor = column.BackColor(iRow) == kAutomatic ? m_grid.BackColor() : column.BackColor(iRow);
    if (bSelected) {
        foreColor = m_grid.SelForeColor();
        backColor = m_grid.SelBackColor();
    }
    IgnoreFailure([&] {
        if (bCurrent) {
            const bool bFocus = m_grid.ShowFocus() && m_grid.HasFocus() && m_bEnabled;
            m_canvas.DrawFace(place.target, rect, backColor, bFocus, m_grid.SelectorStyle());
        } else {
            m_canvas.Fill(place.target, rect, backColor);
        }
    });
    IgnoreFailure([&] { m_canvas.Frame(place.target, rect, m_lineColor); });
    IgnoreFailure([&] { PaintContent(column, place, iRow, rect, foreColor); });
    return PaintPicture(column, place, iRow, rect);
}

void GridPainter::PaintContent(const clsCtlUniGrid_Column& column, const ColumnPlace& place, std::int32_t iRow,
                               const PixelRect& rect, OleColor foreColor) {
    PixelRect text = CellTextRect(rect);
    if (column.iType == 2) {
        if (column.Value(iRow).ToBoolean()) m_canvas.DrawMark(place.target, Mark::Flag, text);
        return;
    }
    std::u16string sBuffer;
    const std::u16string_view s = column.DisplayText(iRow, sBuffer);
    if (!m_grid.AllowMultiLineText()) {
        m_canvas.Text(place.target, s, text, foreColor, kOneLine | place.flags);
        return;
    }
    text.top += RoundToInteger<std::int32_t>((column.CellHeight(iRow) - column.TextHeight(iRow)) / 2.0);
    m_canvas.Text(place.target, s, text, foreColor, kManyLines | place.flags);
}

// Over the text. The size that the owner gives counts in the layout only.
bool GridPainter::PaintPicture(const clsCtlUniGrid_Column& column, const ColumnPlace& place, std::int32_t iRow,
                               const PixelRect& rect) {
    const std::weak_ptr<const bool> alive = m_grid.Layout().Watch();
    CellPicture picture;
    IgnoreFailure([&] { picture = m_grid.Layout().AskOwner(column, place.iCol, iRow, 1).cell; });
    if (alive.expired()) return false;
    if (!picture.oPic) return true;
    IgnoreFailure([&] {
        const std::int32_t lCellHeight = m_grid.CellHeight(iRow, place.iCol);
        m_canvas.DrawPicture(place.target, picture, rect.Shrunk(kInside), column.iCurrentWidth,
                             lCellHeight - kPicturePadding);
    });
    return true;
}

void GridPainter::PaintPreview(std::u16string_view sName) {
    Ground();
    const auto cell = [this](const PixelRect& rect, OleColor back, std::int32_t style) {
        IgnoreFailure([&] { m_canvas.DrawFace(Target::Surface, rect, back, false, style); });
        IgnoreFailure([&] { m_canvas.Frame(Target::Surface, rect, m_lineColor); });
    };
    const PixelRect last{49, 14, 100, 30};
    cell({0, 0, 50, 15}, m_grid.HeaderBackColor(), m_grid.HeaderStyle());
    cell({49, 0, 100, 15}, m_grid.HeaderBackColor(), m_grid.HeaderStyle());
    cell({0, 14, 50, 30}, m_grid.SelBackColor(), m_grid.SelectorStyle());
    cell(last, m_grid.SelBackColor(), m_grid.SelectorStyle());
    IgnoreFailure(
        [&] { m_canvas.Text(Target::Surface, sName, last.Shrunk(kInside), m_grid.SelForeColor(), kOneLine); });
}

} // namespace orvanta
