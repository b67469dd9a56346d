#include "controls/hosting/WindowHost.h"

#include "base/Rounding.h"
#include "base/Text.h"
#include "controls/contract/HostCall.h"
#include "controls/hosting/RemovedHosts.h"
#include "plumbing/WideText.h"

#include <algorithm>
#include <utility>

namespace orvanta {

namespace {

// What a control that is gone stands on.
class NoContainer final : public ControlContainer {
public:
    Kind ContainerKind() const override { return Kind::Other; }
    ScaleUnit ScaleMode() const override { return ScaleUnit::Twips; }
    HWND ContainerWindow() const override { return nullptr; }
};

std::int32_t ToPixels(float value, ScaleUnit unit, std::int32_t lDpi) {
    return RoundToInteger<std::int32_t>(ConvertUnits(value, unit, ScaleUnit::Pixels, lDpi));
}

} // namespace

WindowHost::WindowHost(Form& form, ControlContainer& container, std::u16string sName, bool bUserMode)
    : m_form(&form), m_container(&container), m_sName(std::move(sName)), m_bUserMode(bUserMode), m_ambient(*this),
      m_extender(*this) {
    Font({});
}

WindowHost::~WindowHost() = default;

void WindowHost::Start(const Maker& maker, const ControlPlace& place, const PropertyBag* bag) {
    const HostCall call;
    m_place = place;
    const RECT rect = PixelsOf(place);
    // The window comes first: a control may use it from its constructor on.
    if (!MakeWindow(WindowClass::Control, {}, WS_EX_NOPARENTNOTIFY, WS_CHILD | WS_CLIPCHILDREN | WS_CLIPSIBLINGS, rect,
                    m_container->ContainerWindow()))
        throw InvalidProcedureCall();
    m_surface.Attach(Window());
    m_inPlace.Attach(Window(), m_form->Frame());
    m_control = maker(*this);
    m_traits = m_control->Traits();
    if (m_traits.bCanGetFocus) m_form->Tabs().Append(*this);
    if (bag) {
        m_control->OnReadProperties(*bag);
    } else {
        m_control->OnInitProperties();
    }
    m_bStarted = true;
    FollowCaption();
    m_control->OnResize();
    if (m_traits.bHasFace || !m_bUserMode) m_extender.Visible(true);
}

void WindowHost::End() {
    const HostCall call;
    if (HasFocusInside()) LeaveFocus();
    DestroyObjectWindow();
}

void WindowHost::UserMode(bool b) {
    if (m_bUserMode == b) return;
    m_bUserMode = b;
    OLEDropMode(m_iOLEDropMode);
    AmbientChanged(u"UserMode");
}

void WindowHost::AmbientChanged(std::u16string_view sProperty) {
    if (m_bGone || !m_bStarted) return;
    const HostCall call;
    m_control->OnAmbientChanged(sProperty);
}

void WindowHost::FollowDpi() {
    if (m_bGone) return;
    m_form->FitFont(m_surface.Font());
    Place(m_place);
    // Where the size in pixels stays, the text does not.
    AmbientChanged(u"Font");
}

void WindowHost::FormShown(bool bShown) {
    if (m_bGone || !m_bStarted || !m_extender.Visible()) return;
    const HostCall call;
    if (bShown) {
        m_control->OnShow();
    } else {
        m_control->OnHide();
    }
}

bool WindowHost::IsUsable() const {
    HWND window = hWnd();
    if (!window || !m_bUserMode || !m_container->ContainerWindow() || !IsWindowVisible(window)) return false;
    for (; window; window = GetAncestor(window, GA_PARENT)) {
        if (!IsWindowEnabled(window)) return false;
        if (window == m_form->hWnd()) return true;
    }
    return false;
}

bool WindowHost::HasFocusInside() const {
    HWND focus = GetFocus();
    return focus && Window() && (focus == Window() || IsChild(Window(), focus));
}

void WindowHost::PressAccessKey(std::int16_t KeyAscii) {
    if (m_bGone || !m_bStarted) return;
    const HostCall call;
    m_control->OnAccessKeyPress(KeyAscii);
}

float WindowHost::ScaleWidth() const {
    RECT rect{};
    GetClientRect(Window(), &rect);
    return static_cast<float>(rect.right);
}

float WindowHost::ScaleHeight() const {
    RECT rect{};
    GetClientRect(Window(), &rect);
    return static_cast<float>(rect.bottom);
}

float WindowHost::ScaleX(float value, ScaleUnit from, ScaleUnit to) const {
    return m_form ? ConvertUnits(value, from, to, m_form->Dpi()) : value;
}

float WindowHost::ScaleY(float value, ScaleUnit from, ScaleUnit to) const {
    return ScaleX(value, from, to);
}

void WindowHost::Size(float width, float height) {
    Place({m_place.Left, m_place.Top, width, height});
}

bool WindowHost::Enabled() const {
    return Window() && IsWindowEnabled(Window());
}

void WindowHost::Enabled(bool b) {
    if (m_bGone) return;
    const HostCall call;
    const bool bHadFocus = HasFocusInside();
    EnableWindow(Window(), b);
    if (!b && bHadFocus) LeaveFocus();
}

void WindowHost::Font(const OleFont& font) {
    const OleFont own = font ? font : m_ambient.Font();
    if (m_form) m_form->FitFont(own);
    m_surface.Font(own);
}

void WindowHost::BackStyle(std::int16_t i) {
    m_iBackStyle = i;
    m_shape.Apply(Window(), m_iBackStyle == 0);
}

void WindowHost::MaskPicture(const OlePicture& picture) {
    m_shape.MaskPicture(picture);
    m_shape.Apply(Window(), m_iBackStyle == 0);
}

void WindowHost::OLEDropMode(std::int16_t i) {
    m_iOLEDropMode = i;
    if (m_bGone || !m_control || i == 0 || !m_bUserMode) {
        m_drag.Refuse();
    } else {
        m_drag.Accept(Window(), *m_control);
    }
}

void WindowHost::OLEDrag() {
    if (m_bGone || !m_bUserMode) return;
    const std::shared_ptr<void> alive = KeepAlive();
    // The drag loop takes the mouse; the release that ends it is no click here.
    m_presses.Forget();
    ReleaseCapture();
    HostDrag::Run(*m_control);
}

void WindowHost::Refresh() {
    if (m_bGone) return;
    InvalidateRect(Window(), nullptr, FALSE);
    UpdateWindow(Window());
}

void WindowHost::AutoRedraw(bool b) {
    if (m_bGone) return;
    m_surface.Retain(b, static_cast<std::int32_t>(ScaleWidth()), static_cast<std::int32_t>(ScaleHeight()));
}

void WindowHost::PropertyChanged(std::u16string_view sName) {
    if (m_bGone || !m_bStarted) return;
    if (FoldCase(sName) == u"caption") FollowCaption();
    Changed.Raise(std::u16string(sName));
}

void WindowHost::FollowCaption() {
    PropertyValue value;
    if (!m_control->GetProperty(u"Caption", value)) return;
    SetWindowTextW(Window(), WideOf(PropertyKind<std::u16string>::Take(value)));
}

RECT WindowHost::PixelsOf(const ControlPlace& place) const {
    const ScaleUnit unit = m_container->ScaleMode();
    const std::int32_t lDpi = m_form->Dpi();
    const LONG left = ToPixels(place.Left, unit, lDpi);
    const LONG top = ToPixels(place.Top, unit, lDpi);
    return {left, top, left + std::max<LONG>(0, ToPixels(place.Width, unit, lDpi)),
            top + std::max<LONG>(0, ToPixels(place.Height, unit, lDpi))};
}

void WindowHost::Place(const ControlPlace& place) {
    if (m_bGone) return;
    const RECT rect = PixelsOf(place);
    m_place = place;
    SetWindowPos(Window(), nullptr, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

void WindowHost::LeaveFocus() {
    if (m_form) m_form->FocusNextOf(this);
}

// The ambient properties and the extender.

OleFont WindowHost::HostAmbient::Font() const {
    return m_host.m_form ? m_host.m_form->Font().Clone() : OleFont();
}

ControlContainer& WindowHost::HostExtender::Container() const {
    static NoContainer none;
    return m_host.m_container ? *m_host.m_container : none;
}

void WindowHost::HostExtender::Left(float value) {
    m_host.Place({value, m_host.m_place.Top, m_host.m_place.Width, m_host.m_place.Height});
}

void WindowHost::HostExtender::Top(float value) {
    m_host.Place({m_host.m_place.Left, value, m_host.m_place.Width, m_host.m_place.Height});
}

void WindowHost::HostExtender::Move(float left, float top, float width, float height) {
    m_host.Place({left, top, width, height});
}

bool WindowHost::HostExtender::Visible() const {
    return m_host.Window() && (GetWindowLongPtrW(m_host.Window(), GWL_STYLE) & WS_VISIBLE) != 0;
}

void WindowHost::HostExtender::Visible(bool b) {
    if (m_host.m_bGone || Visible() == b) return;
    const HostCall call;
    const bool bHadFocus = m_host.HasFocusInside();
    ShowWindow(m_host.Window(), b ? SW_SHOWNA : SW_HIDE);
    if (!b && bHadFocus) m_host.LeaveFocus();
}

bool WindowHost::HostExtender::Default() const {
    return m_host.m_form && m_host.m_form->DefaultHost() == &m_host;
}

void WindowHost::HostExtender::Default(bool b) {
    if (m_host.m_bGone || Default() == b) return;
    WindowHost* last = m_host.m_form->DefaultHost();
    m_host.m_form->DefaultHost(b ? &m_host : nullptr);
    if (last) last->AmbientChanged(u"DisplayAsDefault");
    if (b) m_host.AmbientChanged(u"DisplayAsDefault");
}

bool WindowHost::HostExtender::Cancel() const {
    return m_host.m_form && m_host.m_form->CancelHost() == &m_host;
}

void WindowHost::HostExtender::Cancel(bool b) {
    if (m_host.m_bGone || Cancel() == b) return;
    WindowHost* last = m_host.m_form->CancelHost();
    m_host.m_form->CancelHost(b ? &m_host : nullptr);
    if (last) last->AmbientChanged(u"Cancel");
    if (b) m_host.AmbientChanged(u"Cancel");
}

std::int32_t WindowHost::HostExtender::TabIndex() const {
    return m_host.m_form ? m_host.m_form->Tabs().IndexOf(&m_host) : -1;
}

void WindowHost::HostExtender::TabIndex(std::int32_t l) {
    if (m_host.m_form) m_host.m_form->Tabs().Move(m_host, l);
}

void WindowHost::HostExtender::SetFocus() {
    if (m_host.CanTakeFocus()) ::SetFocus(m_host.Window());
}

} // namespace orvanta
