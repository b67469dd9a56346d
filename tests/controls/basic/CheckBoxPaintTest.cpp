#include "controls/basic/ctlUniCheckXP.h"

#include "controls/basic/CheckLayout.h"
#include "plumbing/FaceDrawing.h"
#include "plumbing/PlatformRect.h"
#include "plumbing/SharedColors.h"
#include "plumbing/SharedShapes.h"
#include "plumbing/SharedText.h"
#include "tests/controls/basic/Witness.h"

#include <gtest/gtest.h>

#include <set>

namespace orvanta::testing {
namespace {

using Check = Witness<ctlUniCheckXP>;

constexpr int kCheckWidth = 120;
constexpr int kCheckHeight = 20; // the box stands at row 2
constexpr OleColor kBoxBack = 0xC0E0F0;
constexpr OleColor kBoxInside = 0xF0C0D0;
constexpr OleColor kTickRed = 0x0000C0;
constexpr OleColor kTextBlue = 0xC00000;

// A shown check box with colours that tell its parts apart, and another one that has the focus.
class CheckBoxPaint : public FormFixture {
protected:
    CheckBoxPaint() {
        check.BackColor(kBoxBack);
        check.CheckBackColor(kBoxInside);
        check.CheckForeColor(kTickRed);
        check.ForeColor(kTextBlue);
        Show();
        other.Host().Extender().SetFocus();
        Pump();
    }
    // The focus alone asks for no repaint, so it is asked for here.
    WindowPixels Now() {
        check.ApplyFontChanges();
        Pump();
        return Grab(check);
    }

