#include "drawing/clsPalette.h"

#include "base/Failure.h"

#include "tests/drawing/Rgb.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace orvanta {
namespace {

using testing::Rgb;

std::vector<PaletteEntry> EntriesOf(const clsPalette& palette, std::size_t nFrom, std::size_t nCount) {
    const auto entries = palette.Entries().subspan(nFrom, nCount);
    return {entries.begin(), entries.end()};
}

std::vector<PaletteEntry> DarkSystemColors() {
    return {Rgb(0, 0, 0),   Rgb(128, 0, 0),   Rgb(0, 128, 0),   Rgb(128, 128, 0),
            Rgb(0, 0, 128), Rgb(128, 0, 128), Rgb(0, 128, 128), Rgb(192, 192, 192)};
}

std::vector<PaletteEntry> LightSystemColors() {
    return {Rgb(128, 128, 128), Rgb(255, 0, 0),   Rgb(0, 255, 0),   Rgb(255, 255, 0),
            Rgb(0, 0, 255),     Rgb(255, 0, 255), Rgb(0, 255, 255), Rgb(255, 255, 255)};
}

TEST(Palette, IsEmptyAtFirst) {
    EXPECT_EQ(clsPalette().Count(), 0);
}

TEST(Palette, EntriesCountFromOneAndAnyOtherIndexRaisesSubscriptOutOfRange) {
    clsPalette palette;
    palette.Add(1, 2, 3);
    palette.Add(4, 5, 6);
    EXPECT_EQ(palette.Red(1), 1);
    EXPECT_EQ(palette.Green(1), 2);
    EXPECT_EQ(palette.Blue(1), 3);
    EXPECT_EQ(palette.Blue(2), 6);
    for (const std::int32_t iIndex : {-1, 0, 3}) {
        try {
            palette.Red(iIndex);
            ADD_FAILURE() << "no failure for " << iIndex;
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.Number(), 9u);
        }
    }
}

TEST(Palette, AddOfTheSameColourTwiceMakesTwoEntries) {
    clsPalette palette;
    palette.Add(9, 9, 9);
    palette.Add(9, 9, 9);
    EXPECT_EQ(palette.Count(), 2);
}

TEST(Palette, DestroyEmptiesIt) {
    clsPalette palette;
    palette.CreateMono2();
    palette.Destroy();
    EXPECT_EQ(palette.Count(), 0);
}

TEST(Palette, CloneTakesOverCountAndEntriesAndStaysApart) {
    clsPalette from, to;
    from.Add(1, 2, 3);
    to.Create16();
    to.Clone(from);
    from.Add(4, 5, 6);
    EXPECT_EQ(to.Count(), 1);
    EXPECT_EQ(to.Green(1), 2);
    to.Clone(to);
    EXPECT_EQ(to.Count(), 1);
}

TEST(Palette, ClosestIndexOfAnEmptyPaletteIsZero) {
    EXPECT_EQ(clsPalette().ClosestIndex(1, 2, 3), 0);
}

TEST(Palette, ClosestIndexIsTheSmallestSumOfDifferencesAndTheFirstOfEquals) {
    clsPalette palette;
    palette.Add(0, 0, 0);
    palette.Add(100, 100, 100);
    palette.Add(90, 110, 100); // as far from 95 105 100 as the second
    palette.Add(0, 0, 40);
    palette.Add(0, 0, 40);
    EXPECT_EQ(palette.ClosestIndex(95, 105, 100), 2);
    EXPECT_EQ(palette.ClosestIndex(90, 110, 101), 3);
    EXPECT_EQ(palette.ClosestIndex(0, 0, 40), 4);
    EXPECT_EQ(palette.ClosestIndex(0, 0, 19), 1);
    EXPECT_EQ(palette.ClosestIndex(0, 0, 20), 1);
    EXPECT_EQ(palette.ClosestIndex(0, 0, 21), 4);
}

