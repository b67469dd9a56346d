#include "wizard/WizardSteps.h"

#include "base/Collection.h"
#include "base/Failure.h"
#include "base/ResumeNext.h"
#include "base/Text.h"
#include "engine/ControlCatalogue.h"
#include "engine/cVbpMigrator.h"
#include "files/PathRules.h"
#include "wizard/LogText.h"

#include <string>

namespace orvanta {

namespace {

// The same words for both runs, and they name a button that is captioned "Close": keep them.
constexpr std::u16string_view kRunFailed = u"Error on the Upgrade process. Press Exit to Quit the program";

} // namespace

void WizardSteps::Form_Load() {
    m_iStep = 0;
    NextStep();
    FillControlsList();
}

void WizardSteps::btnOp_Click() {
    if (CanLeaveStep()) NextStep();
}

void WizardSteps::btnClose_Click() {
    m_view.Unload();
}

void WizardSteps::btnBrowse_Click() {
    using namespace std::string_literals;
    constexpr std::int32_t kPathMustExist = 0x800;
    constexpr std::int32_t kFileMustExist = 0x1000;
    std::int32_t lFlags = kPathMustExist | kFileMustExist;
    m_view.txtProject(
        m_view.ShowOpen(u"VB6 Files (*.vbp)\0*.vbp\0"s, u"Open VB6 project", lFlags, m_view.AppPath(), u"", u""));
}

void WizardSteps::btnSaveToLog_Click() {
    // The number as the user of this platform knows it: signed.
    ResumeNext(
        [this](const Failure& failure) {
            const auto lNumber = static_cast<std::int32_t>(failure.Number());
            m_world.UniMsgError(Concat({u"(", DecimalText(lNumber), u") ", failure.Description()}));
        },
        [this] { SaveLog(); });
}

void WizardSteps::SaveLog() {
    constexpr std::int32_t kPathMustExist = 0x800;
    constexpr std::int32_t kOverwritePrompt = 0x2;
    std::int32_t lFlags = kPathMustExist | kOverwritePrompt;
    const std::u16string sPath = m_view.ShowSave(FilterAllFiles(), u"Save log...", lFlags, u"", u"log.txt", 0, u"");
    if (sPath.empty()) return;
    const bool bSaved = m_world.st_StringToTextFile(sPath, LogText(m_view.fxgrid()), feAnsi, false);
    // The stop icon for the good news too.
    m_world.UniMsgError(bSaved ? u"The log has been saved!" : u"An error occurred while saving the file...");
}

bool WizardSteps::CanLeaveStep() {
    if (m_iStep != 2) return true;
    const std::u16string sProject = m_view.txtProject();
    if (sProject.empty()) {
        m_world.UniMsgError(u"Please choose a project file");
        return false;
    }
    if (!m_world.st_FileExist(sProject)) {
        m_world.UniMsgError(u"The file you chosen doesn't exist");
        return false;
    }
    return true;
}

void WizardSteps::NextStep() {
    m_iStep = static_cast<std::int16_t>(m_iStep + 1);
    ShowStep();
}

void WizardSteps::ShowStep() {
    const bool bRun = m_iStep == 3 || m_iStep == 5;
    m_view.Visible(StepControl::frmChooseProject, m_iStep == 2);
    m_view.Visible(StepControl::frmGrid, bRun);
    m_view.Visible(StepControl::btnClose, bRun);
    m_view.Visible(StepControl::frmFiles, m_iStep == 4);
    m_view.Visible(StepControl::btnSaveToLog, bRun);

    switch (m_iStep) {
    case 1:
        m_view.lblInfo(u"\r\nStep 1\r\n\r\nBefore converting or upgrading your project please backup it");
        m_view.btnOpCaption(u"Next >>");
        break;
    case 2:
        m_view.lblInfo(u"\r\nStep 2\r\n\r\nChoose the Visual Basic Project to convert/upgrade");
        m_view.btnOpCaption(u"Upgrade >>");
        m_view.txtProject(u"");
        break;
    case 3: ShowUpgrade(); break;
    case 4: ShowFiles(); break;
    case 5: ShowConvert(); break;
    default: // "Another..."
        m_view.txtProject(u"");
        m_iStep = 0;
        NextStep();
        break;
    }
}

void WizardSteps::ShowUpgrade() {
    m_view.lblInfo(u"\r\nUpgrading...");
    m_view.frmGridCaption(u"Upgrade Process");
    m_view.btnOpCaption(u"Next >>");
    if (!cVbpMigrator(m_world).Upgrade(m_view.txtProject(), m_fxgrid)) {
        m_view.lblInfo(kRunFailed);
        m_view.btnOpEnabled(false);
        return;
    }
    m_view.lblInfo(u"\r\nStep 3\r\n\r\nThe project has been upgraded.\r\n"
                   u"Remember to use the CTRL+F5 to compile and Run the project!\r\n"
                   u"Click Next to convert the project or Close to exit...");
}

void WizardSteps::ShowFiles() {
    m_view.lblInfo(u"\r\nStep 4\r\n\r\nChoose the files to convert then press the 'Convert' button");
    m_view.btnOpCaption(u"Convert >>");
    Collection<std::u16string> oCollFiles;
    bool bLibraryReferenced = false;
    cVbpMigrator(m_world).GetProjectCollFiles(m_view.txtProject(), oCollFiles, bLibraryReferenced);
    WizardList& lstFiles = m_view.lstFiles();
    lstFiles.BeginUpdate();
    lstFiles.Clear();
    for (std::size_t n = 1; n <= oCollFiles.Count(); ++n) {
        const std::u16string& sPath = oCollFiles.Item(n);
        lstFiles.AddItem(ufu_FileName(sPath), -1, sPath, true);
    }
    lstFiles.EndUpdate();
}

void WizardSteps::ShowConvert() {
    m_view.lblInfo(u"\r\nConverting...");
    m_view.frmGridCaption(u"Convert Process");
    Collection<std::u16string> oCollFiles;
    const WizardList& lstFiles = m_view.lstFiles();
    const std::int32_t nCount = lstFiles.ListCount();
    for (std::int32_t i = 0; i < nCount; ++i) {
        if (lstFiles.Selected(i)) oCollFiles.Add(lstFiles.ListTag(i));
    }
    const bool bUseTextLikeCombos = m_view.chkUseTextLikeCombosPressed();
    const bool bUseComboImages = m_view.chkComboImagesPressed();
    if (cVbpMigrator(m_world).Convert(m_view.txtProject(), oCollFiles, m_fxgrid, bUseTextLikeCombos, bUseComboImages)) {
        m_view.lblInfo(u"\r\nStep 5\r\n\r\nThe project has been converted; see the list for warnings on lines you may "
                       u"need to change. Remember to use the CTRL+F5 to compile and Run the project!");
    } else {
        m_view.lblInfo(kRunFailed);
        m_view.btnOpEnabled(false);
    }
    m_view.btnOpCaption(u"Another...");
    FillControlsList();
}

void WizardSteps::FillControlsList() {
    WizardList& lstControls = m_view.lstControls();
    lstControls.BeginUpdate();
    lstControls.Clear();
    for (int iKind = 0; iKind < kKindCount; ++iKind)
        lstControls.AddItem(KindCaption(iKind), -1, u"", false);
    const std::int32_t nCount = lstControls.ListCount();
    for (std::int32_t i = 0; i < nCount; ++i)
        lstControls.Selected(i, true);
    lstControls.EndUpdate();
}

} // namespace orvanta
