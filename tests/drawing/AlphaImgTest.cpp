#include "drawing/modCtlCommon_alphaImg.h"

#include "drawing/OverlapPixels.h"
#include "tests/drawing/SurfaceFixture.h"
#include "tests/reference/PlainOverlap.h"
#include "tests/support/GdiCensus.h"
#include "tests/support/PatchedImport.h"

#include <functional>
#include <random>

namespace orvanta {
namespace {

using testing::PatchedImport;
using testing::PixelsOf;

constexpr COLORREF kBack = RGB(200, 150, 100);

// A picture whose pixels are what color says for each place.
OlePicture PictureOf(int width, int height, const std::function<COLORREF(int, int)>& color) {
    clsMEMDC surface;
    surface.CreateDC(width, height, OPAQUE);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            SetPixelV(surface.Hdc(), x, y, color(x, y));
    }
    return surface.Picture();
}
OlePicture PlainPictureOf(int width, int height, COLORREF color) {
    return PictureOf(width, height, [color](int, int) { return color; });
}

class AlphaImg : public ::testing::Test {
protected:
    AlphaImg() {
        target.CreateDC(20, 16, OPAQUE);
        target.DrawBackColor(static_cast<std::int32_t>(kBack));
    }
    COLORREF At(int x, int y) const { return GetPixel(target.Hdc(), x, y); }
    // How many pixels differ from the background.
    std::size_t Drawn() const {
        std::size_t n = 0;
        for (const COLORREF pixel : PixelsOf(target.Hdc(), 20, 16))
            n += pixel != kBack;
        return n;
    }

