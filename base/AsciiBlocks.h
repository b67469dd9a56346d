#pragma once

#include <cstddef>

#if defined(__SSE2__) || defined(_M_X64)
#include <emmintrin.h>
#define ORVANTA_ASCII_BLOCKS_SSE2 1
#endif

namespace orvanta {

// Plain ASCII goes between bytes and code units block by block.
inline constexpr std::size_t kAsciiBlock = 32;

namespace ascii_blocks {

// One block. False, with out in any state, when it holds anything but values below 128.
inline bool WidenBlockPlain(const char* in, char16_t* out) {
    unsigned char nAll = 0;
    for (std::size_t i = 0; i < kAsciiBlock; ++i) {
        nAll = static_cast<unsigned char>(nAll | in[i]);
        out[i] = static_cast<unsigned char>(in[i]);
    }
    return nAll < 0x80;
}

inline bool NarrowBlockPlain(const char16_t* in, char* out) {
    char16_t nAll = 0;
    for (std::size_t i = 0; i < kAsciiBlock; ++i) {
        nAll = static_cast<char16_t>(nAll | in[i]);
        out[i] = static_cast<char>(in[i]);
    }
    return nAll < 0x80;
}

#ifdef ORVANTA_ASCII_BLOCKS_SSE2
inline __m128i Load(const void* p) {
    return _mm_loadu_si128(static_cast<const __m128i*>(p));
}
inline void Store(void* p, __m128i v) {
    _mm_storeu_si128(static_cast<__m128i*>(p), v);
}

inline bool WidenBlock(const char* in, char16_t* out) {
    const __m128i a = Load(in);
    const __m128i b = Load(in + 16);
    const __m128i zero = _mm_setzero_si128();
    Store(out, _mm_unpacklo_epi8(a, zero));
    Store(out + 8, _mm_unpackhi_epi8(a, zero));
    Store(out + 16, _mm_unpacklo_epi8(b, zero));
    Store(out + 24, _mm_unpackhi_epi8(b, zero));
    return _mm_movemask_epi8(_mm_or_si128(a, b)) == 0;
}

inline bool NarrowBlock(const char16_t* in, char* out) {
    const __m128i a = Load(in);
    const __m128i b = Load(in + 8);
    const __m128i c = Load(in + 16);
    const __m128i d = Load(in + 24);
    Store(out, _mm_packus_epi16(a, b));
    Store(out + 16, _mm_packus_epi16(c, d));
    const __m128i all = _mm_or_si128(_mm_or_si128(a, b), _mm_or_si128(c, d));
    const __m128i high = _mm_and_si128(all, _mm_set1_epi16(static_cast<short>(0xFF80)));
    return _mm_movemask_epi8(_mm_cmpeq_epi16(high, _mm_setzero_si128())) == 0xFFFF;
}
#else
inline bool WidenBlock(const char* in, char16_t* out) {
    return WidenBlockPlain(in, out);
}
inline bool NarrowBlock(const char16_t* in, char* out) {
    return NarrowBlockPlain(in, out);
}
#endif

} // namespace ascii_blocks

// Widens the leading blocks that hold nothing but bytes below 128 and returns how many bytes that were. out has room
// for nLength units, and what stands in it behind those is undefined. What is left, a block with another byte or the
// rest below a block, is the caller's.
inline std::size_t WidenAsciiBlocks(const char* in, std::size_t nLength, char16_t* out) {
    std::size_t n = 0;
    while (nLength - n >= kAsciiBlock && ascii_blocks::WidenBlock(in + n, out + n))
        n += kAsciiBlock;
    return n;
}

// The way back, with code units below 128.
inline std::size_t NarrowAsciiBlocks(const char16_t* in, std::size_t nLength, char* out) {
    std::size_t n = 0;
    while (nLength - n >= kAsciiBlock && ascii_blocks::NarrowBlock(in + n, out + n))
        n += kAsciiBlock;
    return n;
}

} // namespace orvanta
