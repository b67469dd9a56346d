#include "grid/clsCtlUniGrid_Column.h"

#include "base/Failure.h"
#include "base/Text.h"
#include "grid/FormatNumber.h"

#include <algorithm>
#include <limits>
#include <utility>
#include <vector>

namespace orvanta {

namespace {

// A number of a few digits and nothing else, which most texts for number columns are.
std::optional<double> PlainDigits(std::u16string_view s) {
    constexpr std::size_t kExactDigits = 15;
    if (s.empty() || s.size() > kExactDigits) return std::nullopt;
    std::int64_t l = 0;
    for (const char16_t c : s) {
        if (c < u'0' || c > u'9') return std::nullopt;
        l = l * 10 + (c - u'0');
    }
    return static_cast<double>(l);
}

} // namespace

void clsCtlUniGrid_Column::AppendSlot() {
    if (m_lRows + 1 > m_cells.UpperBound()) m_cells.Grow();
    m_lOrderedOffsets = std::min(m_lOrderedOffsets, m_lRows);
    ++m_lRows;
    Changed(m_lRows);
}

void clsCtlUniGrid_Column::Coerce(std::int32_t iRow, const TaggedValue& v) {
    const char16_t cDecimal = m_locale.DecimalSeparator();
    switch (iType) {
    case 0: m_cells.Text(iRow, v.ToText(cDecimal)); break;
    case 1: m_cells.Value(iRow, v.ToFloat(cDecimal)); break;
    case 2: m_cells.Value(iRow, v.ToBoolean(cDecimal)); break;
    default: break;
    }
}

void clsCtlUniGrid_Column::AddRow() {
    AppendSlot();
    switch (iType) {
    case 0: m_cells.Text(m_lRows, {}); break;
    case 1: m_cells.Value(m_lRows, std::int32_t{0}); break; // not the empty text, whatever bAllowEmptyNumbers says
    case 2: m_cells.Value(m_lRows, false); break;
    default: break;
    }
    m_cells.ResetLook(m_lRows);
}

void clsCtlUniGrid_Column::AddRow(const TaggedValue& vValue) {
    AppendSlot();
    Coerce(m_lRows, vValue);
    m_cells.ResetLook(m_lRows);
}

void clsCtlUniGrid_Column::AddTextRow(std::u16string_view sValue) {
    if (iType == 1) {
        if (const std::optional<double> d = PlainDigits(sValue)) return AddRow(TaggedValue(*d));
    }
    if (iType != 0) return AddRow(TaggedValue(sValue));
    AppendSlot();
    m_cells.Text(m_lRows, sValue);
    m_cells.ResetLook(m_lRows);
}

void clsCtlUniGrid_Column::RemoveRow(std::int32_t iRow) {
    if (m_lRows == 0) return;
    const std::int32_t iRemoved = iRow == -1 ? m_lRows : iRow;
    if (iRemoved < m_lRows) {
        m_cells.RotateToEnd(iRemoved, m_lRows);
        Changed(iRemoved);
    }
    if (iRemoved <= m_lOrderedOffsets) --m_lOrderedOffsets;
    Changed(m_lRows);
    --m_lRows;
}

void clsCtlUniGrid_Column::ClearRows() {
    iCurrentWidth = 0;
    m_lRows = 0;
    m_cells.Clear();
    m_lOrderedOffsets = 0;
    Changed(1);
}

void clsCtlUniGrid_Column::Value(std::int32_t iRow, const TaggedValue& v) {
    if (iType == 1 && bAllowEmptyNumbers && v == TaggedValue(u"")) {
        m_cells.Text(iRow, {});
    } else if (iType >= 0 && iType <= 2) {
        Coerce(iRow, v);
    } else {
        m_cells.Value(iRow, v);
    }
    Changed(iRow);
}

void clsCtlUniGrid_Column::GetPicture(std::int32_t iRow, GridPictureRef& oPic, bool& bPicTransparent, bool& bPicGrayed,
                                      std::int32_t& lPicXTransp, std::int32_t& lPicYTransp,
                                      OleColor& lPicTranspColor) const {
    const CellPicture& picture = m_cells.Picture(iRow);
    oPic = picture.oPic;
    bPicTransparent = picture.bPicTransparent;
    bPicGrayed = picture.bPicGrayed;
    lPicXTransp = picture.lPicXTransp;
    lPicYTransp = picture.lPicYTransp;
    lPicTranspColor = picture.lPicTranspColor;
}

void clsCtlUniGrid_Column::SetPicture(std::int32_t iRow, GridPictureRef oPic, std::optional<bool> bPicTransparent,
                                      std::optional<bool> bPicGrayed, std::optional<std::int32_t> lPicXTransp,
                                      std::optional<std::int32_t> lPicYTransp,
                                      std::optional<OleColor> lPicTranspColor) {
    CellPicture& picture = m_cells.OwnPicture(iRow);
    picture.oPic = std::move(oPic);
    picture.bPicTransparent = bPicTransparent.value_or(picture.bPicTransparent);
    picture.bPicGrayed = bPicGrayed.value_or(picture.bPicGrayed);
    picture.lPicXTransp = lPicXTransp.value_or(picture.lPicXTransp);
    picture.lPicYTransp = lPicYTransp.value_or(picture.lPicYTransp);
    picture.lPicTranspColor = lPicTranspColor.value_or(picture.lPicTranspColor);
    Changed(iRow);
}

void clsCtlUniGrid_Column::SwapRows(std::int32_t iRow1, std::int32_t iRow2) {
    m_cells.Swap(iRow1, iRow2);
    const std::int32_t iFirst = std::min(iRow1, iRow2);
    Changed(iFirst);
    m_lOrderedOffsets = std::min(m_lOrderedOffsets, iFirst - 1);
}

void clsCtlUniGrid_Column::SetRowsOrder(std::span<const std::int32_t> order) {
    MovedAll();
    m_cells.Reorder(order.first(std::min(order.size(), static_cast<std::size_t>(m_lRows))));
    if (order.size() < static_cast<std::size_t>(m_lRows)) throw SubscriptOutOfRange();
}

void clsCtlUniGrid_Column::z_SetRowsOrder(std::u16string_view sOrder, std::u16string_view cSep) {
    MovedAll();
    const std::vector<std::u16string_view> list = Split(sOrder, cSep);
    const auto nRows = static_cast<std::size_t>(m_lRows);
    std::vector<std::int32_t> order;
    order.reserve(nRows);
    for (std::size_t n = 0; n < std::min(nRows, list.size()); ++n) {
        try {
            order.push_back(TaggedValue(list[n]).ToInteger(m_locale.DecimalSeparator()));
        } catch (const Failure&) {
            m_cells.Reorder(order); // the rows before are moved all the same
            throw;
        }
    }
    SetRowsOrder(order);
}

void clsCtlUniGrid_Column::CellHeight(std::int32_t iRow, std::int32_t l) {
    m_cells.OwnHeights(iRow).lCellHeight = l;
    Changed(iRow);
}

void clsCtlUniGrid_Column::TextHeight(std::int32_t iRow, std::int32_t l) {
    m_cells.OwnHeights(iRow).lTextHeight = l;
    Changed(iRow);
}

void clsCtlUniGrid_Column::OffsetRow(std::int32_t iRow, std::int32_t l) {
    Changed(iRow);
    SettleRow(iRow, l, CellHeight(iRow));
}

void clsCtlUniGrid_Column::SettleRow(std::int32_t iRow, std::int32_t lOffset, std::int32_t lHeight) {
    CellStore::Heights& heights = m_cells.OwnHeights(iRow);
    heights.lOffsetRow = lOffset;
    heights.lCellHeight = lHeight;
    if (iRow > m_lOrderedOffsets + 1) return;
    const bool bFalls = iRow > 1 && lOffset < OffsetRow(iRow - 1);
    m_lOrderedOffsets = bFalls ? iRow - 1 : iRow;
}

std::int32_t clsCtlUniGrid_Column::FirstRowBehind(std::int32_t l) const {
    std::int32_t iFirst = 1;
    std::int32_t iBehind = std::min(m_lOrderedOffsets, m_lRows) + 1;
    while (iFirst < iBehind) {
        const std::int32_t iMiddle = iFirst + (iBehind - iFirst) / 2;
        if (OffsetRow(iMiddle) > l) {
            iBehind = iMiddle;
        } else {
            iFirst = iMiddle + 1;
        }
    }
    while (iFirst <= m_lRows && OffsetRow(iFirst) <= l)
        ++iFirst; // rows that no size calculation has placed yet
    return iFirst <= m_lRows ? iFirst : 0;
}

std::u16string clsCtlUniGrid_Column::DisplayText(std::int32_t iRow) const {
    std::u16string sBuffer;
    return std::u16string(DisplayText(iRow, sBuffer));
}

std::u16string_view clsCtlUniGrid_Column::DisplayText(std::int32_t iRow, std::u16string& sBuffer) const {
    if (iType != 0 && iType != 1) return {};
    if (iType == 0 && m_cells.IsText(iRow)) return m_cells.TextAt(iRow);
    const char16_t cDecimal = m_locale.DecimalSeparator();
    sBuffer = m_cells.Value(iRow).ToText(cDecimal);
    if (iType == 1) {
        sBuffer = FormatNumber(sBuffer, sNumDecSep, sNumValSep, iNumFixInt, iNumFixDec, bNumSign, bNumAutoDecSep,
                               bNumAutoValSep, cDecimal);
    }
    return sBuffer;
}

void clsCtlUniGrid_Column::Settled(Findings found) {
    m_found = std::move(found);
    m_lChangedFrom = std::numeric_limits<std::int32_t>::max();
}

} // namespace orvanta
