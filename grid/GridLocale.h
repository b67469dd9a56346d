#pragma once

#include <string>
#include <string_view>

namespace orvanta {

// What the grid needs to know of the user's language.
class GridLocale {
public:
    virtual ~GridLocale() = default;

    // Between the integer and the decimal digits of a number, in both directions.
    virtual char16_t DecimalSeparator() const = 0;

    // Appends bytes that compare as the texts do, upper and lower case alike: texts that are equal to the user have
    // equal bytes, and a text that stands before another has the lesser bytes. Asked once per text of a sort.
    virtual void AppendSortKey(std::u16string_view s, std::string& sKey) const = 0;
};

// Such bytes without a language: the code units in order, with their case folded.
void AppendFoldedSortKey(std::u16string_view s, std::string& sKey);

} // namespace orvanta
