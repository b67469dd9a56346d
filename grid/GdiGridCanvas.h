#pragma once

#include "drawing/OleFont.h"
#include "drawing/clsDIBSection.h"
#include "drawing/clsFontHDC.h"
#include "grid/GridCanvas.h"

#include <windows.h>

#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>

namespace orvanta {

// Draws a grid on device contexts: that of the control, for its frame, and that of the surface inside, which has the
// font selected and a transparent background mode. Both are lent.
class GdiGridCanvas : public GridCanvas {
public:
    struct Surface {
        HDC hdc;
        std::int32_t lWidth;
        std::int32_t lHeight;
    };
    GdiGridCanvas(Surface host, Surface surface, OleFont font)
        : m_host(host), m_surface(surface), m_font(std::move(font)) {}

    void DrawFrame(OleColor back, OleColor border) override;
    void FillSurface(OleColor back) override;
    void BeginSheet(OleColor back) override;
    void EndSheet() override;
    void CopyFromSheet(std::int32_t x, std::int32_t width, std::int32_t yBelow) override;
    void DrawFace(Target target, const PixelRect& rect, OleColor back, bool bFocus, std::int32_t style) override;
    void Fill(Target target, const PixelRect& rect, OleColor c) override;
    void Frame(Target target, const PixelRect& rect, OleColor c) override;
    void Text(Target target, std::u16string_view s, const PixelRect& rect, OleColor c, std::uint32_t flags) override;
    void DrawMark(Target target, Mark mark, const PixelRect& rect) override;
    void DrawPicture(Target target, const CellPicture& picture, const PixelRect& rect, std::int32_t width,
                     std::int32_t height) override;

private:
    // The surface and its font go in this order.
    struct Sheet {
        clsDIBSection image;
        clsFontHDC font;
    };
    HDC DcOf(Target target) const { return target == Target::Sheet && m_sheet ? m_sheet->image.Hdc() : m_surface.hdc; }

    Surface m_host;
    Surface m_surface;
    OleFont m_font;
    std::optional<Sheet> m_sheet;
};

} // namespace orvanta
