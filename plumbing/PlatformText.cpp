#include "plumbing/PlatformText.h"

#include "plumbing/WindowsVersion.h"

#include <algorithm>
#include <cstddef>

namespace orvanta {

bool HasHighBytes(std::u16string_view s) {
    return std::any_of(s.begin(), s.end(), [](char16_t c) { return c > 0xFF; });
}

bool CanUseAnsiPath(std::u16string_view s, std::int32_t lVersionClass, bool bWesternCodePage) {
    return lVersionClass < kClassWindows2000 || (bWesternCodePage && !HasHighBytes(s));
}

ByteVariant StringToByteVariant(std::u16string_view s) {
    ByteVariant bytes;
    bytes.reserve(s.size() * 2);
    for (const char16_t c : s) {
        bytes.push_back(static_cast<std::uint8_t>(c & 0xFF));
        bytes.push_back(static_cast<std::uint8_t>(c >> 8));
    }
    return bytes;
}

std::u16string ByteVariantToString(const ByteVariant& v) {
    std::u16string s(v.size() / 2, u'\0');
    for (std::size_t n = 0; n < s.size(); ++n)
        s[n] = static_cast<char16_t>(v[2 * n] | v[2 * n + 1] << 8);
    return s;
}

} // namespace orvanta
