#pragma once

#include "base/Collection.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace orvanta {

class clsSearchFilesFInfo;
using SearchResults = Collection<std::shared_ptr<clsSearchFilesFInfo>>;

// A file time in its two halves: units of 100 nanoseconds since the year 1601, UTC.
struct FileTimeWords {
    std::uint32_t lLow = 0;
    std::uint32_t lHigh = 0;
};

// One file or folder as a search found it: a copy of the find record that does not follow later changes on disk.
class clsSearchFilesFInfo {
public:
    std::u16string sName;          // without path
    std::uint32_t lAttributes = 0; // the platform's FILE_ATTRIBUTE_ bits
    std::int64_t cSize = 0;        // bytes
    FileTimeWords ftCreation;
    FileTimeWords ftLastAccess;
    FileTimeWords ftLastWrite;
    std::shared_ptr<SearchResults> colSub; // the entries below this folder, in hierarchical searches only

    // Makes oToFill the same entry, with entries below it of its own.
    void Clone(clsSearchFilesFInfo& oToFill) const;

    // The folder that holds the entry. The three that join or cut raise "Not a local path" when it has been set to a
    // web path.
    const std::u16string& sFilePath() const { return m_sFilePath; }
    void sFilePath(std::u16string_view s) { m_sFilePath = s; }
    std::u16string sFilePathNoSlash() const;
    std::u16string sFilePathSlash() const;
    std::u16string sPathFileName() const;

    bool IsDirectory() const { return HasBit(0x10); }
    bool IsFile() const { return !IsDirectory(); }
    bool IsReadOnly() const { return HasBit(1); }
    bool IsHidden() const { return HasBit(2); }
    bool IsSystem() const { return HasBit(4); }
    bool IsCompressed() const { return HasBit(0x800); }
    bool IsEncrypted() const { return HasBit(0x4000); }

    // A time of the entry as a calendar date in local time or in UTC: iDateType 0 creation, 1 last access, 2 last
    // write; any other stands for the file time 0. iDayOfWeek counts from Sunday as 0. A time that the platform cannot
    // express comes out as zeros.
    void GetFileDate(std::int32_t iDateType, std::int32_t& iDay, std::int32_t& iMonth, std::int32_t& iYear,
                     std::int32_t& iHour, std::int32_t& iMinute, std::int32_t& iSecond, std::int32_t& iMilliSeconds,
                     std::int32_t& iDayOfWeek) const;
    void GetUTCFileDate(std::int32_t iDateType, std::int32_t& iDay, std::int32_t& iMonth, std::int32_t& iYear,
                        std::int32_t& iHour, std::int32_t& iMinute, std::int32_t& iSecond, std::int32_t& iMilliSeconds,
                        std::int32_t& iDayOfWeek) const;

    // Becomes the one entry that sFile names, which may be a pattern. False, and nothing changed, when there is none or
    // more than one. With bRecurseIfDirectory a folder gets everything below it, level by level, as colSub.
    bool LoadFromFileOrDir(std::u16string_view sFile, bool bRecurseIfDirectory);

private:
    bool HasBit(std::uint32_t lBit) const { return (lAttributes & lBit) != 0; }
    const FileTimeWords& TimeOfType(std::int32_t iDateType) const;

    std::u16string m_sFilePath;
};

} // namespace orvanta
