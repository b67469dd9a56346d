#include "controls/basic/AccessKey.h"

#include <gtest/gtest.h>

namespace orvanta {
namespace {

TEST(AccessKey, IsTheCharacterBehindTheFirstAmpersand) {
    EXPECT_EQ(AccessKeyOf(u"&Save log..."), u"S");
    EXPECT_EQ(AccessKeyOf(u"Sa&ve"), u"v");
    EXPECT_EQ(AccessKeyOf(u"a&b&c"), u"b");
    EXPECT_EQ(AccessKeyOf(u"&\u0416\u0416"), u"\u0416");
}

TEST(AccessKey, BehindTwoAmpersandsTheNextCharacterIsStillTheKey) {
    EXPECT_EQ(AccessKeyOf(u"Black && white"), u" ");
    EXPECT_EQ(AccessKeyOf(u"&&Save"), u"S");
    EXPECT_EQ(AccessKeyOf(u"&&&&x"), u"x");
    EXPECT_EQ(AccessKeyOf(u"&&x&y"), u"x");
}

TEST(AccessKey, IsEmptyWithoutAnAmpersandOrWithNothingBehindIt) {
    EXPECT_EQ(AccessKeyOf(u""), u"");
    EXPECT_EQ(AccessKeyOf(u"Save"), u"");
    EXPECT_EQ(AccessKeyOf(u"Save&"), u"");
    EXPECT_EQ(AccessKeyOf(u"&&&"), u"");
}

} // namespace
} // namespace orvanta
