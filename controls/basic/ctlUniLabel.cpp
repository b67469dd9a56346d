#include "controls/basic/ctlUniLabel.h"

#include "drawing/clsFontHDC.h"
#include "plumbing/GdiOwner.h"

namespace orvanta {

namespace {

constexpr std::int32_t kPlainFontQuality = DEFAULT_QUALITY;

} // namespace

void ctlUniLabel::Refresh(bool bNow) {
    const HostCall call;
    pvRebuildShape();
    if (!bNow || !DrawNow()) pvInvalidate();
}

void ctlUniLabel::pvRebuildShape() {
    if (BackStyle() == 0 || UseRoundRegions()) DrawNow();
}

bool ctlUniLabel::DrawNow() {
    if (!hwnd()) return false;
    const WindowDc dc(hwnd());
    if (!dc) return false;
    SetBkMode(dc.Get(), TRANSPARENT);
    clsFontHDC font;
    IgnoreFailure([&] { SelectFontCopy(font, dc.Get(), kPlainFontQuality); });
    pvDraw(dc.Get());
    return true;
}

void ctlUniLabel::pvDraw(HDC dc) {
    DrawGuarded([&] {
        IgnoreFailure([&] { pvApplyAutoSize(dc); });
        DrawOn(dc, {.lFontQuality = kPlainFontQuality, .bFontForBareText = false});
    });
}

} // namespace orvanta
