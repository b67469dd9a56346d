// The file utilities that are one call of the platform each: folders, files, attributes, existence.
#include "files/modUniFileUtils.h"

#include "tests/files/FolderFixture.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace orvanta {
namespace {

using testing::FolderFixture;
using testing::LockedFile;

constexpr std::int32_t kReadOnly = FILE_ATTRIBUTE_READONLY;
constexpr std::int32_t kHidden = FILE_ATTRIBUTE_HIDDEN;

class FileUtils : public FolderFixture {};

TEST_F(FileUtils, MkDirMakesOneLevel) {
    EXPECT_TRUE(ufu_MkDir(Path(u"\u0436\u65E5")));
    EXPECT_TRUE(HasFolder(u"\u0436\u65E5"));
    EXPECT_FALSE(ufu_MkDir(Path(u"\u0436\u65E5"))) << "it is there already";
    EXPECT_FALSE(ufu_MkDir(Path(u"a\\b")));
    EXPECT_FALSE(HasFolder(u"a"));
    File(u"file");
    EXPECT_FALSE(ufu_MkDir(Path(u"file")));
    EXPECT_FALSE(ufu_MkDir(u""));
}

TEST_F(FileUtils, RmDirRemovesAnEmptyFolderOnly) {
    Folder(u"empty");
    Folder(u"full");
    File(u"full\\x");
    EXPECT_TRUE(ufu_RmDir(Path(u"empty")));
    EXPECT_FALSE(HasFolder(u"empty"));
    EXPECT_FALSE(ufu_RmDir(Path(u"full")));
    EXPECT_TRUE(HasFile(u"full\\x"));
    EXPECT_FALSE(ufu_RmDir(Path(u"full\\x"))) << "a file is no folder";
    EXPECT_FALSE(ufu_RmDir(Path(u"missing")));
    EXPECT_FALSE(ufu_RmDir(u""));
}

TEST_F(FileUtils, CopyFileReplacesUnlessToldNotTo) {
    File(u"from", "new");
    File(u"to", "old");
    EXPECT_FALSE(ufu_CopyFile(Path(u"from"), Path(u"to"), true));
    EXPECT_EQ(BytesOf(u"to"), "old");
    EXPECT_TRUE(ufu_CopyFile(Path(u"from"), Path(u"to"), false));
    EXPECT_EQ(BytesOf(u"to"), "new");
    EXPECT_TRUE(ufu_CopyFile(Path(u"from"), Path(u"\u03B1"), true));
    EXPECT_EQ(BytesOf(u"\u03B1"), "new");
    EXPECT_EQ(BytesOf(u"from"), "new");
}

TEST_F(FileUtils, CopyFileAnswersFalseWhenItCannot) {
    File(u"from", "new");
    Folder(u"folder");
    EXPECT_FALSE(ufu_CopyFile(Path(u"missing"), Path(u"to"), false));
    EXPECT_FALSE(ufu_CopyFile(Path(u"from"), Path(u"missing\\to"), false));
    EXPECT_FALSE(ufu_CopyFile(Path(u"from"), Path(u"folder"), false));
    EXPECT_FALSE(ufu_CopyFile(Path(u"folder"), Path(u"to"), false));
    EXPECT_FALSE(ufu_CopyFile(u"", u"", false));
    const LockedFile lock(Path(u"from"));
    EXPECT_FALSE(ufu_CopyFile(Path(u"from"), Path(u"to"), false));
}

TEST_F(FileUtils, RmFileRemovesReadOnlyFilesToo) {
    File(u"plain");
    File(u"fixed");
    SetAttributes(u"fixed", FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM);
    EXPECT_TRUE(ufu_RmFile(Path(u"plain")));
    EXPECT_TRUE(ufu_RmFile(Path(u"fixed")));
    EXPECT_FALSE(HasFile(u"plain"));
    EXPECT_FALSE(HasFile(u"fixed"));
}

TEST_F(FileUtils, RmFileAnswersFalseWhenItCannot) {
    Folder(u"folder");
    File(u"locked");
    const LockedFile lock(Path(u"locked"));
    EXPECT_FALSE(ufu_RmFile(Path(u"locked")));
    EXPECT_FALSE(ufu_RmFile(Path(u"missing")));
    EXPECT_FALSE(ufu_RmFile(Path(u"folder")));
    EXPECT_FALSE(ufu_RmFile(u""));
    EXPECT_TRUE(HasFolder(u"folder"));
    EXPECT_TRUE(HasFile(u"locked"));
}

TEST_F(FileUtils, RmFilesRemovesWhatThePatternMatches) {
    for (const char16_t* sName : {u"a.txt", u"b.txt", u"c.bin"})
        File(sName);
    Folder(u"folder.txt");
    SetAttributes(u"b.txt", FILE_ATTRIBUTE_READONLY);
    EXPECT_TRUE(ufu_RmFiles(Path(u"*.txt")));
    EXPECT_FALSE(HasFile(u"a.txt"));
    EXPECT_FALSE(HasFile(u"b.txt"));
    EXPECT_TRUE(HasFile(u"c.bin"));
    EXPECT_TRUE(HasFolder(u"folder.txt")) << "folders stay";
}

TEST_F(FileUtils, RmFilesWithoutAMatchHasDoneItAll) {
    EXPECT_TRUE(ufu_RmFiles(Path(u"*.txt")));
    EXPECT_TRUE(ufu_RmFiles(Path(u"missing\\*.txt")));
    EXPECT_TRUE(ufu_RmFiles(u""));
    EXPECT_TRUE(ufu_RmFiles(u"C:/windows/*.txt"));
}

TEST_F(FileUtils, RmFilesGoesOnBehindAFileThatStays) {
    for (const char16_t* sName : {u"a.txt", u"b.txt", u"c.txt"})
        File(sName);
    const LockedFile lock(Path(u"a.txt"));
    EXPECT_FALSE(ufu_RmFiles(Path(u"*.txt")));
    EXPECT_TRUE(HasFile(u"a.txt"));
    EXPECT_FALSE(HasFile(u"b.txt"));
    EXPECT_FALSE(HasFile(u"c.txt"));
}

TEST_F(FileUtils, MoveFileFollowsItsFlags) {
    File(u"from", "new");
    File(u"to", "old");
    EXPECT_FALSE(ufu_MoveFile(Path(u"from"), Path(u"to"), 0));
    EXPECT_EQ(BytesOf(u"to"), "old");
    EXPECT_TRUE(ufu_MoveFile(Path(u"from"), Path(u"to"), MOVEFILE_REPLACE_EXISTING));
    EXPECT_EQ(BytesOf(u"to"), "new");
    EXPECT_FALSE(HasFile(u"from"));
    Folder(u"folder");
    EXPECT_TRUE(ufu_MoveFile(Path(u"folder"), Path(u"\u65E5\u672C"), 0));
    EXPECT_TRUE(HasFolder(u"\u65E5\u672C"));
}

TEST_F(FileUtils, MoveFileAnswersFalseWhenItCannot) {
    File(u"locked");
    const LockedFile lock(Path(u"locked"));
    EXPECT_FALSE(ufu_MoveFile(Path(u"locked"), Path(u"to"), 11));
    EXPECT_FALSE(ufu_MoveFile(Path(u"missing"), Path(u"to"), 11));
    EXPECT_FALSE(ufu_MoveFile(Path(u"locked"), Path(u"missing\\to"), 11));
    EXPECT_TRUE(HasFile(u"locked"));
}

TEST_F(FileUtils, AttributesGoAndComeAsTheyAre) {
    File(u"x");
    EXPECT_TRUE(ufu_SetFileAttr(Path(u"x"), kReadOnly | kHidden));
    EXPECT_EQ(AttributesOf(u"x") & 7, static_cast<DWORD>(kReadOnly | kHidden));
    EXPECT_EQ(ufu_GetFileAttr(Path(u"x")) & 7, kReadOnly | kHidden);
    EXPECT_TRUE(ufu_SetFileAttr(Path(u"x"), FILE_ATTRIBUTE_NORMAL));
    EXPECT_EQ(ufu_GetFileAttr(Path(u"x")) & 7, 0);
    EXPECT_EQ(ufu_GetFileAttr(Path()) & FILE_ATTRIBUTE_DIRECTORY, FILE_ATTRIBUTE_DIRECTORY);
    EXPECT_EQ(ufu_GetFileAttr(Path(u"missing")), -1);
    EXPECT_EQ(ufu_GetFileAttr(u""), -1);
    EXPECT_FALSE(ufu_SetFileAttr(Path(u"missing"), kHidden));
}

TEST_F(FileUtils, FileHasAnAttributeWhenTheBitIsSet) {
    File(u"x");
    SetAttributes(u"x", FILE_ATTRIBUTE_HIDDEN);
    EXPECT_TRUE(ufu_FileHasAttribute(Path(u"x"), kHidden));
    EXPECT_FALSE(ufu_FileHasAttribute(Path(u"x"), kReadOnly));
    EXPECT_TRUE(ufu_FileHasAttribute(Path(u"x"), kReadOnly | kHidden)) << "one of several is enough";
    EXPECT_FALSE(ufu_FileHasAttribute(Path(u"x"), 0));
}

// The attributes of an absent path are -1, and that has every bit.
TEST_F(FileUtils, AbsentPathHasEveryPositiveAttribute) {
    for (const std::int32_t iAttr : {1, 2, 16, 0x4000, std::numeric_limits<std::int32_t>::max()}) {
        EXPECT_TRUE(ufu_FileHasAttribute(Path(u"missing"), iAttr));
    }
    EXPECT_FALSE(ufu_FileHasAttribute(Path(u"missing"), 0));
    EXPECT_FALSE(ufu_FileHasAttribute(Path(u"missing"), -1));
}

TEST_F(FileUtils, FileExistsWhenExactlyOneFileMatches) {
    File(u"a.txt");
    File(u"\u0939\u093F\u0928.txt");
    EXPECT_TRUE(ufu_FileExist(Path(u"a.txt")));
    EXPECT_TRUE(ufu_FileExist(Path(u"A.TXT")));
    EXPECT_TRUE(ufu_FileExist(Path(u"a.*")));
    EXPECT_TRUE(ufu_FileExist(Path(u"\u0939\u093F\u0928.txt")));
    EXPECT_FALSE(ufu_FileExist(Path(u"*.txt"))) << "two files match";
    EXPECT_FALSE(ufu_FileExist(Path(u"*.bin")));
    EXPECT_FALSE(ufu_FileExist(Path(u"b.txt")));
    EXPECT_FALSE(ufu_FileExist(Path(u"missing\\a.txt")));
}

TEST_F(FileUtils, FolderIsNoFile) {
    Folder(u"folder.txt");
    EXPECT_FALSE(ufu_FileExist(Path(u"folder.txt")));
    File(u"file.txt");
    EXPECT_TRUE(ufu_FileExist(Path(u"*.txt"))) << "the folder is not counted";
}

TEST_F(FileUtils, HiddenAndLockedFilesExist) {
    File(u"x");
    SetAttributes(u"x", FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM);
    const LockedFile lock(Path(u"x"));
    EXPECT_TRUE(ufu_FileExist(Path(u"x")));
}

TEST_F(FileUtils, NothingExistsUnderAnEmptyNameOrAWebPath) {
    EXPECT_FALSE(ufu_FileExist(u""));
    EXPECT_FALSE(ufu_FileExist(u"C:/windows/win.ini"));
    EXPECT_FALSE(ufu_FileExist(std::u16string(40000, u'a') + u"\\b"));
    EXPECT_FALSE(ufu_DirExist(u""));
    EXPECT_FALSE(ufu_DirExist(u"C:/windows"));
    EXPECT_FALSE(ufu_DirExist(std::u16string(40000, u'a')));
}

// The entry "." of a folder is the one result that an empty folder has.
TEST_F(FileUtils, EmptyFolderExists) {
    Folder(u"empty");
    for (const char16_t* sName : {u"empty", u"empty\\", u"empty\\\\", u"EMPTY"})
        EXPECT_TRUE(ufu_DirExist(Path(sName)));
    File(u"file");
    EXPECT_FALSE(ufu_DirExist(Path(u"file")));
    EXPECT_FALSE(ufu_DirExist(Path(u"missing")));
    EXPECT_FALSE(ufu_DirExist(Path(u"missing\\empty")));
}

TEST_F(FileUtils, EverythingWorksBeyondTheOldLimit) {
    const std::u16string sDeep = DeepFolder(u"a_folder_with_a_long_name", 20);
    ASSERT_GT(Path(sDeep).size(), 500u);
    const std::u16string sBase = sDeep + u"\\";
    EXPECT_TRUE(ufu_DirExist(Path(sDeep)));
    EXPECT_TRUE(ufu_MkDir(Path(sBase + u"\u0436")));
    File(sBase + u"from", "x");
    EXPECT_TRUE(ufu_CopyFile(Path(sBase + u"from"), Path(sBase + u"copy"), true));
    EXPECT_TRUE(ufu_MoveFile(Path(sBase + u"copy"), Path(sBase + u"moved"), 0));
    EXPECT_TRUE(ufu_FileExist(Path(sBase + u"moved")));
    EXPECT_TRUE(ufu_SetFileAttr(Path(sBase + u"moved"), kReadOnly));
    EXPECT_EQ(ufu_GetFileAttr(Path(sBase + u"moved")) & kReadOnly, kReadOnly);
    EXPECT_TRUE(ufu_RmFiles(Path(sBase + u"*")));
    EXPECT_TRUE(ufu_RmDir(Path(sBase + u"\u0436")));
    EXPECT_TRUE(ufu_RmDir(Path(sDeep)));
}

} // namespace
} // namespace orvanta
