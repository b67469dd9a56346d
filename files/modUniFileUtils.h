#pragma once

#include "files/PathRules.h"

#include <cstdint>
#include <string>
#include <string_view>

// Free functions on folders and files by name. Rules on names as text stand in PathRules.h, whole text files in
// WholeFiles.h.
//
// Paths are absolute and clean: every one goes to the platform through LongPathPrefix, behind which relative paths,
// "..", slashes and doubled backslashes are no longer understood. A path ends at its first NUL.
//
// Unless it says otherwise a function raises nothing: it answers false, the empty text or 0. Operations on many entries
// go on after one that failed, undo nothing, and are true when all went.

namespace orvanta {

// --- one call of the platform each
bool ufu_MkDir(std::u16string_view sPath); // one level
bool ufu_RmDir(std::u16string_view sPath); // an empty folder
bool ufu_CopyFile(std::u16string_view sFrom, std::u16string_view sTo, bool bFailIfExists);
bool ufu_RmFile(std::u16string_view sPath); // read-only files too
// iFlags are the platform's MOVEFILE_ values. Systems before NT 4 know none: there the target is removed first.
bool ufu_MoveFile(std::u16string_view sFrom, std::u16string_view sTo, std::int32_t iFlags);
std::u16string ufu_GetCurDir();
bool ufu_SetCurDir(std::u16string_view sPath);
std::u16string ufu_GetTempPath(); // with its final backslash

// --- attributes and dates
std::int32_t ufu_GetFileAttr(std::u16string_view sPath); // FILE_ATTRIBUTE_ bits, -1 for an absent path
bool ufu_SetFileAttr(std::u16string_view sPath, std::int32_t iAttrs);
// True for every positive attribute of an absent path, since -1 has all bits.
bool ufu_FileHasAttribute(std::u16string_view sPath, std::int32_t iAttr);
// A time of a file or folder in local time, as clsSearchFilesFInfo::GetFileDate gives it. False leaves all values
// alone.
bool ufu_GetFileDate(std::u16string_view sPathFileName, std::int32_t iDateType, std::int32_t& iDay,
                     std::int32_t& iMonth, std::int32_t& iYear, std::int32_t& iHour, std::int32_t& iMinute,
                     std::int32_t& iSecond, std::int32_t& iMilliSeconds, std::int32_t& iDayOfWeek);

// --- existence
// A file, no folder. A pattern exists when exactly one file matches it.
bool ufu_FileExist(std::u16string_view sFileName);
// A folder that can be listed.
bool ufu_DirExist(std::u16string_view sPath);

// --- folders
// Makes all missing levels. On a share the first level made is the share; the server is taken as given. True when the
// folder is there in the end. Raises "Not a local path" for a web path.
bool ufu_MakePath(std::u16string_view sAbsPath);
// Removes the folder with all its content, read-only files too.
bool ufu_RmDirRic(std::u16string_view sPath);
// Removes all files that the pattern matches, also true when there are none.
bool ufu_RmFiles(std::u16string_view sPathPattern);
// Moves all files of all levels, replacing those that are there, and makes the folders for them; the emptied folders
// stay. Both folders must exist. sSourcePath ends in one backslash: its length is what is cut off each entry's path.
bool ufu_MoveFolderContent(std::u16string_view sSourcePath, std::u16string_view sDestPath);
// Copies all files of all levels, replacing those that are there. The destination is made when it is missing. Both
// paths have the same form of ending: what stands behind sSourcePath is put behind sDestPath as it is.
bool ufu_CopyFolderContent(std::u16string_view sSourcePath, std::u16string_view sDestPath);

// --- the running program
std::u16string ufu_UniAppPath(); // its folder, without the final backslash
// Its arguments; before Windows 2000 the whole command line. Raises InvalidProcedureCall for a line without quote and
// blank, which has none.
std::u16string ufu_UniCommandLine();

} // namespace orvanta
