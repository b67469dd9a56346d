#include "files/TextFileForm.h"

#include "base/Windows1252.h"

#include <gtest/gtest.h>

namespace orvanta {
namespace {

TEST(TextFileForm, FirstByteAnnouncesTheEncoding) {
    for (int n = 0; n < 256; ++n) {
        const FileEncoding iExpected = n == 255 ? feUnicode : n == 239 ? feUtf8 : feAnsi;
        EXPECT_EQ(EncodingOfFirstByte(static_cast<unsigned char>(n)), iExpected) << n;
    }
}

TEST(TextFileForm, EachEncodingHasItsMark) {
    EXPECT_EQ(MarkOf(feAnsi), "");
    EXPECT_EQ(MarkOf(feUnicode), "\xFF\xFE");
    EXPECT_EQ(MarkOf(feUtf8), "\xEF\xBB\xBF");
    EXPECT_EQ(MarkOf(3), "");
    EXPECT_EQ(MarkOf(-1), "");
}

TEST(TextFileForm, OnlyThreeValuesAreEncodings) {
    for (const FileEncoding i : {feAnsi, feUnicode, feUtf8})
        EXPECT_TRUE(IsFileEncoding(i)) << i;
    for (const FileEncoding i : {-1, 3, 256})
        EXPECT_FALSE(IsFileEncoding(i)) << i;
}

TEST(TextFileForm, BodyFollowsTheEncoding) {
    const Windows1252 western;
    EXPECT_EQ(TextOfBody(feAnsi, "a\x80", western), u"a\u20AC");
    EXPECT_EQ(TextOfBody(feUnicode, "\xAC\x20#", western), u"\u20AC");
    EXPECT_EQ(TextOfBody(feUtf8, "\xE2\x82\xAC\xDC", western), u"\u20AC\u00DC");
    EXPECT_EQ(BodyOfText(feAnsi, u"a\u20AC\u65E5", western), "a\x80?");
    EXPECT_EQ(BodyOfText(feUnicode, u"\u20AC", western), "\xAC\x20");
    EXPECT_EQ(BodyOfText(feUtf8, u"\u20AC", western), "\xE2\x82\xAC");
}

} // namespace
} // namespace orvanta
