#include "base/cStringBuilder2.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace orvanta {

// The two parts of a builder, which nothing else can tell apart.
struct cStringBuilder2Parts {
    explicit cStringBuilder2Parts(const cStringBuilder2& builder)
        : nMain(builder.m_sMain.size()), nTail(builder.m_sTail.size()) {}
    bool operator==(const cStringBuilder2Parts&) const = default;
    cStringBuilder2Parts(std::size_t nInMain, std::size_t nInTail) : nMain(nInMain), nTail(nInTail) {}

    std::size_t nMain;
    std::size_t nTail;
};

namespace {

using Parts = cStringBuilder2Parts;

std::u16string Text(std::size_t nLength, char16_t c = u'x') {
    return std::u16string(nLength, c);
}

TEST(cStringBuilder2, ANewOneIsEmpty) {
    const cStringBuilder2 builder;
    EXPECT_EQ(builder.Length(), 0u);
    EXPECT_EQ(builder.ToString(), u"");
}

TEST(cStringBuilder2, AppendingNothingChangesNothing) {
    cStringBuilder2 builder;
    builder.Append(u"");
    EXPECT_EQ(builder.Length(), 0u);
    builder.Append(u"a");
    builder.Append(u"");
    EXPECT_EQ(builder.ToString(), u"a");
    EXPECT_EQ(builder.Length(), 1u);
}

TEST(cStringBuilder2, ToStringLeavesTheBuilderAsItIs) {
    cStringBuilder2 builder;
    builder.TheString(u"main");
    builder.Append(u"tail");
    EXPECT_EQ(builder.ToString(), u"maintail");
    EXPECT_EQ(builder.ToString(), u"maintail");
    EXPECT_EQ(Parts(builder), Parts(4, 4));
}

TEST(cStringBuilder2, TheStringReplacesBothParts) {
    cStringBuilder2 builder;
    builder.Append(Text(2000));
    builder.Append(u"a");
    builder.Append(u"tail");
    builder.TheString(u"new");
    EXPECT_EQ(builder.ToString(), u"new");
    EXPECT_EQ(Parts(builder), Parts(3, 0));
}

TEST(cStringBuilder2, AppendWithNewLineEndsThePieceWithCrLf) {
    cStringBuilder2 builder;
    builder.AppendWithNewLine(u"a");
    builder.AppendWithNewLine(u"");
    EXPECT_EQ(builder.ToString(), u"a\r\n\r\n");
}

TEST(cStringBuilder2, AShortPieceFoldsATailOf1024) {
    cStringBuilder2 builder;
    builder.Append(Text(1023));
    builder.Append(u"a");
    EXPECT_EQ(Parts(builder), Parts(0, 1024));
    builder.Append(u"b");
    EXPECT_EQ(Parts(builder), Parts(1025, 0));
    EXPECT_EQ(builder.ToString(), Text(1023) + u"ab");
}

TEST(cStringBuilder2, APieceOf1024IsShortAndOneOf1025IsLong) {
    cStringBuilder2 ofShort;
    ofShort.Append(Text(1024));
    ofShort.Append(Text(1024));
    EXPECT_EQ(Parts(ofShort), Parts(2048, 0));
    cStringBuilder2 ofLong;
    ofLong.Append(Text(1024));
    ofLong.Append(Text(1025));
    EXPECT_EQ(Parts(ofLong), Parts(0, 2049));
}

TEST(cStringBuilder2, ALongPieceFoldsATailOf8192) {
    cStringBuilder2 below;
    below.Append(Text(8191));
    below.Append(Text(1025));
    EXPECT_EQ(Parts(below), Parts(0, 9216));
    cStringBuilder2 at;
    at.Append(Text(8192));
    at.Append(Text(1025));
    EXPECT_EQ(Parts(at), Parts(9217, 0));
}

TEST(cStringBuilder2, TheLineEndBelongsToThePieceWhenItIsMeasured) {
    cStringBuilder2 builder;
    builder.Append(Text(1024));
    builder.AppendWithNewLine(Text(1023));
    EXPECT_EQ(Parts(builder), Parts(0, 2049));
}

TEST(cStringBuilder2, AnEmptyPieceFoldsTooWhenTheTailIsLong) {
    cStringBuilder2 builder;
    builder.Append(Text(1024));
    builder.Append(u"");
    EXPECT_EQ(Parts(builder), Parts(1024, 0));
    EXPECT_EQ(builder.ToString(), Text(1024));
}

TEST(cStringBuilder2, KeepsTheOrderOfPiecesAcrossFoldsLikeAPlainString) {
    const unsigned nSeed = 1024;
    std::mt19937 random(nSeed);
    for (int nRound = 0; nRound < 60; ++nRound) {
        cStringBuilder2 builder;
        std::u16string sPlain;
        for (int nPiece = 0; nPiece < 120; ++nPiece) {
            const std::size_t nLongest = random() % 4 == 0 ? 9000 : 1500;
            const std::u16string sPiece = Text(random() % nLongest, static_cast<char16_t>(u'a' + random() % 26));
            if (random() % 3 == 0) {
                builder.AppendWithNewLine(sPiece);
                sPlain += sPiece + u"\r\n";
            } else {
                builder.Append(sPiece);
                sPlain += sPiece;
            }
            ASSERT_EQ(builder.Length(), sPlain.size()) << "seed " << nSeed << ", round " << nRound;
        }
        ASSERT_EQ(builder.ToString(), sPlain) << "seed " << nSeed << ", round " << nRound;
    }
}

TEST(cStringBuilder2, ReplaceStringSeesTheWholeTextAcrossTheTwoParts) {
    cStringBuilder2 builder;
    builder.TheString(u"one tw");
    builder.Append(u"o one");
    builder.ReplaceString(u"two", u"2", CompareMode::Binary);
    EXPECT_EQ(builder.ToString(), u"one 2 one");
    EXPECT_EQ(Parts(builder), Parts(9, 0));
}

TEST(cStringBuilder2, ReplaceStringTakesEveryOccurrenceInTheGivenCompareMode) {
    cStringBuilder2 binary;
    binary.Append(u"End END end");
    binary.ReplaceString(u"end", u"x", CompareMode::Binary);
    EXPECT_EQ(binary.ToString(), u"End END x");
    cStringBuilder2 text;
    text.Append(u"End END end Ände ände");
    text.ReplaceString(u"end", u"x", CompareMode::Text);
    text.ReplaceString(u"Ä", u"a", CompareMode::Text);
    EXPECT_EQ(text.ToString(), u"x x x ande ande");
}

TEST(cStringBuilder2, ReplaceStringWithNothingToFindLeavesTheText) {
    for (const CompareMode mode : {CompareMode::Binary, CompareMode::Text}) {
        cStringBuilder2 builder;
        builder.Append(u"abc");
        builder.ReplaceString(u"", u"x", mode);
        EXPECT_EQ(builder.ToString(), u"abc");
    }
}

} // namespace
} // namespace orvanta
