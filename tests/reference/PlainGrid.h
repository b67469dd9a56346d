#pragma once

#include "base/TaggedValue.h"
#include "grid/GridPicture.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace orvanta::reference {

// The grid once more, the long way: every record whole, every cell measured at every call, every row walked over. Slow
// and obvious: the measure for the fast one.

struct PlainCell {
    TaggedValue vValue;
    std::int32_t lForeColor = -1;
    GridPictureRef oPic;
    bool bSelected = false;
    TaggedValue vTag;
    std::int32_t lTextHeight = 0;
    std::int32_t lCellHeight = 0;
    std::int32_t lOffsetRow = 0;
};

struct PlainColumn {
    std::u16string sText;
    std::int32_t iMaxWidth = -1;
    std::int32_t iCurrentWidth = 0;
    bool bSortable = false;
    bool bByOwner = false;
    std::int32_t iType = 0;
    std::vector<PlainCell> cells{PlainCell()}; // cells[0] is the spare record
    std::int32_t lRows = 0;

    void AddRow(const TaggedValue* vValue);
    void RemoveRow(std::int32_t iRow);
    void ClearRows();
    void SetOrder(const std::vector<std::int32_t>& order);
    PlainCell& Row(std::int32_t iRow) { return cells[static_cast<std::size_t>(iRow)]; }
    const PlainCell& Row(std::int32_t iRow) const { return cells[static_cast<std::size_t>(iRow)]; }
};

struct PlainBar {
    std::int32_t lMax = 0;
    std::int32_t lValue = 0;
    std::int32_t lScale = 1;
    void SetMax(std::int32_t l);
    void SetValue(std::int32_t l);
    std::int32_t Max() const { return lMax * lScale; }
    std::int32_t Value() const { return lValue * lScale; }
};

struct PlainRect {
    std::int32_t X1, Y1, X2, Y2;
    bool operator==(const PlainRect&) const = default;
};

// Compares two texts as the user's language does: below, at or above 0.
using PlainTextCompare = std::function<int(std::u16string_view, std::u16string_view)>;

// What the owner is asked in a sort; the answers are those of the column's values.
struct PlainQuestion {
    std::int32_t iRow1, iRow2;
    bool operator==(const PlainQuestion&) const = default;
};

std::vector<std::int32_t> PlainSortedRows(const PlainColumn& column, const PlainTextCompare& compare);

class PlainGrid {
public:
    std::function<void(std::u16string_view, std::int32_t& w, std::int32_t& h)> measureLine;
    std::function<void(std::u16string_view, bool bKeepWidth, std::int32_t& w, std::int32_t& h)> measureBlock;
    PlainTextCompare compare;

    std::vector<PlainColumn> columns;
    std::int32_t lRow = -1;
    std::int32_t lAnchor = -1;
    bool bMultiLine = false;
    bool bMultiSelect = false;
    std::int32_t lMinRowHeight = 0;
    std::int32_t lWidth = 0;
    std::int32_t lHeight = 0;
    std::int32_t lHScrollHeight = 16;
    std::int32_t iRowHeight = 0;
    std::int32_t lTotalWidth = 0;
    bool bHScrollShown = false;
    PlainBar vertical;
    PlainBar horizontal;
    std::vector<PlainQuestion> questions;

    std::int32_t Rows() const { return columns.empty() ? 0 : columns[0].lRows; }
    void AddRow(std::u16string_view sText, bool bSelect);
    void RemoveRow(std::int32_t iRow);
    void SetRow(std::int32_t l);
    void Clear();
    void Sort(std::size_t nCol, bool bAscending);
    void SelectByRules(std::int32_t iRow, bool bShift, bool bCtrl, bool bKeyboard);
    void Focus();
    void Redraw(bool bCheckSize);

    void CalcSizes();
    std::int32_t ViewPortHeight() const { return lHeight - (bHScrollShown ? lHScrollHeight : 0); }
    std::int32_t VisibleRows() const;
    std::int32_t RowByOffset(std::int32_t l) const;
    std::int32_t RowY(std::int32_t iRow) const;
    std::int32_t RowByY(std::int32_t y) const;
    std::int32_t RowByAbsY(std::int32_t y) const;
    std::int32_t ColX(std::int32_t iCol) const;
    std::int32_t ColByX(std::int32_t x) const;
    bool IsVisible(std::int32_t iRow) const;
    PlainRect CellRect(std::int32_t iRow, std::int32_t iCol) const;
    PlainRect CellAbsRect(std::int32_t iRow, std::int32_t iCol) const;

private:
    std::int32_t CellHeight(std::int32_t iRow, std::int32_t iCol) const;
    std::int32_t ColWidth(std::int32_t iCol) const;
    void Measure(const PlainColumn& column, std::int32_t iRow, bool bUseWidth, std::int32_t& w, std::int32_t& h) const;
    void SortByOwner(PlainColumn& column, std::int32_t lFirst, std::int32_t lLast);
    void SwapRows(std::int32_t iRow1, std::int32_t iRow2);
};

} // namespace orvanta::reference
