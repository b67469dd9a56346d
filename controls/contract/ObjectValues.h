#pragma once

#include "controls/contract/PropertyValue.h"
#include "drawing/OleFont.h"
#include "drawing/OlePicture.h"

namespace orvanta {

// Pictures and fonts as property values. An empty reference is nothing. Pictures do not change and are shared; two
// values are equal when they hold one object. Fonts are equal by their properties, and a bag keeps a copy.

template<>
struct PropertyKind<OlePicture> {
    static PropertyValue Make(const OlePicture& picture);
    // Raises TypeMismatch for what is no picture.
    static OlePicture Take(const PropertyValue& value);
};

template<>
struct PropertyKind<OleFont> {
    static PropertyValue Make(const OleFont& font);
    // Raises TypeMismatch for what is no font.
    static OleFont Take(const PropertyValue& value);
};

} // namespace orvanta
