#include "utilities/clsLargeNumber.h"

#include "base/Text.h"
#include "tests/reference/PlainLargeNumber.h"

#include <gtest/gtest.h>

#include <random>

namespace orvanta {
namespace {

using Large = clsLargeNumber;

std::u16string RandomNumberOfSize(std::mt19937& random, std::size_t nSize) {
    std::u16string s(nSize, u'0');
    for (char16_t& c : s)
        c = static_cast<char16_t>(u'0' + random() % 10);
    s.front() = static_cast<char16_t>(u'1' + random() % 9);
    return s;
}

TEST(LargeNumberFromBase10, WritesTheDigitsOfTheAlphabet) {
    EXPECT_EQ(Large::ConvFromBase10(u"255", u"16"), u"FF");
    EXPECT_EQ(Large::ConvFromBase10(u"5", u"2"), u"101");
    EXPECT_EQ(Large::ConvFromBase10(u"61", u"62"), u"z");
    EXPECT_EQ(Large::ConvFromBase10(u"4095", u"64"), u"||");
    EXPECT_EQ(Large::ConvFromBase10(u"62", u"63"), u"{");
    EXPECT_EQ(Large::ConvFromBase10(u"18446744073709551615", u"16"), u"FFFFFFFFFFFFFFFF");
    EXPECT_EQ(Large::ConvFromBase10(u"1073741824", u"16"), u"40000000");
}

TEST(LargeNumberFromBase10, ExactlyZeroGivesAnEmptyString) {
    EXPECT_EQ(Large::ConvFromBase10(u"0", u"16"), u"");
}

TEST(LargeNumberFromBase10, AnyOtherZeroGivesAZero) {
    EXPECT_EQ(Large::ConvFromBase10(u"00", u"16"), u"0");
    EXPECT_EQ(Large::ConvFromBase10(u"", u"16"), u"0");
}

TEST(LargeNumberFromBase10, LeadingZerosOfBothCountForNothing) {
    EXPECT_EQ(Large::ConvFromBase10(u"000255", u"016"), u"FF");
    EXPECT_EQ(Large::ConvFromBase10(u"0005", u"16"), u"5");
}

TEST(LargeNumberFromBase10, InABaseAbove64DigitsWithoutASymbolLeaveNothing) {
    EXPECT_EQ(Large::ConvFromBase10(u"163", u"100"), u"1|"); // digits 1 and 63
    EXPECT_EQ(Large::ConvFromBase10(u"164", u"100"), u"1");  // digits 1 and 64
    EXPECT_EQ(Large::ConvFromBase10(u"70", u"100"), u"");
    EXPECT_EQ(Large::ConvFromBase10(u"7000", u"100"), u"0"); // digits 70 and 0
    EXPECT_EQ(Large::ConvFromBase10(u"64", u"100000000000000000000"), u"");
    EXPECT_EQ(Large::ConvFromBase10(u"12", u"100000000000000000000"), u"C");
}

TEST(LargeNumberFromBase10, BasesOfAnySize) {
    // 5 * 10^40 + 7 * 10^20 + 9, and the same with a middle digit that has no symbol.
    EXPECT_EQ(Large::ConvFromBase10(u"50000000000000000000700000000000000000009", u"100000000000000000000"), u"579");
    EXPECT_EQ(Large::ConvFromBase10(u"50000000000000000099900000000000000000009", u"100000000000000000000"), u"59");
    EXPECT_EQ(Large::ConvFromBase10(u"300000000000000000012", u"100000000000000000"), u"C"); // digits 3000 and 12
    EXPECT_EQ(Large::ConvFromBase10(u"500000000000000004", u"500000000000000000"), u"14");
}

TEST(LargeNumberToBase10, ReadsTheDigitsOfTheAlphabet) {
    EXPECT_EQ(Large::ConvToBase10(u"FF", u"16"), u"255");
    EXPECT_EQ(Large::ConvToBase10(u"00FF", u"16"), u"255");
    EXPECT_EQ(Large::ConvToBase10(u"101", u"2"), u"5");
    EXPECT_EQ(Large::ConvToBase10(u"||", u"64"), u"4095");
    EXPECT_EQ(Large::ConvToBase10(u"{z", u"63"), u"3967"); // 62 * 63 + 61
    EXPECT_EQ(Large::ConvToBase10(u"0", u"16"), u"0");
    EXPECT_EQ(Large::ConvToBase10(u"11111", u"1"), u"5");
}

TEST(LargeNumberToBase10, AnEmptyStringStaysEmpty) {
    EXPECT_EQ(Large::ConvToBase10(u"", u"16"), u"");
}

TEST(LargeNumberToBase10, CaseCounts) {
    EXPECT_EQ(Large::ConvToBase10(u"ff", u"16"), u"697");
} // 41 * 16 + 41

TEST(LargeNumberToBase10, DigitsAreNotCheckedAgainstTheBase) {
    EXPECT_EQ(Large::ConvToBase10(u"1G", u"16"), u"32");
    EXPECT_EQ(Large::ConvToBase10(u"9", u"2"), u"9");
    // 63 in each of 60 places of base 2: 63 * (2^60 - 1).
    EXPECT_EQ(Large::ConvToBase10(std::u16string(60, u'|'), u"2"), u"72634054790231359425");
    // The same in 30 places of base 4: 63 * (4^30 - 1) / 3.
    EXPECT_EQ(Large::ConvToBase10(std::u16string(30, u'|'), u"4"), u"24211351596743786475");
    EXPECT_EQ(Large::ConvToBase10(u"|||", u"1"), u"189");
}

TEST(LargeNumberToBase10, WithBaseZeroOnlyTheLastDigitCounts) {
    EXPECT_EQ(Large::ConvToBase10(u"777", u"0"), u"7");
    EXPECT_EQ(Large::ConvToBase10(u"777", u""), u"7");
    EXPECT_EQ(Large::ConvToBase10(u"~~7", u"0"), u"7"); // times "0", nothing is read
}

TEST(LargeNumberToBase10, BasesOfAnySize) {
    EXPECT_EQ(Large::ConvToBase10(u"12", u"100000000000000000000"), u"100000000000000000002");
    EXPECT_EQ(Large::ConvToBase10(u"3|", u"20000000000000000"), u"60000000000000063");
    EXPECT_EQ(Large::ConvToBase10(u"102", u"30000000000000000"), u"900000000000000000000000000000002");
}

TEST(LargeNumberConvertBases, GoesThroughBaseTen) {
    EXPECT_EQ(Large::ConvertBases(u"FF", u"16", u"2"), u"11111111");
    EXPECT_EQ(Large::ConvertBases(u"zz", u"62", u"16"), u"F03"); // 61 * 62 + 61 = 3843
    EXPECT_EQ(Large::ConvertBases(u"0", u"16", u"2"), u"");
    EXPECT_EQ(Large::ConvertBases(u"", u"16", u"2"), u"0");
}

TEST(LargeNumberBases, RandomNumbersInEveryBaseAgainstPaper) {
    std::mt19937 random(1003);
    for (unsigned nBase = 2; nBase <= 64; ++nBase) {
        const std::u16string sBase = DecimalText(nBase);
        for (const std::size_t nSize : {1u, 2u, 17u, 18u, 19u, 37u, 120u}) {
            SCOPED_TRACE(testing::Message() << "base " << nBase << ", " << nSize << " digits");
            const std::u16string sNumber = RandomNumberOfSize(random, nSize);
            const std::u16string sSymbols = reference::PlainFromBase10(sNumber, nBase);
            EXPECT_EQ(Large::ConvFromBase10(sNumber, sBase), sSymbols);
            EXPECT_EQ(Large::ConvToBase10(sSymbols, sBase), reference::PlainToBase10(sSymbols, nBase));
            EXPECT_EQ(Large::ConvToBase10(sSymbols, sBase), sNumber);
        }
    }
}

TEST(LargeNumberBases, LongNumbersComeBack) {
    std::mt19937 random(1004);
    for (const std::size_t nSize : {400u, 1500u, 9000u}) {
        for (const std::u16string_view sBase : {u"2", u"7", u"16", u"64"}) {
            const std::u16string sNumber = RandomNumberOfSize(random, nSize);
            EXPECT_EQ(Large::ConvToBase10(Large::ConvFromBase10(sNumber, sBase), sBase), sNumber);
        }
    }
}

TEST(LargeNumberBooleanOperation, WorksBitByBit) {
    EXPECT_EQ(Large::BooleanOperation(u"F0", u"0F", u"XOR"), u"FF");
    EXPECT_EQ(Large::BooleanOperation(u"C", u"A", u"AND"), u"8");
    EXPECT_EQ(Large::BooleanOperation(u"C", u"A", u"OR"), u"E");
    EXPECT_EQ(Large::BooleanOperation(u"C", u"A", u"XOR"), u"6");
}

TEST(LargeNumberBooleanOperation, PadsTheShorterOperandAndTrimsTheResult) {
    EXPECT_EQ(Large::BooleanOperation(u"1F0", u"F", u"OR"), u"1FF");
    EXPECT_EQ(Large::BooleanOperation(u"F", u"1F0", u"AND"), u"0");
    EXPECT_EQ(Large::BooleanOperation(u"1234", u"1204", u"XOR"), u"30");
    EXPECT_EQ(Large::BooleanOperation(u"", u"", u"OR"), u"0");
}

TEST(LargeNumberBooleanOperation, NotFlipsTheDigitsOfTheFirstAtTheLengthOfBoth) {
    EXPECT_EQ(Large::BooleanOperation(u"A5", u"", u"NOT"), u"5A");
    EXPECT_EQ(Large::BooleanOperation(u"F", u"000", u"NOT"), u"FF0");
    EXPECT_EQ(Large::BooleanOperation(u"FF", u"~~", u"NOT"), u"0");
}

TEST(LargeNumberBooleanOperation, CaseOfDigitsCounts) {
    EXPECT_EQ(Large::BooleanOperation(u"a", u"F", u"AND"), u"4"); // 36 and 15
    EXPECT_EQ(Large::BooleanOperation(u"a", u"", u"NOT"), u"h");  // 36 xor 15 = 43
    EXPECT_EQ(Large::BooleanOperation(u"|", u"0", u"OR"), u"|");
}

TEST(LargeNumberBooleanOperation, AnyOtherOperatorAddsNothing) {
    EXPECT_EQ(Large::BooleanOperation(u"F0", u"0F", u"xor"), u"0");
    EXPECT_EQ(Large::BooleanOperation(u"F0", u"0F", u""), u"0");
    EXPECT_EQ(Large::BooleanOperation(u"F0", u"0F", u"NAND"), u"0");
}

} // namespace
} // namespace orvanta
