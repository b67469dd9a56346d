#pragma once

#include "base/TaggedValue.h"
#include "grid/GridPicture.h"
#include "grid/TextPool.h"
#include "plumbing/SharedColors.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace orvanta {

// The cell records of one column, counted from 1 to an upper bound that starts at 1 and grows by steps of 25. An index
// outside raises SubscriptOutOfRange. A record never used holds nothing, and the look of a fresh row.
//
// A record is a few bytes that can be moved about: its text lies in the column's pool, what few cells have (a colour, a
// picture, a tag) in a list that the record points into, and the heights of rows exist only once one is set.
class CellStore {
public:
    static constexpr std::int32_t kGrowth = 25;

    CellStore() : m_cells(1) {}

    std::int32_t UpperBound() const { return static_cast<std::int32_t>(m_cells.size()); }
    void Grow();
    // Down to one fresh record; releases every text, picture and tag.
    void Clear();

    TaggedValue Value(std::int32_t iRow) const;
    void Value(std::int32_t iRow, const TaggedValue& v);
    void Text(std::int32_t iRow, std::u16string_view s);

    bool IsText(std::int32_t iRow) const { return At(iRow).kind == Kind::Text; }
    // The text where it lies, valid until a value of this column is set; empty for a cell that holds none.
    std::u16string_view TextAt(std::int32_t iRow) const;
    // Numbers by their size, true as -1; nothing for texts and for cells that hold nothing.
    std::optional<double> NumberAt(std::int32_t iRow) const;

    // All of a record but value and tag as in a fresh row.
    void ResetLook(std::int32_t iRow);

    OleColor BackColor(std::int32_t iRow) const { return LookAt(iRow).lBackColor; }
    void BackColor(std::int32_t iRow, OleColor lColor);
    OleColor ForeColor(std::int32_t iRow) const { return LookAt(iRow).lForeColor; }
    void ForeColor(std::int32_t iRow, OleColor lColor);
    const CellPicture& Picture(std::int32_t iRow) const { return LookAt(iRow).picture; }
    CellPicture& OwnPicture(std::int32_t iRow) { return OwnLook(iRow).picture; }
    const TaggedValue& Tag(std::int32_t iRow) const { return LookAt(iRow).vTag; }
    void Tag(std::int32_t iRow, const TaggedValue& v);
    bool Selected(std::int32_t iRow) const { return At(iRow).bSelected; }
    void Selected(std::int32_t iRow, bool b) { At(iRow).bSelected = b; }

    // The heights of the multi-line mode.
    struct Heights {
        std::int32_t lTextHeight = 0;
        std::int32_t lCellHeight = 0;
        std::int32_t lOffsetRow = 0;
        std::int32_t lMeasuredHeight = 0;
    };
    const Heights& HeightsAt(std::int32_t iRow) const;
    Heights& OwnHeights(std::int32_t iRow);

    // Takes the record at iRow out, moves those behind it down, and puts it at iLast.
    void RotateToEnd(std::int32_t iRow, std::int32_t iLast);
    void Swap(std::int32_t iRow1, std::int32_t iRow2);
    // Record n becomes what record order[n - 1] was, from the first to the last, as far as the indices are right.
    void Reorder(std::span<const std::int32_t> order);

    // What a text measured, remembered until its value changes or everything is forgotten. The height is kept only
    // where heights exist.
    struct Measure {
        std::int32_t lWidth;
        std::int32_t lHeight;
    };
    std::optional<Measure> Remembered(std::int32_t iRow) const;
    void Remember(std::int32_t iRow, Measure measure);
    void ForgetMeasures();

    std::size_t Bytes() const;

private:
    enum class Kind : std::uint8_t { Nothing, Text, Float, Integer, Boolean };
    struct Cell {
        union {
            const char16_t* pText = nullptr;
            double dFloat;
            std::int32_t lInteger;
            bool bBoolean;
        };
        std::uint32_t nLength = 0;
        std::uint32_t nLook = 0; // an index into the looks, 0 for that of a fresh row
        std::int32_t lMeasuredWidth = 0;
        std::uint16_t nMeasuredAt = 0;
        Kind kind = Kind::Nothing;
        bool bSelected = false;
    };
    struct Look {
        OleColor lBackColor = -1;
        OleColor lForeColor = -1;
        CellPicture picture;
        TaggedValue vTag;
    };

    std::size_t Checked(std::int32_t iRow) const;
    Cell& At(std::int32_t iRow) { return m_cells[Checked(iRow)]; }
    const Cell& At(std::int32_t iRow) const { return m_cells[Checked(iRow)]; }
    const Look& LookAt(std::int32_t iRow) const;
    Look& OwnLook(std::int32_t iRow);
    Cell& Emptied(std::int32_t iRow);
    void MoveTexts();

    std::vector<Cell> m_cells;
    std::vector<Look> m_looks; // the first stands for all cells without one of their own
    std::vector<Heights> m_heights;
    TextPool m_texts;
    std::uint16_t m_nMeasures = 1;
};

} // namespace orvanta
