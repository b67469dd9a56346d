#include "plumbing/LongPath.h"

namespace orvanta {

std::u16string LongPathPrefix(std::u16string_view sPath, std::int32_t lVersionClass) {
    // The test on two backslashes covers the prefix itself.
    if (lVersionClass < kClassNt4 || sPath.starts_with(u"\\\\")) return std::u16string(sPath);
    std::u16string sLong = u"\\\\?\\";
    return sLong.append(sPath);
}

} // namespace orvanta
