#include "grid/GridModel.h"

#include "base/Failure.h"
#include "tests/grid/FakeGrid.h"
#include "tests/support/NumberRaisedBy.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace orvanta {
namespace {

using ::testing::ElementsAre;
using testing::GridOnFake;
using ::testing::IsEmpty;
using testing::NumberRaisedBy;

class GridSortTest : public ::testing::Test, protected GridOnFake {
protected:
    void Fill(std::initializer_list<const char16_t*> rows) {
        for (const char16_t* s : rows)
            grid->AddRow(s);
        view.TakePaints();
        TakeSelectionChanges();
    }
    // The owner compares the texts of the column under that key.
    void OwnerCompares(const char16_t* sKey) {
        grid->ColSortWithCustomEvent(sKey, true);
        grid->SortCompareRows.Add(
            [this, sKey](const TaggedValue&, std::int32_t iRow1, std::int32_t iRow2, bool, bool& bFirstIsMajor) {
                bFirstIsMajor = grid->CellValue(iRow1, sKey).Compare(grid->CellValue(iRow2, sKey)) > 0;
            });
    }
};

TEST_F(GridSortTest, RowsMoveAsAWhole) {
    Column(u"a");
    Column(u"b");
    Fill({u"2\ttwo", u"1\tone", u"3\tthree"});
    grid->CellForeColor(1, u"b", 77);
    grid->CellTag(3, u"a", u"tag of 3");
    view.TakePaints();
    grid->SortByColum(u"a", true);
    EXPECT_THAT(Texts(u"b"), ElementsAre(u"one", u"two", u"three"));
    EXPECT_EQ(grid->CellForeColor(2, u"b"), 77);
    EXPECT_EQ(grid->CellTag(3, u"a"), TaggedValue(u"tag of 3"));
    EXPECT_THAT(view.TakePaints(), ElementsAre(false));
}

TEST_F(GridSortTest, DescendingIsTheReverseEqualRowsIncluded) {
    Column(u"a");
    Column(u"b");
    Fill({u"x\t1", u"y\t2", u"X\t3", u"y\t4"});
    grid->SortByColum(u"a", true);
    EXPECT_THAT(Texts(u"b"), ElementsAre(u"1", u"3", u"2", u"4"));
    grid->Clear(false);
    Fill({u"x\t1", u"y\t2", u"X\t3", u"y\t4"});
    grid->SortByColum(u"a", false);
    EXPECT_THAT(Texts(u"b"), ElementsAre(u"4", u"2", u"3", u"1"));
}

TEST_F(GridSortTest, FewerThanTwoRowsChangeNothingAndShowNoArrow) {
    Column(u"a");
    Fill({u"x"});
    grid->SortByColum(u"a", true);
    EXPECT_FALSE(grid->HasSortArrow(1));
    EXPECT_FALSE(grid->SortAsc());
    EXPECT_THAT(view.TakePaints(), IsEmpty());
}

TEST_F(GridSortTest, NumbersSortBySizeAndEmptyOnesBehindThem) {
    Column(u"n", -1, 1);
    Fill({u"5", u"0", u"3"});
    grid->CellValue(2, u"n", u"");
    grid->SortByColum(u"n", true);
    EXPECT_THAT(Texts(u"n"), ElementsAre(u"3", u"5", u""));
    grid->SortByColum(u"n", false);
    EXPECT_THAT(Texts(u"n"), ElementsAre(u"", u"5", u"3"));
}

TEST_F(GridSortTest, TrueFlagsStandFirst) {
    Column(u"f", -1, 2);
    Fill({u"False", u"True", u"False"});
    grid->SortByColum(u"f", true);
    EXPECT_THAT(Texts(u"f"), ElementsAre(u"True", u"False", u"False"));
}

TEST_F(GridSortTest, TheCurrentRowKeepsItsNumberAndTheSelectionItsRows) {
    Column(u"a");
    grid->MultiSelect(true);
    Fill({u"b", u"c", u"a"});
    grid->Row(1);
    grid->RowSel(1, true);
    TakeSelectionChanges();
    grid->SortByColum(u"a", true);
    EXPECT_EQ(grid->Row(), 1);
    EXPECT_FALSE(grid->RowSel(1));
    EXPECT_TRUE(grid->RowSel(2));
    EXPECT_EQ(TakeSelectionChanges(), 0);
}

TEST_F(GridSortTest, TheArrowStandsOnTheColumnOfTheKey) {
    Column(u"a");
    Column(u"b");
    Fill({u"1\t1", u"2\t2"});
    EXPECT_FALSE(grid->HasSortArrow(1));
    grid->SortByColum(u"b", false);
    EXPECT_FALSE(grid->HasSortArrow(1));
    EXPECT_TRUE(grid->HasSortArrow(2));
    EXPECT_FALSE(grid->SortAsc());
    grid->SortByColum(std::int32_t{1}, true);
    EXPECT_TRUE(grid->HasSortArrow(1));
    EXPECT_FALSE(grid->HasSortArrow(2));
    EXPECT_TRUE(grid->SortAsc());
}

TEST_F(GridSortTest, ATextKeyThatReadsAsANumberIsAPositionForTheArrow) {
    Column(u"3");
    Column(u"b");
    Column(u"c");
    Fill({u"2\tx\tx", u"1\tx\tx"});
    grid->SortByColum(u"3", true);
    EXPECT_THAT(Texts(u"3"), ElementsAre(u"1", u"2")); // sorted by the column under that key
    EXPECT_FALSE(grid->HasSortArrow(1));
    EXPECT_TRUE(grid->HasSortArrow(3));
}

TEST_F(GridSortTest, AnUnknownKeyIsNotReportedButRemembered) {
    Column(u"a");
    Fill({u"2", u"1"});
    EXPECT_EQ(NumberRaisedBy([&] { grid->SortByColum(std::int32_t{4}, true); }), 0u);
    EXPECT_THAT(Texts(u"a"), ElementsAre(u"2", u"1"));
    EXPECT_TRUE(grid->HasSortArrow(4));
    EXPECT_TRUE(grid->SortAsc());
    EXPECT_THAT(view.TakePaints(), IsEmpty());
}

TEST_F(GridSortTest, SizesAreTakenAgainInMultiLineModeOnly) {
    Column(u"a");
    Fill({u"2", u"1"});
    view.lZoom = 2;
    view.TakeMeasured();
    grid->SortByColum(u"a", true);
    EXPECT_EQ(view.TakeMeasured(), 0);
    grid->AllowMultiLineText(true);
    view.lZoom = 1;
    view.TakeMeasured();
    grid->SortByColum(u"a", true);
    EXPECT_GT(view.TakeMeasured(), 0);
}

TEST_F(GridSortTest, TheOwnerSortsInAscendingTermsAndTheGridReverses) {
    Column(u"a");
    OwnerCompares(u"a");
    Fill({u"3", u"1", u"2", u"4"});
    grid->SortByColum(u"a", true);
    EXPECT_THAT(Texts(u"a"), ElementsAre(u"1", u"2", u"3", u"4"));
    grid->SortByColum(u"a", false);
    EXPECT_THAT(Texts(u"a"), ElementsAre(u"4", u"3", u"2", u"1"));
}

TEST_F(GridSortTest, AnOwnerThatInvertsByTheDirectionGetsAscendingOrder) {
    Column(u"a");
    grid->ColSortWithCustomEvent(u"a", true);
    grid->SortCompareRows.Add(
        [this](const TaggedValue&, std::int32_t iRow1, std::int32_t iRow2, bool bAscending, bool& bFirstIsMajor) {
            bFirstIsMajor = grid->CellValue(iRow1, u"a").Compare(grid->CellValue(iRow2, u"a")) > 0;
            if (!bAscending) bFirstIsMajor = grid->CellValue(iRow1, u"a").Compare(grid->CellValue(iRow2, u"a")) < 0;
        });
    Fill({u"3", u"1", u"2"});
    grid->SortByColum(u"a", false);
    EXPECT_THAT(Texts(u"a"), ElementsAre(u"1", u"2", u"3"));
}

TEST_F(GridSortTest, TheOwnerIsAskedInTheseSteps) {
    Column(u"a");
    grid->ColSortWithCustomEvent(u"a", true);
    Fill({u"2", u"1"});
    std::vector<std::vector<std::int32_t>> asked;
    grid->SortCompareRows.Add(
        [&](const TaggedValue& vKey, std::int32_t iRow1, std::int32_t iRow2, bool bAscending, bool& bFirstIsMajor) {
            EXPECT_EQ(vKey, TaggedValue(u"a"));
            EXPECT_TRUE(bAscending);
            EXPECT_TRUE(bFirstIsMajor);
            asked.push_back({iRow1, iRow2});
            bFirstIsMajor = grid->CellValue(iRow1, u"a").Compare(grid->CellValue(iRow2, u"a")) > 0;
        });
    grid->SortByColum(u"a", true);
    // The pivot of rows 1 and 2 is row 2, 1.5 to the even neighbour: 1 > 2 is no, so i stays; then j against itself.
    EXPECT_THAT(asked, ElementsAre(ElementsAre(2, 1), ElementsAre(2, 2)));
    EXPECT_THAT(Texts(u"a"), ElementsAre(u"1", u"2"));
}

TEST_F(GridSortTest, TheOwnerGetsTheKeyOfAPositionIfTheColumnHasOne) {
    Column(u"a");
    grid->AddColumn(u"no key");
    grid->ColSortWithCustomEvent(std::int32_t{1}, true);
    grid->ColSortWithCustomEvent(std::int32_t{2}, true);
    Fill({u"1\tx", u"2\ty"});
    std::vector<TaggedValue> keys;
    grid->SortCompareRows.Add([&](const TaggedValue& vKey, std::int32_t, std::int32_t, bool, bool& bFirstIsMajor) {
        keys.push_back(vKey);
        bFirstIsMajor = false;
    });
    grid->SortByColum(std::int32_t{1}, true);
    grid->SortByColum(std::int32_t{2}, true);
    ASSERT_FALSE(keys.empty());
    EXPECT_EQ(keys.front(), TaggedValue(u"a"));
    EXPECT_EQ(keys.back(), TaggedValue(std::int32_t{2}));
    EXPECT_TRUE(grid->HasSortArrow(2)); // the key as given stays the position
}

TEST_F(GridSortTest, AnOwnerThatNeverAnswersEndsWithoutHanging) {
    Column(u"a");
    grid->ColSortWithCustomEvent(u"a", true);
    Fill({u"3", u"1", u"2"});
    grid->SortByColum(u"a", true);
    EXPECT_THAT(Texts(u"a"), ElementsAre(u"3", u"1", u"2"));
    EXPECT_THAT(view.TakePaints(), ElementsAre(false));
}

TEST_F(GridSortTest, AnOwnerThatFailsOrEmptiesTheGridEndsTheSort) {
    Column(u"a");
    grid->ColSortWithCustomEvent(u"a", true);
    Fill({u"3", u"1", u"2"});
    const auto token = grid->SortCompareRows.Add(
        [](const TaggedValue&, std::int32_t, std::int32_t, bool, bool&) { throw TypeMismatch(); });
    EXPECT_EQ(NumberRaisedBy([&] { grid->SortByColum(u"a", true); }), 0u);
    EXPECT_THAT(view.TakePaints(), ElementsAre(false));
    grid->SortCompareRows.Remove(token);
    grid->SortCompareRows.Add([&](const TaggedValue&, std::int32_t, std::int32_t, bool, bool& b) {
        grid->Clear(true);
        b = false;
    });
    EXPECT_EQ(NumberRaisedBy([&] { grid->SortByColum(u"a", true); }), 0u);
    EXPECT_EQ(grid->Cols(), 0);
}

TEST_F(GridSortTest, AColumnThatMissedAFailingRowEndsTheSortWhereItsCellsEnd) {
    Column(u"a");
    Column(u"n", -1, 1);
    Column(u"b");
    Fill({u"2\t2\tx"});
    EXPECT_EQ(NumberRaisedBy([&] { grid->AddRow(u"1\tno\ty"); }), 13u);
    EXPECT_EQ(NumberRaisedBy([&] { grid->SortByColum(u"a", true); }), 0u);
    EXPECT_THAT(Texts(u"a"), ElementsAre(u"1", u"2"));
}

} // namespace
} // namespace orvanta
