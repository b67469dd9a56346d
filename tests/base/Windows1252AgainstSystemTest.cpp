// The table and the case folding of the portable rooms against what the system itself says.
#include "base/Text.h"
#include "base/Windows1252.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <string>

namespace orvanta {
namespace {

constexpr UINT kWestern = 1252;

std::u16string SystemText(UINT nCodePage, std::string_view sBytes) {
    wchar_t buffer[8] = {};
    const int n = MultiByteToWideChar(nCodePage, 0, sBytes.data(), static_cast<int>(sBytes.size()), buffer, 8);
    return {buffer, buffer + n};
}

std::string SystemBytes(std::u16string_view sText, DWORD dwFlags) {
    const std::wstring sWide(sText.begin(), sText.end());
    char buffer[16] = {};
    const int n = WideCharToMultiByte(kWestern, dwFlags, sWide.data(), static_cast<int>(sWide.size()), buffer,
                                      sizeof buffer, nullptr, nullptr);
    return {buffer, buffer + n};
}

TEST(Windows1252AgainstSystem, AllBytesBecomeTheSystemsCharacters) {
    const Windows1252 page;
    for (unsigned b = 0; b < 256; ++b) {
        const std::string sByte(1, static_cast<char>(b));
        EXPECT_EQ(page.BytesToText(sByte), SystemText(kWestern, sByte)) << b;
    }
}

TEST(Windows1252AgainstSystem, AllCharactersBecomeTheSystemsBytesWithoutBestFit) {
    const Windows1252 page;
    for (unsigned c = 0; c <= 0xFFFF; ++c) {
        const std::u16string s(1, static_cast<char16_t>(c));
        ASSERT_EQ(page.TextToBytes(s), SystemBytes(s, WC_NO_BEST_FIT_CHARS)) << c;
    }
}

TEST(Windows1252AgainstSystem, ASurrogatePairBecomesTwoQuestionMarks) {
    EXPECT_EQ(SystemBytes(u"\U0001F600", WC_NO_BEST_FIT_CHARS), "??");
    EXPECT_EQ(Windows1252().TextToBytes(u"\U0001F600"), "??");
}

// The plain call also puts look-alikes for characters without a place. The table does not claim those; what it does
// give is never contradicted.
TEST(Windows1252AgainstSystem, BestFitOnlyFillsWhereTheTableHasAQuestionMark) {
    const Windows1252 page;
    int nLookAlikes = 0;
    for (unsigned c = 0; c <= 0xFFFF; ++c) {
        const std::u16string s(1, static_cast<char16_t>(c));
        const std::string sBestFit = SystemBytes(s, 0);
        if (page.TextToBytes(s) == sBestFit) continue;
        ++nLookAlikes;
        ASSERT_EQ(page.TextToBytes(s), "?") << c;
    }
    EXPECT_EQ(SystemBytes(u"\u0100\uFF21", 0), "AA");
    EXPECT_GT(nLookAlikes, 2);
    RecordProperty("characters_with_a_look_alike", nLookAlikes);
}

char16_t SystemLower(char16_t c) {
    return static_cast<char16_t>(
        reinterpret_cast<ULONG_PTR>(CharLowerW(reinterpret_cast<LPWSTR>(static_cast<ULONG_PTR>(c)))));
}

TEST(Windows1252AgainstSystem, FoldCaseLowersEveryLetterOfTheSingleByteCodePagesAsTheSystemDoes) {
    for (const UINT nCodePage : {1250u, 1251u, 1252u, 1253u, 1254u, 1257u, 1258u}) {
        for (unsigned b = 0; b < 256; ++b) {
            const std::u16string s = SystemText(nCodePage, std::string(1, static_cast<char>(b)));
            ASSERT_EQ(s.size(), 1u);
            if (s[0] == u'\u0130') continue; // the dotted I is a letter of its own here
            EXPECT_EQ(FoldCase(s[0]), SystemLower(s[0])) << nCodePage << ", " << b;
        }
    }
    for (char16_t c = 0; c < 0x180; ++c) {
        if (c != 0x130) {
            EXPECT_EQ(FoldCase(c), SystemLower(c)) << static_cast<unsigned>(c);
        }
    }
}

} // namespace
} // namespace orvanta
