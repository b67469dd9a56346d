#include "files/IniRows.h"

#include "base/Failure.h"

#include <cstddef>
#include <utility>

namespace orvanta {

namespace {

const std::u16string& RowAt(const IniRows& vRows, std::int32_t idx) {
    if (idx < 0 || std::cmp_greater_equal(idx, vRows.size())) throw SubscriptOutOfRange();
    return vRows[static_cast<std::size_t>(idx)];
}

// 0 when there is no key: the "=" is missing or first.
std::size_t KeyLength(const std::u16string& sRow) {
    const std::size_t nEquals = sRow.find(u'=');
    return nEquals == std::u16string::npos ? 0 : nEquals;
}

} // namespace

std::u16string IniRowKey(const IniRows& vRows, std::int32_t idx) {
    const std::u16string& sRow = RowAt(vRows, idx);
    return sRow.substr(0, KeyLength(sRow));
}

std::u16string IniRowValue(const IniRows& vRows, std::int32_t idx) {
    const std::u16string& sRow = RowAt(vRows, idx);
    const std::size_t nKey = KeyLength(sRow);
    return nKey == 0 ? std::u16string() : sRow.substr(nKey + 1);
}

} // namespace orvanta
