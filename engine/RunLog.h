#pragma once

#include "engine/EngineWorld.h"

#include "base/ResumeNext.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace orvanta {

// Plain colours of log cells, 0x00BBGGRR.
inline constexpr std::int32_t kRed = 255;
inline constexpr std::int32_t kDarkGreen = 32768;
inline constexpr std::int32_t kBrightGreen = 65280;
inline constexpr std::int32_t kYellow = 65535;
inline constexpr std::int32_t kBlue = 16711680;

// Writes the rows of one run, and is the trap of the per-file routines: a failing step shows its description in a box,
// and the run goes on with the next step.
class RunLog {
public:
    enum class Columns { SourceLineDescription, SourceDescription };

    // Both are used until the run ends; neither is owned.
    RunLog(EngineWorld& world, LogGrid& fxgrid, Columns columns)
        : m_world(world), m_fxgrid(fxgrid), m_columns(columns) {}

    template<typename Action>
    bool Step(Action&& action) {
        return ResumeNext([this](const Failure& failure) { m_world.UniMsgError(failure.Description()); },
                          std::forward<Action>(action));
    }

    // The cells of a row; only the description can have a colour. nLine is an index into the file's lines.
    void Source(std::u16string_view sSource, std::u16string_view sDescription);
    void SourceError(std::u16string_view sSource, std::u16string_view sDescription);
    void Line(std::size_t nLine, std::u16string_view sDescription, std::int32_t lForeColor);
    void LineMarked(std::size_t nLine, std::u16string_view sDescription, std::int32_t lBackColor);
    void Description(std::u16string_view sDescription);
    void DescriptionColored(std::u16string_view sDescription, std::int32_t lForeColor);
    void DescriptionMarked(std::u16string_view sDescription, std::int32_t lBackColor);
    void Empty();

private:
    void Add(std::u16string_view sSource, std::u16string_view sLine, std::u16string_view sDescription);
    void AddText(std::u16string_view sRowText);
    void ForeColor(std::int32_t lColor);
    void BackColor(std::int32_t lColor);

    EngineWorld& m_world;
    LogGrid& m_fxgrid;
    Columns m_columns;
    std::u16string m_sRow; // kept for its room
};

} // namespace orvanta
