#include "controls/hosting/WindowHost.h"

#include "controls/hosting/RemovedHosts.h"
#include "plumbing/SharedInput.h"

#include <windowsx.h>

#include <utility>

namespace orvanta {

namespace {

constexpr std::int16_t kCustomPointer = 99;

struct WindowPaint {
    explicit WindowPaint(HWND window) : m_window(window), dc(BeginPaint(window, &m_record)) {}
    WindowPaint(const WindowPaint&) = delete;
    WindowPaint& operator=(const WindowPaint&) = delete;
    ~WindowPaint() { EndPaint(m_window, &m_record); }

private:
    HWND m_window;
    PAINTSTRUCT m_record{};

public:
    HDC dc;
};

std::int16_t ShiftOf(WPARAM wParam) {
    return static_cast<std::int16_t>(ShiftOfKeyState(static_cast<std::uint32_t>(wParam)) |
                                     (GetKeyState(VK_MENU) < 0 ? kAltDown : 0));
}

// The shift keys as they were when the message was made.
std::int16_t ShiftOfKeys() {
    return static_cast<std::int16_t>((GetKeyState(VK_SHIFT) < 0 ? kShiftDown : 0) |
                                     (GetKeyState(VK_CONTROL) < 0 ? kCtrlDown : 0) |
                                     (GetKeyState(VK_MENU) < 0 ? kAltDown : 0));
}

} // namespace

LRESULT WindowHost::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_DESTROY) {
        OnDestroy();
        return 0;
    }
    if (message == WM_NCDESTROY) {
        if (m_self) KeepRemovedHost(std::exchange(m_self, nullptr));
        return SystemAnswer(message, wParam, lParam);
    }
    if (!m_bStarted || m_bGone) {
        if (message == WM_ERASEBKGND) return 1;
        return SystemAnswer(message, wParam, lParam);
    }
    if (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST && OnMouse(message, wParam, lParam)) return 0;
    switch (message) {
    case WM_PAINT: PaintWindow(); return 0;
    case WM_PRINTCLIENT: PaintOn(reinterpret_cast<HDC>(wParam)); return 0;
    case WM_ERASEBKGND: return 1;
    case WM_WINDOWPOSCHANGED: OnPosition(); return SystemAnswer(message, wParam, lParam);
    case WM_SIZE:
        m_surface.Resize(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
        if (m_shape.Open(Window())) m_bShapeOpen = true;
        m_control->OnResize();
        return 0;
    case WM_SHOWWINDOW:
        if (m_form && IsWindowVisible(m_form->hWnd())) {
            if (wParam) {
                m_control->OnShow();
            } else {
                m_control->OnHide();
            }
        }
        return 0;
    case WM_SETFOCUS:
        if (m_traits.bCanGetFocus) {
            OnFocus(true);
        } else {
            // The system puts it here when a control that stands on this one goes.
            m_form->FocusNextOf(this);
        }
        return 0;
    case WM_KILLFOCUS: {
        HWND next = reinterpret_cast<HWND>(wParam);
        if (!next || !IsChild(Window(), next)) OnFocus(false);
        return 0;
    }
    case WM_COMMAND:
        // A window inside the control tells so that it has got or lost the focus.
        if (lParam != 0 && m_traits.bCanGetFocus) OnFocus(HasFocusInside());
        return SystemAnswer(message, wParam, lParam);
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
    case WM_KEYUP:
    case WM_SYSKEYUP:
    case WM_CHAR: return OnKey(message, wParam, lParam);
    case WM_SETCURSOR:
        if (OnSetCursor(wParam, lParam)) return TRUE;
        return SystemAnswer(message, wParam, lParam);
    case WM_CAPTURECHANGED: m_presses.Forget(); return 0;
    case WM_GETDLGCODE: return DLGC_WANTARROWS | DLGC_WANTCHARS;
    case WM_SYSCOLORCHANGE: m_control->OnAmbientChanged(u"BackColor"); return 0;
    default: return SystemAnswer(message, wParam, lParam);
    }
}

bool WindowHost::OnMouse(UINT message, WPARAM wParam, LPARAM lParam) {
    const auto X = static_cast<float>(GET_X_LPARAM(lParam));
    const auto Y = static_cast<float>(GET_Y_LPARAM(lParam));
    switch (message) {
    case WM_MOUSEMOVE:
        m_control->OnMouseMove(ButtonsOfKeyState(static_cast<std::uint32_t>(wParam)), ShiftOf(wParam), X, Y);
        return true;
    case WM_LBUTTONDOWN: OnPress(1, false, wParam, X, Y); return true;
    case WM_RBUTTONDOWN: OnPress(2, false, wParam, X, Y); return true;
    case WM_MBUTTONDOWN: OnPress(4, false, wParam, X, Y); return true;
    case WM_LBUTTONDBLCLK: OnPress(1, true, wParam, X, Y); return true;
    case WM_RBUTTONDBLCLK: OnPress(2, true, wParam, X, Y); return true;
    case WM_MBUTTONDBLCLK: OnPress(4, true, wParam, X, Y); return true;
    case WM_LBUTTONUP: OnRelease(1, wParam, X, Y); return true;
    case WM_RBUTTONUP: OnRelease(2, wParam, X, Y); return true;
    case WM_MBUTTONUP: OnRelease(4, wParam, X, Y); return true;
    default: return false;
    }
}

