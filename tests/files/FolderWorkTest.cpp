// Making paths, removing trees, moving and copying the content of folders.
#include "files/modUniFileUtils.h"

#include "base/Failure.h"
#include "plumbing/WideText.h"
#include "tests/files/FolderFixture.h"
#include "tests/support/PatchedImport.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace orvanta {
namespace {

using testing::FolderFixture;
using testing::LockedFile;
using testing::PatchedImport;

std::vector<std::u16string> g_calls; // what the platform was handed, in order

BOOL WINAPI RecordMkDir(LPCWSTR path, LPSECURITY_ATTRIBUTES) {
    g_calls.push_back(u"make " + TextOfWide(path));
    return TRUE;
}

BOOL WINAPI RecordRmDir(LPCWSTR path) {
    g_calls.push_back(u"remove " + TextOfWide(path));
    return FALSE;
}

HANDLE WINAPI RecordFindNothing(LPCWSTR pattern, WIN32_FIND_DATAW*) {
    g_calls.push_back(u"find " + TextOfWide(pattern));
    return INVALID_HANDLE_VALUE;
}

class MakePath : public FolderFixture {};
class RemoveTree : public FolderFixture {};

TEST_F(MakePath, MakesAllMissingLevels) {
    EXPECT_TRUE(ufu_MakePath(Path(u"a\\\u0436\\\u65E5\u672C")));
    EXPECT_TRUE(HasFolder(u"a\\\u0436\\\u65E5\u672C"));
    EXPECT_TRUE(ufu_MakePath(Path(u"a\\b\\")));
    EXPECT_TRUE(HasFolder(u"a\\b"));
    EXPECT_TRUE(ufu_MakePath(Path(u"a"))) << "what is there is enough";
}

TEST_F(MakePath, ReachesSixtyLevelsBeyondTheOldLimit) {
    std::u16string sDeep = u"level";
    for (int n = 1; n < 60; ++n)
        sDeep += u"\\level";
    ASSERT_GT(Path(sDeep).size(), 360u);
    EXPECT_TRUE(ufu_MakePath(Path(sDeep)));
    EXPECT_TRUE(HasFolder(sDeep));
}

// The walk ends at the empty part, and the path as given is not there.
TEST_F(MakePath, StopsAtADoubledBackslash) {
    EXPECT_FALSE(ufu_MakePath(Path(u"a\\\\b")));
    EXPECT_TRUE(HasFolder(u"a"));
    EXPECT_FALSE(HasFolder(u"a\\b"));
}

TEST_F(MakePath, AnswersFalseWhereItCannotGoOn) {
    File(u"file");
    EXPECT_FALSE(ufu_MakePath(Path(u"file")));
    EXPECT_FALSE(ufu_MakePath(Path(u"file\\below")));
    EXPECT_FALSE(ufu_MakePath(u""));
    EXPECT_FALSE(ufu_MakePath(u"\\rooted"));
    EXPECT_FALSE(ufu_MakePath(u"\\\\" + std::u16string(32767, u'a') + u"\\b")) << "a position too far to the right";
}

TEST_F(MakePath, RefusesAWebPath) {
    try {
        ufu_MakePath(u"C:/a");
        ADD_FAILURE() << "nothing was raised";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.Number(), 0x80040001u);
        EXPECT_EQ(failure.Source(), u"ufu_MakePath");
        EXPECT_EQ(failure.Description(), u"Not a local path");
    }
}

TEST_F(MakePath, OfANetworkPathBeginsWithTheShare) {
    g_calls.clear();
    const PatchedImport<decltype(CreateDirectoryW)> make("CreateDirectoryW", RecordMkDir);
    const PatchedImport<decltype(FindFirstFileW)> find("FindFirstFileW", RecordFindNothing);
    EXPECT_FALSE(ufu_MakePath(u"\\\\server\\share\\a"));
    EXPECT_EQ(g_calls, (std::vector<std::u16string>{u"find \\\\server\\share\\*.*", u"make \\\\server\\share",
                                                    u"find \\\\server\\share\\a\\*.*", u"make \\\\server\\share\\a",
                                                    u"find \\\\server\\share\\a\\*.*"}));
    g_calls.clear();
    EXPECT_FALSE(ufu_MakePath(u"\\\\server"));
    EXPECT_EQ(g_calls,
              (std::vector<std::u16string>{u"find \\\\server\\*.*", u"make \\\\server", u"find \\\\server\\*.*"}));
}

