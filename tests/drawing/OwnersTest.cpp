// The small owners of the drawing room: GDI handles, pictures and fonts of the platform.
#include "drawing/OleFont.h"
#include "drawing/OlePicture.h"
#include "drawing/clsGdiHandle.h"

#include "tests/drawing/SurfaceFixture.h"

namespace orvanta {
namespace {

bool Lives(HGDIOBJ handle) {
    return GetObjectType(handle) != 0;
}

TEST(GdiHandle, IsEmptyAtFirst) {
    clsGdiHandle owner;
    EXPECT_EQ(owner.Handle(), nullptr);
    EXPECT_EQ(owner.ReleaseHandle(), nullptr);
    owner.Destroy();
}

TEST(GdiHandle, SetTwiceDeletesTheFirstHandle) {
    HBRUSH first = CreateSolidBrush(1), second = CreateSolidBrush(2);
    clsGdiHandle owner;
    owner.Handle(first);
    EXPECT_EQ(owner.Handle(), first);
    owner.Handle(second);
    EXPECT_FALSE(Lives(first));
    EXPECT_TRUE(Lives(second));
    owner.Destroy();
    EXPECT_FALSE(Lives(second));
    EXPECT_EQ(owner.Handle(), nullptr);
}

TEST(GdiHandle, ItsEndDeletesWhatItHolds) {
    HBRUSH brush = CreateSolidBrush(1);
    {
        clsGdiHandle owner;
        owner.Handle(brush);
    }
    EXPECT_FALSE(Lives(brush));
}

TEST(GdiHandle, AfterReleaseHandleItsEndDeletesNothing) {
    HBRUSH brush = CreateSolidBrush(1);
    {
        clsGdiHandle owner;
        owner.Handle(brush);
        EXPECT_EQ(owner.ReleaseHandle(), brush);
        EXPECT_EQ(owner.Handle(), nullptr);
    }
    EXPECT_TRUE(Lives(brush));
    DeleteObject(brush);
}

// A bitmap file of 2 by 1 pixels of 24 bits, blue and red.
std::string BitmapFile() {
    BITMAPFILEHEADER file{};
    BITMAPINFOHEADER info{};
    file.bfType = 0x4D42;
    file.bfOffBits = sizeof file + sizeof info;
    file.bfSize = file.bfOffBits + 8;
    info.biSize = sizeof info;
    info.biWidth = 2;
    info.biHeight = 1;
    info.biPlanes = 1;
    info.biBitCount = 24;
    info.biSizeImage = 8;
    std::string bytes(reinterpret_cast<const char*>(&file), sizeof file);
    bytes.append(reinterpret_cast<const char*>(&info), sizeof info);
    return bytes + std::string("\xFF\0\0\0\0\xFF\0\0", 8);
}

TEST(OlePictureOwner, EqualsOnlyTheSameObject) {
    const OlePicture picture = OlePicture::Load(BitmapFile()), another = OlePicture::Load(BitmapFile());
    const OlePicture copy = picture;
    EXPECT_TRUE(picture == copy);
    EXPECT_FALSE(picture == another);
    EXPECT_FALSE(picture == OlePicture());
    EXPECT_TRUE(OlePicture() == OlePicture());
}

TEST(OlePictureOwner, AnEmptyOneHasNoHandleAndNoSize) {
    const OlePicture none;
    EXPECT_TRUE(none.IsEmpty());
    EXPECT_FALSE(static_cast<bool>(none));
    EXPECT_EQ(none.Handle(), nullptr);
    EXPECT_EQ(none.Type(), OlePicture::kTypeNone);
    EXPECT_EQ(none.Width(), 0);
    EXPECT_EQ(none.Height(), 0);
    EXPECT_EQ(none.Save(), "");
    EXPECT_EQ(none.Object(), nullptr);
}

TEST(OlePictureOwner, TheBitmapLivesAsLongAsTheLastCopy) {
    HBITMAP bitmap = CreateBitmap(10, 16, 1, 32, nullptr);
    OlePicture copy;
    {
        const OlePicture picture = OlePicture::OfBitmap(bitmap);
        EXPECT_EQ(testing::HandleBits(picture.Handle()), testing::HandleBits(bitmap));
        EXPECT_EQ(picture.Type(), OlePicture::kTypeBitmap);
        const WindowDc screen(nullptr);
        EXPECT_NEAR(picture.Width(), 10 * 2540 / GetDeviceCaps(screen.Get(), LOGPIXELSX), 1);
        EXPECT_NEAR(picture.Height(), 16 * 2540 / GetDeviceCaps(screen.Get(), LOGPIXELSY), 1);
        copy = picture;
    }
    EXPECT_TRUE(Lives(bitmap));
    copy = OlePicture();
    EXPECT_FALSE(Lives(bitmap));
}

TEST(OlePictureOwner, AnIconIsOwnedToo) {
    const BYTE bits[32] = {};
    HICON icon = CreateIcon(nullptr, 8, 8, 1, 1, bits, bits);
    {
        const OlePicture picture = OlePicture::OfIcon(icon);
        EXPECT_EQ(picture.Type(), OlePicture::kTypeIcon);
        EXPECT_EQ(testing::HandleBits(picture.Handle()), testing::HandleBits(icon));
    }
    ICONINFO info{};
    EXPECT_FALSE(GetIconInfo(icon, &info)) << "destroyed with its picture";
}

TEST(OlePictureOwner, LoadsABitmapFileAndSavesItAgain) {
    const OlePicture picture = OlePicture::Load(BitmapFile());
    ASSERT_FALSE(picture.IsEmpty());
    EXPECT_EQ(picture.Type(), OlePicture::kTypeBitmap);
    const OwnedDc dc(CreateCompatibleDC(nullptr));
    const Selection selection(dc.Get(), picture.Handle());
    EXPECT_EQ(GetPixel(dc.Get(), 0, 0), RGB(0, 0, 255));
    EXPECT_EQ(GetPixel(dc.Get(), 1, 0), RGB(255, 0, 0));
    const OlePicture again = OlePicture::Load(picture.Save());
    EXPECT_EQ(again.Width(), picture.Width());
}

TEST(OlePictureOwner, BytesThatAreNoPictureGiveNone) {
    EXPECT_TRUE(OlePicture::Load("").IsEmpty());
    EXPECT_TRUE(OlePicture::Load("this is no picture at all").IsEmpty());
}

TEST(OleFontOwner, AnEmptyOneAnswersWithNothing) {
    OleFont none;
    EXPECT_TRUE(none.IsEmpty());
    none.Name(u"Tahoma");
    none.Size(10);
    none.Bold(true);
    none.Weight(700);
    EXPECT_EQ(none.Name(), u"");
    EXPECT_EQ(none.Size(), 0);
    EXPECT_FALSE(none.Bold());
    EXPECT_EQ(none.Weight(), 0);
    EXPECT_EQ(none.hFont(), nullptr);
    EXPECT_TRUE(none.Clone().IsEmpty());
    EXPECT_TRUE(none.IsEqual(OleFont()));
    EXPECT_FALSE(none.IsEqual(OleFont::Create(u"Tahoma", 8.25)));
    EXPECT_EQ(none.Object(), nullptr);
}

TEST(OleFontOwner, PropertiesAreKept) {
    OleFont font = OleFont::Create(u"Tahoma", 8.25);
    ASSERT_FALSE(font.IsEmpty());
    EXPECT_EQ(font.Name(), u"Tahoma");
    EXPECT_DOUBLE_EQ(font.Size(), 8.25);
    EXPECT_FALSE(font.Bold() || font.Italic() || font.Underline() || font.Strikethrough());
    EXPECT_EQ(font.Weight(), 400);
    font.Name(u"MS Sans Serif");
    font.Size(12);
    font.Bold(true);
    font.Italic(true);
    font.Underline(true);
    font.Strikethrough(true);
    EXPECT_EQ(font.Name(), u"MS Sans Serif");
    EXPECT_DOUBLE_EQ(font.Size(), 12);
    EXPECT_TRUE(font.Bold() && font.Italic() && font.Underline() && font.Strikethrough());
    EXPECT_EQ(font.Weight(), 700);
    font.Weight(400);
    EXPECT_FALSE(font.Bold());
    EXPECT_EQ(GetObjectType(font.hFont()), static_cast<DWORD>(OBJ_FONT));
}

TEST(OleFontOwner, CopiesShareAndClonesAreApart) {
    OleFont font = OleFont::Create(u"Tahoma", 8.25);
    const OleFont shared = font, apart = font.Clone();
    EXPECT_TRUE(font.IsEqual(apart));
    font.Bold(true);
    EXPECT_TRUE(shared.Bold());
    EXPECT_FALSE(apart.Bold());
    EXPECT_FALSE(font.IsEqual(apart));
}

} // namespace
} // namespace orvanta
