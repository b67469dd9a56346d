#pragma once

#include <cstddef>
#include <cstdint>

namespace orvanta {

// Bytes of a picture that somebody else owns. Rows lie bottom up: row 0 is the bottom of the image. A pixel has blue,
// green, red, and with 32 bits a fourth byte that means nothing.
struct PixelBits {
    std::uint8_t* bits = nullptr; // the first byte of row 0
    std::int32_t width = 0;       // pixels
    std::int32_t height = 0;      // rows
    std::size_t bytesPerScanLine = 0;

    std::uint8_t* Row(std::int32_t row) const { return bits + static_cast<std::size_t>(row) * bytesPerScanLine; }
};

} // namespace orvanta
