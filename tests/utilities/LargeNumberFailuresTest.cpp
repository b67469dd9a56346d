#include "utilities/clsLargeNumber.h"

#include "base/Failure.h"

#include <gtest/gtest.h>

namespace orvanta {
namespace {

using Large = clsLargeNumber;

template<typename Call>
void ExpectFailure(std::uint32_t lNumber, std::u16string_view sSource, std::u16string_view sDescription, Call&& call) {
    try {
        call();
        FAIL() << "nothing was raised";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.Number(), lNumber);
        EXPECT_EQ(failure.Source(), sSource);
        EXPECT_EQ(failure.Description(), sDescription);
    }
}

template<typename Call>
void ExpectNoDigit(Call&& call) {
    ExpectFailure(13, u"", u"Type mismatch", call);
}

template<typename Call>
void ExpectDivisionByZero(Call&& call) {
    ExpectFailure(11, u"", u"Division by zero", call);
}

template<typename Call>
void ExpectOverflow(Call&& call) {
    ExpectFailure(6, u"", u"Overflow", call);
}

TEST(LargeNumberFailures, ZeroCannotBeDecremented) {
    for (const std::u16string_view sZero : {u"0", u"000", u""}) {
        ExpectFailure(0x80040064u, u"clsLargeNumber.StrDec", u"Cannot deal with negative numbers!",
                      [&] { Large::StrDec(sZero); });
    }
}

TEST(LargeNumberFailures, ACharacterThatIsNoDigitEntersNoBlock) {
    ExpectNoDigit([] { Large::StrAdd(u"12a4", u"1"); });
    ExpectNoDigit([] { Large::StrAdd(u"1", u"x0000000000000000000"); });
    ExpectNoDigit([] { Large::StrSub(u"123", u"-1"); });
    ExpectNoDigit([] { Large::StrSub(u"1 3", u"1"); });
    ExpectNoDigit([] { Large::StrMult(u"1.5", u"2"); });
    ExpectNoDigit([] { Large::StrMult(u"x", u"00"); });
    ExpectNoDigit([] { Large::StrDiv(u"1e5", u"2"); });
    ExpectNoDigit([] { Large::StrMod(u"1000", u"x"); });
    ExpectNoDigit([] { Large::StrHalf(u"1x34567890"); });
    ExpectNoDigit([] { Large::StrPow(u"x", u"2"); });
    ExpectNoDigit([] { Large::StrPow(u"x", u"01"); });
    ExpectNoDigit([] { Large::StrPow(u"2", u"x"); });
    ExpectNoDigit([] { Large::StrPowMod(u"2", u"x4", u"7"); });
    ExpectNoDigit([] { Large::StrPowMod(u"x", u"4", u"777"); });
    ExpectNoDigit([] { Large::StrShl(u"x", u"0"); });
}

TEST(LargeNumberFailures, EveryPlaceOfALongNumberIsLookedAt) {
    for (std::size_t n = 0; n < 40; ++n) {
        for (const char16_t c : {u'/', u':', u'\0', u'\u0130', u'\uFF11', u'\u8030'}) {
            std::u16string s(40, u'7');
            s[n] = c;
            const std::u16string sOther(37, u'1');
            ExpectNoDigit([&] { Large::StrAdd(s, sOther); });
            ExpectNoDigit([&] { Large::StrAdd(sOther, s); });
            ExpectNoDigit([&] { Large::StrMult(s, sOther); });
            ExpectNoDigit([&] { Large::StrHalf(s); });
        }
    }
}

TEST(LargeNumberFailures, DigitsOfOtherScriptsAreNoDigits) {
    ExpectNoDigit([] { Large::StrAdd(u"\u0661", u"1"); });
}

TEST(LargeNumberFailures, WhatIsOnlyComparedMayHoldAnything) {
    EXPECT_EQ(Large::StrDiv(u"5", u"x"), u"0");
    EXPECT_EQ(Large::StrMod(u"x", u"16"), u"x");
    EXPECT_TRUE(Large::StrGT(u"x", u"9"));
    EXPECT_EQ(Large::StrShr(u"x", u"4"), u"0");
}

TEST(LargeNumberFailures, IncrementAndDecrementLookOnlyAtTheDigitsTheyChange) {
    EXPECT_EQ(Large::StrInc(u"x1"), u"x2");
    EXPECT_EQ(Large::StrDec(u"x1"), u"x0");
    EXPECT_TRUE(Large::StrStraight(u"x4"));
    ExpectNoDigit([] { Large::StrInc(u"x9"); });
    ExpectNoDigit([] { Large::StrDec(u"x0"); });
    ExpectNoDigit([] { Large::StrStraight(u"4x"); });
}

TEST(LargeNumberFailures, AFailedIncrementLeavesTheStringAlone) {
    std::u16string s = u"x99";
    ExpectNoDigit([&s] { Large::StrInc(s); });
    EXPECT_EQ(s, u"x99");
}

TEST(LargeNumberFailures, DivisionByZeroIsRaisedInsteadOfRunningForEver) {
    ExpectDivisionByZero([] { Large::StrDiv(u"5", u"0"); });
    ExpectDivisionByZero([] { Large::StrDiv(u"0", u"000"); });
    ExpectDivisionByZero([] { Large::StrMod(u"5", u""); });
    ExpectDivisionByZero([] { Large::StrPowMod(u"2", u"5", u"0"); });
    ExpectDivisionByZero([] { Large::ConvFromBase10(u"5", u"0"); });
    ExpectDivisionByZero([] { Large::ConvFromBase10(u"00", u""); });
    ExpectNoDigit([] { Large::StrDiv(u"x", u"0"); });
}

TEST(LargeNumberFailures, AnExponentOf262144Overflows) {
    ExpectOverflow([] { Large::StrPow(u"1", u"262144"); });
    ExpectOverflow([] { Large::StrPow(u"0", u"1000000000000000000000000"); });
    ExpectOverflow([] { Large::StrShl(u"0", u"262144"); });
    ExpectOverflow([] { Large::StrShr(u"5", u"262144"); });
    EXPECT_EQ(Large::StrPow(u"1", u"000262143"), u"1");
}

TEST(LargeNumberFailures, ABaseThatIsNoNumberFailsTheSameWayAsItsPowerDoes) {
    ExpectNoDigit([] { Large::StrPow(u"x", u"262144"); });
    ExpectOverflow([] { Large::StrPow(u"7", u"262144"); });
}

TEST(LargeNumberFailures, DigitsOutsideTheAlphabetHaveNoValue) {
    ExpectNoDigit([] { Large::ConvToBase10(u"F}", u"16"); });
    ExpectNoDigit([] { Large::ConvToBase10(u"-5", u"16"); });
    ExpectNoDigit([] { Large::ConvToBase10(u"5\u00FF", u"10"); });
    ExpectNoDigit([] { Large::ConvFromBase10(u"2x5", u"16"); });
    ExpectNoDigit([] { Large::ConvFromBase10(u"x", u"16"); });
    ExpectNoDigit([] { Large::BooleanOperation(u"F~", u"00", u"OR"); });
    ExpectNoDigit([] { Large::BooleanOperation(u"FF", u" 0", u"XOR"); });
    ExpectNoDigit([] { Large::BooleanOperation(u"\u0130", u"0", u"NOT"); });
}

TEST(LargeNumberFailures, ABaseThatIsNoNumberFailsWhereItsPowersAreNeeded) {
    ExpectNoDigit([] { Large::ConvToBase10(u"11", u"x"); });
    ExpectNoDigit([] { Large::ConvToBase10(u"000", u"x"); });
    ExpectNoDigit([] { Large::ConvFromBase10(u"15", u"x"); });
    EXPECT_EQ(Large::ConvToBase10(u"F", u"x"), u"15");
    EXPECT_EQ(Large::ConvToBase10(u"0F", u"x"), u"15");
    EXPECT_EQ(Large::ConvFromBase10(u"5", u"x"), u"5");
}

TEST(LargeNumberFailures, TheNumberOfDigitsEndsWithTheExponent) {
    std::u16string s(262144, u'0');
    s.back() = u'7';
    EXPECT_EQ(Large::ConvToBase10(s, u"2"), u"7");
    EXPECT_EQ(Large::ConvToBase10(s, u"0"), u"7");
    ExpectOverflow([&s] { Large::ConvToBase10(u"0" + s, u"2"); });
    ExpectOverflow([&s] { Large::ConvToBase10(u"0" + s, u"0"); });
    ExpectOverflow([&s] { Large::ConvToBase10(u"~" + s, u"2"); });
    s.front() = u'~';
    ExpectNoDigit([&s] { Large::ConvToBase10(u"0" + s, u"2"); });
}

TEST(LargeNumberFailures, TheTargetBaseOneNeverComesToAnEnd) {
    ExpectFailure(5, u"", u"Invalid procedure call or argument", [] { Large::ConvFromBase10(u"5", u"1"); });
    EXPECT_EQ(Large::ConvFromBase10(u"0", u"1"), u"");
    EXPECT_EQ(Large::ConvFromBase10(u"00", u"1"), u"0");
}

} // namespace
} // namespace orvanta
