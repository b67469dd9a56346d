// The part of WindowsVersion.h that asks the platform.
#include "plumbing/WindowsVersion.h"

#include <windows.h>

namespace orvanta {

WindowsVersion WindowsVersionInfo() {
    OSVERSIONINFOA info{};
    info.dwOSVersionInfoSize = sizeof info;
    if (!GetVersionExA(&info)) return {};
    return {VersionClassOf(info.dwPlatformId, info.dwMajorVersion, info.dwMinorVersion), info.dwMajorVersion,
            info.dwMinorVersion, info.dwBuildNumber};
}

std::int32_t WindowsVersionClass() {
    static const std::int32_t lVersionClass = WindowsVersionInfo().lClass;
    return lVersionClass;
}

bool IsWin2000OrLater() {
    return WindowsVersionClass() >= kClassWindows2000;
}

} // namespace orvanta
