#pragma once

#include "base/Failure.h"
#include "drawing/clsDIBSection.h"
#include "drawing/clsMEMDC.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

namespace orvanta::testing {

// The pixels of a DC, 0x00BBGGRR, row by row from the top.
inline std::vector<COLORREF> PixelsOf(HDC dc, int width, int height) {
    std::vector<COLORREF> pixels;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            pixels.push_back(GetPixel(dc, x, y));
    }
    return pixels;
}

// Draws on a surface a pattern in which all pixels differ.
inline void Scatter(HDC dc, int width, int height) {
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            SetPixelV(dc, x, y, RGB(10 * x + 3, 20 * y + 5, x + y));
    }
}
inline COLORREF ScatteredAt(int x, int y) {
    return RGB(10 * x + 3, 20 * y + 5, x + y);
}

// What tells handles apart: 32 bits. A picture object hands out no more, and widening them may give others above.
inline std::uint32_t HandleBits(HGDIOBJ handle) {
    return static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(handle));
}

// Expects a failure of the system's own number with this source and description.
template<typename Action>
void ExpectFailure(const std::u16string& sSource, const std::u16string& sDescription, const Action& action) {
    try {
        action();
        ADD_FAILURE() << "no failure";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.Number(), 0x80040001u);
        EXPECT_EQ(failure.Source(), sSource);
        EXPECT_EQ(failure.Description(), sDescription);
    }
}

// The failure of a surface's member.
template<typename Action>
void ExpectSurfaceFailure(const std::u16string& sMember, const std::u16string& sMessage, const Action& action) {
    const std::u16string sSource = u"clsMemDC." + sMember;
    ExpectFailure(sSource, sSource + u"." + sMessage, action);
}

// Platform functions that fail, for PatchedImport.
inline HDC WINAPI NoDc(HDC) {
    return nullptr;
}
inline HBITMAP WINAPI NoBitmap(HDC, int, int) {
    return nullptr;
}
inline HGDIOBJ WINAPI NoSelection(HDC, HGDIOBJ) {
    return nullptr;
}

} // namespace orvanta::testing
