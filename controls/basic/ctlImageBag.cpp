#include "controls/basic/ctlImageBag.h"

#include "base/Text.h"
#include "controls/basic/DesignIcon.h"
#include "controls/contract/ObjectValues.h"
#include "drawing/clsMEMDC.h"
#include "plumbing/SharedShapes.h"

#include <cstddef>

namespace orvanta {

namespace {

constexpr std::int32_t kIconSize = 16;

std::u16string KeyOfPicture(std::int64_t i) {
    return Concat({u"Pic", DecimalText(i)});
}

// A negative index is out of range as well.
std::size_t IndexOf(std::int32_t i) {
    return static_cast<std::size_t>(i < 0 ? 0 : i);
}

// Two sheets, one before the other.
OlePicture MakeIcon() {
    constexpr OleColor kOutside = MakeColor(255, 0, 255), kLine = MakeColor(64, 64, 96),
                       kSheet = MakeColor(255, 255, 255), kHill = MakeColor(96, 160, 96),
                       kSun = MakeColor(240, 176, 48);
    clsMEMDC surface;
    surface.CreateDC(kIconSize, kIconSize, TRANSPARENT);
    const HDC dc = surface.Hdc();
    surface.DrawBackColor(kOutside);
    FillOrFrameCoords(dc, 3, 1, 15, 11, kSheet, true);
    FillOrFrameCoords(dc, 3, 1, 15, 11, kLine, false);
    FillOrFrameCoords(dc, 1, 4, 13, 15, kSheet, true);
    FillOrFrameCoords(dc, 2, 11, 12, 14, kHill, true);
    FillOrFrameCoords(dc, 7, 9, 11, 11, kHill, true);
    FillOrFrameCoords(dc, 3, 6, 6, 9, kSun, true);
    FillOrFrameCoords(dc, 1, 4, 13, 15, kLine, false);
    return surface.Picture();
}

} // namespace

OlePicture ctlImageBag::GetPicture(std::int32_t i) const {
    return m_pictures.Item(IndexOf(i));
}

OlePicture ctlImageBag::GetPictureClone(std::int32_t i) const {
    clsMEMDC copy;
    copy.CloneFromHBmp(static_cast<HBITMAP>(GetPicture(i).Handle()), TRANSPARENT);
    return copy.Picture();
}

void ctlImageBag::OnReadProperties(const PropertyBag& bag) {
    std::int32_t lCount = 0;
    IgnoreFailure([&] { lCount = PropertyKind<std::int32_t>::Take(bag.ReadProperty(u"Pics", 0)); });
    for (std::int64_t i = 1; i <= lCount; ++i) {
        IgnoreFailure([&] { m_pictures.Add(PropertyKind<OlePicture>::Take(bag.ReadProperty(KeyOfPicture(i)))); });
    }
}

void ctlImageBag::OnWriteProperties(PropertyBag& bag) {
    const std::size_t nCount = m_pictures.Count();
    bag.WriteProperty(u"Pics", static_cast<std::int32_t>(nCount));
    for (std::size_t n = 1; n <= nCount; ++n)
        bag.WriteProperty(KeyOfPicture(static_cast<std::int64_t>(n)),
                          PropertyKind<OlePicture>::Make(m_pictures.Item(n)));
}

void ctlImageBag::OnResize() {
    if (UserMode() || m_bSizing) return;
    m_bSizing = true;
    IgnoreFailure([this] { FixSizeToIcon(Host(), {kIconSize, kIconSize}); });
    m_bSizing = false;
}

void ctlImageBag::OnPaint() {
    if (UserMode()) return;
    IgnoreFailure([this] { PaintDesignIcon(Host(), MakeIcon()); });
}

} // namespace orvanta
