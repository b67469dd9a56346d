#pragma once

#include "base/UnitScan.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace orvanta {

// The lines of a file, counted from 0, split at each CR LF pair; a lone CR or LF separates nothing. An empty text has
// no line. Lines are never inserted or removed. A changed line may itself hold CR LF, and then stands for several lines
// of the output.
//
// The text is held once; a line is a stretch of it until it is changed.
class LineArray {
public:
    // Raises Overflow for a text of more than 4,294,967,295 code units.
    explicit LineArray(std::u16string sText);
    LineArray(const LineArray&) = delete;
    LineArray& operator=(const LineArray&) = delete;

    std::size_t Count() const { return m_lines.size(); }
    // The view holds until the same line is set again.
    std::u16string_view operator[](std::size_t nLine) const { return {m_lines[nLine].pText, m_lines[nLine].nLength}; }
    void Set(std::size_t nLine, std::u16string sText);

    // Calls visit(line, position in the line) for each match of the tests (see UnitScan.h) within a line, from line
    // nFirst on and from first to last. The tests pass no CR or LF. No line may be set meanwhile.
    template<typename... Tests, typename Visit>
    void ForEachMatchInLines(std::size_t nFirst, Visit&& visit) const {
        if (nFirst >= m_lines.size()) return;
        // The text as read is searched in one go; matches in lines that have been changed since are passed over, and
        // the line's own text is searched when the search comes to it.
        std::size_t nLine = nFirst;
        const auto enterLine = [&] {
            if (m_lines[nLine].nOwn == 0) return;
            ForEachMatch<Tests...>((*this)[nLine], [&](std::size_t nAt) { visit(nLine, nAt); });
        };
        const auto asRead = [this](std::size_t n) -> std::u16string_view {
            return m_lines[n].nOwn == 0 ? (*this)[n] : m_changed[m_lines[n].nOwn - 1].sAsRead;
        };
        const auto passed = [&](const char16_t* p) { return p >= asRead(nLine).data() + asRead(nLine).size(); };
        const char16_t* const pFirst = asRead(nFirst).data();
        const std::u16string_view sRest(pFirst, static_cast<std::size_t>(m_sText.data() + m_sText.size() - pFirst));
        enterLine();
        ForEachMatch<Tests...>(sRest, [&](std::size_t nAt) {
            for (; passed(pFirst + nAt); enterLine())
                ++nLine;
            const Line& line = m_lines[nLine];
            if (line.nOwn == 0) visit(nLine, static_cast<std::size_t>(pFirst + nAt - line.pText));
        });
        for (; ++nLine < m_lines.size();)
            enterLine();
    }

    // Every line followed by CR LF, the last one too: a text that ended in CR LF comes out one empty line longer.
    std::u16string Join() const;

private:
    struct Line {
        const char16_t* pText;
        std::uint32_t nLength;
        std::uint32_t nOwn; // 1 + index into m_changed, 0 for a stretch of m_sText
    };
    struct Changed {
        std::u16string_view sAsRead;
        std::u16string sText;
    };

    // Lines nFirst to nEnd - 1 stand one behind the other in the text, or are one changed line.
    std::size_t EndOfStretch(std::size_t nFirst) const;
    // Those lines with the line ends between them.
    std::u16string_view TextOf(std::size_t nFirst, std::size_t nEnd) const {
        const Line& last = m_lines[nEnd - 1];
        const char16_t* const pText = m_lines[nFirst].pText;
        return {pText, static_cast<std::size_t>(last.pText - pText) + last.nLength};
    }

    std::u16string m_sText;
    std::vector<Line> m_lines;
    std::deque<Changed> m_changed;
};

} // namespace orvanta
