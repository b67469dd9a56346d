#include "plumbing/SystemAnsiCodePage.h"

#include "base/AsciiBlocks.h"
#include "plumbing/WideText.h"

#include <windows.h>

#include <algorithm>
#include <cstddef>
#include <limits>
#include <stdexcept>

namespace orvanta {

namespace {

constexpr std::size_t kLongest = std::numeric_limits<int>::max();

int PlatformLength(std::size_t n) {
    if (n > kLongest) throw std::length_error("more text than the platform converts in one step");
    return static_cast<int>(n);
}

} // namespace

const SystemAnsiCodePage& SystemAnsiCodePage::Instance() {
    static const SystemAnsiCodePage codePage(CP_ACP);
    return codePage;
}

const SystemAnsiCodePage& SystemAnsiCodePage::Western() {
    static const SystemAnsiCodePage codePage(1252);
    return codePage;
}

SystemAnsiCodePage::SystemAnsiCodePage(unsigned nCodePage) : m_nCodePage(nCodePage) {
    CPINFO info{};
    if (GetCPInfo(nCodePage, &info)) m_nMaxBytes = info.MaxCharSize;
    for (unsigned n = 0; n < 256; ++n) {
        const char b = static_cast<char>(n);
        wchar_t units[4]{};
        const int nCount = MultiByteToWideChar(nCodePage, 0, &b, 1, units, 4);
        m_singleBytes.unit[n] = static_cast<char16_t>(units[0]);
        m_singleBytes.count[n] = nCount > 0 ? 1 : 0;
        m_singleBytes.bEveryByteCounts &= nCount > 0;
        if (n < 128) m_bPlainAscii &= units[0] == static_cast<wchar_t>(n);
    }
}

// Both directions take the plain beginning of a text, most often all of it, without the platform. The platform gets the
// rest in one call. No code page gives more code units than bytes.
std::u16string SystemAnsiCodePage::BytesToText(std::string_view sBytes) const {
    std::u16string sOut(sBytes.size(), u'\0');
    const std::size_t nPlain = m_bPlainAscii ? WidenAsciiBlocks(sBytes.data(), sBytes.size(), sOut.data()) : 0;
    const int nRest = PlatformLength(sBytes.size() - nPlain);
    if (nRest == 0) return sOut;
    const int nUnits =
        MultiByteToWideChar(m_nCodePage, 0, sBytes.data() + nPlain, nRest, WideBuffer(sOut.data() + nPlain), nRest);
    sOut.resize(nPlain + static_cast<std::size_t>(nUnits));
    return sOut;
}

std::string SystemAnsiCodePage::TextToBytes(std::u16string_view sText) const {
    std::string sOut(sText.size(), '\0');
    const std::size_t nPlain = m_bPlainAscii ? NarrowAsciiBlocks(sText.data(), sText.size(), sOut.data()) : 0;
    const std::u16string_view sRest = sText.substr(nPlain);
    const int nRest = PlatformLength(sRest.size());
    if (nRest == 0) return sOut;
    const int nRoom = PlatformLength(std::min(sRest.size() * m_nMaxBytes, kLongest));
    sOut.resize(nPlain + static_cast<std::size_t>(nRoom));
    const int nBytes =
        WideCharToMultiByte(m_nCodePage, 0, WideData(sRest), nRest, sOut.data() + nPlain, nRoom, nullptr, nullptr);
    sOut.resize(nPlain + static_cast<std::size_t>(nBytes));
    return sOut;
}

} // namespace orvanta
