#include "tests/reference/PlainGrid.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

namespace orvanta::reference {

namespace {

// The processor rounds halves to even unless told otherwise.
std::int32_t Nearest(double d) {
    return static_cast<std::int32_t>(std::nearbyint(d));
}

struct Sorted {
    TaggedValue vValue;
    std::int32_t iRow;
};

struct PlainSort {
    std::vector<Sorted> rows; // rows[0] is not used
    bool bText;
    const PlainTextCompare& compare;

    int Compare(const TaggedValue& a, const TaggedValue& b) const {
        if (bText) return compare(a.ToText(), b.ToText());
        const auto order = a.Compare(b);
        return order < 0 ? -1 : order > 0 ? 1 : 0;
    }
    Sorted& At(std::int32_t l) { return rows[static_cast<std::size_t>(l)]; }

    void Quick(std::int32_t lFirst, std::int32_t lLast) {
        if (lLast - lFirst < 20) return Insertion(lFirst, lLast);
        std::int32_t i = lFirst;
        std::int32_t j = lLast;
        const TaggedValue vPivot = At(Nearest((lFirst + lLast) / 2.0)).vValue;
        while (i <= j) {
            while (i < lLast && Compare(At(i).vValue, vPivot) < 0)
                i++;
            while (j > lFirst && Compare(At(j).vValue, vPivot) > 0)
                j--;
            if (i <= j) {
                std::swap(At(i), At(j));
                i++;
                j--;
            }
        }
        if (lFirst < j) Quick(lFirst, j);
        if (i < lLast) Quick(i, lLast);
    }

