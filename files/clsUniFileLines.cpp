// clsUniFile: lines. The readers take what stands in the read cache run by run, with the results and platform calls of
// reading byte by byte.
#include "files/clsUniFile.h"

#include "base/AsciiBlocks.h"
#include "base/Utf8.h"
#include "files/TextFileForm.h"
#include "plumbing/SystemAnsiCodePage.h"

#include <algorithm>
#include <cstring>

namespace orvanta {

namespace {

// Code units are collected in a short piece that is moved onto the result when it is full.
constexpr std::size_t kPiece = 1024;

void AppendByteByByte(std::u16string& sRet, std::string_view sRun) {
    const SystemAnsiCodePage& codePage = SystemAnsiCodePage::Instance();
    const SystemAnsiCodePage::ByteTable& table = codePage.SingleBytes();
    const std::uint8_t* count = table.count.data();
    const char16_t* unit = table.unit.data();
    while (!sRun.empty()) {
        const std::string_view sPart = sRun.substr(0, kPiece);
        sRun.remove_prefix(sPart.size());
        char16_t piece[kPiece];
        std::size_t n = codePage.HasPlainAscii() ? WidenAsciiBlocks(sPart.data(), sPart.size(), piece) : 0;
        char16_t* out = piece + n;
        for (const char* in = sPart.data(); n < sPart.size(); ++n) {
            const auto b = static_cast<unsigned char>(in[n]);
            *out = unit[b];
            out += count[b];
        }
        sRet.append(piece, static_cast<std::size_t>(out - piece));
    }
}

void RemoveCarriageReturn(std::u16string& s) {
    if (s.ends_with(u'\r')) s.pop_back();
}

std::string_view WithoutLineEnd(std::string_view s) {
    s.remove_suffix(1);
    if (s.ends_with('\r')) s.remove_suffix(1);
    return s;
}

} // namespace

std::string_view clsUniFile::ReadRun(std::uint8_t& bSingle) {
    if (UnreadCount() < 1 || PendingCount() > 0) {
        if (!ReadByte(bSingle)) return {};
        return {reinterpret_cast<const char*>(&bSingle), 1};
    }
    const auto nUnread = static_cast<std::size_t>(UnreadCount());
    const char* first = reinterpret_cast<const char*>(m_pRead);
    const void* lineFeed = std::memchr(first, '\n', nUnread);
    const std::size_t nRun =
        lineFeed ? static_cast<std::size_t>(static_cast<const char*>(lineFeed) - first) + 1 : nUnread;
    m_pRead += nRun;
    return {first, nRun};
}

bool clsUniFile::ReadAnsiLine(std::u16string& sRet) {
    sRet.clear();
    std::uint8_t bSingle = 0;
    for (;;) {
        const std::string_view sRun = ReadRun(bSingle);
        if (sRun.empty()) return false;
        if (sRun.ends_with('\n')) {
            AppendByteByByte(sRet, sRun.substr(0, sRun.size() - 1));
            RemoveCarriageReturn(sRet);
            return true;
        }
        AppendByteByByte(sRet, sRun);
    }
}

bool clsUniFile::ReadUTF8Line(std::u16string& sRet) {
    std::string sCollected;
    std::string_view sLine;
    std::uint8_t bSingle = 0;
    for (;;) {
        const std::string_view sRun = ReadRun(bSingle);
        const bool bEnded = sRun.ends_with('\n');
        if (!bEnded || !sCollected.empty()) {
            sCollected.append(sRun);
            sLine = sCollected;
        } else {
            sLine = sRun;
        }
        if (bEnded || sRun.empty()) {
            if (bEnded) sLine = WithoutLineEnd(sLine);
            // An empty line leaves the caller's text as it was.
            if (!sLine.empty()) Utf8BytesToString(sLine, sRet);
            return bEnded;
        }
    }
}

bool clsUniFile::ReadUnicodeLine(std::u16string& sRet) {
    sRet.clear();
    char16_t piece[kPiece];
    std::size_t nPiece = 0;
    for (;;) {
        if (nPiece == kPiece) {
            sRet.append(piece, nPiece);
            nPiece = 0;
        }
        const std::size_t nReady = PendingCount() > 0 ? 0 : static_cast<std::size_t>(UnreadCount()) / 2;
        bool bEnded = false;
        if (nReady > 0) {
            const std::uint8_t* in = m_pRead;
            const std::size_t nStop = std::min(kPiece, nPiece + nReady);
            while (nPiece < nStop && !bEnded) {
                std::memcpy(piece + nPiece, in, 2);
                in += 2;
                bEnded = piece[nPiece++] == u'\n';
            }
            m_pRead = in;
        } else {
            std::uint8_t bLow = 0;
            std::uint8_t bHigh = 0;
            const bool bLowRead = ReadByte(bLow);
            const bool bHighRead = ReadByte(bHigh); // also behind a failed read
            if (!bLowRead || !bHighRead) {
                sRet.append(piece, nPiece);
                return false;
            }
            piece[nPiece] = static_cast<char16_t>(bHigh << 8 | bLow);
            bEnded = piece[nPiece++] == u'\n';
        }
        if (bEnded) {
            sRet.append(piece, nPiece - 1);
            RemoveCarriageReturn(sRet);
            return true;
        }
    }
}

bool clsUniFile::ReadLine(std::u16string& sRet, FileEncoding iFileEnc) {
    switch (iFileEnc) {
    case feUnicode: return ReadUnicodeLine(sRet);
    case feUtf8: return ReadUTF8Line(sRet);
    default: return ReadAnsiLine(sRet);
    }
}

bool clsUniFile::WriteLine(std::u16string_view s, FileEncoding iFileEnc) {
    switch (iFileEnc) {
    case feUnicode: return WriteUnicodeLine(s);
    case feUtf8: return WriteUTF8Line(s);
    default: return WriteAnsiLine(s);
    }
}

bool clsUniFile::WriteAnsiLine(std::u16string_view s) {
    return WriteTextLine(s, feAnsi);
}

bool clsUniFile::WriteUTF8Line(std::u16string_view s) {
    return WriteTextLine(s, feUtf8);
}

bool clsUniFile::WriteUnicodeLine(std::u16string_view s) {
    return WriteTextLine(s, feUnicode);
}

bool clsUniFile::WriteTextLine(std::u16string_view s, FileEncoding iFileEnc) {
    std::u16string sLine;
    sLine.reserve(s.size() + 2);
    sLine.append(s).append(u"\r\n");
    return WriteText(BodyOfText(iFileEnc, sLine, SystemAnsiCodePage::Instance()));
}

} // namespace orvanta
