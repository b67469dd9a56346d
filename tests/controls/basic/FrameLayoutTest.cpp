#include "controls/basic/FrameLayout.h"

#include <gtest/gtest.h>

namespace orvanta {
namespace {

TEST(FrameLayout, TheBandIsTwoPixelsHigherThanTheTextAndTheTitleThreeAwayFromEachSide) {
    const FrameBand band = BandLayout(200, 13);
    EXPECT_EQ(band.band, (PixelRect{0, 0, 200, 15}));
    EXPECT_EQ(band.title, (PixelRect{3, 0, 197, 15}));
}

TEST(FrameLayout, TheEtchedFramesStartAtHalfTheTextAndTheGapIsAsBigAsTheText) {
    const FrameEtching etching = EtchedLayout(200, 100, 40, 13);
    EXPECT_EQ(etching.dark, (PixelRect{0, 6, 200, 100})); // 13 / 2 without the fraction
    EXPECT_EQ(etching.light, (PixelRect{1, 7, 199, 99}));
    EXPECT_EQ(etching.gap, (PixelRect{5, 0, 45, 13}));
    EXPECT_EQ(etching.title, (PixelRect{5, 0, 200, 100}));
}

TEST(FrameLayout, WithoutATitleTheEtchedFramesStartAtTheTop) {
    const FrameEtching etching = EtchedLayout(200, 100, 0, 0);
    EXPECT_EQ(etching.dark, (PixelRect{0, 0, 200, 100}));
    EXPECT_EQ(etching.light, (PixelRect{1, 1, 199, 99}));
}

TEST(FrameLayout, TheCornersAreCutByMirroredLines) {
    EXPECT_EQ(CutEdges(200), (std::array<FrameLine, 2>{{{0, 2, 2, 0}, {199, 2, 197, 0}}}));
    EXPECT_EQ(CutCorners(200),
              (std::array<FrameLine, 4>{{{0, 0, 2, 0}, {0, 0, 0, 2}, {199, 0, 197, 0}, {199, 0, 199, 2}}}));
}

TEST(FrameLayout, WithoutATitleColorTheBandIsSlightlyDarkerThanTheFace) {
    EXPECT_EQ(BandColors(MakeColor(245, 240, 235), kAutomatic),
              (FrameBandColors{MakeColor(228, 223, 218), MakeColor(211, 206, 201)}));
}

TEST(FrameLayout, ATitleColorRunsFromLighterToDarker) {
    EXPECT_EQ(BandColors(MakeColor(245, 240, 235), MakeColor(100, 150, 250)),
              (FrameBandColors{MakeColor(117, 167, 255), MakeColor(83, 133, 233)}));
}

TEST(FrameLayout, TheShadowOfADarkTitleIsLightAndThatOfALightTitleDarker) {
    EXPECT_EQ(TitleShadowColor(0), 0xFFFFFF);
    EXPECT_EQ(TitleShadowColor(MakeColor(170, 170, 170)), 0xFFFFFF);
    EXPECT_EQ(TitleShadowColor(MakeColor(171, 171, 171)), MakeColor(86, 86, 86));
    EXPECT_EQ(TitleShadowColor(0xFFFFFF), MakeColor(170, 170, 170));
}

TEST(FrameLayout, TheShadowOfASaturatedTitleMovesAllComponentsByTheMissingBrightness) {
    // Luma of (200, 50, 50) is 60 + 29.5 + 5.5 = 95; 160 more on each component.
    EXPECT_EQ(TitleShadowColor(MakeColor(200, 50, 50)), MakeColor(255, 210, 210));
}

TEST(FrameLayout, TheShadowOfASystemColorComesFromItsPlainValue) {
    EXPECT_EQ(TitleShadowColor(kSystemGrayText), TitleShadowColor(SystemColor(0x11)));
}

} // namespace
} // namespace orvanta
