#include "controls/basic/ctlUniImage.h"

#include "drawing/OverlapPixels.h"
#include "plumbing/FaceDrawing.h"
#include "tests/controls/basic/ImageFixture.h"
#include "tests/support/PatchedImport.h"

#include <gtest/gtest.h>

namespace orvanta {
namespace {

using testing::ExpectSame;
using testing::OwnColorAt;
using testing::PictureOfPixels;
using testing::PictureOfSize;
using testing::PlainIcon;
using testing::Shot;

constexpr COLORREF kKey = RGB(255, 0, 255);

class PaintCountedImage final : public ctlUniImage {
public:
    using ctlUniImage::ctlUniImage;
    void OnPaint() override {
        ++nPaints;
        ctlUniImage::OnPaint();
    }
    int nPaints = 0;
};

class ImageControl : public testing::ImageFixture {
protected:
    // A face as this control has it, whatever its styles.
    static Shot Face(const ctlUniImage& image) {
        const int width = static_cast<int>(image.Host().ScaleWidth()),
                  height = static_cast<int>(image.Host().ScaleHeight());
        clsMEMDC surface;
        surface.CreateDC(width, height, TRANSPARENT);
        DrawFace(surface.Hdc(), {0, 0, width, height}, image.BackColor(), image.Border(), image.BorderColor(), false,
                 false, false, false, image.RoundedBorders(), 0, kAutomatic, true);
        return {surface.Hdc(), width, height};
    }
    // The same with a picture drawn over it, pixel by pixel: so many columns and rows from its top left corner.
    static Shot FaceWith(const ctlUniImage& image, const Shot& picture, int left, int top, int width, int height) {
        Shot face = Face(image);
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x)
                face.Set(left + x, top + y, picture.At(x, y));
        }
        return face;
    }
    static Shot PixelsOf(const OlePicture& picture, int width, int height) {
        clsMEMDC surface;
        surface.CloneFromHBmp(static_cast<HBITMAP>(picture.Handle()), TRANSPARENT);
        return {surface.Hdc(), width, height};
    }
    static Shot StretchedPixelsOf(const OlePicture& picture, int fromWidth, int fromHeight, int width, int height) {
        clsMEMDC whole, scaled;
        whole.CloneFromHBmp(static_cast<HBITMAP>(picture.Handle()), TRANSPARENT);
        scaled.CreateDC(width, height, TRANSPARENT);
        StretchBlt(scaled.Hdc(), 0, 0, width, height, whole.Hdc(), 0, 0, fromWidth, fromHeight, SRCCOPY);
        return {scaled.Hdc(), width, height};
    }
};

TEST_F(ImageControl, WithoutAPictureShowsOnlyTheFace) {
    auto& image = Put<ctlUniImage>(60, 40);
    for (const bool bBorder : {false, true}) {
        for (const bool bRounded : {false, true}) {
            image.Border(bBorder);
            image.RoundedBorders(bRounded);
            ExpectSame(Shown(image), Face(image));
        }
    }
}

TEST_F(ImageControl, TheFaceHasItsColorsAndIsAlwaysFlat) {
    auto& image = Put<ctlUniImage>(60, 40);
    image.BackColor(RGB(200, 120, 40));
    image.Border(true);
    image.BorderColor(RGB(1, 2, 3));
    const Shot shown = Shown(image);
    EXPECT_EQ(shown.At(30, 20), static_cast<COLORREF>(RGB(200, 120, 40)));
    EXPECT_EQ(shown.At(30, 0), static_cast<COLORREF>(RGB(1, 2, 3)));
    ExpectSame(shown, Face(image));
}

TEST_F(ImageControl, AnAutomaticBorderIs68DarkerThanTheBack) {
    auto& image = Put<ctlUniImage>(60, 40);
    image.BackColor(RGB(200, 120, 40));
    image.Border(true);
    EXPECT_EQ(Shown(image).At(30, 0), static_cast<COLORREF>(RGB(132, 52, 0)));
}

TEST_F(ImageControl, BackColorOutIsKeptButNeverDrawn) {
    auto& image = Put<ctlUniImage>(60, 40);
    image.Border(true);
    const Shot before = Shown(image);
    image.BackColorOut(RGB(255, 0, 0));
    EXPECT_EQ(image.BackColorOut(), RGB(255, 0, 0));
    ExpectSame(Shown(image), before);
}

