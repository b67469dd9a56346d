#pragma once

#include "drawing/MemorySurface.h"
#include "drawing/OlePicture.h"

#include <windows.h>

#include <cstdint>

// The members keep their name whether <windows.h> came first or not.
#undef CreateDC

namespace orvanta {

// An off-screen surface with a bitmap that is compatible with the screen, for double buffering and for pictures that
// are built by drawing. Owns its DC and its bitmap and releases them in Destroy and at its end. Units are pixels, rows
// from the top. Belongs to the interface thread.
//
//     clsMEMDC buffer;
//     buffer.CreateDC(width, height, TRANSPARENT);
//     ... draw on buffer.Hdc() ...
//     buffer.PaintPicture(hdc, 0, 0);
//
// Creating and cloning raise "HDC not created", "hBmp not created" and "Bitmap not selected" with the source
// "clsMemDC." and the member; the surface is half built then, until the next CreateDC or Destroy.
class clsMEMDC {
public:
    // Ends the present surface first. A negative size becomes 1.
    void CreateDC(std::int32_t Width, std::int32_t Height, std::int32_t iBkMode);

    // The same surface at another size; a size below 1 keeps the present one. Cut leaves the picture in the top left
    // corner, Adapt stretches it. Only without a surface, when a new one is made, iBkMode matters: otherwise the
    // background mode stays as it is.
    void ResizeCutDC(std::int32_t NewWidth, std::int32_t NewHeight, std::int32_t iNewBkMode);
    void ResizeAdaptDC(std::int32_t NewWidth, std::int32_t NewHeight, std::int32_t iNewBkMode);

    // 0 and no effect without a surface. Setting the colour resolves system colours.
    std::int32_t BkMode() const { return m_surface.BkMode(); }
    void BkMode(std::int32_t nMode) { m_surface.BkMode(nMode); }
    std::int32_t BkColor() const { return m_surface.BkColor(); }
    void BkColor(std::int32_t l) { m_surface.BkColor(l); }

    // A new surface with a copy of a bitmap, which must not be selected anywhere.
    void CloneFromHBmp(HBITMAP hBmp, std::int32_t iBkMode);
    // A new surface with a copy of a part of a DC, and the background mode of that DC. If one of the sizes is below 1,
    // both are those of the bitmap in the DC.
    void CloneFromHdc(HDC lHdc, std::int32_t lSrcLeft = 0, std::int32_t lSrcTop = 0, std::int32_t lSrcWidth = -1,
                      std::int32_t lSrcHeight = -1, std::uint32_t eRop = SRCCOPY);

    void Destroy() { m_surface.Destroy(); }

    // Draws the surface, or a part, on a DC; stretches when the sizes differ. Negative sizes stand for those of the
    // surface.
    void PaintPicture(HDC lHdc, std::int32_t lDestLeft, std::int32_t lDestTop, std::int32_t lDestWidth = -1,
                      std::int32_t lDestHeight = -1, std::int32_t lSrcLeft = 0, std::int32_t lSrcTop = 0,
                      std::int32_t lSrcWidth = -1, std::int32_t lSrcHeight = -1, std::uint32_t eRop = SRCCOPY) const;

    // Lent; 0 when there is no surface.
    HDC Hdc() const { return m_surface.Hdc(); }
    HBITMAP hBmp() const { return m_surface.Bitmap(); }
    // These outlive Destroy.
    std::int32_t Width() const { return m_lWidth; }
    std::int32_t Height() const { return m_lHeight; }

    // Gives the bitmap away and ends the surface; 0 when there is none.
    HBITMAP ReleasehBmp() { return m_surface.ReleaseBitmap(); }
    // Turns the surface into a picture and ends it: a second reading is empty.
    OlePicture Picture();

    void DrawBackColor(std::int32_t lColor) const { m_surface.Fill(lColor, m_lWidth, m_lHeight); }

private:
    void KeepSizesBelowOne(std::int32_t& NewWidth, std::int32_t& NewHeight) const;

    MemorySurface m_surface;
    std::int32_t m_lWidth = 0;
    std::int32_t m_lHeight = 0;
};

} // namespace orvanta
