#pragma once

#include <string>
#include <string_view>

namespace orvanta {

// The two conversions between bytes of an ANSI code page and text. A byte or character without a place in the other
// side becomes what the code page puts for it; neither call fails.
class AnsiCodePage {
public:
    virtual ~AnsiCodePage() = default;

    virtual std::u16string BytesToText(std::string_view sBytes) const = 0;
    virtual std::string TextToBytes(std::u16string_view sText) const = 0;
};

} // namespace orvanta
