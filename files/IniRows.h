#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace orvanta {

// The rows of a section as the settings file lists them: key "=" value. Rows are counted from 0; an index outside the
// list raises SubscriptOutOfRange.
using IniRows = std::vector<std::u16string>;

// What stands before and behind the first "=". Both are empty when the row has no "=" or begins with it.
std::u16string IniRowKey(const IniRows& vRows, std::int32_t idx);
std::u16string IniRowValue(const IniRows& vRows, std::int32_t idx);

} // namespace orvanta
