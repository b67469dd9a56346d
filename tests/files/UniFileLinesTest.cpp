// Lines, marks and length-prefixed strings of clsUniFile.
#include "tests/files/UniFileFixture.h"
#include "tests/reference/PlainTextLines.h"

#include <functional>
#include <random>

namespace orvanta {
namespace {

using Reader = bool (clsUniFile::*)(std::u16string&);
using Writer = bool (clsUniFile::*)(std::u16string_view);

// The bytes of ASCII text as UTF-16.
std::string Wide(std::string_view s) {
    std::string sOut;
    for (const char c : s)
        sOut.append({c, '\0'});
    return sOut;
}

class UniFileLines : public testing::UniFileFixture {
protected:
    void Open(std::string_view sBytes) {
        file.CloseFile();
        ASSERT_TRUE(file.OpenFileRead(folder.Write(u"lines.txt", sBytes), true));
        platform.Forget();
    }

    // One line per entry, the result in front: "+" for true.
    std::vector<std::u16string> Lines(Reader reader) {
        std::vector<std::u16string> all;
        for (int n = 0; n < 100; ++n) {
            std::u16string s = u"(unassigned)";
            const bool bMore = (file.*reader)(s);
            all.push_back((bMore ? u"+" : u"-") + s);
            if (!bMore) break;
        }
        return all;
    }

    std::string Written(const std::function<bool(clsUniFile&)>& write) {
        const std::u16string sPath = folder / u"out.txt";
        clsUniFile out;
        EXPECT_TRUE(out.OpenFileWrite(sPath, false));
        EXPECT_TRUE(write(out));
        out.CloseFile();
        return folder.Read(sPath);
    }

