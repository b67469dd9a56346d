#include "tests/files/FolderFixture.h"

#include "plumbing/WideText.h"

#include <stdexcept>

namespace orvanta::testing {

namespace {

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

std::u16string Long(const std::u16string& sPath) {
    return u"\\\\?\\" + sPath;
}

// Also read-only entries, which would stay behind otherwise.
void Clear(const std::u16string& sFolder) {
    WIN32_FIND_DATAW record;
    const HANDLE hFind = FindFirstFileW(WideOf(Long(sFolder + u"\\*")), &record);
    if (hFind == INVALID_HANDLE_VALUE) return;
    do {
        const std::u16string sName = TextOfWide(record.cFileName);
        if (sName == u"." || sName == u"..") continue;
        const std::u16string sEntry = sFolder + u"\\" + sName;
        SetFileAttributesW(WideOf(Long(sEntry)), FILE_ATTRIBUTE_NORMAL);
        if (record.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) {
            Clear(sEntry);
            RemoveDirectoryW(WideOf(Long(sEntry)));
        } else {
            DeleteFileW(WideOf(Long(sEntry)));
        }
    } while (FindNextFileW(hFind, &record));
    FindClose(hFind);
}

HANDLE Open(const std::u16string& sPath, DWORD lAccess, DWORD lShare, DWORD lDisposition) {
    const HANDLE hFile =
        CreateFileW(WideOf(Long(sPath)), lAccess, lShare, nullptr, lDisposition, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (hFile == INVALID_HANDLE_VALUE) throw std::runtime_error("cannot open a file of a test");
    return hFile;
}

} // namespace

LockedFile::LockedFile(const std::u16string& sPath, DWORD lShare)
    : m_hFile(Open(sPath, GENERIC_READ, lShare, OPEN_EXISTING)) {}

LockedFile::~LockedFile() {
    CloseHandle(m_hFile);
}

FolderFixture::~FolderFixture() {
    Clear(m_folder.Path());
}

std::u16string FolderFixture::Path(std::u16string_view sName) const {
    return sName.empty() ? m_folder.Path() : m_folder / sName;
}

std::u16string FolderFixture::Folder(std::u16string_view sName) const {
    if (!CreateDirectoryW(WideOf(Long(Path(sName))), nullptr)) throw std::runtime_error("cannot make a folder");
    return Path(sName);
}

std::u16string FolderFixture::File(std::u16string_view sName, std::string_view sBytes) const {
    const HANDLE hFile = Open(Path(sName), GENERIC_WRITE, 0, CREATE_ALWAYS);
    DWORD nWritten = 0;
    WriteFile(hFile, sBytes.data(), static_cast<DWORD>(sBytes.size()), &nWritten, nullptr);
    CloseHandle(hFile);
    if (nWritten != sBytes.size()) throw std::runtime_error("cannot write a file");
    return Path(sName);
}

bool FolderFixture::HasFile(std::u16string_view sName) const {
    const DWORD lAttributes = AttributesOf(sName);
    return lAttributes != INVALID_FILE_ATTRIBUTES && !(lAttributes & FILE_ATTRIBUTE_DIRECTORY);
}

bool FolderFixture::HasFolder(std::u16string_view sName) const {
    const DWORD lAttributes = AttributesOf(sName);
    return lAttributes != INVALID_FILE_ATTRIBUTES && (lAttributes & FILE_ATTRIBUTE_DIRECTORY);
}

std::string FolderFixture::BytesOf(std::u16string_view sName) const {
    const HANDLE hFile = Open(Path(sName), GENERIC_READ, kShareAll, OPEN_EXISTING);
    std::string sBytes(GetFileSize(hFile, nullptr), '\0');
    DWORD nRead = 0;
    ReadFile(hFile, sBytes.data(), static_cast<DWORD>(sBytes.size()), &nRead, nullptr);
    CloseHandle(hFile);
    sBytes.resize(nRead);
    return sBytes;
}

void FolderFixture::SetAttributes(std::u16string_view sName, DWORD lAttributes) const {
    if (!SetFileAttributesW(WideOf(Long(Path(sName))), lAttributes)) throw std::runtime_error("cannot set attributes");
}

DWORD FolderFixture::AttributesOf(std::u16string_view sName) const {
    return GetFileAttributesW(WideOf(Long(Path(sName))));
}

std::u16string FolderFixture::DeepFolder(std::u16string_view sName, int nLevels) const {
    std::u16string sDeep(sName);
    Folder(sDeep);
    for (int n = 1; n < nLevels; ++n)
        Folder(sDeep.append(u"\\").append(sName));
    return sDeep;
}

} // namespace orvanta::testing
