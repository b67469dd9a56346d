#include "base/Text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace orvanta {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(Text, OnlyBlanksAreTrimmedNeverTabs) {
    EXPECT_EQ(TrimBlanks(u"  a b  "), u"a b");
    EXPECT_EQ(TrimBlanksLeft(u"  a  "), u"a  ");
    EXPECT_EQ(TrimBlanksRight(u"  a  "), u"  a");
    EXPECT_EQ(TrimBlanks(u"\t a\t"), u"\t a\t");
    EXPECT_EQ(TrimBlanks(u" \t "), u"\t");
    EXPECT_EQ(TrimBlanks(u"\u00A0a\r\n"), u"\u00A0a\r\n");
}

TEST(Text, TrimmingOfNothingButBlanksLeavesNothing) {
    for (const char16_t* s : {u"", u" ", u"    "}) {
        EXPECT_EQ(TrimBlanks(s), u"");
        EXPECT_EQ(TrimBlanksLeft(s), u"");
        EXPECT_EQ(TrimBlanksRight(s), u"");
    }
}

TEST(Text, LowerAsciiTouchesTheTwentySixLettersOnly) {
    for (unsigned c = 0; c <= 0xFFFF; ++c) {
        const auto unit = static_cast<char16_t>(c);
        const bool bUpper = unit >= u'A' && unit <= u'Z';
        ASSERT_EQ(LowerAscii(unit), bUpper ? unit + 32 : unit) << c;
    }
    EXPECT_EQ(LowerAscii(u"Begin VB.TextBox @[Ä"), u"begin vb.textbox @[Ä");
}

TEST(Text, EqualityWithAsciiFoldedLeavesOtherLettersApart) {
    EXPECT_TRUE(EqualsAsciiFolded(u"Form=", u"fORM="));
    EXPECT_TRUE(EqualsAsciiFolded(u"", u""));
    EXPECT_FALSE(EqualsAsciiFolded(u"Form", u"Form="));
    EXPECT_FALSE(EqualsAsciiFolded(u"Ä", u"ä"));
    EXPECT_FALSE(EqualsAsciiFolded(u"@", u"`"));
    EXPECT_FALSE(EqualsAsciiFolded(u"[", u"{"));
}

struct Pair {
    char16_t cUpper;
    char16_t cLower;
};

TEST(Text, FoldCaseKnowsTheLettersOfTheAnsiCodePages) {
    const Pair table[] = {
        {u'A', u'a'}, {u'Z', u'z'}, {u'À', u'à'}, {u'Þ', u'þ'}, {u'Ā', u'ā'}, {u'Ķ', u'ķ'}, {u'Ĺ', u'ĺ'}, {u'Ň', u'ň'},
        {u'Ŋ', u'ŋ'}, {u'Œ', u'œ'}, {u'Ŷ', u'ŷ'}, {u'Ÿ', u'ÿ'}, {u'Ź', u'ź'}, {u'Ž', u'ž'}, {u'Ƒ', u'ƒ'}, {u'Ơ', u'ơ'},
        {u'Ư', u'ư'}, {u'Ά', u'ά'}, {u'Έ', u'έ'}, {u'Ί', u'ί'}, {u'Ό', u'ό'}, {u'Ύ', u'ύ'}, {u'Ώ', u'ώ'}, {u'Α', u'α'},
        {u'Ρ', u'ρ'}, {u'Σ', u'σ'}, {u'Ϋ', u'ϋ'}, {u'Ѐ', u'ѐ'}, {u'Џ', u'џ'}, {u'А', u'а'}, {u'Я', u'я'}, {u'Ґ', u'ґ'},
    };
    for (const Pair& pair : table) {
        EXPECT_EQ(FoldCase(pair.cUpper), pair.cLower) << static_cast<unsigned>(pair.cUpper);
        EXPECT_EQ(FoldCase(pair.cLower), pair.cLower) << static_cast<unsigned>(pair.cLower);
    }
}

TEST(Text, FoldCaseLeavesWhatHasNoLowerCaseOfItsOwn) {
    for (const char16_t c : {u'@', u'[', u'×', u'÷', u'ß', u'İ', u'ı', u'ĸ', u'ŉ', u'ſ', u'ς', u'\u03A2', u'΅', u'·',
                             u'א', u'中', u'\xD83D', u'\uFFFF'}) {
        EXPECT_EQ(FoldCase(c), c) << static_cast<unsigned>(c);
    }
}

