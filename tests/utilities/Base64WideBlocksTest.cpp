#include "utilities/Base64WideBlocks.h"

#include "tests/reference/PlainBase64.h"

#include <gtest/gtest.h>

#include <memory>
#include <random>
#include <vector>

namespace orvanta {
namespace {

// Memory of exactly the size asked for, so that the sanitizer sees each byte too many.
std::unique_ptr<std::uint8_t[]> Exact(const std::vector<std::uint8_t>& bytes) {
    auto p = std::make_unique<std::uint8_t[]>(bytes.size());
    std::copy(bytes.begin(), bytes.end(), p.get());
    return p;
}

std::vector<std::uint8_t> RandomOf(std::mt19937& random, std::string_view sFrom, std::size_t nSize) {
    std::vector<std::uint8_t> bytes(nSize);
    for (auto& b : bytes)
        b = static_cast<std::uint8_t>(sFrom[random() % sFrom.size()]);
    return bytes;
}

class Base64WideBlocks : public testing::Test {
protected:
    // On a processor without the instructions the functions must not be called at all.
    void SetUp() override {
        if (!CanUseWideBlocks()) GTEST_SKIP() << "no vector instructions on this processor";
    }
    std::mt19937 m_random{7001};
};

TEST_F(Base64WideBlocks, EncodeWholeGroupsInsideTheirArrays) {
    for (std::size_t nSize = 0; nSize <= 200; ++nSize) {
        std::vector<std::uint8_t> data(nSize);
        for (auto& b : data)
            b = static_cast<std::uint8_t>(m_random());
        const auto expected = reference::PlainEncode(data);
        const auto pIn = Exact(data);
        const auto pOut = std::make_unique<std::uint8_t[]>(expected.size());
        const std::size_t nTaken = EncodeWideBlocks(pIn.get(), nSize, pOut.get());
        ASSERT_EQ(nTaken % 3, 0u);
        ASSERT_LE(nTaken, nSize);
        ASSERT_GE(nTaken + 16, nSize);
        ASSERT_TRUE(std::equal(pOut.get(), pOut.get() + nTaken / 3 * 4, expected.begin())) << nSize;
    }
}

TEST_F(Base64WideBlocks, DecodeStopsAtTheBlockWithTheFirstForeignByte) {
    for (unsigned c = 0; c < 256; ++c) {
        for (std::size_t nPlace = 0; nPlace < 48; ++nPlace) {
            auto text = RandomOf(m_random, reference::kPlainAlphabet, 48);
            text[nPlace] = static_cast<std::uint8_t>(c);
            const bool bKnown = reference::kPlainAlphabet.find(static_cast<char>(c)) != std::string_view::npos;
            const auto pIn = Exact(text);
            const auto pOut = std::make_unique<std::uint8_t[]>(text.size());
            ASSERT_EQ(DecodeWideBlocks(pIn.get(), text.size(), pOut.get()), bKnown ? 48 : nPlace / 16 * 16)
                << c << " in " << nPlace;
        }
    }
}

TEST_F(Base64WideBlocks, DecodeInPlaceInsideTheArray) {
    for (std::size_t nSize = 0; nSize <= 200; ++nSize) {
        const auto text = RandomOf(m_random, reference::kPlainAlphabet, nSize);
        const auto p = Exact(text);
        const std::size_t nTaken = DecodeWideBlocks(p.get(), nSize, p.get());
        ASSERT_EQ(nTaken, nSize / 16 * 16);
        const auto expected =
            *reference::PlainDecode({text.begin(), text.begin() + static_cast<std::ptrdiff_t>(nTaken)});
        ASSERT_TRUE(std::equal(expected.begin(), expected.end(), p.get())) << nSize;
    }
}

TEST_F(Base64WideBlocks, StripInsideTheArraysAndStopBeforeHighBytes) {
    for (int iRound = 0; iRound < 4000; ++iRound) {
        const auto text =
            RandomOf(m_random, iRound % 2 == 0 ? "abcdefghijklmnopqrstuvwxyz \r\n\t" : "abcdefgh\v\f\x1F!\x7F \r\n",
                     m_random() % 150);
        auto withHigh = text;
        if (iRound % 5 == 0 && !withHigh.empty()) withHigh[m_random() % withHigh.size()] = 0x80;
        const auto pIn = Exact(withHigh);
        const auto pOut = std::make_unique<std::uint8_t[]>(withHigh.size());
        const StrippedBlocks done = StripWideBlocks(pIn.get(), withHigh.size(), pOut.get());
        std::vector<std::uint8_t> expected;
        for (std::size_t n = 0; n < done.nTaken; ++n) {
            ASSERT_LT(withHigh[n], 128);
            if (!IsBase64Space(withHigh[n])) expected.push_back(withHigh[n]);
        }
        ASSERT_EQ(done.nWritten, expected.size());
        ASSERT_TRUE(std::equal(expected.begin(), expected.end(), pOut.get())) << iRound;
        const bool bToTheEnd = withHigh.size() - done.nTaken < 16;
        ASSERT_TRUE(bToTheEnd || withHigh != text) << iRound;
    }
}

} // namespace
} // namespace orvanta
