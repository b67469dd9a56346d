#include "utilities/clsLargeNumber.h"

#include "base/Failure.h"
#include "utilities/DigitStrings.h"

#include <cstdint>
#include <vector>

namespace orvanta {
namespace {

// An exponent is taken apart into a count of 1024s, which is a byte, and the powers of two below.
constexpr std::uint32_t kLargestExponent = 255 * 1024 + 1023;

struct DivisionOperands {
    Blocks dividend;
    Blocks divisor;
};

DivisionOperands OperandsOf(std::u16string_view sA, std::u16string_view sB) {
    DivisionOperands operands{BlocksOfDigits(sA), BlocksOfDigits(sB)};
    if (operands.divisor.empty()) throw DivisionByZero();
    return operands;
}

// Replaces the string by the result of a member that also changes its argument.
std::u16string Keep(std::u16string& s, std::u16string sResult) {
    s = std::move(sResult);
    return s;
}

} // namespace

std::u16string clsLargeNumber::StrAdd(std::u16string_view sA, std::u16string_view sB) {
    return AddDigits(sA, sB);
}

std::u16string clsLargeNumber::StrSub(std::u16string_view sA, std::u16string_view sB) {
    return SubtractDigits(sA, sB);
}

std::u16string clsLargeNumber::StrMult(std::u16string_view sA, std::u16string_view sB) {
    for (const std::u16string_view s : {sA, sB}) {
        if (s.empty() || s == u"0") return u"0";
    }
    return DigitsOfBlocks(kDecimal.Multiply(BlocksOfDigits(sA), BlocksOfDigits(sB)));
}

std::u16string clsLargeNumber::StrDiv(std::u16string_view sA, std::u16string_view sB) {
    if (IsGreater(sB, sA)) return u"0";
    const DivisionOperands operands = OperandsOf(sA, sB);
    return DigitsOfBlocks(kDecimal.Divide(operands.dividend, operands.divisor).quotient);
}

std::u16string clsLargeNumber::StrMod(std::u16string_view sA, std::u16string_view sB) {
    if (IsGreater(sB, sA)) return std::u16string(TrimZeros(sA));
    const DivisionOperands operands = OperandsOf(sA, sB);
    return DigitsOfBlocks(kDecimal.Divide(operands.dividend, operands.divisor).remainder);
}

std::u16string clsLargeNumber::StrPow(std::u16string_view sA, std::u16string_view sB) {
    if (sB == u"0" || IsGreater(u"1", sB)) return u"1";
    if (sB == u"1") return std::u16string(sA);
    const Blocks base = BlocksOfDigits(sA);
    const Blocks exponent = BlocksOfDigits(sB);
    if (exponent.size() > 1 || exponent.front() > kLargestExponent) throw Overflow();
    return DigitsOfBlocks(kDecimal.Power(base, static_cast<std::uint32_t>(exponent.front())));
}

std::u16string clsLargeNumber::StrInc(std::u16string& sA) {
    return Keep(sA, StrInc(std::u16string_view(sA)));
}

std::u16string clsLargeNumber::StrInc(std::u16string_view sA) {
    std::u16string s(sA);
    std::size_t nEnd = s.size();
    for (; nEnd > 0 && s[nEnd - 1] == u'9'; --nEnd)
        s[nEnd - 1] = u'0';
    if (nEnd == 0) return u'1' + s;
    RequireDigits({&s[nEnd - 1], 1});
    ++s[nEnd - 1];
    return s;
}

std::u16string clsLargeNumber::StrDec(std::u16string_view sA) {
    std::u16string s(sA);
    std::size_t nEnd = s.size();
    for (; nEnd > 0 && s[nEnd - 1] == u'0'; --nEnd)
        s[nEnd - 1] = u'9';
    if (nEnd == 0) throw Failure(0x80040064u, u"clsLargeNumber.StrDec", u"Cannot deal with negative numbers!");
    RequireDigits({&s[nEnd - 1], 1});
    --s[nEnd - 1];
    return StrTrim(s);
}

bool clsLargeNumber::StrGT(std::u16string& sA, std::u16string& sB) {
    StrTrim(sA);
    StrTrim(sB);
    return IsGreater(sA, sB);
}

bool clsLargeNumber::StrGT(std::u16string& sA, std::u16string_view sB) {
    const bool bGreater = IsGreater(sA, sB);
    StrTrim(sA);
    return bGreater;
}

bool clsLargeNumber::StrGT(std::u16string_view sA, std::u16string& sB) {
    const bool bGreater = IsGreater(sA, sB);
    StrTrim(sB);
    return bGreater;
}

bool clsLargeNumber::StrGT(std::u16string_view sA, std::u16string_view sB) {
    return IsGreater(sA, sB);
}

std::u16string clsLargeNumber::StrTrim(std::u16string& sA) {
    return Keep(sA, StrTrim(std::u16string_view(sA)));
}

std::u16string clsLargeNumber::StrTrim(std::u16string_view sA) {
    return std::u16string(TrimZeros(sA));
}

std::u16string clsLargeNumber::StrPowMod(std::u16string_view sA, std::u16string_view sB, std::u16string_view sC) {
    // The halves of the exponent on the way down, then a square for each on the way up.
    std::u16string sExponent(sB);
    std::vector<bool> odd;
    while (sExponent != u"0" && sExponent != u"1") {
        odd.push_back(!StrStraight(sExponent));
        sExponent = StrHalf(sExponent);
    }
    std::u16string sPower = sExponent == u"0" ? u"1" : StrMod(sA, sC);
    for (std::size_t n = odd.size(); n-- > 0;) {
        sPower = StrMod(StrMult(sPower, sPower), sC);
        if (odd[n]) sPower = StrMod(StrMult(sPower, sA), sC);
    }
    return sPower;
}

std::u16string clsLargeNumber::StrShl(std::u16string_view sA, std::u16string_view sB) {
    return StrMult(sA, StrPow(u"2", sB));
}

std::u16string clsLargeNumber::StrShr(std::u16string_view sA, std::u16string_view sB) {
    return StrDiv(sA, StrPow(u"2", sB));
}

std::u16string clsLargeNumber::StrHalf(std::u16string_view sA) {
    return HalveDigits(sA);
}

bool clsLargeNumber::StrStraight(std::u16string_view sA) {
    if (sA.empty()) return true;
    RequireDigits(sA.substr(sA.size() - 1));
    return (sA.back() - u'0') % 2 == 0;
}

} // namespace orvanta
