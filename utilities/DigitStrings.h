#pragma once

#include "utilities/BlockArithmetic.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace orvanta {

// Numbers as strings of decimal digits: what can be done digit by digit is done here, without a conversion, and the two
// roads to blocks and back. Leading zeros are allowed on input, an empty string is 0. Results have no leading zeros.
// A character that is no digit raises TypeMismatch.

// Without leading "0" characters; "0" if nothing remains. The characters are not looked at.
std::u16string_view TrimZeros(std::u16string_view s);
// Whether a > b by length and then by characters, both trimmed. Nothing is raised.
bool IsGreater(std::u16string_view a, std::u16string_view b);
// Raises TypeMismatch unless all characters are digits.
void RequireDigits(std::u16string_view s);

std::u16string AddDigits(std::u16string_view a, std::u16string_view b);
// Where b is greater, the last borrow is lost: the result is then a - b + 10^w, w being the length of the longer
// string, rounded up to a multiple of 14.
std::u16string SubtractDigits(std::u16string_view a, std::u16string_view b);
std::u16string HalveDigits(std::u16string_view s);

// 18 digits to a block.
inline constexpr std::uint64_t kDecimalRadix = 1'000'000'000'000'000'000u;
inline constexpr BlockArithmetic kDecimal(kDecimalRadix);
Blocks BlocksOfDigits(std::u16string_view s);
std::u16string DigitsOfBlocks(BlockSpan blocks);

} // namespace orvanta
