// Writing through and past the cache of clsUniFile.
#include "tests/files/UniFileFixture.h"

namespace orvanta {
namespace {

using testing::Pattern;
using Sizes = std::vector<DWORD>;
using Calls = std::vector<std::string>;

class UniFileWrite : public testing::UniFileFixture {
protected:
    UniFileWrite() : sPath(folder / u"written.bin") { EXPECT_TRUE(file.OpenFileWrite(sPath, false)); }

    std::string Written() {
        file.CloseFile();
        return folder.Read(sPath);
    }

    std::u16string sPath;
    clsUniFile file;
};

TEST_F(UniFileWrite, CachefulOfBytesPendsAndTheNextByteWritesItWhole) {
    const std::string sAll = Pattern(16385);
    for (std::size_t n = 0; n < 16384; ++n)
        ASSERT_TRUE(file.WriteByte(testing::PatternAt(n)));
    EXPECT_TRUE(platform.calls.empty());
    EXPECT_EQ(file.LOF(), 16384);
    platform.Forget();
    EXPECT_TRUE(file.WriteByte(testing::PatternAt(16384)));
    EXPECT_EQ(platform.calls, Calls{"write 16384"});
    EXPECT_EQ(file.RealFilePos(), 16384);
    EXPECT_EQ(file.GetFilePos(), 16385); // one byte pends
    EXPECT_EQ(Written(), sAll);
    EXPECT_EQ(platform.writes, (Sizes{16384, 1}));
}

TEST_F(UniFileWrite, BlockOfTheCacheSizePends) {
    EXPECT_TRUE(Put(file, Pattern(16384)));
    EXPECT_TRUE(platform.writes.empty());
    EXPECT_EQ(Written(), Pattern(16384));
    EXPECT_EQ(platform.writes, Sizes{16384});
}

TEST_F(UniFileWrite, BlockAboveTheCacheIsWrittenDirectlyBehindThePendingBytes) {
    EXPECT_TRUE(Put(file, "abc"));
    EXPECT_TRUE(Put(file, Pattern(16385)));
    EXPECT_EQ(platform.writes, (Sizes{3, 16385}));
    EXPECT_EQ(Written(), "abc" + Pattern(16385));
    EXPECT_EQ(platform.writes, (Sizes{3, 16385}));
}

TEST_F(UniFileWrite, BlockThatDoesNotFitFillsTheCacheAndTheRestPends) {
    EXPECT_TRUE(Put(file, Pattern(16000)));
    EXPECT_TRUE(Put(file, Pattern(1000)));
    EXPECT_EQ(platform.writes, Sizes{16384});
    EXPECT_EQ(Written(), Pattern(16000) + Pattern(1000));
    EXPECT_EQ(platform.writes, (Sizes{16384, 616}));
}

TEST_F(UniFileWrite, BlockThatFitsExactlyPends) {
    EXPECT_TRUE(Put(file, Pattern(16000)));
    EXPECT_TRUE(Put(file, Pattern(384)));
    EXPECT_TRUE(platform.writes.empty());
    EXPECT_TRUE(Put(file, Pattern(16384))); // free space 0: all of it goes to the emptied cache
    EXPECT_EQ(platform.writes, Sizes{16384});
    EXPECT_EQ(Written(), Pattern(16000) + Pattern(384) + Pattern(16384));
}

TEST_F(UniFileWrite, WithoutCacheEachWriteIsOnePlatformWrite) {
    file.UseCache(false);
    EXPECT_TRUE(file.WriteByte('a'));
    EXPECT_TRUE(Put(file, "bcd"));
    EXPECT_TRUE(Put(file, Pattern(20000)));
    EXPECT_EQ(platform.writes, (Sizes{1, 3, 20000}));
    EXPECT_EQ(Written(), "abcd" + Pattern(20000));
}

TEST_F(UniFileWrite, CountBelowOneIsRefused) {
    EXPECT_FALSE(file.WriteAny("x", 0));
    EXPECT_FALSE(file.WriteAny("x", -1));
    EXPECT_FALSE(file.WriteBytes({}));
    file.UseCache(false);
    EXPECT_FALSE(file.WriteAny("x", 0));
    EXPECT_EQ(Written(), "");
    EXPECT_TRUE(platform.writes.empty());
}

TEST_F(UniFileWrite, FlushWritesAndTellsThePlatform) {
    EXPECT_TRUE(Put(file, "abc"));
    EXPECT_TRUE(file.Flush());
    EXPECT_EQ(platform.calls, (Calls{"write 3", "flush"}));
    EXPECT_EQ(file.LOF(), 3);
    platform.Forget();
    EXPECT_TRUE(file.Flush()); // nothing pends
    EXPECT_EQ(platform.calls, Calls{"flush"});
}

TEST_F(UniFileWrite, FlushIsTrueOnlyWhenBothStepsSucceed) {
    EXPECT_TRUE(Put(file, "abc"));
    platform.lWriteError = ERROR_DISK_FULL;
    EXPECT_FALSE(file.Flush());
    EXPECT_EQ(platform.calls, (Calls{"write 3", "flush"}));
    platform.lWriteError = 0;
    platform.lFlushError = ERROR_GEN_FAILURE;
    EXPECT_FALSE(file.Flush());
    platform.lFlushError = 0;
    EXPECT_TRUE(file.Flush());
}

TEST_F(UniFileWrite, PendingBytesOfAFailedWriteAreGone) {
    EXPECT_TRUE(Put(file, "lost"));
    platform.lWriteError = ERROR_DISK_FULL;
    EXPECT_FALSE(file.Flush());
    EXPECT_EQ(file.LOF(), 0);
    platform.lWriteError = 0;
    EXPECT_TRUE(Put(file, "kept"));
    EXPECT_EQ(Written(), "kept");
}

TEST_F(UniFileWrite, FullDiskShowsAtTheWriteThatOverflowsTheCache) {
    platform.lWriteError = ERROR_DISK_FULL;
    EXPECT_TRUE(Put(file, Pattern(16384))); // pends, so it succeeds
    EXPECT_FALSE(file.WriteByte('x'));
    EXPECT_EQ(file.GetFilePos(), 1); // the byte itself pends all the same
    EXPECT_FALSE(Put(file, Pattern(16385)));
    platform.lWriteError = 0;
    EXPECT_TRUE(Put(file, "y"));
    EXPECT_EQ(Written(), "y");
}

TEST_F(UniFileWrite, BlockAboveTheCacheIsWrittenEvenWhenThePendingBytesWereLost) {
    EXPECT_TRUE(Put(file, "abc"));
    platform.lWriteLimit = 2;
    EXPECT_FALSE(Put(file, Pattern(20000)));
    EXPECT_EQ(platform.writes, (Sizes{3, 20000}));
    platform.lWriteLimit = 0xFFFFFFFF;
    EXPECT_EQ(Written(), "ab" + Pattern(2));
}

TEST_F(UniFileWrite, LostPendingBytesMakeABlockAboveTheCacheFailThoughItIsWritten) {
    EXPECT_TRUE(Put(file, "abc"));
    CloseHandle(file.OpenedFileHandle());
    EXPECT_FALSE(Put(file, Pattern(20000)));
    EXPECT_EQ(platform.writes, (Sizes{3, 20000}));
}

TEST_F(UniFileWrite, ShortWriteIsAFailure) {
    platform.lWriteLimit = 2;
    EXPECT_TRUE(Put(file, "abc"));
    EXPECT_FALSE(file.Flush());
    file.UseCache(false);
    EXPECT_FALSE(Put(file, "xyz"));
    EXPECT_TRUE(Put(file, "uv"));
    EXPECT_EQ(Written(), "abxyuv");
}

TEST_F(UniFileWrite, HandleClosedUnderTheObjectFailsWithoutARaise) {
    EXPECT_TRUE(Put(file, "abc"));
    CloseHandle(file.OpenedFileHandle());
    EXPECT_TRUE(file.WriteByte('d')); // pends
    EXPECT_FALSE(file.Flush());
    file.UseCache(false);
    EXPECT_FALSE(file.WriteByte('e'));
    file.CloseFile();
    EXPECT_FALSE(file.IsFileOpen());
    EXPECT_EQ(folder.Read(sPath), "");
}

TEST_F(UniFileWrite, SetEndOfFileCutsBehindThePendingBytes) {
    file.CloseFile();
    ASSERT_TRUE(OpenBoth(file, PatternFile(100)));
    file.SetFilePos(10, 0);
    ASSERT_TRUE(Put(file, "abc"));
    platform.Forget();
    EXPECT_TRUE(file.SetEndOfFileHere());
    EXPECT_EQ(platform.calls, (Calls{"write 3", "cut"}));
    file.CloseFile();
    EXPECT_EQ(folder.Read(folder / u"pattern.bin"), Pattern(10) + "abc");
}

TEST_F(UniFileWrite, SetEndOfFileCutsAtTheHandleAndNotAtTheLogicalPosition) {
    file.CloseFile();
    ASSERT_TRUE(OpenBoth(file, PatternFile(20000)));
    EXPECT_EQ(Take(file, 10), Pattern(10));
    EXPECT_TRUE(file.SetEndOfFileHere());
    EXPECT_EQ(file.LOF(), 16384);
}

TEST_F(UniFileWrite, SetEndOfFileFailsOnAFileOpenForReadingOnly) {
    file.CloseFile();
    ASSERT_TRUE(file.OpenFileRead(PatternFile(10), true));
    EXPECT_FALSE(file.SetEndOfFileHere());
}

TEST_F(UniFileWrite, WriteBehindACachedReadGoesToTheHandlesPosition) {
    file.CloseFile();
    ASSERT_TRUE(OpenBoth(file, PatternFile(20000)));
    EXPECT_EQ(Take(file, 10), Pattern(10));
    EXPECT_TRUE(file.WriteByte('!'));
    EXPECT_EQ(file.GetFilePos(), 11); // 16,384, less the unread bytes, and the one that pends
    file.CloseFile();
    std::string sExpected = Pattern(20000);
    sExpected[16384] = '!';
    EXPECT_EQ(folder.Read(folder / u"pattern.bin"), sExpected);
}

TEST_F(UniFileWrite, WriteBehindSetFilePosGoesThere) {
    file.CloseFile();
    ASSERT_TRUE(OpenBoth(file, PatternFile(20000)));
    EXPECT_EQ(Take(file, 10), Pattern(10));
    file.SetFilePos(file.GetFilePos(), 0);
    EXPECT_TRUE(file.WriteByte('!'));
    file.CloseFile();
    std::string sExpected = Pattern(20000);
    sExpected[10] = '!';
    EXPECT_EQ(folder.Read(folder / u"pattern.bin"), sExpected);
}

TEST_F(UniFileWrite, FileLockedByAnotherHandleCannotBeOpened) {
    clsUniFile second;
    EXPECT_FALSE(second.OpenFileWrite(sPath, true));
    second.CloseFile();
    EXPECT_FALSE(second.OpenFileRead(sPath, true));
    second.CloseFile();
    file.CloseFile();
    EXPECT_TRUE(second.OpenFileRead(sPath, true));
    clsUniFile third;
    EXPECT_TRUE(third.OpenFileRead(sPath, true)); // both share the reading
    third.CloseFile();
    EXPECT_FALSE(third.OpenFileRead(sPath, false));
}

TEST_F(UniFileWrite, FolderInTheFilesPlaceAndMissingFolderCannotBeOpened) {
    clsUniFile other;
    EXPECT_FALSE(other.OpenFileWrite(folder.Path(), true));
    other.CloseFile();
    EXPECT_FALSE(other.OpenFileWrite(folder / u"no such folder\\a.txt", true));
}

} // namespace
} // namespace orvanta
