#include "controls/tips/ctlUniTooltipManager.h"

#include "controls/basic/DesignIcon.h"
#include "controls/contract/SharedRows.h"
#include "controls/tips/ctlUniToolTip.h"
#include "drawing/clsMEMDC.h"
#include "plumbing/SharedShapes.h"
#include "plumbing/TipBridge.h"

namespace orvanta {

namespace {

constexpr OleColor kDefaultBack = static_cast<OleColor>(0x80000018u);
constexpr OleColor kDefaultFore = static_cast<OleColor>(0x80000017u);
constexpr std::int32_t kDefaultWidth = 300;
constexpr std::int32_t kIconSize = 16;

// The popup of the process; a program that has said nothing else gets the real one.
TipPopup* Popup() {
    if (TipPopup* popup = TipPopupForSettings()) return popup;
    SetTipPopupMaker(MakeToolTip);
    return TipPopupForSettings();
}

// A tip with two lines of text.
OlePicture MakeManagerIcon() {
    constexpr OleColor kOutside = MakeColor(255, 0, 255), kLine = MakeColor(64, 64, 96),
                       kSheet = MakeColor(255, 255, 225), kText = MakeColor(128, 128, 144);
    clsMEMDC surface;
    surface.CreateDC(kIconSize, kIconSize, TRANSPARENT);
    const HDC dc = surface.Hdc();
    surface.DrawBackColor(kOutside);
    FillOrFrameCoords(dc, 1, 3, 15, 13, kSheet, true);
    FillOrFrameCoords(dc, 3, 6, 13, 7, kText, true);
    FillOrFrameCoords(dc, 3, 9, 10, 10, kText, true);
    FillOrFrameCoords(dc, 1, 3, 15, 13, kLine, false);
    return surface.Picture();
}

} // namespace

const PropertyTable<ctlUniTooltipManager>& ctlUniTooltipManager::Table() {
    using Me = ctlUniTooltipManager;
    using Rows = PropertyTable<Me>;
    static const Rows table = [] {
        Rows::Row font = SharedRows<Me>::Font();
        font.set = [](Me& c, const PropertyValue& value) { c.TipFont(PropertyKind<OleFont>::Take(value)); };
        return Rows{
            Rows::Field(u"PersistentTip", false, &Me::m_bPersistentTip,
                        static_cast<void (Me::*)(bool)>(&Me::PersistentTip)),
            Rows::Field(u"ActivateTips", true, &Me::m_bActivateTips,
                        static_cast<void (Me::*)(bool)>(&Me::ActivateTips)),
            font,
            Rows::Field(u"TipBgColor", kDefaultBack, &Me::m_tipBgColor,
                        static_cast<void (Me::*)(OleColor)>(&Me::TipBgColor)),
            Rows::Field(u"TipFgColor", kDefaultFore, &Me::m_tipFgColor,
                        static_cast<void (Me::*)(OleColor)>(&Me::TipFgColor)),
            Rows::Field(u"Style", kAutomatic, &Me::m_lStyle, static_cast<void (Me::*)(std::int32_t)>(&Me::Style)),
            Rows::Field(u"Transparency", std::int16_t{0}, &Me::m_iTransparency,
                        static_cast<void (Me::*)(std::int16_t)>(&Me::Transparency)),
        };
    }();
    return table;
}

void ctlUniTooltipManager::PersistentTip(bool b) {
    m_bPersistentTip = b;
    orvanta::PersistentTip(b);
}

void ctlUniTooltipManager::ActivateTips(bool b) {
    m_bActivateTips = b;
    if (b) {
        Start();
    } else {
        UnloadTipPopup();
    }
}

void ctlUniTooltipManager::Start() {
    if (!UserMode()) return;
    orvanta::PersistentTip(m_bPersistentTip);
    if (!m_bActivateTips) return;
    TipsOn(true);
    CountTipStart();
    TipBgColor(m_tipBgColor);
    TipFgColor(m_tipFgColor);
    if (const OleFont font = TipFont()) TipFont(font);
    Style(m_lStyle);
    Transparency(m_iTransparency);
}

void ctlUniTooltipManager::SetTip(std::u16string_view sTip, std::int32_t lMaxWidth,
                                  std::optional<std::u16string_view> sTag, std::int32_t XMax, std::int32_t YMax) const {
    ShowControlTip(sTip, lMaxWidth, sTag, XMax, YMax);
}

void ctlUniTooltipManager::UpdateTip(std::u16string_view sTip, std::int32_t lMaxWidth,
                                     std::optional<std::u16string_view> sTag, std::int32_t XMax,
                                     std::int32_t YMax) const {
    UpdateControlTip(sTip, lMaxWidth, sTag, XMax, YMax);
}

std::u16string ctlUniTooltipManager::GetTip() const {
    return ControlTip();
}

std::u16string ctlUniTooltipManager::GetTipTag() const {
    return ControlTipTag();
}

bool ctlUniTooltipManager::TipIsVisible() const {
    return ControlTipIsVisible();
}

void ctlUniTooltipManager::HideTip() const {
    ShowControlTip({}, kDefaultWidth);
}

void ctlUniTooltipManager::TipBgColor(OleColor lNewColor) {
    m_tipBgColor = lNewColor;
    if (UserMode()) Popup()->BackColor(lNewColor);
}

void ctlUniTooltipManager::TipFgColor(OleColor lNewColor) {
    m_tipFgColor = lNewColor;
    if (UserMode()) Popup()->ForeColor(lNewColor);
}

void ctlUniTooltipManager::TipFont(const OleFont& oFont) {
    Host().Font(oFont);
    if (UserMode()) Popup()->SetFont(Host().Font().Object());
}

void ctlUniTooltipManager::Style(std::int32_t New_Value) {
    m_lStyle = New_Value;
    if (UserMode()) Popup()->Style(New_Value);
}

void ctlUniTooltipManager::Transparency(std::int16_t i) {
    m_iTransparency = i;
    if (!UserMode()) return;
    Popup();
    TipTransparency(i);
}

HostTraits ctlUniTooltipManager::Traits() const {
    HostTraits traits;
    traits.bCanGetFocus = false;
    traits.bHasFace = false;
    return traits;
}

void ctlUniTooltipManager::OnReadProperties(const PropertyBag& bag) {
    TableControl::OnReadProperties(bag);
    Start();
}

void ctlUniTooltipManager::OnResize() {
    if (UserMode() || m_bSizing) return;
    m_bSizing = true;
    IgnoreFailure([this] { FixSizeToIcon(Host(), {kIconSize, kIconSize}); });
    m_bSizing = false;
}

void ctlUniTooltipManager::OnPaint() {
    if (UserMode()) return;
    IgnoreFailure([this] { PaintDesignIcon(Host(), MakeManagerIcon()); });
}

void ctlUniTooltipManager::OnTerminate() {
    if (m_bActivateTips) IgnoreFailure([] { UnloadTipPopup(); });
}

} // namespace orvanta
