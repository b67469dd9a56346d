#include "base/Failure.h"

namespace orvanta {

Failure::Failure(std::uint32_t lNumber, std::u16string_view sSource, std::u16string_view sDescription)
    : m_lNumber(lNumber), m_sSource(sSource), m_sDescription(sDescription) {
    m_sWhat.reserve(sDescription.size());
    for (const char16_t c : sDescription)
        m_sWhat.push_back(c < 0x80 ? static_cast<char>(c) : '?');
}

Failure InvalidProcedureCall() {
    return {5, u"", u"Invalid procedure call or argument"};
}

Failure Overflow() {
    return {6, u"", u"Overflow"};
}

Failure SubscriptOutOfRange() {
    return {9, u"", u"Subscript out of range"};
}

Failure DivisionByZero() {
    return {11, u"", u"Division by zero"};
}

Failure TypeMismatch() {
    return {13, u"", u"Type mismatch"};
}

Failure KeyAlreadyInUse() {
    return {457, u"", u"This key is already associated with an element of this collection"};
}

Failure OwnFailure(std::u16string_view sSource, std::u16string_view sDescription) {
    return {Failure::kOwn, sSource, sDescription};
}

} // namespace orvanta
