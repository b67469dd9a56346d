#include "grid/FormatNumber.h"

#include "grid/clsCtlUniGrid_Column.h"
#include "tests/grid/FakeGrid.h"
#include "tests/support/NumberRaisedBy.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

namespace orvanta {
namespace {

using testing::FakeLocale;
using testing::NumberRaisedBy;

struct NumberRules {
    const char16_t* sDecSep = u"";
    const char16_t* sValSep = u"";
    std::int16_t fixInt = -1;
    std::int16_t fixDec = -1;
    bool bSgn = false;
    bool bAutoDecSep = false;
    bool bAutoValSep = false;
};

std::u16string Formatted(const char16_t* sNumber, NumberRules rules, char16_t cSystem = u'.') {
    return FormatNumber(sNumber, rules.sDecSep, rules.sValSep, rules.fixInt, rules.fixDec, rules.bSgn,
                        rules.bAutoDecSep, rules.bAutoValSep, cSystem);
}

TEST(FormatNumberTest, GroupsAndCutsAsInTheFirstExample) {
    EXPECT_EQ(Formatted(u"1234567.891", {.sDecSep = u".", .sValSep = u",", .fixDec = 2}), u"1,234,567.89");
}

TEST(FormatNumberTest, FillsWithZerosAndShowsASignAsInTheSecond) {
    EXPECT_EQ(Formatted(u"12", {.fixInt = 5, .fixDec = 0, .bSgn = true}), u"+00012");
}

TEST(FormatNumberTest, DropsAPointThatIsNotTheDecimalSeparatorAsInTheThird) {
    EXPECT_EQ(Formatted(u"-5.5", {.sDecSep = u",", .sValSep = u"."}), u"-55");
}

TEST(FormatNumberTest, AnEmptyNumberStaysEmptyEvenWithASign) {
    EXPECT_EQ(Formatted(u"", {.fixInt = 5, .fixDec = 2, .bSgn = true}), u"");
}

TEST(FormatNumberTest, LeadingZerosStay) {
    EXPECT_EQ(Formatted(u"007", {.sValSep = u","}), u"007");
    EXPECT_EQ(Formatted(u"1000", {.sValSep = u","}), u"1,000");
    EXPECT_EQ(Formatted(u"0001234", {.sValSep = u","}), u"0,001,234");
}

TEST(FormatNumberTest, GroupsHaveThreeDigitsFromTheRight) {
    EXPECT_EQ(Formatted(u"1", {.sValSep = u"'"}), u"1");
    EXPECT_EQ(Formatted(u"12", {.sValSep = u"'"}), u"12");
    EXPECT_EQ(Formatted(u"123", {.sValSep = u"'"}), u"123");
    EXPECT_EQ(Formatted(u"1234", {.sValSep = u"'"}), u"1'234");
    EXPECT_EQ(Formatted(u"12345", {.sValSep = u"'"}), u"12'345");
    EXPECT_EQ(Formatted(u"123456", {.sValSep = u"'"}), u"123'456");
    EXPECT_EQ(Formatted(u"1234567", {.sValSep = u" - "}), u"1 - 234 - 567");
}

TEST(FormatNumberTest, WithoutSeparatorNoCharacterIsOne) {
    EXPECT_EQ(Formatted(u"1.5", {}), u"15");
}

TEST(FormatNumberTest, ASeparatorOfTwoCharactersIsNeverMet) {
    EXPECT_EQ(Formatted(u"1.5", {.sDecSep = u".."}), u"15");
    EXPECT_EQ(Formatted(u"1.5", {.sDecSep = u"..", .fixDec = 1}), u"15..0");
}

TEST(FormatNumberTest, TheAutomaticDecimalSeparatorIsTheSystems) {
    EXPECT_EQ(Formatted(u"1.5", {.bAutoDecSep = true}), u"1.5");
    EXPECT_EQ(Formatted(u"1,5", {.bAutoDecSep = true}, u','), u"1,5");
    EXPECT_EQ(Formatted(u"1,5", {.sDecSep = u";", .bAutoDecSep = true}, u','), u"15");
}

TEST(FormatNumberTest, TheAutomaticGroupSeparatorIsAPointOrBesideADecimalPointAComma) {
    EXPECT_EQ(Formatted(u"1234", {.bAutoValSep = true}), u"1.234");
    EXPECT_EQ(Formatted(u"1234.5", {.sDecSep = u".", .bAutoValSep = true}), u"1,234.5");
    EXPECT_EQ(Formatted(u"1234,5", {.sDecSep = u",", .bAutoValSep = true}), u"1.234,5");
    EXPECT_EQ(Formatted(u"1234.5", {.bAutoDecSep = true, .bAutoValSep = true}), u"1,234.5");
    EXPECT_EQ(Formatted(u"1234", {.sValSep = u"_", .bAutoValSep = true}), u"1_234");
}

TEST(FormatNumberTest, NoDecimalsWantedLeavesNoSeparatorBehind) {
    EXPECT_EQ(Formatted(u"1.75", {.sDecSep = u".", .fixDec = 0}), u"1");
}

TEST(FormatNumberTest, DecimalsAreCutAndNotRounded) {
    EXPECT_EQ(Formatted(u"1.999", {.sDecSep = u".", .fixDec = 2}), u"1.99");
}

TEST(FormatNumberTest, MissingDecimalsAreFilled) {
    EXPECT_EQ(Formatted(u"1.5", {.sDecSep = u".", .fixDec = 3}), u"1.500");
    EXPECT_EQ(Formatted(u"1", {.sDecSep = u".", .fixDec = 2}), u"1.00");
    EXPECT_EQ(Formatted(u"1", {.fixDec = 2}), u"100");
}

TEST(FormatNumberTest, AtMostThirtyZerosAreAdded) {
    EXPECT_EQ(Formatted(u"1", {.fixInt = 40}), std::u16string(30, u'0') + u"1");
    EXPECT_EQ(Formatted(u"1", {.sDecSep = u".", .fixDec = 40}), u"1." + std::u16string(30, u'0'));
    EXPECT_EQ(Formatted(u"1.2", {.sDecSep = u".", .fixDec = 32}), u"1.2" + std::u16string(30, u'0'));
    EXPECT_EQ(Formatted(u"1", {.fixInt = 32767}), std::u16string(30, u'0') + u"1");
}

TEST(FormatNumberTest, TheIntegerPartIsFilledOnlyWithoutAGroupSeparator) {
    EXPECT_EQ(Formatted(u"12", {.sValSep = u",", .fixInt = 5}), u"12");
    EXPECT_EQ(Formatted(u"12", {.fixInt = 5, .bAutoValSep = true}), u"12");
    EXPECT_EQ(Formatted(u"12", {.fixInt = 0}), u"12");
    EXPECT_EQ(Formatted(u"12", {.fixInt = -5}), u"12");
    EXPECT_EQ(Formatted(u"12", {.fixInt = 2}), u"12");
}

TEST(FormatNumberTest, MoreDigitsThanWantedFailOnPurpose) {
    EXPECT_EQ(NumberRaisedBy([] { Formatted(u"123", {.fixInt = 2}); }), 5u);
    EXPECT_EQ(Formatted(u"123", {.sValSep = u",", .fixInt = 2}), u"123");
}

TEST(FormatNumberTest, TheLastSignWinsWhereverItStands) {
    EXPECT_EQ(Formatted(u"5-", {}), u"-5");
    EXPECT_EQ(Formatted(u"-5+", {}), u"+5");
    EXPECT_EQ(Formatted(u"1-2+3-", {}), u"-123");
    EXPECT_EQ(Formatted(u"-5", {.bSgn = true}), u"-5");
    EXPECT_EQ(Formatted(u"5", {.bSgn = true}), u"+5");
    EXPECT_EQ(Formatted(u"5", {}), u"5");
}

TEST(FormatNumberTest, ASignMayBeTheDecimalSeparatorToo) {
    EXPECT_EQ(Formatted(u"1-5", {.sDecSep = u"-"}), u"-1-5");
}

TEST(FormatNumberTest, ASecondSeparatorChangesNothing) {
    EXPECT_EQ(Formatted(u"1.2.3", {.sDecSep = u"."}), u"1.23");
}

TEST(FormatNumberTest, ADigitIsNeverASeparator) {
    EXPECT_EQ(Formatted(u"1525", {.sDecSep = u"5"}), u"1525");
}

TEST(FormatNumberTest, AnExponentIsReadAsSignAndDigits) {
    EXPECT_EQ(Formatted(u"1.5E+20", {.sDecSep = u"."}), u"+1.520");
}

TEST(FormatNumberTest, TextWithoutDigitsGivesTheSignAlone) {
    EXPECT_EQ(Formatted(u"abc", {.bSgn = true}), u"+");
    EXPECT_EQ(Formatted(u"abc", {.sDecSep = u".", .fixDec = 2}), u".00");
    EXPECT_EQ(Formatted(u".5", {.sDecSep = u".", .sValSep = u","}), u".5");
}

class DisplayTextTest : public ::testing::Test {
protected:
    FakeLocale locale;
    clsCtlUniGrid_Column column{locale};
};

TEST_F(DisplayTextTest, ATextIsShownAsItIs) {
    column.AddRow(u" a\r\nb ");
    EXPECT_EQ(column.DisplayText(1), u" a\r\nb ");
}

TEST_F(DisplayTextTest, ANumberGoesThroughItsFormat) {
    column.iType = 1;
    column.AddRow(TaggedValue(-1234.5));
    EXPECT_EQ(column.DisplayText(1), u"-1234.5");
    column.sNumValSep = u" ";
    column.iNumFixDec = 2;
    EXPECT_EQ(column.DisplayText(1), u"-1 234.50");
    column.bNumAutoDecSep = false;
    EXPECT_EQ(column.DisplayText(1), u"-12 34500"); // the point is dropped, the zeros are filled in
}

TEST_F(DisplayTextTest, ANumberIsWrittenWithTheSystemsSeparatorFirst) {
    locale.cDecimal = u',';
    column.iType = 1;
    column.AddRow(TaggedValue(0.5));
    EXPECT_EQ(column.DisplayText(1), u"0,5");
    column.sNumDecSep = u".";
    EXPECT_EQ(column.DisplayText(1), u"05"); // the comma is not the separator asked for
}

TEST_F(DisplayTextTest, AnEmptyNumberAndA0AreNotTheSame) {
    column.iType = 1;
    column.AddRow();
    EXPECT_EQ(column.DisplayText(1), u"0");
    column.Value(1, u"");
    column.bNumSign = true;
    EXPECT_EQ(column.DisplayText(1), u"");
}

TEST_F(DisplayTextTest, FlagsAndOtherTypesShowNoText) {
    column.iType = 2;
    column.AddRow(TaggedValue(true));
    EXPECT_EQ(column.DisplayText(1), u"");
    column.iType = 3;
    column.Value(1, u"text");
    EXPECT_EQ(column.DisplayText(1), u"");
}

} // namespace
} // namespace orvanta