TEST(Palette, AnEntryAtTheGreatestDistanceIsNeverChosen) {
    clsPalette palette;
    palette.Add(255, 255, 255);
    EXPECT_EQ(palette.ClosestIndex(0, 0, 0), 0);
    EXPECT_EQ(palette.ClosestIndex(0, 0, 1), 1);
}

TEST(Palette, Mono2IsBlackAndWhite) {
    clsPalette palette;
    palette.Add(1, 2, 3);
    palette.CreateMono2();
    EXPECT_EQ(EntriesOf(palette, 0, 2), (std::vector{Rgb(0, 0, 0), Rgb(255, 255, 255)}));
    EXPECT_EQ(palette.Count(), 2);
}

TEST(Palette, Create16IsBothGroupsOfSystemColours) {
    clsPalette palette;
    palette.Add(1, 2, 3);
    palette.Create16();
    ASSERT_EQ(palette.Count(), 16);
    EXPECT_EQ(EntriesOf(palette, 0, 8), DarkSystemColors());
    EXPECT_EQ(EntriesOf(palette, 8, 8), LightSystemColors());
}

TEST(Palette, HalfTone256Has125EntriesWithRedChangingFastest) {
    clsPalette palette;
    palette.Add(1, 2, 3);
    palette.CreateHalfTone256();
    ASSERT_EQ(palette.Count(), 125);
    EXPECT_EQ(EntriesOf(palette, 0, 6), (std::vector{Rgb(0, 0, 0), Rgb(64, 0, 0), Rgb(128, 0, 0), Rgb(192, 0, 0),
                                                     Rgb(255, 0, 0), Rgb(0, 64, 0)}));
    EXPECT_EQ(EntriesOf(palette, 25, 1), std::vector{Rgb(0, 0, 64)});
    EXPECT_EQ(EntriesOf(palette, 124, 1), std::vector{Rgb(255, 255, 255)});
}

TEST(Palette, WebSafe256Has255EntriesCubeBetweenTheSystemColoursAndGreys) {
    clsPalette palette;
    palette.Add(1, 2, 3);
    palette.CreateWebSafe256();
    ASSERT_EQ(palette.Count(), 255);
    EXPECT_EQ(EntriesOf(palette, 0, 8), DarkSystemColors());
    // Black is left out of the cube, and pure red at the end of its first row.
    EXPECT_EQ(EntriesOf(palette, 8, 5),
              (std::vector{Rgb(51, 0, 0), Rgb(102, 0, 0), Rgb(153, 0, 0), Rgb(204, 0, 0), Rgb(0, 51, 0)}));
    EXPECT_EQ(EntriesOf(palette, 8 + 207, 2), (std::vector{Rgb(204, 255, 255), Rgb(8, 8, 8)}));
    for (int row = 217; row <= 247; ++row) {
        const int grey = 8 * (row - 216);
        EXPECT_EQ(EntriesOf(palette, static_cast<std::size_t>(row) - 1, 1), std::vector{Rgb(grey, grey, grey)});
    }
    EXPECT_EQ(EntriesOf(palette, 247, 8), LightSystemColors());
}

TEST(Palette, TheCubeOfWebSafe256IsAllOf216ColoursButTheEightSystemColours) {
    clsPalette palette;
    palette.CreateWebSafe256();
    std::set<std::array<int, 3>> cube;
    for (std::int32_t i = 9; i <= 216; ++i)
        cube.insert({palette.Red(i), palette.Green(i), palette.Blue(i)});
    for (int red = 0; red <= 255; red += 51) {
        for (int green = 0; green <= 255; green += 51) {
            for (int blue = 0; blue <= 255; blue += 51) {
                const bool bCorner = (red % 255) + (green % 255) + (blue % 255) == 0;
                EXPECT_EQ(cube.contains({red, green, blue}), !bCorner) << red << ' ' << green << ' ' << blue;
            }
        }
    }
    EXPECT_EQ(cube.size(), 208u);
}

} // namespace
} // namespace orvanta
