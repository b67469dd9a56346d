// Paths that the platform hands out, the program's own, and what the platform is handed for each path.
#include "files/modUniFileUtils.h"

#include "base/Failure.h"
#include "plumbing/WideText.h"
#include "tests/files/FolderFixture.h"
#include "tests/support/PatchedImport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace orvanta {
namespace {

using testing::FolderFixture;
using testing::PatchedImport;
using Handed = std::vector<std::u16string>;

Handed g_handed;
std::u16string g_answer; // what the platform puts into a buffer or gives as the command line
DWORD g_lFlags = 0;

// Answers as the platform does: the length, or the room it needs.
DWORD PutAnswer(DWORD nSize, LPWSTR buffer) {
    if (g_answer.size() >= nSize) return static_cast<DWORD>(g_answer.size() + 1);
    std::copy_n(WideOf(g_answer), g_answer.size() + 1, buffer);
    return static_cast<DWORD>(g_answer.size());
}

DWORD WINAPI AnswerCurDir(DWORD nSize, LPWSTR buffer) {
    return PutAnswer(nSize, buffer);
}
DWORD WINAPI AnswerTempPath(DWORD nSize, LPWSTR buffer) {
    return PutAnswer(nSize, buffer);
}
// This call cuts a name that is too long and answers with the size of the buffer.
DWORD WINAPI AnswerModuleName(HMODULE, LPWSTR buffer, DWORD nSize) {
    if (g_answer.size() < nSize) return PutAnswer(nSize, buffer);
    std::copy_n(WideOf(g_answer), nSize - 1, buffer);
    buffer[nSize - 1] = 0;
    return nSize;
}
LPWSTR WINAPI AnswerCommandLine() {
    return const_cast<LPWSTR>(WideOf(g_answer));
}

BOOL Hand(LPCWSTR path) {
    g_handed.push_back(TextOfWide(path));
    return TRUE;
}
BOOL WINAPI HandMkDir(LPCWSTR path, LPSECURITY_ATTRIBUTES) {
    return Hand(path);
}
BOOL WINAPI HandPath(LPCWSTR path) {
    return Hand(path);
}
BOOL WINAPI RefuseAttributes(LPCWSTR path, DWORD) {
    Hand(path);
    return FALSE;
}
BOOL WINAPI HandAttributes(LPCWSTR path, DWORD lAttributes) {
    g_lFlags = lAttributes;
    return Hand(path);
}
DWORD WINAPI HandGetAttributes(LPCWSTR path) {
    return static_cast<DWORD>(Hand(path));
}
BOOL WINAPI HandCopy(LPCWSTR from, LPCWSTR to, BOOL bFailIfExists) {
    g_lFlags = static_cast<DWORD>(bFailIfExists);
    return Hand(from) && Hand(to);
}
BOOL WINAPI HandMove(LPCWSTR from, LPCWSTR to, DWORD lFlags) {
    g_lFlags = lFlags;
    return Hand(from) && Hand(to);
}

template<typename Call>
Handed HandedBy(Call call) {
    g_handed.clear();
    g_lFlags = 99;
    call();
    return g_handed;
}

TEST(PathsHandedToThePlatform, HaveTheLongPrefixUnlessTheyAreNetworkPaths) {
    const PatchedImport<decltype(CreateDirectoryW)> mkDir("CreateDirectoryW", HandMkDir);
    const PatchedImport<decltype(RemoveDirectoryW)> rmDir("RemoveDirectoryW", HandPath);
    const PatchedImport<decltype(DeleteFileW)> rmFile("DeleteFileW", HandPath);
    const PatchedImport<decltype(SetCurrentDirectoryW)> setCurDir("SetCurrentDirectoryW", HandPath);
    const PatchedImport<decltype(SetFileAttributesW)> setAttr("SetFileAttributesW", HandAttributes);
    const PatchedImport<decltype(GetFileAttributesW)> getAttr("GetFileAttributesW", HandGetAttributes);
    const PatchedImport<decltype(CopyFileW)> copy("CopyFileW", HandCopy);
    const PatchedImport<decltype(MoveFileExW)> move("MoveFileExW", HandMove);
    const Handed one{u"\\\\?\\C:\\a"};
    const Handed two{u"\\\\?\\C:\\a", u"\\\\?\\relative"};

    EXPECT_EQ(HandedBy([] { ufu_MkDir(u"C:\\a"); }), one);
    EXPECT_EQ(HandedBy([] { ufu_RmDir(u"C:\\a"); }), one);
    EXPECT_EQ(HandedBy([] { ufu_SetCurDir(u"C:\\a"); }), one);
    EXPECT_EQ(HandedBy([] { ufu_GetFileAttr(u"C:\\a"); }), one);
    EXPECT_EQ(HandedBy([] { ufu_SetFileAttr(u"C:\\a", 2); }), one);
    EXPECT_EQ(g_lFlags, 2u);
    EXPECT_EQ(HandedBy([] { ufu_RmFile(u"C:\\a"); }), (Handed{one[0], one[0]}))
        << "its attributes first, then the file";
    EXPECT_EQ(g_lFlags, 0u);
    EXPECT_EQ(HandedBy([] { ufu_CopyFile(u"C:\\a", u"relative", true); }), two);
    EXPECT_EQ(g_lFlags, 1u);
    EXPECT_EQ(HandedBy([] { ufu_CopyFile(u"C:\\a", u"relative", false); }), two);
    EXPECT_EQ(g_lFlags, 0u);
    EXPECT_EQ(HandedBy([] { ufu_MoveFile(u"C:\\a", u"relative", 11); }), two);
    EXPECT_EQ(g_lFlags, 11u);
    EXPECT_EQ(HandedBy([] { ufu_CopyFile(u"\\\\server\\share\\a", u"\\\\?\\C:\\a", false); }),
              (Handed{u"\\\\server\\share\\a", u"\\\\?\\C:\\a"}));
}

TEST(PathsHandedToThePlatform, FileIsRemovedThoughItsAttributesCannotBeSet) {
    const PatchedImport<decltype(DeleteFileW)> rmFile("DeleteFileW", HandPath);
    const PatchedImport<decltype(SetFileAttributesW)> setAttr("SetFileAttributesW", RefuseAttributes);
    EXPECT_EQ(HandedBy([] { EXPECT_TRUE(ufu_RmFile(u"C:\\a")); }), (Handed{u"\\\\?\\C:\\a", u"\\\\?\\C:\\a"}));
}

TEST(PathsHandedToThePlatform, AreNoneForFoldersWithoutAName) {
    const PatchedImport<decltype(CreateDirectoryW)> mkDir("CreateDirectoryW", HandMkDir);
    const PatchedImport<decltype(RemoveDirectoryW)> rmDir("RemoveDirectoryW", HandPath);
    EXPECT_EQ(HandedBy([] { EXPECT_FALSE(ufu_MkDir(u"") || ufu_RmDir(u"")); }), Handed{});
}

class CurrentFolder : public FolderFixture {
protected:
    CurrentFolder() { GetCurrentDirectoryW(MAX_PATH, m_before); }
    ~CurrentFolder() override { SetCurrentDirectoryW(m_before); }

private:
    wchar_t m_before[MAX_PATH] = {};
};

TEST_F(CurrentFolder, IsWhereThePlatformSays) {
    ASSERT_TRUE(SetCurrentDirectoryW(WideOf(Path())));
    EXPECT_EQ(ufu_GetCurDir(), Path());
}

TEST_F(CurrentFolder, IsWhereRelativeNamesLead) {
    Folder(u"here");
    EXPECT_TRUE(ufu_SetCurDir(Path(u"here")));
    const HANDLE hFile = CreateFileW(L"x", GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr);
    ASSERT_NE(hFile, INVALID_HANDLE_VALUE);
    CloseHandle(hFile);
    EXPECT_TRUE(HasFile(u"here\\x"));
}

TEST_F(CurrentFolder, StaysWhenTheNewOneIsMissing) {
    ASSERT_TRUE(SetCurrentDirectoryW(WideOf(Path())));
    EXPECT_FALSE(ufu_SetCurDir(Path(u"missing")));
    EXPECT_FALSE(ufu_SetCurDir(u""));
    EXPECT_EQ(ufu_GetCurDir(), Path());
}

TEST_F(CurrentFolder, FitsABufferOf2048CharactersOrIsEmpty) {
    const PatchedImport<decltype(GetCurrentDirectoryW)> patch("GetCurrentDirectoryW", AnswerCurDir);
    g_answer.assign(2047, u'd');
    EXPECT_EQ(ufu_GetCurDir(), g_answer);
    g_answer.assign(2048, u'd');
    EXPECT_EQ(ufu_GetCurDir(), u"");
    g_answer.clear();
    EXPECT_EQ(ufu_GetCurDir(), u"") << "the platform failed";
}

TEST(TempPath, EndsInABackslashAsThePlatformGivesIt) {
    wchar_t buffer[MAX_PATH + 1] = {};
    GetTempPathW(MAX_PATH + 1, buffer);
    EXPECT_EQ(ufu_GetTempPath(), TextOfWide(buffer));
    EXPECT_TRUE(ufu_GetTempPath().ends_with(u"\\"));
    const PatchedImport<decltype(GetTempPathW)> patch("GetTempPathW", AnswerTempPath);
    g_answer = u"C:\\t\\";
    EXPECT_EQ(ufu_GetTempPath(), u"C:\\t\\");
    g_answer.assign(2046, u't');
    g_answer += u"\\";
    EXPECT_EQ(ufu_GetTempPath(), g_answer);
    g_answer.assign(2047, u't');
    g_answer += u"\\";
    EXPECT_EQ(ufu_GetTempPath(), u"") << "more than a buffer of 2,048 characters takes";
}

TEST(AppPath, IsTheFolderOfTheProgramWithoutBackslash) {
    wchar_t buffer[4096] = {};
    GetModuleFileNameW(nullptr, buffer, 4096);
    const std::u16string sProgram = TextOfWide(buffer);
    const std::u16string sFolder = sProgram.substr(0, sProgram.rfind(u'\\'));
    EXPECT_EQ(ufu_UniAppPath(), sFolder);

    const PatchedImport<decltype(GetModuleFileNameW)> patch("GetModuleFileNameW", AnswerModuleName);
    g_answer = u"C:\\tools\\\u0436\\p.exe";
    EXPECT_EQ(ufu_UniAppPath(), u"C:\\tools\\\u0436");
    g_answer.assign(2045, u'd');
    g_answer += u"\\p";
    EXPECT_EQ(ufu_UniAppPath(), std::u16string(2045, u'd'));
    g_answer += u"x";
    EXPECT_EQ(ufu_UniAppPath(), sFolder) << "the name was cut, the folder can be had";
    g_answer.clear();
    EXPECT_EQ(ufu_UniAppPath(), sFolder) << "the name cannot be had, the folder can";
}

TEST(ProgramArguments, StandBehindTheProgramsName) {
    const PatchedImport<decltype(GetCommandLineW)> patch("GetCommandLineW", AnswerCommandLine);
    g_answer = u"\"C:\\a b\\p.exe\"   \u0436.vbp /x ";
    EXPECT_EQ(ufu_UniCommandLine(), u"\u0436.vbp /x ");
    g_answer = u"p.exe";
    try {
        ufu_UniCommandLine();
        ADD_FAILURE() << "nothing was raised";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.Number(), 5u);
    }
}

TEST(ProgramArguments, EndWithABufferOf2048Characters) {
    const PatchedImport<decltype(GetCommandLineW)> patch("GetCommandLineW", AnswerCommandLine);
    g_answer = u"p " + std::u16string(3000, u'x');
    EXPECT_EQ(ufu_UniCommandLine(), std::u16string(2046, u'x'));
}

} // namespace
} // namespace orvanta
