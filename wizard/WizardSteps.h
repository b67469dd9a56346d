#pragma once

#include "engine/EngineWorld.h"
#include "wizard/WizardView.h"

#include <cstdint>

namespace orvanta {

// The wizard behind its window: five steps, one forward button, no way back. The window calls the event handlers, and
// everything that they do goes to the window's controls, to the engine and to message boxes.
//
//   1 warning - 2 choice of a project - 3 upgrade - 4 choice of files and controls - 5 conversion - (6) 1 again
//
// The only state is the number of the step; the user's choices are what the controls show.
class WizardSteps {
public:
    // All three are used and not owned. The world's Selected is the window's list of control kinds; the log grid is the
    // one that the view shows as its table.
    WizardSteps(WizardView& view, EngineWorld& world, LogGrid& fxgrid)
        : m_view(view), m_world(world), m_fxgrid(fxgrid) {}

    void Form_Load();
    // Forward, unless the step keeps the user back with a message box.
    void btnOp_Click();
    // Lets the user choose a project. Whatever comes back is taken, so a cancelled dialog empties the box.
    void btnBrowse_Click();
    // Saves the log as text in the ANSI code page. Failures show in a message box.
    void btnSaveToLog_Click();
    void btnClose_Click();

    // 0 before Form_Load, then 1 to 5.
    std::int16_t iStep() const { return m_iStep; }

private:
    void ShowStep();
    void NextStep();
    bool CanLeaveStep();
    void FillControlsList();

    void ShowUpgrade();
    void ShowFiles();
    void ShowConvert();
    void SaveLog();

    WizardView& m_view;
    EngineWorld& m_world;
    LogGrid& m_fxgrid;
    std::int16_t m_iStep = 0;
};

} // namespace orvanta
