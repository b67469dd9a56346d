#include "controls/contract/ScaleUnits.h"

#include "base/Rounding.h"

#include <gtest/gtest.h>

namespace orvanta::testing {

namespace {

TEST(ScaleUnits, TwipsArePixelsByTheResolutionOfTheScreen) {
    EXPECT_EQ(ConvertUnits(8700, ScaleUnit::Twips, ScaleUnit::Pixels, 96), 580.0F);
    EXPECT_EQ(ConvertUnits(8700, ScaleUnit::Twips, ScaleUnit::Pixels, 144), 870.0F);
    EXPECT_EQ(ConvertUnits(10, ScaleUnit::Pixels, ScaleUnit::Twips, 96), 150.0F);
}

TEST(ScaleUnits, APictureOfSixteenPixelsComesBackAsSixteenOnceRounded) {
    const float pixels = ConvertUnits(423, ScaleUnit::HiMetric, ScaleUnit::Pixels, 96);
    EXPECT_NE(pixels, 16.0F);
    EXPECT_EQ(RoundToInteger<std::int32_t>(pixels), 16);
    EXPECT_EQ(RoundToInteger<std::int32_t>(ConvertUnits(318, ScaleUnit::HiMetric, ScaleUnit::Pixels, 96)), 12);
}

TEST(ScaleUnits, EveryUnitAgreesOnTheInch) {
    const ScaleUnit units[] = {ScaleUnit::Twips,       ScaleUnit::Points,      ScaleUnit::Pixels,  ScaleUnit::Inches,
                               ScaleUnit::Millimeters, ScaleUnit::Centimeters, ScaleUnit::HiMetric};
    const float inch[] = {1440, 72, 120, 1, 25.4F, 2.54F, 2540};
    for (std::size_t from = 0; from < std::size(units); ++from) {
        for (std::size_t to = 0; to < std::size(units); ++to)
            EXPECT_FLOAT_EQ(ConvertUnits(inch[from], units[from], units[to], 120), inch[to]) << from << " " << to;
    }
}

TEST(ScaleUnits, AUnitWithoutASizeOfItsOwnCountsAsPixels) {
    EXPECT_EQ(ConvertUnits(7, static_cast<ScaleUnit>(0), ScaleUnit::Pixels, 96), 7.0F);
}

} // namespace

} // namespace orvanta::testing
