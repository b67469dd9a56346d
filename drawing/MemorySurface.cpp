#include "drawing/MemorySurface.h"

#include "base/Failure.h"
#include "base/Text.h"
#include "plumbing/SharedColors.h"

#include <utility>

namespace orvanta {

bool MemorySurface::MakeDc(HDC compatible) {
    m_dc.Reset(CreateCompatibleDC(compatible));
    return static_cast<bool>(m_dc);
}

bool MemorySurface::SelectBitmap(OwnedBitmap bitmap) {
    m_bitmap = std::move(bitmap);
    m_oldBitmap = SelectObject(m_dc.Get(), m_bitmap.Get());
    return m_oldBitmap != nullptr;
}

void MemorySurface::Destroy() {
    if (m_dc && m_oldBitmap) SelectObject(m_dc.Get(), m_oldBitmap);
    m_oldBitmap = nullptr;
    m_dc.Reset();
    m_bitmap.Reset();
}

HBITMAP MemorySurface::ReleaseBitmap() {
    if (m_dc && m_oldBitmap) SelectObject(m_dc.Get(), m_oldBitmap);
    m_oldBitmap = nullptr;
    HBITMAP bitmap = m_bitmap.Release();
    Destroy();
    return bitmap;
}

std::int32_t MemorySurface::BkMode() const {
    return m_dc ? GetBkMode(m_dc.Get()) : 0;
}

void MemorySurface::BkMode(std::int32_t nMode) {
    if (m_dc) SetBkMode(m_dc.Get(), nMode);
}

std::int32_t MemorySurface::BkColor() const {
    return m_dc ? static_cast<std::int32_t>(GetBkColor(m_dc.Get())) : 0;
}

void MemorySurface::BkColor(std::int32_t l) {
    if (m_dc) SetBkColor(m_dc.Get(), static_cast<COLORREF>(ResolveColor(l)));
}

void MemorySurface::Paint(HDC lHdc, Area to, Area from, std::uint32_t eRop, std::int32_t width,
                          std::int32_t height) const {
    if (!m_dc) return;
    for (Area* area : {&to, &from}) {
        if (area->width < 0) area->width = width;
        if (area->height < 0) area->height = height;
    }
    if (to.width == from.width && to.height == from.height) {
        BitBlt(lHdc, to.left, to.top, to.width, to.height, m_dc.Get(), from.left, from.top, eRop);
    } else {
        StretchBlt(lHdc, to.left, to.top, to.width, to.height, m_dc.Get(), from.left, from.top, from.width, from.height,
                   eRop);
    }
}

void MemorySurface::Fill(std::int32_t lColor, std::int32_t width, std::int32_t height) const {
    if (!m_dc) return;
    const OwnedBrush brush(CreateSolidBrush(static_cast<COLORREF>(ResolveColor(lColor))));
    const RECT all{0, 0, width, height};
    FillRect(m_dc.Get(), &all, brush.Get());
}

void FailSurface(std::u16string_view sMember, std::u16string_view sMessage) {
    const std::u16string sSource = Concat({u"clsMemDC.", sMember});
    throw OwnFailure(sSource, Concat({sSource, u".", sMessage}));
}

BITMAP BitmapRecordOf(HGDIOBJ bitmap) {
    BITMAP record{};
    if (GetObjectType(bitmap) == OBJ_BITMAP) GetObjectW(bitmap, sizeof record, &record);
    return record;
}

BITMAP BitmapRecordOfDc(HDC dc) {
    return BitmapRecordOf(GetCurrentObject(dc, OBJ_BITMAP));
}

void CopyBitmapTo(HDC target, HBITMAP hBmp, std::int32_t width, std::int32_t height) {
    constexpr std::u16string_view kMember = u"CloneFromhBmp";
    const OwnedDc source(CreateCompatibleDC(target));
    if (!source) FailSurface(kMember, u"HDC not created");
    const Selection selection(source.Get(), hBmp);
    if (!selection) FailSurface(kMember, u"Bitmap not selected");
    BitBlt(target, 0, 0, width, height, source.Get(), 0, 0, SRCCOPY);
}

} // namespace orvanta
