#pragma once

#include "base/Rounding.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvanta::reference {

// Base64 bit by bit, the measure for the fast one.

inline constexpr std::string_view kPlainAlphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

inline std::vector<std::uint8_t> PlainEncode(const std::vector<std::uint8_t>& data) {
    std::vector<std::uint8_t> text;
    for (std::size_t nBit = 0; nBit < data.size() * 8; nBit += 6) {
        unsigned nValue = 0;
        for (std::size_t n = nBit; n < nBit + 6; ++n) {
            const bool bSet = n < data.size() * 8 && (data[n / 8] >> (7 - n % 8) & 1) != 0;
            nValue = nValue * 2 + bSet;
        }
        text.push_back(static_cast<std::uint8_t>(kPlainAlphabet[nValue]));
    }
    while (text.size() % 4 != 0)
        text.push_back('=');
    return text;
}

// Without value where a byte is beyond the table. All bytes of the input come through the code page as they are.
inline std::optional<std::vector<std::uint8_t>> PlainDecode(const std::vector<std::uint8_t>& lines) {
    std::vector<std::uint8_t> text;
    for (const std::uint8_t c : lines) {
        if (c != '\r' && c != '\n' && c != ' ' && c != '\t') text.push_back(c);
    }
    std::size_t nPadding = 0;
    if (!text.empty() && text.back() == '=') nPadding = text.size() > 1 && text[text.size() - 2] == '=' ? 2 : 1;
    const double dSize = RoundHalfEven(static_cast<double>(text.size()) * 0.75 - static_cast<double>(nPadding));

    std::vector<std::uint8_t> data(dSize > 0 ? static_cast<std::size_t>(dSize) : 0);
    for (std::size_t n = 0; n < text.size() - nPadding; ++n) {
        if (text[n] >= 234) return std::nullopt;
        std::size_t nValue = kPlainAlphabet.find(static_cast<char>(text[n]));
        if (nValue == std::string_view::npos) nValue = text[n] == '=' ? 64 : 255;
        // Eight bits at most, whose last one is the bit 6 n + 5 of the group; what sticks out at the group's front is
        // lost.
        for (std::size_t nBit = 0; nBit < 8; ++nBit) {
            const std::size_t nPlace = n % 4 * 6 + 5;
            if ((nValue >> nBit & 1) == 0 || nBit > nPlace) continue;
            const std::size_t nOut = n / 4 * 24 + nPlace - nBit;
            if (nOut / 8 < data.size()) data[nOut / 8] = static_cast<std::uint8_t>(data[nOut / 8] | 0x80 >> nOut % 8);
        }
    }
    return data;
}

} // namespace orvanta::reference
