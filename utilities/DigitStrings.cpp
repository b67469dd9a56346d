#include "utilities/DigitStrings.h"

#include "base/Failure.h"
#include "utilities/DigitWords.h"

#include <algorithm>

namespace orvanta {
namespace {

constexpr std::size_t kBlockDigits = 18;
// Width of the blocks in which a difference is defined.
constexpr std::size_t kSubtractWidth = 14;

// One digit as a word.
std::uint64_t LoadDigit(char16_t c, std::uint64_t& nFlaw) {
    const std::uint64_t nDigit = static_cast<std::uint64_t>(c) ^ u'0';
    if (nDigit > 9) nFlaw |= kDigitsFlaw;
    return nDigit;
}

// Combines both operands from the right, eight digits at a time, and writes as many digits as the longer one has to the
// end of sResult. step takes two reversed words and hands its carry on; the last carry is returned.
template<typename Step>
bool CombineDigits(std::u16string& sResult, std::u16string_view sLong, std::u16string_view sShort, Step step) {
    const char16_t* pLong = sLong.data() + sLong.size();
    const char16_t* pShort = sShort.data() + sShort.size();
    char16_t* pResult = sResult.data() + sResult.size();
    std::size_t nShort = sShort.size();
    std::size_t nLong = sLong.size();
    std::uint64_t nFlaw = 0;
    bool bCarry = false;
    for (; nShort >= 8; nShort -= 8, nLong -= 8) {
        const std::uint64_t nA = ReverseBytes(LoadEightDigits(pLong -= 8, nFlaw));
        const std::uint64_t nB = ReverseBytes(LoadEightDigits(pShort -= 8, nFlaw));
        StoreEightDigits(pResult -= 8, ReverseBytes(step(nA, nB, bCarry)));
    }
    while (nLong > 0) {
        if (nShort == 0 && nLong >= 8) {
            const std::uint64_t nA = ReverseBytes(LoadEightDigits(pLong -= 8, nFlaw));
            StoreEightDigits(pResult -= 8, ReverseBytes(step(nA, 0, bCarry)));
            nLong -= 8;
            continue;
        }
        const std::uint64_t nA = LoadDigit(*--pLong, nFlaw);
        const std::uint64_t nB = nShort > 0 ? LoadDigit(*--pShort, nFlaw) : 0;
        const std::uint64_t nWord = step(nA, nB, bCarry);
        // The carry of a single digit has gone on into the digits above it.
        bCarry = nWord >> 8 != 0;
        *--pResult = static_cast<char16_t>(u'0' + (nWord & 0xFF));
        nShort -= nShort > 0;
        --nLong;
    }
    if (nFlaw != 0) throw TypeMismatch();
    return bCarry;
}

void EraseLeadingZeros(std::u16string& s) {
    std::size_t nZeros = 0;
    while (nZeros + 1 < s.size() && s[nZeros] == u'0')
        ++nZeros;
    s.erase(0, nZeros);
}

} // namespace

std::u16string_view TrimZeros(std::u16string_view s) {
    const std::size_t nFirst = s.find_first_not_of(u'0');
    if (nFirst == std::u16string_view::npos) return u"0";
    return s.substr(nFirst);
}

bool IsGreater(std::u16string_view a, std::u16string_view b) {
    a = TrimZeros(a);
    b = TrimZeros(b);
    if (a.size() != b.size()) return a.size() > b.size();
    return a > b;
}

void RequireDigits(std::u16string_view s) {
    std::uint64_t nFlaw = 0;
    for (; s.size() >= 8; s.remove_prefix(8))
        LoadEightDigits(s.data(), nFlaw);
    for (const char16_t c : s)
        LoadDigit(c, nFlaw);
    if (nFlaw != 0) throw TypeMismatch();
}

std::u16string AddDigits(std::u16string_view a, std::u16string_view b) {
    if (a.size() < b.size()) std::swap(a, b);
    std::u16string sSum(a.size() + 1, u'0');
    if (CombineDigits(sSum, a, b, AddReversedDigits)) {
        sSum.front() = u'1';
    } else {
        EraseLeadingZeros(sSum);
    }
    return sSum;
}

std::u16string SubtractDigits(std::u16string_view a, std::u16string_view b) {
    // A shorter minuend is filled up, so that the walk can follow the longer string.
    const std::u16string sFilled = a.size() < b.size() ? std::u16string(b.size() - a.size(), u'0').append(a) : u"";
    if (!sFilled.empty()) a = sFilled;
    std::u16string sDifference(a.size(), u'0');
    if (CombineDigits(sDifference, a, b, SubtractReversedDigits)) {
        const std::size_t nWidth = (sDifference.size() + kSubtractWidth - 1) / kSubtractWidth * kSubtractWidth;
        sDifference.insert(0, nWidth - sDifference.size(), u'9');
    }
    if (sDifference.empty()) return u"0";
    EraseLeadingZeros(sDifference);
    return sDifference;
}

std::u16string HalveDigits(std::u16string_view s) {
    RequireDigits(s);
    if (s.empty()) return u"0";
    std::u16string sHalf(s.size(), u'0');
    int iRest = 0;
    for (std::size_t n = 0; n < s.size(); ++n) {
        const int iDigit = s[n] - u'0';
        sHalf[n] = static_cast<char16_t>(u'0' + (iRest * 10 + iDigit) / 2);
        iRest = iDigit & 1;
    }
    EraseLeadingZeros(sHalf);
    return sHalf;
}

Blocks BlocksOfDigits(std::u16string_view s) {
    Blocks blocks;
    blocks.reserve(s.size() / kBlockDigits + 1);
    std::uint64_t nFlaw = 0;
    std::size_t nEnd = s.size();
    for (; nEnd >= kBlockDigits; nEnd -= kBlockDigits) {
        const char16_t* p = s.data() + nEnd - kBlockDigits;
        const std::uint64_t nFirst = NumberOfDigits(LoadEightDigits(p, nFlaw));
        const std::uint64_t nNext = NumberOfDigits(LoadEightDigits(p + 8, nFlaw));
        const std::uint64_t nLast = NumberOfDigits(LoadEightDigits(p + 10, nFlaw)) % 100;
        blocks.push_back((nFirst * 100'000'000 + nNext) * 100 + nLast);
    }
    std::uint64_t nTop = 0;
    for (const char16_t c : s.substr(0, nEnd)) {
        if (c < u'0' || c > u'9') throw TypeMismatch();
        nTop = nTop * 10 + static_cast<std::uint64_t>(c - u'0');
    }
    blocks.push_back(nTop);
    if (nFlaw != 0) throw TypeMismatch();
    TrimBlocks(blocks);
    return blocks;
}

std::u16string DigitsOfBlocks(BlockSpan blocks) {
    blocks = TrimmedBlocks(blocks);
    if (blocks.empty()) return u"0";
    std::size_t nTopDigits = 0;
    for (std::uint64_t nTop = blocks.back(); nTop != 0; nTop /= 10)
        ++nTopDigits;
    std::u16string s(nTopDigits + (blocks.size() - 1) * kBlockDigits, u'0');
    char16_t* p = s.data() + s.size();
    for (const std::uint64_t nBlock : blocks.first(blocks.size() - 1)) {
        p -= kBlockDigits;
        // The words of digits 8 to 15 and 10 to 17 agree on the digits they share.
        StoreEightDigits(p, DigitsOfNumber(nBlock / 10'000'000'000));
        StoreEightDigits(p + 8, DigitsOfNumber(nBlock / 100 % 100'000'000));
        StoreEightDigits(p + 10, DigitsOfNumber(nBlock % 100'000'000));
    }
    std::uint64_t nTop = blocks.back();
    while (nTop != 0) {
        *--p = static_cast<char16_t>(u'0' + nTop % 10);
        nTop /= 10;
    }
    return s;
}

} // namespace orvanta
