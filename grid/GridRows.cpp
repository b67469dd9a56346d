#include "grid/GridModel.h"

#include "base/Failure.h"
#include "base/ResumeNext.h"
#include "grid/RowOrder.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace orvanta {

namespace {

constexpr std::u16string_view kNoColumns = u"Please add some columns first!";
constexpr std::int16_t kShift = 1;
constexpr std::int16_t kCtrl = 2;

// The number that a value is or reads as. Nothing is none.
std::optional<double> NumberOf(const TaggedValue& v, char16_t cDecimal) {
    std::optional<double> d;
    if (!v.IsNothing()) IgnoreFailure([&] { d = v.ToFloat(cDecimal); });
    return d;
}

// An update bracket that a failure closes without drawing. A grid that is gone by then is left alone.
class UpdateBracket {
public:
    explicit UpdateBracket(GridModel& grid) : m_grid(&grid), m_alive(grid.Layout().Watch()) { grid.BeginUpdate(); }
    ~UpdateBracket() {
        if (m_grid != nullptr && IsThere()) m_grid->NoUpdate();
    }
    UpdateBracket(const UpdateBracket&) = delete;
    UpdateBracket& operator=(const UpdateBracket&) = delete;

    bool IsThere() const { return !m_alive.expired(); }
    void End(bool bCheckSize, bool bRefreshNow) { std::exchange(m_grid, nullptr)->EndUpdate(bCheckSize, bRefreshNow); }

private:
    GridModel* m_grid;
    std::weak_ptr<const bool> m_alive;
};

} // namespace

clsCtlUniGrid_Column& GridModel::FirstColumn(std::u16string_view sSource) const {
    if (m_columns.Count() == 0) throw OwnFailure(sSource, kNoColumns);
    return *m_columns.At(1);
}

void GridModel::CheckRow(std::int32_t iRow) const {
    if ((iRow > Rows() || iRow < 1) && iRow != -1) throw OwnFailure(u"", u"Wrong Row");
}

void GridModel::AddRow(std::u16string_view sRowText, bool bSelect) {
    FirstColumn(u"AddRow");
    // The pieces between the tabs; an empty text has none, not an empty one.
    std::optional<std::u16string_view> sRest;
    if (!sRowText.empty()) sRest = sRowText;
    for (std::int32_t iCol = 1; iCol <= m_columns.Count(); ++iCol) {
        clsCtlUniGrid_Column& column = *m_columns.At(iCol);
        if (!sRest) {
            column.AddRow();
            continue;
        }
        const std::size_t nTab = sRest->find(u'\t');
        const std::u16string_view sCell = sRest->substr(0, nTab);
        sRest = nTab == std::u16string_view::npos ? std::nullopt : std::optional(sRest->substr(nTab + 1));
        column.AddTextRow(sCell);
    }
    if (bSelect) {
        m_lRow = Rows();
        if (m_lUpdateCount == 0 && !FocusSelectedRow(true, true)) return;
    }
    if (DrawControl(true, false) && bSelect) SelectionChange.Raise();
}

void GridModel::RemoveRow(std::int32_t iRow, bool bCheckSize) {
    FirstColumn(u"RemoveRow");
    CheckRow(iRow);
    for (std::int32_t iCol = 1; iCol <= m_columns.Count(); ++iCol)
        m_columns.At(iCol)->RemoveRow(iRow);
    if (iRow >= 1 && iRow == m_lRow) {
        m_lRow = std::min(m_lRow, Rows());
        if (m_lRow == 0) m_lRow = -1;
        if (m_lUpdateCount == 0 && !FocusSelectedRow(true, true)) return;
        const std::weak_ptr<const bool> alive = m_layout.Watch();
        SelectionChange.Raise();
        if (alive.expired()) return;
    }
    DrawControl(bCheckSize, false);
}

void GridModel::Rows(std::int32_t l) {
    UpdateBracket bracket(*this);
    while (bracket.IsThere() && Rows() > l)
        RemoveRow(Rows(), false);
    while (bracket.IsThere() && Rows() < l)
        AddRow(u"", false);
    if (bracket.IsThere()) bracket.End(true, false);
    if (bracket.IsThere()) DrawControl(false, false);
}

void GridModel::Row(std::int32_t l) {
    if (l >= 1 && l <= Rows()) {
        m_lRow = l;
        if (m_lUpdateCount == 0 && !FocusSelectedRow(true, true)) return;
    } else {
        m_lRow = -1;
        if (!DrawControl(false, false)) return;
    }
    SelectionChange.Raise();
}

bool GridModel::RowSel(std::int32_t iRow) const {
    const clsCtlUniGrid_Column& first = FirstColumn(u"RowSel");
    CheckRow(iRow);
    return m_bMultiSelect ? first.Selected(iRow) : iRow == m_lRow;
}

void GridModel::RowSel(std::int32_t iRow, bool b) {
    clsCtlUniGrid_Column& first = FirstColumn(u"RowSel");
    CheckRow(iRow);
    first.Selected(iRow, b);
    DrawControl(false, false);
}

