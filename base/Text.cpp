#include "base/Text.h"

#include "base/UnitScan.h"

#include <algorithm>

namespace orvanta {

namespace {

template<typename Find>
std::u16string ReplaceEach(std::u16string_view s, std::size_t nFound, std::u16string_view sReplace, Find&& find) {
    if (nFound == 0) return std::u16string(s);
    std::u16string sOut;
    std::size_t nFrom = 0;
    for (std::size_t nAt = find(nFrom); nAt != std::u16string_view::npos; nAt = find(nFrom)) {
        sOut.append(s.substr(nFrom, nAt - nFrom)).append(sReplace);
        nFrom = nAt + nFound;
    }
    return sOut.append(s.substr(nFrom));
}

} // namespace

std::u16string_view TrimBlanksLeft(std::u16string_view s) {
    return s.substr(CountLeading<u' '>(s));
}

std::u16string_view TrimBlanksRight(std::u16string_view s) {
    std::size_t n = s.size();
    while (n > 0 && s[n - 1] == u' ')
        --n;
    return s.substr(0, n);
}

std::u16string_view TrimBlanks(std::u16string_view s) {
    return TrimBlanksLeft(TrimBlanksRight(s));
}

std::u16string LowerAscii(std::u16string_view s) {
    std::u16string sOut(s);
    for (char16_t& c : sOut)
        c = LowerAscii(c);
    return sOut;
}

bool EqualsAsciiFolded(std::u16string_view a, std::u16string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char16_t x, char16_t y) { return LowerAscii(x) == LowerAscii(y); });
}

char16_t FoldCase(char16_t c) {
    const auto plus = [c](int n) { return static_cast<char16_t>(c + n); };
    if (c < 0x80) return LowerAscii(c);
    if (c < 0xC0) return c;
    if (c <= 0xDE) return c == 0xD7 ? c : plus(32);
    if (c < 0x100) return c;
    if (c < 0x180) { // pairs, upper even in the first and third stretch, upper odd in the second
        if (c == 0x178) return 0xFF;
        if (c == 0x130 || c == 0x131 || c == 0x138 || c == 0x149 || c == 0x17F) return c;
        const bool bUpperOdd = (c >= 0x139 && c <= 0x148) || c >= 0x179;
        return (c % 2 == 1) == bUpperOdd ? plus(1) : c;
    }
    if (c == 0x191 || c == 0x1A0 || c == 0x1AF) return plus(1);
    if (c == 0x386) return 0x3AC;
    if (c >= 0x388 && c <= 0x38A) return plus(37);
    if (c == 0x38C) return 0x3CC;
    if (c == 0x38E || c == 0x38F) return plus(63);
    if (c >= 0x391 && c <= 0x3AB && c != 0x3A2) return plus(32);
    if (c >= 0x400 && c <= 0x40F) return plus(80);
    if (c >= 0x410 && c <= 0x42F) return plus(32);
    if (c == 0x490) return 0x491;
    return c;
}

std::u16string FoldCase(std::u16string_view s) {
    std::u16string sOut(s);
    for (char16_t& c : sOut)
        c = FoldCase(c);
    return sOut;
}

std::u16string ReplaceAll(std::u16string_view s, std::u16string_view sFind, std::u16string_view sReplace) {
    return ReplaceEach(s, sFind.size(), sReplace, [&](std::size_t nFrom) { return s.find(sFind, nFrom); });
}

std::u16string ReplaceAllTextCompare(std::u16string_view s, std::u16string_view sFind, std::u16string_view sReplace) {
    const std::u16string sFolded = FoldCase(s);
    const std::u16string sFindFolded = FoldCase(sFind);
    return ReplaceEach(s, sFind.size(), sReplace, [&](std::size_t nFrom) { return sFolded.find(sFindFolded, nFrom); });
}

std::vector<std::u16string_view> Split(std::u16string_view s, std::u16string_view sSeparator) {
    std::vector<std::u16string_view> pieces;
    if (s.empty()) return pieces;
    if (sSeparator.empty()) return {s};
    std::size_t nFrom = 0;
    for (std::size_t nAt = s.find(sSeparator); nAt != std::u16string_view::npos; nAt = s.find(sSeparator, nFrom)) {
        pieces.push_back(s.substr(nFrom, nAt - nFrom));
        nFrom = nAt + sSeparator.size();
    }
    pieces.push_back(s.substr(nFrom));
    return pieces;
}

std::u16string Concat(std::initializer_list<std::u16string_view> pieces) {
    std::size_t nSize = 0;
    for (const std::u16string_view s : pieces)
        nSize += s.size();
    std::u16string sOut;
    sOut.reserve(nSize);
    for (const std::u16string_view s : pieces)
        sOut.append(s);
    return sOut;
}

std::u16string DecimalText(long long lValue) {
    const std::string sDigits = std::to_string(lValue);
    return {sDigits.begin(), sDigits.end()};
}

} // namespace orvanta
