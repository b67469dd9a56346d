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
using testing::MakePicture;
using testing::NumberRaisedBy;

class GridModelTest : public ::testing::Test, protected GridOnFake {
protected:
    // The failure that a step raises.
    template<typename Step>
    static std::vector<std::u16string> SourceAndText(Step&& step) {
        try {
            step();
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.Number(), Failure::kOwn);
            return {failure.Source(), failure.Description()};
        }
        return {};
    }
    void ThreeRows() {
        Column(u"a");
        Column(u"b");
        grid->AddRow(u"1\tx");
        grid->AddRow(u"2\ty");
        grid->AddRow(u"3\tz");
        view.TakePaints();
        TakeSelectionChanges();
    }
};

TEST_F(GridModelTest, StartsWithTheseProperties) {
    EXPECT_EQ(grid->BorderColor(), -1);
    EXPECT_EQ(grid->BackColor(), static_cast<OleColor>(0x80000005u));
    EXPECT_EQ(grid->ForeColor(), static_cast<OleColor>(0x80000008u));
    EXPECT_EQ(grid->CellsBorderColor(), -1);
    EXPECT_EQ(grid->SelBackColor(), static_cast<OleColor>(0x8000000Du));
    EXPECT_EQ(grid->SelForeColor(), static_cast<OleColor>(0x8000000Eu));
    EXPECT_EQ(grid->HeaderBackColor(), static_cast<OleColor>(0x8000000Fu));
    EXPECT_EQ(grid->HeaderForeColor(), static_cast<OleColor>(0x80000012u));
    EXPECT_EQ(grid->MinRowHeight(), 0);
    EXPECT_EQ(grid->HeaderStyle(), -1);
    EXPECT_EQ(grid->SelectorStyle(), -1);
    EXPECT_TRUE(grid->ScrollOnMouseWheel());
    EXPECT_FALSE(grid->MultiSelect());
    EXPECT_TRUE(grid->ShowFocus());
    EXPECT_FALSE(grid->AllowMultiLineText());
}

TEST_F(GridModelTest, StartsWithoutColumnsRowsAndCurrentRow) {
    EXPECT_EQ(grid->Cols(), 0);
    EXPECT_EQ(grid->Rows(), 0);
    EXPECT_EQ(grid->Row(), -1);
    EXPECT_EQ(grid->CountSelected(), 0);
    EXPECT_EQ(grid->Layout().RowHeight(), 0);
    EXPECT_EQ(grid->Layout().TotalWidth(), 0);
    EXPECT_EQ(view.horizontal.iSmall, 25);
    EXPECT_EQ(view.horizontal.iLarge, 100);
    EXPECT_EQ(view.vertical.iSmall, 1);
    EXPECT_EQ(view.vertical.iLarge, 5);
}

TEST_F(GridModelTest, AColumnTakesAllThatIsGiven) {
    grid->AddColumn(u"Name", 80, 1, u"name", false, 0, true, true, true, 1, false);
    EXPECT_EQ(grid->Cols(), 1);
    EXPECT_EQ(grid->ColText(u"name"), u"Name");
    EXPECT_EQ(grid->ColWidth(u"name"), 80);
    EXPECT_EQ(grid->ColAlign(u"name"), 1);
    EXPECT_EQ(grid->ColKey(1), TaggedValue(u"name"));
    EXPECT_FALSE(grid->ColResizable(u"name"));
    EXPECT_EQ(grid->ColHeaderAlign(u"name"), 0);
    EXPECT_TRUE(grid->ColSortable(u"name"));
    EXPECT_TRUE(grid->ColSortWithCustomEvent(u"name"));
    EXPECT_TRUE(grid->ColRightToLeft(u"name"));
    EXPECT_EQ(grid->ColType(u"name"), 1);
    EXPECT_FALSE(grid->ColAllowEmptyNumbers(u"name"));
    EXPECT_THAT(view.TakePaints(), ElementsAre(false));
}

TEST_F(GridModelTest, ColumnsAreFoundByKeyWithoutCaseAndByPosition) {
    Column(u"First");
    grid->AddColumn(u"no key");
    EXPECT_EQ(grid->ColText(u"FIRST"), u"First");
    EXPECT_EQ(grid->ColText(std::int32_t{2}), u"no key");
    EXPECT_EQ(grid->ColText(2.0), u"no key");
    EXPECT_EQ(grid->ColKey(2), TaggedValue(u""));
    EXPECT_TRUE(grid->ColExists(u"first"));
    EXPECT_TRUE(grid->ColExists(std::int32_t{2}));
    EXPECT_FALSE(grid->ColExists(u"2"));
    EXPECT_FALSE(grid->ColExists(std::int32_t{0}));
    EXPECT_FALSE(grid->ColExists(std::int32_t{3}));
    EXPECT_FALSE(grid->ColExists(u""));
    EXPECT_FALSE(grid->ColExists(TaggedValue()));
    EXPECT_FALSE(grid->ColExists(1e99));
}

