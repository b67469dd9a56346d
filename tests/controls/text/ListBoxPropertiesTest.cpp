// Properties, the property bag, start, design mode, and the list window made anew.
#include "plumbing/SharedShapes.h"
#include "tests/controls/text/ListFixture.h"
#include "tests/support/PatchedImport.h"

#include <gmock/gmock.h>

#include <string_view>

namespace orvanta::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr DWORD kListBaseStyle = 0x50310101;
constexpr DWORD kBarBits = WS_VSCROLL | WS_HSCROLL; // the list shows and hides its bars by these

class ListBoxProperties : public ListFixture {};

template<typename List>
concept HasColumns = requires(List& list) {
    list.Columns();
};
static_assert(HasColumns<ctlUniListBoxXP>);
static_assert(!HasColumns<ctlUniListBoxExXP>);

TEST_F(ListBoxProperties, TheBagHasTheirKeysInTheirOrder) {
    EXPECT_THAT(Load().PropertyNames(),
                ElementsAre(u"BorderColor", u"BackColor", u"ForeColor", u"Enabled", u"Font", u"TrapTab", u"Tip",
                            u"MultiSelect", u"Sorted", u"HScroll", u"SelBackColor", u"SelForeColor", u"RoundedBorders",
                            u"SelectorStyle", u"RoundSelector", u"BackColorOut", u"UseRoundRegions", u"ManualStart",
                            u"MousePointer", u"MouseIcon", u"Style", u"OLEDropMode", u"ScrollOnMouseWheel",
                            u"Columns"));
}

TEST_F(ListBoxProperties, TheListWithPicturesHasIconDimFirstAndAllowImagesAndNoColumns) {
    EXPECT_THAT(Load<ctlUniListBoxExXP>().PropertyNames(),
                ElementsAre(u"IconDim", u"BorderColor", u"BackColor", u"ForeColor", u"Enabled", u"Font", u"TrapTab",
                            u"Tip", u"MultiSelect", u"Sorted", u"HScroll", u"SelBackColor", u"SelForeColor",
                            u"RoundedBorders", u"SelectorStyle", u"RoundSelector", u"BackColorOut", u"UseRoundRegions",
                            u"AllowImages", u"ManualStart", u"MousePointer", u"MouseIcon", u"Style", u"OLEDropMode",
                            u"ScrollOnMouseWheel"));
}

void ExpectDefaults(const ListBoxCore& list) {
    EXPECT_EQ(list.BorderColor(), -1);
    EXPECT_EQ(list.BackColor(), static_cast<OleColor>(0x80000005u));
    EXPECT_EQ(list.ForeColor(), static_cast<OleColor>(0x80000008u));
    EXPECT_TRUE(list.Enabled());
    EXPECT_TRUE(list.Font().IsEqual(list.Host().Ambient().Font()));
    EXPECT_FALSE(list.TrapTabKey());
    EXPECT_EQ(list.Tip(), u"");
    EXPECT_EQ(list.MultiSelect(), 0);
    EXPECT_FALSE(list.Sorted());
    EXPECT_FALSE(list.HScroll());
    EXPECT_EQ(list.SelBackColor(), static_cast<OleColor>(0x8000000Du));
    EXPECT_EQ(list.SelForeColor(), static_cast<OleColor>(0x8000000Eu));
    EXPECT_FALSE(list.RoundedBorders());
    EXPECT_EQ(list.SelectorStyle(), -1);
    EXPECT_FALSE(list.RoundSelector());
    EXPECT_EQ(list.BackColorOut(), -1);
    EXPECT_FALSE(list.UseRoundRegions());
    EXPECT_FALSE(list.ManualStart());
    EXPECT_EQ(list.MousePointer(), 0);
    EXPECT_TRUE(list.MouseIcon().IsEmpty());
    EXPECT_EQ(list.Style(), 0);
    EXPECT_EQ(list.OLEDropMode(), 0);
    EXPECT_TRUE(list.ScrollOnMouseWheel());
}

TEST_F(ListBoxProperties, DefaultsOfTheListBox) {
    auto& list = Load();
    ExpectDefaults(list);
    EXPECT_EQ(list.Columns(), 0);
}

