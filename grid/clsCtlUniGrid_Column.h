#pragma once

#include "base/TaggedValue.h"
#include "grid/CellStore.h"
#include "grid/GridLocale.h"
#include "grid/GridPicture.h"
#include "plumbing/SharedColors.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace orvanta {

// One column of the grid: its settings, and its cell in every row. The grid has no row object: a row is the same number
// in each column. What belongs to a row as a whole has one home: the selected flag counts in the first column only, the
// heights stand in every column and are read from the first.
//
// Rows count from 1 and are not checked: a number outside the cell array raises SubscriptOutOfRange, and the array is
// larger than Rows (one slot at first, then 25 more at a time). A value that does not convert raises TypeMismatch.
// Widths, heights and offsets are pixels; colours may be -1 for that of the grid.
class clsCtlUniGrid_Column {
public:
    explicit clsCtlUniGrid_Column(const GridLocale& locale) : m_locale(locale) {}

    std::u16string sText;
    std::int32_t iMaxWidth = -1; // fixed width, -1 for automatic
    std::int32_t iCurrentWidth = 0;
    std::int32_t iAlign = 0; // 0 left, 1 right, 2 centre
    bool bResizable = true;
    std::int32_t iHeaderAlign = 2; // 0 left, 2 centre, others right
    TaggedValue vKey = u"";
    bool bSortable = false;
    bool bRightToLeft = false;
    std::int32_t iType = 0; // 0 text, 1 number, 2 boolean flag
    bool bSortWithCustomEvent = false;
    bool bAllowEmptyNumbers = true;
    std::u16string sNumDecSep;
    std::u16string sNumValSep;
    std::int16_t iNumFixInt = -1;
    std::int16_t iNumFixDec = -1;
    bool bNumSign = false;
    bool bNumAutoDecSep = true;
    bool bNumAutoValSep = false;

    std::int32_t Rows() const { return m_lRows; }

    // Without a value the cell gets the empty one of its type. A value that does not convert raises TypeMismatch, and
    // the row counts all the same. The tag stays what it was in the slot: that of a removed row may come back.
    void AddRow();
    void AddRow(const TaggedValue& vValue);
    // The same with a text, which a text column takes as it is.
    void AddTextRow(std::u16string_view sValue);
    // -1 is the last row. The record is not destroyed: it goes to the slot behind the last row.
    void RemoveRow(std::int32_t iRow);
    void ClearRows();

    TaggedValue Value(std::int32_t iRow) const { return m_cells.Value(iRow); }
    void Value(std::int32_t iRow, const TaggedValue& v);
    TaggedValue Tag(std::int32_t iRow) const { return m_cells.Tag(iRow); }
    void Tag(std::int32_t iRow, const TaggedValue& v) { m_cells.Tag(iRow, v); }
    OleColor BackColor(std::int32_t iRow) const { return m_cells.BackColor(iRow); }
    void BackColor(std::int32_t iRow, OleColor lColor) { m_cells.BackColor(iRow, lColor); }
    OleColor ForeColor(std::int32_t iRow) const { return m_cells.ForeColor(iRow); }
    void ForeColor(std::int32_t iRow, OleColor lColor) { m_cells.ForeColor(iRow, lColor); }
    bool Selected(std::int32_t iRow) const { return m_cells.Selected(iRow); }
    void Selected(std::int32_t iRow, bool b) { m_cells.Selected(iRow, b); }

    bool HasPicture(std::int32_t iRow) const { return m_cells.Picture(iRow).oPic != nullptr; }
    GridPictureRef Picture(std::int32_t iRow) const { return m_cells.Picture(iRow).oPic; }
    CellPicture GetPicture(std::int32_t iRow) const { return m_cells.Picture(iRow); }
    void GetPicture(std::int32_t iRow, GridPictureRef& oPic, bool& bPicTransparent, bool& bPicGrayed,
                    std::int32_t& lPicXTransp, std::int32_t& lPicYTransp, OleColor& lPicTranspColor) const;
    // What is not given stays as it was.
    void SetPicture(std::int32_t iRow, GridPictureRef oPic, std::optional<bool> bPicTransparent = std::nullopt,
                    std::optional<bool> bPicGrayed = std::nullopt,
                    std::optional<std::int32_t> lPicXTransp = std::nullopt,
                    std::optional<std::int32_t> lPicYTransp = std::nullopt,
                    std::optional<OleColor> lPicTranspColor = std::nullopt);

