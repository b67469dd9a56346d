#include "utilities/DigitStrings.h"
#include "utilities/DigitWords.h"

#include "base/Failure.h"

#include <gtest/gtest.h>

#include <random>

namespace orvanta {
namespace {

TEST(DigitWords, EveryCharacterInEveryPlaceIsADigitOrAFlaw) {
    for (std::size_t nPlace = 0; nPlace < 8; ++nPlace) {
        char16_t aDigits[] = {u'0', u'9', u'0', u'9', u'9', u'0', u'9', u'0'};
        for (unsigned c = 0; c < 0x10000; ++c) {
            aDigits[nPlace] = static_cast<char16_t>(c);
            std::uint64_t nFlaw = 0;
            LoadEightDigits(aDigits, nFlaw);
            ASSERT_EQ(nFlaw == 0, c >= '0' && c <= '9') << c << " in place " << nPlace;
        }
    }
}

TEST(DigitWords, NumbersOfEightDigitsComeBack) {
    std::mt19937_64 random(5001);
    for (int iRound = 0; iRound < 100'000; ++iRound) {
        const std::uint64_t n = iRound < 20'000 ? static_cast<std::uint64_t>(iRound) : random() % 100'000'000;
        char16_t aDigits[8];
        StoreEightDigits(aDigits, DigitsOfNumber(n));
        std::uint64_t nBack = 0;
        for (const char16_t c : aDigits)
            nBack = nBack * 10 + (c - u'0');
        ASSERT_EQ(nBack, n);
        std::uint64_t nFlaw = 0;
        ASSERT_EQ(NumberOfDigits(LoadEightDigits(aDigits, nFlaw)), n);
        ASSERT_EQ(nFlaw, 0u);
    }
    EXPECT_EQ(NumberOfDigits(DigitsOfNumber(99'999'999)), 99'999'999u);
}

TEST(DigitWords, SumsAndDifferencesCarryThroughTheWord) {
    constexpr std::uint64_t kNines = 0x0909090909090909u;
    bool bCarry = false;
    EXPECT_EQ(AddReversedDigits(kNines, 1, bCarry), 0u);
    EXPECT_TRUE(bCarry);
    EXPECT_EQ(AddReversedDigits(kNines, kNines, bCarry), kNines);
    EXPECT_TRUE(bCarry);
    EXPECT_EQ(AddReversedDigits(0, 0, bCarry), 1u);
    EXPECT_FALSE(bCarry);
    bool bBorrow = true;
    EXPECT_EQ(SubtractReversedDigits(0, 0, bBorrow), kNines);
    EXPECT_TRUE(bBorrow);
    EXPECT_EQ(SubtractReversedDigits(kNines, kNines, bBorrow), kNines);
    EXPECT_TRUE(bBorrow);
    EXPECT_EQ(SubtractReversedDigits(5, 3, bBorrow), 1u);
    EXPECT_FALSE(bBorrow);
}

TEST(DigitStrings, BlocksHoldEighteenDigits) {
    EXPECT_EQ(BlocksOfDigits(u""), Blocks());
    EXPECT_EQ(BlocksOfDigits(u"0000000000000000000000"), Blocks());
    EXPECT_EQ(BlocksOfDigits(u"999999999999999999"), Blocks{999'999'999'999'999'999u});
    EXPECT_EQ(BlocksOfDigits(u"1123456789012345678"), (Blocks{123'456'789'012'345'678u, 1}));
    EXPECT_EQ(DigitsOfBlocks({}), u"0");
    EXPECT_EQ(DigitsOfBlocks(Blocks{5, 0, 0}), u"5");
    EXPECT_EQ(DigitsOfBlocks(Blocks{7, 0, 42}), u"42000000000000000000000000000000000007");
    EXPECT_EQ(DigitsOfBlocks(Blocks{123'456'789'012'345'678u, 1}), u"1123456789012345678");
}

TEST(DigitStrings, NumbersOfEveryLengthComeBackFromBlocks) {
    std::mt19937_64 random(5002);
    for (std::size_t nSize = 1; nSize < 200; ++nSize) {
        std::u16string s(nSize, u'0');
        for (char16_t& c : s)
            c = static_cast<char16_t>(u'0' + random() % 10);
        s.front() = u'3';
        EXPECT_EQ(DigitsOfBlocks(BlocksOfDigits(s)), s);
        EXPECT_EQ(DigitsOfBlocks(BlocksOfDigits(u"000" + s)), s);
    }
}

TEST(DigitStrings, ACharacterThatIsNoDigitNeverBecomesABlock) {
    for (std::size_t n = 0; n < 45; ++n) {
        std::u16string s(45, u'8');
        s[n] = u'a';
        EXPECT_THROW(BlocksOfDigits(s), Failure) << n;
        EXPECT_THROW(RequireDigits(s), Failure) << n;
    }
    EXPECT_NO_THROW(RequireDigits(std::u16string(45, u'8')));
    EXPECT_NO_THROW(RequireDigits(u""));
}

} // namespace
} // namespace orvanta
