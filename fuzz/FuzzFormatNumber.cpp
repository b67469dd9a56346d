// Arbitrary numbers and formats: the result holds the digits of the number in their order, as many decimals as wanted,
// and a result read back with the same separators and no other wish stays as it is.
#include "base/Failure.h"
#include "grid/FormatNumber.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>

using namespace orvanta;

namespace {

void Require(bool bHolds) {
    if (!bHolds) std::abort();
}

// What is left of the input, taken from its start.
struct Input {
    const std::uint8_t* pData;
    std::size_t nSize;

    std::uint8_t Byte() {
        if (nSize == 0) return 0;
        --nSize;
        return *pData++;
    }
    std::u16string Text(std::size_t nMost) {
        static constexpr std::u16string_view kUnits = u"0123456789.,-+' eE\u00A0";
        std::u16string s;
        for (std::size_t n = Byte() % (nMost + 1); n > 0; --n)
            s.push_back(kUnits[Byte() % kUnits.size()]);
        return s;
    }
};

std::u16string Digits(std::u16string_view s) {
    std::u16string sDigits;
    std::copy_if(s.begin(), s.end(), std::back_inserter(sDigits), [](char16_t c) { return c >= u'0' && c <= u'9'; });
    return sDigits;
}

bool HasDigit(std::u16string_view s) {
    return !Digits(s).empty();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
    Input input{pData, nSize};
    const auto fixInt = static_cast<std::int16_t>(static_cast<std::int8_t>(input.Byte()));
    const auto fixDec = static_cast<std::int16_t>(static_cast<std::int8_t>(input.Byte()));
    const std::uint8_t flags = input.Byte();
    const std::u16string sDecSep = input.Text(2);
    const std::u16string sValSep = input.Text(2);
    const std::u16string sNumber = input.Text(60);
    const auto format = [&](std::u16string_view s, std::int16_t iInt,
                            std::int16_t iDec) -> std::optional<std::u16string> {
        try {
            return FormatNumber(s, sDecSep, sValSep, iInt, iDec, (flags & 1) != 0, (flags & 2) != 0, (flags & 4) != 0,
                                u'.');
        } catch (const Failure& failure) {
            Require(failure.Number() == 5 && iInt >= 1 && Digits(s).size() > static_cast<std::size_t>(iInt));
            return std::nullopt;
        }
    };

    const std::optional<std::u16string> sResult = format(sNumber, fixInt, fixDec);
    Require(!sNumber.empty() || sResult == std::u16string());
    if (!sResult) return 0;

    const std::optional<std::u16string> sPlain = format(sNumber, -1, -1);
    Require(sPlain.has_value());
    if (!HasDigit(sDecSep) && !HasDigit(sValSep)) {
        Require(Digits(*sPlain) == Digits(sNumber));
        Require(sResult->size() <= sPlain->size() + 62 || fixDec < 0);
        const bool bSeparatorsApart =
            sDecSep.size() <= 1 && sDecSep != u"-" && sDecSep != u"+" &&
            sValSep.find_first_of(u"-+") == std::u16string::npos &&
            (sDecSep.empty() || sValSep.find(sDecSep) == std::u16string::npos) &&
            !(sDecSep.empty() && (flags & 2) != 0 && sValSep.find(u'.') != std::u16string::npos);
        if (bSeparatorsApart && !sNumber.empty()) Require(format(*sPlain, -1, -1) == sPlain || sPlain->empty());
    }
    return 0;
}
