#pragma once

#include <bit>
#include <cstdint>
#include <cstring>

namespace orvanta {

// Eight decimal digits in one 64-bit word, a byte each, the first (most significant) digit in the lowest byte. Eight
// digits of a string are then read, tested, turned into a number or written in a few operations.

static_assert(std::endian::native == std::endian::little, "digit words are loaded from memory as they stand");

inline constexpr std::uint64_t kDigitsFlaw = 0x8000800080008000u;

// Reads eight digits. Where one of the characters is no digit, bits of kDigitsFlaw are set in nFlaw and the word is
// meaningless.
inline std::uint64_t LoadEightDigits(const char16_t* p, std::uint64_t& nFlaw) {
    constexpr std::uint64_t kZeros = 0x0030003000300030u;
    constexpr std::uint64_t kToTopBit = 0x7FF67FF67FF67FF6u; // lifts 10 and more to the top bit of its 16
    std::uint64_t nFirst = 0;
    std::uint64_t nLast = 0;
    std::memcpy(&nFirst, p, sizeof nFirst);
    std::memcpy(&nLast, p + 4, sizeof nLast);
    nFirst ^= kZeros;
    nLast ^= kZeros;
    nFlaw |= (nFirst | (nFirst + kToTopBit) | nLast | (nLast + kToTopBit)) & kDigitsFlaw;
    nFirst = (nFirst | nFirst >> 8) & 0x0000FFFF0000FFFFu;
    nLast = (nLast | nLast >> 8) & 0x0000FFFF0000FFFFu;
    nFirst = (nFirst | nFirst >> 16) & 0xFFFFFFFFu;
    nLast = nLast | nLast >> 16;
    return nFirst | nLast << 32;
}

// Writes the eight digits of a word.
inline void StoreEightDigits(char16_t* p, std::uint64_t nWord) {
    constexpr std::uint64_t kZeros = 0x0030003000300030u;
    std::uint64_t nFirst = nWord & 0xFFFFFFFFu;
    std::uint64_t nLast = nWord >> 32;
    nFirst = (nFirst | nFirst << 16) & 0x0000FFFF0000FFFFu;
    nLast = (nLast | nLast << 16) & 0x0000FFFF0000FFFFu;
    nFirst = ((nFirst | nFirst << 8) & 0x00FF00FF00FF00FFu) | kZeros;
    nLast = ((nLast | nLast << 8) & 0x00FF00FF00FF00FFu) | kZeros;
    std::memcpy(p, &nFirst, sizeof nFirst);
    std::memcpy(p + 4, &nLast, sizeof nLast);
}

// The number that a word's digits stand for, below 10^8.
constexpr std::uint64_t NumberOfDigits(std::uint64_t nWord) {
    nWord = (nWord * 10 + (nWord >> 8)) & 0x00FF00FF00FF00FFu;
    nWord = (nWord * 100 + (nWord >> 16)) & 0x0000FFFF0000FFFFu;
    return (nWord * 10000 + (nWord >> 32)) & 0xFFFFFFFFu;
}

// The digits of a number below 10^8.
constexpr std::uint64_t DigitsOfNumber(std::uint64_t n) {
    // Halves, quarters, digits: in each step all parts are divided at once, by multiplication.
    const std::uint64_t nHalves = n / 10000 | (n % 10000) << 32;
    const std::uint64_t nHundreds = (nHalves * 10486 >> 20) & 0x0000007F0000007Fu;
    const std::uint64_t nQuarters = nHundreds | (nHalves - nHundreds * 100) << 16;
    const std::uint64_t nTens = (nQuarters * 103 >> 10) & 0x000F000F000F000Fu;
    return nTens | (nQuarters - nTens * 10) << 8;
}

constexpr std::uint64_t ReverseBytes(std::uint64_t n) {
    n = (n & 0x00FF00FF00FF00FFu) << 8 | (n >> 8 & 0x00FF00FF00FF00FFu);
    n = (n & 0x0000FFFF0000FFFFu) << 16 | (n >> 16 & 0x0000FFFF0000FFFFu);
    return n << 32 | n >> 32;
}

// Sum and difference work on reversed words (the least significant digit in the lowest byte), so that a carry runs
// through the digits by itself. bCarry comes in from the digits before and goes out to the next.
constexpr std::uint64_t PullDigitsBackToTen(std::uint64_t n) {
    const std::uint64_t nHigh = n & 0x8080808080808080u;
    return n - (nHigh >> 7) * 0xF6;
}

constexpr std::uint64_t AddReversedDigits(std::uint64_t a, std::uint64_t b, bool& bCarry) {
    // With 246 on top, a digit sum of ten or more leaves its byte.
    const std::uint64_t nWithoutCarry = a + (b + 0xF6F6F6F6F6F6F6F6u);
    const std::uint64_t nSum = nWithoutCarry + bCarry;
    bCarry = nWithoutCarry < a || nSum < nWithoutCarry;
    return PullDigitsBackToTen(nSum);
}

constexpr std::uint64_t SubtractReversedDigits(std::uint64_t a, std::uint64_t b, bool& bBorrow) {
    const std::uint64_t nDifference = a - b - bBorrow;
    bBorrow = a < b || (a == b && bBorrow);
    return PullDigitsBackToTen(nDifference);
}

} // namespace orvanta
