#include "utilities/BlockArithmetic.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace orvanta {
namespace {

constexpr std::uint64_t kDecimal18 = 1'000'000'000'000'000'000u;

// Blocks of zeros, of the largest value and of anything: the first two make carries run and quotient guesses go wrong.
Blocks RandomBlocks(std::mt19937_64& random, std::uint64_t nRadix, std::size_t nSize) {
    Blocks blocks(nSize);
    std::size_t n = 0;
    while (n < nSize) {
        const auto nKind = random() % 4;
        const std::size_t nEnd = std::min<std::size_t>(nSize, n + 1 + random() % (nSize / 2 + 1));
        for (; n < nEnd; ++n)
            blocks[n] = nKind == 0 ? 0 : nKind == 1 ? nRadix - 1 : random() % nRadix;
    }
    if (nSize > 0 && blocks.back() == 0) blocks.back() = 1;
    return blocks;
}

// Products on paper, for a radix whose square fits in 32 bits.
Blocks PlainProduct(const Blocks& a, const Blocks& b, std::uint64_t nRadix) {
    Blocks product(a.size() + b.size());
    for (std::size_t i = 0; i < a.size(); ++i) {
        std::uint64_t nCarry = 0;
        for (std::size_t j = 0; j < b.size() || nCarry != 0; ++j) {
            const std::uint64_t n = product[i + j] + (j < b.size() ? a[i] * b[j] : 0) + nCarry;
            product[i + j] = n % nRadix;
            nCarry = n / nRadix;
        }
    }
    TrimBlocks(product);
    return product;
}

bool IsLess(const Blocks& a, const Blocks& b) {
    if (a.size() != b.size()) return a.size() < b.size();
    return std::lexicographical_compare(a.rbegin(), a.rend(), b.rbegin(), b.rend());
}

class BlockArithmeticTest : public testing::TestWithParam<std::uint64_t> {
protected:
    const BlockArithmetic m_arithmetic{GetParam()};
    std::mt19937_64 m_random{4000 + GetParam()};

