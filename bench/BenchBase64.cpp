#include "base/Windows1252.h"
#include "utilities/clsBase64.h"

#include <openssl/evp.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <memory>
#include <random>

// Base64 of 1 MB of random bytes, beside OpenSSL: its block functions for text in one piece, its line functions for
// text in lines. Speeds are counted in bytes of the binary side.
namespace {

using orvanta::ByteArray;
using Clock = std::chrono::steady_clock;

constexpr std::size_t kSize = 1'000'000;

// MB in a second: the best of many runs, so that a neighbour on the machine does not count.
template<typename Call>
double Speed(Call&& call) {
    double dBest = 0;
    for (int iRun = 0; iRun < 300; ++iRun) {
        const auto start = Clock::now();
        call();
        const double dSeconds = std::chrono::duration<double>(Clock::now() - start).count();
        dBest = std::max(dBest, kSize / 1e6 / dSeconds);
    }
    return dBest;
}

void Row(const char* szName, double dOurs, const char* szPeer, double dPeer, bool bMark = true) {
    char szWanted[32] = "none";
    if (bMark) std::snprintf(szWanted, sizeof szWanted, "at least %.0f MB/s", std::max(1500.0, 1.5 * dPeer));
    std::printf("RATIO | %s | ours %.0f MB/s | peer %s %.0f MB/s | ratio %.2f | wanted %s\n", szName, dOurs, szPeer,
                dPeer, dOurs / dPeer, szWanted);
}

struct FreeContext {
    void operator()(EVP_ENCODE_CTX* p) const { EVP_ENCODE_CTX_free(p); }
};

} // namespace

int main() {
    std::mt19937_64 random(64);
    ByteArray aData(kSize);
    for (auto& b : aData)
        b = static_cast<std::uint8_t>(random());

    const orvanta::Windows1252 codePage;
    const orvanta::clsBase64 base64(codePage);
    const orvanta::clsBase64 plain(codePage, false);
    const std::unique_ptr<EVP_ENCODE_CTX, FreeContext> context(EVP_ENCODE_CTX_new());
    const int iSize = static_cast<int>(kSize);

    ByteArray aText;
    ByteArray aLines;
    ByteArray aBack;
    ByteArray aPeer(kSize * 2);
    int iWritten = 0;
    int iLast = 0;

    const double dPeerEncode = Speed([&] { EVP_EncodeBlock(aPeer.data(), aData.data(), iSize); });
    const double dPeerLines = Speed([&] {
        EVP_EncodeInit(context.get());
        EVP_EncodeUpdate(context.get(), aPeer.data(), &iWritten, aData.data(), iSize);
        EVP_EncodeFinal(context.get(), aPeer.data() + iWritten, &iLast);
    });
    Row("Base64 encode", Speed([&] { base64.EncodeB64(aData, aText); }), "EVP_EncodeBlock", dPeerEncode);
    Row("Base64 encode, without vector instructions", Speed([&] { plain.EncodeB64(aData, aText); }), "EVP_EncodeBlock",
        dPeerEncode, false);
    Row("Base64 encode in lines of 76", Speed([&] {
            base64.EncodeB64(aData, aText);
            base64.Span(76, aText, aLines);
        }),
        "EVP_EncodeUpdate", dPeerLines);
    while (aLines.back() == 0)
        aLines.pop_back(); // what Span leaves behind the last line

    const int iText = static_cast<int>(aText.size());
    const double dPeerDecode = Speed([&] { EVP_DecodeBlock(aPeer.data(), aText.data(), iText); });
    const double dPeerDecodeLines = Speed([&] {
        EVP_DecodeInit(context.get());
        EVP_DecodeUpdate(context.get(), aPeer.data(), &iWritten, aLines.data(), static_cast<int>(aLines.size()));
        EVP_DecodeFinal(context.get(), aPeer.data() + iWritten, &iLast);
    });
    Row("Base64 decode", Speed([&] { base64.DecodeB64(aText, aBack); }), "EVP_DecodeBlock", dPeerDecode);
    Row("Base64 decode, without vector instructions", Speed([&] { plain.DecodeB64(aText, aBack); }), "EVP_DecodeBlock",
        dPeerDecode, false);
    Row("Base64 decode of lines of 76", Speed([&] { base64.DecodeB64(aLines, aBack); }), "EVP_DecodeUpdate",
        dPeerDecodeLines);
    return aBack == aData ? 0 : 1;
}
