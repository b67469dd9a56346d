#include "files/clsUniFile.h"

#include "base/Failure.h"
#include "files/FileCalls.h"
#include "files/modUniFileUtils.h"
#include "plumbing/FilePosition.h"
#include "plumbing/LongPath.h"
#include "plumbing/WideText.h"

#include <algorithm>
#include <cstring>
#include <type_traits>

namespace orvanta {

static_assert(std::is_same_v<clsUniFile::Handle, HANDLE>);

void clsUniFile::UseCache(bool b) {
    if (b == m_bUseCache) return;
    if (IsFileOpen() && !b) SetFilePos(GetFilePos(), FILE_BEGIN);
    m_bUseCache = b;
    ResetReadCache();
}

bool clsUniFile::OpenFileGeneric(std::u16string_view sPath, std::uint32_t iAccess, std::uint32_t iCreationDisposition,
                                 std::uint32_t iShareMode, std::uint32_t iAttributes) {
    if (IsFileOpen()) throw OwnFailure(u"clsUniFile.OpenFile", u"A file is already open!");
    ResetReadCache();
    ResetWriteCache();
    m_hFile = g_fileCalls.CreateFileW(WideOf(LongPathPrefix(sPath)), iAccess, iShareMode, nullptr, iCreationDisposition,
                                      iAttributes, nullptr);
    if (m_hFile == INVALID_HANDLE_VALUE) return false;
    m_sFileName = sPath;
    return true;
}

bool clsUniFile::OpenFileRead(std::u16string_view sPath, bool bShared) {
    return OpenFileGeneric(sPath, GENERIC_READ, OPEN_EXISTING, bShared ? FILE_SHARE_READ : 0, FILE_ATTRIBUTE_NORMAL);
}

bool clsUniFile::OpenFileWrite(std::u16string_view sPath, bool bShared) {
    return OpenFileGeneric(sPath, GENERIC_WRITE, CREATE_ALWAYS, bShared ? FILE_SHARE_WRITE : 0, FILE_ATTRIBUTE_NORMAL);
}

bool clsUniFile::OpenFileAppend(std::u16string_view sPath) {
    if (!ufu_FileExist(sPath)) return OpenFileWrite(sPath, false);
    if (!OpenFileGeneric(sPath, GENERIC_READ | GENERIC_WRITE, OPEN_EXISTING, 0, FILE_ATTRIBUTE_NORMAL)) return false;
    SetFilePos(0, FILE_END);
    return true;
}

void clsUniFile::CloseFile() {
    if (!IsFileOpen()) return;
    FlushWriteCache();
    ResetReadCache();
    g_fileCalls.CloseHandle(m_hFile);
    m_hFile = nullptr;
}

bool clsUniFile::SetEndOfFileHere() {
    if (!IsFileOpen()) return false;
    FlushWriteCache();
    return g_fileCalls.SetEndOfFile(m_hFile) != FALSE;
}

bool clsUniFile::Flush() {
    if (!IsFileOpen()) return false;
    const bool bWritten = FlushWriteCache();
    return g_fileCalls.FlushFileBuffers(m_hFile) && bWritten;
}

std::int64_t clsUniFile::LOF() const {
    DWORD lHigh = 0;
    const DWORD lLow = g_fileCalls.GetFileSize(m_hFile, &lHigh);
    return LongsToFixed(lLow, static_cast<std::int32_t>(lHigh)) + (m_bUseCache ? PendingCount() : 0);
}

void clsUniFile::SetFilePos(std::int64_t cPos, std::int32_t iFrom) {
    LONG lHigh = FixedToHighLong(cPos);
    if (m_bUseCache) FlushWriteCache();
    g_fileCalls.SetFilePointer(m_hFile, static_cast<LONG>(FixedToLowLong(cPos)), &lHigh, static_cast<DWORD>(iFrom));
    if (m_bUseCache) ResetReadCache();
}

std::int64_t clsUniFile::RealFilePos() const {
    if (!IsFileOpen()) return -1;
    LONG lHigh = 0;
    const DWORD lLow = g_fileCalls.SetFilePointer(m_hFile, 0, &lHigh, FILE_CURRENT);
    return LongsToFixed(lLow, lHigh);
}

std::int64_t clsUniFile::GetFilePos() const {
    if (!IsFileOpen()) return -1;
    return m_bUseCache ? RealFilePos() - UnreadCount() + PendingCount() : RealFilePos();
}

bool clsUniFile::Eof() const {
    return !IsFileOpen() || GetFilePos() >= LOF() - 1;
}

const std::uint8_t* clsUniFile::NextByte() {
    if (m_bUseCache) {
        FlushWriteCache();
        return FillReadCache() ? m_pRead : nullptr;
    }
    if (!ReadRaw(m_aReadCache.data(), 1)) return nullptr;
    SetUnread(1);
    return m_pRead;
}

bool clsUniFile::ReadAny(void* lPtrAny, std::int32_t lToRead) {
    if (lToRead < 1) return false;
    if (!m_bUseCache) return ReadRaw(lPtrAny, lToRead);
    FlushWriteCache();
    auto* out = static_cast<std::uint8_t*>(lPtrAny);
    const std::int32_t lAvail = UnreadCount();
    if (lToRead > lAvail) {
        TakeUnread(out, lAvail);
        out += lAvail;
        lToRead -= lAvail;
        ResetReadCache();
        if (lToRead + lAvail > kCacheSize) return ReadRaw(out, lToRead);
        if (!FillReadCache() || lToRead > UnreadCount()) return false;
    }
    TakeUnread(out, lToRead);
    return true;
}

bool clsUniFile::WriteAny(const void* lPtrAny, std::int32_t lToWrite) {
    if (lToWrite < 1) return false;
    if (!m_bUseCache) return WriteRaw(lPtrAny, lToWrite);
    if (lToWrite > kCacheSize) {
        const bool bFlushed = FlushWriteCache();
        return WriteRaw(lPtrAny, lToWrite) && bFlushed;
    }
    const auto* in = static_cast<const std::uint8_t*>(lPtrAny);
    const std::int32_t lFits = std::min(lToWrite, kCacheSize - PendingCount());
    std::memcpy(m_aWriteCache.data() + PendingCount(), in, static_cast<std::size_t>(lFits));
    m_pReadStop = m_pRead;
    m_lWriteLast += lFits;
    if (lFits == lToWrite) return true;
    const bool bFlushed = FlushWriteCache();
    std::memcpy(m_aWriteCache.data(), in + lFits, static_cast<std::size_t>(lToWrite - lFits));
    m_lWriteLast = lToWrite - lFits - 1;
    return bFlushed;
}

void clsUniFile::SetUnread(std::int32_t lCount) {
    m_pRead = m_aReadCache.data();
    m_pReadEnd = m_pRead + lCount;
    m_pReadStop = m_pReadEnd;
}

void clsUniFile::ResetReadCache() {
    SetUnread(0);
}

void clsUniFile::ResetWriteCache() {
    m_lWriteLast = -1;
    m_pReadStop = m_pReadEnd;
}

// The pending bytes of a failed write are gone.
bool clsUniFile::FlushWriteCache() {
    if (m_lWriteLast < 0) return true;
    const bool bWritten = WriteRaw(m_aWriteCache.data(), PendingCount());
    ResetWriteCache();
    return bWritten;
}

bool clsUniFile::FillReadCache() {
    if (UnreadCount() > 0) return true;
    const std::int64_t lEndMark = LOF() - 1;
    const std::int64_t lPos = RealFilePos();
    // Not "past": a refill that would start on the last byte gives nothing.
    if (lPos >= lEndMark) return false;
    const auto lCount = static_cast<std::int32_t>(std::min<std::int64_t>(lEndMark - lPos + 1, kCacheSize));
    const bool bRead = ReadRaw(m_aReadCache.data(), lCount);
    SetUnread(bRead ? lCount : 0);
    return bRead;
}

bool clsUniFile::ReadRaw(void* lPtrAny, std::int32_t lToRead) {
    if (lToRead < 1) return false;
    DWORD lRead = 0;
    return g_fileCalls.ReadFile(m_hFile, lPtrAny, static_cast<DWORD>(lToRead), &lRead, nullptr) &&
           lRead == static_cast<DWORD>(lToRead);
}

bool clsUniFile::WriteRaw(const void* lPtrAny, std::int32_t lToWrite) {
    if (lToWrite < 1) return false;
    DWORD lWritten = 0;
    return g_fileCalls.WriteFile(m_hFile, lPtrAny, static_cast<DWORD>(lToWrite), &lWritten, nullptr) &&
           lWritten == static_cast<DWORD>(lToWrite);
}

void clsUniFile::TakeUnread(std::uint8_t* out, std::int32_t lCount) {
    std::memcpy(out, m_pRead, static_cast<std::size_t>(lCount));
    m_pRead += lCount;
}

} // namespace orvanta
