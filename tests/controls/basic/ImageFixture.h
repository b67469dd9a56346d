#pragma once

#include "drawing/OlePicture.h"
#include "drawing/clsMEMDC.h"
#include "plumbing/GdiOwner.h"
#include "tests/controls/support/FormFixture.h"
#include "tests/support/PixelCanvas.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <cstdint>
#include <functional>
#include <vector>

namespace orvanta::testing {

// The pixels of a DC, 0x00BBGGRR, to compare and to change.
class Shot {
public:
    Shot(HDC dc, int width, int height) : m_width(width), m_height(height) {
        const PixelCanvas canvas(width, height, 0);
        BitBlt(canvas.Dc(), 0, 0, width, height, dc, 0, 0, SRCCOPY);
        m_pixels = canvas.Pixels();
    }

    int Width() const { return m_width; }
    int Height() const { return m_height; }
    COLORREF At(int x, int y) const { return static_cast<COLORREF>(m_pixels[Index(x, y)]); }
    void Set(int x, int y, COLORREF c) { m_pixels[Index(x, y)] = static_cast<OleColor>(c); }

private:
    std::size_t Index(int x, int y) const { return static_cast<std::size_t>(y * m_width + x); }

    int m_width;
    int m_height;
    std::vector<OleColor> m_pixels;
};

// One message for all pixels that differ.
inline void ExpectSame(const Shot& shown, const Shot& expected) {
    ASSERT_EQ(shown.Width(), expected.Width());
    ASSERT_EQ(shown.Height(), expected.Height());
    int nDifferent = 0;
    ::testing::Message where;
    for (int y = 0; y < shown.Height(); ++y) {
        for (int x = 0; x < shown.Width(); ++x) {
            if (shown.At(x, y) == expected.At(x, y)) continue;
            if (++nDifferent > 5) continue;
            where << "\n  " << x << ", " << y << ": " << std::hex << shown.At(x, y) << " for " << expected.At(x, y)
                  << std::dec;
        }
    }
    EXPECT_EQ(nDifferent, 0) << "pixels differ, first:" << where;
}

// A picture of so many pixels, each in the colour that the function gives.
inline OlePicture PictureOfPixels(int width, int height, const std::function<COLORREF(int, int)>& color) {
    clsMEMDC surface;
    surface.CreateDC(width, height, TRANSPARENT);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            SetPixelV(surface.Hdc(), x, y, color(x, y));
    }
    return surface.Picture();
}
// Every pixel has a colour of its own.
inline COLORREF OwnColorAt(int x, int y) {
    return RGB(x, y, 128 + (x >> 8) + 2 * (y >> 8));
}
inline OlePicture PictureOfSize(int width, int height) {
    return PictureOfPixels(width, height, OwnColorAt);
}

inline OlePicture PlainIcon(int size) {
    const std::vector<BYTE> mask(static_cast<std::size_t>(size * size / 8), 0);
    const std::vector<BYTE> white(mask.size(), 0xFF);
    return OlePicture::OfIcon(CreateIcon(nullptr, size, size, 1, 1, mask.data(), white.data()));
}

// A form on show, for controls at one place.
class ImageFixture : public FormFixture {
protected:
    ImageFixture() { Show(); }

    template<typename ControlType>
    ControlType& Put(float width, float height, bool bUserMode = true) {
        form.UserMode(bUserMode);
        return form.Add<ControlType>(u"ctl", {10, 10, width, height});
    }
    // What the control's window shows.
    static Shot Shown(const Control& control) {
        Pump();
        RECT client{};
        GetClientRect(control.hwnd(), &client);
        const WindowDc dc(control.hwnd());
        return {dc.Get(), client.right, client.bottom};
    }
};

} // namespace orvanta::testing
