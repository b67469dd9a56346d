#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

namespace orvanta::reference {

// Arithmetic on strings of decimal digits as one does it on paper, a digit at a time. Slow and obvious: the measure for
// the fast one. Operands are digits only, results have no leading zeros.

inline constexpr std::u16string_view kPlainSymbols =
    u"0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz{|";

inline std::u16string PlainTrim(std::u16string s) {
    while (!s.empty() && s.front() == u'0')
        s.erase(0, 1);
    return s.empty() ? u"0" : s;
}

inline int PlainDigit(std::u16string_view s, std::size_t nFromRight) {
    return nFromRight < s.size() ? s[s.size() - 1 - nFromRight] - u'0' : 0;
}

inline bool PlainGreater(const std::u16string& a, const std::u16string& b) {
    const std::u16string x = PlainTrim(a);
    const std::u16string y = PlainTrim(b);
    return x.size() != y.size() ? x.size() > y.size() : x > y;
}

inline std::u16string PlainAdd(const std::u16string& a, const std::u16string& b) {
    std::u16string sReversed;
    int iCarry = 0;
    for (std::size_t n = 0; n < std::max(a.size(), b.size()) || iCarry != 0; ++n) {
        const int iSum = PlainDigit(a, n) + PlainDigit(b, n) + iCarry;
        sReversed.push_back(static_cast<char16_t>(u'0' + iSum % 10));
        iCarry = iSum / 10;
    }
    return PlainTrim({sReversed.rbegin(), sReversed.rend()});
}

// Needs a >= b.
inline std::u16string PlainSubtract(const std::u16string& a, const std::u16string& b) {
    std::u16string sReversed;
    int iBorrow = 0;
    for (std::size_t n = 0; n < a.size(); ++n) {
        const int iDifference = PlainDigit(a, n) - PlainDigit(b, n) - iBorrow;
        iBorrow = iDifference < 0 ? 1 : 0;
        sReversed.push_back(static_cast<char16_t>(u'0' + iDifference + 10 * iBorrow));
    }
    return PlainTrim({sReversed.rbegin(), sReversed.rend()});
}

inline std::u16string PlainMultiply(const std::u16string& a, const std::u16string& b) {
    std::u16string sReversed(a.size() + b.size() + 1, u'0');
    for (std::size_t n = 0; n < b.size(); ++n) {
        int iCarry = 0;
        for (std::size_t m = 0; m < a.size() || iCarry != 0; ++m) {
            const int iSum = sReversed[n + m] - u'0' + PlainDigit(a, m) * PlainDigit(b, n) + iCarry;
            sReversed[n + m] = static_cast<char16_t>(u'0' + iSum % 10);
            iCarry = iSum / 10;
        }
    }
    return PlainTrim({sReversed.rbegin(), sReversed.rend()});
}

// Quotient and remainder; b is not zero.
inline std::pair<std::u16string, std::u16string> PlainDivide(const std::u16string& a, const std::u16string& b) {
    std::u16string sQuotient;
    std::u16string sRest;
    for (const char16_t c : a) {
        sRest = PlainTrim(sRest + c);
        char16_t cDigit = u'0';
        for (; !PlainGreater(b, sRest); ++cDigit)
            sRest = PlainSubtract(sRest, b);
        sQuotient.push_back(cDigit);
    }
    return {PlainTrim(sQuotient), PlainTrim(sRest)};
}

inline std::u16string PlainPower(const std::u16string& a, unsigned nExponent) {
    std::u16string sPower = u"1";
    for (unsigned n = 0; n < nExponent; ++n)
        sPower = PlainMultiply(sPower, a);
    return sPower;
}

inline std::u16string PlainFromBase10(std::u16string s, unsigned nBase) {
    std::u16string sReversed;
    while (s != u"0") {
        std::u16string sQuotient;
        unsigned nRest = 0;
        for (const char16_t c : s) {
            nRest = nRest * 10 + (c - u'0');
            sQuotient.push_back(
                static_cast<char16_t>(u'0' + nRest / nBase)); // one digit, as the rest was below the base
            nRest %= nBase;
        }
        sReversed.push_back(kPlainSymbols[nRest]);
        s = PlainTrim(sQuotient);
    }
    return {sReversed.rbegin(), sReversed.rend()};
}

inline std::u16string PlainToBase10(std::u16string_view s, unsigned nBase) {
    std::u16string sBase;
    for (unsigned n = nBase; n != 0; n /= 10)
        sBase.insert(sBase.begin(), static_cast<char16_t>(u'0' + n % 10));
    std::u16string sValue = u"0";
    for (const char16_t c : s) {
        const auto nSymbol = static_cast<unsigned>(kPlainSymbols.find(c));
        const std::u16string sSymbol = {static_cast<char16_t>(u'0' + nSymbol / 10),
                                        static_cast<char16_t>(u'0' + nSymbol % 10)};
        sValue = PlainAdd(PlainMultiply(sValue, sBase), sSymbol);
    }
    return sValue;
}

} // namespace orvanta::reference
