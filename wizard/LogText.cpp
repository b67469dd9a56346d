#include "wizard/LogText.h"

#include "base/Rounding.h"
#include "base/cStringBuilder2.h"

#include <cstddef>
#include <string>
#include <vector>

namespace orvanta {

namespace {

constexpr double kPixelsPerCharacter = 5;

} // namespace

std::u16string PadRight(std::u16string_view s, std::int32_t iWidth) {
    std::u16string sPadded(s);
    if (iWidth > 0 && sPadded.size() < static_cast<std::size_t>(iWidth)) {
        sPadded.resize(static_cast<std::size_t>(iWidth), u' ');
    }
    return sPadded;
}

std::u16string FilterAllFiles() {
    using namespace std::string_literals;
    return u"All Files (*.*)\0*.*\0"s;
}

std::u16string LogText(const LogTable& fxgrid) {
    const std::int32_t nCols = fxgrid.Cols();
    const std::int32_t nRows = fxgrid.Rows();
    cStringBuilder2 text;
    std::vector<std::int32_t> iChars;
    for (std::int32_t c = 1; c <= nCols; ++c) {
        iChars.push_back(RoundToInteger<std::int32_t>(fxgrid.ColWidth(c) / kPixelsPerCharacter));
        text.Append(PadRight(fxgrid.ColText(c), iChars.back()));
        if (c < nCols) text.Append(u", ");
    }
    text.Append(u"\r\n\r\n");
    for (std::int32_t r = 1; r <= nRows; ++r) {
        for (std::int32_t c = 1; c <= nCols; ++c) {
            text.Append(PadRight(fxgrid.CellValue(r, c).ToText(), iChars[static_cast<std::size_t>(c - 1)]));
            if (c < nCols) text.Append(u", ");
        }
        text.Append(u"\r\n");
    }
    return text.ToString();
}

} // namespace orvanta
