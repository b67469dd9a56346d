#pragma once

#include "base/Failure.h"
#include "base/Rounding.h"
#include "grid/GridView.h"

#include <cstdint>

namespace orvanta {

// A 16-bit scroll bar under 32-bit numbers: both are divided by a scale, which follows from the maximum. Above 30,000
// a position is so a multiple of the scale. A scale of 0, from a maximum below -15,000, raises DivisionByZero.
class ScaledBar {
public:
    std::int32_t Max(const GridBar& bar) const { return std::int32_t{bar.Max()} * m_iScale; }
    void Max(GridBar& bar, std::int32_t l) {
        m_iScale = RoundToInteger<std::int16_t>(l / 30000.0 + 1);
        bar.Max(Scaled(l));
    }
    std::int32_t Value(const GridBar& bar) const { return std::int32_t{bar.Value()} * m_iScale; }
    void Value(GridBar& bar, std::int32_t l) const { bar.Value(Scaled(l)); }

    std::int16_t Scale() const { return m_iScale; }

private:
    std::int16_t Scaled(std::int32_t l) const {
        if (m_iScale == 0) throw DivisionByZero();
        return RoundToInteger<std::int16_t>(static_cast<double>(l) / m_iScale);
    }

    std::int16_t m_iScale = 1;
};

} // namespace orvanta