std::int32_t GridModel::CountSelected() const {
    if (!m_bMultiSelect) return IsCurrentRow() ? 1 : 0;
    std::int32_t lCount = 0;
    for (std::int32_t iRow = Rows(); iRow >= 1; --iRow)
        lCount += m_columns.At(1)->Selected(iRow) ? 1 : 0;
    return lCount;
}

void GridModel::SelectAll(bool b, bool bRefresh) {
    if (Rows() > 0) SelectRange(1, Rows(), b, bRefresh);
}

void GridModel::SelectRange(std::int32_t i1, std::int32_t i2, bool b, bool bRefresh) {
    clsCtlUniGrid_Column& first = FirstColumn(u"SelectRange");
    for (std::int64_t i = std::min(i1, i2); i <= std::max(i1, i2); ++i)
        first.Selected(static_cast<std::int32_t>(i), b);
    if (bRefresh) DrawControl(false, false);
}

void GridModel::ApplyRowSelection(std::int32_t iRow, bool bKeyboard, bool bRefreshNow) {
    if (!m_bMultiSelect || Rows() == 0) return;
    UpdateBracket bracket(*this);
    // A row that is none, as row 0 under the header, ends the rules where they stand; the user sees nothing of it.
    IgnoreFailure([&] { SelectByRules(iRow, bKeyboard); });
    if (bRefreshNow) bracket.End(false, bRefreshNow);
}

void GridModel::SelectByRules(std::int32_t iRow, bool bKeyboard) {
    const std::int16_t iShift = m_view.KeyShiftState();
    const bool bShift = (iShift & kShift) != 0;
    const bool bCtrl = (iShift & kCtrl) != 0;
    if (bShift) {
        SelectAll(false, false);
        if (m_lRangeAnchor < 1 || m_lRangeAnchor > Rows()) m_lRangeAnchor = iRow;
        for (std::int32_t i = std::min(m_lRangeAnchor, iRow); i <= std::max(m_lRangeAnchor, iRow); ++i)
            RowSel(i, true);
    } else if (!bCtrl) {
        SelectAll(false, false);
        RowSel(iRow, true);
        m_lRangeAnchor = iRow;
    } else if (!bKeyboard) {
        m_lRangeAnchor = iRow;
        RowSel(iRow, !RowSel(iRow));
    }
}

// Order --------------------------------------------------------------------------------------------------------------

void GridModel::SortKey(TaggedValue vKey) {
    m_vSortKey = std::move(vKey);
    m_dSortPosition = NumberOf(m_vSortKey, m_locale.DecimalSeparator());
}

bool GridModel::HasSortArrow(std::int32_t iCol) const {
    if (m_vSortKey.IsNothing()) return false;
    if (m_dSortPosition) return *m_dSortPosition == iCol;
    return m_vSortKey == m_columns.At(iCol)->vKey;
}

void GridModel::SortByColum(const TaggedValue& vKey, bool bSortAsc) {
    if (Rows() < 2) return;
    m_bSortAsc = bSortAsc;
    SortKey(vKey);
    bool bThere = true;
    const bool bFound = IgnoreFailure([&] {
        const GridColumns::Ref column = m_columns.Find(m_vSortKey);
        if (column->bSortWithCustomEvent) {
            bThere = SortWithEvent(m_vSortKey, bSortAsc);
        } else {
            SortByValues(*column, bSortAsc);
        }
    });
    if (bFound && bThere) DrawControl(AllowMultiLineText(), false);
}

void GridModel::SortByValues(const clsCtlUniGrid_Column& column, bool bSortAsc) {
    IgnoreFailure([&] {
        std::vector<std::int32_t> order = AscendingRows(column, Rows());
        if (!bSortAsc) std::reverse(order.begin(), order.end()); // rows with equal cells too
        for (std::int32_t iCol = 1; iCol <= m_columns.Count(); ++iCol)
            m_columns.At(iCol)->SetRowsOrder(order);
    });
}

// The owner compares by row number, so the rows themselves are moved. False when the grid is gone.
bool GridModel::SortWithEvent(TaggedValue vKey, bool bSortAsc) {
    const std::weak_ptr<const bool> alive = m_layout.Watch();
    const auto ask = [&](std::int32_t iRow1, std::int32_t iRow2, bool& bAnswer) {
        SortCompareRows.Raise(vKey, iRow1, iRow2, bSortAsc, bAnswer);
        return !alive.expired();
    };
    const auto exchange = [this](std::int32_t iRow1, std::int32_t iRow2) {
        SwapRows(iRow1, iRow2);
        return true;
    };
    IgnoreFailure([&] {
        if (m_dSortPosition) {
            const TaggedValue vName = ColKey(TaggedValue(*m_dSortPosition).ToInteger());
            if (vName != TaggedValue(u"")) vKey = vName;
        }
        const std::int32_t lRows = Rows();
        if (!SortByOwner(lRows, ask, exchange) || bSortAsc) return;
        for (std::int32_t k = 1; k <= lRows / 2; ++k)
            SwapRows(k, lRows - k + 1);
    });
    return !alive.expired();
}

void GridModel::SwapRows(std::int32_t iRow1, std::int32_t iRow2) {
    for (std::int32_t iCol = 1; iCol <= m_columns.Count(); ++iCol)
        m_columns.At(iCol)->SwapRows(iRow1, iRow2);
}

} // namespace orvanta
