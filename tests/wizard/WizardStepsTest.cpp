#include "wizard/WizardSteps.h"

#include "tests/engine/EngineRun.h"
#include "tests/support/Unicode.h"
#include "tests/wizard/FakeWizard.h"

#include <gtest/gtest.h>

namespace orvanta {
namespace {

using testing::kProjectPath;

constexpr std::u16string_view kStep1 =
    u"\r\nStep 1\r\n\r\nBefore converting or upgrading your project please backup it";
constexpr std::u16string_view kStep2 = u"\r\nStep 2\r\n\r\nChoose the Visual Basic Project to convert/upgrade";
constexpr std::u16string_view kStep3 =
    u"\r\nStep 3\r\n\r\nThe project has been upgraded.\r\nRemember to use the CTRL+F5 to compile and Run the "
    u"project!\r\nClick Next to convert the project or Close to exit...";
constexpr std::u16string_view kStep4 = u"\r\nStep 4\r\n\r\nChoose the files to convert then press the 'Convert' button";
constexpr std::u16string_view kStep5 =
    u"\r\nStep 5\r\n\r\nThe project has been converted; see the list for warnings on lines you may need to change. "
    u"Remember to use the CTRL+F5 to compile and Run the project!";
constexpr std::u16string_view kError = u"Error on the Upgrade process. Press Exit to Quit the program";

const std::string kTwoForms = "Form=a.frm\r\nForm=Sub\\b.frm\r\nObject={1}#1.0#0; Orvanta28.ocx\r\n";
const std::string kLabelForm = "Begin VB.Form Form1\r\n  Begin VB.Label L\r\n  End\r\nEnd\r\n";

class WizardStepsTest : public ::testing::Test {
protected:
    WizardStepsTest() {
        grid.view = &view;
        world.files.Put(kProjectPath, kTwoForms);
        world.files.Put(u"C:\\Work\\a.frm", kLabelForm);
        world.files.Put(u"C:\\Work\\Sub\\b.frm", kLabelForm);
    }

    // Loads the form and goes on to a step, choosing the project at step 2.
    void GoTo(std::int16_t iStep) {
        steps.Form_Load();
        GoOnTo(iStep);
    }
    void GoOnTo(std::int16_t iStep) {
        while (steps.iStep() != iStep) {
            if (steps.iStep() == 2) view.sProject = kProjectPath;
            steps.btnOp_Click();
        }
    }
    bool Converted(const std::u16string& sPath) const {
        return world.files.Bytes(sPath).find("Begin Orvanta.ctlUniLabel L") != std::string::npos;
    }
    std::vector<std::string> Boxes() const {
        std::vector<std::string> boxes;
        for (const auto& sBox : world.files.boxes)
            boxes.push_back(testing::ToUtf8(sBox));
        return boxes;
    }