TEST_F(GridModelTest, AKeyThatReadsAsANumberIsAKey) {
    Column(u"x");
    Column(u"1");
    EXPECT_EQ(grid->ColText(u"1"), u"1");
    EXPECT_EQ(grid->ColText(std::int32_t{1}), u"x");
}

TEST_F(GridModelTest, AnUnknownColumnFailsAsTheCollectionDoes) {
    ThreeRows();
    EXPECT_EQ(NumberRaisedBy([&] { grid->ColText(u"c"); }), 5u);
    EXPECT_EQ(NumberRaisedBy([&] { grid->ColText(std::int32_t{3}); }), 9u);
    EXPECT_EQ(NumberRaisedBy([&] { grid->ColKey(0); }), 9u);
    EXPECT_EQ(NumberRaisedBy([&] { grid->CellValue(1, u"c", u"new"); }), 5u);
    EXPECT_EQ(NumberRaisedBy([&] { grid->ColWidth(std::int32_t{7}, 10); }), 9u);
    EXPECT_THAT(view.TakePaints(), IsEmpty());
}

TEST_F(GridModelTest, AKeyInUseIsRefusedAndTheColumnDropped) {
    Column(u"a");
    view.TakePaints();
    EXPECT_EQ(NumberRaisedBy([&] { Column(u"A"); }), 457u);
    EXPECT_EQ(grid->Cols(), 1);
    EXPECT_THAT(view.TakePaints(), IsEmpty());
}

TEST_F(GridModelTest, AKeyThatIsNoTextIsRefused) {
    EXPECT_EQ(NumberRaisedBy([&] { grid->AddColumn(u"a", -1, 0, std::int32_t{7}); }), 13u);
    EXPECT_EQ(grid->Cols(), 0);
}

TEST_F(GridModelTest, ALaterColumnGetsAsManyRowsAsTheFirstHas) {
    ThreeRows();
    Column(u"n", -1, 1);
    EXPECT_EQ(grid->Rows(), 3);
    EXPECT_EQ(grid->CellValue(3, u"n"), TaggedValue(std::int32_t{0}));
}

TEST_F(GridModelTest, RemovingAColumnByAnyKeyRemovesTheLast) {
    ThreeRows();
    grid->RemoveColumn(TaggedValue(u"a"));
    EXPECT_EQ(grid->Cols(), 1);
    EXPECT_TRUE(grid->ColExists(u"a"));
    EXPECT_FALSE(grid->ColExists(u"b"));
    EXPECT_THAT(view.TakePaints(), ElementsAre(false));
    grid->RemoveColumn(TaggedValue(u"no such key"));
    EXPECT_EQ(grid->Cols(), 0);
}

TEST_F(GridModelTest, RemovingAColumnWithoutAKeyFails) {
    ThreeRows();
    EXPECT_EQ(NumberRaisedBy([&] { grid->RemoveColumn(); }), 5u);
    EXPECT_EQ(grid->Cols(), 2);
    EXPECT_THAT(view.TakePaints(), IsEmpty());
}

TEST_F(GridModelTest, RemovingAColumnWhereThereIsNoneOnlyDraws) {
    grid->RemoveColumn();
    EXPECT_THAT(view.TakePaints(), ElementsAre(false));
}

TEST_F(GridModelTest, WithoutColumnsRowMembersFailByName) {
    const std::u16string sText = u"Please add some columns first!";
    EXPECT_THAT(SourceAndText([&] { grid->AddRow(u"x"); }), ElementsAre(u"AddRow", sText));
    EXPECT_THAT(SourceAndText([&] { grid->RemoveRow(1); }), ElementsAre(u"RemoveRow", sText));
    EXPECT_THAT(SourceAndText([&] { grid->RowSel(1); }), ElementsAre(u"RowSel", sText));
    EXPECT_THAT(SourceAndText([&] { grid->RowSel(1, true); }), ElementsAre(u"RowSel", sText));
    EXPECT_THAT(SourceAndText([&] { grid->SelectRange(1, 2, true, false); }), ElementsAre(u"SelectRange", sText));
    EXPECT_EQ(grid->Rows(), 0);
    grid->SelectAll(true, true);
    EXPECT_THAT(view.TakePaints(), IsEmpty());
}

