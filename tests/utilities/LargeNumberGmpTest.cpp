#include "utilities/clsLargeNumber.h"

#include "base/Text.h"

#include <gmp.h>
#include <gtest/gtest.h>

#include <random>
#include <string>

namespace orvanta {
namespace {

using Large = clsLargeNumber;

// A number of the trusted library.
class Trusted {
public:
    Trusted() { mpz_init(m_n); }
    explicit Trusted(const std::u16string& s, int iBase = 10) {
        mpz_init_set_str(m_n, std::string(s.begin(), s.end()).c_str(), iBase);
    }
    ~Trusted() { mpz_clear(m_n); }
    Trusted(const Trusted&) = delete;
    Trusted& operator=(const Trusted&) = delete;

    mpz_t& Get() { return m_n; }
    std::u16string Text(int iBase = 10) const {
        std::string s(mpz_sizeinbase(m_n, iBase < 0 ? -iBase : iBase) + 2, '\0');
        mpz_get_str(s.data(), iBase, m_n);
        s.resize(s.find('\0'));
        return {s.begin(), s.end()};
    }

private:
    mpz_t m_n;
};

// Upper-case digits up to base 36; from 37 on the library's alphabet is the same as ours.
int BaseOfUpperCase(int iBase) {
    return iBase <= 36 ? -iBase : iBase;
}

std::u16string RandomNumberWithStretches(std::mt19937_64& random, std::size_t nSize) {
    std::u16string s(nSize, u'0');
    std::size_t n = 0;
    while (n < nSize) {
        // Stretches of 9, of 0 and of anything, so that carries run far and guesses go wrong.
        const auto nKind = random() % 5;
        const std::size_t nEnd = std::min<std::size_t>(nSize, n + 1 + random() % (nSize / 3 + 2));
        for (; n < nEnd; ++n)
            s[n] = static_cast<char16_t>(nKind == 0 ? u'9' : nKind == 1 ? u'0' : u'0' + random() % 10);
    }
    s.front() = static_cast<char16_t>(u'1' + random() % 9);
    return s;
}

void CompareOperations(std::mt19937_64& random, std::size_t nSizeA, std::size_t nSizeB) {
    SCOPED_TRACE(testing::Message() << nSizeA << " and " << nSizeB << " digits");
    std::u16string sA = RandomNumberWithStretches(random, nSizeA);
    std::u16string sB = RandomNumberWithStretches(random, nSizeB);
    Trusted a(sA);
    Trusted b(sB);
    Trusted result;
    const auto expect = [&result](const std::u16string& sOurs) { EXPECT_EQ(sOurs, result.Text()); };

    mpz_add(result.Get(), a.Get(), b.Get());
    expect(Large::StrAdd(sA, sB));
    mpz_mul(result.Get(), a.Get(), b.Get());
    expect(Large::StrMult(sA, sB));
    mpz_mul(result.Get(), a.Get(), a.Get());
    expect(Large::StrMult(sA, sA));
    mpz_tdiv_q(result.Get(), a.Get(), b.Get());
    expect(Large::StrDiv(sA, sB));
    mpz_tdiv_r(result.Get(), a.Get(), b.Get());
    expect(Large::StrMod(sA, sB));
    mpz_add_ui(result.Get(), a.Get(), 1);
    expect(Large::StrInc(std::u16string_view(sA)));
    mpz_sub_ui(result.Get(), a.Get(), 1);
    expect(Large::StrDec(sA));
    mpz_tdiv_q_2exp(result.Get(), a.Get(), 1);
    expect(Large::StrHalf(sA));
    EXPECT_EQ(Large::StrStraight(sA), mpz_even_p(a.Get()) != 0);
    EXPECT_EQ(Large::StrGT(std::u16string_view(sA), std::u16string_view(sB)), mpz_cmp(a.Get(), b.Get()) > 0);
    if (mpz_cmp(a.Get(), b.Get()) >= 0) {
        mpz_sub(result.Get(), a.Get(), b.Get());
        expect(Large::StrSub(sA, sB));
    } else {
        mpz_sub(result.Get(), b.Get(), a.Get());
        expect(Large::StrSub(sB, sA));
    }

    const auto nShift = static_cast<unsigned long>(random() % 3000);
    const std::u16string sShift = DecimalText(static_cast<long long>(nShift));
    mpz_mul_2exp(result.Get(), a.Get(), nShift);
    expect(Large::StrShl(sA, sShift));
    mpz_tdiv_q_2exp(result.Get(), a.Get(), nShift);
    expect(Large::StrShr(sA, sShift));
}

void CompareBases(std::mt19937_64& random, std::size_t nSize, int iBase) {
    SCOPED_TRACE(testing::Message() << nSize << " digits, base " << iBase);
    const std::u16string sNumber = RandomNumberWithStretches(random, nSize);
    const std::u16string sBase = DecimalText(iBase);
    Trusted number(sNumber);
    const std::u16string sSymbols = number.Text(BaseOfUpperCase(iBase));
    EXPECT_EQ(Large::ConvFromBase10(sNumber, sBase), sSymbols);
    EXPECT_EQ(Large::ConvToBase10(sSymbols, sBase), sNumber);
}

TEST(LargeNumberAgainstGmp, EveryOperationOnShortNumbers) {
    std::mt19937_64 random(2001);
    for (int iRound = 0; iRound < 1500; ++iRound)
        CompareOperations(random, 1 + random() % 60, 1 + random() % 60);
}

TEST(LargeNumberAgainstGmp, EveryOperationUpTo2000Digits) {
    std::mt19937_64 random(2002);
    for (int iRound = 0; iRound < 200; ++iRound)
        CompareOperations(random, 1 + random() % 2000, 1 + random() % 2000);
}

TEST(LargeNumberAgainstGmp, EveryOperationAt20000Digits) {
    std::mt19937_64 random(2003);
    CompareOperations(random, 20'000, 20'000);
    CompareOperations(random, 20'000, 10'000);
    CompareOperations(random, 20'000, 13'337);
    CompareOperations(random, 20'000, 900);
    CompareOperations(random, 3'000, 20'000);
}

TEST(LargeNumberAgainstGmp, EveryBaseUpTo62) {
    std::mt19937_64 random(2004);
    for (int iBase = 2; iBase <= 62; ++iBase) {
        for (int iRound = 0; iRound < 4; ++iRound)
            CompareBases(random, 1 + random() % 2000, iBase);
    }
}

TEST(LargeNumberAgainstGmp, BasesAt20000Digits) {
    std::mt19937_64 random(2005);
    for (const int iBase : {2, 3, 16, 62})
        CompareBases(random, 20'000, iBase);
}

TEST(LargeNumberAgainstGmp, Powers) {
    std::mt19937_64 random(2006);
    for (int iRound = 0; iRound < 60; ++iRound) {
        SCOPED_TRACE(iRound);
        const std::u16string sA = RandomNumberWithStretches(random, 1 + random() % 40);
        const auto nExponent = static_cast<unsigned long>(iRound < 50 ? random() % 300 : random() % 3000);
        Trusted result(sA);
        mpz_pow_ui(result.Get(), result.Get(), nExponent);
        EXPECT_EQ(Large::StrPow(sA, DecimalText(static_cast<long long>(nExponent))), result.Text());
    }
}

TEST(LargeNumberAgainstGmp, PowersModulo) {
    std::mt19937_64 random(2007);
    for (int iRound = 0; iRound < 40; ++iRound) {
        SCOPED_TRACE(iRound);
        const std::size_t nSize = iRound < 36 ? 1 + random() % 60 : 250;
        const std::u16string sA = RandomNumberWithStretches(random, nSize);
        const std::u16string sB = RandomNumberWithStretches(random, nSize);
        const std::u16string sC = RandomNumberWithStretches(random, nSize);
        Trusted a(sA);
        Trusted b(sB);
        Trusted c(sC);
        Trusted result;
        mpz_powm(result.Get(), a.Get(), b.Get(), c.Get());
        EXPECT_EQ(Large::StrPowMod(sA, sB, sC), result.Text());
    }
}

TEST(LargeNumberAgainstGmp, BooleanOperationsOnHexadecimalDigits) {
    std::mt19937_64 random(2008);
    for (int iRound = 0; iRound < 100; ++iRound) {
        SCOPED_TRACE(iRound);
        Trusted a(RandomNumberWithStretches(random, 1 + random() % 2000));
        Trusted b(RandomNumberWithStretches(random, 1 + random() % 2000));
        Trusted result;
        const std::u16string sA = a.Text(-16);
        const std::u16string sB = b.Text(-16);
        mpz_xor(result.Get(), a.Get(), b.Get());
        EXPECT_EQ(Large::BooleanOperation(sA, sB, u"XOR"), result.Text(-16));
        mpz_and(result.Get(), a.Get(), b.Get());
        EXPECT_EQ(Large::BooleanOperation(sA, sB, u"AND"), result.Text(-16));
        mpz_ior(result.Get(), a.Get(), b.Get());
        EXPECT_EQ(Large::BooleanOperation(sA, sB, u"OR"), result.Text(-16));
        // Every digit flipped: what is missing to sixteen to the power of the length, less one.
        mpz_ui_pow_ui(result.Get(), 16, std::max(sA.size(), sB.size()));
        mpz_sub_ui(result.Get(), result.Get(), 1);
        mpz_sub(result.Get(), result.Get(), a.Get());
        EXPECT_EQ(Large::BooleanOperation(sA, sB, u"NOT"), result.Text(-16));
    }
}

} // namespace
} // namespace orvanta
