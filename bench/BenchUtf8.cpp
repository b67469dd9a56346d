// The UTF-8 forms beside a copy that only widens or narrows, beside the platform's conversion (Windows) and beside
// iconv (elsewhere). Every call makes a new result, the peers too. Speeds count the bytes of UTF-8.
#include "base/Utf8.h"
#include "bench/support/Measure.h"

#include <emmintrin.h>

#include <memory>
#include <string>

#ifdef _WIN32
#include "plumbing/WideText.h"

#include <windows.h>
#else
#include <iconv.h>
#endif

namespace {

using namespace orvanta;

constexpr int kRuns = 300;

void Row(const char* what, std::size_t nBytes, bench::Pair pair, const char* peer, const char* wanted) {
    const double dMegabytes = static_cast<double>(nBytes) / 1e6;
    std::printf("RATIO | %s | ours %.0f MB/s | peer %s %.0f MB/s | ratio %.2f | wanted %s\n", what,
                dMegabytes / pair.dOurs, peer, dMegabytes / pair.dPeer, pair.dPeer / pair.dOurs, wanted);
}

// Lines as they stand in a source file, nBytes of them.
std::string PlainText(std::size_t nBytes) {
    std::string s;
    while (s.size() < nBytes)
        s += "   Private Sub Command1_Click(Index As Integer) ' line " + std::to_string(s.size()) + "\r\n";
    s.resize(nBytes);
    return s;
}

// Words of many scripts between plain ones.
std::u16string MixedText(std::size_t nUnits) {
    const std::u16string words =
        u"plain words and 123 numbers; \u00FCber caf\u00E9 ni\u00F1o \u0444\u0430\u0439\u043B "
        u"\u03BB\u03CC\u03B3\u03BF\u03C2 \u05E9\u05DC\u05D5\u05DD \u0645\u0631\u062D\u0628\u0627 "
        u"\u65E5\u672C\u8A9E\u306E\u30C6\u30AD\u30B9\u30C8 \uD55C\uAD6D\uC5B4 "
        u"\u0928\u092E\u0938\u094D\u0924\u0947 \u20AC \u201Cquoted\u201D\r\n";
    std::u16string s;
    while (s.size() < nUnits)
        s += words;
    return s;
}

// The copies use the vector instructions that every 64-bit processor has, whatever the compiler makes of plain loops.
std::unique_ptr<char16_t[]> Widen(const std::string& s) {
    std::unique_ptr<char16_t[]> out(new char16_t[s.size()]);
    std::size_t n = 0;
    for (; n + 16 <= s.size(); n += 16) {
        const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(s.data() + n));
        auto* to = reinterpret_cast<__m128i*>(out.get() + n);
        _mm_storeu_si128(to, _mm_unpacklo_epi8(bytes, _mm_setzero_si128()));
        _mm_storeu_si128(to + 1, _mm_unpackhi_epi8(bytes, _mm_setzero_si128()));
    }
    for (; n < s.size(); ++n)
        out[n] = static_cast<unsigned char>(s[n]);
    return out;
}

std::unique_ptr<char[]> Narrow(const std::u16string& s) {
    std::unique_ptr<char[]> out(new char[s.size()]);
    std::size_t n = 0;
    for (; n + 16 <= s.size(); n += 16) {
        const auto* from = reinterpret_cast<const __m128i*>(s.data() + n);
        _mm_storeu_si128(reinterpret_cast<__m128i*>(out.get() + n),
                         _mm_packus_epi16(_mm_loadu_si128(from), _mm_loadu_si128(from + 1)));
    }
    for (; n < s.size(); ++n)
        out[n] = static_cast<char>(s[n]);
    return out;
}

