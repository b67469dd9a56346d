#include "tests/engine/EngineRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace orvanta {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::Lines;
using testing::Outcome;
using testing::UpgradeForm;

const std::string kFormReference = "Object = \"{7E41B0D2-96AC-4F13-8C27-5D03AA61F9B4}#1.0#0\"; \"Orvanta31.ocx\"";
const std::string kProjectReference = "Object={7E41B0D2-96AC-4F13-8C27-5D03AA61F9B4}#1.0#0; Orvanta31.ocx";

void ExpectSkipped(const std::string& sForm) {
    testing::FakeWorld world;
    world.Put(testing::kFormPath, sForm);
    world.Put(testing::kProjectPath, "Form=a.frm\r\nTitle=\"Orvanta\"\r\n");
    const Outcome outcome = testing::UpgradeIn(world);
    EXPECT_THAT(outcome.rows, ElementsAre("a.frm|Skipped...", "App.vbp|Skipped...")) << sForm;
    EXPECT_EQ(outcome.sBytes, sForm);
    EXPECT_THAT(world.writes, IsEmpty());
}

void ExpectUpgraded(const std::string& sForm, const std::string& sWanted) {
    const Outcome outcome = UpgradeForm(sForm);
    EXPECT_EQ(outcome.rows.front(), "a.frm|Upgraded...") << sForm;
    EXPECT_EQ(outcome.sBytes, sWanted);
    EXPECT_THAT(outcome.boxes, IsEmpty());
}

std::string ProjectAfterUpgrade(const std::string& sProject) {
    testing::FakeWorld world;
    world.Put(testing::kProjectPath, sProject);
    world.Put(testing::kFormPath, "x");
    testing::UpgradeIn(world);
    return world.Bytes(testing::kProjectPath);
}

TEST(UpgradeReference, AFormsObjectLineOfAnOlderLibraryIsReplaced) {
    ExpectUpgraded(Lines({"VERSION 5.00", "Object = \"{0}#2.8#0\"; \"Orvanta28.ocx\" ' x", "Begin VB.Form F", "End"}),
                   Lines({"VERSION 5.00", kFormReference, "Begin VB.Form F", "End", ""}));
}

TEST(UpgradeReference, TheCurrentLineIsRewrittenAllTheSameAndEachRunAddsALine) {
    testing::FakeWorld world;
    world.Put(testing::kFormPath, Lines({kFormReference, "Begin VB.Form F", "End"}));
    const Outcome first = testing::UpgradeIn(world);
    EXPECT_EQ(first.rows.front(), "a.frm|Upgraded...");
    EXPECT_EQ(first.sBytes, Lines({kFormReference, "Begin VB.Form F", "End", ""}));
    const Outcome second = testing::UpgradeIn(world);
    EXPECT_EQ(second.rows.front(), "a.frm|Upgraded...");
    EXPECT_EQ(second.sBytes, Lines({kFormReference, "Begin VB.Form F", "End", "", ""}));
    EXPECT_TRUE(world.Bytes(testing::kProjectPath).ends_with("\r\n\r\n\r\n"));
}

TEST(UpgradeReference, AFormWithoutAnyOfItIsSkippedByteForByte) {
    ExpectSkipped("VERSION 5.00\r\nBegin VB.Form F\r\nBegin VB.Label L\r\nEnd\r\nEnd");
    ExpectSkipped("");
    ExpectSkipped("\xEF\xBB\xBF"
                  "Begin VB.Form F\r\nEnd\r\n"); // its mark stays
}

TEST(UpgradeReference, LinesThatAreNotTheLibrarysStay) {
    for (const char* sLine : {
             "Object = \"{1}#1.0#0\"; \"mscomctl.ocx\"",
             "Object = \"{1}#1.0#0\"; \"orvanta28.ocx\"", // case-sensitive
             "Object = \"{1}#1.0#0\"; \"ORVANTA28.ocx\"",
             " Object = \"{1}#1.0#0\"; \"Orvanta28.ocx\"", // indented
             "\tObject = \"Orvanta28.ocx\"",
             "Object= \"Orvanta28.ocx\"",
             "Object=\"Orvanta28.ocx\"",
             "object = \"Orvanta28.ocx\"",
             "Orvanta Object = x",
             "Begin VB.Form F\r\nObject = \"Orvanta28.ocx\"", // behind the first block's opening
             "   Begin VB.Form F\r\nObject = \"Orvanta28.ocx\"",
         })
        ExpectSkipped(std::string(sLine) + "\r\n");
}

