#include "plumbing/DoEvents.h"

#include <windows.h>

namespace orvanta {

namespace {

DialogStep g_dialogStep = nullptr;

} // namespace

void SetDialogStep(DialogStep step) {
    g_dialogStep = step;
}

void DoEvents() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        if (g_dialogStep && g_dialogStep(message)) continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

} // namespace orvanta
