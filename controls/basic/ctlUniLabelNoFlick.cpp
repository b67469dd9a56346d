#include "controls/basic/ctlUniLabelNoFlick.h"

namespace orvanta {

namespace {

// Without smoothing a pixel of a glyph is in the mask or out of it, and the text on the image fits.
constexpr std::int32_t kTwinFontQuality = NONANTIALIASED_QUALITY;

} // namespace

ctlUniLabelNoFlick::ctlUniLabelNoFlick(ControlHost& host) : LabelControl(host) {
    Host().AutoRedraw(true);
}

void ctlUniLabelNoFlick::Refresh(bool) {
    pvInvalidate();
}

void ctlUniLabelNoFlick::pvInvalidate() {
    if (!UserMode() || Host().AutoRedraw()) {
        pvDraw();
    } else {
        LabelControl::pvInvalidate();
    }
}

void ctlUniLabelNoFlick::pvDraw() {
    DrawGuarded([&] {
        IgnoreFailure([&] { pvApplyAutoSize(Host().hDC()); });
        // A new size may have made a new image.
        DrawOn(Host().hDC(), {.lFontQuality = kTwinFontQuality, .bFontForBareText = true});
        Host().Refresh();
    });
}

} // namespace orvanta
