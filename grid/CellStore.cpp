#include "grid/CellStore.h"

#include "base/Failure.h"

#include <algorithm>
#include <type_traits>
#include <utility>

namespace orvanta {

namespace {

// Each number from 1 to the length of the list stands in it.
bool IsPermutation(std::span<const std::int32_t> order) {
    std::vector<bool> seen(order.size());
    for (const std::int32_t l : order) {
        if (l < 1 || static_cast<std::size_t>(l) > order.size()) return false;
        const std::size_t n = static_cast<std::size_t>(l) - 1;
        if (seen[n]) return false;
        seen[n] = true;
    }
    return true;
}

} // namespace

std::size_t CellStore::Checked(std::int32_t iRow) const {
    if (iRow < 1 || iRow > UpperBound()) throw SubscriptOutOfRange();
    return static_cast<std::size_t>(iRow) - 1;
}

void CellStore::Grow() {
    static_assert(std::is_trivially_copyable_v<Cell>, "records are moved as plain bytes");
    m_cells.resize(m_cells.size() + kGrowth); // the vector takes more at a time
    if (!m_heights.empty()) m_heights.resize(m_cells.size());
}

void CellStore::Clear() {
    *this = CellStore();
}

TaggedValue CellStore::Value(std::int32_t iRow) const {
    const Cell& cell = At(iRow);
    switch (cell.kind) {
    case Kind::Text: return std::u16string_view(cell.pText, cell.nLength);
    case Kind::Float: return cell.dFloat;
    case Kind::Integer: return cell.lInteger;
    case Kind::Boolean: return cell.bBoolean;
    default: return {};
    }
}

CellStore::Cell& CellStore::Emptied(std::int32_t iRow) {
    Cell& cell = At(iRow);
    if (cell.kind == Kind::Text) m_texts.GiveUp(cell.nLength);
    cell.kind = Kind::Nothing;
    cell.nLength = 0;
    cell.nMeasuredAt = 0;
    return cell;
}

void CellStore::Value(std::int32_t iRow, const TaggedValue& v) {
    if (v.IsString()) return Text(iRow, v.ToText());
    Cell& cell = Emptied(iRow);
    if (v.IsFloat()) {
        cell.kind = Kind::Float;
        cell.dFloat = v.ToFloat();
    } else if (v.IsInteger()) {
        cell.kind = Kind::Integer;
        cell.lInteger = v.ToInteger();
    } else if (v.IsBoolean()) {
        cell.kind = Kind::Boolean;
        cell.bBoolean = v.ToBoolean();
    }
}

void CellStore::Text(std::int32_t iRow, std::u16string_view s) {
    Cell& cell = Emptied(iRow);
    const std::u16string_view sKept = m_texts.Keep(s);
    cell.kind = Kind::Text;
    cell.pText = sKept.data();
    cell.nLength = static_cast<std::uint32_t>(sKept.size());
    if (m_texts.WantsMoving()) MoveTexts();
}

void CellStore::MoveTexts() {
    TextPool texts;
    for (Cell& cell : m_cells) {
        if (cell.kind == Kind::Text) cell.pText = texts.Keep({cell.pText, cell.nLength}).data();
    }
    m_texts = std::move(texts);
}

std::u16string_view CellStore::TextAt(std::int32_t iRow) const {
    const Cell& cell = At(iRow);
    return cell.kind == Kind::Text ? std::u16string_view(cell.pText, cell.nLength) : std::u16string_view();
}

std::optional<double> CellStore::NumberAt(std::int32_t iRow) const {
    const Cell& cell = At(iRow);
    switch (cell.kind) {
    case Kind::Float: return cell.dFloat;
    case Kind::Integer: return cell.lInteger;
    case Kind::Boolean: return cell.bBoolean ? -1.0 : 0.0;
    default: return std::nullopt;
    }
}

const CellStore::Look& CellStore::LookAt(std::int32_t iRow) const {
    static const Look fresh;
    const Cell& cell = At(iRow);
    return cell.nLook == 0 ? fresh : m_looks[cell.nLook];
}

CellStore::Look& CellStore::OwnLook(std::int32_t iRow) {
    Cell& cell = At(iRow);
    if (cell.nLook == 0) {
        if (m_looks.empty()) m_looks.emplace_back();
        m_looks.emplace_back();
        cell.nLook = static_cast<std::uint32_t>(m_looks.size() - 1);
    }
    return m_looks[cell.nLook];
}

void CellStore::BackColor(std::int32_t iRow, OleColor lColor) {
    OwnLook(iRow).lBackColor = lColor;
}

void CellStore::ForeColor(std::int32_t iRow, OleColor lColor) {
    OwnLook(iRow).lForeColor = lColor;
}

void CellStore::Tag(std::int32_t iRow, const TaggedValue& v) {
    OwnLook(iRow).vTag = v;
}

void CellStore::ResetLook(std::int32_t iRow) {
    Cell& cell = At(iRow);
    cell.bSelected = false;
    if (cell.nLook != 0) {
        Look& look = m_looks[cell.nLook];
        look.lBackColor = -1;
        look.lForeColor = -1;
        look.picture = CellPicture();
    }
    if (!m_heights.empty()) OwnHeights(iRow) = Heights();
}

const CellStore::Heights& CellStore::HeightsAt(std::int32_t iRow) const {
    static const Heights none;
    const std::size_t n = Checked(iRow);
    return m_heights.empty() ? none : m_heights[n];
}

CellStore::Heights& CellStore::OwnHeights(std::int32_t iRow) {
    const std::size_t n = Checked(iRow);
    if (m_heights.empty()) m_heights.resize(m_cells.size());
    return m_heights[n];
}

void CellStore::RotateToEnd(std::int32_t iRow, std::int32_t iLast) {
    const auto first = static_cast<std::ptrdiff_t>(Checked(iRow));
    const auto end = static_cast<std::ptrdiff_t>(Checked(iLast)) + 1;
    const auto rotate = [first, end](auto& records) {
        const auto saved = records[static_cast<std::size_t>(first)];
        std::move(records.begin() + first + 1, records.begin() + end, records.begin() + first);
        records[static_cast<std::size_t>(end) - 1] = saved;
    };
    rotate(m_cells);
    if (!m_heights.empty()) rotate(m_heights);
}

void CellStore::Swap(std::int32_t iRow1, std::int32_t iRow2) {
    const std::size_t n1 = Checked(iRow1);
    const std::size_t n2 = Checked(iRow2);
    std::swap(m_cells[n1], m_cells[n2]);
    if (!m_heights.empty()) std::swap(m_heights[n1], m_heights[n2]);
}

void CellStore::Reorder(std::span<const std::int32_t> order) {
    const std::vector<Cell> cells = m_cells;
    const std::vector<Heights> heights = m_heights;
    const bool bEachOnce = IsPermutation(order);
    for (std::size_t n = 0; n < order.size(); ++n) {
        const std::size_t nFrom = Checked(order[n]);
        Cell& cell = At(static_cast<std::int32_t>(n) + 1);
        cell = cells[nFrom];
        if (!heights.empty()) m_heights[n] = heights[nFrom];
        if (!bEachOnce && cell.nLook != 0) { // two records must not share a look
            m_looks.push_back(Look(m_looks[cell.nLook]));
            cell.nLook = static_cast<std::uint32_t>(m_looks.size() - 1);
        }
    }
}

std::optional<CellStore::Measure> CellStore::Remembered(std::int32_t iRow) const {
    const Cell& cell = At(iRow);
    if (cell.nMeasuredAt != m_nMeasures) return std::nullopt;
    return Measure{cell.lMeasuredWidth, HeightsAt(iRow).lMeasuredHeight};
}

void CellStore::Remember(std::int32_t iRow, Measure measure) {
    Cell& cell = At(iRow);
    cell.nMeasuredAt = m_nMeasures;
    cell.lMeasuredWidth = measure.lWidth;
    if (!m_heights.empty()) OwnHeights(iRow).lMeasuredHeight = measure.lHeight;
}

void CellStore::ForgetMeasures() {
    if (++m_nMeasures != 0) return;
    for (Cell& cell : m_cells)
        cell.nMeasuredAt = 0;
    m_nMeasures = 1;
}

std::size_t CellStore::Bytes() const {
    return m_cells.capacity() * sizeof(Cell) + m_looks.capacity() * sizeof(Look) +
           m_heights.capacity() * sizeof(Heights) + m_texts.Bytes();
}

} // namespace orvanta
