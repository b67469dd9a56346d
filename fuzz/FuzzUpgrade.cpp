// Any bytes as a form or, by the first byte, as a project: the engine must agree with the plain engine, a skipped file
// stays as it is, and a second upgrade finds no control left to change.
#include "engine/UpgradePass.h"
#include "tests/support/AgainstPlain.h"
#include "tests/support/FakeWorld.h"
#include "tests/support/RecordedLog.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

using namespace orvanta;

namespace {

constexpr std::size_t kPlainLimit = 65536;
const std::u16string kPath = u"C:\\a.frm";

void Require(bool bHolds, const char* sWhat) {
    if (bHolds) return;
    std::fprintf(stderr, "%s\n", sWhat);
    std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 1) return 0;
    const bool bIsProjectFile = (data[0] & 1) != 0;
    const bool bSaves = (data[0] & 2) == 0;
    const std::string sBytes(data + 1, data + size);
    if (sBytes.size() < kPlainLimit) {
        const std::string sDifference = testing::UpgradeDifference(sBytes, bIsProjectFile, bSaves);
        Require(sDifference.empty(), sDifference.c_str());
    }

    testing::FakeWorld world;
    world.Put(kPath, sBytes);
    if (!bSaves) world.RefuseSaving(kPath);
    testing::RecordedLog grid;
    for (const char16_t* sKey : {u"src", u"descr"})
        grid.AddColumn(sKey, -1, 0, TaggedValue(sKey), true, 2, false, false, false, 0, true);
    RunLog log(world, grid, RunLog::Columns::SourceDescription);
    UpgradeFile(kPath, bIsProjectFile, world, log);

    Require(grid.Rows().size() == 1, "one row a file");
    const std::u16string& sRow = grid.Rows()[0].cells[1];
    const bool bTried = sRow == u"Upgraded..." || sRow == u"Error saving this file...";
    Require(bTried || sRow == u"Skipped..." || sRow == u"Error while reading file...", "a row that there is not");
    Require(world.writes.size() == (bTried ? 1u : 0u), "a file is written when something was changed");
    if (sRow != u"Upgraded...") {
        Require(world.Bytes(kPath) == sBytes, "a file that is not upgraded stays as it is");
    } else {
        Require(world.Bytes(kPath).ends_with("\r\n"), "a saved file ends with a line end");
    }
    if (bIsProjectFile) Require(world.boxes.empty(), "a project file has no words that could be missing");
    return 0;
}
