#pragma once

#include "base/Rounding.h"
#include "base/TaggedValue.h"

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace orvanta {

// A picture, a font or another object as the value of a property. What it is made of is known where it is made.
class PropertyObject {
public:
    virtual ~PropertyObject() = default;
    virtual bool IsEqual(const PropertyObject& other) const = 0;
    // What a property bag keeps and hands out: the object itself, or a copy when objects of its kind can change.
    virtual std::shared_ptr<const PropertyObject> Kept() const = 0;
};

using PropertyBytes = std::vector<std::uint8_t>;

// The value of a property outside its control: nothing, text, a number, a boolean, bytes or an object.
class PropertyValue {
public:
    PropertyValue() = default;
    PropertyValue(TaggedValue value) : m_value(std::move(value)) {}
    PropertyValue(std::u16string s) : m_value(TaggedValue(std::move(s))) {}
    PropertyValue(const char16_t* s) : m_value(TaggedValue(s)) {}
    PropertyValue(double d) : m_value(TaggedValue(d)) {}
    PropertyValue(std::int32_t l) : m_value(TaggedValue(l)) {}
    PropertyValue(bool b) : m_value(TaggedValue(b)) {}
    PropertyValue(PropertyBytes bytes) : m_value(std::move(bytes)) {}
    // No object is nothing.
    PropertyValue(std::shared_ptr<const PropertyObject> object);
    PropertyValue(const void*) = delete; // no other pointer turns into a boolean by accident

    bool IsNothing() const;
    bool IsBytes() const { return std::holds_alternative<PropertyBytes>(m_value); }
    bool IsObject() const { return std::holds_alternative<Object>(m_value); }

    // Text, number or boolean, with the conversions of TaggedValue. Raises TypeMismatch for bytes and objects.
    const TaggedValue& Plain() const;
    // Raises TypeMismatch for what is no bytes; nothing is no bytes at all.
    PropertyBytes Bytes() const;
    // Nothing is a null reference; raises TypeMismatch for anything else that is no object.
    std::shared_ptr<const PropertyObject> ObjectOrNone() const;

    // The same with an object as a bag keeps it.
    PropertyValue Kept() const;

    // The same kind and the same value; objects as they compare themselves.
    bool operator==(const PropertyValue& other) const;

private:
    using Object = std::shared_ptr<const PropertyObject>;
    std::variant<TaggedValue, PropertyBytes, Object> m_value;
};

// How a field's type becomes a property value and comes back. Reading converts as TaggedValue does and raises what it
// raises; a 16-bit field raises Overflow for a number beyond its range.
template<typename T>
struct PropertyKind;

template<>
struct PropertyKind<std::u16string> {
    static PropertyValue Make(const std::u16string& s) { return s; }
    static std::u16string Take(const PropertyValue& value) { return value.Plain().ToText(); }
};
template<>
struct PropertyKind<std::int32_t> {
    static PropertyValue Make(std::int32_t l) { return l; }
    static std::int32_t Take(const PropertyValue& value) { return value.Plain().ToInteger(); }
};
template<>
struct PropertyKind<std::int16_t> {
    static PropertyValue Make(std::int16_t i) { return std::int32_t{i}; }
    static std::int16_t Take(const PropertyValue& value) {
        return RoundToInteger<std::int16_t>(value.Plain().ToInteger());
    }
};
template<>
struct PropertyKind<bool> {
    static PropertyValue Make(bool b) { return b; }
    static bool Take(const PropertyValue& value) { return value.Plain().ToBoolean(); }
};
template<>
struct PropertyKind<double> {
    static PropertyValue Make(double d) { return d; }
    static double Take(const PropertyValue& value) { return value.Plain().ToFloat(); }
};
template<>
struct PropertyKind<PropertyBytes> {
    static PropertyValue Make(const PropertyBytes& bytes) { return bytes; }
    static PropertyBytes Take(const PropertyValue& value) { return value.Bytes(); }
};

} // namespace orvanta
