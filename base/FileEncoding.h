#pragma once

#include <cstdint>

namespace orvanta {

// The forms of a text file. The values travel as 32-bit integers through the file layer, so any other number can arrive
// too.
using FileEncoding = std::int32_t;

inline constexpr FileEncoding feAnsi = 0;    // bytes in the system ANSI code page, no mark
inline constexpr FileEncoding feUnicode = 1; // UTF-16 little-endian behind FF FE
inline constexpr FileEncoding feUtf8 = 2;    // UTF-8 behind EF BB BF

constexpr bool IsFileEncoding(FileEncoding i) {
    return i >= feAnsi && i <= feUtf8;
}

} // namespace orvanta
