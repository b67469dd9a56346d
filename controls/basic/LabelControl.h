#pragma once

#include "controls/basic/LabelLayout.h"
#include "controls/contract/Control.h"
#include "plumbing/SharedColors.h"

#include <windows.h>

#include <cstdint>
#include <string>

namespace orvanta {

// What the two labels have in common: the properties, their table, and the drawing. A label shows a text on its own
// face or, transparent, the bare text: its window has the shape of the glyphs then.
//
// Colours may be system colours; kAutomatic as a border colour derives it from the face, as the colour outside rounded
// corners it stands for the face. An ampersand in the caption underlines the next character.
class LabelControl : public TableControl<LabelControl, FaceControl>, public ResizeEvents {
public:
    static const PropertyTable<LabelControl>& Table() { return s_table; }

    const std::u16string& Caption() const { return m_sCaption; }
    void Caption(std::u16string s);
    OleColor BackColor() const { return m_backColor; }
    void BackColor(OleColor c);
    OleColor ForeColor() const { return m_foreColor; }
    void ForeColor(OleColor c);
    OleColor BorderColor() const { return m_borderColor; }
    void BorderColor(OleColor c);
    // 0 left, 1 right, 2 centred; also says which edge stays where it is when the label follows its text.
    std::int32_t Alignment() const { return m_lAlignment; }
    void Alignment(std::int32_t l);
    // 0 top, 1 centred, 2 bottom; without AutoSize only.
    std::int32_t VAlignment() const { return m_lVAlignment; }
    void VAlignment(std::int32_t l);
    // 1 draws a border.
    std::int32_t BorderStyle() const { return m_lBorderStyle; }
    void BorderStyle(std::int32_t l);
    // The label takes the size of its text at its next paint, and does not break lines between words.
    bool AutoSize() const { return m_bAutoSize; }
    void AutoSize(bool b);
    // 0 to 8, or -1 for the style of the process.
    std::int32_t Style() const { return m_lStyle; }
    void Style(std::int32_t l);
    // Pixels around the text with AutoSize; without it there is none.
    std::int16_t Margin() const { return m_iMargin; }
    void Margin(std::int16_t i);
    bool RoundedBorders() const { return m_bRoundedBorders; }
    void RoundedBorders(bool b);
    OleColor BackColorOut() const { return m_backColorOut; }
    void BackColorOut(OleColor c);
    // Rounds the window itself too. Sets RoundedBorders to the same value.
    bool UseRoundRegions() const { return m_bUseRoundRegions; }
    void UseRoundRegions(bool b);

    HostTraits Traits() const override { return {.bCanGetFocus = false}; }
    void OnInitProperties() override;
    void OnResize() override;

protected:
    explicit LabelControl(ControlHost& host) : TableControl(host) {}

    // 0 transparent, other values opaque.
    std::int32_t BackStyle() const { return m_lBackStyle; }
    void BackStyle(std::int32_t l);

    // What a kind of label draws with. The quality is that of every font that the label selects itself.
    struct Drawing {
        std::int32_t lFontQuality;
        bool bFontForBareText; // the text of a transparent label is drawn with such a font too
    };
    // The two halves of pvDraw, both on a DC with the label's font: the size that follows the text, then the picture
    // and the shape of the window. The first may raise Resize.
    void pvApplyAutoSize(HDC dc);
    void DrawOn(HDC dc, const Drawing& drawing);

private:
    // Made when the program starts: a table that its first user makes costs the static analyzer minutes in each of
    // them.
    static const PropertyTable<LabelControl> s_table;

    LabelLayout Layout() const;
    void KeepAlignedEdge(std::int32_t lNewWidth);
    ScaleUnit ContainerUnit() const;
    void TakeTextColor();
    void DrawBackground(HDC dc) const;
    RECT TextRectOn(HDC dc) const;
    std::int32_t pvCaptionHeight(HDC dc) const;
    void TakeShape(const RECT& text, std::int32_t lFontQuality);
    OlePicture TextMask(RECT text, std::int32_t lFontQuality) const;
    void DrawCaption(HDC dc, RECT text, const Drawing& drawing) const;

    std::u16string m_sCaption;
    OleColor m_backColor = kSystemButtonFace;
    OleColor m_foreColor = kSystemButtonText;
    OleColor m_borderColor = kAutomatic;
    std::int32_t m_lAlignment = 0;
    std::int32_t m_lVAlignment = 0;
    std::int32_t m_lBackStyle = 1;
    std::int32_t m_lBorderStyle = 0;
    bool m_bAutoSize = false;
    std::int32_t m_lStyle = 0;
    std::int16_t m_iMargin = 0;
    bool m_bRoundedBorders = false;
    OleColor m_backColorOut = kAutomatic;
    bool m_bUseRoundRegions = false;
};

} // namespace orvanta
