#include "plumbing/SharedText.h"

#include "base/Text.h"
#include "plumbing/WideText.h"

#include <algorithm>
#include <string>

namespace orvanta {

namespace {

void SizeOf(const RECT& rect, std::int32_t& w, std::int32_t& h) {
    w = rect.right - rect.left;
    h = rect.bottom - rect.top;
}

} // namespace

void DrawTextOn(HDC hdc, std::u16string_view s, RECT& rect, UINT flags) {
    if (!hdc) return;
    DrawTextW(hdc, s.empty() ? L"" : WideData(s), static_cast<int>(s.size()), &rect, flags);
}

void DrawTextColored(HDC hdc, std::u16string_view s, RECT& rect, OleColor c, UINT flags) {
    if (!hdc) return;
    SetTextColor(hdc, static_cast<COLORREF>(ResolveColor(c)));
    DrawTextOn(hdc, s, rect, flags);
}

void DrawTextColoredAt(HDC hdc, std::u16string_view s, int left, int top, int right, int bottom, OleColor c,
                       UINT flags) {
    RECT rect{left, top, right, bottom};
    DrawTextColored(hdc, s, rect, c, flags);
}

void MeasureTextLine(HDC hdc, std::u16string_view s, UINT flags, std::int32_t& w, std::int32_t& h) {
    if (!hdc) return;
    RECT rect{};
    DrawTextOn(hdc, s, rect, flags | DT_CALCRECT | DT_SINGLELINE);
    SizeOf(rect, w, h);
}

std::int32_t MeasureTextMaxLineWidth(HDC hdc, std::u16string_view s, UINT flags) {
    const std::u16string sLines = ReplaceAll(s, u"\r\n", u"\r");
    std::int32_t lWidest = 0;
    for (const std::u16string_view sLine : Split(sLines, u"\r")) {
        std::int32_t w = 0;
        std::int32_t h = 0;
        MeasureTextLine(hdc, sLine, flags, w, h);
        lWidest = std::max(lWidest, w);
    }
    return lWidest;
}

void MeasureTextBlock(HDC hdc, std::u16string_view s, UINT flags, bool bKeepWidth, bool bKeepHeight, std::int32_t& w,
                      std::int32_t& h) {
    if (!hdc) return;
    if (!bKeepWidth) w = MeasureTextMaxLineWidth(hdc, s, flags | DT_SINGLELINE);
    if (!bKeepHeight) h = 0;
    MeasureTextInRect(hdc, s, 0, 0, w, h, flags, w, h);
}

void MeasureTextInRect(HDC hdc, std::u16string_view s, int left, int top, int right, int bottom, UINT flags,
                       std::int32_t& w, std::int32_t& h) {
    if (!hdc) return;
    RECT rect{left, top, right, bottom};
    DrawTextOn(hdc, s, rect, flags | DT_CALCRECT | DT_WORDBREAK);
    SizeOf(rect, w, h);
}

} // namespace orvanta
