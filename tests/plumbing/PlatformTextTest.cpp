#include "plumbing/PlatformText.h"

#include <gtest/gtest.h>

namespace orvanta {
namespace {

TEST(PlatformText, HighBytesBeginAt256) {
    EXPECT_FALSE(HasHighBytes(u""));
    EXPECT_FALSE(HasHighBytes(u"abc\u00FF"));
    EXPECT_TRUE(HasHighBytes(u"\u0100"));
    EXPECT_TRUE(HasHighBytes(u"abc\u20AC"));
}

TEST(PlatformText, BelowWindows2000EveryPathIsAnAnsiPath) {
    EXPECT_TRUE(CanUseAnsiPath(u"\u65E5", 7, false));
    EXPECT_TRUE(CanUseAnsiPath(u"\u65E5", 0, true));
}

TEST(PlatformText, LaterOnlyWithTheWesternCodePageAndWithoutHighBytes) {
    EXPECT_TRUE(CanUseAnsiPath(u"caf\u00E9", 8, true));
    EXPECT_FALSE(CanUseAnsiPath(u"\u65E5", 8, true));
    EXPECT_FALSE(CanUseAnsiPath(u"plain", 8, false));
    EXPECT_FALSE(CanUseAnsiPath(u"", 11, false));
    EXPECT_TRUE(CanUseAnsiPath(u"", 11, true));
}

TEST(PlatformText, ByteVariantHoldsTheLowByteOfEachUnitFirst) {
    EXPECT_EQ(StringToByteVariant(u"A\u20AC"), (ByteVariant{0x41, 0x00, 0xAC, 0x20}));
    EXPECT_EQ(StringToByteVariant(u""), ByteVariant{});
}

TEST(PlatformText, ByteVariantComesBackAsTheSameText) {
    const std::u16string sWithNul(u"x\0y\u65E5\xD83D", 5);
    EXPECT_EQ(ByteVariantToString(StringToByteVariant(sWithNul)), sWithNul);
    EXPECT_EQ(ByteVariantToString({}), u"");
}

TEST(PlatformText, OddLastByteOfAByteVariantIsDropped) {
    EXPECT_EQ(ByteVariantToString({0x41, 0x00, 0x42}), u"A");
    EXPECT_EQ(ByteVariantToString({0x41}), u"");
}

} // namespace
} // namespace orvanta
