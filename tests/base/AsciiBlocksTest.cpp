#include "base/AsciiBlocks.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

namespace orvanta {
namespace {

// Exactly nLength values, so that the sanitizer sees a read or write behind the end.
template<typename Char>
std::vector<Char> Ascii(std::size_t nLength) {
    std::vector<Char> values(nLength);
    for (std::size_t n = 0; n < nLength; ++n)
        values[n] = static_cast<Char>(n * 7 % 128);
    return values;
}

// Where the whole blocks in front of the value at nAt end.
std::size_t BlocksBefore(std::size_t nAt) {
    return nAt / kAsciiBlock * kAsciiBlock;
}

template<typename In, typename Out>
void ExpectBlocks(const std::vector<In>& in, std::size_t nExpected,
                  std::size_t (*convert)(const In*, std::size_t, Out*)) {
    std::vector<Out> out(in.size(), Out{1});
    ASSERT_EQ(convert(in.data(), in.size(), out.data()), nExpected);
    for (std::size_t n = 0; n < nExpected; ++n)
        ASSERT_EQ(static_cast<unsigned>(out[n]), static_cast<unsigned>(in[n]));
}

TEST(AsciiBlocks, WholeBlocksOfAsciiGoThroughAndTheRestIsLeft) {
    for (std::size_t nLength = 0; nLength < 200; ++nLength) {
        ExpectBlocks(Ascii<char>(nLength), BlocksBefore(nLength), &WidenAsciiBlocks);
        ExpectBlocks(Ascii<char16_t>(nLength), BlocksBefore(nLength), &NarrowAsciiBlocks);
    }
}

TEST(AsciiBlocks, ABlockWithAnyOtherValueAtAnyPlaceStopsTheWay) {
    constexpr std::size_t kLength = 3 * kAsciiBlock;
    for (std::size_t nAt = 0; nAt < kLength; ++nAt) {
        for (const int nOther : {0x80, 0xA0, 0xFF}) {
            std::vector<char> bytes = Ascii<char>(kLength);
            bytes[nAt] = static_cast<char>(nOther);
            ExpectBlocks(bytes, BlocksBefore(nAt), &WidenAsciiBlocks);
        }
        for (const int nOther : {0x80, 0xFF, 0x100, 0x141, 0x7F00, 0x7FFF, 0x8000, 0x8041, 0xFFFF}) {
            std::vector<char16_t> units = Ascii<char16_t>(kLength);
            units[nAt] = static_cast<char16_t>(nOther);
            ExpectBlocks(units, BlocksBefore(nAt), &NarrowAsciiBlocks);
        }
    }
}

TEST(AsciiBlocks, TheFastBlockAnswersAsThePlainOneForEveryUnit) {
    char16_t wide[kAsciiBlock];
    char narrow[kAsciiBlock];
    for (int n = 0; n < 0x10000; ++n) {
        char16_t units[kAsciiBlock] = {};
        units[static_cast<std::size_t>(n) % kAsciiBlock] = static_cast<char16_t>(n);
        ASSERT_EQ(ascii_blocks::NarrowBlock(units, narrow), n < 0x80) << n;
        ASSERT_EQ(ascii_blocks::NarrowBlockPlain(units, narrow), n < 0x80) << n;
    }
    for (int n = 0; n < 0x100; ++n) {
        char bytes[kAsciiBlock] = {};
        bytes[static_cast<std::size_t>(n) % kAsciiBlock] = static_cast<char>(n);
        ASSERT_EQ(ascii_blocks::WidenBlock(bytes, wide), n < 0x80) << n;
        ASSERT_EQ(ascii_blocks::WidenBlockPlain(bytes, wide), n < 0x80) << n;
    }
}

} // namespace
} // namespace orvanta
