// Gradients as one block, and the surfaces on which they must stay lines.
#include "plumbing/ColorBlock.h"

#include "plumbing/SharedShapes.h"
#include "tests/support/PixelCanvas.h"

#include <gtest/gtest.h>

namespace orvanta {
namespace {

using testing::PixelCanvas;

constexpr OleColor kGround = 0x00FF00;
constexpr OleColor kFrom = 0xD8C0A0;
constexpr OleColor kTo = 0x102040;

// A memory surface of any depth.
class Surface {
public:
    explicit Surface(int iBits) : m_dc(CreateCompatibleDC(nullptr)) {
        struct {
            BITMAPINFOHEADER header;
            RGBQUAD colors[256];
        } info{};
        info.header.biSize = sizeof info.header;
        info.header.biWidth = 30;
        info.header.biHeight = -20;
        info.header.biPlanes = 1;
        info.header.biBitCount = static_cast<WORD>(iBits);
        for (int n = 0; n < 256; ++n)
            info.colors[n] = {static_cast<BYTE>(n), static_cast<BYTE>(255 - n), static_cast<BYTE>(n), 0};
        void* bits = nullptr;
        m_bitmap.Reset(
            CreateDIBSection(nullptr, reinterpret_cast<BITMAPINFO*>(&info), DIB_RGB_COLORS, &bits, nullptr, 0));
        m_before = SelectObject(m_dc.Get(), m_bitmap.Get());
    }
    Surface(const Surface&) = delete;
    Surface& operator=(const Surface&) = delete;
    ~Surface() { SelectObject(m_dc.Get(), m_before); }
    HDC Dc() const { return m_dc.Get(); }

private:
    OwnedDc m_dc;
    OwnedBitmap m_bitmap;
    HGDIOBJ m_before = nullptr;
};

// The plain road: a pen for each row.
void LinesDown(HDC dc, int x1, int y1, int x2, int y2) {
    for (const OleColor c : GradientColors(kFrom, kTo, y2 - y1)) {
        DrawLineOle(dc, x1, y1, x2, y1, c, 1, PS_SOLID);
        ++y1;
    }
}
void LinesRight(HDC dc, int x1, int y1, int x2, int y2) {
    for (const OleColor c : GradientColors(kFrom, kTo, x2 - x1)) {
        DrawLineOle(dc, x1, y1, x1, y2, c, 1, PS_SOLID);
        ++x1;
    }
}

void ExpectSamePixels(HDC a, HDC b) {
    for (int y = 0; y < 20; ++y)
        for (int x = 0; x < 30; ++x)
            ASSERT_EQ(GetPixel(a, x, y), GetPixel(b, x, y)) << x << ", " << y;
}

TEST(ColorBlock, SurfacesOfFullColorTakeBlocksAndOthersDoNot) {
    EXPECT_TRUE(TakesColorBlocks(Surface(32).Dc()));
    EXPECT_TRUE(TakesColorBlocks(Surface(24).Dc()));
    for (const int iBits : {1, 4, 8, 16})
        EXPECT_FALSE(TakesColorBlocks(Surface(iBits).Dc())) << iBits;
    EXPECT_TRUE(TakesColorBlocks(WindowDc(nullptr).Get()));
    EXPECT_FALSE(TakesColorBlocks(OwnedDc(CreateCompatibleDC(nullptr)).Get()));
    HDC record = CreateEnhMetaFileW(nullptr, nullptr, nullptr, nullptr);
    EXPECT_FALSE(TakesColorBlocks(record));
    DeleteEnhMetaFile(CloseEnhMetaFile(record));
}

TEST(ColorBlock, OtherCoordinatesOrPensThatMixTakeNoBlocks) {
    const Surface surface(32);
    HDC dc = surface.Dc();
    SetROP2(dc, R2_XORPEN);
    EXPECT_FALSE(TakesColorBlocks(dc));
    SetROP2(dc, R2_COPYPEN);
    SetMapMode(dc, MM_ANISOTROPIC);
    EXPECT_FALSE(TakesColorBlocks(dc));
    SetMapMode(dc, MM_TEXT);
    SetGraphicsMode(dc, GM_ADVANCED);
    EXPECT_FALSE(TakesColorBlocks(dc));
    SetGraphicsMode(dc, GM_COMPATIBLE);
    SetLayout(dc, LAYOUT_RTL); // changes the mapping as well
    SetMapMode(dc, MM_TEXT);
    EXPECT_FALSE(TakesColorBlocks(dc));
    SetLayout(dc, 0);
    SetMapMode(dc, MM_TEXT);
    EXPECT_TRUE(TakesColorBlocks(dc));
}

TEST(ColorBlock, AGradientHasThePixelsOfItsLinesOnEveryDepth) {
    for (const int iBits : {1, 4, 8, 16, 24, 32}) {
        SCOPED_TRACE(iBits);
        const Surface ours(iBits);
        const Surface lines(iBits);
        GradientV(ours.Dc(), 2, 3, 13, 19, kFrom, kTo);
        LinesDown(lines.Dc(), 2, 3, 13, 19);
        GradientH(ours.Dc(), 15, 3, 28, 19, kFrom, kTo);
        LinesRight(lines.Dc(), 15, 3, 28, 19);
        ExpectSamePixels(ours.Dc(), lines.Dc());
    }
}

TEST(ColorBlock, AGradientHasThePixelsOfItsLinesUnderAnyMapping) {
    const auto prepare = [](HDC dc, int iKind) {
        switch (iKind) {
        case 0: SetViewportOrgEx(dc, 5, -2, nullptr); break;
        case 1: SetWindowOrgEx(dc, 3, 4, nullptr); break;
        case 2: SetROP2(dc, R2_XORPEN); break;
        case 3: IntersectClipRect(dc, 6, 6, 20, 12); break;
        default: break;
        }
    };
    for (int iKind = 0; iKind < 4; ++iKind) {
        SCOPED_TRACE(iKind);
        const Surface ours(32);
        const Surface lines(32);
        prepare(ours.Dc(), iKind);
        prepare(lines.Dc(), iKind);
        GradientV(ours.Dc(), 2, 3, 13, 19, kFrom, kTo);
        LinesDown(lines.Dc(), 2, 3, 13, 19);
        GradientH(ours.Dc(), 11, 1, 28, 14, kFrom, kTo);
        LinesRight(lines.Dc(), 11, 1, 28, 14);
        for (HDC dc : {ours.Dc(), lines.Dc()}) {
            SelectClipRgn(dc, nullptr);
            SetViewportOrgEx(dc, 0, 0, nullptr);
            SetWindowOrgEx(dc, 0, 0, nullptr);
        }
        ExpectSamePixels(ours.Dc(), lines.Dc());
    }
}

TEST(ColorBlock, RowsAndColumnsStandWhereTheyAreAskedFor) {
    const PixelCanvas canvas(30, 20, kGround);
    PutColorRows(canvas.Dc(), 2, 3, 4, {0x0000FF, 0xFF0000});
    EXPECT_EQ(canvas.At(2, 3), 0x0000FF);
    EXPECT_EQ(canvas.At(5, 4), 0xFF0000);
    EXPECT_EQ(canvas.At(6, 4), kGround);
    EXPECT_EQ(canvas.At(5, 5), kGround);
    PutColorColumns(canvas.Dc(), 10, 3, 4, {0x0000FF, 0xFF0000});
    EXPECT_EQ(canvas.At(10, 6), 0x0000FF);
    EXPECT_EQ(canvas.At(11, 6), 0xFF0000);
    EXPECT_EQ(canvas.At(12, 6), kGround);
    EXPECT_EQ(canvas.At(11, 7), kGround);
}

} // namespace
} // namespace orvanta
