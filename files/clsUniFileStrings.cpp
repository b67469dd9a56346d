// clsUniFile: marks and length-prefixed strings.
#include "files/clsUniFile.h"

#include "files/PrefixedString.h"
#include "files/TextFileForm.h"
#include "plumbing/SystemAnsiCodePage.h"

#include <algorithm>

namespace orvanta {

bool clsUniFile::WriteText(std::string_view sBytes) {
    return WriteBytes({reinterpret_cast<const std::uint8_t*>(sBytes.data()), sBytes.size()});
}

bool clsUniFile::WriteBOM(FileEncoding iFileEnc) {
    return iFileEnc == feAnsi || WriteText(MarkOf(iFileEnc));
}

FileEncoding clsUniFile::ReadBOM() {
    std::uint8_t b = 0;
    if (!ReadByte(b)) return feAnsi;
    const FileEncoding iFileEnc = EncodingOfFirstByte(b);
    if (iFileEnc == feAnsi) {
        SetFilePos(0, 0);
        return feAnsi;
    }
    for (std::size_t n = 1; n < MarkOf(iFileEnc).size(); ++n)
        ReadByte(b);
    return iFileEnc;
}

bool clsUniFile::WriteNumCharsAndString(std::u16string_view s, FileEncoding iFileEnc) {
    if (!IsFileEncoding(iFileEnc)) return false;
    const std::string sBytes =
        BytesOfPrefixedString(iFileEnc, s, SystemAnsiCodePage::Instance(), SystemAnsiCodePage::Western());
    WriteLong(static_cast<std::int32_t>(sBytes.size()));
    return WriteText(sBytes);
}

bool clsUniFile::ReadNumCharsAndString(std::u16string& sRet, FileEncoding iFileEnc) {
    sRet.clear();
    std::int32_t lCount = 0;
    if (!ReadLong(lCount) || lCount < 1 || !IsFileEncoding(iFileEnc)) return false;
    // The count of a damaged file may be anything. One that runs past the end is cut to what runs past it as well, so
    // that the read fails in the same way without gigabytes of memory.
    const std::int64_t lMost = std::max<std::int64_t>(LOF() - GetFilePos(), kCacheSize) + 1;
    const auto nAsked = static_cast<std::size_t>(std::min<std::int64_t>(lCount, lMost));
    std::string sBytes(nAsked, '\0');
    if (!ReadBytes({reinterpret_cast<std::uint8_t*>(sBytes.data()), nAsked}) || lMost < lCount) return false;
    sRet = TextOfPrefixedString(iFileEnc, sBytes, SystemAnsiCodePage::Instance(), SystemAnsiCodePage::Western());
    return true;
}

} // namespace orvanta
