#pragma once

#include <cmath>
#include <cstdint>
#include <vector>

// Keyed and greyed pictures in their plain form: one pixel after the other, every grey worked out from fractions.
namespace orvanta::reference {

struct PlainPicture {
    int width, height;
    std::vector<std::uint8_t> bytes; // four to a pixel, rows bottom up

    std::uint8_t& At(int c, int x, int row) { return bytes[static_cast<std::size_t>((row * width + x) * 4 + c)]; }
};

inline int PlainWashed(int v) {
    return static_cast<int>(std::nearbyint(0.3 * v + 134.4));
}

inline int PlainGrey(int red, int green, int blue) {
    return static_cast<int>(
        std::nearbyint(0.3 * PlainWashed(red) + 0.59 * PlainWashed(green) + 0.11 * PlainWashed(blue)));
}

// width and height as the caller gave them; key -1 for none.
inline void PlainOverlap(PlainPicture& target, PlainPicture& source, int width, int height, std::int64_t key,
                         bool disabled) {
    int w = width < 0 ? source.width : (width < source.width ? width : source.width);
    int h = height < 0 ? source.height : (height < source.height ? height : source.height);
    if (w > target.width) w = target.width;
    if (h > target.height) h = target.height;
    const int ox = (target.width - w) / 2, oy = (target.height - h) / 2, s = source.height - h;
    for (int i = 0; i < w; ++i) {
        for (int j = 0; j < h; ++j) {
            int blue = source.At(0, i, s + j), green = source.At(1, i, s + j), red = source.At(2, i, s + j);
            if (key >= 0 && red + 256 * green + 65536 * blue == key) continue;
            if (disabled) red = green = blue = PlainGrey(red, green, blue);
            target.At(0, ox + i, oy + j) = static_cast<std::uint8_t>(blue);
            target.At(1, ox + i, oy + j) = static_cast<std::uint8_t>(green);
            target.At(2, ox + i, oy + j) = static_cast<std::uint8_t>(red);
        }
    }
}

} // namespace orvanta::reference
