#pragma once

#include <string>
#include <string_view>

namespace orvanta {

// Arithmetic on non-negative integers of any length, held as strings of decimal digits, and their conversion between
// bases.
//
//     clsLargeNumber::StrAdd(u"99999999999999", u"1") == u"100000000000000"
//     clsLargeNumber::ConvFromBase10(u"255", u"16") == u"FF"
//
// A number is a string of "0" to "9", the most significant first; leading zeros are allowed and an empty string acts as
// 0. Results are exact at any length and without leading zeros, unless a member says otherwise.
//
// Failures: a character that is no digit, where it enters the arithmetic, raises TypeMismatch; a divisor, modulus or
// target base of zero raises number 11, "Division by zero". Members that only compare look at no digit: StrDiv(u"5",
// u"x") is "0", as "x" is the greater one.
class clsLargeNumber {
public:
    static std::u16string StrAdd(std::u16string_view sA, std::u16string_view sB);
    // With sB above sA the last borrow is lost: StrSub(u"1", u"2") is "99999999999999". The caller takes care of the
    // order.
    static std::u16string StrSub(std::u16string_view sA, std::u16string_view sB);
    static std::u16string StrMult(std::u16string_view sA, std::u16string_view sB);
    // The whole quotient, and the remainder.
    static std::u16string StrDiv(std::u16string_view sA, std::u16string_view sB);
    static std::u16string StrMod(std::u16string_view sA, std::u16string_view sB);
    // sA to the power sB. The exponent "1" gives sA back as it is, with its leading zeros. An exponent above 262143
    // raises Overflow.
    static std::u16string StrPow(std::u16string_view sA, std::u16string_view sB);

    // sA + 1, digit by digit in place: the string itself is changed, and leading zeros stay ("009" becomes "010").
    static std::u16string StrInc(std::u16string& sA);
    static std::u16string StrInc(std::u16string_view sA);
    // sA - 1. Zero raises 0x80040064, "Cannot deal with negative numbers!".
    static std::u16string StrDec(std::u16string_view sA);

    // Whether sA > sB. A string that is handed over by name is trimmed on the way.
    static bool StrGT(std::u16string& sA, std::u16string& sB);
    static bool StrGT(std::u16string& sA, std::u16string_view sB);
    static bool StrGT(std::u16string_view sA, std::u16string& sB);
    static bool StrGT(std::u16string_view sA, std::u16string_view sB);
    // Without leading zeros; "0" if nothing remains. A string that is handed over by name is trimmed itself.
    static std::u16string StrTrim(std::u16string& sA);
    static std::u16string StrTrim(std::u16string_view sA);

    // sA to the power sB, modulo sC. The exponent "0" gives "1" even modulo 1.
    static std::u16string StrPowMod(std::u16string_view sA, std::u16string_view sB, std::u16string_view sC);
    // sA times, and sA divided by, 2 to the power sB. The limit of StrPow holds for sB.
    static std::u16string StrShl(std::u16string_view sA, std::u16string_view sB);
    static std::u16string StrShr(std::u16string_view sA, std::u16string_view sB);
    static std::u16string StrHalf(std::u16string_view sA);
    // Whether sA is even.
    static bool StrStraight(std::u16string_view sA);

    // "XOR", "AND" and "OR" of two strings of hexadecimal digits (upper case), digit by digit; "NOT" flips the four
    // bits of each digit of sA, which is first padded to the length of sB. Any other operator gives "0". The digits are
    // those of the base conversions, so "a" counts 36 and takes part with six bits.
    static std::u16string BooleanOperation(std::u16string_view sA, std::u16string_view sB,
                                           std::u16string_view Operator);

    // Bases are decimal numbers; the digits are 0-9, A-Z, a-z, "{" and "|". There is no check against the base: in a
    // base above 64, digits from 64 on leave no character, and "G" counts 16 in any base. Exactly "0" gives an empty
    // string, any other zero gives "0". The base 1 raises InvalidProcedureCall.
    static std::u16string ConvFromBase10(std::u16string_view sA, std::u16string_view ToBase);
    // An empty string stays empty. More than 262144 digits raise Overflow, as the power of the base does.
    static std::u16string ConvToBase10(std::u16string_view sA, std::u16string_view FromBase);
    static std::u16string ConvertBases(std::u16string_view sA, std::u16string_view FromBase,
                                       std::u16string_view ToBase);
};

} // namespace orvanta
