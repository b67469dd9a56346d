// Lines of code that name a control type are reported and never changed.
#include "tests/engine/EngineRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace orvanta {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using testing::Outcome;

constexpr const char* kHead = "Begin VB.Form F\r\nEnd\r\n";

std::vector<std::string> FlagsOf(const std::string& sCode, testing::FakeWorld& world) {
    world.Put(testing::kFormPath, kHead + sCode);
    Outcome outcome = testing::ConvertIn(world);
    EXPECT_EQ(outcome.sBytes, kHead + sCode + "\r\n");
    return {outcome.rows.begin() + 1, outcome.rows.end() - 3};
}

std::vector<std::string> FlagsOf(const std::string& sCode) {
    testing::FakeWorld world;
    return FlagsOf(sCode, world);
}

std::string Flag(int nLine, const std::string& sLine) {
    return "|" + std::to_string(nLine) + "|Check this line, control reference found >> " + sLine + " [back 65280]";
}

TEST(CodeReferences, EachOfTheTwentyFragmentsFlagsItsLine) {
    for (const std::string sType : {"frame", "commandbutton", "textbox", "label", "checkbox", "combobox",
                                    "optionbutton", "listbox", "filelistbox", "dirlistbox"}) {
        EXPECT_THAT(FlagsOf("x as " + sType), ElementsAre(Flag(2, "x as " + sType)));
        EXPECT_THAT(FlagsOf("as vb." + sType + ", y"), ElementsAre(Flag(2, "as vb." + sType + ", y")));
    }
}

TEST(CodeReferences, CaseAndContextDoNotMatter) {
    for (const std::string sLine : {"Dim x As TextBox", "DIM X AS VB.LABEL", "' take it as label", "s = \"as Frame\"",
                                    "Dim x As Labels", "xas framework", "Optional ByVal c aS vB.cOmBoBoX) As String"})
        EXPECT_THAT(FlagsOf(sLine), ElementsAre(Flag(2, sLine))) << sLine;
}

TEST(CodeReferences, ThereIsNoFragmentForADriveListBoxAndNoneForOtherWording) {
    for (const std::string sLine :
         {"Dim d As DriveListBox", "Dim d As VB.DriveListBox", "Dim x As  TextBox", "Dim x As\tTextBox",
          "Dim x As MSForms.TextBox", "Dim x As VB.VB.Label", "Dim x As VB. Label", "Dim x As vb.", "as ", "As vb",
          "As Lab", "As Menu", "As PictureBox", "TextBox", "Assframe"})
        EXPECT_THAT(FlagsOf(sLine), ElementsAre()) << sLine;
}

TEST(CodeReferences, ALineGivesOneRowHoweverManyFragmentsItHolds) {
    const std::string sLine = "Sub A(x As Label, y As TextBox, z As FileListBox)";
    EXPECT_THAT(FlagsOf(sLine + "\r\nx\r\n" + sLine), ElementsAre(Flag(2, sLine), Flag(4, sLine)));
}

TEST(CodeReferences, ALineIsFlaggedForAFragmentBehindOneThatIsNone) {
    EXPECT_THAT(FlagsOf("Sub A(x As Long, y As String, z As Frame)"),
                ElementsAre(Flag(2, "Sub A(x As Long, y As String, z As Frame)")));
}

TEST(CodeReferences, TheyAreFlaggedWhicheverKindsAreSelected) {
    testing::FakeWorld world;
    world.kinds.fill(false);
    EXPECT_THAT(FlagsOf("Dim x As TextBox", world), ElementsAre(Flag(2, "Dim x As TextBox")));
}

TEST(CodeReferences, TheDescriptionIsNotSearchedAndTheFirstLineOfCodeIs) {
    const Outcome outcome =
        testing::ConvertForm("As Label\r\nBegin VB.Form F\r\nCaption = \"as label\"\r\nEnd\r\nAttribute as label\r\n");
    EXPECT_THAT(outcome.rows, ElementsAre("a.frm||Reading...", Flag(4, "Attribute as label"), "||Converted 0 controls",
                                          "||Saved...", "||"));
}

TEST(CodeReferences, TheLineCellCountsFromZero) {
    // The description can end on line 0 at the earliest, so line 1 is the first that can be flagged.
    EXPECT_THAT(testing::ConvertForm("Begin VB.Form F\r\nEnd\r\nAs Frame").rows, Contains(Flag(2, "As Frame")));
}

TEST(CodeReferences, TheWholeLineStandsInTheRowAsItIs) {
    EXPECT_THAT(FlagsOf("   Dim  x As TextBox  ' gr\xFCn  "),
                ElementsAre(Flag(2, "   Dim  x As TextBox  ' gr\xC3\xBCn  ")));
}

TEST(CodeReferences, ARowIsWrittenBeforeTheCodePassChangesItsLine) {
    testing::FakeWorld world;
    world.Put(testing::kFormPath, "Begin VB.Form F\r\nBegin VB.TextBox T\r\nEnd\r\nEnd\r\n"
                                  "Private Sub T_Click() ' as label\r\n");
    const Outcome outcome = testing::ConvertIn(world);
    EXPECT_EQ(outcome.rows[1], Flag(4, "Private Sub T_Click() ' as label"));
    EXPECT_NE(outcome.sBytes.find("T_Click(Button As Integer) ' as label"), std::string::npos);
}

// A comparison folds ASCII letters only: the Kelvin sign is no "k".
TEST(CodeReferences, LettersBeyondAsciiAreNotFolded) {
    const std::string sKelvin = "\xEF\xBB\xBF" + std::string(kHead) +
                                "x as chec\xE2\x84\xAA"
                                "box";
    EXPECT_EQ(testing::ConvertForm(sKelvin).rows.size(), 4u);
}

} // namespace
} // namespace orvanta
