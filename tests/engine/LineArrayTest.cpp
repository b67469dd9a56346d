#include "engine/LineArray.h"

#include "tests/support/Unicode.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace orvanta {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::vector<std::string> LinesOf(const LineArray& aLines) {
    std::vector<std::string> lines;
    for (std::size_t n = 0; n < aLines.Count(); ++n)
        lines.push_back(testing::ToUtf8(aLines[n]));
    return lines;
}

TEST(LineArray, ATextIsSplitAtEachPairAndNowhereElse) {
    EXPECT_THAT(LinesOf(LineArray(u"")), IsEmpty());
    EXPECT_THAT(LinesOf(LineArray(u"a")), ElementsAre("a"));
    EXPECT_THAT(LinesOf(LineArray(u"\r\n")), ElementsAre("", ""));
    EXPECT_THAT(LinesOf(LineArray(u"a\r\nb\r\n")), ElementsAre("a", "b", ""));
    EXPECT_THAT(LinesOf(LineArray(u"a\nb\rc\n\rd")), ElementsAre("a\nb\rc\n\rd"));
    EXPECT_THAT(LinesOf(LineArray(u"\r\r\n\n\r\n\n")), ElementsAre("\r", "\n", "\n"));
    EXPECT_THAT(LinesOf(LineArray(u"\n\r\n\r")), ElementsAre("\n", "\r"));
}

TEST(LineArray, JoinPutsALineEndBehindEveryLineTheLastOneToo) {
    EXPECT_EQ(LineArray(u"").Join(), u"");
    EXPECT_EQ(LineArray(u"a").Join(), u"a\r\n");
    EXPECT_EQ(LineArray(u"a\r\n").Join(), u"a\r\n\r\n");
}

TEST(LineArray, AChangedLineMayHoldSeveralAndMovesNoOther) {
    LineArray aLines(u"a\r\nb\r\nc\r\nd");
    aLines.Set(1, u"B\r\nextra");
    aLines.Set(2, u"");
    aLines.Set(1, u"B\r\nother");
    EXPECT_THAT(LinesOf(aLines), ElementsAre("a", "B\r\nother", "", "d"));
    EXPECT_EQ(aLines.Join(), u"a\r\nB\r\nother\r\n\r\nd\r\n");
}

TEST(LineArray, JoinTakesChangedLinesAtBothEnds) {
    LineArray aLines(u"a\r\nb\r\nc");
    aLines.Set(2, u"last");
    aLines.Set(0, u"");
    EXPECT_EQ(aLines.Join(), u"\r\nb\r\nlast\r\n");
}

TEST(LineArray, ALineChangesAgainAndAgainFromPiecesOfItself) {
    LineArray aLines(u"ab\r\nx");
    std::u16string sExpected = u"ab";
    for (int n = 0; n < 5; ++n) {
        aLines.SetPieces(0, {aLines[0].substr(1), u"-", aLines[0]});
        sExpected = sExpected.substr(1) + u"-" + sExpected;
        EXPECT_EQ(aLines[0], sExpected);
    }
    EXPECT_EQ(aLines[1], u"x");
    EXPECT_EQ(aLines.Join(), sExpected + u"\r\nx\r\n");
}

TEST(LineArray, ChangedLinesOfEveryLengthStandSideBySide) {
    std::u16string sText;
    for (int n = 0; n < 60; ++n)
        sText += u"\r\n";
    LineArray aLines(sText);
    std::u16string sExpected;
    for (std::size_t n = 0; n < aLines.Count(); ++n) {
        const std::u16string sLine(n % 7 == 3 ? 20'000 + n : n * 50, static_cast<char16_t>(u'a' + n % 26));
        aLines.Set(n, sLine);
        sExpected += sLine + u"\r\n";
    }
    EXPECT_TRUE(aLines.Join() == sExpected);
}

TEST(LineArray, AMatchIsReportedByLineAndPositionInChangedAndUnchangedLines) {
    LineArray aLines(u"xx\r\n\r\nax\r\nx\r\nbb\r\nxb");
    aLines.Set(3, u"yyx");
    std::vector<std::pair<std::size_t, std::size_t>> found;
    aLines.ForEachMatchInLines<OneOf<u'x'>>(
        0, [&](std::size_t nLine, std::size_t nAt) { found.emplace_back(nLine, nAt); });
    using At = std::pair<std::size_t, std::size_t>;
    EXPECT_THAT(found, ElementsAre(At(0, 0), At(0, 1), At(2, 1), At(3, 2), At(5, 0)));
    found.clear();
    aLines.ForEachMatchInLines<OneOf<u'x'>>(
        3, [&](std::size_t nLine, std::size_t nAt) { found.emplace_back(nLine, nAt); });
    EXPECT_THAT(found, ElementsAre(At(3, 2), At(5, 0)));
    found.clear();
    aLines.ForEachMatchInLines<OneOf<u'x'>>(
        6, [&](std::size_t nLine, std::size_t nAt) { found.emplace_back(nLine, nAt); });
    EXPECT_THAT(found, IsEmpty());
}

} // namespace
} // namespace orvanta
