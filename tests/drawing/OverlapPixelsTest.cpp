#include "drawing/OverlapPixels.h"

#include "tests/reference/PlainOverlap.h"

#include <gtest/gtest.h>

#include <random>

namespace orvanta {
namespace {

using reference::PlainPicture;

PixelBits BitsOf(PlainPicture& picture) {
    return {picture.bytes.data(), picture.width, picture.height, static_cast<std::size_t>(picture.width) * 4};
}

PlainPicture Noise(std::mt19937& random, int width, int height, bool bFewColors) {
    PlainPicture picture{width, height, {}};
    for (int n = 0; n < width * height * 4; ++n)
        picture.bytes.push_back(static_cast<std::uint8_t>(bFewColors ? random() % 2 * 255 : random()));
    return picture;
}

TEST(OverlapPixels, EqualThePlainRoadByteForByteOnRandomPictures) {
    std::mt19937 random(20240502);
    const auto upTo = [&random](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    for (int n = 0; n < 600; ++n) {
        PlainPicture source = Noise(random, 1 + upTo(40), 1 + upTo(30), n % 2 == 0);
        PlainPicture target = Noise(random, 1 + upTo(40), 1 + upTo(30), false);
        PlainPicture expected = target;
        const int width = upTo(50) - 10, height = upTo(40) - 10;
        const bool bDisabled = upTo(2) == 1;
        const std::int64_t key =
            upTo(3) == 0 ? -1 : source.At(2, 0, 0) + 256 * source.At(1, 0, 0) + 65536 * source.At(0, 0, 0);
        reference::PlainOverlap(expected, source, width, height, key, bDisabled);
        const auto place = PlaceOverlap(source.width, source.height, width, height, target.width, target.height);
        EXPECT_EQ(place.has_value(), width != 0 && height != 0);
        if (place) {
            OverlapPixels(BitsOf(target), BitsOf(source), *place,
                          key < 0 ? std::nullopt : std::optional(static_cast<std::uint32_t>(key)), bDisabled);
        }
        EXPECT_EQ(target.bytes, expected.bytes) << "round " << n;
    }
}

TEST(OverlapPixels, EveryGreyEqualsTheOneOfTheFractions) {
    for (int red = 0; red < 256; ++red) {
        for (int green = 0; green < 256; ++green) {
            for (int blue = 0; blue < 256; blue += 1 + (red + green) % 3) {
                ASSERT_EQ(DisabledGrey(static_cast<std::uint8_t>(red), static_cast<std::uint8_t>(green),
                                       static_cast<std::uint8_t>(blue)),
                          reference::PlainGrey(red, green, blue))
                    << red << ' ' << green << ' ' << blue;
            }
        }
    }
}

TEST(OverlapPixels, ADisabledBlackPixelIs134AndAWhiteOne211) {
    EXPECT_EQ(DisabledGrey(0, 0, 0), 134);       // 134.4
    EXPECT_EQ(DisabledGrey(255, 255, 255), 211); // 76.5 + 134.4 = 210.9
    EXPECT_EQ(DisabledGrey(255, 0, 0), 157);     // 0.3 * 211 + 0.59 * 134 + 0.11 * 134 = 157.1
    EXPECT_EQ(DisabledGrey(0, 255, 0), 179);     // 40.2 + 124.49 + 14.74 = 179.43
    EXPECT_EQ(DisabledGrey(0, 0, 255), 142);     // 40.2 + 79.06 + 23.21 = 142.47
}

TEST(OverlapPixels, APictureIsCentredAndAnOddRestStandsAtTheTop) {
    PlainPicture target{4, 4, std::vector<std::uint8_t>(64, 7)};
    PlainPicture source{1, 1, {1, 2, 3, 4}};
    OverlapPixels(BitsOf(target), BitsOf(source), *PlaceOverlap(1, 1, -1, -1, 4, 4), std::nullopt, false);
    // (4 - 1) / 2 = 1 column from the left, 1 row from the bottom.
    EXPECT_EQ(target.At(0, 1, 1), 1);
    EXPECT_EQ(target.At(1, 1, 1), 2);
    EXPECT_EQ(target.At(2, 1, 1), 3);
    EXPECT_EQ(target.At(3, 1, 1), 7) << "the fourth byte of the target stays";
    EXPECT_EQ(target.At(0, 1, 2), 7);
}

TEST(OverlapPixels, ALargerPictureShowsItsTopLeftPartUnscaled) {
    PlainPicture source{3, 3, {}};
    for (int n = 0; n < 9; ++n)
        source.bytes.insert(source.bytes.end(), 4, static_cast<std::uint8_t>(n)); // 6 7 8 is the top row
    PlainPicture target{2, 2, std::vector<std::uint8_t>(16, 99)};
    OverlapPixels(BitsOf(target), BitsOf(source), *PlaceOverlap(3, 3, -1, -1, 2, 2), std::nullopt, false);
    EXPECT_EQ(target.At(0, 0, 1), 6);
    EXPECT_EQ(target.At(0, 1, 1), 7);
    EXPECT_EQ(target.At(0, 0, 0), 3);
    EXPECT_EQ(target.At(0, 1, 0), 4);
}

TEST(OverlapPixels, AGivenSizeCutsAndNeverEnlarges) {
    const auto cut = PlaceOverlap(20, 10, 5, 100, 40, 40);
    ASSERT_TRUE(cut);
    EXPECT_EQ(cut->w, 5);
    EXPECT_EQ(cut->h, 10);
    EXPECT_EQ(cut->ox, 17);
    EXPECT_EQ(cut->oy, 15);
    const auto whole = PlaceOverlap(20, 10, -1, -7, 12, 8);
    ASSERT_TRUE(whole);
    EXPECT_EQ(whole->w, 12);
    EXPECT_EQ(whole->h, 8);
    EXPECT_FALSE(PlaceOverlap(20, 10, 0, -1, 40, 40));
    EXPECT_FALSE(PlaceOverlap(20, 10, -1, 0, 40, 40));
}

TEST(OverlapPixels, TheKeyIsComparedExactlyAndWithoutTheFourthByte) {
    PlainPicture source{3, 1, {1, 2, 3, 200, 1, 2, 4, 0, 1, 2, 3, 0}};
    PlainPicture target{3, 1, std::vector<std::uint8_t>(12, 9)};
    OverlapPixels(BitsOf(target), BitsOf(source), *PlaceOverlap(3, 1, -1, -1, 3, 1), 0x00010203u, false);
    EXPECT_EQ(target.bytes, (std::vector<std::uint8_t>{9, 9, 9, 9, 1, 2, 4, 9, 9, 9, 9, 9}));
}

TEST(OverlapPixels, AKeyWithAFourthByteMeetsNoPixel) {
    for (const std::uint32_t lKey : {0xFFFFFFFFu, 0x8000000Fu, 0x01010203u}) {
        PlainPicture source{2, 1, {1, 2, 3, 1, 255, 255, 255, 255}};
        PlainPicture target{2, 1, std::vector<std::uint8_t>(8, 9)};
        OverlapPixels(BitsOf(target), BitsOf(source), *PlaceOverlap(2, 1, -1, -1, 2, 1), lKey, false);
        EXPECT_EQ(target.bytes, (std::vector<std::uint8_t>{1, 2, 3, 9, 255, 255, 255, 9}));
    }
}

} // namespace
} // namespace orvanta
