#include "engine/LineArray.h"

#include "base/Failure.h"

#include <limits>
#include <utility>

namespace orvanta {

LineArray::LineArray(std::u16string sText) : m_sText(std::move(sText)) {
    if (m_sText.size() > std::numeric_limits<std::uint32_t>::max()) throw Overflow();
    if (m_sText.empty()) return;
    m_lines.reserve(m_sText.size() / 32 + 1);
    const char16_t* const pText = m_sText.data();
    std::size_t nStart = 0;
    const auto add = [&](std::size_t nEnd) {
        m_lines.push_back({pText + nStart, static_cast<std::uint32_t>(nEnd - nStart), 0});
    };
    // The LF is the rarer of the two to stand alone, so it is the one to look for.
    ForEachMatch<OneOf<u'\n'>>(m_sText, [&](std::size_t nAt) {
        if (nAt == nStart || pText[nAt - 1] != u'\r') return;
        add(nAt - 1);
        nStart = nAt + 1;
    });
    add(m_sText.size());
}

void LineArray::Set(std::size_t nLine, std::u16string sText) {
    if (sText.size() > std::numeric_limits<std::uint32_t>::max()) throw Overflow();
    Line& line = m_lines[nLine];
    if (line.nOwn == 0) {
        m_changed.push_back({(*this)[nLine], {}});
        line.nOwn = static_cast<std::uint32_t>(m_changed.size());
    }
    std::u16string& sOwn = m_changed[line.nOwn - 1].sText;
    sOwn = std::move(sText);
    line.pText = sOwn.data();
    line.nLength = static_cast<std::uint32_t>(sOwn.size());
}

std::size_t LineArray::EndOfStretch(std::size_t nFirst) const {
    std::size_t nEnd = nFirst + 1;
    while (m_lines[nFirst].nOwn == 0 && nEnd < m_lines.size() && m_lines[nEnd].nOwn == 0)
        ++nEnd;
    return nEnd;
}

std::u16string LineArray::Join() const {
    std::size_t nSize = 0;
    for (const Line& line : m_lines)
        nSize += line.nLength + std::size_t{2};
    std::u16string sOut;
    sOut.reserve(nSize);
    for (std::size_t nFirst = 0; nFirst < m_lines.size();) {
        const std::size_t nEnd = EndOfStretch(nFirst);
        sOut.append(TextOf(nFirst, nEnd)).append(u"\r\n");
        nFirst = nEnd;
    }
    return sOut;
}

} // namespace orvanta