TEST_F(MakePath, OfADriveBeginsWithTheDrive) {
    g_calls.clear();
    const PatchedImport<decltype(CreateDirectoryW)> make("CreateDirectoryW", RecordMkDir);
    const PatchedImport<decltype(FindFirstFileW)> find("FindFirstFileW", RecordFindNothing);
    EXPECT_FALSE(ufu_MakePath(u"X:\\a"));
    EXPECT_EQ(g_calls,
              (std::vector<std::u16string>{u"find \\\\?\\X:\\*.*", u"make \\\\?\\X:", u"find \\\\?\\X:\\a\\*.*",
                                           u"make \\\\?\\X:\\a", u"find \\\\?\\X:\\a\\*.*"}));
}

TEST_F(RemoveTree, TakesEverythingWithIt) {
    Folder(u"top");
    Folder(u"top\\empty");
    Folder(u"top\\mid");
    File(u"top\\mid\\\u0436.txt");
    File(u"top\\fixed.txt");
    SetAttributes(u"top\\fixed.txt", FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN);
    File(u"beside.txt");
    EXPECT_TRUE(ufu_RmDirRic(Path(u"top")));
    EXPECT_FALSE(HasFolder(u"top"));
    EXPECT_TRUE(HasFile(u"beside.txt"));
}

TEST_F(RemoveTree, TakesAPathWithAnyNumberOfFinalBackslashes) {
    Folder(u"top");
    Folder(u"top\\a");
    File(u"top\\a\\x");
    Folder(u"top\\b");
    EXPECT_TRUE(ufu_RmDirRic(Path(u"top\\")));
    EXPECT_FALSE(HasFolder(u"top"));
    Folder(u"top");
    Folder(u"top\\a");
    File(u"top\\a\\x");
    File(u"top\\z");
    ufu_RmDirRic(Path(u"top\\\\")); // whether the last step takes such a path is the platform's affair
    EXPECT_FALSE(HasFolder(u"top\\a"));
    EXPECT_FALSE(HasFile(u"top\\z"));
}

TEST_F(RemoveTree, ReachesSixtyLevelsBeyondTheOldLimit) {
    const std::u16string sDeep = DeepFolder(u"deep_and_long", 60);
    File(sDeep + u"\\last.txt");
    EXPECT_TRUE(ufu_RmDirRic(Path(u"deep_and_long")));
    EXPECT_FALSE(HasFolder(u"deep_and_long"));
}

TEST_F(RemoveTree, LeavesALockedFileAndItsFoldersAndGoesOn) {
    Folder(u"top");
    Folder(u"top\\a");
    File(u"top\\a\\locked");
    File(u"top\\a\\other");
    Folder(u"top\\b");
    File(u"top\\z");
    const LockedFile lock(Path(u"top\\a\\locked"));
    EXPECT_FALSE(ufu_RmDirRic(Path(u"top")));
    EXPECT_TRUE(HasFile(u"top\\a\\locked"));
    EXPECT_FALSE(HasFile(u"top\\a\\other"));
    EXPECT_FALSE(HasFolder(u"top\\b"));
    EXPECT_FALSE(HasFile(u"top\\z"));
}

// Whatever is left of the list is removed as a folder, and a file that could not be deleted is still on it.
TEST_F(RemoveTree, TriesAFileThatStayedAsAFolderToo) {
    Folder(u"top");
    File(u"top\\gone");
    File(u"top\\locked");
    Folder(u"top\\mid");
    const LockedFile lock(Path(u"top\\locked"));
    g_calls.clear();
    const PatchedImport<decltype(RemoveDirectoryW)> remove("RemoveDirectoryW", RecordRmDir);
    EXPECT_FALSE(ufu_RmDirRic(Path(u"top")));
    const std::u16string sTop = u"remove \\\\?\\" + Path(u"top");
    EXPECT_EQ(g_calls, (std::vector<std::u16string>{sTop + u"\\locked", sTop + u"\\mid", sTop}));
}

TEST_F(RemoveTree, AnswersFalseWithoutAFolder) {
    File(u"file");
    EXPECT_FALSE(ufu_RmDirRic(u""));
    EXPECT_FALSE(ufu_RmDirRic(Path(u"missing")));
    EXPECT_FALSE(ufu_RmDirRic(Path(u"file")));
    EXPECT_FALSE(ufu_RmDirRic(u"C:/missing"));
    EXPECT_TRUE(HasFile(u"file"));
}

} // namespace
} // namespace orvanta
