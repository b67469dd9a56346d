#include "controls/text/ListItemLayout.h"

#include <gtest/gtest.h>

namespace orvanta::testing {
namespace {

constexpr PixelRect kRow{0, 20, 100, 37}; // 17 high

TEST(ListRowLayout, WithoutACheckBoxTheTextStandsTwoPixelsInside) {
    const ListRow row = LayoutOfRow(kRow, false);
    EXPECT_EQ(row.box, PixelRect{});
    EXPECT_EQ(row.item, kRow);
    EXPECT_EQ(row.text, (PixelRect{2, 22, 98, 35}));
}

TEST(ListRowLayout, TheCheckBoxIsThirteenPixelsAndTheItemStartsBehindIt) {
    const ListRow row = LayoutOfRow(kRow, true);
    EXPECT_EQ(row.box, (PixelRect{2, 22, 15, 35}));
    EXPECT_EQ(row.item, (PixelRect{17, 20, 100, 37}));
    EXPECT_EQ(row.text, (PixelRect{19, 22, 98, 35}));
}

TEST(ListRowLayout, ABoxBetweenTwoRowsOfPixelsGoesToTheEvenOne) {
    EXPECT_EQ(LayoutOfRow({0, 0, 50, 18}, true).box.top, 2); // 2.5
    EXPECT_EQ(LayoutOfRow({0, 0, 50, 20}, true).box.top, 4); // 3.5
    EXPECT_EQ(LayoutOfRow({0, 1, 50, 19}, true).box.top, 4); // 3.5
    EXPECT_EQ(LayoutOfRow({0, 0, 50, 12}, true).box.top, 0); // -0.5
}

TEST(PictureRowLayout, TheColumnOfPicturesIsSixPixelsWiderThanThePicture) {
    const ListRow row = LayoutOfPictureRow(kRow, false, true, 16);
    EXPECT_EQ(row.item, kRow);
    EXPECT_EQ(row.picture, (PixelRect{0, 20, 22, 37}));
    EXPECT_EQ(row.text, (PixelRect{22, 20, 97, 37}));
}

TEST(PictureRowLayout, WithoutPicturesTheTextStandsThreePixelsInside) {
    EXPECT_EQ(LayoutOfPictureRow(kRow, false, false, 16).text, (PixelRect{3, 23, 97, 34}));
}

TEST(PictureRowLayout, TheCheckBoxStandsOnePixelFurtherRightAndTheItemThreePixelsBehindIt) {
    const ListRow row = LayoutOfPictureRow(kRow, true, true, 20);
    EXPECT_EQ(row.box, (PixelRect{3, 22, 16, 35}));
    EXPECT_EQ(row.item, (PixelRect{19, 20, 100, 37}));
    EXPECT_EQ(row.picture, (PixelRect{19, 20, 45, 37}));
    EXPECT_EQ(row.text, (PixelRect{45, 20, 97, 37}));
}

TEST(CheckMark, FallsThreeToTheLeftAndRisesFiveToTheRightThreePixelsThick) {
    const std::array<ListLine, 6> lines = CheckMarkLines({10, 100, 23, 113});
    for (std::int32_t d = 0; d < 3; ++d) {
        EXPECT_EQ(lines[static_cast<std::size_t>(d)], (ListLine{12, 104 + d, 15, 107 + d}));
        EXPECT_EQ(lines[static_cast<std::size_t>(d + 3)], (ListLine{15, 107 + d, 20, 102 + d}));
    }
}

TEST(ItemSize, IsFourPixelsHigherThanItsText) {
    EXPECT_EQ(ItemHeightOf(13), 17);
}

TEST(ItemSize, WithAPictureGoesByTheLargerOfPictureAndText) {
    EXPECT_EQ(PictureItemSize({40, 13}, 16, 16), (PixelSize{49, 20}));
    EXPECT_EQ(PictureItemSize({10, 30}, 16, 16), (PixelSize{25, 34}));
}

} // namespace
} // namespace orvanta::testing
