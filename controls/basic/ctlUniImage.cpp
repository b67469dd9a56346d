#include "controls/basic/ctlUniImage.h"

#include "controls/basic/KeyColor.h"
#include "controls/contract/SharedRows.h"
#include "drawing/clsMEMDC.h"
#include "drawing/modCtlCommon_alphaImg.h"
#include "plumbing/FaceDrawing.h"
#include "plumbing/PlatformRect.h"

namespace orvanta {

namespace {

constexpr std::int32_t kFlatStyle = 0;

using ImageRow = PropertyTable<ctlUniImage>;
using ImageShared = SharedRows<ctlUniImage>;

} // namespace

const PropertyTable<ctlUniImage> ctlUniImage::s_table{
    ImageRow::Field(u"Picture", {}, &ctlUniImage::m_picture, After::Repaint),
    ImageShared::Tip(),
    ImageShared::Enabled(),
    ImageRow::Field(u"Border", false, &ctlUniImage::m_bBorder, After::Repaint),
    ImageRow::Field(u"BackColor", kSystemButtonFace, &ctlUniImage::m_backColor, After::Repaint),
    ImageRow::Field(u"BorderColor", kAutomatic, &ctlUniImage::m_borderColor, After::Repaint),
    ImageRow::Field(u"RoundedBorders", true, &ctlUniImage::m_bRoundedBorders, After::ShapeAndRepaint),
    ImageRow::Field(u"BackColorOut", kAutomatic, &ctlUniImage::m_backColorOut, After::Repaint),
    ImageRow::Field(u"UseRoundRegions", false, &ctlUniImage::m_bUseRoundRegions, &ctlUniImage::UseRoundRegions),
    ImageRow::Field(u"Stretch", false, &ctlUniImage::m_bStretch, After::Repaint),
    ImageRow::Field(u"TransparencyType", kKeyOfPixel, &ctlUniImage::m_lTransparencyType, After::Repaint),
    ImageRow::Field(u"TransparentColor", -1, &ctlUniImage::m_transparentColor, After::Repaint),
    ImageRow::Field(u"XTransp", 0, &ctlUniImage::m_xTranspColor, After::Repaint),
    ImageRow::Field(u"YTransp", 0, &ctlUniImage::m_yTranspColor, After::Repaint),
    ImageShared::OLEDropMode(),
    ImageShared::MousePointer(),
    ImageShared::MouseIcon(),
};

void ctlUniImage::Picture(const OlePicture& picture) {
    Table().Set(*this, &ctlUniImage::m_picture, picture);
}

void ctlUniImage::Border(bool b) {
    Table().Set(*this, &ctlUniImage::m_bBorder, b);
}

void ctlUniImage::BackColor(OleColor c) {
    Table().Set(*this, &ctlUniImage::m_backColor, c);
}

void ctlUniImage::BorderColor(OleColor c) {
    Table().Set(*this, &ctlUniImage::m_borderColor, c);
}

void ctlUniImage::RoundedBorders(bool b) {
    Table().Set(*this, &ctlUniImage::m_bRoundedBorders, b);
}

void ctlUniImage::BackColorOut(OleColor c) {
    Table().Set(*this, &ctlUniImage::m_backColorOut, c);
}

void ctlUniImage::UseRoundRegions(bool b) {
    m_bUseRoundRegions = b;
    m_bRoundedBorders = b;
    OnResize();
}

void ctlUniImage::Stretch(bool b) {
    Table().Set(*this, &ctlUniImage::m_bStretch, b);
}

void ctlUniImage::TransparencyType(std::int32_t l) {
    Table().Set(*this, &ctlUniImage::m_lTransparencyType, l);
}

void ctlUniImage::TransparentColor(OleColor c) {
    Table().Set(*this, &ctlUniImage::m_transparentColor, c);
}

void ctlUniImage::xTranspColor(std::int16_t i) {
    Table().Set(*this, &ctlUniImage::m_xTranspColor, i);
}

void ctlUniImage::yTranspColor(std::int16_t i) {
    Table().Set(*this, &ctlUniImage::m_yTranspColor, i);
}

void ctlUniImage::OnInitProperties() {
    Table().SetDefaults(*this);
}

void ctlUniImage::OnPaint() {
    DrawGuarded([this] { DrawControl(); });
}

void ctlUniImage::OnResize() {
    if (m_bUseRoundRegions && m_bRoundedBorders) {
        IgnoreFailure([this] { ApplyRoundMask(); });
    } else {
        ApplyOpaque();
    }
    if (!IsDrawing()) pvInvalidate();
}

PixelRect ctlUniImage::Room() const {
    return PixelRectOf(ClientPixels()).Shrunk(ImageInset(m_bBorder, m_bRoundedBorders));
}

void ctlUniImage::DrawControl() {
    clsMEMDC surface;
    const RECT client = ClientPixels();
    IgnoreFailure([&] { surface.CreateDC(client.right, client.bottom, TRANSPARENT); });
    // Always flat, and never with BackColorOut.
    DrawFace(surface.Hdc(), client, m_backColor, m_bBorder, m_borderColor, false, false, false, false,
             m_bRoundedBorders, kFlatStyle, kAutomatic, true);
    IgnoreFailure([&] { DrawPicture(surface.Hdc()); });
    surface.PaintPicture(Host().hDC(), 0, 0);
}

void ctlUniImage::DrawPicture(HDC surface) {
    if (m_picture.IsEmpty()) return;
    const auto place = PlaceImage(Room(), PicturePixels(m_picture), m_bStretch);
    if (!place) return;
    const bool bKeyIsColor = m_lTransparencyType == kKeyOfColor;
    const bool bTransparent = m_lTransparencyType != kNoKey && !(bKeyIsColor && m_transparentColor == -1);
    OleColor keyColor = bKeyIsColor ? m_transparentColor : kPixelDecides;
    const OlePicture picture = place->bScaled ? ScaledPicture(place->rect, keyColor) : m_picture;
    pvOverlapImage(surface, RectOf(place->rect), !Enabled(), picture, bTransparent, place->rect.Width(),
                   place->rect.Height(), m_xTranspColor, m_yTranspColor, keyColor);
}

// The key colour is read before scaling: the picture is scaled without blending, so that the colour survives and no
// near ones come up. An icon has no bitmap to scale; what is drawn then is nothing but the key colour.
OlePicture ctlUniImage::ScaledPicture(const PixelRect& rect, OleColor& keyColor) const {
    clsMEMDC whole, scaled;
    IgnoreFailure([&] { whole.CloneFromHBmp(static_cast<HBITMAP>(m_picture.Handle()), TRANSPARENT); });
    if (m_lTransparencyType == kKeyOfPixel) {
        keyColor = static_cast<OleColor>(GetPixel(whole.Hdc(), m_xTranspColor, m_yTranspColor));
    }
    IgnoreFailure([&] { scaled.CreateDC(rect.Width(), rect.Height(), TRANSPARENT); });
    whole.PaintPicture(scaled.Hdc(), 0, 0, rect.Width(), rect.Height());
    return scaled.Picture();
}

} // namespace orvanta
