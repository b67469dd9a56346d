#pragma once

#include "base/AnsiCodePage.h"
#include "base/FileEncoding.h"

#include <string>
#include <string_view>

namespace orvanta {

// What a text file looks like in bytes, apart from how the bytes are fetched.

// The encoding that a file's first byte announces. Only this byte is looked at: FF or EF in any other sense counts too,
// and big-endian UTF-16 reads as ANSI.
constexpr FileEncoding EncodingOfFirstByte(unsigned char bFirst) {
    return bFirst == 0xFF ? feUnicode : bFirst == 0xEF ? feUtf8 : feAnsi;
}

// The bytes in front of the text: none for feAnsi, FF FE, EF BB BF. Empty for a value that is no encoding.
std::string_view MarkOf(FileEncoding iEncoding);

// The text of the bytes behind the mark. An odd last byte of UTF-16 is dropped.
std::u16string TextOfBody(FileEncoding iEncoding, std::string_view sBody, const AnsiCodePage& codePage);

// The bytes of a text, without the mark.
std::string BodyOfText(FileEncoding iEncoding, std::u16string_view sText, const AnsiCodePage& codePage);

} // namespace orvanta
