#pragma once

#include "plumbing/GdiOwner.h"

#include <windows.h>

#include <cstdint>
#include <string_view>

namespace orvanta {

// What the two kinds of off-screen surface have in common: a memory DC with one bitmap selected into it. Owns both.
// Units are pixels. The class that uses it knows the size.
class MemorySurface {
public:
    MemorySurface() = default;
    MemorySurface(const MemorySurface&) = delete;
    MemorySurface& operator=(const MemorySurface&) = delete;
    ~MemorySurface() { Destroy(); }

    // Lent: nobody else deletes them or leaves another object selected. 0 when there is no surface.
    HDC Hdc() const { return m_dc.Get(); }
    HBITMAP Bitmap() const { return m_bitmap.Get(); }

    // False when the platform gives none.
    bool MakeDc(HDC compatible);
    // Takes the bitmap over and selects it. False when it cannot be selected; it stays owned then.
    bool SelectBitmap(OwnedBitmap bitmap);

    void Destroy();
    // Ends the surface and gives the bitmap away.
    HBITMAP ReleaseBitmap();

    // 0 and no effect without a DC. Setting a colour resolves system colours.
    std::int32_t BkMode() const;
    void BkMode(std::int32_t nMode);
    std::int32_t BkColor() const;
    void BkColor(std::int32_t l);

    // A rectangle with a size. Negative sizes stand for those of the surface.
    struct Area {
        std::int32_t left, top, width, height;
    };
    // Copies, or stretches when the sizes differ.
    void Paint(HDC lHdc, Area to, Area from, std::uint32_t eRop, std::int32_t width, std::int32_t height) const;
    void Fill(std::int32_t lColor, std::int32_t width, std::int32_t height) const;

private:
    OwnedBitmap m_bitmap;
    OwnedDc m_dc;
    HGDIOBJ m_oldBitmap = nullptr;
};

// The failure of a surface's member. Both kinds of surface name the same class, "clsMemDC".
[[noreturn]] void FailSurface(std::u16string_view sMember, std::u16string_view sMessage);

// The record of a bitmap; all zero for a handle that is none.
BITMAP BitmapRecordOf(HGDIOBJ bitmap);
// The record of the bitmap that is selected into a DC.
BITMAP BitmapRecordOfDc(HDC dc);

// Draws a bitmap that is selected nowhere onto a surface, through a DC of its own. Raises "HDC not created" and "Bitmap
// not selected" under the name "CloneFromhBmp".
void CopyBitmapTo(HDC target, HBITMAP hBmp, std::int32_t width, std::int32_t height);

} // namespace orvanta
