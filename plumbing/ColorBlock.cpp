#include "plumbing/ColorBlock.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace orvanta {

namespace {

constexpr int kTrueColorBits = 24;

// The platform keeps red and blue the other way round in memory than in a colour value.
std::uint32_t PixelOf(OleColor plain) {
    const auto c = static_cast<std::uint32_t>(plain);
    return (c & 0xFF) << 16 | (c & 0xFF00) | (c >> 16 & 0xFF);
}

void PutBlock(HDC hdc, int x, int y, int width, int height, const std::vector<std::uint32_t>& pixels) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height; // the first row on top
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    SetDIBitsToDevice(hdc, x, y, static_cast<DWORD>(width), static_cast<DWORD>(height), 0, 0, 0,
                      static_cast<UINT>(height), pixels.data(), &info, DIB_RGB_COLORS);
}

bool HasTrueColors(HDC hdc) {
    switch (GetObjectType(hdc)) {
    case OBJ_MEMDC: {
        BITMAP bitmap{};
        GetObjectW(GetCurrentObject(hdc, OBJ_BITMAP), sizeof bitmap, &bitmap);
        return bitmap.bmBitsPixel >= kTrueColorBits;
    }
    case OBJ_DC:
        return GetDeviceCaps(hdc, TECHNOLOGY) == DT_RASDISPLAY && GetDeviceCaps(hdc, BITSPIXEL) >= kTrueColorBits;
    default: return false;
    }
}

} // namespace

bool TakesColorBlocks(HDC hdc) {
    return GetMapMode(hdc) == MM_TEXT && GetGraphicsMode(hdc) == GM_COMPATIBLE && GetROP2(hdc) == R2_COPYPEN &&
           GetLayout(hdc) == 0 && HasTrueColors(hdc);
}

void PutColorRows(HDC hdc, int x, int y, int width, const std::vector<OleColor>& colors) {
    const auto nWidth = static_cast<std::size_t>(width);
    std::vector<std::uint32_t> pixels(nWidth * colors.size());
    auto row = pixels.begin();
    for (const OleColor c : colors) {
        std::fill_n(row, nWidth, PixelOf(c));
        row += width;
    }
    PutBlock(hdc, x, y, width, static_cast<int>(colors.size()), pixels);
}

void PutColorColumns(HDC hdc, int x, int y, int height, const std::vector<OleColor>& colors) {
    std::vector<std::uint32_t> pixels;
    pixels.reserve(colors.size() * static_cast<std::size_t>(height));
    for (const OleColor c : colors)
        pixels.push_back(PixelOf(c));
    const std::size_t nWidth = pixels.size();
    pixels.resize(nWidth * static_cast<std::size_t>(height));
    for (int i = 1; i < height; ++i)
        std::copy_n(pixels.begin(), nWidth, pixels.begin() + i * static_cast<std::ptrdiff_t>(nWidth));
    PutBlock(hdc, x, y, static_cast<int>(nWidth), height, pixels);
}

} // namespace orvanta
