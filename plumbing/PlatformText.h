#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace orvanta {

// Questions about text that decide between the platform's ANSI and wide forms, and the byte form in which a property
// bag keeps text.

// True when some code unit is above 255. False for the empty text.
bool HasHighBytes(std::u16string_view s);

// The system ANSI code page is the western one, 1252.
bool IsWesternCodePage();

// Whether s survives an ANSI call: always below Windows 2000, where there is nothing else; later only with the western
// code page and without high bytes.
bool CanUseAnsiPath(std::u16string_view s, std::int32_t lVersionClass, bool bWesternCodePage);
bool CanUseAnsiPath(std::u16string_view s);

// A text's code units as bytes, low byte first.
using ByteVariant = std::vector<std::uint8_t>;
ByteVariant StringToByteVariant(std::u16string_view s);
// The way back. An odd last byte is dropped.
std::u16string ByteVariantToString(const ByteVariant& v);

} // namespace orvanta
