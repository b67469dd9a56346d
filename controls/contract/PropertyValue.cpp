#include "controls/contract/PropertyValue.h"

#include "base/Failure.h"

namespace orvanta {

PropertyValue::PropertyValue(std::shared_ptr<const PropertyObject> object) {
    if (object) m_value = std::move(object);
}

bool PropertyValue::IsNothing() const {
    const TaggedValue* plain = std::get_if<TaggedValue>(&m_value);
    return plain && plain->IsNothing();
}

const TaggedValue& PropertyValue::Plain() const {
    const TaggedValue* plain = std::get_if<TaggedValue>(&m_value);
    if (!plain) throw TypeMismatch();
    return *plain;
}

PropertyBytes PropertyValue::Bytes() const {
    if (IsNothing()) return {};
    const PropertyBytes* bytes = std::get_if<PropertyBytes>(&m_value);
    if (!bytes) throw TypeMismatch();
    return *bytes;
}

std::shared_ptr<const PropertyObject> PropertyValue::ObjectOrNone() const {
    if (IsNothing()) return nullptr;
    const Object* object = std::get_if<Object>(&m_value);
    if (!object) throw TypeMismatch();
    return *object;
}

PropertyValue PropertyValue::Kept() const {
    const Object* object = std::get_if<Object>(&m_value);
    return object ? PropertyValue((*object)->Kept()) : *this;
}

bool PropertyValue::operator==(const PropertyValue& other) const {
    const Object* mine = std::get_if<Object>(&m_value);
    const Object* others = std::get_if<Object>(&other.m_value);
    if (mine && others) return (*mine)->IsEqual(**others);
    return m_value == other.m_value;
}

} // namespace orvanta
