#include "controls/basic/LabelLayout.h"

#include "base/Failure.h"

#include <gtest/gtest.h>

#include <vector>

namespace orvanta {
namespace {

constexpr std::uint32_t kExpandTabs = 0x40;
constexpr std::uint32_t kWordBreak = 0x10;
constexpr std::uint32_t kCenter = 1;
constexpr std::uint32_t kRight = 2;

TEST(LabelLayout, WithoutBorderAndAutoSizeTheTextHasTheWholeClientArea) {
    EXPECT_EQ(LabelLayout{}.TextRect(200, 30), (PixelRect{0, 0, 200, 30}));
}

TEST(LabelLayout, ABorderTakesTwoPixelsOnEachSide) {
    EXPECT_EQ((LabelLayout{.BorderStyle = 1}.TextRect(200, 30)), (PixelRect{2, 2, 198, 28}));
}

TEST(LabelLayout, OnlyBorderStyleOneIsABorder) {
    for (const std::int32_t lBorderStyle : {-1, 0, 2, 257}) {
        const LabelLayout layout{.BorderStyle = lBorderStyle, .AutoSize = true};
        EXPECT_EQ(layout.TextRect(200, 30), (PixelRect{0, 0, 200, 30}));
        EXPECT_EQ(layout.Extra(), 0);
    }
}

TEST(LabelLayout, AMarginWithoutAutoSizeMovesNothing) {
    EXPECT_EQ((LabelLayout{.Margin = 5}.TextRect(200, 30)), (PixelRect{0, 0, 200, 30}));
    EXPECT_EQ((LabelLayout{.BorderStyle = 1, .Margin = 5}.TextRect(200, 30)), (PixelRect{2, 2, 198, 28}));
}

TEST(LabelLayout, AMarginWithAutoSizeStandsAroundTheTextInsideTheBorder) {
    EXPECT_EQ((LabelLayout{.AutoSize = true, .Margin = 5}.TextRect(200, 30)), (PixelRect{5, 5, 195, 25}));
    EXPECT_EQ((LabelLayout{.BorderStyle = 1, .AutoSize = true, .Margin = 5}.TextRect(200, 30)),
              (PixelRect{7, 7, 193, 23}));
    EXPECT_EQ((LabelLayout{.AutoSize = true, .Margin = -3}.TextRect(200, 30)), (PixelRect{-3, -3, 203, 33}));
}

TEST(LabelLayout, ALabelThatFollowsItsTextAddsBorderAndBothMargins) {
    EXPECT_EQ(LabelLayout{}.Extra(), 0);
    EXPECT_EQ((LabelLayout{.BorderStyle = 1}.Extra()), 4);
    EXPECT_EQ((LabelLayout{.Margin = 7}.Extra()), 14);
    EXPECT_EQ((LabelLayout{.BorderStyle = 1, .Margin = 7}.Extra()), 18);
    EXPECT_EQ((LabelLayout{.Margin = -2}.Extra()), -4);
}

TEST(LabelLayout, MarginsAreCountedInSixteenBits) {
    EXPECT_EQ((LabelLayout{.Margin = 16383}.Extra()), 32766);
    EXPECT_THROW((LabelLayout{.Margin = 16384}.Extra()), Failure);
    EXPECT_EQ((LabelLayout{.BorderStyle = 1, .Margin = 16381}.Extra()), 32766);
    EXPECT_THROW((LabelLayout{.BorderStyle = 1, .Margin = 16382}.Extra()), Failure);
    EXPECT_EQ((LabelLayout{.Margin = -16384}.Extra()), -32768);
    EXPECT_THROW((LabelLayout{.Margin = -16385}.Extra()), Failure);
    EXPECT_THROW((LabelLayout{.BorderStyle = 1, .Margin = -16385}.Extra()), Failure); // the product alone is too much
}

TEST(LabelLayout, ATextInTheMiddleHasHalfTheFreeHeightAboveIt) {
    const LabelLayout layout{.VAlignment = 1};
    EXPECT_EQ(layout.TextTop({0, 0, 200, 30}, 14), 8);
    EXPECT_EQ(layout.TextTop({0, 0, 200, 30}, 30), 0);
}

TEST(LabelLayout, HalfAPixelAboveATextGoesToTheEvenOne) {
    const LabelLayout layout{.VAlignment = 1};
    EXPECT_EQ(layout.TextTop({0, 0, 200, 30}, 13), 8);  // 8.5
    EXPECT_EQ(layout.TextTop({0, 0, 200, 32}, 13), 10); // 9.5
    EXPECT_EQ(layout.TextTop({0, 0, 200, 10}, 13), -2); // -1.5
    EXPECT_EQ(layout.TextTop({0, 0, 200, 12}, 13), 0);  // -0.5
}

TEST(LabelLayout, ATextInTheMiddleHigherThanTheLabelStartsAboveIt) {
    EXPECT_EQ((LabelLayout{.VAlignment = 1}.TextTop({0, 0, 50, 20}, 52)), -16);
}

TEST(LabelLayout, ATextAtTheBottomEndsThere) {
    EXPECT_EQ((LabelLayout{.VAlignment = 2}.TextTop({0, 0, 200, 30}, 13)), 17);
    EXPECT_EQ((LabelLayout{.VAlignment = 2}.TextTop({0, 0, 200, 10}, 13)), -3);
}

TEST(LabelLayout, TheMiddleIsThatOfTheTextRectanglesBottomAndOfNoTop) {
    // With a border the rectangle is 2..28: half of 28 - 13, not of 26 - 13 below the border.
    EXPECT_EQ((LabelLayout{.VAlignment = 1, .BorderStyle = 1}.TextTop({2, 2, 198, 28}, 13)), 8);
    EXPECT_EQ((LabelLayout{.VAlignment = 2, .BorderStyle = 1}.TextTop({2, 2, 198, 28}, 13)), 15);
}

TEST(LabelLayout, ATextAtTheTopAndOneThatTheLabelFollowsStayAtTheTopOfTheirRectangle) {
    EXPECT_FALSE(LabelLayout{}.PlacesByHeight());
    EXPECT_FALSE((LabelLayout{.VAlignment = 1, .AutoSize = true}.PlacesByHeight()));
    EXPECT_EQ((LabelLayout{.VAlignment = 1, .AutoSize = true}.TextTop({5, 5, 195, 25}, 13)), 5);
    EXPECT_EQ((LabelLayout{.VAlignment = 3}.TextTop({2, 2, 198, 28}, 13)), 2);
}

TEST(LabelLayout, TextIsDrawnWithTabsAndBrokenBetweenWordsUnlessTheLabelFollowsIt) {
    EXPECT_EQ(LabelLayout{}.TextFlags(), kExpandTabs | kWordBreak);
    EXPECT_EQ((LabelLayout{.AutoSize = true}.TextFlags()), kExpandTabs);
    EXPECT_EQ((LabelLayout{.Alignment = 1}.TextFlags()), kExpandTabs | kWordBreak | kRight);
    EXPECT_EQ((LabelLayout{.Alignment = 2, .AutoSize = true}.TextFlags()), kExpandTabs | kCenter);
    EXPECT_EQ((LabelLayout{.Alignment = 3}.TextFlags()), kExpandTabs | kWordBreak);
}

TEST(LabelLayout, AGrowingLabelOnTheLeftKeepsItsLeftEdge) {
    EXPECT_EQ(LabelLayout{}.LeftEdge(100, 50, 60), 100);
    EXPECT_EQ((LabelLayout{.Alignment = 3}.LeftEdge(100, 50, 60)), 100);
}

TEST(LabelLayout, AGrowingLabelOnTheRightKeepsItsRightEdge) {
    const LabelLayout layout{.Alignment = 1};
    EXPECT_EQ(layout.LeftEdge(100, 50, 60), 90);
    EXPECT_EQ(layout.LeftEdge(100, 60, 50), 110);
    EXPECT_EQ(layout.LeftEdge(100.5, 50, 60), 90.5);
}

TEST(LabelLayout, AGrowingLabelInTheMiddleMovesHalfTheDifferenceHalvesToEven) {
    const LabelLayout layout{.Alignment = 2};
    EXPECT_EQ(layout.LeftEdge(100, 50, 60), 95);
    EXPECT_EQ(layout.LeftEdge(100, 50, 51), 100); // -0.5
    EXPECT_EQ(layout.LeftEdge(100, 50, 53), 98);  // -1.5
    EXPECT_EQ(layout.LeftEdge(100, 53, 50), 102); // 1.5
    EXPECT_EQ(layout.LeftEdge(100, 55, 50), 102); // 2.5
    EXPECT_EQ(layout.LeftEdge(101, 51, 50), 101); // the step is rounded, not the sum
}

} // namespace
} // namespace orvanta
