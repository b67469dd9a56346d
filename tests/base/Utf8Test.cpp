#include "base/Utf8.h"

#include "tests/reference/PlainUtf8.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace orvanta {
namespace {

using testing::PlainDecode;
using testing::PlainEncode;

std::u16string PlainFiles(std::string_view a) {
    return PlainDecode(a, &testing::PlainLengthInFiles);
}
std::u16string PlainPrefixed(std::string_view a) {
    return PlainDecode(a, &testing::PlainLengthInPrefixedStrings);
}

std::string Bytes(std::initializer_list<int> bytes) {
    std::string s;
    for (const int b : bytes)
        s.push_back(static_cast<char>(b));
    return s;
}

std::u16string Units(std::initializer_list<int> units) {
    std::u16string s;
    for (const int c : units)
        s.push_back(static_cast<char16_t>(c));
    return s;
}

TEST(Utf8, CodePointTakesOneTwoOrThreeBytes) {
    EXPECT_EQ(CodePointToUtf8(0x0000), Bytes({0}));
    EXPECT_EQ(CodePointToUtf8(0x007F), Bytes({0x7F}));
    EXPECT_EQ(CodePointToUtf8(0x0080), Bytes({0xC2, 0x80}));
    EXPECT_EQ(CodePointToUtf8(0x00E9), Bytes({0xC3, 0xA9}));
    EXPECT_EQ(CodePointToUtf8(0x07FF), Bytes({0xDF, 0xBF}));
    EXPECT_EQ(CodePointToUtf8(0x0800), Bytes({0xE0, 0xA0, 0x80}));
    EXPECT_EQ(CodePointToUtf8(0x20AC), Bytes({0xE2, 0x82, 0xAC}));
    EXPECT_EQ(CodePointToUtf8(0xFFFF), Bytes({0xEF, 0xBF, 0xBF}));
}

TEST(Utf8, SurrogateBecomesThreeBytesLikeAnyOtherUnit) {
    EXPECT_EQ(CodePointToUtf8(0xD83D), Bytes({0xED, 0xA0, 0xBD}));
    EXPECT_EQ(CodePointToUtf8(0xDE00), Bytes({0xED, 0xB8, 0x80}));
    EXPECT_EQ(StringToUtf8Bytes(u"\xD83D\xDE00"), Bytes({0xED, 0xA0, 0xBD, 0xED, 0xB8, 0x80}));
}

TEST(Utf8, EmptyStaysEmpty) {
    EXPECT_EQ(StringToUtf8Bytes(u""), "");
    EXPECT_EQ(Utf8BytesToString(""), u"");
    EXPECT_EQ(Utf8BytesToStringEx(""), u"");
}

TEST(Utf8, TextIsTheSequenceOfItsCodePoints) {
    std::u16string sAll;
    std::string sExpected;
    for (unsigned n = 0; n < 0x10000; ++n) {
        const auto c = static_cast<char16_t>(n);
        ASSERT_EQ(CodePointToUtf8(c), PlainEncode({&c, 1})) << n;
        sAll.push_back(c);
        sExpected += CodePointToUtf8(c);
    }
    EXPECT_TRUE(StringToUtf8Bytes(sAll) == sExpected);
}

struct LeadCase {
    int bLead;
    std::u16string sExpected; // of the bytes: lead, 82, AC, 'x'
};

TEST(Utf8, WholeFileTableByLeadByte) {
    const LeadCase cases[] = {
        {0x00, Units({0x00, 0x82, 0xAC, 'x'})}, {0x7F, Units({0x7F, 0x82, 0xAC, 'x'})},
        {0x80, Units({0x80, 0x82, 0xAC, 'x'})}, {0xBF, Units({0xBF, 0x82, 0xAC, 'x'})},
        {0xC0, Units({0xC0, 0x82, 0xAC, 'x'})}, {0xC1, Units({0xC1, 0x82, 0xAC, 'x'})},
        {0xC2, Units({0x82, 0xAC, 'x'})},       {0xDB, Units({0x6C2, 0xAC, 'x'})},
        {0xDC, Units({0xDC, 0x82, 0xAC, 'x'})}, {0xDF, Units({0xDF, 0x82, 0xAC, 'x'})},
        {0xE0, Units({0x00AC, 'x'})},           {0xE2, Units({0x20AC, 'x'})},
        {0xEF, Units({0xF0AC, 'x'})},           {0xF0, Units({0x00AC, 'x'})},
        {0xFF, Units({0xF0AC, 'x'})},
    };
    for (const LeadCase& c : cases) {
        // The three-byte leads E0 and F0 carry the low bits of 82 and AC: 2 x 64 + 2C.
        EXPECT_EQ(Utf8BytesToString(Bytes({c.bLead, 0x82, 0xAC, 'x'})), c.sExpected) << c.bLead;
    }
}

TEST(Utf8, PrefixedStringTableByLeadByte) {
    const LeadCase cases[] = {
        {0x7F, Units({0x7F, 0x82, 0xAC, 'x'})}, {0x80, Units({0x80, 0x82, 0xAC, 'x'})},
        {0xC1, Units({0xC1, 0x82, 0xAC, 'x'})}, {0xC2, Units({0x82, 0xAC, 'x'})},
        {0xDB, Units({0x6C2, 0xAC, 'x'})},      {0xDC, Units({0x702, 0xAC, 'x'})},
        {0xDF, Units({0x7C2, 0xAC, 'x'})},      {0xE0, Units({0x00AC, 'x'})},
        {0xEF, Units({0xF0AC, 'x'})},           {0xF0, Units({0xF0, 0x82, 0xAC, 'x'})},
        {0xFF, Units({0xFF, 0x82, 0xAC, 'x'})},
    };
    for (const LeadCase& c : cases) {
        EXPECT_EQ(Utf8BytesToStringEx(Bytes({c.bLead, 0x82, 0xAC, 'x'})), c.sExpected) << c.bLead;
    }
}

TEST(Utf8, OnlyTheLowSixBitsOfFollowingBytesCount) {
    EXPECT_EQ(Utf8BytesToString(Bytes({0xC3, 0x29})), Units({0xE9}));
    EXPECT_EQ(Utf8BytesToString(Bytes({0xC3, 0xE9})), Units({0xE9}));
    EXPECT_EQ(Utf8BytesToString(Bytes({0xE2, 0x02, 0x2C})), Units({0x20AC}));
    EXPECT_EQ(Utf8BytesToStringEx(Bytes({0xE2, 0xC2, 0xEC})), Units({0x20AC}));
}

TEST(Utf8, CharacterAboveTheFirstPlaneIsThreeBytesAndALoneOneInFiles) {
    const std::string sEmoji = Bytes({0xF0, 0x9F, 0x98, 0x80});
    EXPECT_EQ(Utf8BytesToString(sEmoji), Units({0x7D8, 0x80}));
    EXPECT_EQ(Utf8BytesToStringEx(sEmoji), Units({0xF0, 0x9F, 0x98, 0x80}));
}

TEST(Utf8, SequenceThatRunsPastTheEndIsDropped) {
    for (const auto decode : {&Utf8BytesToString, &Utf8BytesToStringEx}) {
        EXPECT_EQ(decode(Bytes({'a', 0xE2, 0x82})), u"a");
        EXPECT_EQ(decode(Bytes({'a', 0xE2})), u"a");
        EXPECT_EQ(decode(Bytes({'a', 0xC3})), u"a");
        EXPECT_EQ(decode(Bytes({0xC3})), u"");
        EXPECT_EQ(decode(Bytes({'a', 0xE2, 0x82, 0xAC})), u"a\u20AC");
    }
    EXPECT_EQ(Utf8BytesToString(Bytes({'a', 0xF0, 0x9F})), u"a");
    EXPECT_EQ(Utf8BytesToStringEx(Bytes({'a', 0xF0, 0x9F})), u"a\u00F0\u009F");
}

TEST(Utf8, AllTextOfTheFirstPlaneComesBackFromPrefixedStrings) {
    std::u16string sAll;
    for (unsigned n = 0; n < 0x10000; ++n)
        sAll.push_back(static_cast<char16_t>(n));
    EXPECT_TRUE(Utf8BytesToStringEx(StringToUtf8Bytes(sAll)) == sAll);
}

TEST(Utf8, WholeFileTableLosesTheUnitsBehindTheLead219) {
    EXPECT_EQ(Utf8BytesToString(StringToUtf8Bytes(u"\u06FF")), u"\u06FF");
    EXPECT_EQ(Utf8BytesToString(StringToUtf8Bytes(u"\u0700")), u"\u00DC\u0080");
    EXPECT_EQ(Utf8BytesToString(StringToUtf8Bytes(u"\u0800")), u"\u0800");
}

// One odd character at every place of a plain text: wherever the blocks of the fast roads begin and end.
TEST(Utf8, OneOddCharacterAtEveryPlaceOfAPlainText) {
    const std::string odd[] = {Bytes({0x80}),       Bytes({0xC3, 0xA9}), Bytes({0xDC, 0x80}), Bytes({0xE2, 0x82, 0xAC}),
                               Bytes({0xF0, 0x9F}), Bytes({0xE2}),       Bytes({0xFF})};
    for (const std::size_t nSize : {0, 1, 15, 16, 30, 31, 32, 33, 34, 47, 62, 63, 64, 65, 66, 95, 96, 97, 130}) {
        for (std::size_t nPlace = 0; nPlace <= nSize; ++nPlace) {
            for (const std::string& sOdd : odd) {
                std::string a(nSize, 'p');
                a.insert(nPlace, sOdd);
                ASSERT_EQ(Utf8BytesToString(a), PlainFiles(a)) << nSize << ' ' << nPlace;
                ASSERT_EQ(Utf8BytesToStringEx(a), PlainPrefixed(a)) << nSize << ' ' << nPlace;
            }
            for (const char16_t c : {u'\u0080', u'\u07FF', u'\u0800', u'\uFFFF'}) {
                std::u16string s(nSize, u'p');
                s.insert(nPlace, 1, c);
                ASSERT_EQ(StringToUtf8Bytes(s), PlainEncode(s)) << nSize << ' ' << nPlace;
            }
        }
    }
}

TEST(Utf8, EveryPairOfBytesEqualsThePlainDecoders) {
    for (int b = 0; b < 256; ++b) {
        for (int b2 = 0; b2 < 256; ++b2) {
            const std::string a = Bytes({b, b2, 0x41, 0xC3, 0xA9, 0x42});
            ASSERT_EQ(Utf8BytesToString(a), PlainFiles(a)) << b << ' ' << b2;
            ASSERT_EQ(Utf8BytesToStringEx(a), PlainPrefixed(a)) << b << ' ' << b2;
        }
    }
}

TEST(Utf8, RandomBytesAndUnitsEqualThePlainForms) {
    const unsigned nSeed = 31;
    std::mt19937 random(nSeed);
    for (int nRound = 0; nRound < 4000; ++nRound) {
        // From mostly plain to all odd; now and then longer than any internal buffer.
        const auto nOdd = static_cast<unsigned>(1 + random() % 60);
        const std::size_t nSize = nRound % 100 == 0 ? random() % 50000 : random() % 300;
        std::string a(nSize, '\0');
        for (char& b : a)
            b = static_cast<char>(random() % nOdd == 0 ? random() % 256 : random() % 128);
        ASSERT_TRUE(Utf8BytesToString(a) == PlainFiles(a)) << nSeed << ' ' << nRound;
        ASSERT_TRUE(Utf8BytesToStringEx(a) == PlainPrefixed(a)) << nSeed << ' ' << nRound;
        std::u16string s(nSize, u'\0');
        const auto nKind = static_cast<unsigned>(random() % 4);
        for (char16_t& c : s) {
            const auto n = static_cast<unsigned>(random());
            c = static_cast<char16_t>(n % nOdd != 0 ? n / 64 % 128 : nKind == 0 ? n / 64 % 2048 : n / 64 % 65536);
        }
        ASSERT_TRUE(StringToUtf8Bytes(s) == PlainEncode(s)) << nSeed << ' ' << nRound;
        const std::string aOfText = PlainEncode(s);
        ASSERT_TRUE(Utf8BytesToString(aOfText) == PlainFiles(aOfText)) << nSeed << ' ' << nRound;
        ASSERT_TRUE(Utf8BytesToStringEx(aOfText) == s) << nSeed << ' ' << nRound;
    }
}

} // namespace
} // namespace orvanta
