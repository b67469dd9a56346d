#pragma once

#include "files/clsUniFile.h"
#include "tests/files/CountedFileCalls.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace orvanta::testing {

constexpr std::uint32_t kReadWrite = GENERIC_READ | GENERIC_WRITE;

// Byte n of the files that the tests read: no two neighbouring 256-byte stretches are alike.
inline std::uint8_t PatternAt(std::size_t n) {
    return static_cast<std::uint8_t>(n * 7 + n / 256);
}

inline std::string Pattern(std::size_t nSize) {
    std::string s(nSize, '\0');
    for (std::size_t n = 0; n < nSize; ++n)
        s[n] = static_cast<char>(PatternAt(n));
    return s;
}

class UniFileFixture : public ::testing::Test {
protected:
    std::u16string PatternFile(std::size_t nSize) { return folder.Write(u"pattern.bin", Pattern(nSize)); }

    // Opens an existing file for both directions.
    static bool OpenBoth(clsUniFile& file, const std::u16string& sPath) {
        return file.OpenFileGeneric(sPath, kReadWrite, OPEN_EXISTING, 0, FILE_ATTRIBUTE_NORMAL);
    }

    static std::string Take(clsUniFile& file, std::size_t nCount) {
        std::string s;
        std::uint8_t b = 0;
        while (s.size() < nCount && file.ReadByte(b))
            s.push_back(static_cast<char>(b));
        return s;
    }

    static bool Put(clsUniFile& file, std::string_view s) {
        return file.WriteAny(s.data(), static_cast<std::int32_t>(s.size()));
    }

    TempFolder folder;
    CountedFileCalls platform;
};

} // namespace orvanta::testing
