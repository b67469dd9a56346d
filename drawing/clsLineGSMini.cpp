#include "drawing/clsLineGSMini.h"

#include "drawing/LinePlotters.h"
#include "drawing/LineWalk.h"
#include "drawing/clsDIBSection.h"
#include "plumbing/SharedColors.h"

#include <algorithm>
#include <cstdlib>

namespace orvanta {

namespace {

struct DcPixels {
    HDC dc;

    std::uint32_t Get(std::int32_t x, std::int32_t y) const { return GetPixel(dc, x, y); }
    void Set(std::int32_t x, std::int32_t y, std::uint32_t lColor) const { SetPixelV(dc, x, y, lColor); }
};

// The section behind a DC if drawing in its memory gives what drawing on the DC gives: whole pixels that stand where
// they are told, nothing clipped, the section's own bitmap selected.
const clsDIBSection* DirectSection(HDC lHdc, COLORREF color) {
    const clsDIBSection* section = clsDIBSection::OfHdc(lHdc);
    if (!section || (section->Bpp() != 24 && section->Bpp() != 32)) return nullptr;
    // Other values of the fourth byte name entries of a logical palette.
    if (color > 0xFFFFFF) return nullptr;
    if (GetCurrentObject(lHdc, OBJ_BITMAP) != section->hDib()) return nullptr;
    if (GetMapMode(lHdc) != MM_TEXT || GetGraphicsMode(lHdc) != GM_COMPATIBLE || GetLayout(lHdc) != 0) return nullptr;
    // A shifted origin shows in the clip box as well as a clip region does.
    RECT box{};
    if (GetClipBox(lHdc, &box) != SIMPLEREGION) return nullptr;
    const bool bWhole =
        box.left == 0 && box.top == 0 && box.right == section->Width() && box.bottom == section->Height();
    return bWhole ? section : nullptr;
}

// What a shape can touch, right and bottom included.
struct Extent {
    std::int64_t left, top, right, bottom;
};

Extent ExtentOfLine(std::int32_t X1, std::int32_t Y1, std::int32_t X2, std::int32_t Y2) {
    return {(std::min)(X1, X2) - 1, (std::min)(Y1, Y2) - 1, (std::max)(X1, X2) + 1, (std::max)(Y1, Y2) + 1};
}

Extent ExtentOfEllipse(std::int64_t X1, std::int64_t Y1, std::int64_t RadiusX, std::int64_t RadiusY) {
    const std::int64_t dx = std::abs(RadiusX) + 2, dy = std::abs(RadiusY) + 2;
    return {X1 - dx, Y1 - dy, X1 + dx, Y1 + dy};
}

template<int BytesPerPixel, typename Walk>
void DrawInMemory(const PixelBits& pixels, COLORREF color, const Extent& extent, const Walk& walk) {
    if (LiesInside(pixels, extent.left, extent.top, extent.right, extent.bottom)) {
        BitsPlotter<BytesPerPixel, LineClipping::Inside> plotter(pixels, color);
        walk(plotter);
    } else {
        BitsPlotter<BytesPerPixel> plotter(pixels, color);
        walk(plotter);
    }
}

template<typename Walk>
void Draw(HDC lHdc, std::int32_t lColor, const Extent& extent, const Walk& walk) {
    if (!lHdc) return;
    const COLORREF color = static_cast<COLORREF>(ResolveColor(lColor));
    const clsDIBSection* section = DirectSection(lHdc, color);
    if (!section) {
        DcPixels pixels{lHdc};
        PixelPlotter plotter(pixels, color);
        walk(plotter);
        return;
    }
    GdiFlush();
    if (section->Bpp() == 32) {
        DrawInMemory<4>(section->Pixels(), color, extent, walk);
    } else {
        DrawInMemory<3>(section->Pixels(), color, extent, walk);
    }
}

} // namespace

void clsLineGSMini::CircleGP(HDC lHdc, std::int32_t X1, std::int32_t Y1, std::int32_t RadiusX, std::int32_t RadiusY,
                             std::int32_t lColor, std::int32_t Thickness) const {
    Draw(lHdc, lColor, ExtentOfEllipse(X1, Y1, RadiusX, RadiusY),
         [&](auto& plotter) { WalkCircle(plotter, X1, Y1, RadiusX, RadiusY, Thickness); });
}

void clsLineGSMini::ArcGP(HDC lHdc, std::int32_t X1, std::int32_t Y1, std::int32_t RadiusX, std::int32_t RadiusY,
                          float StartAngle, float StopAngle, std::int32_t lColor, std::int32_t Thickness) const {
    Draw(lHdc, lColor, ExtentOfEllipse(X1, Y1, RadiusX, RadiusY),
         [&](auto& plotter) { WalkArc(plotter, X1, Y1, RadiusX, RadiusY, StartAngle, StopAngle, Thickness); });
}

void clsLineGSMini::LineGP(HDC lHdc, std::int16_t X1, std::int16_t Y1, std::int16_t X2, std::int16_t Y2,
                           std::int32_t lColor, std::int16_t iMaxAntialiasFaction) const {
    Draw(lHdc, lColor, ExtentOfLine(X1, Y1, X2, Y2),
         [&](auto& plotter) { WalkLine(plotter, X1, Y1, X2, Y2, iMaxAntialiasFaction); });
}

} // namespace orvanta
