#include "utilities/BlockArithmetic.h"

#include <algorithm>

namespace orvanta {
namespace {

// Below this many quotient blocks the rows of the school method are the shorter way.
constexpr std::size_t kRowsLimit = 48;

bool IsBelow(const std::uint64_t* a, const std::uint64_t* b, std::size_t n) {
    for (std::size_t i = n; i-- > 0;) {
        if (a[i] != b[i]) return a[i] < b[i];
    }
    return false;
}

} // namespace

BlockArithmetic::Division BlockArithmetic::Divide(BlockSpan a, BlockSpan b) const {
    a = TrimmedBlocks(a);
    b = TrimmedBlocks(b);
    if (a.size() < b.size()) return {{}, Blocks(a.begin(), a.end())};
    if (b.size() == 1) {
        Block nRest = 0;
        Blocks quotient = DivideBySmall(a, b.front(), nRest);
        return {std::move(quotient), FromNumber(nRest)};
    }

    // Both are scaled so that the divisor's top block is at least about half of the radix; the quotient stays the same.
    const Block nScale = Radix() / (b.back() + 1);
    Blocks divisor(b.begin(), b.end());
    MultiplyInPlace(divisor.data(), divisor.size(), nScale, 0);
    Blocks rest(a.begin(), a.end());
    rest.push_back(MultiplyInPlace(rest.data(), rest.size(), nScale, 0));

    Blocks quotient(a.size() - b.size() + 1);
    DivideBlocks(quotient.data(), quotient.size(), rest.data(), divisor.data(), divisor.size());
    TrimBlocks(quotient);
    Block nNothing = 0;
    return {std::move(quotient), DivideBySmall(TrimmedBlocks(rest), nScale, nNothing)};
}

Blocks BlockArithmetic::DivideBySmall(BlockSpan a, Block nDivisor, Block& nRest) const {
    const Divisor divisor(nDivisor);
    Blocks quotient(a.size());
    nRest = 0;
    for (std::size_t i = a.size(); i-- > 0;) {
        Wide wide(0, a[i]);
        wide.AddProduct(nRest, Radix());
        const auto [nQuotient, nRemainder] = divisor.Divide(wide.High(), wide.Low());
        quotient[i] = nQuotient;
        nRest = nRemainder;
    }
    TrimBlocks(quotient);
    return quotient;
}

// pFrom -= p * nFactor over n blocks. Returns what is still to be taken from the block above.
BlockArithmetic::Block BlockArithmetic::SubtractMultiple(Block* pFrom, const Block* p, std::size_t n,
                                                         Block nFactor) const {
    const Block nRadix = Radix();
    Block nCarry = 0;
    for (std::size_t i = 0; i < n; ++i) {
        Wide wide(0, nCarry);
        wide.AddProduct(p[i], nFactor);
        const auto [nQuotient, nRemainder] = m_radix.Divide(wide.High(), wide.Low());
        const bool bBorrow = pFrom[i] < nRemainder;
        pFrom[i] = pFrom[i] - nRemainder + (bBorrow ? nRadix : 0);
        nCarry = nQuotient + bBorrow;
    }
    return nCarry;
}

// Divides the nb + nQuotient blocks of a by the nb blocks of b, two at least, and leaves the remainder in a. The
// divisor is scaled, and the upper nb blocks of a are below it, so that the quotient fits.
void BlockArithmetic::DivideBlocks(Block* pQuotient, std::size_t nQuotient, Block* a, const Block* b,
                                   std::size_t nb) const {
    if (nQuotient < kRowsLimit || nb < kRowsLimit) {
        DivideByRows(pQuotient, nQuotient, a, b, nb);
    } else if (nQuotient < nb) {
        DivideByUpperPart(pQuotient, nQuotient, a, b, nb);
    } else {
        // The upper part of the quotient first; the rest of that division goes on as the top of the lower one.
        const std::size_t nLower = nQuotient >= 2 * nb ? nQuotient - nb : nQuotient / 2;
        DivideBlocks(pQuotient + nLower, nQuotient - nLower, a + nLower, b, nb);
        DivideBlocks(pQuotient, nLower, a, b, nb);
    }
}

// The school method: one quotient block at a time, guessed from the top three blocks.
void BlockArithmetic::DivideByRows(Block* pQuotient, std::size_t nQuotient, Block* a, const Block* b,
                                   std::size_t nb) const {
    const Block nRadix = Radix();
    const Block nTop = b[nb - 1];
    const Divisor top(nTop);
    for (std::size_t iRow = nQuotient; iRow-- > 0;) {
        Block* pRow = a + iRow;
        Block nGuess = nRadix - 1;
        Block nOver = pRow[nb - 1] + nTop; // the rest of the guess, if the guess is the largest block
        if (pRow[nb] < nTop) {
            Wide upper(0, pRow[nb - 1]);
            upper.AddProduct(pRow[nb], nRadix);
            const auto [nQuotientBlock, nRemainder] = top.Divide(upper.High(), upper.Low());
            nGuess = nQuotientBlock;
            nOver = nRemainder;
        }
        // The second block of the divisor tells nearly every guess that is too high.
        while (nOver < nRadix) {
            Wide taken;
            taken.AddProduct(nGuess, b[nb - 2]);
            Wide left(0, pRow[nb - 2]);
            left.AddProduct(nOver, nRadix);
            if (taken.High() < left.High() || (taken.High() == left.High() && taken.Low() <= left.Low())) break;
            --nGuess;
            nOver += nTop;
        }
        const Block nTaken = SubtractMultiple(pRow, b, nb, nGuess);
        if (pRow[nb] < nTaken) {
            --nGuess;
            AddInto(pRow, nb, b, nb);
        }
        pRow[nb] = 0;
        pQuotient[iRow] = nGuess;
    }
}

// A quotient shorter than the divisor: divide by as many upper blocks as the quotient has, then take away what the
// lower blocks of the divisor add. The quotient is at most two too high before that.
void BlockArithmetic::DivideByUpperPart(Block* pQuotient, std::size_t nQuotient, Block* a, const Block* b,
                                        std::size_t nb) const {
    const std::size_t nLower = nb - nQuotient;
    Block* pUpper = a + nLower;
    const Block* pDivisor = b + nLower;
    if (IsBelow(pUpper + nQuotient, pDivisor, nQuotient)) {
        DivideBlocks(pQuotient, nQuotient, pUpper, pDivisor, nQuotient);
    } else {
        // Equal: the largest quotient, radix^n - 1.
        std::fill_n(pQuotient, nQuotient, Radix() - 1);
        std::fill_n(pUpper + nQuotient, nQuotient, Block{0});
        AddInto(pUpper, 2 * nQuotient, pDivisor, nQuotient);
    }
    const Blocks taken = Multiply({pQuotient, nQuotient}, {b, nLower});
    Block nBorrow = SubtractFrom(a, nb + nQuotient, taken.data(), taken.size());
    const Block nOne = 1;
    while (nBorrow != 0) {
        SubtractFrom(pQuotient, nQuotient, &nOne, 1);
        nBorrow -= AddInto(a, nb + nQuotient, b, nb);
    }
}

} // namespace orvanta
