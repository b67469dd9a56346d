#include "engine/BlockProperties.h"

#include "tests/support/Unicode.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <optional>
#include <string>

namespace orvanta {
namespace {

struct Block {
    Block(std::initializer_list<std::u16string_view> lines) : aLines(Joined(lines)), structure(aLines) {}

    static std::u16string Joined(std::initializer_list<std::u16string_view> lines) {
        std::u16string sText;
        for (const std::u16string_view sLine : lines)
            sText.append(sText.empty() ? u"" : u"\r\n").append(sLine);
        return sText;
    }

    // Of the block whose `Begin ` line is the first mark.
    std::string Get(std::u16string_view sProperty) {
        return testing::ToUtf8(properties.GetBlockProperty(0, sProperty));
    }
    std::string LineText(std::size_t nLine) const { return testing::ToUtf8(aLines[nLine]); }

    LineArray aLines;
    BlockStructure structure;
    BlockProperties properties{aLines, structure};
};

TEST(BlockProperties, AValueIsTrimmedAndKeepsItsQuotesAndComment) {
    Block block{u"Begin VB.Label L", u"   Caption   =   \"a = b\"  'note  ", u"End"};
    EXPECT_EQ(block.Get(u"Caption"), "\"a = b\"  'note");
}

TEST(BlockProperties, TheNameIsMatchedInAnyCaseAndAsAWholeWord) {
    Block block{u"Begin VB.Label L", u"Values = 1", u"MyValue = 2", u"Value.x = 3", u"Value x = 4", u"vALUE=5", u"End"};
    EXPECT_EQ(block.Get(u"Value"), "5");
    EXPECT_EQ(block.Get(u"VALUE"), "5");
    EXPECT_EQ(block.Get(u"Valu"), "");
}

TEST(BlockProperties, TheKeyEndsAtTheFirstEqualsSignAndATabBelongsToIt) {
    Block block{u"Begin VB.Label L", u"Value\t= 1", u"\tValue = 2", u"Value", u"Value = = 3", u"End"};
    EXPECT_EQ(block.Get(u"Value"), "= 3");
}

TEST(BlockProperties, TheFirstOfTwoLinesIsTheOne) {
    Block block{u"Begin VB.Label L", u"Value = 1", u"Value = 2", u"End"};
    EXPECT_EQ(block.Get(u"Value"), "1");
}

TEST(BlockProperties, AnEmptyValueLooksLikeNoneAndHidesALaterLine) {
    Block block{u"Begin VB.Label L", u"Value =   ", u"Value = 2", u"End"};
    EXPECT_EQ(block.Get(u"Value"), "");
    EXPECT_TRUE(block.properties.ChangeBlockProperty(0, u"Value", u"Pressed", u"0"));
    EXPECT_EQ(block.LineText(1), "Pressed=0");
}

TEST(BlockProperties, PropertyGroupsAndNestedControlsAreOtherLevels) {
    Block block{u"Begin VB.Frame F", u"BeginProperty Font ",
                u"Size = 1",         u"BeginProperty x ",
                u"Size = 2",         u"EndProperty",
                u"EndProperty",      u"Begin VB.Label L",
                u"Size = 3",         u"End",
                u"Size = 4",         u"End"};
    EXPECT_EQ(block.Get(u"Size"), "4");
}

TEST(BlockProperties, TheBlockEndsAtItsEnd) {
    Block block{u"Begin VB.Frame F", u"Left = 1", u"   End", u"Value = 2"};
    EXPECT_EQ(block.Get(u"Value"), "");
    EXPECT_EQ(block.Get(u"Left"), "1");
}

TEST(BlockProperties, EndCapEndsTheBlock) {
    Block block{u"Begin VB.Frame F", u"EndCap = 1", u"Value = 2", u"End"};
    EXPECT_EQ(block.Get(u"Value"), "");
    EXPECT_EQ(block.Get(u"EndCap"), ""); // the level is 0 there
}

TEST(BlockProperties, ABlockWithoutEndReachesToTheLastLine) {
    Block block{u"Begin VB.Frame F", u"Left = 1", u"Value = 2"};
    EXPECT_EQ(block.Get(u"Value"), "2");
}

TEST(BlockProperties, AnEndPropertyTooManyLeavesTheBlockOpenButUnseen) {
    // Level 0 by "EndProperty" ends nothing; the properties behind it are not at level 1, those of the next block are.
    Block block{u"Begin VB.Frame F", u"EndProperty", u"Value = 1", u"Begin VB.Label L",
                u"Value = 2",        u"End",         u"Value = 3"};
    EXPECT_EQ(block.Get(u"Value"), "2");
}

TEST(BlockProperties, ALevelBelowZeroRisesAgain) {
    Block block{u"Begin VB.Frame F", u"EndProperty", u"EndProperty", u"Begin a b", u"Value = 1",
                u"BeginProperty x ", u"Value = 2",   u"End",         u"Value = 3"};
    EXPECT_EQ(block.Get(u"Value"), "2");
}

TEST(BlockProperties, AGroupThatIsNeverClosedTakesTheEndOfTheBlock) {
    Block block{u"Begin VB.Frame F", u"BeginProperty Font ", u"End", u"Value = 1", u"End", u"Value = 2"};
    EXPECT_EQ(block.Get(u"Value"), "1");
}

TEST(BlockProperties, ChangeWritesAtTheFirstColumnWithoutBlanks) {
    Block block{u"Begin VB.Label L", u"   ToolTipText   =   \"x\"  'y ", u"   Value = 1  'z", u"End"};
    EXPECT_TRUE(block.properties.ChangeBlockProperty(0, u"tooltiptext", u"Tip"));
    EXPECT_EQ(block.LineText(1), "Tip=\"x\"  'y");
    EXPECT_TRUE(block.properties.ChangeBlockProperty(0, u"Value", u"Pressed", u"-1"));
    EXPECT_EQ(block.LineText(2), "Pressed=-1");
}

TEST(BlockProperties, AnEmptyNewValueIsNotTheSameAsNone) {
    Block block{u"Begin VB.Label L", u"A = 1", u"B = 2", u"End"};
    EXPECT_TRUE(block.properties.ChangeBlockProperty(0, u"A", u"A", u""));
    EXPECT_TRUE(block.properties.ChangeBlockProperty(0, u"B", u"B", std::nullopt));
    EXPECT_EQ(block.LineText(1), "A=");
    EXPECT_EQ(block.LineText(2), "B=2");
}

TEST(BlockProperties, WithoutAMatchNothingChanges) {
    Block block{u"Begin VB.Label L", u"A = 1", u"End"};
    EXPECT_FALSE(block.properties.ChangeBlockProperty(0, u"B", u"C", u"1"));
    EXPECT_EQ(block.LineText(1), "A = 1");
}

TEST(BlockProperties, ARebuiltBeginLineWithAnAddedPropertyIsNotTakenForOne) {
    Block block{u"Begin VB.CheckBox C", u"Left = 1", u"End"};
    block.aLines.Set(0, u"Begin Orvanta.ctlUniCheckXP C\r\nPressed = 0");
    EXPECT_EQ(block.Get(u"Pressed"), "");
}

TEST(BlockStructure, AMarkKnowsTheLineThatClosesIt) {
    const Block block{u"Begin a b", u"BeginProperty c ", u"EndProperty", u"  End x", u"Begin d e", u"End"};
    const auto& marks = block.structure.Marks();
    ASSERT_EQ(marks.size(), 6u);
    EXPECT_EQ(marks[0].nPartner, 3u);
    EXPECT_EQ(marks[1].nPartner, 2u);
    EXPECT_EQ(marks[4].nPartner, 5u);
    EXPECT_EQ(marks[3].nLine, 3u);
    EXPECT_EQ(marks[1].kind, LineKind::BeginProperty);
    EXPECT_EQ(marks[2].kind, LineKind::EndProperty);
    EXPECT_EQ(marks[3].kind, LineKind::End);
}

TEST(BlockStructure, KeywordsStandBehindBlanksOnlyAndBeginAsksForItsBlank) {
    const Block block{u"xBegin a b", u"Begin",  u"BeginProperty", u"\tEnd",       u"x End",
                      u"EnD",        u"BeginX", u" Begin a",      u"EndPropertyX"};
    const auto& marks = block.structure.Marks();
    ASSERT_EQ(marks.size(), 2u);
    EXPECT_EQ(marks[0].nLine, 7u);
    EXPECT_EQ(marks[1].kind, LineKind::EndProperty);
}

} // namespace
} // namespace orvanta
