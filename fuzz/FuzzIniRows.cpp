// Arbitrary rows: a row with a key is its key, "=" and its value put together again; any other row gives two empty
// texts.
#include "files/IniRows.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::u16string sText(size / 2, u'\0');
    if (!sText.empty()) std::memcpy(sText.data(), data, sText.size() * 2);

    orvanta::IniRows vRows(1);
    for (const char16_t c : sText) {
        if (c == u'\0') {
            vRows.emplace_back();
        } else {
            vRows.back() += c;
        }
    }
    for (std::size_t n = 0; n < vRows.size(); ++n) {
        const std::u16string sKey = orvanta::IniRowKey(vRows, static_cast<std::int32_t>(n));
        const std::u16string sValue = orvanta::IniRowValue(vRows, static_cast<std::int32_t>(n));
        if (sKey.find(u'=') != std::u16string::npos) std::abort();
        if (sKey.empty()) {
            if (!sValue.empty()) std::abort();
            if (vRows[n].find(u'=') != std::u16string::npos && vRows[n].front() != u'=') std::abort();
        } else if (sKey + u'=' + sValue != vRows[n]) {
            std::abort();
        }
    }
    return 0;
}
