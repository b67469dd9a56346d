#include "grid/clsCtlUniGrid_Column.h"

#include "tests/grid/FakeGrid.h"
#include "tests/support/NumberRaisedBy.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <random>
#include <string>
#include <vector>

namespace orvanta {
namespace {

using ::testing::ElementsAre;
using testing::FakeLocale;
using testing::MakePicture;
using testing::NumberRaisedBy;

class ColumnTest : public ::testing::Test {
protected:
    FakeLocale locale;
    clsCtlUniGrid_Column column{locale};

    void Fill(std::initializer_list<const char16_t*> texts) {
        for (const char16_t* s : texts)
            column.AddTextRow(s);
    }
    std::vector<std::u16string> Texts() const {
        std::vector<std::u16string> texts;
        for (std::int32_t iRow = 1; iRow <= column.Rows(); ++iRow)
            texts.push_back(column.Value(iRow).ToText());
        return texts;
    }
};

TEST_F(ColumnTest, StartsWithTheseSettings) {
    EXPECT_EQ(column.sText, u"");
    EXPECT_EQ(column.iMaxWidth, -1);
    EXPECT_EQ(column.iCurrentWidth, 0);
    EXPECT_EQ(column.iAlign, 0);
    EXPECT_TRUE(column.bResizable);
    EXPECT_EQ(column.iHeaderAlign, 2);
    EXPECT_EQ(column.vKey, TaggedValue(u""));
    EXPECT_FALSE(column.bSortable);
    EXPECT_FALSE(column.bRightToLeft);
    EXPECT_EQ(column.iType, 0);
    EXPECT_FALSE(column.bSortWithCustomEvent);
    EXPECT_TRUE(column.bAllowEmptyNumbers);
    EXPECT_EQ(column.sNumDecSep, u"");
    EXPECT_EQ(column.sNumValSep, u"");
    EXPECT_EQ(column.iNumFixInt, -1);
    EXPECT_EQ(column.iNumFixDec, -1);
    EXPECT_FALSE(column.bNumSign);
    EXPECT_TRUE(column.bNumAutoDecSep);
    EXPECT_FALSE(column.bNumAutoValSep);
}

TEST_F(ColumnTest, WithoutRowsItHasOneSlotAllTheSame) {
    EXPECT_EQ(column.Rows(), 0);
    EXPECT_EQ(column.Cells().UpperBound(), 1);
    EXPECT_TRUE(column.Value(1).IsNothing());
    EXPECT_EQ(NumberRaisedBy([&] { column.Value(2); }), 9u);
    EXPECT_EQ(NumberRaisedBy([&] { column.Value(0); }), 9u);
    EXPECT_EQ(NumberRaisedBy([&] { column.Value(-1); }), 9u);
}

TEST_F(ColumnTest, AFreshRowHasTheLookOfTheGrid) {
    column.AddRow();
    EXPECT_EQ(column.Value(1), TaggedValue(u""));
    EXPECT_EQ(column.BackColor(1), -1);
    EXPECT_EQ(column.ForeColor(1), -1);
    const CellPicture picture = column.GetPicture(1);
    EXPECT_EQ(picture.oPic, nullptr);
    EXPECT_TRUE(picture.bPicTransparent);
    EXPECT_FALSE(picture.bPicGrayed);
    EXPECT_EQ(picture.lPicXTransp, 0);
    EXPECT_EQ(picture.lPicYTransp, 0);
    EXPECT_EQ(picture.lPicTranspColor, -1);
    EXPECT_FALSE(column.HasPicture(1));
    EXPECT_FALSE(column.Selected(1));
    EXPECT_EQ(column.TextHeight(1), 0);
    EXPECT_EQ(column.CellHeight(1), 0);
    EXPECT_EQ(column.OffsetRow(1), 0);
    EXPECT_TRUE(column.Tag(1).IsNothing());
}

TEST_F(ColumnTest, TheFirstRowFitsTheSlotTheSecondMakes26AndThe27thMakes51) {
    column.AddRow();
    EXPECT_EQ(column.Cells().UpperBound(), 1);
    column.AddRow();
    EXPECT_EQ(column.Cells().UpperBound(), 26);
    while (column.Rows() < 26)
        column.AddRow();
    EXPECT_EQ(column.Cells().UpperBound(), 26);
    column.AddRow();
    EXPECT_EQ(column.Cells().UpperBound(), 51);
}

TEST_F(ColumnTest, TheSlotsNeverShrinkByRemoval) {
    for (int n = 0; n < 30; ++n)
        column.AddRow();
    while (column.Rows() > 0)
        column.RemoveRow(-1);
    EXPECT_EQ(column.Cells().UpperBound(), 51);
}

TEST_F(ColumnTest, ATextColumnHoldsTextWhateverIsGiven) {
    column.AddRow(TaggedValue(2.5));
    column.AddRow(TaggedValue(true));
    column.AddRow(TaggedValue());
    column.AddRow(u"plain");
    EXPECT_THAT(Texts(), ElementsAre(u"2.5", u"True", u"", u"plain"));
    EXPECT_TRUE(column.Value(1).IsString());
    column.Value(4, std::int32_t{-7});
    EXPECT_EQ(column.Value(4), TaggedValue(u"-7"));
}

TEST_F(ColumnTest, NumbersAreReadAndWrittenWithTheSystemsSeparator) {
    locale.cDecimal = u',';
    column.AddRow(TaggedValue(2.5));
    EXPECT_EQ(column.Value(1), TaggedValue(u"2,5"));
    column.iType = 1;
    column.AddRow(u"3,25");
    EXPECT_EQ(column.Value(2), TaggedValue(3.25));
}

TEST_F(ColumnTest, ANumberColumnHoldsFloats) {
    column.iType = 1;
    column.AddRow(TaggedValue(std::int32_t{3}));
    column.AddRow(u" 12 ");
    EXPECT_EQ(column.Value(1), TaggedValue(3.0));
    EXPECT_EQ(column.Value(2), TaggedValue(12.0));
}

TEST_F(ColumnTest, ANumberTextIsReadAlikeHoweverManyDigitsItHas) {
    column.iType = 1;
    for (const char16_t* s : {u"0", u"007", u"123456789012345", u"1234567890123456789", u"1.5", u"-3"}) {
        column.AddTextRow(s);
        EXPECT_EQ(column.Value(column.Rows()), TaggedValue(TaggedValue(s).ToFloat()));
    }
}

TEST_F(ColumnTest, ANumberRowWithoutValueIsTheInteger0AndNotEmpty) {
    column.iType = 1;
    ASSERT_TRUE(column.bAllowEmptyNumbers);
    column.AddRow();
    EXPECT_EQ(column.Value(1), TaggedValue(std::int32_t{0}));
}

TEST_F(ColumnTest, AFlagRowIsABooleanAndFalseWithoutValue) {
    column.iType = 2;
    column.AddRow();
    column.AddRow(u"True");
    column.AddRow(TaggedValue(2.0));
    EXPECT_EQ(column.Value(1), TaggedValue(false));
    EXPECT_EQ(column.Value(2), TaggedValue(true));
    EXPECT_EQ(column.Value(3), TaggedValue(true));
    column.Value(3, u"0");
    EXPECT_EQ(column.Value(3), TaggedValue(false));
}

TEST_F(ColumnTest, AColumnOfAnotherTypeKeepsWhatTheSlotHeldAndStoresUnchanged) {
    column.iType = 7;
    column.AddRow(u"not stored");
    EXPECT_TRUE(column.Value(1).IsNothing());
    column.Value(1, u"kept");
    column.Value(1, TaggedValue(1.5));
    EXPECT_EQ(column.Value(1), TaggedValue(1.5));
    column.RemoveRow(1);
    column.AddRow(u"not stored");
    EXPECT_EQ(column.Value(1), TaggedValue(1.5));
}

TEST_F(ColumnTest, AValueThatDoesNotConvertFailsWithTheRowCounted) {
    column.iType = 1;
    column.AddRow(u"1");
    EXPECT_EQ(NumberRaisedBy([&] { column.AddRow(u"one"); }), 13u);
    EXPECT_EQ(column.Rows(), 2);
    EXPECT_EQ(NumberRaisedBy([&] { column.AddRow(u""); }), 13u);
    EXPECT_EQ(column.Rows(), 3);
    column.iType = 2;
    EXPECT_EQ(NumberRaisedBy([&] { column.AddRow(u"maybe"); }), 13u);
    EXPECT_EQ(column.Rows(), 4);
}

TEST_F(ColumnTest, AnEmptyTextInANumberColumnIsKeptWhereAllowed) {
    column.iType = 1;
    column.AddRow();
    column.Value(1, u"");
    EXPECT_EQ(column.Value(1), TaggedValue(u""));
}

TEST_F(ColumnTest, AnEmptyTextInANumberColumnFailsWhereNotAllowedAndLeavesTheCell) {
    column.iType = 1;
    column.AddRow(TaggedValue(4.0));
    column.bAllowEmptyNumbers = false;
    EXPECT_EQ(NumberRaisedBy([&] { column.Value(1, u""); }), 13u);
    EXPECT_EQ(column.Value(1), TaggedValue(4.0));
    column.bAllowEmptyNumbers = true;
    EXPECT_EQ(NumberRaisedBy([&] { column.Value(1, u"x"); }), 13u);
    EXPECT_EQ(column.Value(1), TaggedValue(4.0));
}

TEST_F(ColumnTest, RemovingTheLastRowByMinusOneRotatesNothing) {
    Fill({u"a", u"b", u"c"});
    column.RemoveRow(-1);
    EXPECT_THAT(Texts(), ElementsAre(u"a", u"b"));
    EXPECT_EQ(column.Value(3), TaggedValue(u"c"));
}

TEST_F(ColumnTest, RemovingTheFirstRowPutsItsRecordBehindTheLast) {
    Fill({u"a", u"b", u"c"});
    column.Tag(1, u"tag of a");
    column.RemoveRow(1);
    EXPECT_THAT(Texts(), ElementsAre(u"b", u"c"));
    EXPECT_EQ(column.Value(3), TaggedValue(u"a"));
    EXPECT_EQ(column.Tag(3), TaggedValue(u"tag of a"));
}

TEST_F(ColumnTest, RemovingWithoutRowsDoesNothing) {
    column.RemoveRow(-1);
    column.RemoveRow(1);
    EXPECT_EQ(column.Rows(), 0);
}

TEST_F(ColumnTest, RemovingRow0IsAnArrayBoundFailure) {
    Fill({u"a", u"b"});
    EXPECT_EQ(NumberRaisedBy([&] { column.RemoveRow(0); }), 9u);
    EXPECT_THAT(Texts(), ElementsAre(u"a", u"b"));
}

TEST_F(ColumnTest, TheTagOfARemovedRowComesBackWithItsSlotAndNothingElseDoes) {
    Fill({u"a", u"b", u"c"});
    column.Tag(3, u"old tag");
    column.BackColor(3, 1);
    column.ForeColor(3, 2);
    column.Selected(3, true);
    column.SetPicture(3, MakePicture(4, 4), false, true, 1, 2, 3);
    column.OffsetRow(3, 5);
    column.CellHeight(3, 6);
    column.TextHeight(3, 7);
    column.RemoveRow(3);
    column.AddRow(u"new");
    EXPECT_EQ(column.Tag(3), TaggedValue(u"old tag"));
    EXPECT_EQ(column.Value(3), TaggedValue(u"new"));
    EXPECT_EQ(column.BackColor(3), -1);
    EXPECT_EQ(column.ForeColor(3), -1);
    EXPECT_FALSE(column.Selected(3));
    EXPECT_FALSE(column.HasPicture(3));
    EXPECT_TRUE(column.GetPicture(3).bPicTransparent);
    EXPECT_FALSE(column.GetPicture(3).bPicGrayed);
    EXPECT_EQ(column.GetPicture(3).lPicXTransp, 0);
    EXPECT_EQ(column.GetPicture(3).lPicYTransp, 0);
    EXPECT_EQ(column.GetPicture(3).lPicTranspColor, -1);
    EXPECT_EQ(column.OffsetRow(3), 0);
    EXPECT_EQ(column.CellHeight(3), 0);
    EXPECT_EQ(column.TextHeight(3), 0);
}

TEST_F(ColumnTest, ARemovedRecordLivesUntilItsSlotIsUsedAgain) {
    Fill({u"a", u"b"});
    std::weak_ptr<const GridPicture> picture;
    {
        const GridPictureRef oPic = MakePicture(3, 3);
        picture = oPic;
        column.SetPicture(1, oPic);
    }
    column.RemoveRow(1);
    EXPECT_FALSE(picture.expired());
    column.AddRow(u"c");
    EXPECT_TRUE(picture.expired());
}

TEST_F(ColumnTest, ClearingReleasesEverythingAndTheWidth) {
    Fill({u"a", u"b"});
    std::weak_ptr<const GridPicture> picture;
    {
        const GridPictureRef oPic = MakePicture(3, 3);
        picture = oPic;
        column.SetPicture(2, oPic);
    }
    column.Tag(1, u"tag");
    column.iCurrentWidth = 77;
    column.ClearRows();
    EXPECT_EQ(column.Rows(), 0);
    EXPECT_EQ(column.iCurrentWidth, 0);
    EXPECT_EQ(column.Cells().UpperBound(), 1);
    EXPECT_TRUE(picture.expired());
    column.AddRow();
    EXPECT_TRUE(column.Tag(1).IsNothing());
}

TEST_F(ColumnTest, APictureGivenAloneKeepsTheOtherSettings) {
    column.AddRow();
    column.SetPicture(1, MakePicture(1, 1), false, true, 5, 6, 0x112233);
    const GridPictureRef other = MakePicture(2, 2);
    column.SetPicture(1, other);
    GridPictureRef oPic;
    bool bTransparent = true;
    bool bGrayed = false;
    std::int32_t x = 0;
    std::int32_t y = 0;
    OleColor c = 0;
    column.GetPicture(1, oPic, bTransparent, bGrayed, x, y, c);
    EXPECT_EQ(oPic, other);
    EXPECT_FALSE(bTransparent);
    EXPECT_TRUE(bGrayed);
    EXPECT_EQ(x, 5);
    EXPECT_EQ(y, 6);
    EXPECT_EQ(c, 0x112233);
    EXPECT_EQ(column.Picture(1), other);
    column.SetPicture(1, nullptr);
    EXPECT_FALSE(column.HasPicture(1));
}

TEST_F(ColumnTest, SwappingExchangesWholeRecords) {
    Fill({u"a", u"b"});
    column.Tag(1, u"tag a");
    column.ForeColor(2, 9);
    column.Selected(2, true);
    column.CellHeight(1, 30);
    column.SwapRows(1, 2);
    EXPECT_THAT(Texts(), ElementsAre(u"b", u"a"));
    EXPECT_EQ(column.Tag(2), TaggedValue(u"tag a"));
    EXPECT_EQ(column.ForeColor(1), 9);
    EXPECT_TRUE(column.Selected(1));
    EXPECT_FALSE(column.Selected(2));
    EXPECT_EQ(column.CellHeight(2), 30);
    column.SwapRows(1, 1);
    EXPECT_EQ(column.Value(1), TaggedValue(u"b"));
    EXPECT_EQ(NumberRaisedBy([&] { column.SwapRows(1, 99); }), 9u);
}

TEST_F(ColumnTest, AnOrderNamesTheOldRowsWithATrailingSeparator) {
    Fill({u"a", u"b", u"c"});
    column.Tag(3, u"tag c");
    column.z_SetRowsOrder(u"3;1;2;", u";");
    EXPECT_THAT(Texts(), ElementsAre(u"c", u"a", u"b"));
    EXPECT_EQ(column.Tag(1), TaggedValue(u"tag c"));
}

TEST_F(ColumnTest, AnOrderMayUseAnySeparator) {
    Fill({u"a", u"b"});
    column.z_SetRowsOrder(u"2--1", u"--");
    EXPECT_THAT(Texts(), ElementsAre(u"b", u"a"));
}

TEST_F(ColumnTest, AnOrderThatRepeatsARowCopiesIt) {
    Fill({u"a", u"b"});
    column.ForeColor(2, 5);
    column.z_SetRowsOrder(u"2;2;", u";");
    EXPECT_THAT(Texts(), ElementsAre(u"b", u"b"));
    column.ForeColor(1, 6);
    EXPECT_EQ(column.ForeColor(2), 5);
}

TEST_F(ColumnTest, AnOrderThatFailsHasMovedTheRowsBefore) {
    Fill({u"a", u"b", u"c"});
    EXPECT_EQ(NumberRaisedBy([&] { column.z_SetRowsOrder(u"2;99;1", u";"); }), 9u);
    EXPECT_THAT(Texts(), ElementsAre(u"b", u"b", u"c"));
    EXPECT_EQ(NumberRaisedBy([&] { column.z_SetRowsOrder(u"3", u";"); }), 9u);
    EXPECT_THAT(Texts(), ElementsAre(u"c", u"b", u"c"));
    EXPECT_EQ(NumberRaisedBy([&] { column.z_SetRowsOrder(u"2;x;1", u";"); }), 13u);
    EXPECT_THAT(Texts(), ElementsAre(u"b", u"b", u"c"));
}

TEST_F(ColumnTest, ManyTextsGivenUpDoNotPileUp) {
    Fill({u"a", u"b"});
    const std::u16string sLong(1000, u'x');
    for (int n = 0; n < 10000; ++n)
        column.Value(1, sLong);
    EXPECT_LT(column.Cells().Bytes(), 200000u);
    EXPECT_EQ(column.Value(1).ToText(), sLong);
    EXPECT_EQ(column.Value(2), TaggedValue(u"b"));
}

TEST_F(ColumnTest, APlainCellTakesTwentyFourBytesBesideItsText) {
    const std::size_t nBefore = column.Cells().Bytes();
    column.iType = 1;
    for (int n = 0; n < 100001; ++n)
        column.AddRow();
    const std::size_t nCells = static_cast<std::size_t>(column.Cells().UpperBound());
    EXPECT_LE(column.Cells().Bytes() - nBefore, nCells * 24 * 2); // the array may be up to twice as large
}

TEST_F(ColumnTest, TheFirstRowBehindAnOffsetIsThatOfAWalk) {
    std::mt19937 random(7001);
    for (int iRound = 0; iRound < 200; ++iRound) {
        column.ClearRows();
        const int nRows = static_cast<int>(random() % 12);
        std::int32_t lOffset = 0;
        for (std::int32_t iRow = 1; iRow <= nRows; ++iRow) {
            column.AddRow();
            lOffset += static_cast<std::int32_t>(random() % 5);
            column.OffsetRow(iRow, lOffset);
        }
        for (int iChange = 0; iChange < 4 && column.Rows() > 1; ++iChange) {
            const auto iRow = static_cast<std::int32_t>(1 + random() % static_cast<unsigned>(column.Rows()));
            switch (random() % 5) {
            case 0: column.AddRow(); break; // its offset is 0
            case 1: column.RemoveRow(iRow); break;
            case 2: column.SwapRows(1, iRow); break;
            case 3: column.OffsetRow(iRow, static_cast<std::int32_t>(random() % 30)); break;
            default: column.OffsetRow(iRow, column.OffsetRow(iRow)); break;
            }
            for (std::int32_t l = -1; l < 50; ++l) {
                std::int32_t iExpected = 0;
                for (std::int32_t r = column.Rows(); r >= 1; --r)
                    if (column.OffsetRow(r) > l) iExpected = r;
                ASSERT_EQ(column.FirstRowBehind(l), iExpected) << iRound << " " << l;
            }
        }
    }
}

} // namespace
} // namespace orvanta
