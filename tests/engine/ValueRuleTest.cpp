// Check boxes and option buttons: Value becomes Pressed.
#include "tests/engine/EngineRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace orvanta {
namespace {

using ::testing::ElementsAre;
using testing::Outcome;

constexpr const char* kValueMoved = "|1|c> Value>>Pressed [fore 32768]";

Outcome WithValueLine(const std::string& sLine) {
    return testing::ConvertBlock({"Begin VB.CheckBox c", sLine, "End"});
}

TEST(ValueRule, ABoxWithoutValueGetsPressedZeroBehindItsBeginLineAndNoRow) {
    const Outcome outcome = testing::ConvertBlock({"   Begin VB.CheckBox c ", "      Caption = \"x\"", "   End"});
    EXPECT_EQ(outcome.sBytes, testing::InConvertedForm(
                                  {"Begin Orvanta.ctlUniCheckXP c", "Pressed = 0", "      Caption = \"x\"", "   End"}));
    EXPECT_EQ(outcome.rows.size(), 4u);
}

struct ValueCase {
    const char* sLine;
    const char* sWanted;
};

TEST(ValueRule, OnlyAValueThatStartsWithOneOrMinusOneIsPressed) {
    const ValueCase cases[] = {
        {"Value = 1", "Pressed=-1"},         {"      Value           =   1  'Checked", "Pressed=-1"},
        {"Value = -1  'True", "Pressed=-1"}, {"Value=10", "Pressed=-1"},
        {"Value = -10", "Pressed=-1"},       {"vaLUE = 1", "Pressed=-1"},
        {"Value = 2  'Grayed", "Pressed=0"}, {"Value = 0  'False", "Pressed=0"},
        {"Value = - 1", "Pressed=0"},        {"Value = \"1\"", "Pressed=0"},
        {"Value = True", "Pressed=0"},       {"Value = \t1", "Pressed=0"}, // a tab is not trimmed
        {"Value = =1", "Pressed=0"},
    };
    for (const ValueCase& c : cases) {
        const Outcome outcome = WithValueLine(c.sLine);
        EXPECT_EQ(outcome.sBytes, testing::InConvertedForm({"Begin Orvanta.ctlUniCheckXP c", c.sWanted, "End"}))
            << c.sLine;
        EXPECT_EQ(outcome.rows[1], kValueMoved) << c.sLine;
    }
}

TEST(ValueRule, OptionButtonsAndTheOtherFamilyFollowIt) {
    for (const char* sType : {"VB.OptionButton", "MSForms.OptionButton", "MSForms.CheckBox"}) {
        const Outcome outcome =
            testing::ConvertBlock({std::string("Begin ") + sType + " c", "Value = -1  'True", "End"});
        EXPECT_NE(outcome.sBytes.find("\r\nPressed=-1\r\n"), std::string::npos) << sType;
        EXPECT_EQ(outcome.rows[1], kValueMoved) << sType;
    }
}

TEST(ValueRule, OtherTypesKeepTheirValue) {
    EXPECT_EQ(testing::ConvertBlock({"Begin VB.CommandButton c", "Value = 1", "End"}).sBytes,
              testing::InConvertedForm({"Begin Orvanta.ctlUniButtonImageXP c", "Value = 1", "End"}));
}

// An empty value counts as no such line, and a later line with the same name is not looked at.
TEST(ValueRule, AnEmptyValueCountsAsNoValueLineAndHidesALaterOne) {
    const Outcome outcome = testing::ConvertBlock({"Begin VB.CheckBox c", "Value =", "Value = 1", "End"});
    EXPECT_EQ(outcome.sBytes, testing::InConvertedForm(
                                  {"Begin Orvanta.ctlUniCheckXP c", "Pressed = 0", "Value =", "Value = 1", "End"}));
    EXPECT_EQ(outcome.rows.size(), 4u);
}

TEST(ValueRule, OnlyTheFirstOfTwoValueLinesMoves) {
    EXPECT_EQ(testing::ConvertBlock({"Begin VB.CheckBox c", "Value = 2", "Value = 1", "End"}).sBytes,
              testing::InConvertedForm({"Begin Orvanta.ctlUniCheckXP c", "Pressed=0", "Value = 1", "End"}));
}

TEST(ValueRule, TheRowOfTheValueStandsBeforeThatOfTheTipAndBothNameTheBeginLine) {
    const Outcome outcome = testing::ConvertBlock(
        {"Begin VB.Label l", "End", "Begin VB.CheckBox c", "ToolTipText = \"t\"", "Value = 1", "End"});
    ASSERT_GE(outcome.rows.size(), 3u);
    EXPECT_EQ(outcome.rows[1], "|3|c> Value>>Pressed [fore 32768]");
    EXPECT_EQ(outcome.rows[2], "|3|c> ToolTipText>>Tip [fore 32768]");
}

} // namespace
} // namespace orvanta
