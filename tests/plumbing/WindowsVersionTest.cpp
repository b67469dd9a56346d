#include "plumbing/WindowsVersion.h"

#include <gtest/gtest.h>

namespace orvanta {
namespace {

TEST(WindowsVersion, EachPlatformAndVersionHasItsClass) {
    struct Case {
        std::uint32_t lPlatform, lMajor, lMinor;
        std::int32_t lClass;
    };
    const Case cases[] = {
        {0, 3, 10, 1}, // Win32s, whatever its version
        {0, 0, 0, 1},  {3, 5, 2, 2},  {3, 0, 0, 2},  {1, 4, 0, 3},  {1, 4, 10, 4},
        {1, 4, 11, 5}, {1, 4, 90, 5}, {2, 3, 51, 6}, {2, 4, 0, 7},  {2, 5, 0, 8},
        {2, 5, 1, 9},  {2, 5, 2, 10}, {2, 6, 0, 11}, {2, 6, 1, 11}, {2, 10, 0, 11},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(VersionClassOf(c.lPlatform, c.lMajor, c.lMinor), c.lClass)
            << c.lPlatform << ' ' << c.lMajor << '.' << c.lMinor;
    }
}

TEST(WindowsVersion, GapsInTheTableAreUnknown) {
    for (std::uint32_t lMinor = 1; lMinor <= 9; ++lMinor)
        EXPECT_EQ(VersionClassOf(1, 4, lMinor), 0) << lMinor;
    EXPECT_EQ(VersionClassOf(2, 5, 3), 0);
    EXPECT_EQ(VersionClassOf(2, 5, 90), 0);
    EXPECT_EQ(VersionClassOf(2, 2, 0), 0);
    EXPECT_EQ(VersionClassOf(4, 6, 1), 0);
}

} // namespace
} // namespace orvanta
