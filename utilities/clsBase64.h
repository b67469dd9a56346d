#pragma once

#include "base/AnsiCodePage.h"
#include "utilities/Base64WideBlocks.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace orvanta {

using ByteArray = std::vector<std::uint8_t>;

// Standard Base64, with "+", "/" and "=" padding, of byte arrays and strings.
//
//     clsBase64(codePage).GetEncodedB64String(u"Man", false) == u"TWFu"
//
// Decoding does not validate: a character outside the alphabet counts 255, a "=" that is no padding 64, and the bits
// that overlap are or-ed. Only a byte of 234 or above fails. An output array may be the input array.
class clsBase64 {
public:
    // The code page is the system's ANSI code page and must outlive the object. bWideBlocks takes the vector
    // instructions of the processor, with the same results.
    explicit clsBase64(const AnsiCodePage& codePage, bool bWideBlocks = CanUseWideBlocks());

    // Strings to strings. The bytes that are encoded are UTF-16 (little-endian) or the ANSI form. A failure inside
    // gives an empty string. There are no line breaks in the encoded text.
    std::u16string GetEncodedB64String(std::u16string_view sToEncode, bool bEncodeAsUnicodeString) const;
    std::u16string GetDecodedB64String(std::u16string_view sToDecode, bool bDecodeAsUnicodeString) const;

    void EncodeB64(const ByteArray& aDataIn, ByteArray& aDataOut) const;

    void AnsiStr2ByteArray(std::u16string_view sStringIn, ByteArray& aByteArray) const;
    std::u16string ByteArray2AnsiStr(const ByteArray& aData) const;
    // UTF-16, little-endian. An odd last byte is dropped.
    void UnicodeStr2ByteArray(std::u16string_view sStringIn, ByteArray& aByteArray) const;
    std::u16string ByteArray2UnicodeStr(const ByteArray& aData) const;

    // Puts CR and LF behind every lCharsPerLine bytes, also behind a last line that is full. At least one zero byte
    // remains at the end of the output. A length of 0 raises number 11, "Division by zero", a negative one
    // InvalidProcedureCall.
    void Span(std::int32_t lCharsPerLine, const ByteArray& aInArray, ByteArray& aOutArray) const;

    // CR, LF, blanks and tabs in the input are skipped. The output has the input's length x 0.75 less the padding,
    // rounded; bits that are missing at the end are zero. A byte of 234 or above raises SubscriptOutOfRange.
    void DecodeB64(const ByteArray& aDataIn, ByteArray& aDataOut) const;

    // Takes CR, LF, blanks and tabs out. Bytes above 127 go through the code page and back.
    void Unspan(const ByteArray& aArrayIn, ByteArray& aArrayOut) const;

private:
    std::size_t StripInto(const std::uint8_t* pIn, std::size_t nIn, ByteArray& aOut, std::size_t nOffset) const;
    void DecodeGroups(std::uint8_t* p, std::size_t nSymbols, std::size_t nBytes) const;
    std::uint32_t DecodeGroup(const std::uint8_t* p, std::size_t nSymbols) const;

    const AnsiCodePage& m_codePage;
    bool m_bWideBlocks;
    std::array<std::uint8_t, 64> m_aEncode;
    std::array<std::uint8_t, 234> m_aDecode;
};

} // namespace orvanta
