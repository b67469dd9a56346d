#include "plumbing/SharedText.h"

#include "plumbing/WideText.h"
#include "tests/support/PixelCanvas.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace orvanta {
namespace {

using testing::PixelCanvas;

constexpr OleColor kWhiteGround = 0xFFFFFF;

class SharedText : public ::testing::Test {
protected:
    SharedText()
        : font(CreateFontW(-11, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, NONANTIALIASED_QUALITY, 0,
                           L"Tahoma")),
          selection(canvas.Dc(), font.Get()) {
        SetBkMode(canvas.Dc(), TRANSPARENT);
    }

    // What the platform itself measures.
    SIZE Measured(const std::u16string& s, RECT rect, UINT flags) {
        DrawTextW(canvas.Dc(), WideOf(s), static_cast<int>(s.size()), &rect, flags | DT_CALCRECT);
        return {rect.right - rect.left, rect.bottom - rect.top};
    }
    int LineWidth(const std::u16string& s) { return Measured(s, {}, DT_SINGLELINE).cx; }
    int LineHeight() { return Measured(u"X", {}, DT_SINGLELINE).cy; }
    bool HasPixel(OleColor c) {
        const std::vector<OleColor> pixels = canvas.Pixels();
        return std::find(pixels.begin(), pixels.end(), c) != pixels.end();
    }

    PixelCanvas canvas{200, 100, kWhiteGround};
    OwnedFont font;
    Selection selection;
    std::int32_t w = -7;
    std::int32_t h = -7;
};

TEST_F(SharedText, IsDrawnAsThePlatformDoesWithItsWholeLength) {
    PixelCanvas wanted(200, 100, kWhiteGround);
    const Selection wantedFont(wanted.Dc(), font.Get());
    SetBkMode(wanted.Dc(), TRANSPARENT);
    RECT rect{5, 5, 150, 50};
    DrawTextW(wanted.Dc(), L"Grüße \u0416!", 8, &rect, DT_SINGLELINE | DT_CENTER);
    rect = {5, 5, 150, 50};
    DrawTextOn(canvas.Dc(), u"Gr\u00FC\u00DFe \u0416!", rect, DT_SINGLELINE | DT_CENTER);
    EXPECT_EQ(canvas.Pixels(), wanted.Pixels());
    EXPECT_TRUE(HasPixel(0));
}

TEST_F(SharedText, MeasuresIntoTheRectangleWhenAsked) {
    RECT rect{};
    DrawTextOn(canvas.Dc(), u"caption", rect, DT_CALCRECT | DT_SINGLELINE);
    EXPECT_EQ(rect.right, LineWidth(u"caption"));
}

TEST_F(SharedText, AColorIsResolvedAndStaysSelected) {
    const auto grayText = static_cast<OleColor>(0x80000011u);
    RECT rect{5, 5, 150, 50};
    DrawTextColored(canvas.Dc(), u"caption", rect, grayText, DT_SINGLELINE);
    EXPECT_TRUE(HasPixel(SystemColor(0x11)));
    EXPECT_EQ(static_cast<OleColor>(GetTextColor(canvas.Dc())), SystemColor(0x11));
}

TEST_F(SharedText, AtFourNumbersIsTheSame) {
    DrawTextColoredAt(canvas.Dc(), u"caption", 50, 40, 150, 60, 0x0000FF, DT_SINGLELINE);
    EXPECT_TRUE(HasPixel(0x0000FF));
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < 50; ++x)
            ASSERT_EQ(canvas.At(x, y), kWhiteGround);
}

TEST_F(SharedText, ALineIsMeasuredAsOneLineWhateverItHolds) {
    MeasureTextLine(canvas.Dc(), u"two\r\nlines", 0, w, h);
    EXPECT_EQ(w, LineWidth(u"two\r\nlines"));
    EXPECT_EQ(h, LineHeight());
}

