#include "plumbing/PlatformRect.h"

#include <gtest/gtest.h>

namespace orvanta {
namespace {

TEST(PlatformRect, TheEdgesKeepTheirPlacesInBothDirections) {
    const RECT rect = RectOf({1, 2, 3, 4});
    EXPECT_EQ(rect.left, 1);
    EXPECT_EQ(rect.top, 2);
    EXPECT_EQ(rect.right, 3);
    EXPECT_EQ(rect.bottom, 4);
    EXPECT_EQ(PixelRectOf(rect), (PixelRect{1, 2, 3, 4}));
}

} // namespace
} // namespace orvanta
