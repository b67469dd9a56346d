#include "drawing/modCtlCommon_alphaImg.h"

#include "base/Failure.h"
#include "drawing/IconImage.h"
#include "drawing/OverlapPixels.h"

#include <optional>

namespace orvanta {

namespace {

// A work buffer for the time of one call. The object stays for the next one.
class BufferInUse {
public:
    explicit BufferInUse(clsDIBSection& section) : m_section(section) {}
    BufferInUse(const BufferInUse&) = delete;
    BufferInUse& operator=(const BufferInUse&) = delete;
    ~BufferInUse() { m_section.Destroy(); }

    clsDIBSection* operator->() const { return &m_section; }
    const clsDIBSection& operator*() const { return m_section; }

private:
    clsDIBSection& m_section;
};

clsDIBSection& DestinationBuffer() {
    static clsDIBSection section;
    return section;
}

clsDIBSection& SourceBuffer() {
    static clsDIBSection section;
    return section;
}

// Where the picture goes, and what is done to its pixels.
struct Order {
    HDC hdc;
    std::int32_t left, top, W, H;
    bool bDisabled, bTransparent;
    std::int32_t width, height, x, y, lKeyColor;
};

void OverlapBitmap(const Order& order, HBITMAP bitmap) {
    const BufferInUse destination(DestinationBuffer()), source(SourceBuffer());
    destination->CloneFromHdc(order.hdc, 32, order.left, order.top, order.W, order.H);
    source->CloneFromHBmp(bitmap, 32);
    std::optional<std::uint32_t> lKey;
    if (order.bTransparent) {
        lKey = order.lKeyColor == -1 ? GetPixel(source->Hdc(), order.x, order.y)
                                     : static_cast<std::uint32_t>(order.lKeyColor);
    }
    const auto place = PlaceOverlap(source->Width(), source->Height(), order.width, order.height, order.W, order.H);
    if (!place) return;
    if (!order.bTransparent && !order.bDisabled) {
        source->PaintPicture(order.hdc, order.left + place->ox, order.top + place->oy, place->w, place->h, 0, 0,
                             place->w, place->h);
        return;
    }
    OverlapPixels(pvBuildSA3D(*destination), pvBuildSA3D(*source), *place, lKey, order.bDisabled);
    destination->PaintPicture(order.hdc, order.left, order.top);
}

void OverlapIcon(const Order& order, HICON icon) {
    const IconImage image(icon);
    const auto whole = [](std::int32_t size) { return size < 1 ? -1 : size; };
    const auto place =
        PlaceOverlap(image.Width(), image.Height(), whole(order.width), whole(order.height), order.W, order.H);
    if (!place) return;
    for (std::int32_t i = 0; i < place->w; ++i) {
        for (std::int32_t j = 0; j < place->h; ++j) {
            if (order.bTransparent && image.IsMasked(i, j)) continue;
            COLORREF color = image.Color(i, j);
            if (order.bDisabled) {
                const std::uint8_t grey = DisabledGrey(GetRValue(color), GetGValue(color), GetBValue(color));
                color = RGB(grey, grey, grey);
            }
            SetPixel(order.hdc, order.left + place->ox + i, order.top + place->oy + j, color);
        }
    }
}

} // namespace

void pvOverlapImage(HDC lHdc, std::int32_t lLeft, std::int32_t lTop, std::int32_t lRight, std::int32_t lBottom,
                    bool bDisabled, const OlePicture& oPicture, bool bTransparent, std::int32_t lWidth,
                    std::int32_t lHeight, std::int32_t x, std::int32_t y, std::int32_t lKeyColor) {
    const HGDIOBJ handle = oPicture.Handle();
    if (!handle) return;
    const Order order{lHdc,    lLeft, lTop, lRight - lLeft, lBottom - lTop, bDisabled, bTransparent, lWidth,
                      lHeight, x,     y,    lKeyColor};
    if (order.W < 1 || order.H < 1) return;
    if (oPicture.Type() == OlePicture::kTypeIcon) {
        OverlapIcon(order, static_cast<HICON>(handle));
    } else {
        OverlapBitmap(order, static_cast<HBITMAP>(handle));
    }
}

void pvOverlapImage(HDC lHdc, const RECT& rectangle, bool bDisabled, const OlePicture& oPicture, bool bTransparent,
                    std::int32_t lWidth, std::int32_t lHeight, std::int32_t x, std::int32_t y, std::int32_t lKeyColor) {
    pvOverlapImage(lHdc, rectangle.left, rectangle.top, rectangle.right, rectangle.bottom, bDisabled, oPicture,
                   bTransparent, lWidth, lHeight, x, y, lKeyColor);
}

PixelBits pvBuildSA3D(const clsDIBSection& oDib) {
    if (oDib.Bpp() != 32) throw OwnFailure(u"pvBuildSA3D", u"Cannot create Safe Array for this DIB bpp");
    GdiFlush();
    return oDib.Pixels();
}

} // namespace orvanta
