#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace orvanta {

// The events whose handlers the code pass rewrites.
enum class HandlerEvent : std::uint8_t { KeyPress, Click, DblClick };
inline constexpr std::size_t kHandlerEventCount = 3;
std::u16string_view EventSuffix(HandlerEvent event); // "_KeyPress", "_Click", "_DblClick"

// For each control name and event: the lines in which the handler's name stands, at any position and inside longer
// words too. A line stays listed when it no longer has the name, so a user looks again.
class HandlerIndex {
public:
    using Name = std::uint32_t;
    static constexpr std::uint32_t kNone = 0xFFFFFFFFu;

    // Equal names share an entry. The names must outlive the index.
    explicit HandlerIndex(const std::vector<std::u16string>& names);

    Name NameOf(std::u16string_view sName) const { return m_names.at(sName); }

    // Lists the line under every handler that stands in it. Lines may come in any order and more than once.
    void AddLine(std::uint32_t nLine, std::u16string_view sLine);
    // Likewise, for the handlers whose event begins with the "_" at nAt.
    void AddUnderscore(std::uint32_t nLine, std::u16string_view sLine, std::size_t nAt);

    // The listed lines in ascending order.
    const std::vector<std::uint32_t>& Lines(Name name, HandlerEvent event) const;
    bool IsListed(Name name, HandlerEvent event, std::uint32_t nLine) const;
    // The first line from nFrom on that is listed for any event of the name, or kNone.
    std::uint32_t Next(Name name, std::uint32_t nFrom) const;

private:
    std::unordered_map<std::u16string_view, Name> m_names;
    std::vector<std::size_t> m_lengths; // the different lengths of the names
    std::vector<std::array<std::vector<std::uint32_t>, kHandlerEventCount>> m_lines;
};

} // namespace orvanta
