#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>

#if defined(__SSE2__) || defined(_M_X64)
#include <emmintrin.h>
#define ORVANTA_UNIT_SCAN_SSE2 1
#endif

namespace orvanta {

// Searches over long texts, sixteen code units at a time where the processor allows it. The engine looks for rare
// things in every line of every file, and these are what that costs.

namespace unit_scan {

inline constexpr std::size_t kBlock = 16;

// A test of one unit: equal to one of Units, which are ASCII and not NUL; with Folded, an upper case letter counts as
// its lower case one (then write lower case).
template<bool Folded, char16_t... Units>
struct OneOf {
    static_assert(((Units > 0 && Units < 0x80) && ...));

    static bool Test(char16_t c) {
        if (Folded && c >= u'A' && c <= u'Z') c = static_cast<char16_t>(c + (u'a' - u'A'));
        return ((c == Units) || ...);
    }

#ifdef ORVANTA_UNIT_SCAN_SSE2
    // Sixteen units as bytes, see Pack; a bit for each that passes.
    static unsigned Test(__m128i bytes) {
        __m128i any = _mm_setzero_si128();
        ((any = _mm_or_si128(any, Equal(bytes, Units))), ...);
        return static_cast<unsigned>(_mm_movemask_epi8(any));
    }

private:
    static __m128i Equal(__m128i bytes, char16_t c) {
        // With the case bit set a letter and its other case are the same, and nothing else becomes a letter.
        const bool bFold = Folded && c >= u'a' && c <= u'z';
        const __m128i folded = bFold ? _mm_or_si128(bytes, _mm_set1_epi8(0x20)) : bytes;
        return _mm_cmpeq_epi8(folded, _mm_set1_epi8(static_cast<char>(c)));
    }
#endif
};

// Bit n of the result: unit n of the block passes the test.
template<typename Test>
unsigned MatchesPlain(const char16_t* block) {
    unsigned nMask = 0;
    for (std::size_t n = 0; n < kBlock; ++n)
        nMask |= static_cast<unsigned>(Test::Test(block[n])) << n;
    return nMask;
}

#ifdef ORVANTA_UNIT_SCAN_SSE2
// The units of a block as bytes. What does not fit becomes 0 or 255, which no test asks for.
using Packed = __m128i;
inline Packed Pack(const char16_t* block) {
    const auto* const p = reinterpret_cast<const __m128i*>(block);
    return _mm_packus_epi16(_mm_loadu_si128(p), _mm_loadu_si128(p + 1));
}
template<typename Test>
unsigned MatchesPacked(Packed packed) {
    return Test::Test(packed);
}
#else
using Packed = const char16_t*;
inline Packed Pack(const char16_t* block) {
    return block;
}
template<typename Test>
unsigned MatchesPacked(Packed packed) {
    return MatchesPlain<Test>(packed);
}
#endif

template<typename Test>
unsigned Matches(const char16_t* block) {
    return MatchesPacked<Test>(Pack(block));
}

// As many units as a mask has bits, and for each test a mask of those that pass.
inline constexpr std::size_t kStride = 4 * kBlock;
template<typename... Tests>
std::array<std::uint64_t, sizeof...(Tests)> MasksOf(const char16_t* p) {
    const Packed a = Pack(p), b = Pack(p + kBlock), c = Pack(p + 2 * kBlock), d = Pack(p + 3 * kBlock);
    const auto mask = [&]<typename Test>(Test) -> std::uint64_t {
        return std::uint64_t{MatchesPacked<Test>(a)} | std::uint64_t{MatchesPacked<Test>(b)} << kBlock |
               std::uint64_t{MatchesPacked<Test>(c)} << 2 * kBlock |
               std::uint64_t{MatchesPacked<Test>(d)} << 3 * kBlock;
    };
    return {mask(Tests())...};
}

// Likewise from position n of a text on, where no test passes what is not there.
template<typename... Tests>
std::array<std::uint64_t, sizeof...(Tests)> MasksAt(std::u16string_view s, std::size_t n) {
    if (s.size() >= n + kStride) return MasksOf<Tests...>(s.data() + n);
    if (n >= s.size()) return {};
    char16_t stride[kStride] = {};
    std::copy(s.begin() + static_cast<std::ptrdiff_t>(n), s.end(), stride);
    return MasksOf<Tests...>(stride);
}

} // namespace unit_scan

// What ForEachMatch looks for: one of these units; the same with ASCII letters folded (write them in lower case).
template<char16_t... Units>
using OneOf = unit_scan::OneOf<false, Units...>;
template<char16_t... Units>
using OneOfFolded = unit_scan::OneOf<true, Units...>;

// Calls visit(position) for each place of s where the next units pass the tests one by one, from first to last.
template<typename... Tests, typename Visit>
void ForEachMatch(std::u16string_view s, Visit&& visit) {
    constexpr std::size_t kTests = sizeof...(Tests);
    constexpr std::size_t kStride = unit_scan::kStride;
    // Each turn has the masks of the stride ahead too: further tests look over the end of their stride.
    std::array<std::uint64_t, kTests> masks;
    std::array<std::uint64_t, kTests> ahead = unit_scan::MasksAt<Tests...>(s, 0);
    for (std::size_t n = 0; n < s.size(); n += kStride) {
        masks = ahead;
        ahead = unit_scan::MasksAt<Tests...>(s, n + kStride);
        std::uint64_t nAll = masks[0];
        for (std::size_t nTest = 1; nTest < kTests; ++nTest)
            nAll &= masks[nTest] >> nTest | ahead[nTest] << (kStride - nTest);
        for (; nAll != 0; nAll &= nAll - 1)
            visit(n + static_cast<std::size_t>(std::countr_zero(nAll)));
    }
}

// How many units from the start on equal Unit.
template<char16_t Unit>
std::size_t CountLeading(std::u16string_view s) {
    std::size_t n = 0;
    for (; s.size() - n >= unit_scan::kBlock; n += unit_scan::kBlock) {
        const unsigned nOther = ~unit_scan::Matches<OneOf<Unit>>(s.data() + n) & 0xFFFFu;
        if (nOther != 0) return n + static_cast<std::size_t>(std::countr_zero(nOther));
    }
    while (n < s.size() && s[n] == Unit)
        ++n;
    return n;
}

} // namespace orvanta
