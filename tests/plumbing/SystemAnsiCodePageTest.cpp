// Run with several system code pages; each test asks for the one at hand.
#include "plumbing/SystemAnsiCodePage.h"

#include "plumbing/WideText.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <random>

namespace orvanta {
namespace {

const SystemAnsiCodePage& codePage() {
    return SystemAnsiCodePage::Instance();
}

std::u16string PlainBytesToText(const std::string& sBytes) {
    std::u16string sOut(sBytes.size() * 2, u'\0');
    const int n = MultiByteToWideChar(CP_ACP, 0, sBytes.data(), static_cast<int>(sBytes.size()), WideBuffer(sOut),
                                      static_cast<int>(sOut.size()));
    return sOut.substr(0, static_cast<std::size_t>(n));
}

std::string PlainTextToBytes(const std::u16string& sText) {
    std::string sOut(sText.size() * 4, '\0');
    const int n = WideCharToMultiByte(CP_ACP, 0, WideOf(sText), static_cast<int>(sText.size()), sOut.data(),
                                      static_cast<int>(sOut.size()), nullptr, nullptr);
    return sOut.substr(0, static_cast<std::size_t>(n));
}

TEST(SystemAnsiCodePage, EmptyStaysEmpty) {
    EXPECT_EQ(codePage().BytesToText(""), u"");
    EXPECT_EQ(codePage().TextToBytes(u""), "");
}

TEST(SystemAnsiCodePage, AsciiIsItselfWithNulsAndControls) {
    std::string sBytes;
    std::u16string sText;
    for (int n = 0; n < 300; ++n) {
        sBytes.push_back(static_cast<char>(n % 128));
        sText.push_back(static_cast<char16_t>(n % 128));
    }
    EXPECT_EQ(codePage().BytesToText(sBytes), sText);
    EXPECT_EQ(codePage().TextToBytes(sText), sBytes);
}

TEST(SystemAnsiCodePage, NationalCharactersFollowTheCodePage) {
    switch (GetACP()) {
    case 1252:
        EXPECT_EQ(codePage().BytesToText("\xE9\x80"), u"\u00E9\u20AC");
        EXPECT_EQ(codePage().TextToBytes(u"\u00E9\u20AC"), "\xE9\x80");
        break;
    case 1251:
        EXPECT_EQ(codePage().BytesToText("\xC6"), u"\u0416");
        EXPECT_EQ(codePage().TextToBytes(u"\u0416"), "\xC6");
        break;
    case 932:
        EXPECT_EQ(codePage().BytesToText("\x93\xFA\x96{"), u"\u65E5\u672C");
        EXPECT_EQ(codePage().TextToBytes(u"\u65E5\u672C"), "\x93\xFA\x96{");
        break;
    case 65001:
        EXPECT_EQ(codePage().BytesToText("\xE6\x97\xA5\xF0\x9F\x98\x80"), u"\u65E5\xD83D\xDE00");
        EXPECT_EQ(codePage().TextToBytes(u"\u65E5\xD83D\xDE00"), "\xE6\x97\xA5\xF0\x9F\x98\x80");
        break;
    default: FAIL() << "no expectation for code page " << GetACP();
    }
}

TEST(SystemAnsiCodePage, CharacterWithoutAPlaceBecomesThePlatformsReplacement) {
    EXPECT_EQ(codePage().TextToBytes(u"a\u0E01b"), GetACP() == 65001 ? "a\xE0\xB8\x81"
                                                                       "b"
                                                                     : "a?b");
}

// The beginning of a text that is plain takes another road than the rest.
TEST(SystemAnsiCodePage, BothDirectionsEqualThePlatformsOwnConversion) {
    std::mt19937 random(20);
    for (int nRound = 0; nRound < 2000; ++nRound) {
        std::string sBytes(random() % 200, ' ');
        const auto nOdd = static_cast<unsigned>(random() % 3 == 0 ? 1000000 : 1 + random() % 80);
        for (char& b : sBytes)
            b = static_cast<char>(random() % nOdd == 0 ? random() % 256 : random() % 128);
        ASSERT_EQ(codePage().BytesToText(sBytes), PlainBytesToText(sBytes));
        std::u16string sText(random() % 200, u' ');
        for (char16_t& c : sText)
            c = static_cast<char16_t>(random() % nOdd == 0 ? random() % 65536 : random() % 128);
        ASSERT_EQ(codePage().TextToBytes(sText), PlainTextToBytes(sText));
    }
}

TEST(SystemAnsiCodePage, SingleBytesAreWhatEachByteGivesByItself) {
    const SystemAnsiCodePage::ByteTable& table = codePage().SingleBytes();
    for (unsigned n = 0; n < 256; ++n) {
        const std::u16string sAlone = PlainBytesToText(std::string(1, static_cast<char>(n)));
        ASSERT_EQ(table.count[n], sAlone.size()) << n;
        if (!sAlone.empty()) {
            EXPECT_EQ(table.unit[n], sAlone[0]) << n;
        }
    }
    EXPECT_TRUE(codePage().HasPlainAscii());
}

TEST(SystemAnsiCodePage, TheWesternOneIsCodePage1252WithItsLookAlikesWhateverTheSystemsIs) {
    const SystemAnsiCodePage& western = SystemAnsiCodePage::Western();
    EXPECT_EQ(western.BytesToText("\xE9\x80\x81"), u"\u00E9\u20AC\u0081");
    EXPECT_EQ(western.TextToBytes(u"\u00E9\u20AC\u0081"), "\xE9\x80\x81");
    EXPECT_EQ(western.TextToBytes(u"\u0100\uFF21\u0E01"), "AA?");
}

} // namespace
} // namespace orvanta
