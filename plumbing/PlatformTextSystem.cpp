// The part of PlatformText.h that asks the platform.
#include "plumbing/PlatformText.h"

#include "plumbing/WindowsVersion.h"

#include <windows.h>

namespace orvanta {

bool IsWesternCodePage() {
    return GetACP() == 1252;
}

bool CanUseAnsiPath(std::u16string_view s) {
    return CanUseAnsiPath(s, WindowsVersionClass(), IsWesternCodePage());
}

} // namespace orvanta
