#include "base/Collection.h"

#include "tests/support/NumberRaisedBy.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

namespace orvanta {
namespace {

using testing::NumberRaisedBy;

TEST(Collection, CountsItsPositionsFromOneInTheOrderOfAdding) {
    Collection<int> items;
    EXPECT_TRUE(items.Empty());
    items.Add(30);
    items.Add(10, u"ten");
    items.Add(20);
    EXPECT_EQ(items.Count(), 3u);
    EXPECT_FALSE(items.Empty());
    EXPECT_EQ(items.Item(1), 30);
    EXPECT_EQ(items.Item(2), 10);
    EXPECT_EQ(items.Item(3), 20);
    EXPECT_EQ(items.Item(u"ten"), 10);
}

TEST(Collection, HoldsTaggedValuesUnlessToldOtherwise) {
    Collection<> items;
    items.Add(u"text", u"a");
    items.Add(2.5);
    EXPECT_EQ(items.Item(u"a"), TaggedValue(u"text"));
    EXPECT_EQ(items.Item(2), TaggedValue(2.5));
}

TEST(Collection, PositionsOutsideRaiseSubscriptOutOfRange) {
    Collection<int> items;
    EXPECT_EQ(NumberRaisedBy([&] { items.Item(1); }), 9u);
    items.Add(1);
    EXPECT_EQ(NumberRaisedBy([&] { items.Item(0); }), 9u);
    EXPECT_EQ(NumberRaisedBy([&] { items.Item(2); }), 9u);
    EXPECT_EQ(NumberRaisedBy([&] { items.Remove(0); }), 9u);
    EXPECT_EQ(NumberRaisedBy([&] { items.Remove(2); }), 9u);
    EXPECT_EQ(NumberRaisedBy([&] { std::as_const(items).Item(2); }), 9u);
    EXPECT_EQ(items.Count(), 1u);
}

TEST(Collection, UnknownKeysRaiseInvalidProcedureCall) {
    Collection<int> items;
    items.Add(1, u"known");
    EXPECT_EQ(NumberRaisedBy([&] { items.Item(u"unknown"); }), 5u);
    EXPECT_EQ(NumberRaisedBy([&] { items.Item(u""); }), 5u);
    EXPECT_EQ(NumberRaisedBy([&] { items.Remove(u"unknown"); }), 5u);
    EXPECT_EQ(items.Count(), 1u);
}

TEST(Collection, AKeyInUseIsRefusedAndTheListStaysAsItWas) {
    Collection<int> items;
    items.Add(1, u"Key");
    EXPECT_EQ(NumberRaisedBy([&] { items.Add(2, u"kEY"); }), 457u);
    EXPECT_EQ(items.Count(), 1u);
    EXPECT_EQ(items.Item(u"key"), 1);
}

TEST(Collection, KeysCompareWithoutRegardToCaseInOtherAlphabetsToo) {
    Collection<int> items;
    items.Add(1, u"Größe");
    items.Add(2, u"ЖУК");
    items.Add(3, u"Ωμέγα");
    EXPECT_EQ(items.Item(u"GRÖßE"), 1);
    EXPECT_EQ(items.Item(u"жук"), 2);
    EXPECT_EQ(items.Item(u"ωμΈγα"), 3);
    EXPECT_TRUE(items.HasKey(u"größe"));
    EXPECT_FALSE(items.HasKey(u"grosse"));
}

TEST(Collection, TheEmptyTextIsAKeyLikeAnyOther) {
    Collection<int> items;
    items.Add(1);
    EXPECT_FALSE(items.HasKey(u""));
    items.Add(2, u"");
    EXPECT_EQ(items.Item(u""), 2);
}

TEST(Collection, KeysFollowTheirEntriesWhenEarlierOnesAreRemoved) {
    Collection<int> items;
    items.Add(1, u"one");
    items.Add(2);
    items.Add(3, u"three");
    items.Add(4, u"four");
    items.Remove(1);
    EXPECT_FALSE(items.HasKey(u"one"));
    EXPECT_EQ(items.Item(u"three"), 3);
    items.Remove(u"THREE");
    EXPECT_EQ(items.Item(u"four"), 4);
    EXPECT_EQ(items.Item(1), 2);
    EXPECT_EQ(items.Item(2), 4);
    EXPECT_EQ(items.Count(), 2u);
}

TEST(Collection, AKeyIsFreeAgainAfterItsEntryWasRemoved) {
    Collection<int> items;
    items.Add(1, u"key");
    items.Remove(u"key");
    items.Add(2, u"key");
    EXPECT_EQ(items.Item(u"key"), 2);
    items.Clear();
    EXPECT_EQ(items.Count(), 0u);
    items.Add(3, u"key");
    EXPECT_EQ(items.Item(1), 3);
}

TEST(Collection, AnEntryCanBeChangedInPlace) {
    Collection<std::u16string> items;
    items.Add(u"old", u"key");
    items.Item(u"key") = u"new";
    EXPECT_EQ(items.Item(1), u"new");
}

TEST(Collection, HoldsWhatCanOnlyBeMoved) {
    Collection<std::unique_ptr<int>> items;
    items.Add(std::make_unique<int>(1), u"one");
    items.Add(std::make_unique<int>(2), u"two");
    items.Remove(1);
    EXPECT_EQ(*items.Item(u"two"), 2);
}

} // namespace
} // namespace orvanta
