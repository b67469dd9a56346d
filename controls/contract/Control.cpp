#include "controls/contract/Control.h"

#include "base/Rounding.h"
#include "drawing/clsFontHDC.h"
#include "drawing/clsMEMDC.h"
#include "plumbing/GdiOwner.h"
#include "plumbing/SharedShapes.h"
#include "plumbing/TipBridge.h"

namespace orvanta {

namespace {

constexpr std::int32_t kTipMaxWidth = 300;
constexpr OleColor kBlack = 0;
constexpr OleColor kWhite = 0xFFFFFF;
constexpr int kMaskCorner = 2;

} // namespace

void Control::Enabled(bool b) {
    if (m_host->Enabled() == b) return;
    const HostCall call; // a control that loses the focus may be removed
    m_host->Enabled(b);
    pvInvalidate();
}

void Control::Tip(std::u16string s) {
    m_sTip = std::move(s);
    m_host->PropertyChanged(u"Tip");
}

void Control::OLEDropMode(std::int32_t l) {
    m_host->OLEDropMode(RoundToInteger<std::int16_t>(l));
    m_host->PropertyChanged(u"OLEDropMode");
}

void Control::MousePointer(std::int32_t iCursor) {
    m_host->MousePointer(RoundToInteger<std::int16_t>(iCursor));
}

void Control::Font(const OleFont& font) {
    m_host->Font(font);
    AfterChange(u"Font", After::ShapeAndRepaint);
}

TaggedValue Control::ApplyFontChanges() {
    Font(Font());
    return {};
}

void Control::OnAmbientChanged(std::u16string_view) {
    pvInvalidate();
}

void Control::pvInvalidate() {
    IgnoreFailure([this] {
        if (!UserMode() || m_host->AutoRedraw()) {
            m_host->Refresh();
        } else if (HWND window = m_host->hWnd()) {
            InvalidateRect(window, nullptr, FALSE);
        }
    });
}

void Control::AfterChange(std::u16string_view sKey, After after) {
    // A handler of one step may remove the control; the other steps still run on it.
    const HostCall call;
    if (Has(after, After::Notify)) m_host->PropertyChanged(sKey);
    if (Has(after, After::Shape)) pvRebuildShape();
    if (Has(after, After::Repaint)) pvInvalidate();
}

void Control::ShowTip() const {
    if (UserMode()) ShowControlTip(m_sTip, kTipMaxWidth);
}

PixelSize Control::PicturePixels(const OlePicture& picture) {
    // A picture object takes its size from its pixels by the resolution of the screen.
    const WindowDc screen(nullptr);
    const auto toPixels = [&screen](std::int32_t lSize, int resolution) {
        return RoundToInteger<std::int32_t>(ConvertUnits(static_cast<float>(lSize), ScaleUnit::HiMetric,
                                                         ScaleUnit::Pixels, GetDeviceCaps(screen.Get(), resolution)));
    };
    return {toPixels(picture.Width(), LOGPIXELSX), toPixels(picture.Height(), LOGPIXELSY)};
}

void Control::SelectFontCopy(clsFontHDC& font, HDC dc, std::int32_t lQuality) const {
    const float dDpi = m_host->ScaleY(1, ScaleUnit::Inches, ScaleUnit::Pixels);
    font.Resolution(RoundToInteger<std::int32_t>(dDpi));
    font.SetFontToDCStdFont(dc, Font(), -1, lQuality, 0, false);
}

void Control::ApplyRoundMask() {
    clsMEMDC surface;
    const RECT client = ClientPixels();
    surface.CreateDC(client.right, client.bottom, OPAQUE);
    surface.DrawBackColor(kBlack);
    DrawRoundRectR(surface.Hdc(), client, true, kWhite, kWhite, 1, PS_SOLID, kMaskCorner);
    ApplyMask(surface.Picture());
}

void Control::ApplyMask(const OlePicture& mask) {
    m_host->Picture({});
    m_host->MaskPicture(mask);
    if (m_host->BackStyle() != 0) m_host->BackStyle(0);
}

void Control::ApplyOpaque() {
    if (m_host->BackStyle() != 1) m_host->BackStyle(1);
}

void FaceControl::OnMouseDown(std::int16_t Button, std::int16_t Shift, float X, float Y) {
    Raise(MouseDown, Button, Shift, X, Y);
}

void FaceControl::OnMouseMove(std::int16_t Button, std::int16_t Shift, float X, float Y) {
    ShowTip();
    Raise(MouseMove, Button, Shift, X, Y);
}

void FaceControl::OnMouseUp(std::int16_t Button, std::int16_t Shift, float X, float Y) {
    Raise(MouseUp, Button, Shift, X, Y);
}

void FaceControl::OnOLEStartDrag(DataObject& Data, std::int32_t& AllowedEffects) {
    Raise(OLEStartDrag, Data, AllowedEffects);
}

void FaceControl::OnOLESetData(DataObject& Data, std::int16_t& DataFormat) {
    Raise(OLESetData, Data, DataFormat);
}

void FaceControl::OnOLEGiveFeedback(std::int32_t& Effect, bool& DefaultCursors) {
    Raise(OLEGiveFeedback, Effect, DefaultCursors);
}

void FaceControl::OnOLEDragOver(DataObject& Data, std::int32_t& Effect, std::int16_t& Button, std::int16_t& Shift,
                                float& X, float& Y, std::int16_t& State) {
    Raise(OLEDragOver, Data, Effect, Button, Shift, X, Y, State);
}

void FaceControl::OnOLEDragDrop(DataObject& Data, std::int32_t& Effect, std::int16_t& Button, std::int16_t& Shift,
                                float& X, float& Y) {
    Raise(OLEDragDrop, Data, Effect, Button, Shift, X, Y);
}

void FaceControl::OnOLECompleteDrag(std::int32_t& Effect) {
    Raise(OLECompleteDrag, Effect);
}

} // namespace orvanta
