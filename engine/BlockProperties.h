#pragma once

#include "engine/LineArray.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvanta {

// What the start of a line, leading blanks aside, makes of it in a form description. Tests are case-sensitive. Any line
// that starts "End" closes a block, `EndCap = 1` too; only "EndProperty" is told apart.
enum class LineKind : std::uint8_t { Plain, Begin, End, BeginProperty, EndProperty };

// The lines that open or close something, in file order, with the partner of each opening one. It is made once per file
// from the lines as read and stays true while the file is worked on: a rebuilt `Begin ` line is still one, and the
// lines that BlockProperties changes are plain before and after.
class BlockStructure {
public:
    struct Mark {
        std::uint32_t nLine;
        std::uint32_t nPartner; // position in Marks() of the mark that closes this one; kOpen when none does
        LineKind kind;
    };
    static constexpr std::uint32_t kOpen = 0xFFFFFFFFu;

    explicit BlockStructure(const LineArray& aLines);
    const std::vector<Mark>& Marks() const { return m_marks; }

private:
    std::vector<Mark> m_marks;
};

// The properties of one control block, reached by name. Levels count control blocks and property groups alike, so only
// the block's own properties are seen: neither those of a nested control nor those inside a group. Names compare
// without regard to case; the first line with the name is the one.
class BlockProperties {
public:
    BlockProperties(LineArray& aLines, const BlockStructure& structure) : m_aLines(aLines), m_structure(structure) {}

    // nMark: position of the block's `Begin ` line among the structure's marks.
    // The trimmed text behind the "=", quotes and comments included; empty when there is no such line or nothing behind
    // it.
    std::u16string_view GetBlockProperty(std::size_t nMark, std::u16string_view sProperty) const;

    // Rewrites the line as sNewProperty & "=" & value, at the first column and without blanks around the "=". Without
    // vNewValue the old value stays; an empty new value is not the same as none. False when there is no such line.
    bool ChangeBlockProperty(std::size_t nMark, std::u16string_view sProperty, std::u16string_view sNewProperty,
                             std::optional<std::u16string_view> vNewValue = std::nullopt);

private:
    struct Found {
        std::size_t nLine;
        std::u16string_view sValue;
    };
    std::optional<Found> Find(std::size_t nMark, std::u16string_view sProperty) const;

    LineArray& m_aLines;
    const BlockStructure& m_structure;
};

} // namespace orvanta
