#include "plumbing/SharedShapes.h"

namespace orvanta {

namespace {

COLORREF PlainColor(OleColor c) {
    return static_cast<COLORREF>(ResolveColor(c));
}

RECT Shrunk(const RECT& rect, int n) {
    return {rect.left + n, rect.top + n, rect.right - n, rect.bottom - n};
}

// Puts the DC's pen position back where it was.
class PenPosition {
public:
    PenPosition(HDC dc, int x, int y) : m_dc(dc) { MoveToEx(dc, x, y, &m_before); }
    PenPosition(const PenPosition&) = delete;
    PenPosition& operator=(const PenPosition&) = delete;
    ~PenPosition() { MoveToEx(m_dc, m_before.x, m_before.y, nullptr); }

private:
    HDC m_dc;
    POINT m_before{};
};

} // namespace

OwnedBrush CreateBrushOle(OleColor c) {
    return OwnedBrush(CreateSolidBrush(PlainColor(c)));
}

OwnedPen CreatePenOle(int style, int width, OleColor c) {
    return OwnedPen(CreatePen(style, width, PlainColor(c)));
}

void FillOrFrame(HDC hdc, const RECT& rect, OleColor c, bool bFill) {
    if (!hdc) return;
    const OwnedBrush brush = CreateBrushOle(c);
    if (bFill) {
        FillRect(hdc, &rect, brush.Get());
    } else {
        FrameRect(hdc, &rect, brush.Get());
    }
}

void FillOrFrameCoords(HDC hdc, int left, int top, int right, int bottom, OleColor c, bool bFill) {
    FillOrFrame(hdc, {left, top, right, bottom}, c, bFill);
}

void DrawLineOle(HDC hdc, int x1, int y1, int x2, int y2, OleColor c, int width, int style) {
    if (!hdc) return;
    const OwnedPen pen = CreatePenOle(style, width, c);
    const Selection selection(hdc, pen.Get());
    const PenPosition position(hdc, x1, y1);
    LineTo(hdc, x2, y2);
}

void DrawRoundRect(HDC hdc, int left, int top, int right, int bottom, bool bFill, OleColor fillColor, OleColor penColor,
                   int penWidth, int penStyle, int corner) {
    if (!hdc) return;
    const OwnedBrush fill = bFill ? CreateBrushOle(fillColor) : OwnedBrush();
    HGDIOBJ brush = bFill ? fill.Get() : GetStockObject(NULL_BRUSH);
    const bool bPen = penWidth >= 1;
    const OwnedPen pen = bPen ? CreatePenOle(penStyle, penWidth, penColor) : CreatePenOle(PS_NULL, 1, penColor);
    // A shape without a pen comes out one pixel smaller.
    const int nMore = bPen ? 0 : 1;
    const Selection selectedBrush(hdc, brush);
    const Selection selectedPen(hdc, pen.Get());
    RoundRect(hdc, left, top, right + nMore, bottom + nMore, corner, corner);
}

void DrawRoundRectR(HDC hdc, const RECT& rect, bool bFill, OleColor fillColor, OleColor penColor, int penWidth,
                    int penStyle, int corner) {
    DrawRoundRect(hdc, rect.left, rect.top, rect.right, rect.bottom, bFill, fillColor, penColor, penWidth, penStyle,
                  corner);
}

void SetPixelOle(HDC hdc, int x, int y, OleColor c) {
    if (hdc) SetPixel(hdc, x, y, PlainColor(c));
}

void DrawFocusRectOn(HDC hdc, const RECT& rect) {
    if (hdc) DrawFocusRect(hdc, &rect);
}

OwnedRegion MakeRoundRegion(int width, int height, int corner) {
    return OwnedRegion(CreateRoundRectRgn(0, 0, width + 1, height + 1, corner, corner));
}

void SoftenFrame(HDC hdc, const RECT& rect, OleColor c) {
    const POINT points[] = {{rect.left + 1, rect.top},         {rect.left, rect.top + 1},
                            {rect.right - 2, rect.top},        {rect.right - 1, rect.top + 1},
                            {rect.left + 1, rect.bottom - 1},  {rect.left, rect.bottom - 2},
                            {rect.right - 2, rect.bottom - 1}, {rect.right - 1, rect.bottom - 2}};
    for (const POINT& point : points)
        SetPixelOle(hdc, point.x, point.y, c);
}

void DrawBoxBorder(HDC hdc, const RECT& rect, OleColor back, OleColor border, bool bRounded, OleColor out,
                   bool bBottomOnly) {
    if (!hdc) return;
    const OleColor b = BorderColorFor(border, back);
    const RECT inner = Shrunk(rect, 1);
    FillOrFrame(hdc, inner, back, false);
    if (bBottomOnly) {
        FillOrFrame(hdc, rect, back, false);
        DrawLineOle(hdc, rect.left + 1, rect.bottom - 1, rect.right - 1, rect.bottom - 1, b, 1, PS_SOLID);
        return;
    }
    if (!bRounded) {
        FillOrFrame(hdc, rect, b, false);
        return;
    }
    FillOrFrame(hdc, rect, out == kAutomatic ? back : out, false);
    DrawRoundRectR(hdc, rect, false, back, b, 1, PS_SOLID, 4);
    const OleColor half = MixColors(b, back, 50);
    SetPixelOle(hdc, inner.left, inner.top, half);
    SetPixelOle(hdc, inner.right - 1, inner.top, half);
    SetPixelOle(hdc, inner.left, inner.bottom - 1, half);
    SetPixelOle(hdc, inner.right - 1, inner.bottom - 1, half);
    SoftenFrame(hdc, rect, MixColors(b, back, 30));
}

} // namespace orvanta
