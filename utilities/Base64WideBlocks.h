#pragma once

#include <cstddef>
#include <cstdint>

namespace orvanta {

// Base64 with the vector instructions of the processor, 16 bytes at a time. Each function does what it can at the front
// of its input and leaves the rest to the caller: it never reads or writes outside the lengths given. Where the
// processor has no such instructions, CanUseWideBlocks says so and nothing is done.

bool CanUseWideBlocks();

// Encodes a whole number of three-byte groups. pOut has room for 4 characters for each of them, and 4 more for the
// rest. Returns the bytes of the input that were taken.
std::size_t EncodeWideBlocks(const std::uint8_t* pIn, std::size_t nIn, std::uint8_t* pOut);

// Decodes a whole number of four-character groups, up to the first character outside the alphabet. pOut has room for
// nIn bytes and may be pIn. Returns the characters that were taken.
std::size_t DecodeWideBlocks(const std::uint8_t* pIn, std::size_t nIn, std::uint8_t* pOut);

// Copies all but CR, LF, blanks and tabs, and stops before a block with a byte above 127. pOut has room for nIn bytes
// and does not overlap pIn.
struct StrippedBlocks {
    std::size_t nTaken;
    std::size_t nWritten;
};
StrippedBlocks StripWideBlocks(const std::uint8_t* pIn, std::size_t nIn, std::uint8_t* pOut);

constexpr bool IsBase64Space(std::uint8_t c) {
    return c == '\r' || c == '\n' || c == ' ' || c == '\t';
}

} // namespace orvanta