void WindowHost::OnPress(std::int16_t Button, bool bDouble, WPARAM wParam, float X, float Y) {
    if (CanTakeFocus() && !HasFocusInside()) SetFocus(Window());
    if (m_bGone) return;
    // The release belongs to the control, wherever it happens.
    if (GetCapture() != Window()) SetCapture(Window());
    if (bDouble) {
        m_presses.DoublePress();
        m_control->OnDblClick();
    } else {
        m_presses.Press(Button);
        m_control->OnMouseDown(Button, ShiftOf(wParam), X, Y);
    }
}

void WindowHost::OnRelease(std::int16_t Button, WPARAM wParam, float X, float Y) {
    const bool bInside = X >= 0 && Y >= 0 && X < ScaleWidth() && Y < ScaleHeight();
    const bool bClick = m_presses.Release(Button, bInside);
    if (ButtonsOfKeyState(static_cast<std::uint32_t>(wParam)) == 0 && GetCapture() == Window()) ReleaseCapture();
    m_control->OnMouseUp(Button, ShiftOf(wParam), X, Y);
    if (bClick && !m_bGone) m_control->OnClick();
}

LRESULT WindowHost::OnKey(UINT message, WPARAM wParam, LPARAM lParam) {
    auto Key = static_cast<std::int16_t>(wParam);
    std::int16_t Shift = ShiftOfKeys();
    if (message == WM_CHAR) {
        m_control->OnKeyPress(Key);
        return 0;
    }
    if (message == WM_KEYDOWN || message == WM_SYSKEYDOWN) {
        m_control->OnKeyDown(Key, Shift);
    } else {
        m_control->OnKeyUp(Key, Shift);
    }
    return Key == 0 || m_bGone ? 0 : SystemAnswer(message, wParam, lParam);
}

bool WindowHost::OnSetCursor(WPARAM wParam, LPARAM lParam) const {
    if (!m_bUserMode || m_iMousePointer == 0 || LOWORD(lParam) != HTCLIENT) return false;
    if (reinterpret_cast<HWND>(wParam) != Window()) return false;
    HCURSOR cursor = nullptr;
    if (m_iMousePointer == kCustomPointer) {
        if (m_mouseIcon.Type() == OlePicture::kTypeIcon) cursor = static_cast<HCURSOR>(m_mouseIcon.Handle());
    } else {
        cursor = LoadCursorW(nullptr, MAKEINTRESOURCEW(MousePointerToCursorId(m_iMousePointer)));
    }
    if (cursor) SetCursor(cursor);
    return cursor != nullptr;
}

void WindowHost::OnFocus(bool bIn) {
    if (m_bFocusInside == bIn || m_bGone) return;
    m_bFocusInside = bIn;
    if (!bIn) {
        m_control->OnExitFocus();
        return;
    }
    m_form->Focused(*this);
    if (m_bFocusInside && !m_bGone) m_control->OnEnterFocus();
}

// Somebody else may have moved the window: the place in units follows it then.
void WindowHost::OnPosition() {
    if (!m_container->ContainerWindow()) return;
    RECT rect{};
    GetWindowRect(Window(), &rect);
    MapWindowPoints(nullptr, m_container->ContainerWindow(), reinterpret_cast<POINT*>(&rect), 2);
    const RECT own = PixelsOf(m_place);
    const auto units = [this](LONG lPixels) {
        return ConvertUnits(static_cast<float>(lPixels), ScaleUnit::Pixels, m_container->ScaleMode(), m_form->Dpi());
    };
    if (rect.left != own.left) m_place.Left = units(rect.left);
    if (rect.top != own.top) m_place.Top = units(rect.top);
    if (rect.right - rect.left != own.right - own.left) m_place.Width = units(rect.right - rect.left);
    if (rect.bottom - rect.top != own.bottom - own.top) m_place.Height = units(rect.bottom - rect.top);
}

void WindowHost::OnDestroy() {
    if (m_bGone) return;
    const bool bHadFocus = HasFocusInside();
    if (m_form->Frame().HasObjectOf(Window())) m_form->Frame().SetActiveObject(nullptr);
    m_drag.Refuse();
    m_inPlace.Detach();
    if (m_control) m_control->OnTerminate();
    m_bGone = true;
    m_surface.Detach();
    if (bHadFocus) m_form->FocusNextOf(this);
    // The form lets it go here, and the window still needs it up to its last message.
    m_self = shared_from_this();
    m_form->Forget(*this);
    m_form = nullptr;
    m_container = nullptr;
}

void WindowHost::PaintWindow() {
    const WindowPaint paint(Window());
    if (paint.dc) PaintOn(paint.dc);
    if (std::exchange(m_bShapeOpen, false) && !m_bGone) m_shape.Apply(Window(), m_iBackStyle == 0);
}

void WindowHost::PaintOn(HDC dc) {
    if (m_surface.IsRetained()) {
        m_surface.ShowImage(dc);
        return;
    }
    const HostSurface::Painting painting(m_surface, dc);
    m_control->OnPaint();
}

} // namespace orvanta
