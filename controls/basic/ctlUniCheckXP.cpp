#include "controls/basic/ctlUniCheckXP.h"

#include "base/PixelRect.h"
#include "controls/basic/AccessKey.h"
#include "controls/basic/CheckLayout.h"
#include "controls/contract/SharedRows.h"
#include "plumbing/FaceDrawing.h"
#include "plumbing/PlatformRect.h"
#include "plumbing/SharedShapes.h"
#include "plumbing/SharedText.h"

namespace orvanta {

namespace {

constexpr std::int16_t kLeftButton = 1;
constexpr std::int32_t kDisabledStyle = 1;
// The caption breaks its lines as an edit control does.
constexpr UINT kCaptionFlags = DT_EXPANDTABS | DT_EDITCONTROL;

using CheckRow = PropertyTable<ctlUniCheckXP>;
using CheckShared = SharedRows<ctlUniCheckXP>;

} // namespace

const PropertyTable<ctlUniCheckXP> ctlUniCheckXP::s_table{
    CheckShared::Font(),
    CheckRow::Field(u"Caption", u"", &ctlUniCheckXP::m_sCaption, &ctlUniCheckXP::Caption),
    CheckShared::Enabled(),
    CheckRow::Field(u"Align", 0, &ctlUniCheckXP::m_iAlign, After::Repaint),
    CheckRow::Field(u"CheckBackColor", kSystemWindow, &ctlUniCheckXP::m_checkBackColor, After::Repaint),
    CheckRow::Field(u"CheckForeColor", kSystemWindowText, &ctlUniCheckXP::m_checkForeColor, After::Repaint),
    CheckRow::Field(u"BackColor", kSystemButtonFace, &ctlUniCheckXP::m_backColor, After::Repaint),
    CheckRow::Field(u"ForeColor", kSystemButtonText, &ctlUniCheckXP::m_foreColor, After::Repaint),
    CheckRow::Field(u"BorderColor", kAutomatic, &ctlUniCheckXP::m_borderColor, After::Repaint),
    CheckRow::Field(u"Pressed", false, &ctlUniCheckXP::m_bPressed, &ctlUniCheckXP::Pressed),
    CheckShared::Tip(),
    CheckRow::Field(u"Style", -1, &ctlUniCheckXP::m_lStyle, After::Repaint),
    CheckShared::OLEDropMode(),
    CheckShared::MousePointer(),
    CheckShared::MouseIcon(),
    CheckRow::Field(u"ShowFocus", true, &ctlUniCheckXP::m_bShowFocus, After::Repaint),
};

void ctlUniCheckXP::Caption(std::u16string s) {
    m_sCaption = std::move(s);
    pvSetAccessKey(Host(), m_sCaption);
    AfterChange(u"Caption", After::Notify | After::Repaint);
}

void ctlUniCheckXP::Align(std::int16_t i) {
    Table().Set(*this, &ctlUniCheckXP::m_iAlign, i);
}

void ctlUniCheckXP::CheckBackColor(OleColor c) {
    Table().Set(*this, &ctlUniCheckXP::m_checkBackColor, c);
}

void ctlUniCheckXP::CheckForeColor(OleColor c) {
    Table().Set(*this, &ctlUniCheckXP::m_checkForeColor, c);
}

void ctlUniCheckXP::BackColor(OleColor c) {
    Table().Set(*this, &ctlUniCheckXP::m_backColor, c);
}

void ctlUniCheckXP::ForeColor(OleColor c) {
    Table().Set(*this, &ctlUniCheckXP::m_foreColor, c);
}

void ctlUniCheckXP::BorderColor(OleColor c) {
    Table().Set(*this, &ctlUniCheckXP::m_borderColor, c);
}

void ctlUniCheckXP::Style(std::int32_t l) {
    Table().Set(*this, &ctlUniCheckXP::m_lStyle, l);
}

void ctlUniCheckXP::ShowFocus(bool b) {
    Table().Set(*this, &ctlUniCheckXP::m_bShowFocus, b);
}

void ctlUniCheckXP::Pressed(bool b) {
    if (m_bPressed == b) return;
    m_bPressed = b;
    pvInvalidate();
    Raise(Click);
}

void ctlUniCheckXP::OnInitProperties() {
    Table().SetDefaults(*this);
    m_sCaption = Host().Extender().Name();
    pvSetAccessKey(Host(), m_sCaption);
}

void ctlUniCheckXP::OnReadProperties(const PropertyBag& bag) {
    TableControl::OnReadProperties(bag);
    pvSetAccessKey(Host(), m_sCaption);
}

void ctlUniCheckXP::OnPaint() {
    DrawGuarded([this] { pvDraw(); });
}

void ctlUniCheckXP::OnResize() {
    if (!IsDrawing()) pvInvalidate();
}

void ctlUniCheckXP::OnClick() {
    if (m_bArmed) Pressed(!m_bPressed);
}

void ctlUniCheckXP::OnDblClick() {
    if (!m_bArmed) return;
    const HostCall call;
    OnClick();
    if (!Host().IsGone()) Raise(DblClick);
}

void ctlUniCheckXP::OnMouseDown(std::int16_t Button, std::int16_t Shift, float X, float Y) {
    m_bArmed = UserMode() && (Button & kLeftButton) != 0; // a form designer does not press
    FaceControl::OnMouseDown(Button, Shift, X, Y);
}

void ctlUniCheckXP::OnKeyPress(std::int16_t& KeyAscii) {
    if (!Raise(KeyPress, KeyAscii)) return;
    if (KeyAscii == VK_SPACE || KeyAscii == VK_RETURN) ArmAndClick();
}

void ctlUniCheckXP::OnAccessKeyPress(std::int16_t) {
    if (Enabled()) ArmAndClick();
}

void ctlUniCheckXP::OnEnterFocus() {
    m_bHasFocus = true;
}

void ctlUniCheckXP::OnExitFocus() {
    if (!m_bHasFocus) return;
    m_bHasFocus = false;
    pvInvalidate();
}

void ctlUniCheckXP::ArmAndClick() {
    m_bArmed = true;
    OnClick();
}

void ctlUniCheckXP::pvDraw() {
    HDC dc = Host().hDC();
    const bool bEnabled = Enabled();
    FillOrFrame(dc, ClientPixels(), m_backColor, true);
    DrawBox(dc, bEnabled);
    if (!m_sCaption.empty()) DrawCaption(dc, bEnabled);
}

void ctlUniCheckXP::DrawBox(HDC dc, bool bEnabled) const {
    std::int16_t top = 0;
    IgnoreFailure([&] { top = CheckBoxTop(ClientPixelHeight()); });
    const PixelRect box = CheckBoxRect(ClientPixelWidth(), top, m_iAlign);
    // A disabled box looks sunken, whatever its style and its inside are.
    DrawFace(dc, RectOf(box), bEnabled ? m_checkBackColor : m_backColor, true, m_borderColor, !bEnabled, false, false,
             false, true, bEnabled ? m_lStyle : kDisabledStyle, kAutomatic, true);
    for (const PixelPoint& corner : CheckBoxCorners(box))
        SetPixelOle(dc, corner.x, corner.y, m_backColor);
    if (!m_bPressed) return;
    const OleColor color = bEnabled ? m_checkForeColor : kSystemGrayText;
    for (const PixelLine& line : CheckTick(box))
        DrawLineOle(dc, line.from.x, line.from.y, line.to.x, line.to.y, color, 1, PS_SOLID);
}

void ctlUniCheckXP::DrawCaption(HDC dc, bool bEnabled) {
    const OleColor color = bEnabled ? m_foreColor : DisabledTextColor(m_foreColor, m_backColor);
    if (Host().ForeColor() != color) Host().ForeColor(color);
    const PixelSize client{ClientPixelWidth(), ClientPixelHeight()};
    const PixelRect room = CheckCaptionRoom(client, m_iAlign);
    PixelSize text;
    MeasureTextInRect(dc, m_sCaption, room.left, room.top, room.right, room.bottom, kCaptionFlags, text.width,
                      text.height);
    const PixelRect caption = CheckCaptionRect(client, m_iAlign, text);
    RECT rect = RectOf(caption);
    DrawTextOn(dc, m_sCaption, rect, DT_WORDBREAK | kCaptionFlags);
    if (m_bHasFocus && m_bShowFocus) DrawFocusRectOn(dc, RectOf(CheckFocusRect(client, caption)));
}

} // namespace orvanta
