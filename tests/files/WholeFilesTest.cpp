// Whole text files.
#include "files/WholeFiles.h"

#include "base/Failure.h"
#include "plumbing/SystemAnsiCodePage.h"
#include "tests/files/UniFileFixture.h"

namespace orvanta {
namespace {

using Sizes = std::vector<DWORD>;

class WholeFiles : public testing::UniFileFixture {
protected:
    // The text of a file with these bytes; "(failed)" when it cannot be read.
    std::u16string TextOf(std::string_view sBytes) {
        std::u16string s = u"before";
        const bool bRead = ufu_TextFileToString(folder.Write(u"in.txt", sBytes), s, false);
        if (!bRead) {
            EXPECT_EQ(s, u"");
        }
        return bRead ? s : u"(failed)";
    }

    FileEncoding EncodingOf(std::string_view sBytes) { return ufu_GetFileEncoding(folder.Write(u"in.txt", sBytes)); }

    // The bytes of a file with this text.
    std::string BytesOf(std::u16string_view s, FileEncoding iEncoding) {
        const std::u16string sPath =
            folder.Write(u"out.txt", "what stood here before, and longer than the new content");
        EXPECT_TRUE(ufu_StringToTextFile(sPath, s, iEncoding, false));
        return folder.Read(sPath);
    }

