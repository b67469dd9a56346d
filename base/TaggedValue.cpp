#include "base/TaggedValue.h"

#include "base/Failure.h"
#include "base/Rounding.h"
#include "base/Text.h"

#include <charconv>
#include <cmath>
#include <cstdlib>
#include <optional>

namespace orvanta {

namespace {

std::u16string FloatText(double d, char16_t cDecimal) {
    if (d == 0.0) return u"0"; // the negative zero too
    const double dSize = std::fabs(d);
    const bool bPlain = dSize >= 1e-4 && dSize < 1e15;
    const auto form = bPlain ? std::chars_format::fixed : std::chars_format::scientific;
    char buffer[40];
    std::u16string sOut(buffer, std::to_chars(buffer, buffer + sizeof buffer, d, form).ptr);
    for (char16_t& c : sOut) {
        if (c == u'.') c = cDecimal;
        if (c == u'e') c = u'E';
    }
    return sOut;
}

// The whole string as a number: blanks around it, one sign, digits with one separator, an exponent behind "E" or "D".
std::optional<double> ParseFloat(std::u16string_view s, char16_t cDecimal) {
    std::string sPlain;
    for (const char16_t c : TrimBlanks(s)) {
        const char16_t cLower = LowerAscii(c);
        if (c == cDecimal) {
            sPlain.push_back('.');
        } else if (cLower == u'e' || cLower == u'd') {
            sPlain.push_back('e');
        } else if ((c >= u'0' && c <= u'9') || c == u'-' || c == u'+') {
            sPlain.push_back(static_cast<char>(c));
        } else {
            return std::nullopt;
        }
    }
    const char* begin = sPlain.data();
    const char* const stop = begin + sPlain.size();
    if (sPlain.starts_with('+') && !sPlain.starts_with("+-")) ++begin; // from_chars knows the minus sign only
    double d = 0;
    const auto [end, error] = std::from_chars(begin, stop, d);
    if (error == std::errc::invalid_argument || end != stop) return std::nullopt;
    if (error == std::errc::result_out_of_range) {
        d = std::strtod(begin, nullptr); // tells the two ends of the range apart
        if (std::isinf(d)) throw Overflow();
    }
    return d;
}

template<typename... Ts>
struct Overloaded : Ts... {
    using Ts::operator()...;
};
template<typename... Ts>
Overloaded(Ts...) -> Overloaded<Ts...>;

} // namespace

std::u16string TaggedValue::ToText(char16_t cDecimal) const {
    return std::visit(Overloaded{[](std::monostate) { return std::u16string(); },
                                 [](const std::u16string& s) { return s; },
                                 [cDecimal](double d) { return FloatText(d, cDecimal); },
                                 [](std::int32_t l) { return DecimalText(l); },
                                 [](bool b) { return std::u16string(b ? u"True" : u"False"); }},
                      m_value);
}

double TaggedValue::ToFloat(char16_t cDecimal) const {
    return std::visit(Overloaded{[](std::monostate) { return 0.0; },
                                 [cDecimal](const std::u16string& s) {
                                     const std::optional<double> d = ParseFloat(s, cDecimal);
                                     if (!d) throw TypeMismatch();
                                     return *d;
                                 },
                                 [](double d) { return d; }, [](std::int32_t l) { return static_cast<double>(l); },
                                 [](bool b) { return b ? -1.0 : 0.0; }},
                      m_value);
}

std::int32_t TaggedValue::ToInteger(char16_t cDecimal) const {
    return RoundToInteger<std::int32_t>(ToFloat(cDecimal));
}

bool TaggedValue::ToBoolean(char16_t cDecimal) const {
    if (const auto* s = std::get_if<std::u16string>(&m_value)) {
        if (EqualsAsciiFolded(TrimBlanks(*s), u"true")) return true;
        if (EqualsAsciiFolded(TrimBlanks(*s), u"false")) return false;
    }
    return ToFloat(cDecimal) != 0.0;
}

std::strong_ordering TaggedValue::Compare(const TaggedValue& other) const {
    if (IsString() || other.IsString()) {
        if (!IsString() && !IsNothing()) return std::strong_ordering::less;
        if (!other.IsString() && !other.IsNothing()) return std::strong_ordering::greater;
        return ToText() <=> other.ToText();
    }
    const double a = ToFloat();
    const double b = other.ToFloat();
    if (std::isnan(a) || std::isnan(b)) return std::isnan(b) <=> std::isnan(a);
    return a < b ? std::strong_ordering::less : a > b ? std::strong_ordering::greater : std::strong_ordering::equal;
}

} // namespace orvanta
