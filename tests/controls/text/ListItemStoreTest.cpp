#include "controls/text/ListItemStore.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace orvanta::testing {
namespace {

std::int32_t TypeAheadIn(const std::vector<std::u16string>& texts, std::u16string_view s, std::int32_t lCurrent) {
    return FindTypeAhead(
        s, lCurrent, static_cast<std::int32_t>(texts.size()),
        [&texts](std::int32_t l) -> std::u16string_view { return texts[static_cast<std::size_t>(l)]; });
}

TEST(ListItemStore, NumbersRunFromZeroAndAreNeverUsedTwice) {
    ListItemStore items;
    EXPECT_EQ(items.Add({u"a", {}, false}), 0);
    EXPECT_EQ(items.Add({u"b", {}, false}), 1);
    items.Remove(1);
    items.Remove(0);
    EXPECT_TRUE(items.Empty());
    EXPECT_EQ(items.Add({u"c", {}, false}), 2);
}

TEST(ListItemStore, AnItemIsFoundByItsNumberUntilItIsRemoved) {
    ListItemStore items;
    const std::int32_t lNumber = items.Add({u"Ωmega", TaggedValue(7), false});
    ASSERT_NE(items.Find(lNumber), nullptr);
    EXPECT_EQ(items.Find(lNumber)->vTag, TaggedValue(7));
    EXPECT_EQ(items.TextOf(lNumber), u"Ωmega");
    items.Remove(lNumber);
    EXPECT_EQ(items.Find(lNumber), nullptr);
    EXPECT_EQ(items.TextOf(lNumber), u"");
}

TEST(ListItemStore, WithoutChecksAFlagIsNotKept) {
    ListItemStore items;
    const std::int32_t lNumber = items.Add({u"a", {}, true});
    EXPECT_FALSE(items.Find(lNumber)->bChecked);
    items.InvertCheck(lNumber);
    EXPECT_FALSE(items.Find(lNumber)->bChecked);
}

TEST(ListItemStore, WithChecksAFlagIsKeptAndTurns) {
    ListItemStore items(true);
    const std::int32_t lNumber = items.Add({u"a", {}, true});
    EXPECT_TRUE(items.Find(lNumber)->bChecked);
    items.InvertCheck(lNumber);
    EXPECT_FALSE(items.Find(lNumber)->bChecked);
    items.InvertCheck(99);
    EXPECT_EQ(items.Count(), 1u);
}

TEST(ListItemStore, AnEmptyStoreTakesUpChecksAndItsNumbersRunOn) {
    ListItemStore items;
    items.Remove(items.Add({u"a", {}, false}));
    items.KeepChecks(true);
    const std::int32_t lNumber = items.Add({u"b", {}, true});
    EXPECT_EQ(lNumber, 1);
    EXPECT_TRUE(items.Find(lNumber)->bChecked);
}

TEST(ListItemStore, ItemsComeOutInTheOrderOfTheirAddition) {
    ListItemStore items;
    for (int n = 0; n < 1000; ++n)
        items.Add({std::u16string(1, static_cast<char16_t>(n)), {}, false});
    for (int n = 0; n < 1000; n += 3)
        items.Remove(n);
    const std::vector<ListItem> all = items.TakeAll();
    ASSERT_EQ(all.size(), 666u);
    EXPECT_TRUE(
        std::is_sorted(all.begin(), all.end(), [](const ListItem& a, const ListItem& b) { return a.sText < b.sText; }));
}

TEST(ItemOrder, IsThatOfTheCodeUnits) {
    EXPECT_EQ(CompareItemTexts(u"Z", u"a"), -1);
    EXPECT_EQ(CompareItemTexts(u"a", u"Z"), 1);
    EXPECT_EQ(CompareItemTexts(u"a", u"a"), 0);
    EXPECT_EQ(CompareItemTexts(u"a", u"ab"), -1);
    EXPECT_EQ(CompareItemTexts(u"", u"a"), -1);
    // A code unit is a number without a sign; a surrogate pair stands before U+FFFD.
    EXPECT_EQ(CompareItemTexts(u"\uFFFD", u"z"), 1);
    EXPECT_EQ(CompareItemTexts(u"\U0001F600", u"\uFFFD"), -1);
}

TEST(TypeAhead, FindsTheNextItemAndStartsAgainAtTheTop) {
    const std::vector<std::u16string> texts{u"beta", u"alpha", u"bravo", u"charlie"};
    EXPECT_EQ(TypeAheadIn(texts, u"b", -1), 0);
    EXPECT_EQ(TypeAheadIn(texts, u"b", 0), 2);
    EXPECT_EQ(TypeAheadIn(texts, u"b", 2), 0);
}

TEST(TypeAhead, TheOnlyItemThatFitsIsFoundAgain) {
    EXPECT_EQ(TypeAheadIn({u"alpha", u"beta"}, u"b", 1), 1);
}

TEST(TypeAhead, TakesUpperAndLowerCaseAlike) {
    EXPECT_EQ(TypeAheadIn({u"alpha", u"Beta"}, u"b", -1), 1);
    EXPECT_EQ(TypeAheadIn({u"alpha", u"ägypten"}, u"Ä", -1), 1);
    EXPECT_EQ(TypeAheadIn({u"alpha", u"Жук"}, u"ж", -1), 1);
}

TEST(TypeAhead, FindsNothingWithoutAFittingItem) {
    EXPECT_EQ(TypeAheadIn({}, u"a", -1), -1);
    EXPECT_EQ(TypeAheadIn({u"", u"b"}, u"a", 0), -1);
    EXPECT_EQ(TypeAheadIn({u"a"}, u"ab", -1), -1);
}

TEST(TypeAhead, MoreThanOneCharacterIsOneStart) {
    EXPECT_EQ(TypeAheadIn({u"中", u"中文", u"日本"}, u"中文", -1), 1);
}

} // namespace
} // namespace orvanta::testing
