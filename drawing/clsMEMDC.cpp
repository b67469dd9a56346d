#include "drawing/clsMEMDC.h"

#include <utility>

namespace orvanta {

void clsMEMDC::CreateDC(std::int32_t Width, std::int32_t Height, std::int32_t iBkMode) {
    constexpr std::u16string_view kMember = u"CreateDC";
    Destroy();
    m_lWidth = Width < 0 ? 1 : Width;
    m_lHeight = Height < 0 ? 1 : Height;
    const WindowDc desktop(GetDesktopWindow());
    if (!m_surface.MakeDc(desktop.Get())) FailSurface(kMember, u"HDC not created");
    // Not of the memory DC: what is compatible with a fresh one has a single bit per pixel.
    OwnedBitmap bitmap(CreateCompatibleBitmap(desktop.Get(), m_lWidth, m_lHeight));
    if (!bitmap) FailSurface(kMember, u"hBmp not created");
    if (!m_surface.SelectBitmap(std::move(bitmap))) FailSurface(kMember, u"Bitmap not selected");
    SetStretchBltMode(Hdc(), COLORONCOLOR);
    BkMode(iBkMode);
}

void clsMEMDC::KeepSizesBelowOne(std::int32_t& NewWidth, std::int32_t& NewHeight) const {
    if (NewWidth < 1) NewWidth = m_lWidth;
    if (NewHeight < 1) NewHeight = m_lHeight;
}

void clsMEMDC::ResizeCutDC(std::int32_t NewWidth, std::int32_t NewHeight, std::int32_t iNewBkMode) {
    if (!Hdc()) return CreateDC(NewWidth, NewHeight, iNewBkMode);
    KeepSizesBelowOne(NewWidth, NewHeight);
    clsMEMDC copy;
    copy.CloneFromHdc(Hdc());
    CloneFromHdc(copy.Hdc(), 0, 0, NewWidth, NewHeight);
}

void clsMEMDC::ResizeAdaptDC(std::int32_t NewWidth, std::int32_t NewHeight, std::int32_t iNewBkMode) {
    if (!Hdc()) return CreateDC(NewWidth, NewHeight, iNewBkMode);
    KeepSizesBelowOne(NewWidth, NewHeight);
    clsMEMDC copy;
    copy.CloneFromHdc(Hdc());
    CreateDC(NewWidth, NewHeight, copy.BkMode());
    copy.PaintPicture(Hdc(), 0, 0, NewWidth, NewHeight);
}

void clsMEMDC::CloneFromHBmp(HBITMAP hBmp, std::int32_t iBkMode) {
    const BITMAP record = BitmapRecordOf(hBmp);
    CreateDC(record.bmWidth, record.bmHeight, TRANSPARENT);
    BkMode(iBkMode);
    CopyBitmapTo(Hdc(), hBmp, m_lWidth, m_lHeight);
}

void clsMEMDC::CloneFromHdc(HDC lHdc, std::int32_t lSrcLeft, std::int32_t lSrcTop, std::int32_t lSrcWidth,
                            std::int32_t lSrcHeight, std::uint32_t eRop) {
    if (lSrcWidth < 1 || lSrcHeight < 1) {
        const BITMAP record = BitmapRecordOfDc(lHdc);
        lSrcWidth = record.bmWidth;
        lSrcHeight = record.bmHeight;
    }
    CreateDC(lSrcWidth, lSrcHeight, GetBkMode(lHdc));
    BitBlt(Hdc(), 0, 0, m_lWidth, m_lHeight, lHdc, lSrcLeft, lSrcTop, eRop);
}

void clsMEMDC::PaintPicture(HDC lHdc, std::int32_t lDestLeft, std::int32_t lDestTop, std::int32_t lDestWidth,
                            std::int32_t lDestHeight, std::int32_t lSrcLeft, std::int32_t lSrcTop,
                            std::int32_t lSrcWidth, std::int32_t lSrcHeight, std::uint32_t eRop) const {
    m_surface.Paint(lHdc, {lDestLeft, lDestTop, lDestWidth, lDestHeight}, {lSrcLeft, lSrcTop, lSrcWidth, lSrcHeight},
                    eRop, m_lWidth, m_lHeight);
}

OlePicture clsMEMDC::Picture() {
    if (!hBmp()) return {};
    return OlePicture::OfBitmap(ReleasehBmp());
}

} // namespace orvanta
