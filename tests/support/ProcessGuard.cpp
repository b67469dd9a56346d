#include "tests/support/ProcessGuard.h"

#ifdef _WIN32

#include <windows.h>

#include <cstdint>
#include <cstdio>

namespace orvanta::testing {

namespace {

LONG WINAPI ReportCrash(EXCEPTION_POINTERS* info) {
    const auto base = reinterpret_cast<std::uintptr_t>(GetModuleHandleW(nullptr));
    const auto address = reinterpret_cast<std::uintptr_t>(info->ExceptionRecord->ExceptionAddress);
    std::fprintf(stderr, "crash: exception %08lx at %p (program + 0x%llx)\n", info->ExceptionRecord->ExceptionCode,
                 info->ExceptionRecord->ExceptionAddress, static_cast<unsigned long long>(address - base));
    std::fflush(nullptr);
    TerminateProcess(GetCurrentProcess(), 139);
    return EXCEPTION_EXECUTE_HANDLER;
}

constexpr DWORD kPatienceMilliseconds = 20000;

// A box that stands for 20 seconds is one that no test answers: close it by its default button and say so.
DWORD WINAPI AnswerForgottenBoxes(void* desktop) {
    SetThreadDesktop(static_cast<HDESK>(desktop));
    HWND seen = nullptr;
    for (DWORD waited = 0;; waited += 500) {
        Sleep(500);
        HWND box = FindWindowW(L"#32770", nullptr);
        DWORD process = 0;
        if (box) GetWindowThreadProcessId(box, &process);
        if (!box || process != GetCurrentProcessId() || box != seen) {
            seen = process == GetCurrentProcessId() ? box : nullptr;
            waited = 0;
        } else if (waited >= kPatienceMilliseconds) {
            std::fprintf(stderr, "a message box was left standing; closing it\n");
            std::fflush(nullptr);
            PostMessageW(box, WM_COMMAND, IDOK, 0);
            PostMessageW(box, WM_COMMAND, IDNO, 0);
            PostMessageW(box, WM_COMMAND, IDCANCEL, 0);
            waited = 0;
        }
    }
}

} // namespace

void GuardProcess() {
    SetUnhandledExceptionFilter(ReportCrash);
    wchar_t name[32];
    wsprintfW(name, L"test%lu", GetCurrentProcessId());
    HDESK desktop = CreateDesktopW(name, nullptr, nullptr, 0, GENERIC_ALL, nullptr);
    if (desktop) SetThreadDesktop(desktop);
    CloseHandle(CreateThread(nullptr, 0, AnswerForgottenBoxes, desktop, 0, nullptr));
}

} // namespace orvanta::testing

#else

namespace orvanta::testing {

void GuardProcess() {}

} // namespace orvanta::testing

#endif
