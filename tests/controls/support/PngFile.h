#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <fstream>
#include <string>
#include <vector>

namespace orvanta::testing {

// Writes a picture (0x00BBGGRR, rows from the top) as an uncompressed PNG file, to be looked at.
inline void WritePng(const std::string& sPath, const std::vector<std::int32_t>& pixels, int width, int height) {
    using Bytes = std::vector<std::uint8_t>;
    const auto put32 = [](Bytes& to, std::uint32_t n) {
        for (int shift = 24; shift >= 0; shift -= 8)
            to.push_back(static_cast<std::uint8_t>(n >> shift));
    };
    const auto crcOf = [](const Bytes& bytes) {
        std::uint32_t crc = 0xFFFFFFFFu;
        for (const std::uint8_t byte : bytes) {
            crc ^= byte;
            for (int bit = 0; bit < 8; ++bit)
                crc = crc >> 1 ^ ((crc & 1) != 0 ? 0xEDB88320u : 0);
        }
        return ~crc;
    };
    Bytes raw;
    for (int y = 0; y < height; ++y) {
        raw.push_back(0);
        for (int x = 0; x < width; ++x) {
            const std::int32_t c =
                pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x)];
            for (const int shift : {0, 8, 16})
                raw.push_back(static_cast<std::uint8_t>(c >> shift));
        }
    }
    Bytes packed{0x78, 0x01};
    std::uint32_t a = 1;
    std::uint32_t b = 0;
    for (const std::uint8_t byte : raw) {
        a = (a + byte) % 65521;
        b = (b + a) % 65521;
    }
    for (std::size_t n = 0; n < raw.size();) {
        const std::size_t nBlock = raw.size() - n < 65535 ? raw.size() - n : 65535;
        packed.push_back(n + nBlock == raw.size() ? 1 : 0);
        for (const std::size_t size : {nBlock, nBlock ^ 0xFFFF}) {
            packed.push_back(static_cast<std::uint8_t>(size));
            packed.push_back(static_cast<std::uint8_t>(size >> 8));
        }
        packed.insert(packed.end(), raw.begin() + static_cast<std::ptrdiff_t>(n),
                      raw.begin() + static_cast<std::ptrdiff_t>(n + nBlock));
        n += nBlock;
    }
    put32(packed, b << 16 | a);

    Bytes file{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
    const auto chunk = [&](const char* sName, const Bytes& content) {
        put32(file, static_cast<std::uint32_t>(content.size()));
        Bytes body(sName, sName + 4);
        body.insert(body.end(), content.begin(), content.end());
        file.insert(file.end(), body.begin(), body.end());
        put32(file, crcOf(body));
    };
    Bytes header;
    put32(header, static_cast<std::uint32_t>(width));
    put32(header, static_cast<std::uint32_t>(height));
    header.insert(header.end(), {8, 2, 0, 0, 0});
    chunk("IHDR", header);
    chunk("IDAT", packed);
    chunk("IEND", {});
    std::ofstream(sPath, std::ios::binary)
        .write(reinterpret_cast<const char*>(file.data()), static_cast<std::streamsize>(file.size()));
}

} // namespace orvanta::testing
