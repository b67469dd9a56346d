#include "tests/engine/EngineRun.h"

#include "engine/cVbpMigrator.h"
#include "tests/support/Unicode.h"

#include <cstddef>
#include <utility>

namespace orvanta::testing {

namespace {

constexpr std::string_view kOpenForm = "Begin VB.Form Form1\r\n";
constexpr std::string_view kCloseForm = "End\r\n";

std::string ColorText(const char* sWhich, std::int32_t lColor) {
    return lColor == RecordedLog::kNoColor
               ? std::string()
               : std::string(" [").append(sWhich).append(std::to_string(lColor)).append("]");
}

std::string RowText(const RecordedLog::LogRow& row) {
    std::string sOut;
    for (std::size_t n = 0; n < row.cells.size(); ++n) {
        if (n > 0) sOut += '|';
        sOut += ToUtf8(row.cells[n]);
    }
    for (std::size_t n = 0; n + 1 < row.cells.size(); ++n) {
        if (row.ColorsOf(n) != RecordedLog::Colors()) sOut.append(" [cell ").append(std::to_string(n)).append("]");
    }
    const RecordedLog::Colors colors = row.ColorsOf(row.cells.size() - 1);
    return sOut + ColorText("fore ", colors.lFore) + ColorText("back ", colors.lBack);
}

void PutProject(FakeWorld& world) {
    if (!world.Has(kProjectPath)) world.Put(kProjectPath, kProject);
}

} // namespace

std::string Lines(std::initializer_list<std::string_view> lines) {
    std::string sOut;
    for (const std::string_view sLine : lines)
        sOut.append(sLine).append("\r\n");
    return sOut;
}

std::vector<std::string> RowTexts(const RecordedLog& log) {
    std::vector<std::string> texts;
    for (const RecordedLog::LogRow& row : log.Rows())
        texts.push_back(RowText(row));
    return texts;
}

Outcome OutcomeOf(bool bResult, const FakeWorld& world, const RecordedLog& log) {
    Outcome outcome;
    outcome.bResult = bResult;
    if (world.Has(kFormPath)) outcome.sBytes = world.Bytes(kFormPath);
    outcome.rows = RowTexts(log);
    for (const std::u16string& sBox : world.boxes)
        outcome.boxes.push_back(ToUtf8(sBox));
    return outcome;
}

Outcome ConvertIn(FakeWorld& world, ComboOptions options) {
    PutProject(world);
    Collection<std::u16string> files;
    files.Add(kFormPath);
    RecordedLog log;
    const bool bResult =
        cVbpMigrator(world).Convert(kProjectPath, files, log, options.bUseTextLikeCombos, options.bUseComboImages);
    return OutcomeOf(bResult, world, log);
}

Outcome UpgradeIn(FakeWorld& world) {
    PutProject(world);
    RecordedLog log;
    const bool bResult = cVbpMigrator(world).Upgrade(kProjectPath, log);
    return OutcomeOf(bResult, world, log);
}

Outcome ConvertForm(std::string sForm, ComboOptions options) {
    FakeWorld world;
    world.Put(kFormPath, std::move(sForm));
    return ConvertIn(world, options);
}

Outcome UpgradeForm(std::string sForm) {
    FakeWorld world;
    world.Put(kFormPath, std::move(sForm));
    return UpgradeIn(world);
}

std::string InForm(std::initializer_list<std::string_view> block) {
    return std::string(kOpenForm).append(Lines(block)).append(kCloseForm);
}

std::string InConvertedForm(std::initializer_list<std::string_view> block) {
    return InForm(block).append("\r\n");
}

Outcome ConvertBlock(std::initializer_list<std::string_view> block, ComboOptions options) {
    return ConvertForm(InForm(block), options);
}

} // namespace orvanta::testing