    Blocks Random(std::size_t nSize) { return RandomBlocks(m_random, GetParam(), nSize); }
    // Without the short cuts: one block of b at a time.
    Blocks ProductByBlocks(const Blocks& a, const Blocks& b) const {
        Blocks sum;
        for (std::size_t n = 0; n < b.size(); ++n) {
            Blocks row = m_arithmetic.Multiply(a, BlockSpan(b).subspan(n, 1));
            row.insert(row.begin(), n, 0);
            sum = m_arithmetic.Add(sum, row);
        }
        return sum;
    }
};

TEST_P(BlockArithmeticTest, ProductsOfAllShapesEqualTheSumOfTheirRows) {
    for (int iRound = 0; iRound < 120; ++iRound) {
        const std::size_t nA = m_random() % 300;
        const std::size_t nB = iRound % 3 == 0 ? nA : m_random() % 300;
        SCOPED_TRACE(testing::Message() << nA << " by " << nB << " blocks, round " << iRound);
        const Blocks a = Random(nA);
        const Blocks b = Random(nB);
        ASSERT_EQ(m_arithmetic.Multiply(a, b), ProductByBlocks(a, b));
    }
}

TEST_P(BlockArithmeticTest, ProductOfTheLargestNumbersOfEachSize) {
    for (const std::size_t nSize : {1u, 39u, 40u, 41u, 79u, 80u, 81u, 160u, 161u}) {
        const Blocks a(nSize, GetParam() - 1);
        // (r^n - 1)^2 = r^2n - 2 r^n + 1
        Blocks expected(2 * nSize, GetParam() - 1);
        std::fill_n(expected.begin(), nSize, 0);
        expected[0] = 1;
        expected[nSize] = GetParam() - 2;
        TrimBlocks(expected);
        EXPECT_EQ(m_arithmetic.Multiply(a, a), expected) << nSize;
    }
}

TEST_P(BlockArithmeticTest, QuotientTimesDivisorPlusRemainderIsTheDividend) {
    for (int iRound = 0; iRound < 400; ++iRound) {
        const std::size_t nB = 1 + m_random() % (iRound % 4 == 0 ? 250 : 6);
        const std::size_t nA = m_random() % (iRound % 4 == 1 ? 600 : nB + 120);
        SCOPED_TRACE(testing::Message() << nA << " by " << nB << " blocks, round " << iRound);
        const Blocks a = Random(nA);
        const Blocks b = Random(nB);
        const auto [quotient, remainder] = m_arithmetic.Divide(a, b);
        ASSERT_TRUE(IsLess(remainder, b));
        ASSERT_EQ(m_arithmetic.Add(m_arithmetic.Multiply(quotient, b), remainder), a);
    }
}

TEST_P(BlockArithmeticTest, QuotientsOfTheLargestBlocksComeBack) {
    // q b + (b - 1) has the quotient q; with blocks of radix - 1 every guess is on the edge.
    for (const std::size_t nSize : {2u, 47u, 48u, 49u, 96u, 130u, 200u}) {
        for (const std::size_t nQuotient : {1u, 47u, 48u, 60u, 96u, 131u, 260u}) {
            SCOPED_TRACE(testing::Message() << nQuotient << " blocks of quotient, " << nSize << " of divisor");
            Blocks b = Random(nSize);
            std::fill(b.begin() + static_cast<std::ptrdiff_t>(nSize / 2), b.end(), GetParam() - 1);
            b.front() = 1;
            const Blocks q(nQuotient, GetParam() - 1);
            Blocks rest = b;
            rest.front() = 0;
            TrimBlocks(rest);
            const Blocks a = m_arithmetic.Add(m_arithmetic.Multiply(q, b), rest);
            const auto [quotient, remainder] = m_arithmetic.Divide(a, b);
            ASSERT_EQ(quotient, q);
            ASSERT_EQ(remainder, rest);
        }
    }
}

TEST_P(BlockArithmeticTest, PolynomialsHaveTheSameValueByHornersRule) {
    for (const std::size_t nSize : {0u, 1u, 7u, 8u, 9u, 16u, 17u, 33u, 100u}) {
        Blocks coefficients = RandomBlocks(m_random, std::uint64_t{1} << 60, nSize);
        const std::uint64_t x = m_random() >> 4;
        Blocks expected;
        for (std::size_t n = nSize; n-- > 0;) {
            expected = m_arithmetic.Add(m_arithmetic.Multiply(expected, m_arithmetic.FromNumber(x)),
                                        m_arithmetic.FromNumber(coefficients[n]));
        }
        EXPECT_EQ(m_arithmetic.Evaluate(coefficients, x), expected) << nSize;
        EXPECT_EQ(m_arithmetic.Evaluate(coefficients, m_arithmetic.FromNumber(x)), expected) << nSize;
    }
}

TEST_P(BlockArithmeticTest, ZeroBlocksAtTheTopOfAViewCountForNothing) {
    const Blocks five = m_arithmetic.FromNumber(5);
    Blocks padded = five;
    padded.resize(10);
    EXPECT_EQ(m_arithmetic.Add(padded, {}), five);
    EXPECT_EQ(m_arithmetic.Multiply(padded, m_arithmetic.FromNumber(1)), five);
    EXPECT_EQ(m_arithmetic.Divide(padded, padded).quotient, m_arithmetic.FromNumber(1));
    EXPECT_EQ(m_arithmetic.Divide(padded, padded).remainder, Blocks());
}

INSTANTIATE_TEST_SUITE_P(Radix, BlockArithmeticTest,
                         testing::Values(2, 3, 10, 65'535, kDecimal18, BlockArithmetic::kLargestRadix - 1,
                                         BlockArithmetic::kLargestRadix));

TEST(BlockArithmetic, SmallRadixProductsEqualPaper) {
    std::mt19937_64 random(4001);
    for (const std::uint64_t nRadix : {2u, 10u, 1000u, 65'535u}) {
        const BlockArithmetic arithmetic(nRadix);
        for (int iRound = 0; iRound < 40; ++iRound) {
            const Blocks a = RandomBlocks(random, nRadix, random() % 200);
            const Blocks b = RandomBlocks(random, nRadix, random() % 200);
            ASSERT_EQ(arithmetic.Multiply(a, b), PlainProduct(a, b, nRadix)) << nRadix << ", round " << iRound;
        }
    }
}

TEST(BlockArithmetic, PowersByRepeatedMultiplication) {
    const BlockArithmetic arithmetic(10);
    EXPECT_EQ(arithmetic.Power(Blocks{7}, 0), Blocks{1});
    EXPECT_EQ(arithmetic.Power(Blocks{7}, 3), (Blocks{3, 4, 3}));
    EXPECT_EQ(arithmetic.Power({}, 3), Blocks());
}

} // namespace
} // namespace orvanta
