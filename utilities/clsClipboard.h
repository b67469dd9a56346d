#pragma once

#include <string>
#include <string_view>

namespace orvanta {

// The clipboard's text. Neither direction raises anything, and the clipboard is closed again whatever happens. Systems
// from Windows 95 to NT 4 get plain text in the ANSI code page, others Unicode.
class clsClipboard {
public:
    // Up to its first NUL. Empty when the clipboard holds no text, or cannot be read.
    std::u16string Text() const;
    // Empties the clipboard and puts the text on it. False when another program holds the clipboard.
    bool Text(std::u16string_view sText) const;
};

} // namespace orvanta