    testing::RecordedLog log;
    testing::FakeWizardView view{log};
    testing::FakeWizardWorld world{view};
    testing::WatchedGrid grid{log};
    WizardSteps steps{view, world, grid};
};

TEST_F(WizardStepsTest, IsAtNoStepBeforeItsFormIsLoaded) {
    EXPECT_EQ(steps.iStep(), 0);
}

TEST_F(WizardStepsTest, LoadShowsStepOneWithNoFrameAndNoSideButton) {
    steps.Form_Load();
    EXPECT_EQ(steps.iStep(), 1);
    EXPECT_EQ(view.Info(), kStep1);
    EXPECT_EQ(view.sBtnOp, u"Next >>");
    EXPECT_EQ(view.Shown(), u"");
    EXPECT_TRUE(view.bBtnOpEnabled);
}

TEST_F(WizardStepsTest, LoadFillsTheListOfControlKindsInTheirOrderAllSelected) {
    steps.Form_Load();
    const std::vector<testing::FakeList::Item> expected = {
        {u"TextBox", u"", true},       {u"Label", u"", true},       {u"Frame", u"", true},
        {u"CommandButton", u"", true}, {u"CheckBox", u"", true},    {u"OptionButton", u"", true},
        {u"ComboBox", u"", true},      {u"ListBox", u"", true},     {u"DriveListBox", u"", true},
        {u"DirListBox", u"", true},    {u"FileListBox", u"", true}, {u"MSComctlLib.ProgressBar", u"", true}};
    EXPECT_EQ(view.controls.items, expected);
    ASSERT_EQ(view.controls.calls.size(), 27u);
    EXPECT_EQ(view.controls.calls[0], u"BeginUpdate");
    EXPECT_EQ(view.controls.calls[1], u"Clear");
    EXPECT_EQ(view.controls.calls[13], u"AddItem MSComctlLib.ProgressBar");
    EXPECT_EQ(view.controls.calls[14], u"Selected");
    EXPECT_EQ(view.controls.calls[26], u"EndUpdate");
}

TEST_F(WizardStepsTest, StepTwoAsksForAProject) {
    view.sProject = u"left over";
    GoTo(2);
    EXPECT_EQ(view.Info(), kStep2);
    EXPECT_EQ(view.sBtnOp, u"Upgrade >>");
    EXPECT_EQ(view.Shown(), u"frmChooseProject");
    EXPECT_EQ(view.sProject, u"");
}

TEST_F(WizardStepsTest, StepTwoWithAnEmptyBoxShowsAMessageAndStays) {
    GoTo(2);
    steps.btnOp_Click();
    EXPECT_EQ(Boxes(), std::vector<std::string>{"Please choose a project file"});
    EXPECT_EQ(steps.iStep(), 2);
    EXPECT_EQ(view.Shown(), u"frmChooseProject");
}

TEST_F(WizardStepsTest, StepTwoWithAMissingFileShowsAMessageAndStays) {
    GoTo(2);
    view.sProject = u"C:\\Work\\Gone.vbp";
    steps.btnOp_Click();
    EXPECT_EQ(Boxes(), std::vector<std::string>{"The file you chosen doesn't exist"});
    EXPECT_EQ(steps.iStep(), 2);
    EXPECT_EQ(view.sProject, u"C:\\Work\\Gone.vbp");
}

TEST_F(WizardStepsTest, StepTwoLetsTheUserTryAgain) {
    GoTo(2);
    steps.btnOp_Click();
    view.sProject = kProjectPath;
    steps.btnOp_Click();
    EXPECT_EQ(steps.iStep(), 3);
}

TEST_F(WizardStepsTest, StepThreeUpgradesTheProjectAndTellsSo) {
    GoTo(3);
    EXPECT_EQ(view.Info(), kStep3);
    EXPECT_EQ(view.sBtnOp, u"Next >>");
    EXPECT_EQ(view.sGridCaption, u"Upgrade Process");
    EXPECT_EQ(view.Shown(), u"frmGrid btnClose btnSaveToLog");
    EXPECT_TRUE(view.bBtnOpEnabled);
    EXPECT_EQ(testing::RowTexts(log),
              (std::vector<std::string>{"a.frm|Skipped...", "b.frm|Skipped...", "App.vbp|Upgraded..."}));
    EXPECT_TRUE(world.files.boxes.empty());
}

TEST_F(WizardStepsTest, StepThreeSaysUpgradingWhileItRuns) {
    GoTo(3);
    EXPECT_EQ(grid.sInfoAtClear, u"\r\nUpgrading...");
    EXPECT_EQ(grid.sCaptionAtClear, u"Upgrade Process");
    EXPECT_EQ(grid.sBtnOpAtClear, u"Next >>");
}

TEST_F(WizardStepsTest, ProjectWithoutTheLibraryStopsAtStepThreeWithTheButtonDisabled) {
    world.files.Put(kProjectPath, "Form=a.frm\r\n");
    GoTo(3);
    EXPECT_EQ(view.Info(), kError);
    EXPECT_FALSE(view.bBtnOpEnabled);
    EXPECT_EQ(steps.iStep(), 3);
    EXPECT_EQ(view.Shown(), u"frmGrid btnClose btnSaveToLog");
    EXPECT_EQ(Boxes(), std::vector<std::string>{
                           "Library \"Orvanta\" not referenced, please add the reference to the project first."});
    EXPECT_TRUE(log.Columns().empty());
}

TEST_F(WizardStepsTest, ProjectWithoutMembersStopsAtStepThreeToo) {
    world.files.Put(kProjectPath, "Object={1}#1.0#0; Orvanta28.ocx\r\n");
    GoTo(3);
    EXPECT_EQ(view.Info(), kError);
    EXPECT_FALSE(view.bBtnOpEnabled);
    EXPECT_EQ(Boxes(), std::vector<std::string>{"An error occured while reading the project files, no files found."});
}

TEST_F(WizardStepsTest, StepFourListsTheProjectsFilesAllChecked) {
    GoTo(4);
    EXPECT_EQ(view.Info(), kStep4);
    EXPECT_EQ(view.sBtnOp, u"Convert >>");
    EXPECT_EQ(view.Shown(), u"frmFiles");
    EXPECT_EQ(view.files.items, (std::vector<testing::FakeList::Item>{{u"a.frm", u"C:\\Work\\a.frm", true},
                                                                      {u"b.frm", u"C:\\Work\\Sub\\b.frm", true}}));
    EXPECT_EQ(view.files.places, (std::vector<std::int32_t>{-1, -1}));
    EXPECT_EQ(view.files.calls, (std::vector<std::u16string>{u"BeginUpdate", u"Clear", u"AddItem a.frm",
                                                             u"AddItem b.frm", u"EndUpdate"}));
}

TEST_F(WizardStepsTest, StepFourDoesNotAskForTheLibrary) {
    GoTo(3);
    world.files.Put(kProjectPath, "Form=a.frm\r\n");
    steps.btnOp_Click();
    EXPECT_EQ(view.files.items.size(), 1u);
    EXPECT_TRUE(world.files.boxes.empty());
}

TEST_F(WizardStepsTest, StepFiveConvertsTheProjectAndTellsSo) {
    GoTo(5);
    EXPECT_EQ(view.Info(), kStep5);
    EXPECT_EQ(view.sBtnOp, u"Another...");
    EXPECT_EQ(view.sGridCaption, u"Convert Process");
    EXPECT_EQ(view.Shown(), u"frmGrid btnClose btnSaveToLog");
    EXPECT_TRUE(view.bBtnOpEnabled);
    EXPECT_EQ(log.Columns().size(), 3u);
    EXPECT_TRUE(Converted(u"C:\\Work\\a.frm"));
    EXPECT_TRUE(Converted(u"C:\\Work\\Sub\\b.frm"));
}

TEST_F(WizardStepsTest, StepFiveSaysConvertingWhileItRuns) {
    GoTo(5);
    EXPECT_EQ(grid.sInfoAtClear, u"\r\nConverting...");
    EXPECT_EQ(grid.sCaptionAtClear, u"Convert Process");
    EXPECT_EQ(grid.sBtnOpAtClear, u"Convert >>");
}

TEST_F(WizardStepsTest, StepFiveConvertsTheCheckedFilesAlone) {
    GoTo(4);
    view.files.items[0].bSelected = false;
    steps.btnOp_Click();
    EXPECT_FALSE(Converted(u"C:\\Work\\a.frm"));
    EXPECT_TRUE(Converted(u"C:\\Work\\Sub\\b.frm"));
}

TEST_F(WizardStepsTest, StepFiveWithAllFilesUncheckedReportsSuccessOverAnEmptyLog) {
    GoTo(4);
    for (auto& item : view.files.items)
        item.bSelected = false;
    steps.btnOp_Click();
    EXPECT_EQ(view.Info(), kStep5);
    EXPECT_TRUE(view.bBtnOpEnabled);
    EXPECT_EQ(log.Columns().size(), 3u);
    EXPECT_TRUE(log.Rows().empty());
    EXPECT_FALSE(Converted(u"C:\\Work\\a.frm"));
}

TEST_F(WizardStepsTest, KindsSwitchedOffHaveTheirEffectAndAreOnAgainAtAnother) {
    GoTo(4);
    view.controls.items[1].bSelected = false; // Label
    steps.btnOp_Click();
    EXPECT_FALSE(Converted(u"C:\\Work\\a.frm"));
    EXPECT_EQ(view.sBtnOp, u"Another...");
    ASSERT_EQ(view.controls.items.size(), 12u);
    for (const auto& item : view.controls.items)
        EXPECT_TRUE(item.bSelected);
}

TEST_F(WizardStepsTest, OptionsReachTheConversion) {
    const std::string sCombo = "Begin VB.Form F\r\n  Begin VB.ComboBox C\r\n    Style = 2\r\n  End\r\nEnd\r\n";
    world.files.Put(u"C:\\Work\\a.frm", sCombo);
    view.bTextLikeCombos = true;
    GoTo(5);
    EXPECT_NE(world.files.Bytes(u"C:\\Work\\a.frm").find("Style=3"), std::string::npos);

    world.files.Put(u"C:\\Work\\a.frm", sCombo);
    view.bTextLikeCombos = false;
    view.bComboImages = true;
    GoOnTo(1);
    GoOnTo(5);
    EXPECT_NE(world.files.Bytes(u"C:\\Work\\a.frm").find("Orvanta.ctlUniComboImageXP"), std::string::npos);
}

TEST_F(WizardStepsTest, FailedConversionKeepsTheWordsOfTheUpgradeAndCannotGoOn) {
    GoTo(4);
    world.files.Put(kProjectPath, "Form=a.frm\r\n");
    view.controls.items[1].bSelected = false;
    steps.btnOp_Click();
    EXPECT_EQ(view.Info(), kError);
    EXPECT_FALSE(view.bBtnOpEnabled);
    EXPECT_EQ(view.sBtnOp, u"Another...");
    EXPECT_TRUE(view.controls.items[1].bSelected);
    EXPECT_EQ(steps.iStep(), 5);
}

TEST_F(WizardStepsTest, AnotherGoesBackToStepOneWithAnEmptyBox) {
    GoTo(5);
    steps.btnOp_Click();
    EXPECT_EQ(steps.iStep(), 1);
    EXPECT_EQ(view.sProject, u"");
    EXPECT_EQ(view.Info(), kStep1);
    EXPECT_EQ(view.sBtnOp, u"Next >>");
    EXPECT_EQ(view.Shown(), u"");
}

TEST_F(WizardStepsTest, OptionsSurviveAnother) {
    view.bTextLikeCombos = view.bComboImages = true;
    GoTo(5);
    steps.btnOp_Click();
    EXPECT_TRUE(view.bTextLikeCombos && view.bComboImages);
}

TEST_F(WizardStepsTest, FilesAndLogStayUntilTheNextRunFillsThemAnew) {
    GoTo(5);
    const std::size_t nRows = log.Rows().size();
    GoOnTo(2);
    EXPECT_EQ(view.files.items.size(), 2u);
    EXPECT_EQ(log.Rows().size(), nRows);
    world.files.Put(kProjectPath, "Form=a.frm\r\nTitle=Orvanta\r\n");
    GoOnTo(3);
    EXPECT_EQ(log.Columns().size(), 2u);
    EXPECT_EQ(view.files.items.size(), 2u);
    GoOnTo(4);
    EXPECT_EQ(view.files.items.size(), 1u);
}

TEST_F(WizardStepsTest, AnotherLeadsThroughAllStepsTwice) {
    GoTo(5);
    GoOnTo(1);
    world.files.Put(u"C:\\Work\\a.frm", kLabelForm);
    GoOnTo(5);
    EXPECT_TRUE(Converted(u"C:\\Work\\a.frm"));
    GoOnTo(1);
    GoOnTo(5);
    EXPECT_EQ(view.Info(), kStep5);
    EXPECT_TRUE(world.files.boxes.empty());
}

TEST_F(WizardStepsTest, NothingEverEnablesTheForwardButtonAgain) {
    world.files.Put(kProjectPath, "Form=a.frm\r\n");
    GoTo(3);
    world.files.Put(kProjectPath, kTwoForms);
    GoOnTo(5);
    EXPECT_FALSE(view.bBtnOpEnabled);
}

TEST_F(WizardStepsTest, CloseUnloadsTheWindowWithoutAsking) {
    GoTo(3);
    steps.btnClose_Click();
    EXPECT_TRUE(view.bUnloaded);
    EXPECT_TRUE(world.files.boxes.empty());
}

TEST_F(WizardStepsTest, BrowseAsksForAnExistingProjectInTheProgramsFolder) {
    GoTo(2);
    view.sDialogAnswer = kProjectPath;
    steps.btnBrowse_Click();
    EXPECT_EQ(view.dialog.sFilter, std::u16string(u"VB6 Files (*.vbp)\0*.vbp\0", 24));
    EXPECT_EQ(view.dialog.sTitle, u"Open VB6 project");
    EXPECT_EQ(view.dialog.lFlags, 6144);
    EXPECT_EQ(view.dialog.sStartDir, u"C:\\Program");
    EXPECT_EQ(view.dialog.sDefExt, u"");
    EXPECT_EQ(view.dialog.sDefaultFile, u"");
    EXPECT_EQ(view.sProject, kProjectPath);
}

TEST_F(WizardStepsTest, BrowseTakesTheResultWithoutATest) {
    GoTo(2);
    view.sDialogAnswer = u"no project at all";
    steps.btnBrowse_Click();
    EXPECT_EQ(view.sProject, u"no project at all");
    EXPECT_TRUE(world.files.boxes.empty());
}

TEST_F(WizardStepsTest, CancelledBrowseAfterAValidChoiceEmptiesTheBox) {
    GoTo(2);
    view.sDialogAnswer = kProjectPath;
    steps.btnBrowse_Click();
    view.sDialogAnswer = u"";
    steps.btnBrowse_Click();
    EXPECT_EQ(view.sProject, u"");
    steps.btnOp_Click();
    EXPECT_EQ(Boxes(), std::vector<std::string>{"Please choose a project file"});
}

TEST_F(WizardStepsTest, SaveLogProposesLogTxtAndAsksBeforeOverwriting) {
    GoTo(3);
    steps.btnSaveToLog_Click();
    EXPECT_EQ(view.dialog.sFilter, std::u16string(u"All Files (*.*)\0*.*\0", 20));
    EXPECT_EQ(view.dialog.sTitle, u"Save log...");
    EXPECT_EQ(view.dialog.lFlags, 2050);
    EXPECT_EQ(view.dialog.sStartDir, u"");
    EXPECT_EQ(view.dialog.sDefaultFile, u"log.txt");
    EXPECT_EQ(view.dialog.iFilterIndex, 0);
    EXPECT_EQ(view.dialog.sDefExt, u"");
}

TEST_F(WizardStepsTest, CancelledSaveLogWritesNothingAndShowsNoMessage) {
    GoTo(3);
    const std::size_t nWrites = world.files.writes.size();
    steps.btnSaveToLog_Click();
    EXPECT_EQ(view.nDialogs, 1);
    EXPECT_EQ(world.files.writes.size(), nWrites);
    EXPECT_TRUE(world.files.boxes.empty());
}

TEST_F(WizardStepsTest, SavedLogIsTheTextInTheAnsiCodePage) {
    GoTo(3);
    view.table.widths = {50, 60};
    view.sDialogAnswer = u"C:\\Work\\log.txt";
    steps.btnSaveToLog_Click();
    EXPECT_EQ(world.files.Bytes(u"C:\\Work\\log.txt"), "Source    , Description \r\n\r\n"
                                                       "a.frm     , Skipped...  \r\n"
                                                       "b.frm     , Skipped...  \r\n"
                                                       "App.vbp   , Upgraded... \r\n");
    EXPECT_EQ(world.files.writes.back().iEncoding, feAnsi);
    EXPECT_FALSE(world.files.writes.back().bRaiseError);
    EXPECT_EQ(Boxes(), std::vector<std::string>{"The log has been saved!"});
}

TEST_F(WizardStepsTest, LogThatCannotBeWrittenShowsAMessage) {
    GoTo(3);
    world.files.RefuseSaving(u"C:\\Work\\log.txt");
    view.sDialogAnswer = u"C:\\Work\\log.txt";
    steps.btnSaveToLog_Click();
    EXPECT_EQ(Boxes(), std::vector<std::string>{"An error occurred while saving the file..."});
}

TEST_F(WizardStepsTest, FailureWhileTheLogIsSavedShowsNumberAndDescriptionAndWritesNothing) {
    GoTo(3);
    const Failure failure = SubscriptOutOfRange();
    view.pTableFailure = &failure;
    view.sDialogAnswer = u"C:\\Work\\log.txt";
    steps.btnSaveToLog_Click();
    EXPECT_EQ(Boxes(), std::vector<std::string>{"(9) " + std::string(failure.what())});
    EXPECT_FALSE(world.files.Has(u"C:\\Work\\log.txt"));
}

TEST_F(WizardStepsTest, NumberOfTheSystemsOwnFailuresIsShownSigned) {
    GoTo(3);
    const Failure failure = OwnFailure(u"x", u"Wrong");
    view.pTableFailure = &failure;
    view.sDialogAnswer = u"C:\\Work\\log.txt";
    steps.btnSaveToLog_Click();
    EXPECT_EQ(Boxes(), std::vector<std::string>{"(-2147221503) Wrong"});
}

} // namespace
} // namespace orvanta
