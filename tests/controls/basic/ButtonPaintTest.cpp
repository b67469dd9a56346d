#include "controls/basic/ctlUniButtonImageXP.h"

#include "controls/basic/ButtonLayout.h"
#include "drawing/modCtlCommon_alphaImg.h"
#include "plumbing/FaceDrawing.h"
#include "plumbing/PlatformRect.h"
#include "plumbing/SharedShapes.h"
#include "plumbing/SharedText.h"
#include "tests/controls/basic/Witness.h"

#include <gtest/gtest.h>

#include <cmath>

namespace orvanta::testing {
namespace {

using Button = Witness<ctlUniButtonImageXP>;

constexpr int kFaceWidth = 120;
constexpr int kFaceHeight = 40;
constexpr OleColor kFlagRed = 0x2040C0; // not a shade of any face here
constexpr OleColor kKeyGreen = 0x00FF00;
constexpr OleColor kGray = static_cast<OleColor>(0x80000011);

// A shown button without caption, as an empty bag loads it: style 3, rounded, all colours automatic.
class ButtonPaint : public FormFixture {
protected:
    ButtonPaint() {
        Show();
        other.Host().Extender().SetFocus();
        Pump();
    }
    WindowPixels Now() const {
        Pump();
        return Grab(button);
    }

    Button& button = form.Load<Button>(u"btnOp", {10, 10, kFaceWidth, kFaceHeight}, {});
    Button& other = form.Load<Button>(u"btnOther", {10, 60, kFaceWidth, kFaceHeight}, {});
};
using ButtonShape = ButtonPaint;

// The face that a button should have.
struct FaceForm {
    OleColor back = static_cast<OleColor>(0x8000000F);
    OleColor border = -1;
    bool bPressed = false, bDefault = false, bCancel = false, bFocus = false, bRounded = true;
    std::int32_t style = -1;
    OleColor out = -1;
};
struct ExpectedButton : PixelCanvas {
    explicit ExpectedButton(const FaceForm& f = {}, int width = kFaceWidth, int height = kFaceHeight)
        : PixelCanvas(width, height, 0x123456) {
        DrawFace(Dc(), {0, 0, width, height}, f.back, true, f.border, f.bPressed, f.bDefault, f.bCancel, f.bFocus,
                 f.bRounded, f.style, f.out, true);
    }
    void DrawCaption(const Button& button, const PixelRect& rect, OleColor c, UINT alignment) {
        const Selection font(Dc(), button.Font().hFont());
        SetBkMode(Dc(), TRANSPARENT);
        RECT text = RectOf(rect);
        DrawTextColored(Dc(), button.Caption(), text, c, alignment | 0x2050);
    }
    PixelSize Measure(const Button& button, const PixelRect& rect) {
        const Selection font(Dc(), button.Font().hFont());
        PixelSize size;
        MeasureTextInRect(Dc(), button.Caption(), rect.left, rect.top, rect.right, rect.bottom, 0x2040, size.width,
                          size.height);
        return size;
    }
};

TEST_F(ButtonPaint, EveryStyleUpAndDownIsTheSharedFace) {
    for (std::int32_t style = -1; style <= 8; ++style) {
        for (const bool bDown : {false, true}) {
            button.Style(style);
            button.Tristate(true);
            button.Pressed(bDown);
            EXPECT_EQ(Now().All(), ExpectedButton({.bPressed = bDown, .style = style}).Pixels()) << style << bDown;
        }
    }
}

TEST_F(ButtonPaint, ColoursAndCornersReachTheFace) {
    button.BackColor(0xD8C0A0);
    EXPECT_EQ(Now().All(), ExpectedButton({.back = 0xD8C0A0}).Pixels());
    button.BorderColor(0x806040);
    EXPECT_EQ(Now().All(), ExpectedButton({.back = 0xD8C0A0, .border = 0x806040}).Pixels());
    button.BackColorOut(0x0000FF);
    EXPECT_EQ(Now().All(), ExpectedButton({.back = 0xD8C0A0, .border = 0x806040, .out = 0x0000FF}).Pixels());
    button.RoundedBorders(false);
    EXPECT_EQ(Now().All(),
              ExpectedButton({.back = 0xD8C0A0, .border = 0x806040, .bRounded = false, .out = 0x0000FF}).Pixels());
}

TEST_F(ButtonPaint, AnAutomaticBorderIs68LevelsDarkerThanTheBack) {
    button.RoundedBorders(false);
    button.BackColor(0x80FF20);
    // 0x80 - 68 is 0x3C, 0xFF - 68 is 0xBB, 0x20 - 68 is clamped.
    EXPECT_EQ(Now().At(0, 0), 0x3CBB00);
    EXPECT_EQ(Now().At(kFaceWidth - 1, kFaceHeight / 2), 0x3CBB00);
}

TEST_F(ButtonPaint, TheFocusMarkShowsWithTheFocusAndShowFocusAndNeitherHeldNorDisabled) {
    const std::vector<OleColor> bare = ExpectedButton().Pixels();
    const std::vector<OleColor> marked = ExpectedButton({.bFocus = true}).Pixels();
    ASSERT_NE(bare, marked);
    EXPECT_EQ(Now().All(), bare);
    button.Host().Extender().SetFocus();
    EXPECT_EQ(Now().All(), marked);
    button.ShowFocus(false);
    EXPECT_EQ(Now().All(), bare);
    button.ShowFocus(true);
    button.OnMouseDown(1, 0, 1, 1);
    EXPECT_EQ(Now().All(), ExpectedButton({.bPressed = true}).Pixels());
    button.OnMouseUp(1, 0, 1, 1);
    EXPECT_EQ(Now().All(), marked);
    other.Host().Extender().SetFocus();
    EXPECT_EQ(Now().All(), bare);
}

TEST_F(ButtonPaint, AStuckButtonMayHaveTheFocusMark) {
    button.Tristate(true);
    button.Pressed(true);
    button.Host().Extender().SetFocus();
    EXPECT_EQ(Now().All(), ExpectedButton({.bPressed = true, .bFocus = true}).Pixels());
}

TEST_F(ButtonPaint, DefaultAndCancelComeFromTheExtenderAndTheDefaultMarkWins) {
    ControlExtender& extender = button.Host().Extender();
    extender.Cancel(true);
    button.Refresh(false);
    EXPECT_EQ(Now().All(), ExpectedButton({.bCancel = true}).Pixels());
    EXPECT_EQ(Now().At(10, 1), 0x808080);
    extender.Default(true);
    button.Refresh(false);
    EXPECT_EQ(Now().All(), ExpectedButton({.bDefault = true}).Pixels());
    EXPECT_EQ(Now().At(10, 1), 0xECBEA0);
}

TEST_F(ButtonPaint, ADisabledButtonKeepsItsFaceAndLosesItsMarks) {
    button.Host().Extender().Default(true);
    button.Host().Extender().Cancel(true);
    button.OnEnterFocus();
    button.Enabled(false);
    EXPECT_EQ(Now().All(), ExpectedButton().Pixels());
}

TEST_F(ButtonPaint, ACaptionAloneIsCentredInTheFaceShrunkByOne) {
    button.Caption(u"Next >>");
    button.ForeColor(kFlagRed);
    ExpectedButton expected;
    const PixelSize text = expected.Measure(button, {1, 1, kFaceWidth - 1, kFaceHeight - 1});
    ASSERT_EQ(text.height, 13);
    expected.DrawCaption(button, {1, 14, kFaceWidth - 1, kFaceHeight - 1}, kFlagRed, DT_CENTER); // 13.5
    EXPECT_EQ(Now().All(), expected.Pixels());
}

TEST_F(ButtonPaint, ADisabledCaptionIsInTheSystemsGrey) {
    button.Caption(u"Next >>");
    button.Enabled(false);
    ExpectedButton expected;
    expected.DrawCaption(button, {1, 14, kFaceWidth - 1, kFaceHeight - 1}, kGray, DT_CENTER);
    EXPECT_EQ(Now().All(), expected.Pixels());
    button.Enabled(true);
    EXPECT_NE(Now().All(), expected.Pixels());
}

TEST_F(ButtonPaint, LongCaptionsWrapAndLineEndsBreak) {
    for (const char16_t* s : {u"A caption that is far too long for one line", u"one\r\ntwo", u"one\rtwo"}) {
        button.Caption(s);
        ExpectedButton expected;
        const PixelSize text = expected.Measure(button, {1, 1, kFaceWidth - 1, kFaceHeight - 1});
        ASSERT_EQ(text.height, 26);
        expected.DrawCaption(button, {1, 7, kFaceWidth - 1, kFaceHeight - 1}, static_cast<OleColor>(0x80000012),
                             DT_CENTER);
        EXPECT_EQ(Now().All(), expected.Pixels());
    }
}

TEST_F(ButtonPaint, EveryLayoutDrawsPictureAndTextInItsRectangles) {
    button.Picture(SolidPicture(10, 12, kFlagRed, kFlagRed));
    button.TransparencyType(-1);
    for (const char16_t* sCaption : {u"Op", u"Rather long words"}) {
        button.Caption(sCaption);
        for (std::int32_t ImagePos = -1; ImagePos <= 12; ++ImagePos) {
            button.ImagePos(ImagePos);
            ExpectedButton expected;
            const ButtonParts parts =
                LayOutButton({{kFaceWidth, kFaceHeight}, 4, PixelSize{10, 12}, true}, ImagePos,
                             [&](const PixelRect& rect) { return expected.Measure(button, rect); });
            pvOverlapImage(expected.Dc(), RectOf(parts.picture), false, button.Picture(), false, 10, 12);
            expected.DrawCaption(button, parts.text, static_cast<OleColor>(0x80000012),
                                 ImagePos == 7 ? DT_RIGHT : DT_CENTER);
            EXPECT_EQ(Now().All(), expected.Pixels()) << ImagePos;
        }
    }
}

TEST_F(ButtonPaint, LayoutNineWithPictureAndCaptionShowsNeither) {
    button.Picture(SolidPicture(10, 12, kFlagRed, kFlagRed));
    button.TransparencyType(-1);
    button.Caption(u"Op");
    button.ImagePos(9);
    EXPECT_EQ(Now().All(), ExpectedButton().Pixels());
    button.Caption(u"");
    EXPECT_NE(Now().All(), ExpectedButton().Pixels());
}

TEST_F(ButtonPaint, APictureKeepsItsPixelsAtANewResolution) {
    button.Picture(SolidPicture(10, 12, kFlagRed, kFlagRed));
    button.TransparencyType(-1);
    const PixelRect before = BoundsOf(Now(), kFlagRed);
    EXPECT_EQ(before.Width(), 10);
    EXPECT_EQ(before.Height(), 12);
    for (const WORD wDpi : {WORD{192}, WORD{48}}) {
        SendMessageW(form.hWnd(), WM_DPICHANGED, MAKEWPARAM(wDpi, wDpi), 0);
        EXPECT_EQ(BoundsOf(Now(), kFlagRed), before) << wDpi;
    }
}

TEST_F(ButtonPaint, PicturesAtTheEdgesKeepTheMarginOfTheFocusMark) {
    button.Picture(SolidPicture(10, 12, kFlagRed, kFlagRed));
    button.TransparencyType(-1);
    button.Caption(u"x");
    const auto bounds = [&](std::int32_t ImagePos, bool bShowFocus) {
        button.ImagePos(ImagePos);
        button.ShowFocus(bShowFocus);
        return BoundsOf(Now(), kFlagRed);
    };
    EXPECT_EQ(bounds(5, true), (PixelRect{55, 4, 65, 16}));
    EXPECT_EQ(bounds(5, false), (PixelRect{55, 2, 65, 14}));
    EXPECT_EQ(bounds(6, true), (PixelRect{4, 14, 14, 26}));
    EXPECT_EQ(bounds(6, false), (PixelRect{2, 14, 12, 26}));
    EXPECT_EQ(bounds(7, true), (PixelRect{106, 14, 116, 26}));
    EXPECT_EQ(bounds(7, false), (PixelRect{108, 14, 118, 26}));
    EXPECT_EQ(bounds(8, true), (PixelRect{55, 24, 65, 36}));
    EXPECT_EQ(bounds(8, false), (PixelRect{55, 26, 65, 38}));
    EXPECT_EQ(bounds(4, true), (PixelRect{55, 14, 65, 26}));
}

TEST_F(ButtonPaint, APictureAloneIsCentredOnTheFace) {
    button.Picture(SolidPicture(10, 12, kFlagRed, kFlagRed));
    button.TransparencyType(-1);
    EXPECT_EQ(BoundsOf(Now(), kFlagRed), (PixelRect{55, 14, 65, 26}));
}

TEST_F(ButtonPaint, TheKeyColourIsNoneThatOfAPixelOrAGivenOne) {
    button.Picture(SolidPicture(10, 12, kFlagRed, kKeyGreen));
    const OleColor face = ExpectedButton().At(55, 14);
    const auto corner = [&] { return Now().At(55, 14); };
    const auto body = [&] { return Now().At(60, 20); };

    button.TransparencyType(-1);
    EXPECT_EQ(corner(), kKeyGreen);
    EXPECT_EQ(body(), kFlagRed);
    button.TransparencyType(0);
    EXPECT_EQ(corner(), face);
    EXPECT_EQ(body(), kFlagRed);
    button.xTranspColor(1);
    EXPECT_EQ(corner(), kKeyGreen);
    EXPECT_EQ(body(), ExpectedButton().At(60, 20));
    button.xTranspColor(0);
    button.yTranspColor(1);
    EXPECT_EQ(corner(), kKeyGreen);
    button.TransparencyType(1);
    button.TransparentColor(kKeyGreen);
    EXPECT_EQ(corner(), face);
    EXPECT_EQ(body(), kFlagRed);
    button.TransparentColor(kFlagRed);
    EXPECT_EQ(corner(), kKeyGreen);
    EXPECT_EQ(body(), ExpectedButton().At(60, 20));
}

TEST_F(ButtonPaint, ADisabledPictureIsGrey) {
    button.TransparencyType(-1);
    button.Enabled(false);
    button.Picture(SolidPicture(10, 12, 0x000000, 0xFFFFFF));
    EXPECT_EQ(Now().At(60, 20), 0x868686);
    EXPECT_EQ(Now().At(55, 14), 0xD3D3D3);
}

TEST_F(ButtonPaint, StretchShrinksAPictureToTheFaceInsideItsMarginsAndNeverEnlargesOne) {
    button.TransparencyType(-1);
    const auto bounds = [&](int width, int height, bool bStretch) {
        button.Picture(SolidPicture(width, height, kFlagRed, kFlagRed));
        button.Stretch(bStretch);
        return BoundsOf(Now(), kFlagRed);
    };
    // 112 by 32 are free.
    EXPECT_EQ(bounds(64, 64, true), (PixelRect{44, 4, 76, 36}));
    EXPECT_EQ(bounds(64, 64, false), (PixelRect{28, 0, 92, 40}));
    EXPECT_EQ(bounds(224, 10, true), (PixelRect{4, 17, 116, 22}));
    EXPECT_EQ(bounds(10, 10, true), (PixelRect{55, 15, 65, 25}));
    EXPECT_EQ(bounds(110, 30, true), (PixelRect{5, 5, 115, 35}));
}

TEST_F(ButtonPaint, AStretchedPictureIsLaidOutWithItsNewSize) {
    button.TransparencyType(-1);
    button.Caption(u"x");
    button.ImagePos(6);
    button.Stretch(true);
    button.Picture(SolidPicture(64, 64, kFlagRed, kFlagRed));
    EXPECT_EQ(BoundsOf(Now(), kFlagRed), (PixelRect{4, 4, 36, 36}));
}

TEST_F(ButtonPaint, AnIconThatCannotBeClonedKeepsItsSizeInStretch) {
    HBITMAP mask = CreateBitmap(16, 16, 1, 1, nullptr);
    clsMEMDC color;
    color.CreateDC(16, 16, TRANSPARENT);
    color.DrawBackColor(kFlagRed);
    HBITMAP bitmap = color.ReleasehBmp();
    ICONINFO info{TRUE, 0, 0, mask, bitmap};
    button.Picture(OlePicture::OfIcon(CreateIconIndirect(&info)));
    DeleteObject(mask);
    DeleteObject(bitmap);
    button.TransparencyType(-1);
    button.Stretch(true);
    button.Host().Extender().Height(20); // 12 rows are free
    EXPECT_EQ(BoundsOf(Now(), kFlagRed), (PixelRect{52, 2, 68, 18}));
}

TEST_F(ButtonPaint, ARunTimeSetterPaintsNothingAndThousandSettersPaintOnce) {
    button.nPaints = 0;
    for (int n = 0; n < 1000; ++n) {
        button.BackColor(n);
        button.Caption(u"x");
        button.Pressed(n % 2 != 0);
    }
    EXPECT_EQ(button.nPaints, 0);
    Pump();
    EXPECT_EQ(button.nPaints, 1);
    Pump();
    EXPECT_EQ(button.nPaints, 1);
}

TEST_F(ButtonPaint, EnabledSetToWhatItIsPaintsNothingWhileUnchangedFontChangesPaint) {
    button.nPaints = 0;
    button.Enabled(true);
    Pump();
    EXPECT_EQ(button.nPaints, 0);
    button.ApplyFontChanges();
    Pump();
    EXPECT_EQ(button.nPaints, 1);
}

TEST_F(ButtonPaint, InDesignModeEverySetterPaintsAtOnce) {
    form.UserMode(false);
    auto& design = form.Load<Button>(u"btnDesign", {150, 10, 60, 30}, {});
    Pump();
    design.nPaints = 0;
    design.BackColor(kFlagRed);
    EXPECT_EQ(design.nPaints, 1);
    design.Caption(u"x");
    EXPECT_EQ(design.nPaints, 2);
}

TEST_F(ButtonPaint, TheFontOfTheHostDrawsTheCaption) {
    button.Caption(u"Next >>");
    button.Font(OleFont::Create(u"Tahoma", 14));
    ExpectedButton expected;
    const PixelSize text = expected.Measure(button, {1, 1, kFaceWidth - 1, kFaceHeight - 1});
    ASSERT_GT(text.height, 20);
    const auto top = static_cast<std::int32_t>(std::nearbyint((kFaceHeight - text.height) / 2.0));
    expected.DrawCaption(button, {1, top, kFaceWidth - 1, kFaceHeight - 1}, static_cast<OleColor>(0x80000012),
                         DT_CENTER);
    EXPECT_EQ(Now().All(), expected.Pixels());
}

// The pixels of a window's region against those of a white round rectangle with corner 2 on black.
void ExpectRoundRegion(HWND window) {
    RECT client{};
    GetClientRect(window, &client);
    const OwnedRegion region(CreateRectRgn(0, 0, 0, 0));
    ASSERT_NE(GetWindowRgn(window, region.Get()), ERROR);
    const PixelCanvas mask(client.right, client.bottom, 0);
    DrawRoundRectR(mask.Dc(), client, true, 0xFFFFFF, 0xFFFFFF, 1, PS_SOLID, 2);
    int nWrong = 0;
    for (int y = 0; y < mask.Height(); ++y) {
        for (int x = 0; x < mask.Width(); ++x)
            nWrong += (PtInRegion(region.Get(), x, y) != 0) != (mask.At(x, y) != 0);
    }
    EXPECT_EQ(nWrong, 0);
    RECT box{};
    GetRgnBox(region.Get(), &box);
    EXPECT_EQ(PixelRectOf(box), PixelRectOf(client));
    for (const POINT corner : {POINT{0, 0}, POINT{client.right - 1, 0}, POINT{0, client.bottom - 1},
                               POINT{client.right - 1, client.bottom - 1}}) {
        POINT onScreen = corner;
        ClientToScreen(window, &onScreen);
        EXPECT_EQ(WindowFromPoint(onScreen) == window, mask.At(corner.x, corner.y) != 0);
    }
}
bool HasRegion(HWND window) {
    const OwnedRegion region(CreateRectRgn(0, 0, 0, 0));
    return GetWindowRgn(window, region.Get()) != ERROR;
}

TEST_F(ButtonShape, ARoundRegionIsThatOfARoundRectangleAndFollowsTheSize) {
    EXPECT_FALSE(HasRegion(button.hwnd()));
    EXPECT_EQ(button.Host().BackStyle(), 1);
    button.UseRoundRegions(true);
    EXPECT_EQ(button.Host().BackStyle(), 0);
    ExpectRoundRegion(button.hwnd());
    button.Host().Extender().Move(10, 10, 61, 33);
    ExpectRoundRegion(button.hwnd());
    button.UseRoundRegions(false);
    EXPECT_FALSE(HasRegion(button.hwnd()));
    EXPECT_EQ(button.Host().BackStyle(), 1);
}

TEST_F(ButtonShape, RoundedBordersAloneChangesTheShapeAtTheNextResizeOnly) {
    button.UseRoundRegions(true);
    button.RoundedBorders(false);
    EXPECT_TRUE(HasRegion(button.hwnd()));
    button.OnResize();
    EXPECT_FALSE(HasRegion(button.hwnd()));
    EXPECT_TRUE(button.UseRoundRegions());
}

TEST_F(ButtonShape, ALoadedButtonHasItsShapeFromTheStart) {
    PropertyBag bag;
    bag.WriteProperty(u"UseRoundRegions", true);
    const auto& loaded = form.Load<Button>(u"btnRound", {150, 10, 50, 20}, bag);
    ExpectRoundRegion(loaded.hwnd());
}

TEST_F(ButtonPaint, AButtonWithoutAreaPaintsNothingAndSurvives) {
    button.Caption(u"x");
    button.Picture(SolidPicture(10, 12, kFlagRed, kFlagRed));
    button.Stretch(true);
    for (const float size : {0.0f, 1.0f, 3.0f, 8.0f}) {
        button.Host().Extender().Move(10, 10, size, size);
        button.Refresh(false);
        Pump();
        button.OnPaint();
    }
    button.Host().Extender().Move(10, 10, kFaceWidth, kFaceHeight);
    button.Caption(u"");
    button.Picture({});
    EXPECT_EQ(Now().All(), ExpectedButton().Pixels());
}

} // namespace
} // namespace orvanta::testing
