#include "files/WholeFiles.h"

#include "base/Failure.h"
#include "files/TextFileForm.h"
#include "files/clsUniFile.h"
#include "plumbing/SystemAnsiCodePage.h"

#include <array>
#include <cstddef>
#include <limits>
#include <memory>
#include <new>
#include <stdexcept>

namespace orvanta {

namespace {

bool ReadUnits(clsUniFile& file, std::size_t nBytes, std::u16string& sText) {
    sText.resize((nBytes + 1) / 2);
    if (!file.ReadBytes({reinterpret_cast<std::uint8_t*>(sText.data()), nBytes})) {
        sText.clear();
        return false;
    }
    sText.resize(nBytes / 2);
    return true;
}

bool ReadBody(clsUniFile& file, std::size_t nBytes, FileEncoding iEncoding, std::u16string& sText) {
    if (iEncoding == feUnicode) return ReadUnits(file, nBytes, sText);
    const std::unique_ptr<std::uint8_t[]> aBytes(new (std::nothrow) std::uint8_t[nBytes]);
    if (!aBytes || !file.ReadBytes({aBytes.get(), nBytes})) return false;
    sText =
        TextOfBody(iEncoding, {reinterpret_cast<const char*>(aBytes.get()), nBytes}, SystemAnsiCodePage::Instance());
    return true;
}

bool ReadWholeFile(std::u16string_view sNomeFile, std::u16string& sText) {
    const FileEncoding iEncoding = ufu_GetFileEncoding(sNomeFile);
    const std::size_t nMark = MarkOf(iEncoding).size();
    clsUniFile file;
    if (!file.OpenFileRead(sNomeFile, true)) return false;
    std::array<std::uint8_t, 3> aMark{};
    if (nMark > 0 && !file.ReadBytes({aMark.data(), nMark})) return false;
    const std::int64_t lCount = file.LOF() - static_cast<std::int64_t>(nMark);
    if (lCount <= 0) return true;
    if (lCount > std::numeric_limits<std::int32_t>::max()) return false;
    return ReadBody(file, static_cast<std::size_t>(lCount), iEncoding, sText);
}

bool WriteUnits(clsUniFile& file, std::u16string_view sText) {
    return file.WriteBytes({reinterpret_cast<const std::uint8_t*>(sText.data()), sText.size() * 2});
}

bool WriteWholeFile(std::u16string_view vsPathFile, std::u16string_view vsText, FileEncoding iEncoding) {
    if (!IsFileEncoding(iEncoding)) return false;
    // The code units of a text are its bytes already; the other forms are made before the file is emptied.
    std::string sBytes;
    if (iEncoding != feUnicode) sBytes = BodyOfText(iEncoding, vsText, SystemAnsiCodePage::Instance());
    clsUniFile file;
    if (!file.OpenFileWrite(vsPathFile, true)) return false;
    const bool bMarked = file.WriteBOM(iEncoding);
    if (vsText.empty()) return bMarked;
    if (iEncoding == feUnicode) return WriteUnits(file, vsText);
    return file.WriteBytes({reinterpret_cast<const std::uint8_t*>(sBytes.data()), sBytes.size()});
}

// A text that the memory does not take is one that cannot be read or written, nothing worse.
template<typename Step>
bool WithinMemory(Step step) {
    try {
        return step();
    } catch (const std::bad_alloc&) {
        return false;
    } catch (const std::length_error&) {
        return false;
    }
}

} // namespace

FileEncoding ufu_GetFileEncoding(std::u16string_view sFile) {
    clsUniFile file;
    std::uint8_t bFirst = 0;
    if (!file.OpenFileRead(sFile, true) || !file.ReadByte(bFirst)) return feAnsi;
    return EncodingOfFirstByte(bFirst);
}

bool ufu_TextFileToString(std::u16string_view sNomeFile, std::u16string& sRetFile, bool bRaiseError) {
    // The name may be the text's own memory, so it is read first and the result set last.
    std::u16string sText;
    const bool bRead = WithinMemory([&] { return ReadWholeFile(sNomeFile, sText); });
    if (!bRead) sText.clear();
    sRetFile = std::move(sText);
    if (!bRead && bRaiseError) throw OwnFailure(u"ufu_TextFileToString", u"Error reading file");
    return bRead;
}

bool ufu_StringToTextFile(std::u16string_view vsPathFile, std::u16string_view vsText, FileEncoding iEncoding,
                          bool bRaiseError) {
    const bool bWritten = WithinMemory([&] { return WriteWholeFile(vsPathFile, vsText, iEncoding); });
    if (!bWritten && bRaiseError) throw OwnFailure(u"ufu_StringToTextFile", u"Error writing file");
    return bWritten;
}

std::int64_t ufu_FileLen(std::u16string_view sFile) {
    clsUniFile file;
    return file.OpenFileRead(sFile, true) ? file.LOF() : 0;
}

} // namespace orvanta
