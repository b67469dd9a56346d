#include "controls/basic/ctlUniButtonImageXP.h"

#include "controls/basic/AccessKey.h"
#include "controls/basic/ButtonLayout.h"
#include "controls/basic/ButtonLook.h"
#include "controls/basic/KeyColor.h"
#include "controls/contract/SharedRows.h"
#include "drawing/clsMEMDC.h"
#include "drawing/modCtlCommon_alphaImg.h"
#include "plumbing/FaceDrawing.h"
#include "plumbing/PlatformRect.h"
#include "plumbing/SharedText.h"

#include <optional>

namespace orvanta {

namespace {

constexpr std::int16_t kLeftButton = 1;
// The caption breaks its lines as an edit control does.
constexpr UINT kCaptionFlags = DT_EXPANDTABS | DT_EDITCONTROL;

using ButtonRow = PropertyTable<ctlUniButtonImageXP>;
using ButtonShared = SharedRows<ctlUniButtonImageXP>;

} // namespace

const PropertyTable<ctlUniButtonImageXP> ctlUniButtonImageXP::s_table{
    ButtonRow::Field(u"Picture", {}, &ctlUniButtonImageXP::m_picture, After::Repaint),
    ButtonShared::Enabled(),
    ButtonShared::Font(),
    ButtonRow::Field(u"Caption", u"", &ctlUniButtonImageXP::m_sCaption, &ctlUniButtonImageXP::Caption),
    ButtonRow::Field(u"BackColor", kSystemButtonFace, &ctlUniButtonImageXP::m_backColor, After::Repaint),
    ButtonRow::Field(u"ForeColor", kSystemButtonText, &ctlUniButtonImageXP::m_foreColor, After::Repaint),
    ButtonRow::Field(u"BorderColor", kAutomatic, &ctlUniButtonImageXP::m_borderColor, After::Repaint),
    ButtonRow::Field(u"ShowFocus", true, &ctlUniButtonImageXP::m_bShowFocus, After::Repaint),
    ButtonRow::Field(u"Tristate", false, &ctlUniButtonImageXP::m_bTristate, After::OnlyOnChange | After::Repaint),
    ButtonRow::Field(u"Pressed", false, &ctlUniButtonImageXP::m_bPressed, After::OnlyOnChange | After::Repaint),
    ButtonShared::Tip(),
    ButtonRow::Field(u"Style", -1, &ctlUniButtonImageXP::m_lStyle, After::Repaint),
    ButtonRow::Field(u"RoundedBorders", true, &ctlUniButtonImageXP::m_bRoundedBorders, After::Repaint),
    ButtonRow::Field(u"BackColorOut", kAutomatic, &ctlUniButtonImageXP::m_backColorOut, After::Repaint),
    ButtonRow::Field(u"UseRoundRegions", false, &ctlUniButtonImageXP::m_bUseRoundRegions,
                     &ctlUniButtonImageXP::UseRoundRegions),
    ButtonRow::Field(u"TransparencyType", kKeyOfPixel, &ctlUniButtonImageXP::m_lTransparencyType, After::Repaint),
    ButtonRow::Field(u"TransparentColor", -1, &ctlUniButtonImageXP::m_transparentColor, After::Repaint),
    ButtonRow::Field(u"xTranspColor", 0, &ctlUniButtonImageXP::m_xTranspColor, After::Repaint),
    ButtonRow::Field(u"yTranspColor", 0, &ctlUniButtonImageXP::m_yTranspColor, After::Repaint),
    ButtonRow::Field(u"ImagePos", 0, &ctlUniButtonImageXP::m_lImagePos, After::Repaint),
    ButtonShared::OLEDropMode(),
    ButtonShared::MousePointer(),
    ButtonShared::MouseIcon(),
    ButtonRow::Field(u"DblClickEvent", false, &ctlUniButtonImageXP::m_bDblClickEvent, After::Nothing),
    ButtonRow::Field(u"Stretch", false, &ctlUniButtonImageXP::m_bStretch, After::Repaint),
};

void ctlUniButtonImageXP::Caption(std::u16string s) {
    m_sCaption = std::move(s);
    pvSetAccessKey(Host(), m_sCaption);
    AfterChange(u"Caption", After::Notify | After::Repaint);
}

void ctlUniButtonImageXP::Picture(const OlePicture& picture) {
    Table().Set(*this, &ctlUniButtonImageXP::m_picture, picture);
}

void ctlUniButtonImageXP::BackColor(OleColor c) {
    Table().Set(*this, &ctlUniButtonImageXP::m_backColor, c);
}

void ctlUniButtonImageXP::ForeColor(OleColor c) {
    Table().Set(*this, &ctlUniButtonImageXP::m_foreColor, c);
}

void ctlUniButtonImageXP::BorderColor(OleColor c) {
    Table().Set(*this, &ctlUniButtonImageXP::m_borderColor, c);
}

void ctlUniButtonImageXP::BackColorOut(OleColor c) {
    Table().Set(*this, &ctlUniButtonImageXP::m_backColorOut, c);
}

void ctlUniButtonImageXP::Style(std::int32_t l) {
    Table().Set(*this, &ctlUniButtonImageXP::m_lStyle, l);
}

void ctlUniButtonImageXP::RoundedBorders(bool b) {
    Table().Set(*this, &ctlUniButtonImageXP::m_bRoundedBorders, b);
}

void ctlUniButtonImageXP::UseRoundRegions(bool b) {
    m_bUseRoundRegions = b;
    m_bRoundedBorders = b;
    OnResize();
}

void ctlUniButtonImageXP::ShowFocus(bool b) {
    Table().Set(*this, &ctlUniButtonImageXP::m_bShowFocus, b);
}

void ctlUniButtonImageXP::Tristate(bool b) {
    Table().Set(*this, &ctlUniButtonImageXP::m_bTristate, b);
}

void ctlUniButtonImageXP::Pressed(bool b) {
    Table().Set(*this, &ctlUniButtonImageXP::m_bPressed, b);
}

void ctlUniButtonImageXP::Value(bool b) {
    if (b) OnClick();
}

void ctlUniButtonImageXP::DblClickEvent(bool b) {
    Table().Set(*this, &ctlUniButtonImageXP::m_bDblClickEvent, b);
}

void ctlUniButtonImageXP::ImagePos(std::int32_t l) {
    Table().Set(*this, &ctlUniButtonImageXP::m_lImagePos, l);
}

void ctlUniButtonImageXP::Stretch(bool b) {
    Table().Set(*this, &ctlUniButtonImageXP::m_bStretch, b);
}

void ctlUniButtonImageXP::TransparencyType(std::int32_t l) {
    Table().Set(*this, &ctlUniButtonImageXP::m_lTransparencyType, l);
}

void ctlUniButtonImageXP::TransparentColor(OleColor c) {
    Table().Set(*this, &ctlUniButtonImageXP::m_transparentColor, c);
}

void ctlUniButtonImageXP::xTranspColor(std::int16_t i) {
    Table().Set(*this, &ctlUniButtonImageXP::m_xTranspColor, i);
}

void ctlUniButtonImageXP::yTranspColor(std::int16_t i) {
    Table().Set(*this, &ctlUniButtonImageXP::m_yTranspColor, i);
}

void ctlUniButtonImageXP::Refresh(bool) {
    pvInvalidate();
}

HostTraits ctlUniButtonImageXP::Traits() const {
    HostTraits traits;
    traits.bActsLikeButton = true;
    return traits;
}

void ctlUniButtonImageXP::OnInitProperties() {
    Table().SetDefaults(*this);
    // A new button on a form is a plain one, unlike one that is loaded without these keys.
    m_lStyle = 0;
    m_borderColor = 0;
    m_bRoundedBorders = false;
    m_sCaption = Host().Extender().Name();
    pvSetAccessKey(Host(), m_sCaption);
}

void ctlUniButtonImageXP::OnReadProperties(const PropertyBag& bag) {
    TableControl::OnReadProperties(bag);
    pvSetAccessKey(Host(), m_sCaption);
}

void ctlUniButtonImageXP::OnPaint() {
    DrawGuarded([this] { pvDraw(); });
}

void ctlUniButtonImageXP::OnResize() {
    if (m_bUseRoundRegions && m_bRoundedBorders) {
        IgnoreFailure([this] { ApplyRoundMask(); });
    } else {
        ApplyOpaque();
    }
    if (!IsDrawing()) pvInvalidate();
    Raise(Resize);
}

void ctlUniButtonImageXP::OnClick() {
    if (m_bTristate) {
        m_bPressed = !m_bPressed;
        pvInvalidate();
    }
    Raise(Click);
}

void ctlUniButtonImageXP::OnDblClick() {
    if (m_bDblClickEvent) {
        Raise(DblClick);
    } else {
        OnClick();
    }
}

void ctlUniButtonImageXP::OnMouseDown(std::int16_t Button, std::int16_t Shift, float X, float Y) {
    m_bMouseDown = UserMode() && Button == kLeftButton; // a form designer does not press
    pvInvalidate();
    FaceControl::OnMouseDown(Button, Shift, X, Y);
}

void ctlUniButtonImageXP::OnMouseMove(std::int16_t Button, std::int16_t Shift, float X, float Y) {
    if (!UserMode()) return;
    ShowTip();
    m_bMouseDown = Button == kLeftButton;
    Raise(MouseMove, Button, Shift, X, Y);
}

void ctlUniButtonImageXP::OnMouseUp(std::int16_t Button, std::int16_t Shift, float X, float Y) {
    m_bMouseDown = false;
    pvInvalidate();
    FaceControl::OnMouseUp(Button, Shift, X, Y);
}

void ctlUniButtonImageXP::OnKeyPress(std::int16_t& KeyAscii) {
    if (!Raise(KeyPress, KeyAscii)) return;
    if (KeyAscii == VK_SPACE || KeyAscii == VK_RETURN) OnClick();
}

void ctlUniButtonImageXP::OnAccessKeyPress(std::int16_t) {
    if (Enabled()) OnClick();
}

void ctlUniButtonImageXP::OnEnterFocus() {
    m_bHasFocus = true;
    if (m_bShowFocus) pvInvalidate();
}

void ctlUniButtonImageXP::OnExitFocus() {
    if (!m_bHasFocus) return;
    m_bHasFocus = false;
    m_bMouseDown = false;
    pvInvalidate();
}

void ctlUniButtonImageXP::pvDraw() {
    HDC dc = Host().hDC();
    const std::int32_t margin = ButtonMargin(m_bShowFocus);
    const PixelSize face{ClientPixelWidth(), ClientPixelHeight()};
    const bool bEnabled = Enabled();
    const ControlExtender& extender = Host().Extender();
    const ButtonLook look = LookOfButton({.bEnabled = bEnabled,
                                          .bMouseDown = m_bMouseDown,
                                          .bTristate = m_bTristate,
                                          .bPressed = m_bPressed,
                                          .bHasFocus = m_bHasFocus,
                                          .bShowFocus = m_bShowFocus,
                                          .bDefault = extender.Default(),
                                          .bCancel = extender.Cancel()});
    DrawFace(dc, {0, 0, face.width, face.height}, m_backColor, true, m_borderColor, look.bPressed, look.bDefault,
             look.bCancel, look.bFocus, m_bRoundedBorders, m_lStyle, m_backColorOut, true);

    const ShownPicture shown = PictureToShow(face, margin);
    ButtonContent content{face, margin, std::nullopt, !m_sCaption.empty()};
    if (!shown.picture.IsEmpty()) content.picture = shown.size;
    const ButtonParts parts = LayOutButton(content, m_lImagePos, [&](const PixelRect& rect) {
        PixelSize size;
        MeasureTextInRect(dc, m_sCaption, rect.left, rect.top, rect.right, rect.bottom, kCaptionFlags, size.width,
                          size.height);
        return size;
    });
    IgnoreFailure([&] {
        pvOverlapImage(dc, RectOf(parts.picture), !bEnabled, shown.picture, m_lTransparencyType != kNoKey,
                       shown.size.width, shown.size.height, m_xTranspColor, m_yTranspColor,
                       m_lTransparencyType == kKeyOfColor ? m_transparentColor : kPixelDecides);
    });
    if (content.bCaption) DrawCaption(dc, parts.text, bEnabled);
}

void ctlUniButtonImageXP::DrawCaption(HDC dc, const PixelRect& text, bool bEnabled) {
    const OleColor color = bEnabled ? m_foreColor : kSystemGrayText;
    if (Host().ForeColor() != color) Host().ForeColor(color);
    RECT rect = RectOf(text);
    const UINT alignment = ButtonTextAtRight(m_lImagePos) ? DT_RIGHT : DT_CENTER;
    DrawTextOn(dc, m_sCaption, rect, alignment | DT_WORDBREAK | kCaptionFlags);
}

ctlUniButtonImageXP::ShownPicture ctlUniButtonImageXP::PictureToShow(PixelSize face, std::int32_t margin) const {
    if (m_picture.IsEmpty()) return {};
    ShownPicture shown{m_picture, PicturePixels(m_picture)};
    if (!m_bStretch) return shown;
    const std::optional<PixelSize> target = FittedPictureSize(face, margin, shown.size);
    if (!target) return shown;
    // What cannot be cloned, an icon, keeps its size.
    IgnoreFailure([&] {
        clsMEMDC surface;
        surface.CloneFromHBmp(static_cast<HBITMAP>(m_picture.Handle()), TRANSPARENT);
        surface.ResizeAdaptDC(target->width, target->height, TRANSPARENT);
        shown = {surface.Picture(), *target};
    });
    return shown;
}

} // namespace orvanta
