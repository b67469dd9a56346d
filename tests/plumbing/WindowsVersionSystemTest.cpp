#include "plumbing/LongPath.h"
#include "plumbing/PlatformText.h"
#include "plumbing/WindowsVersion.h"
#include "tests/support/PatchedImport.h"

#include <gtest/gtest.h>

#include <windows.h>

namespace orvanta {
namespace {

TEST(WindowsVersionSystem, InfoIsWhatThePlatformSays) {
    OSVERSIONINFOW info{};
    info.dwOSVersionInfoSize = sizeof info;
    ASSERT_TRUE(GetVersionExW(&info));
    const WindowsVersion version = WindowsVersionInfo();
    EXPECT_EQ(version.lMajor, info.dwMajorVersion);
    EXPECT_EQ(version.lMinor, info.dwMinorVersion);
    EXPECT_EQ(version.lBuild, info.dwBuildNumber);
    EXPECT_EQ(version.lClass, VersionClassOf(info.dwPlatformId, info.dwMajorVersion, info.dwMinorVersion));
}

TEST(WindowsVersionSystem, ClassOfTheProcessIsKnownAndRecent) {
    EXPECT_EQ(WindowsVersionClass(), WindowsVersionInfo().lClass);
    EXPECT_EQ(WindowsVersionClass(), 11);
    EXPECT_TRUE(IsWin2000OrLater());
}

int g_nAsked;
BOOL WINAPI RefuseVersion(OSVERSIONINFOA* info) {
    ++g_nAsked;
    info->dwPlatformId = 2;
    info->dwMajorVersion = 5;
    info->dwMinorVersion = 1;
    info->dwBuildNumber = 2600;
    return FALSE;
}

TEST(WindowsVersionSystem, WithoutAnAnswerAllNumbersAreZero) {
    const testing::PatchedImport<decltype(GetVersionExA)> patch("GetVersionExA", RefuseVersion);
    const WindowsVersion version = WindowsVersionInfo();
    EXPECT_EQ(version.lClass, 0);
    EXPECT_EQ(version.lMajor, 0u);
    EXPECT_EQ(version.lMinor, 0u);
    EXPECT_EQ(version.lBuild, 0u);
}

TEST(WindowsVersionSystem, ClassOfTheProcessIsAskedOnce) {
    const std::int32_t lClass = WindowsVersionClass();
    const testing::PatchedImport<decltype(GetVersionExA)> patch("GetVersionExA", RefuseVersion);
    g_nAsked = 0;
    EXPECT_EQ(WindowsVersionClass(), lClass);
    EXPECT_EQ(g_nAsked, 0);
}

TEST(WindowsVersionSystem, PathsAreGivenThePrefixOfTheRunningSystem) {
    EXPECT_EQ(LongPathPrefix(u"C:\\a"), u"\\\\?\\C:\\a");
}

TEST(WindowsVersionSystem, AnsiPathsDependOnTheCodePageOfTheSystem) {
    EXPECT_EQ(IsWesternCodePage(), GetACP() == 1252);
    EXPECT_EQ(CanUseAnsiPath(u"plain"), GetACP() == 1252);
    EXPECT_FALSE(CanUseAnsiPath(u"\u65E5"));
}

} // namespace
} // namespace orvanta
