#include "utilities/clsBase64.h"

#include "base/Failure.h"
#include "base/Windows1252.h"
#include "tests/reference/PlainBase64.h"

#include <gtest/gtest.h>

#include <random>

namespace orvanta {
namespace {

ByteArray Bytes(std::string_view s) {
    return {s.begin(), s.end()};
}

ByteArray RandomBytes(std::mt19937& random, std::size_t nSize) {
    ByteArray a(nSize);
    for (auto& b : a)
        b = static_cast<std::uint8_t>(random());
    return a;
}

// A code page that knows ASCII only: everything else becomes "?".
class AsciiOnly final : public AnsiCodePage {
public:
    std::u16string BytesToText(std::string_view sBytes) const override {
        std::u16string s;
        for (const char c : sBytes)
            s.push_back(static_cast<unsigned char>(c) < 128 ? static_cast<char16_t>(c) : u'?');
        return s;
    }
    std::string TextToBytes(std::u16string_view sText) const override {
        std::string s;
        for (const char16_t c : sText)
            s.push_back(c < 128 ? static_cast<char>(c) : '?');
        return s;
    }
};

// A code page that gives three bytes back for each byte above 127, as UTF-8 does for what it cannot read.
class Growing final : public AnsiCodePage {
public:
    std::u16string BytesToText(std::string_view sBytes) const override { return AsciiOnly().BytesToText(sBytes); }
    std::string TextToBytes(std::u16string_view sText) const override {
        std::string s;
        for (const char16_t c : sText)
            s += c == u'?' ? "\xEF\xBF\xBD" : std::string(1, static_cast<char>(c));
        return s;
    }
};

class FailingCodePage final : public AnsiCodePage {
public:
    std::u16string BytesToText(std::string_view) const override { throw InvalidProcedureCall(); }
    std::string TextToBytes(std::u16string_view) const override { throw InvalidProcedureCall(); }
};

// Both roads: with the vector instructions and without them.
class Base64Test : public testing::TestWithParam<bool> {
protected:
    const Windows1252 m_codePage;
    const clsBase64 m_base64{m_codePage, GetParam()};

