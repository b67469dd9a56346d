#pragma once

#include "plumbing/GdiOwner.h"
#include "plumbing/SharedColors.h"

#include <windows.h>

#include <cstdint>

namespace orvanta {

// Shapes of all controls. Coordinates are pixels of the device context; right and bottom are exclusive. Without a
// device context nothing happens. Each routine leaves the device context as it found it; a failed platform call leaves
// the picture incomplete and raises nothing.

// Brush and pen of a resolved colour; style is one of the platform's PS_ values.
OwnedBrush CreateBrushOle(OleColor c);
OwnedPen CreatePenOle(int style, int width, OleColor c);

// A filled rectangle, or its frame of one pixel.
void FillOrFrame(HDC hdc, const RECT& rect, OleColor c, bool bFill);
void FillOrFrameCoords(HDC hdc, int left, int top, int right, int bottom, OleColor c, bool bFill);

// The last point is not drawn.
void DrawLineOle(HDC hdc, int x1, int y1, int x2, int y2, OleColor c, int width, int style);

// corner is the full width and height of the corner's ellipse. A pen width below 1 draws no outline.
void DrawRoundRect(HDC hdc, int left, int top, int right, int bottom, bool bFill, OleColor fillColor, OleColor penColor,
                   int penWidth, int penStyle, int corner);
void DrawRoundRectR(HDC hdc, const RECT& rect, bool bFill, OleColor fillColor, OleColor penColor, int penWidth,
                    int penStyle, int corner);

void SetPixelOle(HDC hdc, int x, int y, OleColor c);

// A band of rows from top (included) to bottom, each one step nearer to the second colour; the column x1 alone when x1
// equals x2. GradientH is the same with columns.
void GradientV(HDC hdc, int x1, int y1, int x2, int y2, OleColor top, OleColor bottom);
void GradientVR(HDC hdc, const RECT& rect, OleColor top, OleColor bottom);
void GradientH(HDC hdc, int x1, int y1, int x2, int y2, OleColor left, OleColor right);
void GradientHR(HDC hdc, const RECT& rect, OleColor left, OleColor right);

void DrawFocusRectOn(HDC hdc, const RECT& rect);

// The shape of a rounded window of that size. The window takes the region over: release the owner into SetWindowRgn.
OwnedRegion MakeRoundRegion(int width, int height, int corner);

// The edge of the text box, the list boxes and the grid. border may be kAutomatic; out is the colour outside rounded
// corners, kAutomatic for back. bBottomOnly draws one line at the bottom instead.
void DrawBoxBorder(HDC hdc, const RECT& rect, OleColor back, OleColor border, bool bRounded, OleColor out,
                   bool bBottomOnly);

// The softening of a rounded corner, shared by boxes and faces: the eight pixels beside the corners of the frame.
void SoftenFrame(HDC hdc, const RECT& rect, OleColor c);

} // namespace orvanta
