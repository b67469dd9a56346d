#pragma once

#include <windows.h>

namespace orvanta {

// The platform's file calls that clsUniFile makes, in one table. Tests put counting or failing ones in their place; the
// program never changes it.
struct FileCalls {
    decltype(&::CreateFileW) CreateFileW = &::CreateFileW;
    decltype(&::ReadFile) ReadFile = &::ReadFile;
    decltype(&::WriteFile) WriteFile = &::WriteFile;
    decltype(&::SetFilePointer) SetFilePointer = &::SetFilePointer;
    decltype(&::GetFileSize) GetFileSize = &::GetFileSize;
    decltype(&::SetEndOfFile) SetEndOfFile = &::SetEndOfFile;
    decltype(&::FlushFileBuffers) FlushFileBuffers = &::FlushFileBuffers;
    decltype(&::CloseHandle) CloseHandle = &::CloseHandle;
};

// The table in use, one for the process.
inline FileCalls g_fileCalls;

} // namespace orvanta
