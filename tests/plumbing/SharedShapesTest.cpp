#include "plumbing/SharedShapes.h"

#include "plumbing/FaceDrawing.h"
#include "plumbing/SharedText.h"
#include "tests/plumbing/PlatformOutline.h"
#include "tests/reference/PlainFace.h"
#include "tests/support/PatchedImport.h"
#include "tests/support/PixelCanvas.h"

#include <gtest/gtest.h>

#include <utility>

namespace orvanta {
namespace {

using testing::PixelCanvas;
using testing::PlainBox;
using testing::PlainPicture;

constexpr OleColor kGround = 0x00FF00;
constexpr OleColor kInk = 0x332211;
const auto kButtonFace = static_cast<OleColor>(0x8000000Fu);

class SharedShapes : public ::testing::Test {
protected:
    PixelCanvas canvas{30, 20, kGround};
    PlainPicture plain{30, 20, kGround};
    void ExpectPlain() { EXPECT_EQ(canvas.Pixels(), plain.Pixels()); }
};

TEST_F(SharedShapes, ARectangleIsFilledWithoutItsRightAndBottom) {
    FillOrFrame(canvas.Dc(), {2, 3, 10, 9}, kInk, true);
    plain.Fill(2, 3, 10, 9, kInk);
    ExpectPlain();
}

TEST_F(SharedShapes, AFrameIsOnePixelWide) {
    FillOrFrameCoords(canvas.Dc(), 2, 3, 10, 9, kInk, false);
    plain.Frame(2, 3, 10, 9, kInk);
    ExpectPlain();
}

TEST_F(SharedShapes, SystemColorsAreResolvedBeforeDrawing) {
    FillOrFrameCoords(canvas.Dc(), 0, 0, 1, 1, kButtonFace, true);
    SetPixelOle(canvas.Dc(), 1, 0, kButtonFace);
    DrawLineOle(canvas.Dc(), 2, 0, 3, 0, kButtonFace, 1, PS_SOLID);
    GradientV(canvas.Dc(), 3, 0, 4, 1, kButtonFace, kInk);
    DrawRoundRect(canvas.Dc(), 4, 0, 6, 2, true, kButtonFace, kButtonFace, 1, PS_SOLID, 0);
    for (int x = 0; x < 6; ++x)
        EXPECT_EQ(canvas.At(x, 0), SystemColor(15)) << x;
}

TEST_F(SharedShapes, ALineStopsBeforeItsLastPoint) {
    DrawLineOle(canvas.Dc(), 2, 3, 10, 3, kInk, 1, PS_SOLID);
    plain.Fill(2, 3, 10, 4, kInk);
    ExpectPlain();
}

TEST_F(SharedShapes, ALineHasItsWidth) {
    DrawLineOle(canvas.Dc(), 5, 10, 20, 10, kInk, 3, PS_SOLID);
    EXPECT_EQ(canvas.At(10, 9), kInk);
    EXPECT_EQ(canvas.At(10, 11), kInk);
    EXPECT_EQ(canvas.At(10, 12), kGround);
}

TEST_F(SharedShapes, ALineHasItsStyle) {
    DrawLineOle(canvas.Dc(), 0, 10, 30, 10, kInk, 1, PS_NULL);
    ExpectPlain();
}

TEST_F(SharedShapes, ARoundRectWithoutFillLeavesItsInsideAlone) {
    DrawRoundRect(canvas.Dc(), 2, 3, 20, 15, false, 0, kInk, 1, PS_SOLID, 4);
    testing::PlatformOutline({2, 3, 20, 15}, [this](int x, int y) { plain.Set(x, y, kInk); });
    ExpectPlain();
}

TEST_F(SharedShapes, ARoundRectWithFillCoversItsInside) {
    DrawRoundRectR(canvas.Dc(), {2, 3, 20, 15}, true, 0x112233, kInk, 1, PS_SOLID, 4);
    EXPECT_EQ(canvas.At(10, 9), 0x112233);
    EXPECT_EQ(canvas.At(10, 3), kInk);
    EXPECT_EQ(canvas.At(2, 3), kGround);
}

TEST_F(SharedShapes, TheCornerIsBothWidthAndHeightOfTheEllipse) {
    PixelCanvas wanted(30, 20, kGround);
    const OwnedPen pen(CreatePen(PS_SOLID, 1, static_cast<COLORREF>(kInk)));
    const Selection selectedPen(wanted.Dc(), pen.Get());
    const Selection selectedBrush(wanted.Dc(), GetStockObject(NULL_BRUSH));
    RoundRect(wanted.Dc(), 2, 3, 20, 15, 9, 9);
    DrawRoundRect(canvas.Dc(), 2, 3, 20, 15, false, 0, kInk, 1, PS_SOLID, 9);
    EXPECT_EQ(canvas.Pixels(), wanted.Pixels());
}

TEST_F(SharedShapes, ARoundRectWithoutAPenIsPassedOnePixelMore) {
    DrawRoundRect(canvas.Dc(), 2, 3, 20, 15, true, kInk, 0, 0, PS_SOLID, 0);
    plain.Fill(2, 3, 20, 15, kInk);
    ExpectPlain();
}

TEST_F(SharedShapes, AWidePenOfARoundRectHasItsWidthAndStyle) {
    DrawRoundRect(canvas.Dc(), 5, 5, 25, 15, false, 0, kInk, 3, PS_SOLID, 0);
    EXPECT_EQ(canvas.At(15, 4), kInk);
    EXPECT_EQ(canvas.At(15, 6), kInk);
    canvas.Clear(kGround);
    DrawRoundRect(canvas.Dc(), 5, 5, 25, 15, false, 0, kInk, 1, PS_NULL, 0);
    ExpectPlain();
}

TEST_F(SharedShapes, AVerticalGradientFillsItsRows) {
    GradientV(canvas.Dc(), 2, 3, 12, 10, 0x000000, 0xFFFFFF);
    plain.BandDown(2, 3, 12, 10, 0x000000, 0xFFFFFF);
    ExpectPlain();
    EXPECT_EQ(canvas.At(2, 3), 0x000000);
    EXPECT_EQ(canvas.At(11, 9), 0xDBDBDB); // 255 * 6 / 7 = 218.57
}

TEST_F(SharedShapes, AHorizontalGradientFillsItsColumns) {
    GradientHR(canvas.Dc(), {2, 3, 12, 10}, 0x0000FF, 0xFF0000);
    plain.BandRight(2, 3, 12, 10, 0x0000FF, 0xFF0000);
    ExpectPlain();
}

TEST_F(SharedShapes, AGradientOfARectangleIsTheSame) {
    GradientVR(canvas.Dc(), {2, 3, 12, 10}, 0x0000FF, 0xFF0000);
    plain.BandDown(2, 3, 12, 10, 0x0000FF, 0xFF0000);
    ExpectPlain();
}

TEST_F(SharedShapes, AVerticalGradientOfNoHeightDrawsNothingAndOfOneItsFirstColor) {
    GradientV(canvas.Dc(), 2, 3, 12, 3, 0x000000, 0xFFFFFF);
    GradientV(canvas.Dc(), 2, 9, 12, 3, 0x000000, 0xFFFFFF);
    ExpectPlain();
    GradientV(canvas.Dc(), 2, 3, 12, 4, kInk, 0xFFFFFF);
    plain.Fill(2, 3, 12, 4, kInk);
    ExpectPlain();
}

TEST_F(SharedShapes, AVerticalGradientOfNoWidthPaintsOneColumnByPixels) {
    GradientV(canvas.Dc(), 2, 3, 2, 10, 0x000000, 0xFFFFFF);
    plain.BandDown(2, 3, 2, 10, 0x000000, 0xFFFFFF);
    ExpectPlain();
    EXPECT_EQ(canvas.At(2, 4), 0x242424); // 255 / 7 = 36.4
}

TEST_F(SharedShapes, AHorizontalGradientOfNoHeightPaintsOneRowByPixels) {
    GradientH(canvas.Dc(), 2, 3, 12, 3, 0x000000, 0xFFFFFF);
    plain.BandRight(2, 3, 12, 3, 0x000000, 0xFFFFFF);
    ExpectPlain();
}

TEST_F(SharedShapes, AHorizontalGradientOfNoWidthDrawsNothing) {
    GradientH(canvas.Dc(), 2, 3, 2, 10, 0x000000, 0xFFFFFF);
    GradientH(canvas.Dc(), 9, 3, 2, 10, 0x000000, 0xFFFFFF);
    ExpectPlain();
}

TEST_F(SharedShapes, ARowThatRunsToTheLeftDrawsItsFirstPointAndNotItsLast) {
    GradientV(canvas.Dc(), 12, 3, 2, 4, kInk, kInk);
    plain.Fill(3, 3, 13, 4, kInk);
    ExpectPlain();
}

TEST_F(SharedShapes, TheFocusMarkDrawnTwiceIsGone) {
    DrawFocusRectOn(canvas.Dc(), {2, 3, 20, 15});
    EXPECT_NE(canvas.Pixels(), plain.Pixels());
    DrawFocusRectOn(canvas.Dc(), {2, 3, 20, 15});
    ExpectPlain();
}

TEST_F(SharedShapes, ARoundRegionReachesOnePixelBeyondItsSize) {
    const OwnedRegion region = MakeRoundRegion(40, 25, 9);
    const OwnedRegion wanted(CreateRoundRectRgn(0, 0, 41, 26, 9, 9));
    EXPECT_TRUE(EqualRgn(region.Get(), wanted.Get()));
    const OwnedRegion other(CreateRoundRectRgn(0, 0, 41, 26, 9, 5));
    EXPECT_FALSE(EqualRgn(region.Get(), other.Get()));
}

TEST_F(SharedShapes, BrushAndPenHaveTheResolvedColor) {
    const OwnedBrush brush = CreateBrushOle(kButtonFace);
    LOGBRUSH logBrush{};
    GetObjectW(brush.Get(), sizeof logBrush, &logBrush);
    EXPECT_EQ(logBrush.lbStyle, static_cast<UINT>(BS_SOLID));
    EXPECT_EQ(static_cast<OleColor>(logBrush.lbColor), SystemColor(15));
    const OwnedPen pen = CreatePenOle(PS_DOT, 1, kButtonFace);
    LOGPEN logPen{};
    GetObjectW(pen.Get(), sizeof logPen, &logPen);
    EXPECT_EQ(logPen.lopnStyle, static_cast<UINT>(PS_DOT));
    EXPECT_EQ(logPen.lopnWidth.x, 1);
    EXPECT_EQ(static_cast<OleColor>(logPen.lopnColor), SystemColor(15));
}

struct BorderCase {
    bool bRounded;
    OleColor out;
    bool bBottomOnly;
};

TEST_F(SharedShapes, ABoxBorderIsPlainRoundedOrItsBottomOnly) {
    const OleColor back = MakeColor(200, 180, 160);
    const PlainBox box{3, 2, 27, 17};
    const RECT rect{3, 2, 27, 17};
    for (const BorderCase& form : {BorderCase{false, 0x0000FF, false}, BorderCase{true, 0x0000FF, false},
                                   BorderCase{false, 0x0000FF, true}, BorderCase{true, 0x0000FF, true}}) {
        SCOPED_TRACE(form.bRounded * 2 + form.bBottomOnly);
        canvas.Clear(kGround);
        plain = PlainPicture(30, 20, kGround);
        DrawBoxBorder(canvas.Dc(), rect, back, kInk, form.bRounded, form.out, form.bBottomOnly);
        PlainBoxBorder(plain, box, back, kInk, form.bRounded, form.out, form.bBottomOnly, testing::PlatformOutline);
        ExpectPlain();
    }
}

TEST_F(SharedShapes, AnAutomaticBoxBorderIs68DarkerAndItsOutsideIsTheBack) {
    const OleColor back = MakeColor(200, 180, 160);
    DrawBoxBorder(canvas.Dc(), {3, 2, 27, 17}, back, -1, true, -1, false);
    PlainBoxBorder(plain, {3, 2, 27, 17}, back, MakeColor(132, 112, 92), true, back, false, testing::PlatformOutline);
    ExpectPlain();
    EXPECT_EQ(canvas.At(3, 2), back);
    EXPECT_EQ(canvas.At(4, 3), MakeColor(166, 146, 126));
}

TEST_F(SharedShapes, LeaveTheDeviceContextAsTheyFoundIt) {
    HDC dc = canvas.Dc();
    MoveToEx(dc, 7, 8, nullptr);
    SetDCPenColor(dc, 0x445566);
    const HGDIOBJ pen = GetCurrentObject(dc, OBJ_PEN);
    const HGDIOBJ brush = GetCurrentObject(dc, OBJ_BRUSH);
    FillOrFrame(dc, {2, 3, 10, 9}, kInk, true);
    FillOrFrame(dc, {2, 3, 10, 9}, kInk, false);
    DrawLineOle(dc, 2, 3, 10, 3, kInk, 1, PS_SOLID);
    DrawRoundRect(dc, 2, 3, 20, 15, true, kInk, kInk, 1, PS_SOLID, 4);
    DrawRoundRect(dc, 2, 3, 20, 15, false, kInk, kInk, 0, PS_SOLID, 4);
    GradientV(dc, 2, 3, 12, 10, 0, kInk);
    GradientH(dc, 2, 3, 12, 10, 0, kInk);
    DrawBoxBorder(dc, {2, 3, 20, 15}, 0xFFFFFF, -1, true, -1, false);
    DrawBoxBorder(dc, {2, 3, 20, 15}, 0xFFFFFF, -1, false, -1, true);
    DrawFocusRectOn(dc, {2, 3, 20, 15});
    POINT position{};
    GetCurrentPositionEx(dc, &position);
    EXPECT_EQ(position.x, 7);
    EXPECT_EQ(position.y, 8);
    EXPECT_EQ(GetDCPenColor(dc), 0x445566u);
    EXPECT_EQ(GetCurrentObject(dc, OBJ_PEN), pen);
    EXPECT_EQ(GetCurrentObject(dc, OBJ_BRUSH), brush);
}

// Counts the calls of a platform function, which do nothing meanwhile.
int g_nCalls;
template<typename Api>
class Counting;
template<typename Result, typename... Arguments>
class Counting<Result WINAPI(Arguments...)> {
public:
    explicit Counting(const char* name) : m_patch(name, Count) {}

private:
    static Result WINAPI Count(Arguments...) {
        ++g_nCalls;
        return Result{};
    }
    testing::PatchedImport<Result WINAPI(Arguments...)> m_patch;
};

TEST_F(SharedShapes, AskThePlatformForNothingWithoutADeviceContext) {
    const Counting<decltype(CreateSolidBrush)> brush("CreateSolidBrush");
    const Counting<decltype(CreatePen)> pen("CreatePen");
    const Counting<decltype(FillRect)> fill("FillRect");
    const Counting<decltype(FrameRect)> frame("FrameRect");
    const Counting<decltype(RoundRect)> round("RoundRect");
    const Counting<decltype(LineTo)> line("LineTo");
    const Counting<decltype(SetPixel)> pixel("SetPixel");
    const Counting<decltype(DrawFocusRect)> focus("DrawFocusRect");
    const Counting<decltype(DrawTextW)> text("DrawTextW");
    const Counting<decltype(SetTextColor)> textColor("SetTextColor");
    g_nCalls = 0;
    const auto expectNone = [](const char* name) { EXPECT_EQ(std::exchange(g_nCalls, 0), 0) << name; };
    FillOrFrame(nullptr, {2, 3, 10, 9}, kInk, true);
    expectNone("FillOrFrame");
    FillOrFrameCoords(nullptr, 2, 3, 10, 9, kInk, false);
    expectNone("FillOrFrameCoords");
    DrawLineOle(nullptr, 2, 3, 10, 3, kInk, 1, PS_SOLID);
    expectNone("DrawLineOle");
    DrawRoundRect(nullptr, 2, 3, 20, 15, true, kInk, kInk, 1, PS_SOLID, 4);
    expectNone("DrawRoundRect");
    SetPixelOle(nullptr, 1, 1, kInk);
    expectNone("SetPixelOle");
    GradientV(nullptr, 2, 3, 12, 10, 0, kInk);
    expectNone("GradientV");
    GradientH(nullptr, 2, 3, 12, 3, 0, kInk);
    expectNone("GradientH");
    DrawFocusRectOn(nullptr, {2, 3, 20, 15});
    expectNone("DrawFocusRectOn");
    DrawBoxBorder(nullptr, {2, 3, 20, 15}, 0xFFFFFF, -1, true, -1, false);
    expectNone("DrawBoxBorder");
    for (std::int32_t style = 0; style <= 8; ++style)
        DrawFace(nullptr, {2, 3, 20, 15}, 0xFFFFFF, true, -1, true, true, false, true, true, style, -1, true);
    expectNone("DrawFace");
    RECT rect{2, 3, 20, 15};
    DrawTextColored(nullptr, u"caption", rect, kInk, 0);
    expectNone("DrawTextColored");

    FillOrFrame(canvas.Dc(), {2, 3, 10, 9}, kInk, true);
    EXPECT_EQ(g_nCalls, 2) << "a brush and its use are counted";
}

} // namespace
} // namespace orvanta