    void SwapRows(std::int32_t iRow1, std::int32_t iRow2);
    // Old row numbers, new row 1 first, one for each row. Raises SubscriptOutOfRange or TypeMismatch when the list ends
    // early or names no row; the rows before that are moved then.
    void z_SetRowsOrder(std::u16string_view sOrder, std::u16string_view cSep);
    // The same from numbers.
    void SetRowsOrder(std::span<const std::int32_t> order);

    std::int32_t CellHeight(std::int32_t iRow) const { return m_cells.HeightsAt(iRow).lCellHeight; }
    void CellHeight(std::int32_t iRow, std::int32_t l);
    std::int32_t TextHeight(std::int32_t iRow) const { return m_cells.HeightsAt(iRow).lTextHeight; }
    void TextHeight(std::int32_t iRow, std::int32_t l);
    std::int32_t OffsetRow(std::int32_t iRow) const { return m_cells.HeightsAt(iRow).lOffsetRow; }
    void OffsetRow(std::int32_t iRow, std::int32_t l);

    // The first row whose offset is greater than l, 0 for none.
    std::int32_t FirstRowBehind(std::int32_t l) const;

    // The text that the cell shows; empty for columns that are neither text nor number. The second form gives a view of
    // the stored text where it can, and else fills sBuffer.
    std::u16string DisplayText(std::int32_t iRow) const;
    std::u16string_view DisplayText(std::int32_t iRow, std::u16string& sBuffer) const;

    const GridLocale& Locale() const { return m_locale; }
    const CellStore& Cells() const { return m_cells; }

    // For the size calculation, which looks only at what changed: the lowest row whose size may be another than at the
    // last call of Settled, and what was found out about the column then.
    std::int32_t ChangedFrom() const { return m_lChangedFrom; }
    struct Findings {
        std::uint64_t nFont = 0;
        bool bMultiLine = false;
        bool bUseWidth = false;
        std::int32_t lWrapWidth = 0;
        std::int32_t iType = -1;
        std::u16string sFormat; // all that the text of a number depends on
        bool bOwnerAsked = false;
        std::int32_t lRows = 0; // so many first rows count in the width
        std::int32_t lWidest = 0;
        std::u16string sHeader;
        std::int32_t lHeaderWidth = -1;
    };
    const Findings& Found() const { return m_found; }
    void Settled(Findings found);
    // What the text of a cell measured, and the heights that follow; none of these counts as a change.
    std::optional<CellStore::Measure> Remembered(std::int32_t iRow) const { return m_cells.Remembered(iRow); }
    void Remember(std::int32_t iRow, CellStore::Measure measure) { m_cells.Remember(iRow, measure); }
    void ForgetMeasures() { m_cells.ForgetMeasures(); }
    void KeepHeights() { m_cells.OwnHeights(1); }
    void SettleTextHeight(std::int32_t iRow, std::int32_t l) { m_cells.OwnHeights(iRow).lTextHeight = l; }
    void SettleRow(std::int32_t iRow, std::int32_t lOffset, std::int32_t lHeight);

private:
    void Changed(std::int32_t iRow) { m_lChangedFrom = iRow < m_lChangedFrom ? iRow : m_lChangedFrom; }
    void MovedAll() {
        Changed(1);
        m_lOrderedOffsets = 0;
    }
    void AppendSlot();
    void Coerce(std::int32_t iRow, const TaggedValue& v);

    const GridLocale& m_locale;
    CellStore m_cells;
    std::int32_t m_lRows = 0;
    std::int32_t m_lChangedFrom = 1;
    std::int32_t m_lOrderedOffsets = 0; // so many first rows have offsets that never fall
    Findings m_found;
};

} // namespace orvanta
