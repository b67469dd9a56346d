// What a frame shows, compared pixel by pixel; the title is drawn by the platform in rectangles worked out by hand.
#include "controls/basic/ctlUniCheckXP.h"
#include "tests/controls/basic/FrameFixture.h"

namespace orvanta::testing {
namespace {

constexpr UINT kBandFlags = 0x824;

class FrameLook : public FrameFixture {
protected:
    FrameLook() { Show(); }

    // The band of 15 rows below a title of 13.
    static void Band(Plan& plan, OleColor left, OleColor right) {
        GradientH(plan.canvas.Dc(), 0, 0, 200, 15, left, right);
    }
};

TEST_F(FrameLook, TheBandIsTwoPixelsHigherThanTheTitleAndDarkerThanTheFace) {
    auto& frame = Make(u"title");
    ASSERT_EQ(TitleOf(frame).cy, 13);
    Plan plan(frame);
    Band(plan, 0xD7BFB7, 0xC6AEA6); // 17 and 34 darker
    plan.Title({3, 0, 197, 15}, kBandFlags, kFrameInk);
    plan.CutBorder(kFrameBorder, kFrameFace);
    EXPECT_EQ(Shown(frame), plan.Pixels());
}

TEST_F(FrameLook, ATitleColorRunsFromLighterToDarker) {
    auto& frame = Make(u"title");
    frame.TitleBackColor(0x806040);
    Plan plan(frame);
    Band(plan, 0x917151, 0x6F4F2F);
    plan.Title({3, 0, 197, 15}, kBandFlags, kFrameInk);
    plan.CutBorder(kFrameBorder, kFrameFace);
    EXPECT_EQ(Shown(frame), plan.Pixels());
}

TEST_F(FrameLook, WithoutATitleThereIsNoBandAndTheBorderIsAtTheTop) {
    auto& frame = Make(u"");
    Plan plan(frame);
    plan.CutBorder(kFrameBorder, kFrameFace);
    EXPECT_EQ(Shown(frame), plan.Pixels());
}

TEST_F(FrameLook, TheCutCornersShowTheColorOutside) {
    auto& frame = Make(u"");
    frame.BackColorOut(0x00FF00);
    Plan plan(frame);
    plan.CutBorder(kFrameBorder, 0x00FF00);
    EXPECT_EQ(Shown(frame), plan.Pixels());
}

TEST_F(FrameLook, AnAutomaticBorderIsSixtyEightDarkerThanTheFace) {
    auto& frame = Make(u"");
    frame.BorderColor(-1);
    Plan plan(frame);
    plan.CutBorder(0xA48C84, kFrameFace); // of 0xE8D0C8
    EXPECT_EQ(Shown(frame), plan.Pixels());
}

TEST_F(FrameLook, AnAmpersandInABandIsItself) {
    auto& frame = Make(u"R&D");
    Plan plan(frame);
    Band(plan, 0xD7BFB7, 0xC6AEA6);
    plan.Title({3, 0, 197, 15}, kBandFlags, kFrameInk);
    plan.CutBorder(kFrameBorder, kFrameFace);
    EXPECT_EQ(Shown(frame), plan.Pixels());
}

TEST_F(FrameLook, TheEtchedBoxIsOpenForItsTitle) {
    auto& frame = Make(u"title");
    frame.VistaStyle(false);
    const SIZE title = TitleOf(frame);
    ASSERT_EQ(title.cy, 13);
    Plan plan(frame);
    plan.Box(0, 6, 200, 100, kFrameBorder);
    plan.Box(1, 7, 199, 99, 0xFFFFFF);
    plan.Fill(5, 0, 5 + title.cx, 13, kFrameFace);
    plan.Title({5, 0, 200, 100}, 0, kFrameInk);
    EXPECT_EQ(Shown(frame), plan.Pixels());
}

TEST_F(FrameLook, TheEtchedBoxWithoutATitleStartsAtTheTop) {
    auto& frame = Make(u"");
    frame.VistaStyle(false);
    Plan plan(frame);
    plan.Box(0, 0, 200, 100, kFrameBorder);
    plan.Box(1, 1, 199, 99, 0xFFFFFF);
    EXPECT_EQ(Shown(frame), plan.Pixels());
}

TEST_F(FrameLook, TheLightLineOfTheEtchedBoxIsWhiteOnAnyFace) {
    auto& frame = Make(u"");
    frame.VistaStyle(false);
    frame.BackColor(0x000000);
    frame.BorderColor(-1);
    EXPECT_EQ(Grab(frame).At(1, 50), 0xFFFFFF);
    EXPECT_EQ(Grab(frame).At(0, 50), 0);
    EXPECT_EQ(Grab(frame).At(50, 98), 0xFFFFFF);
}

TEST_F(FrameLook, AnAmpersandOfTheEtchedBoxUnderlinesWhileItsGapIsMeasuredWithIt) {
    auto& frame = Make(u"R&D");
    frame.VistaStyle(false);
    Plan plan(frame);
    plan.Box(0, 6, 200, 100, kFrameBorder);
    plan.Box(1, 7, 199, 99, 0xFFFFFF);
    plan.Fill(5, 0, 5 + TitleOf(frame).cx, 13, kFrameFace);
    plan.Title({5, 0, 200, 100}, 0, kFrameInk);
    EXPECT_EQ(Shown(frame), plan.Pixels());
}

TEST_F(FrameLook, ADarkTitleHasALightShadowOnePixelRightAndBelow) {
    auto& frame = Make(u"title");
    frame.UseShadow(true); // luma of 0x2040C0, red first 192, 64, 32: 57.6 + 37.76 + 3.52 = 99; 156 more
    Plan plan(frame);
    Band(plan, 0xD7BFB7, 0xC6AEA6);
    plan.Title({4, 1, 198, 16}, kBandFlags, 0xBCDCFF);
    plan.Title({3, 0, 197, 15}, kBandFlags, kFrameInk);
    plan.CutBorder(kFrameBorder, kFrameFace);
    EXPECT_EQ(Shown(frame), plan.Pixels());
    EXPECT_EQ(frame.Host().ForeColor(), kFrameInk);
}

TEST_F(FrameLook, ALightTitleHasADarkerShadow) {
    auto& frame = Make(u"title");
    frame.VistaStyle(false);
    frame.UseShadow(true);
    frame.ForeColor(0xF0F0C0);
    Plan plan(frame);
    plan.Box(0, 6, 200, 100, kFrameBorder);
    plan.Box(1, 7, 199, 99, 0xFFFFFF);
    plan.Fill(5, 0, 5 + TitleOf(frame).cx, 13, kFrameFace);
    plan.Title({6, 1, 201, 101}, 0, 0x9B9B6B);
    plan.Title({5, 0, 200, 100}, 0, 0xF0F0C0);
    EXPECT_EQ(Shown(frame), plan.Pixels());
}

TEST_F(FrameLook, ADisabledFrameHasAGreyTitleAndAShadowOfThatGreyInBothLooks) {
    auto& frame = Make(u"title");
    frame.UseShadow(true);
    frame.Enabled(false);
    const OleColor gray = SystemColor(0x11);
    const OleColor shadow = ColorLuma(gray) < 171 ? SetColorLuma(gray, 255) : ShadeColor(gray, -85);
    Plan band(frame);
    Band(band, 0xD7BFB7, 0xC6AEA6);
    band.Title({4, 1, 198, 16}, kBandFlags, shadow);
    band.Title({3, 0, 197, 15}, kBandFlags, gray);
    band.CutBorder(kFrameBorder, kFrameFace);
    EXPECT_EQ(Shown(frame), band.Pixels());

    frame.VistaStyle(false);
    Plan etched(frame);
    etched.Box(0, 6, 200, 100, kFrameBorder);
    etched.Box(1, 7, 199, 99, 0xFFFFFF);
    etched.Fill(5, 0, 5 + TitleOf(frame).cx, 13, kFrameFace);
    etched.Title({6, 1, 201, 101}, 0, shadow);
    etched.Title({5, 0, 200, 100}, 0, gray);
    EXPECT_EQ(Shown(frame), etched.Pixels());
}

TEST_F(FrameLook, ADisabledFrameInDesignModeIsGreyToo) {
    form.UserMode(false);
    auto& frame = Make(u"title");
    frame.Enabled(false);
    EXPECT_EQ(frame.Host().ForeColor(), kSystemGrayText);
    EXPECT_NE(BoundsOf(Grab(frame), SystemColor(0x11)), PixelRect{});
    EXPECT_EQ(BoundsOf(Grab(frame), kFrameInk), PixelRect{});
}

TEST_F(FrameLook, ATitleLongerThanTheFrameIsCutAtItsRightEdge) {
    auto& frame = Make(u"a title that is a good deal longer than the frame is wide");
    Plan plan(frame);
    Band(plan, 0xD7BFB7, 0xC6AEA6);
    plan.Title({3, 0, 197, 15}, kBandFlags, kFrameInk);
    plan.CutBorder(kFrameBorder, kFrameFace);
    EXPECT_EQ(Shown(frame), plan.Pixels());
}

TEST_F(FrameLook, AHostThatRetainsItsImageShowsIt) {
    auto& frame = Make(u"");
    frame.Host().AutoRedraw(true);
    frame.OnPaint();
    Plan plan(frame);
    plan.CutBorder(kFrameBorder, kFrameFace);
    EXPECT_EQ(WindowPixels(frame.hwnd()).All(), plan.Pixels());
}

// Controls that stand on a frame.
class FrameAsContainer : public FrameFixture {
protected:
    FrameAsContainer() { Show(); }
};

TEST_F(FrameAsContainer, ItsControlsAreItsWindowsChildrenAndCountInTwips) {
    auto& frame = Make(u"title");
    auto& inside = form.Add<Frame>(u"fraInside", {300, 450, 900, 600}, &frame);
    EXPECT_EQ(GetParent(inside.hwnd()), frame.hwnd());
    RECT rect{};
    GetWindowRect(inside.hwnd(), &rect);
    MapWindowPoints(nullptr, frame.hwnd(), reinterpret_cast<POINT*>(&rect), 2);
    EXPECT_EQ((PixelRect{rect.left, rect.top, rect.right, rect.bottom}), (PixelRect{20, 30, 80, 70}));
}

TEST_F(FrameAsContainer, InRunModeADisabledFrameDisablesWhatStandsOnIt) {
    auto& frame = Make(u"title");
    auto& inside = form.Add<Frame>(u"fraInside", {300, 450, 900, 600}, &frame);
    frame.Enabled(false);
    inside.Taken();
    NoDoubleClick();
    Click(inside, 10, 30);
    EXPECT_TRUE(inside.TakenEvents().empty());
    EXPECT_TRUE(inside.Enabled()); // its own flag
    frame.Enabled(true);
    Click(inside, 10, 30);
    EXPECT_FALSE(inside.TakenEvents().empty());
}

TEST_F(FrameAsContainer, InDesignModeWhatStandsOnADisabledFrameStaysSelectable) {
    form.UserMode(false);
    auto& frame = Make(u"title");
    auto& inside = form.Add<Frame>(u"fraInside", {300, 450, 900, 600}, &frame);
    frame.Enabled(false);
    inside.Taken();
    NoDoubleClick();
    Click(inside, 10, 30);
    EXPECT_FALSE(inside.TakenEvents().empty());
}

TEST_F(FrameAsContainer, AHiddenFrameHidesWhatStandsOnIt) {
    auto& frame = Make(u"title");
    auto& inside = form.Add<Frame>(u"fraInside", {300, 450, 900, 600}, &frame);
    frame.Host().Extender().Visible(false);
    EXPECT_FALSE(IsWindowVisible(inside.hwnd()));
    frame.Host().Extender().Visible(true);
    EXPECT_TRUE(IsWindowVisible(inside.hwnd()));
}

TEST_F(FrameAsContainer, WhatStandsOnItIsCutAtItsEdgesAndNotPaintedOver) {
    auto& frame = Make(u"title");
    auto& inside = form.Add<Frame>(u"fraInside", {2700, 450, 900, 600}, &frame); // 180..240 of 200
    inside.BackColor(0x00FF00);
    inside.VistaStyle(true);
    inside.Caption(u"");
    Grab(form.hWnd());
    EXPECT_EQ(WindowPixels(form.hWnd()).At(10 + 190, 10 + 50), 0x00FF00);
    EXPECT_NE(WindowPixels(form.hWnd()).At(10 + 210, 10 + 50), 0x00FF00);
    // A repaint of the frame leaves its controls alone.
    inside.nPaints = 0;
    frame.BackColor(0x80FFFF);
    Pump();
    EXPECT_EQ(WindowPixels(form.hWnd()).At(10 + 190, 10 + 50), 0x00FF00);
    EXPECT_EQ(WindowPixels(form.hWnd()).At(10 + 100, 10 + 50), 0x80FFFF);
    EXPECT_EQ(inside.nPaints, 0);
}

TEST_F(FrameAsContainer, AFrameHasNoPlaceInTheTabOrder) {
    auto& frame = Make(u"title");
    EXPECT_EQ(frame.Host().Extender().TabIndex(), -1);
}

TEST_F(FrameAsContainer, TabGoesThroughWhatStandsOnItAsLongAsItIsUsable) {
    auto& before = form.Add<ctlUniCheckXP>(u"chkBefore", {300, 10, 90, 20});
    auto& frame = Make(u"title");
    auto& inside = form.Add<ctlUniCheckXP>(u"chkInside", {300, 450, 900, 300}, &frame);
    auto& behind = form.Add<ctlUniCheckXP>(u"chkBehind", {300, 40, 90, 20});
    before.Host().Extender().SetFocus();
    Press(VK_TAB);
    EXPECT_EQ(form.ActiveControl(), &inside);
    Press(VK_TAB);
    EXPECT_EQ(form.ActiveControl(), &behind);
    PressWith(VK_SHIFT, VK_TAB);
    EXPECT_EQ(form.ActiveControl(), &inside);

    before.Host().Extender().SetFocus();
    frame.Enabled(false);
    Press(VK_TAB);
    EXPECT_EQ(form.ActiveControl(), &behind);
    frame.Enabled(true);
    frame.Host().Extender().Visible(false);
    PressWith(VK_SHIFT, VK_TAB);
    EXPECT_EQ(form.ActiveControl(), &before);
}

TEST_F(FrameAsContainer, FramesStandOnFrames) {
    auto& outer = Make(u"outer");
    auto& middle = form.Add<Frame>(u"fraMiddle", {150, 300, 2400, 1000}, &outer);
    auto& inner = form.Add<Frame>(u"fraInner", {150, 300, 900, 400}, &middle);
    outer.Enabled(false);
    EXPECT_TRUE(IsWindowEnabled(inner.hwnd()));
    inner.Taken();
    NoDoubleClick();
    Click(inner, 10, 10);
    EXPECT_TRUE(inner.TakenEvents().empty());
    form.Remove(outer);
    EXPECT_TRUE(form.Controls().empty());
}

} // namespace
} // namespace orvanta::testing