    static void ExpectRaised(const Failure& failure, std::u16string_view sSource, std::u16string_view sDescription) {
        EXPECT_EQ(failure.Number(), 0x80040001u);
        EXPECT_EQ(failure.Source(), sSource);
        EXPECT_EQ(failure.Description(), sDescription);
    }
};

TEST_F(WholeFiles, FirstByteAloneDecidesTheEncoding) {
    EXPECT_EQ(EncodingOf("\xFF\xFE"), feUnicode);
    EXPECT_EQ(EncodingOf("\xFFxyz"), feUnicode);
    EXPECT_EQ(EncodingOf("\xEF\xBB\xBF"), feUtf8);
    EXPECT_EQ(EncodingOf("\xEFxyz"), feUtf8);
    EXPECT_EQ(EncodingOf("\xFE\xFF"), feAnsi); // big-endian UTF-16 is not known
    EXPECT_EQ(EncodingOf("\xF0x"), feAnsi);
    EXPECT_EQ(EncodingOf("text"), feAnsi);
}

TEST_F(WholeFiles, FilesWithoutAFirstByteToReadAreAnsi) {
    EXPECT_EQ(EncodingOf(""), feAnsi);
    EXPECT_EQ(EncodingOf("\xFF"), feAnsi); // the one byte cannot be fetched
    EXPECT_EQ(EncodingOf("\xEF"), feAnsi);
    EXPECT_EQ(ufu_GetFileEncoding(folder / u"missing.txt"), feAnsi);
    EXPECT_EQ(ufu_GetFileEncoding(u""), feAnsi);
}

TEST_F(WholeFiles, EmptyFileReadsAsEmptyText) {
    EXPECT_EQ(TextOf(""), u"");
}

TEST_F(WholeFiles, MarkAloneReadsAsEmptyText) {
    EXPECT_EQ(TextOf("\xFF\xFE"), u"");
    EXPECT_EQ(TextOf("\xEF\xBB\xBF"), u"");
}

TEST_F(WholeFiles, HalfAMarkOfUtf8CannotBeRead) {
    EXPECT_EQ(TextOf("\xEF\xBB"), u"(failed)");
    EXPECT_EQ(TextOf("\xFF\xAA"), u""); // two bytes are skipped, whatever they are
}

TEST_F(WholeFiles, OneByteFileCannotBeRead) {
    EXPECT_EQ(TextOf("x"), u"(failed)");
    EXPECT_EQ(TextOf("xy"), u"xy");
}

TEST_F(WholeFiles, MarkedFileOf16385BytesCannotBeReadAndItsNeighboursCan) {
    const std::string sUnits(16400, ' ');
    EXPECT_EQ(TextOf("\xFF\xFE" + sUnits.substr(0, 16382)).size(), 8191u);
    EXPECT_EQ(TextOf("\xFF\xFE" + sUnits.substr(0, 16383)), u"(failed)");
    EXPECT_EQ(TextOf("\xFF\xFE" + sUnits.substr(0, 16384)).size(), 8192u);
    EXPECT_EQ(TextOf("\xEF\xBB\xBF" + sUnits.substr(0, 16381)).size(), 16381u);
    EXPECT_EQ(TextOf("\xEF\xBB\xBF" + sUnits.substr(0, 16382)), u"(failed)");
    EXPECT_EQ(TextOf("\xEF\xBB\xBF" + sUnits.substr(0, 16383)).size(), 16383u);
    EXPECT_EQ(TextOf(sUnits.substr(0, 16385)).size(), 16385u); // an ANSI file is fetched past the cache
}

TEST_F(WholeFiles, UnicodeIsTakenAsItStandsWithoutAnOddLastByte) {
    EXPECT_EQ(TextOf(std::string("\xFF\xFE\x41\0\xAC\x20\x3D\xD8", 8)), u"A\u20AC\xD83D");
    EXPECT_EQ(TextOf(std::string("\xFF\xFE\x41\0\x42", 5)), u"A");
    EXPECT_EQ(TextOf("\xFF\xFE\x42"), u"");
}

TEST_F(WholeFiles, FileThatBeginsWith239IsDecodedAsUtf8FromTheFourthByteOn) {
    EXPECT_EQ(TextOf("\xEF__caf\xC3\xA9"), u"caf\u00E9");
    EXPECT_EQ(TextOf("\xEF\xBB\xBF\xD7\x90 \xE2\x82\xAC \xE9 plain"), std::u16string(u"\u05D0 \u20AC \u9830lain"));
}

TEST_F(WholeFiles, BrokenLastSequenceEndsTheText) {
    EXPECT_EQ(TextOf("\xEF\xBB\xBFprice \xE2\x82"), u"price ");
    EXPECT_EQ(TextOf("\xEF\xBB\xBFprice \xE2"), u"price ");
    EXPECT_EQ(TextOf("\xEF\xBB\xBF\xC3"), u"");
}

TEST_F(WholeFiles, AnsiFileIsConvertedWholeByTheSystemCodePage) {
    EXPECT_EQ(TextOf("plain\r\ntext"), u"plain\r\ntext");
    const std::string sLong = std::string(50000, 'x') + "\xE9\xE9";
    switch (GetACP()) {
    case 1252:
        EXPECT_EQ(TextOf("caf\xE9 \x80"), u"caf\u00E9 \u20AC");
        EXPECT_EQ(TextOf(sLong), std::u16string(50000, u'x') + u"\u00E9\u00E9");
        break;
    case 1251:
        EXPECT_EQ(TextOf("\xC6\xE9"), u"\u0416\u0439");
        EXPECT_EQ(TextOf(sLong), std::u16string(50000, u'x') + u"\u0439\u0439");
        break;
    case 932: EXPECT_EQ(TextOf("\x93\xFA\x96{ x"), u"\u65E5\u672C x"); break;
    case 65001: EXPECT_EQ(TextOf("\xE6\x97\xA5 \xF0\x9F\x98\x80"), u"\u65E5 \xD83D\xDE00"); break;
    default: FAIL() << GetACP();
    }
}

TEST_F(WholeFiles, ReadMakesTheCallsOfDetectionAndOneReadOfTheBody) {
    const std::u16string sPath = folder.Write(u"calls.txt", "\xFF\xFE" + std::string(40000, ' '));
    std::u16string s;
    ASSERT_TRUE(ufu_TextFileToString(sPath, s, false));
    // The cache has 16,382 of the 40,000 bytes when the mark is read.
    EXPECT_EQ(platform.reads, (Sizes{16384, 16384, 23618}));
    ASSERT_EQ(platform.opens.size(), 2u);
    for (const auto& open : platform.opens)
        EXPECT_EQ(open.iShareMode, 1u);
    folder.Write(u"calls.txt", std::string(40000, ' '));
    platform.Forget();
    ASSERT_TRUE(ufu_TextFileToString(sPath, s, false));
    EXPECT_EQ(platform.reads, (Sizes{16384, 40000}));
}

TEST_F(WholeFiles, MissingFileFailsAndRaisesOnlyWhenAsked) {
    std::u16string s = u"before";
    EXPECT_FALSE(ufu_TextFileToString(folder / u"missing.txt", s, false));
    EXPECT_EQ(s, u"");
    s = u"before";
    try {
        ufu_TextFileToString(folder / u"missing.txt", s, true);
        FAIL() << "nothing raised";
    } catch (const Failure& failure) {
        ExpectRaised(failure, u"ufu_TextFileToString", u"Error reading file");
    }
    EXPECT_EQ(s, u"");
    EXPECT_NO_THROW(ufu_TextFileToString(folder.Write(u"in.txt", "ab"), s, true));
}

TEST_F(WholeFiles, FileOpenElsewhereWithoutSharingFailsTheRead) {
    const std::u16string sPath = folder.Write(u"locked.txt", "text");
    clsUniFile other;
    ASSERT_TRUE(other.OpenFileRead(sPath, false));
    std::u16string s = u"before";
    EXPECT_FALSE(ufu_TextFileToString(sPath, s, false));
    EXPECT_EQ(s, u"");
    EXPECT_EQ(ufu_GetFileEncoding(sPath), feAnsi);
    EXPECT_EQ(ufu_FileLen(sPath), 0);
    other.CloseFile();
    ASSERT_TRUE(other.OpenFileRead(sPath, true));
    EXPECT_TRUE(ufu_TextFileToString(sPath, s, false));
    EXPECT_EQ(s, u"text");
}

TEST_F(WholeFiles, ReadErrorOfThePlatformFailsTheRead) {
    const std::u16string sPath = folder.Write(u"bad.txt", std::string(30000, 'x'));
    platform.lReadError = ERROR_CRC;
    std::u16string s = u"before";
    EXPECT_FALSE(ufu_TextFileToString(sPath, s, false));
    EXPECT_EQ(s, u"");
    platform.lReadError = 0;
    platform.lReadLimit = 20000;
    EXPECT_FALSE(ufu_TextFileToString(sPath, s, false));
    EXPECT_EQ(s, u"");
    EXPECT_THROW(ufu_TextFileToString(sPath, s, true), Failure);
}

TEST_F(WholeFiles, TextMayBeReadIntoTheVariableThatHoldsTheName) {
    std::u16string s = folder.Write(u"self.txt", "text");
    EXPECT_TRUE(ufu_TextFileToString(s, s, false));
    EXPECT_EQ(s, u"text");
}

TEST_F(WholeFiles, EmptyTextWritesTheMarkAlone) {
    EXPECT_EQ(BytesOf(u"", feUnicode), "\xFF\xFE");
    EXPECT_EQ(BytesOf(u"", feUtf8), "\xEF\xBB\xBF");
    EXPECT_EQ(BytesOf(u"", feAnsi), "");
}

TEST_F(WholeFiles, TextIsWrittenBehindTheMarkOfItsEncoding) {
    EXPECT_EQ(BytesOf(u"A\u20AC\xD83D", feUnicode), std::string("\xFF\xFE\x41\0\xAC\x20\x3D\xD8", 8));
    EXPECT_EQ(BytesOf(u"A\u00E9\u20AC\xD83D\xDE00", feUtf8), "\xEF\xBB\xBF"
                                                             "A\xC3\xA9\xE2\x82\xAC\xED\xA0\xBD\xED\xB8\x80");
    EXPECT_EQ(BytesOf(u"plain\r\n", feAnsi), "plain\r\n");
    EXPECT_EQ(BytesOf(u"x", feAnsi), "x");
}

TEST_F(WholeFiles, AnsiTextTakesTheCodePageAndItsReplacement) {
    const std::u16string s = u"\u00E9 \u0416 \u65E5";
    switch (GetACP()) {
    case 1252: EXPECT_EQ(BytesOf(s, feAnsi), "\xE9 ? ?"); break;
    case 1251: EXPECT_EQ(BytesOf(s, feAnsi).substr(1), " \xC6 ?"); break;
    case 932: EXPECT_EQ(BytesOf(s, feAnsi).substr(1), " \x84G \x93\xFA"); break;
    case 65001: EXPECT_EQ(BytesOf(s, feAnsi), "\xC3\xA9 \xD0\x96 \xE6\x97\xA5"); break;
    default: FAIL() << GetACP();
    }
}

TEST_F(WholeFiles, LargeTextIsOneWriteBehindTheMark) {
    const std::u16string sPath = folder / u"large.txt";
    ASSERT_TRUE(ufu_StringToTextFile(sPath, std::u16string(20000, u'x'), feUnicode, false));
    EXPECT_EQ(platform.writes, (Sizes{2, 40000}));
    platform.Forget();
    ASSERT_TRUE(ufu_StringToTextFile(sPath, std::u16string(20000, u'x'), feAnsi, false));
    EXPECT_EQ(platform.writes, Sizes{20000});
    const auto& open = platform.opens.back();
    EXPECT_EQ(open.iAccess, 0x40000000u);
    EXPECT_EQ(open.iCreationDisposition, 2u);
    EXPECT_EQ(open.iShareMode, 2u);
    platform.Forget();
    ASSERT_TRUE(ufu_StringToTextFile(sPath, u"abc", feUtf8, false));
    EXPECT_EQ(platform.writes, Sizes{6}); // pends until the file is closed
}

TEST_F(WholeFiles, ValueThatIsNoEncodingFailsWithoutTouchingTheFile) {
    const std::u16string sPath = folder.Write(u"kept.txt", "kept");
    for (const FileEncoding iEncoding : {3, -1, 256}) {
        EXPECT_FALSE(ufu_StringToTextFile(sPath, u"new", iEncoding, false)) << iEncoding;
        EXPECT_THROW(ufu_StringToTextFile(sPath, u"new", iEncoding, true), Failure) << iEncoding;
    }
    EXPECT_TRUE(platform.opens.empty());
    EXPECT_EQ(folder.Read(sPath), "kept");
}

TEST_F(WholeFiles, FileThatCannotBeOpenedForWritingFailsAndRaisesOnlyWhenAsked) {
    EXPECT_FALSE(ufu_StringToTextFile(folder.Path(), u"x", feAnsi, false)); // a folder stands there
    EXPECT_FALSE(ufu_StringToTextFile(folder / u"missing\\a.txt", u"x", feAnsi, false));
    const std::u16string sPath = folder.Write(u"locked.txt", "kept");
    clsUniFile other;
    ASSERT_TRUE(other.OpenFileRead(sPath, true));
    EXPECT_FALSE(ufu_StringToTextFile(sPath, u"", feAnsi, false));
    try {
        ufu_StringToTextFile(sPath, u"x", feUnicode, true);
        FAIL() << "nothing raised";
    } catch (const Failure& failure) {
        ExpectRaised(failure, u"ufu_StringToTextFile", u"Error writing file");
    }
    EXPECT_EQ(folder.Read(sPath), "kept");
}

TEST_F(WholeFiles, FullDiskFailsALargeWriteAndLeavesADamagedFile) {
    const std::u16string sPath = folder.Write(u"full.txt", "old content");
    platform.lWriteError = ERROR_DISK_FULL;
    EXPECT_FALSE(ufu_StringToTextFile(sPath, std::u16string(20000, u'x'), feAnsi, false));
    EXPECT_THROW(ufu_StringToTextFile(sPath, std::u16string(20000, u'x'), feAnsi, true), Failure);
    EXPECT_EQ(folder.Read(sPath), "");
    platform.lWriteError = 0;
    platform.lWriteLimit = 5000;
    EXPECT_FALSE(ufu_StringToTextFile(sPath, std::u16string(20000, u'x'), feAnsi, false));
    EXPECT_EQ(folder.Read(sPath), std::string(5000, 'x'));
}

TEST_F(WholeFiles, FullDiskStaysUnnoticedWhileTheTextFitsTheCache) {
    const std::u16string sPath = folder.Write(u"full.txt", "old content");
    platform.lWriteError = ERROR_DISK_FULL;
    EXPECT_TRUE(ufu_StringToTextFile(sPath, std::u16string(16384, u'x'), feAnsi, false));
    EXPECT_EQ(folder.Read(sPath), "");
}

TEST_F(WholeFiles, TextComesBackInEveryEncoding) {
    std::u16string sText;
    for (int n = 0; n < 60000; ++n)
        sText.push_back(n % 70 == 69 ? u'\n' : static_cast<char16_t>(u' ' + n % 90));
    for (const FileEncoding iEncoding : {feAnsi, feUnicode, feUtf8}) {
        const std::u16string sPath = folder / u"round.txt";
        ASSERT_TRUE(ufu_StringToTextFile(sPath, sText, iEncoding, true));
        EXPECT_EQ(ufu_GetFileEncoding(sPath), iEncoding);
        std::u16string sBack;
        ASSERT_TRUE(ufu_TextFileToString(sPath, sBack, true));
        EXPECT_TRUE(sBack == sText) << iEncoding;
    }
}

TEST_F(WholeFiles, FileLenIsTheSizeOrZero) {
    EXPECT_EQ(ufu_FileLen(folder.Write(u"a.bin", std::string(16385, 'x'))), 16385);
    EXPECT_EQ(ufu_FileLen(folder.Write(u"a.bin", "")), 0);
    EXPECT_EQ(ufu_FileLen(folder / u"missing.bin"), 0);
    EXPECT_EQ(ufu_FileLen(u""), 0);
}

} // namespace
} // namespace orvanta
