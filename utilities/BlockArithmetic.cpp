#include "utilities/BlockArithmetic.h"

#include <algorithm>

namespace orvanta {
namespace {

// Below this many blocks, products are summed column by column. A column then has so few products that its sum stays
// below 2^127 (each is below 2^120).
constexpr std::size_t kColumnsLimit = 40;

// Work space of MultiplyInto for operands of up to n blocks.
constexpr std::size_t WorkSize(std::size_t n) {
    return 6 * n + 512;
}

} // namespace

void TrimBlocks(Blocks& blocks) {
    blocks.resize(TrimmedBlocks(blocks).size());
}

BlockSpan TrimmedBlocks(BlockSpan blocks) {
    while (!blocks.empty() && blocks.back() == 0)
        blocks = blocks.first(blocks.size() - 1);
    return blocks;
}

Blocks BlockArithmetic::FromNumber(std::uint64_t n) const {
    Blocks blocks;
    for (; n != 0; n /= Radix())
        blocks.push_back(n % Radix());
    return blocks;
}

Blocks BlockArithmetic::Add(BlockSpan a, BlockSpan b) const {
    a = TrimmedBlocks(a);
    b = TrimmedBlocks(b);
    if (a.size() < b.size()) std::swap(a, b);
    Blocks sum(a.begin(), a.end());
    const Block nCarry = AddInto(sum.data(), sum.size(), b.data(), b.size());
    if (nCarry != 0) sum.push_back(nCarry);
    return sum;
}

Blocks BlockArithmetic::Multiply(BlockSpan a, BlockSpan b) const {
    a = TrimmedBlocks(a);
    b = TrimmedBlocks(b);
    if (a.empty() || b.empty()) return {};
    Blocks product(a.size() + b.size());
    Blocks work;
    if (std::min(a.size(), b.size()) >= kColumnsLimit) work.resize(WorkSize(std::max(a.size(), b.size())));
    MultiplyInto(product.data(), a.data(), a.size(), b.data(), b.size(), work.data());
    TrimBlocks(product);
    return product;
}

Blocks BlockArithmetic::Power(BlockSpan a, std::uint32_t nExponent) const {
    Blocks power = FromNumber(1);
    for (int iBit = static_cast<int>(std::bit_width(nExponent)) - 1; iBit >= 0; --iBit) {
        power = Multiply(power, power);
        if ((nExponent >> iBit & 1) != 0) power = Multiply(power, a);
    }
    return power;
}

// pSum += p, nSum >= n. Returns the carry out of pSum.
BlockArithmetic::Block BlockArithmetic::AddInto(Block* pSum, std::size_t nSum, const Block* p, std::size_t n) const {
    const Block nRadix = Radix();
    Block nCarry = 0;
    for (std::size_t i = 0; i < n; ++i) {
        const Block nBlock = pSum[i] + p[i] + nCarry;
        nCarry = nBlock >= nRadix;
        pSum[i] = nCarry != 0 ? nBlock - nRadix : nBlock;
    }
    for (std::size_t i = n; i < nSum && nCarry != 0; ++i) {
        nCarry = pSum[i] + 1 == nRadix;
        pSum[i] = nCarry != 0 ? 0 : pSum[i] + 1;
    }
    return nCarry;
}

// pDifference -= p, nDifference >= n. Returns the borrow.
BlockArithmetic::Block BlockArithmetic::SubtractFrom(Block* pDifference, std::size_t nDifference, const Block* p,
                                                     std::size_t n) const {
    const Block nRadix = Radix();
    Block nBorrow = 0;
    for (std::size_t i = 0; i < n; ++i) {
        const Block nTaken = p[i] + nBorrow;
        nBorrow = pDifference[i] < nTaken;
        pDifference[i] = pDifference[i] - nTaken + (nBorrow != 0 ? nRadix : 0);
    }
    for (std::size_t i = n; i < nDifference && nBorrow != 0; ++i) {
        nBorrow = pDifference[i] == 0;
        pDifference[i] = nBorrow != 0 ? nRadix - 1 : pDifference[i] - 1;
    }
    return nBorrow;
}

// p = p * nFactor + nCarry, nFactor up to 2^60. Returns what goes beyond the top block, which may be more than one
// block holds.
BlockArithmetic::Block BlockArithmetic::MultiplyInPlace(Block* p, std::size_t n, Block nFactor, Block nCarry) const {
    for (std::size_t i = 0; i < n; ++i) {
        Wide wide(0, nCarry);
        wide.AddProduct(p[i], nFactor);
        const auto [nQuotient, nRemainder] = m_radix.Divide(wide.High(), wide.Low());
        p[i] = nRemainder;
        nCarry = nQuotient;
    }
    return nCarry;
}

// pOut = |a - b| in na blocks, na >= nb. Returns whether a < b.
bool BlockArithmetic::AbsoluteDifference(Block* pOut, const Block* a, std::size_t na, const Block* b,
                                         std::size_t nb) const {
    std::copy_n(a, na, pOut);
    if (SubtractFrom(pOut, na, b, nb) == 0) return false;
    // The borrow left radix^na - |a - b|: take the complement.
    const Block nRadix = Radix();
    Block nBorrow = 0;
    for (std::size_t i = 0; i < na; ++i) {
        const Block nTaken = pOut[i] + nBorrow;
        nBorrow = nTaken != 0;
        pOut[i] = nBorrow != 0 ? nRadix - nTaken : 0;
    }
    return true;
}

// pOut = a * b in na + nb blocks.
void BlockArithmetic::MultiplyInto(Block* pOut, const Block* a, std::size_t na, const Block* b, std::size_t nb,
                                   Block* pWork) const {
    if (na < nb) {
        std::swap(a, b);
        std::swap(na, nb);
    }
    if (nb < kColumnsLimit) return MultiplyColumns(pOut, a, na, b, nb);
    if (nb > (na + 1) / 2) return MultiplyHalves(pOut, a, na, b, nb, pWork);
    // One operand is much longer: take it in pieces of the other's length.
    std::fill_n(pOut, na + nb, Block{0});
    for (std::size_t nFirst = 0; nFirst < na; nFirst += nb) {
        const std::size_t nPiece = std::min(nb, na - nFirst);
        MultiplyInto(pWork, a + nFirst, nPiece, b, nb, pWork + nPiece + nb);
        AddInto(pOut + nFirst, na + nb - nFirst, pWork, nPiece + nb);
    }
}

// Each column of the product is summed in full before it is brought back to one block: one division for a column.
void BlockArithmetic::MultiplyColumns(Block* pOut, const Block* a, std::size_t na, const Block* b,
                                      std::size_t nb) const {
    const Block nRadix = Radix();
    Wide sum;
    for (std::size_t nColumn = 0; nColumn < na + nb - 1; ++nColumn) {
        const std::size_t nFirst = nColumn < nb ? 0 : nColumn - nb + 1;
        const std::size_t nLast = std::min(nColumn, na - 1);
        const Block* pB = b + nColumn;
        for (std::size_t i = nFirst; i <= nLast; ++i)
            sum.AddProduct(a[i], *(pB - i));
        Block nHigh = sum.High();
        Block nCarryHigh = 0;
        for (; nHigh >= nRadix; nHigh -= nRadix)
            ++nCarryHigh; // a few times at most: the sum is far below 2^128
        const auto [nQuotient, nRemainder] = m_radix.Divide(nHigh, sum.Low());
        pOut[nColumn] = nRemainder;
        sum = Wide(nCarryHigh, nQuotient);
    }
    pOut[na + nb - 1] = sum.Low();
}

// Three products of half the length instead of four: with a = a1 x + a0 and b = b1 x + b0 the middle of the product is
// a1 b1 + a0 b0 - (a1 - a0)(b1 - b0). Needs na >= nb > half of na.
void BlockArithmetic::MultiplyHalves(Block* pOut, const Block* a, std::size_t na, const Block* b, std::size_t nb,
                                     Block* pWork) const {
    const std::size_t nHalf = (na + 1) / 2;
    const std::size_t nHigh = na + nb - 2 * nHalf;
    Block* pMiddle = pWork;
    Block* pCross = pWork + 2 * nHalf;
    pWork += 4 * nHalf;

    const bool bA = AbsoluteDifference(pMiddle, a, nHalf, a + nHalf, na - nHalf);
    const bool bB = AbsoluteDifference(pMiddle + nHalf, b, nHalf, b + nHalf, nb - nHalf);
    MultiplyInto(pCross, pMiddle, nHalf, pMiddle + nHalf, nHalf, pWork);
    MultiplyInto(pOut, a, nHalf, b, nHalf, pWork);
    MultiplyInto(pOut + 2 * nHalf, a + nHalf, na - nHalf, b + nHalf, nb - nHalf, pWork);

    std::copy_n(pOut, 2 * nHalf, pMiddle);
    Block nCarry = AddInto(pMiddle, 2 * nHalf, pOut + 2 * nHalf, nHigh);
    if (bA == bB) {
        nCarry -= SubtractFrom(pMiddle, 2 * nHalf, pCross, 2 * nHalf);
    } else {
        nCarry += AddInto(pMiddle, 2 * nHalf, pCross, 2 * nHalf);
    }
    AddInto(pOut + nHalf, na + nb - nHalf, pMiddle, std::min(2 * nHalf, na + nb - nHalf));
    if (nCarry != 0) AddInto(pOut + 3 * nHalf, na + nb - 3 * nHalf, &nCarry, 1);
}

} // namespace orvanta
