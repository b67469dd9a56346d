#include "engine/HandlerIndex.h"

#include "base/UnitScan.h"

#include <algorithm>

namespace orvanta {

namespace {

constexpr std::array<std::u16string_view, kHandlerEventCount> kSuffixes = {u"_KeyPress", u"_Click", u"_DblClick"};

void InsertSorted(std::vector<std::uint32_t>& lines, std::uint32_t nLine) {
    if (lines.empty() || lines.back() < nLine) {
        lines.push_back(nLine);
        return;
    }
    const auto at = std::lower_bound(lines.begin(), lines.end(), nLine);
    if (*at != nLine) lines.insert(at, nLine);
}

} // namespace

std::u16string_view EventSuffix(HandlerEvent event) {
    return kSuffixes.at(static_cast<std::size_t>(event));
}

HandlerIndex::HandlerIndex(const std::vector<std::u16string>& names) {
    for (const std::u16string& sName : names) {
        if (!m_names.emplace(sName, static_cast<Name>(m_names.size())).second) continue;
        if (std::find(m_lengths.begin(), m_lengths.end(), sName.size()) == m_lengths.end()) {
            m_lengths.push_back(sName.size());
        }
    }
    m_lines.resize(m_names.size());
}

void HandlerIndex::AddLine(std::uint32_t nLine, std::u16string_view sLine) {
    ForEachMatch<OneOf<u'_'>>(sLine, [&](std::size_t nAt) { AddUnderscore(nLine, sLine, nAt); });
}

// Where an event follows, the text in front of it is tried for a name of each length.
void HandlerIndex::AddUnderscore(std::uint32_t nLine, std::u16string_view sLine, std::size_t nAt) {
    for (std::size_t nEvent = 0; nEvent < kHandlerEventCount; ++nEvent) {
        if (!sLine.substr(nAt).starts_with(kSuffixes[nEvent])) continue;
        for (const std::size_t nLength : m_lengths) {
            if (nLength > nAt) continue;
            const auto found = m_names.find(sLine.substr(nAt - nLength, nLength));
            if (found != m_names.end()) InsertSorted(m_lines[found->second][nEvent], nLine);
        }
        return;
    }
}

const std::vector<std::uint32_t>& HandlerIndex::Lines(Name name, HandlerEvent event) const {
    return m_lines[name][static_cast<std::size_t>(event)];
}

bool HandlerIndex::IsListed(Name name, HandlerEvent event, std::uint32_t nLine) const {
    const std::vector<std::uint32_t>& lines = Lines(name, event);
    return std::binary_search(lines.begin(), lines.end(), nLine);
}

std::uint32_t HandlerIndex::Next(Name name, std::uint32_t nFrom) const {
    std::uint32_t nNext = kNone;
    for (const std::vector<std::uint32_t>& lines : m_lines[name]) {
        const auto at = std::lower_bound(lines.begin(), lines.end(), nFrom);
        if (at != lines.end()) nNext = std::min(nNext, *at);
    }
    return nNext;
}

} // namespace orvanta
