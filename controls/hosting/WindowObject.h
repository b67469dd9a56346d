#pragma once

#include <windows.h>

#include <memory>
#include <string>

namespace orvanta {

// A window with an object behind it. The object is bound while the window is made and unbound by its last message; a
// window without its object answers as DefWindowProcW does. Failures that come out of a message are shown to the user
// here and go no further.
class WindowObject {
public:
    WindowObject(const WindowObject&) = delete;
    WindowObject& operator=(const WindowObject&) = delete;

    // None before it is made and after it was destroyed, by whomever.
    HWND Window() const { return m_window; }

protected:
    WindowObject() = default;
    virtual ~WindowObject();

    // The window classes, each registered once per process.
    enum class WindowClass { Form, Control };
    // rect: pixels of the parent's client area, of the screen without a parent; outer size. False when the system makes
    // none.
    bool MakeWindow(WindowClass windowClass, const std::u16string& sText, DWORD exStyle, DWORD style, const RECT& rect,
                    HWND parent);
    void DestroyObjectWindow();

    virtual LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) = 0;
    // What keeps the object itself alive during a message.
    virtual std::shared_ptr<void> KeepAlive() { return nullptr; }

    LRESULT SystemAnswer(UINT message, WPARAM wParam, LPARAM lParam) {
        return DefWindowProcW(m_window, message, wParam, lParam);
    }

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;

    HWND m_window = nullptr;
};

} // namespace orvanta
