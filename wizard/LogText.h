#pragma once

#include "wizard/WizardView.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace orvanta {

// The log as text: a line of column titles, an empty line, and one line for each row. Cells are filled with blanks up
// to the width of their column, a character counted as five pixels, and separated by ", ". Nothing is quoted, and a
// longer cell is not cut: it pushes the following ones to the right. Lines end in CR LF.
std::u16string LogText(const LogTable& fxgrid);

// s with blanks up to iWidth characters. A longer s stays whole.
std::u16string PadRight(std::u16string_view s, std::int32_t iWidth);

// The filter of the dialog that saves the log.
std::u16string FilterAllFiles();

} // namespace orvanta
