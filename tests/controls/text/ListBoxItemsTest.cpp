// The items of the list boxes: texts, tags, positions, selection, failures.
#include "tests/controls/text/ListFixture.h"

#include <gmock/gmock.h>

namespace orvanta::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ListBoxItems : public ListFixture {};

TEST_F(ListBoxItems, AddItemAppendsAndAnswersWithNumbersFromZero) {
    auto& list = Load();
    EXPECT_EQ(list.AddItem(u"one"), 0);
    EXPECT_EQ(list.AddItem(u"two"), 1);
    EXPECT_EQ(list.NewIndex(), 1);
    EXPECT_EQ(list.AddItem(u"zero", 0), 2);
    EXPECT_EQ(list.NewIndex(), 0);
    EXPECT_THAT(TextsOf(list), ElementsAre(u"zero", u"one", u"two"));
}

TEST_F(ListBoxItems, TextsOfAnyScriptComeBackAsTheyWere) {
    auto& list = Load();
    Fill(list, {u"Ελλάδα", u"Привет", u"שלום", u"中文", u"\U0001F600", u"a\tb", u""});
    EXPECT_THAT(TextsOf(list), ElementsAre(u"Ελλάδα", u"Привет", u"שלום", u"中文", u"\U0001F600", u"a\tb", u""));
}

TEST_F(ListBoxItems, AnItemThatTheListDoesNotTakeLeavesNothingBehind) {
    auto& list = Load();
    Fill(list, {u"a"});
    EXPECT_EQ(list.AddItem(u"b", 5), 1);
    EXPECT_EQ(list.NewIndex(), -1);
    list.Sorted(true);
    EXPECT_THAT(TextsOf(list), ElementsAre(u"a"));
}

TEST_F(ListBoxItems, TheNumberAfterARemovalIsNew) {
    auto& list = Load();
    list.AddItem(u"a");
    list.AddItem(u"b");
    list.RemoveItem(1);
    list.RemoveItem(0);
    EXPECT_EQ(list.ListCount(), 0);
    EXPECT_EQ(list.AddItem(u"c"), 2);
}

TEST_F(ListBoxItems, ClearStartsNumbersAgain) {
    auto& list = Load();
    Fill(list, {u"a", u"b"});
    list.Clear();
    EXPECT_EQ(list.ListCount(), 0);
    EXPECT_EQ(list.NewIndex(), -1);
    EXPECT_EQ(list.AddItem(u"c"), 0);
}

TEST_F(ListBoxItems, ListBehindTheLastItemAndBeforeTheFirstOneFails) {
    auto& list = Load();
    Fill(list, {u"a"});
    EXPECT_EQ(RaisedBy([&] { list.List(list.ListCount()); }), WrongIndex(u"ctlUniListBoxXP.List"));
    EXPECT_EQ(RaisedBy([&] { list.List(-1); }), WrongIndex(u"ctlUniListBoxXP.List"));
    EXPECT_EQ(RaisedBy([&] { list.List(1, u"x"); }), WrongIndex(u"ctlUniListBoxXP.List"));
}

TEST_F(ListBoxItems, EachMemberNamesItselfInItsFailure) {
    auto& list = Load();
    EXPECT_EQ(RaisedBy([&] { list.ListTag(0); }), WrongIndex(u"ctlUniListBoxXP.ListTag"));
    EXPECT_EQ(RaisedBy([&] { list.ListTag(0, 1); }), WrongIndex(u"ctlUniListBoxXP.ListTag"));
    EXPECT_EQ(RaisedBy([&] { list.ItemData(0); }), WrongIndex(u"ctlUniListBoxXP.ListTag"));
    EXPECT_EQ(RaisedBy([&] { list.ListIndex(0); }), WrongIndex(u"ctlUniListBoxXP.ListIndex"));
    EXPECT_EQ(RaisedBy([&] { list.RemoveItem(0); }), WrongIndex(u"ctlUniListBoxXP.RemoveItem"));
    EXPECT_EQ(RaisedBy([&] { list.RemoveItem(-1); }), WrongIndex(u"ctlUniListBoxXP.RemoveItem"));
    EXPECT_EQ(RaisedBy([&] { list.Selected(0); }), WrongIndex(u"ctlUniListBoxXP.Selected"));
    EXPECT_EQ(RaisedBy([&] { list.Selected(0, true); }), WrongIndex(u"ctlUniListBoxXP.Selected"));
    EXPECT_EQ(RaisedBy([&] { list.SelCount(); }), WrongIndex(u"ctlUniListBoxXP.Selected"));
}