// The header ends where a line, trimmed at both ends, starts with "Begin ": one that has nothing behind the blank, or a
// tab in front, does not end it.
TEST(UpgradeReference, OnlyABeginLineWithAWordEndsTheHeader) {
    EXPECT_NE(UpgradeForm("\tBegin VB.Form F\r\nObject = \"Orvanta\"\r\n").sBytes.find(kFormReference),
              std::string::npos);
    EXPECT_NE(UpgradeForm("BeginProperty x\r\nObject = \"Orvanta\"\r\n").sBytes.find(kFormReference),
              std::string::npos);
    const Outcome outcome = UpgradeForm("Begin \r\nObject = \"Orvanta\"\r\n");
    EXPECT_NE(outcome.sBytes.find(kFormReference), std::string::npos);
    EXPECT_EQ(outcome.boxes.size(), 2u);
}

TEST(UpgradeReference, OnlyTheFirstMatchingLineIsReplaced) {
    ExpectUpgraded(Lines({"Object = \"a\"", "Object = \"Orvanta1\"", "Object = \"Orvanta2\""}),
                   Lines({"Object = \"a\"", kFormReference, "Object = \"Orvanta2\"", ""}));
    EXPECT_EQ(ProjectAfterUpgrade("Form=a.frm\r\nObject=Orvanta1\r\nObject=Orvanta2"),
              "Form=a.frm\r\n" + kProjectReference + "\r\nObject=Orvanta2\r\n");
}

TEST(UpgradeReference, AProjectKeepsAllItsOtherLines) {
    EXPECT_EQ(ProjectAfterUpgrade(Lines({"Type=Exe", "Title=\"Orvanta\"", "Form=a.frm", "Object = Orvanta",
                                         " Object=Orvanta", "object=Orvanta", "Object=orvanta",
                                         "Object={0}; Orvanta28.ocx", "Begin Orvanta.ctlUniButtonXP b"})),
              Lines({"Type=Exe", "Title=\"Orvanta\"", "Form=a.frm", "Object = Orvanta", " Object=Orvanta",
                     "object=Orvanta", "Object=orvanta", kProjectReference, "Begin Orvanta.ctlUniButtonXP b", ""}));
}

TEST(UpgradeReference, AProjectWithoutAReferenceLineIsSkipped) {
    testing::FakeWorld world;
    world.Put(testing::kProjectPath, "Form=a.frm\r\nTitle=\"Orvanta\"");
    world.Put(testing::kFormPath, "x");
    EXPECT_EQ(testing::UpgradeIn(world).rows.back(), "App.vbp|Skipped...");
    EXPECT_EQ(world.Bytes(testing::kProjectPath), "Form=a.frm\r\nTitle=\"Orvanta\"");
}

TEST(UpgradeReference, AReferenceMayStandBehindThePropertiesOfAProjectAtAnyLine) {
    EXPECT_EQ(ProjectAfterUpgrade("Form=a.frm\r\nBegin x\r\nObject=Orvanta"),
              "Form=a.frm\r\nBegin x\r\n" + kProjectReference + "\r\n");
}

TEST(UpgradeControls, AMenusUtf8StringsBecomesStringModeOnlyWhenItIsTrue) {
    ExpectUpgraded(Lines({"Begin VB.Form F", "   Begin Orvanta.ctlUTF8Menu m", "      UTF8Strings     =   -1  'True",
                          "   End", "End"}),
                   Lines({"Begin VB.Form F", "   Begin Orvanta.ctlUTF8Menu m", "StringMode=1", "   End", "End", ""}));
    ExpectUpgraded("Begin Orvanta.ctlUTF8Menu m\r\nutf8strings=-12\r\nEnd",
                   "Begin Orvanta.ctlUTF8Menu m\r\nStringMode=1\r\nEnd\r\n");
    for (const char* sValue : {"0", "0   'False", "1", "- 1", "True", "\"-1\"", ""})
        ExpectSkipped(std::string("Begin Orvanta.ctlUTF8Menu m\r\nUTF8Strings = ") + sValue + "\r\nEnd");
    ExpectSkipped("Begin Orvanta.ctlUTF8Menu m\r\nLeft = -1\r\nEnd");
}

