#pragma once

#include "base/AnsiCodePage.h"
#include "base/FileEncoding.h"

#include <string>
#include <string_view>

namespace orvanta {

// The bytes behind the count of a length-prefixed string, apart from how they are fetched.

// A text of one character for each UTF-8 byte of s, by the western code page (1252) whatever the system's is, and back.
// The way back has its own table of lead bytes. western is that code page: the platform's own, which puts look-alikes
// for characters without a place, wherever real files are read.
std::u16string StringToUtf8ByteString(std::u16string_view s, const AnsiCodePage& western);
std::u16string Utf8ByteStringToString(std::u16string_view s, const AnsiCodePage& western);

// feAnsi: by the code page. feUnicode: the code units. feUtf8: the byte string above, turned into bytes by the code
// page; with any other than the western one this damages what is not ASCII, and files in the field have it so.
std::string BytesOfPrefixedString(FileEncoding iEncoding, std::u16string_view s, const AnsiCodePage& codePage,
                                  const AnsiCodePage& western);
std::u16string TextOfPrefixedString(FileEncoding iEncoding, std::string_view sBytes, const AnsiCodePage& codePage,
                                    const AnsiCodePage& western);

} // namespace orvanta
