#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>

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

// Bit n of the result: unit n of the block passes the first test, the one behind it the second, and so on. Reads as
// many units beyond the block as there are further tests.
template<typename... Tests>
unsigned MatchesPlain(const char16_t* block) {
    unsigned nMask = 0;
    for (std::size_t n = 0; n < kBlock; ++n) {
        std::size_t nAhead = n;
        if ((Tests::Test(block[nAhead++]) && ...)) nMask |= 1u << n;
    }
    return nMask;
}

#ifdef ORVANTA_UNIT_SCAN_SSE2
// The units of a block as bytes. What does not fit becomes 0 or 255, which no test asks for.
inline __m128i Pack(const char16_t* block) {
    const auto* const p = reinterpret_cast<const __m128i*>(block);
    return _mm_packus_epi16(_mm_loadu_si128(p), _mm_loadu_si128(p + 1));
}

template<typename... Tests>
unsigned Matches(const char16_t* block) {
    return [block]<std::size_t... Ahead>(std::index_sequence<Ahead...>) {
        return (Tests::Test(Pack(block + Ahead)) & ...);
    }
    (std::index_sequence_for<Tests...>());
}
#else
template<typename... Tests>
unsigned Matches(const char16_t* block) {
    return MatchesPlain<Tests...>(block);
}
#endif

} // namespace unit_scan

// What ForEachMatch looks for: one of these units; the same with ASCII letters folded (write them in lower case).
template<char16_t... Units>
using OneOf = unit_scan::OneOf<false, Units...>;
template<char16_t... Units>
using OneOfFolded = unit_scan::OneOf<true, Units...>;

// Calls visit(position) for each place of s where the next units pass the tests one by one, from first to last.
template<typename... Tests, typename Visit>
void ForEachMatch(std::u16string_view s, Visit&& visit) {
    constexpr std::size_t kAhead = sizeof...(Tests) - 1;
    constexpr std::size_t kBlock = unit_scan::kBlock;
    constexpr std::size_t kStride = 4 * kBlock; // as many units as a mask has bits
    std::size_t n = 0;
    const auto mask = [&s, &n](std::size_t nBlock) -> std::uint64_t {
        return unit_scan::Matches<Tests...>(s.data() + n + nBlock * kBlock);
    };
    const auto visitAll = [&visit, &n](std::uint64_t nMask) {
        for (; nMask != 0; nMask &= nMask - 1)
            visit(n + static_cast<std::size_t>(std::countr_zero(nMask)));
    };
    for (; s.size() - n >= kStride + kAhead; n += kStride) {
        visitAll(mask(0) | mask(1) << 16 | mask(2) << 32 | mask(3) << 48);
    }
    for (; s.size() - n >= kBlock + kAhead; n += kBlock)
        visitAll(mask(0));
    if (s.size() - n > kAhead) { // the rest, in a block of its own; no test passes a NUL
        char16_t rest[kBlock + kAhead] = {};
        std::copy(s.begin() + static_cast<std::ptrdiff_t>(n), s.end(), rest);
        visitAll(unit_scan::Matches<Tests...>(rest));
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