TEST_F(GridModelTest, WithoutColumnsClearingIsHarmless) {
    grid->Clear(false);
    EXPECT_EQ(grid->Rows(), 0);
    EXPECT_EQ(grid->Row(), -1);
}

TEST_F(GridModelTest, ARowThatIsNoneIsAWrongRow) {
    ThreeRows();
    for (const std::int32_t iRow : {0, 4, -2}) {
        EXPECT_THAT(SourceAndText([&] { grid->RemoveRow(iRow); }), ElementsAre(u"", u"Wrong Row"));
        EXPECT_THAT(SourceAndText([&] { grid->RowSel(iRow); }), ElementsAre(u"", u"Wrong Row"));
        EXPECT_THAT(SourceAndText([&] { grid->RowSel(iRow, true); }), ElementsAre(u"", u"Wrong Row"));
    }
    EXPECT_EQ(grid->Rows(), 3);
}

TEST_F(GridModelTest, RowMinusOnePassesTheCheckOfSelectionAndFailsInTheStore) {
    ThreeRows();
    EXPECT_TRUE(grid->RowSel(-1)); // compared with the current row, which is none
    EXPECT_EQ(NumberRaisedBy([&] { grid->RowSel(-1, true); }), 9u);
    grid->MultiSelect(true);
    EXPECT_EQ(NumberRaisedBy([&] { grid->RowSel(-1); }), 9u);
    grid->MultiSelect(false);
    grid->Row(1);
    EXPECT_FALSE(grid->RowSel(-1));
}

TEST_F(GridModelTest, SurplusCellsOfARowTextAreDropped) {
    Column(u"a");
    Column(u"b");
    grid->AddRow(u"1\t2\t3");
    EXPECT_EQ(grid->CellValue(1, u"a"), TaggedValue(u"1"));
    EXPECT_EQ(grid->CellValue(1, u"b"), TaggedValue(u"2"));
}

TEST_F(GridModelTest, MissingCellsOfARowTextGetTheEmptyValueOfTheirType) {
    Column(u"a");
    Column(u"b");
    Column(u"c");
    Column(u"n", -1, 1);
    grid->AddRow(u"1\t2\t3");
    EXPECT_EQ(grid->CellValue(1, u"n"), TaggedValue(std::int32_t{0}));
}

TEST_F(GridModelTest, AnEmptyRowTextHasNoCells) {
    Column(u"n", -1, 1);
    Column(u"f", -1, 2);
    grid->AddRow(u"", false);
    EXPECT_EQ(grid->CellValue(1, u"n"), TaggedValue(std::int32_t{0}));
    EXPECT_EQ(grid->Columns().At(1)->DisplayText(1), u"0");
    EXPECT_EQ(grid->CellValue(1, u"f"), TaggedValue(false));
}

TEST_F(GridModelTest, AnEmptyCellBetweenTabsIsAnEmptyText) {
    Column(u"a");
    Column(u"n", -1, 1);
    Column(u"b");
    grid->AddRow(u"\t7\t");
    EXPECT_EQ(grid->CellValue(1, u"a"), TaggedValue(u""));
    EXPECT_EQ(grid->CellValue(1, u"n"), TaggedValue(7.0));
    EXPECT_EQ(grid->CellValue(1, u"b"), TaggedValue(u""));
    EXPECT_EQ(NumberRaisedBy([&] { grid->AddRow(u"x\t\ty"); }), 13u);
}

TEST_F(GridModelTest, AFailingRowCountsInTheColumnsThatHadIt) {
    Column(u"a");
    Column(u"n", -1, 1);
    Column(u"b");
    view.TakePaints();
    EXPECT_EQ(NumberRaisedBy([&] { grid->AddRow(u"x\tno number\ty", true); }), 13u);
    EXPECT_EQ(grid->Rows(), 1);
    EXPECT_EQ(grid->CellValue(1, u"a"), TaggedValue(u"x"));
    EXPECT_EQ(grid->Columns().At(2)->Rows(), 1);
    EXPECT_EQ(grid->Columns().At(3)->Rows(), 0);
    EXPECT_EQ(grid->Row(), -1);
    EXPECT_THAT(view.TakePaints(), IsEmpty());
}

TEST_F(GridModelTest, AnAddedRowIsDrawnAndSelectedOnesTwice) {
    Column(u"a");
    view.TakePaints();
    grid->AddRow(u"1", false);
    EXPECT_THAT(view.TakePaints(), ElementsAre(false));
    EXPECT_EQ(grid->Row(), -1);
    grid->AddRow(u"2", true);
    EXPECT_THAT(view.TakePaints(), ElementsAre(true, false)); // the focus at once, then with new sizes
    EXPECT_EQ(grid->Row(), 2);
    EXPECT_EQ(TakeSelectionChanges(), 1);
}

