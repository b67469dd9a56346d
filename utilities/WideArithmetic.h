#pragma once

#include <bit>
#include <cstdint>

namespace orvanta {

// Unsigned arithmetic on 128 bits, as far as the block arithmetic needs it: sums of products, and the division of such
// a sum by a divisor that stays the same for many divisions.

// A sum modulo 2^128, for any compiler.
class PortableWide {
public:
    constexpr PortableWide() = default;
    constexpr PortableWide(std::uint64_t nHigh, std::uint64_t nLow) : m_nHigh(nHigh), m_nLow(nLow) {}

    constexpr std::uint64_t High() const { return m_nHigh; }
    constexpr std::uint64_t Low() const { return m_nLow; }

    constexpr void Add(std::uint64_t n) {
        m_nLow += n;
        m_nHigh += m_nLow < n;
    }
    constexpr void AddProduct(std::uint64_t a, std::uint64_t b) {
        constexpr std::uint64_t kHalf = 0xFFFFFFFFu;
        const std::uint64_t nLow = (a & kHalf) * (b & kHalf);
        const std::uint64_t nMiddle = (a >> 32) * (b & kHalf) + (nLow >> 32);
        const std::uint64_t nOther = (a & kHalf) * (b >> 32) + (nMiddle & kHalf);
        Add(nOther << 32 | (nLow & kHalf));
        m_nHigh += (a >> 32) * (b >> 32) + (nMiddle >> 32) + (nOther >> 32);
    }

private:
    std::uint64_t m_nHigh = 0;
    std::uint64_t m_nLow = 0;
};

#if defined(__SIZEOF_INT128__)
// The same with the compiler's own 128-bit integer.
class NativeWide {
public:
    constexpr NativeWide() = default;
    constexpr NativeWide(std::uint64_t nHigh, std::uint64_t nLow) : m_n(static_cast<Integer>(nHigh) << 64 | nLow) {}

    constexpr std::uint64_t High() const { return static_cast<std::uint64_t>(m_n >> 64); }
    constexpr std::uint64_t Low() const { return static_cast<std::uint64_t>(m_n); }

    constexpr void Add(std::uint64_t n) { m_n += n; }
    constexpr void AddProduct(std::uint64_t a, std::uint64_t b) { m_n += static_cast<Integer>(a) * b; }

private:
    __extension__ using Integer = unsigned __int128;
    Integer m_n = 0;
};
using Wide = NativeWide;
#else
using Wide = PortableWide;
#endif

// Divides by one number, from 1 up to but not including 2^63, without a division instruction: by a reciprocal that is
// computed once.
template<typename W>
class BasicDivisor {
public:
    struct Result {
        std::uint64_t nQuotient;
        std::uint64_t nRemainder;
    };

    constexpr explicit BasicDivisor(std::uint64_t nDivisor)
        : m_nShift(std::countl_zero(nDivisor)), m_nNormal(nDivisor << m_nShift),
          m_nReciprocal(ReciprocalOf(m_nNormal)) {}

    constexpr std::uint64_t Value() const { return m_nNormal >> m_nShift; }

    // The high half must be below the divisor, so that the quotient fits.
    constexpr Result Divide(std::uint64_t nHigh, std::uint64_t nLow) const {
        nHigh = nHigh << m_nShift | nLow >> (64 - m_nShift);
        nLow <<= m_nShift;
        // The estimate is the quotient or the one above it in nearly all cases, and two corrections always suffice.
        W estimate(nHigh, nLow);
        estimate.AddProduct(m_nReciprocal, nHigh);
        std::uint64_t nQuotient = estimate.High() + 1;
        std::uint64_t nRemainder = nLow - nQuotient * m_nNormal;
        if (nRemainder > estimate.Low()) {
            --nQuotient;
            nRemainder += m_nNormal;
        }
        if (nRemainder >= m_nNormal) {
            ++nQuotient;
            nRemainder -= m_nNormal;
        }
        return {nQuotient, nRemainder >> m_nShift};
    }

private:
    // (2^128 - 1) / n - 2^64 for an n with its top bit set.
    static constexpr std::uint64_t ReciprocalOf(std::uint64_t n) {
        std::uint64_t nQuotient = 0;
        std::uint64_t nRemainder = ~n;
        for (int iBit = 0; iBit < 64; ++iBit) {
            const bool bCarry = nRemainder >> 63 != 0;
            nRemainder = nRemainder << 1 | 1;
            nQuotient <<= 1;
            if (bCarry || nRemainder >= n) {
                nRemainder -= n;
                nQuotient |= 1;
            }
        }
        return nQuotient;
    }

    int m_nShift;
    std::uint64_t m_nNormal;
    std::uint64_t m_nReciprocal;
};

using Divisor = BasicDivisor<Wide>;

} // namespace orvanta
