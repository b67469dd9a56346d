#pragma once

#include "base/Failure.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace orvanta {

// Packing of small numbers, and characters by their number.

constexpr std::int16_t MakeWord(std::uint8_t b1, std::uint8_t b2) {
    return static_cast<std::int16_t>(b1 | b2 << 8);
}

// The halves of a 32-bit value, signed.
constexpr std::int16_t LoWordOf(std::int32_t l) {
    return static_cast<std::int16_t>(l);
}
constexpr std::int16_t HiWordOf(std::int32_t l) {
    return static_cast<std::int16_t>(l >> 16);
}

constexpr std::int32_t MakeLongOf(std::int16_t lo, std::int16_t hi) {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(static_cast<std::uint16_t>(hi)) << 16 |
                                     static_cast<std::uint16_t>(lo));
}

// The first code unit as 0 to 65535. Raises InvalidProcedureCall for the empty text.
inline std::int32_t AscWide(std::u16string_view s) {
    if (s.empty()) throw InvalidProcedureCall();
    return s.front();
}

// One code unit. A negative number is taken as a 16-bit one; raises InvalidProcedureCall for what is no code unit.
inline std::u16string ChrWide(std::int32_t i) {
    const std::int32_t iUnit = i < 0 ? i + 65536 : i;
    if (iUnit < 0 || iUnit > 65535) throw InvalidProcedureCall();
    return std::u16string(1, static_cast<char16_t>(iUnit));
}

} // namespace orvanta
