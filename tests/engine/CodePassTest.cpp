#include "engine/CodePass.h"

#include "tests/engine/EngineRun.h"
#include "tests/support/Unicode.h"

#include "base/Failure.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

namespace orvanta {
namespace {

using testing::Lines;

// The code with its handlers and calls fixed for these names.
std::string Fixed(std::initializer_list<std::string_view> code, const std::vector<std::u16string>& names = {u"Text1"}) {
    std::string sText = Lines(code);
    sText.resize(sText.size() - 2);
    LineArray aLines(testing::FromUtf8(sText));
    FixEventSignatures(names, aLines);
    return testing::ToUtf8(aLines.Join());
}

TEST(CodePass, EachOfTheSixSignaturesIsRewritten) {
    const struct {
        const char* sFound;
        const char* sReplaced;
    } cases[] = {
        {"Text1_KeyPress(KeyAscii As Integer)", "Text1_KeyPress(KeyAscii As Integer, Shift As Integer)"},
        {"Text1_Click()", "Text1_Click(Button As Integer)"},
        {"Text1_DblClick()", "Text1_DblClick(Button As Integer)"},
        {"Text1_KeyPress(Index As Integer, KeyAscii As Integer)",
         "Text1_KeyPress(Index As Integer, KeyAscii As Integer, Shift As Integer)"},
        {"Text1_Click(Index As Integer)", "Text1_Click(Index As Integer, Button As Integer)"},
        {"Text1_DblClick(Index As Integer)", "Text1_DblClick(Index As Integer, Button As Integer)"},
    };
    for (const auto& c : cases) {
        for (const std::string sHead : {"Private Sub ", "Sub ", "Public Function ", "' Sub "}) {
            EXPECT_EQ(Fixed({sHead + c.sFound + " ' x"}), sHead + c.sReplaced + " ' x\r\n");
        }
        EXPECT_EQ(Fixed({std::string("Property Get ") + c.sFound}), std::string("Property Get ") + c.sFound + "\r\n");
    }
}

TEST(CodePass, EachRowOfTheResultTable) {
    EXPECT_EQ(
        Fixed({"Private Sub Text1_Click()", "Text1_Click", "Text1_Click ' again", "Call Text1_Click()", "End Sub",
               "Private Sub Text1_KeyPress(KeyAscii As Integer)", "Text1_KeyPress KeyAscii", "Call Text1_KeyPress(13)",
               "End Sub"}),
        Lines({"Private Sub Text1_Click(Button As Integer)", "Text1_Click 0", "Text1_Click  0' again",
               "Call Text1_Click( 0)", "End Sub", "Private Sub Text1_KeyPress(KeyAscii As Integer, Shift As Integer)",
               "Text1_KeyPress KeyAscii,  0", "Call Text1_KeyPress(13,  0)", "End Sub"}));
}

TEST(CodePass, CallsAreServedInEveryProcedureOfTheFileBeforeAndBehindTheHandler) {
    EXPECT_EQ(Fixed({"Sub A()", "Text1_DblClick", "End Sub", "Private Sub Text1_DblClick()", "End Sub", "Sub B()",
                     "Text1_DblClick", "End Sub"}),
              Lines({"Sub A()", "Text1_DblClick 0", "End Sub", "Private Sub Text1_DblClick(Button As Integer)",
                     "End Sub", "Sub B()", "Text1_DblClick 0", "End Sub"}));
}

TEST(CodePass, AHandlerThatIsNotRewrittenLeavesItsCallsAlone) {
    for (const char* sHead :
         {"Private Sub Text1_Click(ByVal Index As Integer)", "Private Sub Text1_Click( )", "Private Sub text1_Click()",
          "Private Sub Text1_click()", "Private Sub Text1_Click(index As Integer)", "Private Sub Text1_Change()"}) {
        EXPECT_EQ(Fixed({sHead, "Text1_Click", "End Sub"}), Lines({sHead, "Text1_Click", "End Sub"}));
    }
}

TEST(CodePass, OnlyTheHandlersOfTheGivenNamesAreRewritten) {
    EXPECT_EQ(Fixed({"Private Sub Command1_Click()", "Command1_Click", "End Sub"}),
              Lines({"Private Sub Command1_Click()", "Command1_Click", "End Sub"}));
    EXPECT_EQ(Fixed({"Private Sub Text1_Click()", "Text1_Click"}, {}),
              Lines({"Private Sub Text1_Click()", "Text1_Click"}));
}

TEST(CodePass, AControlArraysCallsGetTheArgumentBehindTwoBlanks) {
    EXPECT_EQ(Fixed({"Private Sub Text1_Click(Index As Integer)", "Text1_Click Index", "Call Text1_Click(3)"}),
              Lines({"Private Sub Text1_Click(Index As Integer, Button As Integer)", "Text1_Click Index,  0",
                     "Call Text1_Click(3,  0)"}));
}

TEST(CodePass, ACallOutsideAProcedureOrInsideAPropertyIsNotServed) {
    EXPECT_EQ(Fixed({"Text1_Click", "Private Sub Text1_Click()", "End Sub", "Property Get A()", "Text1_Click",
                     "End Property", "Text1_Click"}),
              Lines({"Text1_Click", "Private Sub Text1_Click(Button As Integer)", "End Sub", "Property Get A()",
                     "Text1_Click", "End Property", "Text1_Click"}));
}

TEST(CodePass, AnIndentedEndSubLeavesTheLevelUp) {
    EXPECT_EQ(Fixed({"Sub A()", "Text1_Click", "   End Sub", "Text1_Click", "Private Sub Text1_Click()", "End Sub",
                     "Text1_Click"}),
              Lines({"Sub A()", "Text1_Click 0", "   End Sub", "Text1_Click 0",
                     "Private Sub Text1_Click(Button As Integer)", "End Sub", "Text1_Click 0"}));
}

TEST(CodePass, AnEndTooManyLowersTheLevelBelowZero) {
    EXPECT_EQ(
        Fixed({"End Sub", "Private Sub Text1_Click()", "Text1_Click", "Sub B()", "Text1_Click"}),
        Lines({"End Sub", "Private Sub Text1_Click(Button As Integer)", "Text1_Click", "Sub B()", "Text1_Click 0"}));
}

TEST(CodePass, AnEndSubWithANoteAndADeclareRaiseTheLevel) {
    EXPECT_EQ(Fixed({"Declare Function F Lib \"x\" ()", "Text1_Click", "Private Sub Text1_Click()", "End Sub ' note"}),
              Lines({"Declare Function F Lib \"x\" ()", "Text1_Click 0", "Private Sub Text1_Click(Button As Integer)",
                     "End Sub ' note"}));
}

TEST(CodePass, AnEndFunctionLowersTheLevelAsWell) {
    EXPECT_EQ(Fixed({"Private Sub Text1_Click()", "End Function", "Text1_Click"}),
              Lines({"Private Sub Text1_Click(Button As Integer)", "End Function", "Text1_Click"}));
}

TEST(CodePass, ALongerWordThatHoldsTheHandlerIsServedAndAnotherNumberIsNot) {
    EXPECT_EQ(Fixed({"Private Sub Text1_Click()", "MyText1_Click", "Text10_Click", "Text1_Clicked", "Text1_ClickX(1)",
                     "s = \"Text1_Click\"", "' Text1_Click", "text1_click"}),
              Lines({"Private Sub Text1_Click(Button As Integer)", "MyText1_Click 0", "Text10_Click", "Text1_Clicked 0",
                     "Text1_ClickX(1) 0", "s = \"Text1_Click\" 0", "' Text1_Click 0", "text1_click"}));
}

TEST(CodePass, AHandlerOfALongerNameIsRewrittenByTheShorterOneToo) {
    EXPECT_EQ(Fixed({"Private Sub MyText1_Click()", "MyText1_Click"}),
              Lines({"Private Sub MyText1_Click(Button As Integer)", "MyText1_Click 0"}));
}

TEST(CodePass, OfTwoCallsOnALineOnlyTheFirstGetsTheArgument) {
    EXPECT_EQ(Fixed({"Private Sub Text1_Click()", "Call Text1_Click(): Call Text1_Click()"}),
              Lines({"Private Sub Text1_Click(Button As Integer)", "Call Text1_Click( 0): Call Text1_Click()"}));
}

TEST(CodePass, AllOccurrencesOfASignatureInALineAreReplacedAndCallsServedOnce) {
    EXPECT_EQ(Fixed({"Sub Text1_Click() ' Text1_Click()", "Text1_Click"}),
              Lines({"Sub Text1_Click(Button As Integer) ' Text1_Click(Button As Integer)", "Text1_Click 0"}));
}

TEST(CodePass, EachHandlerThatIsRewrittenServesTheCallsAgain) {
    EXPECT_EQ(Fixed({"Sub Text1_Click()", "Text1_Click", "Sub Text1_Click()"}),
              Lines({"Sub Text1_Click(Button As Integer)", "Text1_Click 0 0", "Sub Text1_Click(Button As Integer)"}));
}

TEST(CodePass, TheNameThatStandsTwiceFindsNothingLeftTheSecondTime) {
    EXPECT_EQ(Fixed({"Sub Text1_Click()", "Text1_Click"}, {u"Text1", u"Text1"}),
              Lines({"Sub Text1_Click(Button As Integer)", "Text1_Click 0"}));
}

TEST(CodePass, TwoSignaturesInOneLineAreRewrittenInTheOrderOfTheTable) {
    // Click without arguments comes before Click of a control array, so the call gets " 0" first.
    EXPECT_EQ(Fixed({"Sub Text1_Click(Index As Integer) ' Text1_Click()", "Text1_Click"}),
              Lines({"Sub Text1_Click(Index As Integer, Button As Integer) ' Text1_Click(Button As Integer)",
                     "Text1_Click 0,  0"}));
}

TEST(CodePass, AnEmptyNameFindsEveryHandler) {
    EXPECT_EQ(Fixed({"Private Sub Any_Click()", "Other_Click"}, {u""}),
              Lines({"Private Sub Any_Click(Button As Integer)", "Other_Click 0"}));
}

// "Text1_Click Sub" is no start; with the inserted argument behind it, it becomes one, further down and later on.
TEST(CodePass, ALineThatBecomesAProcedureStartByAnInsertionCountsAsOneFromThenOn) {
    EXPECT_EQ(
        Fixed({"Sub Text1_Click()", "Text1_Click Sub", "End Sub", "Text1_KeyPress x",
               "Sub Text1_KeyPress(KeyAscii As Integer)", "End Sub", "End Sub", "Text1_KeyPress y"}),
        Lines({"Sub Text1_Click(Button As Integer)", "Text1_Click Sub 0", "End Sub", "Text1_KeyPress x,  0",
               "Sub Text1_KeyPress(KeyAscii As Integer, Shift As Integer)", "End Sub", "End Sub", "Text1_KeyPress y"}));
}

TEST(CodePass, ALineThatBecomesAStartHasItsOwnSignaturesRewritten) {
    EXPECT_EQ(Fixed({"Sub Text1_Click()", "Text1_Click Text1_DblClick() Sub", "End Sub", "Text1_DblClick"}),
              Lines({"Sub Text1_Click(Button As Integer)", "Text1_Click Text1_DblClick(Button As Integer) Sub 0",
                     "End Sub", "Text1_DblClick 0"}));
}

// The argument in front of ")B_Click" makes it a handler of the odd name "0)B".
TEST(CodePass, ACallThatAnInsertionMakesIsServedByALaterName) {
    EXPECT_EQ(Fixed({"Sub A_Click()", "A_Click()B_Click x", "Sub 0)B_Click()"}, {u"A", u"0)B"}),
              Lines({"Sub A_Click(Button As Integer)", "A_Click( 0)B_Click x 0", "Sub 0)B_Click(Button As Integer)"}));
}

TEST(CodePass, ACallSeesTheLineAsEarlierNamesLeftIt) {
    EXPECT_EQ(Fixed({"Sub A_Click()", "Sub BA_Click()", "BA_Click"}, {u"BA", u"A"}),
              Lines({"Sub A_Click(Button As Integer)", "Sub BA_Click(Button As Integer)", "BA_Click 0 0"}));
}

TEST(CodePass, TheDescriptionIsSearchedToo) {
    const testing::Outcome outcome = testing::ConvertForm(
        Lines({"Begin VB.Form F", "Begin VB.TextBox Text1", "Tag = \"Sub Text1_Click()\"", "End", "End"}));
    EXPECT_NE(outcome.sBytes.find("\"Sub Text1_Click()\""), std::string::npos); // no blank in front of "Sub"
    const testing::Outcome found = testing::ConvertForm(
        Lines({"Begin VB.Form F", "Begin VB.TextBox Text1", "Tag = \"a Sub Text1_Click()\"", "End", "End"}));
    EXPECT_NE(found.sBytes.find("\"a Sub Text1_Click(Button As Integer)\""), std::string::npos);
}

TEST(CodePass, OnlyConvertedTextBoxesOfThisFileTakePart) {
    testing::FakeWorld world;
    const std::string sForm =
        Lines({"Begin VB.Form F", "Begin VB.CommandButton Text1", "End", "End", "Sub Text1_Click()", "Text1_Click"});
    world.Put(testing::kFormPath, sForm);
    EXPECT_NE(testing::ConvertIn(world).sBytes.find("Sub Text1_Click()\r\nText1_Click\r\n"), std::string::npos);
    world.kinds[0] = false;
    world.Put(testing::kFormPath,
              Lines({"Begin VB.Form F", "Begin VB.TextBox Text1", "End", "End", "Sub Text1_Click()", "Text1_Click"}));
    EXPECT_NE(testing::ConvertIn(world).sBytes.find("Sub Text1_Click()\r\nText1_Click\r\n"), std::string::npos);
}

TEST(CodePass, ItWritesNoRows) {
    const testing::Outcome outcome = testing::ConvertForm(
        Lines({"Begin VB.Form F", "Begin VB.TextBox T", "End", "End", "Sub T_Click()", "T_Click"}));
    EXPECT_EQ(outcome.rows.size(), 4u);
}

std::u16string LinesWithAHandlerAtTheEnd(std::size_t nLines) {
    std::u16string sText;
    for (std::size_t n = 0; n + 1 < nLines; ++n)
        sText += u"x\r\n";
    return sText + u"Sub Text1_Click()";
}

TEST(CodePass, ExactlyThirtyTwoThousandSevenHundredAndSixtyEightLinesPass) {
    LineArray aLines(LinesWithAHandlerAtTheEnd(32768));
    FixEventSignatures({u"Text1"}, aLines);
    EXPECT_EQ(aLines[32767], u"Sub Text1_Click(Button As Integer)");
}

TEST(CodePass, OneLineMoreOverflowsWithNothingChangedUnlessThereIsNoName) {
    LineArray aLines(LinesWithAHandlerAtTheEnd(32769));
    try {
        FixEventSignatures({u"Text1"}, aLines);
        ADD_FAILURE() << "no failure";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.Description(), u"Overflow");
    }
    EXPECT_EQ(aLines[32768], u"Sub Text1_Click()");
    EXPECT_NO_THROW(FixEventSignatures({}, aLines));
}

} // namespace
} // namespace orvanta