TEST_F(GridModelTest, SelectingANewRowTellsOfItAfterTheRedrawAndDuringAnUpdateToo) {
    Column(u"a");
    view.TakePaints();
    std::vector<std::size_t> paintsBefore;
    grid->SelectionChange.Add([&] { paintsBefore.push_back(view.paints.size()); });
    grid->AddRow(u"1", true);
    EXPECT_THAT(paintsBefore, ElementsAre(2));
    grid->BeginUpdate();
    grid->AddRow(u"2", true);
    EXPECT_THAT(paintsBefore, ElementsAre(2, 2));
    EXPECT_EQ(grid->Row(), 2);
}

TEST_F(GridModelTest, RemovingARowAboveOrBelowLeavesTheCurrentNumber) {
    ThreeRows();
    grid->Row(2);
    TakeSelectionChanges();
    view.TakePaints();
    grid->RemoveRow(3);
    EXPECT_EQ(grid->Row(), 2);
    grid->RemoveRow(1);
    EXPECT_EQ(grid->Row(), 2); // a number, now behind the last row
    EXPECT_EQ(TakeSelectionChanges(), 0);
    EXPECT_THAT(view.TakePaints(), ElementsAre(false, false));
}

TEST_F(GridModelTest, RemovingTheCurrentRowMovesItIntoTheRowsAndTells) {
    ThreeRows();
    grid->Row(3);
    TakeSelectionChanges();
    view.TakePaints();
    grid->RemoveRow(3);
    EXPECT_EQ(grid->Row(), 2);
    EXPECT_EQ(TakeSelectionChanges(), 1);
    EXPECT_THAT(view.TakePaints(), ElementsAre(true, false));
    grid->Row(1);
    grid->RemoveRow(1);
    EXPECT_EQ(grid->Row(), 1);
    grid->RemoveRow(1);
    EXPECT_EQ(grid->Row(), -1);
    EXPECT_EQ(grid->Rows(), 0);
}

TEST_F(GridModelTest, RemovingByMinusOneLeavesTheCurrentRowBehindTheEndWithoutEvent) {
    ThreeRows();
    grid->Row(3);
    TakeSelectionChanges();
    grid->RemoveRow(-1);
    EXPECT_EQ(grid->Rows(), 2);
    EXPECT_EQ(grid->Row(), 3);
    EXPECT_EQ(TakeSelectionChanges(), 0);
}

TEST_F(GridModelTest, TheRowCountCanBeSet) {
    ThreeRows();
    grid->Rows(5);
    EXPECT_THAT(Texts(u"a"), ElementsAre(u"1", u"2", u"3", u"", u""));
    EXPECT_THAT(view.TakePaints(), ElementsAre(false, false));
    grid->Rows(1);
    EXPECT_THAT(Texts(u"a"), ElementsAre(u"1"));
    EXPECT_THAT(view.TakePaints(), ElementsAre(false, false));
    grid->Rows(1);
    EXPECT_THAT(view.TakePaints(), ElementsAre(false, false));
}

TEST_F(GridModelTest, ShorteningPastTheCurrentRowTellsOfEachStep) {
    ThreeRows();
    grid->Row(3);
    TakeSelectionChanges();
    grid->Rows(1);
    EXPECT_EQ(grid->Row(), 1);
    EXPECT_EQ(TakeSelectionChanges(), 2);
}

TEST_F(GridModelTest, ARowCountThatFailsLeavesNoUpdateOpen) {
    EXPECT_EQ(NumberRaisedBy([&] { grid->Rows(2); }), Failure::kOwn);
    ThreeRows();
    EXPECT_EQ(NumberRaisedBy([&] { grid->Rows(-1); }), Failure::kOwn);
    EXPECT_EQ(grid->Rows(), 0);
    view.TakePaints();
    grid->Refresh(true);
    EXPECT_THAT(view.TakePaints(), ElementsAre(true));
}

TEST_F(GridModelTest, TheCurrentRowIsSetAndTold) {
    ThreeRows();
    grid->Row(2);
    EXPECT_EQ(grid->Row(), 2);
    EXPECT_EQ(TakeSelectionChanges(), 1);
    EXPECT_THAT(view.TakePaints(), ElementsAre(true));
}

TEST_F(GridModelTest, ACurrentRowThatIsNoneBecomesMinusOneAndIsTold) {
    ThreeRows();
    for (const std::int32_t l : {0, 4, -1, -5}) {
        grid->Row(2);
        TakeSelectionChanges();
        view.TakePaints();
        grid->Row(l);
        EXPECT_EQ(grid->Row(), -1);
        EXPECT_EQ(TakeSelectionChanges(), 1);
        EXPECT_THAT(view.TakePaints(), ElementsAre(false));
    }
}

