#include "files/PathRules.h"

#include "base/Failure.h"
#include "base/Utf8.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace orvanta {
namespace {

// Runs the call and checks the failure that it must raise.
void ExpectFailure(const std::function<void()>& call, std::u16string_view sSource, std::u16string_view sDescription) {
    try {
        call();
        ADD_FAILURE() << "nothing was raised";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.Number(), 0x80040001u);
        EXPECT_EQ(failure.Source(), sSource);
        EXPECT_EQ(failure.Description(), sDescription);
    }
}

void ExpectRunTimeFailure(const std::function<void()>& call, std::uint32_t lNumber) {
    try {
        call();
        ADD_FAILURE() << "nothing was raised";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.Number(), lNumber);
    }
}

constexpr std::uint32_t kOverflow = 6;
constexpr std::uint32_t kInvalidCall = 5;

TEST(PathKinds, AreToldByTheSeparatorThatTheTextHolds) {
    EXPECT_TRUE(ufu_IsLocalPath(u"c:\\a"));
    EXPECT_FALSE(ufu_IsWebPath(u"c:\\a"));
    EXPECT_FALSE(ufu_IsLocalPath(u"a/b"));
    EXPECT_TRUE(ufu_IsWebPath(u"a/b"));
}

TEST(PathKinds, BareNameIsNeitherAndMixedTextIsBoth) {
    for (const char16_t* s : {u"", u"b.txt", u"c:", u"http:"}) {
        EXPECT_FALSE(ufu_IsLocalPath(s));
        EXPECT_FALSE(ufu_IsWebPath(s));
    }
    EXPECT_TRUE(ufu_IsLocalPath(u"a/b\\c"));
    EXPECT_TRUE(ufu_IsWebPath(u"a/b\\c"));
}

TEST(LinkSchemes, EachOneIsKnownInAnyLetterCase) {
    for (const char16_t* s : {u"http://",      u"https://",       u"ftp://",      u"gopher://",          u"mailto:",
                              u"news:",        u"telnet:",        u"javascript:", u"project://",         u"file:///",
                              u"file://",      u"HTTP://",        u"HttpS://x",   u"FTP://host/a",       u"gOPHER://x",
                              u"MailTo:me",    u"NEWS:group",     u"TelNet:host", u"JavaScript:void(0)", u"Project://a",
                              u"FILE:///c:/a", u"File://server/a"}) {
        EXPECT_TRUE(IsLinkUrl(s)) << StringToUtf8Bytes(s);
    }
}

TEST(LinkSchemes, TextThatOnlyResemblesOneIsNoLink) {
    for (const char16_t* s : {u"", u"http", u"http:/", u"http:host", u" http://host", u"xhttp://", u"ftps://host",
                              u"mailto", u"file:/c", u"file:", u"c:\\a", u"javascript", u"a.txt", u"projects://a"}) {
        EXPECT_FALSE(IsLinkUrl(s)) << StringToUtf8Bytes(s);
    }
}

TEST(LinkSchemes, OnlyTheTwoFileFormsAreFileUrls) {
    for (const char16_t* s : {u"file://", u"file:///", u"FILE:///c:/a", u"fIlE://server/a"})
        EXPECT_TRUE(IsFileUrl(s));
    for (const char16_t* s : {u"http://", u"https://", u"ftp://", u"gopher://", u"mailto:", u"news:", u"telnet:",
                              u"javascript:", u"project://", u"file:/", u"file:", u""}) {
        EXPECT_FALSE(IsFileUrl(s));
    }
}

TEST(OneBackSlash, EndsInExactlyOneUnlessNothingElseIsThere) {
    EXPECT_EQ(ufu_OneBackSlash(u""), u"");
    EXPECT_EQ(ufu_OneBackSlash(u"\\"), u"");
    EXPECT_EQ(ufu_OneBackSlash(u"\\\\\\"), u"");
    EXPECT_EQ(ufu_OneBackSlash(u"C:\\a\\\\"), u"C:\\a\\");
    EXPECT_EQ(ufu_OneBackSlash(u"C:\\a"), u"C:\\a\\");
    EXPECT_EQ(ufu_OneBackSlash(u"C:\\"), u"C:\\");
    EXPECT_EQ(ufu_OneBackSlash(u"name"), u"name\\");
    EXPECT_EQ(ufu_OneBackSlash(u"\\\\server\\share"), u"\\\\server\\share\\");
}

