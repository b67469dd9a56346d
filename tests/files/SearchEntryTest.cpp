// One entry of a search: its record, its paths, its dates, copies of it, and loading it from one path.
#include "files/clsSearchFiles.h"
#include "files/clsSearchFilesFInfo.h"

#include "base/Failure.h"
#include "files/modUniFileUtils.h"
#include "plumbing/WideText.h"
#include "tests/files/FolderFixture.h"
#include "tests/support/PatchedImport.h"

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <string>

namespace orvanta {
namespace {

using testing::FolderFixture;
using testing::PatchedImport;

// Sunday 29 February 2004, 12:34:56.789 UTC and Friday 31 December 1999, 23:59:59.001 UTC, in 100 ns since 1601.
constexpr FileTimeWords kLeapDay{0x704ebc50u, 0x01c3fec0u};
constexpr FileTimeWords kLastSecond{0x24d4d090u, 0x01bf53ebu};

using Date = std::array<std::int32_t, 8>; // day, month, year, hour, minute, second, milliseconds, day of week

constexpr Date kLeapDate{29, 2, 2004, 12, 34, 56, 789, 0};
constexpr Date kLastSecondDate{31, 12, 1999, 23, 59, 59, 1, 5};

Date UtcOf(const clsSearchFilesFInfo& entry, std::int32_t iType) {
    Date d{};
    entry.GetUTCFileDate(iType, d[0], d[1], d[2], d[3], d[4], d[5], d[6], d[7]);
    return d;
}

Date LocalOf(const clsSearchFilesFInfo& entry, std::int32_t iType) {
    Date d{};
    entry.GetFileDate(iType, d[0], d[1], d[2], d[3], d[4], d[5], d[6], d[7]);
    return d;
}

bool DateOfPath(std::u16string_view sPath, std::int32_t iType, Date& d) {
    return ufu_GetFileDate(sPath, iType, d[0], d[1], d[2], d[3], d[4], d[5], d[6], d[7]);
}

// A place two hours east of Greenwich, whatever the machine's own.
BOOL WINAPI TwoHoursEast(const FILETIME* utc, FILETIME* local) {
    const std::uint64_t t = (std::uint64_t{utc->dwHighDateTime} << 32 | utc->dwLowDateTime) + 72'000'000'000u;
    *local = {static_cast<DWORD>(t), static_cast<DWORD>(t >> 32)};
    return TRUE;
}

BOOL WINAPI NoLocalTime(const FILETIME*, FILETIME*) {
    return FALSE;
}

void SetTimes(const std::u16string& sPath, FileTimeWords lastAccess, FileTimeWords lastWrite) {
    const HANDLE hFile = CreateFileW(WideOf(sPath), FILE_WRITE_ATTRIBUTES, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    const FILETIME access{lastAccess.lLow, lastAccess.lHigh};
    const FILETIME write{lastWrite.lLow, lastWrite.lHigh};
    EXPECT_TRUE(SetFileTime(hFile, nullptr, &access, &write));
    CloseHandle(hFile);
}

TEST(SearchEntry, AttributesAreReadBitByBit) {
    clsSearchFilesFInfo entry;
    EXPECT_TRUE(entry.IsFile());
    EXPECT_FALSE(entry.IsDirectory());
    const auto flags = [&entry](std::uint32_t lAttributes) {
        entry.lAttributes = lAttributes;
        return std::array{entry.IsReadOnly(),   entry.IsHidden(),    entry.IsSystem(), entry.IsDirectory(),
                          entry.IsCompressed(), entry.IsEncrypted(), entry.IsFile()};
    };
    EXPECT_EQ(flags(0), (std::array{false, false, false, false, false, false, true}));
    EXPECT_EQ(flags(1), (std::array{true, false, false, false, false, false, true}));
    EXPECT_EQ(flags(2), (std::array{false, true, false, false, false, false, true}));
    EXPECT_EQ(flags(4), (std::array{false, false, true, false, false, false, true}));
    EXPECT_EQ(flags(0x10), (std::array{false, false, false, true, false, false, false}));
    EXPECT_EQ(flags(0x800), (std::array{false, false, false, false, true, false, true}));
    EXPECT_EQ(flags(0x4000), (std::array{false, false, false, false, false, true, true}));
    EXPECT_EQ(flags(~0x4817u), (std::array{false, false, false, false, false, false, true}));
}

TEST(SearchEntry, PathsAreGivenWithAndWithoutBackslash) {
    clsSearchFilesFInfo entry;
    entry.sName = u"x.txt";
    entry.sFilePath(u"C:\\a\\\\");
    EXPECT_EQ(entry.sFilePath(), u"C:\\a\\\\");
    EXPECT_EQ(entry.sFilePathNoSlash(), u"C:\\a");
    EXPECT_EQ(entry.sFilePathSlash(), u"C:\\a\\");
    EXPECT_EQ(entry.sPathFileName(), u"C:\\a\\x.txt");
    entry.sFilePath(u"");
    EXPECT_EQ(entry.sPathFileName(), u"x.txt");
    entry.sFilePath(u"a/b");
    EXPECT_THROW(entry.sPathFileName(), Failure);
}

TEST(SearchEntry, EachTypeOfDateHasItsOwnTime) {
    clsSearchFilesFInfo entry;
    entry.ftCreation = kLeapDay;
    entry.ftLastAccess = kLastSecond;
    entry.ftLastWrite = {0, 0};
    EXPECT_EQ(UtcOf(entry, 0), kLeapDate);
    EXPECT_EQ(UtcOf(entry, 1), kLastSecondDate);
    EXPECT_EQ(UtcOf(entry, 2), (Date{1, 1, 1601, 0, 0, 0, 0, 1}));
    entry.ftLastWrite = kLeapDay;
    EXPECT_EQ(UtcOf(entry, 2), kLeapDate);
    EXPECT_EQ(UtcOf(entry, 3), (Date{1, 1, 1601, 0, 0, 0, 0, 1}));
}

TEST(SearchEntry, DateIsLocalUnlessAskedForInUtc) {
    const PatchedImport<decltype(FileTimeToLocalFileTime)> zone("FileTimeToLocalFileTime", TwoHoursEast);
    clsSearchFilesFInfo entry;
    entry.ftCreation = kLastSecond;
    EXPECT_EQ(LocalOf(entry, 0), (Date{1, 1, 2000, 1, 59, 59, 1, 6}));
    EXPECT_EQ(UtcOf(entry, 0), kLastSecondDate);
}

TEST(SearchEntry, TimeThatThePlatformCannotExpressIsZeros) {
    clsSearchFilesFInfo entry;
    entry.ftCreation = {0xffffffffu, 0xffffffffu};
    EXPECT_EQ(UtcOf(entry, 0), Date{});
    entry.ftCreation = kLeapDay;
    const PatchedImport<decltype(FileTimeToLocalFileTime)> zone("FileTimeToLocalFileTime", NoLocalTime);
    EXPECT_EQ(LocalOf(entry, 0), Date{});
}

TEST(SearchEntry, CloneHasEntriesOfItsOwn) {
    clsSearchFilesFInfo entry;
    entry.sName = u"folder";
    entry.lAttributes = 0x11;
    entry.cSize = 7'000'000'000;
    entry.ftCreation = {1, 2};
    entry.ftLastAccess = {3, 4};
    entry.ftLastWrite = {5, 6};
    entry.sFilePath(u"C:\\a\\");
    entry.colSub = std::make_shared<SearchResults>();
    for (const char16_t* sName : {u"first", u"second"}) {
        auto below = std::make_shared<clsSearchFilesFInfo>();
        below->sName = sName;
        entry.colSub->Add(below);
    }
    entry.colSub->Item(1)->colSub = std::make_shared<SearchResults>();

    clsSearchFilesFInfo copy;
    entry.Clone(copy);
    EXPECT_EQ(copy.sPathFileName(), u"C:\\a\\folder");
    EXPECT_EQ(copy.lAttributes, 0x11u);
    EXPECT_EQ(copy.cSize, 7'000'000'000);
    EXPECT_EQ(copy.ftCreation.lLow, 1u);
    EXPECT_EQ(copy.ftCreation.lHigh, 2u);
    EXPECT_EQ(copy.ftLastAccess.lLow, 3u);
    EXPECT_EQ(copy.ftLastWrite.lHigh, 6u);
    ASSERT_EQ(copy.colSub->Count(), 2u);
    EXPECT_EQ(copy.colSub->Item(2)->sName, u"second");
    copy.colSub->Item(1)->sName = u"changed";
    EXPECT_EQ(entry.colSub->Item(1)->sName, u"first");
    ASSERT_NE(copy.colSub->Item(1)->colSub, nullptr);
    EXPECT_NE(copy.colSub->Item(1)->colSub, entry.colSub->Item(1)->colSub);
}

TEST(SearchEntry, CloneOfAnEntryWithoutEntriesBelowClearsThem) {
    clsSearchFilesFInfo copy;
    copy.colSub = std::make_shared<SearchResults>();
    clsSearchFilesFInfo().Clone(copy);
    EXPECT_EQ(copy.colSub, nullptr);
}

class SearchEntryOnDisk : public FolderFixture {};

TEST_F(SearchEntryOnDisk, RecordIsThatOfTheFile) {
    const std::u16string sPath = File(u"five.txt", "12345");
    SetTimes(sPath, kLastSecond, kLeapDay);
    SetAttributes(u"five.txt", FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN);
    clsSearchFiles search;
    const SearchResults results = search.SearchInPath(Path(), kSearchFilesAndFolders, false, false, false, -1, false);
    ASSERT_EQ(results.Count(), 1u);
    const clsSearchFilesFInfo& entry = *results.Item(1);
    EXPECT_EQ(entry.sName, u"five.txt");
    EXPECT_EQ(entry.sFilePath(), Path() + u"\\");
    EXPECT_EQ(entry.cSize, 5);
    EXPECT_TRUE(entry.IsReadOnly() && entry.IsHidden() && entry.IsFile());
    EXPECT_FALSE(entry.IsSystem());
    EXPECT_EQ(UtcOf(entry, 1), kLastSecondDate);
    EXPECT_EQ(UtcOf(entry, 2), kLeapDate);
    EXPECT_GT(UtcOf(entry, 0)[2], 2000) << "made by this test";
}

// A record of a file of more than 4 GB, as the platform would hand it out.
HANDLE WINAPI FindHugeFile(LPCWSTR, WIN32_FIND_DATAW* record) {
    *record = {};
    record->nFileSizeHigh = 2;
    record->nFileSizeLow = 0xfffffffeu;
    record->cFileName[0] = L'h';
    record->cFileName[2] = L'x';
    return reinterpret_cast<HANDLE>(std::intptr_t{0x7ff0});
}

BOOL WINAPI NoFurtherFile(HANDLE, WIN32_FIND_DATAW*) {
    return FALSE;
}
BOOL WINAPI CloseNothing(HANDLE) {
    return TRUE;
}

TEST(SearchEntry, SizeIsMadeOfBothHalvesAndTheNameEndsAtItsNul) {
    const PatchedImport<decltype(FindFirstFileW)> first("FindFirstFileW", FindHugeFile);
    const PatchedImport<decltype(FindNextFileW)> next("FindNextFileW", NoFurtherFile);
    const PatchedImport<decltype(FindClose)> close("FindClose", CloseNothing);
    const SearchResults results =
        clsSearchFiles().SearchPathPattern(u"C:\\a\\*", kSearchFiles, false, false, false, -1, false);
    ASSERT_EQ(results.Count(), 1u);
    EXPECT_EQ(results.Item(1)->cSize, 0x2fffffffeLL);
    EXPECT_EQ(results.Item(1)->sName, u"h");
}

TEST_F(SearchEntryOnDisk, LoadsFromOneFileOrFolder) {
    File(u"one.txt", "123");
    Folder(u"sub");
    clsSearchFilesFInfo entry;
    EXPECT_TRUE(entry.LoadFromFileOrDir(Path(u"one.txt"), true));
    EXPECT_EQ(entry.sPathFileName(), Path(u"one.txt"));
    EXPECT_EQ(entry.cSize, 3);
    EXPECT_EQ(entry.colSub, nullptr);
    EXPECT_TRUE(entry.LoadFromFileOrDir(Path(u"sub"), false));
    EXPECT_TRUE(entry.IsDirectory());
    EXPECT_EQ(entry.colSub, nullptr);
    EXPECT_TRUE(entry.LoadFromFileOrDir(Path(u"*.txt"), false)) << "a pattern with one match";
    EXPECT_EQ(entry.sName, u"one.txt");
}

TEST_F(SearchEntryOnDisk, LoadFailsAndChangesNothingWithoutASingleEntry) {
    File(u"one.txt");
    File(u"two.txt");
    clsSearchFilesFInfo entry;
    entry.sName = u"before";
    for (const std::u16string& sPath :
         {Path(u"missing.txt"), Path(u"*.txt"), Path() + u"\\", std::u16string(), std::u16string(u"C:/windows")}) {
        EXPECT_FALSE(entry.LoadFromFileOrDir(sPath, true));
        EXPECT_EQ(entry.sName, u"before");
    }
}

TEST_F(SearchEntryOnDisk, LoadOfAFolderCanBringEverythingBelowIt) {
    Folder(u"top");
    Folder(u"top\\mid");
    File(u"top\\mid\\leaf.txt");
    clsSearchFilesFInfo entry;
    ASSERT_TRUE(entry.LoadFromFileOrDir(Path(u"top"), true));
    ASSERT_NE(entry.colSub, nullptr);
    ASSERT_EQ(entry.colSub->Count(), 1u);
    EXPECT_EQ(entry.colSub->Item(1)->sName, u"mid");
    ASSERT_NE(entry.colSub->Item(1)->colSub, nullptr);
    ASSERT_EQ(entry.colSub->Item(1)->colSub->Count(), 1u);
    EXPECT_EQ(entry.colSub->Item(1)->colSub->Item(1)->sPathFileName(), Path(u"top\\mid\\leaf.txt"));
}

TEST_F(SearchEntryOnDisk, DateOfAPathIsLocal) {
    const PatchedImport<decltype(FileTimeToLocalFileTime)> zone("FileTimeToLocalFileTime", TwoHoursEast);
    SetTimes(File(u"dated.txt"), kLastSecond, kLeapDay);
    Date d{};
    EXPECT_TRUE(DateOfPath(Path(u"dated.txt"), 1, d));
    EXPECT_EQ(d, (Date{1, 1, 2000, 1, 59, 59, 1, 6}));
    EXPECT_TRUE(DateOfPath(Path(u"dated.txt"), 2, d));
    EXPECT_EQ(d, (Date{29, 2, 2004, 14, 34, 56, 789, 0}));
    EXPECT_TRUE(DateOfPath(Path(), 2, d)) << "a folder has dates too";
    EXPECT_GT(d[2], 2004);
    d = {};
    EXPECT_TRUE(clsSearchFiles().GetFileDate(Path(u"dated.txt"), 2, d[0], d[1], d[2], d[3], d[4], d[5], d[6], d[7]));
    EXPECT_EQ(d, (Date{29, 2, 2004, 14, 34, 56, 789, 0}));
}

TEST_F(SearchEntryOnDisk, DateOfAnAbsentPathLeavesTheValuesAlone) {
    Date d{1, 2, 3, 4, 5, 6, 7, 8};
    EXPECT_FALSE(DateOfPath(Path(u"missing"), 0, d));
    EXPECT_FALSE(clsSearchFiles().GetFileDate(Path(u"missing"), 0, d[0], d[1], d[2], d[3], d[4], d[5], d[6], d[7]));
    EXPECT_EQ(d, (Date{1, 2, 3, 4, 5, 6, 7, 8}));
}

} // namespace
} // namespace orvanta
