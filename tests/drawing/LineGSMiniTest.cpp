#include "drawing/clsLineGSMini.h"

#include "tests/drawing/SurfaceFixture.h"
#include "tests/reference/PlainSmoothLines.h"
#include "tests/support/PatchedImport.h"

#include <functional>
#include <random>

namespace orvanta {
namespace {

using testing::PatchedImport;
using testing::PixelsOf;

reference::PlainSurface PlainOn(HDC dc) {
    return {[dc](int x, int y) { return GetPixel(dc, x, y); },
            [dc](int x, int y, std::uint32_t color) { SetPixelV(dc, x, y, color); }};
}

constexpr int kSize = 60;

// Draws a line, an arc and a circle at random with the class on one section and plainly, by calls, on its twin.
void DrawRandomly(std::mt19937& random, HDC drawn, HDC plain) {
    const auto upTo = [&random](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    const clsLineGSMini lines;
    const int x1 = upTo(80) - 10, y1 = upTo(80) - 10, x2 = upTo(80) - 10, y2 = upTo(80) - 10, max = upTo(256);
    const auto color = static_cast<std::int32_t>(random() & 0xFFFFFF);
    lines.LineGP(drawn, static_cast<std::int16_t>(x1), static_cast<std::int16_t>(y1), static_cast<std::int16_t>(x2),
                 static_cast<std::int16_t>(y2), color, static_cast<std::int16_t>(max));
    reference::PlainLineGP(PlainOn(plain), x1, y1, x2, y2, static_cast<std::uint32_t>(color), max);
    const int rx = upTo(40), ry = upTo(40), thickness = 1 + upTo(2);
    const auto start = static_cast<float>(upTo(360)), stop = static_cast<float>(upTo(360));
    lines.ArcGP(drawn, x1, y1, rx, ry, start, stop, color, thickness);
    reference::PlainArcGP(PlainOn(plain), x1, y1, rx, ry, start, stop, static_cast<std::uint32_t>(color), thickness);
    lines.CircleGP(drawn, x2, y2, rx, ry, color, thickness);
    reference::PlainCircleGP(PlainOn(plain), x2, y2, rx, ry, static_cast<std::uint32_t>(color), thickness);
}

std::vector<std::uint8_t> BytesOf(const clsDIBSection& section) {
    GdiFlush();
    return {section.BitsPtr(), section.BitsPtr() + section.BytesPerScanLine() * section.Height()};
}

TEST(LineGSMini, SectionsOfEveryDepthGetTheBytesThatPixelCallsGive) {
    std::mt19937 random(20240505);
    for (const std::int32_t bpp : {4, 8, 16, 24, 32}) {
        clsDIBSection drawn, plain;
        drawn.CreateDC(kSize, kSize, bpp);
        plain.CreateDC(kSize, kSize, bpp);
        for (int n = 0; n < 40; ++n)
            DrawRandomly(random, drawn.Hdc(), plain.Hdc());
        EXPECT_EQ(BytesOf(drawn), BytesOf(plain)) << bpp << " bits";
    }
}

TEST(LineGSMini, AMemoryDcGetsThePixelsThatPixelCallsGive) {
    std::mt19937 random(20240506);
    clsMEMDC drawn, plain;
    drawn.CreateDC(kSize, kSize, OPAQUE);
    plain.CreateDC(kSize, kSize, OPAQUE);
    for (int n = 0; n < 10; ++n)
        DrawRandomly(random, drawn.Hdc(), plain.Hdc());
    EXPECT_EQ(PixelsOf(drawn.Hdc(), kSize, kSize), PixelsOf(plain.Hdc(), kSize, kSize));
}

TEST(LineGSMini, WhateverChangesTheMeaningOfCoordinatesOnTheDcIsHeeded) {
    const std::function<void(HDC)> changes[] = {
        [](HDC dc) { IntersectClipRect(dc, 10, 12, 40, 33); },
        [](HDC dc) { SetViewportOrgEx(dc, 7, -3, nullptr); },
        [](HDC dc) { SetWindowOrgEx(dc, 4, 9, nullptr); },
        [](HDC dc) {
            SetMapMode(dc, MM_ANISOTROPIC);
            SetWindowExtEx(dc, 1, 1, nullptr);
            SetViewportExtEx(dc, 2, 1, nullptr);
        },
        [](HDC dc) {
            const XFORM half{0.5f, 0, 0, 0.5f, 3, 0};
            SetGraphicsMode(dc, GM_ADVANCED);
            SetWorldTransform(dc, &half);
        },
        [](HDC dc) { SetLayout(dc, LAYOUT_RTL); },
    };
    std::mt19937 random(20240507);
    int nChange = 0;
    for (const auto& change : changes) {
        clsDIBSection drawn, plain;
        for (clsDIBSection* section : {&drawn, &plain}) {
            section->CreateDC(kSize, kSize, 32);
            section->DrawBackColor(RGB(200, 210, 220));
            change(section->Hdc());
        }
        for (int n = 0; n < 20; ++n)
            DrawRandomly(random, drawn.Hdc(), plain.Hdc());
        EXPECT_EQ(BytesOf(drawn), BytesOf(plain)) << "change " << nChange;
        ++nChange;
    }
}

TEST(LineGSMini, AnotherBitmapInTheDcOfASectionIsTheOneDrawnOn) {
    clsDIBSection section;
    section.CreateDC(20, 20, 32);
    const OwnedBitmap other(CreateBitmap(20, 20, 1, 32, nullptr));
    const std::vector<std::uint8_t> before = BytesOf(section);
    {
        const Selection selection(section.Hdc(), other.Get());
        clsLineGSMini().LineGP(section.Hdc(), 2, 2, 15, 9, RGB(1, 200, 3), 255);
        EXPECT_EQ(GetPixel(section.Hdc(), 2, 2), RGB(1, 200, 3));
    }
    EXPECT_EQ(BytesOf(section), before);
}

int g_nGets, g_nSets;
COLORREF WINAPI CountGetPixel(HDC, int, int) {
    ++g_nGets;
    return 0;
}
BOOL WINAPI CountSetPixelV(HDC, int, int, COLORREF) {
    ++g_nSets;
    return TRUE;
}

TEST(LineGSMini, ASectionCostsNoPixelCallAndAnyOtherDcOneReadAndOneWriteForABlendedPixel) {
    const PatchedImport<decltype(::GetPixel)> getPixel("GetPixel", CountGetPixel);
    const PatchedImport<decltype(::SetPixelV)> setPixel("SetPixelV", CountSetPixelV);
    clsDIBSection section;
    section.CreateDC(20, 20, 32);
    clsMEMDC memory;
    memory.CreateDC(20, 20, OPAQUE);
    g_nGets = g_nSets = 0;
    clsLineGSMini().LineGP(section.Hdc(), 2, 5, 11, 5, 0, 200);
    EXPECT_EQ(g_nGets + g_nSets, 0);
    // Ten pixels of a horizontal line with two neighbours each, and two soft ends; the two others have strength 0.
    clsLineGSMini().LineGP(memory.Hdc(), 2, 5, 11, 5, 0, 200);
    EXPECT_EQ(g_nSets, 10 + 20 + 2);
    EXPECT_EQ(g_nGets, 20 + 2);
}

TEST(LineGSMini, ANegativeColourIsASystemColour) {
    clsDIBSection section;
    section.CreateDC(20, 20, 32);
    clsLineGSMini().LineGP(section.Hdc(), 2, 5, 11, 5, static_cast<std::int32_t>(0x80000000u | COLOR_HIGHLIGHT), 0);
    EXPECT_EQ(GetPixel(section.Hdc(), 5, 5), GetSysColor(COLOR_HIGHLIGHT));
}

TEST(LineGSMini, AColourThatNamesAnEntryOfALogicalPaletteIsLeftToThePlatform) {
    for (const std::uint32_t color : {0x01000003u, 0x02406080u}) {
        clsDIBSection drawn, plain;
        for (clsDIBSection* section : {&drawn, &plain}) {
            section->CreateDC(20, 20, 32);
            section->DrawBackColor(RGB(200, 210, 220));
        }
        clsLineGSMini().LineGP(drawn.Hdc(), 2, 5, 11, 9, static_cast<std::int32_t>(color), 200);
        reference::PlainLineGP(PlainOn(plain.Hdc()), 2, 5, 11, 9, color, 200);
        EXPECT_EQ(BytesOf(drawn), BytesOf(plain)) << color;
    }
}

TEST(LineGSMini, ADcOfZeroDrawsNothing) {
    const PatchedImport<decltype(::SetPixelV)> setPixel("SetPixelV", CountSetPixelV);
    g_nSets = 0;
    clsLineGSMini().LineGP(nullptr, 2, 5, 11, 5, 0, 255);
    clsLineGSMini().ArcGP(nullptr, 5, 5, 3, 3, 0, 90, 0, 1);
    clsLineGSMini().CircleGP(nullptr, 5, 5, 3, 3, 0, 1);
    EXPECT_EQ(g_nSets, 0);
}

} // namespace
} // namespace orvanta