TEST(NoBackSlash, TakesOffAllTrailingOnes) {
    EXPECT_EQ(ufu_NoBackSlash(u""), u"");
    EXPECT_EQ(ufu_NoBackSlash(u"\\\\"), u"");
    EXPECT_EQ(ufu_NoBackSlash(u"C:\\"), u"C:");
    EXPECT_EQ(ufu_NoBackSlash(u"C:\\a\\\\b\\\\"), u"C:\\a\\\\b");
    EXPECT_EQ(ufu_NoBackSlash(u"name"), u"name");
}

TEST(OneSlashWeb, EndsInExactlyOneUnlessNothingElseIsThere) {
    EXPECT_EQ(ufu_OneSlashWeb(u""), u"");
    EXPECT_EQ(ufu_OneSlashWeb(u"///"), u"");
    EXPECT_EQ(ufu_OneSlashWeb(u"http://host"), u"http://host/");
    EXPECT_EQ(ufu_OneSlashWeb(u"http://host//"), u"http://host/");
}

TEST(NoSlashWeb, TakesOffAllTrailingOnes) {
    EXPECT_EQ(ufu_NoSlashWeb(u""), u"");
    EXPECT_EQ(ufu_NoSlashWeb(u"//"), u"");
    EXPECT_EQ(ufu_NoSlashWeb(u"http://host//"), u"http://host");
    EXPECT_EQ(ufu_NoSlashWeb(u"name"), u"name");
}

TEST(Separators, EachFamilyRefusesTheOthers) {
    ExpectFailure([] { ufu_OneBackSlash(u"a/b"); }, u"ufu_OneBackSlash", u"Not a local path");
    ExpectFailure([] { ufu_NoBackSlash(u"a/b"); }, u"ufu_NoBackSlash", u"Not a local path");
    ExpectFailure([] { ufu_NoBackSlash(u"c:\\a/b"); }, u"ufu_NoBackSlash", u"Not a local path");
    ExpectFailure([] { ufu_OneSlashWeb(u"a\\b"); }, u"ufu_OneSlashWeb", u"Not a web path");
    ExpectFailure([] { ufu_NoSlashWeb(u"a\\b"); }, u"ufu_NoSlashWeb", u"Not a web path");
    ExpectFailure([] { ufu_NoSlashWeb(u"http://a\\b"); }, u"ufu_NoSlashWeb", u"Not a web path");
}

TEST(Separators, AreTakenOffTextOfAnyLength) {
    const std::u16string sLong(40000, u'a');
    EXPECT_EQ(ufu_OneBackSlash(sLong + u"\\\\"), sLong + u"\\");
    EXPECT_EQ(ufu_OneSlashWeb(sLong + u"//"), sLong + u"/");
}

TEST(FilePath, IsWhatStandsUpToTheLastBackslash) {
    EXPECT_EQ(ufu_FilePath(u"c:\\a\\b.txt", true), u"c:\\a\\");
    EXPECT_EQ(ufu_FilePath(u"c:\\a\\b.txt", false), u"c:\\a");
    EXPECT_EQ(ufu_FilePath(u"c:\\a\\", true), u"c:\\a\\");
    EXPECT_EQ(ufu_FilePath(u"c:\\b.txt", false), u"c:");
    EXPECT_EQ(ufu_FilePath(u"c:\\a\\\\b.txt", true), u"c:\\a\\");
    EXPECT_EQ(ufu_FilePath(u"\\\\server\\share\\\u0416.txt", false), u"\\\\server\\share");
}

TEST(FilePath, OfABareNameIsEmpty) {
    for (const bool bFinalBackSlash : {false, true}) {
        EXPECT_EQ(ufu_FilePath(u"b.txt", bFinalBackSlash), u"");
        EXPECT_EQ(ufu_FilePath(u"", bFinalBackSlash), u"");
        EXPECT_EQ(ufu_FilePath(u"\\b.txt", bFinalBackSlash), u"");
    }
}

