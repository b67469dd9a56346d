#include "base/TaggedValue.h"

#include "tests/support/NumberRaisedBy.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>
#include <type_traits>

namespace orvanta {
namespace {

using testing::NumberRaisedBy;

constexpr std::uint32_t kOverflow = 6;
constexpr std::uint32_t kTypeMismatch = 13;
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

TEST(TaggedValue, KnowsItsKind) {
    EXPECT_TRUE(TaggedValue().IsNothing());
    EXPECT_TRUE(TaggedValue(u"").IsString());
    EXPECT_TRUE(TaggedValue(std::u16string(u"a")).IsString());
    EXPECT_TRUE(TaggedValue(std::u16string_view(u"a")).IsString());
    EXPECT_TRUE(TaggedValue(0.0).IsFloat());
    EXPECT_TRUE(TaggedValue(0).IsInteger());
    EXPECT_TRUE(TaggedValue(false).IsBoolean());
    EXPECT_FALSE(TaggedValue(u"").IsNothing());
    EXPECT_FALSE(TaggedValue(0).IsFloat());
    EXPECT_FALSE(TaggedValue(0.0).IsInteger());
    EXPECT_FALSE(TaggedValue(0).IsBoolean());
    EXPECT_FALSE(TaggedValue(0).IsString());
}

TEST(TaggedValue, NoPointerButTextBecomesAValue) {
    EXPECT_FALSE((std::is_constructible_v<TaggedValue, const char*>));
    EXPECT_FALSE((std::is_constructible_v<TaggedValue, int*>));
    EXPECT_TRUE((std::is_constructible_v<TaggedValue, const char16_t*>));
}

TEST(TaggedValue, NothingCountsAsEmptyZeroAndFalse) {
    const TaggedValue nothing;
    EXPECT_EQ(nothing.ToText(), u"");
    EXPECT_EQ(nothing.ToFloat(), 0.0);
    EXPECT_EQ(nothing.ToInteger(), 0);
    EXPECT_FALSE(nothing.ToBoolean());
}

TEST(TaggedValue, TrueCountsAsMinusOne) {
    EXPECT_EQ(TaggedValue(true).ToInteger(), -1);
    EXPECT_EQ(TaggedValue(true).ToFloat(), -1.0);
    EXPECT_EQ(TaggedValue(true).ToText(), u"True");
    EXPECT_EQ(TaggedValue(false).ToInteger(), 0);
    EXPECT_EQ(TaggedValue(false).ToText(), u"False");
}

TEST(TaggedValue, IntegersAreWrittenInDecimal) {
    EXPECT_EQ(TaggedValue(0).ToText(), u"0");
    EXPECT_EQ(TaggedValue(-17).ToText(), u"-17");
    EXPECT_EQ(TaggedValue(std::numeric_limits<std::int32_t>::min()).ToText(), u"-2147483648");
    EXPECT_EQ(TaggedValue(std::numeric_limits<std::int32_t>::max()).ToText(), u"2147483647");
}

struct WrittenFloat {
    double d;
    const char16_t* sText;
};

TEST(TaggedValue, FloatsAreWrittenWithTheFewestDigitsThatReadBack) {
    const WrittenFloat table[] = {
        {0.0, u"0"},
        {-0.0, u"0"},
        {5.0, u"5"},
        {-5.5, u"-5.5"},
        {0.1, u"0.1"},
        {0.1 + 0.2, u"0.30000000000000004"},
        {1.0 / 3, u"0.3333333333333333"},
        {1234567.891, u"1234567.891"},
        {0.0001, u"0.0001"},
        {0.000099, u"9.9E-05"},
        {999999999999999.0, u"999999999999999"},
        {1e15, u"1E+15"},
        {1.5e300, u"1.5E+300"},
        {-2.5e-7, u"-2.5E-07"},
        {std::numeric_limits<double>::max(), u"1.7976931348623157E+308"},
        {std::numeric_limits<double>::denorm_min(), u"5E-324"},
    };
    for (const WrittenFloat& row : table)
        EXPECT_EQ(TaggedValue(row.d).ToText(), row.sText) << row.d;
}

TEST(TaggedValue, TheDecimalSeparatorHoldsInBothDirections) {
    EXPECT_EQ(TaggedValue(-1.25).ToText(u','), u"-1,25");
    EXPECT_EQ(TaggedValue(1.5e-9).ToText(u','), u"1,5E-09");
    EXPECT_EQ(TaggedValue(u"-1,25").ToFloat(u','), -1.25);
    EXPECT_EQ(NumberRaisedBy([] { TaggedValue(u"1.25").ToFloat(u','); }), kTypeMismatch);
    EXPECT_EQ(NumberRaisedBy([] { TaggedValue(u"1,25").ToFloat(); }), kTypeMismatch);
    EXPECT_EQ(TaggedValue(u"2,5").ToInteger(u','), 2);
    EXPECT_TRUE(TaggedValue(u"0,5").ToBoolean(u','));
}

TEST(TaggedValue, AnyFloatReadsBackFromItsText) {
    const unsigned nSeed = 20211;
    std::mt19937_64 random(nSeed);
    for (int n = 0; n < 20000; ++n) {
        const std::uint64_t nBits = random();
        double d = 0;
        std::memcpy(&d, &nBits, sizeof d);
        if (!std::isfinite(d)) continue;
        ASSERT_EQ(TaggedValue(TaggedValue(d).ToText(u',')).ToFloat(u','), d) << "seed " << nSeed << ", value " << d;
    }
}

struct ReadText {
    const char16_t* sText;
    double d;
};

TEST(TaggedValue, TextIsReadAsANumberWithBlanksAndOneSign) {
    const ReadText table[] = {
        {u"0", 0},       {u"  12 ", 12},        {u"+12", 12},
        {u"-12", -12},   {u".5", 0.5},          {u"5.", 5},
        {u"-.5", -0.5},  {u"1e3", 1000},        {u"1E+3", 1000},
        {u"1d3", 1000},  {u"1D-3", 0.001},      {u"007", 7},
        {u"+.5e1", 5},   {u"1e-400", 0},        {u"0e999", 0},
        {u"-1e-400", 0}, {u"2.5e-324", 5e-324}, {u"1234567890123456789012", 1234567890123456789012.0},
    };
    for (const ReadText& row : table)
        EXPECT_EQ(TaggedValue(row.sText).ToFloat(), row.d) << row.d;
}

TEST(TaggedValue, TextThatIsNoNumberRaisesTypeMismatch) {
    for (const char16_t* s : {u"",     u" ",   u"abc", u"-",   u"+",   u".",      u"e5",     u".e5",   u"1e",
                              u"1e+",  u"1 2", u"--1", u"++1", u"+-1", u"-+1",    u"1-",     u"1.2.3", u"1e5e5",
                              u"0x10", u"inf", u"nan", u"\t1", u"1\n", u"\u0661", u"\uFF11", u"1,000"}) {
        EXPECT_EQ(NumberRaisedBy([s] { TaggedValue(s).ToFloat(); }), kTypeMismatch) << TaggedValue(s).ToText().size();
        EXPECT_EQ(NumberRaisedBy([s] { TaggedValue(s).ToInteger(); }), kTypeMismatch);
        EXPECT_EQ(NumberRaisedBy([s] { TaggedValue(s).ToBoolean(); }), kTypeMismatch);
    }
}

TEST(TaggedValue, NumbersBeyondTheRangeRaiseOverflow) {
    EXPECT_EQ(NumberRaisedBy([] { TaggedValue(u"1e309").ToFloat(); }), kOverflow);
    EXPECT_EQ(NumberRaisedBy([] { TaggedValue(u"-1e309").ToFloat(); }), kOverflow);
    EXPECT_EQ(NumberRaisedBy([] { TaggedValue(u"2147483648").ToInteger(); }), kOverflow);
    EXPECT_EQ(NumberRaisedBy([] { TaggedValue(2147483647.5).ToInteger(); }), kOverflow);
    EXPECT_EQ(NumberRaisedBy([] { TaggedValue(-2147483649.0).ToInteger(); }), kOverflow);
    EXPECT_EQ(NumberRaisedBy([] { TaggedValue(kNan).ToInteger(); }), kOverflow);
    EXPECT_EQ(TaggedValue(-2147483648.5).ToInteger(), std::numeric_limits<std::int32_t>::min());
}

TEST(TaggedValue, FloatsBecomeIntegersByHalvesToEven) {
    EXPECT_EQ(TaggedValue(0.5).ToInteger(), 0);
    EXPECT_EQ(TaggedValue(1.5).ToInteger(), 2);
    EXPECT_EQ(TaggedValue(u"2.5").ToInteger(), 2);
    EXPECT_EQ(TaggedValue(-2.5).ToInteger(), -2);
    EXPECT_EQ(TaggedValue(-3.5).ToInteger(), -4);
}

TEST(TaggedValue, TextIsReadAsABooleanByWordOrByNumber) {
    EXPECT_TRUE(TaggedValue(u" tRUE ").ToBoolean());
    EXPECT_FALSE(TaggedValue(u"False").ToBoolean());
    EXPECT_TRUE(TaggedValue(u"0.1").ToBoolean());
    EXPECT_FALSE(TaggedValue(u"0").ToBoolean());
    EXPECT_TRUE(TaggedValue(-7).ToBoolean());
    EXPECT_FALSE(TaggedValue(0).ToBoolean());
    EXPECT_TRUE(TaggedValue(0.001).ToBoolean());
    EXPECT_FALSE(TaggedValue(-0.0).ToBoolean());
}

// Each value sorts before the next one, and values in one row sort alike.
TEST(TaggedValue, SortsNumbersBySizeBooleansAmongThemAndTextBehind) {
    const std::vector<std::vector<TaggedValue>> order = {
        {kNan},
        {-kInfinity},
        {-2, -2.0},
        {true, -1, -1.0},
        {-0.5},
        {false, 0, 0.0, -0.0},
        {0.5},
        {5, 5.0},
        {2147483647, 2147483647.0},
        {1e300},
        {kInfinity},
        {u""},
        {u"10"},
        {u"9"},
        {u"A"},
        {u"a"},
        {u"aa"},
        {u"\U0001F600"}, // by code units, so a surrogate comes before U+FF21
        {u"\uFF21"},
    };
    for (std::size_t i = 0; i < order.size(); ++i) {
        for (std::size_t j = 0; j < order.size(); ++j) {
            for (const TaggedValue& a : order[i]) {
                for (const TaggedValue& b : order[j]) {
                    EXPECT_EQ(a.Compare(b), i <=> j) << "rows " << i << " and " << j;
                }
            }
        }
    }
}

TEST(TaggedValue, NothingSortsAsZeroBesideNumbersAndAsEmptyTextBesideText) {
    const TaggedValue nothing;
    EXPECT_EQ(nothing.Compare(TaggedValue()), std::strong_ordering::equal);
    EXPECT_EQ(nothing.Compare(0), std::strong_ordering::equal);
    EXPECT_EQ(nothing.Compare(false), std::strong_ordering::equal);
    EXPECT_EQ(nothing.Compare(true), std::strong_ordering::greater);
    EXPECT_EQ(nothing.Compare(0.5), std::strong_ordering::less);
    EXPECT_EQ(nothing.Compare(u""), std::strong_ordering::equal);
    EXPECT_EQ(nothing.Compare(u"a"), std::strong_ordering::less);
    EXPECT_EQ(TaggedValue(u"a").Compare(nothing), std::strong_ordering::greater);
}

TEST(TaggedValue, EqualMeansTheSameKindAndTheSameValue) {
    EXPECT_EQ(TaggedValue(u"a"), TaggedValue(std::u16string(u"a")));
    EXPECT_EQ(TaggedValue(), TaggedValue());
    EXPECT_EQ(TaggedValue(3), TaggedValue(3));
    EXPECT_NE(TaggedValue(0), TaggedValue(0.0));
    EXPECT_NE(TaggedValue(-1), TaggedValue(true));
    EXPECT_NE(TaggedValue(), TaggedValue(u""));
    EXPECT_NE(TaggedValue(u"a"), TaggedValue(u"A"));
    EXPECT_NE(TaggedValue(1), TaggedValue(2));
}

} // namespace
} // namespace orvanta
