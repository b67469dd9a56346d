// Reading and writing settings, in any system code page.
#include "files/clsFileIni.h"

#include "base/Failure.h"
#include "plumbing/WideText.h"
#include "tests/files/FolderFixture.h"
#include "tests/support/PatchedImport.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace orvanta {
namespace {

using testing::FolderFixture;
using testing::PatchedImport;

class FileIni : public FolderFixture {
protected:
    FileIni() { ini.IniFile(Path(u"settings.ini")); }

    void Start(std::string_view sBytes) { File(u"settings.ini", sBytes); }

    clsFileIni ini;
};

TEST_F(FileIni, FileIsWhatWasSet) {
    EXPECT_EQ(clsFileIni().IniFile(), u"");
    EXPECT_EQ(ini.IniFile(), Path(u"settings.ini"));
}

TEST_F(FileIni, EveryMemberNeedsAFile) {
    const clsFileIni none;
    IniRows vRows = {u"a=b"};
    const std::function<void()> calls[] = {
        [&] { none.ReadString(u"s", u"k", u"d"); }, [&] { none.WriteString(u"s", u"k", u"v"); },
        [&] { none.ReadBool(u"s", u"k", true); },   [&] { none.WriteBool(u"s", u"k", true); },
        [&] { none.GetSectionRows(u"", vRows); },   [&] { none.GetSectionNames(vRows); },
        [&] { none.GetSectionRowKey(vRows, 0); },   [&] { none.GetSectionRowValue(vRows, 0); },
    };
    for (const auto& call : calls) {
        try {
            call();
            ADD_FAILURE() << "nothing was raised";
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.Number(), 0x80040001u);
            EXPECT_EQ(failure.Description(), u"I need a file!");
        }
    }
    EXPECT_EQ(vRows, (IniRows{u"a=b"}));
}

TEST_F(FileIni, ReadsValuesAndFallsBackToTheDefault) {
    Start("[one]\r\nkey=value\r\nempty=\r\n[two]\r\nkey=other\r\n");
    EXPECT_EQ(ini.ReadString(u"one", u"key", u"d"), u"value");
    EXPECT_EQ(ini.ReadString(u"ONE", u"KEY", u"d"), u"value");
    EXPECT_EQ(ini.ReadString(u"two", u"key", u"d"), u"other");
    EXPECT_EQ(ini.ReadString(u"two", u"missing", u"\u65E5"), u"\u65E5");
    EXPECT_EQ(ini.ReadString(u"missing", u"key", u""), u"");
    EXPECT_EQ(ini.ReadString(u"one", u"empty", u"d"), u"d") << "an empty value reads as the default";
}

TEST_F(FileIni, ReadsTheDefaultFromAFileThatIsNotThere) {
    EXPECT_EQ(ini.ReadString(u"s", u"k", u"d"), u"d");
    EXPECT_FALSE(HasFile(u"settings.ini"));
}

TEST_F(FileIni, WrittenValueComesBack) {
    ini.WriteString(u"s", u"k", u"first");
    ini.WriteString(u"s", u"k", u"second");
    ini.WriteString(u"t", u"k", u"third");
    EXPECT_EQ(ini.ReadString(u"s", u"k", u""), u"second");
    EXPECT_EQ(ini.ReadString(u"t", u"k", u""), u"third");
    ini.WriteString(u"s", u"k", u"");
    EXPECT_EQ(ini.ReadString(u"s", u"k", u"d"), u"d");
}

TEST_F(FileIni, ValuesOfAllScriptsComeBack) {
    const std::u16string vValues[] = {u"\u0436\u0443\u043A", u"\u65E5\u672C\u8A9E", u"\u03B1\u03B2",
                                      u"\u0939\u093F",       u"\U0001F600",         u"\u05D0\u0627"};
    for (const std::u16string& sValue : vValues) {
        ini.WriteString(u"section " + sValue, u"key", sValue);
    }
    for (const std::u16string& sValue : vValues) {
        EXPECT_EQ(ini.ReadString(u"section " + sValue, u"key", u""), sValue);
    }
}

