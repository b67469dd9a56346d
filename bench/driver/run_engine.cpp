// run_engine: one run of the conversion engine from the command line, for measuring and for comparing builds.
#include "bench/driver/DriverArguments.h"
#include "bench/driver/DriverWorld.h"
#include "bench/driver/RunJson.h"

#include "engine/cVbpMigrator.h"
#include "tests/support/RecordedLog.h"
#include "tests/support/Unicode.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {

constexpr const char* kUsage =
    "run_engine convert|upgrade --project 'C:\\Work\\App.vbp' --json OUT\n"
    "           [--root DIR --drive C:]             native build: the folder that stands for the drive\n"
    "           [--files 'A;B' | --files @LISTFILE] full paths of the files to convert; without it all members\n"
    "           [--kinds 0,1,...]                   control kinds to convert, an empty list for none; without it all\n"
    "           [--text-combos] [--combo-images]\n";

// Keeps freed memory in the process: a run over many files frees and takes the same few large blocks for each of them.
void KeepFreedMemory() {
#ifdef __GLIBC__
    constexpr int kKeep = 512 * 1024 * 1024;
    mallopt(M_TRIM_THRESHOLD, kKeep);
    mallopt(M_MMAP_THRESHOLD, kKeep);
#endif
}

int Run(const std::vector<std::string>& arguments) {
    using namespace orvanta;
    KeepFreedMemory();
    std::string sProblem;
    const std::optional<driver::DriverArguments> parsed = driver::ParseArguments(arguments, sProblem);
    if (!parsed) {
        std::fprintf(stderr, "run_engine: %s\n%s", sProblem.c_str(), kUsage);
        return 2;
    }
    const std::unique_ptr<driver::DriverWorld> world = driver::MakeDriverWorld(parsed->sRoot, parsed->sDrive);
    world->kinds = parsed->kinds;
    const cVbpMigrator migrator(*world);
    testing::RecordedLog log;
    bool bResult = false;
    if (parsed->bConvert) {
        Collection<std::u16string> files;
        bool bLibraryReferenced = false;
        if (parsed->files) {
            for (const std::u16string& sFile : *parsed->files)
                files.Add(sFile);
        } else {
            migrator.GetProjectCollFiles(parsed->sProject, files, bLibraryReferenced);
        }
        bResult = migrator.Convert(parsed->sProject, files, log, parsed->bTextCombos, parsed->bComboImages);
    } else {
        bResult = migrator.Upgrade(parsed->sProject, log);
    }
    std::ofstream out(std::filesystem::path(testing::FromUtf8(parsed->sJson)), std::ios::binary);
    out << driver::RunJson(bResult, log, world->Boxes()) << std::flush;
    if (out) return 0;
    std::fprintf(stderr, "run_engine: cannot write %s\n", parsed->sJson.c_str());
    return 1;
}

} // namespace

#ifdef _WIN32
int wmain(int argc, wchar_t** argv) {
    std::vector<std::string> arguments;
    for (int n = 1; n < argc; ++n) {
        const std::wstring s(argv[n]);
        arguments.push_back(orvanta::testing::ToUtf8(std::u16string(s.begin(), s.end())));
    }
    return Run(arguments);
}
#else
int main(int argc, char** argv) {
    return Run({argv + 1, argv + argc});
}
#endif
