#include "files/TextFileForm.h"

#include "base/Utf8.h"

#include <cstddef>

namespace orvanta {

namespace {

std::u16string TextOfUnits(std::string_view sBody) {
    std::u16string sOut(sBody.size() / 2, u'\0');
    for (std::size_t n = 0; n < sOut.size(); ++n) {
        const auto low = static_cast<unsigned char>(sBody[2 * n]);
        const auto high = static_cast<unsigned char>(sBody[2 * n + 1]);
        sOut[n] = static_cast<char16_t>(high * 256 + low);
    }
    return sOut;
}

std::string UnitsOfText(std::u16string_view sText) {
    std::string sOut(sText.size() * 2, '\0');
    for (std::size_t n = 0; n < sText.size(); ++n) {
        sOut[2 * n] = static_cast<char>(sText[n] & 0xFF);
        sOut[2 * n + 1] = static_cast<char>(sText[n] >> 8);
    }
    return sOut;
}

} // namespace

std::string_view MarkOf(FileEncoding iEncoding) {
    if (iEncoding == feUnicode) return "\xFF\xFE";
    if (iEncoding == feUtf8) return "\xEF\xBB\xBF";
    return "";
}

std::u16string TextOfBody(FileEncoding iEncoding, std::string_view sBody, const AnsiCodePage& codePage) {
    if (iEncoding == feUnicode) return TextOfUnits(sBody);
    if (iEncoding == feUtf8) return Utf8BytesToString(sBody);
    return codePage.BytesToText(sBody);
}

std::string BodyOfText(FileEncoding iEncoding, std::u16string_view sText, const AnsiCodePage& codePage) {
    if (iEncoding == feUnicode) return UnitsOfText(sText);
    if (iEncoding == feUtf8) return StringToUtf8Bytes(sText);
    return codePage.TextToBytes(sText);
}

} // namespace orvanta
