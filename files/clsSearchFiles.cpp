#include "files/clsSearchFiles.h"

#include "base/ResumeNext.h"
#include "files/FindHandle.h"
#include "files/PathRules.h"
#include "files/modUniFileUtils.h"
#include "plumbing/DoEvents.h"
#include "plumbing/FilePosition.h"

#include <cstddef>
#include <deque>
#include <utility>

namespace orvanta {

namespace {

FileTimeWords WordsOf(const FILETIME& time) {
    return {time.dwLowDateTime, time.dwHighDateTime};
}

std::shared_ptr<clsSearchFilesFInfo> EntryOf(const FindHandle& find, const std::u16string& sFolder) {
    const WIN32_FIND_DATAW& record = find.Record();
    auto entry = std::make_shared<clsSearchFilesFInfo>();
    entry->sName = find.Name();
    entry->lAttributes = record.dwFileAttributes;
    entry->cSize = LongsToFixed(record.nFileSizeLow, static_cast<std::int32_t>(record.nFileSizeHigh));
    entry->ftCreation = WordsOf(record.ftCreationTime);
    entry->ftLastAccess = WordsOf(record.ftLastAccessTime);
    entry->ftLastWrite = WordsOf(record.ftLastWriteTime);
    entry->sFilePath(sFolder);
    return entry;
}

} // namespace

// The folders that are open, each below the one before it. They stand in a list of their own, not on the stack: a tree
// may be as deep as a path is long.
struct clsSearchFiles::Walk {
    struct Level {
        Level(const std::u16string& sPattern, std::size_t n, std::u16string sPart, SearchResults& results)
            : find(sPattern), nFolder(n), sFilePart(std::move(sPart)), target(results) {}

        FindHandle find;
        std::size_t nFolder; // the length of this level's folder in sFolder
        std::u16string sFilePart;
        SearchResults& target;
    };

    const Order& order;
    std::u16string sFolder; // the deepest one, with a final backslash
    std::deque<Level> levels;
};

class clsSearchFiles::Running {
public:
    explicit Running(clsSearchFiles& search) : m_search(search) {
        Reset();
        m_search.m_bSearching = true;
        m_search.m_lFound = 0;
    }
    ~Running() { Reset(); }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;

private:
    void Reset() {
        m_search.m_bStopFlag = false;
        m_search.m_bSearching = false;
        m_search.m_sCurrentDir.clear();
    }