TEST_F(ListBoxItems, SelectedOfACheckListNamesTheOtherControlInItsFailure) {
    auto& list = Load({{u"Style", 1}});
    EXPECT_EQ(RaisedBy([&] { list.Selected(0); }), WrongIndex(u"ctlUniListboxExXP.Selected"));
    EXPECT_EQ(RaisedBy([&] { list.Selected(0, true); }), WrongIndex(u"ctlUniListboxExXP.Selected"));
    EXPECT_EQ(list.SelCount(), 0);
}

TEST_F(ListBoxItems, TheListWithPicturesIsSpelledWithALowerCaseBInItsFailures) {
    auto& list = Load<ctlUniListBoxExXP>();
    EXPECT_EQ(RaisedBy([&] { list.List(0); }), WrongIndex(u"ctlUniListboxExXP.List"));
    EXPECT_EQ(RaisedBy([&] { list.ListTag(0); }), WrongIndex(u"ctlUniListboxExXP.ListTag"));
    EXPECT_EQ(RaisedBy([&] { list.ListIndex(0); }), WrongIndex(u"ctlUniListboxExXP.ListIndex"));
    EXPECT_EQ(RaisedBy([&] { list.RemoveItem(0); }), WrongIndex(u"ctlUniListboxExXP.RemoveItem"));
    EXPECT_EQ(RaisedBy([&] { list.Selected(0); }), WrongIndex(u"ctlUniListboxExXP.Selected"));
    EXPECT_EQ(RaisedBy([&] { list.SelCount(); }), WrongIndex(u"ctlUniListboxExXP.Selected"));
}

TEST_F(ListBoxItems, BeforeTheStartMembersDoNothingAndReportNothing) {
    auto& list = Load({{u"ManualStart", true}});
    EXPECT_EQ(list.hwnd(), nullptr);
    EXPECT_EQ(list.AddItem(u"a"), 0);
    EXPECT_EQ(list.ListCount(), 0);
    EXPECT_EQ(list.List(0), u"");
    EXPECT_EQ(list.ListTag(3), TaggedValue());
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(list.Text(), u"");
    EXPECT_EQ(list.SelCount(), 0);
    EXPECT_FALSE(list.Selected(0));
    EXPECT_EQ(list.GetListIndexByY(5), -1);
    list.RemoveItem(0);
    list.Clear();
    list.ListIndex(4);
    list.Selected(0, true);
    list.BeginUpdate();
    list.EndUpdate();
    list.ExternalInitControl();
    EXPECT_EQ(list.ListCount(), 0);
}

TEST_F(ListBoxItems, TextOfNoCurrentItemIsEmpty) {
    auto& list = Load();
    EXPECT_EQ(list.Text(), u"");
    Fill(list, {u"a", u"b"});
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(list.Text(), u"");
    list.ListIndex(1);
    EXPECT_EQ(list.Text(), u"b");
    list.ListIndex(-1);
    EXPECT_EQ(list.Text(), u"");
}

TEST_F(ListBoxItems, TextOfAnEmptyListWithSeveralSelectedItemsIsEmptyToo) {
    EXPECT_EQ(Load({{u"MultiSelect", 2}}).Text(), u"");
}

TEST_F(ListBoxItems, SettingListIndexCountsAsAClick) {
    auto& list = Load();
    Fill(list, {u"a", u"b"});
    int nClicks = 0;
    list.Click.Add([&] { ++nClicks; });
    list.ListIndex(1);
    EXPECT_EQ(nClicks, 1);
    list.ListIndex(-1);
    EXPECT_EQ(nClicks, 2);
    RaisedBy([&] { list.ListIndex(9); });
    EXPECT_EQ(nClicks, 2);
}

