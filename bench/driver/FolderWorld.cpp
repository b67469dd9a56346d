// The driver's world in a native build.
#include "bench/driver/DriverWorld.h"

#include "base/Text.h"
#include "base/Windows1252.h"
#include "tests/support/CachedFileRule.h"
#include "tests/support/Unicode.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <memory>
#include <optional>
#include <system_error>

namespace orvanta::driver {

namespace {

namespace fs = std::filesystem;

// An open file of the system. Nothing between it and the memory: files are read and written in one go.
class OpenFile {
public:
    OpenFile(const fs::path& path, int iFlags) : m_iFile(::open(path.c_str(), iFlags | O_CLOEXEC, 0666)) {}
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    ~OpenFile() {
        if (IsOpen()) ::close(m_iFile);
    }

    bool IsOpen() const { return m_iFile >= 0; }
    bool Read(char* bytes, std::size_t nCount) const {
        return All(nCount, [&](std::size_t n) { return ::read(m_iFile, bytes + n, nCount - n); });
    }
    bool Write(std::string_view sBytes) const {
        return All(sBytes.size(),
                   [&](std::size_t n) { return ::write(m_iFile, sBytes.data() + n, sBytes.size() - n); });
    }
    bool EndAt(std::size_t nSize) const { return ::ftruncate(m_iFile, static_cast<off_t>(nSize)) == 0; }

private:
    // Until nCount bytes are through; step gets the count so far and says how many came.
    template<typename Step>
    static bool All(std::size_t nCount, Step&& step) {
        for (std::size_t n = 0; n < nCount;) {
            const ssize_t nCame = step(n);
            if (nCame <= 0) return false;
            n += static_cast<std::size_t>(nCame);
        }
        return true;
    }

    int m_iFile;
};

// The entry with this name, upper and lower case alike; the exact one goes before others.
std::optional<fs::path> EntryOf(const fs::path& folder, std::u16string_view sName) {
    const fs::path exact = folder / testing::ToUtf8(sName);
    std::error_code error;
    if (fs::exists(exact, error)) return exact;
    const std::u16string sFolded = FoldCase(sName);
    for (fs::directory_iterator it(folder, error), end; !error && it != end; it.increment(error)) {
        if (FoldCase(testing::FromUtf8(it->path().filename().native())) == sFolded) return it->path();
    }
    return std::nullopt;
}

class FolderWorld final : public DriverWorld {
public:
    FolderWorld(fs::path root, std::u16string_view sDrive) : m_root(std::move(root)), m_sDrive(FoldCase(sDrive)) {}

    bool st_FileExist(std::u16string_view sPathFileName) override {
        const std::optional<fs::path> path = Locate(sPathFileName, false);
        std::error_code error;
        return path && fs::is_regular_file(*path, error);
    }

    bool st_TextFileToString(std::u16string_view sPathFileName, std::u16string& sText, bool) override {
        sText.clear();
        const std::optional<fs::path> path = Locate(sPathFileName, false);
        if (!path || !Permits(*path, S_IRUSR)) return false;
        const OpenFile file(*path, O_RDONLY);
        if (!file.IsOpen()) return false;
        const std::size_t nSize = fs::file_size(*path);
        const auto bytes = std::make_unique_for_overwrite<char[]>(nSize);
        if (!file.Read(bytes.get(), nSize)) return false;
        std::optional<std::u16string> sRead = testing::TextOfFileBytes({bytes.get(), nSize}, m_codePage);
        if (!sRead) return false;
        sText = *std::move(sRead);
        return true;
    }

    bool st_StringToTextFile(std::u16string_view sPathFileName, std::u16string_view sText, FileEncoding iEncoding,
                             bool) override {
        const std::optional<fs::path> path = Locate(sPathFileName, true);
        std::error_code error;
        if (!path || (fs::exists(*path, error) && !Permits(*path, S_IWUSR))) return false;
        const std::string sBody = BodyOfText(iEncoding, sText, m_codePage);
        const OpenFile file(*path, O_WRONLY | O_CREAT);
        if (!file.IsOpen()) return false;
        // Cut to length behind the write: the system keeps the memory that holds the file, where emptying it first
        // would give that back and take it anew.
        const std::string_view sMark = MarkOf(iEncoding);
        return file.Write(sMark) && file.Write(sBody) && file.EndAt(sMark.size() + sBody.size());
    }

private:
    // The mode bits decide, for root as well: that is what a read-only file means to the user of a Windows program.
    static bool Permits(const fs::path& path, mode_t bit) {
        struct stat info {};
        return ::stat(path.c_str(), &info) == 0 && S_ISREG(info.st_mode) && (info.st_mode & bit) != 0;
    }

    // As with an extended-length path nothing is tidied: dot segments, empty segments and forward slashes name nothing.
    std::optional<fs::path> Locate(std::u16string_view sPathFileName, bool bMayBeNew) const {
        if (sPathFileName.size() <= m_sDrive.size() || FoldCase(sPathFileName.substr(0, m_sDrive.size())) != m_sDrive ||
            sPathFileName[m_sDrive.size()] != u'\\') {
            return std::nullopt;
        }
        fs::path path = m_root;
        const std::vector<std::u16string_view> names = Split(sPathFileName.substr(m_sDrive.size() + 1), u"\\");
        for (std::size_t n = 0; n < names.size(); ++n) {
            const std::u16string_view sName = names[n];
            if (sName.empty() || sName == u"." || sName == u".." || sName.find(u'/') != sName.npos) return std::nullopt;
            const std::optional<fs::path> entry = EntryOf(path, sName);
            if (!entry && !(bMayBeNew && n + 1 == names.size())) return std::nullopt;
            path = entry ? *entry : path / testing::ToUtf8(sName);
        }
        return names.empty() ? std::nullopt : std::optional<fs::path>(path);
    }

    fs::path m_root;
    std::u16string m_sDrive;
    Windows1252 m_codePage;
};

} // namespace

std::unique_ptr<DriverWorld> MakeDriverWorld(const std::string& sRoot, std::u16string_view sDrive) {
    return std::make_unique<FolderWorld>(sRoot, sDrive);
}

} // namespace orvanta::driver
