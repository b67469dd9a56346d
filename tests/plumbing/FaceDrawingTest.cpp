#include "plumbing/FaceDrawing.h"

#include "tests/plumbing/PlatformOutline.h"
#include "tests/reference/PlainFace.h"
#include "tests/support/PixelCanvas.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace orvanta {
namespace {

using testing::PixelCanvas;
using testing::PlainBox;
using testing::PlainFaceForm;
using testing::PlainPicture;

constexpr OleColor kGround = 0x00FF00;
constexpr int kMargin = 7;

struct Size {
    int width;
    int height;
};
// The third has its halves on odd numbers; the last is lower than the fixed bands of some styles.
constexpr Size kSizes[] = {{200, 30}, {75, 23}, {33, 41}, {24, 10}};

// Dark, middle and bright backs, on both sides of the brightnesses at which highlights adapt (64, 102, 171).
constexpr OleColor kBacks[] = {MakeColor(20, 30, 90),    MakeColor(64, 63, 62),    MakeColor(64, 64, 64),
                               MakeColor(101, 101, 101), MakeColor(102, 102, 102), MakeColor(200, 100, 20),
                               MakeColor(170, 170, 170), MakeColor(171, 171, 171), MakeColor(245, 245, 245)};

PlainBox BoxOf(Size size) {
    return {kMargin, kMargin, kMargin + size.width, kMargin + size.height};
}

// The outline is asked of the platform once for each size.
void Outline(const PlainBox& box, const std::function<void(int, int)>& set) {
    static std::map<std::pair<int, int>, std::vector<std::pair<int, int>>> known;
    std::vector<std::pair<int, int>>& points = known[{box.right, box.bottom}];
    if (points.empty()) testing::PlatformOutline(box, [&points](int x, int y) { points.emplace_back(x, y); });
    for (const auto& [x, y] : points)
        set(x, y);
}

void Draw(const PixelCanvas& canvas, Size size, const PlainFaceForm& form) {
    const PlainBox box = BoxOf(size);
    DrawFace(canvas.Dc(), {box.left, box.top, box.right, box.bottom}, form.back, form.bBorder, form.border,
             form.bPressed, form.bDefault, form.bCancel, false, form.bRounded, form.style, form.out, form.bAdapt);
}

::testing::AssertionResult MatchesPlain(Size size, const PlainFaceForm& form) {
    PixelCanvas canvas(size.width + 2 * kMargin, size.height + 2 * kMargin, kGround);
    PlainPicture plain(canvas.Width(), canvas.Height(), kGround);
    Draw(canvas, size, form);
    PlainFace(plain, BoxOf(size), form, Outline);
    const std::vector<OleColor> pixels = canvas.Pixels();
    for (std::size_t n = 0; n < pixels.size(); ++n) {
        if (pixels[n] == plain.Pixels()[n]) continue;
        const auto nWidth = static_cast<std::size_t>(canvas.Width());
        return ::testing::AssertionFailure()
               << std::hex << "back " << form.back << std::dec << ", face " << size.width << " x " << size.height
               << ", pixel " << static_cast<int>(n % nWidth) - kMargin << ", " << static_cast<int>(n / nWidth) - kMargin
               << " is " << std::hex << pixels[n] << ", wanted " << plain.Pixels()[n];
    }
    return ::testing::AssertionSuccess();
}

struct FaceCase {
    int style;
    bool bPressed;
    bool bRounded;
};

class Face : public ::testing::TestWithParam<FaceCase> {
protected:
    PlainFaceForm FormOn(OleColor back) const {
        const FaceCase& face = GetParam();
        return {back,          true,       MakeColor(10, 120, 240), face.bPressed, false, false,
                face.bRounded, face.style, MakeColor(250, 10, 130), true};
    }
};

TEST_P(Face, HasThePixelsOfThePlainReadingOnAllBacksAndSizes) {
    for (const OleColor back : kBacks)
        for (const Size& size : kSizes)
            EXPECT_TRUE(MatchesPlain(size, FormOn(back)));
}

TEST_P(Face, WithoutAdaptingKeepsItsHighlightsOnDarkAndBrightBacks) {
    for (const OleColor back : kBacks) {
        PlainFaceForm form = FormOn(back);
        form.bAdapt = false;
        EXPECT_TRUE(MatchesPlain(kSizes[0], form));
    }
}

TEST_P(Face, WithoutABorderIsItsBackgroundAlone) {
    for (const OleColor back : kBacks) {
        PlainFaceForm form = FormOn(back);
        form.bBorder = false;
        EXPECT_TRUE(MatchesPlain(kSizes[1], form));
    }
}

TEST_P(Face, CarriesTheFramesOfTheDefaultAndTheCancelButton) {
    for (const bool bDefault : {false, true}) {
        PlainFaceForm form = FormOn(kBacks[4]);
        form.bDefault = bDefault;
        form.bCancel = true;
        EXPECT_TRUE(MatchesPlain(kSizes[0], form));
    }
}

std::vector<FaceCase> AllFaces() {
    std::vector<FaceCase> faces;
    for (int style = 0; style <= 8; ++style)
        for (const bool bPressed : {false, true})
            for (const bool bRounded : {false, true})
                faces.push_back({style, bPressed, bRounded});
    return faces;
}

std::string NameOf(const ::testing::TestParamInfo<FaceCase>& face) {
    return "Style" + std::to_string(face.param.style) + (face.param.bPressed ? "Pressed" : "") +
           (face.param.bRounded ? "Rounded" : "");
}

INSTANTIATE_TEST_SUITE_P(AllStyles, Face, ::testing::ValuesIn(AllFaces()), NameOf);

// Anchors worked out by hand on a grey of 150: S(34) is 184, S(51) 201, S(-17) 133, S(-51) 99, S(85) 235, S(128) 255.
class FaceRows : public ::testing::Test {
protected:
    static constexpr OleColor Gray(int i) { return MakeColor(i, i, i); }
    // The grey of row y in the middle of a face of 40 by 30.
    int Row(int style, bool bPressed, int y) {
        canvas.Clear(kGround);
        Draw(canvas, {40, 30}, {Gray(150), false, 0, bPressed, false, false, false, style, -1, true});
        return canvas.At(kMargin + 20, kMargin + y) & 0xFF;
    }
    PixelCanvas canvas{60, 60, kGround};
};

TEST_F(FaceRows, StyleZeroIsFlatAndPressedHasSixRowsAboveAndFiveBelow) {
    EXPECT_EQ(Row(0, false, 0), 150);
    EXPECT_EQ(Row(0, false, 29), 150);
    EXPECT_EQ(Row(0, true, 0), 116);
    EXPECT_EQ(Row(0, true, 5), 144); // 116 / 6 + 150 * 5 / 6
    EXPECT_EQ(Row(0, true, 6), 150);
    EXPECT_EQ(Row(0, true, 25), 150);
    EXPECT_EQ(Row(0, true, 29), 177); // 150 / 5 + 184 * 4 / 5
}

TEST_F(FaceRows, StyleOneRunsOverTheWholeFace) {
    EXPECT_EQ(Row(1, false, 0), 201);
    EXPECT_EQ(Row(1, false, 29), 135); // 201 / 30 + 133 * 29 / 30
    EXPECT_EQ(Row(1, true, 0), 133);
    EXPECT_EQ(Row(1, true, 29), 199);
}

TEST_F(FaceRows, StyleTwoTurnsAtTheHalf) {
    EXPECT_EQ(Row(2, false, 0), 133);
    EXPECT_EQ(Row(2, false, 15), 201);
    EXPECT_EQ(Row(2, true, 0), 201);
    EXPECT_EQ(Row(2, true, 15), 133);
}

TEST_F(FaceRows, StyleThreeTurnsTwoRowsBelowTheThird) {
    EXPECT_EQ(Row(3, false, 0), 184);
    EXPECT_EQ(Row(3, false, 11), 153); // 184 / 12 + 150 * 11 / 12
    EXPECT_EQ(Row(3, false, 12), 133);
    EXPECT_EQ(Row(3, true, 0), 133);
    EXPECT_EQ(Row(3, true, 12), 133);
    EXPECT_EQ(Row(3, true, 29), 197); // 133 / 18 + 201 * 17 / 18
}

TEST_F(FaceRows, StyleFourHasAHighlightOfAQuarterThreeRowsBelowTheTop) {
    EXPECT_EQ(Row(4, false, 0), 99);
    EXPECT_EQ(Row(4, false, 3), 204);  // hi, and 30 / 4 is 8 rows, halves to even
    EXPECT_EQ(Row(4, false, 10), 146); // m is 138: 37 percent from 99 to 204; 204 / 8 + 138 * 7 / 8 = 146.25
    EXPECT_EQ(Row(4, false, 11), 138); // the face itself: 99 + 105 * 11 / 30 = 137.5
}

TEST_F(FaceRows, TheShareOfStyleFoursLowerLineIsAWholeNumberHalvesToEven) {
    Draw(canvas, {40, 40}, {Gray(150), false, 0, false, false, false, true, 4, -1, true});
    // q is 10 and 13 / 40 is 32.5 percent, taken as 32: 99 * 0.68 + 204 * 0.32 = 132.6. 33 percent would give 134.
    EXPECT_EQ(canvas.At(kMargin + 20, kMargin + 13), Gray(133));
}

TEST_F(FaceRows, StyleFourPressedIsSolidFromRowFiveToFourteen) {
    EXPECT_EQ(Row(4, true, 0), 99);
    EXPECT_EQ(Row(4, true, 5), 150);
    EXPECT_EQ(Row(4, true, 14), 150);
    EXPECT_EQ(Row(4, true, 15), 150);
    EXPECT_EQ(Row(4, true, 29), 200); // 150 / 15 + 204 * 14 / 15
}

TEST_F(FaceRows, StylesFiveSixAndSevenDifferAboveAndAreAlikePressed) {
    EXPECT_EQ(Row(5, false, 0), 184);
    EXPECT_EQ(Row(5, false, 15), 99);
    EXPECT_EQ(Row(6, false, 0), 255);
    EXPECT_EQ(Row(6, false, 14), 187); // 255 / 15 + 182 * 14 / 15
    EXPECT_EQ(Row(6, false, 15), 99);
    EXPECT_EQ(Row(7, false, 0), 255);
    EXPECT_EQ(Row(7, false, 7), 235);
    EXPECT_EQ(Row(7, false, 15), 99);
    EXPECT_EQ(Row(7, false, 29), 226); // 99 / 15 + 235 * 14 / 15
    for (const int style : {5, 6, 7}) {
        EXPECT_EQ(Row(style, true, 0), 133);
        EXPECT_EQ(Row(style, true, 15), 133);
        EXPECT_EQ(Row(style, true, 29), 196); // 133 / 15 + 201 * 14 / 15
    }
}

TEST_F(FaceRows, StyleEightHasFourRowsAtEachEnd) {
    EXPECT_EQ(Row(8, false, 0), 204);
    EXPECT_EQ(Row(8, false, 4), 150);
    EXPECT_EQ(Row(8, false, 25), 150);
    EXPECT_EQ(Row(8, false, 29), 112); // 150 / 4 + 99 * 3 / 4 = 111.75
    EXPECT_EQ(Row(8, true, 0), 99);
    EXPECT_EQ(Row(8, true, 29), 190); // 150 / 4 + 204 * 3 / 4 = 190.5, half to even
}

class FaceMarks : public ::testing::Test {
protected:
    static constexpr RECT kRect{4, 4, 44, 34};
    void DrawMarked(std::int32_t style, OleColor border, OleColor out, bool bDefault, bool bCancel, bool bFocus) {
        DrawFace(canvas.Dc(), kRect, kBack, true, border, false, bDefault, bCancel, bFocus, true, style, out, true);
    }
    std::vector<OleColor> Taken() {
        std::vector<OleColor> pixels = canvas.Pixels();
        canvas.Clear(kGround);
        return pixels;
    }
    static constexpr OleColor kBack = MakeColor(150, 160, 170);
    PixelCanvas canvas{50, 40, kGround};
};

TEST_F(FaceMarks, AStyleOfMinusOneIsTheProgramsStyleAndElseThree) {
    DrawMarked(3, -1, -1, false, false, false);
    const std::vector<OleColor> three = Taken();
    DrawMarked(6, -1, -1, false, false, false);
    const std::vector<OleColor> six = Taken();
    DrawMarked(-1, -1, -1, false, false, false);
    EXPECT_EQ(Taken(), three);
    DefaultFaceStyle(6);
    DrawMarked(-1, -1, -1, false, false, false);
    ClearDefaultFaceStyle();
    EXPECT_EQ(Taken(), six);
}

TEST_F(FaceMarks, AnAutomaticBorderIs68DarkerAndAnAutomaticOutsideIsTheBack) {
    DrawMarked(3, MakeColor(82, 92, 102), kBack, false, false, false);
    const std::vector<OleColor> wanted = Taken();
    DrawMarked(3, -1, -1, false, false, false);
    EXPECT_EQ(Taken(), wanted);
}

TEST_F(FaceMarks, ASystemBorderIsResolvedWhenItIsUsed) {
    DrawMarked(3, SystemColor(6), kBack, false, false, false);
    const std::vector<OleColor> wanted = Taken();
    DrawMarked(3, static_cast<OleColor>(0x80000006u), kBack, false, false, false);
    EXPECT_EQ(Taken(), wanted);
}

TEST_F(FaceMarks, ASystemBackIsResolved) {
    DrawFace(canvas.Dc(), kRect, SystemColor(15), true, -1, false, false, false, false, true, 4, -1, true);
    const std::vector<OleColor> wanted = Taken();
    DrawFace(canvas.Dc(), kRect, static_cast<OleColor>(0x8000000Fu), true, -1, false, false, false, false, true, 4, -1,
             true);
    EXPECT_EQ(Taken(), wanted);
}

TEST_F(FaceMarks, DefaultAndCancelTogetherDrawTheDefaultFrameOnly) {
    DrawMarked(3, -1, -1, true, true, false);
    EXPECT_EQ(canvas.At(20, 5), 0xECBEA0);
    EXPECT_EQ(canvas.At(5, 20), 0xECBEA0);
    EXPECT_EQ(canvas.At(42, 20), 0xECBEA0);
    EXPECT_EQ(canvas.At(20, 32), 0xECBEA0);
    const std::vector<OleColor> both = Taken();
    DrawMarked(3, -1, -1, true, false, false);
    EXPECT_EQ(Taken(), both);
}

TEST_F(FaceMarks, CancelAloneDrawsAGreyFrame) {
    DrawMarked(3, -1, -1, false, true, false);
    EXPECT_EQ(canvas.At(20, 5), 0x808080);
    EXPECT_EQ(canvas.At(42, 20), 0x808080);
}

TEST_F(FaceMarks, TheFramesCoverTheInnerCorners) {
    DrawMarked(3, -1, -1, true, false, false);
    EXPECT_EQ(canvas.At(5, 5), 0xECBEA0);
    EXPECT_EQ(canvas.At(42, 32), 0xECBEA0);
}

TEST_F(FaceMarks, TheFocusMarkStandsTwoPixelsInside) {
    DrawMarked(3, -1, -1, false, false, false);
    const RECT inner{6, 6, 42, 32};
    DrawFocusRect(canvas.Dc(), &inner);
    const std::vector<OleColor> wanted = Taken();
    DrawMarked(3, -1, -1, false, false, true);
    EXPECT_EQ(Taken(), wanted);
}

TEST_F(FaceMarks, AStyleBeyondEightHasABorderAndNoBackground) {
    DrawMarked(9, 0x0000FF, -1, false, false, false);
    EXPECT_EQ(canvas.At(20, 20), kGround);
    EXPECT_EQ(canvas.At(20, 4), 0x0000FF);
}

TEST_F(FaceMarks, AFaceWithoutHeightOrWidthPaintsNoHighlight) {
    DrawFace(canvas.Dc(), {4, 4, 44, 4}, kBack, false, -1, false, false, false, false, true, 4, -1, true);
    EXPECT_EQ(Taken(), std::vector<OleColor>(50 * 40, kGround));
}

TEST_F(FaceMarks, ADeviceContextIsLeftAsItWasFound) {
    HDC dc = canvas.Dc();
    MoveToEx(dc, 7, 8, nullptr);
    SetDCPenColor(dc, 0x445566);
    SetTextColor(dc, 0x112233);
    SetBkColor(dc, 0x332211);
    const HGDIOBJ pen = GetCurrentObject(dc, OBJ_PEN);
    const HGDIOBJ brush = GetCurrentObject(dc, OBJ_BRUSH);
    for (std::int32_t style = 0; style <= 8; ++style)
        DrawMarked(style, -1, -1, true, false, true);
    POINT position{};
    GetCurrentPositionEx(dc, &position);
    EXPECT_EQ(position.x, 7);
    EXPECT_EQ(position.y, 8);
    EXPECT_EQ(GetDCPenColor(dc), 0x445566u);
    EXPECT_EQ(GetTextColor(dc), 0x112233u);
    EXPECT_EQ(GetBkColor(dc), 0x332211u);
    EXPECT_EQ(GetCurrentObject(dc, OBJ_PEN), pen);
    EXPECT_EQ(GetCurrentObject(dc, OBJ_BRUSH), brush);
}

TEST_F(FaceMarks, AClippedFaceStaysInsideItsClip) {
    IntersectClipRect(canvas.Dc(), 10, 10, 20, 20);
    DrawMarked(4, -1, -1, true, false, false);
    SelectClipRgn(canvas.Dc(), nullptr);
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < 50; ++x)
            EXPECT_EQ(canvas.At(x, y) == kGround, x < 10 || x >= 20 || y < 10 || y >= 20) << x << ", " << y;
}

} // namespace
} // namespace orvanta
