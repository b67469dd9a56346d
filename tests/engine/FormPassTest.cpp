// The form description as a whole: where it ends, what a rebuilt line looks like, how the file is saved.
#include "tests/engine/EngineRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace orvanta {
namespace {

using ::testing::Contains;
using testing::ConvertForm;
using ::testing::ElementsAre;
using testing::InConvertedForm;
using testing::InForm;
using ::testing::IsEmpty;
using testing::kOneConverted;
using testing::Lines;
using ::testing::Not;
using testing::Outcome;

TEST(FormPass, AnEmptyFileGivesItsFourRowsAndStaysEmpty) {
    const Outcome outcome = ConvertForm("");
    EXPECT_THAT(outcome.rows, ElementsAre("a.frm||Reading...", "||Converted 0 controls", "||Saved...", "||"));
    EXPECT_EQ(outcome.sBytes, "");
    EXPECT_THAT(outcome.boxes, IsEmpty());
}

TEST(FormPass, AFileOfOneLineGetsItsLineEnd) {
    EXPECT_EQ(ConvertForm("VERSION 5.00").sBytes, "VERSION 5.00\r\n");
}

TEST(FormPass, EverySaveAddsOneEmptyLineAlsoWhenNothingWasConverted) {
    testing::FakeWorld world;
    world.Put(testing::kFormPath, "x\r\n");
    EXPECT_EQ(testing::ConvertIn(world).sBytes, "x\r\n\r\n");
    EXPECT_EQ(testing::ConvertIn(world).sBytes, "x\r\n\r\n\r\n");
}

TEST(FormPass, ASecondConvertFindsNothingAndOnlyAddsALine) {
    const std::string sFirst = ConvertForm(Lines({"Begin VB.Form F", "Begin VB.TextBox T", "ToolTipText = \"t\"", "End",
                                                  "Begin VB.CheckBox C", "End", "Begin VB.ComboBox B", "Style = 2",
                                                  "End", "End", "Private Sub T_Click()", "T_Click", "End Sub"}))
                                   .sBytes;
    const Outcome second = ConvertForm(sFirst);
    EXPECT_EQ(second.sBytes, sFirst + "\r\n");
    EXPECT_THAT(second.rows, ElementsAre("a.frm||Reading...", "||Converted 0 controls", "||Saved...", "||"));
}

TEST(FormPass, ARebuiltLineStandsAtTheFirstColumnAndItsEndKeepsItsIndentation) {
    EXPECT_EQ(ConvertForm(InForm({"   Begin VB.Frame Frame1 ", "      Begin VB.Label Label1 ", "      End", "   End"}))
                  .sBytes,
              InConvertedForm(
                  {"Begin Orvanta.ctlUniFrameXP Frame1", "Begin Orvanta.ctlUniLabel Label1", "      End", "   End"}));
}

TEST(FormPass, WhatStandsBehindTheNameOfARebuiltLineIsLost) {
    EXPECT_EQ(ConvertForm(InForm({"Begin VB.Label L 'comment = 1", "End"})).sBytes,
              InConvertedForm({"Begin Orvanta.ctlUniLabel L", "End"}));
}

TEST(FormPass, AnAddedLineDoesNotMoveTheLineNumbersOfTheLog) {
    const Outcome outcome = ConvertForm(InForm(
        {"Begin VB.DirListBox d", "End", "Begin VB.CheckBox c", "End", "Begin VB.Label l", "ToolTipText = 1", "End"}));
    EXPECT_EQ(outcome.rows[1], "|5|l> ToolTipText>>Tip [fore 32768]");
}

TEST(FormPass, AFontGroupInAConvertedControlIsKeptWordForWord) {
    const std::string sForm =
        InForm({"   Begin VB.Label L ", "      BeginProperty Font ", "         Name = \"Arial\"", "         Value = 1",
                "         ToolTipText = \"no\"", "      EndProperty", "      Caption = \"x\"", "   End"});
    std::string sExpected = sForm + "\r\n";
    sExpected.replace(sExpected.find("   Begin VB.Label L "), 20, "Begin Orvanta.ctlUniLabel L");
    EXPECT_EQ(ConvertForm(sForm).sBytes, sExpected);
}

TEST(FormPass, TheWordAfterBeginPropertyIsNoControl) {
    const Outcome outcome =
        ConvertForm("Begin VB.Form F\r\nBeginProperty VB.Label L\r\nEndProperty\r\nEnd\r\nx as label");
    EXPECT_THAT(outcome.rows, Contains("||Converted 0 controls"));
    EXPECT_EQ(outcome.rows.size(), 5u); // and its end closed no block
}

TEST(FormPass, LinesBeforeTheFirstBlockPassThrough) {
    const std::string sForm = "VERSION 5.00\r\nObject = \"{1}#1.0#0\"; \"Orvanta28.ocx\"\r\nBegin VB.Form F\r\nEnd\r\n";
    EXPECT_EQ(ConvertForm(sForm).sBytes, sForm + "\r\n");
}

TEST(FormPass, NothingBehindTheOutermostBlockIsTakenForAControl) {
    const std::string sForm = "Begin VB.Form F\r\nEnd\r\nBegin VB.Label L\r\nEnd\r\n";
    const Outcome outcome = ConvertForm(sForm);
    EXPECT_EQ(outcome.sBytes, sForm + "\r\n");
    EXPECT_THAT(outcome.boxes, IsEmpty());
}

// "EndCap = 1" starts as "End" does, and that is all that is asked of a line that closes a block.
TEST(FormPass, EndCapClosesABlockAndCanEndTheDescriptionEarly) {
    const Outcome outcome =
        ConvertForm(Lines({"Begin VB.Form F", "EndCap = 1", "Begin VB.Label L", "x As Label", "End"}));
    EXPECT_THAT(outcome.rows, Contains("||Converted 0 controls"));
    EXPECT_THAT(outcome.rows, Contains("|3|Check this line, control reference found >> x As Label [back 65280]"));
}

TEST(FormPass, EndIsCaseSensitiveAndIndentedByBlanksOnly) {
    const Outcome outcome =
        ConvertForm(Lines({"Begin VB.Form F", "end", "END", "\tEnd", " EEnd", "    End", "x As Label"}));
    EXPECT_EQ(outcome.rows[1], "|6|Check this line, control reference found >> x As Label [back 65280]");
    EXPECT_EQ(outcome.rows.size(), 5u);
}

TEST(FormPass, OnlyAnEndLineThatIsNotEndPropertyMakesTheTestForDepthZero) {
    // The depth is 0 before the first block; "EndProperty" there must not start the code.
    EXPECT_THAT(ConvertForm("EndProperty\r\nBegin VB.Label L\r\nEnd\r\n").rows, Contains(kOneConverted));
}

TEST(FormPass, ALineIndentedByATabOrInOtherCaseStartsWithNoKeyword) {
    for (const char* sBegin : {"\tBegin VB.Label L", " \tBegin VB.Label L", "begin VB.Label L", "BEGIN VB.Label L",
                               "Begin\tVB.Label L", "BeginVB.Label L"}) {
        const Outcome outcome = ConvertForm(Lines({"Begin VB.Form F", sBegin, "End", "x as frame"}));
        EXPECT_THAT(outcome.rows, Contains("||Converted 0 controls")) << sBegin;
        EXPECT_EQ(outcome.rows.size(), 5u) << sBegin; // the one "End" closed the form
    }
}

TEST(FormPass, AMissingEndLeavesTheCodeUnsearchedAndEndSubMovesTheDepth) {
    // Two blocks, one "End": "End Sub" closes the form, and the code begins behind it.
    const Outcome outcome = ConvertForm(Lines({"Begin VB.Form F", "Begin VB.Frame R", "End", "Private Sub A()",
                                               "Dim x As Label", "End Sub", "Dim y As Label"}));
    EXPECT_THAT(outcome.rows,
                Not(Contains("|4|Check this line, control reference found >> Dim x As Label [back 65280]")));
    EXPECT_THAT(outcome.rows, Contains("|6|Check this line, control reference found >> Dim y As Label [back 65280]"));
}

TEST(FormPass, ANegativeDepthDoesNotEndTheDescription) {
    // Depths: -1, 0 by the form's opening (not tested), 1, 0 at the label's end.
    const Outcome outcome = ConvertForm(
        Lines({"End", "Begin VB.Form F", "Begin VB.Label L", "End", "Begin VB.Label M", "End", "x as label"}));
    EXPECT_THAT(outcome.rows, Contains(kOneConverted));
    EXPECT_THAT(outcome.rows, Contains("|6|Check this line, control reference found >> x as label [back 65280]"));
    EXPECT_NE(outcome.sBytes.find("Begin VB.Label M"), std::string::npos);
}

TEST(FormPass, AUserControlsFileIsTreatedTheSame) {
    EXPECT_EQ(ConvertForm(Lines({"Begin VB.UserControl U", "Begin VB.Label L", "End", "End"})).sBytes,
              Lines({"Begin VB.UserControl U", "Begin Orvanta.ctlUniLabel L", "End", "End", ""}));
}

TEST(FormPass, AFileWithLineFeedsOnlyIsOneLine) {
    const std::string sForm = "Begin VB.Form F\nBegin VB.Label L\nEnd\nEnd\n";
    EXPECT_EQ(ConvertForm(sForm).sBytes, sForm + "\r\n");
}

TEST(FormPass, AUtf8FormLosesItsMarkAndComesOutInTheCodePage) {
    EXPECT_EQ(ConvertForm("\xEF\xBB\xBF" + InForm({"Caption = \"\xC3\xBC\xE2\x82\xAC\xD0\x96\""})).sBytes,
              InConvertedForm({"Caption = \"\xFC\x80?\""}));
}

TEST(FormPass, AUtf16FormComesOutInTheCodePage) {
    std::string sForm = "\xFF\xFE";
    for (const char c : InForm({"Begin VB.Label L", "End"}))
        sForm.append(1, c).append(1, '\0');
    EXPECT_EQ(ConvertForm(sForm).sBytes, InConvertedForm({"Begin Orvanta.ctlUniLabel L", "End"}));
}

TEST(FormPass, CountsAndWarningsAreThoseOfEachFile) {
    testing::FakeWorld world;
    world.Put(testing::kFormPath, InForm({"Begin VB.Menu m", "End", "Begin VB.Label l", "ToolTipText = 1", "End"}));
    EXPECT_EQ(testing::ConvertIn(world).rows.size(), 7u);
    world.Put(testing::kFormPath, InForm({"Begin VB.Label l", "End"}));
    EXPECT_THAT(testing::ConvertIn(world).rows, ElementsAre("a.frm||Reading...", kOneConverted, "||Saved...", "||"));
}

} // namespace
} // namespace orvanta
