#pragma once

#include "controls/hosting/Form.h"
#include "controls/hosting/WindowHost.h"
#include "plumbing/GdiOwner.h"
#include "tests/controls/support/PngFile.h"
#include "tests/support/PixelCanvas.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace orvanta::testing {

// The client area of a window as it is on the screen, with all that is inside it.
class WindowPixels {
public:
    explicit WindowPixels(HWND window) : m_canvas(WidthOf(window), HeightOf(window), 0) {
        const WindowDc dc(window);
        BitBlt(m_canvas.Dc(), 0, 0, m_canvas.Width(), m_canvas.Height(), dc.Get(), 0, 0, SRCCOPY);
    }
    int Width() const { return m_canvas.Width(); }
    int Height() const { return m_canvas.Height(); }
    // A plain colour, 0x00BBGGRR.
    OleColor At(int x, int y) const { return m_canvas.At(x, y); }
    std::vector<OleColor> All() const { return m_canvas.Pixels(); }
    void SavePng(const std::string& sPath) const { WritePng(sPath, All(), Width(), Height()); }

private:
    static int WidthOf(HWND window) {
        RECT rect{};
        GetClientRect(window, &rect);
        return rect.right;
    }
    static int HeightOf(HWND window) {
        RECT rect{};
        GetClientRect(window, &rect);
        return rect.bottom;
    }
    PixelCanvas m_canvas;
};

// A form of 600 by 400 pixels at the left top of the screen, in run mode, and the means to act on it as a user does.
// Places on the form are pixels here, unless a test sets another scale mode.
class FormFixture : public ::testing::Test {
protected:
    FormFixture() {
        form.ScaleMode(ScaleUnit::Pixels);
        SetWindowPos(form.hWnd(), nullptr, 20, 20, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        form.InnerSize(600, 400);
    }
    ~FormFixture() override { ReleaseCapture(); }

    // Shows the form as the active window and lets it paint.
    void Show() {
        form.Show();
        SetForegroundWindow(form.hWnd());
        Pump();
    }

    // Delivers all messages that wait, as the form's own loop does.
    static void Pump() {
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            if (Form::DialogStep(message)) continue;
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }

    // The mouse by SendInput, at a client pixel of a control. Each step pumps.
    static void MoveTo(const Control& control, int x, int y) { MoveTo(control.hwnd(), x, y); }
    static void MoveTo(HWND window, int x, int y) {
        POINT point{x, y};
        ClientToScreen(window, &point);
        const int w = GetSystemMetrics(SM_CXSCREEN);
        const int h = GetSystemMetrics(SM_CYSCREEN);
        Mouse(MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE, (point.x * 65536 + w - 1) / w, (point.y * 65536 + h - 1) / h);
    }
    static void Mouse(DWORD flags, LONG x = 0, LONG y = 0, std::int32_t lWheel = 0) {
        INPUT input{};
        input.type = INPUT_MOUSE;
        input.mi.dx = x;
        input.mi.dy = y;
        input.mi.dwFlags = flags;
        input.mi.mouseData = static_cast<DWORD>(lWheel);
        SendInput(1, &input, sizeof input);
        Pump();
    }
    static void Click(const Control& control, int x, int y) {
        MoveTo(control, x, y);
        Mouse(MOUSEEVENTF_LEFTDOWN);
        Mouse(MOUSEEVENTF_LEFTUP);
    }
    static void RightClick(const Control& control, int x, int y) {
        MoveTo(control, x, y);
        Mouse(MOUSEEVENTF_RIGHTDOWN);
        Mouse(MOUSEEVENTF_RIGHTUP);
    }
    static void DoubleClick(const Control& control, int x, int y) {
        Click(control, x, y);
        Mouse(MOUSEEVENTF_LEFTDOWN);
        Mouse(MOUSEEVENTF_LEFTUP);
    }
    // Two clicks of tests that stand close together must not become a double click.
    static void NoDoubleClick() { Sleep(GetDoubleClickTime() + 20); }

    // The keyboard by SendInput; keys go to the window that has the focus. Each step pumps.
    static void KeyDown(WORD vk) { Key(vk, 0); }
    static void KeyUp(WORD vk) { Key(vk, KEYEVENTF_KEYUP); }
    static void Press(WORD vk) {
        KeyDown(vk);
        KeyUp(vk);
    }
    static void PressWith(WORD modifier, WORD vk) {
        KeyDown(modifier);
        Press(vk);
        KeyUp(modifier);
    }
    static void Type(std::u16string_view s) {
        for (const char16_t c : s) {
            for (const DWORD up : {DWORD{0}, DWORD{KEYEVENTF_KEYUP}}) {
                INPUT input{};
                input.type = INPUT_KEYBOARD;
                input.ki.wScan = c;
                input.ki.dwFlags = KEYEVENTF_UNICODE | up;
                SendInput(1, &input, sizeof input);
                Pump();
            }
        }
    }

    // Pixels of a control or of the whole form, painted up to now.
    static WindowPixels Grab(const Control& control) { return Grab(control.hwnd()); }
    static WindowPixels Grab(HWND window) {
        RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        return WindowPixels(window);
    }

    Form form{u"Test", true, WS_POPUP | WS_CAPTION | WS_SYSMENU};

private:
    static void Key(WORD vk, DWORD flags) {
        INPUT input{};
        input.type = INPUT_KEYBOARD;
        input.ki.wVk = vk;
        input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(vk, MAPVK_VK_TO_VSC));
        input.ki.dwFlags = flags;
        SendInput(1, &input, sizeof input);
        Pump();
    }
};

} // namespace orvanta::testing