TEST(FilePath, RefusesAWebPath) {
    ExpectFailure([] { ufu_FilePath(u"http://host/a", true); }, u"ufu_FilePath", u"Not a local path");
    ExpectFailure([] { ufu_FilePath(u"a/b", false); }, u"ufu_FilePath", u"Not a local path");
}

TEST(LocalizePath, FileUrlLosesEverythingUpToItsSlashes) {
    EXPECT_EQ(ufu_LocalizePath(u"file:///c:/a%20b/x.txt", true), u"c:\\a b\\x.txt");
    EXPECT_EQ(ufu_LocalizePath(u"FILE:///c|/a/x.txt", true), u"c:\\a\\x.txt");
    EXPECT_EQ(ufu_LocalizePath(u"file://server/share/x", true), u"server\\share\\x");
    EXPECT_EQ(ufu_LocalizePath(u"file:///", true), u"");
    EXPECT_EQ(ufu_LocalizePath(u"file://", true), u"");
}

// The three slashes are looked for in the whole text, not only behind the scheme.
TEST(LocalizePath, FileUrlWithThreeSlashesFurtherOnLosesAllBeforeThem) {
    EXPECT_EQ(ufu_LocalizePath(u"file://a:///b/c", true), u"b\\c");
}

TEST(LocalizePath, OtherLinkRaisesOnlyWhenAskedTo) {
    ExpectFailure([] { ufu_LocalizePath(u"http://host/a", true); }, u"ufu_LocalizePath", u"Cannot Localize Link!");
    ExpectFailure([] { ufu_LocalizePath(u"MAILTO:me", true); }, u"ufu_LocalizePath", u"Cannot Localize Link!");
    EXPECT_EQ(ufu_LocalizePath(u"http://host/a", false), u"http:\\\\host\\a");
    EXPECT_EQ(ufu_LocalizePath(u"host/a", true), u"host\\a");
}

// The smaller position of the two marks decides, and an absent mark has position 0.
TEST(LocalizePath, TailBehindASingleMarkIsKept) {
    EXPECT_EQ(ufu_LocalizePath(u"a/b?q=1", true), u"a\\b?q=1");
    EXPECT_EQ(ufu_LocalizePath(u"a/b#top", true), u"a\\b#top");
    EXPECT_EQ(ufu_LocalizePath(u"a/b?q=1?r=2", true), u"a\\b?q=1?r=2");
}

TEST(LocalizePath, TailBehindTheFirstOfBothMarksIsCut) {
    EXPECT_EQ(ufu_LocalizePath(u"a/b?q=1#top", true), u"a\\b");
    EXPECT_EQ(ufu_LocalizePath(u"a/b#top?q=1", true), u"a\\b");
    EXPECT_EQ(ufu_LocalizePath(u"?#", true), u"");
}

TEST(LocalizePath, ReplacesBarBlankAndAmpersand) {
    EXPECT_EQ(ufu_LocalizePath(u"c|\\a%20b%20c&amp;d", true), u"c:\\a b c&d");
    EXPECT_EQ(ufu_LocalizePath(u"&amp;amp;", true), u"&amp;") << "each occurrence once";
    EXPECT_EQ(ufu_LocalizePath(u"%21&AMP;", true), u"%21&AMP;") << "only these two, in this letter case";
    EXPECT_EQ(ufu_LocalizePath(u"&amp%20;", true), u"&amp ;");
}

TEST(FileName, IsWhatStandsBehindTheLastBackslash) {
    EXPECT_EQ(ufu_FileName(u"c:\\a\\b.txt"), u"b.txt");
    EXPECT_EQ(ufu_FileName(u"b.txt"), u"b.txt");
    EXPECT_EQ(ufu_FileName(u"c:\\a\\"), u"");
    EXPECT_EQ(ufu_FileName(u""), u"");
    EXPECT_EQ(ufu_FileName(u"c:\\\u65E5\u672C\\\u0416.txt"), u"\u0416.txt");
}

