#include "controls/basic/ImagePlacement.h"

#include <gtest/gtest.h>

#include <ostream>
#include <random>

namespace orvanta {

void PrintTo(const ImagePlacement& place, std::ostream* out) {
    const PixelRect& rect = place.rect;
    *out << rect.left << ", " << rect.top << ", " << rect.Width() << " x " << rect.Height()
         << (place.bScaled ? ", scaled" : "");
}

namespace {

// The client area less the inset of a border.
PixelRect RoomOf(std::int32_t W, std::int32_t H, std::int32_t lInset = 0) {
    return PixelRect{0, 0, W, H}.Shrunk(lInset);
}
// Place and size.
ImagePlacement At(std::int32_t left, std::int32_t top, std::int32_t width, std::int32_t height) {
    return {{left, top, left + width, top + height}, false};
}
ImagePlacement ScaledAt(std::int32_t left, std::int32_t top, std::int32_t width, std::int32_t height) {
    return {{left, top, left + width, top + height}, true};
}

TEST(ImagePlacement, OnlyARoundedBorderTakesTwoPixelsOfEachEdge) {
    EXPECT_EQ(ImageInset(false, false), 0);
    EXPECT_EQ(ImageInset(false, true), 0);
    EXPECT_EQ(ImageInset(true, false), 1);
    EXPECT_EQ(ImageInset(true, true), 2);
}

TEST(ImagePlacement, WithoutAPixelOfRoomThereIsNoPlace) {
    EXPECT_EQ(PlaceImage(RoomOf(4, 40, 2), {10, 10}, false), std::nullopt);
    EXPECT_EQ(PlaceImage(RoomOf(40, 4, 2), {10, 10}, true), std::nullopt);
    EXPECT_EQ(PlaceImage(RoomOf(0, 0), {10, 10}, false), std::nullopt);
    EXPECT_EQ(PlaceImage(RoomOf(3, 3, 1), {10, 10}, false), At(1, 1, 1, 1));
}

TEST(ImagePlacement, APictureThatFitsIsCentredWithOrWithoutStretch) {
    EXPECT_EQ(PlaceImage(RoomOf(100, 60), {40, 20}, false), At(30, 20, 40, 20));
    EXPECT_EQ(PlaceImage(RoomOf(100, 60), {40, 20}, true), At(30, 20, 40, 20));
    EXPECT_EQ(PlaceImage(RoomOf(100, 60, 2), {96, 56}, true), At(2, 2, 96, 56));
}

TEST(ImagePlacement, HalfAPixelOfOffsetGoesToTheEvenOne) {
    EXPECT_EQ(PlaceImage(RoomOf(11, 13), {10, 10}, false), At(0, 2, 10, 10));    // 0.5 and 1.5
    EXPECT_EQ(PlaceImage(RoomOf(15, 17), {10, 10}, false), At(2, 4, 10, 10));    // 2.5 and 3.5
    EXPECT_EQ(PlaceImage(RoomOf(13, 15, 1), {10, 10}, false), At(1, 3, 10, 10)); // 0.5 and 1.5 inside a border
}

TEST(ImagePlacement, StretchMakesAWidePictureAsWideAsTheRoom) {
    EXPECT_EQ(PlaceImage(RoomOf(100, 60), {200, 40}, true), ScaledAt(0, 20, 100, 20));
    EXPECT_EQ(PlaceImage(RoomOf(104, 64, 2), {200, 40}, true), ScaledAt(2, 22, 100, 20));
}

TEST(ImagePlacement, StretchMakesAHighPictureAsHighAsTheRoom) {
    EXPECT_EQ(PlaceImage(RoomOf(100, 60), {60, 120}, true), ScaledAt(35, 0, 30, 60));
}

TEST(ImagePlacement, StretchScalesByTheAxisThatIsMoreTooLarge) {
    EXPECT_EQ(PlaceImage(RoomOf(100, 50), {200, 200}, true), ScaledAt(25, 0, 50, 50));
    EXPECT_EQ(PlaceImage(RoomOf(50, 100), {200, 200}, true), ScaledAt(0, 25, 50, 50));
}

TEST(ImagePlacement, HalfAPixelOfAScaledSizeGoesToTheEvenOne) {
    EXPECT_EQ(PlaceImage(RoomOf(100, 100), {200, 51}, true), ScaledAt(0, 37, 100, 26)); // 25.5
    EXPECT_EQ(PlaceImage(RoomOf(100, 100), {200, 49}, true), ScaledAt(0, 38, 100, 24)); // 24.5
}

TEST(ImagePlacement, AVeryFlatPictureScalesAwayToNothing) {
    EXPECT_EQ(PlaceImage(RoomOf(10, 10), {1000, 1}, true), ScaledAt(0, 5, 10, 0));
}

TEST(ImagePlacement, WithoutStretchATooLargePictureIsCutAtTheEdgesOfTheRoom) {
    EXPECT_EQ(PlaceImage(RoomOf(100, 60), {200, 120}, false), At(0, 0, 100, 60));
    EXPECT_EQ(PlaceImage(RoomOf(100, 60, 2), {200, 120}, false), At(2, 2, 96, 56));
}

TEST(ImagePlacement, WithoutStretchThePictureIsStillCentredOnTheAxisOnWhichItFits) {
    EXPECT_EQ(PlaceImage(RoomOf(100, 60), {200, 20}, false), At(0, 20, 100, 20));
    EXPECT_EQ(PlaceImage(RoomOf(100, 60), {41, 120}, false), At(30, 0, 41, 60)); // 29.5
}

TEST(ImagePlacement, AScaledPictureFillsOneAxisAndStaysInsideTheOther) {
    std::mt19937 random(20);
    std::uniform_int_distribution<int> size(1, 300);
    int nScaled = 0;
    for (int round = 0; round < 20000; ++round) {
        const int W = size(random), H = size(random), w = size(random), h = size(random), inset = round % 3;
        const PixelRect room = RoomOf(W, H, inset);
        const auto place = PlaceImage(room, {w, h}, true);
        if (!place || !place->bScaled) continue;
        ++nScaled;
        const PixelRect& rect = place->rect;
        SCOPED_TRACE(::testing::Message() << W << " " << H << " " << inset << " " << w << " " << h);
        EXPECT_TRUE(rect.Width() == room.Width() || rect.Height() == room.Height());
        EXPECT_TRUE(rect.left >= room.left && rect.top >= room.top);
        EXPECT_TRUE(rect.right <= room.right && rect.bottom <= room.bottom);
    }
    EXPECT_GT(nScaled, 10000);
}

} // namespace
} // namespace orvanta
