#pragma once

#include "plumbing/SharedColors.h"

#include <windows.h>

#include <cstdint>
#include <string>

struct IFont;

namespace orvanta {

// The common dialogs of Windows as one object without a state. Every member forwards to the function of its name in
// modCommDialogs.h, where arguments, results and failures are told.
class clsCommDialogs {
public:
    void InitDialogs() const;
    OleColor ShowColor(HWND oFrm, OleColor lStartColor) const;
    std::u16string ShowOpen(HWND hwndParent, const std::u16string& sFilter, const std::u16string& sTitle,
                            std::int32_t& lFlags, const std::u16string& sStartDir, const std::u16string& sDefExt,
                            const std::u16string& sDefaultFile) const;
    std::u16string ShowSave(HWND hwndParent, const std::u16string& sFilter, const std::u16string& sTitle,
                            std::int32_t& lFlags, const std::u16string& sStartDir, const std::u16string& sDefaultFile,
                            std::int32_t iFilterIndex, const std::u16string& sDefExt) const;
    bool ShowFont(std::u16string& sFontName, OleColor& lFontColor, bool& bFontBold, bool& bFontItalic,
                  bool& bFontUnderline, bool& bFontStrikeout, std::int16_t& iSize) const;
    bool ShowFontEx(IFont* CurFont, HDC PrinterDC, HWND Owner, OleColor& Color, std::int32_t MinSize,
                    std::int32_t MaxSize, std::int32_t flags) const;
    std::u16string ShowDir(HWND hwndParent, const std::u16string& sStartFolder, const std::u16string& sTitle) const;
    std::u16string GetCustomColorsString() const;
    void SetCustomColorsString(const std::u16string& sColors) const;
};

} // namespace orvanta
