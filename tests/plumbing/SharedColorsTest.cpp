#include "plumbing/SharedColors.h"

#include <gtest/gtest.h>

#include <vector>

namespace orvanta {
namespace {

constexpr OleColor kWhite = 0xFFFFFF;
constexpr OleColor kBlack = 0;
constexpr OleColor kBlueGreenRed = 0x332211; // red 0x11, green 0x22, blue 0x33

OleColor SystemName(std::uint32_t l) {
    return static_cast<OleColor>(0x80000000u | l);
}

TEST(SharedColors, APlainColorResolvesToItself) {
    EXPECT_EQ(ResolveColor(kBlueGreenRed), kBlueGreenRed);
    EXPECT_EQ(ResolveColor(0), 0);
    EXPECT_EQ(ResolveColor(0x7FFFFFFF), 0x7FFFFFFF);
}

TEST(SharedColors, ANegativeColorIsASystemColorByItsLowFiveBitsOnly) {
    EXPECT_EQ(ResolveColor(SystemName(5)), SystemColor(5));
    EXPECT_EQ(ResolveColor(SystemName(0xFFFFE5)), SystemColor(5));
    EXPECT_EQ(ResolveColor(SystemName(0x24)), SystemColor(4));
    EXPECT_EQ(ResolveColor(-1), SystemColor(31));
}

TEST(SharedColors, RedIsTheLowByte) {
    std::int16_t r = 0;
    std::int16_t g = 0;
    std::int16_t b = 0;
    SplitRGB(kBlueGreenRed, r, g, b);
    EXPECT_EQ(r, 0x11);
    EXPECT_EQ(g, 0x22);
    EXPECT_EQ(b, 0x33);
}

TEST(SharedColors, SplittingResolvesFirst) {
    std::int16_t r = 0;
    std::int16_t g = 0;
    std::int16_t b = 0;
    SplitRGB(SystemName(13), r, g, b);
    EXPECT_EQ(MakeColor(r, g, b), SystemColor(13));
}

TEST(SharedColors, AColorByteIsClamped) {
    EXPECT_EQ(ClampColorByte(-1), 0);
    EXPECT_EQ(ClampColorByte(0), 0);
    EXPECT_EQ(ClampColorByte(255), 255);
    EXPECT_EQ(ClampColorByte(256), 255);
}

TEST(SharedColors, AShadeMovesEachComponentAndStopsAtTheEnds) {
    EXPECT_EQ(ShadeColor(kBlueGreenRed, 16), 0x433221);
    EXPECT_EQ(ShadeColor(kBlueGreenRed, -0x22), 0x110000);
    EXPECT_EQ(ShadeColor(kWhite, 51), kWhite);
    EXPECT_EQ(ShadeColor(kBlack, -51), kBlack);
    EXPECT_EQ(ShadeColor(kWhite, 32767), kWhite);
}

TEST(SharedColors, TheShareIsThatOfTheSecondColorAndIsClamped) {
    EXPECT_EQ(MixColors(kBlueGreenRed, kWhite, 0), kBlueGreenRed);
    EXPECT_EQ(MixColors(kBlueGreenRed, kWhite, -20), kBlueGreenRed);
    EXPECT_EQ(MixColors(kBlueGreenRed, kWhite, 100), kWhite);
    EXPECT_EQ(MixColors(kBlueGreenRed, kWhite, 150), kWhite);
}

TEST(SharedColors, AMixRoundsHalvesToEven) {
    EXPECT_EQ(MixColors(MakeColor(0, 0, 0), MakeColor(1, 3, 5), 50), MakeColor(0, 2, 2));
    EXPECT_EQ(MixColors(kBlack, kWhite, 50), MakeColor(128, 128, 128));
}

// 255 * (1 - 0.7f) is 76.500003 in double precision and exactly 76.5 in single.
TEST(SharedColors, AMixIsComputedInSinglePrecision) {
    EXPECT_EQ(MixColors(kBlack, kWhite, 30), MakeColor(76, 76, 76));
}

TEST(SharedColors, LumaWeighsGreenMost) {
    EXPECT_EQ(ColorLuma(kBlack), 0);
    EXPECT_EQ(ColorLuma(kWhite), 255);
    EXPECT_EQ(ColorLuma(MakeColor(255, 0, 0)), 76); // 76.5, half to even
    EXPECT_EQ(ColorLuma(MakeColor(0, 255, 0)), 150);
    EXPECT_EQ(ColorLuma(MakeColor(0, 0, 255)), 28);
    EXPECT_EQ(ColorLuma(MakeColor(100, 50, 20)), 62); // 30 + 29.5 + 2.2
}

// Each sum lies at a half, and its last bit decides.
TEST(SharedColors, LumaIsSummedInDoublePrecisionFromRedToBlue) {
    EXPECT_EQ(ColorLuma(MakeColor(1, 4, 44)), 8);    // exactly 7.5, half to even; from blue to red just below it
    EXPECT_EQ(ColorLuma(MakeColor(1, 12, 192)), 28); // exactly 28.5; from blue to red just above it
    EXPECT_EQ(ColorLuma(MakeColor(0, 5, 5)), 4);     // exactly 3.5; just below it in single precision
    EXPECT_EQ(ColorLuma(MakeColor(0, 44, 14)), 27);  // just below 27.5, which whole hundredths would make 28
}

TEST(SharedColors, SettingTheLumaShiftsEachComponentAlike) {
    EXPECT_EQ(SetColorLuma(MakeColor(100, 50, 20), 72), MakeColor(110, 60, 30));
    EXPECT_EQ(SetColorLuma(MakeColor(100, 50, 20), 0), MakeColor(38, 0, 0));
    EXPECT_EQ(SetColorLuma(kBlack, 204), MakeColor(204, 204, 204));
}

TEST(SharedColors, AnAutomaticBorderIs68DarkerThanTheBack) {
    EXPECT_EQ(BorderColorFor(-1, kWhite), 0xBBBBBB);
    EXPECT_EQ(BorderColorFor(-1, MakeColor(68, 67, 200)), MakeColor(0, 0, 132));
}

// A back brighter than 208 is not darkened first, whatever the rule seems to promise.
TEST(SharedColors, AnAutomaticBorderOnABrightBackIsStillOnly68Darker) {
    EXPECT_EQ(BorderColorFor(-1, MakeColor(240, 250, 230)), MakeColor(172, 182, 162));
}

TEST(SharedColors, AGivenBorderStaysAsItIsEvenASystemColor) {
    EXPECT_EQ(BorderColorFor(0x123456, kWhite), 0x123456);
    EXPECT_EQ(BorderColorFor(SystemName(6), kWhite), SystemName(6));
    EXPECT_EQ(BorderColorFor(-2, kWhite), -2);
}

TEST(SharedColors, DisabledTextIsGreyUnlessGreyWouldNotShow) {
    const OleColor fallback = 0x123456;
    const OleColor gray = SystemColor(0x11);
    EXPECT_EQ(DisabledTextColor(fallback, kSystemGrayText), fallback);
    EXPECT_EQ(DisabledTextColor(fallback, gray), fallback);
    EXPECT_EQ(DisabledTextColor(fallback, kWhite), kSystemGrayText);
    EXPECT_EQ(DisabledTextColor(fallback, kBlack), kSystemGrayText);
}

TEST(SharedColors, FiveLevelsInOneComponentMakeGreyVisible) {
    const OleColor fallback = 0x123456;
    const OleColor gray = SystemColor(0x11);
    EXPECT_EQ(DisabledTextColor(fallback, gray + MakeColor(4, 4, 4)), fallback);
    EXPECT_EQ(DisabledTextColor(fallback, gray + MakeColor(5, 0, 0)), kSystemGrayText);
    EXPECT_EQ(DisabledTextColor(fallback, gray + MakeColor(0, 5, 0)), kSystemGrayText);
    EXPECT_EQ(DisabledTextColor(fallback, gray + MakeColor(0, 0, 5)), kSystemGrayText);
    EXPECT_EQ(DisabledTextColor(fallback, gray - MakeColor(4, 4, 4)), fallback);
    EXPECT_EQ(DisabledTextColor(fallback, gray - MakeColor(5, 0, 0)), kSystemGrayText);
    EXPECT_EQ(DisabledTextColor(fallback, gray - MakeColor(0, 5, 0)), kSystemGrayText);
    EXPECT_EQ(DisabledTextColor(fallback, gray - MakeColor(0, 0, 5)), kSystemGrayText);
}

TEST(SharedColors, AGradientBeginsWithItsFirstColorAndStopsOneStepShortOfTheSecond) {
    EXPECT_EQ(GradientColors(kBlack, kWhite, 4),
              (std::vector<OleColor>{0, 0x404040, 0x808080, 0xBFBFBF})); // 0, 63.75, 127.5, 191.25
    EXPECT_EQ(GradientColors(MakeColor(255, 0, 10), MakeColor(0, 255, 10), 3),
              (std::vector<OleColor>{MakeColor(255, 0, 10), MakeColor(170, 85, 10), MakeColor(85, 170, 10)}));
}

TEST(SharedColors, AGradientOfOneRowIsTheFirstColorAndOfNoneIsEmpty) {
    EXPECT_EQ(GradientColors(kBlueGreenRed, kWhite, 1), std::vector<OleColor>{kBlueGreenRed});
    EXPECT_TRUE(GradientColors(kBlueGreenRed, kWhite, 0).empty());
    EXPECT_TRUE(GradientColors(kBlueGreenRed, kWhite, -3).empty());
}

// With 102 rows the errors of the steps add up: 26 rows differ from 255 * i / 102. The sequence itself is the rule.
TEST(SharedColors, TheWeightOfAGradientFallsStepByStepInSinglePrecision) {
    const std::int32_t n = 102;
    const std::vector<OleColor> colors = GradientColors(kBlack, kWhite, n);
    volatile float w = 1.0F;
    const volatile float step = 1.0F / 102.0F;
    for (std::int32_t i = 0; i < n; ++i) {
        const volatile float rest = 1.0F - w;
        const volatile float share = 255.0F * rest;
        const volatile float whole = static_cast<float>(static_cast<int>(share));
        const float over = share - whole;
        const int iWhole = static_cast<int>(whole);
        const int iWanted = over > 0.5F || (over == 0.5F && iWhole % 2 == 1) ? iWhole + 1 : iWhole;
        EXPECT_EQ(colors[static_cast<std::size_t>(i)], MakeColor(iWanted, iWanted, iWanted)) << i;
        w = w - step;
    }
}

TEST(SharedColors, AGradientResolvesSystemColors) {
    EXPECT_EQ(GradientColors(SystemName(13), SystemName(13), 2),
              (std::vector<OleColor>{SystemColor(13), SystemColor(13)}));
}

} // namespace
} // namespace orvanta
