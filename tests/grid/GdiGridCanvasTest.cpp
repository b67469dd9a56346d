#include "grid/GdiGridCanvas.h"

#include "drawing/OleFont.h"
#include "drawing/clsFontHDC.h"
#include "drawing/clsMEMDC.h"
#include "grid/GridMarks.h"
#include "grid/GridPainter.h"
#include "grid/OleGridPicture.h"
#include "plumbing/FaceDrawing.h"
#include "plumbing/SharedText.h"
#include "tests/grid/FakeGrid.h"
#include "tests/support/GdiCensus.h"
#include "tests/support/PixelCanvas.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace orvanta {
namespace {

using testing::FakeGridView;
using testing::FakeLocale;
using testing::PixelCanvas;

constexpr OleColor kGround = 0xF0F0F0;
constexpr OleColor kGridLine = 0x00A000;
constexpr OleColor kHeader = 0xC08000;
constexpr OleColor kInk = 0x0000C0;
constexpr OleColor kRed = 0x0000FF;

// Measures with the font of a device context.
class DcGridView : public FakeGridView {
public:
    explicit DcGridView(HDC hdc) : m_hdc(hdc) {}
    void MeasureTextLine(std::u16string_view s, std::int32_t& w, std::int32_t& h) override {
        orvanta::MeasureTextLine(m_hdc, s, DT_NOPREFIX, w, h);
    }
    void MeasureTextBlock(std::u16string_view s, bool bKeepWidth, std::int32_t& w, std::int32_t& h) override {
        orvanta::MeasureTextBlock(m_hdc, s, DT_NOPREFIX, bKeepWidth, false, w, h);
    }

private:
    HDC m_hdc;
};

class GdiGridCanvasTest : public ::testing::Test {
protected:
    static constexpr std::int32_t kWidth = 300;
    static constexpr std::int32_t kHeight = 120;

    PixelCanvas host{320, 124, 0};
    PixelCanvas surface{kWidth, kHeight, 0};
    OleFont font = OleFont::Create(u"Tahoma", 8);
    clsFontHDC selected;
    DcGridView view{surface.Dc()};
    FakeLocale locale;
    std::unique_ptr<GridModel> grid = std::make_unique<GridModel>(view, locale);

