#pragma once

#include "plumbing/WindowsVersion.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace orvanta {

// What every path goes through before it reaches the file system: "\\?\" in front lifts the limit of 260 characters.
// Older systems do not know the prefix. A network path ("\\server\...") and a path that has the prefix already are left
// alone; relative paths get it too.
std::u16string LongPathPrefix(std::u16string_view sPath, std::int32_t lVersionClass);
inline std::u16string LongPathPrefix(std::u16string_view sPath) {
    return LongPathPrefix(sPath, WindowsVersionClass());
}

} // namespace orvanta