TEST(Text, FoldingTwiceChangesNothingMore) {
    for (unsigned c = 0; c <= 0xFFFF; ++c) {
        const char16_t cOnce = FoldCase(static_cast<char16_t>(c));
        ASSERT_EQ(FoldCase(cOnce), cOnce) << c;
    }
    EXPECT_EQ(FoldCase(u"ÄÖÜ Straße ЖУК"), u"äöü straße жук");
}

TEST(Text, ReplaceAllTakesOccurrencesFromLeftToRightBehindThePreviousOne) {
    EXPECT_EQ(ReplaceAll(u"aaaa", u"aa", u"b"), u"bb");
    EXPECT_EQ(ReplaceAll(u"aaa", u"aa", u"b"), u"ba");
    EXPECT_EQ(ReplaceAll(u"aXbXc", u"X", u""), u"abc");
    EXPECT_EQ(ReplaceAll(u"aXb", u"X", u"XX"), u"aXXb"); // what was put in is not searched again
    EXPECT_EQ(ReplaceAll(u"abc", u"x", u"y"), u"abc");
    EXPECT_EQ(ReplaceAll(u"", u"x", u"y"), u"");
    EXPECT_EQ(ReplaceAll(u"abc", u"abcd", u"y"), u"abc");
    EXPECT_EQ(ReplaceAll(u"xXx", u"x", u"-"), u"-X-");
}

TEST(Text, ReplaceAllWithNothingToFindChangesNothing) {
    EXPECT_EQ(ReplaceAll(u"abc", u"", u"y"), u"abc");
    EXPECT_EQ(ReplaceAllTextCompare(u"abc", u"", u"y"), u"abc");
}

TEST(Text, ReplaceAllWithTextCompareTakesUpperAndLowerCaseAlike) {
    EXPECT_EQ(ReplaceAllTextCompare(u"xXx", u"X", u"-"), u"---");
    EXPECT_EQ(ReplaceAllTextCompare(u"Straße STRAßE", u"straße", u"Weg"), u"Weg Weg");
    EXPECT_EQ(ReplaceAllTextCompare(u"Ärger ärger Arger", u"ÄRGER", u"1"), u"1 1 Arger");
    EXPECT_EQ(ReplaceAllTextCompare(u"keep Case ELSE", u"case", u"CaSe"), u"keep CaSe ELSE");
}

TEST(Text, SplitGivesOnePieceMoreThanSeparators) {
    EXPECT_THAT(Split(u"a\r\nb", u"\r\n"), ElementsAre(u"a", u"b"));
    EXPECT_THAT(Split(u"a\r\n", u"\r\n"), ElementsAre(u"a", u""));
    EXPECT_THAT(Split(u"\r\n\r\n", u"\r\n"), ElementsAre(u"", u"", u""));
    EXPECT_THAT(Split(u"a  b", u" "), ElementsAre(u"a", u"", u"b"));
    EXPECT_THAT(Split(u"a\nb\rc", u"\r\n"), ElementsAre(u"a\nb\rc"));
    EXPECT_THAT(Split(u"aaa", u"aa"), ElementsAre(u"", u"a"));
}

TEST(Text, SplitOfNothingHasNoPieceAtAll) {
    EXPECT_THAT(Split(u"", u"\r\n"), IsEmpty());
    EXPECT_THAT(Split(u"", u""), IsEmpty());
}

TEST(Text, SplitAtNothingGivesTheWhole) {
    EXPECT_THAT(Split(u"abc", u""), ElementsAre(u"abc"));
}

TEST(Text, PiecesOfASplitAreViewsIntoTheText) {
    const std::u16string s = u"one;two";
    const auto pieces = Split(s, u";");
    EXPECT_EQ(pieces[0].data(), s.data());
    EXPECT_EQ(pieces[1].data(), s.data() + 4);
}

TEST(Text, DecimalTextHasASignBelowZeroOnly) {
    EXPECT_EQ(DecimalText(0), u"0");
    EXPECT_EQ(DecimalText(32768), u"32768");
    EXPECT_EQ(DecimalText(-1), u"-1");
    EXPECT_EQ(DecimalText(std::numeric_limits<long long>::min()), u"-9223372036854775808");
    EXPECT_EQ(DecimalText(std::numeric_limits<long long>::max()), u"9223372036854775807");
}

} // namespace
} // namespace orvanta
