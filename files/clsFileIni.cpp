#include "files/clsFileIni.h"

#include "base/Failure.h"
#include "base/FileEncoding.h"
#include "base/Text.h"
#include "files/WholeFiles.h"
#include "files/modUniFileUtils.h"
#include "plumbing/LongPath.h"
#include "plumbing/PlatformText.h"
#include "plumbing/WideText.h"
#include "plumbing/WindowsVersion.h"

#include <windows.h>

#include <cstddef>

namespace orvanta {

namespace {

// The platform lists rows with a NUL behind each, so the pieces end in an empty one.
IniRows RowsOf(std::u16string_view sList) {
    const auto vPieces = Split(sList, std::u16string_view(u"\0", 1));
    return {vPieces.begin(), vPieces.end()};
}

} // namespace

clsFileIni::clsFileIni()
    : m_bUnicodeOk(IsWin2000OrLater()), m_lStringBuffer(m_bUnicodeOk ? 10240 : 1024),
      m_lSectionBuffer(m_bUnicodeOk ? 640000 : 32000) {}

std::u16string clsFileIni::ReadString(std::u16string_view sAppName, std::u16string_view sKeyName,
                                      std::u16string_view sDefault) const {
    RequireFile();
    std::u16string sValue(static_cast<std::size_t>(m_lStringBuffer), u'\0');
    const DWORD nCount = GetPrivateProfileStringW(WideOf(std::u16string(sAppName)), WideOf(std::u16string(sKeyName)),
                                                  L"", WideBuffer(sValue), static_cast<DWORD>(m_lStringBuffer),
                                                  WideOf(LongPathPrefix(m_sIniFile)));
    if (nCount == 0) return std::u16string(sDefault);
    sValue.resize(nCount);
    return sValue;
}

void clsFileIni::WriteString(std::u16string_view sAppName, std::u16string_view sKeyName,
                             std::u16string_view sKeyVal) const {
    RequireFile();
    const std::u16string sSection(sAppName);
    const std::u16string sValue(sKeyVal);
    // The key's name stays out of the question: it alone never converts a file.
    if (!CanUseAnsiPath(sSection + sValue) && m_bUnicodeOk) MakeFileUnicode();
    WritePrivateProfileStringW(WideOf(sSection), WideOf(std::u16string(sKeyName)), WideOf(sValue),
                               WideOf(LongPathPrefix(m_sIniFile)));
}

bool clsFileIni::ReadBool(std::u16string_view sAppName, std::u16string_view sKeyName, bool bDefault) const {
    return ReadString(sAppName, sKeyName, bDefault ? u"1" : u"0") == u"1";
}

void clsFileIni::WriteBool(std::u16string_view sAppName, std::u16string_view sKeyName, bool bKeyVal) const {
    WriteString(sAppName, sKeyName, bKeyVal ? u"1" : u"0");
}

void clsFileIni::GetSectionRows(std::u16string_view sSecName, IniRows& vRows) const {
    RequireFile();
    std::u16string sRows;
    if (!sSecName.empty()) {
        sRows.assign(static_cast<std::size_t>(m_lSectionBuffer), u' ');
        sRows.resize(GetPrivateProfileSectionW(WideOf(std::u16string(sSecName)), WideBuffer(sRows),
                                               static_cast<DWORD>(m_lSectionBuffer),
                                               WideOf(LongPathPrefix(m_sIniFile))));
    }
    vRows = RowsOf(sRows);
}

void clsFileIni::GetSectionNames(IniRows& vRows) const {
    RequireFile();
    std::u16string sNames(static_cast<std::size_t>(m_lSectionBuffer), u' ');
    sNames.resize(GetPrivateProfileSectionNamesW(WideBuffer(sNames), static_cast<DWORD>(m_lSectionBuffer),
                                                 WideOf(LongPathPrefix(m_sIniFile))));
    vRows = RowsOf(sNames);
}

std::u16string clsFileIni::GetSectionRowKey(const IniRows& vRows, std::int32_t idx) const {
    RequireFile();
    return IniRowKey(vRows, idx);
}

std::u16string clsFileIni::GetSectionRowValue(const IniRows& vRows, std::int32_t idx) const {
    RequireFile();
    return IniRowValue(vRows, idx);
}

void clsFileIni::RequireFile() const {
    if (m_sIniFile.empty()) throw OwnFailure(u"clsFileIni", u"I need a file!");
}

// A file that bears a mark already stays as it is.
void clsFileIni::MakeFileUnicode() const {
    if (!ufu_FileExist(m_sIniFile)) {
        ufu_StringToTextFile(m_sIniFile, u"\r\n", feUnicode, true);
    } else if (ufu_GetFileEncoding(m_sIniFile) == feAnsi) {
        std::u16string sText;
        ufu_TextFileToString(m_sIniFile, sText, true);
        ufu_StringToTextFile(m_sIniFile, sText, feUnicode, true);
    }
}

} // namespace orvanta
