#include "plumbing/cUniWindow.h"

#include "plumbing/WideText.h"
#include "plumbing/modcUniWindow.h"

#include <iterator>

namespace orvanta {

namespace {

LRESULT CALLBACK DefaultProcedure(HWND hwnd, UINT uMsg, WPARAM wParam, LPARAM lParam) noexcept {
    return DefWindowProcW(hwnd, uMsg, wParam, lParam);
}

constexpr const char16_t* kSystemClasses[] = {u"BUTTON",   u"COMBOBOX",       u"EDIT",      u"LISTBOX", u"MDICLIENT",
                                              u"RichEdit", u"RICHEDIT_CLASS", u"SCROLLBAR", u"STATIC"};

std::u16string SystemClass(std::int32_t n) {
    if (n < 1 || n > static_cast<std::int32_t>(std::size(kSystemClasses))) return {};
    return kSystemClasses[n - 1];
}

} // namespace

bool cUniWindow::WindowClassRegister(const std::u16string& sClass, UINT Style, HCURSOR hCursor, HICON hIcon,
                                     HICON hIconSm, int cbClassExtra, int cbWndExtra) {
    if (!IsClassRegistered(sClass)) {
        WNDCLASSEXW windowClass{};
        windowClass.cbSize = sizeof windowClass;
        windowClass.style = Style;
        windowClass.lpfnWndProc = DefaultProcedure;
        windowClass.cbClsExtra = cbClassExtra;
        windowClass.cbWndExtra = cbWndExtra;
        windowClass.hInstance = GetModuleHandleW(nullptr);
        windowClass.hIcon = hIcon;
        windowClass.hCursor = hCursor;
        windowClass.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
        windowClass.lpszClassName = WideOf(sClass);
        windowClass.hIconSm = hIconSm;
        if (!RegisterClassExW(&windowClass)) return false;
        AddRegisteredClass(sClass);
    }
    m_sClassName = sClass;
    return true;
}

void cUniWindow::WindowClassUnregister() {
    UnregisterClassW(WideOf(m_sClassName), GetModuleHandleW(nullptr));
    RemoveRegisteredClass(m_sClassName);
}

HWND cUniWindow::WindowCreate(DWORD dwExStyle, DWORD dwStyle, std::int32_t Class, int X, int Y, int nWidth, int nHeight,
                              const std::u16string& sCaption, HWND hwndParent, HMENU hMenu, void* lParam) {
    const std::u16string sClass = Class == 0 ? m_sClassName : SystemClass(Class);
    WindowDestroy();
    m_hWnd = CreateWindowExW(dwExStyle, WideOf(sClass), WideOf(sCaption), dwStyle, X, Y, nWidth, nHeight, hwndParent,
                             hMenu, GetModuleHandleW(nullptr), lParam);
    return m_hWnd;
}

void cUniWindow::WindowDestroy() {
    if (!m_hWnd) return;
    if (IsWindow(m_hWnd)) DestroyWindow(m_hWnd);
    m_hWnd = nullptr;
}

} // namespace orvanta
