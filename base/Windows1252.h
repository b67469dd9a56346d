#pragma once

#include "base/AnsiCodePage.h"

namespace orvanta {

// The western ANSI code page by table, for where there is no platform to ask. The five bytes that the code page leaves
// unassigned (81, 8D, 8F, 90, 9D) stand for the control characters of the same number, in both directions. A character
// without a byte becomes "?"; the platform's own conversion differs in that alone, it puts a look-alike where it knows
// one ("A" for U+0100).
class Windows1252 final : public AnsiCodePage {
public:
    std::u16string BytesToText(std::string_view sBytes) const override;
    std::string TextToBytes(std::u16string_view sText) const override;
};

} // namespace orvanta
