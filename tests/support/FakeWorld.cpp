#include "tests/support/FakeWorld.h"

#include "base/Failure.h"
#include "files/TextFileForm.h"
#include "tests/support/CachedFileRule.h"

#include <optional>
#include <utility>

namespace orvanta::testing {

namespace {

Failure DeviceGone() {
    return OwnFailure(u"FakeWorld", u"The device is gone");
}

} // namespace

bool FakeWorld::st_FileExist(std::u16string_view sPathFileName) {
    return m_files.contains(std::u16string(sPathFileName));
}

bool FakeWorld::st_TextFileToString(std::u16string_view sPathFileName, std::u16string& sText, bool bRaiseError) {
    readRaises.push_back(bRaiseError);
    sText.clear();
    const std::u16string sPath(sPathFileName);
    if (m_raisesOnReading.contains(sPath)) throw DeviceGone();
    const auto file = m_files.find(sPath);
    if (file == m_files.end() || m_unreadable.contains(sPath)) return false;
    std::optional<std::u16string> sRead = TextOfFileBytes(file->second, m_codePage);
    if (!sRead) return false;
    sText = *std::move(sRead);
    return true;
}

bool FakeWorld::st_StringToTextFile(std::u16string_view sPathFileName, std::u16string_view sText,
                                    FileEncoding iEncoding, bool bRaiseError) {
    std::u16string sPath(sPathFileName);
    if (m_raisesOnSaving.contains(sPath)) throw DeviceGone();
    const bool bDone = !m_readOnly.contains(sPath) && !m_folders.contains(sPath);
    writes.push_back({sPath, iEncoding, bRaiseError, bDone});
    if (!bDone) return false;
    std::string sBytes(MarkOf(iEncoding));
    m_files[std::move(sPath)] = sBytes.append(BodyOfText(iEncoding, sText, m_codePage));
    return true;
}

bool FakeWorld::Selected(int iKind) {
    asked.push_back(iKind);
    return kinds.at(static_cast<std::size_t>(iKind));
}

} // namespace orvanta::testing
