#pragma once

#include <windows.h>

#include <array>
#include <cstddef>

namespace orvanta::testing {

// How many GDI objects of each type stand in the process, by the platform's OBJ_ numbers. Tests take one before and one
// after a number of rounds: what leaks in each round shows as that number.
struct GdiCensus {
    std::array<int, 16> count{};

    static GdiCensus Take() {
        GdiCensus census;
        for (std::size_t n = 1; n < 0x10000; ++n) {
            const DWORD type = GetObjectType(reinterpret_cast<HGDIOBJ>(n));
            if (type != 0 && type < census.count.size()) ++census.count[type];
        }
        return census;
    }
    bool operator==(const GdiCensus&) const = default;
};

} // namespace orvanta::testing
