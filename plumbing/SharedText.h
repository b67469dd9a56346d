#pragma once

#include "plumbing/SharedColors.h"

#include <windows.h>

#include <cstdint>
#include <string_view>

namespace orvanta {

// Drawing and measuring of text with the font that is selected into the device context. Flags are the platform's DT_
// values, sizes are pixels. Without a device context nothing happens and outputs keep their values.

// DrawTextW with the whole of s; with DT_CALCRECT in the flags it sets the rectangle instead of drawing.
void DrawTextOn(HDC hdc, std::u16string_view s, RECT& rect, UINT flags);

// The colour stays selected as the device context's text colour.
void DrawTextColored(HDC hdc, std::u16string_view s, RECT& rect, OleColor c, UINT flags);
void DrawTextColoredAt(HDC hdc, std::u16string_view s, int left, int top, int right, int bottom, OleColor c,
                       UINT flags);

// The size of s on one line.
void MeasureTextLine(HDC hdc, std::u16string_view s, UINT flags, std::int32_t& w, std::int32_t& h);

// The width of the widest line; CR and CR LF end a line, LF alone does not. 0 without a device context.
std::int32_t MeasureTextMaxLineWidth(HDC hdc, std::u16string_view s, UINT flags);

// The size of s with lines broken between words at width w. Without bKeepWidth w is that of the widest line, without
// bKeepHeight h starts at 0.
void MeasureTextBlock(HDC hdc, std::u16string_view s, UINT flags, bool bKeepWidth, bool bKeepHeight, std::int32_t& w,
                      std::int32_t& h);

// The size of s with lines broken between words inside a rectangle.
void MeasureTextInRect(HDC hdc, std::u16string_view s, int left, int top, int right, int bottom, UINT flags,
                       std::int32_t& w, std::int32_t& h);

} // namespace orvanta
