#pragma once

#include "tests/reference/PlainEngine.h"

#include <optional>
#include <string>

// What the conversion and the upgrade share of a form description: the two words of a `Begin ` line, and the properties
// of a block, which is named by the index of its `Begin ` line.
namespace orvanta::reference {

inline constexpr const char16_t* kSubscriptOutOfRange = u"Subscript out of range";
inline constexpr const char16_t* kOverflow = u"Overflow";

// The words are kept over a whole file: a line that is too short to supply one leaves it as the last line gave it.
struct BeginWords {
    std::u16string type;
    std::u16string name;

    // One box per word that is missing.
    void Take(const std::u16string& line, std::vector<std::u16string>& boxes);
};

// Empty when the block has no such property; a property with an empty value looks the same.
std::u16string GetBlockProperty(const PlainLines& lines, std::size_t start, const std::u16string& property);

// Without a new value the old one stays, trimmed. True when the property was found.
bool ChangeBlockProperty(PlainLines& lines, std::size_t start, const std::u16string& property,
                         const std::u16string& newProperty, const std::optional<std::u16string>& newValue = {});

} // namespace orvanta::reference
