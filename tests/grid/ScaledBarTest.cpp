#include "grid/ScaledBar.h"

#include "tests/grid/FakeGrid.h"
#include "tests/support/NumberRaisedBy.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

namespace orvanta {
namespace {

using testing::FakeBar;
using testing::NumberRaisedBy;

class ScaledBarTest : public ::testing::Test {
protected:
    FakeBar bar;
    ScaledBar scaled;
};

TEST_F(ScaledBarTest, SmallNumbersGoThroughAsTheyAre) {
    scaled.Max(bar, 100);
    EXPECT_EQ(scaled.Scale(), 1);
    EXPECT_EQ(bar.Max(), 100);
    scaled.Value(bar, 42);
    EXPECT_EQ(bar.Value(), 42);
    EXPECT_EQ(scaled.Value(bar), 42);
    EXPECT_EQ(scaled.Max(bar), 100);
}

TEST_F(ScaledBarTest, NinetyThousandIsScaledByFour) {
    scaled.Max(bar, 90000);
    EXPECT_EQ(scaled.Scale(), 4);
    EXPECT_EQ(bar.Max(), 22500);
    EXPECT_EQ(scaled.Max(bar), 90000);
    scaled.Value(bar, 10);
    EXPECT_EQ(bar.Value(), 2); // 2.5 to the even neighbour
    EXPECT_EQ(scaled.Value(bar), 8);
    scaled.Value(bar, 14);
    EXPECT_EQ(bar.Value(), 4); // 3.5 to the even neighbour
}

TEST_F(ScaledBarTest, TheScaleIsRoundedHalfToEven) {
    scaled.Max(bar, 14999);
    EXPECT_EQ(scaled.Scale(), 1);
    scaled.Max(bar, 15000); // 1.5
    EXPECT_EQ(scaled.Scale(), 2);
    EXPECT_EQ(bar.Max(), 7500);
    scaled.Max(bar, 45000); // 2.5
    EXPECT_EQ(scaled.Scale(), 2);
    EXPECT_EQ(bar.Max(), 22500);
    scaled.Max(bar, 45001);
    EXPECT_EQ(scaled.Scale(), 3);
}

TEST_F(ScaledBarTest, TheMaximumIsRoundedHalfToEvenToo) {
    scaled.Max(bar, 15001);
    EXPECT_EQ(bar.Max(), 7500); // 7500.5
    scaled.Max(bar, 15003);
    EXPECT_EQ(bar.Max(), 7502); // 7501.5
    EXPECT_EQ(scaled.Max(bar), 15004);
}

TEST_F(ScaledBarTest, NoMaximumComesNearTheLimitOfTheBar) {
    for (std::int64_t l = 0; l < 900000000; l = l * 3 / 2 + 7) {
        scaled.Max(bar, static_cast<std::int32_t>(l));
        ASSERT_LE(bar.Max(), 30000) << l;
        ASSERT_GE(bar.Max(), 0) << l;
    }
}

TEST_F(ScaledBarTest, ANewScaleChangesThePositionThatTheSameBarValueStandsFor) {
    scaled.Max(bar, 100);
    scaled.Value(bar, 50);
    scaled.Max(bar, 90000);
    EXPECT_EQ(bar.Value(), 50);
    EXPECT_EQ(scaled.Value(bar), 200);
}

TEST_F(ScaledBarTest, AValueBeyondTheRangeIsClampedByTheBar) {
    scaled.Max(bar, 10);
    scaled.Value(bar, 99);
    EXPECT_EQ(scaled.Value(bar), 10);
    scaled.Value(bar, -5);
    EXPECT_EQ(scaled.Value(bar), 0);
    scaled.Value(bar, 10);
    scaled.Max(bar, 4);
    EXPECT_EQ(scaled.Value(bar), 4);
}

TEST_F(ScaledBarTest, NumbersThatFitNoScaleFail) {
    EXPECT_EQ(NumberRaisedBy([&] { scaled.Max(bar, std::numeric_limits<std::int32_t>::max()); }), 6u);
    EXPECT_EQ(NumberRaisedBy([&] { scaled.Max(bar, -30000); }), 11u);
    EXPECT_EQ(NumberRaisedBy([&] { scaled.Value(bar, 1); }), 11u); // the scale stays 0
    scaled.Max(bar, 0);
    EXPECT_EQ(NumberRaisedBy([&] { scaled.Value(bar, 40000); }), 6u);
}

} // namespace
} // namespace orvanta
