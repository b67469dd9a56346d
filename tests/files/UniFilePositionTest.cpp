// Positions and sizes of clsUniFile, and what switching the cache does to them.
#include "tests/files/UniFileFixture.h"

namespace orvanta {
namespace {

using testing::Pattern;
using Calls = std::vector<std::string>;

class UniFilePosition : public testing::UniFileFixture {
protected:
    void Open(std::size_t nSize) {
        ASSERT_TRUE(OpenBoth(file, PatternFile(nSize)));
        platform.Forget();
    }

    clsUniFile file;
};

TEST_F(UniFilePosition, LogicalPositionCountsUnreadAndPendingBytes) {
    Open(40000);
    EXPECT_EQ(file.GetFilePos(), 0);
    Take(file, 100);
    EXPECT_EQ(file.GetFilePos(), 100);
    EXPECT_EQ(file.RealFilePos(), 16384);
    file.SetFilePos(50, 0);
    ASSERT_TRUE(Put(file, "abc"));
    EXPECT_EQ(file.GetFilePos(), 53);
    EXPECT_EQ(file.RealFilePos(), 50);
}

TEST_F(UniFilePosition, WithoutCacheBothPositionsAreTheHandles) {
    Open(40000);
    file.UseCache(false);
    Take(file, 100);
    EXPECT_EQ(file.GetFilePos(), 100);
    EXPECT_EQ(file.RealFilePos(), 100);
}

TEST_F(UniFilePosition, MovesCountFromTheStartTheHandleOrTheEnd) {
    Open(40000);
    file.SetFilePos(20000, 0);
    EXPECT_EQ(file.GetFilePos(), 20000);
    EXPECT_EQ(Take(file, 2), Pattern(20002).substr(20000));
    file.SetFilePos(-10, 2);
    EXPECT_EQ(file.GetFilePos(), 39990);
    EXPECT_EQ(Take(file, 99), Pattern(40000).substr(39990));
    file.SetFilePos(-30000, 1);
    EXPECT_EQ(file.GetFilePos(), 10000);
}

TEST_F(UniFilePosition, MoveFromTheHandleDropsTheUnreadBytesWithoutCountingThemBack) {
    Open(40000);
    Take(file, 100);
    file.SetFilePos(5, 1);
    EXPECT_EQ(file.RealFilePos(), 16389);
    EXPECT_EQ(file.GetFilePos(), 16389);
    EXPECT_EQ(Take(file, 1), Pattern(16390).substr(16389));
}

TEST_F(UniFilePosition, MoveWritesPendingBytesFirst) {
    Open(100);
    ASSERT_TRUE(Put(file, "abc"));
    file.SetFilePos(7, 0);
    EXPECT_EQ(platform.calls, (Calls{"write 3", "seek 7 from 0"}));
}

TEST_F(UniFilePosition, PositionsBeyondFourGigabytesAreExact) {
    Open(100);
    file.SetFilePos(5000000001, 0);
    EXPECT_EQ(file.RealFilePos(), 5000000001);
    file.SetFilePos(-1, 1);
    EXPECT_EQ(file.GetFilePos(), 5000000000);
    ASSERT_TRUE(file.SetEndOfFileHere());
    EXPECT_EQ(file.LOF(), 5000000000);
    file.SetFilePos(-3, 2);
    EXPECT_EQ(file.GetFilePos(), 4999999997);
    EXPECT_EQ(Take(file, 9), std::string(3, '\0'));
    file.SetFilePos(4294967295, 0); // the low half counts as unsigned
    EXPECT_EQ(file.GetFilePos(), 4294967295);
    file.CloseFile();
    EXPECT_EQ(clsUniFile::st_FileLen(folder / u"pattern.bin"), 5000000000);
}

TEST_F(UniFilePosition, SizeCountsPendingBytesEvenWhereTheyOverwrite) {
    Open(10);
    ASSERT_TRUE(Put(file, "abc"));
    EXPECT_EQ(file.LOF(), 13);
    ASSERT_TRUE(file.Flush());
    EXPECT_EQ(file.LOF(), 10);
}

TEST_F(UniFilePosition, EofTurnsTrueWithOneByteStillUnread) {
    Open(10);
    EXPECT_FALSE(file.Eof());
    Take(file, 8);
    EXPECT_FALSE(file.Eof());
    Take(file, 1);
    EXPECT_TRUE(file.Eof());
    EXPECT_EQ(Take(file, 5), Pattern(10).substr(9));
    EXPECT_TRUE(file.Eof());
}

TEST_F(UniFilePosition, EofIsTrueForFilesOfNoneOrOneByteAndFalseForTwo) {
    Open(0);
    EXPECT_TRUE(file.Eof());
    file.CloseFile();
    Open(1);
    EXPECT_TRUE(file.Eof());
    file.CloseFile();
    Open(2);
    EXPECT_FALSE(file.Eof());
}

TEST_F(UniFilePosition, SwitchingTheCacheOffPutsTheHandleOnTheLogicalPosition) {
    Open(40000);
    Take(file, 100);
    file.UseCache(false);
    EXPECT_FALSE(file.UseCache());
    EXPECT_EQ(file.RealFilePos(), 100);
    EXPECT_EQ(Take(file, 5), Pattern(105).substr(100));
}

TEST_F(UniFilePosition, SwitchingTheCacheOffWritesPendingBytes) {
    Open(100);
    ASSERT_TRUE(Put(file, "abc"));
    platform.Forget();
    file.UseCache(false);
    EXPECT_EQ(platform.writes, std::vector<DWORD>{3});
    EXPECT_EQ(file.RealFilePos(), 3);
}

TEST_F(UniFilePosition, SettingTheCacheToWhatItIsDoesNothing) {
    Open(40000);
    Take(file, 100);
    platform.Forget();
    file.UseCache(true);
    EXPECT_TRUE(platform.calls.empty());
    EXPECT_EQ(file.GetFilePos(), 100);
    file.UseCache(false);
    platform.Forget();
    file.UseCache(false);
    EXPECT_TRUE(platform.calls.empty());
}

TEST_F(UniFilePosition, SwitchingTheCacheOnMovesNothing) {
    Open(40000);
    file.UseCache(false);
    Take(file, 100);
    platform.Forget();
    file.UseCache(true);
    EXPECT_TRUE(platform.calls.empty());
    EXPECT_EQ(file.GetFilePos(), 100);
    EXPECT_EQ(Take(file, 2), Pattern(102).substr(100));
}

TEST_F(UniFilePosition, SwitchingTheCacheWithoutAFileOnlyStoresTheSetting) {
    platform.Forget();
    file.UseCache(false);
    EXPECT_FALSE(file.UseCache());
    file.UseCache(true);
    EXPECT_TRUE(platform.calls.empty());
}

} // namespace
} // namespace orvanta