    clsUniFile file;
};

using Text = std::vector<std::u16string>;

TEST_F(UniFileLines, LastLineWithoutALineEndArrivesWithFalse) {
    Open("first\r\nsecond");
    EXPECT_EQ(Lines(&clsUniFile::ReadAnsiLine), (Text{u"+first", u"-second"}));
    Open(Wide("first\r\nsecond"));
    EXPECT_EQ(Lines(&clsUniFile::ReadUnicodeLine), (Text{u"+first", u"-second"}));
    Open("first\r\nsecond");
    EXPECT_EQ(Lines(&clsUniFile::ReadUTF8Line), (Text{u"+first", u"-second"}));
}

TEST_F(UniFileLines, FalseWithEmptyTextIsTheEnd) {
    Open("only\n");
    EXPECT_EQ(Lines(&clsUniFile::ReadAnsiLine), (Text{u"+only", u"-"}));
    Open(Wide("only\n"));
    EXPECT_EQ(Lines(&clsUniFile::ReadUnicodeLine), (Text{u"+only", u"-"}));
    Open("only\n");
    EXPECT_EQ(Lines(&clsUniFile::ReadUTF8Line), (Text{u"+only", u"-(unassigned)"}));
}

TEST_F(UniFileLines, LoneCarriageReturnStaysInTheText) {
    Open("a\rb\r\nc\n\rd\r\r\n");
    EXPECT_EQ(Lines(&clsUniFile::ReadAnsiLine), (Text{u"+a\rb", u"+c", u"+\rd\r", u"-"}));
    Open(Wide("a\rb\r\nc\n\rd\r\r\n"));
    EXPECT_EQ(Lines(&clsUniFile::ReadUnicodeLine), (Text{u"+a\rb", u"+c", u"+\rd\r", u"-"}));
    Open("a\rb\r\nc\n\rd\r\r\n");
    EXPECT_EQ(Lines(&clsUniFile::ReadUTF8Line), (Text{u"+a\rb", u"+c", u"+\rd\r", u"-(unassigned)"}));
}

TEST_F(UniFileLines, CarriageReturnBeforeTheEndOfTheFileStays) {
    Open("ab\r");
    EXPECT_EQ(Lines(&clsUniFile::ReadAnsiLine), (Text{u"-ab\r"}));
    Open(Wide("ab\r"));
    EXPECT_EQ(Lines(&clsUniFile::ReadUnicodeLine), (Text{u"-ab\r"}));
    Open("ab\r");
    EXPECT_EQ(Lines(&clsUniFile::ReadUTF8Line), (Text{u"-ab\r"}));
}

TEST_F(UniFileLines, CarriageReturnBeforeALineFeedThatCannotBeFetchedStays) {
    Open(std::string(16383, 'x') + "\r\n");
    EXPECT_EQ(Lines(&clsUniFile::ReadAnsiLine), (Text{u"-" + std::u16string(16383, u'x') + u"\r"}));
    Open(std::string(16383, 'x') + "\r\n");
    EXPECT_EQ(Lines(&clsUniFile::ReadUTF8Line), (Text{u"-" + std::u16string(16383, u'x') + u"\r"}));
}

TEST_F(UniFileLines, EmptyLinesAreEmptyForAnsiAndUnicodeAndUnassignedForUtf8) {
    Open("\n\r\n");
    EXPECT_EQ(Lines(&clsUniFile::ReadAnsiLine), (Text{u"+", u"+", u"-"}));
    Open(Wide("\n\r\n"));
    EXPECT_EQ(Lines(&clsUniFile::ReadUnicodeLine), (Text{u"+", u"+", u"-"}));
    Open("\n\r\n");
    EXPECT_EQ(Lines(&clsUniFile::ReadUTF8Line), (Text{u"+(unassigned)", u"+(unassigned)", u"-(unassigned)"}));
}

TEST_F(UniFileLines, Utf8LineThatDecodesToNothingIsAssigned) {
    Open("\xE2\x82\n#");
    std::u16string s = u"before";
    EXPECT_TRUE(file.ReadUTF8Line(s));
    EXPECT_EQ(s, u"");
}

TEST_F(UniFileLines, Utf8LinesAreDecodedWithTheTableOfWholeFiles) {
    Open("caf\xC3\xA9 \xE2\x82\xAC \xDC\n\xF0\x9F\x98\x80\nend");
    EXPECT_EQ(Lines(&clsUniFile::ReadUTF8Line),
              (Text{u"+caf\u00E9 \u20AC \u00DC", std::u16string(u"+\x07D8\x0080"), u"-end"}));
}

TEST_F(UniFileLines, UnicodeLineEndsAtTheUnitTenOnly) {
    Open(std::string("\x0A\x01\x41\x0A\x0A\0X\0", 8)); // U+010A, U+0A41, line feed, X
    EXPECT_EQ(Lines(&clsUniFile::ReadUnicodeLine), (Text{u"+\u010A\u0A41", u"-X"}));
}

TEST_F(UniFileLines, UnicodeUnitOfWhichOnlyHalfIsThereIsDropped) {
    Open(Wide("ab") + "c");
    EXPECT_EQ(Lines(&clsUniFile::ReadUnicodeLine), (Text{u"-ab"}));
    EXPECT_EQ(file.GetFilePos(), 5);
}

TEST_F(UniFileLines, UnicodeReaderMakesBothReadsAlsoWhenTheFirstFails) {
    Open("");
    file.UseCache(false);
    platform.Forget();
    EXPECT_EQ(Lines(&clsUniFile::ReadUnicodeLine), (Text{u"-"}));
    EXPECT_EQ(platform.reads, (std::vector<DWORD>{1, 1}));
}

TEST_F(UniFileLines, LongLineComesWhole) {
    const std::string sLong = testing::Pattern(1) + std::string(100000, 'y');
    Open(sLong + "\r\nshort");
    std::u16string s;
    EXPECT_TRUE(file.ReadAnsiLine(s));
    EXPECT_EQ(s.size(), 100001u);
    Open(Wide(std::string(100001, 'y') + "\r\nshort"));
    EXPECT_EQ(Lines(&clsUniFile::ReadUnicodeLine), (Text{u"+" + std::u16string(100001, u'y'), u"-short"}));
    Open(std::string(100001, 'y') + "\r\nshort");
    EXPECT_EQ(Lines(&clsUniFile::ReadUTF8Line), (Text{u"+" + std::u16string(100001, u'y'), u"-short"}));
}

TEST_F(UniFileLines, AnsiLineConvertsEachByteByItself) {
    Open("\x93\xFA\xC6\xE9\n#");
    std::u16string s;
    EXPECT_TRUE(file.ReadAnsiLine(s));
    switch (GetACP()) {
    case 1252: EXPECT_EQ(s, u"\u201C\u00FA\u00C6\u00E9"); break;
    case 1251: EXPECT_EQ(s, u"\u201C\u044A\u0416\u0439"); break;
    case 65001: EXPECT_EQ(s, u"\uFFFD\uFFFD\uFFFD\uFFFD"); break;
    default: {
        // Several bytes to a character: the pair 93 FA is not seen as one.
        std::u16string sAlone;
        for (const char* b : {"\x93", "\xFA", "\xC6", "\xE9"})
            sAlone += SystemAnsiCodePage::Instance().BytesToText(b);
        EXPECT_EQ(s, sAlone);
        EXPECT_EQ(s.find(u'\u65E5'), std::u16string::npos);
    }
    }
}

TEST_F(UniFileLines, ReadLineChoosesByEncodingAndTakesAnyOtherValueForAnsi) {
    struct Case {
        FileEncoding iEncoding;
        std::string sBytes;
        std::u16string sExpected;
    };
    const Case cases[] = {{1, Wide("x\n#"), u"x"},
                          {2, "\xC3\xA9\n#", u"\u00E9"},
                          {0, "x\n#", u"x"},
                          {3, "x\n#", u"x"},
                          {-1, "x\n#", u"x"}};
    for (const Case& c : cases) {
        Open(c.sBytes);
        std::u16string s;
        EXPECT_TRUE(file.ReadLine(s, c.iEncoding)) << c.iEncoding;
        EXPECT_EQ(s, c.sExpected) << c.iEncoding;
    }
}

TEST_F(UniFileLines, WritersPutCarriageReturnAndLineFeed) {
    EXPECT_EQ(Written([](clsUniFile& f) { return f.WriteAnsiLine(u"abc") && f.WriteAnsiLine(u""); }), "abc\r\n\r\n");
    EXPECT_EQ(Written([](clsUniFile& f) { return f.WriteUnicodeLine(u"a\u20AC") && f.WriteUnicodeLine(u""); }),
              std::string("a\0\xAC\x20\r\0\n\0\r\0\n\0", 12));
    EXPECT_EQ(Written([](clsUniFile& f) { return f.WriteUTF8Line(u"a\u20AC\xD83D") && f.WriteUTF8Line(u""); }),
              "a\xE2\x82\xAC\xED\xA0\xBD\r\n\r\n");
}

TEST_F(UniFileLines, AnsiLineIsWrittenInTheSystemCodePage) {
    const std::string sBytes = Written([](clsUniFile& f) { return f.WriteAnsiLine(u"\u00E9\u0416\u65E5"); });
    switch (GetACP()) {
    case 1252: EXPECT_EQ(sBytes, "\xE9??\r\n"); break;
    case 1251: EXPECT_EQ(sBytes.substr(1), "\xC6?\r\n"); break;
    case 932: EXPECT_EQ(sBytes.substr(sBytes.size() - 6), "\x84G\x93\xFA\r\n"); break;
    case 65001: EXPECT_EQ(sBytes, "\xC3\xA9\xD0\x96\xE6\x97\xA5\r\n"); break;
    default: FAIL() << GetACP();
    }
}

TEST_F(UniFileLines, EachLineIsOneBlockForTheCache) {
    EXPECT_EQ(Written([this](clsUniFile& f) {
                  f.UseCache(false);
                  const bool bAll = f.WriteAnsiLine(u"ab") && f.WriteUnicodeLine(u"ab") && f.WriteUTF8Line(u"ab");
                  EXPECT_EQ(platform.writes, (std::vector<DWORD>{4, 8, 4}));
                  return bAll;
              }).size(),
              16u);
}

TEST_F(UniFileLines, WriteLineChoosesByEncodingAndTakesAnyOtherValueForAnsi) {
    const auto line = [this](FileEncoding iEncoding) {
        return Written([iEncoding](clsUniFile& f) { return f.WriteLine(u"\u00A0\u00A0", iEncoding); });
    };
    EXPECT_EQ(line(1), std::string("\xA0\0\xA0\0\r\0\n\0", 8));
    EXPECT_EQ(line(2), "\xC2\xA0\xC2\xA0\r\n");
    const std::string sAnsi = SystemAnsiCodePage::Instance().TextToBytes(u"\u00A0\u00A0\r\n");
    for (const FileEncoding iEncoding : {0, 3, -1, 256})
        EXPECT_EQ(line(iEncoding), sAnsi) << iEncoding;
}

TEST_F(UniFileLines, FailedWriteIsTheResultOfTheLine) {
    ASSERT_TRUE(file.OpenFileWrite(folder / u"full.txt", false));
    file.UseCache(false);
    platform.lWriteError = ERROR_DISK_FULL;
    EXPECT_FALSE(file.WriteAnsiLine(u"x"));
    EXPECT_FALSE(file.WriteUnicodeLine(u"x"));
    EXPECT_FALSE(file.WriteUTF8Line(u"x"));
    EXPECT_FALSE(file.WriteBOM(feUnicode));
}

TEST_F(UniFileLines, MarkIsWrittenByEncoding) {
    EXPECT_EQ(Written([](clsUniFile& f) { return f.WriteBOM(0); }), "");
    EXPECT_EQ(Written([](clsUniFile& f) { return f.WriteBOM(1); }), "\xFF\xFE");
    EXPECT_EQ(Written([](clsUniFile& f) { return f.WriteBOM(2); }), "\xEF\xBB\xBF");
    EXPECT_EQ(Written([](clsUniFile& f) { return !f.WriteBOM(3) && !f.WriteBOM(-1); }), "");
}

TEST_F(UniFileLines, MarkIsReadByItsFirstByteOnly) {
    struct Case {
        std::string sBytes;
        FileEncoding iEncoding;
        std::int64_t lPos;
    };
    const Case cases[] = {
        {"\xFF\xFE\x41", 1, 2},
        {"\xFFxyz", 1, 2},
        {"\xEF\xBB\xBFx", 2, 3},
        {"\xEFxyz", 2, 3},
        {"\xFE\xFFxy", 0, 0},
        {"text", 0, 0},
        {"", 0, 0},
        {"x", 0, 0},
    };
    for (const Case& c : cases) {
        Open(c.sBytes);
        EXPECT_EQ(file.ReadBOM(), c.iEncoding) << c.sBytes;
        EXPECT_EQ(file.GetFilePos(), c.lPos) << c.sBytes;
    }
}

TEST_F(UniFileLines, MissingMarkSendsThePositionToTheStartOfTheFile) {
    Open("0123456789 and more");
    EXPECT_EQ(Take(file, 10), "0123456789");
    EXPECT_EQ(file.ReadBOM(), 0);
    EXPECT_EQ(file.GetFilePos(), 0);
    EXPECT_EQ(Take(file, 3), "012");
}

TEST_F(UniFileLines, MarkIsReadFromThePresentPosition) {
    Open("ab\xEF\xBB\xBF-");
    EXPECT_EQ(Take(file, 2), "ab");
    EXPECT_EQ(file.ReadBOM(), 2);
    EXPECT_EQ(file.GetFilePos(), 5);
}

TEST_F(UniFileLines, FailedReadOfAMarkMovesNothing) {
    Open("abc");
    EXPECT_EQ(Take(file, 3), "abc");
    platform.Forget();
    EXPECT_EQ(file.ReadBOM(), 0);
    EXPECT_EQ(file.GetFilePos(), 3);
}

TEST_F(UniFileLines, FirstByteDecidesThoughTheRestOfTheMarkIsMissing) {
    for (const bool bCache : {true, false}) {
        file.UseCache(bCache);
        Open("a\xFF");
        EXPECT_EQ(Take(file, 1), "a");
        EXPECT_EQ(file.ReadBOM(), feUnicode);
        EXPECT_EQ(file.GetFilePos(), 2);
        Open("a\xEF\xBB");
        EXPECT_EQ(Take(file, 1), "a");
        EXPECT_EQ(file.ReadBOM(), feUtf8);
        EXPECT_EQ(file.GetFilePos(), 3);
    }
}

// The fast readers against one ReadByte after the other: results, text, positions, platform calls.
class LineReaders : public testing::UniFileFixture {
protected:
    using Plain = bool (*)(clsUniFile&, std::u16string&);

