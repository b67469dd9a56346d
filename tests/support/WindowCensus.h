#pragma once

#include <windows.h>

namespace orvanta::testing {

// How many windows of this process stand: top-level and message-only ones with all that are inside them, visible or
// not. Tests take one before and one after a number of rounds.
inline int CountOwnWindows() {
    int nWindows = 0;
    const auto count = [](HWND hwnd, LPARAM lParam) -> BOOL {
        DWORD process = 0;
        GetWindowThreadProcessId(hwnd, &process);
        if (process == GetCurrentProcessId()) ++*reinterpret_cast<int*>(lParam);
        return TRUE;
    };
    const auto countTree = [](HWND hwnd, LPARAM lParam) -> BOOL {
        decltype(count){}(hwnd, lParam);
        EnumChildWindows(hwnd, decltype(count){}, lParam);
        return TRUE;
    };
    const auto result = reinterpret_cast<LPARAM>(&nWindows);
    EnumWindows(countTree, result);
    for (HWND hwnd = nullptr; (hwnd = FindWindowExW(HWND_MESSAGE, hwnd, nullptr, nullptr)) != nullptr;)
        countTree(hwnd, result);
    return nWindows;
}

} // namespace orvanta::testing
