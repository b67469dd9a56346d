#include "controls/basic/ButtonLayout.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

namespace orvanta {

namespace {

struct LayoutCase {
    std::int32_t ImagePos;
    std::int32_t right; // of the rectangle that the text is measured in; 0: not measured
    PixelRect picture;
    PixelRect text;
};

// Numbers that a failed comparison shows.
std::array<std::int32_t, 4> EdgesOf(const PixelRect& r) {
    return {r.left, r.top, r.right, r.bottom};
}

// Lays the case out with a text that has one size whatever its limit is.
void ExpectLayout(const ButtonContent& content, PixelSize text, const LayoutCase& expected) {
    SCOPED_TRACE(expected.ImagePos);
    std::vector<PixelRect> measured;
    const ButtonParts parts = LayOutButton(content, expected.ImagePos, [&](const PixelRect& rect) {
        measured.push_back(rect);
        return text;
    });
    EXPECT_EQ(EdgesOf(parts.picture), EdgesOf(expected.picture));
    EXPECT_EQ(EdgesOf(parts.text), EdgesOf(expected.text));
    if (expected.right == 0) {
        EXPECT_TRUE(measured.empty());
        return;
    }
    ASSERT_EQ(measured.size(), 1u);
    EXPECT_EQ(measured[0].left, content.margin);
    EXPECT_EQ(measured[0].top, content.margin);
    EXPECT_EQ(measured[0].right, expected.right);
}

TEST(ButtonLayout, EveryLayoutPlacesPictureAndTextOnARoomyFace) {
    const ButtonContent content{{100, 50}, 4, PixelSize{16, 16}, true};
    const LayoutCase cases[] = {
        {0, 96, {0, 9, 100, 25}, {4, 28, 96, 41}},
        {1, 77, {20, 0, 36, 50}, {39, 18, 79, 31}},
        {2, 77, {63, 0, 79, 50}, {20, 18, 60, 31}},
        {3, 96, {0, 25, 100, 41}, {4, 9, 96, 22}},
        {4, 96, {0, 0, 100, 50}, {4, 18, 96, 31}},
        {5, 96, {0, 4, 100, 20}, {4, 23, 96, 36}},
        {6, 77, {4, 0, 20, 50}, {23, 18, 96, 31}},
        {7, 77, {80, 0, 96, 50}, {4, 18, 77, 31}},
        {8, 96, {0, 30, 100, 46}, {4, 14, 96, 27}},
        {9, 0, {}, {}},
        {10, 80, {4, 0, 20, 50}, {23, 18, 96, 31}},
        {11, 80, {80, 0, 96, 50}, {4, 18, 77, 31}},
        {12, 0, {}, {}},
    };
    for (const LayoutCase& each : cases)
        ExpectLayout(content, {40, 13}, each);
}

TEST(ButtonLayout, OnAFaceThatIsTooSmallPictureAndTextKeepToTheirEdgesAndOverlap) {
    const ButtonContent content{{30, 20}, 4, PixelSize{32, 24}, true};
    const LayoutCase cases[] = {
        {0, 26, {0, 4, 30, 28}, {4, -10, 26, 16}}, {1, 16, {4, 0, 36, 20}, {1, -3, 26, 23}},
        {2, 16, {-6, 0, 26, 20}, {4, -3, 29, 23}}, {3, 26, {0, -8, 30, 16}, {4, 4, 26, 30}},
        {4, 26, {0, 0, 30, 20}, {4, -3, 26, 23}},  {5, 26, {0, 4, 30, 28}, {4, -10, 26, 16}},
        {6, 16, {4, 0, 36, 20}, {1, -3, 26, 23}},  {7, 16, {4, 0, 36, 20}, {4, -3, 25, 23}},
        {8, 26, {0, -8, 30, 16}, {4, 4, 26, 30}},  {9, 0, {}, {}},
        {10, 16, {4, 0, 36, 20}, {1, -3, 26, 23}}, {11, 16, {4, 0, 36, 20}, {4, -3, 25, 23}},
    };
    for (const LayoutCase& each : cases)
        ExpectLayout(content, {25, 26}, each);
}

TEST(ButtonLayout, TheTextNeverGetsLessThanHalfTheWidthOfThePictureAndHalvesGoToTheEvenNumber) {
    // 33 / 2 is 16.5, 35 / 2 is 17.5.
    ExpectLayout({{30, 20}, 2, PixelSize{33, 10}, true}, {10, 10}, {6, 16, {2, 0, 35, 20}, {18, 5, 28, 15}});
    ExpectLayout({{30, 20}, 2, PixelSize{35, 10}, true}, {10, 10}, {6, 18, {2, 0, 37, 20}, {18, 5, 28, 15}});
}

TEST(ButtonLayout, HalvesInTheMiddleGoToTheEvenPixel) {
    // (50 - 32) / 2 is 9, (51 - 32) / 2 is 9.5 and (53 - 32) / 2 is 10.5.
    const auto top = [](std::int32_t H) {
        return LayOutButton({{100, H}, 2, PixelSize{16, 16}, true}, 0,
                            [](const PixelRect&) {
                                return PixelSize{40, 13};
                            })
            .picture.top;
    };
    EXPECT_EQ(top(50), 9);
    EXPECT_EQ(top(51), 10);
    EXPECT_EQ(top(53), 10);
    EXPECT_EQ(top(54), 11);
}

TEST(ButtonLayout, PictureOnTextCentresBothOnEachOther) {
    const ButtonParts parts = LayOutButton({{80, 40}, 4, PixelSize{16, 16}, true}, 4, [](const PixelRect&) {
        return PixelSize{30, 14};
    });
    EXPECT_EQ(parts.picture.left + parts.picture.right, parts.text.left + parts.text.right);
    EXPECT_EQ(parts.picture.top + parts.picture.bottom, parts.text.top + parts.text.bottom);
}

TEST(ButtonLayout, LayoutNineAndUnknownOnesPositionNothing) {
    for (const std::int32_t ImagePos : {9, 12, 13, 100, -1})
        ExpectLayout({{100, 50}, 4, PixelSize{16, 16}, true}, {40, 13}, {ImagePos, 0, {}, {}});
}

TEST(ButtonLayout, ACaptionAloneTakesTheFaceShrunkByOneInEveryLayout) {
    for (std::int32_t ImagePos = 0; ImagePos <= 12; ++ImagePos) {
        std::vector<PixelRect> measured;
        const ButtonParts parts = LayOutButton({{100, 50}, 4, std::nullopt, true}, ImagePos, [&](const PixelRect& r) {
            measured.push_back(r);
            return PixelSize{40, 13};
        });
        ASSERT_EQ(measured.size(), 1u);
        EXPECT_EQ(measured[0], (PixelRect{1, 1, 99, 49}));
        EXPECT_EQ(parts.picture, PixelRect{});
        EXPECT_EQ(parts.text, (PixelRect{1, 18, 99, 49})); // 18.5 goes to the even 18
    }
}

TEST(ButtonLayout, APictureAloneTakesTheWholeFaceInEveryLayout) {
    for (std::int32_t ImagePos = 0; ImagePos <= 12; ++ImagePos)
        ExpectLayout({{100, 50}, 4, PixelSize{16, 16}, false}, {40, 13}, {ImagePos, 0, {0, 0, 100, 50}, {}});
}

TEST(ButtonLayout, NothingToShowHasNoParts) {
    ExpectLayout({{100, 50}, 4, std::nullopt, false}, {40, 13}, {0, 0, {}, {}});
}

TEST(ButtonLayout, OnlyLayoutSevenAlignsItsTextToTheRight) {
    for (std::int32_t ImagePos = -1; ImagePos <= 12; ++ImagePos)
        EXPECT_EQ(ButtonTextAtRight(ImagePos), ImagePos == 7) << ImagePos;
}

TEST(ButtonLayout, ShowingTheFocusWidensTheMarginByTwo) {
    EXPECT_EQ(ButtonMargin(false), 2);
    EXPECT_EQ(ButtonMargin(true), 4);
}

TEST(ButtonStretch, APictureSmallerThanTheFaceIsNotEnlarged) {
    EXPECT_EQ(FittedPictureSize({100, 30}, 4, {91, 21}), std::nullopt);
    EXPECT_EQ(FittedPictureSize({100, 30}, 4, {1, 1}), std::nullopt);
}

TEST(ButtonStretch, APictureAsWideOrHighAsTheFaceInsideItsMarginsOrMoreIsFittedByTheTighterSide) {
    // 92 by 22 are free.
    EXPECT_EQ(FittedPictureSize({100, 30}, 4, {92, 10}), (PixelSize{92, 10}));
    EXPECT_EQ(FittedPictureSize({100, 30}, 4, {10, 22}), (PixelSize{10, 22}));
    EXPECT_EQ(FittedPictureSize({100, 30}, 4, {46, 44}), (PixelSize{23, 22}));
    EXPECT_EQ(FittedPictureSize({100, 30}, 4, {368, 22}), (PixelSize{92, 6}));
}

TEST(ButtonStretch, TheTargetIsRoundedHalvesToTheEvenPixel) {
    EXPECT_EQ(FittedPictureSize({100, 30}, 4, {184, 11}), (PixelSize{92, 6}));
    EXPECT_EQ(FittedPictureSize({100, 30}, 4, {184, 9}), (PixelSize{92, 4}));
}

TEST(ButtonStretch, WhereNothingOfThePictureWouldBeLeftItKeepsItsSize) {
    EXPECT_EQ(FittedPictureSize({100, 30}, 4, {368, 1}), std::nullopt);
    EXPECT_EQ(FittedPictureSize({8, 30}, 4, {16, 16}), std::nullopt);
    EXPECT_EQ(FittedPictureSize({4, 4}, 4, {16, 16}), std::nullopt);
    EXPECT_EQ(FittedPictureSize({8, 8}, 4, {0, 16}), std::nullopt);
    EXPECT_EQ(FittedPictureSize({8, 8}, 4, {16, 0}), std::nullopt);
}

} // namespace
} // namespace orvanta
