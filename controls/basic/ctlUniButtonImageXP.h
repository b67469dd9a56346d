#pragma once

#include "base/PixelRect.h"
#include "controls/contract/Control.h"

#include <windows.h>

#include <cstdint>
#include <string>

namespace orvanta {

// A push button with a caption and a picture, in twelve layouts (ButtonLayout.h) and nine face styles. It can stay down
// (Tristate). It looks the same under the mouse as away from it. Pictures are shared, not copied.
class ctlUniButtonImageXP : public TableControl<ctlUniButtonImageXP, KeyFaceControl>, public ResizeEvents {
public:
    using TableControl::TableControl;

    static const PropertyTable<ctlUniButtonImageXP>& Table() { return s_table; }

    const std::u16string& Caption() const { return m_sCaption; }
    void Caption(std::u16string s);
    const OlePicture& Picture() const { return m_picture; }
    void Picture(const OlePicture& picture);

    OleColor BackColor() const { return m_backColor; }
    void BackColor(OleColor c);
    OleColor ForeColor() const { return m_foreColor; }
    void ForeColor(OleColor c);
    // kAutomatic: derived from BackColor.
    OleColor BorderColor() const { return m_borderColor; }
    void BorderColor(OleColor c);
    // What shows outside rounded corners; kAutomatic for BackColor.
    OleColor BackColorOut() const { return m_backColorOut; }
    void BackColorOut(OleColor c);
    // 0 to 8, -1 for that of the whole program. A button that is new on a form starts with style 0 and a black border;
    // the defaults of both, -1, come in by a load only.
    std::int32_t Style() const { return m_lStyle; }
    void Style(std::int32_t l);
    bool RoundedBorders() const { return m_bRoundedBorders; }
    void RoundedBorders(bool b);
    // Gives the window rounded corners. Sets RoundedBorders to the same value.
    bool UseRoundRegions() const { return m_bUseRoundRegions; }
    void UseRoundRegions(bool b);

    // The mark of the focus, for which the margin is wider.
    bool ShowFocus() const { return m_bShowFocus; }
    void ShowFocus(bool b);
    // A click turns Pressed over, and the face stays down while it stands.
    bool Tristate() const { return m_bTristate; }
    void Tristate(bool b);
    bool Pressed() const { return m_bPressed; }
    void Pressed(bool b);
    // True presses the button as a click does; false does nothing.
    bool Value() const { return m_bPressed; }
    void Value(bool b);
    // A double click is DblClick; without it, a second Click.
    bool DblClickEvent() const { return m_bDblClickEvent; }
    void DblClickEvent(bool b);

    // The place of picture and caption, see LayOutButton.
    std::int32_t ImagePos() const { return m_lImagePos; }
    void ImagePos(std::int32_t l);
    // Scales a picture down that does not fit, proportions kept.
    bool Stretch() const { return m_bStretch; }
    void Stretch(bool b);
    // -1: no colour is transparent; 0: that of the picture's pixel xTranspColor, yTranspColor; 1: TransparentColor,
    // taken as a plain colour; while it is -1, that pixel again.
    std::int32_t TransparencyType() const { return m_lTransparencyType; }
    void TransparencyType(std::int32_t l);
    OleColor TransparentColor() const { return m_transparentColor; }
    void TransparentColor(OleColor c);
    std::int16_t xTranspColor() const { return m_xTranspColor; }
    void xTranspColor(std::int16_t i);
    std::int16_t yTranspColor() const { return m_yTranspColor; }
    void yTranspColor(std::int16_t i);

    // Asks for a repaint like any change does, whatever bNow says.
    void Refresh(bool bNow);
    // For a form that moves on without the button losing the real focus.
    void ForceLostFocus() { OnExitFocus(); }

    HostTraits Traits() const override;
    void OnInitProperties() override;
    void OnReadProperties(const PropertyBag& bag) override;
    void OnPaint() override;
    // Shapes the window, then raises Resize.
    void OnResize() override;
    void OnClick() override;
    void OnDblClick() override;
    void OnMouseDown(std::int16_t Button, std::int16_t Shift, float X, float Y) override;
    void OnMouseMove(std::int16_t Button, std::int16_t Shift, float X, float Y) override;
    void OnMouseUp(std::int16_t Button, std::int16_t Shift, float X, float Y) override;
    void OnKeyPress(std::int16_t& KeyAscii) override;
    void OnAccessKeyPress(std::int16_t KeyAscii) override;
    void OnEnterFocus() override;
    void OnExitFocus() override;

private:
    // Made when the program starts: a table that its first user makes costs the static analyzer minutes in each of
    // them.
    static const PropertyTable<ctlUniButtonImageXP> s_table;

    void pvDraw();
    void DrawCaption(HDC dc, const PixelRect& text, bool bEnabled);
    // The picture of this paint with its size in pixels.
    struct ShownPicture {
        OlePicture picture;
        PixelSize size;
    };
    ShownPicture PictureToShow(PixelSize face, std::int32_t margin) const;

    std::u16string m_sCaption;
    OlePicture m_picture;
    OleColor m_backColor = kSystemButtonFace;
    OleColor m_foreColor = kSystemButtonText;
    OleColor m_borderColor = 0;
    OleColor m_backColorOut = kAutomatic;
    std::int32_t m_lStyle = 0;
    bool m_bRoundedBorders = false;
    bool m_bUseRoundRegions = false;
    bool m_bShowFocus = true;
    bool m_bTristate = false;
    bool m_bPressed = false;
    bool m_bDblClickEvent = false;
    std::int32_t m_lImagePos = 0;
    bool m_bStretch = false;
    std::int32_t m_lTransparencyType = 0;
    OleColor m_transparentColor = -1;
    std::int16_t m_xTranspColor = 0;
    std::int16_t m_yTranspColor = 0;

    bool m_bHasFocus = false;
    bool m_bMouseDown = false;
};

} // namespace orvanta
