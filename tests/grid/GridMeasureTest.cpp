// Growth by counting work: what is measured again, and what is not.
#include "grid/GridModel.h"

#include "tests/grid/FakeGrid.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

namespace orvanta {
namespace {

using testing::GridOnFake;

class GridMeasureTest : public ::testing::Test, protected GridOnFake {
protected:
    void Fill(std::int32_t lRows) {
        grid->BeginUpdate();
        while (grid->Rows() < lRows)
            grid->AddRow(u"row " + DecimalText(grid->Rows()) + u"\tsecond cell");
        grid->EndUpdate(true, false);
        view.TakeMeasured();
    }
};

TEST_F(GridMeasureTest, AnAddedRowIsMeasuredOnceAndThoseBeforeNotAgain) {
    Column(u"a");
    Column(u"b");
    Fill(100);
    for (int n = 0; n < 20; ++n) {
        grid->AddRow(u"x\ty", true);
        EXPECT_EQ(view.TakeMeasured(), 2);
    }
    Fill(2000);
    grid->AddRow(u"x\ty", true);
    EXPECT_EQ(view.TakeMeasured(), 0); // beyond the rows that count
}

TEST_F(GridMeasureTest, AnAddedRowOfManyLinesIsMeasuredOnceAtAnyCount) {
    grid->AllowMultiLineText(true);
    Column(u"a", 100);
    Column(u"b");
    Fill(5000);
    grid->AddRow(u"x\ty", true);
    EXPECT_EQ(view.TakeMeasured(), 2);
}

TEST_F(GridMeasureTest, AResizeMeasuresNothing) {
    grid->AllowMultiLineText(true);
    Column(u"a", 100);
    Column(u"b");
    Fill(10000);
    view.lWidth = 500;
    grid->Refresh(false);
    EXPECT_EQ(view.TakeMeasured(), 0);
}

TEST_F(GridMeasureTest, ANewWidthMeasuresItsColumnAlone) {
    grid->AllowMultiLineText(true);
    Column(u"a", 100);
    Column(u"b");
    Fill(300);
    grid->ColWidth(u"a", 90);
    EXPECT_EQ(view.TakeMeasured(), 300);
    grid->ColWidth(u"a", 90);
    EXPECT_EQ(view.TakeMeasured(), 0);
}

TEST_F(GridMeasureTest, AChangedCellIsMeasuredAlone) {
    Column(u"a");
    Column(u"b");
    Fill(300);
    grid->CellValue(150, u"a", u"another");
    EXPECT_EQ(view.TakeMeasured(), 1);
    grid->CellForeColor(150, u"a", 255);
    EXPECT_EQ(view.TakeMeasured(), 0);
    grid->RemoveRow(1);
    EXPECT_EQ(view.TakeMeasured(), 0);
    grid->SortByColum(u"a", false);
    grid->Refresh(false);
    EXPECT_EQ(view.TakeMeasured(), 0); // measures travel with their cells
}

TEST_F(GridMeasureTest, ANewFontMeasuresEverythingAgain) {
    Column(u"a");
    Column(u"b");
    Fill(300);
    view.lZoom = 2;
    grid->Refresh(false);
    EXPECT_EQ(view.TakeMeasured(), 1 + 2 + 600); // the line, two headers, the cells
}

TEST_F(GridMeasureTest, AnOwnerIsAskedAboutEveryCellButTextsAreNotMeasuredAgain) {
    Column(u"a");
    Column(u"b");
    Fill(300);
    std::int32_t nAsked = 0;
    grid->OnOwnerDrawPicture.Add([&](std::int32_t, const TaggedValue&, std::int32_t, GridPictureRef&, std::int32_t&,
                                     std::int32_t&, bool&, bool&, std::int32_t&, std::int32_t&,
                                     OleColor&) { ++nAsked; });
    grid->AddRow(u"x\ty");
    EXPECT_EQ(nAsked, 602);
    EXPECT_EQ(view.TakeMeasured(), 2);
}

TEST_F(GridMeasureTest, TheRememberedMeasuresOutliveMoreChangesThanTheirStampCounts) {
    grid->AllowMultiLineText(true);
    Column(u"a", 100);
    grid->AddRow(u"aaaa bbbb cccc dddd");
    for (std::int32_t n = 0; n < 70000; ++n)
        grid->ColWidth(u"a", n % 2 == 0 ? 30 : 300);
    EXPECT_EQ(grid->CellHeight(1, u"a"), 19);
    grid->ColWidth(u"a", 30);
    EXPECT_EQ(grid->CellHeight(1, u"a"), 4 * 13 + 6);
}

} // namespace
} // namespace orvanta
