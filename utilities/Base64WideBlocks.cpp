#include "utilities/Base64WideBlocks.h"

#include <array>
#include <bit>

#if defined(__x86_64__) || defined(_M_X64)
#define ORVANTA_WIDE_BLOCKS
#include <tmmintrin.h>
#if defined(_MSC_VER)
#include <intrin.h>
#endif
#endif

// Only these functions may use SSSE3; the rest of the program runs on any processor.
#if defined(__GNUC__)
#define ORVANTA_SSSE3 __attribute__((target("ssse3")))
#else
#define ORVANTA_SSSE3
#endif

namespace orvanta {

#if defined(ORVANTA_WIDE_BLOCKS)

namespace {

using Table = std::array<std::uint8_t, 16>;

// What is added to a six-bit value to make its character. Values up to 25 look at entry 13, 26 to 51 at entry 0, each
// value above at its distance from 51.
constexpr Table kCharacterOffsets = [] {
    Table table{};
    table[13] = 'A';
    table[0] = 'a' - 26;
    for (std::size_t n = 52; n <= 61; ++n)
        table[n - 51] = static_cast<std::uint8_t>('0' - 52);
    table[62 - 51] = static_cast<std::uint8_t>('+' - 62);
    table[63 - 51] = static_cast<std::uint8_t>('/' - 63);
    return table;
}();

// A character is in the alphabet unless the tables of its two halves have a bit in common. The upper half chooses the
// bit: 1 for 2x ("+" and "/"), 2 for 3x (digits), 4 for 4x and 6x, 8 for 5x and 7x (letters), 16 for everything else.
constexpr Table kUpperBits = [] {
    Table table{};
    table.fill(16);
    table[2] = 1;
    table[3] = 2;
    table[4] = table[6] = 4;
    table[5] = table[7] = 8;
    return table;
}();
constexpr Table kLowerBits = [] {
    Table table{};
    for (std::size_t n = 0; n < table.size(); ++n) {
        const bool bSign = n == ('+' & 15) || n == ('/' & 15);
        const bool bFirstLetters = n >= ('A' & 15);
        const bool bLastLetters = n <= ('Z' & 15);
        table[n] = static_cast<std::uint8_t>(16 | (bSign ? 0 : 1) | (n <= 9 ? 0 : 2) | (bFirstLetters ? 0 : 4) |
                                             (bLastLetters ? 0 : 8));
    }
    return table;
}();

// What is added to a character to make its value, by the upper half; "/" looks at the entry before that of "+".
constexpr Table kValueOffsets = [] {
    Table table{};
    table[1] = 63 - '/';
    table[2] = 62 - '+';
    table[3] = 52 - '0';
    table[4] = table[5] = static_cast<std::uint8_t>(0 - 'A');
    table[6] = table[7] = static_cast<std::uint8_t>(26 - 'a');
    return table;
}();
static_assert(kValueOffsets[1] == 16 && kValueOffsets[2] == 19);

__m128i Load(const void* p) {
    return _mm_loadu_si128(static_cast<const __m128i*>(p));
}
void Store(void* p, __m128i block) {
    _mm_storeu_si128(static_cast<__m128i*>(p), block);
}

ORVANTA_SSSE3 __m128i EncodeBlock(__m128i block) {
    // Each group a b c becomes b a c b, so that every six bits lie within one half of 16 bits; then they are moved
    // down.
    block = _mm_shuffle_epi8(block, _mm_setr_epi8(1, 0, 2, 1, 4, 3, 5, 4, 7, 6, 8, 7, 10, 9, 11, 10));
    const __m128i first = _mm_mulhi_epu16(_mm_and_si128(block, _mm_set1_epi32(0x0FC0FC00)), _mm_set1_epi32(0x04000040));
    const __m128i second =
        _mm_mullo_epi16(_mm_and_si128(block, _mm_set1_epi32(0x003F03F0)), _mm_set1_epi32(0x01000010));
    const __m128i values = _mm_or_si128(first, second);

    const __m128i capitals = _mm_and_si128(_mm_cmpgt_epi8(_mm_set1_epi8(26), values), _mm_set1_epi8(13));
    const __m128i entries = _mm_or_si128(_mm_subs_epu8(values, _mm_set1_epi8(51)), capitals);
    return _mm_add_epi8(values, _mm_shuffle_epi8(Load(kCharacterOffsets.data()), entries));
}

// Leaves twelve bytes and four zeros. Returns false for a character outside the alphabet.
ORVANTA_SSSE3 bool DecodeBlock(__m128i& block) {
    const __m128i half = _mm_set1_epi8(15);
    const __m128i upper = _mm_and_si128(_mm_srli_epi16(block, 4), half);
    const __m128i lower = _mm_and_si128(block, half);
    const __m128i flaws = _mm_and_si128(_mm_shuffle_epi8(Load(kUpperBits.data()), upper),
                                        _mm_shuffle_epi8(Load(kLowerBits.data()), lower));
    if (_mm_movemask_epi8(_mm_cmpeq_epi8(flaws, _mm_setzero_si128())) != 0xFFFF) return false;

    const __m128i entries = _mm_add_epi8(upper, _mm_cmpeq_epi8(block, _mm_set1_epi8('/')));
    const __m128i values = _mm_add_epi8(block, _mm_shuffle_epi8(Load(kValueOffsets.data()), entries));
    const __m128i pairs = _mm_maddubs_epi16(values, _mm_set1_epi32(0x01400140));
    const __m128i groups = _mm_madd_epi16(pairs, _mm_set1_epi32(0x00011000));
    block = _mm_shuffle_epi8(groups, _mm_setr_epi8(2, 1, 0, 6, 5, 4, 10, 9, 8, 14, 13, 12, -1, -1, -1, -1));
    return true;
}

} // namespace

bool CanUseWideBlocks() {
#if defined(_MSC_VER)
    int aRegisters[4];
    __cpuid(aRegisters, 1);
    return (aRegisters[2] & 1 << 9) != 0;
#else
    return __builtin_cpu_supports("ssse3") != 0;
#endif
}

ORVANTA_SSSE3 std::size_t EncodeWideBlocks(const std::uint8_t* pIn, std::size_t nIn, std::uint8_t* pOut) {
    std::size_t nTaken = 0;
    // Twelve bytes are used of the sixteen that are read.
    for (; nIn - nTaken >= 16; nTaken += 12, pOut += 16)
        Store(pOut, EncodeBlock(Load(pIn + nTaken)));
    return nTaken;
}

ORVANTA_SSSE3 std::size_t DecodeWideBlocks(const std::uint8_t* pIn, std::size_t nIn, std::uint8_t* pOut) {
    std::size_t nTaken = 0;
    for (; nIn - nTaken >= 16; nTaken += 16, pOut += 12) {
        __m128i block = Load(pIn + nTaken);
        if (!DecodeBlock(block)) break;
        Store(pOut, block);
    }
    return nTaken;
}

ORVANTA_SSSE3 StrippedBlocks StripWideBlocks(const std::uint8_t* pIn, std::size_t nIn, std::uint8_t* pOut) {
    StrippedBlocks done{0, 0};
    while (nIn - done.nTaken >= 16) {
        const __m128i block = Load(pIn + done.nTaken);
        if (_mm_movemask_epi8(block) != 0) break;
        const __m128i lines =
            _mm_or_si128(_mm_cmpeq_epi8(block, _mm_set1_epi8('\r')), _mm_cmpeq_epi8(block, _mm_set1_epi8('\n')));
        const __m128i blanks =
            _mm_or_si128(_mm_cmpeq_epi8(block, _mm_set1_epi8(' ')), _mm_cmpeq_epi8(block, _mm_set1_epi8('\t')));
        // The block is stored whole; what comes behind the first space is written again in the next round.
        Store(pOut + done.nWritten, block);
        const auto nSpaces = static_cast<unsigned>(_mm_movemask_epi8(_mm_or_si128(lines, blanks)));
        if (nSpaces == 0) {
            done.nTaken += 16;
            done.nWritten += 16;
            continue;
        }
        const auto nRun = static_cast<std::size_t>(std::countr_zero(nSpaces));
        done.nTaken += nRun;
        done.nWritten += nRun;
        while (done.nTaken < nIn && IsBase64Space(pIn[done.nTaken]))
            ++done.nTaken;
    }
    return done;
}

#else

bool CanUseWideBlocks() {
    return false;
}
std::size_t EncodeWideBlocks(const std::uint8_t*, std::size_t, std::uint8_t*) {
    return 0;
}
std::size_t DecodeWideBlocks(const std::uint8_t*, std::size_t, std::uint8_t*) {
    return 0;
}
StrippedBlocks StripWideBlocks(const std::uint8_t*, std::size_t, std::uint8_t*) {
    return {0, 0};
}

#endif

} // namespace orvanta
