#pragma once

#include <compare>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

namespace orvanta {

// A value that knows its kind: nothing, a string, a 64-bit float, an integer or a boolean.
class TaggedValue {
public:
    TaggedValue() = default;
    TaggedValue(std::u16string s) : m_value(std::move(s)) {}
    TaggedValue(std::u16string_view s) : m_value(std::u16string(s)) {}
    TaggedValue(const char16_t* s) : m_value(std::u16string(s)) {}
    TaggedValue(double d) : m_value(d) {}
    TaggedValue(std::int32_t l) : m_value(l) {}
    TaggedValue(bool b) : m_value(b) {}
    TaggedValue(const void*) = delete; // no other pointer turns into a boolean by accident

    bool IsNothing() const { return std::holds_alternative<std::monostate>(m_value); }
    bool IsString() const { return std::holds_alternative<std::u16string>(m_value); }
    bool IsFloat() const { return std::holds_alternative<double>(m_value); }
    bool IsInteger() const { return std::holds_alternative<std::int32_t>(m_value); }
    bool IsBoolean() const { return std::holds_alternative<bool>(m_value); }

    // Conversions. Nothing counts as "", 0 and false; true counts as -1. A string that is no number (or no boolean)
    // raises TypeMismatch, a number beyond the range of the result Overflow. Floats become integers by rounding halves
    // to even. Numbers are written with the fewest digits that read back as the same number, plainly from 0.0001 to
    // below 1E+15, else with an exponent, and read with blanks around them; cDecimal is the decimal separator in both
    // directions.
    std::u16string ToText(char16_t cDecimal = u'.') const;
    double ToFloat(char16_t cDecimal = u'.') const;
    std::int32_t ToInteger(char16_t cDecimal = u'.') const;
    bool ToBoolean(char16_t cDecimal = u'.') const;

    // The order in which values sort. Numbers and booleans go by size; a number is less than any string; two strings go
    // by code units. Nothing is 0 beside a number and "" beside a string. "Not a number" stands before all
    // numbers.
    std::strong_ordering Compare(const TaggedValue& other) const;

    // The same kind and the same value; unlike Compare, the integer 0 and the float 0 differ.
    bool operator==(const TaggedValue& other) const = default;

private:
    std::variant<std::monostate, std::u16string, double, std::int32_t, bool> m_value;
};

} // namespace orvanta
