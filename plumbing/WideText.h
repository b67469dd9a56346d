#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// The one place where the system's text meets the platform's wide strings. Both are UTF-16 in the same bytes; only the
// names of their character types differ.
static_assert(sizeof(wchar_t) == sizeof(char16_t), "the platform's wide characters are 16-bit code units");

namespace orvanta {

// What a wide Windows call takes. The pointer lives as long as s stays unchanged.
inline const wchar_t* WideOf(const std::u16string& s) {
    return reinterpret_cast<const wchar_t*>(s.c_str());
}
inline const wchar_t* WideOf(const char16_t* s) {
    return reinterpret_cast<const wchar_t*>(s);
}
// For calls that are told the length: the text need not end in NUL.
inline const wchar_t* WideData(std::u16string_view s) {
    return reinterpret_cast<const wchar_t*>(s.data());
}

// The memory of s, for a call that fills s.size() characters.
inline wchar_t* WideBuffer(std::u16string& s) {
    return reinterpret_cast<wchar_t*>(s.data());
}
inline wchar_t* WideBuffer(char16_t* s) {
    return reinterpret_cast<wchar_t*>(s);
}

// What a wide Windows call hands back, up to the first NUL or of a known length.
inline std::u16string TextOfWide(const wchar_t* s) {
    return reinterpret_cast<const char16_t*>(s);
}
inline std::u16string TextOfWide(const wchar_t* s, std::size_t nLength) {
    return {reinterpret_cast<const char16_t*>(s), nLength};
}

} // namespace orvanta
