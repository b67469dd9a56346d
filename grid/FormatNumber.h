#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace orvanta {

// The text of a number with other separators and digit counts. sNumber is read digit by digit: the last "-" or "+" is
// its sign, digits behind sDecSep are decimals, all else is dropped. A result is cut, never rounded.
//   sDecSep      decimal separator of sNumber and of the result; when empty, bAutoDecSep takes that of the system,
//                cSystemDecimal, and without it nothing is a separator
//   sValSep      between groups of three digits; when empty, bAutoValSep takes "." or, beside a decimal ".", ","
//   fixInt       digits in front, filled with at most 30 zeros, if 1 or more and there is no sValSep; raises
//                InvalidProcedureCall when there are more digits already
//   fixDec       decimals, cut or filled with at most 30 zeros; below 0 for as many as there are
//   bSgn         a number without sign gets a "+"
std::u16string FormatNumber(std::u16string_view sNumber, std::u16string_view sDecSep, std::u16string_view sValSep,
                            std::int16_t fixInt, std::int16_t fixDec, bool bSgn, bool bAutoDecSep, bool bAutoValSep,
                            char16_t cSystemDecimal);

} // namespace orvanta
