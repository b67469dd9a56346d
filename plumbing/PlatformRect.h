#pragma once

#include "base/PixelRect.h"

#include <windows.h>

namespace orvanta {

// The one place where rectangles of layout code and of the platform meet.
constexpr RECT RectOf(const PixelRect& rect) {
    return {rect.left, rect.top, rect.right, rect.bottom};
}
constexpr PixelRect PixelRectOf(const RECT& rect) {
    return {rect.left, rect.top, rect.right, rect.bottom};
}

} // namespace orvanta
