#include "base/Windows1252.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <string>

namespace orvanta {
namespace {

// The 27 bytes whose character is another one, by the code page's published names.
const std::map<unsigned char, char16_t> kMoved = {
    {0x80, 0x20AC}, // euro sign
    {0x82, 0x201A}, // single low-9 quotation mark
    {0x83, 0x0192}, // f with hook
    {0x84, 0x201E}, // double low-9 quotation mark
    {0x85, 0x2026}, // ellipsis
    {0x86, 0x2020}, // dagger
    {0x87, 0x2021}, // double dagger
    {0x88, 0x02C6}, // modifier circumflex
    {0x89, 0x2030}, // per mille
    {0x8A, 0x0160}, // S with caron
    {0x8B, 0x2039}, // single left angle quotation mark
    {0x8C, 0x0152}, // ligature OE
    {0x8E, 0x017D}, // Z with caron
    {0x91, 0x2018}, // left single quotation mark
    {0x92, 0x2019}, // right single quotation mark
    {0x93, 0x201C}, // left double quotation mark
    {0x94, 0x201D}, // right double quotation mark
    {0x95, 0x2022}, // bullet
    {0x96, 0x2013}, // en dash
    {0x97, 0x2014}, // em dash
    {0x98, 0x02DC}, // small tilde
    {0x99, 0x2122}, // trade mark
    {0x9A, 0x0161}, // s with caron
    {0x9B, 0x203A}, // single right angle quotation mark
    {0x9C, 0x0153}, // ligature oe
    {0x9E, 0x017E}, // z with caron
    {0x9F, 0x0178}, // Y with diaeresis
};

char16_t CharacterOf(unsigned b) {
    const auto found = kMoved.find(static_cast<unsigned char>(b));
    return found == kMoved.end() ? static_cast<char16_t>(b) : found->second;
}

std::string OneByte(unsigned b) {
    return std::string(1, static_cast<char>(b));
}

TEST(Windows1252, AllBytesGoToTheirCharactersAndBack) {
    const Windows1252 page;
    for (unsigned b = 0; b < 256; ++b) {
        const std::u16string s(1, CharacterOf(b));
        EXPECT_EQ(page.BytesToText(OneByte(b)), s) << b;
        EXPECT_EQ(page.TextToBytes(s), OneByte(b)) << b;
    }
}

TEST(Windows1252, TheFiveUnassignedBytesStandForTheControlsOfTheSameNumber) {
    const Windows1252 page;
    EXPECT_EQ(page.BytesToText("\x81\x8D\x8F\x90\x9D"), u"\u0081\u008D\u008F\u0090\u009D");
    EXPECT_EQ(page.TextToBytes(u"\u0081\u008D\u008F\u0090\u009D"), "\x81\x8D\x8F\x90\x9D");
}

TEST(Windows1252, EveryOtherCharacterBecomesAQuestionMark) {
    const Windows1252 page;
    std::u16string sPlaced;
    for (unsigned b = 0; b < 256; ++b)
        sPlaced.push_back(CharacterOf(b));
    for (unsigned c = 0; c <= 0xFFFF; ++c) {
        const auto unit = static_cast<char16_t>(c);
        if (sPlaced.find(unit) != std::u16string::npos) continue;
        ASSERT_EQ(page.TextToBytes(std::u16string(1, unit)), "?") << c;
    }
    EXPECT_EQ(page.TextToBytes(u"\u0080\u0094\u009F"), "???"); // controls whose byte stands for something else
    EXPECT_EQ(page.TextToBytes(u"a\U0001F600z"), "a??z");      // one for each half of a pair
}

TEST(Windows1252, NothingBecomesNothing) {
    EXPECT_EQ(Windows1252().BytesToText(""), u"");
    EXPECT_EQ(Windows1252().TextToBytes(u""), "");
}

TEST(Windows1252, EveryValueKeepsItsMeaningAmongWesternLetters) {
    const Windows1252 page;
    for (unsigned c = 0; c <= 0xFFFF; ++c) {
        std::u16string sText(32, u'\u00E9');
        const std::size_t nAt = c % sText.size();
        sText[nAt] = static_cast<char16_t>(c);
        std::string sBytes(32, '\xE9');
        sBytes.replace(nAt, 1, page.TextToBytes(sText.substr(nAt, 1)));
        ASSERT_EQ(page.TextToBytes(sText), sBytes) << c;
        if (c > 0xFF) continue;
        sBytes[nAt] = static_cast<char>(c);
        sText[nAt] = CharacterOf(c);
        ASSERT_EQ(page.BytesToText(sBytes), sText) << c;
    }
}

TEST(Windows1252, LongTextIsConvertedCharacterByCharacterWhereverTheOddOnesStand) {
    const Windows1252 page;
    const unsigned nSeed = 1252;
    std::mt19937 random(nSeed);
    for (int nRound = 0; nRound < 2000; ++nRound) {
        std::string sBytes(random() % 200, 'x');
        std::u16string sText;
        const unsigned nOdd = random() % 8;
        for (char& b : sBytes) {
            if (random() % 8 < nOdd) b = static_cast<char>(random());
            sText.push_back(CharacterOf(static_cast<unsigned char>(b)));
        }
        ASSERT_EQ(page.BytesToText(sBytes), sText) << "seed " << nSeed << ", round " << nRound;
        ASSERT_EQ(page.TextToBytes(sText), sBytes) << "seed " << nSeed << ", round " << nRound;
    }
}

} // namespace
} // namespace orvanta
