#pragma once

#include "utilities/WideArithmetic.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace orvanta {

// A non-negative integer as blocks of some radix, the least significant first and no zero block at the top. Zero has no
// block.
using Blocks = std::vector<std::uint64_t>;
// The same by view. Where a view is taken, zero blocks at the top are allowed.
using BlockSpan = std::span<const std::uint64_t>;

// Arithmetic on blocks of one radix, from 2 to 2^60. With a radix that is a power of ten, digits go in and out without
// a conversion, which is why numbers stay in that form here.
class BlockArithmetic {
public:
    static constexpr std::uint64_t kLargestRadix = std::uint64_t{1} << 60;

    constexpr explicit BlockArithmetic(std::uint64_t nRadix) : m_radix(nRadix) {}

    std::uint64_t Radix() const { return m_radix.Value(); }

    Blocks FromNumber(std::uint64_t n) const;
    Blocks Add(BlockSpan a, BlockSpan b) const;
    Blocks Multiply(BlockSpan a, BlockSpan b) const;
    Blocks Power(BlockSpan a, std::uint32_t nExponent) const;

    struct Division {
        Blocks quotient;
        Blocks remainder;
    };
    // b must not be zero.
    Division Divide(BlockSpan a, BlockSpan b) const;

    // The sum of coefficients[i] * x^i. Each coefficient, and an x that is given as a number, is below 2^60, whatever
    // the radix. This is how a number moves from one radix (x) to another (this one).
    Blocks Evaluate(BlockSpan coefficients, std::uint64_t x) const;
    Blocks Evaluate(BlockSpan coefficients, const Blocks& x) const;

private:
    using Block = std::uint64_t;

    Block AddInto(Block* pSum, std::size_t nSum, const Block* p, std::size_t n) const;
    Block SubtractFrom(Block* pDifference, std::size_t nDifference, const Block* p, std::size_t n) const;
    Block MultiplyInPlace(Block* p, std::size_t n, Block nFactor, Block nCarry) const;
    Block SubtractMultiple(Block* pFrom, const Block* p, std::size_t n, Block nFactor) const;
    bool AbsoluteDifference(Block* pOut, const Block* a, std::size_t na, const Block* b, std::size_t nb) const;

    void MultiplyInto(Block* pOut, const Block* a, std::size_t na, const Block* b, std::size_t nb, Block* pWork) const;
    void MultiplyColumns(Block* pOut, const Block* a, std::size_t na, const Block* b, std::size_t nb) const;
    void MultiplyHalves(Block* pOut, const Block* a, std::size_t na, const Block* b, std::size_t nb,
                        Block* pWork) const;

    void DivideBlocks(Block* pQuotient, std::size_t nQuotient, Block* a, const Block* b, std::size_t nb) const;
    void DivideByRows(Block* pQuotient, std::size_t nQuotient, Block* a, const Block* b, std::size_t nb) const;
    void DivideByUpperPart(Block* pQuotient, std::size_t nQuotient, Block* a, const Block* b, std::size_t nb) const;
    Blocks DivideBySmall(BlockSpan a, Block nDivisor, Block& nRest) const;

    Blocks EvaluateDirectly(BlockSpan coefficients, std::uint64_t x) const;
    Blocks EvaluateHalves(BlockSpan coefficients, std::uint64_t x, std::size_t nLeaf,
                          std::span<const Blocks> powers) const;
    Blocks EvaluateFromLeaves(BlockSpan coefficients, std::uint64_t x, std::size_t nLeaf, Blocks power) const;

    Divisor m_radix;
};

// Takes the zero blocks off the top.
void TrimBlocks(Blocks& blocks);
BlockSpan TrimmedBlocks(BlockSpan blocks);

} // namespace orvanta
