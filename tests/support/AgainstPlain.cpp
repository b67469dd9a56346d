#include "tests/support/AgainstPlain.h"

#include "base/Windows1252.h"
#include "engine/FormPass.h"
#include "engine/UpgradePass.h"
#include "tests/reference/PlainEngine.h"
#include "tests/support/CachedFileRule.h"
#include "tests/support/FakeWorld.h"
#include "tests/support/RecordedLog.h"
#include "tests/support/Unicode.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace orvanta::testing {

namespace {

const std::u16string kPath = u"C:\\Work\\a.frm";

struct Run {
    Run(std::string_view sBytes, bool bSaves) {
        world.Put(kPath, std::string(sBytes));
        if (!bSaves) world.RefuseSaving(kPath);
    }

    FakeWorld world;
    RecordedLog grid;
};

void AddColumns(RecordedLog& grid, std::initializer_list<const char16_t*> keys) {
    for (const char16_t* sKey : keys)
        grid.AddColumn(sKey, -1, 0, TaggedValue(sKey), true, 2, false, false, false, 0, true);
}

std::vector<reference::PlainLogRow> RowsOf(const RecordedLog& grid) {
    std::vector<reference::PlainLogRow> rows;
    for (const RecordedLog::LogRow& row : grid.Rows()) {
        const RecordedLog::Colors colors = row.ColorsOf(row.cells.size() - 1);
        rows.push_back({row.cells, colors.lFore, colors.lBack});
    }
    return rows;
}

std::string RowText(const reference::PlainLogRow& row) {
    std::string sText;
    for (const std::u16string& sCell : row.cells)
        sText.append(ToUtf8(sCell)).append("|");
    return sText.append(std::to_string(row.fore)).append("|").append(std::to_string(row.back));
}

template<typename Item, typename Show>
std::string ListDifference(const char* sWhat, const std::vector<Item>& ours, const std::vector<Item>& plain,
                           Show&& show) {
    if (ours == plain) return {};
    const auto [own, other] = std::mismatch(ours.begin(), ours.end(), plain.begin(), plain.end());
    std::string sText(sWhat);
    sText.append(" ").append(std::to_string(own - ours.begin())).append(": ");
    sText.append(own == ours.end() ? "none" : show(*own)).append(" but plainly ");
    return sText.append(other == plain.end() ? "none" : show(*other)).append("\n");
}

std::string Difference(const Run& run, std::string_view sRead, bool bSaves, const reference::PlainResult& plain) {
    std::string sText = ListDifference("row", RowsOf(run.grid), plain.rows, RowText);
    sText += ListDifference("box", run.world.boxes, plain.boxes, [](const std::u16string& s) { return ToUtf8(s); });
    if (run.world.writes.size() != (plain.written ? 1u : 0u)) sText += "number of saves differs\n";
    const std::string sExpected = plain.written && bSaves ? Windows1252().TextToBytes(plain.text) : std::string(sRead);
    const std::string& sOwn = run.world.Bytes(kPath);
    if (sOwn != sExpected) {
        const auto [own, other] = std::mismatch(sOwn.begin(), sOwn.end(), sExpected.begin(), sExpected.end());
        const auto nAt = static_cast<std::size_t>(own - sOwn.begin());
        const std::size_t nFrom = nAt - std::min<std::size_t>(nAt, 60);
        sText += "bytes differ at " + std::to_string(nAt) + ": ..." + sOwn.substr(nFrom, 120) + "... but plainly ..." +
                 sExpected.substr(nFrom, 120) + "...\n";
    }
    return sText;
}

} // namespace

std::string ConvertDifference(std::string_view sBytes, const PlainCase& plainCase) {
    reference::PlainOptions options;
    std::copy(plainCase.kinds.begin(), plainCase.kinds.end(), options.kinds);
    options.textCombos = plainCase.options.bUseTextLikeCombos;
    options.comboImages = plainCase.options.bUseComboImages;
    const std::optional<std::u16string> sText = TextOfFileBytes(sBytes, Windows1252());
    const reference::PlainResult plain = sText
                                             ? reference::PlainConvertText(u"a.frm", *sText, options, plainCase.bSaves)
                                             : reference::PlainConvertUnreadable(u"a.frm");

    Run run(sBytes, plainCase.bSaves);
    run.world.kinds = plainCase.kinds;
    AddColumns(run.grid, {u"src", u"line", u"descr"});
    RunLog log(run.world, run.grid, RunLog::Columns::SourceLineDescription);
    ConvertFile(kPath, plainCase.options, run.world, log);
    return Difference(run, sBytes, plainCase.bSaves, plain);
}

std::string UpgradeDifference(std::string_view sBytes, bool bIsProjectFile, bool bSaves) {
    const std::optional<std::u16string> sText = TextOfFileBytes(sBytes, Windows1252());
    const reference::PlainResult plain = sText ? reference::PlainUpgradeText(u"a.frm", *sText, bIsProjectFile, bSaves)
                                               : reference::PlainUpgradeUnreadable(u"a.frm");

    Run run(sBytes, bSaves);
    AddColumns(run.grid, {u"src", u"descr"});
    RunLog log(run.world, run.grid, RunLog::Columns::SourceDescription);
    UpgradeFile(kPath, bIsProjectFile, run.world, log);
    return Difference(run, sBytes, bSaves, plain);
}

} // namespace orvanta::testing