TEST_F(ListBoxProperties, DefaultsOfTheListWithPictures) {
    auto& list = Load<ctlUniListBoxExXP>();
    ExpectDefaults(list);
    EXPECT_EQ(list.IconDim(), 16);
    EXPECT_TRUE(list.AllowImages());
    EXPECT_EQ(list.OwnerDrawState(), 0);
}

TEST_F(ListBoxProperties, ValuesEqualToTheirDefaultsAreNotStored) {
    PropertyBag bag;
    Load().OnWriteProperties(bag);
    EXPECT_THAT(bag.Keys(), IsEmpty());
}

TEST_F(ListBoxProperties, EveryValueGoesThroughTheBag) {
    auto& list = Load();
    list.BorderColor(1);
    list.BackColor(2);
    list.ForeColor(3);
    list.Enabled(false);
    list.TrapTabKey(true);
    list.Tip(u"Ünïcode");
    list.MultiSelect(2);
    list.Sorted(true);
    list.HScroll(true);
    list.SelBackColor(4);
    list.SelForeColor(5);
    list.SelectorStyle(7);
    list.RoundSelector(true);
    list.BackColorOut(6);
    list.UseRoundRegions(true);
    list.ManualStart(true);
    list.MousePointer(11);
    list.Style(1);
    list.ScrollOnMouseWheel(false);
    list.Columns(3);
    PropertyBag bag;
    list.OnWriteProperties(bag);
    EXPECT_EQ(bag.Count(), 21u);
    auto& other = form.Load<ctlUniListBoxXP>(u"lstOther", {10, 200, 100, 100}, bag);
    for (const std::u16string& sName : list.PropertyNames()) {
        if (sName == u"Font") continue;
        PropertyValue before;
        PropertyValue after;
        ASSERT_TRUE(list.GetProperty(sName, before) && other.GetProperty(sName, after));
        EXPECT_EQ(before, after) << ToUtf8(sName);
    }
    EXPECT_EQ(other.hwnd(), nullptr);
}

TEST_F(ListBoxProperties, AKeyNamedColumnsIsNotReadByTheListWithPictures) {
    auto& list = Load<ctlUniListBoxExXP>({{u"Columns", 3}});
    EXPECT_EQ(StyleOf(list) & LBS_MULTICOLUMN, 0u);
    PropertyValue value;
    EXPECT_FALSE(list.GetProperty(u"Columns", value));
    EXPECT_FALSE(list.PutProperty(u"Columns", 3));
}

TEST_F(ListBoxProperties, UseRoundRegionsTakesRoundedBordersAlong) {
    auto& list = Load();
    list.UseRoundRegions(true);
    EXPECT_TRUE(list.RoundedBorders());
    list.UseRoundRegions(false);
    EXPECT_FALSE(list.RoundedBorders());
}

TEST_F(ListBoxProperties, OnlyTipAndOLEDropModeTellTheContainer) {
    auto& list = Load();
    std::vector<std::u16string> told;
    form.HostOf(list)->Changed.Add([&](const std::u16string& sName) { told.push_back(sName); });
    list.BackColor(1);
    list.Style(1);
    list.RoundedBorders(true);
    list.Tip(u"t");
    list.OLEDropMode(1);
    EXPECT_THAT(told, ElementsAre(u"Tip", u"OLEDropMode"));
}

TEST_F(ListBoxProperties, TheListStandsTwoPixelsInsideTheControl) {
    auto& list = Load();
    RECT rect{};
    GetWindowRect(list.hwnd(), &rect);
    MapWindowPoints(nullptr, list.Host().hWnd(), reinterpret_cast<POINT*>(&rect), 2);
    EXPECT_EQ(rect.left, 2);
    EXPECT_EQ(rect.top, 2);
    EXPECT_EQ(rect.right, 202);
    EXPECT_EQ(rect.bottom, 122);
    list.Host().Size(104, 54);
    GetClientRect(list.hwnd(), &rect);
    EXPECT_EQ(rect.right, 100);
    EXPECT_EQ(rect.bottom, 50);
}