TEST_F(FileIni, BooleansAreOneAndZero) {
    ini.WriteBool(u"s", u"yes", true);
    ini.WriteBool(u"s", u"no", false);
    EXPECT_EQ(ini.ReadString(u"s", u"yes", u""), u"1");
    EXPECT_EQ(ini.ReadString(u"s", u"no", u""), u"0");
    EXPECT_TRUE(ini.ReadBool(u"s", u"yes", false));
    EXPECT_FALSE(ini.ReadBool(u"s", u"no", true));
}

TEST_F(FileIni, OnlyTheTextOneIsTrue) {
    Start("[s]\r\na=true\r\nb=2\r\nc=01\r\nd=-1\r\ne=1 x\r\nf=\r\ng=1\r\n");
    for (const char16_t* sKey : {u"a", u"b", u"c", u"d", u"e"})
        EXPECT_FALSE(ini.ReadBool(u"s", sKey, true));
    EXPECT_TRUE(ini.ReadBool(u"s", u"g", false));
    EXPECT_TRUE(ini.ReadBool(u"s", u"f", true)) << "an empty value is the default";
    EXPECT_FALSE(ini.ReadBool(u"s", u"f", false));
    EXPECT_TRUE(ini.ReadBool(u"s", u"missing", true));
    EXPECT_FALSE(ini.ReadBool(u"s", u"missing", false));
}

TEST_F(FileIni, RowsOfASectionEndInAnEmptyOne) {
    Start("[one]\r\na=1\r\nb=x=y\r\n[two]\r\nc=3\r\n");
    IniRows vRows = {u"before"};
    ini.GetSectionRows(u"one", vRows);
    EXPECT_EQ(vRows, (IniRows{u"a=1", u"b=x=y", u""}));
    EXPECT_EQ(ini.GetSectionRowKey(vRows, 1), u"b");
    EXPECT_EQ(ini.GetSectionRowValue(vRows, 1), u"x=y");
    EXPECT_EQ(ini.GetSectionRowKey(vRows, 2), u"");
    EXPECT_EQ(ini.GetSectionRowValue({u"=a"}, 0), u"");
}

TEST_F(FileIni, NamesOfTheSectionsEndInAnEmptyOne) {
    Start("[one]\r\na=1\r\n[two]\r\n[one more]\r\n");
    IniRows vRows;
    ini.GetSectionNames(vRows);
    EXPECT_EQ(vRows, (IniRows{u"one", u"two", u"one more", u""}));
}

TEST_F(FileIni, ListsAreEmptyWithoutSectionOrFile) {
    IniRows vRows = {u"before"};
    ini.GetSectionNames(vRows);
    EXPECT_EQ(vRows, IniRows{});
    Start("[one]\r\na=1\r\n");
    vRows = {u"before"};
    ini.GetSectionRows(u"", vRows);
    EXPECT_EQ(vRows, IniRows{});
    vRows = {u"before"};
    ini.GetSectionRows(u"missing", vRows);
    EXPECT_EQ(vRows, IniRows{});
}

TEST_F(FileIni, ValueIsCutAtTheBuffer) {
    const std::u16string sFits(10239, u'v');
    ini.WriteString(u"s", u"fits", sFits);
    ini.WriteString(u"s", u"long", sFits + u"vv");
    EXPECT_EQ(ini.ReadString(u"s", u"fits", u""), sFits);
    EXPECT_EQ(ini.ReadString(u"s", u"long", u""), sFits);
}

DWORD g_nSize = 0;
DWORD WINAPI NoteSectionSize(LPCWSTR, LPWSTR, DWORD nSize, LPCWSTR) {
    g_nSize = nSize;
    return 0;
}
DWORD WINAPI NoteNamesSize(LPWSTR, DWORD nSize, LPCWSTR) {
    g_nSize = nSize;
    return 0;
}

