#include "grid/RowOrder.h"

#include <algorithm>
#include <bit>
#include <compare>
#include <cstddef>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace orvanta {

namespace {

constexpr std::int32_t kInsertionBelow = 20;

// (lFirst + lLast) / 2, halves to the even neighbour.
std::int32_t Middle(std::int32_t lFirst, std::int32_t lLast) {
    const std::int64_t lSum = std::int64_t{lFirst} + lLast;
    const std::int64_t lHalf = lSum / 2;
    return static_cast<std::int32_t>(lSum % 2 == 0 ? lHalf : lHalf + lHalf % 2);
}

// The two sorts of the working array, rows[0] to rows[n - 1], whose places count from 1. Less tells how records
// compare.
template<typename Record, typename Less>
class WorkingArray {
public:
    WorkingArray(std::vector<Record>& rows, Less less) : m_rows(rows), m_less(less) {}

    // Of the two parts the smaller one is sorted first: they do not touch each other, and the stack stays low.
    void QuickSort(std::int32_t lFirst, std::int32_t lLast) {
        while (lLast - lFirst >= kInsertionBelow) {
            const auto [i, j] = Partition(lFirst, lLast);
            if (j - lFirst < lLast - i) {
                if (lFirst < j) QuickSort(lFirst, j);
                lFirst = i;
            } else {
                if (i < lLast) QuickSort(i, lLast);
                lLast = j;
            }
        }
        InsertionSort(lFirst, lLast);
    }

private:
    Record& At(std::int32_t l) { return m_rows[static_cast<std::size_t>(l) - 1]; }

    std::pair<std::int32_t, std::int32_t> Partition(std::int32_t lFirst, std::int32_t lLast) {
        std::int32_t i = lFirst;
        std::int32_t j = lLast;
        const Record pivot = At(Middle(lFirst, lLast));
        while (i <= j) {
            while (i < lLast && m_less(At(i), pivot))
                ++i;
            while (j > lFirst && m_less(pivot, At(j)))
                --j;
            if (i <= j) {
                std::swap(At(i), At(j));
                ++i;
                --j;
            }
        }
        return {i, j};
    }

    void InsertionSort(std::int32_t lFirst, std::int32_t lLast) {
        for (std::int32_t i = lFirst + 1; i <= lLast; ++i) {
            Record held = std::move(At(i));
            std::int32_t l = i;
            for (; l > lFirst && m_less(held, At(l - 1)); --l)
                At(l) = std::move(At(l - 1));
            At(l) = std::move(held);
        }
    }

    std::vector<Record>& m_rows;
    Less m_less;
};

template<typename Record, typename Less>
std::vector<std::int32_t> SortedRows(std::vector<Record>& rows, Less less) {
    WorkingArray<Record, Less>(rows, less).QuickSort(1, static_cast<std::int32_t>(rows.size()));
    std::vector<std::int32_t> order;
    order.reserve(rows.size());
    for (const Record& record : rows)
        order.push_back(record.iRow);
    return order;
}

// A value turned into an unsigned number that orders as the value does.
struct NumberRecord {
    std::uint64_t nKey;
    std::int32_t iRow;
};

std::uint64_t NumberKey(double d) {
    if (d != d) return 0; // what is no number stands before all numbers
    const auto nBits = std::bit_cast<std::uint64_t>(d == 0.0 ? 0.0 : d);
    constexpr std::uint64_t kSign = std::uint64_t{1} << 63;
    return (nBits & kSign) != 0 ? ~nBits : nBits | kSign;
}

constexpr std::uint64_t kEmptyTextKey = ~std::uint64_t{0};

// The sort keys of all texts one behind the other, and of each its first bytes as a number: few comparisons look at
// more.
struct TextRecord {
    std::uint64_t nHead;
    std::int32_t iRow;
    std::uint32_t nLength;
};

class TextKeys {
public:
    TextKeys(const clsCtlUniGrid_Column& column, std::int32_t lRows) {
        m_ends.reserve(static_cast<std::size_t>(lRows));
        std::u16string sBuffer;
        for (std::int32_t iRow = 1; iRow <= lRows; ++iRow) {
            if (column.Cells().IsText(iRow)) {
                column.Locale().AppendSortKey(column.Cells().TextAt(iRow), m_sKeys);
            } else {
                sBuffer = column.Value(iRow).ToText(column.Locale().DecimalSeparator());
                column.Locale().AppendSortKey(sBuffer, m_sKeys);
            }
            m_ends.push_back(m_sKeys.size());
        }
        m_nCommon = CommonPrefix();
    }

    std::vector<TextRecord> Records() const {
        std::vector<TextRecord> records;
        records.reserve(m_ends.size());
        for (std::size_t n = 0; n < m_ends.size(); ++n)
            records.push_back(
                {Head(Key(n)), static_cast<std::int32_t>(n) + 1, static_cast<std::uint32_t>(Key(n).size())});
        return records;
    }

