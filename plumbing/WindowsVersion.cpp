#include "plumbing/WindowsVersion.h"

namespace orvanta {

namespace {

std::int32_t ClassOfWindows(std::uint32_t lMinor) {
    if (lMinor == 0) return 3;
    if (lMinor == 10) return 4;
    return lMinor > 10 ? 5 : 0;
}

std::int32_t ClassOfNt(std::uint32_t lMajor, std::uint32_t lMinor) {
    if (lMajor == 3) return 6;
    if (lMajor == 4) return kClassNt4;
    if (lMajor > 5) return 11;
    if (lMajor == 5 && lMinor <= 2) return kClassWindows2000 + static_cast<std::int32_t>(lMinor);
    return 0;
}

} // namespace

std::int32_t VersionClassOf(std::uint32_t lPlatform, std::uint32_t lMajor, std::uint32_t lMinor) {
    switch (lPlatform) {
    case 0: return 1;
    case 1: return ClassOfWindows(lMinor);
    case 2: return ClassOfNt(lMajor, lMinor);
    case 3: return 2;
    default: return 0;
    }
}

} // namespace orvanta
