#pragma once

#include "drawing/OleFont.h"
#include "plumbing/GdiOwner.h"

#include <windows.h>

#include <cstdint>
#include <string>

namespace orvanta {

// Selects a font, made from its description, into a DC for the time of a drawing. Owns the font, and undoes the
// selection in Destroy and at its end: that must come before the DC goes.
//
//     clsFontHDC font;
//     font.SetFontToDCStdFont(buffer.Hdc(), host.Font(), -1, 0, 0, false);
//     ... draw text ...
//     font.Destroy();
//
// A DC of 0 raises "Cannot use this DC!". A font that cannot be made raises nothing; none is selected then.
class clsFontHDC {
public:
    clsFontHDC() = default;
    clsFontHDC(const clsFontHDC&) = delete;
    clsFontHDC& operator=(const clsFontHDC&) = delete;
    ~clsFontHDC() { Destroy(); }

    // Lent; 0 when there is none.
    HFONT hFont() const { return m_font.Get(); }

    void Destroy();

    // Dots per inch to take in place of those of the DC, for a window whose monitor has others; 0 takes the DC's again.
    // Destroys the present font.
    void Resolution(std::int32_t lDpi);

    // iFontSize in points. lForeColor is an OLE colour; -1 keeps the text colour of the DC, any other stays set after
    // Destroy. iCharWeightInc widens the characters by so many pixels on average, to a width of 1 at least. bForce96DPI
    // takes 96 dots per inch, whatever the DC has; a change of it alone, on the same DC with the same size, keeps the
    // height.
    void SetFontToDC(HDC lHdc, const std::u16string& sFontName, std::int16_t iFontSize, std::int32_t lForeColor,
                     bool bFontBold, bool bFontItalic, bool bFontUnderline, bool bFontStrikeout,
                     std::int32_t iQualityType, std::int16_t iCharWeightInc, bool bForce96DPI);

    // The same from a font object. The fraction of its size is dropped, so that text comes out a little smaller than
    // with the font's own handle. Overflow for a size beyond 16 bits.
    void SetFontToDCStdFont(HDC lHdc, const OleFont& oFont, std::int32_t lForeColor, std::int32_t iQualityType,
                            std::int16_t iCharWeightInc, bool bForce96DPI);

private:
    void Select(HDC lHdc, HFONT font);

    HDC m_targetDc = nullptr;
    OwnedFont m_font;
    HGDIOBJ m_oldFont = nullptr;
    std::int32_t m_lOwnResolution = 0;
    std::int32_t m_lResolution = 0;
    std::int16_t m_iSize = 0;
    std::int32_t m_lHeight = 0;
    bool m_bForce96DPI = false;
};

} // namespace orvanta
