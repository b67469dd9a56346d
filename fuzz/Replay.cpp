#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize);

namespace {

void Replay(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    const std::vector<char> bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    // A copy of exactly the input's size, so that the sanitizer sees a read past its end.
    const std::vector<std::uint8_t> exact(bytes.begin(), bytes.end());
    LLVMFuzzerTestOneInput(exact.data(), exact.size());
}

} // namespace

// Runs a fuzz target's inputs once each, without the fuzzer: every file given, and every file below each folder given.
int main(int argc, char** argv) {
    std::size_t nInputs = 0;
    for (int iArg = 1; iArg < argc; ++iArg) {
        const std::filesystem::path path(argv[iArg]);
        if (std::filesystem::is_directory(path)) {
            for (const auto& entry : std::filesystem::recursive_directory_iterator(path)) {
                if (!entry.is_regular_file()) continue;
                Replay(entry.path());
                ++nInputs;
            }
        } else if (std::filesystem::is_regular_file(path)) {
            Replay(path);
            ++nInputs;
        }
    }
    std::printf("replayed %zu inputs\n", nInputs);
    return nInputs == 0 ? 1 : 0;
}
