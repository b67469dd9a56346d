// The driver's world in a native build.
#include "bench/driver/DriverWorld.h"

#include "base/Text.h"
#include "base/Windows1252.h"
#include "tests/support/CachedFileRule.h"
#include "tests/support/Unicode.h"

#include <sys/stat.h>

#include <cstdio>
#include <filesystem>
#include <memory>
#include <optional>
#include <system_error>

namespace orvanta::driver {

namespace {

namespace fs = std::filesystem;

struct CloseStream {
    void operator()(std::FILE* stream) const { std::fclose(stream); }
};
using Stream = std::unique_ptr<std::FILE, CloseStream>;

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
        const Stream stream(std::fopen(path->c_str(), "rb"));
        if (!stream) return false;
        const std::size_t nSize = fs::file_size(*path);
        const auto bytes = std::make_unique_for_overwrite<char[]>(nSize);
        if (std::fread(bytes.get(), 1, nSize, stream.get()) != nSize) return false;
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
        const Stream stream(std::fopen(path->c_str(), "wb"));
        if (!stream) return false;
        const std::string_view sMark = MarkOf(iEncoding);
        return std::fwrite(sMark.data(), 1, sMark.size(), stream.get()) == sMark.size() &&
               std::fwrite(sBody.data(), 1, sBody.size(), stream.get()) == sBody.size() &&
               std::fflush(stream.get()) == 0;
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
