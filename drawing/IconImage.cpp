#include "drawing/IconImage.h"

#include "plumbing/GdiOwner.h"

namespace orvanta {

IconImage::IconImage(HICON icon) {
    ICONINFO info{};
    if (!GetIconInfo(icon, &info)) return;
    const OwnedBitmap color(info.hbmColor), mask(info.hbmMask);
    m_mask.CloneFromHBmp(mask.Get(), -1);
    if (color) {
        m_color.CloneFromHBmp(color.Get(), -1);
    } else {
        SplitMonochrome();
    }
}

void IconImage::SplitMonochrome() {
    const std::int32_t width = m_mask.Width(), height = m_mask.Height() / 2;
    m_color.CreateDC(width, height, 24);
    m_mask.PaintPicture(m_color.Hdc(), 0, 0, width, height, 0, height, width, height);
    clsDIBSection upper;
    upper.CreateDC(width, height, m_mask.Bpp());
    m_mask.PaintPicture(upper.Hdc(), 0, 0, width, height, 0, 0, width, height);
    m_mask.CloneFromDib(upper);
}

} // namespace orvanta
