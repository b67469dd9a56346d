#include "base/Rounding.h"

#include <gtest/gtest.h>

#include <cfenv>
#include <cmath>
#include <cstdint>
#include <limits>

namespace orvanta {
namespace {

struct Rounded {
    double d;
    double dExpected;
};

constexpr double kEndless = std::numeric_limits<double>::infinity();
constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();

constexpr Rounded kTable[] = {
    {0.0, 0},
    {0.5, 0},
    {1.5, 2},
    {2.5, 2},
    {3.5, 4},
    {-0.5, 0},
    {-1.5, -2},
    {-2.5, -2},
    {-3.5, -4},
    {0.49999999999999994, 0}, // adding a half and cutting would give 1
    {0.5000000000000001, 1},
    {-0.49999999999999994, 0},
    {-0.5000000000000001, -1},
    {1e-300, 0},
    {-1e-300, 0},
    {32767.5, 32768},
    {-32768.5, -32768},
    {4503599627370495.5, 4503599627370496.0}, // the last half that a float can hold
    {-4503599627370495.5, -4503599627370496.0},
    {4503599627370497.0, 4503599627370497.0}, // odd, and above every half
    {9007199254740993.0, 9007199254740992.0}, // 2^53 + 1 is 2^53 already as a float
    {1e300, 1e300},
    {-1e300, -1e300},
};

TEST(Rounding, HalvesGoToTheEvenNeighbourAndTheRestToTheNearest) {
    for (const Rounded& row : kTable)
        EXPECT_EQ(RoundHalfEven(row.d), row.dExpected) << row.d;
}

TEST(Rounding, InfinityAndNotANumberStayThemselves) {
    EXPECT_EQ(RoundHalfEven(kEndless), kEndless);
    EXPECT_EQ(RoundHalfEven(-kEndless), -kEndless);
    EXPECT_TRUE(std::isnan(RoundHalfEven(kNoNumber)));
}

TEST(Rounding, EqualsThePlatformsRoundToEvenOverEighths) {
    ASSERT_EQ(std::fegetround(), FE_TONEAREST);
    for (int n = -80000; n <= 80000; ++n)
        ASSERT_EQ(RoundHalfEven(n / 8.0), std::nearbyint(n / 8.0)) << n / 8.0;
}

TEST(Rounding, DoesNotDependOnTheProcessorsRoundingMode) {
    for (const int mode : {FE_DOWNWARD, FE_UPWARD, FE_TOWARDZERO}) {
        std::fesetround(mode);
        volatile double dOff = 0; // volatile keeps the arithmetic between the two changes of mode
        for (const Rounded& row : kTable) {
            volatile double d = row.d;
            if (RoundHalfEven(d) != row.dExpected) dOff = d;
        }
        std::fesetround(FE_TONEAREST);
        EXPECT_EQ(dOff, 0.0) << "mode " << mode;
    }
}

TEST(Rounding, ASixteenBitResultTakesWhatRoundsIntoItsRange) {
    EXPECT_EQ(RoundToInteger<std::int16_t>(32767.49), 32767);
    EXPECT_EQ(RoundToInteger<std::int16_t>(-32768.5), -32768);
    EXPECT_THROW(RoundToInteger<std::int16_t>(32767.5), Failure);
    EXPECT_THROW(RoundToInteger<std::int16_t>(-32768.51), Failure);
}

TEST(Rounding, AThirtyTwoBitResultTakesWhatRoundsIntoItsRange) {
    EXPECT_EQ(RoundToInteger<std::int32_t>(2147483647.4), 2147483647);
    EXPECT_EQ(RoundToInteger<std::int32_t>(-2147483648.5), std::numeric_limits<std::int32_t>::min());
    EXPECT_THROW(RoundToInteger<std::int32_t>(2147483647.5), Failure);
    EXPECT_THROW(RoundToInteger<std::int32_t>(-2147483648.6), Failure);
}

TEST(Rounding, ASixtyFourBitResultStopsBelowTwoToTheSixtyThird) {
    EXPECT_EQ(RoundToInteger<std::int64_t>(9223372036854774784.0), 9223372036854774784);
    EXPECT_EQ(RoundToInteger<std::int64_t>(-9223372036854775808.0), std::numeric_limits<std::int64_t>::min());
    EXPECT_THROW(RoundToInteger<std::int64_t>(9223372036854775808.0), Failure);
    EXPECT_THROW(RoundToInteger<std::int64_t>(-9223372036854777856.0), Failure);
}

TEST(Rounding, WhatDoesNotFitRaisesOverflow) {
    for (const double d : {kEndless, -kEndless, kNoNumber, 1e300}) {
        try {
            RoundToInteger<std::int32_t>(d);
            ADD_FAILURE() << d;
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.Number(), 6u);
        }
    }
}

} // namespace
} // namespace orvanta
