#include "controls/hosting/MaskRuns.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <ostream>
#include <random>
#include <string>

namespace orvanta {

inline void PrintTo(const MaskRect& r, std::ostream* out) {
    *out << r.left << "," << r.top << "-" << r.right << "," << r.bottom;
}

} // namespace orvanta

namespace orvanta::testing {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// '#' is visible, anything else the mask colour.
std::vector<std::uint32_t> PixelsOf(const std::vector<std::string>& rows) {
    std::vector<std::uint32_t> pixels;
    for (const std::string& row : rows) {
        for (const char c : row)
            pixels.push_back(c == '#' ? 0xFFFFFFu : 0u);
    }
    return pixels;
}

std::vector<MaskRect> RectsOf(const std::vector<std::string>& rows) {
    return VisibleRects(PixelsOf(rows), static_cast<std::int32_t>(rows.front().size()), 0);
}

TEST(MaskRuns, RowsWithTheSameRunsAreOneBand) {
    EXPECT_THAT(RectsOf({".##.", "####", "####", ".##."}),
                ElementsAre(MaskRect{1, 0, 3, 1}, MaskRect{0, 1, 4, 3}, MaskRect{1, 3, 3, 4}));
}

TEST(MaskRuns, ABandMayHaveSeveralRuns) {
    EXPECT_THAT(RectsOf({"#.##", "#.##", "#..#"}),
                ElementsAre(MaskRect{0, 0, 1, 2}, MaskRect{2, 0, 4, 2}, MaskRect{0, 2, 1, 3}, MaskRect{3, 2, 4, 3}));
}

TEST(MaskRuns, AnEmptyRowEndsABand) {
    EXPECT_THAT(RectsOf({"##", "..", "##"}), ElementsAre(MaskRect{0, 0, 2, 1}, MaskRect{0, 2, 2, 3}));
}

TEST(MaskRuns, NothingVisibleGivesNothing) {
    EXPECT_THAT(RectsOf({"...", "..."}), IsEmpty());
    EXPECT_THAT(VisibleRects({}, 0, 0), IsEmpty());
}

TEST(MaskRuns, TheTopByteOfAPixelDoesNotCount) {
    const std::uint32_t pixels[] = {0xFF000000u, 0x00000001u};
    EXPECT_THAT(VisibleRects(pixels, 2, 0), ElementsAre(MaskRect{1, 0, 2, 1}));
    EXPECT_THAT(VisibleRects(pixels, 2, 1), ElementsAre(MaskRect{0, 0, 1, 1}));
}

TEST(MaskRuns, CoverExactlyTheVisiblePixelsOfAnyPicture) {
    constexpr std::size_t kWidth = 13;
    constexpr std::size_t kHeight = 17;
    std::mt19937 random(20);
    for (int round = 0; round < 500; ++round) {
        std::vector<std::uint32_t> pixels(kWidth * kHeight);
        for (std::uint32_t& pixel : pixels)
            pixel = random() % 3 == 0 ? 0xFFFFFFu : 0u;
        // Rows that repeat are what bands are for.
        for (std::size_t y = 1; y < kHeight; ++y) {
            if (random() % 2 == 0) std::copy_n(pixels.data() + (y - 1) * kWidth, kWidth, pixels.data() + y * kWidth);
        }
        std::vector<int> covered(pixels.size());
        for (const MaskRect& rect : VisibleRects(pixels, kWidth, 0)) {
            for (std::int32_t y = rect.top; y < rect.bottom; ++y) {
                for (std::int32_t x = rect.left; x < rect.right; ++x)
                    ++covered[static_cast<std::size_t>(y) * kWidth + static_cast<std::size_t>(x)];
            }
        }
        for (std::size_t n = 0; n < pixels.size(); ++n)
            ASSERT_EQ(covered[n], pixels[n] != 0 ? 1 : 0) << "round " << round << ", pixel " << n;
    }
}

} // namespace

} // namespace orvanta::testing
