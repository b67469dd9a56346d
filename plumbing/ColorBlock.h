#pragma once

#include "plumbing/SharedColors.h"

#include <windows.h>

#include <vector>

namespace orvanta {

// Draws lines of equal pixels as one block: much cheaper than line by line where the surface takes colours as they are.

// Whether a block has the same pixels as lines drawn with a pen: a display or memory surface of at least 24 bits a
// pixel, in plain pixel coordinates, with pens that copy their colour.
bool TakesColorBlocks(HDC hdc);

// A block of `width` by colors.size() pixels whose rows have these plain colours, its first row at y. For surfaces that
// take blocks.
void PutColorRows(HDC hdc, int x, int y, int width, const std::vector<OleColor>& colors);
// The same with columns.
void PutColorColumns(HDC hdc, int x, int y, int height, const std::vector<OleColor>& colors);

} // namespace orvanta
