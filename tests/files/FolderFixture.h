#pragma once

#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <string>
#include <string_view>

namespace orvanta::testing {

// An open handle that shares nothing: as long as it lives nobody else can open, move or remove the file.
class LockedFile {
public:
    explicit LockedFile(const std::u16string& sPath, DWORD lShare = 0);
    ~LockedFile();
    LockedFile(const LockedFile&) = delete;
    LockedFile& operator=(const LockedFile&) = delete;

private:
    HANDLE m_hFile;
};

// A folder of its own for each test, with plain helpers that reach any depth past the code under test. Names are
// relative to the folder; the empty name is the folder itself.
class FolderFixture : public ::testing::Test {
protected:
    ~FolderFixture() override;

    std::u16string Path(std::u16string_view sName = {}) const;
    std::u16string Folder(std::u16string_view sName) const; // makes one level, gives the path
    std::u16string File(std::u16string_view sName, std::string_view sBytes = {}) const; // writes it, gives the path

    bool HasFile(std::u16string_view sName) const;
    bool HasFolder(std::u16string_view sName) const;
    std::string BytesOf(std::u16string_view sName) const;
    void SetAttributes(std::u16string_view sName, DWORD lAttributes) const;
    DWORD AttributesOf(std::u16string_view sName) const; // INVALID_FILE_ATTRIBUTES when absent

    // nLevels folders, each named sName, below one another; gives the name of the last.
    std::u16string DeepFolder(std::u16string_view sName, int nLevels) const;

private:
    TempFolder m_folder;
};

} // namespace orvanta::testing
