#pragma once

#include "base/Collection.h"
#include "base/TaggedValue.h"
#include "grid/clsCtlUniGrid_Column.h"

#include <cstdint>
#include <memory>
#include <string_view>

namespace orvanta {

// The columns of a grid, by position from 1 or by key. A string is a key, without regard to case; a number is a
// position. An unknown key raises InvalidProcedureCall, an unknown position SubscriptOutOfRange. A column stays alive
// while someone holds its reference.
class GridColumns {
public:
    using Column = clsCtlUniGrid_Column;
    using Ref = std::shared_ptr<Column>;

    std::int32_t Count() const { return static_cast<std::int32_t>(m_columns.Count()); }
    const Ref& At(std::int32_t iCol) const;
    const Ref& Find(const TaggedValue& vKey) const;
    bool Exists(const TaggedValue& vKey) const;

    // Under a key that is a text, or without one. Raises KeyAlreadyInUse.
    void Add(Ref column);
    void Add(Ref column, std::u16string_view sKey);
    void RemoveLast();
    void Clear();

    // Another number after each change of the list.
    std::uint64_t Version() const { return m_nVersion; }

private:
    Collection<Ref> m_columns;
    std::uint64_t m_nVersion = 0;
};

} // namespace orvanta
