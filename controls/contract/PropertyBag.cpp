#include "controls/contract/PropertyBag.h"

#include "base/Text.h"

namespace orvanta {

PropertyValue PropertyBag::ReadProperty(std::u16string_view sKey, const PropertyValue& defaultValue) const {
    const auto found = m_positions.find(FoldCase(sKey));
    return (found == m_positions.end() ? defaultValue : m_entries[found->second].value).Kept();
}

void PropertyBag::WriteProperty(std::u16string_view sKey, const PropertyValue& value,
                                const PropertyValue& defaultValue) {
    if (value == defaultValue) {
        Remove(FoldCase(sKey));
    } else {
        WriteProperty(sKey, value);
    }
}

void PropertyBag::WriteProperty(std::u16string_view sKey, const PropertyValue& value) {
    const auto [found, bNew] = m_positions.emplace(FoldCase(sKey), m_entries.size());
    if (bNew) {
        m_entries.push_back({std::u16string(sKey), value.Kept()});
    } else {
        m_entries[found->second].value = value.Kept();
    }
}

bool PropertyBag::Contains(std::u16string_view sKey) const {
    return m_positions.contains(FoldCase(sKey));
}

std::vector<std::u16string> PropertyBag::Keys() const {
    std::vector<std::u16string> keys;
    keys.reserve(m_entries.size());
    for (const Entry& entry : m_entries)
        keys.push_back(entry.sKey);
    return keys;
}

void PropertyBag::Remove(const std::u16string& sFolded) {
    const auto found = m_positions.find(sFolded);
    if (found == m_positions.end()) return;
    const std::size_t nGone = found->second;
    m_positions.erase(found);
    m_entries.erase(m_entries.begin() + static_cast<std::ptrdiff_t>(nGone));
    for (auto& [sKey, nPosition] : m_positions) {
        if (nPosition > nGone) --nPosition;
    }
}

} // namespace orvanta
