// Moving and copying what a folder holds.
#include "files/modUniFileUtils.h"

#include "tests/files/FolderFixture.h"
#include "tests/support/PatchedImport.h"

#include <gtest/gtest.h>

#include <string>

namespace orvanta {
namespace {

using testing::FolderFixture;
using testing::LockedFile;
using testing::PatchedImport;

// src: a.txt, sub (b.txt, deep (\u0436.txt)), zero (empty)
class FolderContent : public FolderFixture {
protected:
    FolderContent() {
        Folder(u"src");
        File(u"src\\a.txt", "a");
        Folder(u"src\\sub");
        File(u"src\\sub\\b.txt", "b");
        Folder(u"src\\sub\\deep");
        File(u"src\\sub\\deep\\\u0436.txt", "c");
        Folder(u"src\\zero");
    }

    void ExpectAllIn(const std::u16string& sFolder) const {
        EXPECT_EQ(BytesOf(sFolder + u"\\a.txt"), "a");
        EXPECT_EQ(BytesOf(sFolder + u"\\sub\\b.txt"), "b");
        EXPECT_EQ(BytesOf(sFolder + u"\\sub\\deep\\\u0436.txt"), "c");
        EXPECT_TRUE(HasFolder(sFolder + u"\\zero"));
    }
};

class MoveFolderContent : public FolderContent {};
class CopyFolderContent : public FolderContent {};

TEST_F(MoveFolderContent, MovesAllFilesAndLeavesTheEmptiedFolders) {
    Folder(u"dst");
    EXPECT_TRUE(ufu_MoveFolderContent(Path(u"src\\"), Path(u"dst")));
    ExpectAllIn(u"dst");
    EXPECT_FALSE(HasFile(u"src\\a.txt"));
    EXPECT_FALSE(HasFile(u"src\\sub\\deep\\\u0436.txt"));
    EXPECT_TRUE(HasFolder(u"src\\sub\\deep"));
    EXPECT_TRUE(HasFolder(u"src\\zero"));
}

DWORD g_lMoveFlags = 0;

BOOL WINAPI NoteMoveFlags(LPCWSTR, LPCWSTR, DWORD lFlags) {
    g_lMoveFlags = lFlags;
    return TRUE;
}

TEST_F(MoveFolderContent, LetsThePlatformReplaceCopyAndWriteThrough) {
    Folder(u"dst");
    const PatchedImport<decltype(MoveFileExW)> patch("MoveFileExW", NoteMoveFlags);
    EXPECT_TRUE(ufu_MoveFolderContent(Path(u"src\\"), Path(u"dst")));
    EXPECT_EQ(g_lMoveFlags, 11u);
}

TEST_F(MoveFolderContent, EndingOfTheDestinationDoesNotMatter) {
    Folder(u"dst");
    EXPECT_TRUE(ufu_MoveFolderContent(Path(u"src\\"), Path(u"dst\\\\")));
    ExpectAllIn(u"dst");
}

// The target then has two backslashes in a row, which nobody cleans behind the long-path prefix.
TEST_F(MoveFolderContent, SourceWithoutItsFinalBackslashMovesNothing) {
    Folder(u"dst");
    EXPECT_FALSE(ufu_MoveFolderContent(Path(u"src"), Path(u"dst")));
    ExpectAllIn(u"src");
    EXPECT_FALSE(HasFile(u"dst\\a.txt"));
    EXPECT_FALSE(HasFolder(u"dst\\sub"));
}

// What is cut off is as long as the source as given: here one character of each name.
TEST_F(MoveFolderContent, SourceWithADoubledFinalBackslashEatsIntoTheNames) {
    Folder(u"dst");
    EXPECT_TRUE(ufu_MoveFolderContent(Path(u"src\\\\"), Path(u"dst")));
    EXPECT_EQ(BytesOf(u"dst\\.txt"), "a");
    EXPECT_EQ(BytesOf(u"dst\\ub\\b.txt"), "b");
}

TEST_F(MoveFolderContent, ReplacesFilesAndMergesFolders) {
    Folder(u"dst");
    File(u"dst\\a.txt", "old");
    File(u"dst\\kept.txt", "kept");
    Folder(u"dst\\sub");
    EXPECT_TRUE(ufu_MoveFolderContent(Path(u"src\\"), Path(u"dst")));
    ExpectAllIn(u"dst");
    EXPECT_EQ(BytesOf(u"dst\\kept.txt"), "kept");
}

TEST_F(MoveFolderContent, NeedsBothFolders) {
    EXPECT_FALSE(ufu_MoveFolderContent(Path(u"src\\"), Path(u"dst")));
    EXPECT_FALSE(HasFolder(u"dst"));
    Folder(u"dst");
    EXPECT_FALSE(ufu_MoveFolderContent(Path(u"missing\\"), Path(u"dst")));
    EXPECT_FALSE(ufu_MoveFolderContent(u"", Path(u"dst")));
    EXPECT_FALSE(ufu_MoveFolderContent(Path(u"src\\"), u""));
    EXPECT_FALSE(ufu_MoveFolderContent(u"C:/a", Path(u"dst")));
    EXPECT_FALSE(ufu_MoveFolderContent(Path(u"src\\"), u"C:/a"));
    ExpectAllIn(u"src");
}

TEST_F(MoveFolderContent, GoesOnBehindALockedFile) {
    Folder(u"dst");
    const LockedFile lock(Path(u"src\\a.txt"));
    EXPECT_FALSE(ufu_MoveFolderContent(Path(u"src\\"), Path(u"dst")));
    EXPECT_TRUE(HasFile(u"src\\a.txt"));
    EXPECT_EQ(BytesOf(u"dst\\sub\\b.txt"), "b");
}

TEST_F(MoveFolderContent, FolderInAFilesPlaceStopsThatFileOnly) {
    Folder(u"dst");
    Folder(u"dst\\a.txt");
    EXPECT_FALSE(ufu_MoveFolderContent(Path(u"src\\"), Path(u"dst")));
    EXPECT_TRUE(HasFile(u"src\\a.txt"));
    EXPECT_EQ(BytesOf(u"dst\\sub\\b.txt"), "b");
}

TEST_F(MoveFolderContent, OfADeepTreeKeepsEveryLevel) {
    Folder(u"dst");
    Folder(u"deep");
    const std::u16string sDeep = DeepFolder(u"deep\\level", 1);
    std::u16string sLast = sDeep;
    for (int n = 1; n < 60; ++n)
        Folder(sLast += u"\\level");
    File(sLast + u"\\last.txt", "z");
    EXPECT_TRUE(ufu_MoveFolderContent(Path(u"deep\\"), Path(u"dst")));
    EXPECT_EQ(BytesOf(u"dst" + sLast.substr(4) + u"\\last.txt"), "z");
}

TEST_F(CopyFolderContent, CopiesAllFilesAndMakesTheDestination) {
    EXPECT_TRUE(ufu_CopyFolderContent(Path(u"src"), Path(u"new\\dst")));
    ExpectAllIn(u"new\\dst");
    ExpectAllIn(u"src");
}

TEST_F(CopyFolderContent, TakesBothPathsWithAFinalBackslashToo) {
    EXPECT_TRUE(ufu_CopyFolderContent(Path(u"src\\"), Path(u"dst\\")));
    ExpectAllIn(u"dst");
}

// Nothing is put between the destination and the names: with the backslash on the source alone they run together.
TEST_F(CopyFolderContent, DestinationWithoutTheSourcesFinalBackslashRunsIntoTheNames) {
    EXPECT_TRUE(ufu_CopyFolderContent(Path(u"src\\"), Path(u"dst")));
    EXPECT_EQ(BytesOf(u"dsta.txt"), "a");
    EXPECT_EQ(BytesOf(u"dstsub\\b.txt"), "b");
    EXPECT_TRUE(HasFolder(u"dst")) << "made before";
    EXPECT_FALSE(HasFile(u"dst\\a.txt"));
}

TEST_F(CopyFolderContent, SourceWithoutTheDestinationsFinalBackslashCopiesNothing) {
    EXPECT_FALSE(ufu_CopyFolderContent(Path(u"src"), Path(u"dst\\")));
    EXPECT_FALSE(HasFile(u"dst\\a.txt"));
}

TEST_F(CopyFolderContent, ReplacesFilesAndGoesOnBehindOneThatIsLocked) {
    Folder(u"dst");
    File(u"dst\\a.txt", "old");
    Folder(u"dst\\sub");
    File(u"dst\\sub\\b.txt", "fixed");
    const LockedFile lock(Path(u"dst\\sub\\b.txt"), FILE_SHARE_READ);
    EXPECT_FALSE(ufu_CopyFolderContent(Path(u"src"), Path(u"dst")));
    EXPECT_EQ(BytesOf(u"dst\\a.txt"), "a");
    EXPECT_EQ(BytesOf(u"dst\\sub\\b.txt"), "fixed");
    EXPECT_EQ(BytesOf(u"dst\\sub\\deep\\\u0436.txt"), "c");
}

TEST_F(CopyFolderContent, AnswersFalseWithoutSourceOrDestination) {
    File(u"file");
    EXPECT_FALSE(ufu_CopyFolderContent(Path(u"missing"), Path(u"dst")));
    EXPECT_FALSE(HasFolder(u"dst")) << "not made for nothing";
    EXPECT_FALSE(ufu_CopyFolderContent(Path(u"src"), Path(u"file\\dst")));
    EXPECT_FALSE(ufu_CopyFolderContent(Path(u"src"), Path(u"file")));
    EXPECT_FALSE(ufu_CopyFolderContent(Path(u"src"), u"C:/dst"));
    EXPECT_FALSE(ufu_CopyFolderContent(u"", Path(u"dst")));
}

TEST_F(CopyFolderContent, IntoAFolderBelowTheSourceTakesTheContentFoundBefore) {
    Folder(u"src\\zero\\inside");
    EXPECT_TRUE(ufu_CopyFolderContent(Path(u"src"), Path(u"src\\zero\\inside")));
    ExpectAllIn(u"src\\zero\\inside");
    EXPECT_FALSE(HasFile(u"src\\zero\\inside\\zero\\inside\\a.txt"));
}

} // namespace
} // namespace orvanta
