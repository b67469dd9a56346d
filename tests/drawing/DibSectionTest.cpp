#include "drawing/clsDIBSection.h"

#include "tests/drawing/SurfaceFixture.h"
#include "tests/support/PatchedImport.h"

#include <tuple>

namespace orvanta {
namespace {

using testing::ExpectFailure;
using testing::ExpectSurfaceFailure;
using testing::PatchedImport;
using testing::PixelsOf;
using testing::Scatter;
using testing::ScatteredAt;

std::int32_t CountAfterCreate(std::int32_t Bpp, PaletteReference& cPal) {
    clsDIBSection section;
    section.CreateDC(4, 4, Bpp, cPal);
    return cPal ? cPal->Count() : 0;
}

// A bitmap of its own, selected nowhere.
OwnedBitmap BitmapOfDepth(std::int32_t Bpp, int width, int height) {
    clsDIBSection section;
    section.CreateDC(width, height, Bpp);
    Scatter(section.Hdc(), width, height);
    return OwnedBitmap(section.ReleasehDib());
}

TEST(DibSection, HasNothingBeforeCreateDC) {
    clsDIBSection section;
    EXPECT_EQ(section.Hdc(), nullptr);
    EXPECT_EQ(section.hDib(), nullptr);
    EXPECT_EQ(section.BitsPtr(), nullptr);
    EXPECT_EQ(section.Width(), 0);
    EXPECT_EQ(section.Bpp(), 0);
    EXPECT_EQ(section.BkMode(), 0);
    EXPECT_EQ(section.BkColor(), 0);
    EXPECT_EQ(section.Palette(), nullptr);
    EXPECT_TRUE(section.Picture().IsEmpty());
    section.Destroy();
}

TEST(DibSection, CreateDCGivesReachableBytesBottomUp) {
    clsDIBSection section;
    section.CreateDC(3, 2, 32);
    EXPECT_EQ(GetStretchBltMode(section.Hdc()), COLORONCOLOR);
    EXPECT_EQ(clsDIBSection::OfHdc(section.Hdc()), &section);
    SetPixelV(section.Hdc(), 1, 0, RGB(10, 20, 30));
    SetPixelV(section.Hdc(), 0, 1, RGB(1, 2, 3));
    GdiFlush();
    ASSERT_NE(section.BitsPtr(), nullptr);
    EXPECT_EQ(section.BitsPtr()[0], 3); // the bottom row first, blue first
    EXPECT_EQ(section.BitsPtr()[2], 1);
    EXPECT_EQ(section.BitsPtr()[12 + 4], 30);
    EXPECT_EQ(section.BitsPtr()[12 + 6], 10);
    EXPECT_EQ(section.Pixels().Row(1), section.BitsPtr() + 12);
}

TEST(DibSection, ANegativeSizeBecomesTwoNotOne) {
    clsDIBSection section;
    section.CreateDC(-5, -1, 24);
    EXPECT_EQ(section.Width(), 2);
    EXPECT_EQ(section.Height(), 2);
}

TEST(DibSection, ZeroStaysZeroAndCannotBeCreated) {
    clsDIBSection section;
    ExpectSurfaceFailure(u"CreateDC", u"hDib not created", [&] { section.CreateDC(0, 0, 24); });
    EXPECT_EQ(section.Width(), 0);
    EXPECT_EQ(section.Height(), 0);
    EXPECT_NE(section.Hdc(), nullptr) << "half built";
    section.Destroy();
    EXPECT_EQ(section.Hdc(), nullptr);
}

TEST(DibSection, ScanLinesAreWholeWords) {
    struct Row {
        std::int32_t width, bpp, bytes;
    };
    for (const Row& row : {Row{3, 24, 12},
                           {1, 24, 4},
                           {4, 24, 12},
                           {5, 24, 16},
                           {3, 32, 12},
                           {1, 1, 4},
                           {32, 1, 4},
                           {33, 1, 8},
                           {9, 4, 8},
                           {8, 4, 4},
                           {5, 8, 8},
                           {3, 16, 8}}) {
        clsDIBSection section;
        section.CreateDC(row.width, 1, row.bpp);
        EXPECT_EQ(section.BytesPerScanLine(), row.bytes) << row.width << " pixels of " << row.bpp << " bits";
        EXPECT_EQ(BitmapRecordOf(section.hDib()).bmWidthBytes, row.bytes);
    }
    EXPECT_EQ(clsDIBSection().BytesPerScanLine(), 0);
}

TEST(DibSection, TooManyBytesRaiseOverflow) {
    clsDIBSection section;
    for (const auto& [width, height] : {std::pair{0x20000000, 1}, {0x10000, 0x10000}}) {
        try {
            section.CreateDC(width, height, 32);
            ADD_FAILURE() << "no failure";
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.Number(), 6u);
        }
    }
    section.CreateDC(1, 1, 32);
    EXPECT_EQ(section.Width(), 1);
}

TEST(DibSection, TheHeaderOfTheBitmapIsAsAskedFor) {
    clsDIBSection section;
    section.CreateDC(5, 7, 24);
    DIBSECTION record{};
    ASSERT_NE(GetObjectW(section.hDib(), sizeof record, &record), 0);
    EXPECT_EQ(record.dsBmih.biWidth, 5);
    EXPECT_EQ(record.dsBmih.biHeight, 7);
    EXPECT_EQ(record.dsBmih.biPlanes, 1);
    EXPECT_EQ(record.dsBmih.biBitCount, 24);
    EXPECT_EQ(record.dsBmih.biCompression, static_cast<DWORD>(BI_RGB));
    EXPECT_EQ(record.dsBmih.biSizeImage, 16u * 7);
}

TEST(DibSection, APaletteThatCreateDCMakesIsHandedBack) {
    PaletteReference mono, sixteen, halfTone, none;
    EXPECT_EQ(CountAfterCreate(1, mono), 2);
    EXPECT_EQ(CountAfterCreate(4, sixteen), 16);
    EXPECT_EQ(CountAfterCreate(8, halfTone), 125);
    EXPECT_EQ(CountAfterCreate(24, none), 0);
    EXPECT_EQ(none, nullptr);
    EXPECT_EQ(mono->Red(2), 255);
    EXPECT_EQ(sixteen->Red(2), 128);
    EXPECT_EQ(halfTone->Red(2), 64);
}

TEST(DibSection, AGivenPaletteIsUsedAndKept) {
    auto cPal = std::make_shared<clsPalette>();
    cPal->Add(10, 20, 30);
    cPal->Add(40, 50, 60);
    cPal->Add(70, 80, 90);
    PaletteReference same = cPal;
    clsDIBSection section;
    section.CreateDC(4, 4, 4, cPal);
    EXPECT_EQ(cPal, same);
    RGBQUAD colors[16]{};
    ASSERT_EQ(GetDIBColorTable(section.Hdc(), 0, 16, colors), 16u);
    EXPECT_EQ(colors[2].rgbRed, 70);
    EXPECT_EQ(colors[2].rgbBlue, 90);
    EXPECT_EQ(colors[3].rgbRed, 0);
}

TEST(DibSection, EntriesBeyondAPaletteStayAsTheyWere) {
    clsDIBSection section;
    PaletteReference sixteen;
    section.CreateDC(4, 4, 4, sixteen);
    auto one = std::make_shared<clsPalette>();
    one->Add(1, 2, 3);
    section.CreateDC(4, 4, 4, one);
    const PaletteReference table = section.Palette();
    ASSERT_EQ(table->Count(), 16);
    EXPECT_EQ(table->Green(1), 2);
    EXPECT_EQ(table->Red(2), 128) << "left by the palette before";
    EXPECT_EQ(table->Red(16), 255);
}

TEST(DibSection, EachDepthWithAColourTableKeepsASizeAndATableOfItsOwn) {
    auto one = std::make_shared<clsPalette>();
    one->Add(1, 2, 3);
    clsDIBSection section;
    section.CreateDC(5, 7, 1);
    section.CreateDC(6, 8, 4);
    section.CreateDC(7, 9, 8);
    section.CreateDC(8, 10, 24);
    for (const auto& [bpp, width, red] : {std::tuple{1, 5, 255}, {4, 6, 128}, {8, 7, 64}}) {
        const PatchedImport<decltype(::CreateCompatibleDC)> patch("CreateCompatibleDC", testing::NoDc);
        // The depth is stored first, the size only when there is a DC.
        EXPECT_THROW(section.CreateDC(2, 2, bpp, one), Failure);
        EXPECT_EQ(section.Width(), width);
        EXPECT_EQ(section.Height(), width + 2);
        EXPECT_EQ(section.Palette()->Red(2), red);
    }
    EXPECT_THROW(section.CreateDC(0, 0, 32), Failure);
    section.CreateDC(2, 2, 4, one);
    EXPECT_EQ(section.Palette()->Red(1), 1);
    EXPECT_EQ(section.Palette()->Red(2), 128) << "not that of 8 bits, made last";
}

TEST(DibSection, APaletteThatIsTooLongIsCut) {
    auto cPal = std::make_shared<clsPalette>();
    cPal->CreateWebSafe256();
    clsDIBSection section;
    PaletteReference given = cPal;
    section.CreateDC(4, 4, 1, given);
    EXPECT_EQ(section.Palette()->Count(), 2);
    EXPECT_EQ(section.Palette()->Red(2), 128);
    section.CreateDC(4, 4, 8, given);
    EXPECT_EQ(section.Palette()->Count(), 256);
    EXPECT_EQ(section.Palette()->Red(255), 255);
}

TEST(DibSection, PaletteHasAllEntriesOfTheTableAndIsEmptyForDepthsWithoutOne) {
    clsDIBSection section;
    for (const auto& [bpp, count] : {std::pair{1, 2}, {4, 16}, {8, 256}}) {
        section.CreateDC(2, 2, bpp);
        ASSERT_NE(section.Palette(), nullptr);
        EXPECT_EQ(section.Palette()->Count(), count);
    }
    for (const int bpp : {16, 24, 32}) {
        section.CreateDC(2, 2, bpp);
        EXPECT_EQ(section.Palette(), nullptr);
    }
}

TEST(DibSection, DestroyReleasesEverythingAndKeepsTheSize) {
    clsDIBSection section;
    section.CreateDC(7, 5, 8);
    HDC dc = section.Hdc();
    HBITMAP bitmap = section.hDib();
    section.Destroy();
    EXPECT_EQ(GetObjectType(dc), 0u);
    EXPECT_EQ(GetObjectType(bitmap), 0u);
    EXPECT_EQ(section.Hdc(), nullptr);
    EXPECT_EQ(section.BitsPtr(), nullptr);
    EXPECT_EQ(section.Width(), 7);
    EXPECT_EQ(section.Height(), 5);
    EXPECT_EQ(section.Bpp(), 8);
    EXPECT_EQ(clsDIBSection::OfHdc(dc), nullptr);
}

TEST(DibSection, EachFailingStepOfCreateDCBearsTheNameOfTheOtherClass) {
    clsDIBSection section;
    {
        const PatchedImport<decltype(::CreateCompatibleDC)> patch("CreateCompatibleDC", testing::NoDc);
        ExpectSurfaceFailure(u"CreateDC", u"HDC not created", [&] { section.CreateDC(3, 4, 32); });
    }
    ExpectSurfaceFailure(u"CreateDC", u"hDib not created", [&] { section.CreateDC(3, 4, 7); });
    {
        const PatchedImport<decltype(::SelectObject)> patch("SelectObject", testing::NoSelection);
        ExpectSurfaceFailure(u"CreateDC", u"DIB not selected", [&] { section.CreateDC(3, 4, 32); });
    }
    section.CreateDC(3, 4, 32);
    EXPECT_EQ(section.Width(), 3);
}

TEST(DibSection, CloneFromHBmpWithADepthBelow24NeedsAPalette) {
    const OwnedBitmap bitmap = BitmapOfDepth(32, 5, 4);
    clsDIBSection section;
    section.CreateDC(2, 2, 32);
    for (const std::int32_t bpp : {1, 4, 8, 16, 23}) {
        ExpectFailure(u"clsDIBSection", u"Palette is required!", [&] { section.CloneFromHBmp(bitmap.Get(), bpp); });
        ExpectFailure(u"clsDIBSection", u"Palette is required!", [&] { section.CloneFromHdc(nullptr, bpp); });
    }
    EXPECT_NE(section.Hdc(), nullptr) << "the surface before stays";
    auto cPal = std::make_shared<clsPalette>();
    cPal->CreateMono2();
    section.CloneFromHBmp(bitmap.Get(), 8, cPal);
    EXPECT_EQ(section.Bpp(), 8);
}

TEST(DibSection, CloneFromHBmpOfDepthMinusOneOnAnEightBitBitmapMakesAHalfTonePalette) {
    const OwnedBitmap bitmap = BitmapOfDepth(8, 5, 4);
    clsDIBSection section;
    PaletteReference made;
    section.CloneFromHBmp(bitmap.Get(), -1, made);
    EXPECT_EQ(section.Bpp(), 8);
    ASSERT_NE(made, nullptr);
    EXPECT_EQ(made->Count(), 125);
    EXPECT_EQ(section.Palette()->Count(), 256);
}

TEST(DibSection, CloneFromHBmpCopiesThePicture) {
    for (const std::int32_t bpp : {24, 32}) {
        const OwnedBitmap bitmap = BitmapOfDepth(bpp, 5, 4);
        for (const std::int32_t wanted : {-1, 24, 32}) {
            clsDIBSection section;
            section.CloneFromHBmp(bitmap.Get(), wanted);
            EXPECT_EQ(section.Bpp(), wanted == -1 ? bpp : wanted);
            EXPECT_EQ(section.Width(), 5);
            EXPECT_EQ(section.Height(), 4);
            EXPECT_EQ(GetPixel(section.Hdc(), 3, 2), ScatteredAt(3, 2));
        }
    }
}

TEST(DibSection, CloneFromHBmpOfABitmapThatIsSelectedElsewhereFails) {
    clsDIBSection other, section;
    other.CreateDC(4, 4, 32);
    ExpectSurfaceFailure(u"CloneFromhBmp", u"Bitmap not selected", [&] { section.CloneFromHBmp(other.hDib(), 32); });
}

TEST(DibSection, CloneFromHdcCopiesAPart) {
    clsMEMDC from;
    from.CreateDC(8, 6, OPAQUE);
    Scatter(from.Hdc(), 8, 6);
    clsDIBSection to;
    to.CloneFromHdc(from.Hdc(), 24, 2, 1, 3, 4);
    EXPECT_EQ(to.Bpp(), 24);
    EXPECT_EQ(to.Width(), 3);
    EXPECT_EQ(to.Height(), 4);
    EXPECT_EQ(GetPixel(to.Hdc(), 2, 3), ScatteredAt(4, 4));
    to.CloneFromHdc(from.Hdc(), 32, 0, 0, 1, 1, NOTSRCCOPY);
    EXPECT_EQ(GetPixel(to.Hdc(), 0, 0), ScatteredAt(0, 0) ^ 0xFFFFFF);
}

TEST(DibSection, CloneFromHdcTakesUnknownSizesAndDepthFromTheBitmapOfTheDc) {
    clsDIBSection from, to;
    from.CreateDC(20, 6, 24);
    Scatter(from.Hdc(), 20, 6);
    to.CloneFromHdc(from.Hdc(), 32, 0, 0, 10, 0);
    EXPECT_EQ(to.Width(), 20) << "one unknown size discards the other";
    EXPECT_EQ(to.Height(), 6);
    EXPECT_EQ(to.Bpp(), 32);
    to.CloneFromHdc(from.Hdc(), -1, 1, 1, 2, 3);
    EXPECT_EQ(to.Width(), 2);
    EXPECT_EQ(to.Height(), 3);
    EXPECT_EQ(to.Bpp(), 24);
    EXPECT_EQ(GetPixel(to.Hdc(), 0, 0), ScatteredAt(1, 1));
}

TEST(DibSection, CloneFromHdcUsesAGivenPaletteAndHandsBackOneThatItMakes) {
    clsDIBSection from, to;
    from.CreateDC(3, 2, 8);
    from.DrawBackColor(RGB(192, 64, 0));
    PaletteReference made;
    to.CloneFromHdc(from.Hdc(), -1, made);
    EXPECT_EQ(to.Bpp(), 8);
    ASSERT_NE(made, nullptr);
    EXPECT_EQ(made->Count(), 125);
    EXPECT_EQ(PixelsOf(to.Hdc(), 3, 2), std::vector<COLORREF>(6, RGB(192, 64, 0)));
    auto cPal = std::make_shared<clsPalette>();
    cPal->Add(0, 0, 0);
    cPal->Add(200, 60, 10);
    to.CloneFromHdc(from.Hdc(), 4, cPal, 1, 1, 2, 1);
    EXPECT_EQ(to.Bpp(), 4);
    EXPECT_EQ(cPal->Count(), 2);
    EXPECT_EQ(PixelsOf(to.Hdc(), 2, 1), std::vector<COLORREF>(2, RGB(200, 60, 10))) << "the nearest entry";
}

TEST(DibSection, CloneFromDibTakesDepthAndPaletteOrConverts) {
    auto cPal = std::make_shared<clsPalette>();
    cPal->Add(0, 0, 0);
    cPal->Add(200, 100, 50);
    clsDIBSection from, to;
    from.CreateDC(3, 2, 8, cPal);
    from.DrawBackColor(RGB(200, 100, 50));
    to.CloneFromDib(from);
    EXPECT_EQ(to.Bpp(), 8);
    EXPECT_EQ(to.Palette()->Green(2), 100);
    EXPECT_EQ(PixelsOf(to.Hdc(), 3, 2), std::vector<COLORREF>(6, RGB(200, 100, 50)));
    to.CloneFromDib(from, 24);
    EXPECT_EQ(to.Bpp(), 24);
    EXPECT_EQ(PixelsOf(to.Hdc(), 3, 2), std::vector<COLORREF>(6, RGB(200, 100, 50)));
    clsDIBSection eight;
    eight.CloneFromDib(to, 8);
    EXPECT_EQ(eight.Palette()->Red(2), 64) << "no palette is needed: without one the half-tone palette is made";
}

TEST(DibSection, PaintPictureCopiesOrStretches) {
    clsDIBSection from, to, expected;
    from.CreateDC(4, 3, 32);
    Scatter(from.Hdc(), 4, 3);
    to.CreateDC(12, 12, 32);
    expected.CreateDC(12, 12, 32);
    from.PaintPicture(to.Hdc(), 5, 6);
    BitBlt(expected.Hdc(), 5, 6, 4, 3, from.Hdc(), 0, 0, SRCCOPY);
    from.PaintPicture(to.Hdc(), 1, 2, 8, -1, 1, 0, 2, 3, SRCINVERT);
    StretchBlt(expected.Hdc(), 1, 2, 8, 3, from.Hdc(), 1, 0, 2, 3, SRCINVERT);
    EXPECT_EQ(PixelsOf(to.Hdc(), 12, 12), PixelsOf(expected.Hdc(), 12, 12));
}

TEST(DibSection, BackgroundModeAndColourBelongToTheDc) {
    clsDIBSection section;
    section.CreateDC(3, 3, 32);
    section.BkMode(TRANSPARENT);
    EXPECT_EQ(section.BkMode(), TRANSPARENT);
    section.BkColor(static_cast<std::int32_t>(0x80000000u | COLOR_HIGHLIGHT));
    EXPECT_EQ(static_cast<COLORREF>(section.BkColor()), GetSysColor(COLOR_HIGHLIGHT));
    section.DrawBackColor(RGB(4, 5, 6));
    EXPECT_EQ(PixelsOf(section.Hdc(), 3, 3), std::vector<COLORREF>(9, RGB(4, 5, 6)));
}

TEST(DibSection, ReleasehDibGivesTheBitmapAwayAndEndsTheSurface) {
    clsDIBSection section;
    EXPECT_EQ(section.ReleasehDib(), nullptr);
    section.CreateDC(5, 4, 24);
    HDC dc = section.Hdc();
    const OwnedBitmap bitmap(section.ReleasehDib());
    EXPECT_EQ(BitmapRecordOf(bitmap.Get()).bmWidth, 5);
    EXPECT_EQ(section.Hdc(), nullptr);
    EXPECT_EQ(section.BitsPtr(), nullptr);
    EXPECT_EQ(clsDIBSection::OfHdc(dc), nullptr);
    EXPECT_EQ(section.ReleasehDib(), nullptr);
}

TEST(DibSection, PictureReadTwiceYieldsAPictureAndThenNothing) {
    clsDIBSection section;
    section.CreateDC(5, 4, 24);
    HBITMAP bitmap = section.hDib();
    {
        const OlePicture picture = section.Picture();
        EXPECT_EQ(testing::HandleBits(picture.Handle()), testing::HandleBits(bitmap));
        EXPECT_EQ(picture.Type(), OlePicture::kTypeBitmap);
        EXPECT_TRUE(section.Picture().IsEmpty());
    }
    EXPECT_EQ(GetObjectType(bitmap), 0u);
}

} // namespace
} // namespace orvanta