TEST_F(ListBoxItems, ItemDataIsTheTagWhenItIsANumber) {
    auto& list = Load();
    list.AddItem(u"a", -1, u"abc");
    list.AddItem(u"b", -1, u"12");
    list.AddItem(u"c");
    list.AddItem(u"d", -1, 2.5);
    list.AddItem(u"e", -1, true);
    EXPECT_EQ(list.ItemData(0), 0);
    EXPECT_EQ(list.ItemData(1), 12);
    EXPECT_EQ(list.ItemData(2), 0);
    EXPECT_EQ(list.ItemData(3), 2);
    EXPECT_EQ(list.ItemData(4), -1);
    list.ItemData(0, 77);
    EXPECT_EQ(list.ListTag(0), TaggedValue(77));
}

TEST_F(ListBoxItems, ItemDataOfANumberThatIsTooLargeOverflows) {
    auto& list = Load();
    list.AddItem(u"a", -1, u"3000000000");
    EXPECT_EQ(std::get<0>(RaisedBy([&] { list.ItemData(0); }).value()), 6u);
}

TEST_F(ListBoxItems, TagsGoWithTheirItems) {
    auto& list = Load({{u"Sorted", true}});
    list.AddItem(u"m", -1, u"tag of m");
    list.AddItem(u"c", -1, u"tag of c");
    list.ListTag(1, u"new tag of m");
    EXPECT_EQ(list.ListTag(0), TaggedValue(u"tag of c"));
    EXPECT_EQ(list.ListTag(1), TaggedValue(u"new tag of m"));
}

TEST_F(ListBoxItems, SortedItemsGoByCodeUnits) {
    auto& list = Load({{u"Sorted", true}});
    Fill(list, {u"a", u"Z", u"b", u"Б", u"A", u"ä"});
    EXPECT_THAT(TextsOf(list), ElementsAre(u"A", u"Z", u"a", u"b", u"ä", u"Б"));
    EXPECT_EQ(list.NewIndex(), 4);
}

TEST_F(ListBoxItems, AnIndexPutsAnItemWhereTheOrderWouldNot) {
    auto& list = Load({{u"Sorted", true}});
    Fill(list, {u"a", u"b"});
    list.AddItem(u"z", 0);
    EXPECT_THAT(TextsOf(list), ElementsAre(u"z", u"a", u"b"));
}

TEST_F(ListBoxItems, ANewTextStaysWhereItIs) {
    auto& list = Load({{u"Sorted", true}});
    Fill(list, {u"a", u"b"});
    list.List(0, u"z");
    EXPECT_THAT(TextsOf(list), ElementsAre(u"z", u"b"));
}

TEST_F(ListBoxItems, SelectedIsTheCheckStateOfACheckListAndNeverTheHighlight) {
    auto& list = Load({{u"Style", 1}});
    list.AddItem(u"a", -1, {}, true);
    list.AddItem(u"b");
    list.ListIndex(1);
    EXPECT_TRUE(list.Selected(0));
    EXPECT_FALSE(list.Selected(1));
    list.Selected(1, true);
    EXPECT_EQ(list.SelCount(), 2);
    list.Selected(0, false);
    EXPECT_EQ(list.SelCount(), 1);
    EXPECT_EQ(list.ListIndex(), 1);
}

TEST_F(ListBoxItems, SelectedOfAPlainListIsTheHighlight) {
    auto& list = Load();
    list.AddItem(u"a", -1, {}, true);
    list.AddItem(u"b");
    EXPECT_FALSE(list.Selected(0));
    list.ListIndex(1);
    EXPECT_TRUE(list.Selected(1));
}

TEST_F(ListBoxItems, SeveralItemsCanBeSelectedWithMultiSelect) {
    auto& list = Load({{u"MultiSelect", 1}});
    Fill(list, {u"a", u"b", u"c"});
    list.Selected(0, true);
    list.Selected(2, true);
    EXPECT_EQ(list.SelCount(), 2);
    EXPECT_FALSE(list.Selected(1));
    list.ListIndex(1);
    EXPECT_EQ(list.ListIndex(), 1);
    EXPECT_FALSE(list.Selected(1));
    EXPECT_EQ(list.Text(), u"b");
}

