#pragma once

#include "tests/support/PatchedImport.h"

namespace orvanta::testing {

// Lets this program believe that it runs on another version of the platform. The version is asked once for the process:
// make one of these before main, and keep it.
template<DWORD lPlatform, DWORD lMajor, DWORD lMinor>
class PretendedVersion {
    static BOOL WINAPI Answer(OSVERSIONINFOA* info) {
        info->dwPlatformId = lPlatform;
        info->dwMajorVersion = lMajor;
        info->dwMinorVersion = lMinor;
        info->dwBuildNumber = 0;
        return TRUE;
    }

    PatchedImport<decltype(GetVersionExA)> m_patch{"GetVersionExA", Answer};
};

} // namespace orvanta::testing
