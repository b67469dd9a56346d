#include "engine/ControlCatalogue.h"

#include "tests/engine/EngineRun.h"
#include "tests/support/Unicode.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace orvanta {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::kFormPath;
using testing::Outcome;

struct ConvertedType {
    const char* sType;
    int iKind;
    const char* sTarget;
    const char* sExtra; // the added line, empty for none
};

constexpr ConvertedType kConverted[] = {
    {"MSComctlLib.ProgressBar", 11, "Orvanta.ctlProgressXP", ""},
    {"VB.Frame", 2, "Orvanta.ctlUniFrameXP", ""},
    {"MSForms.Frame", 2, "Orvanta.ctlUniFrameXP", ""},
    {"VB.CommandButton", 3, "Orvanta.ctlUniButtonImageXP", ""},
    {"MSForms.CommandButton", 3, "Orvanta.ctlUniButtonImageXP", ""},
    {"Orvanta.ctlUniButtonXP", 3, "Orvanta.ctlUniButtonImageXP", ""},
    {"VB.TextBox", 0, "Orvanta.ctlUniTextBoxXP", ""},
    {"MSForms.TextBox", 0, "Orvanta.ctlUniTextBoxXP", ""},
    {"VB.Label", 1, "Orvanta.ctlUniLabel", ""},
    {"MSForms.Label", 1, "Orvanta.ctlUniLabel", ""},
    {"VB.CheckBox", 4, "Orvanta.ctlUniCheckXP", "Pressed = 0"},
    {"MSForms.CheckBox", 4, "Orvanta.ctlUniCheckXP", "Pressed = 0"},
    {"VB.ComboBox", 6, "Orvanta.ctlUniComboBoxXP", "Style = 2"},
    {"MSForms.ComboBox", 6, "Orvanta.ctlUniComboBoxXP", "Style = 2"},
    {"VB.OptionButton", 5, "Orvanta.ctlUniRadioXP", "Pressed = 0"},
    {"MSForms.OptionButton", 5, "Orvanta.ctlUniRadioXP", "Pressed = 0"},
    {"VB.ListBox", 7, "Orvanta.ctlUniListBoxXP", ""},
    {"MSForms.ListBox", 7, "Orvanta.ctlUniListBoxXP", ""},
    {"VB.DriveListBox", 8, "Orvanta.ctlUniDriveBoxXP", ""},
    {"VB.FileListBox", 10, "Orvanta.ctlUniFileBoxXP", "DisplayMode = 1"},
    {"VB.DirListBox", 9, "Orvanta.ctlUniFileBoxXP", "DisplayMode = 2"},
};

std::string FormWith(const std::string& sType) {
    return testing::InForm({"   Begin " + sType + " Item1 ", "      ToolTipText     =   \"Tip\"", "   End"});
}

TEST(Catalogue, EachSourceTypeBecomesItsTargetAndIsCountedAndItsTipMoves) {
    for (const ConvertedType& type : kConverted) {
        const Outcome outcome = testing::ConvertForm(FormWith(type.sType));
        std::string sExpected = std::string("Begin VB.Form Form1\r\nBegin ") + type.sTarget + " Item1\r\n";
        if (*type.sExtra) sExpected.append(type.sExtra).append("\r\n");
        sExpected += "Tip=\"Tip\"\r\n   End\r\nEnd\r\n\r\n";
        EXPECT_EQ(outcome.sBytes, sExpected) << type.sType;
        EXPECT_EQ(outcome.rows[1], "|1|Item1> ToolTipText>>Tip [fore 32768]") << type.sType;
        EXPECT_EQ(outcome.rows[2], "||Converted 1 controls [fore 16711680]") << type.sType;
    }
}

