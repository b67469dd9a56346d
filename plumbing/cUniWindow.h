#pragma once

#include <windows.h>

#include <cstdint>
#include <string>

namespace orvanta {

// Registers a Unicode window class and creates one window. Windows of such a class answer as DefWindowProcW does; what
// they shall do beyond comes by message hooks. The object destroys its window when it goes, its class stays registered.
class cUniWindow {
public:
    cUniWindow() = default;
    cUniWindow(const cUniWindow&) = delete;
    cUniWindow& operator=(const cUniWindow&) = delete;
    ~cUniWindow() { WindowDestroy(); }

    // The name of the registered class, empty before.
    const std::u16string& Class() const { return m_sClassName; }
    // The window, also when it has been destroyed from outside; null when none was made.
    HWND hWnd() const { return m_hWnd; }

    // The background is the button face. A name that the program has registered already counts as registered and keeps
    // its first settings. False when the system refuses the class.
    bool WindowClassRegister(const std::u16string& sClass, UINT Style, HCURSOR hCursor, HICON hIcon, HICON hIconSm,
                             int cbClassExtra, int cbWndExtra);
    void WindowClassUnregister();

    // Class picks the window class: 0 the registered one, 1 "BUTTON", 2 "COMBOBOX", 3 "EDIT", 4 "LISTBOX",
    // 5 "MDICLIENT", 6 "RichEdit", 7 "RICHEDIT_CLASS", 8 "SCROLLBAR", 9 "STATIC"; there is no other. Position and size
    // are pixels in the parent's client area, of the screen without a parent. An earlier window of this object is
    // destroyed first. The result is the window, null when the system made none.
    HWND WindowCreate(DWORD dwExStyle, DWORD dwStyle, std::int32_t Class, int X, int Y, int nWidth, int nHeight,
                      const std::u16string& sCaption, HWND hwndParent, HMENU hMenu, void* lParam);
    void WindowDestroy();

private:
    std::u16string m_sClassName;
    HWND m_hWnd = nullptr;
};

} // namespace orvanta
