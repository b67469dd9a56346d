#pragma once

#include <cstdint>

namespace orvanta {

// Keys that are down now, whatever messages still wait. vk is a virtual key code.
bool IsKeyDown(std::int32_t vk);

// Bits of KeyShiftState.
inline constexpr std::int32_t kShiftDown = 1;
inline constexpr std::int32_t kCtrlDown = 2;
inline constexpr std::int32_t kAltDown = 4;
std::int32_t KeyShiftState();

// The id of the system's cursor for a MousePointer value 0 to 15, 0 for any other.
std::int32_t MousePointerToCursorId(std::int32_t i);

} // namespace orvanta
