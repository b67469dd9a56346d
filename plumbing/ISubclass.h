#pragma once

#include <windows.h>

namespace orvanta {

// How a control receives the window messages that it asked for with HookMessage.
class ISubclass {
public:
    // bBefore   the window's previous procedure has not run for this message, and nobody stopped it
    // bStopMsg  false at first for each client; true keeps the previous procedure from running
    // lReturn   what the window procedure will return, shared by all clients of the message. When the previous
    //           procedure runs behind the clients, its result overwrites this.
    virtual void WindowProc(bool bBefore, bool& bStopMsg, LRESULT& lReturn, HWND hwnd, UINT uMsg, WPARAM wParam,
                            LPARAM lParam) = 0;

protected:
    ~ISubclass() = default;
};

} // namespace orvanta
