#include "engine/RunLog.h"

#include "tests/engine/EngineRun.h"

#include "base/Failure.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace orvanta {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// A log that notes the calls as they come.
class CallLog final : public LogGrid {
public:
    void Clear(bool) override {}
    void AddColumn(std::u16string_view, std::int32_t, std::int32_t, const TaggedValue&, bool, std::int32_t, bool, bool,
                   bool, std::int32_t, bool) override {}
    void AddRow(std::u16string_view sRowText, bool bSelect) override {
        calls.push_back(u"add " + std::u16string(sRowText) + (bSelect ? u" selected" : u""));
    }
    std::int32_t Row() const override { return 7; }
    void CellForeColor(std::int32_t iRow, const TaggedValue& vColKey, std::int32_t lColor) override {
        calls.push_back(Colored(u"fore ", iRow, vColKey, lColor));
    }
    void CellBackColor(std::int32_t iRow, const TaggedValue& vColKey, std::int32_t lColor) override {
        calls.push_back(Colored(u"back ", iRow, vColKey, lColor));
    }

    std::vector<std::u16string> calls;

private:
    static std::u16string Colored(const char16_t* sWhich, std::int32_t iRow, const TaggedValue& vColKey,
                                  std::int32_t lColor) {
        return sWhich + vColKey.ToText() + (iRow == 7 && lColor == kRed ? u" red in row 7" : u"");
    }
};

TEST(RunLog, ARowIsOneSelectedAddRowAndItsColourGoesToTheGridsCurrentRow) {
    testing::FakeWorld world;
    CallLog grid;
    RunLog log(world, grid, RunLog::Columns::SourceLineDescription);
    log.SourceError(u"a.frm", u"text");
    log.LineMarked(3, u"text", kRed);
    log.Empty();
    EXPECT_THAT(grid.calls, ElementsAre(u"add a.frm\t\ttext selected", u"fore descr red in row 7",
                                        u"add \t3\ttext selected", u"back descr red in row 7", u"add  selected"));
}

TEST(RunLog, TheRowsOfAnUpgradeHaveNoLineCell) {
    testing::FakeWorld world;
    CallLog grid;
    RunLog log(world, grid, RunLog::Columns::SourceDescription);
    log.Source(u"a.frm", u"text");
    EXPECT_THAT(grid.calls, ElementsAre(u"add a.frm\ttext selected"));
}

TEST(RunLog, TheColoursAreThoseOfThePlatform) {
    EXPECT_EQ(kRed, 255);
    EXPECT_EQ(kDarkGreen, 32768);
    EXPECT_EQ(kBrightGreen, 65280);
    EXPECT_EQ(kYellow, 65535);
    EXPECT_EQ(kBlue, 16711680);
}

TEST(RunLog, AFailingStepShowsItsDescriptionOnceAndTheNextStepRuns) {
    testing::FakeWorld world;
    CallLog grid;
    RunLog log(world, grid, RunLog::Columns::SourceDescription);
    EXPECT_FALSE(log.Step([] { throw Overflow(); }));
    EXPECT_FALSE(log.Step([] { throw SubscriptOutOfRange(); }));
    EXPECT_TRUE(log.Step([] {}));
    EXPECT_THAT(world.boxes, ElementsAre(u"Overflow", u"Subscript out of range"));
}

TEST(RunLog, ALogThatTakesNoRowsGivesABoxForEachAndStopsNothing) {
    testing::FakeWorld world;
    testing::RecordedLog grid; // without a column it refuses rows
    RunLog log(world, grid, RunLog::Columns::SourceDescription);
    log.Source(u"a.frm", u"text");
    log.Source(u"b.frm", u"text");
    EXPECT_THAT(world.boxes, ElementsAre(u"Please add some columns first!", u"Please add some columns first!"));
    EXPECT_THAT(grid.Rows(), IsEmpty());
}

// A row goes to the log as one text with tabs between the cells, so a tab inside a code line cuts the description.
TEST(RunLog, ATabInAFlaggedCodeLineCutsTheDescription) {
    const testing::Outcome outcome =
        testing::ConvertForm("Begin VB.Form F\r\nEnd\r\n\tDim a\tAs TextBox\r\nx as label\ty\r\n");
    ASSERT_EQ(outcome.rows.size(), 6u);
    EXPECT_EQ(outcome.rows[1], "|2|Check this line, control reference found >>  [back 65280]");
    EXPECT_EQ(outcome.rows[2], "|3|Check this line, control reference found >> x as label [back 65280]");
}

} // namespace
} // namespace orvanta