TEST(UpgradeControls, ATransparentLabelTakesTheNewTypeAndKeepsEverythingElse) {
    ExpectUpgraded(Lines({"Begin VB.Form F", "   Begin Orvanta.ctlUniLabel l extra ",
                          "      BackStyle       =   0  'Transparent", "      Caption = \"x\"", "   End", "End"}),
                   Lines({"Begin VB.Form F", "   Begin Orvanta.ctlUniLabelNoFlick l extra ",
                          "      BackStyle       =   0  'Transparent", "      Caption = \"x\"", "   End", "End", ""}));
    for (const char* sValue : {"1  'Opaque", "-0", "\"0\"", "", "1"})
        ExpectSkipped(std::string("Begin Orvanta.ctlUniLabel l\r\nBackStyle = ") + sValue + "\r\nEnd");
    ExpectSkipped("Begin Orvanta.ctlUniLabel l\r\nEnd");
}

TEST(UpgradeControls, EveryOccurrenceOfTheOldTypeInTheLineIsReplaced) {
    ExpectUpgraded("Begin Orvanta.ctlUniButtonXP x.ctlUniButtonXP\r\nEnd",
                   "Begin Orvanta.ctlUniButtonImageXP x.ctlUniButtonImageXP\r\nEnd\r\n");
    ExpectUpgraded("Begin Orvanta.ctlUniLabel x.ctlUniLabelY\r\nBackStyle=0\r\nEnd",
                   "Begin Orvanta.ctlUniLabelNoFlick x.ctlUniLabelNoFlickY\r\nBackStyle=0\r\nEnd\r\n");
}

TEST(UpgradeControls, TypesCompareExactlySoAFileUpgradedTwiceDoesNotGrowTheName) {
    ExpectSkipped("Begin Orvanta.ctlUniLabelNoFlick l\r\nBackStyle = 0\r\nEnd");
    ExpectSkipped("Begin Orvanta.ctlUniButtonImageXP b\r\nEnd");
    ExpectSkipped("Begin orvanta.ctlUniButtonXP b\r\nEnd");
    ExpectSkipped("Begin  Orvanta.ctlUniButtonXP b\r\nEnd");
    ExpectSkipped("\tBegin Orvanta.ctlUniButtonXP b\r\nEnd");
}

TEST(UpgradeControls, CodeIsNotLookedAtAndHandlersStay) {
    ExpectSkipped(Lines({"Begin VB.Form F", "End", "Begin Orvanta.ctlUniButtonXP b", "End"}));
    ExpectUpgraded(Lines({"Begin Orvanta.ctlUniButtonXP b", "End", "Sub b_Click()", "b_Click"}),
                   Lines({"Begin Orvanta.ctlUniButtonXP b", "End", "Sub b_Click()", "b_Click", ""})
                       .replace(6, 22, "Orvanta.ctlUniButtonImageXP"));
}

TEST(UpgradeControls, AGroupsPropertyAndItsEndDoNotCount) {
    ExpectSkipped(Lines({"Begin Orvanta.ctlUniLabel l", "BeginProperty Font ", "BackStyle = 0", "EndProperty", "End"}));
    ExpectUpgraded(Lines({"BeginProperty a b", "EndProperty", "Begin Orvanta.ctlUniButtonXP b", "End"}),
                   Lines({"BeginProperty a b", "EndProperty", "Begin Orvanta.ctlUniButtonImageXP b", "End", ""}));
}

TEST(UpgradeControls, NestedControlsAreReached) {
    ExpectUpgraded(
        Lines({"Begin VB.Form F", "Begin VB.Frame R", "Begin Orvanta.ctlUniButtonXP b", "End", "End", "End"}),
        Lines({"Begin VB.Form F", "Begin VB.Frame R", "Begin Orvanta.ctlUniButtonImageXP b", "End", "End", "End", ""}));
}

TEST(UpgradePass, ASavedFileComesOutInTheCodePage) {
    ExpectUpgraded("\xEF\xBB\xBF"
                   "Object = \"Orvanta\"\r\n'\xC3\xBC\xD0\x96",
                   kFormReference + "\r\n'\xFC?\r\n");
}

} // namespace
} // namespace orvanta
