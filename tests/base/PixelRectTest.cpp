#include "base/PixelRect.h"

#include <gtest/gtest.h>

namespace orvanta {
namespace {

TEST(PixelRect, ItsSizeIsWhatLiesBetweenItsEdges) {
    constexpr PixelRect rect{3, 5, 23, 12};
    EXPECT_EQ(rect.Width(), 20);
    EXPECT_EQ(rect.Height(), 7);
}

TEST(PixelRect, ShrinkingMovesEachEdgeInwardsAndANegativeNumberOutwards) {
    EXPECT_EQ((PixelRect{3, 5, 23, 12}.Shrunk(2)), (PixelRect{5, 7, 21, 10}));
    EXPECT_EQ((PixelRect{3, 5, 23, 12}.Shrunk(-1)), (PixelRect{2, 4, 24, 13}));
}

} // namespace
} // namespace orvanta
