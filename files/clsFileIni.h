#pragma once

#include "files/IniRows.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace orvanta {

// A settings file of sections and keys, read and written by the platform's profile calls. Those calls keep Unicode text
// only in a file that is UTF-16 with a mark already, so a file that could not hold a value is turned into one before
// the value is written.
//
//   clsFileIni ini;
//   ini.IniFile(u"C:\\a\\settings.ini"); // an absolute path
//   ini.WriteBool(u"Window", u"Maximized", true);
//
// Every member except IniFile raises "I need a file!" while no file is set. What the profile calls themselves report is
// not looked at: an unreadable file reads as if it were empty, an unwritable one stays as it is.
class clsFileIni {
public:
    clsFileIni();

    void IniFile(std::u16string_view s) { m_sIniFile = s; }
    const std::u16string& IniFile() const { return m_sIniFile; }

    // sDefault for a missing key and for one with an empty value. A value has at most 10,239 characters (1,023 before
    // Windows 2000); a longer one is cut.
    std::u16string ReadString(std::u16string_view sAppName, std::u16string_view sKeyName,
                              std::u16string_view sDefault) const;

    // Turns the file into UTF-16 first when the section's name or the value needs it; the key's name is not looked at.
    // The conversion raises "Error reading file" and "Error writing file".
    void WriteString(std::u16string_view sAppName, std::u16string_view sKeyName, std::u16string_view sKeyVal) const;

    // Written as "1" and "0"; any text other than "1" reads as false.
    bool ReadBool(std::u16string_view sAppName, std::u16string_view sKeyName, bool bDefault) const;
    void WriteBool(std::u16string_view sAppName, std::u16string_view sKeyName, bool bKeyVal) const;

    // The rows of a section, and the names of all sections. A list that is not empty ends in one empty row. A section
    // or list of more than 640,000 characters (32,000 before Windows 2000) is cut.
    void GetSectionRows(std::u16string_view sSecName, IniRows& vRows) const;
    void GetSectionNames(IniRows& vRows) const;

    std::u16string GetSectionRowKey(const IniRows& vRows, std::int32_t idx) const;
    std::u16string GetSectionRowValue(const IniRows& vRows, std::int32_t idx) const;

private:
    void RequireFile() const;
    void MakeFileUnicode() const;

    std::u16string m_sIniFile;
    bool m_bUnicodeOk;
    std::int32_t m_lStringBuffer;  // characters for one value
    std::int32_t m_lSectionBuffer; // characters for a section or the list of sections
};

} // namespace orvanta
