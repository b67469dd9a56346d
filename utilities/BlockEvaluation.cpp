#include "utilities/BlockArithmetic.h"

#include <utility>

namespace orvanta {
namespace {

// Up to this many coefficients, one multiplication by x for each is the shorter way.
constexpr std::size_t kLeaf = 8;

} // namespace

Blocks BlockArithmetic::Evaluate(BlockSpan coefficients, std::uint64_t x) const {
    coefficients = TrimmedBlocks(coefficients);
    if (coefficients.size() <= kLeaf) return EvaluateDirectly(coefficients, x);
    Blocks power = FromNumber(1);
    for (std::size_t i = 0; i < kLeaf; ++i)
        power = Multiply(power, FromNumber(x));
    return EvaluateFromLeaves(coefficients, x, kLeaf, std::move(power));
}

Blocks BlockArithmetic::Evaluate(BlockSpan coefficients, const Blocks& x) const {
    // A leaf of one coefficient is never multiplied by x.
    return EvaluateFromLeaves(TrimmedBlocks(coefficients), 0, 1, x);
}

Blocks BlockArithmetic::EvaluateFromLeaves(BlockSpan coefficients, std::uint64_t x, std::size_t nLeaf,
                                           Blocks power) const {
    std::vector<Blocks> powers;
    for (std::size_t n = nLeaf; n < coefficients.size(); n *= 2) {
        if (!powers.empty()) power = Multiply(power, power);
        powers.push_back(power);
    }
    return EvaluateHalves(coefficients, x, nLeaf, powers);
}

// powers[i] is x^(nLeaf * 2^i); the coefficients are no more than twice as many as the exponent of the last power.
Blocks BlockArithmetic::EvaluateHalves(BlockSpan coefficients, std::uint64_t x, std::size_t nLeaf,
                                       std::span<const Blocks> powers) const {
    if (powers.empty()) return EvaluateDirectly(coefficients, x);
    const std::size_t nLower = nLeaf << (powers.size() - 1);
    const auto rest = powers.first(powers.size() - 1);
    if (coefficients.size() <= nLower) return EvaluateHalves(coefficients, x, nLeaf, rest);
    const Blocks upper = EvaluateHalves(coefficients.subspan(nLower), x, nLeaf, rest);
    return Add(Multiply(upper, powers.back()), EvaluateHalves(coefficients.first(nLower), x, nLeaf, rest));
}

Blocks BlockArithmetic::EvaluateDirectly(BlockSpan coefficients, std::uint64_t x) const {
    Blocks value;
    value.reserve(coefficients.size() + 1);
    for (std::size_t i = coefficients.size(); i-- > 0;) {
        Block nCarry = MultiplyInPlace(value.data(), value.size(), x, coefficients[i]);
        for (; nCarry != 0; nCarry /= Radix())
            value.push_back(nCarry % Radix());
    }
    return value;
}

} // namespace orvanta
