// What the list boxes draw: the border, the items, and the face in a form designer.
#include "controls/text/ListBoxCore.h"
#include "plumbing/FaceDrawing.h"
#include "plumbing/PlatformRect.h"
#include "plumbing/SharedShapes.h"
#include "plumbing/SharedText.h"

#include <utility>

namespace orvanta {

void ListBoxCore::pvInvalidate() {
    Control::pvInvalidate();
    // The host leaves the area of the list out when it paints. A new back colour shows below the last item too.
    if (m_hList) InvalidateRect(m_hList, nullptr, m_bBrushDirty ? TRUE : FALSE);
}

void ListBoxCore::DrawControl() {
    DrawGuarded([this] {
        RenewBrush();
        HDC dc = Host().hDC();
        DrawBoxBorder(dc, ClientPixels(), m_backColor, m_borderColor, m_bRoundedBorders, m_backColorOut, false);
        if (UserMode()) return;
        const RECT inner = InnerPixels();
        FillOrFrame(dc, inner, m_backColor, true);
        RECT text = inner;
        InflateRect(&text, -2, -2);
        DrawTextColored(dc, Host().Extender().Name(), text, m_foreColor, DT_NOPREFIX);
    });
}

void ListBoxCore::RenewBrush() {
    if (!m_hList || !std::exchange(m_bBrushDirty, false)) return;
    m_backBrush.Handle(CreateBrushOle(m_backColor).Release());
}

OleColor ListBoxCore::TextColor() const {
    return Enabled() ? m_foreColor : DisabledTextColor(m_foreColor, m_backColor);
}

// The list may be painted before its host.
void ListBoxCore::OnCtlColor(LRESULT& lReturn, HDC dc) {
    RenewBrush();
    SetBkColor(dc, static_cast<COLORREF>(ResolveColor(m_backColor)));
    SetTextColor(dc, static_cast<COLORREF>(ResolveColor(TextColor())));
    if (HGDIOBJ brush = m_backBrush.Handle()) lReturn = reinterpret_cast<LRESULT>(brush);
}

std::int32_t ListBoxCore::PlainItemHeight(HDC dc) {
    std::int32_t w = 0;
    std::int32_t h = 0;
    MeasureTextLine(dc, u"Xg", 0, w, h);
    return ItemHeightOf(h);
}

void ListBoxCore::DrawCheckBox(HDC dc, const PixelRect& box, bool bChecked) const {
    DrawFace(dc, RectOf(box), m_backColor, true, kAutomatic, false, false, false, false, false, -1, kAutomatic, true);
    if (!bChecked) return;
    for (const ListLine& line : CheckMarkLines(box))
        DrawLineOle(dc, line.x1, line.y1, line.x2, line.y2, m_foreColor, 1, PS_SOLID);
}

OleColor ListBoxCore::DrawItemFace(HDC dc, const PixelRect& item, bool bSelected) const {
    if (!bSelected) {
        FillOrFrame(dc, RectOf(item), m_backColor, true);
        return TextColor();
    }
    DrawFace(dc, RectOf(item), m_selBackColor, true, kAutomatic, false, false, false, false, m_bRoundSelector,
             m_lSelectorStyle, m_backColor, true);
    return m_selForeColor;
}

void ListBoxCore::DrawItemText(HDC dc, const std::u16string& s, const PixelRect& rect, OleColor c) {
    RECT place = RectOf(rect);
    DrawTextColored(dc, s, place, c, DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
}

} // namespace orvanta