TEST_F(ListBoxProperties, WindowStylesFollowTheProperties) {
    EXPECT_EQ(StyleOf(Load()) | kBarBits, kListBaseStyle | LBS_OWNERDRAWFIXED);
    EXPECT_EQ(StyleOf(Load({{u"MultiSelect", 1}})) | kBarBits, kListBaseStyle | LBS_OWNERDRAWFIXED | 8);
    EXPECT_EQ(StyleOf(Load({{u"MultiSelect", 2}})) | kBarBits, kListBaseStyle | LBS_OWNERDRAWFIXED | 0x800);
    EXPECT_EQ(StyleOf(Load({{u"Sorted", true}})) | kBarBits, kListBaseStyle | LBS_OWNERDRAWFIXED | 2);
    EXPECT_EQ(StyleOf(Load({{u"Columns", 2}})) | kBarBits, kListBaseStyle | LBS_OWNERDRAWFIXED | 0x200);
    EXPECT_EQ(StyleOf(Load<ctlUniListBoxExXP>()) | kBarBits, kListBaseStyle | LBS_OWNERDRAWVARIABLE);
}

TEST_F(ListBoxProperties, ItemsAreAsHighAsTheFontAndFourPixels) {
    auto& list = Load();
    Fill(list, {u"a"});
    EXPECT_EQ(HeightOf(list, 0), 13 + 4);
}

TEST_F(ListBoxProperties, AnotherFontReachesTheListButNotItsItemHeightUntilTheWindowIsMadeAnew) {
    auto& list = Load();
    Fill(list, {u"a"});
    const OleFont large = OleFont::Create(u"Tahoma", 18);
    list.Font(large);
    EXPECT_EQ(reinterpret_cast<HFONT>(Ask(list, WM_GETFONT)), large.hFont());
    EXPECT_EQ(HeightOf(list, 0), 17);
    list.Sorted(true);
    EXPECT_GT(HeightOf(list, 0), 25);
    EXPECT_EQ(reinterpret_cast<HFONT>(Ask(list, WM_GETFONT)), large.hFont());
}

TEST_F(ListBoxProperties, ApplyFontChangesSendsTheFontAgainAndAnswersWithIt) {
    auto& list = Load();
    OleFont font = list.Font();
    font.Bold(true);
    EXPECT_EQ(list.ApplyFontChanges().Object(), font.Object());
    EXPECT_EQ(reinterpret_cast<HFONT>(Ask(list, WM_GETFONT)), font.hFont());
}

TEST_F(ListBoxProperties, ManualStartWaitsForTheOwner) {
    auto& list = Load({{u"ManualStart", true}});
    EXPECT_EQ(list.hwnd(), nullptr);
    list.Style(1);
    list.MultiSelect(1);
    list.Sorted(true);
    list.Columns(2);
    EXPECT_EQ(list.hwnd(), nullptr);
    list.ExternalInitControl();
    ASSERT_NE(list.hwnd(), nullptr);
    EXPECT_EQ(StyleOf(list) | kBarBits,
              kListBaseStyle | LBS_OWNERDRAWFIXED | LBS_MULTIPLESEL | LBS_SORT | LBS_MULTICOLUMN);
    list.AddItem(u"a", -1, {}, true);
    EXPECT_TRUE(list.Selected(0));
}

TEST_F(ListBoxProperties, ASecondStartKeepsListAndItems) {
    auto& list = Load();
    Fill(list, {u"a"});
    HWND before = list.hwnd();
    list.ExternalInitControl();
    EXPECT_EQ(list.hwnd(), before);
    EXPECT_EQ(list.ListCount(), 1);
}

TEST_F(ListBoxProperties, AFreshControlIsNotStarted) {
    auto& list = form.Add<ctlUniListBoxXP>(u"lst", {10, 10, 100, 100});
    EXPECT_EQ(list.hwnd(), nullptr);
    list.ExternalInitControl();
    EXPECT_NE(list.hwnd(), nullptr);
}

TEST_F(ListBoxProperties, IsStartedFromTheStartOn) {
    auto& list = Load<ctlUniListBoxExXP>({{u"ManualStart", true}});
    EXPECT_FALSE(list.IsStarted());
    list.ExternalInitControl();
    EXPECT_TRUE(list.IsStarted());
}