TEST_F(ListBoxItems, TheItemAtARowOfPixelsIsFoundAndBlankSpaceIsNone) {
    auto& list = Load();
    Fill(list, {u"a", u"b", u"c"});
    const int h = HeightOf(list, 0);
    EXPECT_EQ(list.GetListIndexByY(0), 0);
    EXPECT_EQ(list.GetListIndexByY(h - 1), 0);
    EXPECT_EQ(list.GetListIndexByY(h), 1);
    EXPECT_EQ(list.GetListIndexByY(3 * h), -1);
    EXPECT_EQ(list.GetListIndexByY(-1), -1);
}

TEST_F(ListBoxItems, TheItemAtARowOfPixelsIsRightBeyondSixteenBits) {
    auto& list = Load();
    list.BeginUpdate();
    for (int n = 0; n < 70000; ++n)
        list.AddItem(u"x");
    list.EndUpdate();
    Ask(list, LB_SETTOPINDEX, 69000);
    EXPECT_EQ(list.GetListIndexByY(HeightOf(list, 0) + 1), 69001);
}

TEST_F(ListBoxItems, TheExtentGrowsWithTheLongestItemAndNeverShrinks) {
    auto& list = Load({{u"HScroll", true}});
    list.AddItem(u"short");
    const auto lShort = Ask(list, LB_GETHORIZONTALEXTENT);
    EXPECT_GT(lShort, 0);
    const std::u16string sLong(100, u'W');
    list.AddItem(sLong);
    const auto lLong = Ask(list, LB_GETHORIZONTALEXTENT);
    EXPECT_GT(lLong, 10 * lShort);
    list.RemoveItem(1);
    list.AddItem(u"x");
    EXPECT_EQ(Ask(list, LB_GETHORIZONTALEXTENT), lLong);
}

TEST_F(ListBoxItems, TheExtentIsTheWidthOfTheTextInTheFontOfTheList) {
    auto& list = Load({{u"HScroll", true}});
    const std::u16string s = u"The quick & brown fox jumps over the lazy dog";
    list.AddItem(s);
    const WindowDc dc(list.hwnd());
    const Selection font(dc.Get(), list.Font().hFont());
    RECT rect{};
    DrawTextW(dc.Get(), reinterpret_cast<const wchar_t*>(s.c_str()), -1, &rect,
              DT_CALCRECT | DT_SINGLELINE | DT_NOPREFIX);
    EXPECT_EQ(Ask(list, LB_GETHORIZONTALEXTENT), rect.right);
}

TEST_F(ListBoxItems, WithoutHScrollThereIsNoExtentAndTurningItOffTakesItAway) {
    auto& list = Load();
    list.AddItem(std::u16string(100, u'W'));
    EXPECT_EQ(Ask(list, LB_GETHORIZONTALEXTENT), 0);
    list.HScroll(true);
    EXPECT_EQ(Ask(list, LB_GETHORIZONTALEXTENT), 0);
    list.AddItem(std::u16string(100, u'W'));
    EXPECT_GT(Ask(list, LB_GETHORIZONTALEXTENT), 0);
    list.HScroll(false);
    EXPECT_EQ(Ask(list, LB_GETHORIZONTALEXTENT), 0);
}

TEST_F(ListBoxItems, TheFirstEndUpdateEndsAllUpdates) {
    auto& list = Load();
    list.BeginUpdate();
    list.BeginUpdate();
    Fill(list, {u"W", u"W"});
    list.EndUpdate();
    const WindowPixels pixels = Grab(list.hwnd());
    const OleColor back = ResolveColor(kSystemWindow);
    const std::vector<OleColor> all = pixels.All();
    EXPECT_TRUE(std::any_of(all.begin(), all.end(), [back](OleColor c) { return c != back; }));
}

} // namespace
} // namespace orvanta::testing
