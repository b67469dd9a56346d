#pragma once

#include "base/AnsiCodePage.h"
#include "base/FileEncoding.h"
#include "files/TextFileForm.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace orvanta::testing {

// Reads whole text files as the system's file object does, from bytes in memory. The object fetches 16,384 bytes at a
// time and cannot fetch a last byte that stands alone, so a few lengths fail: an ANSI file of 1 byte, a marked UTF-16
// file of 16,385 bytes, a marked UTF-8 file of 2 or of 16,385 bytes.
inline std::optional<std::u16string> TextOfFileBytes(std::string_view sBytes, const AnsiCodePage& codePage) {
    constexpr std::size_t kOneOverCache = 16385;
    if (sBytes.empty()) return std::u16string();
    if (sBytes.size() == 1) return std::nullopt;
    const FileEncoding iEncoding = EncodingOfFirstByte(static_cast<unsigned char>(sBytes.front()));
    if (iEncoding != feAnsi && sBytes.size() == kOneOverCache) return std::nullopt;
    const std::size_t nMark = MarkOf(iEncoding).size();
    if (sBytes.size() < nMark) return std::nullopt;
    return TextOfBody(iEncoding, sBytes.substr(nMark), codePage);
}

} // namespace orvanta::testing