TEST_F(ListBoxProperties, InDesignModeThereIsNoList) {
    form.UserMode(false);
    auto& list = Load();
    EXPECT_EQ(list.hwnd(), nullptr);
    list.ExternalInitControl();
    list.Sorted(true);
    EXPECT_EQ(list.hwnd(), nullptr);
    EXPECT_EQ(list.AddItem(u"a"), 0);
    EXPECT_EQ(list.ListCount(), 0);
}

TEST_F(ListBoxProperties, AllowImagesIsForTheDesignerAndStoredEvenSo) {
    auto& list = Load<ctlUniListBoxExXP>();
    EXPECT_EQ(RaisedBy([&] { list.AllowImages(false); }),
              Raised(std::tuple{0x80040001u, std::u16string(),
                                std::u16string(u"This property can only be set in Design mode")}));
    EXPECT_FALSE(list.AllowImages());
    form.HostOf(list)->UserMode(false);
    list.AllowImages(true);
    EXPECT_TRUE(list.AllowImages());
}

TEST_F(ListBoxProperties, AWindowMadeAnewHasTheItemsInTheOrderOfTheirAddition) {
    auto& list = Load();
    list.AddItem(u"a", -1, u"tag a");
    list.AddItem(u"b", 0, u"tag b");
    list.AddItem(u"c", 1, u"tag c");
    EXPECT_THAT(TextsOf(list), ElementsAre(u"b", u"c", u"a"));
    list.ListIndex(1);
    HWND before = list.hwnd();
    list.MultiSelect(1);
    EXPECT_NE(list.hwnd(), before);
    EXPECT_FALSE(IsWindow(before));
    EXPECT_THAT(TextsOf(list), ElementsAre(u"a", u"b", u"c"));
    EXPECT_EQ(list.ListTag(2), TaggedValue(u"tag c"));
    EXPECT_EQ(list.ListIndex(), 1);
    EXPECT_EQ(list.NewIndex(), 2);
    EXPECT_EQ(list.AddItem(u"d"), 3);
}

TEST_F(ListBoxProperties, NumbersStartAgainWithTheWindowUnlessTheListIsEmpty) {
    auto& list = Load();
    Fill(list, {u"a", u"b"});
    list.RemoveItem(0);
    list.Sorted(true);
    EXPECT_EQ(list.AddItem(u"c"), 1);
    list.RemoveItem(0);
    list.RemoveItem(0);
    list.Sorted(false);
    EXPECT_EQ(list.AddItem(u"d"), 2);
}

TEST_F(ListBoxProperties, NoCurrentItemStaysNone) {
    auto& list = Load();
    Fill(list, {u"a", u"b"});
    int nClicks = 0;
    list.Click.Add([&] { ++nClicks; });
    list.Sorted(true);
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(nClicks, 0);
}

TEST_F(ListBoxProperties, ChangingTheStyleDropsTheFlagsAndChangingBackBringsNone) {
    auto& list = Load({{u"Style", 1}});
    list.AddItem(u"a", -1, {}, true);
    list.AddItem(u"b", -1, {}, true);
    list.MultiSelect(1);
    EXPECT_EQ(list.SelCount(), 2);
    list.Style(0);
    EXPECT_EQ(list.SelCount(), 0);
    list.Style(1);
    EXPECT_FALSE(list.Selected(0));
    EXPECT_FALSE(list.Selected(1));
    EXPECT_THAT(TextsOf(list), ElementsAre(u"a", u"b"));
}

TEST_F(ListBoxProperties, TheSelectionOfAListWithSeveralIsLostWithItsWindow) {
    auto& list = Load({{u"MultiSelect", 1}});
    Fill(list, {u"a", u"b"});
    list.Selected(0, true);
    list.Selected(1, true);
    list.Sorted(true);
    EXPECT_EQ(list.SelCount(), 0);
}

TEST_F(ListBoxProperties, TheSameStyleAgainKeepsTheWindow) {
    auto& list = Load();
    HWND before = list.hwnd();
    list.Style(0);
    EXPECT_EQ(list.hwnd(), before);
}

TEST_F(ListBoxProperties, TheFocusStaysInAListThatIsMadeAnew) {
    auto& list = Load();
    FocusOn(list);
    ASSERT_EQ(GetFocus(), list.hwnd());
    list.Style(1);
    EXPECT_EQ(GetFocus(), list.hwnd());
}

