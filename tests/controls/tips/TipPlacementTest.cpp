#include "controls/tips/TipPlacement.h"

#include <gtest/gtest.h>

namespace orvanta {
namespace {

constexpr PixelSize kScreen{1024, 768};

TipPoint Placed(TipPoint cursor, PixelSize tip, std::int32_t XMax = 0, std::int32_t YMax = 0) {
    return PlaceTip({cursor, 300, XMax, YMax}, tip, kScreen);
}

TEST(TipPlacementTest, TipOpensBelowAndRightOfTheCursor) {
    EXPECT_EQ(Placed({100, 200}, {80, 20}), (TipPoint{101, 215}));
    EXPECT_EQ(Placed({0, 0}, {80, 20}), (TipPoint{1, 15}));
}

TEST(TipPlacementTest, NearTheBottomTheTipOpensAboveTheCursorWithItsBottomFivePixelsOverIt) {
    const TipPoint place = Placed({100, 740}, {80, 20});
    EXPECT_EQ(place.Y, 715);
    EXPECT_EQ(place.Y + 20, 740 - 5);
}

TEST(TipPlacementTest, TipThatJustFitsStaysBelow) {
    EXPECT_EQ(Placed({100, 733}, {80, 20}).Y, 748); // 733 + 15 + 20 is the bottom itself
    EXPECT_EQ(Placed({100, 734}, {80, 20}).Y, 709);
}

TEST(TipPlacementTest, NearTheRightTheTipEndsAtTheEdge) {
    EXPECT_EQ(Placed({1000, 100}, {80, 20}).X, 1024 - 80);
    EXPECT_EQ(Placed({943, 100}, {80, 20}).X, 944); // ends at the edge by itself
    EXPECT_EQ(Placed({944, 100}, {80, 20}).X, 944);
}

TEST(TipPlacementTest, BothEdgesAtOnce) {
    EXPECT_EQ(Placed({1023, 767}, {80, 20}), (TipPoint{944, 742}));
}

TEST(TipPlacementTest, TipHigherThanTheRoomAboveStartsAboveTheScreen) {
    EXPECT_EQ(Placed({100, 400}, {80, 500}).Y, -105);
}

TEST(TipPlacementTest, TipWiderThanTheScreenStartsLeftOfIt) {
    EXPECT_EQ(Placed({10, 10}, {2000, 20}).X, -976);
}

TEST(TipPlacementTest, XMaxClipsTheCursorAndIsTheRightEdge) {
    EXPECT_EQ(Placed({500, 100}, {80, 20}, 100).X, 20);
    EXPECT_EQ(Placed({500, 100}, {80, 20}, 100).X + 80, 100);
    EXPECT_EQ(Placed({10, 100}, {80, 20}, 100).X, 11);
}

TEST(TipPlacementTest, YMaxClipsTheCursorAndIsTheBottom) {
    EXPECT_EQ(Placed({100, 600}, {80, 20}, 0, 300).Y, 275); // from the clipped 300
    EXPECT_EQ(Placed({100, 100}, {80, 20}, 0, 300).Y, 115);
}

TEST(TipPlacementTest, LimitBeyondTheScreenIsTakenAsItIs) {
    EXPECT_EQ(Placed({1000, 760}, {80, 20}, 2000, 2000), (TipPoint{1001, 775}));
}

TEST(TipPlacementTest, LimitsBelowOneMeanTheVirtualScreen) {
    EXPECT_EQ(Placed({1000, 760}, {80, 20}, -1, -1), Placed({1000, 760}, {80, 20}));
}

TEST(TipPlacementTest, CursorOnAScreenLeftOfThePrimaryOne) {
    EXPECT_EQ(Placed({-500, -300}, {80, 20}), (TipPoint{-499, -285}));
}

TEST(TipOpacityTest, ZeroIsOpaqueAndHundredIsInvisible) {
    EXPECT_EQ(TipOpacity(0), 255);
    EXPECT_EQ(TipOpacity(100), 0);
}

TEST(TipOpacityTest, IsRoundedHalfToEvenOnTheTransparency) {
    EXPECT_EQ(TipOpacity(1), 252);  // 2.55 rounds to 3
    EXPECT_EQ(TipOpacity(10), 229); // 25.5 to 26
    EXPECT_EQ(TipOpacity(20), 204); // 51
    EXPECT_EQ(TipOpacity(30), 179); // 76.5 to 76
    EXPECT_EQ(TipOpacity(99), 3);   // 252.45 to 252
}

// In double precision 2.55 times 50 is a hair below 127.5.
TEST(TipOpacityTest, HalfIsComputedInDoublePrecision) {
    EXPECT_EQ(TipOpacity(50), 128);
    EXPECT_EQ(TipOpacity(90), 26);
}

TEST(TipOpacityTest, PercentBeyondTheRangeCountsAsTheNearerEnd) {
    EXPECT_EQ(TipOpacity(-20), 255);
    EXPECT_EQ(TipOpacity(300), 0);
}

} // namespace
} // namespace orvanta
