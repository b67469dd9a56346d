// A random walk over the grid beside the same walk over its plain reading. After each step both stand alike: rows,
// cells, selection, sizes, ranges, and every answer of the hit test.
#include "tests/grid/FakeGrid.h"
#include "tests/reference/PlainGrid.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace orvanta {
namespace {

using reference::PlainColumn;
using reference::PlainGrid;
using reference::PlainQuestion;
using reference::PlainRect;
using testing::GridOnFake;
using testing::MakePicture;

class AgainstPlainGridTest : public ::testing::Test, protected GridOnFake {
protected:
    PlainGrid plain;
    std::mt19937 random;
    std::vector<PlainQuestion> questions;
    OwnerDrawPictureEvent::Token owner = 0;

    void SetUp() override {
        plain.measureLine = [this](std::u16string_view s, std::int32_t& w, std::int32_t& h) {
            w = testing::FakeTextWidth(s) * view.lZoom;
            h = testing::kFakeLineHeight * view.lZoom;
        };
        plain.measureBlock = [this](std::u16string_view s, bool bKeepWidth, std::int32_t& w, std::int32_t& h) {
            std::int32_t lWithin = w / view.lZoom;
            testing::FakeTextBlock(s, bKeepWidth, lWithin, h);
            if (!bKeepWidth) w = lWithin * view.lZoom;
            h *= view.lZoom;
        };
        plain.compare = [](std::u16string_view a, std::u16string_view b) {
            const int iOrder = FoldCase(a).compare(FoldCase(b));
            return iOrder < 0 ? -1 : iOrder > 0 ? 1 : 0;
        };
        grid->SortCompareRows.Add(
            [this](const TaggedValue& vKey, std::int32_t iRow1, std::int32_t iRow2, bool, bool& bFirstIsMajor) {
                questions.push_back({iRow1, iRow2});
                bFirstIsMajor = grid->CellValue(iRow1, vKey).Compare(grid->CellValue(iRow2, vKey)) > 0;
            });
    }

    std::int32_t Number(std::int32_t lFirst, std::int32_t lLast) {
        return lFirst + static_cast<std::int32_t>(random() % static_cast<unsigned>(lLast - lFirst + 1));
    }
    std::u16string Text() {
        std::u16string s;
        for (std::int32_t n = Number(0, 5); n > 0; --n)
            s += std::vector<std::u16string>{u"a", u"Word ", u"lilli ", u"\r\n", u"wider text", u"B"}[random() % 6];
        return s;
    }
    std::u16string CellText(std::int32_t iType) {
        if (iType == 1) return TaggedValue(Number(-4, 4) * 0.5).ToText();
        if (iType == 2) return Number(0, 1) == 0 ? u"True" : u"False";
        return Text();
    }
    std::u16string RowText() {
        std::u16string s = Text() + u"x";
        for (std::size_t n = 1; n < plain.columns.size(); ++n)
            s += u"\t" + CellText(plain.columns[n].iType);
        return s;
    }
    PlainColumn& SomeColumn(std::int32_t& iCol) {
        iCol = Number(1, static_cast<std::int32_t>(plain.columns.size()));
        return plain.columns[static_cast<std::size_t>(iCol) - 1];
    }

    void AddColumn() {
        PlainColumn column;
        column.sText = Text();
        column.iMaxWidth = Number(0, 2) == 0 ? Number(-2, 150) : -1;
        column.bSortable = Number(0, 1) == 1;
        column.bByOwner = Number(0, 3) == 0;
        column.iType = plain.columns.empty() ? 0 : Number(0, 2);
        grid->AddColumn(column.sText, column.iMaxWidth, 0, u"", true, 2, column.bSortable, column.bByOwner, false,
                        column.iType);
        for (std::int32_t n = plain.Rows(); n > 0; --n)
            column.AddRow(nullptr);
        plain.columns.push_back(column);
        plain.Redraw(true);
    }

    void ChangeRows() {
        const std::int32_t lRows = plain.Rows();
        switch (Number(0, 5)) {
        case 0:
        case 1:
        case 2: {
            const std::u16string sText = Number(0, 9) == 0 ? u"" : RowText();
            const bool bSelect = Number(0, 2) == 0;
            grid->AddRow(sText, bSelect);
            plain.AddRow(sText, bSelect);
            break;
        }
        case 3:
            if (lRows > 0) {
                const std::int32_t iRow = Number(0, 4) == 0 ? -1 : Number(1, lRows);
                grid->RemoveRow(iRow);
                plain.RemoveRow(iRow);
            }
            break;
        case 4:
            grid->BeginUpdate();
            for (std::int32_t n = Number(0, 40); n > 0; --n) {
                const std::u16string sText = RowText();
                grid->AddRow(sText);
                for (PlainColumn& column : plain.columns)
                    column.AddRow(nullptr);
                std::int32_t iCol = 0;
                for (PlainColumn& column : plain.columns)
                    column.Row(column.lRows).vValue = grid->CellValue(column.lRows, ++iCol);
            }
            grid->EndUpdate(true, false);
            plain.Redraw(true);
            break;
        default:
            if (Number(0, 15) == 0) {
                grid->Clear(false);
                plain.Clear();
            }
        }
    }

