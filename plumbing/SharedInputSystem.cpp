// The part of SharedInput.h that asks the platform.
#include "plumbing/SharedInput.h"

#include <windows.h>

namespace orvanta {

bool IsKeyDown(std::int32_t vk) {
    return GetAsyncKeyState(vk) < 0;
}

std::int32_t KeyShiftState() {
    return (IsKeyDown(VK_SHIFT) ? kShiftDown : 0) | (IsKeyDown(VK_CONTROL) ? kCtrlDown : 0) |
           (IsKeyDown(VK_MENU) ? kAltDown : 0);
}

} // namespace orvanta
