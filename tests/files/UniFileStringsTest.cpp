// Length-prefixed strings of clsUniFile.
#include "tests/files/UniFileFixture.h"

namespace orvanta {
namespace {

class UniFileStrings : public testing::UniFileFixture {
protected:
    std::string BytesOf(std::u16string_view s, FileEncoding iEncoding, bool bExpected = true) {
        clsUniFile out;
        EXPECT_TRUE(out.OpenFileWrite(sPath, false));
        EXPECT_EQ(out.WriteNumCharsAndString(s, iEncoding), bExpected);
        out.CloseFile();
        return folder.Read(sPath);
    }

    // The string of a file with these bytes, and one more behind them; "(failed)" when the read says so.
    std::u16string TextOf(std::string sBytes, FileEncoding iEncoding) {
        EXPECT_TRUE(file.OpenFileRead(folder.Write(u"in.bin", sBytes + "#"), true));
        std::u16string s = u"before";
        const bool bRead = file.ReadNumCharsAndString(s, iEncoding);
        lPos = file.GetFilePos();
        file.CloseFile();
        if (!bRead) {
            EXPECT_EQ(s, u"");
        }
        return bRead ? s : u"(failed)";
    }

    const std::u16string sPath = folder / u"out.bin";
    clsUniFile file;
    std::int64_t lPos = 0; // behind the last read
};

std::string Counted(std::uint8_t n, std::string_view sBytes) {
    return std::string{static_cast<char>(n), 0, 0, 0}.append(sBytes);
}

TEST_F(UniFileStrings, CountIsInBytesWhateverTheEncoding) {
    EXPECT_EQ(BytesOf(u"abc", feAnsi), Counted(3, "abc"));
    EXPECT_EQ(BytesOf(u"a\u20AC", feUnicode), Counted(4, std::string_view("a\0\xAC\x20", 4)));
    EXPECT_EQ(BytesOf(u"abc", feUtf8), Counted(3, "abc"));
}

TEST_F(UniFileStrings, EmptyTextWritesACountOfZeroAndAnswersFalse) {
    for (const FileEncoding iEncoding : {feAnsi, feUnicode, feUtf8}) {
        EXPECT_EQ(BytesOf(u"", iEncoding, false), Counted(0, ""));
        EXPECT_EQ(TextOf(Counted(0, ""), iEncoding), u"(failed)");
        EXPECT_EQ(lPos, 4);
    }
}

TEST_F(UniFileStrings, UnknownEncodingWritesNothingAndReadsTheCountOnly) {
    EXPECT_EQ(BytesOf(u"abc", 3, false), "");
    EXPECT_EQ(BytesOf(u"abc", -1, false), "");
    EXPECT_EQ(TextOf(Counted(3, "abc"), 3), u"(failed)");
    EXPECT_EQ(lPos, 4);
}

TEST_F(UniFileStrings, TextComesBackFromEachEncoding) {
    EXPECT_EQ(TextOf(Counted(3, "abc") + "rest", feAnsi), u"abc");
    EXPECT_EQ(lPos, 7);
    EXPECT_EQ(TextOf(Counted(4, std::string_view("a\0\xAC\x20", 4)), feUnicode), u"a\u20AC");
    EXPECT_EQ(TextOf(Counted(3, std::string_view("a\0\xAC", 3)), feUnicode), u"a"); // an odd last byte is dropped
    EXPECT_EQ(TextOf(Counted(3, "abc"), feUtf8), u"abc");
    const std::u16string sLong(30000, u'z');
    for (const FileEncoding iEncoding : {feAnsi, feUnicode, feUtf8}) {
        EXPECT_EQ(TextOf(BytesOf(sLong, iEncoding), iEncoding), sLong) << iEncoding;
    }
}

TEST_F(UniFileStrings, Utf8SurvivesOnlyWhereTheSystemCodePageKeepsItsBytes) {
    const std::string sBytes = BytesOf(u"\u00E9\u20AC", feUtf8);
    const std::u16string sBack = TextOf(sBytes, feUtf8);
    switch (GetACP()) {
    case 1252:
        EXPECT_EQ(sBytes, Counted(5, "\xC3\xA9\xE2\x82\xAC"));
        EXPECT_EQ(sBack, u"\u00E9\u20AC");
        break;
    case 65001: // each byte's character is encoded once more, and comes back
        EXPECT_EQ(sBytes, Counted(11, "\xC3\x83\xC2\xA9\xC3\xA2\xE2\x80\x9A\xC2\xAC"));
        EXPECT_EQ(sBack, u"\u00E9\u20AC");
        break;
    default: EXPECT_NE(sBack, u"\u00E9\u20AC"); // damaged
    }
}

TEST_F(UniFileStrings, Utf8IsDecodedWithTheTableOfPrefixedStrings) {
    if (GetACP() != 1252) GTEST_SKIP() << "needs a code page that keeps all bytes";
    // DC 80 is a pair here and F0 stands for itself; in whole files it is the other way round.
    EXPECT_EQ(TextOf(Counted(3, "\xDC\x80\xF0"), feUtf8), u"\u0700\u00F0");
}

TEST_F(UniFileStrings, Utf8OfAnotherCodePageIsReadWithTheLookAlikesOfTheWesternOne) {
    if (GetACP() != 932) GTEST_SKIP() << "needs a code page with full-width letters";
    EXPECT_EQ(TextOf(Counted(3, "x\x82\x60"), feUtf8), u"xA"); // 82 60 is the full-width A
}

TEST_F(UniFileStrings, StringThatRunsPastTheEndFails) {
    EXPECT_EQ(TextOf(Counted(200, "abc"), feAnsi), u"(failed)");
    EXPECT_EQ(TextOf(std::string("\xFF\xFF\xFF\x7F") + "abc", feAnsi), u"(failed)");
    EXPECT_EQ(TextOf(std::string("\xFF\xFF\xFF\xFF") + "abc", feAnsi), u"(failed)"); // a count of -1
    EXPECT_EQ(TextOf("\x01", feAnsi), u"(failed)");
}

TEST_F(UniFileStrings, CountFarBeyondTheEndLeavesThePositionThereAndTakesLittleMemory) {
    ASSERT_TRUE(file.OpenFileRead(folder.Write(u"in.bin", "\xFF\xFF\xFF\x7F" + std::string(30000, 'x')), true));
    std::u16string s;
    EXPECT_FALSE(file.ReadNumCharsAndString(s, feAnsi));
    EXPECT_EQ(platform.reads, (std::vector<DWORD>{16384, 13621})); // 16,380 came from the cache: one byte too many
    EXPECT_EQ(file.GetFilePos(), 30004);
}

TEST_F(UniFileStrings, FailedWriteOfTheBytesIsTheResult) {
    ASSERT_TRUE(file.OpenFileWrite(sPath, false));
    file.UseCache(false);
    platform.lWriteError = ERROR_DISK_FULL;
    EXPECT_FALSE(file.WriteNumCharsAndString(u"abc", feAnsi));
    EXPECT_EQ(platform.writes, (std::vector<DWORD>{4, 3}));
}

} // namespace
} // namespace orvanta
