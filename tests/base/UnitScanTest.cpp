#include "base/UnitScan.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace orvanta {
namespace {

// Units that come close to the letters looked for: the letters, those with one bit changed, the same low byte under
// other high bytes, and the ends of the stretches that packing to bytes maps to 0 and to 255.
std::u16string Units() {
    std::u16string s;
    for (const char16_t c : std::u16string(u"SFuKCDBEen_ asAS\r\n")) {
        for (int nBit = 0; nBit < 8; ++nBit)
            s += static_cast<char16_t>(c ^ (1 << nBit));
        for (const int nHigh : {0x0000, 0x0100, 0x7F00, 0x8000, 0xFF00})
            s += static_cast<char16_t>(c + nHigh);
    }
    for (const int n : {0, 1, 0x7F, 0x80, 0xFF, 0x100, 0x120, 0x161, 0x7FFF, 0x8000, 0x8041, 0xFFFF})
        s += static_cast<char16_t>(n);
    return s;
}

using Place = std::vector<std::size_t>;

template<typename... Tests>
Place Found(std::u16string_view s) {
    Place found;
    ForEachMatch<Tests...>(s, [&](std::size_t nAt) { found.push_back(nAt); });
    return found;
}

// One function for each unit that is to pass, without any of the machinery.
using Plain = bool (*)(char16_t);

Place PlainFound(std::u16string_view s, std::initializer_list<Plain> tests) {
    Place found;
    for (std::size_t n = 0; n < s.size(); ++n) {
        std::size_t nAhead = n;
        bool bAll = true;
        for (const Plain test : tests)
            bAll = bAll && nAhead < s.size() && test(s[nAhead++]);
        if (bAll) found.push_back(n);
    }
    return found;
}

template<typename... Tests>
void ExpectLikePlain(std::initializer_list<Plain> tests) {
    const std::u16string sUnits = Units();
    std::mt19937_64 random(4711);
    for (int nRound = 0; nRound < 400; ++nRound) {
        std::u16string s(random() % 300, u'\0');
        // In half of the rounds few different units, so that matches are many.
        const std::size_t nFirst = random() % sUnits.size();
        const std::size_t nRange = nRound % 2 == 0 ? sUnits.size() : 30;
        for (char16_t& c : s)
            c = sUnits[(nFirst + random() % nRange) % sUnits.size()];
        ASSERT_EQ(Found<Tests...>(s), PlainFound(s, tests)) << "round " << nRound;
        for (std::size_t n = 0; n + unit_scan::kBlock <= s.size(); ++n) {
            const auto expectLikePlain = [&](unsigned nMask, unsigned nPlain) {
                ASSERT_EQ(nMask, nPlain) << "round " << nRound << ", block at " << n;
            };
            (expectLikePlain(unit_scan::Matches<Tests>(s.data() + n), unit_scan::MatchesPlain<Tests>(s.data() + n)),
             ...);
        }
    }
}

TEST(UnitScan, EverySearchOfTheEngineFindsWhatAPlainLoopFinds) {
    const Plain isLineFeed = [](char16_t c) { return c == u'\n'; };
    const Plain isUnderscore = [](char16_t c) { return c == u'_'; };
    const Plain isBlank = [](char16_t c) { return c == u' '; };
    const Plain isA = [](char16_t c) { return c == u'a' || c == u'A'; };
    const Plain isS = [](char16_t c) { return c == u's' || c == u'S'; };
    const Plain isSOrF = [](char16_t c) { return c == u'S' || c == u'F'; };
    const Plain isU = [](char16_t c) { return c == u'u'; };
    const Plain isBOrE = [](char16_t c) { return c == u'B' || c == u'E'; };
    const Plain isEOrN = [](char16_t c) { return c == u'e' || c == u'n'; };
    const Plain isWord = [](char16_t c) { return c == u'S' || c == u'F' || c == u'_'; };
    const Plain isNext = [](char16_t c) { return c == u'u' || c == u'K' || c == u'C' || c == u'D'; };
    ExpectLikePlain<OneOf<u'\n'>>({isLineFeed});
    ExpectLikePlain<OneOf<u'_'>>({isUnderscore});
    ExpectLikePlain<OneOf<u' '>>({isBlank});
    ExpectLikePlain<OneOf<u'S', u'F'>, OneOf<u'u'>>({isSOrF, isU});
    ExpectLikePlain<OneOf<u'B', u'E'>, OneOf<u'e', u'n'>>({isBOrE, isEOrN});
    ExpectLikePlain<OneOf<u'S', u'F', u'_'>, OneOf<u'u', u'K', u'C', u'D'>>({isWord, isNext});
    ExpectLikePlain<OneOfFolded<u'a'>, OneOfFolded<u's'>, OneOf<u' '>>({isA, isS, isBlank});
}

TEST(UnitScan, EveryUnitThereIsPassesTheTestsThatItShould) {
    for (int n = 0; n < 0x10000; n += static_cast<int>(unit_scan::kBlock)) {
        char16_t block[unit_scan::kBlock];
        for (std::size_t i = 0; i < unit_scan::kBlock; ++i)
            block[i] = static_cast<char16_t>(static_cast<std::size_t>(n) + i);
        unsigned nPlain = 0;
        unsigned nFolded = 0;
        for (std::size_t i = 0; i < unit_scan::kBlock; ++i) {
            if (block[i] == u'z' || block[i] == u'_' || block[i] == u'A') nPlain |= 1u << i;
            if (block[i] == u'z' || block[i] == u'Z' || block[i] == u'@') nFolded |= 1u << i;
        }
        ASSERT_EQ((unit_scan::Matches<OneOf<u'z', u'_', u'A'>>(block)), nPlain) << n;
        ASSERT_EQ((unit_scan::MatchesPlain<OneOf<u'z', u'_', u'A'>>(block)), nPlain) << n;
        ASSERT_EQ((unit_scan::Matches<OneOfFolded<u'z', u'@'>>(block)), nFolded) << n;
        ASSERT_EQ((unit_scan::MatchesPlain<OneOfFolded<u'z', u'@'>>(block)), nFolded) << n;
    }
}

TEST(UnitScan, AMatchIsFoundAtEveryPlaceOfTextsOfEveryLengthAndNotBeyondTheirEnd) {
    for (std::size_t nLength = 0; nLength < 200; ++nLength) {
        // Exactly as long, so that the sanitizer sees a read behind the end.
        const std::vector<char16_t> none(nLength, u'x');
        const std::u16string_view sNone(none.data(), nLength);
        ASSERT_TRUE((Found<OneOf<u'a'>, OneOf<u'b'>>(sNone)).empty());
        for (std::size_t nAt = 0; nAt < nLength; ++nAt) {
            std::vector<char16_t> units = none;
            units[nAt] = u'a';
            const std::u16string_view s(units.data(), nLength);
            ASSERT_EQ((Found<OneOf<u'a'>>(s)), Place{nAt}) << nLength;
            ASSERT_TRUE((Found<OneOf<u'a'>, OneOf<u'b'>>(s)).empty()) << nLength;
            if (nAt + 1 == nLength) continue;
            units[nAt + 1] = u'b';
            ASSERT_EQ((Found<OneOf<u'a'>, OneOf<u'b'>>(s)), Place{nAt}) << nLength;
        }
    }
}

TEST(UnitScan, LeadingUnitsAreCountedUpToTheFirstOther) {
    for (std::size_t nLength = 0; nLength < 80; ++nLength) {
        for (std::size_t nLeading = 0; nLeading <= nLength; ++nLeading) {
            for (const char16_t cOther : {u'x', u'\0', u'\u0120', u'\u8020'}) {
                std::u16string s(nLength, u' ');
                if (nLeading < nLength) s[nLeading] = cOther;
                ASSERT_EQ(CountLeading<u' '>(s), nLeading);
            }
        }
    }
}

} // namespace
} // namespace orvanta
