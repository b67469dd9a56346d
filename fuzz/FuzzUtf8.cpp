// Arbitrary bytes through both decoders, and the same bytes as code units through the encoder: each equals its plain
// reading, and what was encoded reads back wherever a decoder promises that.
#include "base/Utf8.h"
#include "tests/reference/PlainUtf8.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

using namespace orvanta;

namespace {

void Require(bool bHolds) {
    if (!bHolds) std::abort();
}

void CheckDecoders(std::string_view a) {
    const std::u16string sFile = Utf8BytesToString(a);
    Require(sFile == testing::PlainDecode(a, testing::PlainLengthInFiles));
    Require(sFile.size() <= a.size());
    const std::u16string sPrefixed = Utf8BytesToStringEx(a);
    Require(sPrefixed == testing::PlainDecode(a, testing::PlainLengthInPrefixedStrings));
    Require(sPrefixed.size() <= a.size());
}

void CheckEncoder(std::u16string_view s) {
    const std::string a = StringToUtf8Bytes(s);
    Require(a == testing::PlainEncode(s));
    std::string aByUnits;
    for (const char16_t c : s)
        aByUnits += CodePointToUtf8(c);
    Require(a == aByUnits);

    // The string decoder reads everything back, the file decoder what its two-byte leads (up to 219) reach: below
    // U+0700.
    Require(Utf8BytesToStringEx(a) == s);
    const bool bInReach = std::none_of(s.begin(), s.end(), [](char16_t c) { return c >= 0x700 && c < 0x800; });
    Require(!bInReach || Utf8BytesToString(a) == s);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    CheckDecoders({reinterpret_cast<const char*>(data), size});
    std::u16string s(size / 2, u'\0');
    if (!s.empty()) std::memcpy(s.data(), data, s.size() * 2);
    CheckEncoder(s);
    return 0;
}
