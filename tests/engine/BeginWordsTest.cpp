#include "engine/BeginWords.h"

#include "tests/engine/EngineRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace orvanta {
namespace {

using ::testing::Contains;
using testing::ConvertForm;
using ::testing::ElementsAre;
using testing::Lines;
using testing::Outcome;

constexpr const char* kOutOfRange = "Subscript out of range";

struct Words : ::testing::Test {
    void Take(std::u16string_view sLine) { words.Take(sLine, log); }

    testing::FakeWorld world;
    testing::RecordedLog grid;
    RunLog log{world, grid, RunLog::Columns::SourceDescription};
    BeginWords words;
};

TEST_F(Words, TheLineIsTrimmedAndSplitAtEachSingleBlank) {
    Take(u"   Begin VB.Label Label1 more ");
    EXPECT_EQ(words.Type(), u"VB.Label");
    EXPECT_EQ(words.Name(), u"Label1");
    EXPECT_TRUE(world.boxes.empty());
}

TEST_F(Words, ANameBehindTwoBlanksIsEmptyAndATypeBehindTwoBlanksToo) {
    Take(u"Begin VB.Label  Label1");
    EXPECT_EQ(words.Type(), u"VB.Label");
    EXPECT_EQ(words.Name(), u"");
    Take(u"Begin  VB.Label Label1");
    EXPECT_EQ(words.Type(), u"");
    EXPECT_EQ(words.Name(), u"VB.Label");
    EXPECT_TRUE(world.boxes.empty());
}

TEST_F(Words, ATabSeparatesNothing) {
    Take(u"Begin VB.Label\tx Label1\t");
    EXPECT_EQ(words.Type(), u"VB.Label\tx");
    EXPECT_EQ(words.Name(), u"Label1\t");
}

TEST_F(Words, OneWordFailsTwiceAndTwoWordsOnceAndEachKeepsTheLastValue) {
    Take(u"Begin ");
    EXPECT_EQ(world.boxes.size(), 2u);
    EXPECT_EQ(words.Type(), u"");
    EXPECT_EQ(words.Name(), u"");
    Take(u"Begin VB.Label L");
    Take(u"Begin VB.Frame");
    EXPECT_EQ(world.boxes.size(), 3u);
    EXPECT_EQ(words.Type(), u"VB.Frame");
    EXPECT_EQ(words.Name(), u"L");
    Take(u"Begin ");
    EXPECT_THAT(world.boxes,
                ElementsAre(u"Subscript out of range", u"Subscript out of range", u"Subscript out of range",
                            u"Subscript out of range", u"Subscript out of range"));
    EXPECT_EQ(words.Type(), u"VB.Frame");
    EXPECT_EQ(words.Name(), u"L");
}

TEST(ShortBeginLine, WhatFollowsGoesOnWithTheKeptTypeAndName) {
    const Outcome outcome = ConvertForm(
        Lines({"Begin VB.Form F", "Begin VB.CheckBox C", "End", "   Begin ", "ToolTipText = 1", "End", "End"}));
    EXPECT_EQ(outcome.sBytes, Lines({"Begin VB.Form F", "Begin Orvanta.ctlUniCheckXP C", "Pressed = 0", "End",
                                     "Begin Orvanta.ctlUniCheckXP C", "Pressed = 0", "Tip=1", "End", "End", ""}));
    EXPECT_THAT(outcome.boxes, ElementsAre(kOutOfRange, kOutOfRange));
    EXPECT_THAT(outcome.rows, Contains("|3|C> ToolTipText>>Tip [fore 32768]"));
    EXPECT_THAT(outcome.rows, Contains("||Converted 2 controls [fore 16711680]"));
}

TEST(ShortBeginLine, TwoWordsGiveTheirTypeAndKeepTheName) {
    const Outcome outcome = ConvertForm(Lines({"Begin VB.Form F", "Begin VB.Label", "End", "End"}));
    EXPECT_EQ(outcome.sBytes, Lines({"Begin VB.Form F", "Begin Orvanta.ctlUniLabel F", "End", "End", ""}));
    EXPECT_THAT(outcome.boxes, ElementsAre(kOutOfRange));
}

TEST(ShortBeginLine, NothingIsKeptFromOneFileToTheNext) {
    testing::FakeWorld world;
    world.Put(testing::kFormPath, "Begin VB.Label L\r\n");
    testing::ConvertIn(world);
    world.Put(testing::kFormPath, "Begin \r\nBegin VB.Label\r\n");
    const Outcome outcome = testing::ConvertIn(world);
    EXPECT_EQ(outcome.sBytes, "Begin \r\nBegin Orvanta.ctlUniLabel \r\n\r\n");
    EXPECT_EQ(outcome.boxes.size(), 3u);
}

TEST(ShortBeginLine, TheUpgradeTakesBothWordsToo) {
    const Outcome outcome =
        testing::UpgradeForm(Lines({"Begin VB.Form", "Begin Orvanta.ctlUniButtonXP B", "End", "Begin ", "End", "End"}));
    EXPECT_THAT(outcome.boxes, ElementsAre(kOutOfRange, kOutOfRange, kOutOfRange));
    EXPECT_EQ(outcome.sBytes,
              Lines({"Begin VB.Form", "Begin Orvanta.ctlUniButtonImageXP B", "End", "Begin ", "End", "End", ""}));
}

// The kept type is looked up again: the line has nothing to replace, and the file counts as changed.
TEST(ShortBeginLine, AnUpgradeByAKeptTypeAloneStillSavesTheFile) {
    const Outcome outcome = testing::UpgradeForm(Lines({"Begin Orvanta.ctlUniLabel L", "End"}));
    EXPECT_EQ(outcome.rows[0], "a.frm|Skipped...");
    const Outcome kept = testing::UpgradeForm(Lines(
        {"Begin VB.Form F", "Begin Orvanta.ctlUniLabel L", "BackStyle = 1", "End", "Begin ", "BackStyle = 0", "End"}));
    EXPECT_EQ(kept.rows[0], "a.frm|Upgraded...");
    EXPECT_EQ(kept.sBytes, Lines({"Begin VB.Form F", "Begin Orvanta.ctlUniLabel L", "BackStyle = 1", "End", "Begin ",
                                  "BackStyle = 0", "End", ""}));
}

} // namespace
} // namespace orvanta
