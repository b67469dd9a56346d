#pragma once

#include "files/clsUniFile.h"
#include "plumbing/SystemAnsiCodePage.h"
#include "tests/reference/PlainUtf8.h"

#include <cstdint>
#include <string>

namespace orvanta::testing {

// The line readers of clsUniFile in their plainest form: one ReadByte after the other.

inline void PlainCutLineEnd(std::u16string& s) {
    s.pop_back();
    if (!s.empty() && s.back() == u'\r') s.pop_back();
}

inline bool PlainReadAnsiLine(clsUniFile& file, std::u16string& sRet) {
    sRet.clear();
    std::uint8_t b = 0;
    while (file.ReadByte(b)) {
        sRet += SystemAnsiCodePage::Instance().BytesToText(std::string(1, static_cast<char>(b)));
        if (b == 10) {
            PlainCutLineEnd(sRet);
            return true;
        }
    }
    return false;
}

inline bool PlainReadUnicodeLine(clsUniFile& file, std::u16string& sRet) {
    sRet.clear();
    for (;;) {
        std::uint8_t bLow = 0;
        std::uint8_t bHigh = 0;
        const bool bFirst = file.ReadByte(bLow);
        const bool bSecond = file.ReadByte(bHigh);
        if (!bFirst || !bSecond) return false;
        sRet.push_back(static_cast<char16_t>(bHigh * 256 + bLow));
        if (bLow == 10 && bHigh == 0) {
            PlainCutLineEnd(sRet);
            return true;
        }
    }
}

inline bool PlainReadUTF8Line(clsUniFile& file, std::u16string& sRet) {
    std::string sBytes;
    std::uint8_t b = 0;
    bool bEnded = false;
    while (!bEnded && file.ReadByte(b)) {
        sBytes.push_back(static_cast<char>(b));
        bEnded = b == 10;
    }
    if (bEnded) {
        sBytes.pop_back();
        if (!sBytes.empty() && sBytes.back() == '\r') sBytes.pop_back();
    }
    if (!sBytes.empty()) sRet = PlainDecode(sBytes, &PlainLengthInFiles);
    return bEnded;
}

} // namespace orvanta::testing