TEST(Catalogue, ATypeWhoseKindIsSwitchedOffStaysWithItsTipAndCountsNowhere) {
    for (const ConvertedType& type : kConverted) {
        testing::FakeWorld world;
        world.kinds.fill(true);
        world.kinds[static_cast<std::size_t>(type.iKind)] = false;
        world.Put(kFormPath, FormWith(type.sType));
        const Outcome outcome = testing::ConvertIn(world);
        EXPECT_EQ(outcome.sBytes, FormWith(type.sType) + "\r\n") << type.sType;
        EXPECT_THAT(outcome.rows, ElementsAre("a.frm||Reading...", "||Converted 0 controls", "||Saved...", "||"))
            << type.sType;
    }
}

TEST(Catalogue, ATypeDependsOnItsOwnKindAlone) {
    for (const ConvertedType& type : kConverted) {
        testing::FakeWorld world;
        world.kinds.fill(false);
        world.kinds[static_cast<std::size_t>(type.iKind)] = true;
        world.Put(kFormPath, FormWith(type.sType));
        EXPECT_THAT(testing::ConvertIn(world).rows, Contains("||Converted 1 controls [fore 16711680]")) << type.sType;
        EXPECT_THAT(world.asked, ElementsAre(type.iKind)) << type.sType;
    }
}

TEST(Catalogue, TheTwelveKindsStandInTheListsOrder) {
    std::vector<std::string> captions;
    for (int iKind = 0; iKind < kKindCount; ++iKind)
        captions.push_back(testing::ToUtf8(KindCaption(iKind)));
    EXPECT_THAT(captions,
                ElementsAre("TextBox", "Label", "Frame", "CommandButton", "CheckBox", "OptionButton", "ComboBox",
                            "ListBox", "DriveListBox", "DirListBox", "FileListBox", "MSComctlLib.ProgressBar"));
}

TEST(Catalogue, TypesCompareExactly) {
    for (const char* sType : {"vb.label", "VB.LABEL", "VB.Labels", "VB.Labe", "Label", "VB.Label\t", "MSForms.label"}) {
        const Outcome outcome = testing::ConvertForm(FormWith(sType));
        EXPECT_EQ(outcome.sBytes, FormWith(sType) + "\r\n") << sType;
    }
}

TEST(Catalogue, OtherTypesAreLeftAloneWithTheirTipsAndNoKindIsAsked) {
    for (const char* sType : {"VB.Form", "VB.UserControl", "VB.PictureBox", "VB.Timer", "MSComctlLib.ListView",
                              "MSForms.DriveListBox", "MSForms.ProgressBar", "Orvanta.ctlUniLabel", "VB.MDIForm"}) {
        testing::FakeWorld world;
        world.Put(kFormPath, FormWith(sType));
        EXPECT_EQ(testing::ConvertIn(world).sBytes, FormWith(sType) + "\r\n") << sType;
        EXPECT_THAT(world.asked, IsEmpty()) << sType;
    }
}

struct Counted {
    const char* sType;
    const char* sWarning;
};

// In the order in which the warnings are written.
constexpr Counted kCounted[] = {
    {"VB.Menu", "||Menus Found, please add a ctlUTF8Menu control to the form and call the .Attach method [back 65535]"},
    {"MSComctlLib.StatusBar",
     "||Status Bar Found, please add a ctlUniStatusBar control to the form and check your code [back 65535]"},
    {"MSComctlLib.TabStrip",
     "||TabStrip Found, please add a ctlUniTabbedXP control to the form and check your code [back 65535]"},
    {"MSComctlLib.TreeView",
     "||TreeView Found, please add an ucTreeView control to the form and check your code [back 65535]"},
    {"MSComctlLib.Toolbar",
     "||Toolbar Found, please add an ctlUniToolBarXP control to the form and check your code [back 65535]"},
    {"MSComctlLib.ImageCombo",
     "||ImageCombo Found, please add an ctlUniComboImageXP control to the form and check your code [back 65535]"},
};
constexpr const char* kTipsWarning =
    "||Tips Found, please add a ctlUniTooltipManager control to the starting form of your application [back 65535]";
