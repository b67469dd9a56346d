#include "grid/RowOrder.h"

#include "tests/grid/FakeGrid.h"
#include "tests/reference/PlainGrid.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace orvanta {
namespace {

using reference::PlainColumn;
using ::testing::ElementsAre;
using testing::FakeLocale;

// Case-insensitive by code units, the long way.
int CompareFolded(std::u16string_view a, std::u16string_view b) {
    const int iOrder = FoldCase(a).compare(FoldCase(b));
    return iOrder < 0 ? -1 : iOrder > 0 ? 1 : 0;
}

unsigned Below(std::mt19937& random, std::size_t nLimit) {
    return static_cast<unsigned>(random() % nLimit);
}

class RowOrderTest : public ::testing::Test {
protected:
    FakeLocale locale;
    clsCtlUniGrid_Column column{locale};
    PlainColumn plain;

    void Add(const TaggedValue& v) {
        column.AddRow(v);
        plain.AddRow(&v);
    }
    void AddEmpty() {
        column.AddRow();
        column.Value(column.Rows(), u"");
        plain.AddRow(nullptr);
        plain.Row(plain.lRows).vValue = TaggedValue(u"");
    }
    void Type(std::int32_t iType) {
        column.iType = iType;
        plain.iType = iType;
    }
    void Restart() {
        column.ClearRows();
        plain.ClearRows();
    }
    std::vector<std::int32_t> Order() const { return AscendingRows(column, column.Rows()); }
    std::vector<std::int32_t> PlainOrder() const { return PlainSortedRows(plain, CompareFolded); }
};

TEST_F(RowOrderTest, FewRowsKeepTheOrderOfEqualCells) {
    for (const char16_t* s : {u"b", u"a", u"B", u"A", u"b"})
        Add(s);
    EXPECT_THAT(Order(), ElementsAre(2, 4, 1, 3, 5));
}

TEST_F(RowOrderTest, CapitalsAndSmallLettersAreEqualAndStandBeforeTheNext) {
    for (const char16_t* s : {u"b", u"a", u"A", u"B"})
        Add(s);
    EXPECT_THAT(Order(), ElementsAre(2, 3, 1, 4));
}

TEST_F(RowOrderTest, TwentyOneEqualRowsAreTurnedAroundByTheFirstPass) {
    for (int n = 0; n < 21; ++n)
        Add(u"same");
    std::vector<std::int32_t> expected;
    for (std::int32_t iRow = 21; iRow >= 1; --iRow)
        expected.push_back(iRow);
    EXPECT_EQ(Order(), expected);
}

TEST_F(RowOrderTest, TwentyEqualRowsKeepTheirOrder) {
    for (int n = 0; n < 20; ++n)
        Add(u"same");
    std::vector<std::int32_t> expected;
    for (std::int32_t iRow = 1; iRow <= 20; ++iRow)
        expected.push_back(iRow);
    EXPECT_EQ(Order(), expected);
}

TEST_F(RowOrderTest, AmongAHundredRowsEqualOnesMayChangePlaces) {
    std::mt19937 random(7101);
    for (int n = 0; n < 100; ++n)
        Add(TaggedValue(std::u16string(1, static_cast<char16_t>(u'a' + Below(random, 4)))));
    const std::vector<std::int32_t> order = Order();
    EXPECT_EQ(order, PlainOrder());
    bool bChanged = false;
    for (std::size_t n = 1; n < order.size(); ++n)
        bChanged |= column.Value(order[n - 1]) == column.Value(order[n]) && order[n - 1] > order[n];
    EXPECT_TRUE(bChanged);
}

TEST_F(RowOrderTest, EmptyNumbersStandBehindAllNumbers) {
    Type(1);
    Add(TaggedValue(5.0));
    AddEmpty();
    Add(TaggedValue(3.0));
    EXPECT_THAT(Order(), ElementsAre(3, 1, 2));
    Add(TaggedValue(std::numeric_limits<double>::infinity()));
    EXPECT_THAT(Order(), ElementsAre(3, 1, 4, 2));
}

TEST_F(RowOrderTest, TrueStandsBeforeFalse) {
    Type(2);
    Add(TaggedValue(false));
    Add(TaggedValue(true));
    Add(TaggedValue(false));
    Add(TaggedValue(true));
    EXPECT_THAT(Order(), ElementsAre(2, 4, 1, 3));
}

TEST_F(RowOrderTest, NegativeNumbersAndBothZerosStandInOrder) {
    Type(1);
    for (const double d : {2.0, -0.0, -1.5, 0.0, -1e300, 1e-300})
        Add(TaggedValue(d));
    EXPECT_THAT(Order(), ElementsAre(5, 3, 2, 4, 6, 1));
}

TEST_F(RowOrderTest, ATextThatBeginsAnotherStandsBeforeIt) {
    for (const char16_t* s : {u"prefix long enough to fill a word B", u"prefix long enough to fill a word", u"prefix",
                              u"prefix long enough to fill a word A", u""})
        Add(s);
    EXPECT_THAT(Order(), ElementsAre(5, 3, 2, 4, 1));
}

TEST_F(RowOrderTest, TextsWithTheLowestUnitAreLongerThanTheirBeginnings) {
    Add(TaggedValue(std::u16string(u"a\0", 2)));
    Add(u"a");
    Add(TaggedValue(std::u16string(u"a\0b", 3)));
    EXPECT_THAT(Order(), ElementsAre(2, 1, 3));
}

TEST_F(RowOrderTest, TextsGoByTheirUnitsWhateverBytesTheyTake) {
    for (const char16_t* s : {u"\uFFFD", u"\u4E2D", u"\u07FF", u"\u0800", u"\u00E9", u"z", u"\u0080", u"\x7F"})
        Add(s);
    EXPECT_THAT(Order(), ElementsAre(6, 8, 7, 5, 3, 4, 2, 1));
}

TEST_F(RowOrderTest, EndsInTheOrderOfThePlainStepsOnTextsWithManyTies) {
    std::mt19937 random(7102);
    const std::u16string alphabet = u"aAbB\u00E9\u00C9\u4E2D";
    for (int iRound = 0; iRound < 120; ++iRound) {
        Restart();
        const unsigned nRows = Below(random, 400);
        const unsigned nLetters = 1 + Below(random, alphabet.size());
        const unsigned nLength = Below(random, 12);
        for (unsigned n = 0; n < nRows; ++n) {
            std::u16string s = iRound % 3 == 0 ? u"common beginning " : u"";
            for (unsigned i = Below(random, nLength + 1); i > 0; --i)
                s += alphabet[Below(random, nLetters)];
            Add(TaggedValue(s));
        }
        ASSERT_EQ(Order(), PlainOrder()) << iRound;
    }
}

TEST_F(RowOrderTest, EndsInTheOrderOfThePlainStepsOnNumbersWithManyTies) {
    std::mt19937 random(7103);
    Type(1);
    for (int iRound = 0; iRound < 120; ++iRound) {
        Restart();
        const unsigned nRows = Below(random, 400);
        const unsigned nDifferent = 1 + Below(random, 40);
        for (unsigned n = 0; n < nRows; ++n) {
            const unsigned nValue = Below(random, nDifferent + 2);
            if (nValue == nDifferent) {
                AddEmpty();
            } else if (nValue > nDifferent) {
                Add(TaggedValue(std::numeric_limits<double>::quiet_NaN()));
            } else {
                Add(TaggedValue(nValue * 0.5 - 3));
            }
        }
        ASSERT_EQ(Order(), PlainOrder()) << iRound;
    }
}

TEST_F(RowOrderTest, EndsInTheOrderOfThePlainStepsOnFlags) {
    std::mt19937 random(7104);
    Type(2);
    for (int n = 0; n < 500; ++n)
        Add(TaggedValue(Below(random, 2) == 0));
    EXPECT_EQ(Order(), PlainOrder());
}

TEST_F(RowOrderTest, EndsInTheOrderOfThePlainStepsOnMixedValues) {
    std::mt19937 random(7105);
    for (int iRound = 0; iRound < 40; ++iRound) {
        Type(0);
        Restart();
        const unsigned nRows = Below(random, 200);
        for (unsigned n = 0; n < nRows; ++n)
            Add(u"");
        Type(5);
        for (std::int32_t iRow = 1; iRow <= column.Rows(); ++iRow) {
            TaggedValue v = TaggedValue(std::u16string(1, static_cast<char16_t>(u'A' + Below(random, 3))));
            if (Below(random, 2) == 0) v = TaggedValue(static_cast<std::int32_t>(Below(random, 3)));
            column.Value(iRow, v);
            plain.Row(iRow).vValue = v;
        }
        ASSERT_EQ(Order(), PlainOrder()) << iRound;
    }
}

TEST_F(RowOrderTest, RowsInOrderAndAgainstItComeOutRight) {
    Type(1);
    for (int n = 0; n < 1000; ++n)
        Add(TaggedValue(std::int32_t{n}));
    EXPECT_EQ(Order(), PlainOrder());
    Restart();
    for (int n = 0; n < 1000; ++n)
        Add(TaggedValue(std::int32_t{-n}));
    EXPECT_EQ(Order(), PlainOrder());
}

TEST_F(RowOrderTest, AnUnluckyOrderNeedsNoDeepStack) {
    // The middle of each stretch is the smallest that is left, so every pass splits off next to nothing.
    Type(1);
    constexpr std::int32_t kRows = 30000;
    std::vector<std::int32_t> places(kRows);
    for (std::int32_t n = 0; n < kRows; ++n)
        places[static_cast<std::size_t>(n)] = n;
    std::vector<double> values(kRows);
    std::int32_t lFirst = 1;
    for (std::int32_t iValue = 0; iValue < kRows; ++iValue, ++lFirst) {
        const auto nMiddle = static_cast<std::size_t>((lFirst + kRows) / 2 - 1);
        values[static_cast<std::size_t>(places[nMiddle])] = iValue;
        std::swap(places[static_cast<std::size_t>(lFirst) - 1], places[nMiddle]);
    }
    for (const double d : values)
        column.AddRow(TaggedValue(d));
    const std::vector<std::int32_t> order = Order();
    for (std::size_t n = 1; n < order.size(); ++n)
        ASSERT_LT(column.Value(order[n - 1]).ToFloat(), column.Value(order[n]).ToFloat());
}

TEST(SortByOwnerTest, AnOwnerThatNeverAnswersLeavesEverythingAndEnds) {
    int nQuestions = 0;
    const auto ask = [&](std::int32_t, std::int32_t, bool& bAnswer) {
        EXPECT_TRUE(bAnswer);
        ++nQuestions;
        return true;
    };
    const auto exchange = [](std::int32_t, std::int32_t) -> bool {
        ADD_FAILURE();
        return true;
    };
    EXPECT_TRUE(SortByOwner(10, ask, exchange));
    EXPECT_EQ(nQuestions, 18); // up to row 10 and down to row 1
}

TEST(SortByOwnerTest, EitherCallbackMayEndIt) {
    const auto no = [](std::int32_t, std::int32_t) { return false; };
    int nQuestions = 0;
    const auto stop = [&](std::int32_t, std::int32_t, bool&) {
        ++nQuestions;
        return false;
    };
    EXPECT_FALSE(SortByOwner(10, stop, no));
    EXPECT_EQ(nQuestions, 1);
    const auto never = [](std::int32_t, std::int32_t, bool& bAnswer) {
        bAnswer = false;
        return true;
    };
    EXPECT_FALSE(SortByOwner(10, never, no));
}

} // namespace
} // namespace orvanta
