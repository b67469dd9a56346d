#include "files/clsSearchFilesFInfo.h"

#include "files/PathRules.h"
#include "files/clsSearchFiles.h"

#include <windows.h>

#include <cstddef>

namespace orvanta {

namespace {

std::shared_ptr<SearchResults> CloneAll(const SearchResults& entries) {
    auto copies = std::make_shared<SearchResults>();
    for (std::size_t n = 1; n <= entries.Count(); ++n) {
        auto copy = std::make_shared<clsSearchFilesFInfo>();
        entries.Item(n)->Clone(*copy);
        copies->Add(std::move(copy));
    }
    return copies;
}

FILETIME PlatformTime(const FileTimeWords& words) {
    return {words.lLow, words.lHigh};
}

SYSTEMTIME CalendarDate(const FILETIME& time) {
    SYSTEMTIME date{};
    if (!FileTimeToSystemTime(&time, &date)) return {};
    return date;
}

void HandOut(const SYSTEMTIME& date, std::int32_t& iDay, std::int32_t& iMonth, std::int32_t& iYear, std::int32_t& iHour,
             std::int32_t& iMinute, std::int32_t& iSecond, std::int32_t& iMilliSeconds, std::int32_t& iDayOfWeek) {
    iDay = date.wDay;
    iMonth = date.wMonth;
    iYear = date.wYear;
    iHour = date.wHour;
    iMinute = date.wMinute;
    iSecond = date.wSecond;
    iMilliSeconds = date.wMilliseconds;
    iDayOfWeek = date.wDayOfWeek;
}

} // namespace

void clsSearchFilesFInfo::Clone(clsSearchFilesFInfo& oToFill) const {
    auto below = colSub ? CloneAll(*colSub) : nullptr;
    oToFill = *this;
    oToFill.colSub = std::move(below);
}

std::u16string clsSearchFilesFInfo::sFilePathNoSlash() const {
    return ufu_NoBackSlash(m_sFilePath);
}

std::u16string clsSearchFilesFInfo::sFilePathSlash() const {
    return ufu_OneBackSlash(m_sFilePath);
}

std::u16string clsSearchFilesFInfo::sPathFileName() const {
    return ufu_OneBackSlash(m_sFilePath) + sName;
}

const FileTimeWords& clsSearchFilesFInfo::TimeOfType(std::int32_t iDateType) const {
    static const FileTimeWords kNone;
    switch (iDateType) {
    case 0: return ftCreation;
    case 1: return ftLastAccess;
    case 2: return ftLastWrite;
    default: return kNone;
    }
}

void clsSearchFilesFInfo::GetFileDate(std::int32_t iDateType, std::int32_t& iDay, std::int32_t& iMonth,
                                      std::int32_t& iYear, std::int32_t& iHour, std::int32_t& iMinute,
                                      std::int32_t& iSecond, std::int32_t& iMilliSeconds,
                                      std::int32_t& iDayOfWeek) const {
    const FILETIME utc = PlatformTime(TimeOfType(iDateType));
    FILETIME local{};
    const bool bHasLocal = FileTimeToLocalFileTime(&utc, &local) != 0;
    HandOut(bHasLocal ? CalendarDate(local) : SYSTEMTIME{}, iDay, iMonth, iYear, iHour, iMinute, iSecond, iMilliSeconds,
            iDayOfWeek);
}

void clsSearchFilesFInfo::GetUTCFileDate(std::int32_t iDateType, std::int32_t& iDay, std::int32_t& iMonth,
                                         std::int32_t& iYear, std::int32_t& iHour, std::int32_t& iMinute,
                                         std::int32_t& iSecond, std::int32_t& iMilliSeconds,
                                         std::int32_t& iDayOfWeek) const {
    HandOut(CalendarDate(PlatformTime(TimeOfType(iDateType))), iDay, iMonth, iYear, iHour, iMinute, iSecond,
            iMilliSeconds, iDayOfWeek);
}

bool clsSearchFilesFInfo::LoadFromFileOrDir(std::u16string_view sFile, bool bRecurseIfDirectory) {
    clsSearchFiles search;
    const SearchResults found = search.SearchPathPattern(sFile, kSearchFilesAndFolders, false, false, false, -1, false);
    if (found.Count() != 1) return false;
    found.Item(1)->Clone(*this);
    if (bRecurseIfDirectory && IsDirectory()) {
        colSub = std::make_shared<SearchResults>(
            search.SearchInPath(sPathFileName(), kSearchFilesAndFolders, true, false, false, -1, true));
    }
    return true;
}

} // namespace orvanta
