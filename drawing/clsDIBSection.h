#pragma once

#include "drawing/MemorySurface.h"
#include "drawing/OlePicture.h"
#include "drawing/PixelBits.h"
#include "drawing/clsPalette.h"

#include <windows.h>

#include <array>
#include <cstdint>

// The members keep their name whether <windows.h> came first or not.
#undef CreateDC

namespace orvanta {

// An off-screen surface whose pixel bytes the program can reach, with a palette for 1, 4 and 8 bits per pixel. Owns its
// DC and its bitmap and releases them in Destroy and at its end. Units are pixels; drawing counts rows from the top,
// the bytes lie bottom up. Belongs to the interface thread.
//
//     clsDIBSection section;
//     section.CreateDC(width, height, 32);
//     GdiFlush();
//     ... section.BitsPtr() ...
//
// Where a palette is passed by reference and is empty, one that the section has to make is handed back in it.
//
// Creating and cloning raise "HDC not created", "hDib not created", "DIB not selected" and "Bitmap not selected" with
// the source "clsMemDC." and the member, as clsMEMDC does; the surface is half built then, until the next CreateDC or
// Destroy. A size of 0 cannot be created. Overflow when the bytes pass 2,147,483,647.
class clsDIBSection {
public:
    clsDIBSection();
    clsDIBSection(const clsDIBSection&) = delete;
    clsDIBSection& operator=(const clsDIBSection&) = delete;
    ~clsDIBSection() { Destroy(); }

    // Ends the present surface first. A negative size becomes 2. Without a palette, 1, 4 and 8 bits get black and
    // white, the 16 system colours and the half-tone palette. Entries of the colour table that a palette does not reach
    // stay as they were.
    void CreateDC(std::int32_t Width, std::int32_t Height, std::int32_t Bpp, PaletteReference& cPal);
    void CreateDC(std::int32_t Width, std::int32_t Height, std::int32_t Bpp);

    // A copy of another section; a negative Bpp takes its depth too.
    void CloneFromDib(const clsDIBSection& oDib, std::int32_t Bpp = -1);
    // Copies of a bitmap, which must not be selected anywhere, and of a part of a DC. A Bpp of -1 takes the bitmap's
    // depth; 1 to 23 without a palette raises "Palette is required!". If one of the sizes is below 1, both are those of
    // the bitmap in the DC.
    void CloneFromHBmp(HBITMAP hBmp, std::int32_t Bpp, PaletteReference& cPal);
    void CloneFromHBmp(HBITMAP hBmp, std::int32_t Bpp);
    void CloneFromHdc(HDC lHdc, std::int32_t Bpp, PaletteReference& cPal, std::int32_t lSrcLeft = 0,
                      std::int32_t lSrcTop = 0, std::int32_t lSrcWidth = -1, std::int32_t lSrcHeight = -1,
                      std::uint32_t eRop = SRCCOPY);
    void CloneFromHdc(HDC lHdc, std::int32_t Bpp, std::int32_t lSrcLeft = 0, std::int32_t lSrcTop = 0,
                      std::int32_t lSrcWidth = -1, std::int32_t lSrcHeight = -1, std::uint32_t eRop = SRCCOPY);

    void Destroy();

    // Draws the surface, or a part, on a DC; stretches when the sizes differ. Negative sizes stand for those of the
    // surface.
    void PaintPicture(HDC lHdc, std::int32_t lDestLeft, std::int32_t lDestTop, std::int32_t lDestWidth = -1,
                      std::int32_t lDestHeight = -1, std::int32_t lSrcLeft = 0, std::int32_t lSrcTop = 0,
                      std::int32_t lSrcWidth = -1, std::int32_t lSrcHeight = -1, std::uint32_t eRop = SRCCOPY) const;

    // Lent; 0 when there is no surface.
    HDC Hdc() const { return m_surface.Hdc(); }
    HBITMAP hDib() const { return m_surface.Bitmap(); }
    // These outlive Destroy.
    std::int32_t Width() const { return RecordOf(m_lBpp).header.biWidth; }
    std::int32_t Height() const { return RecordOf(m_lBpp).header.biHeight; }
    std::int32_t Bpp() const { return m_lBpp; }

    // Gives the bitmap away and ends the surface; 0 when there is none.
    HBITMAP ReleasehDib();

    // Rows begin at multiples of four bytes.
    std::int32_t BytesPerScanLine() const;
    // The first byte of the bottom row; null when there is no surface. Call GdiFlush between drawing and reading.
    std::uint8_t* BitsPtr() const { return m_bits; }
    // The same with the sizes, for 24 and 32 bits.
    PixelBits Pixels() const;

    // A new palette of all 2, 16 or 256 entries of the colour table; empty for other depths.
    PaletteReference Palette() const;

    void DrawBackColor(std::int32_t lColor) const { m_surface.Fill(lColor, Width(), Height()); }
    // Turns the surface into a picture and ends it: a second reading is empty.
    OlePicture Picture();

    // 0 and no effect without a surface. Setting the colour resolves system colours.
    std::int32_t BkMode() const { return m_surface.BkMode(); }
    void BkMode(std::int32_t nMode) { m_surface.BkMode(nMode); }
    std::int32_t BkColor() const { return m_surface.BkColor(); }
    void BkColor(std::int32_t l) { m_surface.BkColor(l); }

    // The living section that a DC belongs to; null for any other DC.
    static const clsDIBSection* OfHdc(HDC lHdc);

private:
    // What the platform knows as BITMAPINFO: the colour table follows the header.
    struct InfoRecord {
        BITMAPINFOHEADER header{};
        std::array<RGBQUAD, 256> colors{};
    };
    static std::size_t RecordIndex(std::int32_t Bpp);
    static std::size_t TableSize(std::int32_t Bpp);
    InfoRecord& RecordOf(std::int32_t Bpp) { return m_records[RecordIndex(Bpp)]; }
    const InfoRecord& RecordOf(std::int32_t Bpp) const { return m_records[RecordIndex(Bpp)]; }
    void FillColorTable(PaletteReference& cPal);

    MemorySurface m_surface;
    std::array<InfoRecord, 4> m_records; // for 1, 4 and 8 bits, and for all other depths
    std::uint8_t* m_bits = nullptr;
    std::int32_t m_lBpp = 0;
};

} // namespace orvanta
