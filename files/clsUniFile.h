#pragma once

#include "base/FileEncoding.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace orvanta {

// One file, read and written through two caches of 16,384 bytes, so that reading byte by byte does not cost a platform
// call for each byte. Paths are the caller's; the prefix for long paths is added on the way to the platform.
//
// Positions and sizes are bytes counted from 0. Reads and writes answer with true or false; a short read counts as
// failure. The only failure raised is "A file is already open!", by an open on an object that has one. An object that
// could not open its file counts as having one, with the handle -1: CloseFile sets it back. Nothing is allocated in a
// read or a write of bytes.
//
//     clsUniFile file;
//     if (file.OpenFileRead(u"C:\\a.txt", true)) while (file.ReadByte(b)) ...
//
// With the cache on, the last byte of a file is out of reach when a refill would start exactly on it: the only byte of
// a file of one byte, and the last of a file of 16,384 x k + 1 bytes read one by one. Programs rely on it; switch the
// cache off to get it. The caches know nothing of each other: a write goes to the handle's position, which lies ahead
// of the logical one by the unread bytes, unless SetFilePos came between.
class clsUniFile {
public:
    // The platform's HANDLE: 0 for no file, -1 after a failed open.
    using Handle = void*;

    clsUniFile() = default;
    clsUniFile(const clsUniFile&) = delete;
    clsUniFile& operator=(const clsUniFile&) = delete;
    // Writes out what is pending and closes.
    ~clsUniFile() { CloseFile(); }

    // On at creation. Switching it off writes out pending bytes and moves the handle to the logical position.
    bool UseCache() const { return m_bUseCache; }
    void UseCache(bool b);

    Handle OpenedFileHandle() const { return m_hFile; }
    // As the caller of the last successful open gave it; empty when no file is open.
    std::u16string OpenedFileName() const { return IsFileOpen() ? m_sFileName : std::u16string(); }
    bool IsFileOpen() const { return m_hFile != nullptr; }

    // The arguments are the platform's values.
    bool OpenFileGeneric(std::u16string_view sPath, std::uint32_t iAccess, std::uint32_t iCreationDisposition,
                         std::uint32_t iShareMode, std::uint32_t iAttributes);
    bool OpenFileRead(std::u16string_view sPath, bool bShared);
    // Empties an existing file.
    bool OpenFileWrite(std::u16string_view sPath, bool bShared);
    // At the end of an existing file, or a new one; never shared.
    bool OpenFileAppend(std::u16string_view sPath);
    void CloseFile();

    // Cuts the file at the handle's position.
    bool SetEndOfFileHere();
    bool Flush();

    // The file's size, plus the pending bytes even when they will overwrite. Without an open file: no meaning.
    std::int64_t LOF() const;
    // iFrom: 0 from the start, 1 from the handle's position (unread bytes are dropped, not counted back), 2 from the
    // end.
    void SetFilePos(std::int64_t cPos, std::int32_t iFrom);
    // The handle's own position and the logical one; -1 when no file is open.
    std::int64_t RealFilePos() const;
    std::int64_t GetFilePos() const;
    // True from the last byte on, with that byte still unread.
    bool Eof() const;

    bool ReadByte(std::uint8_t& b) {
        // The position goes through a local, so that a loop over this keeps it in a register.
        const std::uint8_t* p = m_pRead;
        if (p == m_pReadStop) {
            p = NextByte();
            if (!p) return false;
        }
        m_pRead = p + 1;
        b = *p;
        return true;
    }
    bool WriteByte(std::uint8_t b) {
        const auto n = static_cast<std::uint32_t>(m_lWriteLast); // nothing pending is out of range, too
        if (!m_bUseCache || n >= kCacheSize - 1) return WriteAny(&b, 1);
        m_aWriteCache.data()[++m_lWriteLast] = b;
        return true;
    }
    // A count below 1 is refused. A failed read may have handed over some bytes.
    bool ReadAny(void* lPtrAny, std::int32_t lToRead);
    bool WriteAny(const void* lPtrAny, std::int32_t lToWrite);
    // The whole of aBuffer. An empty one, or one above 2,147,483,647 bytes, is refused.
    bool ReadBytes(std::span<std::uint8_t> aBuffer);
    bool WriteBytes(std::span<const std::uint8_t> aBuffer);

    // Little-endian values. Reading a boolean gives true for the byte 1 only.
    bool ReadLong(std::int32_t& lOut);
    bool WriteLong(std::int32_t lIn);
    bool ReadInt(std::int16_t& iOut);
    bool WriteInt(std::int16_t iIn);
    bool ReadBool(bool& b);
    bool WriteBool(bool b);
    // Reads the eight bytes of a double but hands back an integer, rounded halves to even. A double that is no 32-bit
    // integer counts as a failed read.
    bool ReadDouble(std::int32_t& dOut);
    bool WriteDouble(double d);

    // Lines. A line ends at a line feed, and CR LF or LF is not part of the result; a lone CR is text. The result is
    // true when a line feed ended the line; at the end of the file it is false, with the last line in sRet.
    bool ReadAnsiLine(std::u16string& sRet);
    bool WriteAnsiLine(std::u16string_view s);
    // Leaves sRet as it was when the line is empty.
    bool ReadUTF8Line(std::u16string& sRet);
    bool WriteUTF8Line(std::u16string_view s);
    // By encoding; a value that is none counts as feAnsi.
    bool ReadLine(std::u16string& sRet, FileEncoding iFileEnc);
    bool WriteLine(std::u16string_view s, FileEncoding iFileEnc);
    bool ReadUnicodeLine(std::u16string& sRet);
    bool WriteUnicodeLine(std::u16string_view s);

