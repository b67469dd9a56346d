#include "files/PrefixedString.h"

#include "base/Utf8.h"
#include "files/TextFileForm.h"

namespace orvanta {

std::u16string StringToUtf8ByteString(std::u16string_view s, const AnsiCodePage& western) {
    return western.BytesToText(StringToUtf8Bytes(s));
}

std::u16string Utf8ByteStringToString(std::u16string_view s, const AnsiCodePage& western) {
    return Utf8BytesToStringEx(western.TextToBytes(s));
}

std::string BytesOfPrefixedString(FileEncoding iEncoding, std::u16string_view s, const AnsiCodePage& codePage,
                                  const AnsiCodePage& western) {
    if (iEncoding == feUtf8) return codePage.TextToBytes(StringToUtf8ByteString(s, western));
    return BodyOfText(iEncoding, s, codePage);
}

std::u16string TextOfPrefixedString(FileEncoding iEncoding, std::string_view sBytes, const AnsiCodePage& codePage,
                                    const AnsiCodePage& western) {
    if (iEncoding == feUtf8) return Utf8ByteStringToString(codePage.BytesToText(sBytes), western);
    return TextOfBody(iEncoding, sBytes, codePage);
}

} // namespace orvanta