    void SetUp() override {
        SetBkMode(surface.Dc(), TRANSPARENT);
        selected.SetFontToDCStdFont(surface.Dc(), font, -1, 0, 0, false);
        view.lWidth = kWidth;
        view.lHeight = kHeight;
        grid->InitRuntime();
        grid->BackColor(kGround);
        grid->ForeColor(kInk);
        grid->CellsBorderColor(kGridLine);
        grid->HeaderBackColor(kHeader);
        grid->HeaderForeColor(0);
        grid->HeaderStyle(0);
    }
    GdiGridCanvas Canvas() { return {{host.Dc(), host.Width(), host.Height()}, {surface.Dc(), kWidth, kHeight}, font}; }
    void Paint() {
        GdiGridCanvas canvas = Canvas();
        EXPECT_TRUE(GridPainter(*grid, canvas).Paint(true, kWidth, kHeight));
    }
    // A bitmap of one colour.
    static OlePicture Plain(std::int32_t width, std::int32_t height, OleColor c) {
        clsMEMDC image;
        image.CreateDC(width, height, TRANSPARENT);
        image.DrawBackColor(c);
        return image.Picture();
    }
    int Count(const PixelRect& rect, OleColor c) const {
        int n = 0;
        for (int y = rect.top; y < rect.bottom; ++y)
            for (int x = rect.left; x < rect.right; ++x)
                n += surface.At(x, y) == c ? 1 : 0;
        return n;
    }
    // The smallest rectangle around the pixels of a colour.
    PixelRect BoxOf(const PixelRect& within, OleColor c) const {
        PixelRect box{within.right, within.bottom, within.left, within.top};
        for (int y = within.top; y < within.bottom; ++y) {
            for (int x = within.left; x < within.right; ++x) {
                if (surface.At(x, y) != c) continue;
                box = {std::min(box.left, x), std::min(box.top, y), std::max(box.right, x + 1),
                       std::max(box.bottom, y + 1)};
            }
        }
        return box;
    }
};

TEST_F(GdiGridCanvasTest, TheControlIsWhiteInsideItsFrame) {
    grid->BorderColor(0x123456);
    Paint();
    EXPECT_EQ(host.At(0, 0), 0x123456);
    EXPECT_EQ(host.At(319, 123), 0x123456);
    EXPECT_EQ(host.At(1, 1), kGround); // the line inside the frame has the colour of the grid
    EXPECT_EQ(host.At(2, 2), 0xFFFFFF);
    EXPECT_EQ(surface.At(150, 60), kGround);
}

TEST_F(GdiGridCanvasTest, NeighboursShareOneLine) {
    grid->AddColumn(u"", 50);
    grid->AddColumn(u"", 40);
    grid->Rows(2);
    Paint();
    const std::int32_t h = grid->Layout().RowHeight();
    for (const std::int32_t x : {0, 49, 88})
        EXPECT_EQ(surface.At(x, h + 5), kGridLine) << x;
    for (const std::int32_t x : {1, 48, 50, 87, 89})
        EXPECT_EQ(surface.At(x, h + 5), kGround) << x;
    for (const std::int32_t y : {h - 1, 2 * h - 2, 3 * h - 3})
        EXPECT_EQ(surface.At(20, y), kGridLine) << y;
    for (const std::int32_t y : {h, 2 * h - 3, 2 * h - 1, 3 * h - 2})
        EXPECT_EQ(surface.At(20, y), kGround) << y;
    EXPECT_EQ(surface.At(20, 5), kHeader);
}

TEST_F(GdiGridCanvasTest, TheHeaderIsAFaceOfItsStyle) {
    grid->HeaderStyle(3);
    grid->AddColumn(u"", 50);
    Paint();
    PixelCanvas plain(50, grid->Layout().RowHeight(), 0);
    DrawFace(plain.Dc(), {0, 0, 50, grid->Layout().RowHeight()}, kHeader, false, -1, false, false, false, false, false,
             3, -1, true);
    for (int y = 1; y < grid->Layout().RowHeight() - 1; ++y)
        EXPECT_EQ(surface.At(20, y), plain.At(20, y)) << y;
}

TEST_F(GdiGridCanvasTest, TextStandsWhereItsAlignmentSays) {
    grid->AddColumn(u"", 80);
    grid->AddRow(u"text");
    std::int32_t w = 0;
    std::int32_t h = 0;
    view.MeasureTextLine(u"text", w, h);
    const std::int32_t lRow = grid->Layout().RowHeight();
    const PixelRect cell{0, lRow - 1, 80, 2 * lRow - 1};
    for (const std::int32_t iAlign : {0, 1, 2}) {
        grid->ColAlign(std::int32_t{1}, iAlign);
        Paint();
        const PixelRect box = BoxOf(cell, kInk);
        const std::int32_t lLeft = iAlign == 0 ? 4 : iAlign == 1 ? 74 - w : 4 + (70 - w) / 2;
        EXPECT_GE(box.left, lLeft) << iAlign;
        EXPECT_LE(box.left, lLeft + 2) << iAlign;
        EXPECT_LE(box.right, lLeft + w) << iAlign;
        EXPECT_GE(box.top, cell.top + 3) << iAlign;
        EXPECT_LE(box.bottom, cell.bottom - 3) << iAlign;
    }
}

TEST_F(GdiGridCanvasTest, MarksAreBlackWhereTheyAreDrawnAndLeaveTheirRedOut) {
    grid->AddColumn(u"", 40, 0, u"f", true, 2, true, false, false, 2);
    grid->AddRow(u"True");
    grid->AddRow(u"False");
    grid->SortByColum(u"f", true);
    Paint();
    const std::int32_t h = grid->Layout().RowHeight();
    const PixelRect arrow = BoxOf({20, 1, 39, h - 1}, 0);
    EXPECT_EQ(arrow.Width(), 7);
    EXPECT_EQ(arrow.Height(), 4);
    EXPECT_EQ(Count(arrow, 0), 16);
    EXPECT_EQ(Count({arrow.left, arrow.top, arrow.right, arrow.top + 1}, 0), 7); // down is wide at the top
    const PixelRect flag = BoxOf({1, h, 39, 2 * h - 2}, 0xFFFFFF);
    EXPECT_EQ(flag, (PixelRect{4 + (30 - 7) / 2, h - 1 + (h - 7) / 2, 4 + (30 - 7) / 2 + 7, h - 1 + (h - 7) / 2 + 7}));
    EXPECT_GT(Count(flag, 0), 0);
    EXPECT_EQ(Count({0, 0, 40, 3 * h}, kRed), 0);
    EXPECT_EQ(Count({1, 2 * h - 1, 39, 3 * h - 3}, kGround), 38 * (h - 2)); // false shows nothing
    grid->SortByColum(u"f", false);
    Paint();
    EXPECT_EQ(Count({arrow.left, arrow.top, arrow.right, arrow.top + 1}, 0), 1);
}

TEST_F(GdiGridCanvasTest, APictureIsCentredCutAndGreyed) {
    grid->AddColumn(u"", 40);
    grid->Rows(2);
    const std::int32_t h = grid->Layout().RowHeight();
    grid->SetCellPicture(1, std::int32_t{1}, GridPictureOf(Plain(10, 6, 0x00FF00), 96, 96), false);
    grid->SetCellPicture(2, std::int32_t{1}, GridPictureOf(Plain(200, 200, 0), 96, 96), false, true);
    Paint();
    const PixelRect first = BoxOf({1, h, 39, 2 * h - 2}, 0x00FF00);
    EXPECT_EQ(first.Width(), 10);
    EXPECT_EQ(first.Height(), 6);
    EXPECT_EQ(first.left, 2 + (36 - 10) / 2);
    const PixelRect second = BoxOf({0, 2 * h - 1, 40, 3 * h}, MakeColor(134, 134, 134));
    EXPECT_EQ(second.Width(), 36);     // the cell without two pixels at each side
    EXPECT_EQ(second.Height(), h - 6); // less padding at most
}

TEST_F(GdiGridCanvasTest, APicturesSizeInPixelsComesFromHundredthsOfAMillimetre) {
    const GridPictureRef picture = GridPictureOf(Plain(40, 16, 0), 96, 96);
    EXPECT_EQ(picture->Width(), 40);
    EXPECT_EQ(picture->Height(), 16);
    EXPECT_EQ(GridPictureOf(Plain(40, 16, 0), 192, 96)->Width(), 80);
    EXPECT_EQ(GridPictureOf(OlePicture(), 96, 96), nullptr);
    EXPECT_TRUE(OlePictureOf(nullptr).IsEmpty());
    EXPECT_TRUE(OlePictureOf(testing::MakePicture(3, 3)).IsEmpty());
    EXPECT_FALSE(OlePictureOf(picture).IsEmpty());
}

TEST_F(GdiGridCanvasTest, ARowUnderTheHeaderIsCutByItsLine) {
    grid->AllowMultiLineText(true);
    grid->AddColumn(u"H", 80);
    for (int n = 0; n < 20; ++n)
        grid->AddRow(u"one\r\ntwo");
    Paint();
    const std::int32_t h = grid->Layout().RowHeight();
    std::vector<OleColor> header;
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < 80; ++x)
            header.push_back(surface.At(x, y));
    grid->Layout().VScroll_Value(9);
    Paint();
    std::size_t n = 0;
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < 80; ++x)
            ASSERT_EQ(surface.At(x, y), header[n++]) << x << " " << y;
    // The line below the first row is at its full height, less what is scrolled away, under the header's last line.
    const std::int32_t lLine = h + grid->CellHeight(1, std::int32_t{1}) - 1 - 9 - 1;
    EXPECT_EQ(surface.At(70, lLine), kGridLine);
    EXPECT_EQ(surface.At(70, lLine - 2), kGround);
}

TEST_F(GdiGridCanvasTest, PaintingLeavesNothingBehind) {
    grid->AddColumn(u"A", -1, 0, u"a", true, 2, true);
    grid->AddColumn(u"F", 40, 0, u"f", true, 2, true, false, false, 2);
    grid->AddRow(u"text\tTrue", true);
    grid->AddRow(u"more\tFalse");
    grid->SetCellPicture(1, u"a", GridPictureOf(Plain(10, 6, 0x00FF00), 96, 96));
    grid->SortByColum(u"a", true);
    const auto round = [&] {
        for (const bool bManyLines : {false, true}) {
            grid->AllowMultiLineText(bManyLines);
            Paint();
        }
    };
    for (int n = 0; n < 5; ++n)
        round();
    const auto before = testing::GdiCensus::Take();
    for (int n = 0; n < 20; ++n)
        round();
    EXPECT_EQ(testing::GdiCensus::Take(), before);
}

} // namespace
} // namespace orvanta