TEST_F(ImageControl, APictureThatFitsIsCentred) {
    auto& image = Put<ctlUniImage>(60, 41);
    const OlePicture picture = PictureOfSize(20, 10);
    image.TransparencyType(-1);
    image.Picture(picture);
    ExpectSame(Shown(image), FaceWith(image, PixelsOf(picture, 20, 10), 20, 16, 20, 10)); // 15.5 from the top
}

TEST_F(ImageControl, APictureKeepsItsPixelsAtANewResolution) {
    auto& image = Put<ctlUniImage>(60, 40);
    const OlePicture picture = PictureOfSize(20, 10);
    image.TransparencyType(-1);
    image.Picture(picture);
    for (const bool bStretch : {false, true}) {
        image.Stretch(bStretch);
        for (const WORD wDpi : {WORD{384}, WORD{48}}) {
            SendMessageW(form.hWnd(), WM_DPICHANGED, MAKEWPARAM(wDpi, wDpi), 0);
            ExpectSame(Shown(image), FaceWith(image, PixelsOf(picture, 20, 10), 20, 15, 20, 10));
        }
    }
}

TEST_F(ImageControl, StretchLeavesASmallerPictureAtItsSizeCentred) {
    auto& image = Put<ctlUniImage>(60, 40);
    const OlePicture picture = PictureOfSize(20, 10);
    image.TransparencyType(-1);
    image.Stretch(true);
    image.Picture(picture);
    ExpectSame(Shown(image), FaceWith(image, PixelsOf(picture, 20, 10), 20, 15, 20, 10));
}

TEST_F(ImageControl, StretchMakesAWidePictureAsWideAsClientWidthAndCentresItVertically) {
    auto& image = Put<ctlUniImage>(64, 44);
    const OlePicture picture = PictureOfSize(120, 40);
    image.TransparencyType(-1);
    image.Border(true);
    image.Stretch(true);
    image.Picture(picture);
    ASSERT_EQ(image.ClientWidth(), 60);
    ExpectSame(Shown(image), FaceWith(image, StretchedPixelsOf(picture, 120, 40, 60, 20), 2, 12, 60, 20));
}

TEST_F(ImageControl, WithoutStretchATooLargePictureShowsItsTopLeftPartCutAtTheEdge) {
    auto& image = Put<ctlUniImage>(64, 44);
    const OlePicture picture = PictureOfSize(120, 90);
    image.TransparencyType(-1);
    image.Border(true);
    image.Picture(picture);
    ExpectSame(Shown(image), FaceWith(image, PixelsOf(picture, 120, 90), 2, 2, 60, 40));
    image.RoundedBorders(false);
    ExpectSame(Shown(image), FaceWith(image, PixelsOf(picture, 120, 90), 1, 1, 62, 42));
}

TEST_F(ImageControl, WithoutStretchEachAxisIsCutOrCentredByItself) {
    auto& image = Put<ctlUniImage>(60, 40);
    const OlePicture picture = PictureOfSize(120, 10);
    image.TransparencyType(-1);
    image.Picture(picture);
    ExpectSame(Shown(image), FaceWith(image, PixelsOf(picture, 120, 10), 0, 15, 60, 10));
}

TEST_F(ImageControl, ABorderWithoutRoomInsideShowsNoPicture) {
    auto& image = Put<ctlUniImage>(40, 4);
    image.TransparencyType(-1);
    image.Border(true);
    image.Picture(PictureOfSize(20, 10));
    ASSERT_EQ(image.ClientHeight(), 0);
    ExpectSame(Shown(image), Face(image));
}

TEST_F(ImageControl, ClientSizeIsLessTheBorderAndLessMoreWhenThatIsRounded) {
    auto& image = Put<ctlUniImage>(60, 40);
    EXPECT_EQ(image.ClientWidth(), 60);
    EXPECT_EQ(image.ClientHeight(), 40);
    image.Border(true);
    EXPECT_EQ(image.ClientWidth(), 56);
    EXPECT_EQ(image.ClientHeight(), 36);
    image.RoundedBorders(false);
    EXPECT_EQ(image.ClientWidth(), 58);
    EXPECT_EQ(image.ClientHeight(), 38);
}

// A key coloured frame of two pixels round a field in which all colours differ.
OlePicture FramedPicture(int size) {
    return PictureOfPixels(size, size, [size](int x, int y) -> COLORREF {
        const bool bFrame = x < 2 || y < 2 || x >= size - 2 || y >= size - 2;
        return bFrame ? kKey : OwnColorAt(x, y);
    });
}