    bool Less(const TextRecord& a, const TextRecord& b) const {
        if (a.nHead != b.nHead) return a.nHead < b.nHead;
        if (a.nLength <= sizeof a.nHead && b.nLength <= sizeof b.nHead) return a.nLength < b.nLength;
        return Key(static_cast<std::size_t>(a.iRow) - 1) < Key(static_cast<std::size_t>(b.iRow) - 1);
    }

private:
    // Without the bytes that all keys begin with.
    std::string_view Key(std::size_t n) const {
        const std::size_t nFrom = (n == 0 ? 0 : m_ends[n - 1]) + m_nCommon;
        return std::string_view(m_sKeys).substr(nFrom, m_ends[n] - nFrom);
    }

    std::size_t CommonPrefix() const {
        if (m_ends.empty()) return 0;
        const std::string_view sFirst = Key(0);
        std::size_t nCommon = sFirst.size();
        for (std::size_t n = 1; n < m_ends.size(); ++n) {
            const std::string_view sKey = Key(n);
            nCommon = std::min(nCommon, sKey.size());
            if (sKey.substr(0, nCommon) == sFirst.substr(0, nCommon)) continue;
            nCommon = static_cast<std::size_t>(
                std::mismatch(sKey.begin(), sKey.begin() + static_cast<std::ptrdiff_t>(nCommon), sFirst.begin()).first -
                sKey.begin());
        }
        return nCommon;
    }

    static std::uint64_t Head(std::string_view sKey) {
        std::uint64_t nHead = 0;
        for (std::size_t n = 0; n < sizeof nHead; ++n)
            nHead = nHead << 8 | (n < sKey.size() ? static_cast<unsigned char>(sKey[n]) : 0u);
        return nHead;
    }

    std::string m_sKeys;
    std::vector<std::size_t> m_ends;
    std::size_t m_nCommon = 0;
};

// Any mixture of values, as they compare.
struct ValueRecord {
    TaggedValue vValue;
    std::int32_t iRow;
};

std::vector<std::int32_t> RowsByText(const clsCtlUniGrid_Column& column, std::int32_t lRows) {
    const TextKeys keys(column, lRows);
    std::vector<TextRecord> records = keys.Records();
    return SortedRows(records, [&keys](const TextRecord& a, const TextRecord& b) { return keys.Less(a, b); });
}

std::vector<std::int32_t> RowsByValue(const clsCtlUniGrid_Column& column, std::int32_t lRows) {
    std::vector<ValueRecord> records;
    for (std::int32_t iRow = 1; iRow <= lRows; ++iRow)
        records.push_back({column.Value(iRow), iRow});
    return SortedRows(
        records, [](const ValueRecord& a, const ValueRecord& b) { return std::is_lt(a.vValue.Compare(b.vValue)); });
}

// Records of a column that holds numbers, booleans and empty texts only, which all real ones of these types do.
std::optional<std::vector<NumberRecord>> NumberRecords(const clsCtlUniGrid_Column& column, std::int32_t lRows) {
    std::vector<NumberRecord> records;
    records.reserve(static_cast<std::size_t>(lRows));
    for (std::int32_t iRow = 1; iRow <= lRows; ++iRow) {
        if (const std::optional<double> d = column.Cells().NumberAt(iRow)) {
            records.push_back({NumberKey(*d), iRow});
        } else if (column.Cells().IsText(iRow) && column.Cells().TextAt(iRow).empty()) {
            records.push_back({kEmptyTextKey, iRow});
        } else {
            return std::nullopt;
        }
    }
    return records;
}

} // namespace

std::vector<std::int32_t> AscendingRows(const clsCtlUniGrid_Column& column, std::int32_t lRows) {
    if (column.iType == 0) return RowsByText(column, lRows);
    std::optional<std::vector<NumberRecord>> numbers = NumberRecords(column, lRows);
    if (!numbers) return RowsByValue(column, lRows);
    return SortedRows(*numbers, [](const NumberRecord& a, const NumberRecord& b) { return a.nKey < b.nKey; });
}

// No insertion stage here, and the parts are sorted in their order: the owner sees every question. The parts that wait
// stand in a list, so that a table in an unlucky order needs no deep stack.
bool SortByOwner(std::int32_t lRows, const AskOwner& isBehind, const ExchangeRows& exchange) {
    std::vector<std::pair<std::int32_t, std::int32_t>> waiting{{1, lRows}};
    while (!waiting.empty()) {
        const auto [lFirst, lLast] = waiting.back();
        waiting.pop_back();
        std::int32_t i = lFirst;
        std::int32_t j = lLast;
        std::int32_t p = Middle(lFirst, lLast);
        while (i <= j) {
            bool b = true;
            while (i < lLast && b) {
                if (!isBehind(p, i, b)) return false;
                if (b) ++i;
            }
            b = true;
            while (j > lFirst && b) {
                if (!isBehind(j, p, b)) return false;
                if (b) --j;
            }
            if (i <= j) {
                if (p == i) {
                    p = j;
                } else if (p == j) {
                    p = i;
                }
                if (i != j && !exchange(i, j)) return false;
                ++i;
                --j;
            }
        }
        if (i < lLast) waiting.emplace_back(i, lLast);
        if (lFirst < j) waiting.emplace_back(lFirst, j);
    }
    return true;
}

} // namespace orvanta
