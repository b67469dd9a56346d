#include "engine/CodePass.h"

#include "base/Failure.h"
#include "base/Text.h"
#include "engine/CodeLine.h"
#include "engine/HandlerIndex.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>

namespace orvanta {

namespace {

struct Rewrite {
    HandlerEvent event;
    std::u16string_view sFound;    // behind the handler's name
    std::u16string_view sReplaced; // likewise
    bool bHasArgs;
};

constexpr std::array kRewrites = {
    Rewrite{HandlerEvent::KeyPress, u"(KeyAscii As Integer)", u"(KeyAscii As Integer, Shift As Integer)", true},
    Rewrite{HandlerEvent::Click, u"()", u"(Button As Integer)", false},
    Rewrite{HandlerEvent::DblClick, u"()", u"(Button As Integer)", false},
    Rewrite{HandlerEvent::KeyPress, u"(Index As Integer, KeyAscii As Integer)",
            u"(Index As Integer, KeyAscii As Integer, Shift As Integer)", true},
    Rewrite{HandlerEvent::Click, u"(Index As Integer)", u"(Index As Integer, Button As Integer)", true},
    Rewrite{HandlerEvent::DblClick, u"(Index As Integer)", u"(Index As Integer, Button As Integer)", true},
};

// The rule is two plain loops: over all lines for each name, and over all lines again for each rewritten handler. This
// does the same with an index of the lines in which a handler's name stands, so that only those are looked at.
class CodePass {
public:
    CodePass(const std::vector<std::u16string>& names, LineArray& aLines)
        : m_names(names), m_aLines(aLines), m_index(names) {}

    void Run() {
        m_kinds.assign(m_aLines.Count(), CodeLineKind::Plain);
        using First = OneOf<u'S', u'F', u'_'>; // "Sub", "Function", and the "_" in front of an event
        using Next = OneOf<u'u', u'K', u'C', u'D'>;
        m_aLines.ForEachMatchInLines<First, Next>(0, [this](std::size_t nLine, std::size_t nAt) {
            const std::u16string_view sLine = m_aLines[nLine];
            if (sLine[nAt] == u'_') {
                m_index.AddUnderscore(static_cast<std::uint32_t>(nLine), sLine, nAt);
            } else {
                m_kinds[nLine] = std::max(m_kinds[nLine], KindByWordAt(sLine, nAt));
            }
        });
        for (const std::u16string& sName : m_names)
            FixName(sName, m_index.NameOf(sName));
    }

private:
    // The index is asked anew for each next line: a rewrite can turn lines further down into procedure starts.
    void FixName(const std::u16string& sName, HandlerIndex::Name name) {
        for (std::uint32_t nLine = m_index.Next(name, 0); nLine != HandlerIndex::kNone;
             nLine = m_index.Next(name, nLine + 1)) {
            if (m_kinds[nLine] != CodeLineKind::ProcedureStart) continue;
            for (const Rewrite& rewrite : kRewrites) {
                if (!m_index.IsListed(name, rewrite.event, nLine)) continue;
                m_sHandler.assign(sName).append(EventSuffix(rewrite.event));
                m_sFound.assign(m_sHandler).append(rewrite.sFound);
                if (m_aLines[nLine].find(m_sFound) == std::u16string_view::npos) continue;
                m_sReplaced.assign(m_sHandler).append(rewrite.sReplaced);
                SetLine(nLine, ReplaceAll(m_aLines[nLine], m_sFound, m_sReplaced));
                FixHandlerCalls(m_sHandler, m_index.Lines(name, rewrite.event), rewrite.bHasArgs);
            }
        }
    }

    // candidates: the lines that may contain sHandler. A line that this walk changes counts as what it was until the
    // walk is over.
    void FixHandlerCalls(const std::u16string& sHandler, const std::vector<std::uint32_t>& candidates, bool bHasArgs) {
        CountLevels();
        m_changes.clear();
        for (const std::uint32_t nLine : candidates) {
            if (m_kinds[nLine] != CodeLineKind::Plain || m_levels[nLine] < 1) continue;
            const std::u16string_view sLine = m_aLines[nLine];
            const std::size_t nCall = sLine.find(sHandler);
            if (nCall == std::u16string_view::npos) continue;
            m_changes.emplace_back(nLine, WithArgument(sLine, sHandler, nCall, bHasArgs));
        }
        for (const auto& [nLine, sLine] : m_changes)
            SetLine(nLine, sLine);
    }

    void SetLine(std::uint32_t nLine, std::u16string_view sLine) {
        m_aLines.Set(nLine, sLine);
        m_index.AddLine(nLine, m_aLines[nLine]);
        const CodeLineKind kind = KindOfCodeLine(m_aLines[nLine]);
        if (kind != m_kinds[nLine]) m_levels.clear();
        m_kinds[nLine] = kind;
    }

    // m_levels[n]: procedure starts less procedure ends in front of line n.
    void CountLevels() {
        if (!m_levels.empty()) return;
        constexpr std::array<std::int32_t, 3> kSteps = {0, -1, 1}; // by CodeLineKind
        m_levels.resize(m_kinds.size());
        std::int32_t iLevel = 0;
        for (std::size_t n = 0; n < m_kinds.size(); ++n) {
            m_levels[n] = iLevel;
            iLevel += kSteps[static_cast<std::size_t>(m_kinds[n])];
        }
    }

    const std::vector<std::u16string>& m_names;
    LineArray& m_aLines;
    HandlerIndex m_index;
    std::vector<CodeLineKind> m_kinds;
    std::vector<std::int32_t> m_levels; // empty when they have to be counted anew
    // Kept for their room.
    std::u16string m_sHandler, m_sFound, m_sReplaced;
    std::vector<std::pair<std::uint32_t, std::u16string>> m_changes;
};

} // namespace

void FixEventSignatures(const std::vector<std::u16string>& oCollTextBoxes, LineArray& aLines) {
    if (oCollTextBoxes.empty()) return;
    if (aLines.Count() > kMostCodeLines) throw Overflow();
    CodePass(oCollTextBoxes, aLines).Run();
}

} // namespace orvanta
