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

constexpr OleColor kBlack = 0;
constexpr OleColor kWhite = 0xFFFFFF;

} // namespace

const PropertyTable<LabelControl>& LabelControl::Table() {
    using Table = PropertyTable<LabelControl>;
    using Shared = SharedRows<LabelControl>;
    using L = LabelControl;
    static const Table table{
        Table::Field(u"Caption", u"", &L::m_sCaption, After::Notify | After::ShapeAndRepaint),
        Table::Field(u"BackColor", kSystemButtonFace, &L::m_backColor, After::Repaint),
        Table::Field(u"ForeColor", kSystemButtonText, &L::m_foreColor, After::Repaint),
        Table::Field(u"BorderColor", kAutomatic, &L::m_borderColor, After::Repaint),
        Table::Field(u"Alignment", 0, &L::m_lAlignment, After::ShapeAndRepaint),
        Table::Field(u"VAlignment", 0, &L::m_lVAlignment, After::ShapeAndRepaint),
        Table::Field(u"BackStyle", 1, &L::m_lBackStyle, After::ShapeAndRepaint),
        Table::Field(u"BorderStyle", 0, &L::m_lBorderStyle, After::ShapeAndRepaint),
        Table::Field(u"AutoSize", false, &L::m_bAutoSize, After::OnlyOnChange | After::ShapeAndRepaint),
        Shared::Tip(),
        Table::Field(u"Style", 0, &L::m_lStyle, After::Repaint),
        Shared::Enabled(),
        Table::Field(u"Margin", 0, &L::m_iMargin, After::ShapeAndRepaint),
        Table::Field(u"RoundedBorders", false, &L::m_bRoundedBorders, After::ShapeAndRepaint),
        Table::Field(u"BackColorOut", kAutomatic, &L::m_backColorOut, After::Repaint),
        Table::Field(u"UseRoundRegions", false, &L::m_bUseRoundRegions, &L::UseRoundRegions),
        Shared::Font(),
        Shared::OLEDropMode(),
        Shared::MousePointer(),
        Shared::MouseIcon(),
    };
    return table;
}

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
    surface.DrawBackColor(kBlack);
    surface.BkColor(kBlack);
    clsFontHDC font;
    font.SetFontToDCStdFont(surface.Hdc(), Font(), -1, lFontQuality, 0, false);
    DrawTextColored(surface.Hdc(), m_sCaption, text, kWhite, Layout().TextFlags());
    font.Destroy();
    return surface.Picture();
}

void LabelControl::DrawCaption(HDC dc, RECT text, const Drawing& drawing) const {
    clsFontHDC font;
    if (drawing.bFontForBareText && m_lBackStyle == 0)
        font.SetFontToDCStdFont(dc, Font(), -1, drawing.lFontQuality, 0, false);
    DrawTextColored(dc, m_sCaption, text, Host().ForeColor(), Layout().TextFlags());
}

} // namespace orvanta