    clsSearchFiles& m_search;
};

SearchResults clsSearchFiles::SearchInPath(std::u16string_view sPath, std::int32_t iSearchWhat, bool bRecurseSubDirs,
                                           bool bAsync, bool bReturnThisAndBaseDirs, std::int32_t lMaxResults,
                                           bool bHierarchicalCollection) {
    return SearchPathPattern(ufu_OneBackSlash(sPath) + u"*.*", iSearchWhat, bRecurseSubDirs, bAsync,
                             bReturnThisAndBaseDirs, lMaxResults, bHierarchicalCollection);
}

SearchResults clsSearchFiles::SearchPathPattern(std::u16string_view sPathPattern, std::int32_t iSearchWhat,
                                                bool bRecurseSubDirs, bool bAsync, bool bReturnThisAndBaseDirs,
                                                std::int32_t lMaxResults, bool bHierarchicalCollection) {
    SearchResults results;
    if (m_bSearching) return results;
    const Running running(*this);
    CoreSearch(std::u16string(sPathPattern),
               {iSearchWhat, bRecurseSubDirs, bAsync, bReturnThisAndBaseDirs, lMaxResults, bHierarchicalCollection},
               results);
    return results;
}

SearchResults clsSearchFiles::SearchFilePatternPathNoPattern(std::u16string_view sPathPattern, std::int32_t iSearchWhat,
                                                             bool bRecurseSubDirs, bool bAsync,
                                                             bool bReturnThisAndBaseDirs, std::int32_t lMaxResults) {
    SearchResults results;
    if (m_bSearching) return results;
    const Running running(*this);
    SearchResults folders;
    if (bRecurseSubDirs) {
        CoreSearch(ufu_FilePath(sPathPattern, true) + u"*.*", {kSearchFolders, true, bAsync, false, lMaxResults, false},
                   folders);
    }
    const Order order{iSearchWhat, false, bAsync, bReturnThisAndBaseDirs, lMaxResults, false};
    CoreSearch(std::u16string(sPathPattern), order, results);
    if (bRecurseSubDirs) SearchFoldersFound(folders, ufu_FileName(sPathPattern), order, results);
    return results;
}

void clsSearchFiles::SearchFoldersFound(const SearchResults& folders, const std::u16string& sFilePattern,
                                        const Order& order, SearchResults& target) {
    for (std::size_t nFolder = 1; nFolder <= folders.Count() && !m_bStopFlag; ++nFolder) {
        SearchResults found;
        CoreSearch(folders.Item(nFolder)->sPathFileName() + u"\\" + sFilePattern, order, found);
        for (std::size_t n = 1; n <= found.Count(); ++n)
            target.Add(std::move(found.Item(n)));
        if (order.lMaxResults > 0) return; // with a limit the later folders are not searched
    }
}

bool clsSearchFiles::GetFileDate(std::u16string_view sPathFileName, std::int32_t iDateType, std::int32_t& iDay,
                                 std::int32_t& iMonth, std::int32_t& iYear, std::int32_t& iHour, std::int32_t& iMinute,
                                 std::int32_t& iSecond, std::int32_t& iMilliSeconds, std::int32_t& iDayOfWeek) const {
    return ufu_GetFileDate(sPathFileName, iDateType, iDay, iMonth, iYear, iHour, iMinute, iSecond, iMilliSeconds,
                           iDayOfWeek);
}

void clsSearchFiles::CoreSearch(const std::u16string& sPattern, const Order& order, SearchResults& target) {
    Walk walk{order, {}, {}};
    Enter(walk, sPattern, target);
    while (!walk.levels.empty() && !m_bStopFlag) {
        walk.sFolder.resize(walk.levels.back().nFolder);
        if (walk.levels.back().find.Next()) {
            TakeRecord(walk);
        } else {
            walk.levels.pop_back();
        }
    }
}

// A failure, such as a pattern with slashes, leaves this folder out.
void clsSearchFiles::Enter(Walk& walk, const std::u16string& sPattern, SearchResults& target) {
    ResumeNext([](const Failure&) {},
               [&] {
                   walk.sFolder = ufu_FilePath(sPattern, true);
                   m_sCurrentDir = walk.sFolder;
                   if (walk.order.bAsync) DoEvents();
                   if (m_bStopFlag) return;
                   walk.levels.emplace_back(sPattern, walk.sFolder.size(), ufu_FileName(sPattern), target);
               });
}

void clsSearchFiles::TakeRecord(Walk& walk) {
    const Order& order = walk.order;
    const Walk::Level& level = walk.levels.back();
    const bool bThisOrBase = level.find.Name() == u"." || level.find.Name() == u"..";
    const auto entry = EntryOf(level.find, walk.sFolder);
    const bool bCounts = !(order.iSearchWhat == kSearchFiles && entry->IsDirectory()) &&
                         !(order.iSearchWhat == kSearchFolders && entry->IsFile()) &&
                         (order.bReturnThisAndBaseDirs || !bThisOrBase);
    if (bCounts) {
        level.target.Add(entry);
        ++m_lFound;
        // Every entry of a result is counted, so none beyond the limit gets in that would have to be taken out.
        if (order.lMaxResults > 0 && m_lFound >= order.lMaxResults) {
            m_bStopFlag = true;
            return;
        }
    }
    if (order.bRecurseSubDirs && entry->IsDirectory() && !bThisOrBase) {
        const bool bBelowEntry = order.bHierarchicalCollection && bCounts;
        if (bBelowEntry) entry->colSub = std::make_shared<SearchResults>();
        Enter(walk, walk.sFolder + entry->sName + u"\\" + level.sFilePart, bBelowEntry ? *entry->colSub : level.target);
    }
}

} // namespace orvanta
