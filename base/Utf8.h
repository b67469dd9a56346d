#pragma once

#include <string>
#include <string_view>

namespace orvanta {

// The system's own UTF-8 forms. Every code unit is handled by itself: a surrogate pair becomes two three-byte
// sequences. No byte sequence is refused.

// One to three bytes for one code unit.
std::string CodePointToUtf8(char16_t c);
std::string StringToUtf8Bytes(std::u16string_view s);

// Whole files and lines. Two-byte leads are 194 to 219; bytes 128 to 193 and 220 to 223 stand for themselves; 224 and
// up lead three bytes. A sequence that runs past the end is dropped, and decoding ends there.
std::u16string Utf8BytesToString(std::string_view sBytes);
// The same into a text whose memory can be used again. sBytes must not stand in it.
void Utf8BytesToString(std::string_view sBytes, std::u16string& sOut);

// Length-prefixed strings. Two-byte leads are 194 to 223, three-byte leads 224 to 239; every other byte from 128 on
// stands for itself. The end is treated as above.
std::u16string Utf8BytesToStringEx(std::string_view sBytes);

} // namespace orvanta
