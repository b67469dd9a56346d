#pragma once

#include "plumbing/HookStore.h"
#include "plumbing/MSubclass.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <functional>
#include <string>
#include <vector>

namespace orvanta::testing {

// What ran, in order: "P" is the window's own procedure, a client writes its name, with "+" when it saw bBefore true.
inline std::vector<std::string> g_journal;
// What the window's own procedure answers to messages from WM_USER on, and what it does then.
inline LRESULT g_lOwnResult = 0;
inline std::function<void()> g_duringOwn;

constexpr UINT kAsked = WM_USER + 1;
constexpr UINT kOther = WM_USER + 2;

inline LRESULT CALLBACK OwnProcedure(HWND hwnd, UINT uMsg, WPARAM wParam, LPARAM lParam) {
    if (uMsg == WM_DESTROY) g_journal.emplace_back("P destroy");
    if (uMsg < WM_USER || uMsg > WM_USER + 100) return DefWindowProcW(hwnd, uMsg, wParam, lParam);
    g_journal.emplace_back("P");
    if (const auto step = g_duringOwn) step();
    return g_lOwnResult;
}

struct Client final : ISubclass {
    explicit Client(std::string sOwnName) : sName(std::move(sOwnName)) {}

    void WindowProc(bool bBefore, bool& bStopMsg, LRESULT& lReturn, HWND hwnd, UINT uMsg, WPARAM wParam,
                    LPARAM lParam) override {
        g_journal.push_back(sName + (bBefore ? "+" : ""));
        bSawStop = bStopMsg;
        lSawReturn = lReturn;
        seen = {hwnd, uMsg, wParam, lParam};
        if (bStop) bStopMsg = true;
        if (bSetsReturn) lReturn = lNewReturn;
        // A copy, for the step may replace itself.
        if (const auto step = during) step();
    }

    void Returns(LRESULT l) {
        bSetsReturn = true;
        lNewReturn = l;
    }

    struct Message {
        HWND hwnd;
        UINT uMsg;
        WPARAM wParam;
        LPARAM lParam;
        bool operator==(const Message&) const = default;
    };

    std::string sName;
    bool bStop = false;
    bool bSetsReturn = false;
    LRESULT lNewReturn = 0;
    std::function<void()> during;
    bool bSawStop = true;
    LRESULT lSawReturn = -1;
    Message seen{};
};

class HookedWindow : public ::testing::Test {
protected:
    HookedWindow() {
        WNDCLASSW windowClass{};
        windowClass.lpfnWndProc = OwnProcedure;
        windowClass.lpszClassName = L"OrvantaHookTest";
        RegisterClassW(&windowClass);
        hwnd = MakeWindow();
        g_journal.clear();
        g_lOwnResult = 700;
        g_duringOwn = nullptr;
    }
    ~HookedWindow() override {
        if (IsWindow(hwnd)) DestroyWindow(hwnd);
        g_duringOwn = nullptr;
        HooksInForce().SetPermit(nullptr);
        HooksInForce().SetTrace(nullptr);
        HooksInForce().Drop(Key());
    }

    static HWND MakeWindow() {
        return CreateWindowExW(0, L"OrvantaHookTest", L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
    }
    static LONG_PTR ProcedureOf(HWND window) { return GetWindowLongPtrW(window, GWLP_WNDPROC); }
    static LONG_PTR Own() { return reinterpret_cast<LONG_PTR>(&OwnProcedure); }
    static LONG_PTR Shared() { return reinterpret_cast<LONG_PTR>(&HookedWindowProc); }

    LRESULT Send(UINT uMsg) { return SendMessageW(hwnd, uMsg, 12, 34); }
    HookStore::Address Key() const { return reinterpret_cast<HookStore::Address>(hwnd); }

    using Journal = std::vector<std::string>;
    HWND hwnd;
};

} // namespace orvanta::testing
