#include "utilities/WideArithmetic.h"

#include <gtest/gtest.h>

#include <random>

namespace orvanta {
namespace {

constexpr std::uint64_t kMost = ~std::uint64_t{0};

// Numbers with long runs of equal bits among them, where carries go wrong first.
std::uint64_t RandomWord(std::mt19937_64& random) {
    switch (random() % 4) {
    case 0: return kMost >> random() % 64;
    case 1: return ~(kMost >> random() % 64);
    case 2: return std::uint64_t{1} << random() % 64;
    default: return random();
    }
}

TEST(PortableWide, MultipliesToTheFullWidth) {
    PortableWide wide;
    wide.AddProduct(kMost, kMost);
    EXPECT_EQ(wide.High(), kMost - 1);
    EXPECT_EQ(wide.Low(), 1u);
    wide.Add(kMost);
    EXPECT_EQ(wide.High(), kMost);
    EXPECT_EQ(wide.Low(), 0u);
}

TEST(PortableWide, EqualsTheOneInUseOnRandomSums) {
    std::mt19937_64 random(3001);
    for (int iRound = 0; iRound < 20'000; ++iRound) {
        const std::uint64_t nHigh = RandomWord(random);
        const std::uint64_t nLow = RandomWord(random);
        PortableWide portable(nHigh, nLow);
        Wide wide(nHigh, nLow);
        for (int iStep = 0; iStep < 4; ++iStep) {
            const std::uint64_t a = RandomWord(random);
            const std::uint64_t b = RandomWord(random);
            portable.AddProduct(a, b);
            wide.AddProduct(a, b);
            portable.Add(b);
            wide.Add(b);
            ASSERT_EQ(portable.High(), wide.High()) << a << " " << b;
            ASSERT_EQ(portable.Low(), wide.Low()) << a << " " << b;
        }
    }
}

template<typename W>
class DivisorTest : public testing::Test {};
using Widths = testing::Types<PortableWide, Wide>;
TYPED_TEST_SUITE(DivisorTest, Widths);

TYPED_TEST(DivisorTest, QuotientTimesDivisorPlusRemainderIsTheDividend) {
    std::mt19937_64 random(3002);
    for (int iRound = 0; iRound < 50'000; ++iRound) {
        std::uint64_t nDivisor = RandomWord(random) >> 1;
        if (nDivisor == 0) nDivisor = 1;
        const BasicDivisor<TypeParam> divisor(nDivisor);
        ASSERT_EQ(divisor.Value(), nDivisor);
        const std::uint64_t nHigh = random() % 3 == 0 ? nDivisor - 1 : RandomWord(random) % nDivisor;
        const std::uint64_t nLow = RandomWord(random);
        const auto [nQuotient, nRemainder] = divisor.Divide(nHigh, nLow);
        ASSERT_LT(nRemainder, nDivisor) << nHigh << " " << nLow << " / " << nDivisor;
        PortableWide back(0, nRemainder);
        back.AddProduct(nQuotient, nDivisor);
        ASSERT_EQ(back.High(), nHigh) << nHigh << " " << nLow << " / " << nDivisor;
        ASSERT_EQ(back.Low(), nLow) << nHigh << " " << nLow << " / " << nDivisor;
    }
}

} // namespace
} // namespace orvanta
