#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace orvanta::testing {

// The two decoders and the encoder of base/Utf8.h in their plainest form: one byte or one code unit at a time.

inline unsigned PlainLengthInFiles(unsigned b) {
    if (b >= 224) return 3;
    if (b >= 194 && b <= 219) return 2;
    return 1;
}

inline unsigned PlainLengthInPrefixedStrings(unsigned b) {
    if (b >= 194 && b <= 223) return 2;
    if (b >= 224 && b <= 239) return 3;
    return 1;
}

inline std::u16string PlainDecode(std::string_view a, unsigned (*lengthOf)(unsigned)) {
    std::u16string s;
    std::size_t n = 0;
    while (n < a.size()) {
        const auto at = [&a](std::size_t i) { return static_cast<unsigned char>(a[i]); };
        const unsigned nLength = lengthOf(at(n));
        if (n + nLength > a.size()) break;
        if (nLength == 1) s.push_back(at(n));
        if (nLength == 2) s.push_back(static_cast<char16_t>((at(n) & 31) * 64 + (at(n + 1) & 63)));
        if (nLength == 3) {
            s.push_back(static_cast<char16_t>((at(n) & 15) * 4096 + (at(n + 1) & 63) * 64 + (at(n + 2) & 63)));
        }
        n += nLength;
    }
    return s;
}

inline std::string PlainEncode(std::u16string_view s) {
    std::string a;
    for (const char16_t c : s) {
        if (c < 128) {
            a.push_back(static_cast<char>(c));
        } else if (c < 2048) {
            a.push_back(static_cast<char>(192 + c / 64));
            a.push_back(static_cast<char>(128 + c % 64));
        } else {
            a.push_back(static_cast<char>(224 + c / 4096));
            a.push_back(static_cast<char>(128 + c / 64 % 64));
            a.push_back(static_cast<char>(128 + c % 64));
        }
    }
    return a;
}

} // namespace orvanta::testing
