#pragma once

#include "controls/contract/PropertyValue.h"

#include <string>
#include <string_view>

namespace orvanta::gallery {

// A property's value as the inspector shows it: numbers beyond 65,535 and below -1 in hexadecimal, line ends as \n,
// fonts by name and size; "(picture)" for a picture.
std::u16string TextOfValue(const PropertyValue& value);

// What the user has typed as a value like the present one: for a picture the name of a sample, for a font its name and
// size ("Tahoma, 12"), else a plain value. Raises TypeMismatch for what is none.
PropertyValue ValueOfText(std::u16string_view s, const PropertyValue& present);

} // namespace orvanta::gallery
