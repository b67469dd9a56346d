#pragma once

#include "base/Failure.h"
#include "base/TaggedValue.h"
#include "base/Text.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace orvanta {

// An ordered list counted from 1 whose entries may carry a key. Keys compare without regard to case.
// A position outside the list raises SubscriptOutOfRange, an unknown key InvalidProcedureCall, a key that is already in
// use KeyAlreadyInUse; the list is then unchanged.
template<typename T = TaggedValue>
class Collection {
public:
    std::size_t Count() const { return m_entries.size(); }
    bool Empty() const { return m_entries.empty(); }

    void Add(T item) { m_entries.push_back({std::move(item), std::nullopt}); }
    void Add(T item, std::u16string_view sKey) {
        std::u16string sFolded = FoldCase(sKey);
        if (!m_positions.emplace(sFolded, m_entries.size()).second) throw KeyAlreadyInUse();
        m_entries.push_back({std::move(item), std::move(sFolded)});
    }

    T& Item(std::size_t nIndex) { return m_entries[Checked(nIndex)].item; }
    const T& Item(std::size_t nIndex) const { return m_entries[Checked(nIndex)].item; }
    T& Item(std::u16string_view sKey) { return m_entries[PositionOf(sKey)].item; }
    const T& Item(std::u16string_view sKey) const { return m_entries[PositionOf(sKey)].item; }

    bool HasKey(std::u16string_view sKey) const { return m_positions.contains(FoldCase(sKey)); }

    void Remove(std::size_t nIndex) { RemoveAt(Checked(nIndex)); }
    void Remove(std::u16string_view sKey) { RemoveAt(PositionOf(sKey)); }
    void Clear() {
        m_entries.clear();
        m_positions.clear();
    }

private:
    struct Entry {
        T item;
        std::optional<std::u16string> sKey; // folded
    };

    std::size_t Checked(std::size_t nIndex) const {
        if (nIndex < 1 || nIndex > m_entries.size()) throw SubscriptOutOfRange();
        return nIndex - 1;
    }

    std::size_t PositionOf(std::u16string_view sKey) const {
        const auto found = m_positions.find(FoldCase(sKey));
        if (found == m_positions.end()) throw InvalidProcedureCall();
        return found->second;
    }

    void RemoveAt(std::size_t nPosition) {
        if (m_entries[nPosition].sKey) m_positions.erase(*m_entries[nPosition].sKey);
        m_entries.erase(m_entries.begin() + static_cast<std::ptrdiff_t>(nPosition));
        for (std::size_t n = nPosition; n < m_entries.size(); ++n) {
            if (m_entries[n].sKey) m_positions[*m_entries[n].sKey] = n;
        }
    }

    std::vector<Entry> m_entries;
    std::unordered_map<std::u16string, std::size_t> m_positions;
};

} // namespace orvanta
