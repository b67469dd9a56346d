// When a settings file is turned into UTF-16 before a value is written, and what can go wrong then. With another system
// code page than the western one every write asks for it.
#include "files/clsFileIni.h"

#include "base/Failure.h"
#include "plumbing/PlatformText.h"
#include "tests/files/FolderFixture.h"
#include "tests/support/PatchedImport.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace orvanta {
namespace {

using testing::FolderFixture;
using testing::LockedFile;
using testing::PatchedImport;

BOOL WINAPI WriteNothing(LPCWSTR, LPCWSTR, LPCWSTR, LPCWSTR) {
    return TRUE;
}

constexpr std::string_view kMark = "\xFF\xFE";

std::string Utf16Bytes(std::u16string_view s) {
    std::string sBytes(kMark);
    for (const char16_t c : s) {
        sBytes += static_cast<char>(c & 0xFF);
        sBytes += static_cast<char>(c >> 8);
    }
    return sBytes;
}

class FileIniUnicode : public FolderFixture {
protected:
    FileIniUnicode() { ini.IniFile(Path(u"settings.ini")); }

    void Start(std::string_view sBytes) { File(u"settings.ini", sBytes); }
    std::string Bytes() const { return BytesOf(u"settings.ini"); }
    bool IsUnicode() const { return Bytes().starts_with(kMark); }

    void ExpectRaised(std::u16string_view sSource, std::u16string_view sDescription) {
        try {
            ini.WriteString(u"s", u"k", u"\u0416");
            ADD_FAILURE() << "nothing was raised";
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.Number(), 0x80040001u);
            EXPECT_EQ(failure.Source(), sSource);
            EXPECT_EQ(failure.Description(), sDescription);
        }
    }

    // Writes with the profile call taken out: what is left is the conversion alone.
    void OnlyConvertFor(std::u16string_view sAppName, std::u16string_view sKeyName, std::u16string_view sKeyVal) {
        const PatchedImport<decltype(WritePrivateProfileStringW)> patch("WritePrivateProfileStringW", WriteNothing);
        ini.WriteString(sAppName, sKeyName, sKeyVal);
    }

    clsFileIni ini;
    const bool western = IsWesternCodePage();
};

TEST_F(FileIniUnicode, ValueWithAHighCharacterTurnsTheFileAndKeepsItsContent) {
    Start("; note\r\n[one]\r\na=1\r\n[two]\r\nb=2\r\n");
    ini.WriteString(u"one", u"a", u"\u0416\u65E5");
    EXPECT_TRUE(IsUnicode());
    EXPECT_EQ(ini.ReadString(u"one", u"a", u""), u"\u0416\u65E5");
    EXPECT_EQ(ini.ReadString(u"two", u"b", u""), u"2");
}

TEST_F(FileIniUnicode, ConversionIsTheFilesTextBehindTheMark) {
    Start("[one]\r\na=1\r\n");
    OnlyConvertFor(u"one", u"a", u"\u0416");
    EXPECT_EQ(Bytes(), Utf16Bytes(u"[one]\r\na=1\r\n"));
}

TEST_F(FileIniUnicode, TextOfTheFileIsReadInTheSystemCodePage) {
    char16_t c = u'\0';
    switch (GetACP()) {
    case 1252: c = u'\u00C6'; break;
    case 1251: c = u'\u0416'; break;
    case 932: c = u'\uFF86'; break;
    default: GTEST_SKIP() << "the byte C6 alone is no character here";
    }
    Start("[s]\r\na=\xC6\r\n");
    const std::u16string sValue(1, c);
    EXPECT_EQ(ini.ReadString(u"s", u"a", u""), sValue);
    OnlyConvertFor(u"s", u"b", u"\u65E5");
    EXPECT_EQ(Bytes(), Utf16Bytes(u"[s]\r\na=" + sValue + u"\r\n"));
    EXPECT_EQ(ini.ReadString(u"s", u"a", u""), sValue);
}

TEST_F(FileIniUnicode, NameOfTheSectionCountsToo) {
    Start("[one]\r\na=1\r\n");
    OnlyConvertFor(u"\u65E5", u"a", u"plain");
    EXPECT_TRUE(IsUnicode());
}

// Only the section's name and the value are looked at, and only the western code page is trusted with the rest.
TEST_F(FileIniUnicode, NameOfTheKeyDoesNotCount) {
    Start("[one]\r\na=1\r\n");
    OnlyConvertFor(u"one", u"\u65E5", u"plain");
    EXPECT_EQ(IsUnicode(), !western);
}

TEST_F(FileIniUnicode, PlainValueTurnsTheFileOnlyUnderAnotherCodePage) {
    Start("[one]\r\na=1\r\n");
    OnlyConvertFor(u"one", u"a", u"2");
    EXPECT_EQ(IsUnicode(), !western);
}

