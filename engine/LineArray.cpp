#include "engine/LineArray.h"

#include "base/Failure.h"
#include "base/Text.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace orvanta {

LineArray::LineArray(std::u16string sText) : m_sText(std::move(sText)) {
    if (m_sText.size() > std::numeric_limits<std::uint32_t>::max()) throw Overflow();
    if (m_sText.empty()) return;
    m_nJoined = m_sText.size() + 2;
    m_lines.reserve(m_sText.size() / 32 + 1);
    const char16_t* const pText = m_sText.data();
    std::size_t nStart = 0;
    const auto add = [&](std::size_t nEnd) {
        m_lines.push_back(
            {pText + nStart, static_cast<std::uint32_t>(nEnd - nStart), static_cast<std::uint32_t>(nStart), kAsRead});
    };
    // The LF is the rarer of the two to stand alone, so it is the one to look for.
    ForEachMatch<OneOf<u'\n'>>(m_sText, [&](std::size_t nAt) {
        if (nAt == nStart || pText[nAt - 1] != u'\r') return;
        add(nAt - 1);
        nStart = nAt + 1;
    });
    add(m_sText.size());
}

void LineArray::SetPieces(std::size_t nLine, std::initializer_list<std::u16string_view> pieces) {
    std::size_t nSize = 0;
    for (const std::u16string_view sPiece : pieces)
        nSize += sPiece.size();
    if (nSize > std::numeric_limits<std::uint32_t>::max()) throw Overflow();
    Line& line = m_lines[nLine];
    if (line.nOwn == kAsRead) {
        char16_t* const pText = TakeRoom(nSize);
        char16_t* pEnd = pText;
        for (const std::u16string_view sPiece : pieces)
            pEnd = std::copy(sPiece.begin(), sPiece.end(), pEnd);
        line.pText = pText;
        line.nOwn = kChanged;
    } else {
        std::u16string sText = Concat(pieces);
        if (line.nOwn == kChanged) {
            line.nOwn = kRewritten + static_cast<std::uint32_t>(m_rewritten.size());
            m_rewritten.emplace_back();
        }
        std::u16string& sOwn = m_rewritten[line.nOwn - kRewritten];
        sOwn = std::move(sText);
        line.pText = sOwn.data();
    }
    m_nJoined = m_nJoined - line.nLength + nSize;
    line.nLength = static_cast<std::uint32_t>(nSize);
}

char16_t* LineArray::TakeRoom(std::size_t nUnits) {
    constexpr std::size_t kPiece = 16'384;
    if (nUnits > m_room.size()) {
        const std::size_t nPiece = std::max(nUnits, kPiece);
        m_pieces.push_back(std::make_unique_for_overwrite<char16_t[]>(nPiece));
        m_room = {m_pieces.back().get(), nPiece};
    }
    char16_t* const pTaken = m_room.data();
    m_room = m_room.subspan(nUnits);
    return pTaken;
}

std::u16string LineArray::Join() const {
    std::u16string sOut;
    if (m_lines.empty()) return sOut;
    sOut.reserve(m_nJoined);
    // From one changed line to the next the text goes over as it was read, line ends and all.
    const std::u16string_view sText = m_sText;
    std::size_t nTaken = 0;
    for (std::size_t n = 0; n < m_lines.size(); ++n) {
        if (m_lines[n].nOwn == kAsRead) continue;
        sOut.append(sText.substr(nTaken, m_lines[n].nAsRead - nTaken)).append((*this)[n]);
        nTaken = n + 1 < m_lines.size() ? m_lines[n + 1].nAsRead - std::size_t{2} : sText.size();
    }
    return sOut.append(sText.substr(nTaken)).append(u"\r\n");
}

} // namespace orvanta
