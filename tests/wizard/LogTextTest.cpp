#include "wizard/LogText.h"

#include "engine/cVbpMigrator.h"
#include "tests/engine/EngineRun.h"
#include "tests/wizard/FakeWizard.h"

#include <gtest/gtest.h>

namespace orvanta {
namespace {

class LogTextTest : public ::testing::Test {
protected:
    void Column(std::u16string_view sText) {
        log.AddColumn(sText, -1, 0, sText, true, 2, false, false, false, 0, true);
    }
    void ThreeColumns() {
        Column(u"Source");
        Column(u"Line");
        Column(u"Description");
    }

    testing::RecordedLog log;
    testing::FakeTable table{log};
};

TEST_F(LogTextTest, PadRightAppendsBlanksUpToTheWidth) {
    EXPECT_EQ(PadRight(u"ab", 5), u"ab   ");
    EXPECT_EQ(PadRight(u"", 2), u"  ");
}

TEST_F(LogTextTest, PadRightKeepsALongerTextWhole) {
    EXPECT_EQ(PadRight(u"abcdef", 5), u"abcdef");
    EXPECT_EQ(PadRight(u"abcde", 5), u"abcde");
    EXPECT_EQ(PadRight(u"ab", 0), u"ab");
    EXPECT_EQ(PadRight(u"ab", -3), u"ab");
}

TEST_F(LogTextTest, FilterHoldsAllFiles) {
    EXPECT_EQ(FilterAllFiles(), std::u16string(u"All Files (*.*)\0*.*\0", 20));
}

TEST_F(LogTextTest, EmptyGridGivesTheHeaderLineAndTwoLineBreaks) {
    ThreeColumns();
    EXPECT_EQ(LogText(table), u"Source    , Line , Description         \r\n\r\n");
}

TEST_F(LogTextTest, GridWithoutColumnsGivesTwoLineBreaks) {
    EXPECT_EQ(LogText(table), u"\r\n\r\n");
}

TEST_F(LogTextTest, EachRowIsALineWithPaddedCells) {
    ThreeColumns();
    log.AddRow(u"a.frm\t\tReading...", true);
    log.AddRow(u"\t7\tX> Value>>Pressed", true);
    EXPECT_EQ(LogText(table), u"Source    , Line , Description         \r\n\r\n"
                              u"a.frm     ,      , Reading...          \r\n"
                              u"          , 7    , X> Value>>Pressed   \r\n");
}

TEST_F(LogTextTest, CellWiderThanItsColumnIsNotCut) {
    ThreeColumns();
    log.AddRow(u"averylongname.frm\t123456\tx", true);
    table.widths = {50, 25, 10};
    EXPECT_EQ(LogText(table), u"Source    , Line , Description\r\n\r\naveryl"
                              u"ongname.frm, 123456, x \r\n");
}

TEST_F(LogTextTest, EmptyRowBecomesBlanksAndSeparators) {
    ThreeColumns();
    log.AddRow(u"", true);
    table.widths = {15, 10, 5};
    EXPECT_EQ(LogText(table), u"Source, Line, Description\r\n\r\n   ,   ,  \r\n");
}

TEST_F(LogTextTest, WidthIsRoundedHalfToEven) {
    Column(u"");
    log.AddRow(u"", true);
    const auto nChars = [this](std::int32_t lWidth) {
        table.widths = {lWidth};
        return LogText(table).find(u'\r');
    };
    // No width of whole pixels lies half way between two characters of five.
    EXPECT_EQ(nChars(2), 0u);
    EXPECT_EQ(nChars(3), 1u);
    EXPECT_EQ(nChars(12), 2u);
    EXPECT_EQ(nChars(13), 3u);
    EXPECT_EQ(nChars(15), 3u);
    EXPECT_EQ(nChars(-1), 0u);
}

TEST_F(LogTextTest, UpgradeLogHasTwoColumns) {
    Column(u"Source");
    Column(u"Description");
    log.AddRow(u"App.vbp\tUpgraded...", true);
    table.widths = {40, 55};
    EXPECT_EQ(LogText(table), u"Source  , Description\r\n\r\nApp.vbp , Upgraded...\r\n");
}

TEST_F(LogTextTest, ConversionOfAFileClosesWithALineOfBlanksAndSeparators) {
    testing::FakeWorld world;
    world.Put(testing::kProjectPath, testing::kProject);
    world.Put(testing::kFormPath, "Begin VB.Form F\r\nEnd\r\n");
    Collection<std::u16string> files;
    files.Add(testing::kFormPath);
    ASSERT_TRUE(cVbpMigrator(world).Convert(testing::kProjectPath, files, log, false, false));
    table.widths = {30, 20, 60};
    EXPECT_EQ(LogText(table), u"Source, Line, Description \r\n\r\n"
                              u"a.frm ,     , Reading...  \r\n"
                              u"      ,     , Converted 0 controls\r\n"
                              u"      ,     , Saved...    \r\n"
                              u"      ,     ,             \r\n");
}

TEST_F(LogTextTest, LogOfManyRowsIsWhole) {
    Column(u"Description");
    for (int n = 0; n < 20000; ++n)
        log.AddRow(u"row", true);
    table.widths = {25};
    EXPECT_EQ(LogText(table).size(), 11u + 4 + 20000u * 7);
}

} // namespace
} // namespace orvanta
