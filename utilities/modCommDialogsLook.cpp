// The colour and font dialogs of modCommDialogs.h. Both are the platform's ANSI forms.
#include "base/Rounding.h"
#include "plumbing/GdiOwner.h"
#include "plumbing/SystemAnsiCodePage.h"
#include "plumbing/WideText.h"
#include "utilities/CustomColors.h"
#include "utilities/modCommDialogs.h"

#include <commdlg.h>
#include <ocidl.h>
#include <oleauto.h>

#include <algorithm>
#include <cstring>
#include <memory>

namespace orvanta {

namespace {

static_assert(sizeof(COLORREF) == sizeof(std::uint32_t));

CustomColors g_customColors;

LONG HeightOfPoints(int iPoints) {
    const WindowDc screen(nullptr);
    return -MulDiv(iPoints, GetDeviceCaps(screen.Get(), LOGPIXELSY), 72);
}

void SetFaceName(LOGFONTA& font, std::u16string_view sName) {
    const std::string sBytes = SystemAnsiCodePage::Instance().TextToBytes(sName);
    std::memset(font.lfFaceName, 0, sizeof font.lfFaceName);
    std::memcpy(font.lfFaceName, sBytes.data(), std::min(sBytes.size(), sizeof font.lfFaceName - 1));
}

std::u16string FaceName(const LOGFONTA& font) {
    return SystemAnsiCodePage::Instance().BytesToText(font.lfFaceName);
}

CHOOSEFONTA FontDialog(LOGFONTA& font, OleColor lColor, DWORD lFlags) {
    CHOOSEFONTA dialog{};
    dialog.lStructSize = sizeof dialog;
    dialog.lpLogFont = &font;
    dialog.rgbColors = static_cast<COLORREF>(ResolveColor(lColor));
    dialog.Flags = lFlags | CF_INITTOLOGFONTSTRUCT;
    return dialog;
}

struct FreeBstr {
    void operator()(OLECHAR* s) const { SysFreeString(s); }
};
using OwnedBstr = std::unique_ptr<OLECHAR, FreeBstr>;

// The platform's money type counts in ten-thousandths.
constexpr LONGLONG kCurrencyUnit = 10000;

} // namespace

OleColor ShowColor(HWND oFrm, OleColor lStartColor) {
    CHOOSECOLORA dialog{};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = oFrm;
    dialog.rgbResult = static_cast<COLORREF>(ResolveColor(lStartColor));
    dialog.lpCustColors = reinterpret_cast<COLORREF*>(g_customColors.Data());
    dialog.Flags = CC_RGBINIT | CC_ANYCOLOR;
    return ChooseColorA(&dialog) ? static_cast<OleColor>(dialog.rgbResult) : lStartColor;
}

std::u16string GetCustomColorsString() {
    return g_customColors.ToText();
}

void SetCustomColorsString(const std::u16string& sColors) {
    g_customColors.FromText(sColors);
}

bool ShowFont(std::u16string& sFontName, OleColor& lFontColor, bool& bFontBold, bool& bFontItalic, bool& bFontUnderline,
              bool& bFontStrikeout, std::int16_t& iSize) {
    LOGFONTA font{};
    SetFaceName(font, sFontName);
    font.lfHeight = HeightOfPoints(iSize);
    font.lfWeight = bFontBold ? FW_BOLD : FW_NORMAL;
    font.lfItalic = bFontItalic;
    font.lfUnderline = bFontUnderline;
    font.lfStrikeOut = bFontStrikeout;
    font.lfCharSet = DEFAULT_CHARSET;
    CHOOSEFONTA dialog = FontDialog(font, lFontColor, CF_SCREENFONTS | CF_EFFECTS);
    if (!ChooseFontA(&dialog)) return false;
    sFontName = FaceName(font);
    lFontColor = static_cast<OleColor>(dialog.rgbColors);
    bFontBold = font.lfWeight >= FW_BOLD;
    bFontItalic = font.lfItalic != 0;
    bFontUnderline = font.lfUnderline != 0;
    bFontStrikeout = font.lfStrikeOut != 0;
    iSize = RoundToInteger<std::int16_t>(dialog.iPointSize / 10.0);
    return true;
}

bool ShowFontEx(IFont* CurFont, HDC PrinterDC, HWND Owner, OleColor& Color, std::int32_t MinSize, std::int32_t MaxSize,
                std::int32_t flags) {
    HFONT hFont = nullptr;
    LOGFONTA font{};
    if (!CurFont || FAILED(CurFont->get_hFont(&hFont)) || !GetObjectA(hFont, sizeof font, &font)) return false;
    auto lFlags = static_cast<DWORD>(flags);
    if (PrinterDC) lFlags |= CF_PRINTERFONTS;
    if ((lFlags & CF_BOTH) == 0) lFlags |= CF_SCREENFONTS;
    if (MinSize > 0 || MaxSize > 0) lFlags |= CF_LIMITSIZE;
    CHOOSEFONTA dialog = FontDialog(font, Color, lFlags);
    dialog.hwndOwner = Owner;
    dialog.hDC = PrinterDC;
    dialog.nSizeMin = MinSize;
    dialog.nSizeMax = MaxSize;
    if (!ChooseFontA(&dialog)) return false;
    const OwnedBstr name(SysAllocString(WideOf(FaceName(font))));
    CurFont->put_Name(name.get());
    CY size{};
    size.int64 = dialog.iPointSize * (kCurrencyUnit / 10);
    CurFont->put_Size(size);
    CurFont->put_Bold(font.lfWeight >= FW_BOLD);
    CurFont->put_Italic(font.lfItalic != 0);
    CurFont->put_Underline(font.lfUnderline != 0);
    CurFont->put_Strikethrough(font.lfStrikeOut != 0);
    Color = static_cast<OleColor>(dialog.rgbColors);
    return true;
}

} // namespace orvanta
