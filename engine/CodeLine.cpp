#include "engine/CodeLine.h"

#include "base/Text.h"
#include "base/UnitScan.h"

#include <algorithm>

namespace orvanta {

namespace {

constexpr std::size_t kNowhere = std::u16string_view::npos;

// The bracket that brings the count back to 0. The count is compared at closing brackets only.
std::size_t ClosingBracket(std::u16string_view sLine, std::size_t nFrom) {
    int iOpen = 0;
    for (std::size_t n = nFrom; n < sLine.size(); ++n) {
        if (sLine[n] == u'(') {
            ++iOpen;
        } else if (sLine[n] == u')' && --iOpen == 0) {
            return n;
        }
    }
    return kNowhere;
}

// The first ' outside quotes, or the end of the line.
std::size_t EndOfStatement(std::u16string_view sLine, std::size_t nFrom) {
    bool bQuoted = false;
    for (std::size_t n = nFrom; n < sLine.size(); ++n) {
        if (sLine[n] == u'"') bQuoted = !bQuoted;
        if (sLine[n] == u'\'' && !bQuoted) return n;
    }
    return sLine.size();
}

} // namespace

CodeLineKind KindByWordAt(std::u16string_view sLine, std::size_t nAt) {
    const std::u16string_view sWord = sLine.substr(nAt);
    const bool bSub = sWord.starts_with(u"Sub");
    if (bSub && sWord.starts_with(u"Sub ") && (nAt == 0 || sLine[nAt - 1] == u' ')) return CodeLineKind::ProcedureStart;
    if (sWord.starts_with(u"Function ")) return CodeLineKind::ProcedureStart;
    constexpr std::u16string_view kEnd = u"End ";
    const bool bEnd = nAt == kEnd.size() && sLine.starts_with(kEnd) && (bSub || sWord.starts_with(u"Function"));
    return bEnd ? CodeLineKind::ProcedureEnd : CodeLineKind::Plain;
}

CodeLineKind KindOfCodeLine(std::u16string_view sLine) {
    CodeLineKind kind = CodeLineKind::Plain;
    ForEachMatch<OneOf<u'S', u'F'>, OneOf<u'u'>>(
        sLine, [&](std::size_t nAt) { kind = std::max(kind, KindByWordAt(sLine, nAt)); });
    return kind;
}

std::u16string WithArgument(std::u16string_view sLine, std::u16string_view sHandler, std::size_t nCall, bool bHasArgs) {
    const bool bBrackets = sLine.find(Concat({sHandler, u"("})) != kNowhere;
    const std::size_t nAt = bBrackets ? ClosingBracket(sLine, nCall) : EndOfStatement(sLine, nCall);
    std::u16string sOut(sLine);
    // With an argument before it the new one stands behind two blanks.
    if (nAt != kNowhere) sOut.insert(nAt, bHasArgs ? u",  0" : u" 0");
    return sOut;
}

} // namespace orvanta
