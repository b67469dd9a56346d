// The file object beside the C library's own buffered reading, and whole text files beside one bare call of the
// platform. The files are made anew in the temporary folder and are in the system's file cache when the measuring
// begins.
#include "bench/support/Measure.h"
#include "files/WholeFiles.h"
#include "files/clsUniFile.h"
#include "plumbing/WideText.h"

#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <cwchar>
#include <memory>
#include <string>
#include <vector>

namespace {

using namespace orvanta;

constexpr std::size_t kTextSize = 50'000'000;
constexpr std::size_t kByteSize = 64u << 20;

std::u16string TempPath(std::u16string_view sName) {
    std::u16string s(MAX_PATH, u'\0');
    s.resize(GetTempPathW(MAX_PATH, WideBuffer(s)));
    return s.append(u"orvanta_bench_").append(sName);
}

// Closes a C library file.
struct Closer {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using CFile = std::unique_ptr<std::FILE, Closer>;

CFile OpenC(const std::u16string& sPath) {
    return CFile(_wfopen(WideOf(sPath), L"rb"));
}

void Row(const char* what, std::size_t nBytes, bench::Pair pair, const char* peer, bool bSpeed, const char* wanted) {
    const double dMegabytes = static_cast<double>(nBytes) / 1e6;
    std::printf("RATIO | %s | ours %.0f MB/s | peer %s %.0f MB/s | ratio %.2f | wanted %s\n", what,
                dMegabytes / pair.dOurs, peer, dMegabytes / pair.dPeer,
                bSpeed ? pair.dPeer / pair.dOurs : pair.dOurs / pair.dPeer, wanted);
}

// Lines of a source file, nUnits characters of them.
std::u16string Lines(std::size_t nUnits) {
    std::u16string s;
    s.reserve(nUnits + 100);
    for (unsigned n = 0; s.size() < nUnits; ++n) {
        s += u"   Private Sub Command1_Click(Index As Integer) ' line ";
        s.append(n % 40, u'x').append(u"\r\n");
    }
    s.resize(nUnits);
    return s;
}

using Reader = bool (clsUniFile::*)(std::u16string&);

std::size_t ReadByUs(const std::u16string& sPath, Reader reader) {
    clsUniFile file;
    file.OpenFileRead(sPath, true);
    std::u16string sLine;
    std::size_t nLines = 0;
    while ((file.*reader)(sLine))
        ++nLines;
    return nLines;
}

std::size_t ReadByFgets(const std::u16string& sPath) {
    const CFile file = OpenC(sPath);
    char line[1000];
    std::size_t nLines = 0;
    while (std::fgets(line, sizeof line, file.get()))
        ++nLines;
    return nLines;
}

std::size_t ReadByFgetws(const std::u16string& sPath) {
    const CFile file = OpenC(sPath);
    wchar_t line[1000];
    std::size_t nLines = 0;
    while (std::fgetws(line, 1000, file.get()))
        ++nLines;
    return nLines;
}

void CompareLines(const char* what, FileEncoding iEncoding, Reader reader, std::size_t (*peer)(const std::u16string&),
                  const char* peerName) {
    const std::u16string sPath = TempPath(u"lines.txt");
    ufu_StringToTextFile(sPath, Lines(iEncoding == feUnicode ? kTextSize / 2 : kTextSize), iEncoding, true);
    const bench::Pair pair = bench::BestPair(
        5, [&] { bench::Keep(ReadByUs(sPath, reader)); }, [&] { bench::Keep(peer(sPath)); });
    Row(what, kTextSize, pair, peerName, true, "at least 1.00");
    DeleteFileW(WideOf(sPath));
}

// One bare call of each kind that the task cannot do without.
void ReadBare(const std::u16string& sPath, bool bConvert) {
    HANDLE file = CreateFileW(WideOf(sPath), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    const DWORD lSize = GetFileSize(file, nullptr);
    const std::unique_ptr<char[]> aBytes(new char[lSize]);
    DWORD lRead = 0;
    ReadFile(file, aBytes.get(), lSize, &lRead, nullptr);
    CloseHandle(file);
    bench::Keep(aBytes);
    if (!bConvert) return;
    const std::unique_ptr<wchar_t[]> aText(new wchar_t[lSize]);
    MultiByteToWideChar(CP_ACP, 0, aBytes.get(), static_cast<int>(lSize), aText.get(), static_cast<int>(lSize));
    bench::Keep(aText);
}

void WriteBare(const std::u16string& sPath, const std::u16string& sText, bool bConvert) {
    const void* bytes = sText.data();
    auto lSize = static_cast<DWORD>(sText.size() * 2);
    std::unique_ptr<char[]> aBytes;
    if (bConvert) {
        const int iUnits = static_cast<int>(sText.size());
        aBytes.reset(new char[sText.size()]);
        lSize = static_cast<DWORD>(
            WideCharToMultiByte(CP_ACP, 0, WideOf(sText), iUnits, aBytes.get(), iUnits, nullptr, nullptr));
        bytes = aBytes.get();
    }
    HANDLE file = CreateFileW(WideOf(sPath), GENERIC_WRITE, FILE_SHARE_WRITE, nullptr, CREATE_ALWAYS, 0, nullptr);
    DWORD lWritten = 0;
    WriteFile(file, bytes, lSize, &lWritten, nullptr);
    CloseHandle(file);
}

void CompareWholeFile(const char* kind, std::u16string sText, FileEncoding iEncoding) {
    const std::u16string sPath = TempPath(u"whole.txt");
    const bool bConvert = iEncoding == feAnsi;
    const std::size_t nBytes = bConvert ? sText.size() : sText.size() * 2;
    const bench::Pair write = bench::BestPair(
        9, [&] { ufu_StringToTextFile(sPath, sText, iEncoding, true); }, [&] { WriteBare(sPath, sText, bConvert); });
    ufu_StringToTextFile(sPath, sText, iEncoding, true);
    const bench::Pair read = bench::BestPair(
        9,
        [&] {
            std::u16string s;
            ufu_TextFileToString(sPath, s, true);
            bench::Keep(s);
        },
        [&] { ReadBare(sPath, bConvert); });
    const std::string peer = bConvert ? " and the code page call" : "";
    Row((std::string("whole file of 50 MB read, ") + kind).c_str(), nBytes, read, ("ReadFile" + peer).c_str(), false,
        "at most 1.30");
    Row((std::string("whole file of 50 MB written, ") + kind).c_str(), nBytes, write, ("WriteFile" + peer).c_str(),
        false, "at most 1.30");
    DeleteFileW(WideOf(sPath));
}

// One byte at a time to the end of the file, as one writes it.
std::uint64_t SumOfBytes(clsUniFile& file) {
    std::uint64_t nSum = 0;
    std::uint8_t b = 0;
    while (file.ReadByte(b))
        nSum += b;
    return nSum;
}

std::uint64_t SumOfBytes(std::FILE* file) {
    std::uint64_t nSum = 0;
    for (int c = std::fgetc(file); c != EOF; c = std::fgetc(file))
        nSum += static_cast<unsigned>(c);
    return nSum;
}

void CompareBytes() {
    const std::u16string sPath = TempPath(u"bytes.bin");
    ufu_StringToTextFile(sPath, std::u16string(kByteSize, u'b'), feAnsi, true);
    const bench::Pair pair = bench::BestPair(
        5,
        [&] {
            clsUniFile file;
            file.OpenFileRead(sPath, true);
            bench::Keep(SumOfBytes(file));
        },
        [&] { bench::Keep(SumOfBytes(OpenC(sPath).get())); });
    Row("ReadByte over 64 MB", kByteSize, pair, "fgetc", true, "at least 25");
    DeleteFileW(WideOf(sPath));
}

} // namespace

int main() {
    CompareBytes();
    CompareLines("ReadAnsiLine over 50 MB", feAnsi, &clsUniFile::ReadAnsiLine, &ReadByFgets, "fgets");
    CompareLines("ReadUTF8Line over 50 MB", feUtf8, &clsUniFile::ReadUTF8Line, &ReadByFgets, "fgets");
    CompareLines("ReadUnicodeLine over 50 MB", feUnicode, &clsUniFile::ReadUnicodeLine, &ReadByFgetws, "fgetws");
    CompareWholeFile("plain ANSI", Lines(kTextSize), feAnsi);
    std::u16string sWestern = Lines(kTextSize);
    for (std::size_t n = 50; n < sWestern.size(); n += 97)
        sWestern[n] = u'\u00E9';
    CompareWholeFile("western ANSI", sWestern, feAnsi);
    CompareWholeFile("UTF-16", Lines(kTextSize / 2), feUnicode);
    return 0;
}
