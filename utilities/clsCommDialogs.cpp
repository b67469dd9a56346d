#include "utilities/clsCommDialogs.h"

#include "utilities/modCommDialogs.h"

namespace orvanta {

void clsCommDialogs::InitDialogs() const {
    orvanta::InitDialogs();
}

OleColor clsCommDialogs::ShowColor(HWND oFrm, OleColor lStartColor) const {
    return orvanta::ShowColor(oFrm, lStartColor);
}

std::u16string clsCommDialogs::ShowOpen(HWND hwndParent, const std::u16string& sFilter, const std::u16string& sTitle,
                                        std::int32_t& lFlags, const std::u16string& sStartDir,
                                        const std::u16string& sDefExt, const std::u16string& sDefaultFile) const {
    return orvanta::ShowOpen(hwndParent, sFilter, sTitle, lFlags, sStartDir, sDefExt, sDefaultFile);
}

std::u16string clsCommDialogs::ShowSave(HWND hwndParent, const std::u16string& sFilter, const std::u16string& sTitle,
                                        std::int32_t& lFlags, const std::u16string& sStartDir,
                                        const std::u16string& sDefaultFile, std::int32_t iFilterIndex,
                                        const std::u16string& sDefExt) const {
    return orvanta::ShowSave(hwndParent, sFilter, sTitle, lFlags, sStartDir, sDefaultFile, iFilterIndex, sDefExt);
}

bool clsCommDialogs::ShowFont(std::u16string& sFontName, OleColor& lFontColor, bool& bFontBold, bool& bFontItalic,
                              bool& bFontUnderline, bool& bFontStrikeout, std::int16_t& iSize) const {
    return orvanta::ShowFont(sFontName, lFontColor, bFontBold, bFontItalic, bFontUnderline, bFontStrikeout, iSize);
}

bool clsCommDialogs::ShowFontEx(IFont* CurFont, HDC PrinterDC, HWND Owner, OleColor& Color, std::int32_t MinSize,
                                std::int32_t MaxSize, std::int32_t flags) const {
    return orvanta::ShowFontEx(CurFont, PrinterDC, Owner, Color, MinSize, MaxSize, flags);
}

std::u16string clsCommDialogs::ShowDir(HWND hwndParent, const std::u16string& sStartFolder,
                                       const std::u16string& sTitle) const {
    return orvanta::ShowDir(hwndParent, sStartFolder, sTitle);
}

std::u16string clsCommDialogs::GetCustomColorsString() const {
    return orvanta::GetCustomColorsString();
}

void clsCommDialogs::SetCustomColorsString(const std::u16string& sColors) const {
    orvanta::SetCustomColorsString(sColors);
}

} // namespace orvanta