    void ChangeCells() {
        const std::int32_t lRows = plain.Rows();
        if (lRows == 0) return;
        const std::int32_t iRow = Number(1, lRows);
        std::int32_t iCol = 0;
        PlainColumn& column = SomeColumn(iCol);
        switch (Number(0, 4)) {
        case 0:
        case 1: {
            const TaggedValue vText = CellText(column.iType);
            grid->CellValue(iRow, iCol, vText);
            column.Row(iRow).vValue = grid->CellValue(iRow, iCol);
            plain.Redraw(true);
            break;
        }
        case 2: {
            const GridPictureRef oPic = Number(0, 1) == 0 ? nullptr : MakePicture(Number(1, 90), Number(1, 60));
            grid->SetCellPicture(iRow, iCol, oPic);
            column.Row(iRow).oPic = oPic;
            plain.Redraw(true);
            break;
        }
        case 3:
            grid->CellForeColor(iRow, iCol, iRow);
            column.Row(iRow).lForeColor = iRow;
            plain.Redraw(true);
            break;
        default: grid->CellTag(iRow, iCol, iRow); column.Row(iRow).vTag = iRow;
        }
    }

    void Look() {
        switch (Number(0, 9)) {
        case 0:
            plain.bMultiLine = Number(0, 1) == 1;
            grid->AllowMultiLineText(plain.bMultiLine);
            plain.Redraw(true);
            break;
        case 1: {
            std::int32_t iCol = 0;
            PlainColumn& column = SomeColumn(iCol);
            column.iMaxWidth = Number(0, 1) == 0 ? -1 : Number(0, 200);
            grid->ColWidth(iCol, column.iMaxWidth);
            plain.Redraw(true);
            break;
        }
        case 2: {
            std::int32_t iCol = 0;
            PlainColumn& column = SomeColumn(iCol);
            column.sText = Text();
            grid->ColText(iCol, column.sText);
            plain.Redraw(true);
            break;
        }
        case 3:
            plain.lMinRowHeight = Number(0, 40);
            grid->MinRowHeight(static_cast<std::int16_t>(plain.lMinRowHeight));
            plain.Redraw(true);
            break;
        case 4:
            view.lZoom = Number(1, 3);
            grid->Refresh(false);
            plain.Redraw(true);
            break;
        case 5:
        case 6:
            view.lWidth = Number(0, 600);
            view.lHeight = Number(0, 400);
            grid->Refresh(false);
            Resized();
            break;
        case 7:
            if (owner == 0) {
                owner = grid->OnOwnerDrawPicture.Add([](std::int32_t, const TaggedValue&, std::int32_t, GridPictureRef&,
                                                        std::int32_t&, std::int32_t&, bool&, bool&, std::int32_t&,
                                                        std::int32_t&, OleColor&) {});
            } else {
                grid->OnOwnerDrawPicture.Remove(std::exchange(owner, 0));
            }
            grid->Refresh(false);
            plain.Redraw(true);
            break;
        case 8:
            if (plain.columns.size() < 5) AddColumn();
            break;
        default:
            if (plain.columns.size() > 1) {
                grid->RemoveColumn(TaggedValue(u"any"));
                plain.columns.pop_back();
                plain.Redraw(true);
            }
        }
    }

    void Resized() {
        plain.lWidth = view.lWidth;
        plain.lHeight = view.lHeight;
        plain.Redraw(true);
    }

    void Move() {
        const std::int32_t lRows = plain.Rows();
        switch (Number(0, 4)) {
        case 0: {
            const std::int32_t l = Number(-1, lRows + 1);
            grid->Row(l);
            plain.SetRow(l);
            break;
        }
        case 1:
            plain.bMultiSelect = Number(0, 3) > 0;
            grid->MultiSelect(plain.bMultiSelect);
            break;
        case 2: {
            const std::int32_t iRow = Number(-1, lRows);
            view.iShift = static_cast<std::int16_t>(Number(0, 7));
            const bool bKeyboard = Number(0, 1) == 1;
            const bool bRefreshNow = Number(0, 1) == 1;
            grid->ApplyRowSelection(iRow, bKeyboard, bRefreshNow);
            plain.SelectByRules(iRow, (view.iShift & 1) != 0, (view.iShift & 2) != 0, bKeyboard);
            if (bRefreshNow && plain.bMultiSelect && lRows > 0) plain.Redraw(false);
            break;
        }
        case 3: {
            const std::int32_t l = Number(0, plain.vertical.Max() + 5);
            grid->Layout().VScroll_Value(l);
            plain.vertical.SetValue(l);
            break;
        }
        default: {
            const std::int32_t l = Number(0, plain.horizontal.Max() + 5);
            grid->Layout().HScroll_Value(l);
            plain.horizontal.SetValue(l);
        }
        }
    }

    void Sort() {
        std::int32_t iCol = 0;
        SomeColumn(iCol);
        const bool bAscending = Number(0, 1) == 1;
        questions.clear();
        plain.questions.clear();
        grid->SortByColum(iCol, bAscending);
        plain.Sort(static_cast<std::size_t>(iCol) - 1, bAscending);
        ASSERT_EQ(questions, plain.questions);
    }

