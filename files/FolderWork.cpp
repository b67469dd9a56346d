// The functions of modUniFileUtils.h that stand on a search: existence, dates, and work on whole folders.
#include "files/modUniFileUtils.h"

#include "base/Failure.h"
#include "base/ResumeNext.h"
#include "files/clsSearchFiles.h"

#include <windows.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace orvanta {

namespace {

// A path that cannot be searched has no entries.
SearchResults EntriesIn(std::u16string_view sPath, bool bRecurseSubDirs) {
    SearchResults entries;
    ResumeNext([](const Failure&) {},
               [&] {
                   entries = clsSearchFiles().SearchInPath(sPath, kSearchFilesAndFolders, bRecurseSubDirs, false, false,
                                                           -1, false);
               });
    return entries;
}

// A folder whose content is being removed.
struct Emptying {
    explicit Emptying(std::u16string_view sPath) : nPath(sPath.size()) {
        const SearchResults entries = EntriesIn(sPath, false);
        for (std::size_t n = 1; n <= entries.Count(); ++n)
            vEntries.emplace_back(entries.Item(n)->sName, entries.Item(n)->IsDirectory());
    }

    std::size_t nPath;                                     // the length of the folder's path
    std::vector<std::pair<std::u16string, bool>> vEntries; // name, and whether it is a folder
    std::size_t nNext = 0;
    std::vector<std::u16string> vLeft; // folders, and files that could not be removed
};

// The folders stand in a list, not on the stack: a tree may be as deep as a path is long.
bool RemoveContent(std::u16string sPath) {
    bool bAll = true;
    std::vector<Emptying> vFolders;
    vFolders.emplace_back(sPath);
    while (!vFolders.empty()) {
        Emptying& folder = vFolders.back();
        sPath.resize(folder.nPath);
        const std::u16string sBase = ufu_OneBackSlash(sPath);
        if (folder.nNext == folder.vEntries.size()) {
            // A file that is still here is tried as a folder as well, and fails once more.
            for (const std::u16string& sName : folder.vLeft)
                bAll &= ufu_RmDir(sBase + sName);
            vFolders.pop_back();
            continue;
        }
        const auto& [sName, bFolder] = folder.vEntries[folder.nNext++];
        if (!bFolder && ufu_RmFile(sBase + sName)) continue;
        folder.vLeft.push_back(sName);
        if (bFolder) {
            sPath = sBase + sName;
            vFolders.emplace_back(sPath);
        } else {
            bAll = false;
        }
    }
    return bAll;
}

// Rebuilds the folders below sSourcePath behind sTargetBase and hands each file and its target to place.
template<typename Place>
bool PlaceContent(std::u16string_view sSourcePath, const std::u16string& sTargetBase, Place place) {
    const SearchResults entries = EntriesIn(sSourcePath, true);
    bool bAll = true;
    for (std::size_t n = 1; n <= entries.Count(); ++n) {
        const clsSearchFilesFInfo& entry = *entries.Item(n);
        const std::u16string sEntry = entry.sPathFileName();
        const std::u16string sTarget = sTargetBase + sEntry.substr(std::min(sSourcePath.size(), sEntry.size()));
        if (entry.IsDirectory()) {
            ufu_MkDir(sTarget);
        } else {
            bAll &= place(sEntry, sTarget);
        }
    }
    return bAll;
}

void MakeLevels(std::u16string_view sAbsPath) {
    PathLevels levels = SplitPathLevels(sAbsPath);
    std::u16string sCurrent;
    for (const std::u16string& sPart : levels.vParts) {
        sCurrent = ufu_OneBackSlash(sCurrent).append(sPart);
        sCurrent.insert(0, std::exchange(levels.sPrefix, {}));
        if (!ufu_DirExist(sCurrent)) ufu_MkDir(sCurrent);
    }
}

} // namespace

bool ufu_GetFileDate(std::u16string_view sPathFileName, std::int32_t iDateType, std::int32_t& iDay,
                     std::int32_t& iMonth, std::int32_t& iYear, std::int32_t& iHour, std::int32_t& iMinute,
                     std::int32_t& iSecond, std::int32_t& iMilliSeconds, std::int32_t& iDayOfWeek) {
    clsSearchFilesFInfo entry;
    if (!entry.LoadFromFileOrDir(sPathFileName, false)) return false;
    entry.GetFileDate(iDateType, iDay, iMonth, iYear, iHour, iMinute, iSecond, iMilliSeconds, iDayOfWeek);
    return true;
}

bool ufu_FileExist(std::u16string_view sFileName) {
    if (sFileName.empty()) return false;
    // The second match settles it: the search need not find more.
    return clsSearchFiles().SearchPathPattern(sFileName, kSearchFiles, false, false, false, 2, false).Count() == 1;
}

// The entry "." of the folder counts, so an empty folder is there too.
bool ufu_DirExist(std::u16string_view sPath) {
    if (sPath.empty()) return false;
    bool bFound = false;
    ResumeNext(
        [](const Failure&) {},
        [&] {
            bFound =
                !clsSearchFiles().SearchInPath(sPath, kSearchFilesAndFolders, false, false, true, 1, false).Empty();
        });
    return bFound;
}

bool ufu_MakePath(std::u16string_view sAbsPath) {
    if (ufu_IsWebPath(sAbsPath)) throw OwnFailure(u"ufu_MakePath", u"Not a local path");
    ResumeNext([](const Failure&) {}, [&] { MakeLevels(sAbsPath); });
    return ufu_DirExist(sAbsPath);
}

bool ufu_RmDirRic(std::u16string_view sPath) {
    if (sPath.empty() || ufu_IsWebPath(sPath)) return false;
    const bool bEmptied = RemoveContent(ufu_NoBackSlash(sPath));
    return ufu_RmDir(sPath) && bEmptied;
}

bool ufu_RmFiles(std::u16string_view sPathPattern) {
    const SearchResults files =
        clsSearchFiles().SearchPathPattern(sPathPattern, kSearchFiles, false, false, false, -1, false);
    bool bAll = true;
    for (std::size_t n = 1; n <= files.Count(); ++n)
        bAll &= ufu_RmFile(files.Item(n)->sPathFileName());
    return bAll;
}

bool ufu_MoveFolderContent(std::u16string_view sSourcePath, std::u16string_view sDestPath) {
    if (!ufu_DirExist(sSourcePath) || !ufu_DirExist(sDestPath)) return false;
    constexpr std::int32_t kReplaceCopyAndWait =
        MOVEFILE_REPLACE_EXISTING | MOVEFILE_COPY_ALLOWED | MOVEFILE_WRITE_THROUGH;
    return PlaceContent(sSourcePath, ufu_OneBackSlash(sDestPath),
                        [](const std::u16string& sFrom, const std::u16string& sTo) {
                            return ufu_MoveFile(sFrom, sTo, kReplaceCopyAndWait);
                        });
}

bool ufu_CopyFolderContent(std::u16string_view sSourcePath, std::u16string_view sDestPath) {
    if (!ufu_DirExist(sSourcePath)) return false;
    if (!ufu_DirExist(sDestPath) && (ufu_IsWebPath(sDestPath) || !ufu_MakePath(sDestPath))) return false;
    // No separator is put between: the caller gives both paths the same ending.
    return PlaceContent(
        sSourcePath, std::u16string(sDestPath),
        [](const std::u16string& sFrom, const std::u16string& sTo) { return ufu_CopyFile(sFrom, sTo, false); });
}

} // namespace orvanta