    void Insertion(std::int32_t lFirst, std::int32_t lLast) {
        for (std::int32_t i = lFirst + 1; i <= lLast; i++) {
            const Sorted held = At(i);
            std::int32_t j = i - 1;
            while (j >= lFirst && Compare(At(j).vValue, held.vValue) == 1) {
                At(j + 1) = At(j);
                j--;
            }
            At(j + 1) = held;
        }
    }
};

TaggedValue OfType(std::int32_t iType, const TaggedValue& v) {
    if (iType == 0) return v.ToText();
    if (iType == 1) return v.ToFloat();
    return v.ToBoolean();
}

} // namespace

void PlainColumn::AddRow(const TaggedValue* vValue) {
    lRows++;
    if (static_cast<std::size_t>(lRows) == cells.size()) cells.emplace_back();
    PlainCell fresh;
    fresh.vTag = Row(lRows).vTag;
    if (vValue != nullptr) {
        fresh.vValue = OfType(iType, *vValue);
    } else {
        fresh.vValue = iType == 0 ? TaggedValue(u"") : iType == 1 ? TaggedValue(std::int32_t{0}) : TaggedValue(false);
    }
    Row(lRows) = fresh;
}

void PlainColumn::RemoveRow(std::int32_t iRow) {
    if (lRows == 0) return;
    if (iRow == -1) iRow = lRows;
    const PlainCell removed = Row(iRow);
    for (std::int32_t i = iRow; i < lRows; i++)
        Row(i) = Row(i + 1);
    Row(lRows) = removed;
    lRows--;
}

void PlainColumn::ClearRows() {
    iCurrentWidth = 0;
    lRows = 0;
    cells.assign(1, PlainCell());
}

void PlainColumn::SetOrder(const std::vector<std::int32_t>& order) {
    const std::vector<PlainCell> copy = cells;
    for (std::int32_t i = 1; i <= lRows; i++)
        Row(i) = copy[static_cast<std::size_t>(order[static_cast<std::size_t>(i) - 1])];
}

void PlainBar::SetMax(std::int32_t l) {
    lScale = Nearest(l / 30000.0 + 1);
    lMax = Nearest(static_cast<double>(l) / lScale);
    lValue = std::min(lValue, lMax);
}

void PlainBar::SetValue(std::int32_t l) {
    lValue = std::clamp(Nearest(static_cast<double>(l) / lScale), 0, lMax);
}

std::vector<std::int32_t> PlainSortedRows(const PlainColumn& column, const PlainTextCompare& compare) {
    PlainSort sort{{Sorted{TaggedValue(), 0}}, column.iType == 0, compare};
    for (std::int32_t i = 1; i <= column.lRows; i++)
        sort.rows.push_back({column.Row(i).vValue, i});
    sort.Quick(1, column.lRows);
    std::vector<std::int32_t> order;
    for (std::size_t n = 1; n < sort.rows.size(); n++)
        order.push_back(sort.rows[n].iRow);
    return order;
}

void PlainGrid::AddRow(std::u16string_view sText, bool bSelect) {
    std::vector<TaggedValue> parts;
    for (std::size_t nFrom = 0; !sText.empty();) {
        const std::size_t nTab = sText.find(u'\t', nFrom);
        parts.emplace_back(sText.substr(nFrom, nTab - nFrom));
        if (nTab == std::u16string_view::npos) break;
        nFrom = nTab + 1;
    }
    for (std::size_t n = 0; n < columns.size(); n++)
        columns[n].AddRow(n < parts.size() ? &parts[n] : nullptr);
    if (bSelect) {
        lRow = Rows();
        Focus();
    }
    Redraw(true);
}

void PlainGrid::RemoveRow(std::int32_t iRow) {
    for (PlainColumn& column : columns)
        column.RemoveRow(iRow);
    if (iRow >= 1 && iRow == lRow) {
        if (lRow > Rows()) lRow = Rows();
        if (lRow == 0) lRow = -1;
        Focus();
    }
    Redraw(true);
}

void PlainGrid::SetRow(std::int32_t l) {
    if (l >= 1 && l <= Rows()) {
        lRow = l;
        Focus();
    } else {
        lRow = -1;
        Redraw(false);
    }
}

void PlainGrid::Clear() {
    for (PlainColumn& column : columns)
        column.ClearRows();
    lRow = -1;
    lAnchor = -1;
    Redraw(true);
}

void PlainGrid::Sort(std::size_t nCol, bool bAscending) {
    if (Rows() < 2) return;
    if (columns[nCol].bByOwner) {
        SortByOwner(columns[nCol], 1, Rows());
        if (!bAscending) {
            for (std::int32_t k = 1; k <= Rows() / 2; k++)
                SwapRows(k, Rows() - k + 1);
        }
    } else {
        std::vector<std::int32_t> order = PlainSortedRows(columns[nCol], compare);
        if (!bAscending) std::reverse(order.begin(), order.end());
        for (PlainColumn& column : columns)
            column.SetOrder(order);
    }
    Redraw(bMultiLine);
}

void PlainGrid::SwapRows(std::int32_t iRow1, std::int32_t iRow2) {
    for (PlainColumn& column : columns)
        std::swap(column.Row(iRow1), column.Row(iRow2));
}

void PlainGrid::SortByOwner(PlainColumn& column, std::int32_t lFirst, std::int32_t lLast) {
    const auto ask = [&](std::int32_t iRow1, std::int32_t iRow2) {
        questions.push_back({iRow1, iRow2});
        return column.Row(iRow1).vValue.Compare(column.Row(iRow2).vValue) > 0;
    };
    std::int32_t i = lFirst;
    std::int32_t j = lLast;
    std::int32_t p = Nearest((lFirst + lLast) / 2.0);
    while (i <= j) {
        bool b = true;
        while (i < lLast && b) {
            b = ask(p, i);
            if (i < lLast && b) i++;
        }
        b = true;
        while (j > lFirst && b) {
            b = ask(j, p);
            if (j > lFirst && b) j--;
        }
        if (i <= j) {
            if (p == i) {
                p = j;
            } else if (p == j) {
                p = i;
            }
            if (i != j) SwapRows(i, j);
            i++;
            j--;
        }
    }
    if (lFirst < j) SortByOwner(column, lFirst, j);
    if (i < lLast) SortByOwner(column, i, lLast);
}

void PlainGrid::SelectByRules(std::int32_t iRow, bool bShift, bool bCtrl, bool bKeyboard) {
    if (!bMultiSelect || Rows() == 0) return;
    const auto inside = [this](std::int32_t i) { return i >= 1 && i <= Rows(); };
    if (!bCtrl || bShift) {
        for (std::int32_t i = 1; i <= Rows(); i++)
            columns[0].Row(i).bSelected = false;
    }
    if (bShift) {
        if (!inside(lAnchor)) lAnchor = iRow;
        for (std::int32_t i = std::min(lAnchor, iRow); i <= std::max(lAnchor, iRow); i++) {
            if (!inside(i)) return;
            columns[0].Row(i).bSelected = true;
        }
    } else if (!bCtrl) {
        if (!inside(iRow)) return;
        columns[0].Row(iRow).bSelected = true;
        lAnchor = iRow;
    } else if (!bKeyboard) {
        lAnchor = iRow;
        if (inside(iRow)) columns[0].Row(iRow).bSelected = !columns[0].Row(iRow).bSelected;
    }
}

void PlainGrid::Focus() {
    if (lRow < 1 || lRow > Rows()) return;
    if (!IsVisible(lRow)) {
        std::int32_t lTarget = 0;
        if (bMultiLine) {
            lTarget = Nearest(columns[0].Row(lRow).lOffsetRow - ViewPortHeight() / 2.0 + iRowHeight);
        } else {
            lTarget = lRow - VisibleRows() + VisibleRows() / 2;
        }
        lTarget = std::min(lTarget, vertical.Max());
        lTarget = std::max(lTarget, 0);
        if (lTarget != vertical.Value()) vertical.SetValue(lTarget);
    }
    Redraw(false);
}

void PlainGrid::Redraw(bool bCheckSize) {
    if (iRowHeight <= 0 || lTotalWidth <= 0 || bCheckSize) CalcSizes();
    horizontal.SetMax(lTotalWidth - lWidth > 0 ? lTotalWidth - lWidth : 0);
    bHScrollShown = lTotalWidth - lWidth > 0;
    std::int32_t lMax = 0;
    if (bMultiLine) {
        if (Rows() > 0) {
            const PlainCell& last = columns[0].Row(Rows());
            const std::int32_t h = last.lOffsetRow + last.lCellHeight;
            if (h > ViewPortHeight()) lMax = iRowHeight + h - ViewPortHeight();
        }
    } else {
        std::int32_t v = VisibleRows();
        if (v > 0) v--;
        if (Rows() > 0 && v < Rows()) lMax = Rows() - v + 1;
    }
    vertical.SetMax(lMax);
}

void PlainGrid::Measure(const PlainColumn& column, std::int32_t iRow, bool bUseWidth, std::int32_t& w,
                        std::int32_t& h) const {
    if (!bUseWidth) w = 0;
    h = 0;
    const PlainCell& cell = column.Row(iRow);
    if (column.iType == 0 && bMultiLine) {
        measureBlock(cell.vValue.ToText(), bUseWidth, w, h);
    } else if (column.iType == 0 || column.iType == 1) {
        measureLine(cell.vValue.ToText(), w, h);
    } else if (column.iType == 2) {
        w = 7;
        h = 7;
    }
    if (cell.oPic) {
        w = std::max(w, cell.oPic->Width());
        h = std::max(h, cell.oPic->Height());
    }
}

void PlainGrid::CalcSizes() {
    if (columns.empty()) return;
    std::int32_t lXg = 0;
    measureLine(u"Xg", lXg, iRowHeight);
    iRowHeight = std::max(iRowHeight + 6, lMinRowHeight);
    for (PlainColumn& column : columns) {
        column.iCurrentWidth = 0;
        if (column.iMaxWidth != -1) column.iCurrentWidth = column.iMaxWidth;
        if (column.iMaxWidth != -1 && !bMultiLine) continue;
        std::int32_t w = 0;
        std::int32_t h = 0;
        measureLine(column.sText, w, h);
        if (column.bSortable) w += 9 + 2;
        for (std::int32_t r = 1; r <= column.lRows && (bMultiLine || r <= 749); r++) {
            std::int32_t lCellWidth = column.iMaxWidth;
            Measure(column, r, column.iMaxWidth != -1, lCellWidth, h);
            if (bMultiLine) {
                column.Row(r).lTextHeight = h;
                column.Row(r).lCellHeight = std::max(h + 6, iRowHeight);
            }
            w = std::max(w, lCellWidth);
        }
        if (column.iMaxWidth == -1) column.iCurrentWidth = w + 10;
    }
    if (bMultiLine) {
        std::int32_t lOffset = 0;
        for (std::int32_t r = 1; r <= Rows(); r++) {
            std::int32_t lTallest = 0;
            for (const PlainColumn& column : columns)
                lTallest = std::max(lTallest, column.Row(r).lCellHeight);
            for (PlainColumn& column : columns) {
                column.Row(r).lOffsetRow = lOffset;
                column.Row(r).lCellHeight = lTallest;
            }
            lOffset += lTallest;
            if (r >= 2) lOffset--;
        }
    }
    lTotalWidth = 1;
    for (const PlainColumn& column : columns) {
        lTotalWidth += column.iCurrentWidth;
        if (column.iCurrentWidth > 0) lTotalWidth--;
    }
    if (lWidth > lTotalWidth && columns.back().iMaxWidth == -1) {
        columns.back().iCurrentWidth += lWidth - lTotalWidth;
        lTotalWidth = lWidth;
    }
}

std::int32_t PlainGrid::VisibleRows() const {
    if (bMultiLine) return -1;
    return iRowHeight == 0 ? 0 : ViewPortHeight() / (iRowHeight - 1);
}

std::int32_t PlainGrid::RowByOffset(std::int32_t l) const {
    if (Rows() == 0) return -1;
    for (std::int32_t r = 1; r <= Rows(); r++) {
        if (columns[0].Row(r).lOffsetRow > l) return r - 1;
    }
    return Rows();
}

std::int32_t PlainGrid::RowY(std::int32_t iRow) const {
    if (!bMultiLine) return iRow * (iRowHeight - 1) + 2;
    return iRow >= 1 ? columns[0].Row(iRow).lOffsetRow + 2 + iRowHeight : 2;
}

std::int32_t PlainGrid::RowByY(std::int32_t y) const {
    const std::int32_t r =
        bMultiLine ? RowByOffset(y + vertical.Value() - 2 - iRowHeight) : y / (iRowHeight - 1) + vertical.Value();
    return r > Rows() || r < 0 ? -1 : r;
}

std::int32_t PlainGrid::RowByAbsY(std::int32_t y) const {
    const std::int32_t r = bMultiLine ? RowByOffset(y - 2 - iRowHeight) : y / (iRowHeight - 1);
    return r > Rows() || r < 0 ? -1 : r;
}

std::int32_t PlainGrid::ColX(std::int32_t iCol) const {
    std::int32_t x = 2;
    for (std::int32_t i = 1; i < iCol; i++) {
        const std::int32_t w = columns[static_cast<std::size_t>(i) - 1].iCurrentWidth;
        x += w > 0 ? w - 1 : w;
    }
    return x;
}

std::int32_t PlainGrid::ColByX(std::int32_t x) const {
    x += horizontal.Value();
    std::int32_t e = 0;
    for (std::size_t n = 0; n < columns.size(); n++) {
        const std::int32_t lLeft = e;
        const std::int32_t w = columns[n].iCurrentWidth;
        e += w > 0 ? w - 1 : w;
        if (lLeft <= x && x < e) return static_cast<std::int32_t>(n) + 1;
    }
    return -1;
}

bool PlainGrid::IsVisible(std::int32_t iRow) const {
    const std::int32_t lTop = RowY(iRow) - (bMultiLine ? vertical.Value() : vertical.Value() * (iRowHeight - 1));
    const std::int32_t lBottom = lTop + (bMultiLine ? columns[0].Row(iRow).lCellHeight : iRowHeight);
    if (lBottom > ViewPortHeight() || lTop < iRowHeight) return false;
    return true;
}

std::int32_t PlainGrid::CellHeight(std::int32_t iRow, std::int32_t iCol) const {
    if (bMultiLine && iRow >= 1) return columns[static_cast<std::size_t>(iCol) - 1].Row(iRow).lCellHeight;
    return iRowHeight;
}

std::int32_t PlainGrid::ColWidth(std::int32_t iCol) const {
    const PlainColumn& column = columns[static_cast<std::size_t>(iCol) - 1];
    return column.iMaxWidth != -1 ? column.iMaxWidth : column.iCurrentWidth;
}

PlainRect PlainGrid::CellRect(std::int32_t iRow, std::int32_t iCol) const {
    const std::int32_t x = ColX(iCol) - horizontal.Value();
    const std::int32_t y = RowY(iRow) - (bMultiLine ? vertical.Value() : vertical.Value() * (iRowHeight - 1));
    return {x, y, x + ColWidth(iCol), y + CellHeight(iRow, iCol) - 1};
}

PlainRect PlainGrid::CellAbsRect(std::int32_t iRow, std::int32_t iCol) const {
    const std::int32_t x = ColX(iCol);
    const std::int32_t y = RowY(iRow);
    return {x, y, x + ColWidth(iCol), y + CellHeight(iRow, iCol)};
}

} // namespace orvanta::reference
