#include "grid/SystemGridLocale.h"

#include "plumbing/WideText.h"

#include <windows.h>

#include <cstddef>

namespace orvanta {

char16_t SystemGridLocale::DecimalSeparator() const {
    wchar_t sSeparator[8]{};
    if (GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, sSeparator, 8) == 0) return u'.';
    return static_cast<char16_t>(sSeparator[0]);
}

void SystemGridLocale::AppendSortKey(std::u16string_view s, std::string& sKey) const {
    if (s.empty()) return; // no bytes stand before all others
    constexpr DWORD kFlags = LCMAP_SORTKEY | NORM_IGNORECASE;
    const int iLength = static_cast<int>(s.size());
    const std::size_t nBefore = sKey.size();
    const auto map = [&](int iRoom) {
        sKey.resize(nBefore + static_cast<std::size_t>(iRoom));
        // The call takes bytes here, though it says characters.
        return LCMapStringW(LOCALE_USER_DEFAULT, kFlags, WideData(s), iLength,
                            reinterpret_cast<wchar_t*>(sKey.data() + nBefore), iRoom);
    };
    int iBytes = map(iLength * 4 + 16);
    if (iBytes == 0) {
        const int iNeeded = LCMapStringW(LOCALE_USER_DEFAULT, kFlags, WideData(s), iLength, nullptr, 0);
        iBytes = iNeeded > 0 ? map(iNeeded) : 0;
    }
    sKey.resize(nBefore + static_cast<std::size_t>(iBytes));
}

} // namespace orvanta
