#include "base/Windows1252.h"

#include "base/AsciiBlocks.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <type_traits>

namespace orvanta {

namespace {

// The characters of the bytes 80 to 9F; every other byte is its own character.
constexpr std::array<char16_t, 32> kUpperControls = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                     0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                     0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                     0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr char16_t CharacterOf(unsigned char b) {
    return b >= 0x80 && b < 0xA0 ? kUpperControls[b - 0x80u] : static_cast<char16_t>(b);
}

char ByteOf(char16_t c) {
    if (c < 0x80 || (c >= 0xA0 && c < 0x100)) return static_cast<char>(c);
    const auto* found = std::find(kUpperControls.begin(), kUpperControls.end(), c);
    return found == kUpperControls.end() ? '?' : static_cast<char>(0x80 + (found - kUpperControls.begin()));
}

// A block of values that are their own characters, which western letters are as well as ASCII. False, with out in any
// state, when another is among them. Plain enough for the compiler to do many at a time.
template<typename Out, typename In>
bool CopyOwnCharacters(const In* in, Out* out) {
    using Value = std::make_unsigned_t<In>;
    unsigned nOther = 0;
    for (std::size_t n = 0; n < kAsciiBlock; ++n) {
        const auto value = static_cast<Value>(in[n]);
        out[n] = static_cast<Out>(value);
        nOther |= unsigned{value > 0xFF} | unsigned{static_cast<Value>(value - 0x80) < 0x20};
    }
    return nOther == 0;
}

// Converts chunk by chunk over a small buffer, and each chunk plain blocks first, then a block with western letters or
// one unit by unit, and so on.
template<typename Out, typename In, typename ConvertBlocks, typename ConvertUnit>
std::basic_string<Out> Convert(std::basic_string_view<In> s, ConvertBlocks&& convertBlocks, ConvertUnit&& convertUnit) {
    constexpr std::size_t kPiece = 1024;
    Out chunk[kPiece];
    std::basic_string<Out> sOut;
    sOut.reserve(s.size());
    for (; !s.empty(); s.remove_prefix(std::min(kPiece, s.size()))) {
        const std::size_t nSize = std::min(kPiece, s.size());
        for (std::size_t n = 0; n < nSize;) {
            n += convertBlocks(s.data() + n, nSize - n, chunk + n);
            const std::size_t nStop = std::min(n + kAsciiBlock, nSize);
            if (nStop == n + kAsciiBlock && CopyOwnCharacters(s.data() + n, chunk + n)) n = nStop;
            for (; n < nStop; ++n)
                chunk[n] = convertUnit(s[n]);
        }
        sOut.append(chunk, nSize);
    }
    return sOut;
}

} // namespace

std::u16string Windows1252::BytesToText(std::string_view sBytes) const {
    return Convert<char16_t>(sBytes, WidenAsciiBlocks,
                             [](char b) { return CharacterOf(static_cast<unsigned char>(b)); });
}

std::string Windows1252::TextToBytes(std::u16string_view sText) const {
    return Convert<char>(sText, NarrowAsciiBlocks, ByteOf);
}

} // namespace orvanta
