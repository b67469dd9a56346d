#pragma once

#include <cstdint>

namespace orvanta {

// The face style of the whole program: 3 until one is set.
std::int32_t DefaultFaceStyle();
void DefaultFaceStyle(std::int32_t lFaceStyle);
void ClearDefaultFaceStyle();

// -1 becomes DefaultFaceStyle; any other value stays.
std::int32_t ResolveFaceStyle(std::int32_t style);

} // namespace orvanta
