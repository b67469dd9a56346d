#include "grid/GdiGridCanvas.h"

#include "drawing/modCtlCommon_alphaImg.h"
#include "grid/GridMarks.h"
#include "grid/OleGridPicture.h"
#include "plumbing/FaceDrawing.h"
#include "plumbing/PlatformRect.h"
#include "plumbing/SharedShapes.h"
#include "plumbing/SharedText.h"

namespace orvanta {

namespace {

constexpr OleColor kWhite = 0xFFFFFF;

} // namespace

void GdiGridCanvas::DrawFrame(OleColor back, OleColor border) {
    const RECT rect{0, 0, m_host.lWidth, m_host.lHeight};
    FillOrFrame(m_host.hdc, rect, kWhite, true);
    DrawBoxBorder(m_host.hdc, rect, back, border, false, kAutomatic, false);
}

void GdiGridCanvas::FillSurface(OleColor back) {
    FillOrFrame(m_surface.hdc, {0, 0, m_surface.lWidth, m_surface.lHeight}, back, true);
}

void GdiGridCanvas::BeginSheet(OleColor back) {
    m_sheet.emplace();
    m_sheet->image.CreateDC(m_surface.lWidth, m_surface.lHeight, 24);
    m_sheet->image.BkMode(TRANSPARENT);
    m_sheet->image.DrawBackColor(back);
    m_sheet->font.SetFontToDCStdFont(m_sheet->image.Hdc(), m_font, -1, 0, 0, false);
}

void GdiGridCanvas::EndSheet() {
    m_sheet.reset();
}

void GdiGridCanvas::CopyFromSheet(std::int32_t x, std::int32_t width, std::int32_t yBelow) {
    if (m_sheet) m_sheet->image.PaintPicture(m_surface.hdc, x, yBelow, width, -1, x, 1, width, -1, SRCCOPY);
}

void GdiGridCanvas::DrawFace(Target target, const PixelRect& rect, OleColor back, bool bFocus, std::int32_t style) {
    orvanta::DrawFace(DcOf(target), RectOf(rect), back, false, kAutomatic, false, false, false, bFocus, false, style,
                      kAutomatic, true);
}

void GdiGridCanvas::Fill(Target target, const PixelRect& rect, OleColor c) {
    FillOrFrame(DcOf(target), RectOf(rect), c, true);
}

void GdiGridCanvas::Frame(Target target, const PixelRect& rect, OleColor c) {
    FillOrFrame(DcOf(target), RectOf(rect), c, false);
}

void GdiGridCanvas::Text(Target target, std::u16string_view s, const PixelRect& rect, OleColor c, std::uint32_t flags) {
    DrawTextColoredAt(DcOf(target), s, rect.left, rect.top, rect.right, rect.bottom, c, flags);
}

void GdiGridCanvas::DrawMark(Target target, Mark mark, const PixelRect& rect) {
    const OlePicture& picture = mark == Mark::Flag     ? FlagPicture()
                                : mark == Mark::SortUp ? SortUpPicture()
                                                       : SortDownPicture();
    pvOverlapImage(DcOf(target), RectOf(rect), false, picture, true);
}

void GdiGridCanvas::DrawPicture(Target target, const CellPicture& picture, const PixelRect& rect, std::int32_t width,
                                std::int32_t height) {
    pvOverlapImage(DcOf(target), RectOf(rect), picture.bPicGrayed, OlePictureOf(picture.oPic), picture.bPicTransparent,
                   width, height, picture.lPicXTransp, picture.lPicYTransp, picture.lPicTranspColor);
}

} // namespace orvanta
