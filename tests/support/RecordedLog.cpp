#include "tests/support/RecordedLog.h"

#include "base/Failure.h"

#include <algorithm>

namespace orvanta::testing {

void RecordedLog::Clear(bool bClearHeader) {
    m_rows.clear();
    if (bClearHeader) m_columns.clear();
    m_lRow = -1;
}

void RecordedLog::AddColumn(std::u16string_view sText, std::int32_t iWidth, std::int32_t iAlign,
                            const TaggedValue& vKey, bool bResizable, std::int32_t iHeaderAlign, bool bSortable,
                            bool bSortWithCustomEvent, bool bRightToLeft, std::int32_t iType, bool bAllowEmptyNumbers) {
    m_columns.push_back({std::u16string(sText), iWidth, iAlign, vKey.ToText(), bResizable, iHeaderAlign, bSortable,
                         bSortWithCustomEvent, bRightToLeft, iType, bAllowEmptyNumbers});
}

void RecordedLog::AddRow(std::u16string_view sRowText, bool bSelect) {
    if (m_columns.empty()) throw OwnFailure(u"AddRow", u"Please add some columns first!");
    LogRow row;
    row.cells.resize(m_columns.size());
    for (std::size_t n = 0; n < row.cells.size() && !sRowText.empty(); ++n) {
        const std::size_t nTab = std::min(sRowText.find(u'\t'), sRowText.size());
        row.cells[n] = sRowText.substr(0, nTab);
        sRowText.remove_prefix(std::min(nTab + 1, sRowText.size()));
    }
    m_rows.push_back(std::move(row));
    if (bSelect) m_lRow = static_cast<std::int32_t>(m_rows.size());
}

RecordedLog::Colors& RecordedLog::ColorsAt(std::int32_t iRow, const TaggedValue& vColKey) {
    const std::u16string sKey = vColKey.ToText();
    const auto column =
        std::find_if(m_columns.begin(), m_columns.end(), [&](const Column& c) { return c.sKey == sKey; });
    if (column == m_columns.end()) throw InvalidProcedureCall();
    if (iRow < 1 || static_cast<std::size_t>(iRow) > m_rows.size()) throw SubscriptOutOfRange();
    LogRow& row = m_rows[static_cast<std::size_t>(iRow) - 1];
    row.colors.resize(m_columns.size());
    return row.colors[static_cast<std::size_t>(column - m_columns.begin())];
}

void RecordedLog::CellForeColor(std::int32_t iRow, const TaggedValue& vColKey, std::int32_t lColor) {
    ColorsAt(iRow, vColKey).lFore = lColor;
}

void RecordedLog::CellBackColor(std::int32_t iRow, const TaggedValue& vColKey, std::int32_t lColor) {
    ColorsAt(iRow, vColKey).lBack = lColor;
}

} // namespace orvanta::testing
