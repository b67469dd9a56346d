#include "grid/GridInput.h"

#include "tests/grid/FakeGrid.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace orvanta {
namespace {

using ::testing::ElementsAre;
using testing::GridOnFake;
using ::testing::IsEmpty;

constexpr std::int16_t kShiftKey = 1;
constexpr std::int16_t kCtrlKey = 2;

// Rows are 19 high and share a line: row r of an unscrolled grid is hit from 18 * r on, below the header of 19.
class GridInputTest : public ::testing::Test, protected GridOnFake {
protected:
    MouseEvents mouse;
    KeyEvents keys;
    std::unique_ptr<GridInput> input = std::make_unique<GridInput>(*grid, view, mouse, keys);
    std::vector<std::u16string> told;

    void SetUp() override {
        grid->AddColumn(u"A", 100, 0, u"a", true, 2, true);
        grid->AddColumn(u"B", 80, 0, u"b", true, 2, true);
        grid->Rows(30);
        mouse.Click.Add([this] { told.push_back(u"Click"); });
        mouse.DblClick.Add([this] { told.push_back(u"DblClick"); });
        mouse.MouseDown.Add([this](std::int16_t&, std::int16_t&, float&, float&) { told.push_back(u"MouseDown"); });
        mouse.MouseMove.Add([this](std::int16_t&, std::int16_t&, float&, float&) { told.push_back(u"MouseMove"); });
        mouse.MouseUp.Add([this](std::int16_t&, std::int16_t&, float&, float&) { told.push_back(u"MouseUp"); });
        grid->SelectionChange.Add([this] { told.push_back(u"SelectionChange"); });
        view.TakePaints();
        TakeSelectionChanges();
    }
    void Press(float X, float Y, std::int16_t Button = 1) { input->MouseDown(Button, 0, X, Y); }
    void Release(float X, float Y, std::int16_t Button = 1) { input->MouseUp(Button, 0, X, Y); }
    void ClickAt(float X, float Y) {
        Press(X, Y);
        Release(X, Y);
        input->Click();
    }
    void DoubleClickAt(float X, float Y) {
        ClickAt(X, Y);
        input->DblClick();
        Release(X, Y);
    }
    std::int16_t Key(std::int16_t KeyCode) {
        std::int16_t Shift = view.iShift;
        input->KeyDown(KeyCode, Shift);
        return KeyCode;
    }
    std::vector<std::int32_t> Selected() const {
        std::vector<std::int32_t> rows;
        for (std::int32_t iRow = 1; iRow <= grid->Rows(); ++iRow)
            if (grid->Columns().At(1)->Selected(iRow)) rows.push_back(iRow);
        return rows;
    }
    static float YOf(std::int32_t iRow) { return static_cast<float>(18 * iRow + 9); }
    std::vector<std::u16string> TakeTold() { return std::exchange(told, {}); }
};

TEST_F(GridInputTest, APressMovesTheCurrentRowAndTellsOfItBeforeThePress) {
    Press(20, YOf(3));
    EXPECT_EQ(grid->Row(), 3);
    EXPECT_THAT(TakeTold(), ElementsAre(u"SelectionChange", u"MouseDown"));
    EXPECT_THAT(view.TakePaints(), ElementsAre(true));
}

TEST_F(GridInputTest, OtherButtonsDoNotMoveTheCurrentRow) {
    Press(20, YOf(3), 2);
    Press(20, YOf(3), 4);
    EXPECT_EQ(grid->Row(), -1);
    EXPECT_THAT(TakeTold(), ElementsAre(u"MouseDown", u"MouseDown"));
}

TEST_F(GridInputTest, APressInTheHeaderOrRightOfTheColumnsMovesNothing) {
    Press(20, 18);
    Press(179, YOf(2)); // the columns are 179 wide together
    EXPECT_EQ(grid->Row(), -1);
    EXPECT_THAT(TakeTold(), ElementsAre(u"MouseDown", u"MouseDown"));
    Press(178, YOf(2));
    EXPECT_EQ(grid->Row(), 2);
}

TEST_F(GridInputTest, WithAHorizontalBarThereIsNoEmptyAreaToTheRight) {
    view.lWidth = 100;
    grid->Refresh(false);
    grid->Layout().HScroll_Value(50);
    Press(250, YOf(2));
    EXPECT_EQ(grid->Row(), 2);
}

TEST_F(GridInputTest, APressBelowTheLastRowChangesNothingUnlessRowsHaveManyLines) {
    grid->Rows(3);
    TakeTold();
    Press(20, YOf(5));
    EXPECT_EQ(grid->Row(), -1);
    EXPECT_THAT(TakeTold(), ElementsAre(u"MouseDown"));
    grid->AllowMultiLineText(true);
    Press(20, 190);
    EXPECT_EQ(grid->Row(), 3);
}

TEST_F(GridInputTest, RowZeroIsReachedJustUnderTheHeader) {
    grid->AllowMultiLineText(true);
    view.TakePaints();
    grid->MultiSelect(true);
    Press(20, 20); // offset -1, below the header's 19
    EXPECT_EQ(grid->Row(), 0);
    EXPECT_THAT(TakeTold(), ElementsAre(u"SelectionChange", u"MouseDown"));
    EXPECT_THAT(view.TakePaints(), IsEmpty()); // there is no row to focus
    EXPECT_THAT(Selected(), IsEmpty());
    grid->Refresh(false); // and no update is left open
    EXPECT_THAT(view.TakePaints(), ElementsAre(false));
}

TEST_F(GridInputTest, ClicksAreToldByTheirPressOnRowsOnly) {
    ClickAt(20, YOf(2));
    EXPECT_THAT(TakeTold(), ElementsAre(u"SelectionChange", u"MouseDown", u"MouseUp", u"Click"));
    Press(20, 5);
    input->Click();
    input->DblClick();
    Press(200, YOf(2));
    input->Click();
    input->DblClick();
    EXPECT_THAT(TakeTold(), ElementsAre(u"MouseDown", u"MouseDown"));
    Press(20, YOf(2));
    Release(20, 5); // where it was released does not count
    input->Click();
    input->DblClick();
    EXPECT_THAT(TakeTold(), ElementsAre(u"SelectionChange", u"MouseDown", u"MouseUp", u"Click", u"DblClick"));
}

TEST_F(GridInputTest, APlainPressSelectsOneRowAndSetsTheAnchor) {
    grid->MultiSelect(true);
    Press(20, YOf(3));
    EXPECT_THAT(Selected(), ElementsAre(3));
    Press(20, YOf(5));
    EXPECT_THAT(Selected(), ElementsAre(5));
    view.iShift = kShiftKey;
    Press(20, YOf(7));
    EXPECT_THAT(Selected(), ElementsAre(5, 6, 7));
}

TEST_F(GridInputTest, RangesRunFromTheSameAnchorAndReplaceEachOther) {
    grid->MultiSelect(true);
    Press(20, YOf(4));
    view.iShift = kShiftKey;
    Press(20, YOf(6));
    EXPECT_THAT(Selected(), ElementsAre(4, 5, 6));
    Press(20, YOf(2));
    EXPECT_THAT(Selected(), ElementsAre(2, 3, 4));
    view.iShift = kShiftKey | kCtrlKey;
    Press(20, YOf(5));
    EXPECT_THAT(Selected(), ElementsAre(4, 5));
}

TEST_F(GridInputTest, ARangeWithoutAnAnchorStartsWhereItIs) {
    grid->MultiSelect(true);
    view.iShift = kShiftKey;
    Press(20, YOf(4));
    EXPECT_THAT(Selected(), ElementsAre(4));
    Press(20, YOf(6));
    EXPECT_THAT(Selected(), ElementsAre(4, 5, 6));
    grid->Rows(3); // the anchor is now behind the rows
    Press(20, YOf(2));
    EXPECT_THAT(Selected(), ElementsAre(2));
}

TEST_F(GridInputTest, CtrlTurnsOneRowAroundAndMovesThereAllTheSame) {
    grid->MultiSelect(true);
    Press(20, YOf(3));
    view.iShift = kCtrlKey;
    Press(20, YOf(6));
    EXPECT_THAT(Selected(), ElementsAre(3, 6));
    Press(20, YOf(3));
    EXPECT_THAT(Selected(), ElementsAre(6));
    EXPECT_EQ(grid->Row(), 3);
    view.iShift = kShiftKey;
    Press(20, YOf(4)); // the anchor went along
    EXPECT_THAT(Selected(), ElementsAre(3, 4));
}

TEST_F(GridInputTest, WithoutMultiSelectNoFlagIsWritten) {
    Press(20, YOf(3));
    EXPECT_THAT(Selected(), IsEmpty());
}

TEST_F(GridInputTest, MovingShowsTheTipAndTells) {
    input->MouseMove(0, 0, 20, 50);
    EXPECT_EQ(view.nTips, 1);
    EXPECT_THAT(TakeTold(), ElementsAre(u"MouseMove"));
}

TEST_F(GridInputTest, AColumnEdgeIsHotWithinTwoPixelsInTheHeader) {
    const auto hot = [&](float X, float Y) {
        input->MouseMove(0, 0, X, Y);
        return view.bEdgePointer;
    };
    EXPECT_FALSE(hot(96, 5)); // the edge of the first column is 99
    EXPECT_TRUE(hot(97, 5));
    EXPECT_TRUE(hot(101, 5));
    EXPECT_FALSE(hot(102, 5));
    EXPECT_TRUE(hot(99, 18));
    EXPECT_FALSE(hot(99, 19)); // not in the header
    grid->ColResizable(u"a", false);
    EXPECT_FALSE(hot(99, 5));
    EXPECT_TRUE(hot(178, 5));
}

TEST_F(GridInputTest, AHotEdgeIsDraggedAndItsColumnIsFixedFromThenOn) {
    input->MouseMove(0, 0, 99, 5);
    Press(99, 5);
    EXPECT_EQ(grid->Row(), -1); // a press in the header
    view.TakePaints();
    input->MouseMove(1, 0, 120, 5);
    EXPECT_EQ(grid->ColWidth(u"a"), 121); // from the left edge at -1, which the border line is shared with
    EXPECT_THAT(view.TakePaints(), ElementsAre(false));
    input->MouseMove(1, 0, 60, 150); // outside the header too
    EXPECT_EQ(grid->ColWidth(u"a"), 61);
    input->MouseMove(1, 0, -500, 5);
    EXPECT_EQ(grid->ColWidth(u"a"), 0);
    input->MouseMove(2, 0, 90, 5); // another button does nothing
    EXPECT_EQ(grid->ColWidth(u"a"), 0);
    Release(60, 5);
    EXPECT_FALSE(grid->HasSortArrow(1)); // the end of a drag does not sort
}

TEST_F(GridInputTest, AnEdgeIsFoundAndDraggedInAScrolledGrid) {
    view.lWidth = 100;
    grid->Refresh(false);
    grid->Layout().HScroll_Value(60);
    input->MouseMove(0, 0, 39, 5);
    EXPECT_TRUE(view.bEdgePointer);
    Press(39, 5);
    input->MouseMove(1, 0, 50, 5);
    EXPECT_EQ(grid->ColWidth(u"a"), 111);
}

TEST_F(GridInputTest, ADoubleClickOnAnEdgeMakesTheWidthAutomaticAgain) {
    input->MouseMove(0, 0, 99, 5);
    DoubleClickAt(99, 5);
    EXPECT_EQ(grid->Columns().At(1)->iMaxWidth, -1);
    EXPECT_EQ(grid->ColWidth(u"a"), 8 + 11 + 10);
    EXPECT_FALSE(grid->HasSortArrow(1));
    EXPECT_THAT(TakeTold(), ElementsAre(u"MouseMove", u"MouseDown", u"MouseUp", u"MouseUp"));
}

TEST_F(GridInputTest, AClickOnAHeaderSortsAndTheNextOneTurnsTheOrder) {
    grid->CellValue(1, u"a", u"x");
    ClickAt(20, 5);
    EXPECT_TRUE(grid->HasSortArrow(1));
    EXPECT_TRUE(grid->SortAsc());
    EXPECT_EQ(grid->CellValue(30, u"a"), TaggedValue(u"x"));
    ClickAt(20, 5);
    EXPECT_FALSE(grid->SortAsc());
    EXPECT_EQ(grid->CellValue(1, u"a"), TaggedValue(u"x"));
    ClickAt(120, 5);
    EXPECT_TRUE(grid->HasSortArrow(2));
    EXPECT_TRUE(grid->SortAsc()); // the first click on a column is ascending
}

TEST_F(GridInputTest, AClickSortsOnlyWithoutASidewaysMove) {
    Press(20, 5);
    Release(21, 5);
    EXPECT_FALSE(grid->HasSortArrow(1));
    Press(20, 5);
    Release(20, 150); // up and down does not matter
    EXPECT_TRUE(grid->HasSortArrow(1));
}

TEST_F(GridInputTest, OnlyASortableColumnAndTheLeftButtonSort) {
    grid->ColSortable(u"a", false);
    ClickAt(20, 5);
    ClickAt(250, 5); // no column
    Press(120, 5, 2);
    Release(120, 5, 2);
    Press(120, 50);
    Release(120, 50);
    EXPECT_FALSE(grid->HasSortArrow(1));
    EXPECT_FALSE(grid->HasSortArrow(2));
}

TEST_F(GridInputTest, ADoubleClickDoesNotSortASecondTime) {
    DoubleClickAt(20, 5);
    EXPECT_TRUE(grid->HasSortArrow(1));
    EXPECT_TRUE(grid->SortAsc());
}

TEST_F(GridInputTest, KeysMoveTheCurrentRow) {
    grid->Row(5);
    TakeTold();
    EXPECT_EQ(Key(40), 0);
    EXPECT_EQ(grid->Row(), 6);
    EXPECT_THAT(TakeTold(), ElementsAre(u"SelectionChange"));
    EXPECT_EQ(Key(38), 0);
    EXPECT_EQ(grid->Row(), 5);
    Key(34); // 11 visible rows: 5.5 to the even neighbour
    EXPECT_EQ(grid->Row(), 11);
    Key(33);
    EXPECT_EQ(grid->Row(), 5);
    Key(33);
    EXPECT_EQ(grid->Row(), 1);
    Key(35);
    EXPECT_EQ(grid->Row(), 30);
    Key(34);
    EXPECT_EQ(grid->Row(), 30);
    Key(36);
    EXPECT_EQ(grid->Row(), 1);
}

TEST_F(GridInputTest, APageOfRowsWithManyLinesIsFive) {
    grid->AllowMultiLineText(true);
    grid->Row(10);
    Key(34);
    EXPECT_EQ(grid->Row(), 15);
    Key(33);
    EXPECT_EQ(grid->Row(), 10);
}

TEST_F(GridInputTest, AKeyOfTheGridIsTakenAlsoWhereTheRowCannotMove) {
    grid->Row(30);
    TakeTold();
    EXPECT_EQ(Key(40), 0);
    EXPECT_EQ(grid->Row(), 30);
    EXPECT_THAT(TakeTold(), IsEmpty());
    grid->Row(1);
    TakeTold();
    EXPECT_EQ(Key(38), 0);
    EXPECT_THAT(TakeTold(), IsEmpty());
    EXPECT_EQ(Key(65), 65);
    EXPECT_EQ(Key(32), 32);
    EXPECT_EQ(Key(41), 41);
}

TEST_F(GridInputTest, DownFromNoRowGoesToRowZeroFirst) {
    Key(40);
    EXPECT_EQ(grid->Row(), 0);
    Key(40);
    EXPECT_EQ(grid->Row(), 1);
}

TEST_F(GridInputTest, SidewaysKeysScrollByTen) {
    view.lWidth = 160;
    grid->Refresh(false); // 19 pixels are hidden
    Key(39);
    EXPECT_EQ(grid->Layout().HScroll_Value(), 10);
    Key(39);
    EXPECT_EQ(grid->Layout().HScroll_Value(), 19);
    Key(37);
    EXPECT_EQ(grid->Layout().HScroll_Value(), 9);
    Key(37);
    EXPECT_EQ(grid->Layout().HScroll_Value(), 0);
    Key(39);
    Key(36);
    EXPECT_EQ(grid->Layout().HScroll_Value(), 0);
}

TEST_F(GridInputTest, AHandlerMayCancelOrChangeAKey) {
    grid->Row(5);
    keys.KeyDown.Add([](std::int16_t& KeyCode, std::int16_t&) { KeyCode = KeyCode == 40 ? std::int16_t{0} : KeyCode; });
    Key(40);
    EXPECT_EQ(grid->Row(), 5);
    keys.KeyDown.Add(
        [](std::int16_t& KeyCode, std::int16_t&) { KeyCode = KeyCode == 65 ? std::int16_t{38} : KeyCode; });
    EXPECT_EQ(Key(65), 0);
    EXPECT_EQ(grid->Row(), 4);
}

TEST_F(GridInputTest, KeysSelectWithMultiSelectAndDrawOnce) {
    grid->MultiSelect(true);
    grid->Row(5);
    view.TakePaints();
    Key(40);
    EXPECT_THAT(Selected(), ElementsAre(6));
    EXPECT_THAT(view.TakePaints(), ElementsAre(true));
    view.iShift = kShiftKey;
    Key(40);
    Key(40);
    EXPECT_THAT(Selected(), ElementsAre(6, 7, 8));
    view.iShift = kCtrlKey;
    Key(40);
    EXPECT_EQ(grid->Row(), 9);
    EXPECT_THAT(Selected(), ElementsAre(6, 7, 8));
}

TEST_F(GridInputTest, KeysWithoutACurrentRowFailSilentlyAndLeaveNoUpdateOpen) {
    grid->MultiSelect(true);
    grid->SelectRange(2, 3, true, false);
    EXPECT_EQ(Key(40), 0); // to row 0
    EXPECT_THAT(Selected(), IsEmpty());
    view.TakePaints();
    grid->Refresh(false);
    EXPECT_THAT(view.TakePaints(), ElementsAre(false));
}

TEST_F(GridInputTest, TheWheelScrollsThreeRowsWhateverItsDelta) {
    input->Wheel(0, -120, 0, 0);
    EXPECT_EQ(grid->Layout().VScroll_Value(), 3);
    input->Wheel(0, -1200, 0, 0);
    EXPECT_EQ(grid->Layout().VScroll_Value(), 6);
    input->Wheel(0, -1, 0, 0);
    EXPECT_EQ(grid->Layout().VScroll_Value(), 9);
    input->Wheel(0, 120, 0, 0);
    EXPECT_EQ(grid->Layout().VScroll_Value(), 6);
    input->Wheel(0, 0, 0, 0); // nothing counts as up
    EXPECT_EQ(grid->Layout().VScroll_Value(), 3);
    grid->Layout().VScroll_Value(2);
    input->Wheel(0, 120, 0, 0);
    EXPECT_EQ(grid->Layout().VScroll_Value(), 0);
    grid->Layout().VScroll_Value(20); // the range is 30 - 10 + 1
    input->Wheel(0, -120, 0, 0);
    EXPECT_EQ(grid->Layout().VScroll_Value(), 21);
}

TEST_F(GridInputTest, TheWheelScrollsTwentyFivePixelsOfRowsWithManyLines) {
    grid->AllowMultiLineText(true);
    input->Wheel(0, -120, 0, 0);
    EXPECT_EQ(grid->Layout().VScroll_Value(), 25);
}

TEST_F(GridInputTest, TheWheelIsToldWithButtonsShiftAndScreenPosition) {
    view.iShift = 5;
    std::vector<float> got;
    input->MouseWheel.Add([&](std::int16_t& Button, std::int16_t& Shift, float& X, float& Y, bool& bDown) {
        got = {static_cast<float>(Button), static_cast<float>(Shift), X, Y, bDown ? 1.0f : 0.0f};
    });
    input->Wheel(1 | 2 | 4 | 8 | 16, -120, -30, 400);
    EXPECT_THAT(got, ElementsAre(7, 5, -30, 400, 1));
    input->Wheel(16, 120, 1, 2);
    EXPECT_THAT(got, ElementsAre(4, 5, 1, 2, 0));
}

TEST_F(GridInputTest, TheWheelIsToldButDoesNotScrollWhereItMayNot) {
    grid->ScrollOnMouseWheel(false);
    int nTold = 0;
    input->MouseWheel.Add([&](std::int16_t&, std::int16_t&, float&, float&, bool&) { ++nTold; });
    input->Wheel(0, -120, 0, 0);
    EXPECT_EQ(nTold, 1);
    EXPECT_EQ(grid->Layout().VScroll_Value(), 0);
}

TEST_F(GridInputTest, FocusDrawsWhereItIsShown) {
    grid->EnterFocus();
    EXPECT_TRUE(grid->HasFocus());
    EXPECT_THAT(view.TakePaints(), ElementsAre(false));
    grid->ExitFocus();
    EXPECT_FALSE(grid->HasFocus());
    grid->ShowFocus(false);
    view.TakePaints();
    grid->EnterFocus();
    EXPECT_TRUE(grid->HasFocus());
    EXPECT_THAT(view.TakePaints(), IsEmpty());
}

TEST_F(GridInputTest, InDesignModeTheMouseDoesNothingAndKeysAreToldOnly) {
    grid->Row(5);
    TakeTold();
    view.bUserMode = false;
    ClickAt(20, YOf(2));
    input->DblClick();
    input->MouseMove(0, 0, 99, 5);
    EXPECT_THAT(TakeTold(), IsEmpty());
    EXPECT_EQ(view.nTips, 0);
    int nKeys = 0;
    keys.KeyDown.Add([&](std::int16_t&, std::int16_t&) { ++nKeys; });
    EXPECT_EQ(Key(40), 40);
    EXPECT_EQ(nKeys, 1);
    EXPECT_EQ(grid->Row(), 5);
}

TEST_F(GridInputTest, AnyHandlerMayEndTheGrid) {
    const auto end = [this] {
        input.reset();
        grid.reset();
    };
    const auto again = [this] {
        view.vertical.change = nullptr;
        view.horizontal.change = nullptr;
        grid = std::make_unique<GridModel>(view, locale);
        input = std::make_unique<GridInput>(*grid, view, mouse, keys);
        grid->InitRuntime();
        grid->AddColumn(u"A", 100, 0, u"a", true, 2, true, true);
        grid->Rows(30);
    };
    again();
    grid->SelectionChange.Add(end);
    Press(20, YOf(2));
    EXPECT_EQ(grid, nullptr);
    again();
    grid->SelectionChange.Add(end);
    std::int16_t KeyCode = 36;
    std::int16_t Shift = 0;
    input->KeyDown(KeyCode, Shift);
    EXPECT_EQ(grid, nullptr);
    again();
    grid->SortCompareRows.Add([end](const TaggedValue&, std::int32_t, std::int32_t, bool, bool&) { end(); });
    Press(20, 5);
    Release(20, 5);
    EXPECT_EQ(grid, nullptr);
    again();
    input->MouseWheel.Add([end](std::int16_t&, std::int16_t&, float&, float&, bool&) { end(); });
    input->Wheel(0, -120, 0, 0);
    EXPECT_EQ(grid, nullptr);
    again();
    mouse.MouseMove.Add([end](std::int16_t&, std::int16_t&, float&, float&) { end(); });
    input->MouseMove(0, 0, 99, 5);
    EXPECT_EQ(grid, nullptr);
}

} // namespace
} // namespace orvanta
