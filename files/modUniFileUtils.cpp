#include "files/modUniFileUtils.h"

#include "plumbing/LongPath.h"
#include "plumbing/WideText.h"
#include "plumbing/WindowsVersion.h"

#include <windows.h>

namespace orvanta {

namespace {

// The buffers in which the platform hands out paths and the command line.
constexpr DWORD kPathBuffer = 2048;

// What a call of the form call(size, buffer) -> length hands out; empty when it fails or needs more room. A call that
// cuts what it hands out answers with the size of the buffer.
template<typename Call>
std::u16string PathFrom(Call call) {
    std::u16string sBuffer(kPathBuffer, u'\0');
    const DWORD nLength = call(kPathBuffer, WideBuffer(sBuffer));
    if (nLength >= kPathBuffer) return {};
    sBuffer.resize(nLength);
    return sBuffer;
}

bool SetAttributes(const std::u16string& sLongPath, DWORD lAttributes) {
    return SetFileAttributesW(WideOf(sLongPath), lAttributes) != 0;
}

} // namespace

bool ufu_MkDir(std::u16string_view sPath) {
    return !sPath.empty() && CreateDirectoryW(WideOf(LongPathPrefix(sPath)), nullptr);
}

bool ufu_RmDir(std::u16string_view sPath) {
    return !sPath.empty() && RemoveDirectoryW(WideOf(LongPathPrefix(sPath)));
}

bool ufu_CopyFile(std::u16string_view sFrom, std::u16string_view sTo, bool bFailIfExists) {
    return CopyFileW(WideOf(LongPathPrefix(sFrom)), WideOf(LongPathPrefix(sTo)), bFailIfExists ? 1 : 0) != 0;
}

bool ufu_RmFile(std::u16string_view sPath) {
    const std::u16string sLongPath = LongPathPrefix(sPath);
    SetAttributes(sLongPath, 0);
    return DeleteFileW(WideOf(sLongPath)) != 0;
}

bool ufu_MoveFile(std::u16string_view sFrom, std::u16string_view sTo, std::int32_t iFlags) {
    const std::u16string sLongFrom = LongPathPrefix(sFrom);
    const std::u16string sLongTo = LongPathPrefix(sTo);
    if (WindowsVersionClass() < kClassNt4) {
        ufu_RmFile(sTo);
        return MoveFileW(WideOf(sLongFrom), WideOf(sLongTo)) != 0;
    }
    return MoveFileExW(WideOf(sLongFrom), WideOf(sLongTo), static_cast<DWORD>(iFlags)) != 0;
}

std::u16string ufu_GetCurDir() {
    return PathFrom([](DWORD nSize, wchar_t* buffer) { return GetCurrentDirectoryW(nSize, buffer); });
}

bool ufu_SetCurDir(std::u16string_view sPath) {
    return SetCurrentDirectoryW(WideOf(LongPathPrefix(sPath))) != 0;
}

std::u16string ufu_GetTempPath() {
    return PathFrom([](DWORD nSize, wchar_t* buffer) { return GetTempPathW(nSize, buffer); });
}

std::int32_t ufu_GetFileAttr(std::u16string_view sPath) {
    return static_cast<std::int32_t>(GetFileAttributesW(WideOf(LongPathPrefix(sPath))));
}

bool ufu_SetFileAttr(std::u16string_view sPath, std::int32_t iAttrs) {
    return SetAttributes(LongPathPrefix(sPath), static_cast<DWORD>(iAttrs));
}

bool ufu_FileHasAttribute(std::u16string_view sPath, std::int32_t iAttr) {
    return (ufu_GetFileAttr(sPath) & iAttr) > 0;
}

std::u16string ufu_UniAppPath() {
    std::u16string sFolder = ufu_FilePath(
        PathFrom([](DWORD nSize, wchar_t* buffer) { return GetModuleFileNameW(nullptr, buffer, nSize); }), false);
    if (!sFolder.empty()) return sFolder;
    return ufu_FilePath(PathFrom([](DWORD nSize, wchar_t* buffer) {
                            return QueryFullProcessImageNameW(GetCurrentProcess(), 0, buffer, &nSize) ? nSize : 0;
                        }),
                        false);
}

std::u16string ufu_UniCommandLine() {
    std::u16string sLine = TextOfWide(GetCommandLineW());
    if (!IsWin2000OrLater()) return sLine;
    return ArgumentsOfCommandLine(std::u16string_view(sLine).substr(0, kPathBuffer));
}

} // namespace orvanta
