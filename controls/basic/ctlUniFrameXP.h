#pragma once

#include "controls/contract/Control.h"
#include "plumbing/SharedColors.h"

#include <windows.h>

#include <cstdint>
#include <string>

namespace orvanta {

// Groups other controls under a Unicode title: they are its children, and disabled and hidden with it. Two looks, an
// etched box or, with VistaStyle, a box with a gradient band for the title.
//
// Colours may be system colours. kAutomatic derives the border and the title band from BackColor; as the colour of the
// cut corners outside of the band look it stands for BackColor.
class ctlUniFrameXP : public TableControl<ctlUniFrameXP, FaceControl> {
public:
    explicit ctlUniFrameXP(ControlHost& host) : TableControl(host) {}

    static const PropertyTable<ctlUniFrameXP>& Table() { return s_table; }

    // Empty means no band and no gap for the title.
    const std::u16string& Caption() const { return m_sCaption; }
    void Caption(std::u16string s);
    // The frame's own flag. The window follows it in run mode only: in a form designer a disabled frame can still be
    // worked on.
    bool Enabled() const override { return m_bEnabled; }
    void Enabled(bool b) override;
    OleColor ForeColor() const { return m_foreColor; }
    void ForeColor(OleColor c);
    OleColor BorderColor() const { return m_borderColor; }
    void BorderColor(OleColor c);
    OleColor BackColor() const { return m_backColor; }
    void BackColor(OleColor c);
    // A change only; false on a frame that has just been put on a form.
    bool VistaStyle() const { return m_bVistaStyle; }
    void VistaStyle(bool b);
    OleColor BackColorOut() const { return m_backColorOut; }
    void BackColorOut(OleColor c);
    OleColor TitleBackColor() const { return m_titleBackColor; }
    void TitleBackColor(OleColor c);
    // One pixel right of and below the title.
    bool UseShadow() const { return m_bUseShadow; }
    void UseShadow(bool b);

    HostTraits Traits() const override { return {.bCanGetFocus = false, .bHoldsControls = true}; }
    void OnInitProperties() override;
    void OnReadProperties(const PropertyBag& bag) override;
    void OnPaint() override { pvDraw(nullptr); }
    void OnResize() override;

protected:
    void pvInvalidate() override;

private:
    // Made when the program starts: a table that its first user makes costs the static analyzer minutes in each of
    // them.
    static const PropertyTable<ctlUniFrameXP> s_table;

    // No dc means the host's own.
    void pvDraw(HDC dc);
    // Passes the flag on to the window where it is due; true when that changed it.
    bool PassEnabledOn();
    void TakeTextColor();
    void DrawBandLook(HDC dc);
    void DrawEtchedLook(HDC dc);
    void DrawTitle(HDC dc, const std::u16string& sTitle, RECT rect, UINT flags);

    std::u16string m_sCaption;
    bool m_bEnabled = true;
    OleColor m_foreColor = kSystemWindowFrame;
    OleColor m_borderColor = kAutomatic;
    OleColor m_backColor = kSystemButtonFace;
    bool m_bVistaStyle = false;
    OleColor m_backColorOut = kAutomatic;
    OleColor m_titleBackColor = kAutomatic;
    bool m_bUseShadow = false;
};

} // namespace orvanta
