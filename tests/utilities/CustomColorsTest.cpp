#include "utilities/CustomColors.h"

#include <gtest/gtest.h>

namespace orvanta {
namespace {

constexpr std::u16string_view kAllWhite = u"16777215,16777215,16777215,16777215,16777215,16777215,16777215,16777215,"
                                          u"16777215,16777215,16777215,16777215,16777215,16777215,16777215,16777215";

TEST(CustomColorsTest, AllSixteenAreWhiteAtFirst) {
    EXPECT_EQ(CustomColors().ToText(), kAllWhite);
}

TEST(CustomColorsTest, TextIsTheDecimalNumbersInOrderAndComesBackAsItWas) {
    const std::u16string sText = u"0,255,65280,16711680,1,2,3,4,5,6,7,8,9,10,11,16777215";
    CustomColors colors;
    colors.FromText(sText);
    EXPECT_EQ(colors.Data()[1], 255u);
    EXPECT_EQ(colors.Data()[14], 11u);
    EXPECT_EQ(colors.ToText(), sText);
}

TEST(CustomColorsTest, WhatTheDialogStoresIsInTheText) {
    CustomColors colors;
    colors.Data()[0] = 0x0000FF;
    colors.Data()[15] = 0xFF0000;
    EXPECT_TRUE(colors.ToText().starts_with(u"255,16777215,"));
    EXPECT_TRUE(colors.ToText().ends_with(u",16777215,16711680"));
}

TEST(CustomColorsTest, MissingEntriesLeaveTheirColors) {
    CustomColors colors;
    colors.FromText(u"1,2");
    EXPECT_EQ(colors.Data()[0], 1u);
    EXPECT_EQ(colors.Data()[1], 2u);
    EXPECT_EQ(colors.Data()[2], 0xFFFFFFu);
    colors.FromText(u"");
    EXPECT_EQ(colors.Data()[0], 1u);
}

TEST(CustomColorsTest, EntriesThatAreNoPlainColorsLeaveTheirColors) {
    CustomColors colors;
    colors.FromText(u"1,2,3,4,5,6");
    colors.FromText(u"x,,-2147483633,16777216,99999999999,7");
    for (std::uint32_t n = 0; n < 5; ++n)
        EXPECT_EQ(colors.Data()[n], n + 1);
    EXPECT_EQ(colors.Data()[5], 7u);
}

TEST(CustomColorsTest, EntriesBeyondTheSixteenthCountForNothing) {
    CustomColors colors;
    colors.FromText(std::u16string(kAllWhite) + u",5,6");
    EXPECT_EQ(colors.ToText(), kAllWhite);
}

} // namespace
} // namespace orvanta
