#include "utilities/clsBase64.h"

#include "base/Failure.h"
#include "base/Rounding.h"

#include <algorithm>
#include <string>

namespace orvanta {
namespace {

constexpr std::string_view kAlphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr std::uint8_t kPadding = '=';
constexpr std::uint8_t kOutside = 255;

std::string_view ViewOf(const ByteArray& a) {
    return {reinterpret_cast<const char*>(a.data()), a.size()};
}

void Assign(ByteArray& a, std::string_view s) {
    a.assign(s.begin(), s.end());
}

std::uint8_t ByteOf(std::uint32_t n) {
    return static_cast<std::uint8_t>(n & 0xFF);
}

} // namespace

clsBase64::clsBase64(const AnsiCodePage& codePage, bool bWideBlocks)
    : m_codePage(codePage), m_bWideBlocks(bWideBlocks) {
    m_aDecode.fill(kOutside);
    for (std::size_t n = 0; n < m_aEncode.size(); ++n) {
        m_aEncode[n] = static_cast<std::uint8_t>(kAlphabet[n]);
        m_aDecode[m_aEncode[n]] = static_cast<std::uint8_t>(n);
    }
    m_aDecode[kPadding] = 64;
}

std::u16string clsBase64::GetEncodedB64String(std::u16string_view sToEncode, bool bEncodeAsUnicodeString) const try {
    ByteArray aData;
    if (bEncodeAsUnicodeString) {
        UnicodeStr2ByteArray(sToEncode, aData);
    } else {
        AnsiStr2ByteArray(sToEncode, aData);
    }
    ByteArray aEncoded;
    EncodeB64(aData, aEncoded);
    return ByteArray2AnsiStr(aEncoded);
} catch (const Failure&) {
    return {};
}

std::u16string clsBase64::GetDecodedB64String(std::u16string_view sToDecode, bool bDecodeAsUnicodeString) const try {
    ByteArray aData;
    AnsiStr2ByteArray(sToDecode, aData);
    ByteArray aDecoded;
    DecodeB64(aData, aDecoded);
    return bDecodeAsUnicodeString ? ByteArray2UnicodeStr(aDecoded) : ByteArray2AnsiStr(aDecoded);
} catch (const Failure&) {
    return {};
}

void clsBase64::EncodeB64(const ByteArray& aDataIn, ByteArray& aDataOut) const {
    if (&aDataIn == &aDataOut) return EncodeB64(ByteArray(aDataIn), aDataOut);
    aDataOut.resize((aDataIn.size() + 2) / 3 * 4);
    const std::uint8_t* p = aDataIn.data();
    std::size_t nLeft = aDataIn.size();
    std::uint8_t* pOut = aDataOut.data();
    if (m_bWideBlocks) {
        const std::size_t nDone = EncodeWideBlocks(p, nLeft, pOut);
        p += nDone;
        nLeft -= nDone;
        pOut += nDone / 3 * 4;
    }
    const auto put = [&](std::uint32_t nGroup) {
        for (int iShift = 18; iShift >= 0; iShift -= 6)
            *pOut++ = m_aEncode[nGroup >> iShift & 63];
    };
    for (; nLeft >= 3; nLeft -= 3, p += 3)
        put(std::uint32_t{p[0]} << 16 | std::uint32_t{p[1]} << 8 | p[2]);
    if (nLeft == 0) return;
    put(std::uint32_t{p[0]} << 16 | (nLeft == 2 ? std::uint32_t{p[1]} << 8 : 0));
    std::fill(aDataOut.end() - static_cast<std::ptrdiff_t>(3 - nLeft), aDataOut.end(), kPadding);
}

void clsBase64::AnsiStr2ByteArray(std::u16string_view sStringIn, ByteArray& aByteArray) const {
    Assign(aByteArray, m_codePage.TextToBytes(sStringIn));
}

std::u16string clsBase64::ByteArray2AnsiStr(const ByteArray& aData) const {
    return m_codePage.BytesToText(ViewOf(aData));
}

void clsBase64::UnicodeStr2ByteArray(std::u16string_view sStringIn, ByteArray& aByteArray) const {
    aByteArray.clear();
    aByteArray.reserve(sStringIn.size() * 2);
    for (const char16_t c : sStringIn) {
        aByteArray.push_back(ByteOf(c));
        aByteArray.push_back(ByteOf(static_cast<std::uint32_t>(c) >> 8));
    }
}

std::u16string clsBase64::ByteArray2UnicodeStr(const ByteArray& aData) const {
    std::u16string s(aData.size() / 2, u'\0');
    for (std::size_t n = 0; n < s.size(); ++n)
        s[n] = static_cast<char16_t>(aData[2 * n] | aData[2 * n + 1] << 8);
    return s;
}

void clsBase64::Span(std::int32_t lCharsPerLine, const ByteArray& aInArray, ByteArray& aOutArray) const {
    if (&aInArray == &aOutArray) return Span(lCharsPerLine, ByteArray(aInArray), aOutArray);
    if (lCharsPerLine == 0) throw DivisionByZero();
    if (lCharsPerLine < 0) throw InvalidProcedureCall();
    const float x = static_cast<float>(aInArray.size()) / static_cast<float>(lCharsPerLine);
    const double dRounded = RoundHalfEven(x);
    // A fraction of a half or above counts one line too many; the surplus stays at the end as zeros.
    const auto nLines = static_cast<std::size_t>(dRounded) + (dRounded != x ? 1 : 0);
    aOutArray.resize(aInArray.size() + 2 * nLines + 1);

    const auto nPerLine = static_cast<std::size_t>(lCharsPerLine);
    const std::uint8_t* p = aInArray.data();
    std::size_t nLeft = aInArray.size();
    std::uint8_t* pOut = aOutArray.data();
    std::uint8_t* const pEnd = pOut + aOutArray.size();
    // In single precision a very long input can count too few lines: then the output ends full.
    while (nLeft > 0 && pOut != pEnd) {
        const std::size_t nLine = std::min({nPerLine, nLeft, static_cast<std::size_t>(pEnd - pOut)});
        pOut = std::copy_n(p, nLine, pOut);
        p += nLine;
        nLeft -= nLine;
        if (nLine < nPerLine) break;
        if (pOut != pEnd) *pOut++ = '\r';
        if (pOut != pEnd) *pOut++ = '\n';
    }
    std::fill(pOut, pEnd, std::uint8_t{0});
}

void clsBase64::DecodeB64(const ByteArray& aDataIn, ByteArray& aDataOut) const {
    if (&aDataIn == &aDataOut) return DecodeB64(ByteArray(aDataIn), aDataOut);
    // What is plain alphabet at the front is decoded as it stands. The rest goes to the same place without its spaces
    // and is decoded there: a group's bytes never reach beyond its characters.
    aDataOut.resize(aDataIn.size());
    const std::size_t nDone = m_bWideBlocks ? DecodeWideBlocks(aDataIn.data(), aDataIn.size(), aDataOut.data()) : 0;
    const std::size_t nOffset = nDone / 4 * 3;
    const std::size_t nRest = StripInto(aDataIn.data() + nDone, aDataIn.size() - nDone, aDataOut, nOffset);

    std::uint8_t* p = aDataOut.data() + nOffset;
    std::size_t nPadding = 0;
    while (nPadding < 2 && nPadding < nRest && p[nRest - 1 - nPadding] == kPadding)
        ++nPadding;
    const double dSize = static_cast<double>(nDone + nRest) * 0.75 - static_cast<double>(nPadding);
    const auto nSize = static_cast<std::size_t>(std::max(RoundHalfEven(dSize), 0.0));
    try {
        DecodeGroups(p, nRest - nPadding, nSize - nOffset);
    } catch (const Failure&) {
        aDataOut.clear();
        throw;
    }
    aDataOut.resize(nSize);
}

void clsBase64::Unspan(const ByteArray& aArrayIn, ByteArray& aArrayOut) const {
    if (&aArrayIn == &aArrayOut) return Unspan(ByteArray(aArrayIn), aArrayOut);
    aArrayOut.resize(aArrayIn.size());
    aArrayOut.resize(StripInto(aArrayIn.data(), aArrayIn.size(), aArrayOut, 0));
}

// Unspans into aOut from nOffset on, where there is room for nIn bytes. aOut grows if the code page gives back more
// than that. Returns the length.
std::size_t clsBase64::StripInto(const std::uint8_t* pIn, std::size_t nIn, ByteArray& aOut, std::size_t nOffset) const {
    std::uint8_t* const pOut = aOut.data() + nOffset;
    StrippedBlocks done = m_bWideBlocks ? StripWideBlocks(pIn, nIn, pOut) : StrippedBlocks{0, 0};
    for (; done.nTaken < nIn && pIn[done.nTaken] < 128; ++done.nTaken) {
        const std::uint8_t c = pIn[done.nTaken];
        if (!IsBase64Space(c)) pOut[done.nWritten++] = c;
    }
    if (done.nTaken == nIn) return done.nWritten;

    // Below 128 all ANSI code pages agree. Above, only the code page knows what comes back.
    std::u16string sText = m_codePage.BytesToText({reinterpret_cast<const char*>(pIn), nIn});
    std::erase_if(sText, [](char16_t c) { return c < 128 && IsBase64Space(static_cast<std::uint8_t>(c)); });
    const std::string sBytes = m_codePage.TextToBytes(sText);
    aOut.resize(std::max(aOut.size(), nOffset + sBytes.size()));
    std::copy(sBytes.begin(), sBytes.end(), aOut.begin() + static_cast<std::ptrdiff_t>(nOffset));
    return sBytes.size();
}

// Decodes nSymbols characters at p in their own place. Only the first nBytes bytes are written.
void clsBase64::DecodeGroups(std::uint8_t* p, std::size_t nSymbols, std::size_t nBytes) const {
    const std::uint8_t* pIn = p;
    while (nSymbols >= 4 && nBytes >= 3) {
        if (m_bWideBlocks) {
            const std::size_t nDone = DecodeWideBlocks(pIn, nSymbols, p);
            pIn += nDone;
            nSymbols -= nDone;
            p += nDone / 4 * 3;
            nBytes -= nDone / 4 * 3;
        }
        // The end, or a block with a character outside the alphabet.
        for (int iGroup = 0; iGroup < 4 && nSymbols >= 4 && nBytes >= 3; ++iGroup) {
            const std::uint32_t nGroup = DecodeGroup(pIn, 4);
            p[0] = ByteOf(nGroup >> 16);
            p[1] = ByteOf(nGroup >> 8);
            p[2] = ByteOf(nGroup);
            pIn += 4;
            nSymbols -= 4;
            p += 3;
            nBytes -= 3;
        }
    }
    // The last group: not whole, or with bytes that the size leaves out.
    const std::uint32_t nGroup = DecodeGroup(pIn, nSymbols);
    for (int iShift = 16; iShift >= 0 && nBytes > 0; iShift -= 8, --nBytes) {
        *p++ = ByteOf(nGroup >> iShift);
    }
}

// The 24 bits of up to four characters, missing ones being zero.
std::uint32_t clsBase64::DecodeGroup(const std::uint8_t* p, std::size_t nSymbols) const {
    std::uint32_t nGroup = 0;
    for (std::size_t n = 0; n < nSymbols; ++n) {
        if (p[n] >= m_aDecode.size()) throw SubscriptOutOfRange();
        nGroup |= std::uint32_t{m_aDecode[p[n]]} << (18 - 6 * n);
    }
    return nGroup;
}

} // namespace orvanta
