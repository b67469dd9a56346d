#pragma once

#include "base/UnitScan.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <initializer_list>
#include <memory>
#include <span>
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
    void Set(std::size_t nLine, std::u16string_view sText) { SetPieces(nLine, {sText}); }
    // The pieces one behind the other. They may be parts of the line as it stands.
    void SetPieces(std::size_t nLine, std::initializer_list<std::u16string_view> pieces);

    // Calls visit(line, position in the line) for each match of the tests (see UnitScan.h) within a line, from line
    // nFirst on and from first to last. The tests pass no CR or LF. No line may be set meanwhile.
    template<typename... Tests, typename Visit>
    void ForEachMatchInLines(std::size_t nFirst, Visit&& visit) const {
        if (nFirst >= m_lines.size()) return;
        // The text as read is searched in one go; matches in lines that have been changed since are passed over, and
        // the line's own text is searched when the search comes to it.
        std::size_t nLine = nFirst;
        const auto enterLine = [&] {
            if (m_lines[nLine].nOwn == kAsRead) return;
            ForEachMatch<Tests...>((*this)[nLine], [&](std::size_t nAt) { visit(nLine, nAt); });
        };
        const std::size_t nStart = m_lines[nFirst].nAsRead;
        enterLine();
        ForEachMatch<Tests...>(std::u16string_view(m_sText).substr(nStart), [&](std::size_t nAt) {
            nAt += nStart;
            for (; nLine + 1 < m_lines.size() && m_lines[nLine + 1].nAsRead <= nAt; enterLine())
                ++nLine;
            if (m_lines[nLine].nOwn == kAsRead) visit(nLine, nAt - m_lines[nLine].nAsRead);
        });
        while (++nLine < m_lines.size())
            enterLine();
    }

    // Every line followed by CR LF, the last one too: a text that ended in CR LF comes out one empty line longer.
    std::u16string Join() const;

private:
    // Where a line's text is: in the text as read, among the first changes, or (and from here on counted) rewritten.
    static constexpr std::uint32_t kAsRead = 0;
    static constexpr std::uint32_t kChanged = 1;
    static constexpr std::uint32_t kRewritten = 2;

    struct Line {
        const char16_t* pText;
        std::uint32_t nLength;
        std::uint32_t nAsRead; // where the line begins in m_sText
        std::uint32_t nOwn;
    };

    // Room for so many code units, until the object goes.
    char16_t* TakeRoom(std::size_t nUnits);

    std::u16string m_sText;
    std::vector<Line> m_lines;
    std::size_t m_nJoined = 0; // length of the joined text
    // A line's first change lies in one of few large pieces of room, as nearly all changed lines change once. A line
    // that changes again gets a text of its own, so that no old ones pile up.
    std::vector<std::unique_ptr<char16_t[]>> m_pieces;
    std::span<char16_t> m_room; // what is free of the last piece
    std::deque<std::u16string> m_rewritten;
};

} // namespace orvanta