    Check& check = form.Load<Check>(u"chkAll", {10, 10, kCheckWidth, kCheckHeight}, {});
    Check& other = form.Load<Check>(u"chkOther", {10, 60, kCheckWidth, kCheckHeight}, {});
};

// A check box without tick and caption: the back, the face of the box, and its corners in the back again.
struct ExpectedCheck : PixelCanvas {
    explicit ExpectedCheck(std::int32_t style = -1, OleColor inside = kBoxInside, bool bPressed = false, int left = 0)
        : PixelCanvas(kCheckWidth, kCheckHeight, kBoxBack) {
        DrawFace(Dc(), {left, 2, left + 15, 17}, inside, true, -1, bPressed, false, false, false, true, style, -1,
                 true);
        for (const int x : {left, left + 14}) {
            for (const int y : {2, 16})
                SetPixelV(Dc(), x, y, kBoxBack);
        }
    }
    void DrawCaption(const Check& check, int left, int top, OleColor c) {
        const Selection font(Dc(), check.Font().hFont());
        SetBkMode(Dc(), TRANSPARENT);
        RECT rect{left, top, kCheckWidth, kCheckHeight};
        DrawTextColored(Dc(), check.Caption(), rect, c, 0x2050);
    }
};

TEST_F(CheckBoxPaint, TheBoxIsASmallFaceOfAnyStyleWithItsCornersInTheBackColour) {
    for (std::int32_t style = -1; style <= 8; ++style) {
        check.Style(style);
        EXPECT_EQ(Now().All(), ExpectedCheck(style).Pixels()) << style;
    }
}

TEST_F(CheckBoxPaint, AlignPutsTheBoxAtTheRight) {
    check.Align(1);
    EXPECT_EQ(Now().All(), ExpectedCheck(-1, kBoxInside, false, kCheckWidth - 15).Pixels());
    check.Align(-5);
    EXPECT_EQ(Now().All(), ExpectedCheck(-1, kBoxInside, false, kCheckWidth - 15).Pixels());
}

TEST_F(CheckBoxPaint, TheBorderColourReachesTheBox) {
    check.BorderColor(0x00FF00);
    EXPECT_EQ(Now().At(7, 2), 0x00FF00);
    check.BorderColor(-1);
    EXPECT_EQ(Now().At(7, 2), ShadeColor(kBoxInside, -68));
}

TEST_F(CheckBoxPaint, TheTickIsSixDiagonalsThatEndOnePointEarly) {
    const std::vector<OleColor> before = Now().All();
    check.Pressed(true);
    const WindowPixels now = Now();
    // The origin is (6, 10): row 2 of the box, and (6, 8) inside it.
    std::set<std::pair<int, int>> tick;
    for (int k = 0; k < 3; ++k) {
        for (int n = 0; n < 3; ++n)
            tick.insert({6 - n, 10 - n + k});
        for (int n = 0; n < 5; ++n)
            tick.insert({6 + n, 10 - n + k});
    }
    for (int y = 0; y < kCheckHeight; ++y) {
        for (int x = 0; x < kCheckWidth; ++x) {
            const auto n = static_cast<std::size_t>(y * kCheckWidth + x);
            EXPECT_EQ(now.At(x, y), tick.contains({x, y}) ? kTickRed : before[n]) << x << "," << y;
        }
    }
}

TEST_F(CheckBoxPaint, ADisabledBoxIsSunkenInTheBackColourWhateverStyleAndInsideAre) {
    check.Enabled(false);
    for (const std::int32_t style : {-1, 0, 7}) {
        check.Style(style);
        check.CheckBackColor(kBoxInside + style);
        EXPECT_EQ(Now().All(), ExpectedCheck(1, kBoxBack, true).Pixels()) << style;
    }
}

TEST_F(CheckBoxPaint, ADisabledTickIsInTheSystemsGrey) {
    check.Pressed(true);
    check.Enabled(false);
    EXPECT_EQ(Now().At(6, 10), ResolveColor(static_cast<OleColor>(0x80000011)));
}

TEST_F(CheckBoxPaint, TheCaptionHugsTheBoxAtTheLeftAndAtTheRight) {
    check.Caption(u"All files");
    ExpectedCheck left;
    left.DrawCaption(check, 19, 4, kTextBlue); // (20 - 13) / 2 is 3.5
    EXPECT_EQ(Now().All(), left.Pixels());

    check.Align(1);
    ExpectedCheck right(-1, kBoxInside, false, kCheckWidth - 15);
    const Selection font(right.Dc(), check.Font().hFont());
    std::int32_t w = 0, h = 0;
    MeasureTextLine(right.Dc(), u"All files", 0, w, h);
    right.DrawCaption(check, kCheckWidth - 19 - w, 4, kTextBlue);
    EXPECT_EQ(Now().All(), right.Pixels());
}

TEST_F(CheckBoxPaint, ALongCaptionWraps) {
    check.Caption(u"A caption that is too long");
    const PixelRect bounds = BoundsOf(Now(), kTextBlue);
    EXPECT_GT(bounds.Height(), 13);
    EXPECT_GE(bounds.left, 19);
    EXPECT_LE(bounds.right, kCheckWidth - 1);
}

TEST_F(CheckBoxPaint, ADisabledCaptionIsGreyUnlessGreyWouldNotShow) {
    check.Caption(u"All files");
    check.Enabled(false);
    const OleColor gray = ResolveColor(static_cast<OleColor>(0x80000011));
    const auto colored = [&](OleColor c) {
        const PixelRect bounds = BoundsOf(Now(), c);
        return bounds.right > 19;
    };
    EXPECT_TRUE(colored(gray));
    EXPECT_FALSE(colored(kTextBlue));
    check.BackColor(static_cast<OleColor>(0x80000011));
    EXPECT_TRUE(colored(kTextBlue));
    check.BackColor(gray - 4); // red differs by 4
    EXPECT_TRUE(colored(kTextBlue));
    check.BackColor(gray - 5);
    EXPECT_FALSE(colored(kTextBlue));
    EXPECT_TRUE(colored(gray));
}

TEST_F(CheckBoxPaint, TheFocusMarkGoesRoundTheCaption) {
    check.Caption(u"All files");
    ExpectedCheck expected;
    expected.DrawCaption(check, 19, 4, kTextBlue);
    const std::vector<OleColor> bare = expected.Pixels();
    std::int32_t w = 0, h = 0;
    {
        const Selection font(expected.Dc(), check.Font().hFont());
        MeasureTextLine(expected.Dc(), u"All files", 0, w, h);
    }
    DrawFocusRectOn(expected.Dc(), {18, 3, 19 + w + 2, 4 + 13 + 2});
    check.Host().Extender().SetFocus();
    EXPECT_EQ(Now().All(), expected.Pixels());
    check.ShowFocus(false);
    EXPECT_EQ(Now().All(), bare);
    check.ShowFocus(true);
    other.Host().Extender().SetFocus();
    EXPECT_EQ(Now().All(), bare);
}

TEST_F(CheckBoxPaint, WithoutCaptionTheFocusShowsNothing) {
    check.Host().Extender().SetFocus();
    Pump();
    EXPECT_EQ(form.ActiveControl(), &check);
    EXPECT_EQ(Now().All(), ExpectedCheck().Pixels());
}

TEST_F(CheckBoxPaint, ARunTimeSetterPaintsNothingAndThousandSettersPaintOnce) {
    check.nPaints = 0;
    for (int n = 0; n < 1000; ++n) {
        check.BackColor(n);
        check.Caption(u"x");
        check.Pressed(n % 2 != 0);
    }
    EXPECT_EQ(check.nPaints, 0);
    Pump();
    EXPECT_EQ(check.nPaints, 1);
}

TEST_F(CheckBoxPaint, InDesignModeEverySetterPaintsAtOnce) {
    form.UserMode(false);
    auto& design = form.Load<Check>(u"chkDesign", {150, 10, 60, 20}, {});
    Pump();
    design.nPaints = 0;
    design.Align(1);
    EXPECT_EQ(design.nPaints, 1);
    design.Pressed(true);
    EXPECT_EQ(design.nPaints, 2);
}

TEST_F(CheckBoxPaint, EnabledSetToWhatItIsPaintsNothing) {
    check.nPaints = 0;
    check.Enabled(true);
    Pump();
    EXPECT_EQ(check.nPaints, 0);
}

} // namespace
} // namespace orvanta::testing
