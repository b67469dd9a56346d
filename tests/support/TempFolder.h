#pragma once

#include <string>
#include <string_view>

namespace orvanta::testing {

// A new empty folder in the platform's temporary folder, removed with all its content at the end. Windows builds only.
class TempFolder {
public:
    TempFolder();
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    // Absolute, without a final backslash.
    const std::u16string& Path() const { return m_sPath; }
    // The path of an entry of that name.
    std::u16string operator/(std::u16string_view sName) const;

    // Whole files, past the code under test.
    std::u16string Write(std::u16string_view sName, std::string_view sBytes) const; // gives the path
    static std::string Read(const std::u16string& sPath);
    static bool Exists(const std::u16string& sPath);

private:
    std::u16string m_sPath;
};

} // namespace orvanta::testing
