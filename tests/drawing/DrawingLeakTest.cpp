// After a warm-up, thousands of rounds of every class leave as many GDI objects as before.
#include "drawing/clsFontHDC.h"
#include "drawing/clsGdiHandle.h"
#include "drawing/clsLineGSMini.h"
#include "drawing/modCtlCommon_alphaImg.h"

#include "tests/drawing/SurfaceFixture.h"
#include "tests/support/GdiCensus.h"

#include <functional>

namespace orvanta {
namespace {

void ExpectNoGrowth(const std::function<void()>& round) {
    for (int n = 0; n < 5; ++n)
        round();
    const testing::GdiCensus before = testing::GdiCensus::Take();
    for (int n = 0; n < 3000; ++n)
        round();
    const testing::GdiCensus after = testing::GdiCensus::Take();
    for (std::size_t type = 0; type < before.count.size(); ++type)
        EXPECT_EQ(after.count[type], before.count[type]) << "objects of type " << type;
}

OlePicture Icon() {
    const BYTE bits[32] = {0xF0};
    return OlePicture::OfIcon(CreateIcon(nullptr, 8, 8, 1, 1, bits, bits));
}

TEST(DrawingLeaks, TheCensusSeesAnObjectThatIsLeftBehind) {
    const testing::GdiCensus before = testing::GdiCensus::Take();
    const OwnedBrush brush(CreateSolidBrush(1));
    EXPECT_NE(testing::GdiCensus::Take(), before);
}

TEST(DrawingLeaks, MemDc) {
    const OwnedBitmap bitmap(CreateBitmap(4, 4, 1, 32, nullptr));
    ExpectNoGrowth([&] {
        clsMEMDC surface, other;
        surface.CreateDC(8, 8, OPAQUE);
        surface.CreateDC(9, 7, OPAQUE);
        surface.ResizeCutDC(12, 5, OPAQUE);
        surface.ResizeAdaptDC(6, 6, OPAQUE);
        surface.DrawBackColor(1);
        other.CloneFromHdc(surface.Hdc());
        other.CloneFromHBmp(bitmap.Get(), OPAQUE);
        other.PaintPicture(surface.Hdc(), 0, 0);
        DeleteObject(other.ReleasehBmp());
        surface.Picture();
        EXPECT_THROW(other.CloneFromHBmp(nullptr, OPAQUE), Failure);
    });
}

TEST(DrawingLeaks, DibSection) {
    const OwnedBitmap bitmap(CreateBitmap(4, 4, 1, 32, nullptr));
    ExpectNoGrowth([&] {
        clsDIBSection section, other;
        for (const std::int32_t bpp : {1, 4, 8, 24})
            section.CreateDC(8, 8, bpp);
        section.DrawBackColor(1);
        other.CloneFromDib(section);
        other.CloneFromHdc(section.Hdc(), 32);
        other.CloneFromHBmp(bitmap.Get(), 32);
        clsPalette palette;
        palette.CreateOptimal(section, 8, 4);
        DeleteObject(other.ReleasehDib());
        section.Picture();
        EXPECT_THROW(other.CreateDC(0, 0, 24), Failure);
    });
}

TEST(DrawingLeaks, OverlapImageAndLines) {
    clsDIBSection surface;
    surface.CreateDC(20, 20, 32);
    clsMEMDC content;
    content.CreateDC(8, 8, OPAQUE);
    const OlePicture bitmap = content.Picture(), icon = Icon();
    ExpectNoGrowth([&] {
        for (const OlePicture* picture : {&bitmap, &icon}) {
            for (const bool bDisabled : {false, true}) {
                for (const bool bTransparent : {false, true})
                    pvOverlapImage(surface.Hdc(), 0, 0, 12, 12, bDisabled, *picture, bTransparent);
            }
        }
        clsLineGSMini().LineGP(surface.Hdc(), 1, 1, 9, 5, 7, 200);
        clsLineGSMini().CircleGP(surface.Hdc(), 9, 9, 5, 5, 7, 1);
    });
}

TEST(DrawingLeaks, FontsPicturesAndHandles) {
    clsMEMDC surface;
    surface.CreateDC(20, 20, OPAQUE);
    ExpectNoGrowth([&] {
        const OleFont object = OleFont::Create(u"Tahoma", 8.25);
        clsFontHDC font;
        font.SetFontToDCStdFont(surface.Hdc(), object, -1, 0, 3, false);
        font.SetFontToDCStdFont(surface.Hdc(), object, 5, 0, 0, true);
        font.Destroy();
        font.SetFontToDCStdFont(surface.Hdc(), object, -1, 0, 0, false);
        clsGdiHandle handle;
        handle.Handle(CreateSolidBrush(1));
        handle.Handle(CreateSolidBrush(2));
        const OlePicture picture = Icon(), copy = picture;
        OlePicture::OfBitmap(CreateBitmap(3, 3, 1, 32, nullptr));
    });
}

// The platform shares GDI fonts among its font objects and keeps them for a while, so the census cannot see a font
// object that is left behind: its references are counted.
TEST(DrawingLeaks, AFontObjectHasNoReferenceBesideItsOwners) {
    const auto references = [](const OleFont& font) {
        font.Object()->AddRef();
        return font.Object()->Release();
    };
    clsMEMDC surface;
    surface.CreateDC(20, 20, OPAQUE);
    OleFont font = OleFont::Create(u"Tahoma", 8.25);
    EXPECT_EQ(references(font), 1u);
    EXPECT_EQ(references(font.Clone()), 1u);
    for (int n = 0; n < 3; ++n) {
        const OleFont copy = font;
        EXPECT_EQ(references(font), 2u);
        EXPECT_TRUE(font.IsEqual(font.Clone()));
        clsFontHDC selected;
        selected.SetFontToDCStdFont(surface.Hdc(), font, -1, 0, 0, false);
    }
    EXPECT_EQ(references(font), 1u);
}

} // namespace
} // namespace orvanta
