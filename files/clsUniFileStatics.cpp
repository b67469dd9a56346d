// clsUniFile: the members that only pass on to the functions on paths, folders and whole files.
#include "files/clsUniFile.h"

#include "files/PathRules.h"
#include "files/WholeFiles.h"
#include "files/modUniFileUtils.h"

namespace orvanta {

bool clsUniFile::st_MkDir(std::u16string_view sPath) {
    return ufu_MkDir(sPath);
}

bool clsUniFile::st_RmDir(std::u16string_view sPath) {
    return ufu_RmDir(sPath);
}

bool clsUniFile::st_RmDirRic(std::u16string_view sPath) {
    return ufu_RmDirRic(sPath);
}

bool clsUniFile::st_CopyFile(std::u16string_view sFrom, std::u16string_view sTo, bool bFailIfExists) {
    return ufu_CopyFile(sFrom, sTo, bFailIfExists);
}

bool clsUniFile::st_RmFile(std::u16string_view sPath) {
    return ufu_RmFile(sPath);
}

bool clsUniFile::st_RmFiles(std::u16string_view sPathPattern) {
    return ufu_RmFiles(sPathPattern);
}

std::u16string clsUniFile::st_GetCurDir() {
    return ufu_GetCurDir();
}

bool clsUniFile::st_SetCurDir(std::u16string_view sPath) {
    return ufu_SetCurDir(sPath);
}

bool clsUniFile::st_MoveFile(std::u16string_view sFrom, std::u16string_view sTo, std::int32_t iFlags) {
    return ufu_MoveFile(sFrom, sTo, iFlags);
}

std::int32_t clsUniFile::st_GetFileAttr(std::u16string_view sPath) {
    return ufu_GetFileAttr(sPath);
}

bool clsUniFile::st_SetFileAttr(std::u16string_view sPath, std::int32_t iAttrs) {
    return ufu_SetFileAttr(sPath, iAttrs);
}

bool clsUniFile::st_FileHasAttribute(std::u16string_view sPath, std::int32_t iAttr) {
    return ufu_FileHasAttribute(sPath, iAttr);
}

std::u16string clsUniFile::st_FilePath(std::u16string_view sPathFileName, bool bFinalBackSlash) {
    return ufu_FilePath(sPathFileName, bFinalBackSlash);
}

std::u16string clsUniFile::st_FileName(std::u16string_view sPathFileName) {
    return ufu_FileName(sPathFileName);
}

std::u16string clsUniFile::st_FileExt(std::u16string_view sPathFileName) {
    return ufu_FileExt(sPathFileName);
}

std::u16string clsUniFile::st_FileNameNoExt(std::u16string_view sPathFileName) {
    return ufu_FileNameNoExt(sPathFileName);
}

bool clsUniFile::st_MakePath(std::u16string_view sAbsPath) {
    return ufu_MakePath(sAbsPath);
}

bool clsUniFile::st_FileExist(std::u16string_view sFileName) {
    return ufu_FileExist(sFileName);
}

bool clsUniFile::st_DirExist(std::u16string_view sPath) {
    return ufu_DirExist(sPath);
}

std::u16string clsUniFile::st_GetTempPath() {
    return ufu_GetTempPath();
}

FileEncoding clsUniFile::st_GetFileEncoding(std::u16string_view sFile) {
    return ufu_GetFileEncoding(sFile);
}

bool clsUniFile::st_TextFileToString(std::u16string_view sNomeFile, std::u16string& sRetFile, bool bRaiseError) {
    return ufu_TextFileToString(sNomeFile, sRetFile, bRaiseError);
}

bool clsUniFile::st_StringToTextFile(std::u16string_view vsPathFile, std::u16string_view vsText, FileEncoding iEncoding,
                                     bool bRaiseError) {
    return ufu_StringToTextFile(vsPathFile, vsText, iEncoding, bRaiseError);
}

bool clsUniFile::st_GetFileDate(std::u16string_view sPathFileName, std::int32_t iDateType, std::int32_t& iDay,
                                std::int32_t& iMonth, std::int32_t& iYear, std::int32_t& iHour, std::int32_t& iMinute,
                                std::int32_t& iSecond, std::int32_t& iMilliSeconds, std::int32_t& iDayOfWeek) {
    return ufu_GetFileDate(sPathFileName, iDateType, iDay, iMonth, iYear, iHour, iMinute, iSecond, iMilliSeconds,
                           iDayOfWeek);
}

std::u16string clsUniFile::st_UniAppPath() {
    return ufu_UniAppPath();
}

std::int64_t clsUniFile::st_FileLen(std::u16string_view sFile) {
    return ufu_FileLen(sFile);
}

std::u16string clsUniFile::st_UniCommandLine() {
    return ufu_UniCommandLine();
}

bool clsUniFile::st_MoveFolderContent(std::u16string_view sSourcePath, std::u16string_view sDestPath) {
    return ufu_MoveFolderContent(sSourcePath, sDestPath);
}

bool clsUniFile::st_CopyFolderContent(std::u16string_view sSourcePath, std::u16string_view sDestPath) {
    return ufu_CopyFolderContent(sSourcePath, sDestPath);
}

std::u16string clsUniFile::st_OneBackSlash(std::u16string_view s) {
    return ufu_OneBackSlash(s);
}

std::u16string clsUniFile::st_NoBackSlash(std::u16string_view s) {
    return ufu_NoBackSlash(s);
}

std::u16string clsUniFile::st_OneSlashWeb(std::u16string_view s) {
    return ufu_OneSlashWeb(s);
}

std::u16string clsUniFile::st_NoSlashWeb(std::u16string_view s) {
    return ufu_NoSlashWeb(s);
}

bool clsUniFile::st_IsLocalPath(std::u16string_view s) {
    return ufu_IsLocalPath(s);
}

bool clsUniFile::st_IsWebPath(std::u16string_view s) {
    return ufu_IsWebPath(s);
}

} // namespace orvanta
