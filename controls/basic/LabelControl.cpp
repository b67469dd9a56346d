#include "controls/basic/LabelControl.h"

#include "controls/contract/SharedRows.h"
#include "drawing/clsFontHDC.h"
#include "drawing/clsMEMDC.h"
#include "plumbing/FaceDrawing.h"
#include "plumbing/PlatformRect.h"
#include "plumbing/SharedShapes.h"
#include "plumbing/SharedText.h"

namespace orvanta {

namespace {

constexpr OleColor kMaskBack = 0;
constexpr OleColor kMaskText = 0xFFFFFF;

using LabelRow = PropertyTable<LabelControl>;
using LabelShared = SharedRows<LabelControl>;

} // namespace

const PropertyTable<LabelControl> LabelControl::s_table{
    LabelRow::Field(u"Caption", u"", &LabelControl::m_sCaption, After::Notify | After::ShapeAndRepaint),
    LabelRow::Field(u"BackColor", kSystemButtonFace, &LabelControl::m_backColor, After::Repaint),
    LabelRow::Field(u"ForeColor", kSystemButtonText, &LabelControl::m_foreColor, After::Repaint),
    LabelRow::Field(u"BorderColor", kAutomatic, &LabelControl::m_borderColor, After::Repaint),
    LabelRow::Field(u"Alignment", 0, &LabelControl::m_lAlignment, After::ShapeAndRepaint),
    LabelRow::Field(u"VAlignment", 0, &LabelControl::m_lVAlignment, After::ShapeAndRepaint),
    LabelRow::Field(u"BackStyle", 1, &LabelControl::m_lBackStyle, After::ShapeAndRepaint),
    LabelRow::Field(u"BorderStyle", 0, &LabelControl::m_lBorderStyle, After::ShapeAndRepaint),
    LabelRow::Field(u"AutoSize", false, &LabelControl::m_bAutoSize, After::OnlyOnChange | After::ShapeAndRepaint),
    LabelShared::Tip(),
    LabelRow::Field(u"Style", 0, &LabelControl::m_lStyle, After::Repaint),
    LabelShared::Enabled(),
    LabelRow::Field(u"Margin", 0, &LabelControl::m_iMargin, After::ShapeAndRepaint),
    LabelRow::Field(u"RoundedBorders", false, &LabelControl::m_bRoundedBorders, After::ShapeAndRepaint),
    LabelRow::Field(u"BackColorOut", kAutomatic, &LabelControl::m_backColorOut, After::Repaint),
    LabelRow::Field(u"UseRoundRegions", false, &LabelControl::m_bUseRoundRegions, &LabelControl::UseRoundRegions),
    LabelShared::Font(),
    LabelShared::OLEDropMode(),
    LabelShared::MousePointer(),
    LabelShared::MouseIcon(),
};

void LabelControl::Caption(std::u16string s) {
    Table().Set(*this, &LabelControl::m_sCaption, std::move(s));
}
void LabelControl::BackColor(OleColor c) {
    Table().Set(*this, &LabelControl::m_backColor, c);
}
void LabelControl::ForeColor(OleColor c) {
    Table().Set(*this, &LabelControl::m_foreColor, c);
}
void LabelControl::BorderColor(OleColor c) {
    Table().Set(*this, &LabelControl::m_borderColor, c);
}
void LabelControl::Alignment(std::int32_t l) {
    Table().Set(*this, &LabelControl::m_lAlignment, l);
}
void LabelControl::VAlignment(std::int32_t l) {
    Table().Set(*this, &LabelControl::m_lVAlignment, l);
}
void LabelControl::BackStyle(std::int32_t l) {
    Table().Set(*this, &LabelControl::m_lBackStyle, l);
}
void LabelControl::BorderStyle(std::int32_t l) {
    Table().Set(*this, &LabelControl::m_lBorderStyle, l);
}
void LabelControl::AutoSize(bool b) {
    Table().Set(*this, &LabelControl::m_bAutoSize, b);
}
void LabelControl::Style(std::int32_t l) {
    Table().Set(*this, &LabelControl::m_lStyle, l);
}
void LabelControl::Margin(std::int16_t i) {
    Table().Set(*this, &LabelControl::m_iMargin, i);
}
void LabelControl::RoundedBorders(bool b) {
    Table().Set(*this, &LabelControl::m_bRoundedBorders, b);
}
void LabelControl::BackColorOut(OleColor c) {
    Table().Set(*this, &LabelControl::m_backColorOut, c);
}
void LabelControl::UseRoundRegions(bool b) {
    m_bUseRoundRegions = b;
    m_bRoundedBorders = b;
    pvInvalidate();
}

void LabelControl::OnInitProperties() {
    Table().SetDefaults(*this);
    m_sCaption = Host().Extender().Name();
}

void LabelControl::OnResize() {
    if (!IsDrawing()) pvInvalidate();
    Raise(Resize);
}

LabelLayout LabelControl::Layout() const {
    return {.Alignment = m_lAlignment,
            .VAlignment = m_lVAlignment,
            .BorderStyle = m_lBorderStyle,
            .AutoSize = m_bAutoSize,
            .Margin = m_iMargin};
}

void LabelControl::pvApplyAutoSize(HDC dc) {
    if (!m_bAutoSize) return;
    std::int32_t W = MeasureTextMaxLineWidth(dc, m_sCaption, 0);
    if (W < 1) return;
    RECT lines{0, 0, W, 1};
    DrawTextOn(dc, m_sCaption, lines, DT_CALCRECT | DT_EXPANDTABS);
    std::int32_t H = lines.bottom - lines.top;
    const std::int16_t iExtra = Layout().Extra();
    W += iExtra;
    H += iExtra;
    if (ClientPixelWidth() == W && ClientPixelHeight() == H) return;

    // A container that cannot say where the label stands leaves it there; it is resized all the same.
    IgnoreFailure([&] { KeepAlignedEdge(W); });
    ScaleUnit unit = ScaleUnit::Twips;
    IgnoreFailure([&] { unit = ContainerUnit(); });
    IgnoreFailure([&] {
        Host().Size(Host().ScaleX(static_cast<float>(W), ScaleUnit::Pixels, unit),
                    Host().ScaleY(static_cast<float>(H), ScaleUnit::Pixels, unit));
    });
}

ScaleUnit LabelControl::ContainerUnit() const {
    const ControlContainer& container = Host().Extender().Container();
    return container.ContainerKind() == ControlContainer::Kind::Other ? ScaleUnit::Twips : container.ScaleMode();
}

void LabelControl::KeepAlignedEdge(std::int32_t lNewWidth) {
    const ScaleUnit unit = ContainerUnit();
    ControlExtender& extender = Host().Extender();
    const double dLeft = Host().ScaleX(extender.Left(), unit, ScaleUnit::Pixels);
    const double dNewLeft = Layout().LeftEdge(dLeft, ClientPixelWidth(), lNewWidth);
    if (dNewLeft != dLeft) extender.Left(Host().ScaleX(static_cast<float>(dNewLeft), ScaleUnit::Pixels, unit));
}

void LabelControl::DrawOn(HDC dc, const Drawing& drawing) {
    if (Host().IsGone()) return;
    IgnoreFailure([&] { TakeTextColor(); });
    IgnoreFailure([&] { DrawBackground(dc); });
    const RECT text = TextRectOn(dc);
    IgnoreFailure([&] { TakeShape(text, drawing.lFontQuality); });
    IgnoreFailure([&] { DrawCaption(dc, text, drawing); });
}

void LabelControl::TakeTextColor() {
    const OleColor wanted = Host().Enabled() ? m_foreColor : kSystemGrayText;
    if (Host().ForeColor() != wanted) Host().ForeColor(wanted);
}

void LabelControl::DrawBackground(HDC dc) const {
    // Without a face the mask decides what of the fill shows.
    if (m_lBackStyle == 0) {
        FillOrFrame(dc, ClientPixels(), m_backColor, true);
    } else {
        DrawFace(dc, ClientPixels(), m_backColor, Layout().HasBorder(), m_borderColor, false, false, false, false,
                 m_bRoundedBorders, m_lStyle, m_backColorOut, true);
    }
}

RECT LabelControl::TextRectOn(HDC dc) const {
    const LabelLayout layout = Layout();
    PixelRect text = layout.TextRect(ClientPixelWidth(), ClientPixelHeight());
    if (layout.PlacesByHeight()) text.top = layout.TextTop(text, pvCaptionHeight(dc));
    return RectOf(text);
}

std::int32_t LabelControl::pvCaptionHeight(HDC dc) const {
    // Broken at the full client width, even where a border leaves less.
    RECT lines = ClientPixels();
    DrawTextOn(dc, m_sCaption, lines, DT_CALCRECT | DT_EXPANDTABS | DT_WORDBREAK);
    return lines.bottom - lines.top;
}

void LabelControl::TakeShape(const RECT& text, std::int32_t lFontQuality) {
    if (m_lBackStyle == 0) {
        ApplyMask(TextMask(text, lFontQuality));
    } else if (m_bUseRoundRegions) {
        ApplyRoundMask();
    } else {
        ApplyOpaque();
    }
}

OlePicture LabelControl::TextMask(RECT text, std::int32_t lFontQuality) const {
    clsMEMDC surface;
    surface.CreateDC(ClientPixelWidth(), ClientPixelHeight(), OPAQUE);
    surface.DrawBackColor(kMaskBack);
    surface.BkColor(kMaskBack);
    clsFontHDC font;
    SelectFontCopy(font, surface.Hdc(), lFontQuality);
    DrawTextColored(surface.Hdc(), m_sCaption, text, kMaskText, Layout().TextFlags());
    font.Destroy();
    return surface.Picture();
}

void LabelControl::DrawCaption(HDC dc, RECT text, const Drawing& drawing) const {
    clsFontHDC font;
    if (drawing.bFontForBareText && m_lBackStyle == 0) SelectFontCopy(font, dc, drawing.lFontQuality);
    DrawTextColored(dc, m_sCaption, text, Host().ForeColor(), Layout().TextFlags());
}

} // namespace orvanta