TEST_F(GridModelTest, DuringAnUpdateTheCurrentRowIsSetWithoutScrolling) {
    Column(u"a");
    grid->Rows(100);
    grid->BeginUpdate();
    grid->Row(90);
    EXPECT_EQ(grid->Layout().VScroll_Value(), 0);
    grid->EndUpdate(true, false);
    grid->Row(90);
    EXPECT_GT(grid->Layout().VScroll_Value(), 0);
}

TEST_F(GridModelTest, WithoutMultiSelectTheSelectedRowIsTheCurrentOne) {
    ThreeRows();
    grid->Row(2);
    EXPECT_TRUE(grid->RowSel(2));
    EXPECT_FALSE(grid->RowSel(1));
    EXPECT_EQ(grid->CountSelected(), 1);
    grid->RowSel(1, true);
    EXPECT_FALSE(grid->RowSel(1)); // written, not looked at
    EXPECT_TRUE(grid->RowSel(2));
    grid->MultiSelect(true);
    EXPECT_TRUE(grid->RowSel(1));
    EXPECT_FALSE(grid->RowSel(2));
    EXPECT_EQ(grid->CountSelected(), 1);
    grid->MultiSelect(false);
    grid->Row(-1);
    EXPECT_EQ(grid->CountSelected(), 0);
}

TEST_F(GridModelTest, SettingASelectionDrawsAndTellsNobody) {
    ThreeRows();
    grid->RowSel(1, true);
    EXPECT_THAT(view.TakePaints(), ElementsAre(false));
    EXPECT_EQ(TakeSelectionChanges(), 0);
}

TEST_F(GridModelTest, ARangeGivenBackwardsIsTheSameRangeAndDrawsNothingUnlessAsked) {
    Column(u"a");
    grid->Rows(7);
    grid->MultiSelect(true);
    view.TakePaints();
    TakeSelectionChanges();
    grid->SelectRange(5, 2, true, false);
    std::vector<bool> selected;
    for (std::int32_t iRow = 1; iRow <= 7; ++iRow)
        selected.push_back(grid->RowSel(iRow));
    EXPECT_THAT(selected, ElementsAre(false, true, true, true, true, false, false));
    EXPECT_EQ(grid->CountSelected(), 4);
    EXPECT_THAT(view.TakePaints(), IsEmpty());
    EXPECT_EQ(TakeSelectionChanges(), 0);
    grid->SelectRange(3, 4, false, true);
    EXPECT_EQ(grid->CountSelected(), 2);
    EXPECT_THAT(view.TakePaints(), ElementsAre(false));
    grid->SelectAll(true, true);
    EXPECT_EQ(grid->CountSelected(), 7);
    EXPECT_THAT(view.TakePaints(), ElementsAre(false));
}

TEST_F(GridModelTest, ARangeIsNotCheckedBeforehand) {
    Column(u"a");
    grid->Rows(3);
    grid->MultiSelect(true);
    grid->SelectRange(2, 20, true, false); // slots behind the last row
    EXPECT_EQ(grid->CountSelected(), 2);
    EXPECT_EQ(NumberRaisedBy([&] { grid->SelectRange(1, 27, true, false); }), 9u);
    EXPECT_EQ(grid->CountSelected(), 3);
    grid->AddRow(u"");
    EXPECT_FALSE(grid->RowSel(4));
}

TEST_F(GridModelTest, CellsKeepValueTagAndColors) {
    ThreeRows();
    grid->Row(2);
    view.TakePaints();
    grid->CellValue(1, u"a", u"new");
    EXPECT_EQ(grid->CellValue(1, u"a"), TaggedValue(u"new"));
    EXPECT_THAT(view.TakePaints(), ElementsAre(false));
    grid->CurrCellValue(u"b", u"current");
    EXPECT_EQ(grid->CellValue(2, u"b"), TaggedValue(u"current"));
    EXPECT_EQ(grid->CurrCellValue(u"b"), TaggedValue(u"current"));
    EXPECT_THAT(view.TakePaints(), ElementsAre(false));
    grid->CellTag(3, u"a", std::int32_t{5});
    grid->CurrCellTag(u"a", u"t");
    EXPECT_EQ(grid->CellTag(3, u"a"), TaggedValue(std::int32_t{5}));
    EXPECT_EQ(grid->CurrCellTag(u"a"), TaggedValue(u"t"));
    EXPECT_THAT(view.TakePaints(), IsEmpty());
    grid->CellBackColor(1, u"a", 255);
    grid->CurrCellBackColor(u"a", 254);
    EXPECT_EQ(grid->CellBackColor(1, u"a"), 255);
    EXPECT_EQ(grid->CurrCellBackColor(u"a"), 254);
    EXPECT_THAT(view.TakePaints(), ElementsAre(false, false));
    grid->CellForeColor(1, u"a", 253);
    grid->CurrCellForeColor(u"a", 252);
    EXPECT_EQ(grid->CellForeColor(1, u"a"), 253);
    EXPECT_EQ(grid->CurrCellForeColor(u"a"), 252);
    EXPECT_THAT(view.TakePaints(), ElementsAre(false, false));
}

