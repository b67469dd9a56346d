#pragma once

#include "plumbing/SharedColors.h"

#include <windows.h>

#include <cstdint>
#include <string>

struct IFont;

namespace orvanta {

// The common dialogs of Windows. Each call returns when the user has answered. An owner of nullptr is none; an empty
// text leaves the matter to the platform. Only the file dialogs raise anything.

// Registers the window classes of the common controls.
void InitDialogs();

// The path of one file to open or to save, empty on cancel. sFilter is pairs of description and pattern, each of the
// texts ending in NUL. lFlags are the platform's OFN_ values; OFN_EXPLORER is added. When a file was chosen they are
// the resulting flags, output flags included, and on cancel unchanged. sDefaultFile stands in the name box, cut at
// 2,047 characters. iFilterIndex counts from 1; with 0 the platform chooses.
// Raises the system's own failure, with the function's name as source, when lFlags holds OFN_EXTENSIONDIFFERENT (so
// resulting flags are not always good for a second call) or all bits from 15 on.
std::u16string ShowOpen(HWND hwndParent, const std::u16string& sFilter, const std::u16string& sTitle,
                        std::int32_t& lFlags, const std::u16string& sStartDir, const std::u16string& sDefExt,
                        const std::u16string& sDefaultFile);
std::u16string ShowSave(HWND hwndParent, const std::u16string& sFilter, const std::u16string& sTitle,
                        std::int32_t& lFlags, const std::u16string& sStartDir, const std::u16string& sDefaultFile,
                        std::int32_t iFilterIndex, const std::u16string& sDefExt);

// A folder, empty on cancel. sStartFolder is selected at first.
std::u16string ShowDir(HWND hwndParent, const std::u16string& sStartFolder, const std::u16string& sTitle);

// The chosen colour, a plain 0x00BBGGRR value; on cancel lStartColor as it was given. The dialog opens on
// lStartColor, which may be a system colour, and shows and keeps the custom colours of the process.
OleColor ShowColor(HWND oFrm, OleColor lStartColor);
// The custom colours as text, in the form that CustomColors.h tells.
std::u16string GetCustomColorsString();
void SetCustomColorsString(const std::u16string& sColors);

// Whether a font was chosen; on cancel nothing is changed. The arguments are what the dialog starts from and what it
// gave back. The font's name goes through the ANSI code page. iSize is in whole points.
bool ShowFont(std::u16string& sFontName, OleColor& lFontColor, bool& bFontBold, bool& bFontItalic, bool& bFontUnderline,
              bool& bFontStrikeout, std::int16_t& iSize);
// The same for a font object, which takes up the choice in tenths of a point. flags are the platform's CF_ values, to
// which the starting font is added; without a kind of fonts in them those of the screen are offered, and with a
// PrinterDC those of that printer too. MinSize and MaxSize in points limit the sizes when one of them is above 0.
// False without a font object.
bool ShowFontEx(IFont* CurFont, HDC PrinterDC, HWND Owner, OleColor& Color, std::int32_t MinSize, std::int32_t MaxSize,
                std::int32_t flags);

} // namespace orvanta