    clsMEMDC target;
};

int g_nSections;
decltype(&::CreateDIBSection) g_createSection;
HBITMAP WINAPI CountSections(HDC dc, const BITMAPINFO* info, UINT usage, void** bits, HANDLE file, DWORD offset) {
    ++g_nSections;
    return g_createSection(dc, info, usage, bits, file, offset);
}

TEST_F(AlphaImg, AnEmptyPictureOrRectangleDrawsNothingAndMakesNoSection) {
    const PatchedImport<decltype(::CreateDIBSection)> patch("CreateDIBSection", CountSections);
    g_createSection = patch.Original();
    g_nSections = 0;
    const OlePicture picture = PlainPictureOf(4, 4, 0);
    pvOverlapImage(target.Hdc(), 2, 2, 10, 10, false, OlePicture(), true);
    const OlePicture withoutHandle = OlePicture::OfBitmap(nullptr);
    ASSERT_FALSE(withoutHandle.IsEmpty());
    pvOverlapImage(target.Hdc(), 2, 2, 10, 10, true, withoutHandle, true);
    pvOverlapImage(target.Hdc(), 5, 2, 5, 10, true, picture, true);
    pvOverlapImage(target.Hdc(), 5, 2, 3, 10, false, picture, false);
    pvOverlapImage(target.Hdc(), 2, 6, 10, 6, true, picture, false);
    pvOverlapImage(target.Hdc(), RECT{2, 6, 10, 5}, false, picture, true);
    EXPECT_EQ(Drawn(), 0u);
    EXPECT_EQ(g_nSections, 0);
}

TEST_F(AlphaImg, APlainPictureIsCentredInItsRectangle) {
    pvOverlapImage(target.Hdc(), 2, 3, 11, 10, false, PlainPictureOf(4, 4, RGB(1, 2, 3)), false);
    // W 9, H 7: offsets 2 and 1.
    EXPECT_EQ(At(4, 4), RGB(1, 2, 3));
    EXPECT_EQ(At(7, 7), RGB(1, 2, 3));
    EXPECT_EQ(Drawn(), 16u);
}

TEST_F(AlphaImg, WithAnOddRestTheKeyedRoadStandsOneRowLowerThanThePlainOne) {
    pvOverlapImage(target.Hdc(), 2, 3, 11, 10, false, PlainPictureOf(4, 4, RGB(1, 2, 3)), true, -1, -1, 0, 0, 0x999999);
    EXPECT_EQ(At(4, 4), kBack);
    EXPECT_EQ(At(4, 5), RGB(1, 2, 3));
    EXPECT_EQ(At(7, 8), RGB(1, 2, 3));
    EXPECT_EQ(Drawn(), 16u);
}

TEST_F(AlphaImg, ALargerPictureIsCutAtRightAndBottomOnEveryRoad) {
    const OlePicture picture = PictureOf(9, 9, [](int x, int y) { return RGB(20 * x, 20 * y, 7); });
    for (const bool bTransparent : {false, true}) {
        target.DrawBackColor(static_cast<std::int32_t>(kBack));
        pvOverlapImage(target.Hdc(), 3, 4, 8, 10, false, picture, bTransparent, -1, -1, 0, 0, 0x999999);
        EXPECT_EQ(At(3, 4), RGB(0, 0, 7));
        EXPECT_EQ(At(7, 9), RGB(80, 100, 7));
        EXPECT_EQ(Drawn(), 30u);
    }
}

TEST_F(AlphaImg, AGivenSizeLimitsWhatIsDrawn) {
    const OlePicture picture = PictureOf(6, 6, [](int x, int y) { return RGB(20 * x, 20 * y, 7); });
    pvOverlapImage(target.Hdc(), 0, 0, 10, 10, false, picture, false, 2, 4);
    EXPECT_EQ(At(4, 3), RGB(0, 0, 7));
    EXPECT_EQ(Drawn(), 8u);
    target.DrawBackColor(static_cast<std::int32_t>(kBack));
    pvOverlapImage(target.Hdc(), 0, 0, 10, 10, true, picture, false, 0, 4);
    EXPECT_EQ(Drawn(), 0u);
}

TEST_F(AlphaImg, TheAutomaticKeyIsTheColourAtXY) {
    const OlePicture picture = PictureOf(4, 4, [](int x, int y) {
        return x == 0 && y == 0 ? RGB(9, 9, 9) : x == 1 && y == 2 ? RGB(5, 6, 7) : RGB(1, 2, 3);
    });
    pvOverlapImage(target.Hdc(), 0, 0, 4, 4, false, picture, true);
    EXPECT_EQ(At(0, 0), kBack);
    EXPECT_EQ(At(1, 2), RGB(5, 6, 7));
    EXPECT_EQ(Drawn(), 15u);
    target.DrawBackColor(static_cast<std::int32_t>(kBack));
    pvOverlapImage(target.Hdc(), 0, 0, 4, 4, false, picture, true, -1, -1, 1, 2);
    EXPECT_EQ(At(1, 2), kBack);
    EXPECT_EQ(At(0, 0), RGB(9, 9, 9));
}

TEST_F(AlphaImg, AKeyPixelOutsideThePictureKeysNothingOut) {
    pvOverlapImage(target.Hdc(), 0, 0, 4, 4, false, PlainPictureOf(4, 4, RGB(255, 255, 255)), true, -1, -1, 40, 0);
    EXPECT_EQ(Drawn(), 16u);
}

TEST_F(AlphaImg, AnExplicitKeyIsComparedExactlyAndNotResolved) {
    const COLORREF highlight = GetSysColor(COLOR_HIGHLIGHT);
    const OlePicture picture = PictureOf(2, 1, [&](int x, int) { return x == 0 ? highlight : highlight ^ 0x010000; });
    pvOverlapImage(target.Hdc(), 0, 0, 2, 1, false, picture, true, -1, -1, 0, 0, static_cast<std::int32_t>(highlight));
    EXPECT_EQ(At(0, 0), kBack);
    EXPECT_EQ(At(1, 0), highlight ^ 0x010000);
    pvOverlapImage(target.Hdc(), 0, 0, 2, 1, false, picture, true, -1, -1, 0, 0,
                   static_cast<std::int32_t>(0x80000000u | COLOR_HIGHLIGHT));
    EXPECT_EQ(At(0, 0), highlight);
}

TEST_F(AlphaImg, ADisabledPictureIsWashedOutGrey) {
    pvOverlapImage(target.Hdc(), 0, 0, 4, 4, true, PlainPictureOf(2, 2, RGB(0, 0, 0)), false);
    EXPECT_EQ(At(1, 1), RGB(134, 134, 134));
    pvOverlapImage(target.Hdc(), 0, 0, 4, 4, true, PlainPictureOf(2, 2, RGB(255, 255, 255)), false);
    EXPECT_EQ(At(1, 1), RGB(211, 211, 211));
    EXPECT_EQ(At(0, 0), kBack);
    pvOverlapImage(target.Hdc(), 0, 0, 4, 4, true, PlainPictureOf(2, 2, RGB(0, 255, 0)), true, -1, -1, 0, 0, 1);
    EXPECT_EQ(At(1, 1), RGB(179, 179, 179));
}

TEST_F(AlphaImg, KeyedAndDisabledTogetherKeepTheBackgroundUnderTheKey) {
    const OlePicture picture = PictureOf(2, 2, [](int x, int y) { return x == y ? RGB(9, 9, 9) : RGB(0, 0, 0); });
    pvOverlapImage(target.Hdc(), RECT{0, 0, 2, 2}, true, picture, true);
    EXPECT_EQ(At(0, 0), kBack);
    EXPECT_EQ(At(1, 0), RGB(134, 134, 134));
}

TEST_F(AlphaImg, AllRoadsOfABitmapEqualThePlainOnesOnRandomPictures) {
    std::mt19937 random(20240508);
    const auto upTo = [&random](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    for (int n = 0; n < 200; ++n) {
        const int pictureWidth = 1 + upTo(24), pictureHeight = 1 + upTo(20), width = upTo(28) - 4,
                  height = upTo(24) - 4;
        std::vector<COLORREF> colors(static_cast<std::size_t>(pictureWidth * pictureHeight));
        for (COLORREF& color : colors)
            color = upTo(2) ? 0x00FF00u : static_cast<COLORREF>(random() & 0xFFFFFF);
        const OlePicture picture = PictureOf(pictureWidth, pictureHeight, [&](int x, int y) {
            return colors[static_cast<std::size_t>(y * pictureWidth + x)];
        });
        const RECT area{upTo(10), upTo(10), 10 + upTo(10), 10 + upTo(6)};
        const bool bDisabled = upTo(2) == 1;
        const std::int64_t key = bDisabled && upTo(2) ? -1 : 0x00FF00;

        reference::PlainPicture source{pictureWidth, pictureHeight, {}};
        for (int row = pictureHeight - 1; row >= 0; --row) {
            for (int x = 0; x < pictureWidth; ++x) {
                const COLORREF color = colors[static_cast<std::size_t>(row * pictureWidth + x)];
                source.bytes.insert(source.bytes.end(), {GetBValue(color), GetGValue(color), GetRValue(color), 0});
            }
        }
        target.DrawBackColor(static_cast<std::int32_t>(kBack));
        reference::PlainPicture expected{area.right - area.left, area.bottom - area.top, {}};
        for (int i = 0; i < expected.width * expected.height; ++i)
            expected.bytes.insert(expected.bytes.end(), {GetBValue(kBack), GetGValue(kBack), GetRValue(kBack), 0});
        reference::PlainOverlap(expected, source, width, height, key, bDisabled);

        pvOverlapImage(target.Hdc(), area, bDisabled, picture, key >= 0, width, height, 0, 0,
                       static_cast<std::int32_t>(key));
        for (int y = 0; y < expected.height; ++y) {
            for (int x = 0; x < expected.width; ++x) {
                const int row = expected.height - 1 - y;
                ASSERT_EQ(At(area.left + x, area.top + y),
                          RGB(expected.At(2, x, row), expected.At(1, x, row), expected.At(0, x, row)))
                    << "round " << n << " at " << x << ',' << y;
            }
        }
    }
}

// A 32 bit icon of 6 by 4: red with a green top left pixel; its left column is masked.
OlePicture ColorIcon() {
    const OlePicture color =
        PictureOf(6, 4, [](int x, int y) { return x == 1 && y == 0 ? RGB(0, 255, 0) : RGB(255, 0, 0); });
    const BYTE mask[] = {0x80, 0, 0x80, 0, 0x80, 0, 0x80, 0};
    const OwnedBitmap maskBitmap(CreateBitmap(6, 4, 1, 1, mask));
    ICONINFO info{TRUE, 0, 0, maskBitmap.Get(), static_cast<HBITMAP>(color.Handle())};
    return OlePicture::OfIcon(CreateIconIndirect(&info));
}

// A black and white icon of 8 by 4: the upper half of its bitmap masks the left four columns, the lower half is white
// in its top row.
OlePicture MonochromeIcon() {
    const BYTE bits[] = {0xF0, 0, 0xF0, 0, 0xF0, 0, 0xF0, 0, 0xFF, 0, 0, 0, 0, 0, 0, 0};
    const OwnedBitmap bitmap(CreateBitmap(8, 8, 1, 1, bits));
    ICONINFO info{TRUE, 0, 0, bitmap.Get(), nullptr};
    return OlePicture::OfIcon(CreateIconIndirect(&info));
}

TEST_F(AlphaImg, AnIconLeavesItsMaskedPixelsOutOnlyWhenTransparent) {
    const OlePicture icon = ColorIcon();
    ASSERT_EQ(icon.Type(), OlePicture::kTypeIcon);
    pvOverlapImage(target.Hdc(), 1, 1, 11, 9, false, icon, true);
    // W 10, H 8: offsets 2 and 2.
    EXPECT_EQ(At(3, 3), kBack);
    EXPECT_EQ(At(4, 3), RGB(0, 255, 0));
    EXPECT_EQ(At(8, 6), RGB(255, 0, 0));
    EXPECT_EQ(Drawn(), 20u);
    pvOverlapImage(target.Hdc(), 1, 1, 11, 9, false, icon, false);
    EXPECT_NE(At(3, 3), kBack);
    EXPECT_EQ(Drawn(), 24u);
}

TEST_F(AlphaImg, ADisabledIconIsGreyAndASizeBelowOneMeansTheWholeIcon) {
    pvOverlapImage(target.Hdc(), 0, 0, 6, 4, true, ColorIcon(), true, 0, 0);
    EXPECT_EQ(At(0, 0), kBack);
    EXPECT_EQ(At(1, 0), RGB(179, 179, 179));
    EXPECT_EQ(At(5, 3), RGB(157, 157, 157));
    EXPECT_EQ(Drawn(), 20u);
    target.DrawBackColor(static_cast<std::int32_t>(kBack));
    pvOverlapImage(target.Hdc(), 0, 0, 6, 4, true, ColorIcon(), true, 2, 3);
    EXPECT_EQ(Drawn(), 3u) << "two columns, of which the first is masked, in three rows";
}

TEST_F(AlphaImg, AnIconIsCutByTheRectangle) {
    pvOverlapImage(target.Hdc(), 3, 3, 6, 5, false, ColorIcon(), true);
    EXPECT_EQ(Drawn(), 4u);
    EXPECT_EQ(At(4, 3), RGB(0, 255, 0));
    pvOverlapImage(target.Hdc(), 8, 8, 8, 12, false, ColorIcon(), true);
    EXPECT_EQ(Drawn(), 4u);
}

TEST_F(AlphaImg, AMonochromeIconHasItsImageBelowItsMask) {
    const OlePicture icon = MonochromeIcon();
    ASSERT_EQ(icon.Type(), OlePicture::kTypeIcon);
    pvOverlapImage(target.Hdc(), 2, 2, 10, 6, false, icon, true);
    EXPECT_EQ(At(5, 2), kBack);
    EXPECT_EQ(At(6, 2), RGB(255, 255, 255));
    EXPECT_EQ(At(6, 3), RGB(0, 0, 0));
    EXPECT_EQ(Drawn(), 16u) << "half of 8 by 4";
}

TEST_F(AlphaImg, FailuresOfTheBuffersReachTheCallerAndLeaveNothingBehind) {
    const OlePicture picture = PlainPictureOf(4, 4, 0);
    pvOverlapImage(target.Hdc(), 0, 0, 4, 4, true, picture, false);
    target.DrawBackColor(static_cast<std::int32_t>(kBack));
    const testing::GdiCensus before = testing::GdiCensus::Take();
    {
        // The picture's bitmap is busy in another DC, so that the second buffer cannot be filled.
        const OwnedDc busy(CreateCompatibleDC(nullptr));
        const Selection selection(busy.Get(), picture.Handle());
        testing::ExpectSurfaceFailure(u"CloneFromhBmp", u"Bitmap not selected",
                                      [&] { pvOverlapImage(target.Hdc(), 0, 0, 4, 4, true, picture, false); });
    }
    EXPECT_EQ(testing::GdiCensus::Take(), before);
    EXPECT_EQ(Drawn(), 0u);
    pvOverlapImage(target.Hdc(), 0, 0, 4, 4, true, picture, false);
    EXPECT_EQ(Drawn(), 16u);
}

TEST(BuildSA3D, GivesTheBytesOfA32BitSectionAndRefusesOtherDepths) {
    clsDIBSection section;
    section.CreateDC(3, 2, 32);
    SetPixelV(section.Hdc(), 2, 1, RGB(1, 2, 3));
    const PixelBits bits = pvBuildSA3D(section);
    EXPECT_EQ(bits.width, 3);
    EXPECT_EQ(bits.height, 2);
    EXPECT_EQ(bits.bytesPerScanLine, 12u);
    EXPECT_EQ(bits.Row(0)[8], 3) << "row 0 is the bottom, byte 0 is blue";
    EXPECT_EQ(bits.Row(0)[10], 1);
    section.CreateDC(3, 2, 24);
    testing::ExpectFailure(u"pvBuildSA3D", u"Cannot create Safe Array for this DIB bpp", [&] { pvBuildSA3D(section); });
}

} // namespace
} // namespace orvanta
