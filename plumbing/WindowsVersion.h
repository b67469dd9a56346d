#pragma once

#include <cstdint>

namespace orvanta {

// What the platform says about itself. The class numbers grow with the system's age:
//   0  unknown                  4  Windows 98      8  Windows 2000
//   1  Win32s                   5  Windows Me      9  Windows XP
//   2  CE                       6  NT 3           10  Windows 2003
//   3  Windows 95               7  NT 4           11  Windows Vista and later
struct WindowsVersion {
    std::int32_t lClass = 0;
    std::uint32_t lMajor = 0;
    std::uint32_t lMinor = 0;
    std::uint32_t lBuild = 0;
};

inline constexpr std::int32_t kClassNt4 = 7;
inline constexpr std::int32_t kClassWindows2000 = 8;

// The class of a platform id (0 Win32s, 1 Windows, 2 NT, 3 CE) with its version. Platform 1 with a minor version of 1
// to 9 and platform 2 with 5.3 and up stay unknown.
std::int32_t VersionClassOf(std::uint32_t lPlatform, std::uint32_t lMajor, std::uint32_t lMinor);

// Asks the platform. All four numbers are 0 when it does not answer.
WindowsVersion WindowsVersionInfo();

// The class, asked once for the process.
std::int32_t WindowsVersionClass();

bool IsWin2000OrLater();

} // namespace orvanta
