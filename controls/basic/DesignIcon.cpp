#include "controls/basic/DesignIcon.h"

#include "drawing/modCtlCommon_alphaImg.h"
#include "plumbing/SharedShapes.h"

namespace orvanta {

namespace {

// Twips for each pixel of the icon: 15 to the pixel, times two.
constexpr float kTwipsForPixel = 30;

} // namespace

void FixSizeToIcon(ControlHost& host, PixelSize icon) {
    const ScaleUnit unit = host.Extender().Container().ScaleMode();
    host.Size(host.ScaleX(kTwipsForPixel * static_cast<float>(icon.width), ScaleUnit::Twips, unit),
              host.ScaleY(kTwipsForPixel * static_cast<float>(icon.height), ScaleUnit::Twips, unit));
}

void PaintDesignIcon(ControlHost& host, const OlePicture& icon) {
    const RECT client{0, 0, static_cast<LONG>(host.ScaleWidth()), static_cast<LONG>(host.ScaleHeight())};
    FillOrFrame(host.hDC(), client, host.BackColor(), true);
    pvOverlapImage(host.hDC(), client, false, icon, true);
}

} // namespace orvanta
