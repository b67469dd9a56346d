#include "engine/FormPass.h"

#include "base/Failure.h"
#include "base/Text.h"
#include "engine/BeginWords.h"
#include "engine/BlockProperties.h"
#include "engine/CodePass.h"
#include "engine/LineArray.h"
#include "files/PathRules.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace orvanta {

namespace {

// Walks the description. Returns the index of the first line of code, or the line count when the outermost block never
// ends.
std::size_t ConvertDescription(LineArray& aLines, const BlockStructure& structure, ControlRules& rules, RunLog& log) {
    const std::vector<BlockStructure::Mark>& marks = structure.Marks();
    BeginWords words;
    std::int32_t iDepth = 0;
    for (std::size_t nMark = 0; nMark < marks.size(); ++nMark) {
        const std::size_t nLine = marks[nMark].nLine;
        if (marks[nMark].kind == LineKind::End) {
            if (--iDepth == 0) return nLine + 1;
        } else if (marks[nMark].kind == LineKind::Begin) {
            ++iDepth;
            words.Take(aLines[nLine], log);
            const ControlRules::Block block{nMark, nLine, words.Type(), words.Name()};
            const ControlRules::Outcome outcome = rules.Apply(block);
            if (!outcome.bConverted) continue;
            aLines.SetPieces(nLine, {u"Begin ", outcome.sTarget, u" ", block.sName, outcome.sExtraLines});
            rules.MoveToolTip(block);
        }
    }
    return aLines.Count();
}

void FlagCodeReferences(const LineArray& aLines, std::size_t nFirst, RunLog& log) {
    std::size_t nNext = nFirst; // a line is flagged once
    aLines.ForEachMatchInLines<FlagA, FlagS, FlagBlank>(nFirst, [&](std::size_t nLine, std::size_t nAt) {
        if (nLine < nNext || !NamesControlTypeAt(aLines[nLine], nAt)) return;
        nNext = nLine + 1;
        log.LineMarked(nLine, Concat({u"Check this line, control reference found >> ", aLines[nLine]}), kBrightGreen);
    });
}

void WriteCounts(const ControlRules& rules, RunLog& log) {
    const std::u16string sCount = Concat({u"Converted ", DecimalText(rules.Converted()), u" controls"});
    if (rules.Converted() > 0) {
        log.DescriptionColored(sCount, kBlue);
    } else {
        log.Description(sCount);
    }
    for (int n = 0; n < kWarningCount; ++n) {
        const auto warning = static_cast<Warning>(n);
        if (rules.Count(warning) > 0) log.DescriptionMarked(WarningText(warning), kYellow);
    }
}

} // namespace

void ConvertFile(std::u16string_view sPathFileName, ComboOptions options, EngineWorld& world, RunLog& log) {
    std::u16string sName; // a path that is too long for one gives a box in place of the row
    const bool bNamed = log.Step([&] { sName = ufu_FileName(sPathFileName); });
    std::optional<LineArray> read; // empty, too, when reading fails with more than an answer
    log.Step([&] {
        std::u16string sText;
        if (world.st_TextFileToString(sPathFileName, sText, false)) read.emplace(std::move(sText));
    });
    if (!read) {
        if (bNamed) log.SourceError(sName, u"Error while reading file...");
        log.Step([] { throw SubscriptOutOfRange(); }); // there are no lines to go on with
        return;
    }
    LineArray& aLines = *read;
    if (bNamed) log.Source(sName, u"Reading...");

    {
        const BlockStructure structure(aLines);
        BlockProperties properties(aLines, structure);
        ControlRules rules(world, log, properties, options);
        const std::size_t nCode = ConvertDescription(aLines, structure, rules, log);
        FlagCodeReferences(aLines, nCode, log);
        WriteCounts(rules, log);
        log.Step([&] { FixEventSignatures(rules.TextBoxes(), aLines); });
    }

    bool bSaved = false;
    log.Step([&] { bSaved = world.st_StringToTextFile(sPathFileName, aLines.Join(), feAnsi, false); });
    if (bSaved) {
        log.Description(u"Saved...");
    } else {
        log.DescriptionColored(u"Error saving this file...", kRed);
    }
    log.Empty();
}

} // namespace orvanta
