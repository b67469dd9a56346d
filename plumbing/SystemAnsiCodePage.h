#pragma once

#include "base/AnsiCodePage.h"

#include <array>
#include <cstdint>

namespace orvanta {

// An ANSI code page by the platform's own conversions: what has no place on the other side becomes what the platform
// puts for it, look-alikes included.
class SystemAnsiCodePage final : public AnsiCodePage {
public:
    // The system ANSI code page of this process, which never changes while the process runs.
    static const SystemAnsiCodePage& Instance();
    // Code page 1252, whatever the system's is.
    static const SystemAnsiCodePage& Western();

    std::u16string BytesToText(std::string_view sBytes) const override;
    std::string TextToBytes(std::u16string_view sText) const override;

    // What single bytes become, each converted by itself. With a code page of several bytes to a character a lone lead
    // byte has no meaning, and some systems give nothing for it: its count is then 0.
    struct ByteTable {
        std::array<char16_t, 256> unit{};
        std::array<std::uint8_t, 256> count{};
        bool bEveryByteCounts = true;
    };
    const ByteTable& SingleBytes() const { return m_singleBytes; }

    // Whether the bytes 0 to 127 are the ASCII characters, as in every code page that a system is delivered with.
    bool HasPlainAscii() const { return m_bPlainAscii; }

private:
    explicit SystemAnsiCodePage(unsigned nCodePage);

    unsigned m_nCodePage;
    ByteTable m_singleBytes;
    bool m_bPlainAscii = true;
    unsigned m_nMaxBytes = 1; // to a character
};

} // namespace orvanta
