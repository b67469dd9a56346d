#pragma once

#include "engine/BlockProperties.h"
#include "engine/ControlCatalogue.h"
#include "engine/EngineWorld.h"
#include "engine/RunLog.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace orvanta {

// The run's two options about combo boxes.
struct ComboOptions {
    bool bUseTextLikeCombos = false; // drop-down lists become text-like combos
    bool bUseComboImages = false;    // drop-down lists become image combos; goes before the other
};

// Applies the catalogue to the control blocks of one file: renumbers and renames properties, writes the rows about
// them, counts, and keeps the names of the text boxes.
class ControlRules {
public:
    struct Block {
        std::size_t nMark; // position of the `Begin ` line among the structure's marks
        std::size_t nLine; // its index in the line array
        std::u16string_view sType;
        std::u16string_view sName;
    };
    struct Outcome {
        bool bConverted = false;
        std::u16string_view sTarget;
        std::u16string_view sExtraLines; // CR LF and a property line, or empty
    };

    ControlRules(EngineWorld& world, RunLog& log, BlockProperties& properties, ComboOptions options)
        : m_world(world), m_log(log), m_properties(properties), m_options(options) {}

    // What becomes of the block's type. Property lines further down may change.
    Outcome Apply(const Block& block);
    // Moves a tip text; for converted controls, after their `Begin ` line was rebuilt.
    void MoveToolTip(const Block& block);

    std::int32_t Converted() const { return m_lConverted; }
    std::int32_t Count(Warning warning) const { return m_counts.at(static_cast<std::size_t>(warning)); }
    const std::vector<std::u16string>& TextBoxes() const { return m_textBoxes; }

private:
    bool KindSelected(int iKind);
    char16_t FirstOf(const Block& block, std::u16string_view sProperty) const;
    void SetStyle(const Block& block, std::u16string_view sStyle);
    void CountWarning(Warning warning) { ++m_counts.at(static_cast<std::size_t>(warning)); }

    void ApplyValue(const Block& block, Outcome& outcome);
    void ApplyCombo(const Block& block, Outcome& outcome);
    void ApplyLibraryCombo(const Block& block, Outcome& outcome);

    EngineWorld& m_world;
    RunLog& m_log;
    BlockProperties& m_properties;
    ComboOptions m_options;
    std::int32_t m_lConverted = 0;
    std::array<std::int32_t, kWarningCount> m_counts{};
    std::vector<std::u16string> m_textBoxes;
};

} // namespace orvanta
