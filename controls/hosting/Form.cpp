#include "controls/hosting/Form.h"

#include "base/Failure.h"
#include "base/Rounding.h"
#include "base/Text.h"
#include "controls/contract/HostCall.h"
#include "controls/hosting/RemovedHosts.h"
#include "controls/hosting/WindowHost.h"
#include "drawing/clsScreens.h"
#include "plumbing/DoEvents.h"
#include "plumbing/SharedShapes.h"
#include "plumbing/WideText.h"

#include <algorithm>

namespace orvanta {

namespace {

// The forms of this thread.
thread_local std::vector<Form*> t_forms;

std::int32_t ScreenDpi() {
    const WindowDc screen(nullptr);
    return GetDeviceCaps(screen.Get(), LOGPIXELSX);
}

// A font takes on the name, size and character set of what it stands for when it is used first; copies that are
// compared with it must find it like that.
void Settle(const OleFont& font) {
    font.hFont();
}

} // namespace

Form::Form(const std::u16string& sCaption, bool bUserMode, DWORD style)
    : m_bUserMode(bUserMode), m_lDpi(ScreenDpi()), m_font(OleFont::Create(u"MS Sans Serif", 8.25)) {
    const RECT anywhere{0, 0, 400, 300};
    MakeWindow(WindowClass::Form, sCaption, 0, style | WS_CLIPCHILDREN, anywhere, nullptr);
    Settle(m_font);
    m_frame.Attach(Window());
    t_forms.push_back(this);
    SetDialogStep(Form::DialogStep);
}

Form::~Form() {
    std::erase(t_forms, this);
    DestroyObjectWindow();
    ReleaseRemovedHosts();
}

Form* Form::FormOf(HWND window) {
    const auto found = std::find_if(t_forms.begin(), t_forms.end(),
                                    [window](Form* form) { return window && form->Window() == window; });
    return found == t_forms.end() ? nullptr : *found;
}

std::u16string Form::Caption() const {
    std::u16string s(static_cast<std::size_t>(GetWindowTextLengthW(Window())) + 1, u'\0');
    s.resize(static_cast<std::size_t>(GetWindowTextW(Window(), WideBuffer(s), static_cast<int>(s.size()))));
    return s;
}

void Form::Caption(const std::u16string& s) {
    SetWindowTextW(Window(), WideOf(s));
}

void Form::BackColor(OleColor c) {
    m_lBackColor = c;
    if (Window()) InvalidateRect(Window(), nullptr, TRUE);
}

float Form::InnerWidth() const {
    RECT rect{};
    GetClientRect(Window(), &rect);
    return ConvertUnits(static_cast<float>(rect.right), ScaleUnit::Pixels, m_unit, m_lDpi);
}

float Form::InnerHeight() const {
    RECT rect{};
    GetClientRect(Window(), &rect);
    return ConvertUnits(static_cast<float>(rect.bottom), ScaleUnit::Pixels, m_unit, m_lDpi);
}

void Form::InnerSize(float width, float height) {
    if (!Window()) return;
    const auto lWidth = RoundToInteger<LONG>(ConvertUnits(width, m_unit, ScaleUnit::Pixels, m_lDpi));
    const auto lHeight = RoundToInteger<LONG>(ConvertUnits(height, m_unit, ScaleUnit::Pixels, m_lDpi));
    // The frame is as thick as it is now: the system's figures may be those of another resolution.
    RECT own{};
    GetWindowRect(Window(), &own);
    RECT client{};
    GetClientRect(Window(), &client);
    SetWindowPos(Window(), nullptr, 0, 0, lWidth + (own.right - own.left) - client.right,
                 lHeight + (own.bottom - own.top) - client.bottom, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void Form::CentreOnScreen() {
    if (!Window()) return;
    const clsScreens screens;
    const MonitorHandle hMonitor = screens.GetMonitorHandleFromWindow(Window());
    RECT own{};
    GetWindowRect(Window(), &own);
    SetWindowPos(Window(), nullptr,
                 screens.WorkLeft(hMonitor) + (screens.WorkWidth(hMonitor) - (own.right - own.left)) / 2,
                 screens.WorkTop(hMonitor) + (screens.WorkHeight(hMonitor) - (own.bottom - own.top)) / 2, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void Form::Show() {
    ShowWindow(Window(), SW_SHOW);
    // The form may have become the active window before its controls could be seen.
    if (Window() && GetFocus() == Window()) OnFocus();
}

void Form::Hide() {
    ShowWindow(Window(), SW_HIDE);
}

bool Form::Visible() const {
    return Window() && IsWindowVisible(Window());
}

void Form::Close() {
    if (!Window()) return;
    const HostCall call;
    bool bCancel = false;
    QueryUnload.Raise(bCancel);
    if (!bCancel) DestroyObjectWindow();
}

void Form::Run() {
    Show();
    MSG message;
    while (Window()) {
        const BOOL bMore = GetMessageW(&message, nullptr, 0, 0);
        if (bMore == 0) PostQuitMessage(static_cast<int>(message.wParam));
        if (bMore <= 0) return;
        if (DialogStep(message)) continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

void Form::Font(const OleFont& font) {
    m_font = font;
    FitFont(m_font);
    Settle(m_font);
    ForEachHost([](WindowHost& host) { host.AmbientChanged(u"Font"); });
}

Control& Form::Put(std::u16string_view sName, const ControlPlace& place, const Control* container, const Maker& maker,
                   const PropertyBag* bag) {
    WindowHost* outer = container ? HostOf(*container) : nullptr;
    if (!Window() || (container && (!outer || !outer->Traits().bHoldsControls))) throw InvalidProcedureCall();
    ControlContainer& standsOn = outer ? static_cast<ControlContainer&>(*outer) : *this;
    const auto host = std::make_shared<WindowHost>(*this, standsOn, std::u16string(sName), m_bUserMode);
    m_hosts.push_back(host);
    try {
        host->Start(maker, place, bag);
    } catch (...) {
        host->End();
        Forget(*host);
        throw;
    }
    return host->HostedOne();
}

void Form::Remove(const Control& control) {
    if (WindowHost* host = HostOf(control)) host->End();
}

Control* Form::Find(std::u16string_view sName) const {
    const std::u16string sFolded = FoldCase(sName);
    for (const std::shared_ptr<WindowHost>& host : m_hosts) {
        if (host->HasControl() && FoldCase(host->Extender().Name()) == sFolded) return &host->HostedOne();
    }
    return nullptr;
}

std::vector<Control*> Form::Controls() const {
    std::vector<Control*> controls;
    controls.reserve(m_hosts.size());
    for (const std::shared_ptr<WindowHost>& host : m_hosts) {
        if (host->HasControl()) controls.push_back(&host->HostedOne());
    }
    return controls;
}

WindowHost* Form::HostOf(const Control& control) const {
    for (const std::shared_ptr<WindowHost>& host : m_hosts) {
        if (host->HasControl() && &host->HostedOne() == &control) return host.get();
    }
    return nullptr;
}

Control* Form::ActiveControl() const {
    WindowHost* host = HostWithFocus();
    return host ? &host->HostedOne() : nullptr;
}

WindowHost* Form::HostWithFocus() const {
    for (const std::shared_ptr<WindowHost>& host : m_hosts) {
        if (host->HasControl() && host->Traits().bCanGetFocus && host->HasFocusInside()) return host.get();
    }
    return nullptr;
}

void Form::Forget(WindowHost& host) {
    m_tabs.Remove(host);
    if (m_default == &host) m_default = nullptr;
    if (m_cancel == &host) m_cancel = nullptr;
    if (m_focused == &host) m_focused = nullptr;
    std::erase_if(m_hosts, [&host](const std::shared_ptr<WindowHost>& other) { return other.get() == &host; });
}

void Form::ForEachHost(const std::function<void(WindowHost&)>& step) {
    const std::vector<std::shared_ptr<WindowHost>> hosts = m_hosts;
    for (const std::shared_ptr<WindowHost>& host : hosts) {
        if (!host->IsGone()) step(*host);
    }
}

LRESULT Form::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_ERASEBKGND: Erase(reinterpret_cast<HDC>(wParam)); return 1;
    case WM_PRINTCLIENT: Erase(reinterpret_cast<HDC>(wParam)); return 0;
    case WM_SIZE: Resize.Raise(); return 0;
    case WM_SHOWWINDOW:
        if (lParam == 0) ForEachHost([wParam](WindowHost& host) { host.FormShown(wParam != 0); });
        return SystemAnswer(message, wParam, lParam);
    case WM_ACTIVATE:
        if (LOWORD(wParam) == WA_INACTIVE) {
            if (m_focused) m_focused->FocusLeft();
        } else {
            Activate.Raise();
        }
        return SystemAnswer(message, wParam, lParam);
    case WM_SETFOCUS: OnFocus(); return 0;
    case WM_SYSCOLORCHANGE:
        ForEachHost([=](WindowHost& host) { SendMessageW(host.hWnd(), message, wParam, lParam); });
        InvalidateRect(Window(), nullptr, TRUE);
        return 0;
    case WM_DPICHANGED: OnDpi(wParam, lParam); return 0;
    case WM_CLOSE: Close(); return 0;
    case WM_DESTROY:
        m_bClosing = true;
        m_frame.Detach();
        Unload.Raise();
        return 0;
    default: return SystemAnswer(message, wParam, lParam);
    }
}

void Form::Erase(HDC dc) const {
    RECT rect{};
    GetClientRect(Window(), &rect);
    FillOrFrame(dc, rect, m_lBackColor, true);
}

void Form::FitFont(const OleFont& font) const {
    constexpr LONG kHiMetricPerInch = 2540;
    // Fonts start at the resolution of the screen; one that is right already keeps its handle.
    if (!font || !m_bNewDpi) return;
    font.Object()->SetRatio(m_lDpi, kHiMetricPerInch);
    Settle(font);
}

void Form::OnDpi(WPARAM wParam, LPARAM lParam) {
    m_lDpi = LOWORD(wParam);
    m_bNewDpi = true;
    // Controls compare their fonts with this one when they are saved.
    FitFont(m_font);
    if (const auto* suggested = reinterpret_cast<const RECT*>(lParam)) {
        SetWindowPos(Window(), nullptr, suggested->left, suggested->top, suggested->right - suggested->left,
                     suggested->bottom - suggested->top, SWP_NOZORDER | SWP_NOACTIVATE);
    }
    ForEachHost([](WindowHost& host) { host.FollowDpi(); });
}

} // namespace orvanta
