#include "utilities/clsLargeNumber.h"

#include <gmp.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <random>
#include <string>
#include <vector>

// Large numbers, string in and string out, beside GMP doing the same: mpz_set_str, the operation, mpz_get_str. The peer
// keeps its variables and its output buffer between the calls, which is how a careful user would write it.
namespace {

using orvanta::clsLargeNumber;
using Clock = std::chrono::steady_clock;

std::string RandomDigits(std::size_t nSize, std::mt19937_64& random) {
    std::string s(nSize, '0');
    for (char& c : s)
        c = static_cast<char>('0' + random() % 10);
    s.front() = static_cast<char>('1' + random() % 9);
    return s;
}

std::u16string Widen(const std::string& s) {
    return {s.begin(), s.end()};
}

// Nanoseconds of one call: the best of many short runs, so that a neighbour on the machine does not count.
template<typename Call>
double RunOnce(Call&& call, std::size_t nCalls) {
    const auto start = Clock::now();
    for (std::size_t n = 0; n < nCalls; ++n)
        call();
    return std::chrono::duration<double, std::nano>(Clock::now() - start).count() / static_cast<double>(nCalls);
}

template<typename Ours, typename Peer>
void Compare(const char* szName, std::size_t nSize, double dWanted, Ours&& ours, Peer&& peer) {
    const double dFirst = RunOnce(ours, 1);
    const auto nCalls = static_cast<std::size_t>(std::max(1.0, 300'000.0 / dFirst));
    double dOurs = dFirst;
    double dPeer = RunOnce(peer, 1);
    for (int iRun = 0; iRun < 60; ++iRun) {
        dOurs = std::min(dOurs, RunOnce(ours, nCalls));
        dPeer = std::min(dPeer, RunOnce(peer, nCalls));
        if (dOurs * static_cast<double>(nCalls) > 2e7 && iRun >= 9) break;
    }
    char szWanted[32] = "none";
    if (dWanted > 0) std::snprintf(szWanted, sizeof szWanted, "at most %.1f", dWanted);
    std::printf("RATIO | %s, %zu digits | ours %.0f ns | peer GMP %.0f ns | ratio %.2f | wanted %s\n", szName, nSize,
                dOurs, dPeer, dOurs / dPeer, szWanted);
}

class Peer {
public:
    Peer() { mpz_inits(m_a, m_b, m_result, nullptr); }
    ~Peer() { mpz_clears(m_a, m_b, m_result, nullptr); }
    Peer(const Peer&) = delete;
    Peer& operator=(const Peer&) = delete;

    template<typename Operation>
    const std::string& Run(const std::string& sA, const std::string& sB, Operation&& operation) {
        mpz_set_str(m_a, sA.c_str(), 10);
        mpz_set_str(m_b, sB.c_str(), 10);
        operation(m_result, m_a, m_b);
        return Write(10);
    }

    const std::string& Convert(const std::string& s, int iFrom, int iTo) {
        mpz_set_str(m_result, s.c_str(), iFrom);
        return Write(iTo);
    }

private:
    const std::string& Write(int iBase) {
        m_s.resize(mpz_sizeinbase(m_result, iBase) + 2);
        mpz_get_str(m_s.data(), iBase, m_result);
        return m_s;
    }

    mpz_t m_a, m_b, m_result;
    std::string m_s;
};

std::size_t nSink = 0; // what is computed must be needed

} // namespace

int main() {
    std::mt19937_64 random(20);
    Peer peer;
    for (const std::size_t nSize : {10u, 100u, 1'000u, 10'000u, 100'000u}) {
        const std::string sA = RandomDigits(nSize, random);
        const std::string sB = RandomDigits(nSize, random);
        const std::string sHalf = RandomDigits(nSize / 2, random);
        const std::u16string sWideA = Widen(sA);
        const std::u16string sWideB = Widen(sB);
        const std::u16string sWideHalf = Widen(sHalf);
        const std::u16string sHex = clsLargeNumber::ConvFromBase10(sWideA, u"16");
        const std::string sNarrowHex(sHex.begin(), sHex.end());

        Compare(
            "add", nSize, 0.5, [&] { nSink += clsLargeNumber::StrAdd(sWideA, sWideB).size(); },
            [&] { nSink += peer.Run(sA, sB, mpz_add).size(); });
        Compare(
            "multiply", nSize,
            nSize == 1'000    ? 2.5
            : nSize == 10'000 ? 4.0
                              : 0,
            [&] { nSink += clsLargeNumber::StrMult(sWideA, sWideB).size(); },
            [&] { nSink += peer.Run(sA, sB, mpz_mul).size(); });
        Compare(
            "divide by half the digits", nSize, nSize == 1'000 ? 5.0 : 0,
            [&] { nSink += clsLargeNumber::StrDiv(sWideA, sWideHalf).size(); },
            [&] { nSink += peer.Run(sA, sHalf, mpz_tdiv_q).size(); });
        Compare(
            "base 10 to 16", nSize, nSize == 1'000 ? 5.0 : 0,
            [&] { nSink += clsLargeNumber::ConvFromBase10(sWideA, u"16").size(); },
            [&] { nSink += peer.Convert(sA, 10, 16).size(); });
        Compare(
            "base 10 to 62", nSize, nSize == 1'000 ? 5.0 : 0,
            [&] { nSink += clsLargeNumber::ConvFromBase10(sWideA, u"62").size(); },
            [&] { nSink += peer.Convert(sA, 10, 62).size(); });
        Compare(
            "base 16 to 10", nSize, nSize == 1'000 ? 5.0 : 0,
            [&] { nSink += clsLargeNumber::ConvToBase10(sHex, u"16").size(); },
            [&] { nSink += peer.Convert(sNarrowHex, 16, 10).size(); });
    }
    return nSink == 0;
}
