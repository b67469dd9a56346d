#include "plumbing/FilePosition.h"

#include <gtest/gtest.h>

#include <limits>

namespace orvanta {
namespace {

TEST(FilePosition, TheLowHalfCountsAsUnsigned) {
    EXPECT_EQ(LongsToFixed(0xFFFFFFFFu, 0), 4294967295);
    EXPECT_EQ(LongsToFixed(0x80000000u, 1), 6442450944);
}

TEST(FilePosition, HalvesAreSplitAsTheyWereJoined) {
    struct Case {
        std::int64_t v;
        std::uint32_t lo;
        std::int32_t hi;
    };
    const Case cases[] = {
        {0, 0, 0},
        {1, 1, 0},
        {1073741823, 0x3FFFFFFF, 0},
        {1073741824, 0x40000000, 0},
        {2147483648, 0x80000000, 0},
        {4294967296, 0, 1},
        {5000000000, 0x2A05F200, 1},
        {std::numeric_limits<std::int64_t>::max(), 0xFFFFFFFF, 0x7FFFFFFF},
        {-1, 0xFFFFFFFF, -1},
        {-5000000000, 0xD5FA0E00, -2},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(FixedToLowLong(c.v), c.lo) << c.v;
        EXPECT_EQ(FixedToHighLong(c.v), c.hi) << c.v;
        EXPECT_EQ(LongsToFixed(c.lo, c.hi), c.v) << c.v;
    }
}

} // namespace
} // namespace orvanta
