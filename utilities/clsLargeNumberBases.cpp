#include "utilities/clsLargeNumber.h"

#include "base/Failure.h"
#include "base/Text.h"
#include "utilities/DigitStrings.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace orvanta {
namespace {

constexpr std::u16string_view kSymbols = u"0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz{|";

// The power of the base grows with the position, and an exponent ends at 262143.
constexpr std::size_t kMostSymbols = 262144;

// Packed symbols stay below 2^60 even where each of them is the largest one, which is more than a small base would
// have.
constexpr std::uint64_t kPackLimit = BlockArithmetic::kLargestRadix / kSymbols.size();
constexpr std::size_t kMostPacked = 54;

constexpr auto kValues = [] {
    std::array<std::int32_t, 128> values{};
    values.fill(-1);
    for (std::size_t n = 0; n < kSymbols.size(); ++n)
        values[kSymbols[n]] = static_cast<std::int32_t>(n);
    return values;
}();

// The position in the alphabet, -1 for any other character.
std::int32_t ValueOrNone(char16_t c) {
    return c < kValues.size() ? kValues[c] : -1;
}

std::uint32_t ValueOf(char16_t c) {
    const std::int32_t iValue = ValueOrNone(c);
    if (iValue < 0) throw TypeMismatch();
    return static_cast<std::uint32_t>(iValue);
}

struct PackedBase {
    std::size_t nSymbols; // to a block
    std::uint64_t nPower; // the base to the power nSymbols
};

PackedBase Pack(std::uint64_t nBase, std::uint64_t nLimit) {
    PackedBase packed{0, 1};
    for (; packed.nSymbols < kMostPacked && packed.nPower <= nLimit / nBase; ++packed.nSymbols)
        packed.nPower *= nBase;
    return packed;
}

// Collects digits from the top; those before the first one that counts are dropped.
class SymbolWriter {
public:
    explicit SymbolWriter(std::size_t nSize) { m_s.reserve(nSize); }
    void Put(std::uint64_t nDigit) {
        m_bStarted = m_bStarted || nDigit != 0;
        if (m_bStarted && nDigit < kSymbols.size()) m_s.push_back(kSymbols[nDigit]);
    }
    std::u16string Take() { return std::move(m_s); }

private:
    std::u16string m_s;
    bool m_bStarted = false;
};

std::u16string SymbolsInSmallBase(const Blocks& number, std::uint64_t nBase) {
    const PackedBase packed = Pack(nBase, BlockArithmetic::kLargestRadix);
    const Divisor power(packed.nPower);
    const Blocks blocks = BlockArithmetic(packed.nPower).Evaluate(number, kDecimalRadix);
    SymbolWriter writer(blocks.size() * packed.nSymbols);
    for (std::size_t i = blocks.size(); i-- > 0;) {
        // The block as a fraction of its radix, rounded up: each multiplication by the base moves one digit out at the
        // top.
        std::uint64_t nFraction = power.Divide(blocks[i], 0).nQuotient + 1;
        for (std::size_t n = 0; n < packed.nSymbols; ++n) {
            Wide wide;
            wide.AddProduct(nFraction, nBase);
            writer.Put(wide.High());
            nFraction = wide.Low();
        }
    }
    return writer.Take();
}

std::u16string SymbolsInHugeBase(Blocks number, const Blocks& base) {
    std::u16string sReversed;
    while (!number.empty()) {
        auto [quotient, remainder] = kDecimal.Divide(number, base);
        const std::uint64_t nDigit = remainder.empty() ? 0 : remainder.front();
        if (remainder.size() < 2 && nDigit < kSymbols.size()) sReversed.push_back(kSymbols[nDigit]);
        number = std::move(quotient);
    }
    std::reverse(sReversed.begin(), sReversed.end());
    return sReversed;
}

// With a base that is zero or no number, the lowest positions decide: from the third on the power is "0", or it fails.
std::u16string ValueInOddBase(std::u16string_view sA, std::u16string_view sFromBase) {
    std::u16string sSum = u"0";
    for (std::size_t n = 0; n < std::min<std::size_t>(sA.size(), 3); ++n) {
        const std::u16string sValue = DecimalText(ValueOrNone(sA[sA.size() - 1 - n]));
        const std::u16string sPower = clsLargeNumber::StrPow(sFromBase, DecimalText(static_cast<long long>(n)));
        sSum = clsLargeNumber::StrAdd(sSum, clsLargeNumber::StrMult(sValue, sPower));
    }
    if (sA.size() > kMostSymbols) throw Overflow();
    return sSum;
}

bool IsPositiveNumber(std::u16string_view s) {
    s = TrimZeros(s);
    return s != u"0" && std::all_of(s.begin(), s.end(), [](char16_t c) { return c >= u'0' && c <= u'9'; });
}

} // namespace

