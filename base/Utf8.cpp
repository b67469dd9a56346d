#include "base/Utf8.h"

#include "base/AsciiBlocks.h"

#include <algorithm>
#include <cstddef>

namespace orvanta {

namespace {

// What a lead byte of 128 and up announces, as the length of its sequence.
struct WholeFileTable {
    static constexpr std::size_t Length(unsigned b) { return b >= 224 ? 3 : b >= 194 && b <= 219 ? 2 : 1; }
};
struct PrefixedStringTable {
    static constexpr std::size_t Length(unsigned b) { return b >= 240 || b < 194 ? 1 : b >= 224 ? 3 : 2; }
};

std::size_t EncodeUnit(char16_t c, char* out) {
    if (c < 0x80) {
        out[0] = static_cast<char>(c);
        return 1;
    }
    if (c < 0x800) {
        out[0] = static_cast<char>(192 + (c / 64 & 31));
        out[1] = static_cast<char>(128 + (c & 63));
        return 2;
    }
    out[0] = static_cast<char>(224 + (c / 4096 & 15));
    out[1] = static_cast<char>(128 + (c / 64 & 63));
    out[2] = static_cast<char>(128 + (c & 63));
    return 3;
}

// Results are made chunk by chunk in a small buffer that stays in the processor's nearest cache, and moved onto the end
// of the text: filling the whole text with zeros first would cost as much as the conversion.
constexpr std::size_t kChunk = 4096;

template<typename Table>
void Decode(std::string_view sBytes, std::u16string& sOut) {
    sOut.clear();
    sOut.reserve(sBytes.size());
    const char* in = sBytes.data();
    const char* const end = in + sBytes.size();
    const auto room = [&in](const char* to) { return static_cast<std::size_t>(to - in); };
    const auto low = [&in](int n) { return static_cast<unsigned>(in[n]) & 63; };
    char16_t chunk[kChunk];
    while (in < end) {
        char16_t* out = chunk;
        // A sequence that begins before the stop may end behind it.
        const char* const stop = in + std::min(kChunk, room(end));
        while (in < stop) {
            const std::size_t nPlain = WidenAsciiBlocks(in, room(stop), out);
            in += nPlain;
            out += nPlain;
            for (const char* const next = in + std::min(kAsciiBlock, room(stop)); in < next; ++out) {
                const unsigned b = static_cast<unsigned char>(*in);
                const std::size_t nLength = b < 0x80 ? 1 : Table::Length(b);
                if (room(end) < nLength) {
                    in = end;
                    break;
                }
                *out = static_cast<char16_t>(nLength == 1   ? b
                                             : nLength == 2 ? (b & 31) * 64 + low(1)
                                                            : (b & 15) * 4096 + low(1) * 64 + low(2));
                in += nLength;
            }
        }
        sOut.append(chunk, static_cast<std::size_t>(out - chunk));
    }
}

// How many bytes the text takes. The blocks have a fixed length for the sake of vector code.
std::size_t EncodedSize(std::u16string_view s) {
    const char16_t* in = s.data();
    std::size_t nMore = 0;
    const auto more = [&in](std::size_t n) { return static_cast<unsigned short>((in[n] >= 0x80) + (in[n] >= 0x800)); };
    std::size_t nLeft = s.size();
    for (; nLeft >= kAsciiBlock; nLeft -= kAsciiBlock, in += kAsciiBlock) {
        unsigned short nBlock = 0;
        for (std::size_t n = 0; n < kAsciiBlock; ++n)
            nBlock = static_cast<unsigned short>(nBlock + more(n));
        nMore += nBlock;
    }
    for (std::size_t n = 0; n < nLeft; ++n)
        nMore += more(n);
    return s.size() + nMore;
}

} // namespace

std::string CodePointToUtf8(char16_t c) {
    char bytes[3];
    return {bytes, EncodeUnit(c, bytes)};
}

std::string StringToUtf8Bytes(std::u16string_view s) {
    std::string sOut;
    sOut.reserve(s.size());
    bool bCounted = false; // plain text needs no count
    char chunk[kChunk * 3];
    for (; !s.empty(); s.remove_prefix(std::min(kChunk, s.size()))) {
        const char16_t* in = s.data();
        const char16_t* const stop = in + std::min(kChunk, s.size());
        char* out = chunk;
        while (in < stop) {
            const std::size_t nPlain = NarrowAsciiBlocks(in, static_cast<std::size_t>(stop - in), out);
            in += nPlain;
            out += nPlain;
            for (const char16_t* const next = in + std::min<std::ptrdiff_t>(kAsciiBlock, stop - in); in < next; ++in)
                out += EncodeUnit(*in, out);
        }
        const auto nBytes = static_cast<std::size_t>(out - chunk);
        if (!bCounted && nBytes > std::min(kChunk, s.size())) {
            sOut.reserve(sOut.size() + EncodedSize(s));
            bCounted = true;
        }
        sOut.append(chunk, nBytes);
    }
    return sOut;
}

std::u16string Utf8BytesToString(std::string_view sBytes) {
    std::u16string sOut;
    Utf8BytesToString(sBytes, sOut);
    return sOut;
}

void Utf8BytesToString(std::string_view sBytes, std::u16string& sOut) {
    Decode<WholeFileTable>(sBytes, sOut);
}

std::u16string Utf8BytesToStringEx(std::string_view sBytes) {
    std::u16string sOut;
    Decode<PrefixedStringTable>(sBytes, sOut);
    return sOut;
}

} // namespace orvanta