    std::string RandomFile(bool bWide) {
        std::string s;
        const std::size_t nSize = random() % 4 == 0 ? 16384 * (1 + random() % 2) + random() % 3 : random() % 40000;
        const unsigned nLineLength = 1 + random() % (random() % 5 == 0 ? 20000 : 100);
        while (s.size() < nSize) {
            const unsigned n = random() % nLineLength;
            char c = n == 0   ? '\n'
                     : n == 1 ? '\r'
                              : static_cast<char>(random() % 8 == 0 ? random() : 'a' + random() % 26);
            s.push_back(c);
            if (bWide) s.push_back(static_cast<char>(random() % 16 == 0 ? random() % 3 : 0));
        }
        s.resize(nSize);
        return s;
    }

    struct Seen {
        std::vector<std::u16string> lines;
        std::vector<std::string> calls;
        std::string sStored;
        bool operator==(const Seen&) const = default;
    };

    // Reads the file by `read`, with the cache switched off for a while, with seeks and with a write between, as the
    // seed says.
    Seen Run(const std::u16string& sPath, const std::string& sBytes, unsigned nSeed,
             const std::function<bool(clsUniFile&, std::u16string&)>& read) {
        folder.Write(u"random.txt", sBytes);
        Seen seen;
        platform.Forget();
        std::mt19937 choice(nSeed);
        {
            clsUniFile file;
            EXPECT_TRUE(OpenBoth(file, sPath));
            if (choice() % 3 == 0) Take(file, choice() % 4);
            int nEnds = 0;
            for (int n = 0; n < 3000 && nEnds < 3; ++n) {
                if (choice() % 50 == 0) file.SetFilePos(choice() % (sBytes.size() + 2), 0);
                if (choice() % 50 == 0) file.UseCache(!file.UseCache());
                if (choice() % 50 == 0) file.WriteByte(static_cast<std::uint8_t>(choice()));
                std::u16string s = u"before";
                const bool bMore = read(file, s);
                if (!bMore) ++nEnds;
                seen.lines.push_back((bMore ? u"+" : u"-") + s);
                seen.lines.back().push_back(static_cast<char16_t>(file.GetFilePos() % 65536));
                seen.lines.back().push_back(static_cast<char16_t>(file.RealFilePos() % 65536));
            }
            seen.calls = platform.calls;
        }
        seen.sStored = folder.Read(sPath);
        return seen;
    }

