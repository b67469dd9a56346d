#include "plumbing/ProgramFailure.h"

#include "base/Text.h"
#include "plumbing/WideText.h"

#include <windows.h>

namespace orvanta {

namespace {

Failure RunTimeFailure(std::uint32_t lNumber) {
    for (const Failure& known :
         {InvalidProcedureCall(), Overflow(), SubscriptOutOfRange(), TypeMismatch(), KeyAlreadyInUse()})
        if (known.Number() == lNumber) return known;
    return {lNumber, u"", u"Application-defined or object-defined error"};
}

} // namespace

std::u16string ExecutableName() {
    std::u16string s(32768, u'\0');
    s.resize(GetModuleFileNameW(nullptr, WideBuffer(s), static_cast<DWORD>(s.size())));
    s.erase(0, s.find_last_of(u'\\') + 1);
    if (const std::size_t nDot = s.find_last_of(u'.'); nDot != std::u16string::npos) s.erase(nDot);
    return s;
}

Failure PlumbingFailure(std::uint32_t lCode, std::u16string_view sDescription) {
    if (lCode <= 1000) return RunTimeFailure(lCode);
    return {0x80040000u | lCode, ExecutableName() + u".WindowProc", sDescription};
}

} // namespace orvanta
