#pragma once

#include "base/Failure.h"

#include <cstdint>
#include <limits>

namespace orvanta {

// A sum of pixels as the 32-bit number that the grid's members give. Raises Overflow.
inline std::int32_t CheckedLong(std::int64_t l) {
    if (l < std::numeric_limits<std::int32_t>::min() || l > std::numeric_limits<std::int32_t>::max()) throw Overflow();
    return static_cast<std::int32_t>(l);
}

} // namespace orvanta
