#include "tests/controls/support/FormFixture.h"
#include "tests/controls/support/ProbeControl.h"

#include "plumbing/SharedShapes.h"

namespace orvanta::testing {

namespace {

class HostShapeTest : public FormFixture {
protected:
    HostShapeTest() : probe(form.Add<ProbeControl>(u"Probe1", {10, 20, 60, 40})), host(*form.HostOf(probe)) { Show(); }

    // White on black: what the mask lets through.
    static OlePicture MaskOf(int width, int height, const std::function<void(HDC)>& draw) {
        clsMEMDC surface;
        surface.CreateDC(width, height, TRANSPARENT);
        surface.DrawBackColor(0);
        draw(surface.Hdc());
        return surface.Picture();
    }
    static OlePicture Ring() {
        return MaskOf(60, 40, [](HDC dc) {
            FillOrFrame(dc, {5, 5, 55, 35}, 0xFFFFFF, true);
            FillOrFrame(dc, {20, 10, 40, 30}, 0, true);
        });
    }
    bool Hit(int x, int y) const {
        POINT point{x, y};
        ClientToScreen(probe.hwnd(), &point);
        return WindowFromPoint(point) == probe.hwnd();
    }
    int RegionKind() const {
        const OwnedRegion region(CreateRectRgn(0, 0, 0, 0));
        return GetWindowRgn(probe.hwnd(), region.Get());
    }

    ProbeControl& probe;
    WindowHost& host;
};

TEST_F(HostShapeTest, ATransparentHostIsThePixelsThatAreNotTheMaskColour) {
    host.MaskPicture(Ring());
    EXPECT_TRUE(Hit(0, 0));
    host.BackStyle(0);
    EXPECT_FALSE(Hit(0, 0));
    EXPECT_TRUE(Hit(5, 5));
    EXPECT_TRUE(Hit(54, 34));
    EXPECT_FALSE(Hit(55, 34));
    EXPECT_FALSE(Hit(30, 20));
    EXPECT_TRUE(Hit(19, 20));
}

TEST_F(HostShapeTest, TheFormShowsThroughTheHoles) {
    probe.BackColor(0x0000FF);
    form.BackColor(0x00FF00);
    host.MaskPicture(Ring());
    host.BackStyle(0);
    Pump();
    const WindowPixels pixels = Grab(form.hWnd());
    EXPECT_EQ(pixels.At(10 + 30, 20 + 20), 0x00FF00);
    EXPECT_EQ(pixels.At(10 + 1, 20 + 1), 0x00FF00);
    EXPECT_EQ(pixels.At(10 + 6, 20 + 6), 0x0000FF);
}

TEST_F(HostShapeTest, BackStyleOneMakesAFullRectangleAgain) {
    host.MaskPicture(Ring());
    host.BackStyle(0);
    host.BackStyle(1);
    EXPECT_EQ(RegionKind(), ERROR);
    EXPECT_TRUE(Hit(0, 0));
}

TEST_F(HostShapeTest, WithoutAMaskATransparentHostIsAFullRectangle) {
    host.BackStyle(0);
    EXPECT_TRUE(Hit(0, 0));
    EXPECT_EQ(RegionKind(), ERROR);
}

TEST_F(HostShapeTest, AnAllBlackMaskLeavesNothing) {
    host.BackStyle(0);
    host.MaskPicture(MaskOf(60, 40, [](HDC) {}));
    EXPECT_EQ(RegionKind(), NULLREGION);
    EXPECT_FALSE(Hit(30, 20));
}

TEST_F(HostShapeTest, TheMaskColourSaysWhichPixelsAreOut) {
    host.MaskColor(0xFFFFFF);
    host.BackStyle(0);
    host.MaskPicture(Ring());
    EXPECT_TRUE(Hit(0, 0));
    EXPECT_TRUE(Hit(30, 20));
    EXPECT_FALSE(Hit(10, 20));
}

TEST_F(HostShapeTest, TheRoundMaskIsTheRoundRectangleOfCornerTwo) {
    probe.UseRoundRegions(true);
    const OlePicture mask =
        MaskOf(60, 40, [](HDC dc) { DrawRoundRect(dc, 0, 0, 60, 40, true, 0xFFFFFF, 0xFFFFFF, 1, PS_SOLID, 2); });
    PixelCanvas canvas(60, 40, 0);
    clsMEMDC source;
    source.CloneFromHBmp(static_cast<HBITMAP>(mask.Handle()), TRANSPARENT);
    source.PaintPicture(canvas.Dc(), 0, 0);
    const OwnedRegion region(CreateRectRgn(0, 0, 0, 0));
    ASSERT_NE(GetWindowRgn(probe.hwnd(), region.Get()), ERROR);
    for (int y = 0; y < 40; ++y) {
        for (int x = 0; x < 60; ++x)
            ASSERT_EQ(PtInRegion(region.Get(), x, y) != 0, canvas.At(x, y) != 0) << x << " " << y;
    }
    probe.UseRoundRegions(false);
    EXPECT_EQ(RegionKind(), ERROR);
}

TEST_F(HostShapeTest, TheSameMaskAgainPaintsNothing) {
    host.MaskPicture(Ring());
    host.BackStyle(0);
    Pump();
    probe.nPaints = 0;
    host.MaskPicture(Ring());
    host.BackStyle(0);
    Pump();
    EXPECT_EQ(probe.nPaints, 0);
}

TEST_F(HostShapeTest, AMaskThatIsSetInEachPaintComesToRest) {
    probe.duringPaint = [this] {
        host.MaskPicture(Ring());
        host.BackStyle(0);
    };
    probe.nPaints = 0;
    probe.BackColor(5);
    Pump();
    EXPECT_LE(probe.nPaints, 2);
    EXPECT_GE(probe.nPaints, 1);
}

TEST_F(HostShapeTest, APictureThatIsNoBitmapIsNoMask) {
    host.MaskPicture(Ring());
    host.BackStyle(0);
    host.MaskPicture(OlePicture::OfIcon(CopyIcon(LoadIconW(nullptr, IDI_APPLICATION))));
    EXPECT_EQ(RegionKind(), ERROR);
}

TEST_F(HostShapeTest, AWindowWithoutVisiblePixelsIsPaintedInANewSizeAndKeepsItsMask) {
    host.MaskPicture(MaskOf(60, 40, [](HDC) {}));
    host.BackStyle(0);
    Pump();
    probe.nPaints = 0;
    host.Size(70, 40);
    Pump();
    EXPECT_GE(probe.nPaints, 1);
    EXPECT_EQ(RegionKind(), NULLREGION);
    probe.nPaints = 0;
    Pump();
    EXPECT_EQ(probe.nPaints, 0);
}

} // namespace

} // namespace orvanta::testing
