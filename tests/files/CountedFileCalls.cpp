#include "tests/files/CountedFileCalls.h"

#include "plumbing/FilePosition.h"
#include "plumbing/WideText.h"

#include <algorithm>

namespace orvanta::testing {

namespace {

CountedFileCalls* g_counter = nullptr;

BOOL Fail(DWORD lError) {
    SetLastError(lError);
    return FALSE;
}

HANDLE WINAPI NoteCreateFile(LPCWSTR name, DWORD access, DWORD share, LPSECURITY_ATTRIBUTES security, DWORD disposition,
                             DWORD attributes, HANDLE templateFile) {
    g_counter->opens.push_back({TextOfWide(name), access, share, disposition, attributes, security || templateFile});
    return ::CreateFileW(name, access, share, security, disposition, attributes, templateFile);
}

BOOL WINAPI NoteReadFile(HANDLE file, LPVOID buffer, DWORD count, LPDWORD done, LPOVERLAPPED overlapped) {
    g_counter->calls.push_back("read " + std::to_string(count));
    g_counter->reads.push_back(count);
    if (g_counter->lReadError) return Fail(g_counter->lReadError);
    return ::ReadFile(file, buffer, std::min(count, g_counter->lReadLimit), done, overlapped);
}

BOOL WINAPI NoteWriteFile(HANDLE file, LPCVOID buffer, DWORD count, LPDWORD done, LPOVERLAPPED overlapped) {
    g_counter->calls.push_back("write " + std::to_string(count));
    g_counter->writes.push_back(count);
    if (g_counter->lWriteError) return Fail(g_counter->lWriteError);
    return ::WriteFile(file, buffer, std::min(count, g_counter->lWriteLimit), done, overlapped);
}

DWORD WINAPI NoteSetFilePointer(HANDLE file, LONG low, PLONG high, DWORD from) {
    const std::int64_t lMove = LongsToFixed(static_cast<std::uint32_t>(low), static_cast<std::int32_t>(*high));
    const bool bAsks = lMove == 0 && from == FILE_CURRENT;
    g_counter->calls.push_back(bAsks ? "where" : "seek " + std::to_string(lMove) + " from " + std::to_string(from));
    return ::SetFilePointer(file, low, high, from);
}

DWORD WINAPI NoteGetFileSize(HANDLE file, LPDWORD high) {
    g_counter->calls.push_back("size");
    return ::GetFileSize(file, high);
}

BOOL WINAPI NoteSetEndOfFile(HANDLE file) {
    g_counter->calls.push_back("cut");
    return ::SetEndOfFile(file);
}

BOOL WINAPI NoteFlush(HANDLE file) {
    g_counter->calls.push_back("flush");
    return g_counter->lFlushError ? Fail(g_counter->lFlushError) : ::FlushFileBuffers(file);
}

BOOL WINAPI NoteClose(HANDLE file) {
    g_counter->calls.push_back("close");
    return ::CloseHandle(file);
}

} // namespace

CountedFileCalls::CountedFileCalls() : m_saved(g_fileCalls) {
    g_counter = this;
    g_fileCalls = {&NoteCreateFile,  &NoteReadFile,     &NoteWriteFile, &NoteSetFilePointer,
                   &NoteGetFileSize, &NoteSetEndOfFile, &NoteFlush,     &NoteClose};
}

CountedFileCalls::~CountedFileCalls() {
    g_fileCalls = m_saved;
    g_counter = nullptr;
}

void CountedFileCalls::Forget() {
    calls.clear();
    reads.clear();
    writes.clear();
    opens.clear();
}

} // namespace orvanta::testing
