#include "grid/GridLayout.h"

#include "grid/GridPlacement.h"
#include "tests/grid/FakeGrid.h"
#include "tests/support/NumberRaisedBy.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <string>

namespace orvanta {
namespace {

using ::testing::ElementsAre;
using testing::GridOnFake;
using testing::MakePicture;
using testing::NumberRaisedBy;

// A line of text is 13 high, so a row 19, of which neighbours share one pixel. The view is 300 by 200.
class GridLayoutTest : public ::testing::Test, protected GridOnFake {
protected:
    const GridLayout& Layout() const { return grid->Layout(); }
    std::array<std::int32_t, 4> Rect(std::int32_t iRow, std::int32_t iCol) const {
        std::array<std::int32_t, 4> r{};
        Layout().GetCellRect(iRow, iCol, r[0], r[1], r[2], r[3]);
        return r;
    }
    std::array<std::int32_t, 4> AbsRect(std::int32_t iRow, std::int32_t iCol) const {
        std::array<std::int32_t, 4> r{};
        Layout().GetCellAbsRect(iRow, iCol, r[0], r[1], r[2], r[3]);
        return r;
    }
    // Fixed columns of these widths.
    void Columns(std::initializer_list<std::int32_t> widths) {
        for (const std::int32_t iWidth : widths)
            grid->AddColumn(u"", iWidth);
    }
    // One column of one, two, one and three lines.
    void MultiLineRows() {
        grid->AllowMultiLineText(true);
        Columns({100});
        for (const char16_t* s : {u"one", u"one\r\ntwo", u"one", u"one\rtwo\rthree"})
            grid->AddRow(s);
    }
};

TEST_F(GridLayoutTest, ARowIsSixHigherThanItsTextAndAtLeastTheLeastHeight) {
    Columns({10});
    EXPECT_EQ(Layout().RowHeight(), 19);
    grid->MinRowHeight(18);
    EXPECT_EQ(Layout().RowHeight(), 19);
    grid->MinRowHeight(25);
    EXPECT_EQ(Layout().RowHeight(), 25);
}

TEST_F(GridLayoutTest, WithoutColumnsNothingIsMeasured) {
    grid->Refresh(false);
    EXPECT_EQ(Layout().RowHeight(), 0);
    EXPECT_EQ(view.TakeMeasured(), 0);
}

TEST_F(GridLayoutTest, AnAutomaticColumnIsAsWideAsItsWidestContentAndTen) {
    Column(u"first");
    Column(u"last");
    EXPECT_EQ(grid->ColWidth(u"first"), 26 + 9 + 2 + 10); // "f", "r", "s", "t" 6 and "i" 2, the arrow and its gap
    grid->AddRow(u"abcdefgh");                            // 48
    EXPECT_EQ(grid->ColWidth(u"first"), 58);
    grid->SetCellPicture(1, u"first", MakePicture(100, 5)); // text and picture do not add up
    EXPECT_EQ(grid->ColWidth(u"first"), 110);
    grid->SetCellPicture(1, u"first", MakePicture(20, 5));
    EXPECT_EQ(grid->ColWidth(u"first"), 58);
}

TEST_F(GridLayoutTest, NumbersAreMeasuredAsTheyAreShownAndFlagsAsTheCheckMark) {
    grid->AddColumn(u"", -1, 0, u"n", true, 2, false, false, false, 1);
    grid->AddColumn(u"", -1, 0, u"f", true, 2, false, false, false, 2);
    grid->AddColumn(u"", -1, 0, u"other", true, 2, false, false, false, 3);
    Columns({1});
    grid->AddRow(u"1234");
    EXPECT_EQ(grid->ColWidth(u"n"), 34);
    grid->SetColFormat(u"n", u"", u",", -1, 2, false, true, false);
    EXPECT_EQ(grid->ColWidth(u"n"), 8 * 6 + 10);
    EXPECT_EQ(grid->ColWidth(u"f"), 17);
    grid->CellValue(1, u"other", u"not shown");
    EXPECT_EQ(grid->ColWidth(u"other"), 10);
}

TEST_F(GridLayoutTest, AFormatThatIsWrittenIntoTheFieldsIsSeen) {
    grid->AddColumn(u"", -1, 0, u"n", true, 2, false, false, false, 1);
    Columns({1});
    grid->AddRow(u"1");
    EXPECT_EQ(grid->ColWidth(u"n"), 16);
    grid->Columns().At(1)->iNumFixInt = 3;
    grid->Refresh(false);
    EXPECT_EQ(grid->ColWidth(u"n"), 28);
    locale.cDecimal = u',';
    grid->Columns().At(1)->iNumFixDec = 1;
    grid->Refresh(false);
    EXPECT_EQ(grid->ColWidth(u"n"), 40);
}

TEST_F(GridLayoutTest, RowsBeyond749DoNotWidenAColumn) {
    Column(u"a");
    Columns({1});
    grid->BeginUpdate();
    grid->Rows(760);
    grid->CellValue(750, u"a", u"longer than all rows before it");
    grid->EndUpdate(true, false);
    EXPECT_EQ(grid->ColWidth(u"a"), 6 + 11 + 10);
    grid->CellValue(749, u"a", u"longer");
    EXPECT_EQ(grid->ColWidth(u"a"), 32 + 10);
    grid->RemoveRow(1); // row 750 comes up
    EXPECT_EQ(grid->ColWidth(u"a"), 26 * 6 + 4 * 2 + 10);
}

TEST_F(GridLayoutTest, AFixedWidthIsTakenAsItIs) {
    Columns({50, 0, -7, 40});
    grid->AddRow(u"much wider than that\tx\ty\tz");
    EXPECT_EQ(grid->ColWidth(std::int32_t{1}), 50);
    EXPECT_EQ(grid->ColWidth(std::int32_t{2}), 0);
    EXPECT_EQ(grid->ColWidth(std::int32_t{3}), -7);
    EXPECT_EQ(Layout().TotalWidth(), 49 + 0 - 7 + 39 + 1);
}

TEST_F(GridLayoutTest, AFixedColumnIsNotMeasured) {
    Columns({50, 40});
    view.TakeMeasured();
    grid->AddRow(u"a\tb");
    EXPECT_EQ(view.TakeMeasured(), 0);
}

TEST_F(GridLayoutTest, TheLastAutomaticColumnFillsTheGap) {
    Columns({50});
    Column(u"a");
    EXPECT_EQ(Layout().TotalWidth(), 300);
    EXPECT_EQ(grid->ColWidth(u"a"), 251); // 49, then 250 and the shared line
    grid->ColWidth(u"a", 251);
    EXPECT_EQ(Layout().TotalWidth(), 300);
    grid->ColWidth(u"a", 100);
    EXPECT_EQ(Layout().TotalWidth(), 149); // fixed, so the gap stays
}

TEST_F(GridLayoutTest, ColumnsShareTheirBorderAndAnEmptyOneIsSkipped) {
    Columns({50, 0, 40});
    EXPECT_EQ(Layout().TotalWidth(), 89);
    EXPECT_EQ(Layout().GetColX(0), 2);
    EXPECT_EQ(Layout().GetColX(1), 2);
    EXPECT_EQ(Layout().GetColX(2), 51);
    EXPECT_EQ(Layout().GetColX(3), 51);
    EXPECT_EQ(Layout().GetColX(4), 90);
    EXPECT_EQ(NumberRaisedBy([&] { Layout().GetColX(5); }), 9u);
    EXPECT_EQ(Layout().GetColByX(-1), -1);
    EXPECT_EQ(Layout().GetColByX(0), 1);
    EXPECT_EQ(Layout().GetColByX(48), 1);
    EXPECT_EQ(Layout().GetColByX(49), 3); // the shared line is the right column's
    EXPECT_EQ(Layout().GetColByX(87), 3);
    EXPECT_EQ(Layout().GetColByX(88), -1);
}

TEST_F(GridLayoutTest, ColumnsWiderThanTheViewBringTheBar) {
    Columns({250, 250});
    EXPECT_EQ(Layout().TotalWidth(), 499);
    EXPECT_EQ(Layout().HScroll_Max(), 199);
    EXPECT_TRUE(view.bHScrollVisible);
    EXPECT_TRUE(Layout().HScrollShown());
    EXPECT_EQ(Layout().ViewPortHeight(), 184);
    EXPECT_EQ(Layout().ViewPortWidth(), 300);
    grid->Layout().HScroll_Value(100);
    EXPECT_EQ(Layout().GetColByX(148), 1);
    EXPECT_EQ(Layout().GetColByX(149), 2);
    EXPECT_EQ(Layout().GetColByAbsX(248), 1);
    EXPECT_EQ(Layout().GetColByAbsX(249), 2);
    EXPECT_EQ(Layout().GetColX(2), 251); // unscrolled
    grid->ColWidth(std::int32_t{2}, 51); // 300 in all
    EXPECT_EQ(Layout().HScroll_Max(), 0);
    EXPECT_EQ(Layout().HScroll_Value(), 0);
    EXPECT_FALSE(view.bHScrollVisible);
    EXPECT_EQ(Layout().ViewPortHeight(), 200);
}

TEST_F(GridLayoutTest, RowsCountInSingleLineMode) {
    Columns({50});
    EXPECT_EQ(Layout().GetVisibleRows(), 11); // 200 \ 18, the header with them
    EXPECT_EQ(Layout().VScroll_Max(), 0);
    grid->Rows(10);
    EXPECT_EQ(Layout().VScroll_Max(), 0);
    grid->Rows(11);
    EXPECT_EQ(Layout().VScroll_Max(), 2);
    grid->Rows(100);
    EXPECT_EQ(Layout().VScroll_Max(), 91);
    EXPECT_EQ(view.vertical.iSmall, 1);
    EXPECT_EQ(view.vertical.iLarge, 5);
    grid->Rows(0);
    EXPECT_EQ(Layout().VScroll_Max(), 0);
}

TEST_F(GridLayoutTest, SingleLineRowsAreArithmetic) {
    Columns({50});
    grid->Rows(100);
    EXPECT_EQ(Layout().GetRowY(0), 2);
    EXPECT_EQ(Layout().GetRowY(1), 20);
    EXPECT_EQ(Layout().GetRowY(-1), -16);
    EXPECT_EQ(Layout().GetRowByY(0), 0);
    EXPECT_EQ(Layout().GetRowByY(17), 0);
    EXPECT_EQ(Layout().GetRowByY(18), 1); // still a line of the header, but row 1
    EXPECT_EQ(Layout().GetRowByY(-17), 0);
    EXPECT_EQ(Layout().GetRowByY(-18), -1);
    EXPECT_EQ(Layout().GetRowByY(18 * 100 + 17), 100);
    EXPECT_EQ(Layout().GetRowByY(18 * 101), -1);
    EXPECT_TRUE(Layout().IsHeaderCoord(18));
    EXPECT_FALSE(Layout().IsHeaderCoord(19));
    grid->Layout().VScroll_Value(30);
    EXPECT_EQ(Layout().GetRowByY(0), 30); // a scrolled header lies over rows
    EXPECT_EQ(Layout().GetRowByY(36), 32);
    EXPECT_EQ(Layout().GetRowByAbsY(36), 2);
    EXPECT_EQ(Layout().GetRowY(1), 20);
    EXPECT_EQ(Layout().GetRowByY(18 * 71), -1); // below the last row
}

TEST_F(GridLayoutTest, CellRectanglesAreScrolledOrNotAndOnlyOneEdgeIsTakenOff) {
    Columns({250, 250});
    grid->Rows(100);
    grid->Layout().VScroll_Value(10);
    grid->Layout().HScroll_Value(100);
    EXPECT_THAT(Rect(12, 2), ElementsAre(251 - 100, 12 * 18 + 2 - 180, 151 + 250, 38 + 18));
    EXPECT_THAT(AbsRect(12, 2), ElementsAre(251, 218, 501, 237));
    std::array<std::int32_t, 4> r{};
    grid->GetCellRectByCoords(160, 40, r[0], r[1], r[2], r[3]);
    EXPECT_EQ(r, Rect(12, 2));
    EXPECT_EQ(NumberRaisedBy([&] { grid->GetCellRectByCoords(499, 40, r[0], r[1], r[2], r[3]); }), 9u);
    EXPECT_EQ(NumberRaisedBy([&] { Rect(1, -1); }), 9u);
}

TEST_F(GridLayoutTest, TheGridAnswersForItsGeometryItself) {
    Columns({250, 250});
    grid->Rows(100);
    grid->HScroll_Value(100);
    grid->VScroll_Value(10);
    EXPECT_EQ(grid->HScroll_Value(), 100);
    EXPECT_EQ(grid->VScroll_Value(), 10);
    EXPECT_EQ(grid->HScroll_Max(), Layout().HScroll_Max());
    EXPECT_EQ(grid->VScroll_Max(), Layout().VScroll_Max());
    EXPECT_EQ(grid->GetRowY(3), 56);
    EXPECT_EQ(grid->GetRowByY(40), 12);
    EXPECT_EQ(grid->GetRowByAbsY(40), 2);
    EXPECT_EQ(grid->GetColX(2), 251);
    EXPECT_EQ(grid->GetColByX(149), 2);
    EXPECT_EQ(grid->GetColByAbsX(149), 1);
    EXPECT_TRUE(grid->IsHeaderCoord(18));
    EXPECT_TRUE(grid->IsRowCompletelyVisible(11));
    EXPECT_FALSE(grid->IsRowCompletelyVisible(10));
    EXPECT_EQ(grid->GetVisibleRows(), 10);
    EXPECT_EQ(grid->ViewPortWidth(), 300);
    EXPECT_EQ(grid->ViewPortHeight(), 184);
    std::array<std::int32_t, 4> r{};
    grid->GetCellRect(12, 2, r[0], r[1], r[2], r[3]);
    EXPECT_EQ(r, Rect(12, 2));
    grid->GetCellAbsRect(12, 2, r[0], r[1], r[2], r[3]);
    EXPECT_EQ(r, AbsRect(12, 2));
    grid->VScroll_Max(90000);
    EXPECT_EQ(grid->VScroll_Value(), 40); // the bar still stands at 10, by a scale of 4
    grid->HScroll_Max(5);
    EXPECT_EQ(grid->HScroll_Value(), 5); // pulled along
    EXPECT_EQ(grid->HScroll_Max(), 199); // the bar told of it, and the new picture set the range again
}

TEST_F(GridLayoutTest, ARowIsVisibleBetweenHeaderAndLowerEdge) {
    Columns({50});
    grid->Rows(100);
    EXPECT_FALSE(Layout().IsRowCompletelyVisible(0));
    EXPECT_TRUE(Layout().IsRowCompletelyVisible(1));
    EXPECT_TRUE(Layout().IsRowCompletelyVisible(9));   // 164 to 183
    EXPECT_FALSE(Layout().IsRowCompletelyVisible(10)); // 182 to 201
    view.lHeight = 201;
    EXPECT_TRUE(Layout().IsRowCompletelyVisible(10));
    grid->Layout().VScroll_Value(1);
    EXPECT_FALSE(Layout().IsRowCompletelyVisible(1));
    EXPECT_TRUE(Layout().IsRowCompletelyVisible(2));
}

TEST_F(GridLayoutTest, ATextOfNoHeightMakesARowOfSixAndNeverADivisionByZero) {
    view.lZoom = 0;
    Columns({50});
    EXPECT_EQ(Layout().RowHeight(), 6);
    EXPECT_EQ(Layout().GetVisibleRows(), 40);
}

TEST_F(GridLayoutTest, BeforeAnythingIsMeasuredNoRowIsVisible) {
    EXPECT_EQ(Layout().GetVisibleRows(), 0);
    EXPECT_EQ(Layout().GetRowByY(5), -1);
}

TEST_F(GridLayoutTest, TheSecondRowStartsAFullHeightBelowTheFirstLaterOnesOverlap) {
    MultiLineRows();
    const clsCtlUniGrid_Column& column = *grid->Columns().At(1);
    EXPECT_EQ(column.TextHeight(2), 26);
    EXPECT_EQ(grid->CellHeight(1, std::int32_t{1}), 19);
    EXPECT_EQ(grid->CellHeight(2, std::int32_t{1}), 32);
    EXPECT_EQ(grid->CellHeight(3, std::int32_t{1}), 19);
    EXPECT_EQ(grid->CellHeight(4, std::int32_t{1}), 45);
    EXPECT_EQ(grid->CellHeight(0, std::int32_t{1}), 19); // the header's
    EXPECT_EQ(column.OffsetRow(1), 0);
    EXPECT_EQ(column.OffsetRow(2), 19);
    EXPECT_EQ(column.OffsetRow(3), 19 + 32 - 1);
    EXPECT_EQ(column.OffsetRow(4), 50 + 19 - 1);
    EXPECT_EQ(Layout().GetRowY(-1), 2);
    EXPECT_EQ(Layout().GetRowY(0), 2);
    EXPECT_EQ(Layout().GetRowY(1), 21);
    EXPECT_EQ(Layout().GetRowY(4), 68 + 2 + 19);
    EXPECT_THAT(AbsRect(2, 1), ElementsAre(2, 40, 102, 72));
    EXPECT_THAT(Rect(2, 1), ElementsAre(2, 40, 102, 71));
}

TEST_F(GridLayoutTest, MultiLineRowsAreFoundByTheirOffsets) {
    MultiLineRows();
    EXPECT_EQ(Layout().GetVisibleRows(), -1);
    EXPECT_EQ(Layout().GetRowByY(20), 0); // offset -1
    EXPECT_EQ(Layout().GetRowByY(21), 1);
    EXPECT_EQ(Layout().GetRowByY(39), 1);
    EXPECT_EQ(Layout().GetRowByY(40), 2);
    EXPECT_EQ(Layout().GetRowByY(89), 4);
    EXPECT_EQ(Layout().GetRowByY(100000), 4); // far below is the last row, unlike in single-line mode
    EXPECT_EQ(Layout().GetRowByAbsY(40), 2);
    EXPECT_EQ(Layout().RowByOffset(-1), 0);
    EXPECT_EQ(Layout().RowByOffset(0), 1);
    EXPECT_EQ(Layout().RowByOffset(18), 1);
    EXPECT_EQ(Layout().RowByOffset(19), 2);
    grid->Clear(false);
    EXPECT_EQ(Layout().RowByOffset(5), -1);
    EXPECT_EQ(Layout().GetRowByY(50), -1);
}

TEST_F(GridLayoutTest, MultiLineScrollingCountsPixels) {
    MultiLineRows();
    EXPECT_EQ(Layout().VScroll_Max(), 0); // 68 and 45 fit into 200
    EXPECT_EQ(view.vertical.iSmall, 25);
    EXPECT_EQ(view.vertical.iLarge, 100);
    view.lHeight = 112;
    grid->Refresh(false);
    EXPECT_EQ(Layout().VScroll_Max(), 19 + 113 - 112);
    grid->Layout().VScroll_Value(15);
    EXPECT_EQ(Layout().GetRowByY(25), 2);
    EXPECT_THAT(Rect(2, 1), ElementsAre(2, 25, 102, 56));
    EXPECT_FALSE(Layout().IsRowCompletelyVisible(1)); // 6 is above the header's edge
    EXPECT_TRUE(Layout().IsRowCompletelyVisible(2));
    EXPECT_FALSE(Layout().IsRowCompletelyVisible(4)); // 74 to 119
    grid->Clear(false);
    EXPECT_EQ(Layout().VScroll_Max(), 0);
}

TEST_F(GridLayoutTest, AFixedColumnWrapsAtItsFullWidthAndAnAutomaticOneNotAtAll) {
    grid->AllowMultiLineText(true);
    grid->AddColumn(u"", 60, 0, u"fixed");
    grid->AddColumn(u"", -1, 0, u"auto");
    grid->AddRow(u"aaaa bbbb cccc\taaaa bbbb cccc");  // 24 a word
    EXPECT_EQ(grid->CellHeight(1, u"fixed"), 26 + 6); // two words and the blank are 54
    grid->ColWidth(u"fixed", 50);
    EXPECT_EQ(grid->CellHeight(1, u"fixed"), 39 + 6);
    EXPECT_EQ(grid->CellHeight(1, u"auto"), 39 + 6); // that of the row
    grid->ColWidth(u"fixed", 600);
    EXPECT_EQ(grid->CellHeight(1, u"auto"), 19);
    EXPECT_EQ(grid->Columns().At(2)->TextHeight(1), 13);
}

TEST_F(GridLayoutTest, InMultiLineModeEveryRowCountsInTheWidth) {
    grid->AllowMultiLineText(true);
    Column(u"a");
    Columns({1});
    grid->BeginUpdate();
    grid->Rows(760);
    grid->CellValue(760, u"a", u"wider than the rest");
    grid->EndUpdate(true, false);
    EXPECT_EQ(grid->ColWidth(u"a"), 19 * 6 - 4 + 10);
}

TEST_F(GridLayoutTest, NumbersDoNotWrap) {
    grid->AllowMultiLineText(true);
    grid->AddColumn(u"", 20, 0, u"n", true, 2, false, false, false, 1);
    grid->AddRow(u"1234567890");
    EXPECT_EQ(grid->CellHeight(1, u"n"), 19);
}

TEST_F(GridLayoutTest, APictureMakesARowHigherInMultiLineModeOnly) {
    Column(u"a");
    grid->AddRow(u"x");
    grid->SetCellPicture(1, u"a", MakePicture(5, 40));
    EXPECT_EQ(grid->CellHeight(1, u"a"), 19);
    grid->AllowMultiLineText(true);
    EXPECT_EQ(grid->CellHeight(1, u"a"), 46);
    EXPECT_EQ(grid->Columns().At(1)->TextHeight(1), 40);
}

TEST_F(GridLayoutTest, CurrentCellHeightsAreThoseOfTheCurrentRow) {
    MultiLineRows();
    EXPECT_EQ(NumberRaisedBy([&] { grid->CurrCellHeight(std::int32_t{1}); }), 9u);
    grid->Row(2);
    EXPECT_EQ(grid->CurrCellHeight(std::int32_t{1}), 32);
    grid->AllowMultiLineText(false);
    EXPECT_EQ(grid->CurrCellHeight(std::int32_t{1}), 19);
    EXPECT_EQ(grid->CurrCellHeight(u"no such column"), 19);
}

TEST_F(GridLayoutTest, TheCurrentRowComesToTheMiddleOfTheView) {
    Columns({50});
    grid->Rows(100);
    grid->Row(50);
    EXPECT_EQ(Layout().VScroll_Value(), 50 - 11 + 5);
    grid->Row(46); // still in view
    EXPECT_EQ(Layout().VScroll_Value(), 44);
    grid->Row(3);
    EXPECT_EQ(Layout().VScroll_Value(), 0); // -3, clamped
    grid->Row(100);
    EXPECT_EQ(Layout().VScroll_Value(), 91); // 94, clamped
}

TEST_F(GridLayoutTest, TheFocusTargetOfMultiLineRowsIsRoundedHalfToEven) {
    MultiLineRows();
    grid->Rows(40);
    const clsCtlUniGrid_Column& column = *grid->Columns().At(1);
    for (const std::int32_t lHeight : {101, 103}) {
        view.lHeight = lHeight;
        grid->Refresh(false);
        grid->Row(1);
        grid->Row(20);
        const double dTarget = column.OffsetRow(20) - lHeight / 2.0 + 19;
        const auto lBelow = static_cast<std::int32_t>(dTarget);
        EXPECT_EQ(Layout().VScroll_Value(), lBelow % 2 == 0 ? lBelow : lBelow + 1) << lHeight;
    }
}

TEST_F(GridLayoutTest, ASelectedNewRowIsFocusedBeforeItIsMeasured) {
    Columns({50});
    for (int n = 0; n < 30; ++n)
        grid->AddRow(u"x", true);
    // The row is shown by the range of the rows before: 29 rows, 29 - 10 + 1.
    EXPECT_EQ(Layout().VScroll_Value(), 20);
    EXPECT_EQ(Layout().VScroll_Max(), 21);
    EXPECT_TRUE(Layout().IsRowCompletelyVisible(29));
}

TEST_F(GridLayoutTest, FocusingWithoutARowOnlyEnds) {
    Columns({50});
    grid->Rows(5);
    view.TakePaints();
    EXPECT_TRUE(grid->FocusSelectedRow(true, true));
    EXPECT_TRUE(view.TakePaints().empty());
    grid->Row(2);
    view.TakePaints();
    EXPECT_TRUE(grid->FocusSelectedRow(false, true));
    EXPECT_TRUE(view.TakePaints().empty());
    EXPECT_TRUE(grid->FocusSelectedRow(true, false));
    EXPECT_THAT(view.TakePaints(), ElementsAre(false));
}

TEST_F(GridLayoutTest, AMillionRowsScroll) {
    Columns({50});
    grid->BeginUpdate();
    grid->Rows(1000000);
    grid->EndUpdate(true, false);
    EXPECT_EQ(view.vertical.Max(), 29412); // 999,991 by 34 is 29,411.5
    EXPECT_EQ(Layout().VScroll_Max(), 1000008);
    grid->Row(500000);
    EXPECT_EQ(Layout().VScroll_Value() % 34, 0);
    EXPECT_TRUE(Layout().IsRowCompletelyVisible(Layout().VScroll_Value() + 2));
    EXPECT_EQ(Layout().GetRowByY(18), Layout().VScroll_Value() + 1);
}

TEST_F(GridLayoutTest, WidthsThatFitNoNumberFailWithoutHarm) {
    Columns({2000000000, 2000000000});
    grid->Refresh(false);
    EXPECT_EQ(NumberRaisedBy([&] { Layout().GetColX(3); }), 6u);
    EXPECT_EQ(Layout().GetColByX(5), 1);
    EXPECT_EQ(NumberRaisedBy([&] { AbsRect(1, 2); }), 6u);
    EXPECT_EQ(NumberRaisedBy([&] { Layout().GetRowY(2000000000); }), 6u);
}

TEST(GridPlacementTest, TheChildrenStandInsideTheFrameAndTheSurfaceRunsOnUnderTheBar) {
    constexpr GridPlacement placement = PlaceGridChildren(320, 200, 17, 16);
    EXPECT_EQ(placement.horizontal, (PixelRect{2, 182, 300, 198})); // 298 wide
    EXPECT_EQ(placement.vertical, (PixelRect{301, 2, 318, 198}));   // 196 high
    EXPECT_EQ(placement.surface, (PixelRect{2, 2, 300, 198}));      // 298 wide, 196 high
}

} // namespace
} // namespace orvanta