TEST_F(FileIniUnicode, LatinCharactersStayInOneByteUnderTheWesternCodePage) {
    Start("[one]\r\na=1\r\n");
    ini.WriteString(u"one", u"a", u"caf\u00E9");
    EXPECT_EQ(IsUnicode(), !western);
    EXPECT_EQ(ini.ReadString(u"one", u"a", u""), u"caf\u00E9");
    if (western) {
        EXPECT_NE(Bytes().find("a=caf\xE9\r\n"), std::string::npos);
    }
}

TEST_F(FileIniUnicode, MissingFileIsMadeWithAMarkAndALineEnd) {
    OnlyConvertFor(u"s", u"k", u"\u0416");
    EXPECT_EQ(Bytes(), Utf16Bytes(u"\r\n"));
    ini.WriteString(u"s", u"k", u"\u0416");
    EXPECT_TRUE(IsUnicode());
    EXPECT_EQ(ini.ReadString(u"s", u"k", u""), u"\u0416");
}

TEST_F(FileIniUnicode, MissingFileIsNotMadeForAPlainValueUnderTheWesternCodePage) {
    OnlyConvertFor(u"s", u"k", u"plain");
    EXPECT_EQ(HasFile(u"settings.ini"), !western);
}

TEST_F(FileIniUnicode, FileWithAMarkStaysAsItIs) {
    const std::string sUtf16 = Utf16Bytes(u"[s]\r\nk=\u65E5\r\n");
    const std::string sUtf8 = "\xEF\xBB\xBF[s]\r\nk=1\r\n";
    for (const std::string& sBytes : {sUtf16, sUtf8}) {
        Start(sBytes);
        OnlyConvertFor(u"s", u"k", u"\u0416");
        EXPECT_EQ(Bytes(), sBytes);
    }
}

TEST_F(FileIniUnicode, UnicodeFileKeepsItsOtherValues) {
    Start(Utf16Bytes(u"[s]\r\na=\u65E5\r\nb=2\r\n"));
    ini.WriteString(u"s", u"b", u"\u0416");
    EXPECT_TRUE(IsUnicode());
    EXPECT_EQ(ini.ReadString(u"s", u"a", u""), u"\u65E5");
    EXPECT_EQ(ini.ReadString(u"s", u"b", u""), u"\u0416");
}

TEST_F(FileIniUnicode, EmptyFileIsTurnedIntoTheMarkAlone) {
    Start("");
    OnlyConvertFor(u"s", u"k", u"\u0416");
    EXPECT_EQ(Bytes(), kMark);
}

// A file of one byte cannot be read whole.
TEST_F(FileIniUnicode, FileOfOneByteCannotBeTurned) {
    Start(";");
    ExpectRaised(u"ufu_TextFileToString", u"Error reading file");
    EXPECT_EQ(Bytes(), ";");
}

TEST_F(FileIniUnicode, LockedFileCannotBeTurned) {
    Start("[s]\r\nk=1\r\n");
    {
        const LockedFile lock(Path(u"settings.ini"));
        ExpectRaised(u"ufu_TextFileToString", u"Error reading file");
    }
    EXPECT_EQ(Bytes(), "[s]\r\nk=1\r\n");
}

TEST_F(FileIniUnicode, FileThatOthersOnlyLetReadCannotBeTurned) {
    Start("[s]\r\nk=1\r\n");
    const LockedFile lock(Path(u"settings.ini"), FILE_SHARE_READ);
    ExpectRaised(u"ufu_StringToTextFile", u"Error writing file");
    EXPECT_EQ(Bytes(), "[s]\r\nk=1\r\n");
}

TEST_F(FileIniUnicode, FolderInTheFilesPlaceCannotBeWritten) {
    Folder(u"settings.ini");
    ExpectRaised(u"ufu_StringToTextFile", u"Error writing file");
}

TEST_F(FileIniUnicode, FileInAMissingFolderCannotBeWritten) {
    ini.IniFile(Path(u"missing\\settings.ini"));
    ExpectRaised(u"ufu_StringToTextFile", u"Error writing file");
}

// The profile calls fail as they like: nobody asks.
TEST_F(FileIniUnicode, FailuresOfTheProfileCallsAreNotRaised) {
    Start(Utf16Bytes(u"[s]\r\nk=1\r\n"));
    const LockedFile lock(Path(u"settings.ini"), FILE_SHARE_READ);
    EXPECT_NO_THROW(ini.WriteString(u"s", u"k", u"\u0416"));
    EXPECT_EQ(Bytes(), Utf16Bytes(u"[s]\r\nk=1\r\n"));
}

} // namespace
} // namespace orvanta
