#pragma once

#include <cstdint>

namespace orvanta {

// File positions and sizes are exact signed 64-bit byte counts. The platform's calls take and give them in two halves,
// of which the low one is unsigned.

constexpr std::int64_t LongsToFixed(std::uint32_t lo, std::int32_t hi) {
    return static_cast<std::int64_t>((static_cast<std::uint64_t>(static_cast<std::uint32_t>(hi)) << 32) | lo);
}

constexpr std::uint32_t FixedToLowLong(std::int64_t v) {
    return static_cast<std::uint32_t>(v);
}

constexpr std::int32_t FixedToHighLong(std::int64_t v) {
    return static_cast<std::int32_t>(v >> 32);
}

} // namespace orvanta
