#pragma once

#include "drawing/OlePicture.h"
#include "drawing/PixelBits.h"
#include "drawing/clsDIBSection.h"

#include <windows.h>

#include <cstdint>

// Pictures on controls: drawn plainly, with one colour left out, greyed for the disabled state, or both. Interface
// thread only, and never one call inside another: two work buffers live for the whole process.
namespace orvanta {

// Draws a picture, centred and never stretched, into a rectangle of a DC; a larger picture shows its top left part. An
// empty picture and an empty rectangle draw nothing.
//
// width and height limit what is drawn of the picture; negative (for an icon: below 1) means all of it. With
// bTransparent, pixels of a bitmap that have exactly the key colour are left out, and the masked pixels of an icon. The
// key colour is a plain one, 0x00BBGGRR; -1 stands for the colour of the picture at x, y.
//
// Failures of the work buffers reach the caller as they are; the buffers are empty then. The routine has no messages of
// its own: the prefix "pvOverlapImage: " is kept for such.
void pvOverlapImage(HDC lHdc, std::int32_t lLeft, std::int32_t lTop, std::int32_t lRight, std::int32_t lBottom,
                    bool bDisabled, const OlePicture& oPicture, bool bTransparent, std::int32_t lWidth = -1,
                    std::int32_t lHeight = -1, std::int32_t x = 0, std::int32_t y = 0, std::int32_t lKeyColor = -1);
void pvOverlapImage(HDC lHdc, const RECT& rectangle, bool bDisabled, const OlePicture& oPicture, bool bTransparent,
                    std::int32_t lWidth = -1, std::int32_t lHeight = -1, std::int32_t x = 0, std::int32_t y = 0,
                    std::int32_t lKeyColor = -1);

// The bytes of a 32-bit section, after all drawing on it. Any other depth raises "Cannot create Safe Array for this DIB
// bpp". They must not be used after the section is destroyed.
PixelBits pvBuildSA3D(const clsDIBSection& oDib);

} // namespace orvanta
