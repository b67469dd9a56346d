#include "grid/FormatNumber.h"

#include "base/Failure.h"

#include <algorithm>

namespace orvanta {

namespace {

constexpr std::u16string_view kZeros = u"000000000000000000000000000000";
static_assert(kZeros.size() == 30);

std::u16string_view Zeros(std::ptrdiff_t nCount) {
    if (nCount < 0) throw InvalidProcedureCall();
    return kZeros.substr(0, static_cast<std::size_t>(nCount));
}

} // namespace

std::u16string FormatNumber(std::u16string_view sNumber, std::u16string_view sDecSep, std::u16string_view sValSep,
                            std::int16_t fixInt, std::int16_t fixDec, bool bSgn, bool bAutoDecSep, bool bAutoValSep,
                            char16_t cSystemDecimal) {
    if (sNumber.empty()) return {};
    if (sDecSep.empty() && bAutoDecSep) sDecSep = {&cSystemDecimal, 1};
    if (sValSep.empty() && bAutoValSep) sValSep = sDecSep == u"." ? u"," : u".";

    std::u16string sInteger;
    std::u16string sDecimal;
    std::u16string sResult; // the sign first
    bool bInDecimals = false;
    for (const char16_t c : sNumber) {
        if (c >= u'0' && c <= u'9') {
            (bInDecimals ? sDecimal : sInteger).push_back(c);
            continue;
        }
        if (c == u'-' || c == u'+') sResult = c;
        if (sDecSep.size() == 1 && c == sDecSep.front()) bInDecimals = true;
    }

    if (sValSep.empty() && fixInt >= 1) {
        // No guard: more digits than fixInt is a failure of the caller, who gives one large enough.
        sInteger.insert(0, Zeros(fixInt - static_cast<std::ptrdiff_t>(sInteger.size())));
    }
    if (sResult.empty() && bSgn) sResult = u"+";
    for (std::size_t n = 0; n < sInteger.size(); ++n) {
        if (n > 0 && n % 3 == sInteger.size() % 3) sResult.append(sValSep);
        sResult.push_back(sInteger[n]);
    }

    if (fixDec >= 0) {
        const auto nWanted = static_cast<std::size_t>(fixDec);
        if (sDecimal.size() < nWanted) {
            sDecimal.append(Zeros(static_cast<std::ptrdiff_t>(nWanted - sDecimal.size())));
        } else {
            sDecimal.resize(nWanted);
        }
    }
    if (!sDecimal.empty()) sResult.append(sDecSep).append(sDecimal);
    return sResult;
}

} // namespace orvanta
