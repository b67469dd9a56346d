// What handlers may do to the grid that calls them: destroy it, empty it, call it again.
#include "grid/GridModel.h"

#include "tests/grid/FakeGrid.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace orvanta {
namespace {

using ::testing::ElementsAre;
using testing::GridOnFake;
using testing::MakePicture;

class GridHandlerTest : public ::testing::Test, protected GridOnFake {
protected:
    void SetUp() override {
        Column(u"a");
        Column(u"b");
        for (const char16_t* s : {u"3\tx", u"1\ty", u"2\tz"})
            grid->AddRow(s);
        TakeSelectionChanges();
        view.TakePaints();
    }
    void DestroyedBySelectionChange() {
        grid->SelectionChange.Add([this] { grid.reset(); });
    }
    void DestroyedByMeasuring() {
        grid->OnOwnerDrawPicture.Add([this](std::int32_t, const TaggedValue&, std::int32_t, GridPictureRef&,
                                            std::int32_t&, std::int32_t&, bool&, bool&, std::int32_t&, std::int32_t&,
                                            OleColor&) { grid.reset(); });
    }
};

TEST_F(GridHandlerTest, ASelectionHandlerMayDestroyTheGrid) {
    DestroyedBySelectionChange();
    grid->Row(2);
    EXPECT_EQ(grid, nullptr);
}

TEST_F(GridHandlerTest, AddingARowMayEndTheGrid) {
    DestroyedBySelectionChange();
    grid->AddRow(u"4", true);
    EXPECT_EQ(grid, nullptr);
}

TEST_F(GridHandlerTest, RemovingTheCurrentRowMayEndTheGrid) {
    grid->Row(2);
    DestroyedBySelectionChange();
    grid->RemoveRow(2);
    EXPECT_EQ(grid, nullptr);
}

TEST_F(GridHandlerTest, ShorteningMayEndTheGrid) {
    grid->Row(3);
    DestroyedBySelectionChange();
    grid->Rows(0);
    EXPECT_EQ(grid, nullptr);
}

TEST_F(GridHandlerTest, ClearingMayEndTheGrid) {
    DestroyedBySelectionChange();
    grid->Clear(true);
    EXPECT_EQ(grid, nullptr);
}

TEST_F(GridHandlerTest, MeasuringMayEndTheGrid) {
    DestroyedByMeasuring();
    grid->AddRow(u"4", true);
    EXPECT_EQ(grid, nullptr);
}

TEST_F(GridHandlerTest, PaintingMayEndTheGrid) {
    view.onPaint = [this] { grid.reset(); };
    grid->Row(2);
    EXPECT_EQ(grid, nullptr);
}

TEST_F(GridHandlerTest, ComparingMayEndTheGrid) {
    grid->ColSortWithCustomEvent(u"a", true);
    grid->SortCompareRows.Add([this](const TaggedValue&, std::int32_t, std::int32_t, bool, bool&) { grid.reset(); });
    grid->SortByColum(u"a", false);
    EXPECT_EQ(grid, nullptr);
}

TEST_F(GridHandlerTest, AGridThatLeftItsWindowEndsACallWithTheEventItIsIn) {
    grid->Row(2);
    grid->SelectionChange.Add([this] { grid->LeaveWindow(); });
    view.TakePaints();
    grid->RemoveRow(2);
    EXPECT_THAT(view.TakePaints(), ElementsAre(true)); // that of the focus, none after the event
}

TEST_F(GridHandlerTest, ASelectionHandlerMayMoveTheCurrentRowOn) {
    grid->SelectionChange.Add([this] {
        if (grid->Row() == 2) grid->Row(3);
    });
    grid->Row(2);
    EXPECT_EQ(grid->Row(), 3);
    EXPECT_EQ(TakeSelectionChanges(), 2);
}

TEST_F(GridHandlerTest, AnOwnerMayEmptyTheGridWhileItIsMeasured) {
    grid->OnOwnerDrawPicture.Add([this](std::int32_t, const TaggedValue&, std::int32_t, GridPictureRef&, std::int32_t&,
                                        std::int32_t&, bool&, bool&, std::int32_t&, std::int32_t&,
                                        OleColor&) { grid->Clear(true); });
    grid->Refresh(false);
    EXPECT_EQ(grid->Cols(), 0);
    grid->Refresh(false);
}

TEST_F(GridHandlerTest, EachCellMeasuredAsksTheOwnerOnceInEveryColumnWithOrWithoutPicture) {
    const GridPictureRef picture = MakePicture(5, 4);
    grid->SetCellPicture(2, u"a", picture, false, true, 1, 2, 3);
    std::vector<std::u16string> asked;
    grid->OnOwnerDrawPicture.Add([&](std::int32_t iCol, const TaggedValue& vKey, std::int32_t iRow,
                                     GridPictureRef& oPic, std::int32_t& w, std::int32_t& h, bool& bTransparent,
                                     bool& bGrayed, std::int32_t& x, std::int32_t& y, OleColor& c) {
        EXPECT_EQ(grid->OwnerDrawState(), 0);
        asked.push_back(vKey.ToText() + DecimalText(iCol) + u"/" + DecimalText(iRow));
        const bool bWith = iCol == 1 && iRow == 2;
        EXPECT_EQ(oPic, bWith ? picture : nullptr);
        EXPECT_EQ(w, bWith ? 5 : 0);
        EXPECT_EQ(h, bWith ? 4 : 0);
        EXPECT_EQ(bTransparent, !bWith);
        EXPECT_EQ(bGrayed, bWith);
        EXPECT_EQ(x, bWith ? 1 : 0);
        EXPECT_EQ(y, bWith ? 2 : 0);
        EXPECT_EQ(c, bWith ? 3 : -1);
    });
    grid->Refresh(false);
    EXPECT_THAT(asked, ElementsAre(u"a1/1", u"a1/2", u"a1/3", u"b2/1", u"b2/2", u"b2/3"));
    asked.clear();
    grid->Refresh(false); // nothing changed, and still each cell is measured
    EXPECT_EQ(asked.size(), 6u);
    grid->ColWidth(u"a", 30); // a fixed column is not
    asked.clear();
    grid->Refresh(false);
    EXPECT_THAT(asked, ElementsAre(u"b2/1", u"b2/2", u"b2/3"));
}

TEST_F(GridHandlerTest, ASizeFromTheOwnerCountsAndIsForgottenWithTheOwner) {
    const std::int32_t lOwn = grid->ColWidth(u"a");
    const auto token = grid->OnOwnerDrawPicture.Add([](std::int32_t iCol, const TaggedValue&, std::int32_t,
                                                       GridPictureRef&, std::int32_t& w, std::int32_t&, bool&, bool&,
                                                       std::int32_t&, std::int32_t&, OleColor&) {
        if (iCol == 1) w = 70;
    });
    grid->Refresh(false);
    EXPECT_EQ(grid->ColWidth(u"a"), 80);
    grid->OnOwnerDrawPicture.Remove(token);
    grid->Refresh(false);
    EXPECT_EQ(grid->ColWidth(u"a"), lOwn);
    EXPECT_FALSE(grid->Columns().At(1)->HasPicture(1)); // nothing is written back
}

} // namespace
} // namespace orvanta
