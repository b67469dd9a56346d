#pragma once

#include "base/Failure.h"

#include <cmath>
#include <concepts>
#include <limits>

namespace orvanta {

// Rounds to the nearest whole number, halves to the even one, whatever rounding mode the processor is in.
inline double RoundHalfEven(double d) {
    const double dFloor = std::floor(d);
    const double dRest = d - dFloor;
    if (dRest < 0.5) return dFloor;
    if (dRest > 0.5) return dFloor + 1;
    return std::fmod(dFloor, 2.0) == 0.0 ? dFloor : dFloor + 1;
}

// The same into an integer type. Raises Overflow when the result does not fit, and for NaN.
template<std::signed_integral T>
T RoundToInteger(double d) {
    const double dRounded = RoundHalfEven(d);
    const double dLimit = -static_cast<double>(std::numeric_limits<T>::min());
    if (!(dRounded >= -dLimit && dRounded < dLimit)) throw Overflow();
    return static_cast<T>(dRounded);
}

} // namespace orvanta