void CompareWithCopies(const char* size, std::size_t nBytes) {
    const std::string sBytes = PlainText(nBytes);
    const std::u16string sText = Utf8BytesToString(sBytes);
    const auto name = [size](const char* what) { return std::string(what) + " of plain text, " + size; };
    Row(name("Utf8BytesToString").c_str(), nBytes,
        bench::BestPair(
            kRuns, [&] { bench::Keep(Utf8BytesToString(sBytes)); }, [&] { bench::Keep(Widen(sBytes)); }),
        "widening copy", "0.50");
    Row(name("Utf8BytesToStringEx").c_str(), nBytes,
        bench::BestPair(
            kRuns, [&] { bench::Keep(Utf8BytesToStringEx(sBytes)); }, [&] { bench::Keep(Widen(sBytes)); }),
        "widening copy", "0.50");
    Row(name("StringToUtf8Bytes").c_str(), nBytes,
        bench::BestPair(
            kRuns, [&] { bench::Keep(StringToUtf8Bytes(sText)); }, [&] { bench::Keep(Widen(sBytes)); }),
        "widening copy", "0.50");
    Row(name("StringToUtf8Bytes").c_str(), nBytes,
        bench::BestPair(
            kRuns, [&] { bench::Keep(StringToUtf8Bytes(sText)); }, [&] { bench::Keep(Narrow(sText)); }),
        "narrowing copy", "-");
}

#ifdef _WIN32

void CompareWithThePlatform(const char* what, const std::string& sBytes, const char* wanted) {
    const int nBytes = static_cast<int>(sBytes.size());
    const std::u16string sText = Utf8BytesToStringEx(sBytes);
    const int nUnits = static_cast<int>(sText.size());
    Row((std::string("UTF-8 to text, ") + what).c_str(), sBytes.size(),
        bench::BestPair(
            kRuns, [&] { bench::Keep(Utf8BytesToString(sBytes)); },
            [&] {
                const std::unique_ptr<wchar_t[]> out(new wchar_t[sBytes.size()]);
                bench::Keep(MultiByteToWideChar(CP_UTF8, 0, sBytes.data(), nBytes, out.get(), nBytes));
            }),
        "MultiByteToWideChar", wanted);
    Row((std::string("text to UTF-8, ") + what).c_str(), sBytes.size(),
        bench::BestPair(
            kRuns, [&] { bench::Keep(StringToUtf8Bytes(sText)); },
            [&] {
                const std::unique_ptr<char[]> out(new char[sText.size() * 3]);
                bench::Keep(
                    WideCharToMultiByte(CP_UTF8, 0, WideOf(sText), nUnits, out.get(), nUnits * 3, nullptr, nullptr));
            }),
        "WideCharToMultiByte", wanted);
}

#else

class Converter {
public:
    Converter(const char* to, const char* from) : m_handle(iconv_open(to, from)) {}
    ~Converter() { iconv_close(m_handle); }
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;

    void Run(const void* in, std::size_t nIn, std::size_t nRoom) {
        const std::unique_ptr<char[]> out(new char[nRoom]);
        char* from = const_cast<char*>(static_cast<const char*>(in)); // the call leaves the bytes alone
        char* to = out.get();
        iconv(m_handle, &from, &nIn, &to, &nRoom);
        bench::Keep(to);
    }

private:
    iconv_t m_handle;
};

void CompareWithIconv(const char* what, const std::string& sBytes) {
    const std::u16string sText = Utf8BytesToStringEx(sBytes);
    Converter decoder("UTF-16LE", "UTF-8");
    Converter encoder("UTF-8", "UTF-16LE");
    Row((std::string("UTF-8 to text, ") + what).c_str(), sBytes.size(),
        bench::BestPair(
            kRuns, [&] { bench::Keep(Utf8BytesToString(sBytes)); },
            [&] { decoder.Run(sBytes.data(), sBytes.size(), sBytes.size() * 2); }),
        "iconv", "1.00");
    Row((std::string("text to UTF-8, ") + what).c_str(), sBytes.size(),
        bench::BestPair(
            kRuns, [&] { bench::Keep(StringToUtf8Bytes(sText)); },
            [&] { encoder.Run(sText.data(), sText.size() * 2, sText.size() * 3); }),
        "iconv", "1.00");
}

#endif

} // namespace

int main() {
    CompareWithCopies("64 KB", 65536);
    CompareWithCopies("1 MB", 1000000);
    const std::string sMixed = StringToUtf8Bytes(MixedText(500000));
#ifdef _WIN32
    CompareWithThePlatform("plain, 64 KB", PlainText(65536), "1.50");
    CompareWithThePlatform("plain, 1 MB", PlainText(1000000), "1.50");
    CompareWithThePlatform("many scripts", sMixed, "-");
#else
    CompareWithIconv("plain, 1 MB", PlainText(1000000));
    CompareWithIconv("many scripts", sMixed);
#endif
    return 0;
}
