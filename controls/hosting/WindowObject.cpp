#include "controls/hosting/WindowObject.h"

#include "controls/contract/HostCall.h"
#include "controls/hosting/RemovedHosts.h"
#include "plumbing/CallbackBorder.h"
#include "plumbing/WideText.h"

namespace orvanta {

namespace {

constexpr const wchar_t* kFormClass = L"OrvantaForm";
constexpr const wchar_t* kControlClass = L"OrvantaControl";

} // namespace

WindowObject::~WindowObject() {
    if (!m_window) return;
    SetWindowLongPtrW(m_window, GWLP_USERDATA, 0);
    DestroyWindow(m_window);
}

bool WindowObject::MakeWindow(WindowClass windowClass, const std::u16string& sText, DWORD exStyle, DWORD style,
                              const RECT& rect, HWND parent) {
    static const bool bRegistered = [] {
        WNDCLASSEXW description{};
        description.cbSize = sizeof description;
        description.lpfnWndProc = Procedure;
        description.hInstance = GetModuleHandleW(nullptr);
        description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
        description.lpszClassName = kFormClass;
        const bool bForm = RegisterClassExW(&description) != 0;
        // A control keeps font and text colour selected in the DC of its window from one paint to the next.
        description.style = CS_OWNDC | CS_DBLCLKS;
        description.lpszClassName = kControlClass;
        return RegisterClassExW(&description) != 0 && bForm;
    }();
    if (!bRegistered) return false;
    CreateWindowExW(exStyle, windowClass == WindowClass::Form ? kFormClass : kControlClass, WideOf(sText), style,
                    rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top, parent, nullptr,
                    GetModuleHandleW(nullptr), this);
    return m_window != nullptr;
}

void WindowObject::DestroyObjectWindow() {
    if (m_window) DestroyWindow(m_window);
}

LRESULT CALLBACK WindowObject::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    if (message == WM_NCCREATE) {
        auto* object = static_cast<WindowObject*>(reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams);
        object->m_window = window;
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(object));
    }
    auto* object = reinterpret_cast<WindowObject*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (!object) return DefWindowProcW(window, message, wParam, lParam);
    // The object of this very window may be among those that are let go.
    const std::shared_ptr<void> alive = object->KeepAlive();
    ReleaseRemovedHosts();
    const HostCall call;
    LRESULT lResult = 0;
    AtCallbackBorder([&] { lResult = object->OnMessage(message, wParam, lParam); });
    if (message == WM_NCDESTROY) {
        SetWindowLongPtrW(window, GWLP_USERDATA, 0);
        object->m_window = nullptr;
    }
    return lResult;
}

} // namespace orvanta
