#pragma once

#include "controls/contract/PropertyValue.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace orvanta {

// The saved properties of one control, in memory. Keys compare without regard to case. What can change (a font) goes in
// and comes out as a copy, so that neither the control nor a second reader is tied to the bag.
//
//     bag.WriteProperty(u"Caption", label.Caption(), u"");
//     label.Caption(bag.ReadProperty(u"caption", u"").Plain().ToText());
class PropertyBag {
public:
    // The stored value, or the default when there is none under this key.
    PropertyValue ReadProperty(std::u16string_view sKey, const PropertyValue& defaultValue = {}) const;

    // Stores the value. One that is equal to the default is not stored, and takes away what stood under the key.
    void WriteProperty(std::u16string_view sKey, const PropertyValue& value, const PropertyValue& defaultValue);
    // Stores the value, whatever it is.
    void WriteProperty(std::u16string_view sKey, const PropertyValue& value);

    bool Contains(std::u16string_view sKey) const;
    std::size_t Count() const { return m_entries.size(); }
    // In the order in which they were first written, as they were written.
    std::vector<std::u16string> Keys() const;

private:
    struct Entry {
        std::u16string sKey;
        PropertyValue value;
    };

    void Remove(const std::u16string& sFolded);

    std::vector<Entry> m_entries;
    std::unordered_map<std::u16string, std::size_t> m_positions; // by folded key
};

} // namespace orvanta
