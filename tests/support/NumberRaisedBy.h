#pragma once

#include "base/Failure.h"

#include <cstdint>

namespace orvanta::testing {

// The number of the failure that a step raises, 0 for none.
template<typename Step>
std::uint32_t NumberRaisedBy(Step&& step) {
    try {
        step();
    } catch (const Failure& failure) {
        return failure.Number();
    }
    return 0;
}

} // namespace orvanta::testing
