#include "files/PrefixedString.h"

#include "base/Windows1252.h"

#include <gtest/gtest.h>

namespace orvanta {
namespace {

const Windows1252 kWestern;

TEST(PrefixedString, ByteStringHasOneCharacterForEachUtf8Byte) {
    EXPECT_EQ(StringToUtf8ByteString(u"", kWestern), u"");
    EXPECT_EQ(StringToUtf8ByteString(u"ab", kWestern), u"ab");
    EXPECT_EQ(StringToUtf8ByteString(u"\u00E9", kWestern), u"\u00C3\u00A9");
    EXPECT_EQ(StringToUtf8ByteString(u"\u20AC", kWestern), u"\u00E2\u201A\u00AC"); // E2 82 AC by code page 1252
    EXPECT_EQ(StringToUtf8ByteString(u"\u0441", kWestern), u"\u00D1\u0081");       // 81 is unassigned there
}

TEST(PrefixedString, ByteStringComesBack) {
    EXPECT_EQ(Utf8ByteStringToString(u"", kWestern), u"");
    for (unsigned n = 1; n < 0x10000; ++n) {
        const std::u16string s(3, static_cast<char16_t>(n));
        ASSERT_EQ(Utf8ByteStringToString(StringToUtf8ByteString(s, kWestern), kWestern), s) << n;
    }
}

TEST(PrefixedString, ByteStringIsDecodedWithItsOwnTable) {
    EXPECT_EQ(Utf8ByteStringToString(u"\u00DC\u00BF", kWestern),
              u"\u073F"); // a pair here, two characters in whole files
    EXPECT_EQ(Utf8ByteStringToString(u"\u00F0ab", kWestern), u"\u00F0ab");
}

TEST(PrefixedString, BytesOfEachEncoding) {
    EXPECT_EQ(BytesOfPrefixedString(feAnsi, u"\u20AC", kWestern, kWestern), "\x80");
    EXPECT_EQ(BytesOfPrefixedString(feUnicode, u"\u20AC", kWestern, kWestern), "\xAC\x20");
    EXPECT_EQ(BytesOfPrefixedString(feUtf8, u"\u20AC", kWestern, kWestern), "\xE2\x82\xAC");
    EXPECT_EQ(TextOfPrefixedString(feAnsi, "\x80", kWestern, kWestern), u"\u20AC");
    EXPECT_EQ(TextOfPrefixedString(feUnicode, "\xAC\x20", kWestern, kWestern), u"\u20AC");
    EXPECT_EQ(TextOfPrefixedString(feUtf8, "\xE2\x82\xAC", kWestern, kWestern), u"\u20AC");
}

// A code page without the western letters: "?" for everything above 127.
class PlainAscii final : public AnsiCodePage {
public:
    std::u16string BytesToText(std::string_view s) const override { return {s.begin(), s.end()}; }
    std::string TextToBytes(std::u16string_view s) const override {
        std::string sOut;
        for (const char16_t c : s)
            sOut.push_back(c < 128 ? static_cast<char>(c) : '?');
        return sOut;
    }
};

TEST(PrefixedString, AnotherCodePageDamagesUtf8) {
    EXPECT_EQ(BytesOfPrefixedString(feUtf8, u"a\u00E9b", PlainAscii(), kWestern), "a??b");
}

// A western code page with a look-alike, as the platform's has them: "A" for U+0100.
class WesternWithALookAlike final : public AnsiCodePage {
public:
    std::u16string BytesToText(std::string_view s) const override { return kWestern.BytesToText(s); }
    std::string TextToBytes(std::u16string_view s) const override {
        std::string sOut = kWestern.TextToBytes(s);
        for (std::size_t n = 0; n < s.size(); ++n) {
            if (s[n] == 0x100) sOut[n] = 'A';
        }
        return sOut;
    }
};

TEST(PrefixedString, CharactersOfNoByteBecomeWhatTheWesternCodePageAtHandPutsForThem) {
    EXPECT_EQ(Utf8ByteStringToString(u"x\u0100y", kWestern), u"x?y");
    EXPECT_EQ(Utf8ByteStringToString(u"x\u0100y", WesternWithALookAlike()), u"xAy");
    EXPECT_EQ(TextOfPrefixedString(feUtf8, "xAy", kWestern, WesternWithALookAlike()), u"xAy");
}

} // namespace
} // namespace orvanta
