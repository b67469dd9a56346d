#include "engine/BlockProperties.h"

#include "base/Text.h"
#include "base/UnitScan.h"

#include <cstring>

namespace orvanta {

namespace {

// The trimmed value if the line is a property line with this name.
std::optional<std::u16string_view> ValueOf(std::u16string_view sLine, std::u16string_view sProperty) {
    std::u16string_view s = sLine.substr(CountLeading<u' '>(sLine));
    // Nearly every line differs in the first letter.
    if (!s.empty() && !sProperty.empty() && LowerAscii(s.front()) != LowerAscii(sProperty.front())) return std::nullopt;
    if (s.size() <= sProperty.size() || !EqualsAsciiFolded(s.substr(0, sProperty.size()), sProperty)) {
        return std::nullopt;
    }
    s = TrimBlanksLeft(s.substr(sProperty.size()));
    if (s.empty() || s.front() != u'=') return std::nullopt;
    return TrimBlanks(s.substr(1));
}

// starts_with compares unit by unit; this is one comparison of memory.
template<std::size_t Size>
bool StartsWith(std::u16string_view s, const char16_t (&sStart)[Size]) {
    return s.size() >= Size - 1 && std::memcmp(s.data(), sStart, sizeof sStart - sizeof sStart[0]) == 0;
}

// What the line is, its leading blanks taken away; not empty.
LineKind KindOfTrimmedLine(std::u16string_view s) {
    if (s.front() == u'E') {
        if (StartsWith(s, u"EndProperty")) return LineKind::EndProperty;
        if (StartsWith(s, u"End")) return LineKind::End;
    } else {
        if (StartsWith(s, u"Begin ")) return LineKind::Begin;
        if (StartsWith(s, u"BeginProperty ")) return LineKind::BeginProperty;
    }
    return LineKind::Plain;
}

} // namespace

BlockStructure::BlockStructure(const LineArray& aLines) {
    std::vector<std::uint32_t> open;
    const auto note = [&](std::size_t nLine, LineKind kind) {
        const auto nMark = static_cast<std::uint32_t>(m_marks.size());
        m_marks.push_back({static_cast<std::uint32_t>(nLine), kOpen, kind});
        if (kind == LineKind::Begin || kind == LineKind::BeginProperty) {
            open.push_back(nMark);
        } else if (!open.empty()) {
            m_marks[open.back()].nPartner = nMark;
            open.pop_back();
        }
    };
    for (std::size_t nLine = 0; nLine < aLines.Count(); ++nLine) {
        const std::u16string_view sLine = aLines[nLine];
        const std::size_t nAt = CountLeading<u' '>(sLine);
        if (nAt == sLine.size() || (sLine[nAt] != u'B' && sLine[nAt] != u'E')) continue;
        const LineKind kind = KindOfTrimmedLine(sLine.substr(nAt));
        if (kind != LineKind::Plain) note(nLine, kind);
    }
}

// A walk from the `Begin ` line to the end of its block that leaps over everything nested. Where groups and blocks do
// not balance, the level can fall below 1 without ending the block (only an "End" line that makes it 0 does that), and
// rise again.
std::optional<BlockProperties::Found> BlockProperties::Find(std::size_t nMark, std::u16string_view sProperty) const {
    const std::vector<BlockStructure::Mark>& marks = m_structure.Marks();
    int iLevel = 1;
    std::size_t nLine = marks[nMark].nLine + std::size_t{1};
    for (++nMark;; ++nMark) {
        const std::size_t nStop = nMark < marks.size() ? marks[nMark].nLine : m_aLines.Count();
        for (; iLevel == 1 && nLine < nStop; ++nLine) {
            if (const auto sValue = ValueOf(m_aLines[nLine], sProperty)) return Found{nLine, *sValue};
        }
        if (nMark >= marks.size()) return std::nullopt;
        switch (marks[nMark].kind) {
        case LineKind::Begin:
        case LineKind::BeginProperty:
            if (iLevel != 1) {
                ++iLevel;
            } else if (marks[nMark].nPartner == BlockStructure::kOpen) {
                return std::nullopt;
            } else {
                nMark = marks[nMark].nPartner;
            }
            break;
        case LineKind::End:
            if (--iLevel == 0) return std::nullopt;
            break;
        case LineKind::EndProperty: --iLevel; break;
        case LineKind::Plain: break;
        }
        nLine = marks[nMark].nLine + std::size_t{1};
    }
}

std::u16string_view BlockProperties::GetBlockProperty(std::size_t nMark, std::u16string_view sProperty) const {
    const std::optional<Found> found = Find(nMark, sProperty);
    return found ? found->sValue : std::u16string_view();
}

bool BlockProperties::ChangeBlockProperty(std::size_t nMark, std::u16string_view sProperty,
                                          std::u16string_view sNewProperty,
                                          std::optional<std::u16string_view> vNewValue) {
    const std::optional<Found> found = Find(nMark, sProperty);
    if (!found) return false;
    m_aLines.SetPieces(found->nLine, {sNewProperty, u"=", vNewValue.value_or(found->sValue)});
    return true;
}

} // namespace orvanta
