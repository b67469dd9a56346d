// What the list box with pictures has beyond the plain one.
#include "drawing/modCtlCommon_alphaImg.h"
#include "plumbing/FaceDrawing.h"
#include "plumbing/SharedShapes.h"
#include "tests/controls/text/ListFixture.h"
#include "tests/controls/text/PixelPart.h"

#include <gmock/gmock.h>

namespace orvanta::testing {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr OleColor kPaper = 0xF0E0E0;
constexpr OleColor kInk = 0x008000;
constexpr OleColor kRed = 0x0000FF;
constexpr OleColor kKey = 0xFF00FF;
constexpr int kListWidth = 200;

struct Asked {
    std::int32_t lState;
    std::int32_t lItemIndex;
    std::u16string sText;
    bool bPicture;
    std::int16_t iWidth;
    std::int16_t iHeight;
    bool bTransp;
    bool operator==(const Asked&) const = default;
};

class ListBoxWithPictures : public ListFixture {
protected:
    using List = ctlUniListBoxExXP;

    List& Start(Values values = {}) {
        List& list = Load<List>(values);
        list.BackColor(kPaper);
        list.ForeColor(kInk);
        SetFocus(nullptr);
        return list;
    }
    void Watch(List& list) {
        list.OnOwnerDraw.Add([this, &list](std::int32_t lItemIndex, std::u16string& sText, OlePicture& oPic,
                                           std::int16_t& iWidth, std::int16_t& iHeight, bool& bTransp) {
            asked.push_back({list.OwnerDrawState(), lItemIndex, sText, !oPic.IsEmpty(), iWidth, iHeight, bTransp});
        });
    }
    // An owner that gives every item one picture of a size, and says that size or another one.
    static void GivePicture(List& list, const OlePicture& picture, std::int16_t iWidth, std::int16_t iHeight,
                            bool bTransparent = true) {
        list.OnOwnerDraw.Add([=](std::int32_t, std::u16string&, OlePicture& oPic, std::int16_t& iPicWidth,
                                 std::int16_t& iPicHeight, bool& bTransp) {
            oPic = picture;
            iPicWidth = iWidth;
            iPicHeight = iHeight;
            bTransp = bTransparent;
        });
    }
    // Red, with the key colour in its top left pixel and in its middle.
    static OlePicture Square(int size) {
        PixelCanvas canvas(size, size, kRed);
        SetPixelV(canvas.Dc(), 0, 0, kKey);
        SetPixelV(canvas.Dc(), size / 2, size / 2, kKey);
        const WindowDc screen(nullptr);
        OwnedBitmap bitmap(CreateCompatibleBitmap(screen.Get(), size, size));
        const OwnedDc dc(CreateCompatibleDC(screen.Get()));
        {
            const Selection selected(dc.Get(), bitmap.Get());
            BitBlt(dc.Get(), 0, 0, size, size, canvas.Dc(), 0, 0, SRCCOPY);
        }
        return OlePicture::OfBitmap(bitmap.Release());
    }
    static PixelPart ItemOf(const List& list, std::int32_t lPosition) {
        return PixelPart(Grab(list.hwnd()), ItemRect(list, lPosition));
    }
    std::vector<Asked> asked;
};

TEST_F(ListBoxWithPictures, WithoutAHandlerItemsAreAsHighAsTheLargerOfTextAndIconDim) {
    auto& list = Start();
    Fill(list, {u"a"});
    EXPECT_EQ(HeightOf(list, 0), 16 + 4);
    list.IconDim(5);
    EXPECT_EQ(HeightOf(list, 0), 20);
    Fill(list, {u"b"});
    EXPECT_EQ(HeightOf(list, 1), 13 + 4);
    list.IconDim(40);
    list.Sorted(true);
    EXPECT_EQ(HeightOf(list, 0), 44);
    EXPECT_EQ(HeightOf(list, 1), 44);
}

TEST_F(ListBoxWithPictures, WithoutImagesItemsAreAsHighAsTheFontAndFourPixels) {
    auto& list = Start({{u"AllowImages", false}, {u"IconDim", 40}});
    Fill(list, {u"a"});
    EXPECT_EQ(HeightOf(list, 0), 17);
}

TEST_F(ListBoxWithPictures, TheOwnerIsAskedOnceForTheSizeAndAgainForTheDrawing) {
    auto& list = Start();
    Watch(list);
    Fill(list, {u"first", u"second"});
    EXPECT_THAT(asked,
                ElementsAre(Asked{0, 0, u"first", false, 16, 16, true}, Asked{0, 1, u"second", false, 16, 16, true}));
    asked.clear();
    InvalidateRect(list.hwnd(), nullptr, TRUE);
    UpdateWindow(list.hwnd());
    EXPECT_THAT(asked, ::testing::Contains(Asked{1, 0, u"first", false, 16, 16, true}));
    EXPECT_THAT(asked, ::testing::Contains(Asked{1, 1, u"second", false, 16, 16, true}));
    EXPECT_THAT(asked, Each(::testing::Field(&Asked::lState, 1)));
}

TEST_F(ListBoxWithPictures, TheOwnerMayMakeAnItemHigher) {
    auto& list = Start();
    list.OnOwnerDraw.Add([](std::int32_t lItemIndex, std::u16string&, OlePicture&, std::int16_t&, std::int16_t& iHeight,
                            bool&) { iHeight = lItemIndex == 1 ? 40 : 2; });
    Fill(list, {u"a", u"b", u"c"});
    EXPECT_EQ(HeightOf(list, 0), 20);
    EXPECT_EQ(HeightOf(list, 1), 44);
    EXPECT_EQ(HeightOf(list, 2), 20);
}

TEST_F(ListBoxWithPictures, AnOwnerThatAsksForLessThanIconDimGetsIconDim) {
    auto& list = Start();
    GivePicture(list, Square(16), 8, 8, false);
    Fill(list, {u""});
    const PixelPart item = ItemOf(list, 0);
    // The column is 22 pixels wide: the picture stands from 3 to 19.
    EXPECT_EQ(item.At(3, 10), kRed);
    EXPECT_EQ(item.At(18, 10), kRed);
    EXPECT_EQ(item.At(2, 10), kPaper);
    EXPECT_EQ(item.At(19, 10), kPaper);
    EXPECT_EQ(item.At(10, 2), kRed);
    EXPECT_EQ(item.At(10, 17), kRed);
}

TEST_F(ListBoxWithPictures, ThePictureStandsInItsColumnAndTheTextBehindIt) {
    auto& list = Start();
    GivePicture(list, Square(16), 16, 16);
    Fill(list, {u"MMM"});
    PixelCanvas expected(kListWidth, 20, kPaper);
    pvOverlapImage(expected.Dc(), 0, 0, 22, 20, false, Square(16), true, 16, 16);
    const Selection font(expected.Dc(), list.Font().hFont());
    SetBkMode(expected.Dc(), TRANSPARENT);
    SetTextColor(expected.Dc(), static_cast<COLORREF>(kInk));
    RECT rect{22, 0, kListWidth - 3, 20};
    DrawTextW(expected.Dc(), L"MMM", -1, &rect, DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
    EXPECT_EQ(ItemOf(list, 0), PixelPart(expected));
    EXPECT_FALSE(ItemOf(list, 0).Has(kKey));
}

TEST_F(ListBoxWithPictures, APictureThatIsNotTransparentIsShownWhole) {
    auto& list = Start();
    GivePicture(list, Square(16), 16, 16, false);
    Fill(list, {u""});
    EXPECT_TRUE(ItemOf(list, 0).Has(kKey));
}

TEST_F(ListBoxWithPictures, ADisabledListGreysItsPictures) {
    auto& list = Start();
    GivePicture(list, Square(16), 16, 16);
    Fill(list, {u""});
    list.Enabled(false);
    PixelCanvas expected(kListWidth, 20, kPaper);
    pvOverlapImage(expected.Dc(), 0, 0, 22, 20, true, Square(16), true, 16, 16);
    EXPECT_EQ(ItemOf(list, 0), PixelPart(expected));
    EXPECT_FALSE(ItemOf(list, 0).Has(kRed));
}

TEST_F(ListBoxWithPictures, TheColumnIsKeptForItemsWithoutAPicture) {
    auto& list = Start();
    Fill(list, {u"MMM"});
    const WindowPixels pixels = Grab(list.hwnd());
    EXPECT_FALSE(PixelPart(pixels, {0, 0, 22, 20}).Has(kInk));
    EXPECT_TRUE(PixelPart(pixels, {22, 0, kListWidth, 20}).Has(kInk));
}

TEST_F(ListBoxWithPictures, WithoutImagesTheOwnerIsAskedForTheDrawingAloneAndItsTextIsShown) {
    auto& list = Start({{u"AllowImages", false}});
    Watch(list);
    list.OnOwnerDraw.Add(
        [](std::int32_t, std::u16string& sText, OlePicture& oPic, std::int16_t&, std::int16_t&, bool&) {
            sText = u"MMM";
            oPic = Square(16);
        });
    Fill(list, {u""});
    EXPECT_THAT(asked, Each(::testing::Field(&Asked::lState, 1)));
    const WindowPixels pixels = Grab(list.hwnd());
    EXPECT_FALSE(asked.empty());
    EXPECT_TRUE(PixelPart(pixels, {3, 3, kListWidth, 14}).Has(kInk));
    EXPECT_FALSE(PixelPart(pixels, {0, 0, kListWidth, 17}).Has(kRed));
    EXPECT_EQ(list.List(0), u"");
}

TEST_F(ListBoxWithPictures, AChangedTextCountsForItsSizeAndIsNeverStored) {
    auto& list = Start();
    list.OnOwnerDraw.Add(
        [](std::int32_t, std::u16string& sText, OlePicture&, std::int16_t&, std::int16_t&, bool&) { sText = u"MMM"; });
    Fill(list, {u""});
    EXPECT_TRUE(ItemOf(list, 0).Has(kInk));
    EXPECT_EQ(list.List(0), u"");
    EXPECT_EQ(list.OwnerDrawState(), 1);
}

TEST_F(ListBoxWithPictures, TheCheckBoxStandsThreePixelsInAndTheItemThreeBehindIt) {
    auto& list = Start({{u"Style", 1}});
    list.AddItem(u"", -1, {}, true);
    PixelCanvas expected(kListWidth, 20, kPaper);
    DrawFace(expected.Dc(), {3, 4, 16, 17}, kPaper, true, -1, false, false, false, false, false, -1, -1, true);
    for (int d = 0; d < 3; ++d) {
        DrawLineOle(expected.Dc(), 5, 8 + d, 8, 11 + d, kInk, 1, PS_SOLID);
        DrawLineOle(expected.Dc(), 8, 11 + d, 13, 6 + d, kInk, 1, PS_SOLID);
    }
    EXPECT_EQ(ItemOf(list, 0), PixelPart(expected));
    list.ListIndex(0);
    EXPECT_EQ(ItemOf(list, 0).At(18, 10), kPaper);
    EXPECT_NE(ItemOf(list, 0).At(19, 10), kPaper);
}

TEST_F(ListBoxWithPictures, ASelectedItemHasTheFaceBehindItsPicture) {
    auto& list = Start();
    list.SelBackColor(0x40A0C0);
    list.RoundSelector(true);
    Fill(list, {u""});
    list.ListIndex(0);
    PixelCanvas expected(kListWidth, 20, 0);
    DrawFace(expected.Dc(), {0, 0, kListWidth, 20}, 0x40A0C0, true, -1, false, false, false, false, true, -1, kPaper,
             true);
    EXPECT_EQ(ItemOf(list, 0), PixelPart(expected));
}

TEST_F(ListBoxWithPictures, ChecksTurnAtTheSameColumnAsInThePlainList) {
    auto& list = Start({{u"Style", 1}});
    Fill(list, {u"a"});
    ClickItem(list, 0, 16);
    EXPECT_TRUE(list.Selected(0));
    ClickItem(list, 0, 17);
    EXPECT_FALSE(list.Selected(0));
}

TEST_F(ListBoxWithPictures, AnEmptyListWithTheFocusDrawsOneLineAsHighAsTheFont) {
    auto& list = Start({{u"Style", 1}});
    Watch(list);
    PixelCanvas canvas(kListWidth, 40, 0);
    const Selection font(canvas.Dc(), list.Font().hFont());
    DRAWITEMSTRUCT record{};
    record.CtlType = ODT_LISTBOX;
    record.itemID = static_cast<UINT>(-1);
    record.itemData = static_cast<ULONG_PTR>(-1);
    record.itemState = ODS_FOCUS | ODS_SELECTED;
    record.hwndItem = list.hwnd();
    record.hDC = canvas.Dc();
    record.rcItem = {0, 2, kListWidth, 38};
    SendMessageW(list.Host().hWnd(), WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&record));
    PixelCanvas expected(kListWidth, 40, 0);
    FillOrFrame(expected.Dc(), {0, 2, kListWidth, 19}, kPaper, true);
    DrawFocusRectOn(expected.Dc(), {0, 2, kListWidth, 19});
    EXPECT_EQ(PixelPart(canvas), PixelPart(expected));
    EXPECT_THAT(asked, IsEmpty());
}

TEST_F(ListBoxWithPictures, AHandlerMayRemoveTheControlWhileItIsAskedForASize) {
    auto& list = Start();
    HWND window = list.hwnd();
    list.OnOwnerDraw.Add(
        [&](std::int32_t, std::u16string&, OlePicture&, std::int16_t&, std::int16_t&, bool&) { form.Remove(list); });
    list.AddItem(u"a");
    EXPECT_TRUE(form.Controls().empty());
    EXPECT_FALSE(IsWindow(window));
}

TEST_F(ListBoxWithPictures, AHandlerMayMakeTheListAnewWhileItIsAskedForASize) {
    auto& list = Start();
    Fill(list, {u"a", u"b"});
    HWND window = list.hwnd();
    bool bDone = false;
    list.OnOwnerDraw.Add([&](std::int32_t, std::u16string&, OlePicture&, std::int16_t&, std::int16_t&, bool&) {
        if (!std::exchange(bDone, true)) list.Sorted(true);
    });
    list.AddItem(u"c");
    EXPECT_FALSE(IsWindow(window));
    EXPECT_THAT(TextsOf(list), ElementsAre(u"a", u"b", u"c"));
}

TEST_F(ListBoxWithPictures, AHandlerMayRemoveTheControlWhileItIsDrawn) {
    auto& list = Start();
    Fill(list, {u"a", u"b"});
    list.OnOwnerDraw.Add([&](std::int32_t, std::u16string&, OlePicture&, std::int16_t&, std::int16_t&, bool&) {
        if (list.OwnerDrawState() == 1) form.Remove(list);
    });
    UpdateWindow(list.hwnd());
    Pump();
    EXPECT_TRUE(form.Controls().empty());
}

TEST_F(ListBoxWithPictures, ItemsOfSeveralHeightsAreFoundByTheirRows) {
    auto& list = Start();
    list.OnOwnerDraw.Add([](std::int32_t lItemIndex, std::u16string&, OlePicture&, std::int16_t&, std::int16_t& iHeight,
                            bool&) { iHeight = lItemIndex == 0 ? 46 : 16; });
    Fill(list, {u"a", u"b"});
    EXPECT_EQ(list.GetListIndexByY(49), 0);
    EXPECT_EQ(list.GetListIndexByY(50), 1);
    EXPECT_EQ(list.GetListIndexByY(69), 1);
    EXPECT_EQ(list.GetListIndexByY(70), -1);
}

} // namespace
} // namespace orvanta::testing
