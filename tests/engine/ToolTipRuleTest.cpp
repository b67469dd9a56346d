// ToolTipText becomes Tip on every converted control.
#include "tests/engine/EngineRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace orvanta {
namespace {

using ::testing::Contains;
using testing::Outcome;

constexpr const char* kTipMoved = "|1|l> ToolTipText>>Tip [fore 32768]";
constexpr const char* kTips =
    "||Tips Found, please add a ctlUniTooltipManager control to the starting form of your application [back 65535]";

struct TipCase {
    const char* sLine;
    const char* sWanted;
};

TEST(ToolTipRule, TheTipMovesToTheFirstColumnAndKeepsItsTrimmedValue) {
    const TipCase cases[] = {
        {"      ToolTipText     =   \"Save\"", "Tip=\"Save\""},
        {"ToolTipText=\"a = b\"  ", "Tip=\"a = b\""},
        {"tooltiptext = \"x\"  'comment", "Tip=\"x\"  'comment"},
        {"ToolTipText = $\"a.frx\":0000", "Tip=$\"a.frx\":0000"},
        {"ToolTipText = \"\"", "Tip=\"\""}, // two quotes are not empty
        {"ToolTipText =\t", "Tip=\t"},      // nor is a tab
    };
    for (const TipCase& c : cases) {
        const Outcome outcome = testing::ConvertBlock({"Begin VB.Label l", c.sLine, "End"});
        EXPECT_EQ(outcome.sBytes, testing::InConvertedForm({"Begin Orvanta.ctlUniLabel l", c.sWanted, "End"}))
            << c.sLine;
        EXPECT_EQ(outcome.rows[1], kTipMoved);
        EXPECT_THAT(outcome.rows, Contains(kTips));
    }
}

TEST(ToolTipRule, AnEmptyTipStaysAndDoesNotCount) {
    const Outcome outcome =
        testing::ConvertBlock({"Begin VB.Label l", "ToolTipText =", "ToolTipText = \"later\"", "End"});
    EXPECT_EQ(outcome.sBytes, testing::InConvertedForm(
                                  {"Begin Orvanta.ctlUniLabel l", "ToolTipText =", "ToolTipText = \"later\"", "End"}));
    EXPECT_EQ(outcome.rows.size(), 4u);
}

TEST(ToolTipRule, TwoTipsGiveTwoRowsAndOneWarning) {
    const Outcome outcome = testing::ConvertBlock(
        {"Begin VB.Frame a", "ToolTipText = 1", "Begin VB.Label b", "ToolTipText = 2", "End", "End"});
    EXPECT_EQ(outcome.sBytes, testing::InConvertedForm({"Begin Orvanta.ctlUniFrameXP a", "Tip=1",
                                                        "Begin Orvanta.ctlUniLabel b", "Tip=2", "End", "End"}));
    EXPECT_THAT(outcome.rows,
                ::testing::ElementsAre("a.frm||Reading...", "|1|a> ToolTipText>>Tip [fore 32768]",
                                       "|3|b> ToolTipText>>Tip [fore 32768]", "||Converted 2 controls [fore 16711680]",
                                       kTips, "||Saved...", "||"));
}

TEST(ToolTipRule, TheTipOfANestedControlIsNotTakenForThatOfItsFrame) {
    EXPECT_EQ(testing::ConvertBlock({"Begin VB.Frame a", "Begin VB.Timer b", "ToolTipText = 2", "End", "End"}).sBytes,
              testing::InConvertedForm(
                  {"Begin Orvanta.ctlUniFrameXP a", "Begin VB.Timer b", "ToolTipText = 2", "End", "End"}));
}

} // namespace
} // namespace orvanta