    ByteArray Encoded(const ByteArray& a) const {
        ByteArray aOut = Bytes("left over");
        m_base64.EncodeB64(a, aOut);
        return aOut;
    }
    ByteArray Decoded(const ByteArray& a) const {
        ByteArray aOut = Bytes("left over");
        m_base64.DecodeB64(a, aOut);
        return aOut;
    }
    ByteArray Spanned(std::int32_t lCharsPerLine, const ByteArray& a) const {
        ByteArray aOut = Bytes("left over");
        m_base64.Span(lCharsPerLine, a, aOut);
        return aOut;
    }
    ByteArray Unspanned(const ByteArray& a) const {
        ByteArray aOut = Bytes("left over");
        m_base64.Unspan(a, aOut);
        return aOut;
    }
};

INSTANTIATE_TEST_SUITE_P(Roads, Base64Test, testing::Bool(),
                         [](const auto& road) { return road.param ? "WideBlocks" : "Plain"; });

TEST_P(Base64Test, EncodesWithOneOrTwoPaddingSigns) {
    EXPECT_EQ(m_base64.GetEncodedB64String(u"Man", false), u"TWFu");
    EXPECT_EQ(m_base64.GetEncodedB64String(u"Ma", false), u"TWE=");
    EXPECT_EQ(m_base64.GetEncodedB64String(u"M", false), u"TQ==");
    EXPECT_EQ(m_base64.GetDecodedB64String(u"TWFu", false), u"Man");
    EXPECT_EQ(m_base64.GetDecodedB64String(u"TWE=", false), u"Ma");
    EXPECT_EQ(m_base64.GetDecodedB64String(u"TQ==", false), u"M");
}

TEST_P(Base64Test, EmptyStaysEmpty) {
    EXPECT_EQ(m_base64.GetEncodedB64String(u"", false), u"");
    EXPECT_EQ(m_base64.GetEncodedB64String(u"", true), u"");
    EXPECT_EQ(m_base64.GetDecodedB64String(u"", true), u"");
    EXPECT_EQ(Encoded({}), ByteArray());
    EXPECT_EQ(Decoded({}), ByteArray());
    EXPECT_EQ(Decoded(Bytes(" \r\n\t ")), ByteArray());
    EXPECT_EQ(Unspanned({}), ByteArray());
}

TEST_P(Base64Test, UsesTheStandardAlphabetInItsOrder) {
    // 48 bytes whose six-bit values are 0 to 63.
    ByteArray a;
    for (unsigned n = 0; n < 64; n += 4) {
        const unsigned nGroup = n << 18 | (n + 1) << 12 | (n + 2) << 6 | (n + 3);
        for (int iShift = 16; iShift >= 0; iShift -= 8)
            a.push_back(static_cast<std::uint8_t>(nGroup >> iShift));
    }
    const ByteArray aAlphabet = Bytes("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/");
    EXPECT_EQ(Encoded(a), aAlphabet);
    EXPECT_EQ(Decoded(aAlphabet), a);
}

TEST_P(Base64Test, EncodesTheUtf16BytesWhenAsked) {
    EXPECT_EQ(m_base64.GetEncodedB64String(u"A", true), u"QQA=");
    EXPECT_EQ(m_base64.GetDecodedB64String(u"QQA=", true), u"A");
    const std::u16string sText = u"\u0416\u65E5\U0001F600 x";
    EXPECT_EQ(m_base64.GetDecodedB64String(m_base64.GetEncodedB64String(sText, true), true), sText);
}

TEST_P(Base64Test, EncodesTheAnsiBytesOtherwise) {
    EXPECT_EQ(m_base64.GetEncodedB64String(u"\u20AC", false), u"gA=="); // the euro is 80 in the code page
    EXPECT_EQ(m_base64.GetDecodedB64String(u"gA==", false), u"\u20AC");
    EXPECT_EQ(m_base64.GetEncodedB64String(u"\u65E5", false), u"Pw=="); // no place in it: "?"
}

TEST_P(Base64Test, AnOddLastByteIsNoCharacter) {
    EXPECT_EQ(m_base64.GetDecodedB64String(u"QQBC", true), u"A");
}

TEST_P(Base64Test, EncodedStringHasNoLineBreaks) {
    const std::u16string s = m_base64.GetEncodedB64String(std::u16string(300, u'x'), false);
    EXPECT_EQ(s.size(), 400u);
    EXPECT_EQ(s.find_first_of(u"\r\n "), std::u16string::npos);
}

TEST_P(Base64Test, ByteAndStringHelpers) {
    ByteArray a = Bytes("old");
    m_base64.AnsiStr2ByteArray(u"a\u20AC", a);
    EXPECT_EQ(a, (ByteArray{'a', 0x80}));
    EXPECT_EQ(m_base64.ByteArray2AnsiStr(a), u"a\u20AC");
    m_base64.UnicodeStr2ByteArray(u"a\u20AC", a);
    EXPECT_EQ(a, (ByteArray{'a', 0, 0xAC, 0x20}));
    EXPECT_EQ(m_base64.ByteArray2UnicodeStr(a), u"a\u20AC");
    m_base64.AnsiStr2ByteArray(u"", a);
    EXPECT_EQ(a, ByteArray());
    m_base64.UnicodeStr2ByteArray(u"", a);
    EXPECT_EQ(a, ByteArray());
    EXPECT_EQ(m_base64.ByteArray2AnsiStr({}), u"");
    EXPECT_EQ(m_base64.ByteArray2UnicodeStr({}), u"");
}

TEST_P(Base64Test, LineBreaksBlanksAndTabsAreSkipped) {
    EXPECT_EQ(Decoded(Bytes("TW\r\nFu\tTW E=\r\n")), Bytes("ManMa"));
    EXPECT_EQ(Decoded(Bytes("\nT\nQ\n=\n=\n")), Bytes("M"));
    EXPECT_EQ(m_base64.GetDecodedB64String(u" T W F u ", false), u"Man");
}

TEST_P(Base64Test, OtherControlCharactersAreNotSkipped) {
    EXPECT_EQ(Decoded(Bytes("TWFu\vTWE")).size(), 6u);
    EXPECT_EQ(Unspanned(Bytes("a\v\fb")), Bytes("a\v\fb"));
}

TEST_P(Base64Test, UnspanTakesOutLineEndsBlanksAndTabs) {
    EXPECT_EQ(Unspanned(Bytes("ab\r\ncd \te\nf\r")), Bytes("abcdef"));
    ByteArray a = Bytes("a b c d e f g h i j k l m n o p");
    m_base64.Unspan(a, a);
    EXPECT_EQ(a, Bytes("abcdefghijklmnop"));
}

TEST_P(Base64Test, UnspanSendsBytesAbove127ThroughTheCodePage) {
    EXPECT_EQ(Unspanned({'a', ' ', 0xE9, 0x80}), (ByteArray{'a', 0xE9, 0x80}));
    const AsciiOnly ascii;
    const Growing growing;
    ByteArray aOut;
    clsBase64(ascii, GetParam()).Unspan({'a', ' ', 0xE9, '\n', 'b'}, aOut);
    EXPECT_EQ(aOut, Bytes("a?b"));
    clsBase64(growing, GetParam()).Unspan({0xE9, 0xE9, ' ', 'b'}, aOut);
    EXPECT_EQ(aOut, Bytes("\xEF\xBF\xBD\xEF\xBF\xBD"
                          "b"));
}

TEST_P(Base64Test, DecodingSeesWhatTheCodePageGivesBack) {
    const AsciiOnly ascii;
    ByteArray aOut;
    clsBase64(ascii, GetParam()).DecodeB64({0xFF, 'A', 'A', 'A'}, aOut); // "?" is outside the alphabet, but fails not
    EXPECT_EQ(aOut, (ByteArray{0xFC, 0, 0}));
    const Growing growing;
    EXPECT_THROW(clsBase64(growing, GetParam()).DecodeB64({0x80, 'A', 'A', 'A'}, aOut), Failure);
}

TEST_P(Base64Test, CharactersOutsideTheAlphabetCount255) {
    EXPECT_EQ(Decoded(Bytes("@AAA")), (ByteArray{0xFC, 0, 0}));
    EXPECT_EQ(Decoded(Bytes("A@AA")), (ByteArray{0x0F, 0xF0, 0}));
    EXPECT_EQ(Decoded(Bytes("AA@A")), (ByteArray{0, 0x3F, 0xC0}));
    EXPECT_EQ(Decoded(Bytes("AAA@")), (ByteArray{0, 0, 0xFF}));
}

TEST_P(Base64Test, EqualsSignsInsideCount64) {
    EXPECT_EQ(Decoded(Bytes("=AAA")), (ByteArray{0, 0, 0}));
    EXPECT_EQ(Decoded(Bytes("A=AA")), (ByteArray{0x04, 0, 0}));
    EXPECT_EQ(Decoded(Bytes("AA=A")), (ByteArray{0, 0x10, 0}));
    EXPECT_EQ(Decoded(Bytes("AAA=AAAA")), (ByteArray{0, 0, 0x40, 0, 0, 0}));
}

TEST_P(Base64Test, EveryByteUpTo233IsTakenAndEveryOneAboveFails) {
    for (unsigned c = 0; c < 256; ++c) {
        const auto b = static_cast<std::uint8_t>(c);
        const std::size_t nPlaces[] = {0, 21, 38};
        for (const std::size_t nPlace : nPlaces) {
            SCOPED_TRACE(testing::Message() << "byte " << c << " in place " << nPlace);
            ByteArray a(40, 'A');
            a[nPlace] = b;
            if (c < 234) {
                EXPECT_EQ(Decoded(a), reference::PlainDecode(a));
                continue;
            }
            try {
                Decoded(a);
                FAIL() << "nothing was raised";
            } catch (const Failure& failure) {
                EXPECT_EQ(failure.Number(), 9u);
                EXPECT_EQ(failure.Source(), u"");
                EXPECT_EQ(failure.Description(), u"Subscript out of range");
            }
        }
    }
}

TEST_P(Base64Test, AFailedDecodingLeavesTheOutputEmpty) {
    ByteArray aOut = Bytes("old");
    EXPECT_THROW(m_base64.DecodeB64({'A', 'A', 0xFF, 'A'}, aOut), Failure);
    EXPECT_EQ(aOut, ByteArray());
}

TEST_P(Base64Test, StringsThatFailInsideBecomeEmpty) {
    EXPECT_EQ(m_base64.GetDecodedB64String(u"TWF\u00EAu", false), u""); // EA is 234
    EXPECT_NE(m_base64.GetDecodedB64String(u"TWF\u00E9", false), u"");  // E9 is 233
    const FailingCodePage failing;
    EXPECT_EQ(clsBase64(failing, GetParam()).GetEncodedB64String(u"Man", false), u"");
    EXPECT_EQ(clsBase64(failing, GetParam()).GetEncodedB64String(u"Man", true), u"");
    EXPECT_EQ(clsBase64(failing, GetParam()).GetDecodedB64String(u"TWFu", false), u"");
}

TEST_P(Base64Test, LengthsThatAreNoMultipleOfFourGiveTheStatedSizeFromTheBitsThatAreThere) {
    EXPECT_EQ(Decoded(Bytes("/")), (ByteArray{0xFC}));
    EXPECT_EQ(Decoded(Bytes("//")), (ByteArray{0xFF, 0xF0})); // 1.5 goes to 2
    EXPECT_EQ(Decoded(Bytes("///")), (ByteArray{0xFF, 0xFF}));
    EXPECT_EQ(Decoded(Bytes("/////")), (ByteArray{0xFF, 0xFF, 0xFF, 0xFC}));
    EXPECT_EQ(Decoded(Bytes("//////")), (ByteArray{0xFF, 0xFF, 0xFF, 0xFF})); // 4.5 goes to 4
    EXPECT_EQ(Decoded(Bytes("///////")), (ByteArray{0xFF, 0xFF, 0xFF, 0xFF, 0xFF}));
    EXPECT_EQ(Decoded(Bytes("//////////")),
              (ByteArray{0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xF0})); // 7.5 goes to 8
}

TEST_P(Base64Test, PaddingWithoutItsGroupShortensTheSize) {
    EXPECT_EQ(Decoded(Bytes("=")), ByteArray());
    EXPECT_EQ(Decoded(Bytes("==")), ByteArray());
    EXPECT_EQ(Decoded(Bytes("===")), ByteArray());
    EXPECT_EQ(Decoded(Bytes("====")), (ByteArray{0x04})); // the first two are no padding and count 64
    EXPECT_EQ(Decoded(Bytes("/=")), ByteArray());         // 0.5 goes to 0
    EXPECT_EQ(Decoded(Bytes("/A=")), (ByteArray{0xFC}));
    EXPECT_EQ(Decoded(Bytes("////==")), (ByteArray{0xFF, 0xFF}));
}

TEST_P(Base64Test, SpanOfOneFullLineHasItsLineEndAndAZero) {
    const std::string sExpected = std::string(76, 'x') + std::string("\r\n\0", 3);
    EXPECT_EQ(Spanned(76, ByteArray(76, 'x')), Bytes(sExpected));
}

TEST_P(Base64Test, SpanEndsWithoutALineEndInTheMiddleOfALine) {
    EXPECT_EQ(Spanned(3, Bytes("abcd")), (ByteArray{'a', 'b', 'c', '\r', '\n', 'd', 0, 0, 0}));
    EXPECT_EQ(Spanned(10, Bytes("ab")), (ByteArray{'a', 'b', 0, 0, 0}));
}

TEST_P(Base64Test, SpanCountsOneLineTooManyFromAHalfOn) {
    // 1.5 is 2, and one for the fraction; 0.75 is 1, and one more; 2.5 is 2, and one more.
    EXPECT_EQ(Spanned(2, Bytes("abc")), (ByteArray{'a', 'b', '\r', '\n', 'c', 0, 0, 0, 0, 0}));
    EXPECT_EQ(Spanned(4, Bytes("abc")), (ByteArray{'a', 'b', 'c', 0, 0, 0, 0, 0}));
    EXPECT_EQ(Spanned(2, Bytes("abcde")), (ByteArray{'a', 'b', '\r', '\n', 'c', 'd', '\r', '\n', 'e', 0, 0, 0}));
}

TEST_P(Base64Test, SpanOfNothingIsOneZeroByte) {
    EXPECT_EQ(Spanned(76, {}), ByteArray{0});
}

TEST_P(Base64Test, SpanOfSingleCharacters) {
    EXPECT_EQ(Spanned(1, Bytes("ab")), (ByteArray{'a', '\r', '\n', 'b', '\r', '\n', 0}));
    ByteArray a = Bytes("ab");
    m_base64.Span(1, a, a);
    EXPECT_EQ(a, (ByteArray{'a', '\r', '\n', 'b', '\r', '\n', 0}));
}

TEST_P(Base64Test, SpanStopsWhereTheOutputIsFullWhenSinglePrecisionCountsTooFewLines) {
    // 2^24 + 1 lines are 2^24 in single precision: two bytes too few, and none of them zero.
    const std::size_t nSize = (std::size_t{1} << 24) + 1;
    const ByteArray a = Spanned(1, ByteArray(nSize, 'x'));
    EXPECT_EQ(a.size(), 3 * nSize - 1);
    EXPECT_EQ(a.back(), '\r');
}

TEST_P(Base64Test, SpanByNoLengthFails) {
    const auto numberOf = [this](std::int32_t lCharsPerLine) {
        try {
            Spanned(lCharsPerLine, Bytes("abc"));
        } catch (const Failure& failure) {
            return failure.Number();
        }
        return std::uint32_t{0};
    };
    EXPECT_EQ(numberOf(0), 11u);
    EXPECT_EQ(numberOf(-1), 5u);
}

TEST_P(Base64Test, TheOutputMayBeTheInput) {
    ByteArray a = Bytes("Many hands make light work.");
    m_base64.EncodeB64(a, a);
    EXPECT_EQ(a, Bytes("TWFueSBoYW5kcyBtYWtlIGxpZ2h0IHdvcmsu"));
    m_base64.DecodeB64(a, a);
    EXPECT_EQ(a, Bytes("Many hands make light work."));
}

TEST_P(Base64Test, EncodesAndDecodesEveryLengthLikeThePlainReference) {
    std::mt19937 random(6001);
    for (std::size_t nSize = 0; nSize <= 200; ++nSize) {
        SCOPED_TRACE(nSize);
        const ByteArray aData = RandomBytes(random, nSize);
        const ByteArray aText = Encoded(aData);
        ASSERT_EQ(aText, reference::PlainEncode(aData));
        ASSERT_EQ(Decoded(aText), aData);
        for (const std::int32_t lCharsPerLine : {1, 4, 5, 16, 64, 76}) {
            ByteArray aLines = Spanned(lCharsPerLine, aText);
            while (!aLines.empty() && aLines.back() == 0)
                aLines.pop_back();
            ASSERT_EQ(Unspanned(aLines), aText) << lCharsPerLine;
            ASSERT_EQ(Decoded(aLines), aData) << lCharsPerLine;
        }
    }
}

TEST_P(Base64Test, DecodesAnyBytesLikeThePlainReference) {
    std::mt19937 random(6002);
    constexpr std::string_view kMix = "ABCDEFwxyz0189+/+/AZaz09QQQQ==\r\n \t";
    for (int iRound = 0; iRound < 7'000; ++iRound) {
        SCOPED_TRACE(iRound);
        ByteArray a = RandomBytes(random, random() % 120);
        // Mostly text that decodes, some of it with garbage, rarely with a byte beyond the table.
        const unsigned nGarbage = iRound % 3 == 0 ? 0 : iRound % 3 == 1 ? 20 : 3;
        const unsigned nLimit = iRound % 7 == 0 ? 256 : 234;
        for (auto& b : a) {
            const bool bGarbage = nGarbage != 0 && random() % nGarbage == 0;
            b = bGarbage ? static_cast<std::uint8_t>(random() % nLimit)
                         : static_cast<std::uint8_t>(kMix[random() % kMix.size()]);
        }
        const auto expected = reference::PlainDecode(a);
        if (expected) {
            ASSERT_EQ(Decoded(a), *expected);
        } else {
            ASSERT_THROW(Decoded(a), Failure);
        }
    }
}

TEST_P(Base64Test, LongTextInLines) {
    std::mt19937 random(6003);
    const ByteArray aData = RandomBytes(random, 100'000);
    ByteArray aLines = Spanned(76, Encoded(aData));
    while (aLines.back() == 0)
        aLines.pop_back();
    EXPECT_EQ(Decoded(aLines), aData);
}

} // namespace
} // namespace orvanta
