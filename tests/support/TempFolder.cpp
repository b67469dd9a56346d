#include "tests/support/TempFolder.h"

#include <windows.h>

#include <atomic>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace orvanta::testing {

TempFolder::TempFolder() {
    static std::atomic<int> nLast = 0;
    const std::string sName = "orvanta" + std::to_string(GetCurrentProcessId()) + "_" + std::to_string(++nLast);
    const std::filesystem::path folder = std::filesystem::temp_directory_path() / sName;
    std::filesystem::remove_all(folder);
    if (!std::filesystem::create_directories(folder)) throw std::runtime_error("no temporary folder");
    m_sPath = folder.u16string();
}

TempFolder::~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(m_sPath, ignored);
}

std::u16string TempFolder::operator/(std::u16string_view sName) const {
    std::u16string s = m_sPath + u"\\";
    return s.append(sName);
}

std::u16string TempFolder::Write(std::u16string_view sName, std::string_view sBytes) const {
    const std::u16string sPath = *this / sName;
    std::ofstream file(std::filesystem::path(sPath), std::ios::binary);
    file.write(sBytes.data(), static_cast<std::streamsize>(sBytes.size()));
    if (!file) throw std::runtime_error("cannot write a file for a test");
    return sPath;
}

std::string TempFolder::Read(const std::u16string& sPath) {
    std::ifstream file(std::filesystem::path(sPath), std::ios::binary);
    if (!file) throw std::runtime_error("cannot read a file of a test");
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

bool TempFolder::Exists(const std::u16string& sPath) {
    return std::filesystem::exists(sPath);
}

} // namespace orvanta::testing
