// The file layer on a system before NT 4: a program of its own, since the version holds for the whole process.
#include "files/clsFileIni.h"
#include "files/modUniFileUtils.h"

#include "plumbing/WideText.h"
#include "plumbing/WindowsVersion.h"
#include "tests/files/FolderFixture.h"
#include "tests/files/PretendedVersion.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace orvanta {
namespace {

using testing::FolderFixture;
using testing::PatchedImport;

const testing::PretendedVersion<VER_PLATFORM_WIN32_WINDOWS, 4, 90> g_windowsMe;

std::vector<std::u16string> g_handed;
DWORD g_nSize = 0;

BOOL WINAPI HandRmDir(LPCWSTR path) {
    g_handed.push_back(TextOfWide(path));
    return TRUE;
}
DWORD WINAPI NoteStringSize(LPCWSTR, LPCWSTR, LPCWSTR, LPWSTR, DWORD nSize, LPCWSTR) {
    g_nSize = nSize;
    return 0;
}
DWORD WINAPI NoteSectionSize(LPCWSTR, LPWSTR, DWORD nSize, LPCWSTR) {
    g_nSize = nSize;
    return 0;
}

class BeforeNt4 : public FolderFixture {};

TEST_F(BeforeNt4, IsWhatThisProgramBelieves) {
    EXPECT_EQ(WindowsVersionClass(), 5);
}

TEST_F(BeforeNt4, PathsHaveNoLongPrefix) {
    const PatchedImport<decltype(RemoveDirectoryW)> patch("RemoveDirectoryW", HandRmDir);
    g_handed.clear();
    ufu_RmDir(u"C:\\a");
    EXPECT_EQ(g_handed, (std::vector<std::u16string>{u"C:\\a"}));
}

TEST_F(BeforeNt4, MoveFileRemovesTheTargetAndKnowsNoFlags) {
    File(u"from", "new");
    File(u"to", "old");
    SetAttributes(u"to", FILE_ATTRIBUTE_READONLY);
    EXPECT_TRUE(ufu_MoveFile(Path(u"from"), Path(u"to"), 0));
    EXPECT_EQ(BytesOf(u"to"), "new");
    EXPECT_FALSE(HasFile(u"from"));
}

// The target goes first, whatever becomes of the move.
TEST_F(BeforeNt4, MoveFileOfAMissingFileCostsTheTarget) {
    File(u"to", "old");
    EXPECT_FALSE(ufu_MoveFile(Path(u"missing"), Path(u"to"), 11));
    EXPECT_FALSE(HasFile(u"to"));
}

TEST_F(BeforeNt4, CommandLineIsGivenWhole) {
    EXPECT_EQ(ufu_UniCommandLine(), TextOfWide(GetCommandLineW()));
}

TEST_F(BeforeNt4, SettingsAreReadThroughSmallBuffers) {
    clsFileIni ini;
    ini.IniFile(Path(u"x.ini"));
    IniRows vRows;
    const PatchedImport<decltype(GetPrivateProfileStringW)> string("GetPrivateProfileStringW", NoteStringSize);
    ini.ReadString(u"s", u"k", u"");
    EXPECT_EQ(g_nSize, 1024u);
    const PatchedImport<decltype(GetPrivateProfileSectionW)> section("GetPrivateProfileSectionW", NoteSectionSize);
    ini.GetSectionRows(u"s", vRows);
    EXPECT_EQ(g_nSize, 32000u);
}

TEST_F(BeforeNt4, SettingsFileIsNeverTurnedIntoUnicode) {
    clsFileIni ini;
    ini.IniFile(File(u"x.ini", "[s]\r\nk=v\r\n"));
    ini.WriteString(u"s", u"k", u"\u0416");
    EXPECT_EQ(BytesOf(u"x.ini").substr(0, 3), "[s]");
}

} // namespace
} // namespace orvanta
