#include "engine/HandlerIndex.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace orvanta {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using enum HandlerEvent;

TEST(HandlerIndex, ALineIsListedUnderEveryHandlerThatStandsInItInsideLongerWordsToo) {
    const std::vector<std::u16string> names = {u"Text1", u"1", u"MyText1", u""};
    HandlerIndex index(names);
    index.AddLine(5, u"MyText1_Click and Text1_DblClickX");
    index.AddLine(9, u"Text1_click Text1 _Click Text10_KeyPress");
    EXPECT_THAT(index.Lines(index.NameOf(u"MyText1"), Click), ElementsAre(5u));
    EXPECT_THAT(index.Lines(index.NameOf(u"Text1"), Click), ElementsAre(5u));
    EXPECT_THAT(index.Lines(index.NameOf(u"Text1"), DblClick), ElementsAre(5u));
    EXPECT_THAT(index.Lines(index.NameOf(u"MyText1"), DblClick), IsEmpty());
    EXPECT_THAT(index.Lines(index.NameOf(u"1"), Click), ElementsAre(5u));
    EXPECT_THAT(index.Lines(index.NameOf(u""), Click), ElementsAre(5u, 9u));
    EXPECT_THAT(index.Lines(index.NameOf(u""), KeyPress), ElementsAre(9u));
    EXPECT_THAT(index.Lines(index.NameOf(u"Text1"), KeyPress), IsEmpty());
}

TEST(HandlerIndex, LinesComeInAnyOrderAndMoreThanOnce) {
    const std::vector<std::u16string> names = {u"a"};
    HandlerIndex index(names);
    for (const std::uint32_t nLine : {7u, 3u, 7u, 5u, 3u})
        index.AddLine(nLine, u"a_Click a_Click");
    const HandlerIndex::Name name = index.NameOf(u"a");
    EXPECT_THAT(index.Lines(name, Click), ElementsAre(3u, 5u, 7u));
    EXPECT_TRUE(index.IsListed(name, Click, 5));
    EXPECT_FALSE(index.IsListed(name, Click, 4));
    EXPECT_FALSE(index.IsListed(name, KeyPress, 5));
}

TEST(HandlerIndex, NextGoesOverAllEventsOfTheName) {
    const std::vector<std::u16string> names = {u"a", u"b"};
    HandlerIndex index(names);
    index.AddLine(8, u"a_Click");
    index.AddLine(2, u"a_KeyPress");
    index.AddLine(4, u"b_DblClick");
    const HandlerIndex::Name name = index.NameOf(u"a");
    EXPECT_EQ(index.Next(name, 0), 2u);
    EXPECT_EQ(index.Next(name, 2), 2u);
    EXPECT_EQ(index.Next(name, 3), 8u);
    EXPECT_EQ(index.Next(name, 9), HandlerIndex::kNone);
}

TEST(HandlerIndex, EqualNamesShareAnEntry) {
    const std::vector<std::u16string> names = {u"a", u"b", u"a"};
    HandlerIndex index(names);
    EXPECT_EQ(index.NameOf(u"a"), 0u);
    EXPECT_EQ(index.NameOf(u"b"), 1u);
}

TEST(HandlerIndex, TheSuffixesAreThoseOfTheEvents) {
    EXPECT_EQ(EventSuffix(KeyPress), u"_KeyPress");
    EXPECT_EQ(EventSuffix(Click), u"_Click");
    EXPECT_EQ(EventSuffix(DblClick), u"_DblClick");
}

} // namespace
} // namespace orvanta
