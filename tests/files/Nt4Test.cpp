// The file layer on NT 4, between the two limits: long paths and the flags of a move are known, Unicode settings are
// not.
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

const testing::PretendedVersion<VER_PLATFORM_WIN32_NT, 4, 0> g_nt4;

std::vector<std::u16string> g_handed;

BOOL WINAPI HandRmDir(LPCWSTR path) {
    g_handed.push_back(TextOfWide(path));
    return TRUE;
}

class Nt4 : public FolderFixture {};

TEST_F(Nt4, IsWhatThisProgramBelieves) {
    EXPECT_EQ(WindowsVersionClass(), 7);
}

TEST_F(Nt4, PathsHaveTheLongPrefix) {
    const PatchedImport<decltype(RemoveDirectoryW)> patch("RemoveDirectoryW", HandRmDir);
    g_handed.clear();
    ufu_RmDir(u"C:\\a");
    EXPECT_EQ(g_handed, (std::vector<std::u16string>{u"\\\\?\\C:\\a"}));
}

TEST_F(Nt4, MoveFileFollowsItsFlags) {
    File(u"from", "new");
    File(u"to", "old");
    EXPECT_FALSE(ufu_MoveFile(Path(u"from"), Path(u"to"), 0));
    EXPECT_EQ(BytesOf(u"to"), "old");
}

TEST_F(Nt4, CommandLineIsGivenWhole) {
    EXPECT_EQ(ufu_UniCommandLine(), TextOfWide(GetCommandLineW()));
}

TEST_F(Nt4, SettingsFileIsNeverTurnedIntoUnicode) {
    clsFileIni ini;
    ini.IniFile(File(u"x.ini", "[s]\r\nk=v\r\n"));
    ini.WriteString(u"s", u"k", u"\u0416");
    EXPECT_EQ(BytesOf(u"x.ini").substr(0, 3), "[s]");
}

} // namespace
} // namespace orvanta
