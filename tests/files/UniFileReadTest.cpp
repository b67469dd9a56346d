// Reading through and past the cache of clsUniFile. PatternAt(n) is byte n of every file.
#include "tests/files/UniFileFixture.h"

#include <numeric>

namespace orvanta {
namespace {

using testing::Pattern;
using Sizes = std::vector<DWORD>;

class UniFileRead : public testing::UniFileFixture {
protected:
    void Open(std::size_t nSize) {
        ASSERT_TRUE(file.OpenFileRead(PatternFile(nSize), true));
        platform.Forget();
    }
    std::string Block(std::size_t nCount, bool bExpected = true) {
        std::vector<std::uint8_t> aBuffer(nCount, 0xCC);
        EXPECT_EQ(file.ReadBytes(aBuffer), bExpected);
        return {aBuffer.begin(), aBuffer.end()};
    }

    clsUniFile file;
};

TEST_F(UniFileRead, ByteByByteCostsOnePlatformReadForEachCacheful) {
    Open(40000);
    EXPECT_EQ(Take(file, 50000), Pattern(40000));
    EXPECT_EQ(platform.reads, (Sizes{16384, 16384, 7232}));
}

TEST_F(UniFileRead, LastByteBehindAFullCacheIsOutOfReach) {
    Open(16385);
    EXPECT_EQ(Take(file, 20000), Pattern(16384));
    EXPECT_EQ(file.GetFilePos(), 16384);
    EXPECT_EQ(file.LOF(), 16385);
    std::uint8_t b = 77;
    EXPECT_FALSE(file.ReadByte(b));
    EXPECT_EQ(b, 77);
    EXPECT_EQ(platform.reads, Sizes{16384});
}

TEST_F(UniFileRead, LastByteBehindTwoFullCachesIsOutOfReachToo) {
    Open(32769);
    EXPECT_EQ(Take(file, 40000), Pattern(32768));
}

TEST_F(UniFileRead, WithoutCacheEveryByteIsOnePlatformReadAndTheLastOneArrives) {
    Open(16385);
    file.UseCache(false);
    EXPECT_EQ(Take(file, 20000), Pattern(16385));
    EXPECT_EQ(platform.reads, Sizes(16386, 1));
}

TEST_F(UniFileRead, OneByteFileReadsOnlyWithoutCache) {
    Open(1);
    std::uint8_t b = 77;
    EXPECT_FALSE(file.ReadByte(b));
    EXPECT_TRUE(platform.reads.empty());
    file.UseCache(false);
    EXPECT_TRUE(file.ReadByte(b));
    EXPECT_EQ(b, testing::PatternAt(0));
}

TEST_F(UniFileRead, EmptyFileHasNoByteEitherWay) {
    Open(0);
    std::uint8_t b = 77;
    EXPECT_FALSE(file.ReadByte(b));
    file.UseCache(false);
    EXPECT_FALSE(file.ReadByte(b));
}

TEST_F(UniFileRead, TwoByteFileIsReadWhole) {
    Open(2);
    EXPECT_EQ(Take(file, 9), Pattern(2));
}

TEST_F(UniFileRead, BlockAboveTheCacheTakesTheUnreadBytesAndReadsTheRestDirectly) {
    Open(50000);
    EXPECT_EQ(Take(file, 16374), Pattern(16374));
    platform.Forget();
    EXPECT_EQ(Block(20000), Pattern(50000).substr(16374, 20000));
    EXPECT_EQ(platform.calls, std::vector<std::string>{"read 19990"});
    EXPECT_EQ(file.RealFilePos(), 36374);
    EXPECT_EQ(file.GetFilePos(), 36374); // nothing is left unread
}

TEST_F(UniFileRead, BlockAboveTheCacheIsDirectFromTheStartAndFetchesALastByte) {
    Open(16385);
    EXPECT_EQ(Block(16385), Pattern(16385));
    EXPECT_EQ(platform.reads, Sizes{16385});
}

TEST_F(UniFileRead, BlockOfExactlyTheCacheSizeGoesThroughTheCache) {
    Open(40000);
    EXPECT_EQ(Block(16384), Pattern(16384));
    EXPECT_EQ(platform.reads, Sizes{16384});
    EXPECT_EQ(Take(file, 10), Pattern(16394).substr(16384));
    platform.Forget();
    EXPECT_EQ(Block(16384), Pattern(40000).substr(16394, 16384)); // 16,374 unread ones, then 10 of the next cacheful
    EXPECT_EQ(platform.reads, Sizes{7232});
    EXPECT_EQ(file.GetFilePos(), 32778);
}

TEST_F(UniFileRead, BlockAboveTheCacheThatRunsShortFails) {
    Open(20000);
    EXPECT_EQ(Block(20001, false).substr(0, 20000), Pattern(20000));
    EXPECT_EQ(file.GetFilePos(), 20000);
}

TEST_F(UniFileRead, BlockBeyondTheEndLosesTheUnreadBytesAndKeepsTheRefilledCache) {
    Open(16484); // 100 bytes behind the first cacheful
    EXPECT_EQ(Take(file, 16380), Pattern(16380));
    const std::string sGot = Block(200, false);
    EXPECT_EQ(sGot.substr(0, 4), Pattern(16384).substr(16380)); // handed over all the same
    EXPECT_EQ(sGot.substr(4), std::string(196, '\xCC'));
    EXPECT_EQ(file.GetFilePos(), 16384);
    platform.Forget();
    EXPECT_EQ(Take(file, 200), Pattern(16484).substr(16384));
    EXPECT_TRUE(platform.reads.empty());
}

TEST_F(UniFileRead, BlockThatEndsOnALastByteThatCannotBeFetchedFails) {
    Open(16385);
    EXPECT_EQ(Take(file, 16380), Pattern(16380));
    EXPECT_EQ(Block(5, false).substr(0, 4), Pattern(16384).substr(16380));
    EXPECT_EQ(file.GetFilePos(), 16384);
}

TEST_F(UniFileRead, CountBelowOneIsRefusedAndTouchesNothing) {
    Open(100);
    char target = 'x';
    EXPECT_FALSE(file.ReadAny(&target, 0));
    EXPECT_FALSE(file.ReadAny(&target, -5));
    EXPECT_FALSE(file.ReadBytes({}));
    file.UseCache(false);
    platform.Forget();
    EXPECT_FALSE(file.ReadAny(&target, 0));
    EXPECT_TRUE(platform.calls.empty());
    EXPECT_EQ(target, 'x');
}

TEST_F(UniFileRead, CountBelowOneDoesNotWriteOutPendingBytes) {
    ASSERT_TRUE(OpenBoth(file, PatternFile(100)));
    ASSERT_TRUE(file.WriteByte('x'));
    char target = 'x';
    EXPECT_FALSE(file.ReadAny(&target, 0));
    EXPECT_TRUE(platform.writes.empty());
}

TEST_F(UniFileRead, WithoutCacheABlockIsOnePlatformRead) {
    Open(40000);
    file.UseCache(false);
    EXPECT_EQ(Block(10), Pattern(10));
    EXPECT_EQ(Block(16384), Pattern(16394).substr(10));
    EXPECT_EQ(Block(16385), Pattern(32779).substr(16394));
    EXPECT_EQ(platform.reads, (Sizes{10, 16384, 16385}));
}

TEST_F(UniFileRead, PendingBytesAreWrittenBeforeARead) {
    ASSERT_TRUE(OpenBoth(file, PatternFile(100)));
    ASSERT_TRUE(Put(file, "abc"));
    platform.Forget();
    std::uint8_t b = 0;
    EXPECT_TRUE(file.ReadByte(b));
    EXPECT_EQ(b, testing::PatternAt(3));
    EXPECT_EQ(platform.calls, (std::vector<std::string>{"write 3", "size", "where", "read 97"}));
}

TEST_F(UniFileRead, UnreadBytesStayBehindAWriteWhichGoesOutBeforeTheNextOfThem) {
    ASSERT_TRUE(OpenBoth(file, PatternFile(100)));
    EXPECT_EQ(Take(file, 10), Pattern(10));
    platform.Forget();
    EXPECT_TRUE(file.WriteByte('!'));
    EXPECT_EQ(platform.calls, std::vector<std::string>{});
    EXPECT_EQ(Take(file, 2), Pattern(12).substr(10));
    EXPECT_EQ(platform.calls, std::vector<std::string>{"write 1"});
    EXPECT_TRUE(Put(file, "abc"));
    EXPECT_EQ(Take(file, 88), Pattern(100).substr(12));
    EXPECT_EQ(platform.calls, (std::vector<std::string>{"write 1", "write 3"}));
}

TEST_F(UniFileRead, PlatformErrorOfARefillEmptiesTheCacheAndReadingCanGoOn) {
    Open(100);
    platform.lReadError = ERROR_CRC;
    std::uint8_t b = 77;
    EXPECT_FALSE(file.ReadByte(b));
    EXPECT_EQ(b, 77);
    EXPECT_EQ(file.GetFilePos(), 0);
    platform.lReadError = 0;
    EXPECT_EQ(Take(file, 100), Pattern(100));
}

TEST_F(UniFileRead, ShortReadOfThePlatformIsAFailure) {
    Open(50000);
    platform.lReadLimit = 1000;
    EXPECT_EQ(Take(file, 1), "");
    EXPECT_EQ(file.GetFilePos(), 1000); // where the platform left the handle; nothing is unread
    Block(20000, false);
    file.UseCache(false);
    Block(2000, false);
    EXPECT_EQ(Block(1000), Pattern(4000).substr(3000));
}

TEST_F(UniFileRead, HandleClosedUnderTheObjectFailsWithoutARaise) {
    Open(50000);
    EXPECT_EQ(Take(file, 16384), Pattern(16384));
    CloseHandle(file.OpenedFileHandle());
    std::uint8_t b = 77;
    EXPECT_FALSE(file.ReadByte(b));
    Block(20000, false);
    EXPECT_FALSE(file.Flush());
    EXPECT_FALSE(file.SetEndOfFileHere());
    file.SetFilePos(0, 0);
    EXPECT_FALSE(file.ReadByte(b));
    EXPECT_TRUE(file.IsFileOpen());
    file.CloseFile();
    EXPECT_FALSE(file.IsFileOpen());
}

} // namespace
} // namespace orvanta
