// What the list box draws. Shapes are compared with the same drawing on a canvas; text by its colour.
#include "plumbing/FaceDrawing.h"
#include "plumbing/SharedShapes.h"
#include "tests/controls/text/ListFixture.h"
#include "tests/controls/text/PixelPart.h"

namespace orvanta::testing {
namespace {

constexpr OleColor kBack = 0xE0F0D0;
constexpr OleColor kFore = 0x800000;
constexpr OleColor kSelBack = 0x40A0C0;
constexpr OleColor kSelFore = 0x0000FF;
constexpr int kWidth = 200;
constexpr int kItemHeight = 17;

class ListBoxPaint : public ListFixture {
protected:
    // A list without the focus, in colours that tell its parts apart.
    ctlUniListBoxXP& Colored(std::int32_t lStyle = 0) {
        auto& list = Load({{u"BackColor", kBack},
                           {u"ForeColor", kFore},
                           {u"SelBackColor", kSelBack},
                           {u"SelForeColor", kSelFore},
                           {u"Style", lStyle}});
        SetFocus(nullptr);
        return list;
    }
    static PixelPart ItemOf(const ListBoxCore& list, std::int32_t lPosition) {
        return PixelPart(Grab(list.hwnd()), ItemRect(list, lPosition));
    }
};

TEST_F(ListBoxPaint, AnItemThatIsNotSelectedIsPlainBack) {
    auto& list = Colored();
    Fill(list, {u""});
    EXPECT_EQ(ItemOf(list, 0), PixelPart(PixelCanvas(kWidth, kItemHeight, kBack)));
}

TEST_F(ListBoxPaint, ASelectedItemHasAFaceInItsStyle) {
    auto& list = Colored();
    Fill(list, {u""});
    list.ListIndex(0);
    for (const std::int32_t lStyle : {-1, 0, 3, 8}) {
        for (const bool bRound : {false, true}) {
            list.SelectorStyle(lStyle);
            list.RoundSelector(bRound);
            PixelCanvas expected(kWidth, kItemHeight, 0);
            DrawFace(expected.Dc(), {0, 0, kWidth, kItemHeight}, kSelBack, true, -1, false, false, false, false, bRound,
                     lStyle, kBack, true);
            EXPECT_EQ(ItemOf(list, 0), PixelPart(expected)) << lStyle << bRound;
        }
    }
}

TEST_F(ListBoxPaint, TextHasTheColourOfItsState) {
    auto& list = Colored();
    Fill(list, {u"MMM", u"MMM"});
    list.ListIndex(1);
    EXPECT_TRUE(ItemOf(list, 0).Has(kFore));
    EXPECT_TRUE(ItemOf(list, 1).Has(kSelFore));
    list.Enabled(false);
    EXPECT_FALSE(ItemOf(list, 0).Has(kFore));
    EXPECT_TRUE(ItemOf(list, 0).Has(ResolveColor(DisabledTextColor(kFore, kBack))));
    EXPECT_TRUE(ItemOf(list, 1).Has(kSelFore));
}

TEST_F(ListBoxPaint, TextStandsTwoPixelsInsideWithoutAnUnderlinedCharacter) {
    auto& list = Colored();
    Fill(list, {u"M&M"});
    PixelCanvas expected(kWidth, kItemHeight, kBack);
    const Selection font(expected.Dc(), list.Font().hFont());
    SetBkMode(expected.Dc(), TRANSPARENT);
    SetTextColor(expected.Dc(), static_cast<COLORREF>(kFore));
    RECT rect{2, 2, kWidth - 2, kItemHeight - 2};
    DrawTextW(expected.Dc(), L"M&M", -1, &rect, DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
    EXPECT_EQ(ItemOf(list, 0), PixelPart(expected));
}

TEST_F(ListBoxPaint, ACheckListHasBoxesAndMarks) {
    auto& list = Colored(1);
    list.AddItem(u"");
    list.AddItem(u"", -1, {}, true);
    PixelCanvas expected(kWidth, kItemHeight, kBack);
    DrawFace(expected.Dc(), {2, 2, 15, 15}, kBack, true, -1, false, false, false, false, false, -1, -1, true);
    EXPECT_EQ(ItemOf(list, 0), PixelPart(expected));
    for (int d = 0; d < 3; ++d) {
        DrawLineOle(expected.Dc(), 4, 6 + d, 7, 9 + d, kFore, 1, PS_SOLID);
        DrawLineOle(expected.Dc(), 7, 9 + d, 12, 4 + d, kFore, 1, PS_SOLID);
    }
    EXPECT_EQ(ItemOf(list, 1), PixelPart(expected));
}

TEST_F(ListBoxPaint, TheSelectionStartsTwoPixelsBehindTheBox) {
    auto& list = Colored(1);
    Fill(list, {u""});
    list.ListIndex(0);
    const PixelPart item = ItemOf(list, 0);
    EXPECT_EQ(item.At(16, 8), kBack);
    EXPECT_NE(item.At(17, 8), kBack);
}

TEST_F(ListBoxPaint, AMarkGoesWhenItsFlagGoes) {
    auto& list = Colored(1);
    list.AddItem(u"", -1, {}, true);
    EXPECT_TRUE(ItemOf(list, 0).Has(kFore));
    list.Selected(0, false);
    EXPECT_FALSE(ItemOf(list, 0).Has(kFore));
}

TEST_F(ListBoxPaint, ANewTextIsShown) {
    auto& list = Colored();
    Fill(list, {u""});
    EXPECT_FALSE(ItemOf(list, 0).Has(kFore));
    list.List(0, u"MMM");
    EXPECT_TRUE(ItemOf(list, 0).Has(kFore));
}

TEST_F(ListBoxPaint, TheCurrentItemOfAListWithTheFocusHasAFocusRectangle) {
    auto& list = Colored();
    Fill(list, {u""});
    FocusOn(list);
    PixelCanvas expected(kWidth, kItemHeight, kBack);
    DrawFocusRectOn(expected.Dc(), {0, 0, kWidth, kItemHeight});
    EXPECT_EQ(ItemOf(list, 0), PixelPart(expected));
}

TEST_F(ListBoxPaint, AnEmptyListWithTheFocusDrawsNoCheckBox) {
    auto& list = Colored(1);
    FocusOn(list);
    DRAWITEMSTRUCT record{};
    PixelCanvas canvas(kWidth, kItemHeight, 0);
    record.CtlType = ODT_LISTBOX;
    record.itemID = static_cast<UINT>(-1);
    record.itemData = static_cast<ULONG_PTR>(-1);
    record.itemState = ODS_FOCUS;
    record.hwndItem = list.hwnd();
    record.hDC = canvas.Dc();
    record.rcItem = {0, 0, kWidth, kItemHeight};
    EXPECT_EQ(SendMessageW(list.Host().hWnd(), WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&record)), 1);
    PixelCanvas expected(kWidth, kItemHeight, kBack);
    DrawFocusRectOn(expected.Dc(), {0, 0, kWidth, kItemHeight});
    EXPECT_EQ(PixelPart(canvas), PixelPart(expected));
}

TEST_F(ListBoxPaint, BlankSpaceHasTheBackColour) {
    auto& list = Colored();
    Fill(list, {u"a"});
    EXPECT_EQ(Grab(list.hwnd()).At(150, 100), kBack);
    list.BackColor(0x123456);
    EXPECT_EQ(Grab(list.Host().hWnd()).At(150, 100), 0x123456);
}

TEST_F(ListBoxPaint, TheListGetsItsColoursAndBrushFromTheControl) {
    auto& list = Colored();
    list.BackColor(0x654321);
    Grab(list.Host().hWnd());
    const auto ask = [&list] {
        const PixelCanvas canvas(4, 4, 0);
        const auto brush = reinterpret_cast<HGDIOBJ>(SendMessageW(list.Host().hWnd(), WM_CTLCOLORLISTBOX,
                                                                  reinterpret_cast<WPARAM>(canvas.Dc()),
                                                                  reinterpret_cast<LPARAM>(list.hwnd())));
        LOGBRUSH description{};
        GetObjectW(brush, sizeof description, &description);
        return std::tuple{static_cast<OleColor>(description.lbColor), static_cast<OleColor>(GetBkColor(canvas.Dc())),
                          static_cast<OleColor>(GetTextColor(canvas.Dc()))};
    };
    EXPECT_EQ(ask(), (std::tuple{0x654321, 0x654321, kFore}));
    list.Enabled(false);
    EXPECT_EQ(std::get<2>(ask()), ResolveColor(DisabledTextColor(kFore, 0x654321)));
}

TEST_F(ListBoxPaint, ScrollingSidewaysLeavesNoRemains) {
    auto& list = Colored();
    list.HScroll(true);
    Fill(list, {u"A rather long text, much longer than the list itself is wide, so that it can be scrolled", u"short"});
    Grab(list.hwnd());
    SendMessageW(list.hwnd(), WM_HSCROLL, MAKEWPARAM(SB_PAGERIGHT, 0), 0);
    const std::vector<OleColor> scrolled = Grab(list.hwnd()).All();
    InvalidateRect(list.hwnd(), nullptr, TRUE);
    EXPECT_EQ(Grab(list.hwnd()).All(), scrolled);
}

TEST_F(ListBoxPaint, TheBorderIsThatOfAllBoxes) {
    auto& list = Colored();
    for (const bool bRound : {false, true}) {
        list.RoundedBorders(bRound);
        list.BorderColor(0x0000FF);
        list.BackColorOut(0x00FF00);
        PixelCanvas expected(204, 124, 0);
        DrawBoxBorder(expected.Dc(), {0, 0, 204, 124}, kBack, 0x0000FF, bRound, 0x00FF00, false);
        const WindowPixels pixels = Grab(list.Host().hWnd());
        for (const RECT part : {RECT{0, 0, 204, 2}, RECT{0, 122, 204, 124}, RECT{0, 0, 2, 124}, RECT{202, 0, 204, 124}})
            EXPECT_EQ(PixelPart(pixels, part), PixelPart(expected, part)) << bRound;
    }
}

TEST_F(ListBoxPaint, InDesignModeTheControlShowsItsName) {
    form.UserMode(false);
    auto& list = Colored();
    const WindowPixels pixels = Grab(list.Host().hWnd());
    const PixelPart inside(pixels, {2, 2, 202, 122});
    EXPECT_TRUE(inside.Has(kFore));
    EXPECT_TRUE(inside.HasOnly({kBack, kFore}));
    PixelCanvas expected(204, 124, kBack);
    DrawBoxBorder(expected.Dc(), {0, 0, 204, 124}, kBack, -1, false, -1, false);
    EXPECT_EQ(PixelPart(pixels, {0, 0, 204, 2}), PixelPart(expected, {0, 0, 204, 2}));
}

TEST_F(ListBoxPaint, NothingIsDrawnBetweenBeginUpdateAndEndUpdate) {
    auto& list = Colored();
    Grab(list.hwnd());
    list.BeginUpdate();
    Fill(list, {u"MMM"});
    EXPECT_FALSE(PixelPart(Grab(list.hwnd()), {0, 0, kWidth, kItemHeight}).Has(kFore));
    list.EndUpdate();
    EXPECT_TRUE(ItemOf(list, 0).Has(kFore));
}

TEST_F(ListBoxPaint, ColumnsStandBesideOneAnother) {
    auto& list = Load({{u"Columns", 2}, {u"ForeColor", kFore}});
    for (int n = 0; n < 8; ++n)
        list.AddItem(u"MMM");
    const RECT first = ItemRect(list, 0);
    std::int32_t lNext = 1;
    while (ItemRect(list, lNext).top > 0)
        ++lNext;
    EXPECT_EQ(ItemRect(list, lNext).left, first.right);
    EXPECT_TRUE(ItemOf(list, lNext).Has(kFore));
}

} // namespace
} // namespace orvanta::testing