class ImageTransparency : public ImageControl {
protected:
    // Shows a picture of 20 pixels square in the middle of 40, and expects one colour to be left out; -1 for none.
    void ExpectLeftOut(const OlePicture& picture, std::int64_t lKey) {
        image.Picture(picture);
        const Shot pixels = PixelsOf(picture, 20, 20);
        Shot expected = Face(image);
        for (int y = 0; y < 20; ++y) {
            for (int x = 0; x < 20; ++x) {
                if (pixels.At(x, y) != lKey) expected.Set(10 + x, 10 + y, pixels.At(x, y));
            }
        }
        ExpectSame(Shown(image), expected);
    }
    ctlUniImage& image = Put<ctlUniImage>(40, 40);
};

TEST_F(ImageTransparency, Type0LeavesOutTheColorOfTheTopLeftPixel) {
    ExpectLeftOut(FramedPicture(20), kKey);
}

TEST_F(ImageTransparency, Type0LeavesOutTheColorAtTheChosenPixel) {
    image.xTranspColor(7);
    image.yTranspColor(9);
    ExpectLeftOut(FramedPicture(20), OwnColorAt(7, 9));
}

TEST_F(ImageTransparency, TypeMinus1LeavesNothingOut) {
    image.TransparencyType(-1);
    ExpectLeftOut(FramedPicture(20), -1);
}

TEST_F(ImageTransparency, Type1LeavesOutTransparentColor) {
    image.TransparencyType(1);
    image.TransparentColor(static_cast<OleColor>(OwnColorAt(5, 6)));
    ExpectLeftOut(FramedPicture(20), OwnColorAt(5, 6));
}

TEST_F(ImageTransparency, Type1WithoutAColorLeavesNothingOut) {
    image.TransparencyType(1);
    ExpectLeftOut(FramedPicture(20), -1);
}

TEST_F(ImageTransparency, ASystemColorAsTransparentColorMeetsNoPixel) {
    const auto face = static_cast<COLORREF>(ResolveColor(kSystemWindow));
    image.TransparencyType(1);
    image.TransparentColor(kSystemWindow);
    ExpectLeftOut(PictureOfPixels(20, 20, [face](int, int) { return face; }), -1);
}

TEST_F(ImageTransparency, TheKeyPixelOfAScaledPictureIsReadBeforeScaling) {
    const OlePicture picture = FramedPicture(80);
    image.Stretch(true);
    image.xTranspColor(79); // beyond the scaled picture
    image.yTranspColor(79);
    image.Picture(picture);
    const Shot pixels = StretchedPixelsOf(picture, 80, 80, 40, 40);
    Shot expected = Face(image);
    for (int y = 0; y < 40; ++y) {
        for (int x = 0; x < 40; ++x) {
            if (pixels.At(x, y) != kKey) expected.Set(x, y, pixels.At(x, y));
        }
    }
    ASSERT_EQ(pixels.At(0, 0), kKey);
    ExpectSame(Shown(image), expected);
}

TEST_F(ImageTransparency, AScaledPictureTakesTransparentColorToo) {
    const OlePicture picture = FramedPicture(80);
    image.Stretch(true);
    image.TransparencyType(1);
    image.TransparentColor(static_cast<OleColor>(kKey));
    image.Picture(picture);
    const Shot shown = Shown(image);
    EXPECT_EQ(shown.At(0, 0), Face(image).At(0, 0));
    EXPECT_EQ(shown.At(20, 20), StretchedPixelsOf(picture, 80, 80, 40, 40).At(20, 20));
}

TEST_F(ImageControl, ADisabledPictureIsGreyAndTheFaceStays) {
    auto& image = Put<ctlUniImage>(60, 40);
    const OlePicture picture = PictureOfSize(20, 10);
    image.TransparencyType(-1);
    image.Picture(picture);
    image.Enabled(false);
    Shot grey = PixelsOf(picture, 20, 10);
    for (int y = 0; y < 10; ++y) {
        for (int x = 0; x < 20; ++x) {
            const COLORREF c = grey.At(x, y);
            const std::uint8_t v = DisabledGrey(GetRValue(c), GetGValue(c), GetBValue(c));
            grey.Set(x, y, RGB(v, v, v));
        }
    }
    ExpectSame(Shown(image), FaceWith(image, grey, 20, 15, 20, 10));
}