TEST_F(SharedText, TheFlagsOfALineCount) {
    std::int32_t wPlain = 0;
    std::int32_t hPlain = 0;
    MeasureTextLine(canvas.Dc(), u"&File", DT_NOPREFIX, wPlain, hPlain);
    MeasureTextLine(canvas.Dc(), u"&File", 0, w, h);
    EXPECT_EQ(w, LineWidth(u"File"));
    EXPECT_GT(wPlain, w);
}

TEST_F(SharedText, AnEmptyLineHasNoWidthAndTheHeightOfALine) {
    MeasureTextLine(canvas.Dc(), u"", 0, w, h);
    EXPECT_EQ(w, 0);
    EXPECT_EQ(h, LineHeight());
}

TEST_F(SharedText, TheWidestLineCounts) {
    EXPECT_EQ(MeasureTextMaxLineWidth(canvas.Dc(), u"a\r\nwide line here\rb", 0), LineWidth(u"wide line here"));
    EXPECT_EQ(MeasureTextMaxLineWidth(canvas.Dc(), u"", 0), 0);
    EXPECT_EQ(MeasureTextMaxLineWidth(canvas.Dc(), u"\r\n\r", 0), 0);
}

TEST_F(SharedText, ALineFeedAloneEndsNoLine) {
    EXPECT_EQ(MeasureTextMaxLineWidth(canvas.Dc(), u"one\ntwo", 0), LineWidth(u"one\ntwo"));
}

TEST_F(SharedText, ABlockTakesTheWidthOfItsWidestLine) {
    MeasureTextBlock(canvas.Dc(), u"short\r\na longer line", 0, false, false, w, h);
    EXPECT_EQ(w, LineWidth(u"a longer line"));
    EXPECT_EQ(h, 2 * LineHeight());
}

TEST_F(SharedText, ABlockOfKeptWidthBreaksBetweenWords) {
    w = LineWidth(u"one two th");
    h = 999;
    MeasureTextBlock(canvas.Dc(), u"one two three", 0, true, false, w, h);
    EXPECT_EQ(h, 2 * LineHeight());
    EXPECT_LE(w, LineWidth(u"one two th"));
}

TEST_F(SharedText, AKeptWidthThatIsNotAskedForIsIgnored) {
    w = 10;
    MeasureTextBlock(canvas.Dc(), u"one two three", 0, false, true, w, h);
    EXPECT_EQ(w, LineWidth(u"one two three"));
    EXPECT_EQ(h, LineHeight());
}

TEST_F(SharedText, InARectangleItIsBrokenAtItsWidth) {
    const UINT flags = 8256;
    EXPECT_EQ(flags, static_cast<UINT>(DT_EDITCONTROL | DT_EXPANDTABS));
    const int width = LineWidth(u"one two th");
    MeasureTextInRect(canvas.Dc(), u"one two three", 10, 20, 10 + width, 90, flags, w, h);
    const SIZE wanted = Measured(u"one two three", {10, 20, 10 + width, 90}, flags | DT_WORDBREAK);
    EXPECT_EQ(w, wanted.cx);
    EXPECT_EQ(h, wanted.cy);
    EXPECT_EQ(h, 2 * LineHeight());
}

TEST_F(SharedText, WithoutADeviceContextNothingHappens) {
    RECT rect{1, 2, 3, 4};
    DrawTextOn(nullptr, u"caption", rect, DT_CALCRECT);
    DrawTextColored(nullptr, u"caption", rect, 0, DT_CALCRECT);
    EXPECT_EQ(rect.right, 3);
    MeasureTextLine(nullptr, u"caption", 0, w, h);
    MeasureTextBlock(nullptr, u"caption", 0, false, false, w, h);
    MeasureTextInRect(nullptr, u"caption", 0, 0, 9, 9, 0, w, h);
    EXPECT_EQ(w, -7);
    EXPECT_EQ(h, -7);
    EXPECT_EQ(MeasureTextMaxLineWidth(nullptr, u"caption", 0), 0);
}

} // namespace
} // namespace orvanta