    // False for a value that is no encoding; feAnsi has no mark, which is true.
    bool WriteBOM(FileEncoding iFileEnc);
    // Reads a mark at the present position, by its first byte only. Without one the position becomes the start of the
    // file.
    FileEncoding ReadBOM();

    // A 32-bit count of bytes and the bytes. An empty text is written as the count 0, but both members answer false to
    // it.
    bool WriteNumCharsAndString(std::u16string_view s, FileEncoding iFileEnc);
    // sRet is empty after a failure.
    bool ReadNumCharsAndString(std::u16string& sRet, FileEncoding iFileEnc);

    // The functions on paths, folders and whole files, each passed on to the ufu_ function of its name and explained
    // there: PathRules.h, modUniFileUtils.h, WholeFiles.h.
    static bool st_MkDir(std::u16string_view sPath);
    static bool st_RmDir(std::u16string_view sPath);
    static bool st_RmDirRic(std::u16string_view sPath);
    static bool st_CopyFile(std::u16string_view sFrom, std::u16string_view sTo, bool bFailIfExists);
    static bool st_RmFile(std::u16string_view sPath);
    static bool st_RmFiles(std::u16string_view sPathPattern);
    static std::u16string st_GetCurDir();
    static bool st_SetCurDir(std::u16string_view sPath);
    static bool st_MoveFile(std::u16string_view sFrom, std::u16string_view sTo, std::int32_t iFlags);
    static std::int32_t st_GetFileAttr(std::u16string_view sPath);
    static bool st_SetFileAttr(std::u16string_view sPath, std::int32_t iAttrs);
    static bool st_FileHasAttribute(std::u16string_view sPath, std::int32_t iAttr);
    static std::u16string st_FilePath(std::u16string_view sPathFileName, bool bFinalBackSlash);
    static std::u16string st_FileName(std::u16string_view sPathFileName);
    static std::u16string st_FileExt(std::u16string_view sPathFileName);
    static std::u16string st_FileNameNoExt(std::u16string_view sPathFileName);
    static bool st_MakePath(std::u16string_view sAbsPath);
    static bool st_FileExist(std::u16string_view sFileName);
    static bool st_DirExist(std::u16string_view sPath);
    static std::u16string st_GetTempPath();
    static FileEncoding st_GetFileEncoding(std::u16string_view sFile);
    static bool st_TextFileToString(std::u16string_view sNomeFile, std::u16string& sRetFile, bool bRaiseError);
    static bool st_StringToTextFile(std::u16string_view vsPathFile, std::u16string_view vsText, FileEncoding iEncoding,
                                    bool bRaiseError);
    static bool st_GetFileDate(std::u16string_view sPathFileName, std::int32_t iDateType, std::int32_t& iDay,
                               std::int32_t& iMonth, std::int32_t& iYear, std::int32_t& iHour, std::int32_t& iMinute,
                               std::int32_t& iSecond, std::int32_t& iMilliSeconds, std::int32_t& iDayOfWeek);
    static std::u16string st_UniAppPath();
    static std::int64_t st_FileLen(std::u16string_view sFile);
    static std::u16string st_UniCommandLine();
    static bool st_MoveFolderContent(std::u16string_view sSourcePath, std::u16string_view sDestPath);
    static bool st_CopyFolderContent(std::u16string_view sSourcePath, std::u16string_view sDestPath);
    static std::u16string st_OneBackSlash(std::u16string_view s);
    static std::u16string st_NoBackSlash(std::u16string_view s);
    static std::u16string st_OneSlashWeb(std::u16string_view s);
    static std::u16string st_NoSlashWeb(std::u16string_view s);
    static bool st_IsLocalPath(std::u16string_view s);
    static bool st_IsWebPath(std::u16string_view s);

private:
    static constexpr std::int32_t kCacheSize = 16384;

    std::int32_t UnreadCount() const { return static_cast<std::int32_t>(m_pReadEnd - m_pRead); }
    std::int32_t PendingCount() const { return m_lWriteLast + 1; }
    // Makes the first lCount bytes of the read cache the unread ones.
    void SetUnread(std::int32_t lCount);
    void ResetReadCache();
    void ResetWriteCache();
    bool FlushWriteCache();
    bool FillReadCache();
    bool ReadRaw(void* lPtrAny, std::int32_t lToRead);
    bool WriteRaw(const void* lPtrAny, std::int32_t lToWrite);
    // Where the byte to read next stands, when it is not among those ready; nullptr when the read failed.
    const std::uint8_t* NextByte();
    void TakeUnread(std::uint8_t* out, std::int32_t lCount);

    // What the next reads of one byte each would deliver, up to a line feed and as far as it stands in the read cache:
    // these bytes count as read. One byte, kept in bSingle, where nothing stands there. Empty when the read failed.
    std::string_view ReadRun(std::uint8_t& bSingle);
    bool WriteTextLine(std::u16string_view s, FileEncoding iFileEnc);
    bool WriteText(std::string_view sBytes);

    Handle m_hFile = nullptr;
    std::u16string m_sFileName;
    bool m_bUseCache = true;
    // The unread bytes in the read cache. They are ready up to m_pReadStop: all of them, or none while bytes are
    // pending, which have to be written out before the next read.
    const std::uint8_t* m_pRead = nullptr;
    const std::uint8_t* m_pReadStop = nullptr;
    const std::uint8_t* m_pReadEnd = nullptr;
    std::int32_t m_lWriteLast = -1; // of the last pending byte
    std::array<std::uint8_t, kCacheSize> m_aReadCache;
    std::array<std::uint8_t, kCacheSize> m_aWriteCache;
};

} // namespace orvanta
