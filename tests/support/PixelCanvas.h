#pragma once

#include "plumbing/GdiOwner.h"
#include "plumbing/SharedColors.h"

#include <windows.h>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace orvanta::testing {

// A picture in memory of 32 bits a pixel with a device context to draw on. Its pixels are read as plain colours.
class PixelCanvas {
public:
    PixelCanvas(int width, int height, OleColor c)
        : m_width(width), m_height(height), m_dc(CreateCompatibleDC(nullptr)) {
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = width;
        info.bmiHeader.biHeight = -height;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        void* bits = nullptr;
        m_bitmap.Reset(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
        m_bits = static_cast<std::uint32_t*>(bits);
        m_before = SelectObject(m_dc.Get(), m_bitmap.Get());
        Clear(c);
    }
    PixelCanvas(const PixelCanvas&) = delete;
    PixelCanvas& operator=(const PixelCanvas&) = delete;
    ~PixelCanvas() { SelectObject(m_dc.Get(), m_before); }

    HDC Dc() const { return m_dc.Get(); }
    int Width() const { return m_width; }
    int Height() const { return m_height; }

    void Clear(OleColor c) {
        GdiFlush();
        for (std::size_t n = 0; n < Count(); ++n)
            m_bits[n] = static_cast<std::uint32_t>(Swapped(c));
    }
    OleColor At(int x, int y) const {
        GdiFlush();
        return Swapped(static_cast<OleColor>(m_bits[Index(x, y)]));
    }
    // All pixels, row by row from the top.
    std::vector<OleColor> Pixels() const {
        GdiFlush();
        std::vector<OleColor> pixels;
        pixels.reserve(Count());
        for (std::size_t n = 0; n < Count(); ++n)
            pixels.push_back(Swapped(static_cast<OleColor>(m_bits[n])));
        return pixels;
    }

private:
    std::size_t Count() const { return static_cast<std::size_t>(m_width) * static_cast<std::size_t>(m_height); }
    std::size_t Index(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width) + static_cast<std::size_t>(x);
    }
    // The bits hold 0x00RRGGBB.
    static OleColor Swapped(OleColor c) { return (c >> 16 & 0xFF) | (c & 0xFF00) | (c & 0xFF) << 16; }

    int m_width;
    int m_height;
    OwnedDc m_dc;
    OwnedBitmap m_bitmap;
    std::uint32_t* m_bits = nullptr;
    HGDIOBJ m_before = nullptr;
};

} // namespace orvanta::testing
