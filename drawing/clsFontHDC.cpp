#include "drawing/clsFontHDC.h"

#include "base/Failure.h"
#include "plumbing/SharedColors.h"
#include "plumbing/WideText.h"

#include <cmath>

namespace orvanta {

namespace {

constexpr int kDotsPerInchForced = 96;
constexpr int kPointsPerInch = 72;

std::int16_t WithoutFraction(double dSize) {
    const double dWhole = std::trunc(dSize);
    if (!(dWhole >= INT16_MIN && dWhole <= INT16_MAX)) throw Overflow();
    return static_cast<std::int16_t>(dWhole);
}

// The average character width of the selected font and so many pixels, in 16 bits.
int WidenedWidth(HDC lHdc, std::int16_t iCharWeightInc) {
    TEXTMETRICA metrics{};
    GetTextMetricsA(lHdc, &metrics);
    const std::int64_t lWidth = std::int64_t{metrics.tmAveCharWidth} + iCharWeightInc;
    if (lWidth > INT16_MAX) throw Overflow();
    return lWidth < 1 ? 1 : static_cast<int>(lWidth);
}

} // namespace

void clsFontHDC::Destroy() {
    if (m_targetDc && m_oldFont) SelectObject(m_targetDc, m_oldFont);
    m_targetDc = nullptr;
    m_oldFont = nullptr;
    m_font.Reset();
}

void clsFontHDC::Resolution(std::int32_t lDpi) {
    Destroy();
    m_lOwnResolution = lDpi;
}

void clsFontHDC::Select(HDC lHdc, HFONT font) {
    m_font.Reset(font);
    if (!font) return;
    m_targetDc = lHdc;
    m_oldFont = SelectObject(lHdc, font);
}

void clsFontHDC::SetFontToDC(HDC lHdc, const std::u16string& sFontName, std::int16_t iFontSize, std::int32_t lForeColor,
                             bool bFontBold, bool bFontItalic, bool bFontUnderline, bool bFontStrikeout,
                             std::int32_t iQualityType, std::int16_t iCharWeightInc, bool bForce96DPI) {
    if (!lHdc) throw OwnFailure(u"clsFontHDC.SetFontToDC", u"Cannot use this DC!");
    if (lHdc != m_targetDc || bForce96DPI != m_bForce96DPI) {
        m_bForce96DPI = bForce96DPI;
        if (bForce96DPI) {
            m_lResolution = kDotsPerInchForced;
        } else {
            m_lResolution = m_lOwnResolution != 0 ? m_lOwnResolution : GetDeviceCaps(lHdc, LOGPIXELSY);
        }
    }
    if (iFontSize != m_iSize || lHdc != m_targetDc) {
        m_iSize = iFontSize;
        m_lHeight = -MulDiv(iFontSize, m_lResolution, kPointsPerInch);
    }
    Destroy();

    const auto create = [&](int width) {
        return CreateFontW(m_lHeight, width, 0, 0, bFontBold ? FW_BOLD : FW_NORMAL, bFontItalic, bFontUnderline,
                           bFontStrikeout, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS,
                           static_cast<DWORD>(iQualityType), DEFAULT_PITCH | FF_DONTCARE, WideOf(sFontName));
    };
    Select(lHdc, create(0));
    if (!m_font) return;
    if (lForeColor != -1) SetTextColor(lHdc, static_cast<COLORREF>(ResolveColor(lForeColor)));
    if (iCharWeightInc != 0) {
        const int width = WidenedWidth(lHdc, iCharWeightInc);
        Destroy();
        Select(lHdc, create(width));
    }
}

void clsFontHDC::SetFontToDCStdFont(HDC lHdc, const OleFont& oFont, std::int32_t lForeColor, std::int32_t iQualityType,
                                    std::int16_t iCharWeightInc, bool bForce96DPI) {
    SetFontToDC(lHdc, oFont.Name(), WithoutFraction(oFont.Size()), lForeColor, oFont.Bold(), oFont.Italic(),
                oFont.Underline(), oFont.Strikethrough(), iQualityType, iCharWeightInc, bForce96DPI);
}

} // namespace orvanta