    void Compare(Reader fast, Plain plain, bool bWide) {
        const std::u16string sPath = folder / u"random.txt";
        for (unsigned nSeed = 0; nSeed < 25; ++nSeed) {
            const std::string sBytes = RandomFile(bWide);
            const Seen seen =
                Run(sPath, sBytes, nSeed, [fast](clsUniFile& file, std::u16string& s) { return (file.*fast)(s); });
            const Seen expected = Run(sPath, sBytes, nSeed, plain);
            ASSERT_EQ(seen.lines, expected.lines) << nSeed;
            ASSERT_EQ(seen.calls, expected.calls) << nSeed;
            ASSERT_EQ(seen.sStored, expected.sStored) << nSeed;
        }
    }

    std::mt19937 random{7};
};

TEST_F(LineReaders, AnsiEqualsReadingByteByByte) {
    Compare(&clsUniFile::ReadAnsiLine, &testing::PlainReadAnsiLine, false);
}

TEST_F(LineReaders, UnicodeEqualsReadingByteByByte) {
    Compare(&clsUniFile::ReadUnicodeLine, &testing::PlainReadUnicodeLine, true);
}

TEST_F(LineReaders, Utf8EqualsReadingByteByByte) {
    Compare(&clsUniFile::ReadUTF8Line, &testing::PlainReadUTF8Line, false);
}

} // namespace
} // namespace orvanta