std::u16string clsLargeNumber::ConvFromBase10(std::u16string_view sA, std::u16string_view ToBase) {
    if (sA == u"0") return {};
    const bool bOneDigit = IsGreater(ToBase, sA);
    Blocks number = BlocksOfDigits(sA);
    if (bOneDigit) {
        if (number.empty()) return u"0";
        const bool bSymbol = number.size() == 1 && number.front() < kSymbols.size();
        return bSymbol ? std::u16string(1, kSymbols[number.front()]) : std::u16string();
    }
    const Blocks base = BlocksOfDigits(ToBase);
    if (base.empty()) throw DivisionByZero();
    if (base.size() > 1) return SymbolsInHugeBase(std::move(number), base);
    // Divided by 1 the number would never come to an end.
    if (base.front() == 1) throw InvalidProcedureCall();
    return SymbolsInSmallBase(number, base.front());
}

std::u16string clsLargeNumber::ConvToBase10(std::u16string_view sA, std::u16string_view FromBase) {
    if (sA.empty()) return {};
    if (!IsPositiveNumber(FromBase)) return ValueInOddBase(sA, FromBase);
    const Blocks base = BlocksOfDigits(FromBase);
    const bool bPacked = base.size() == 1 && base.front() <= kPackLimit;
    const PackedBase packed = bPacked ? Pack(base.front(), kPackLimit) : PackedBase{1, 0};

    Blocks coefficients;
    coefficients.reserve(sA.size() / packed.nSymbols + 1);
    const std::u16string_view sCounted = sA.substr(sA.size() - std::min(sA.size(), kMostSymbols));
    for (std::size_t nEnd = sCounted.size(); nEnd > 0;) {
        const std::size_t nBegin = nEnd - std::min(nEnd, packed.nSymbols);
        std::uint64_t nCoefficient = 0;
        for (const char16_t c : sCounted.substr(nBegin, nEnd - nBegin)) {
            nCoefficient = bPacked ? nCoefficient * base.front() + ValueOf(c) : ValueOf(c);
        }
        coefficients.push_back(nCoefficient);
        nEnd = nBegin;
    }
    if (sA.size() > sCounted.size()) throw Overflow();
    return DigitsOfBlocks(bPacked ? kDecimal.Evaluate(coefficients, packed.nPower)
                                  : kDecimal.Evaluate(coefficients, base));
}

std::u16string clsLargeNumber::ConvertBases(std::u16string_view sA, std::u16string_view FromBase,
                                            std::u16string_view ToBase) {
    return ConvFromBase10(ConvToBase10(sA, FromBase), ToBase);
}

std::u16string clsLargeNumber::BooleanOperation(std::u16string_view sA, std::u16string_view sB,
                                                std::u16string_view Operator) {
    const std::size_t nSize = std::max(sA.size(), sB.size());
    const auto digitOf = [nSize](std::u16string_view s, std::size_t n) {
        const std::size_t nPadding = nSize - s.size();
        return n < nPadding ? 0 : ValueOf(s[n - nPadding]);
    };
    std::u16string sResult;
    for (std::size_t n = 0; n < nSize; ++n) {
        if (Operator == u"XOR") sResult.push_back(kSymbols[digitOf(sA, n) ^ digitOf(sB, n)]);
        if (Operator == u"AND") sResult.push_back(kSymbols[digitOf(sA, n) & digitOf(sB, n)]);
        if (Operator == u"OR") sResult.push_back(kSymbols[digitOf(sA, n) | digitOf(sB, n)]);
        if (Operator == u"NOT") sResult.push_back(kSymbols[digitOf(sA, n) ^ 15]);
    }
    return StrTrim(sResult);
}

} // namespace orvanta