TEST_F(ImageControl, AnIconIsShownAndOneThatWouldHaveToBeScaledIsNot) {
    auto& image = Put<ctlUniImage>(40, 40);
    image.Picture(PlainIcon(32));
    EXPECT_EQ(Shown(image).At(20, 20), static_cast<COLORREF>(RGB(255, 255, 255)));
    image.Host().Size(20, 20);
    EXPECT_EQ(Shown(image).At(10, 10), static_cast<COLORREF>(RGB(255, 255, 255))); // cut
    image.Stretch(true);
    ExpectSame(Shown(image), Face(image));
}

TEST_F(ImageControl, ThePictureIsKeptByReference) {
    auto& image = Put<ctlUniImage>(40, 40);
    const OlePicture picture = PictureOfSize(4, 4);
    image.Picture(picture);
    EXPECT_TRUE(image.Picture() == picture);
    EXPECT_EQ(GetObjectType(picture.Handle()), static_cast<DWORD>(OBJ_BITMAP));
    Pump();
    EXPECT_EQ(GetObjectType(picture.Handle()), static_cast<DWORD>(OBJ_BITMAP));
}

// What reaches the DC of the paint, by the calls of the program itself.
struct BlitLog {
    HDC target = nullptr;
    int nOnTarget = 0;
    std::function<void()> meanwhile;
};
BlitLog g_blits;
decltype(&BitBlt) g_realBitBlt = nullptr;

BOOL WINAPI LoggedBitBlt(HDC to, int x, int y, int width, int height, HDC from, int fromX, int fromY, DWORD rop) {
    if (to == g_blits.target) {
        ++g_blits.nOnTarget;
        if (g_blits.meanwhile) g_blits.meanwhile();
    }
    return g_realBitBlt(to, x, y, width, height, from, fromX, fromY, rop);
}

class ImageBlits : public ImageControl {
protected:
    ~ImageBlits() override { g_blits = {}; }
    PaintCountedImage& image = Put<PaintCountedImage>(60, 40);
};

TEST_F(ImageBlits, TheWholeImageReachesTheHostInOneBlit) {
    image.Picture(PictureOfSize(20, 10));
    Pump();
    const testing::PatchedImport<decltype(BitBlt)> patch("BitBlt", LoggedBitBlt);
    g_realBitBlt = patch.Original();
    g_blits.target = image.Host().hDC();
    image.OnPaint();
    EXPECT_EQ(g_blits.nOnTarget, 1);
}

TEST_F(ImageBlits, APaintInsideAPaintDoesNothing) {
    Pump();
    const testing::PatchedImport<decltype(BitBlt)> patch("BitBlt", LoggedBitBlt);
    g_realBitBlt = patch.Original();
    g_blits.target = image.Host().hDC();
    g_blits.meanwhile = [this] {
        g_blits.meanwhile = nullptr;
        image.OnPaint();
    };
    image.OnPaint();
    EXPECT_EQ(g_blits.nOnTarget, 1);
    image.OnPaint();
    EXPECT_EQ(g_blits.nOnTarget, 2);
}

TEST_F(ImageBlits, AResizeInsideAPaintAsksForNoFurtherPaint) {
    Pump();
    const testing::PatchedImport<decltype(BitBlt)> patch("BitBlt", LoggedBitBlt);
    g_realBitBlt = patch.Original();
    g_blits.target = image.Host().hDC();
    g_blits.meanwhile = [this] {
        g_blits.meanwhile = nullptr;
        image.OnResize();
    };
    image.OnPaint();
    EXPECT_FALSE(GetUpdateRect(image.hwnd(), nullptr, FALSE));
    image.OnResize();
    EXPECT_TRUE(GetUpdateRect(image.hwnd(), nullptr, FALSE));
}

HDC WINAPI NoDcForAnImage(HDC) {
    return nullptr;
}

TEST_F(ImageControl, APaintThatGetsNoSurfaceRaisesNothingAndTheNextOneIsWhole) {
    auto& image = Put<ctlUniImage>(60, 40);
    image.TransparencyType(-1);
    const OlePicture picture = PictureOfSize(20, 10);
    image.Picture(picture);
    const Shot expected = FaceWith(image, PixelsOf(picture, 20, 10), 20, 15, 20, 10);
    {
        const testing::PatchedImport<decltype(CreateCompatibleDC)> patch("CreateCompatibleDC", NoDcForAnImage);
        EXPECT_NO_THROW(image.OnPaint());
    }
    InvalidateRect(image.hwnd(), nullptr, FALSE);
    ExpectSame(Shown(image), expected);
}

} // namespace
} // namespace orvanta