TEST(FileName, OfALinkIsThatOfItsLocalForm) {
    EXPECT_EQ(ufu_FileName(u"http://host/dir/page.htm"), u"page.htm");
    EXPECT_EQ(ufu_FileName(u"file:///c:/a%20b/x.txt"), u"x.txt");
    EXPECT_EQ(ufu_FilePath(ufu_LocalizePath(u"file:///c:/a%20b/x.txt", false), true), u"c:\\a b\\");
    EXPECT_EQ(ufu_FileName(u"c:\\dir/a%20b.txt"), u"a b.txt");
}

TEST(FileName, OfALinkKeepsAQueryWithoutFragmentAndEndsBeforeOneThatHasIt) {
    EXPECT_EQ(ufu_FileName(u"http://host/page.htm?q=1"), u"page.htm?q=1");
    EXPECT_EQ(ufu_FileName(u"http://host/page.htm?q=1#top"), u"page.htm");
    EXPECT_EQ(ufu_FileName(u"http://host/page.htm#top?q=1"), u"page.htm");
}

TEST(FileExt, IsWhatStandsBehindTheLastDotOfTheName) {
    EXPECT_EQ(ufu_FileExt(u"c:\\a\\b.tar.gz"), u"gz");
    EXPECT_EQ(ufu_FileExt(u"c:\\a.b\\c"), u"");
    EXPECT_EQ(ufu_FileExt(u"c:\\a.b\\c.d"), u"d");
    EXPECT_EQ(ufu_FileExt(u"noext"), u"");
    EXPECT_EQ(ufu_FileExt(u"ends."), u"");
    EXPECT_EQ(ufu_FileExt(u".profile"), u"profile");
    EXPECT_EQ(ufu_FileExt(u"http://host/a.b/page.htm?q=1"), u"htm?q=1");
    EXPECT_EQ(ufu_FileExt(u"http://host.org/page"), u"");
    EXPECT_EQ(ufu_FileExt(u""), u"");
}

TEST(FileNameNoExt, IsCutAtTheLastDot) {
    EXPECT_EQ(ufu_FileNameNoExt(u"c:\\a\\b.tar.gz"), u"b.tar");
    EXPECT_EQ(ufu_FileNameNoExt(u"c:\\a.b\\c"), u"c");
    EXPECT_EQ(ufu_FileNameNoExt(u"noext"), u"noext");
    EXPECT_EQ(ufu_FileNameNoExt(u"c:\\a\\.profile"), u"");
    EXPECT_EQ(ufu_FileNameNoExt(u""), u"");
}

TEST(PathPositions, BehindTheSixteenBitRangeRaiseOverflow) {
    const std::u16string sFits(32766, u'a');
    const std::u16string sTooLong(32767, u'a');
    EXPECT_EQ(ufu_FilePath(sFits + u"\\b", false), sFits);
    EXPECT_EQ(ufu_FileName(sFits + u"\\b"), u"b");
    EXPECT_EQ(ufu_FileExt(sFits + u".b"), u"b");
    EXPECT_EQ(ufu_FileNameNoExt(sFits + u".b"), sFits);
    EXPECT_EQ(ufu_LocalizePath(u"#" + sFits.substr(1) + u"?", true), u"");
    EXPECT_EQ(SplitPathLevels(u"\\\\" + sFits.substr(2) + u"\\b").vParts.size(), 1u);

    ExpectRunTimeFailure([&] { ufu_FilePath(sTooLong + u"\\b", false); }, kOverflow);
    ExpectRunTimeFailure([&] { ufu_FileName(sTooLong + u"\\b"); }, kOverflow);
    ExpectRunTimeFailure([&] { ufu_FileExt(sTooLong + u".b"); }, kOverflow);
    ExpectRunTimeFailure([&] { ufu_FileExt(u".b" + sTooLong + u"\\"); }, kOverflow);
    ExpectRunTimeFailure([&] { ufu_FileNameNoExt(sTooLong + u".b"); }, kOverflow);
    ExpectRunTimeFailure([&] { ufu_LocalizePath(sTooLong + u"?", true); }, kOverflow);
    ExpectRunTimeFailure([&] { ufu_LocalizePath(sTooLong + u"#", true); }, kOverflow);
    ExpectRunTimeFailure([&] { ufu_LocalizePath(u"file://" + sTooLong + u":///", true); }, kOverflow);
    ExpectRunTimeFailure([&] { SplitPathLevels(u"\\\\" + sTooLong + u"\\b"); }, kOverflow);
}

