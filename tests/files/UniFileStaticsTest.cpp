// The static members of clsUniFile: each one reaches its own function, with its arguments in their places.
#include "files/clsUniFile.h"

#include "base/Failure.h"
#include "plumbing/WideText.h"
#include "tests/files/FolderFixture.h"
#include "tests/support/PatchedImport.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace orvanta {
namespace {

using testing::PatchedImport;
using U = clsUniFile;

class UniFileStatics : public testing::FolderFixture {};

TEST_F(UniFileStatics, FoldersAreMadeSeenAndRemoved) {
    EXPECT_FALSE(U::st_MkDir(Path(u"a\\b"))) << "one level only";
    EXPECT_TRUE(U::st_MkDir(Path(u"a")));
    EXPECT_TRUE(HasFolder(u"a"));
    EXPECT_FALSE(U::st_MkDir(Path(u"a")));
    EXPECT_TRUE(U::st_MakePath(Path(u"a\\b\\c")));
    EXPECT_TRUE(HasFolder(u"a\\b\\c"));
    EXPECT_TRUE(U::st_MakePath(Path(u"a")));
    File(u"a\\file");
    EXPECT_TRUE(U::st_DirExist(Path(u"a")));
    EXPECT_FALSE(U::st_DirExist(Path(u"a\\file")));
    EXPECT_TRUE(U::st_FileExist(Path(u"a\\file")));
    EXPECT_FALSE(U::st_FileExist(Path(u"a")));
    EXPECT_FALSE(U::st_RmDir(Path(u"a"))) << "it is not empty";
    EXPECT_TRUE(U::st_RmDir(Path(u"a\\b\\c")));
    EXPECT_FALSE(HasFolder(u"a\\b\\c"));
    EXPECT_TRUE(U::st_RmDirRic(Path(u"a")));
    EXPECT_FALSE(HasFolder(u"a"));
}

TEST_F(UniFileStatics, FilesAreCopiedMovedAndRemoved) {
    File(u"from", "new");
    File(u"to", "old");
    EXPECT_FALSE(U::st_CopyFile(Path(u"from"), Path(u"to"), true));
    EXPECT_TRUE(U::st_CopyFile(Path(u"from"), Path(u"to"), false));
    EXPECT_EQ(BytesOf(u"to"), "new");
    EXPECT_TRUE(HasFile(u"from"));
    File(u"to", "old");
    EXPECT_FALSE(U::st_MoveFile(Path(u"from"), Path(u"to"), 0));
    EXPECT_TRUE(U::st_MoveFile(Path(u"from"), Path(u"to"), MOVEFILE_REPLACE_EXISTING));
    EXPECT_EQ(BytesOf(u"to"), "new");
    EXPECT_FALSE(HasFile(u"from"));
    EXPECT_FALSE(U::st_RmFile(Path(u"t*"))) << "a name, no pattern";
    EXPECT_TRUE(U::st_RmFile(Path(u"to")));
    EXPECT_FALSE(HasFile(u"to"));
    File(u"1.txt");
    File(u"2.txt");
    EXPECT_TRUE(U::st_RmFiles(Path(u"*.txt")));
    EXPECT_FALSE(HasFile(u"1.txt") || HasFile(u"2.txt"));
}

TEST_F(UniFileStatics, ContentOfAFolderIsCopiedOrMovedToAnother) {
    Folder(u"src");
    Folder(u"copy");
    Folder(u"moved");
    File(u"src\\x", "content");
    EXPECT_TRUE(U::st_CopyFolderContent(Path(u"src\\"), Path(u"copy\\")));
    EXPECT_EQ(BytesOf(u"copy\\x"), "content");
    EXPECT_TRUE(HasFile(u"src\\x"));
    EXPECT_TRUE(U::st_MoveFolderContent(Path(u"src\\"), Path(u"moved\\")));
    EXPECT_EQ(BytesOf(u"moved\\x"), "content");
    EXPECT_FALSE(HasFile(u"src\\x"));
}

TEST_F(UniFileStatics, AttributesAreSetGivenAndAskedFor) {
    File(u"x");
    EXPECT_TRUE(U::st_SetFileAttr(Path(u"x"), FILE_ATTRIBUTE_HIDDEN));
    EXPECT_EQ(AttributesOf(u"x") & 7, DWORD{FILE_ATTRIBUTE_HIDDEN});
    EXPECT_EQ(U::st_GetFileAttr(Path(u"x")) & 7, FILE_ATTRIBUTE_HIDDEN);
    EXPECT_EQ(U::st_GetFileAttr(Path(u"missing")), -1);
    EXPECT_TRUE(U::st_FileHasAttribute(Path(u"x"), FILE_ATTRIBUTE_HIDDEN));
    EXPECT_FALSE(U::st_FileHasAttribute(Path(u"x"), FILE_ATTRIBUTE_SYSTEM));
}

BOOL WINAPI UtcAsLocal(const FILETIME* utc, FILETIME* local) {
    *local = *utc;
    return TRUE;
}

TEST_F(UniFileStatics, DateComesPartByPart) {
    const PatchedImport<decltype(FileTimeToLocalFileTime)> noZone("FileTimeToLocalFileTime", UtcAsLocal);
    const std::u16string sPath = File(u"dated");
    const SYSTEMTIME written{2019, 3, 0, 21, 14, 27, 58, 123};
    FILETIME time;
    ASSERT_TRUE(SystemTimeToFileTime(&written, &time));
    const HANDLE hFile = CreateFileW(WideOf(sPath), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(hFile, INVALID_HANDLE_VALUE);
    EXPECT_TRUE(SetFileTime(hFile, nullptr, nullptr, &time));
    CloseHandle(hFile);
    using FileDate = std::array<std::int32_t, 8>;
    FileDate d{};
    EXPECT_TRUE(U::st_GetFileDate(sPath, 2, d[0], d[1], d[2], d[3], d[4], d[5], d[6], d[7]));
    EXPECT_EQ(d, (FileDate{21, 3, 2019, 14, 27, 58, 123, 4})); // a Thursday
    EXPECT_TRUE(U::st_GetFileDate(sPath, 3, d[0], d[1], d[2], d[3], d[4], d[5], d[6], d[7]));
    EXPECT_EQ(d, (FileDate{1, 1, 1601, 0, 0, 0, 0, 1})) << "no such time, which is the first of all";
}

TEST_F(UniFileStatics, TextFilesAreWrittenMeasuredAndRead) {
    const std::u16string sPath = Path(u"text");
    EXPECT_TRUE(U::st_StringToTextFile(sPath, u"\u00E9", feUtf8, false));
    EXPECT_EQ(BytesOf(u"text"), "\xEF\xBB\xBF\xC3\xA9");
    EXPECT_EQ(U::st_FileLen(sPath), 5);
    EXPECT_EQ(U::st_GetFileEncoding(sPath), feUtf8);
    EXPECT_EQ(U::st_GetFileEncoding(File(u"units", "\xFF\xFEx")), feUnicode);
    std::u16string s;
    EXPECT_TRUE(U::st_TextFileToString(sPath, s, false));
    EXPECT_EQ(s, u"\u00E9");
    EXPECT_FALSE(U::st_TextFileToString(Path(u"missing"), s, false));
    EXPECT_THROW(U::st_TextFileToString(Path(u"missing"), s, true), Failure);
    EXPECT_FALSE(U::st_StringToTextFile(Path(u"missing\\x"), u"", feAnsi, false));
    EXPECT_THROW(U::st_StringToTextFile(Path(u"missing\\x"), u"", feAnsi, true), Failure);
}

LPWSTR WINAPI AnswerShortCommandLine() {
    static wchar_t line[] = L"p.exe a b";
    return line;
}

TEST_F(UniFileStatics, FoldersAndArgumentsOfTheProgramAreThoseThePlatformGives) {
    wchar_t buffer[MAX_PATH + 1] = {};
    ASSERT_NE(GetCurrentDirectoryW(MAX_PATH, buffer), 0u);
    const std::wstring sBefore = buffer;
    EXPECT_TRUE(U::st_SetCurDir(Path()));
    EXPECT_EQ(U::st_GetCurDir(), Path());
    EXPECT_FALSE(U::st_SetCurDir(Path(u"missing")));
    SetCurrentDirectoryW(sBefore.c_str());
    ASSERT_NE(GetTempPathW(MAX_PATH, buffer), 0u);
    EXPECT_EQ(U::st_GetTempPath(), TextOfWide(buffer));
    ASSERT_NE(GetModuleFileNameW(nullptr, buffer, MAX_PATH), 0u);
    const std::u16string sProgram = TextOfWide(buffer);
    EXPECT_EQ(U::st_UniAppPath(), sProgram.substr(0, sProgram.rfind(u'\\')));
    const PatchedImport<decltype(GetCommandLineW)> patch("GetCommandLineW", AnswerShortCommandLine);
    EXPECT_EQ(U::st_UniCommandLine(), u"a b");
}

TEST(UniFileStaticsOnNames, PartsOfAPath) {
    EXPECT_EQ(U::st_FilePath(u"C:\\d\\name.ext", true), u"C:\\d\\");
    EXPECT_EQ(U::st_FilePath(u"C:\\d\\name.ext", false), u"C:\\d");
    EXPECT_EQ(U::st_FileName(u"C:\\d\\name.ext"), u"name.ext");
    EXPECT_EQ(U::st_FileExt(u"C:\\d\\name.ext"), u"ext");
    EXPECT_EQ(U::st_FileNameNoExt(u"C:\\d\\name.ext"), u"name");
}

TEST(UniFileStaticsOnNames, SeparatorsAtTheEndAndKindsOfPath) {
    EXPECT_EQ(U::st_OneBackSlash(u"C:\\d"), u"C:\\d\\");
    EXPECT_EQ(U::st_NoBackSlash(u"C:\\d\\\\"), u"C:\\d");
    EXPECT_EQ(U::st_OneSlashWeb(u"http://h/d"), u"http://h/d/");
    EXPECT_EQ(U::st_NoSlashWeb(u"http://h/d//"), u"http://h/d");
    EXPECT_TRUE(U::st_IsLocalPath(u"C:\\d"));
    EXPECT_FALSE(U::st_IsLocalPath(u"http://h/d"));
    EXPECT_TRUE(U::st_IsWebPath(u"http://h/d"));
    EXPECT_FALSE(U::st_IsWebPath(u"C:\\d"));
}

} // namespace
} // namespace orvanta
