#include "drawing/clsMEMDC.h"

#include "tests/drawing/SurfaceFixture.h"
#include "tests/support/GdiCensus.h"
#include "tests/support/PatchedImport.h"

namespace orvanta {
namespace {

using testing::ExpectSurfaceFailure;
using testing::PatchedImport;
using testing::PixelsOf;
using testing::Scatter;
using testing::ScatteredAt;

TEST(MemDc, HasNothingBeforeCreateDC) {
    clsMEMDC surface;
    EXPECT_EQ(surface.Hdc(), nullptr);
    EXPECT_EQ(surface.hBmp(), nullptr);
    EXPECT_EQ(surface.Width(), 0);
    EXPECT_EQ(surface.Height(), 0);
    EXPECT_EQ(surface.BkMode(), 0);
    EXPECT_EQ(surface.BkColor(), 0);
    surface.BkMode(TRANSPARENT);
    surface.BkColor(RGB(1, 2, 3));
    surface.DrawBackColor(RGB(1, 2, 3));
    surface.PaintPicture(nullptr, 0, 0);
    EXPECT_EQ(surface.Hdc(), nullptr);
}

TEST(MemDc, CreateDCMakesAScreenCompatibleSurfaceWithTheGivenBackgroundMode) {
    clsMEMDC surface;
    surface.CreateDC(7, 5, TRANSPARENT);
    EXPECT_EQ(GetObjectType(surface.Hdc()), static_cast<DWORD>(OBJ_MEMDC));
    EXPECT_EQ(GetCurrentObject(surface.Hdc(), OBJ_BITMAP), surface.hBmp());
    EXPECT_EQ(surface.Width(), 7);
    EXPECT_EQ(surface.Height(), 5);
    EXPECT_EQ(surface.BkMode(), TRANSPARENT);
    EXPECT_EQ(GetStretchBltMode(surface.Hdc()), COLORONCOLOR);
    const BITMAP record = BitmapRecordOf(surface.hBmp());
    EXPECT_EQ(record.bmWidth, 7);
    EXPECT_EQ(record.bmHeight, 5);
    const WindowDc screen(nullptr);
    EXPECT_EQ(record.bmBitsPixel, GetDeviceCaps(screen.Get(), BITSPIXEL)) << "not the single bit of a fresh memory DC";
    surface.CreateDC(7, 5, OPAQUE);
    EXPECT_EQ(surface.BkMode(), OPAQUE);
}

TEST(MemDc, ANegativeSizeBecomesOneAndZeroStaysZero) {
    clsMEMDC surface;
    surface.CreateDC(-5, -1, OPAQUE);
    EXPECT_EQ(surface.Width(), 1);
    EXPECT_EQ(surface.Height(), 1);
    surface.CreateDC(0, 0, OPAQUE);
    EXPECT_EQ(surface.Width(), 0);
    EXPECT_EQ(surface.Height(), 0);
    EXPECT_NE(surface.Hdc(), nullptr);
}

TEST(MemDc, CreateDCTwiceLeavesOneSurface) {
    clsMEMDC surface;
    surface.CreateDC(7, 5, OPAQUE);
    const testing::GdiCensus before = testing::GdiCensus::Take();
    surface.CreateDC(70, 50, OPAQUE);
    EXPECT_EQ(testing::GdiCensus::Take(), before);
    EXPECT_EQ(BitmapRecordOfDc(surface.Hdc()).bmWidth, 70);
}

TEST(MemDc, DestroyReleasesEverythingAndKeepsTheSize) {
    clsMEMDC surface;
    surface.CreateDC(7, 5, OPAQUE);
    HDC dc = surface.Hdc();
    HBITMAP bitmap = surface.hBmp();
    surface.Destroy();
    EXPECT_EQ(GetObjectType(dc), 0u);
    EXPECT_EQ(GetObjectType(bitmap), 0u);
    EXPECT_EQ(surface.Hdc(), nullptr);
    EXPECT_EQ(surface.hBmp(), nullptr);
    EXPECT_EQ(surface.Width(), 7);
    EXPECT_EQ(surface.Height(), 5);
    surface.Destroy();
}

TEST(MemDc, ItsEndReleasesEverything) {
    HDC dc = nullptr;
    HBITMAP bitmap = nullptr;
    {
        clsMEMDC surface;
        surface.CreateDC(7, 5, OPAQUE);
        dc = surface.Hdc();
        bitmap = surface.hBmp();
    }
    EXPECT_EQ(GetObjectType(dc), 0u);
    EXPECT_EQ(GetObjectType(bitmap), 0u);
}

TEST(MemDc, BkColorResolvesSystemColours) {
    clsMEMDC surface;
    surface.CreateDC(3, 3, OPAQUE);
    surface.BkColor(RGB(1, 2, 3));
    EXPECT_EQ(surface.BkColor(), RGB(1, 2, 3));
    surface.BkColor(static_cast<std::int32_t>(0x80000000u | COLOR_HIGHLIGHT));
    EXPECT_EQ(static_cast<COLORREF>(surface.BkColor()), GetSysColor(COLOR_HIGHLIGHT));
}

TEST(MemDc, DrawBackColorFillsAllPixelsInPlainAndSystemColours) {
    clsMEMDC surface;
    surface.CreateDC(4, 3, OPAQUE);
    surface.DrawBackColor(RGB(9, 8, 7));
    EXPECT_EQ(PixelsOf(surface.Hdc(), 4, 3), std::vector<COLORREF>(12, RGB(9, 8, 7)));
    surface.DrawBackColor(static_cast<std::int32_t>(0x80000000u | COLOR_HIGHLIGHT));
    EXPECT_EQ(PixelsOf(surface.Hdc(), 4, 3), std::vector<COLORREF>(12, GetSysColor(COLOR_HIGHLIGHT)));
}

TEST(MemDc, CloneFromHdcCopiesAPartAndTheBackgroundMode) {
    clsMEMDC from, to;
    from.CreateDC(8, 6, TRANSPARENT);
    Scatter(from.Hdc(), 8, 6);
    to.CloneFromHdc(from.Hdc(), 2, 1, 3, 4);
    EXPECT_EQ(to.Width(), 3);
    EXPECT_EQ(to.Height(), 4);
    EXPECT_EQ(to.BkMode(), TRANSPARENT);
    EXPECT_EQ(GetPixel(to.Hdc(), 0, 0), ScatteredAt(2, 1));
    EXPECT_EQ(GetPixel(to.Hdc(), 2, 3), ScatteredAt(4, 4));
    from.BkMode(OPAQUE);
    to.CloneFromHdc(from.Hdc(), 0, 0, 1, 1, NOTSRCCOPY);
    EXPECT_EQ(to.BkMode(), OPAQUE);
    EXPECT_EQ(GetPixel(to.Hdc(), 0, 0), ScatteredAt(0, 0) ^ 0xFFFFFF);
}

TEST(MemDc, OneUnknownSizeOfCloneFromHdcTakesTheWholeBitmap) {
    clsMEMDC from, to;
    from.CreateDC(20, 6, OPAQUE);
    Scatter(from.Hdc(), 20, 6);
    to.CloneFromHdc(from.Hdc(), 0, 0, 10, 0);
    EXPECT_EQ(to.Width(), 20);
    EXPECT_EQ(to.Height(), 6);
    EXPECT_EQ(PixelsOf(to.Hdc(), 20, 6), PixelsOf(from.Hdc(), 20, 6));
    to.CloneFromHdc(from.Hdc(), 0, 0, -1, 3);
    EXPECT_EQ(to.Height(), 6);
}

TEST(MemDc, CloneFromHBmpCopiesTheBitmapAndSetsTheBackgroundMode) {
    clsMEMDC from, to;
    from.CreateDC(8, 6, OPAQUE);
    Scatter(from.Hdc(), 8, 6);
    const std::vector<COLORREF> pixels = PixelsOf(from.Hdc(), 8, 6);
    const OwnedBitmap bitmap(from.ReleasehBmp());
    to.CloneFromHBmp(bitmap.Get(), OPAQUE);
    EXPECT_EQ(PixelsOf(to.Hdc(), 8, 6), pixels);
    EXPECT_EQ(to.BkMode(), OPAQUE);
    to.CloneFromHBmp(bitmap.Get(), TRANSPARENT);
    EXPECT_EQ(to.BkMode(), TRANSPARENT);
    EXPECT_NE(GetObjectType(bitmap.Get()), 0u) << "the caller's bitmap stays";
}

TEST(MemDc, CloneFromHBmpOfABitmapThatCannotBeSelectedFails) {
    clsMEMDC surface, other;
    ExpectSurfaceFailure(u"CloneFromhBmp", u"Bitmap not selected", [&] { surface.CloneFromHBmp(nullptr, OPAQUE); });
    other.CreateDC(4, 4, OPAQUE);
    ExpectSurfaceFailure(u"CloneFromhBmp", u"Bitmap not selected",
                         [&] { surface.CloneFromHBmp(other.hBmp(), OPAQUE); });
    EXPECT_EQ(surface.Width(), 4);
    surface.CreateDC(3, 3, OPAQUE);
    EXPECT_EQ(surface.Width(), 3);
}

int g_nDcsLeft;
decltype(&::CreateCompatibleDC) g_createDc;
HDC WINAPI SomeDcs(HDC dc) {
    return g_nDcsLeft-- > 0 ? g_createDc(dc) : nullptr;
}

TEST(MemDc, CloneFromHBmpWithoutASecondDcFails) {
    const OwnedBitmap bitmap(CreateBitmap(2, 2, 1, 32, nullptr));
    const PatchedImport<decltype(::CreateCompatibleDC)> patch("CreateCompatibleDC", SomeDcs);
    g_createDc = patch.Original();
    g_nDcsLeft = 1;
    clsMEMDC surface;
    ExpectSurfaceFailure(u"CloneFromhBmp", u"HDC not created", [&] { surface.CloneFromHBmp(bitmap.Get(), OPAQUE); });
}

TEST(MemDc, EachFailingStepOfCreateDCHasItsMessageAndLeavesASurfaceThatCanBeMadeAgain) {
    clsMEMDC surface;
    {
        const PatchedImport<decltype(::CreateCompatibleDC)> patch("CreateCompatibleDC", testing::NoDc);
        ExpectSurfaceFailure(u"CreateDC", u"HDC not created", [&] { surface.CreateDC(3, 4, OPAQUE); });
        EXPECT_EQ(surface.Hdc(), nullptr);
        EXPECT_EQ(surface.Width(), 3);
    }
    {
        const PatchedImport<decltype(::CreateCompatibleBitmap)> patch("CreateCompatibleBitmap", testing::NoBitmap);
        ExpectSurfaceFailure(u"CreateDC", u"hBmp not created", [&] { surface.CreateDC(3, 4, OPAQUE); });
        EXPECT_NE(surface.Hdc(), nullptr) << "half built";
        EXPECT_EQ(surface.hBmp(), nullptr);
    }
    {
        const PatchedImport<decltype(::SelectObject)> patch("SelectObject", testing::NoSelection);
        ExpectSurfaceFailure(u"CreateDC", u"Bitmap not selected", [&] { surface.CreateDC(3, 4, OPAQUE); });
        EXPECT_NE(surface.hBmp(), nullptr) << "half built";
    }
    surface.CreateDC(3, 4, OPAQUE);
    EXPECT_EQ(GetCurrentObject(surface.Hdc(), OBJ_BITMAP), surface.hBmp());
}

int g_nScreenDcs;
decltype(&::GetDC) g_getDc;
decltype(&::ReleaseDC) g_releaseDc;
HDC WINAPI CountGetDc(HWND window) {
    ++g_nScreenDcs;
    return g_getDc(window);
}
int WINAPI CountReleaseDc(HWND window, HDC dc) {
    --g_nScreenDcs;
    return g_releaseDc(window, dc);
}

TEST(MemDc, TheScreenDcIsReleasedAfterSuccessAndFailure) {
    const PatchedImport<decltype(::GetDC)> getPatch("GetDC", CountGetDc);
    const PatchedImport<decltype(::ReleaseDC)> releasePatch("ReleaseDC", CountReleaseDc);
    g_getDc = getPatch.Original();
    g_releaseDc = releasePatch.Original();
    g_nScreenDcs = 0;
    clsMEMDC surface;
    surface.CreateDC(3, 4, OPAQUE);
    EXPECT_EQ(g_nScreenDcs, 0);
    const PatchedImport<decltype(::CreateCompatibleBitmap)> patch("CreateCompatibleBitmap", testing::NoBitmap);
    EXPECT_THROW(surface.CreateDC(3, 4, OPAQUE), Failure);
    EXPECT_EQ(g_nScreenDcs, 0);
}

TEST(MemDc, ResizeCutDCWithoutASurfaceIsCreateDC) {
    clsMEMDC surface;
    surface.ResizeCutDC(-3, 4, TRANSPARENT);
    EXPECT_EQ(surface.Width(), 1);
    EXPECT_EQ(surface.Height(), 4);
    EXPECT_EQ(surface.BkMode(), TRANSPARENT);
}

TEST(MemDc, ResizeCutDCKeepsTheTopLeftCornerAndTheBackgroundMode) {
    clsMEMDC surface;
    surface.CreateDC(6, 5, TRANSPARENT);
    Scatter(surface.Hdc(), 6, 5);
    surface.ResizeCutDC(9, 8, OPAQUE);
    EXPECT_EQ(surface.Width(), 9);
    EXPECT_EQ(surface.Height(), 8);
    EXPECT_EQ(surface.BkMode(), TRANSPARENT) << "the mode given is not applied";
    clsMEMDC fresh;
    fresh.CreateDC(9, 8, TRANSPARENT);
    for (int y = 0; y < 8; ++y) {
        for (int x = 0; x < 9; ++x) {
            const bool bOld = x < 6 && y < 5;
            EXPECT_EQ(GetPixel(surface.Hdc(), x, y), bOld ? ScatteredAt(x, y) : GetPixel(fresh.Hdc(), x, y));
        }
    }
    surface.ResizeCutDC(2, 0, OPAQUE);
    EXPECT_EQ(surface.Width(), 2);
    EXPECT_EQ(surface.Height(), 8) << "a size below 1 keeps the present one";
    EXPECT_EQ(GetPixel(surface.Hdc(), 1, 4), ScatteredAt(1, 4));
}

TEST(MemDc, ResizeAdaptDCWithoutASurfaceIsCreateDC) {
    clsMEMDC surface;
    surface.ResizeAdaptDC(3, -4, TRANSPARENT);
    EXPECT_EQ(surface.Width(), 3);
    EXPECT_EQ(surface.Height(), 1);
    EXPECT_EQ(surface.BkMode(), TRANSPARENT);
}

TEST(MemDc, ResizeAdaptDCStretchesThePictureAndKeepsTheBackgroundMode) {
    clsMEMDC surface, expected;
    surface.CreateDC(6, 5, TRANSPARENT);
    Scatter(surface.Hdc(), 6, 5);
    expected.CreateDC(9, 10, TRANSPARENT);
    StretchBlt(expected.Hdc(), 0, 0, 9, 10, surface.Hdc(), 0, 0, 6, 5, SRCCOPY);
    surface.ResizeAdaptDC(9, 10, OPAQUE);
    EXPECT_EQ(surface.Width(), 9);
    EXPECT_EQ(surface.Height(), 10);
    EXPECT_EQ(surface.BkMode(), TRANSPARENT);
    EXPECT_EQ(PixelsOf(surface.Hdc(), 9, 10), PixelsOf(expected.Hdc(), 9, 10));
    surface.ResizeAdaptDC(0, -1, OPAQUE);
    EXPECT_EQ(surface.Width(), 9);
    EXPECT_EQ(surface.Height(), 10);
    EXPECT_EQ(PixelsOf(surface.Hdc(), 9, 10), PixelsOf(expected.Hdc(), 9, 10));
}

TEST(MemDc, PaintPictureCopiesEqualSizesAndStretchesOthers) {
    clsMEMDC from, to, expected;
    from.CreateDC(4, 3, OPAQUE);
    Scatter(from.Hdc(), 4, 3);
    for (clsMEMDC* surface : {&to, &expected}) {
        surface->CreateDC(12, 12, OPAQUE);
        surface->DrawBackColor(0);
    }
    from.PaintPicture(to.Hdc(), 5, 6);
    BitBlt(expected.Hdc(), 5, 6, 4, 3, from.Hdc(), 0, 0, SRCCOPY);
    EXPECT_EQ(PixelsOf(to.Hdc(), 12, 12), PixelsOf(expected.Hdc(), 12, 12));
    from.PaintPicture(to.Hdc(), 1, 2, 8, -1, 1, 0, 2, 3, SRCINVERT);
    StretchBlt(expected.Hdc(), 1, 2, 8, 3, from.Hdc(), 1, 0, 2, 3, SRCINVERT);
    EXPECT_EQ(PixelsOf(to.Hdc(), 12, 12), PixelsOf(expected.Hdc(), 12, 12));
}

int g_nBitBlts, g_nStretches;
BOOL WINAPI CountBitBlt(HDC, int, int, int, int, HDC, int, int, DWORD) {
    ++g_nBitBlts;
    return TRUE;
}
BOOL WINAPI CountStretchBlt(HDC, int, int, int, int, HDC, int, int, int, int, DWORD) {
    ++g_nStretches;
    return TRUE;
}

TEST(MemDc, PaintPictureOfEqualSizesIsABitBltAndAnyOtherAStretchBlt) {
    clsMEMDC from;
    from.CreateDC(4, 3, OPAQUE);
    const PatchedImport<decltype(::BitBlt)> bitBlt("BitBlt", CountBitBlt);
    const PatchedImport<decltype(::StretchBlt)> stretchBlt("StretchBlt", CountStretchBlt);
    g_nBitBlts = g_nStretches = 0;
    from.PaintPicture(from.Hdc(), 0, 0, 4, -1, 0, 0, -1, 3);
    EXPECT_EQ(g_nBitBlts, 1);
    from.PaintPicture(from.Hdc(), 0, 0, 4, 4, 0, 0, 4, 3);
    EXPECT_EQ(g_nBitBlts, 1);
    EXPECT_EQ(g_nStretches, 1);
}

TEST(MemDc, ReleasehBmpGivesTheBitmapAwayAndEndsTheSurface) {
    clsMEMDC surface;
    EXPECT_EQ(surface.ReleasehBmp(), nullptr);
    surface.CreateDC(5, 4, OPAQUE);
    HDC dc = surface.Hdc();
    const OwnedBitmap bitmap(surface.ReleasehBmp());
    EXPECT_EQ(BitmapRecordOf(bitmap.Get()).bmWidth, 5);
    EXPECT_EQ(GetObjectType(dc), 0u);
    EXPECT_EQ(surface.Hdc(), nullptr);
    EXPECT_EQ(surface.ReleasehBmp(), nullptr);
}

TEST(MemDc, ReleasehBmpOfAHalfBuiltSurfaceStillDestroysIt) {
    clsMEMDC surface;
    {
        const PatchedImport<decltype(::CreateCompatibleBitmap)> patch("CreateCompatibleBitmap", testing::NoBitmap);
        EXPECT_THROW(surface.CreateDC(3, 4, OPAQUE), Failure);
    }
    HDC dc = surface.Hdc();
    EXPECT_EQ(surface.ReleasehBmp(), nullptr);
    EXPECT_EQ(surface.Hdc(), nullptr);
    EXPECT_EQ(GetObjectType(dc), 0u);
}

TEST(MemDc, PictureReadTwiceYieldsAPictureAndThenNothing) {
    clsMEMDC surface;
    surface.CreateDC(5, 4, OPAQUE);
    HBITMAP bitmap = surface.hBmp();
    {
        const OlePicture picture = surface.Picture();
        EXPECT_EQ(testing::HandleBits(picture.Handle()), testing::HandleBits(bitmap));
        EXPECT_EQ(picture.Type(), OlePicture::kTypeBitmap);
        EXPECT_EQ(surface.Hdc(), nullptr);
        EXPECT_TRUE(surface.Picture().IsEmpty());
    }
    EXPECT_EQ(GetObjectType(bitmap), 0u) << "the picture owned the bitmap";
}

} // namespace
} // namespace orvanta
