// Arbitrary bytes to encode and to decode: what is encoded comes back, also in lines, and both roads of decoding agree
// on any input, with the size that its length and padding give. The first byte chooses the length of a line.
#include "base/Failure.h"
#include "base/Windows1252.h"
#include "utilities/clsBase64.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <optional>

using namespace orvanta;

namespace {

void Require(bool bHolds) {
    if (!bHolds) std::abort();
}

const Windows1252 codePage;
const clsBase64 base64(codePage);
const clsBase64 plain(codePage, false);

std::optional<ByteArray> Decoded(const clsBase64& decoder, const ByteArray& aText) {
    try {
        ByteArray aOut;
        decoder.DecodeB64(aText, aOut);
        return aOut;
    } catch (const Failure& failure) {
        Require(failure.Number() == 9);
        return std::nullopt;
    }
}

void CheckRoundTrip(const ByteArray& aData, std::int32_t lCharsPerLine) {
    ByteArray aText;
    ByteArray aLines;
    base64.EncodeB64(aData, aText);
    Require(aText.size() == (aData.size() + 2) / 3 * 4 && Decoded(base64, aText) == aData);
    plain.EncodeB64(aData, aLines);
    Require(aLines == aText);
    base64.Span(lCharsPerLine, aText, aLines);
    Require(aLines.back() == 0);
    while (!aLines.empty() && aLines.back() == 0)
        aLines.pop_back();
    Require(Decoded(base64, aLines) == aData);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
    if (nSize == 0) return 0;
    const ByteArray aData(pData + 1, pData + nSize);
    CheckRoundTrip(aData, 1 + pData[0]);

    const auto aDecoded = Decoded(base64, aData);
    Require(aDecoded == Decoded(plain, aData));
    ByteArray aUnspanned;
    base64.Unspan(aData, aUnspanned);
    Require(std::none_of(aUnspanned.begin(), aUnspanned.end(), IsBase64Space));
    Require(aDecoded == Decoded(plain, aUnspanned));
    if (aDecoded) Require(aDecoded->size() <= (aUnspanned.size() + 3) / 4 * 3);
    return 0;
}
