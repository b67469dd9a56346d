#include "utilities/clsLargeNumber.h"

#include "base/Text.h"
#include "tests/reference/PlainLargeNumber.h"

#include <gtest/gtest.h>

#include <random>

namespace orvanta {
namespace {

using Large = clsLargeNumber;

std::u16string RandomNumber(std::mt19937& random, std::size_t nMost) {
    std::u16string s(random() % (nMost + 1), u'0');
    // Long runs of 0 and 9 carry and borrow far.
    const unsigned nKind = static_cast<unsigned>(random() % 4);
    for (char16_t& c : s) {
        if (nKind == 0) c = u'9';
        if (nKind == 1) c = random() % 8 == 0 ? u'1' : u'0';
        if (nKind > 1) c = static_cast<char16_t>(u'0' + random() % 10);
    }
    return s;
}

TEST(LargeNumberTrim, ZerosAloneBecomeOneZero) {
    EXPECT_EQ(Large::StrTrim(u"000"), u"0");
    EXPECT_EQ(Large::StrTrim(u""), u"0");
    EXPECT_EQ(Large::StrTrim(u"0"), u"0");
}

TEST(LargeNumberTrim, LeadingZerosGoAndInnerOnesStay) {
    EXPECT_EQ(Large::StrTrim(u"00100"), u"100");
    EXPECT_EQ(Large::StrTrim(u"7"), u"7");
}

TEST(LargeNumberTrim, ChangesTheStringItIsGiven) {
    std::u16string s = u"0042";
    EXPECT_EQ(Large::StrTrim(s), u"42");
    EXPECT_EQ(s, u"42");
    std::u16string sEmpty;
    EXPECT_EQ(Large::StrTrim(sEmpty), u"0");
    EXPECT_EQ(sEmpty, u"0");
}

TEST(LargeNumberTrim, LooksAtNoOtherCharacter) {
    EXPECT_EQ(Large::StrTrim(u"00x0"), u"x0");
}

TEST(LargeNumberGreater, TrimsBeforeItComparesLengths) {
    EXPECT_TRUE(Large::StrGT(u"010", u"9"));
    EXPECT_FALSE(Large::StrGT(u"0009", u"10"));
}

TEST(LargeNumberGreater, AtEqualLengthTheFirstDifferenceDecides) {
    EXPECT_TRUE(Large::StrGT(u"1290", u"1289"));
    EXPECT_FALSE(Large::StrGT(u"1289", u"1290"));
    EXPECT_TRUE(Large::StrGT(u"2000", u"1999"));
}

TEST(LargeNumberGreater, EqualNumbersAreNotGreater) {
    EXPECT_FALSE(Large::StrGT(u"77", u"077"));
    EXPECT_FALSE(Large::StrGT(u"", u"000"));
}

TEST(LargeNumberGreater, TrimsBothStringsOfTheCaller) {
    std::u16string sA = u"010";
    std::u16string sB = u"";
    EXPECT_TRUE(Large::StrGT(sA, sB));
    EXPECT_EQ(sA, u"10");
    EXPECT_EQ(sB, u"0");
}

TEST(LargeNumberGreater, TrimsTheOneStringThatIsHandedOverByName) {
    std::u16string s = u"0010";
    EXPECT_TRUE(Large::StrGT(s, u"9"));
    EXPECT_EQ(s, u"10");
    s = u"0008";
    EXPECT_TRUE(Large::StrGT(u"9", s));
    EXPECT_EQ(s, u"8");
}

TEST(LargeNumberAdd, CarriesAcrossTheLimitOfABlock) {
    EXPECT_EQ(Large::StrAdd(u"99999999999999", u"1"), u"100000000000000");
    EXPECT_EQ(Large::StrAdd(u"9999999999999999999999999999", u"1"), u"10000000000000000000000000000");
    EXPECT_EQ(Large::StrAdd(u"1", u"99999999"), u"100000000");
}

TEST(LargeNumberAdd, ResultIsTrimmedAndEmptyIsZero) {
    EXPECT_EQ(Large::StrAdd(u"0000000000000000000005", u"03"), u"8");
    EXPECT_EQ(Large::StrAdd(u"", u""), u"0");
    EXPECT_EQ(Large::StrAdd(u"", u"12"), u"12");
    EXPECT_EQ(Large::StrAdd(u"000", u"0000000000"), u"0");
}

TEST(LargeNumberSubtract, BorrowsAcrossTheLimitOfABlock) {
    EXPECT_EQ(Large::StrSub(u"100000000000000", u"1"), u"99999999999999");
    EXPECT_EQ(Large::StrSub(u"10000000000000000000000000000", u"9999999999999999999999999999"), u"1");
}

TEST(LargeNumberSubtract, ResultIsTrimmedAndEmptyIsZero) {
    EXPECT_EQ(Large::StrSub(u"0012", u"12"), u"0");
    EXPECT_EQ(Large::StrSub(u"12", u""), u"12");
    EXPECT_EQ(Large::StrSub(u"", u""), u"0");
    EXPECT_EQ(Large::StrSub(u"5", u"000000000000000000000004"), u"1");
}

TEST(LargeNumberSubtract, WithTheGreaterNumberSecondTheLastBorrowIsLostInBlocksOfFourteen) {
    EXPECT_EQ(Large::StrSub(u"1", u"2"), u"99999999999999");
    EXPECT_EQ(Large::StrSub(u"1", u"12345678901234"), u"87654321098767");
    EXPECT_EQ(Large::StrSub(u"", u"100000000000000"), u"9999999999999900000000000000");
    EXPECT_EQ(Large::StrSub(u"000000000000001", u"2"), u"9999999999999999999999999999");
}

TEST(LargeNumberMultiply, ZeroOrEmptyGivesZeroBeforeAnythingIsRead) {
    EXPECT_EQ(Large::StrMult(u"0", u"x"), u"0");
    EXPECT_EQ(Large::StrMult(u"x", u""), u"0");
    EXPECT_EQ(Large::StrMult(u"", u"123"), u"0");
    EXPECT_EQ(Large::StrMult(u"000", u"123"), u"0");
}

TEST(LargeNumberMultiply, KeepsEveryDigit) {
    EXPECT_EQ(Large::StrMult(u"99999999999999", u"99999999999999"), u"9999999999999800000000000001");
    EXPECT_EQ(Large::StrMult(u"012", u"0012"), u"144");
    EXPECT_EQ(Large::StrMult(u"123456789012345678901234567890", u"1000"), u"123456789012345678901234567890000");
}

TEST(LargeNumberDivide, GivesTheWholeQuotientAndTheRemainder) {
    EXPECT_EQ(Large::StrDiv(u"100", u"7"), u"14");
    EXPECT_EQ(Large::StrMod(u"100", u"7"), u"2");
    EXPECT_EQ(Large::StrDiv(u"1000000000000000000000", u"1000000000000000000000"), u"1");
    EXPECT_EQ(Large::StrMod(u"1000000000000000000000", u"1000000000000000000000"), u"0");
    EXPECT_EQ(Large::StrDiv(u"0099", u"0003"), u"33");
}

TEST(LargeNumberDivide, GreaterDivisorGivesZeroAndTheTrimmedDividend) {
    EXPECT_EQ(Large::StrDiv(u"007", u"8"), u"0");
    EXPECT_EQ(Large::StrMod(u"007", u"8"), u"7");
    EXPECT_EQ(Large::StrMod(u"", u"8"), u"0");
}

TEST(LargeNumberIncrement, CarriesInPlaceAndPutsAOneInFront) {
    EXPECT_EQ(Large::StrInc(u"999"), u"1000");
    EXPECT_EQ(Large::StrInc(u"0"), u"1");
    EXPECT_EQ(Large::StrInc(u"1299"), u"1300");
    EXPECT_EQ(Large::StrInc(u""), u"1");
}

TEST(LargeNumberIncrement, DoesNotTrim) {
    EXPECT_EQ(Large::StrInc(u"009"), u"010");
}

TEST(LargeNumberIncrement, ChangesTheStringItIsGiven) {
    std::u16string s = u"009";
    EXPECT_EQ(Large::StrInc(s), u"010");
    EXPECT_EQ(s, u"010");
}

TEST(LargeNumberDecrement, BorrowsAndTrims) {
    EXPECT_EQ(Large::StrDec(u"1000"), u"999");
    EXPECT_EQ(Large::StrDec(u"0011"), u"10");
    EXPECT_EQ(Large::StrDec(u"1"), u"0");
    EXPECT_EQ(Large::StrDec(u"4200"), u"4199");
}

TEST(LargeNumberPower, SmallPowers) {
    EXPECT_EQ(Large::StrPow(u"2", u"10"), u"1024");
    EXPECT_EQ(Large::StrPow(u"3", u"5"), u"243");
    EXPECT_EQ(Large::StrPow(u"10", u"30"), u"1000000000000000000000000000000");
    EXPECT_EQ(Large::StrPow(u"0", u"5"), u"0");
    EXPECT_EQ(Large::StrPow(u"", u"5"), u"0");
}

TEST(LargeNumberPower, ExponentZeroGivesOneWhateverTheBase) {
    EXPECT_EQ(Large::StrPow(u"7", u"0"), u"1");
    EXPECT_EQ(Large::StrPow(u"0", u"0"), u"1");
    EXPECT_EQ(Large::StrPow(u"x", u"0"), u"1");
    EXPECT_EQ(Large::StrPow(u"x", u""), u"1");
    EXPECT_EQ(Large::StrPow(u"x", u"00"), u"1");
}

TEST(LargeNumberPower, ExponentOneGivesTheBaseBackAsItIs) {
    EXPECT_EQ(Large::StrPow(u"007", u"1"), u"007");
    EXPECT_EQ(Large::StrPow(u"", u"1"), u"");
    EXPECT_EQ(Large::StrPow(u"x", u"1"), u"x");
}

TEST(LargeNumberPower, ExponentOneWithAZeroInFrontIsCalculated) {
    EXPECT_EQ(Large::StrPow(u"007", u"01"), u"7");
}

TEST(LargeNumberPower, GoesUpToTheLargestExponent) {
    EXPECT_EQ(Large::StrPow(u"1", u"262143"), u"1");
    EXPECT_EQ(Large::StrPow(u"10", u"262143"), u"1" + std::u16string(262143, u'0'));
}

TEST(LargeNumberPowerModulo, SmallCases) {
    EXPECT_EQ(Large::StrPowMod(u"4", u"13", u"497"), u"445");
    EXPECT_EQ(Large::StrPowMod(u"2", u"100", u"1000000007"), u"976371285");
    EXPECT_EQ(Large::StrPowMod(u"5", u"1", u"3"), u"2");
    EXPECT_EQ(Large::StrPowMod(u"0", u"7", u"3"), u"0");
}

TEST(LargeNumberPowerModulo, ExponentZeroGivesOneEvenModuloOne) {
    EXPECT_EQ(Large::StrPowMod(u"5", u"0", u"1"), u"1");
    EXPECT_EQ(Large::StrPowMod(u"5", u"0", u"0"), u"1");
}

TEST(LargeNumberPowerModulo, AnyOtherZeroAsExponentIsReduced) {
    EXPECT_EQ(Large::StrPowMod(u"5", u"00", u"1"), u"0");
    EXPECT_EQ(Large::StrPowMod(u"5", u"", u"1"), u"0");
    EXPECT_EQ(Large::StrPowMod(u"5", u"", u"7"), u"1");
}

TEST(LargeNumberShift, MultipliesAndDividesByPowersOfTwo) {
    EXPECT_EQ(Large::StrShl(u"3", u"4"), u"48");
    EXPECT_EQ(Large::StrShl(u"1", u"64"), u"18446744073709551616");
    EXPECT_EQ(Large::StrShr(u"48", u"4"), u"3");
    EXPECT_EQ(Large::StrShr(u"47", u"4"), u"2");
    EXPECT_EQ(Large::StrShr(u"47", u"0"), u"47");
    EXPECT_EQ(Large::StrShr(u"1", u"100"), u"0");
}

TEST(LargeNumberHalf, CarriesTheRestAcrossBlocks) {
    EXPECT_EQ(Large::StrHalf(u"100000000"), u"50000000");
    EXPECT_EQ(Large::StrHalf(u"300000001"), u"150000000");
    EXPECT_EQ(Large::StrHalf(u"7"), u"3");
    EXPECT_EQ(Large::StrHalf(u"1"), u"0");
    EXPECT_EQ(Large::StrHalf(u""), u"0");
    EXPECT_EQ(Large::StrHalf(u"0000000000018"), u"9");
}

TEST(LargeNumberStraight, TellsEvenFromOddByTheLastDigit) {
    EXPECT_TRUE(Large::StrStraight(u"10"));
    EXPECT_TRUE(Large::StrStraight(u"0"));
    EXPECT_TRUE(Large::StrStraight(u""));
    EXPECT_FALSE(Large::StrStraight(u"2221"));
    EXPECT_FALSE(Large::StrStraight(u"9"));
    EXPECT_TRUE(Large::StrStraight(u"99999999999999999998"));
}

TEST(LargeNumberAgainstPaper, EveryPairOfSmallNumbers) {
    for (long long a = 0; a < 130; ++a) {
        for (long long b = 0; b < 130; ++b) {
            const std::u16string sA = DecimalText(a);
            const std::u16string sB = DecimalText(b);
            EXPECT_EQ(Large::StrAdd(sA, sB), DecimalText(a + b));
            EXPECT_EQ(Large::StrMult(sA, sB), DecimalText(a * b));
            EXPECT_EQ(Large::StrGT(DecimalText(a), DecimalText(b)), a > b);
            EXPECT_EQ(Large::StrSub(DecimalText(a + b), sB), sA);
            if (b == 0) continue;
            EXPECT_EQ(Large::StrDiv(sA, sB), DecimalText(a / b));
            EXPECT_EQ(Large::StrMod(sA, sB), DecimalText(a % b));
        }
    }
}

TEST(LargeNumberAgainstPaper, RandomNumbersOfAllLengths) {
    std::mt19937 random(1001);
    for (int iRound = 0; iRound < 600; ++iRound) {
        SCOPED_TRACE(iRound);
        std::u16string sA = RandomNumber(random, iRound % 10 == 0 ? 350 : 60);
        std::u16string sB = RandomNumber(random, iRound % 10 == 0 ? 350 : 60);
        EXPECT_EQ(Large::StrAdd(sA, sB), reference::PlainAdd(sA, sB));
        EXPECT_EQ(Large::StrMult(sA, sB), reference::PlainMultiply(sA, sB));
        EXPECT_EQ(Large::StrGT(std::u16string_view(sA), std::u16string_view(sB)), reference::PlainGreater(sA, sB));
        if (reference::PlainGreater(sB, sA)) std::swap(sA, sB);
        EXPECT_EQ(Large::StrSub(sA, sB), reference::PlainSubtract(sA, sB));
        EXPECT_EQ(Large::StrHalf(sA), reference::PlainDivide(sA, u"2").first);
        if (reference::PlainTrim(sB) == u"0") continue;
        const auto [sQuotient, sRest] = reference::PlainDivide(sA, sB);
        EXPECT_EQ(Large::StrDiv(sA, sB), sQuotient);
        EXPECT_EQ(Large::StrMod(sA, sB), sRest);
    }
}

TEST(LargeNumberAgainstPaper, PowersOfRandomNumbers) {
    std::mt19937 random(1002);
    for (int iRound = 0; iRound < 60; ++iRound) {
        SCOPED_TRACE(iRound);
        const std::u16string sA = RandomNumber(random, 12);
        const auto nExponent = static_cast<unsigned>(2 + random() % 30);
        const std::u16string sExponent = DecimalText(nExponent);
        const std::u16string sPower = reference::PlainPower(sA, nExponent);
        EXPECT_EQ(Large::StrPow(sA, sExponent), sPower);
        EXPECT_EQ(Large::StrPowMod(sA, sExponent, u"1000000007"), reference::PlainDivide(sPower, u"1000000007").second);
    }
}

} // namespace
} // namespace orvanta
