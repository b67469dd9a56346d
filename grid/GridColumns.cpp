#include "grid/GridColumns.h"

#include "base/Failure.h"
#include "base/ResumeNext.h"

#include <cstddef>
#include <utility>

namespace orvanta {

const GridColumns::Ref& GridColumns::At(std::int32_t iCol) const {
    if (iCol < 1) throw SubscriptOutOfRange();
    return m_columns.Item(static_cast<std::size_t>(iCol));
}

const GridColumns::Ref& GridColumns::Find(const TaggedValue& vKey) const {
    if (vKey.IsNothing()) throw InvalidProcedureCall();
    if (!vKey.IsString()) return At(vKey.ToInteger());
    return m_columns.Item(vKey.ToText());
}

bool GridColumns::Exists(const TaggedValue& vKey) const {
    return IgnoreFailure([&] { Find(vKey); });
}

void GridColumns::Add(Ref column) {
    m_columns.Add(std::move(column));
    ++m_nVersion;
}

void GridColumns::Add(Ref column, std::u16string_view sKey) {
    m_columns.Add(std::move(column), sKey);
    ++m_nVersion;
}

void GridColumns::RemoveLast() {
    const Ref last = At(Count());
    m_columns.Remove(m_columns.Count());
    ++m_nVersion;
}

void GridColumns::Clear() {
    m_columns.Clear();
    ++m_nVersion;
}

} // namespace orvanta
