// The conversion's cost follows the size of a file, not its shape: each of these takes minutes when some step goes over
// the file once per control, so the time limit of the test program is the measure.
#include "tests/engine/EngineRun.h"
#include "tests/support/FormGenerator.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <string>

namespace orvanta {
namespace {

using ::testing::Contains;
using testing::ConvertForm;
using testing::Outcome;

TEST(Growth, AThousandsOfFramesDeepNestingConverts) {
    std::string sForm = "Begin VB.Form F\r\n";
    constexpr std::size_t kDeep = 20'000;
    for (std::size_t n = 0; n < kDeep; ++n)
        sForm += "Begin VB.Frame R\r\n";
    for (std::size_t n = 0; n < kDeep; ++n)
        sForm += "ToolTipText = \"t\"\r\nEnd\r\n";
    EXPECT_THAT(ConvertForm(sForm + "End\r\n").rows, Contains("||Converted 20000 controls [fore 16711680]"));
}

TEST(Growth, TensOfThousandsOfSiblingsInOneFrameConvert) {
    std::string sForm = "Begin VB.Form F\r\nBegin VB.Frame R\r\n";
    for (std::size_t n = 0; n < 20'000; ++n)
        sForm += "Begin VB.ComboBox c\r\nStyle = 2\r\nToolTipText = \"t\"\r\nEnd\r\n";
    const Outcome outcome = ConvertForm(sForm + "ToolTipText = \"frame\"\r\nEnd\r\nEnd\r\n");
    EXPECT_THAT(outcome.rows, Contains("||Converted 20001 controls [fore 16711680]"));
    EXPECT_EQ(outcome.rows.size(), 20'001u + 5);
}

TEST(Growth, ManyTextBoxesInALongFormConvert) {
    testing::FormPlan plan;
    plan.nControls = 3000;
    plan.nTextBoxes = 1500;
    plan.nCodeLines = 1000;
    std::string sForm = testing::GenerateForm(plan);
    ASSERT_LE(std::count(sForm.begin(), sForm.end(), '\n'), 50'000);
    const Outcome outcome = ConvertForm(sForm);
    EXPECT_NE(outcome.rows.size(), 0u);
}

TEST(Growth, AControlArrayOfThousandsOfTextBoxesConverts) {
    std::string sForm = "Begin VB.Form F\r\n";
    for (std::size_t n = 0; n < 8'000; ++n)
        sForm += "Begin VB.TextBox Text1\r\nEnd\r\n";
    sForm += "End\r\nPrivate Sub Text1_Click(Index As Integer)\r\n";
    for (std::size_t n = 0; n < 500; ++n)
        sForm += "Text1_Click 1\r\n";
    const Outcome outcome = ConvertForm(sForm);
    EXPECT_THAT(outcome.boxes, ::testing::IsEmpty());
    EXPECT_NE(outcome.sBytes.find("Text1_Click 1,  0\r\n"), std::string::npos);
}

} // namespace
} // namespace orvanta
