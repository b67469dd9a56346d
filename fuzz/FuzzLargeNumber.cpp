// Arbitrary text as two numbers and a base: what the operations give fits together, and only failures that they name
// are raised. The first byte chooses the base, the rest is "a b", a byte to a character.
#include "base/Failure.h"
#include "base/Text.h"
#include "utilities/clsLargeNumber.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

using namespace orvanta;

namespace {

using Large = clsLargeNumber;

void Require(bool bHolds) {
    if (!bHolds) std::abort();
}

template<typename Call>
void Try(Call&& call) {
    try {
        call();
    } catch (const Failure& failure) {
        const auto lNumber = failure.Number();
        Require(lNumber == 5 || lNumber == 6 || lNumber == 11 || lNumber == 13 || lNumber == 0x80040064u);
    }
}

void CheckNumbers(const std::u16string& sA, const std::u16string& sB) {
    const std::u16string sSum = Large::StrAdd(sA, sB);
    Require(sSum == Large::StrAdd(sB, sA) && Large::StrSub(sSum, sB) == Large::StrTrim(std::u16string_view(sA)));
    const std::u16string sProduct = Large::StrMult(sA, sB);
    Require(sProduct == Large::StrMult(sB, sA));
    Require(Large::StrAdd(Large::StrShl(Large::StrHalf(sA), u"1"), Large::StrStraight(sA) ? u"0" : u"1") ==
            Large::StrTrim(std::u16string_view(sA)));
    const std::u16string sQuotient = Large::StrDiv(sA, sB);
    const std::u16string sRest = Large::StrMod(sA, sB);
    Require(Large::StrGT(std::u16string_view(sB), std::u16string_view(sRest)));
    Require(Large::StrAdd(Large::StrMult(sQuotient, sB), sRest) == Large::StrTrim(std::u16string_view(sA)));
    Require(Large::StrMod(sProduct, sB) == u"0");
}

void CheckBases(const std::u16string& s, const std::u16string& sBase) {
    const std::u16string sValue = Large::ConvToBase10(s, sBase);
    Require(Large::StrTrim(std::u16string_view(sValue)) ==
            Large::ConvToBase10(Large::ConvFromBase10(u"00" + sValue, sBase), sBase));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
    if (nSize == 0) return 0;
    const std::u16string sBase = DecimalText(2 + pData[0] % 63);
    const std::u16string sText(pData + 1, pData + nSize);
    const std::size_t nBlank = std::min(sText.find(u' '), sText.size());
    const std::u16string sA = sText.substr(0, nBlank);
    const std::u16string sB = sText.substr(std::min(nBlank + 1, sText.size()));

    Try([&] { CheckNumbers(sA, sB); });
    Try([&] { CheckBases(sA, sBase); });
    Try([&] { Large::ConvFromBase10(sA, sB); });
    Try([&] { Large::ConvToBase10(sA, sB.substr(0, 30)); });
    Try([&] { Large::StrPow(sA.substr(0, 6), sB.substr(0, 3)); });
    Try([&] { Large::StrPowMod(sA.substr(0, 40), sB.substr(0, 40), sA.substr(0, 20) + sBase); });
    Try([&] {
        Require(Large::StrDec(Large::StrInc(std::u16string_view(sA))) == Large::StrTrim(std::u16string_view(sA)));
    });
    Try([&] { Require(Large::BooleanOperation(sA, sA, u"XOR") == u"0"); });
    return 0;
}
