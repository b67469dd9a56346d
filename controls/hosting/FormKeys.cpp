// The keyboard of a form: where the focus goes, and which keys are the form's own.
#include "base/Text.h"
#include "controls/contract/HostCall.h"
#include "controls/hosting/Form.h"
#include "controls/hosting/WindowHost.h"
#include "plumbing/CallbackBorder.h"

#include <algorithm>

namespace orvanta {

namespace {

constexpr std::int16_t kEnter = 13;
constexpr std::int16_t kEscape = 27;

bool IsDown(int key) {
    return GetKeyState(key) < 0;
}

bool IsTabStop(WindowHost& host) {
    return host.Extender().TabStop() && host.CanTakeFocus();
}

} // namespace

void Form::Focused(WindowHost& host) {
    WindowHost* last = m_focused;
    m_focused = &host;
    // The window inside a control may have been quicker, with an active object in front of the control's own.
    if (!m_frame.HasObjectOf(host.hWnd())) m_frame.SetActiveObject(host.ActiveObject());
    if (last && last != &host) last->FocusLeft();
}

void Form::FocusNextOf(const WindowHost* host) {
    if (!Window() || m_bClosing) return;
    WindowHost* next = m_tabs.Next(host, false, IsTabStop);
    SetFocus(next && next != host ? next->hWnd() : Window());
}

void Form::OnFocus() {
    if (m_bClosing) return;
    WindowHost* next = m_focused && m_focused->CanTakeFocus() ? m_focused : m_tabs.Next(nullptr, false, IsTabStop);
    if (next) SetFocus(next->hWnd());
}

bool Form::HasForeignFocus() const {
    return IsChild(Window(), GetFocus()) &&
           std::none_of(m_hosts.begin(), m_hosts.end(),
                        [](const std::shared_ptr<WindowHost>& host) { return host->HasFocusInside(); });
}

bool Form::DialogStep(const MSG& message) {
    if (message.message < WM_KEYFIRST || message.message > WM_KEYLAST) return false;
    Form* form = FormOf(GetAncestor(message.hwnd, GA_ROOT));
    if (!form) return false;
    const HostCall call;
    bool bDone = false;
    AtCallbackBorder(
        [&] { bDone = (!form->HasForeignFocus() && form->m_frame.OfferKey(message)) || form->OnDialogKey(message); });
    return bDone;
}

bool Form::OnDialogKey(const MSG& message) {
    if (message.message == WM_SYSCHAR) return OnAccessKey(static_cast<char16_t>(message.wParam));
    if (message.message != WM_KEYDOWN || HasForeignFocus()) return false;
    WindowHost* focused = HostWithFocus();
    switch (message.wParam) {
    case VK_TAB: {
        if (IsDown(VK_CONTROL)) return false;
        WindowHost* next = m_tabs.Next(focused, IsDown(VK_SHIFT), IsTabStop);
        if (next && next != focused) SetFocus(next->hWnd());
        return next != nullptr;
    }
    case VK_RETURN:
        if (focused && focused->Traits().bActsLikeButton) return false;
        return Press(m_default, kEnter);
    case VK_ESCAPE: return Press(m_cancel, kEscape);
    default: return false;
    }
}

// Several controls may have one key: each press goes on to the next of them.
bool Form::OnAccessKey(char16_t cKey) {
    // Alt+Space is the system menu, even when the mark of a caption stands in front of a blank.
    if (cKey == u' ') return false;
    const std::u16string sKey = FoldCase(std::u16string_view(&cKey, 1));
    const auto hasKey = [&sKey](WindowHost& host) {
        return host.CanTakeFocus() && FoldCase(host.AccessKeys()).find(sKey) != std::u16string::npos;
    };
    WindowHost* next = m_tabs.Next(HostWithFocus(), false, hasKey);
    if (!next) return false;
    if (!next->HasFocusInside()) SetFocus(next->hWnd());
    next->PressAccessKey(static_cast<std::int16_t>(cKey));
    return true;
}

bool Form::Press(WindowHost* host, std::int16_t KeyAscii) {
    if (!host || !host->IsUsable()) return false;
    host->PressAccessKey(KeyAscii);
    return true;
}

} // namespace orvanta
