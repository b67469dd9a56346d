#include "engine/UpgradePass.h"

#include "base/Text.h"
#include "engine/BeginWords.h"
#include "engine/BlockProperties.h"
#include "engine/LineArray.h"
#include "files/PathRules.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>

namespace orvanta {

namespace {

constexpr std::u16string_view kLibrary = u"Orvanta";
constexpr std::u16string_view kFormReference =
    u"Object = \"{7E41B0D2-96AC-4F13-8C27-5D03AA61F9B4}#1.0#0\"; \"Orvanta31.ocx\"";
constexpr std::u16string_view kProjectReference = u"Object={7E41B0D2-96AC-4F13-8C27-5D03AA61F9B4}#1.0#0; Orvanta31.ocx";

// The library's word on a line that starts as a reference does. Both in exact case.
bool IsLibraryReference(std::u16string_view sLine, std::u16string_view sStart) {
    return sLine.starts_with(sStart) && sLine.find(kLibrary) != std::u16string_view::npos;
}

bool UpgradeProjectLines(LineArray& aLines) {
    for (std::size_t n = 0; n < aLines.Count(); ++n) {
        if (!IsLibraryReference(aLines[n], u"Object=")) continue;
        aLines.Set(n, kProjectReference);
        return true;
    }
    return false;
}

// The reference stands in the header, in front of the first control block.
bool UpgradeFormReference(LineArray& aLines) {
    for (std::size_t n = 0; n < aLines.Count(); ++n) {
        if (TrimBlanks(aLines[n]).starts_with(u"Begin ")) return false;
        if (!IsLibraryReference(aLines[n], u"Object = ")) continue;
        aLines.Set(n, kFormReference);
        return true;
    }
    return false;
}

bool UpgradeControl(LineArray& aLines, std::size_t nMark, std::size_t nLine, std::u16string_view sType,
                    BlockProperties& properties) {
    const auto retype = [&](std::u16string_view sOld, std::u16string_view sNew) {
        aLines.Set(nLine, ReplaceAll(aLines[nLine], sOld, sNew));
        return true;
    };
    if (sType == u"Orvanta.ctlUTF8Menu") {
        return properties.GetBlockProperty(nMark, u"UTF8Strings").starts_with(u"-1") &&
               properties.ChangeBlockProperty(nMark, u"UTF8Strings", u"StringMode", u"1");
    }
    if (sType == u"Orvanta.ctlUniLabel") {
        return properties.GetBlockProperty(nMark, u"BackStyle").starts_with(u"0") &&
               retype(u".ctlUniLabel", u".ctlUniLabelNoFlick");
    }
    if (sType == u"Orvanta.ctlUniButtonXP") return retype(u".ctlUniButtonXP", u".ctlUniButtonImageXP");
    return false;
}

bool UpgradeControls(LineArray& aLines, RunLog& log) {
    const BlockStructure structure(aLines);
    BlockProperties properties(aLines, structure);
    BeginWords words;
    bool bFileChanged = false;
    std::int32_t iDepth = 0;
    for (std::size_t nMark = 0; nMark < structure.Marks().size(); ++nMark) {
        const BlockStructure::Mark& mark = structure.Marks()[nMark];
        if (mark.kind == LineKind::End) {
            if (--iDepth == 0) break;
        } else if (mark.kind == LineKind::Begin) {
            ++iDepth;
            words.Take(aLines[mark.nLine], log);
            if (UpgradeControl(aLines, nMark, mark.nLine, words.Type(), properties)) bFileChanged = true;
        }
    }
    return bFileChanged;
}

bool UpgradeFormLines(LineArray& aLines, RunLog& log) {
    const bool bReference = UpgradeFormReference(aLines);
    const bool bControls = UpgradeControls(aLines, log);
    return bReference || bControls;
}

} // namespace

void UpgradeFile(std::u16string_view sPathFileName, bool bIsProjectFile, EngineWorld& world, RunLog& log) {
    std::u16string sName; // a path that is too long for one gives a box in place of the row
    const bool bNamed = log.Step([&] { sName = ufu_FileName(sPathFileName); });
    const auto report = [&](std::u16string_view sDescription) {
        if (bNamed) log.Source(sName, sDescription);
    };
    const auto reportError = [&](std::u16string_view sDescription) {
        if (bNamed) log.SourceError(sName, sDescription);
    };
    std::optional<LineArray> read; // empty, too, when reading fails with more than an answer
    log.Step([&] {
        std::u16string sText;
        if (world.st_TextFileToString(sPathFileName, sText, false)) read.emplace(std::move(sText));
    });
    if (!read) {
        reportError(u"Error while reading file...");
        return;
    }
    LineArray& aLines = *read;
    const bool bFileChanged = bIsProjectFile ? UpgradeProjectLines(aLines) : UpgradeFormLines(aLines, log);
    if (!bFileChanged) {
        report(u"Skipped...");
        return;
    }
    bool bSaved = false;
    log.Step([&] { bSaved = world.st_StringToTextFile(sPathFileName, aLines.Join(), feAnsi, false); });
    if (bSaved) {
        report(u"Upgraded...");
    } else {
        reportError(u"Error saving this file...");
    }
}

} // namespace orvanta
