#pragma once

#include "controls/basic/ImagePlacement.h"
#include "controls/contract/Control.h"

#include <cstdint>
#include <optional>

namespace orvanta {

// Shows one picture on a flat face. The picture is never enlarged: it is centred, or scaled down with Stretch, or cut.
// The whole image is built off the screen and shown in one step. Pictures are shared, not copied.
class ctlUniImage : public TableControl<ctlUniImage, FaceControl> {
public:
    using TableControl::TableControl;

    static const PropertyTable<ctlUniImage>& Table() { return s_table; }

    const OlePicture& Picture() const { return m_picture; }
    void Picture(const OlePicture& picture);

    bool Border() const { return m_bBorder; }
    void Border(bool b);
    OleColor BackColor() const { return m_backColor; }
    void BackColor(OleColor c);
    // kAutomatic: derived from BackColor.
    OleColor BorderColor() const { return m_borderColor; }
    void BorderColor(OleColor c);
    bool RoundedBorders() const { return m_bRoundedBorders; }
    void RoundedBorders(bool b);
    // Stored only: the corners of this control always take BackColor.
    OleColor BackColorOut() const { return m_backColorOut; }
    void BackColorOut(OleColor c);
    // Gives the window rounded corners. Sets RoundedBorders to the same value.
    bool UseRoundRegions() const { return m_bUseRoundRegions; }
    void UseRoundRegions(bool b);
    // Scales a picture down that does not fit, proportions kept.
    bool Stretch() const { return m_bStretch; }
    void Stretch(bool b);

    // -1: no colour is transparent; 0: that of the picture's pixel xTranspColor, yTranspColor; 1: TransparentColor,
    // taken as a plain colour, or none while it is -1.
    std::int32_t TransparencyType() const { return m_lTransparencyType; }
    void TransparencyType(std::int32_t l);
    OleColor TransparentColor() const { return m_transparentColor; }
    void TransparentColor(OleColor c);
    std::int16_t xTranspColor() const { return m_xTranspColor; }
    void xTranspColor(std::int16_t i);
    std::int16_t yTranspColor() const { return m_yTranspColor; }
    void yTranspColor(std::int16_t i);

    // The room for the picture, in pixels; below 1 when there is none.
    std::int32_t ClientWidth() const { return Room().Width(); }
    std::int32_t ClientHeight() const { return Room().Height(); }

    HostTraits Traits() const override { return {.bCanGetFocus = false}; }
    void OnInitProperties() override;
    void OnPaint() override;
    void OnResize() override;

private:
    PixelRect Room() const;
    void DrawControl();
    void DrawPicture(HDC surface);
    OlePicture ScaledPicture(const PixelRect& rect, OleColor& keyColor) const;

    static const PropertyTable<ctlUniImage> s_table;

    OlePicture m_picture;
    bool m_bBorder = false;
    OleColor m_backColor = kSystemButtonFace;
    OleColor m_borderColor = kAutomatic;
    bool m_bRoundedBorders = true;
    OleColor m_backColorOut = kAutomatic;
    bool m_bUseRoundRegions = false;
    bool m_bStretch = false;
    std::int32_t m_lTransparencyType = 0;
    OleColor m_transparentColor = -1;
    std::int16_t m_xTranspColor = 0;
    std::int16_t m_yTranspColor = 0;
};

} // namespace orvanta
