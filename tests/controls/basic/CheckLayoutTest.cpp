#include "controls/basic/CheckLayout.h"

#include "base/Failure.h"

#include <gtest/gtest.h>

#include <limits>

namespace orvanta {
namespace {

TEST(CheckLayout, TheBoxStandsInTheMiddleWithHalvesOnTheEvenRow) {
    const struct {
        std::int32_t H;
        std::int16_t top;
    } cases[] = {{0, -8}, {12, -2}, {13, -1}, {14, 0}, {15, 0}, {16, 0}, {17, 1},
                 {18, 2}, {19, 2},  {20, 2},  {21, 3}, {22, 4}, {30, 8}, {65549, 32767}};
    for (const auto& each : cases)
        EXPECT_EQ(CheckBoxTop(each.H), each.top) << each.H;
}

TEST(CheckLayout, ATopThatIsNo16BitNumberOverflows) {
    EXPECT_THROW(CheckBoxTop(65550), Failure);
    EXPECT_THROW(CheckBoxTop(std::numeric_limits<std::int32_t>::max()), Failure);
}

TEST(CheckLayout, AlignZeroPutsTheBoxAtTheLeftAndAnyOtherValueAtTheRight) {
    EXPECT_EQ(CheckBoxRect(100, 3, 0), (PixelRect{0, 3, 15, 18}));
    for (const std::int16_t iAlign : {std::int16_t{1}, std::int16_t{2}, std::int16_t{-1}})
        EXPECT_EQ(CheckBoxRect(100, 3, iAlign), (PixelRect{85, 3, 100, 18}));
}

TEST(CheckLayout, TheCornersAreTheFourOutermostPixelsOfTheBox) {
    const std::array<PixelPoint, 4> expected{{{85, 3}, {99, 3}, {85, 17}, {99, 17}}};
    EXPECT_EQ(CheckBoxCorners({85, 3, 100, 18}), expected);
}

TEST(CheckLayout, TheTickIsThreeLinesToTheUpperLeftAndThreeToTheUpperRight) {
    // The origin is (6, 8) from the corner of the box: (6, 11) here.
    const std::array<PixelLine, 6> expected{{{{6, 11}, {3, 8}},
                                             {{6, 12}, {3, 9}},
                                             {{6, 13}, {3, 10}},
                                             {{6, 11}, {11, 6}},
                                             {{6, 12}, {11, 7}},
                                             {{6, 13}, {11, 8}}}};
    EXPECT_EQ(CheckTick({0, 3, 15, 18}), expected);
}

TEST(CheckLayout, TheCaptionHasTheRestOfTheClientArea) {
    EXPECT_EQ(CheckCaptionRoom({100, 20}, 0), (PixelRect{19, 1, 99, 19}));
    EXPECT_EQ(CheckCaptionRoom({100, 20}, 1), (PixelRect{1, 1, 81, 19}));
}

TEST(CheckLayout, TheCaptionHugsTheBoxAndStandsInTheMiddleWithTheHalfRoundedFirst) {
    EXPECT_EQ(CheckCaptionRect({100, 20}, 0, {40, 13}), (PixelRect{19, 4, 59, 17})); // 3.5
    EXPECT_EQ(CheckCaptionRect({100, 22}, 0, {40, 13}), (PixelRect{19, 4, 59, 17})); // 4.5
    EXPECT_EQ(CheckCaptionRect({100, 20}, 1, {40, 13}), (PixelRect{41, 4, 81, 17}));
    EXPECT_EQ(CheckCaptionRect({100, 20}, 0, {40, 26}), (PixelRect{19, -3, 59, 23}));
}

TEST(CheckLayout, TheFocusMarkGrowsTheCaptionByOneAndByTwoAtRightAndBottomInsideTheClientArea) {
    EXPECT_EQ(CheckFocusRect({100, 20}, {19, 4, 59, 17}), (PixelRect{18, 3, 61, 19}));
    EXPECT_EQ(CheckFocusRect({60, 18}, {19, 4, 59, 17}), (PixelRect{18, 3, 60, 18}));
    EXPECT_EQ(CheckFocusRect({100, 20}, {0, -3, 59, 23}), (PixelRect{-1, -4, 61, 20}));
}

} // namespace
} // namespace orvanta