TEST(PathPositions, LongTextWithoutSeparatorHasNone) {
    const std::u16string sLong(40000, u'a');
    EXPECT_EQ(ufu_FileName(sLong), sLong);
    EXPECT_EQ(ufu_FilePath(sLong, true), u"");
    EXPECT_EQ(ufu_FileExt(sLong), u"");
}

struct LevelsRow {
    const char16_t* sPath;
    const char16_t* sPrefix;
    std::vector<std::u16string> vParts;
};

TEST(PathLevelsOf, SplitsIntoPrefixAndParts) {
    const LevelsRow rows[] = {
        {u"C:\\a\\b", u"", {u"C:", u"a", u"b"}},
        {u"C:\\a\\b\\", u"", {u"C:", u"a", u"b"}},
        {u"C:\\", u"", {u"C:"}},
        {u"a", u"", {u"a"}},
        {u"", u"", {}},
        {u"C:\\a\\\\b", u"", {u"C:", u"a"}}, // an empty part ends the walk
        {u"\\a\\b", u"", {}},
        {u"\\\\server\\share\\a", u"\\\\server\\", {u"share", u"a"}}, // the server is never made
        {u"\\\\server\\", u"\\\\server\\", {}},
        {u"\\\\server", u"\\\\", {u"server"}},
        {u"\\\\", u"\\\\", {}},
        {u"\\\\\\a", u"\\\\\\", {u"a"}},
        {u"\\\\?\\C:\\a", u"\\\\?\\", {u"C:", u"a"}},
    };
    for (std::size_t n = 0; n < std::size(rows); ++n) {
        const PathLevels levels = SplitPathLevels(rows[n].sPath);
        EXPECT_EQ(levels.sPrefix, rows[n].sPrefix) << "row " << n;
        EXPECT_EQ(levels.vParts, rows[n].vParts) << "row " << n;
    }
}

TEST(CommandLine, ArgumentsStandBehindTheQuotedName) {
    EXPECT_EQ(ArgumentsOfCommandLine(u"\"C:\\a b\\p.exe\"  one \"two\" "), u"one \"two\" ");
    EXPECT_EQ(ArgumentsOfCommandLine(u"\"p.exe\""), u"");
    EXPECT_EQ(ArgumentsOfCommandLine(u"\"p\"x y"), u"x y");
    EXPECT_EQ(ArgumentsOfCommandLine(u"\"\" a"), u"a");
}

TEST(CommandLine, ArgumentsStandBehindTheFirstBlankOfAPlainName) {
    EXPECT_EQ(ArgumentsOfCommandLine(u"p.exe   one two"), u"one two");
    EXPECT_EQ(ArgumentsOfCommandLine(u"p.exe "), u"");
    EXPECT_EQ(ArgumentsOfCommandLine(u"p\"q r\" s"), u"r\" s") << "only a leading quote counts";
    EXPECT_EQ(ArgumentsOfCommandLine(u" p.exe a"), u"p.exe a");
}

TEST(CommandLine, OnlyBlanksAreTakenOffTheArguments) {
    EXPECT_EQ(ArgumentsOfCommandLine(u"p  \ta"), u"\ta");
}

TEST(CommandLine, WithAQuoteThatIsNeverClosedIsAllName) {
    EXPECT_EQ(ArgumentsOfCommandLine(u"\"p.exe one"), u"");
}

TEST(CommandLine, WithoutBlankAndQuoteIsAnArgumentFailure) {
    ExpectRunTimeFailure([] { ArgumentsOfCommandLine(u"p.exe"); }, kInvalidCall);
    ExpectRunTimeFailure([] { ArgumentsOfCommandLine(u""); }, kInvalidCall);
    ExpectRunTimeFailure([] { ArgumentsOfCommandLine(u"p\ta"); }, kInvalidCall);
}

} // namespace
} // namespace orvanta