TEST_F(ListBoxProperties, ColumnsMakeTheWindowAnewOnlyFromAndToZero) {
    auto& list = Load();
    Fill(list, {u"a"});
    HWND plain = list.hwnd();
    list.Columns(4);
    HWND columns = list.hwnd();
    EXPECT_NE(columns, plain);
    EXPECT_EQ(ItemRect(list, 0).right, 50);
    list.Columns(2);
    EXPECT_EQ(list.hwnd(), columns);
    EXPECT_EQ(ItemRect(list, 0).right, 100);
    list.Columns(-1);
    EXPECT_EQ(list.hwnd(), columns);
    EXPECT_EQ(ItemRect(list, 0).right, 100);
    list.Columns(4);
    EXPECT_EQ(ItemRect(list, 0).right, 100);
    list.Columns(0);
    EXPECT_NE(list.hwnd(), columns);
    EXPECT_EQ(StyleOf(list) & LBS_MULTICOLUMN, 0u);
}

TEST_F(ListBoxProperties, ColumnsKeepTheirNumberWhenTheControlIsResized) {
    auto& list = Load({{u"Columns", 3}});
    Fill(list, {u"a"});
    EXPECT_EQ(ItemRect(list, 0).right, 66);
    list.Host().Size(304, 124);
    EXPECT_EQ(ItemRect(list, 0).right, 100);
}

// The platform cuts a window's region to the window.
bool HasRoundRegion(HWND window, int w, int h) {
    const OwnedRegion have(CreateRectRgn(0, 0, 0, 0));
    if (GetWindowRgn(window, have.Get()) == ERROR) return false;
    const OwnedRegion expected = MakeRoundRegion(w, h, 2);
    const OwnedRegion all(CreateRectRgn(0, 0, w, h));
    CombineRgn(have.Get(), have.Get(), all.Get(), RGN_AND);
    CombineRgn(expected.Get(), expected.Get(), all.Get(), RGN_AND);
    return EqualRgn(have.Get(), expected.Get()) != FALSE;
}
bool HasRegion(HWND window) {
    const OwnedRegion have(CreateRectRgn(0, 0, 0, 0));
    return GetWindowRgn(window, have.Get()) != ERROR;
}

TEST_F(ListBoxProperties, RoundRegionsGiveTheWindowAShape) {
    auto& list = Load();
    EXPECT_FALSE(HasRegion(list.Host().hWnd()));
    list.UseRoundRegions(true);
    EXPECT_TRUE(HasRoundRegion(list.Host().hWnd(), 204, 124));
    list.Host().Size(104, 54);
    EXPECT_TRUE(HasRoundRegion(list.Host().hWnd(), 104, 54));
    list.RoundedBorders(false);
    EXPECT_FALSE(HasRegion(list.Host().hWnd()));
}

HWND WINAPI MakeNoListBox(DWORD exStyle, LPCWSTR sClass, LPCWSTR, DWORD style, int x, int y, int w, int h, HWND parent,
                          HMENU menu, HINSTANCE instance, LPVOID parameter) {
    if (std::wstring_view(sClass) == L"LISTBOX") return nullptr;
    return CreateWindowExA(exStyle, "STATIC", nullptr, style, x, y, w, h, parent, menu, instance, parameter);
}

TEST_F(ListBoxProperties, AListThatCannotBeMadeLeavesTheControlWithoutEffect) {
    auto& list = Load({{u"ManualStart", true}});
    {
        const PatchedImport patch("CreateWindowExW", MakeNoListBox);
        list.ExternalInitControl();
        EXPECT_EQ(list.hwnd(), nullptr);
        EXPECT_EQ(list.AddItem(u"a"), 0);
        list.Style(1);
        SetFocus(list.Host().hWnd());
    }
    list.MultiSelect(1);
    EXPECT_NE(list.hwnd(), nullptr);
}

TEST_F(ListBoxProperties, TheEndOfTheControlEndsItsList) {
    auto& list = Load();
    HWND window = list.hwnd();
    form.Remove(list);
    EXPECT_FALSE(IsWindow(window));
}

} // namespace
} // namespace orvanta::testing
