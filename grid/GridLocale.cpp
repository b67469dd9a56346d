#include "grid/GridLocale.h"

#include "base/Text.h"

namespace orvanta {

// Units are written as UTF-8 writes code points: more bytes for greater units, and the bytes order as the units do. A
// text of ASCII so takes one byte a unit, and more of it fits the first machine word that a sort compares.
void AppendFoldedSortKey(std::u16string_view s, std::string& sKey) {
    sKey.reserve(sKey.size() + s.size());
    for (const char16_t cAsGiven : s) {
        const unsigned c = FoldCase(cAsGiven);
        if (c < 0x80) {
            sKey.push_back(static_cast<char>(c));
        } else if (c < 0x800) {
            sKey.push_back(static_cast<char>(0xC0 | c >> 6));
            sKey.push_back(static_cast<char>(0x80 | (c & 0x3F)));
        } else {
            sKey.push_back(static_cast<char>(0xE0 | c >> 12));
            sKey.push_back(static_cast<char>(0x80 | (c >> 6 & 0x3F)));
            sKey.push_back(static_cast<char>(0x80 | (c & 0x3F)));
        }
    }
}

} // namespace orvanta