TEST_F(FileIni, ListsAreReadThroughALargeBuffer) {
    IniRows vRows;
    const PatchedImport<decltype(GetPrivateProfileSectionW)> section("GetPrivateProfileSectionW", NoteSectionSize);
    ini.GetSectionRows(u"s", vRows);
    EXPECT_EQ(g_nSize, 640000u);
    g_nSize = 0;
    const PatchedImport<decltype(GetPrivateProfileSectionNamesW)> names("GetPrivateProfileSectionNamesW",
                                                                        NoteNamesSize);
    ini.GetSectionNames(vRows);
    EXPECT_EQ(g_nSize, 640000u);
}

TEST_F(FileIni, LargeSectionIsListedWhole) {
    std::string sText = "[s]\r\n";
    for (int n = 0; n < 5000; ++n)
        sText += "key" + std::to_string(n) + "=" + std::string(60, 'v') + "\r\n";
    Start(sText);
    IniRows vRows;
    ini.GetSectionRows(u"s", vRows);
    ASSERT_EQ(vRows.size(), 5001u);
    EXPECT_EQ(ini.GetSectionRowKey(vRows, 4999), u"key4999");
}

std::u16string g_sHanded;
DWORD WINAPI HandString(LPCWSTR, LPCWSTR, LPCWSTR, LPWSTR, DWORD, LPCWSTR file) {
    g_sHanded = TextOfWide(file);
    return 0;
}
BOOL WINAPI HandWrite(LPCWSTR, LPCWSTR, LPCWSTR, LPCWSTR file) {
    g_sHanded = TextOfWide(file);
    return TRUE;
}
DWORD WINAPI HandSection(LPCWSTR, LPWSTR, DWORD, LPCWSTR file) {
    g_sHanded = TextOfWide(file);
    return 0;
}
DWORD WINAPI HandNames(LPWSTR, DWORD, LPCWSTR file) {
    g_sHanded = TextOfWide(file);
    return 0;
}

// What becomes of it is the platform's affair: not every one takes a long path here.
TEST_F(FileIni, EveryProfileCallIsHandedTheLongPath) {
    const PatchedImport<decltype(GetPrivateProfileStringW)> string("GetPrivateProfileStringW", HandString);
    const PatchedImport<decltype(WritePrivateProfileStringW)> write("WritePrivateProfileStringW", HandWrite);
    const PatchedImport<decltype(GetPrivateProfileSectionW)> section("GetPrivateProfileSectionW", HandSection);
    const PatchedImport<decltype(GetPrivateProfileSectionNamesW)> names("GetPrivateProfileSectionNamesW", HandNames);
    IniRows vRows;
    const std::function<void()> calls[] = {
        [&] { ini.ReadString(u"s", u"k", u""); },
        [&] { ini.WriteString(u"s", u"k", u"v"); },
        [&] { ini.GetSectionRows(u"s", vRows); },
        [&] { ini.GetSectionNames(vRows); },
    };
    for (const auto& call : calls) {
        g_sHanded.clear();
        call();
        EXPECT_EQ(g_sHanded, u"\\\\?\\" + Path(u"settings.ini"));
    }
}

// The profile call itself is kept out: not every platform takes so long a path there, and one writes elsewhere instead.
TEST_F(FileIni, FileBeyondTheOldLimitIsMadeForAValueThatNeedsIt) {
    const PatchedImport<decltype(WritePrivateProfileStringW)> write("WritePrivateProfileStringW", HandWrite);
    const std::u16string sIni = DeepFolder(u"a_folder_with_a_long_name", 20) + u"\\\u0436.ini";
    ini.IniFile(Path(sIni));
    ASSERT_GT(ini.IniFile().size(), 500u);
    ini.WriteString(u"s", u"k", u"\u65E5");
    EXPECT_EQ(BytesOf(sIni).substr(0, 6), std::string("\xFF\xFE\r\0\n\0", 6));
}

// A relative path gets the long prefix like any other, and behind it names nothing.
TEST_F(FileIni, RelativePathNamesNoFile) {
    ini.IniFile(u"relative.ini");
    EXPECT_EQ(ini.ReadString(u"s", u"k", u"d"), u"d");
}

} // namespace
} // namespace orvanta
