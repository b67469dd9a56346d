#pragma once

#include <algorithm>
#include <chrono>
#include <cstdint>

namespace orvanta::bench {

// The shortest of nRuns runs in seconds, so that a neighbour on the machine does not count.
template<typename Call>
double BestSeconds(int nRuns, Call&& call) {
    double dBest = 1e9;
    for (int n = 0; n < nRuns; ++n) {
        const auto start = std::chrono::steady_clock::now();
        call();
        dBest = std::min(dBest, std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
    }
    return dBest;
}

// The same for two calls that take turns, so that both see the same weather.
struct Pair {
    double dOurs = 1e9;
    double dPeer = 1e9;
};
template<typename Ours, typename Peer>
Pair BestPair(int nRuns, Ours&& ours, Peer&& peer) {
    Pair best;
    for (int n = 0; n < nRuns; ++n) {
        best.dOurs = std::min(best.dOurs, BestSeconds(1, ours));
        best.dPeer = std::min(best.dPeer, BestSeconds(1, peer));
    }
    return best;
}

// What a measured result goes through, so that no compiler leaves the work out.
template<typename T>
void Keep(const T& value) {
#ifdef __GNUC__
    asm volatile("" : : "g"(&value) : "memory");
#else
    static const volatile void* volatile sink = nullptr;
    sink = &value;
#endif
}
inline void Keep(std::uint64_t value) {
#ifdef __GNUC__
    asm volatile("" : : "r"(value));
#else
    static volatile std::uint64_t sink = 0;
    sink = value;
#endif
}

} // namespace orvanta::bench
