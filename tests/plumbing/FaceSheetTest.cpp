// All faces on one sheet, saved beside the test program for people to look at, and the census of GDI objects.
#include "plumbing/FaceDrawing.h"
#include "plumbing/SharedShapes.h"
#include "plumbing/SharedText.h"
#include "tests/support/GdiCensus.h"
#include "tests/support/PixelCanvas.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdio>
#include <fstream>
#include <string>

namespace orvanta {
namespace {

using testing::PixelCanvas;

void Put(std::ofstream& file, std::uint32_t l, int nBytes) {
    for (int n = 0; n < nBytes; ++n)
        file.put(static_cast<char>(l >> 8 * n & 0xFF));
}

// A bitmap file of 32 bits a pixel, its first row on top.
void Save(const PixelCanvas& canvas, const std::string& sPath) {
    const auto nBytes = static_cast<std::uint32_t>(4 * canvas.Width() * canvas.Height());
    std::ofstream file(sPath, std::ios::binary);
    Put(file, 0x4D42, 2);
    Put(file, 54 + nBytes, 4);
    Put(file, 0, 4);
    Put(file, 54, 4);
    Put(file, 40, 4);
    Put(file, static_cast<std::uint32_t>(canvas.Width()), 4);
    Put(file, static_cast<std::uint32_t>(-canvas.Height()), 4);
    Put(file, 1, 2);
    Put(file, 32, 2);
    for (int n = 0; n < 6; ++n)
        Put(file, 0, 4);
    for (const OleColor c : canvas.Pixels()) {
        Put(file, static_cast<std::uint32_t>(c >> 16 & 0xFF), 1);
        Put(file, static_cast<std::uint32_t>(c >> 8 & 0xFF), 1);
        Put(file, static_cast<std::uint32_t>(c & 0xFF), 1);
        Put(file, 0xFF, 1);
    }
}

// One row for each style; from left to right not pressed and pressed, plain and rounded, with the marks, and on a dark
// and a bright back.
TEST(FaceSheet, IsSavedForPeopleToLookAt) {
    constexpr OleColor kPaper = 0xFFFFFF;
    const PixelCanvas sheet(1160, 9 * 46 + 10, kPaper);
    const OwnedFont font(CreateFontW(-11, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, L"Tahoma"));
    const Selection selection(sheet.Dc(), font.Get());
    SetBkMode(sheet.Dc(), TRANSPARENT);
    for (int style = 0; style <= 8; ++style) {
        const int y = 10 + 46 * style;
        DrawTextColoredAt(sheet.Dc(), std::u16string(1, static_cast<char16_t>(u'0' + style)), 8, y + 8, 30, y + 30, 0,
                          DT_SINGLELINE);
        int x = 30;
        const auto face = [&](OleColor back, bool bPressed, bool bRounded, bool bDefault, bool bCancel, bool bFocus) {
            DrawFace(sheet.Dc(), {x, y, x + 100, y + 36}, back, true, -1, bPressed, bDefault, bCancel, bFocus, bRounded,
                     style, kPaper, true);
            x += 112;
        };
        const OleColor blue = MakeColor(150, 180, 220);
        for (const bool bRounded : {false, true})
            for (const bool bPressed : {false, true})
                face(blue, bPressed, bRounded, false, false, false);
        face(blue, false, true, true, false, true);
        face(blue, false, true, false, true, false);
        face(MakeColor(40, 30, 60), false, true, false, false, false);
        face(MakeColor(40, 30, 60), true, true, false, false, false);
        face(MakeColor(245, 245, 240), false, true, false, false, false);
        face(MakeColor(245, 245, 240), true, true, false, false, false);
    }
    const std::string sPath = FACE_SHEET;
    Save(sheet, sPath);
    std::ifstream saved(sPath, std::ios::binary | std::ios::ate);
    EXPECT_EQ(static_cast<long long>(saved.tellg()), 54LL + 4 * sheet.Width() * sheet.Height());
}

void DrawEverything(HDC dc) {
    for (std::int32_t style = 0; style <= 8; ++style)
        for (const bool bPressed : {false, true})
            DrawFace(dc, {1, 1, 39, 29}, 0xC0B0A0, true, -1, bPressed, !bPressed, bPressed, true, !bPressed, style, -1,
                     true);
    DrawBoxBorder(dc, {1, 1, 39, 29}, 0xC0B0A0, -1, true, -1, false);
    DrawBoxBorder(dc, {1, 1, 39, 29}, 0xC0B0A0, -1, false, -1, true);
    GradientH(dc, 1, 1, 39, 29, 0, 0xFFFFFF);
    DrawRoundRect(dc, 1, 1, 39, 29, true, 0, 0, 0, PS_SOLID, 4);
    std::int32_t w = 0;
    std::int32_t h = 0;
    MeasureTextBlock(dc, u"two\r\nlines", 0, false, false, w, h);
    DrawTextColoredAt(dc, u"caption", 1, 1, 39, 29, 0, DT_SINGLELINE);
    MakeRoundRegion(39, 29, 2);
}

TEST(FaceLeaks, ThousandsOfFacesShapesAndTextsLeaveNoGdiObject) {
    const PixelCanvas canvas(40, 30, 0);
    for (int n = 0; n < 5; ++n)
        DrawEverything(canvas.Dc());
    const testing::GdiCensus before = testing::GdiCensus::Take();
    for (int n = 0; n < 2000; ++n)
        DrawEverything(canvas.Dc());
    EXPECT_EQ(testing::GdiCensus::Take(), before);
}

} // namespace
} // namespace orvanta
