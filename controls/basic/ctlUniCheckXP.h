#pragma once

#include "controls/contract/Control.h"

#include <windows.h>

#include <cstdint>
#include <string>

namespace orvanta {

// A check box with two states and a caption that wraps. The box is a small face of 15 by 15 pixels (CheckLayout.h).
class ctlUniCheckXP : public TableControl<ctlUniCheckXP, KeyFaceControl> {
public:
    using TableControl::TableControl;

    static const PropertyTable<ctlUniCheckXP>& Table() { return s_table; }

    const std::u16string& Caption() const { return m_sCaption; }
    void Caption(std::u16string s);
    // 0: the box is at the left; any other value: at the right.
    std::int16_t Align() const { return m_iAlign; }
    void Align(std::int16_t i);

    // The inside of the box, the tick, the rest of the control and the caption.
    OleColor CheckBackColor() const { return m_checkBackColor; }
    void CheckBackColor(OleColor c);
    OleColor CheckForeColor() const { return m_checkForeColor; }
    void CheckForeColor(OleColor c);
    OleColor BackColor() const { return m_backColor; }
    void BackColor(OleColor c);
    OleColor ForeColor() const { return m_foreColor; }
    void ForeColor(OleColor c);
    // The border of the box; kAutomatic: derived from its inside.
    OleColor BorderColor() const { return m_borderColor; }
    void BorderColor(OleColor c);
    // The face of the box, 0 to 8, -1 for that of the whole program.
    std::int32_t Style() const { return m_lStyle; }
    void Style(std::int32_t l);
    // The mark around the caption; without a caption there is none.
    bool ShowFocus() const { return m_bShowFocus; }
    void ShowFocus(bool b);

    // Whether the box is checked. A change raises Click, as the user's own does.
    bool Pressed() const { return m_bPressed; }
    void Pressed(bool b);
    // 1 or 0; any other value than 0 checks the box.
    std::int16_t Value() const { return m_bPressed ? std::int16_t{1} : std::int16_t{0}; }
    void Value(std::int16_t i) { Pressed(i != 0); }

    void OnInitProperties() override;
    void OnReadProperties(const PropertyBag& bag) override;
    void OnPaint() override;
    void OnResize() override;
    // Only behind a press of the left button or a key, which arm it; the release of the button does not disarm.
    void OnClick() override;
    void OnDblClick() override;
    void OnMouseDown(std::int16_t Button, std::int16_t Shift, float X, float Y) override;
    void OnKeyPress(std::int16_t& KeyAscii) override;
    void OnAccessKeyPress(std::int16_t KeyAscii) override;
    void OnEnterFocus() override;
    void OnExitFocus() override;

private:
    // Made when the program starts: a table that its first user makes costs the static analyzer minutes in each of
    // them.
    static const PropertyTable<ctlUniCheckXP> s_table;

    void ArmAndClick();
    void pvDraw();
    void DrawBox(HDC dc, bool bEnabled) const;
    void DrawCaption(HDC dc, bool bEnabled);

    std::u16string m_sCaption;
    std::int16_t m_iAlign = 0;
    OleColor m_checkBackColor = kSystemWindow;
    OleColor m_checkForeColor = kSystemWindowText;
    OleColor m_backColor = kSystemButtonFace;
    OleColor m_foreColor = kSystemButtonText;
    OleColor m_borderColor = kAutomatic;
    bool m_bPressed = false;
    std::int32_t m_lStyle = -1;
    bool m_bShowFocus = true;

    bool m_bHasFocus = false;
    bool m_bArmed = false;
};

} // namespace orvanta
