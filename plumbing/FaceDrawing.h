#pragma once

#include "plumbing/FaceStyle.h"
#include "plumbing/SharedColors.h"

#include <windows.h>

#include <cstdint>

namespace orvanta {

// Paints the face of a control: background, border, rounded corners and marks.
//
//   rect       pixels of the device context, right and bottom exclusive
//   back       the base colour; all shades of the face derive from it
//   bBorder    with a border in the colour `border`; kAutomatic derives it from back
//   bDefault, bCancel   a frame inside the border: blue for the default, grey for the cancel button; blue wins
//   bFocus     the focus mark, two pixels inside
//   bRounded   softened corners; outColor is what shows outside them, kAutomatic for back
//   style      0 to 8, -1 for DefaultFaceStyle
//   bAdapt     very dark and very light backs get their highlights adapted
//
// A band of fixed height is drawn whole on a face that is lower: callers clip if they mind. Without a device context
// nothing happens.
void DrawFace(HDC dc, const RECT& rect, OleColor back, bool bBorder, OleColor border, bool bPressed, bool bDefault,
              bool bCancel, bool bFocus, bool bRounded, std::int32_t style, OleColor outColor, bool bAdapt);

} // namespace orvanta
