#include "tests/support/Unicode.h"

#include <cstddef>

namespace orvanta::testing {

namespace {

constexpr char32_t kReplacement = 0xFFFD;

void AppendUtf8(std::string& sOut, char32_t c) {
    const auto put = [&sOut](char32_t b) { sOut.push_back(static_cast<char>(b)); };
    if (c < 0x80) {
        put(c);
    } else if (c < 0x800) {
        put(0xC0 | c >> 6);
        put(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        put(0xE0 | c >> 12);
        put(0x80 | (c >> 6 & 0x3F));
        put(0x80 | (c & 0x3F));
    } else {
        put(0xF0 | c >> 18);
        put(0x80 | (c >> 12 & 0x3F));
        put(0x80 | (c >> 6 & 0x3F));
        put(0x80 | (c & 0x3F));
    }
}

void AppendUtf16(std::u16string& sOut, char32_t c) {
    if (c < 0x10000) {
        sOut.push_back(static_cast<char16_t>(c));
        return;
    }
    sOut.push_back(static_cast<char16_t>(0xD800 + ((c - 0x10000) >> 10)));
    sOut.push_back(static_cast<char16_t>(0xDC00 + ((c - 0x10000) & 0x3FF)));
}

} // namespace

std::string ToUtf8(std::u16string_view s) {
    std::string sOut;
    sOut.reserve(s.size());
    for (std::size_t n = 0; n < s.size(); ++n) {
        const char32_t c = s[n];
        if (c < 0x80) {
            sOut.push_back(static_cast<char>(c));
        } else if (c < 0xD800 || c > 0xDFFF) {
            AppendUtf8(sOut, c);
        } else if (c < 0xDC00 && n + 1 < s.size() && s[n + 1] >= 0xDC00 && s[n + 1] <= 0xDFFF) {
            AppendUtf8(sOut, 0x10000 + ((c - 0xD800) << 10) + (s[++n] - 0xDC00u));
        } else {
            AppendUtf8(sOut, kReplacement);
        }
    }
    return sOut;
}

std::u16string FromUtf8(std::string_view s) {
    std::u16string sOut;
    sOut.reserve(s.size());
    for (std::size_t n = 0; n < s.size();) {
        const auto bLead = static_cast<unsigned char>(s[n]);
        const std::size_t nMore = bLead < 0x80 ? 0 : bLead < 0xC2 ? 9 : bLead < 0xE0 ? 1 : bLead < 0xF0 ? 2 : 3;
        char32_t c = nMore == 0 ? bLead : bLead & (0x3Fu >> nMore);
        bool bGood = nMore <= 3 && n + nMore < s.size();
        for (std::size_t i = 1; bGood && i <= nMore; ++i) {
            const auto b = static_cast<unsigned char>(s[n + i]);
            bGood = (b & 0xC0) == 0x80;
            c = c << 6 | (b & 0x3F);
        }
        bGood = bGood && !(nMore == 2 && c < 0x800) && !(nMore == 3 && (c < 0x10000 || c > 0x10FFFF)) &&
                !(c >= 0xD800 && c <= 0xDFFF);
        AppendUtf16(sOut, bGood ? c : kReplacement);
        n += bGood ? nMore + 1 : 1;
    }
    return sOut;
}

} // namespace orvanta::testing
