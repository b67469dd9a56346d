// The gradients of SharedShapes.h.
#include "plumbing/ColorBlock.h"
#include "plumbing/SharedShapes.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace orvanta {

namespace {

// One pen that changes its colour serves all rows; a gradient costs no GDI object. The DC gets everything back.
class ChangingPen {
public:
    explicit ChangingPen(HDC dc) : m_dc(dc), m_selection(dc, GetStockObject(DC_PEN)), m_color(GetDCPenColor(dc)) {
        MoveToEx(dc, 0, 0, &m_position);
    }
    ChangingPen(const ChangingPen&) = delete;
    ChangingPen& operator=(const ChangingPen&) = delete;
    ~ChangingPen() {
        SetDCPenColor(m_dc, m_color);
        MoveToEx(m_dc, m_position.x, m_position.y, nullptr);
    }

    void Line(int x1, int y1, int x2, int y2, OleColor plain) const {
        SetDCPenColor(m_dc, static_cast<COLORREF>(plain));
        MoveToEx(m_dc, x1, y1, nullptr);
        LineTo(m_dc, x2, y2);
    }

private:
    HDC m_dc;
    Selection m_selection;
    COLORREF m_color;
    POINT m_position{};
};

} // namespace

void GradientV(HDC hdc, int x1, int y1, int x2, int y2, OleColor top, OleColor bottom) {
    if (!hdc) return;
    const std::vector<OleColor> colors = GradientColors(top, bottom, y2 - y1);
    if (colors.empty()) return;
    if (x1 <= x2 && TakesColorBlocks(hdc)) {
        PutColorRows(hdc, x1, y1, std::max(x2 - x1, 1), colors);
        return;
    }
    if (x1 == x2) {
        for (std::size_t i = 0; i < colors.size(); ++i)
            SetPixelOle(hdc, x1, y1 + static_cast<int>(i), colors[i]);
        return;
    }
    const ChangingPen pen(hdc);
    for (std::size_t i = 0; i < colors.size(); ++i)
        pen.Line(x1, y1 + static_cast<int>(i), x2, y1 + static_cast<int>(i), colors[i]);
}

void GradientVR(HDC hdc, const RECT& rect, OleColor top, OleColor bottom) {
    GradientV(hdc, rect.left, rect.top, rect.right, rect.bottom, top, bottom);
}

void GradientH(HDC hdc, int x1, int y1, int x2, int y2, OleColor left, OleColor right) {
    if (!hdc) return;
    const std::vector<OleColor> colors = GradientColors(left, right, x2 - x1);
    if (colors.empty()) return;
    if (y1 <= y2 && TakesColorBlocks(hdc)) {
        PutColorColumns(hdc, x1, y1, std::max(y2 - y1, 1), colors);
        return;
    }
    if (y1 == y2) {
        for (std::size_t i = 0; i < colors.size(); ++i)
            SetPixelOle(hdc, x1 + static_cast<int>(i), y1, colors[i]);
        return;
    }
    const ChangingPen pen(hdc);
    for (std::size_t i = 0; i < colors.size(); ++i)
        pen.Line(x1 + static_cast<int>(i), y1, x1 + static_cast<int>(i), y2, colors[i]);
}

void GradientHR(HDC hdc, const RECT& rect, OleColor left, OleColor right) {
    GradientH(hdc, rect.left, rect.top, rect.right, rect.bottom, left, right);
}

} // namespace orvanta