TEST_F(GridModelTest, WithoutACurrentRowTheCurrentCellFails) {
    ThreeRows();
    EXPECT_EQ(NumberRaisedBy([&] { grid->CurrCellValue(u"a"); }), 9u);
    EXPECT_EQ(NumberRaisedBy([&] { grid->CurrCellForeColor(u"a", 1); }), 9u);
}

TEST_F(GridModelTest, PicturesAreSetByRowAndByCurrentRow) {
    ThreeRows();
    grid->Row(3);
    view.TakePaints();
    const GridPictureRef first = MakePicture(3, 3);
    const GridPictureRef third = MakePicture(4, 4);
    grid->SetCellPicture(1, u"a", first, false, true, 1, 2, 3);
    grid->SetCurrCellPicture(u"a", third);
    EXPECT_THAT(view.TakePaints(), ElementsAre(false, false));

    GridPictureRef oPic;
    bool bTransparent = true;
    bool bGrayed = false;
    std::int32_t x = 0;
    std::int32_t y = 0;
    OleColor c = 0;
    grid->GetCellPicture(1, u"a", oPic, bTransparent, bGrayed, x, y, c);
    EXPECT_EQ(oPic, first);
    EXPECT_FALSE(bTransparent);
    EXPECT_TRUE(bGrayed);
    EXPECT_EQ(x, 1);
    EXPECT_EQ(y, 2);
    EXPECT_EQ(c, 3);
    grid->GetCurrCellPicture(7, u"a", oPic, bTransparent, bGrayed, x, y, c);
    EXPECT_EQ(oPic, third); // of row 3, whatever row is given
    EXPECT_TRUE(bTransparent);
}

TEST_F(GridModelTest, ColumnSettersDrawAsTheirPropertyNeeds) {
    ThreeRows();
    const auto measures = [&](auto&& set) {
        grid->Refresh(false);
        view.lZoom = 3 - view.lZoom; // shows whether sizes are taken again
        view.TakePaints();
        view.TakeMeasured();
        set();
        const std::size_t nPaints = view.TakePaints().size();
        return std::pair(nPaints, view.TakeMeasured() > 0);
    };
    EXPECT_EQ(measures([&] { grid->ColWidth(u"a", 40); }), std::pair(std::size_t{1}, true));
    EXPECT_EQ(measures([&] { grid->ColAlign(u"a", 2); }), std::pair(std::size_t{1}, false));
    EXPECT_EQ(measures([&] { grid->ColHeaderAlign(u"a", 1); }), std::pair(std::size_t{1}, false));
    EXPECT_EQ(measures([&] { grid->ColResizable(u"a", false); }), std::pair(std::size_t{1}, true));
    EXPECT_EQ(measures([&] { grid->ColSortWithCustomEvent(u"a", true); }), std::pair(std::size_t{0}, false));
    EXPECT_EQ(measures([&] { grid->ColAllowEmptyNumbers(u"a", false); }), std::pair(std::size_t{0}, false));
    EXPECT_EQ(measures([&] { grid->ColRightToLeft(u"a", true); }), std::pair(std::size_t{1}, false));
    EXPECT_EQ(measures([&] { grid->ColText(u"a", u"other"); }), std::pair(std::size_t{1}, true));
    EXPECT_EQ(measures([&] { grid->ColSortable(u"a", false); }), std::pair(std::size_t{0}, false));
    EXPECT_EQ(measures([&] { grid->SetColFormat(u"a", u",", u".", 1, 2, true, false, true); }),
              std::pair(std::size_t{1}, true));
    EXPECT_EQ(grid->ColWidth(u"a"), 40);
    EXPECT_EQ(grid->ColAlign(u"a"), 2);
    EXPECT_EQ(grid->ColHeaderAlign(u"a"), 1);
    EXPECT_FALSE(grid->ColResizable(u"a"));
    EXPECT_TRUE(grid->ColSortWithCustomEvent(u"a"));
    EXPECT_FALSE(grid->ColAllowEmptyNumbers(u"a"));
    EXPECT_TRUE(grid->ColRightToLeft(u"a"));
    EXPECT_EQ(grid->ColText(u"a"), u"other");
    EXPECT_FALSE(grid->ColSortable(u"a"));
    const clsCtlUniGrid_Column& column = *grid->Columns().At(1);
    EXPECT_EQ(column.sNumDecSep, u",");
    EXPECT_EQ(column.sNumValSep, u".");
    EXPECT_EQ(column.iNumFixInt, 1);
    EXPECT_EQ(column.iNumFixDec, 2);
    EXPECT_TRUE(column.bNumSign);
    EXPECT_FALSE(column.bNumAutoDecSep);
    EXPECT_TRUE(column.bNumAutoValSep);
}

