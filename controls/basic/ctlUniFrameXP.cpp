#include "controls/basic/ctlUniFrameXP.h"

#include "controls/basic/FrameLayout.h"
#include "controls/contract/SharedRows.h"
#include "plumbing/PlatformRect.h"
#include "plumbing/SharedShapes.h"
#include "plumbing/SharedText.h"

namespace orvanta {

namespace {

// Fixed, whatever the colours of the frame are.
constexpr OleColor kLightLine = 0xFFFFFF;
constexpr UINT kBandTitleFlags = DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX;

void DrawLines(HDC dc, const auto& lines, OleColor c) {
    for (const FrameLine& line : lines)
        DrawLineOle(dc, line.x1, line.y1, line.x2, line.y2, c, 1, PS_SOLID);
}

using FrameRow = PropertyTable<ctlUniFrameXP>;
using FrameShared = SharedRows<ctlUniFrameXP>;

} // namespace

const PropertyTable<ctlUniFrameXP> ctlUniFrameXP::s_table{
    FrameShared::Font(),
    FrameRow::Field(u"Caption", u"", &ctlUniFrameXP::m_sCaption, After::Notify | After::Repaint),
    FrameRow::Field(u"Enabled", true, &ctlUniFrameXP::m_bEnabled, &ctlUniFrameXP::Enabled),
    FrameRow::Field(u"ForeColor", kSystemWindowFrame, &ctlUniFrameXP::m_foreColor, After::Repaint),
    FrameRow::Field(u"BorderColor", kAutomatic, &ctlUniFrameXP::m_borderColor, After::Repaint),
    FrameRow::Field(u"BackColor", kSystemButtonFace, &ctlUniFrameXP::m_backColor, After::Repaint),
    FrameShared::Tip(),
    FrameRow::Field(u"VistaStyle", true, &ctlUniFrameXP::m_bVistaStyle, After::OnlyOnChange | After::Repaint),
    FrameRow::Field(u"BackColorOut", kAutomatic, &ctlUniFrameXP::m_backColorOut, After::Repaint),
    FrameRow::Field(u"TitleBackColor", kAutomatic, &ctlUniFrameXP::m_titleBackColor, After::Repaint),
    FrameRow::Field(u"UseShadow", false, &ctlUniFrameXP::m_bUseShadow, After::Repaint),
    FrameShared::OLEDropMode(),
    FrameShared::MousePointer(),
    FrameShared::MouseIcon(),
};

void ctlUniFrameXP::Caption(std::u16string s) {
    Table().Set(*this, &ctlUniFrameXP::m_sCaption, std::move(s));
}
void ctlUniFrameXP::ForeColor(OleColor c) {
    Table().Set(*this, &ctlUniFrameXP::m_foreColor, c);
}
void ctlUniFrameXP::BorderColor(OleColor c) {
    Table().Set(*this, &ctlUniFrameXP::m_borderColor, c);
}
void ctlUniFrameXP::BackColor(OleColor c) {
    Table().Set(*this, &ctlUniFrameXP::m_backColor, c);
}
void ctlUniFrameXP::VistaStyle(bool b) {
    Table().Set(*this, &ctlUniFrameXP::m_bVistaStyle, b);
}
void ctlUniFrameXP::BackColorOut(OleColor c) {
    Table().Set(*this, &ctlUniFrameXP::m_backColorOut, c);
}
void ctlUniFrameXP::TitleBackColor(OleColor c) {
    Table().Set(*this, &ctlUniFrameXP::m_titleBackColor, c);
}
void ctlUniFrameXP::UseShadow(bool b) {
    Table().Set(*this, &ctlUniFrameXP::m_bUseShadow, b);
}

void ctlUniFrameXP::Enabled(bool b) {
    const HostCall call; // the control inside that loses the focus may remove the frame
    m_bEnabled = b;
    const bool bChanged = PassEnabledOn();
    if (bChanged || !UserMode()) pvInvalidate();
}

bool ctlUniFrameXP::PassEnabledOn() {
    const bool bWanted = m_bEnabled || !UserMode();
    if (Host().Enabled() == bWanted) return false;
    Host().Enabled(bWanted);
    return true;
}

void ctlUniFrameXP::OnInitProperties() {
    Table().SetDefaults(*this);
    // Deliberately not the default of a load.
    m_bVistaStyle = false;
    m_sCaption = Host().Extender().Name();
}

void ctlUniFrameXP::OnReadProperties(const PropertyBag& bag) {
    Table().Load(*this, bag);
    PassEnabledOn();
}

void ctlUniFrameXP::OnResize() {
    if (!IsDrawing()) pvInvalidate();
}

void ctlUniFrameXP::pvInvalidate() {
    if (!UserMode() || Host().AutoRedraw() || IsWindow(hwnd())) Control::pvInvalidate();
}

void ctlUniFrameXP::pvDraw(HDC dc) {
    DrawGuarded([&] {
        IgnoreFailure([&] { PassEnabledOn(); });
        IgnoreFailure([&] { TakeTextColor(); });
        HDC target = dc ? dc : Host().hDC();
        IgnoreFailure([&] {
            FillOrFrame(target, ClientPixels(), m_backColor, true);
            if (m_bVistaStyle) {
                DrawBandLook(target);
            } else {
                DrawEtchedLook(target);
            }
        });
        if (Host().AutoRedraw()) Host().Refresh();
    });
}

void ctlUniFrameXP::TakeTextColor() {
    const OleColor wanted = m_bEnabled ? m_foreColor : kSystemGrayText;
    if (Host().ForeColor() != wanted) Host().ForeColor(wanted);
}

void ctlUniFrameXP::DrawBandLook(HDC dc) {
    const std::int32_t W = ClientPixelWidth();
    if (!m_sCaption.empty()) {
        const std::u16string sTitle = u" " + m_sCaption + u" ";
        std::int32_t lTextWidth = 0;
        std::int32_t lTextHeight = 0;
        MeasureTextLine(dc, sTitle, DT_NOPREFIX, lTextWidth, lTextHeight);
        const FrameBand layout = BandLayout(W, lTextHeight);
        const FrameBandColors colors = BandColors(m_backColor, m_titleBackColor);
        GradientHR(dc, RectOf(layout.band), colors.left, colors.right);
        DrawTitle(dc, sTitle, RectOf(layout.title), kBandTitleFlags);
    }
    const OleColor border = BorderColorFor(m_borderColor, m_backColor);
    FillOrFrame(dc, ClientPixels(), border, false);
    DrawLines(dc, CutEdges(W), border);
    DrawLines(dc, CutCorners(W), m_backColorOut == kAutomatic ? m_backColor : m_backColorOut);
}

void ctlUniFrameXP::DrawEtchedLook(HDC dc) {
    const bool bTitle = !m_sCaption.empty();
    const std::u16string sTitle = u" " + m_sCaption + u" ";
    std::int32_t lTextWidth = 0;
    std::int32_t lTextHeight = 0;
    if (bTitle) MeasureTextLine(dc, sTitle, DT_NOPREFIX, lTextWidth, lTextHeight);
    const FrameEtching layout = EtchedLayout(ClientPixelWidth(), ClientPixelHeight(), lTextWidth, lTextHeight);
    FillOrFrame(dc, RectOf(layout.dark), BorderColorFor(m_borderColor, m_backColor), false);
    FillOrFrame(dc, RectOf(layout.light), kLightLine, false);
    if (!bTitle) return;
    FillOrFrame(dc, RectOf(layout.gap), m_backColor, true);
    DrawTitle(dc, sTitle, RectOf(layout.title), 0);
}

void ctlUniFrameXP::DrawTitle(HDC dc, const std::u16string& sTitle, RECT rect, UINT flags) {
    const OleColor text = Host().ForeColor();
    if (m_bUseShadow) {
        RECT shadow = rect;
        OffsetRect(&shadow, 1, 1);
        Host().ForeColor(TitleShadowColor(text));
        DrawTextColored(dc, sTitle, shadow, Host().ForeColor(), flags);
        Host().ForeColor(text);
    }
    DrawTextColored(dc, sTitle, rect, text, flags);
}

} // namespace orvanta
