#pragma once

#include "engine/EngineWorld.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace orvanta::testing {

// A log that keeps what the grid would show. It stands in for the grid where no window is wanted.
class RecordedLog final : public LogGrid {
public:
    static constexpr std::int32_t kNoColor = -1;

    struct Column {
        std::u16string sText;
        std::int32_t iWidth;
        std::int32_t iAlign;
        std::u16string sKey;
        bool bResizable;
        std::int32_t iHeaderAlign;
        bool bSortable;
        bool bSortWithCustomEvent;
        bool bRightToLeft;
        std::int32_t iType;
        bool bAllowEmptyNumbers;
        bool operator==(const Column&) const = default;
    };
    struct Colors {
        std::int32_t lFore = kNoColor;
        std::int32_t lBack = kNoColor;
        bool operator==(const Colors&) const = default;
    };
    struct LogRow {
        std::vector<std::u16string> cells; // one for each column
        std::vector<Colors> colors;        // likewise; empty while no cell has one

        // nCell counts from 0.
        Colors ColorsOf(std::size_t nCell) const { return colors.empty() ? Colors() : colors.at(nCell); }
    };

    void Clear(bool bClearHeader) override;
    void AddColumn(std::u16string_view sText, std::int32_t iWidth, std::int32_t iAlign, const TaggedValue& vKey,
                   bool bResizable, std::int32_t iHeaderAlign, bool bSortable, bool bSortWithCustomEvent,
                   bool bRightToLeft, std::int32_t iType, bool bAllowEmptyNumbers) override;
    // Without a column it fails with "Please add some columns first!", as the grid does.
    void AddRow(std::u16string_view sRowText, bool bSelect) override;
    std::int32_t Row() const override { return m_lRow; }
    void CellForeColor(std::int32_t iRow, const TaggedValue& vColKey, std::int32_t lColor) override;
    void CellBackColor(std::int32_t iRow, const TaggedValue& vColKey, std::int32_t lColor) override;

    const std::vector<Column>& Columns() const { return m_columns; }
    const std::vector<LogRow>& Rows() const { return m_rows; }

private:
    Colors& ColorsAt(std::int32_t iRow, const TaggedValue& vColKey);

    std::vector<Column> m_columns;
    std::vector<LogRow> m_rows;
    std::int32_t m_lRow = -1;
};

} // namespace orvanta::testing