constexpr const char* kProgressWarning = "||ProgressBars Found, please check the Min/Max property [back 65535]";

TEST(Warnings, ACountedTypeStaysAsItIsWithAllKindsOffAndGivesItsWarning) {
    for (const Counted& counted : kCounted) {
        testing::FakeWorld world;
        world.kinds.fill(false);
        world.Put(kFormPath, FormWith(counted.sType));
        const Outcome outcome = testing::ConvertIn(world);
        EXPECT_EQ(outcome.sBytes, FormWith(counted.sType) + "\r\n");
        EXPECT_THAT(outcome.rows,
                    ElementsAre("a.frm||Reading...", "||Converted 0 controls", counted.sWarning, "||Saved...", "||"));
        EXPECT_THAT(world.asked, IsEmpty());
    }
}

TEST(Warnings, TheyStandInTheirFixedOrderBehindTheCountWhateverTheOrderOfTheControls) {
    std::string sForm = "Begin VB.Form F\r\n";
    for (const char* sType : {"MSComctlLib.ImageCombo", "MSComctlLib.ProgressBar", "MSComctlLib.Toolbar",
                              "MSComctlLib.TreeView", "MSComctlLib.TabStrip", "MSComctlLib.StatusBar", "VB.Menu"})
        sForm.append("Begin ").append(sType).append(" x\r\nEnd\r\n");
    sForm += "Begin VB.Label l\r\nToolTipText = \"t\"\r\nEnd\r\nEnd\r\n";
    const Outcome outcome = testing::ConvertForm(sForm);
    EXPECT_THAT(outcome.rows,
                ElementsAre("a.frm||Reading...", "|15|l> ToolTipText>>Tip [fore 32768]",
                            "||Converted 2 controls [fore 16711680]", kTipsWarning, kCounted[0].sWarning,
                            kCounted[1].sWarning, kCounted[2].sWarning, kCounted[3].sWarning, kCounted[4].sWarning,
                            kProgressWarning, kCounted[5].sWarning, "||Saved...", "||"));
}

TEST(Warnings, TwoMenusGiveOneWarningWithoutACount) {
    const Outcome outcome =
        testing::ConvertForm(testing::InForm({"   Begin VB.Menu mnuFile ", "      Caption = \"&File\"",
                                              "      Begin VB.Menu mnuOpen ", "      End", "   End"}));
    EXPECT_EQ(std::count(outcome.rows.begin(), outcome.rows.end(), kCounted[0].sWarning), 1);
    EXPECT_THAT(outcome.rows, Contains("||Converted 0 controls"));
}

TEST(Warnings, ALabelWithoutATipGivesNoTipsWarning) {
    EXPECT_THAT(testing::ConvertBlock({"Begin VB.Label L", "End"}).rows,
                ElementsAre("a.frm||Reading...", "||Converted 1 controls [fore 16711680]", "||Saved...", "||"));
}

TEST(Warnings, AProgressBarThatIsNotSelectedGivesNone) {
    testing::FakeWorld world;
    world.kinds[11] = false;
    world.Put(kFormPath, FormWith("MSComctlLib.ProgressBar"));
    EXPECT_EQ(testing::ConvertIn(world).rows.size(), 4u);
}

TEST(Warnings, AControlInsideAFrameIsFoundLikeAnyOther) {
    const Outcome outcome =
        testing::ConvertForm(testing::InForm({"   Begin VB.Frame fra ", "      Begin VB.PictureBox pic",
                                              "         Begin VB.Label lbl", "         End", "      End", "   End"}));
    EXPECT_EQ(outcome.sBytes,
              testing::InConvertedForm({"Begin Orvanta.ctlUniFrameXP fra", "      Begin VB.PictureBox pic",
                                        "Begin Orvanta.ctlUniLabel lbl", "         End", "      End", "   End"}));
}

} // namespace
} // namespace orvanta
