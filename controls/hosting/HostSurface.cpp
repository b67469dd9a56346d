#include "controls/hosting/HostSurface.h"

#include "drawing/ComReference.h"
#include "plumbing/SharedShapes.h"

#include <algorithm>
#include <utility>

namespace orvanta {

void HostSurface::Detach() {
    m_ownDc = nullptr;
    m_window = nullptr;
    m_image.Destroy();
}

HDC HostSurface::Dc() {
    HDC dc = PresentDc();
    if (dc) SelectFont(dc);
    return dc;
}

HDC HostSurface::PresentDc() {
    if (m_paintDc) return m_paintDc;
    if (m_bRetained && m_image.Hdc()) return m_image.Hdc();
    return OwnDc();
}

HDC HostSurface::OwnDc() {
    if (!m_ownDc && m_window) {
        m_ownDc = GetDC(m_window);
        if (m_ownDc) Prepare(m_ownDc);
    }
    return m_ownDc;
}

void HostSurface::ForeColor(OleColor c) {
    m_lForeColor = c;
    // A font that a control has selected for a while stays.
    if (HDC dc = PresentDc()) SetTextColor(dc, static_cast<COLORREF>(ResolveColor(c)));
}

void HostSurface::Retain(bool b, std::int32_t width, std::int32_t height) {
    if (m_bRetained == b) return;
    m_bRetained = b;
    if (b) {
        m_image.CreateDC(width, height, TRANSPARENT);
        m_image.DrawBackColor(m_lBackColor);
        Prepare(m_image.Hdc());
    } else {
        m_image.Destroy();
    }
}

void HostSurface::Resize(std::int32_t width, std::int32_t height) {
    if (!m_bRetained || (width == m_image.Width() && height == m_image.Height())) return;
    clsMEMDC larger;
    larger.CreateDC(width, height, TRANSPARENT);
    larger.DrawBackColor(m_lBackColor);
    m_image.PaintPicture(larger.Hdc(), 0, 0);
    m_image.CreateDC(width, height, TRANSPARENT);
    larger.PaintPicture(m_image.Hdc(), 0, 0);
    Prepare(m_image.Hdc());
}

void HostSurface::ShowImage(HDC dc) const {
    m_image.PaintPicture(dc, 0, 0);
}

void HostSurface::Prepare(HDC dc) const {
    SelectFont(dc);
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, static_cast<COLORREF>(ResolveColor(m_lForeColor)));
}

void HostSurface::SelectFont(HDC dc) const {
    const HFONT font = m_font.hFont();
    if (font && GetCurrentObject(dc, OBJ_FONT) != font) SelectObject(dc, font);
}

void HostSurface::DrawPicture(HDC dc) const {
    if (m_picture.IsEmpty()) return;
    const int lDpiX = GetDeviceCaps(dc, LOGPIXELSX);
    const int lDpiY = GetDeviceCaps(dc, LOGPIXELSY);
    constexpr int kHiMetricPerInch = 2540;
    const OLE_XSIZE_HIMETRIC width = m_picture.Width();
    const OLE_YSIZE_HIMETRIC height = m_picture.Height();
    m_picture.Object()->Render(dc, 0, 0, MulDiv(width, lDpiX, kHiMetricPerInch),
                               MulDiv(height, lDpiY, kHiMetricPerInch), 0, height, width, -height, nullptr);
}

HostSurface::Painting::Painting(HostSurface& surface, HDC dc)
    : m_surface(surface), m_before(std::exchange(surface.m_paintDc, dc)), m_dc(dc),
      m_lSaved(dc == surface.OwnDc() ? 0 : SaveDC(dc)) {
    m_surface.Prepare(dc);
    m_surface.DrawPicture(dc);
}

HostSurface::Painting::~Painting() {
    if (m_lSaved != 0) RestoreDC(m_dc, m_lSaved);
    m_surface.m_paintDc = m_before;
}

} // namespace orvanta
