#pragma once

#include "files/clsSearchFilesFInfo.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace orvanta {

// What a search lists. Any other value lists both.
inline constexpr std::int32_t kSearchFilesAndFolders = 0;
inline constexpr std::int32_t kSearchFiles = 1;
inline constexpr std::int32_t kSearchFolders = 2;

// Lists files and folders below a folder or for a pattern of the platform ("*", "?"), in the order in which the
// platform gives them; with bRecurseSubDirs a folder is followed at once by what is below it. Paths are absolute.
//
//   clsSearchFiles search;
//   const SearchResults pictures = search.SearchPathPattern(u"C:\\a\\*.bmp", kSearchFiles, false, false, false, -1,
//   false);
//
// bAsync lets messages run before each folder, so that their handlers can ask CurrentDir and call StopSearch. What was
// found until then is the result. A search that is started while this object searches gives an empty collection at
// once. The object has to live until its search has come back.
//
// bReturnThisAndBaseDirs lists the entries "." and ".." too. lMaxResults above 0 ends the search with that many hits,
// on whichever level they are. bHierarchicalCollection puts the content of a listed folder into its colSub instead of
// behind it.
//
// A folder or pattern that cannot be searched gives an empty collection. Only SearchInPath and
// SearchFilePatternPathNoPattern raise, "Not a local path" for a web path.
class clsSearchFiles {
public:
    SearchResults SearchInPath(std::u16string_view sPath, std::int32_t iSearchWhat, bool bRecurseSubDirs, bool bAsync,
                               bool bReturnThisAndBaseDirs, std::int32_t lMaxResults, bool bHierarchicalCollection);

    // The pattern holds on every level: a folder is searched only when its own name matches.
    SearchResults SearchPathPattern(std::u16string_view sPathPattern, std::int32_t iSearchWhat, bool bRecurseSubDirs,
                                    bool bAsync, bool bReturnThisAndBaseDirs, std::int32_t lMaxResults,
                                    bool bHierarchicalCollection);

    // The file part of the pattern holds on every level, whatever the folders are called. lMaxResults is odd here and
    // stays so: the folders that have to be visited count too, so a search whose folders alone reach the limit finds
    // nothing; and beside the pattern's own folder only the first folder below it is searched.
    SearchResults SearchFilePatternPathNoPattern(std::u16string_view sPathPattern, std::int32_t iSearchWhat,
                                                 bool bRecurseSubDirs, bool bAsync, bool bReturnThisAndBaseDirs,
                                                 std::int32_t lMaxResults);

    bool IsSearching() const { return m_bSearching; }
    const std::u16string& CurrentDir() const { return m_sCurrentDir; } // with a final backslash; empty between searches
    void StopSearch() { m_bStopFlag = true; }

    // As ufu_GetFileDate.
    bool GetFileDate(std::u16string_view sPathFileName, std::int32_t iDateType, std::int32_t& iDay,
                     std::int32_t& iMonth, std::int32_t& iYear, std::int32_t& iHour, std::int32_t& iMinute,
                     std::int32_t& iSecond, std::int32_t& iMilliSeconds, std::int32_t& iDayOfWeek) const;

private:
    struct Order {
        std::int32_t iSearchWhat;
        bool bRecurseSubDirs;
        bool bAsync;
        bool bReturnThisAndBaseDirs;
        std::int32_t lMaxResults;
        bool bHierarchicalCollection;
    };
    class Running; // the state around one search
    struct Walk;   // one core search under way

    void CoreSearch(const std::u16string& sPattern, const Order& order, SearchResults& target);
    void Enter(Walk& walk, const std::u16string& sPattern, SearchResults& target);
    void TakeRecord(Walk& walk);
    void SearchFoldersFound(const SearchResults& folders, const std::u16string& sFilePattern, const Order& order,
                            SearchResults& target);

    bool m_bStopFlag = false;
    bool m_bSearching = false;
    std::u16string m_sCurrentDir;
    std::int32_t m_lFound = 0;
};

} // namespace orvanta