    void Compare() {
        const GridLayout& layout = grid->Layout();
        ASSERT_EQ(grid->Cols(), static_cast<std::int16_t>(plain.columns.size()));
        ASSERT_EQ(grid->Rows(), plain.Rows());
        ASSERT_EQ(grid->Row(), plain.lRow);
        ASSERT_EQ(layout.RowHeight(), plain.iRowHeight);
        ASSERT_EQ(layout.TotalWidth(), plain.lTotalWidth);
        ASSERT_EQ(layout.HScroll_Max(), plain.horizontal.Max());
        ASSERT_EQ(layout.HScroll_Value(), plain.horizontal.Value());
        ASSERT_EQ(layout.VScroll_Max(), plain.vertical.Max());
        ASSERT_EQ(layout.VScroll_Value(), plain.vertical.Value());
        ASSERT_EQ(layout.ViewPortHeight(), plain.ViewPortHeight());
        ASSERT_EQ(layout.GetVisibleRows(), plain.VisibleRows());
        std::int32_t lSelected = 0;
        for (std::int32_t iCol = 1; iCol <= grid->Cols(); ++iCol) {
            const clsCtlUniGrid_Column& column = *grid->Columns().At(iCol);
            const PlainColumn& other = plain.columns[static_cast<std::size_t>(iCol) - 1];
            ASSERT_EQ(column.iCurrentWidth, other.iCurrentWidth) << iCol;
            for (std::int32_t iRow = 1; iRow <= grid->Rows(); ++iRow) {
                ASSERT_EQ(column.Value(iRow), other.Row(iRow).vValue) << iRow;
                ASSERT_EQ(column.ForeColor(iRow), other.Row(iRow).lForeColor) << iRow;
                ASSERT_EQ(column.Picture(iRow), other.Row(iRow).oPic) << iRow;
                ASSERT_EQ(column.Tag(iRow), other.Row(iRow).vTag) << iRow;
                ASSERT_EQ(column.Selected(iRow), other.Row(iRow).bSelected) << iRow;
                lSelected += iCol == 1 && other.Row(iRow).bSelected ? 1 : 0;
                if (!plain.bMultiLine) continue;
                ASSERT_EQ(column.TextHeight(iRow), other.Row(iRow).lTextHeight) << iRow;
                ASSERT_EQ(column.CellHeight(iRow), other.Row(iRow).lCellHeight) << iRow;
                ASSERT_EQ(column.OffsetRow(iRow), other.Row(iRow).lOffsetRow) << iRow;
            }
        }
        if (plain.bMultiSelect) {
            ASSERT_EQ(grid->CountSelected(), lSelected);
        }
        for (std::int32_t l = -30; l < 640; l += 7) {
            ASSERT_EQ(layout.GetRowByY(l), plain.RowByY(l)) << l;
            ASSERT_EQ(layout.GetRowByAbsY(l), plain.RowByAbsY(l)) << l;
            ASSERT_EQ(layout.GetColByX(l), plain.ColByX(l)) << l;
            ASSERT_EQ(layout.RowByOffset(l), plain.RowByOffset(l)) << l;
        }
        const std::int32_t iCol = Number(1, grid->Cols());
        const std::int32_t iRow = Number(0, grid->Rows());
        PlainRect rect{};
        layout.GetCellRect(iRow, iCol, rect.X1, rect.Y1, rect.X2, rect.Y2);
        ASSERT_EQ(rect, plain.CellRect(iRow, iCol));
        layout.GetCellAbsRect(iRow, iCol, rect.X1, rect.Y1, rect.X2, rect.Y2);
        ASSERT_EQ(rect, plain.CellAbsRect(iRow, iCol));
        if (iRow > 0) {
            ASSERT_EQ(layout.IsRowCompletelyVisible(iRow), plain.IsVisible(iRow));
        }
    }

    void Walk(unsigned nSeed, int nSteps) {
        SCOPED_TRACE(nSeed);
        random.seed(nSeed);
        AddColumn();
        Resized();
        grid->Refresh(false);
        for (int n = 0; n < nSteps; ++n) {
            switch (Number(0, 9)) {
            case 0:
            case 1:
            case 2: ChangeRows(); break;
            case 3:
            case 4: ChangeCells(); break;
            case 5:
            case 6: Look(); break;
            case 7:
            case 8: Move(); break;
            default: Sort();
            }
            ASSERT_NO_FATAL_FAILURE(Compare()) << "step " << n;
        }
    }
};

class AgainstPlainWalkTest : public AgainstPlainGridTest, public ::testing::WithParamInterface<unsigned> {};

TEST_P(AgainstPlainWalkTest, ARandomWalkStandsWhereThePlainOneStands) {
    Walk(GetParam(), 500);
}

INSTANTIATE_TEST_SUITE_P(Seeds, AgainstPlainWalkTest, ::testing::Range(7201u, 7207u));

} // namespace
} // namespace orvanta