TEST_F(GridModelTest, SettersOfTheLookDrawWithoutMeasuring) {
    ThreeRows();
    view.lZoom = 2;
    view.TakeMeasured();
    grid->BorderColor(1);
    grid->BackColor(2);
    grid->ForeColor(3);
    grid->CellsBorderColor(4);
    grid->SelBackColor(5);
    grid->SelForeColor(6);
    grid->HeaderBackColor(7);
    grid->HeaderForeColor(8);
    grid->HeaderStyle(9);
    grid->SelectorStyle(10);
    grid->ShowFocus(false);
    EXPECT_THAT(view.TakePaints(),
                ElementsAre(false, false, false, false, false, false, false, false, false, false, false));
    EXPECT_EQ(view.TakeMeasured(), 0);
    EXPECT_EQ(grid->BorderColor(), 1);
    EXPECT_EQ(grid->BackColor(), 2);
    EXPECT_EQ(grid->ForeColor(), 3);
    EXPECT_EQ(grid->CellsBorderColor(), 4);
    EXPECT_EQ(grid->SelBackColor(), 5);
    EXPECT_EQ(grid->SelForeColor(), 6);
    EXPECT_EQ(grid->HeaderBackColor(), 7);
    EXPECT_EQ(grid->HeaderForeColor(), 8);
    EXPECT_EQ(grid->HeaderStyle(), 9);
    EXPECT_EQ(grid->SelectorStyle(), 10);
    EXPECT_FALSE(grid->ShowFocus());
    grid->ScrollOnMouseWheel(false);
    grid->MultiSelect(true);
    EXPECT_FALSE(grid->ScrollOnMouseWheel());
    EXPECT_TRUE(grid->MultiSelect());
    EXPECT_THAT(view.TakePaints(), IsEmpty());
    grid->AllowMultiLineText(true);
    EXPECT_TRUE(grid->AllowMultiLineText());
    EXPECT_THAT(view.TakePaints(), ElementsAre(false));
    EXPECT_GT(view.TakeMeasured(), 0);
}

TEST_F(GridModelTest, ALeastRowHeightOutsideItsRangeIsIgnored) {
    ThreeRows();
    grid->MinRowHeight(14999);
    EXPECT_EQ(grid->MinRowHeight(), 14999);
    EXPECT_EQ(grid->Layout().RowHeight(), 14999);
    EXPECT_THAT(view.TakePaints(), ElementsAre(false));
    grid->MinRowHeight(15000);
    grid->MinRowHeight(-1);
    EXPECT_EQ(grid->MinRowHeight(), 14999);
    EXPECT_THAT(view.TakePaints(), IsEmpty());
    grid->MinRowHeight(0);
    EXPECT_EQ(grid->Layout().RowHeight(), 19);
}

TEST_F(GridModelTest, DuringAnUpdateNothingIsMeasuredOrDrawn) {
    ThreeRows();
    view.TakeMeasured();
    grid->BeginUpdate();
    grid->BeginUpdate();
    grid->AddRow(u"a very long text that widens the column");
    grid->Refresh(true);
    grid->EndUpdate(true, false);
    EXPECT_THAT(view.TakePaints(), IsEmpty());
    EXPECT_EQ(view.TakeMeasured(), 0);
    grid->EndUpdate(true, true);
    EXPECT_THAT(view.TakePaints(), ElementsAre(true));
    EXPECT_GT(view.TakeMeasured(), 0);
}

TEST_F(GridModelTest, EndingMoreUpdatesThanBeganStaysAt0AndStillDraws) {
    ThreeRows();
    grid->EndUpdate(false, false);
    grid->EndUpdate(false, true);
    EXPECT_THAT(view.TakePaints(), ElementsAre(false, true));
    grid->NoUpdate();
    grid->BeginUpdate();
    grid->Refresh(false);
    EXPECT_THAT(view.TakePaints(), IsEmpty());
    grid->NoUpdate();
    EXPECT_THAT(view.TakePaints(), IsEmpty());
    grid->Refresh(false);
    EXPECT_THAT(view.TakePaints(), ElementsAre(false));
}

