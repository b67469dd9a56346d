// Any bytes as a form, the options and the kinds taken from the first three: the engine must agree with the plain
// engine, the saved file must have the line ends that the rules give, and a second conversion must only add a line.
#include "engine/FormPass.h"
#include "files/TextFileForm.h"
#include "tests/support/AgainstPlain.h"
#include "tests/support/CachedFileRule.h"
#include "tests/support/FakeWorld.h"
#include "tests/support/RecordedLog.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>

using namespace orvanta;

namespace {

constexpr std::size_t kPlainLimit = 65536;
const std::u16string kPath = u"C:\\a.frm";

void Require(bool bHolds, const char* sWhat) {
    if (bHolds) return;
    std::fprintf(stderr, "%s\n", sWhat);
    std::abort();
}

std::size_t LineEnds(std::u16string_view s) {
    std::size_t nCount = 0;
    for (std::size_t nAt = s.find(u"\r\n"); nAt != s.npos; nAt = s.find(u"\r\n", nAt + 2))
        ++nCount;
    return nCount;
}

struct Conversion {
    Conversion(const std::string& sBytes, const testing::PlainCase& plainCase) {
        world.kinds = plainCase.kinds;
        world.Put(kPath, sBytes);
        for (const char16_t* sKey : {u"src", u"line", u"descr"})
            grid.AddColumn(sKey, -1, 0, TaggedValue(sKey), true, 2, false, false, false, 0, true);
        RunLog log(world, grid, RunLog::Columns::SourceLineDescription);
        ConvertFile(kPath, plainCase.options, world, log);
    }
    bool Read() const { return grid.Rows().front().cells[2] == u"Reading..."; }
    bool NothingConverted() const {
        for (const testing::RecordedLog::LogRow& row : grid.Rows()) {
            if (row.cells[2] == u"Converted 0 controls") return true;
        }
        return false;
    }

    testing::FakeWorld world;
    testing::RecordedLog grid;
};

// Each line gets a line end, and so does each line that is added, one a control at the most.
void CheckFirst(const std::string& sBytes, const Conversion& first) {
    const std::optional<std::u16string> sText = testing::TextOfFileBytes(sBytes, Windows1252());
    Require(sText.has_value() == first.Read(), "a row about reading that is not true");
    Require(first.world.writes.size() == (first.Read() ? 1u : 0u), "one save for a file that was read, none otherwise");
    if (!first.Read()) {
        Require(first.grid.Rows().size() == 1 && first.world.boxes.size() == 1,
                "an unreadable file has one row and box");
        return;
    }
    const std::size_t nRows = first.grid.Rows().size();
    Require(first.grid.Rows()[nRows - 2].cells[2] == u"Saved...", "the row in front of the last one says saved");
    Require(first.grid.Rows().back().cells[2].empty(), "an empty row closes the file");
    const std::size_t nBefore = sText->empty() ? 0 : LineEnds(*sText) + 1;
    const std::size_t nAfter = LineEnds(Windows1252().BytesToText(first.world.Bytes(kPath)));
    Require(nAfter >= nBefore && nAfter <= 2 * nBefore, "a line end for each line and each line added");
    if (first.NothingConverted()) Require(nAfter == nBefore, "nothing converted, nothing added");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 3) return 0;
    testing::PlainCase plainCase;
    plainCase.options = {(data[0] & 1) != 0, (data[0] & 2) != 0};
    plainCase.bSaves = (data[0] & 4) == 0;
    for (std::size_t n = 0; n < plainCase.kinds.size(); ++n)
        plainCase.kinds[n] = ((data[1] | data[2] << 8) >> n & 1) == 0;
    const std::string sBytes(data + 3, data + size);

    if (sBytes.size() < kPlainLimit) {
        const std::string sDifference = testing::ConvertDifference(sBytes, plainCase);
        Require(sDifference.empty(), sDifference.c_str());
    }
    const Conversion first(sBytes, plainCase);
    CheckFirst(sBytes, first);
    if (!first.Read()) return 0;

    // With nothing to convert a run adds an empty line and changes nothing else.
    testing::PlainCase none;
    none.kinds.fill(false);
    const std::string& sOnce = first.world.Bytes(kPath);
    const Conversion second(sOnce, none);
    if (!second.Read() || testing::TextOfFileBytes(sOnce, Windows1252()) != Windows1252().BytesToText(sOnce)) return 0;
    Require(second.world.Bytes(kPath) == (sOnce.empty() ? "" : sOnce + "\r\n"), "the second run only adds a line");
    Require(second.NothingConverted(), "the second run converts nothing");
    return 0;
}