TEST_F(GridModelTest, AnUpdateEndedWithoutSizesKeepsTheOldOnes) {
    ThreeRows();
    const std::int32_t lWidth = grid->ColWidth(u"a");
    grid->BeginUpdate();
    grid->AddRow(u"a very long text that widens the column");
    grid->EndUpdate(false, false);
    EXPECT_EQ(grid->ColWidth(u"a"), lWidth);
    grid->Refresh(false);
    EXPECT_GT(grid->ColWidth(u"a"), lWidth);
}

TEST_F(GridModelTest, ClearingKeepsTheColumnsUnlessToldOtherwise) {
    ThreeRows();
    grid->Row(2);
    grid->SortByColum(u"a", true);
    TakeSelectionChanges();
    view.TakePaints();
    grid->Clear(false);
    EXPECT_EQ(grid->Cols(), 2);
    EXPECT_EQ(grid->Rows(), 0);
    EXPECT_EQ(grid->Row(), -1);
    EXPECT_FALSE(grid->HasSortArrow(1));
    EXPECT_EQ(TakeSelectionChanges(), 1);
    EXPECT_THAT(view.TakePaints(), ElementsAre(false));
    grid->Clear(true);
    EXPECT_EQ(grid->Cols(), 0);
    EXPECT_FALSE(grid->ColExists(u"a"));
    EXPECT_EQ(TakeSelectionChanges(), 1);
    EXPECT_THAT(view.TakePaints(), ElementsAre(false));
}

TEST_F(GridModelTest, ClearingDuringAnUpdateStillTells) {
    ThreeRows();
    grid->BeginUpdate();
    grid->Clear(false);
    EXPECT_EQ(TakeSelectionChanges(), 1);
    EXPECT_THAT(view.TakePaints(), IsEmpty());
}

TEST_F(GridModelTest, TheNumberFormatTakesTheSystemsSeparator) {
    locale.cDecimal = u',';
    EXPECT_EQ(grid->FormatNumber(u"1234,5", u"", u"", -1, 2, false, true, true), u"1.234,50");
}

TEST_F(GridModelTest, InDesignModeOnlyThePreviewIsDrawn) {
    view.bUserMode = false;
    grid->Refresh(true);
    grid->BackColor(255);
    grid->MinRowHeight(50);
    EXPECT_EQ(view.nPreviews, 3);
    EXPECT_FALSE(view.bHScrollVisible);
    EXPECT_THAT(view.TakePaints(), IsEmpty());
    EXPECT_EQ(grid->Layout().RowHeight(), 0);
}

TEST_F(GridModelTest, AFailureWhileDrawingIsDroppedAndTheNextPictureComes) {
    ThreeRows();
    view.onPaint = [] { throw InvalidProcedureCall(); };
    EXPECT_EQ(NumberRaisedBy([&] { grid->Refresh(false); }), 0u);
    view.onPaint = nullptr;
    grid->Refresh(false);
    EXPECT_THAT(view.TakePaints(), ElementsAre(false, false));
}

TEST_F(GridModelTest, ADrawingInsideADrawingIsLost) {
    ThreeRows();
    view.onPaint = [&] { grid->Refresh(true); };
    grid->Refresh(false);
    EXPECT_THAT(view.TakePaints(), ElementsAre(false));
}

TEST_F(GridModelTest, TheBarsDrawAtOnceUnlessTheGridItselfMovesThem) {
    Column(u"a");
    grid->Rows(100);
    view.TakePaints();
    view.vertical.Value(5);
    EXPECT_THAT(view.TakePaints(), ElementsAre(true));
    grid->Row(100);
    EXPECT_THAT(view.TakePaints(), ElementsAre(true)); // one picture, that of the focus
    EXPECT_GT(view.vertical.Value(), 5);
}

TEST_F(GridModelTest, DraggingAThumbDrawsAndThenTells) {
    ThreeRows();
    std::vector<std::u16string> told;
    grid->VScroll.Add([&] { told.push_back(view.paints.empty() ? u"too early" : u"vertical"); });
    grid->HScroll.Add([&] { told.push_back(u"horizontal"); });
    grid->VScrollDrag();
    grid->HScrollDrag();
    EXPECT_THAT(told, ElementsAre(u"vertical", u"horizontal"));
    EXPECT_THAT(view.TakePaints(), ElementsAre(true, true));
}

} // namespace
} // namespace orvanta
