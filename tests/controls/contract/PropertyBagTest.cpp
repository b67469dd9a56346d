#include "controls/contract/PropertyBag.h"

#include "base/Failure.h"
#include "tests/support/NumberRaisedBy.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

namespace orvanta::testing {

namespace {

using ::testing::ElementsAre;

// An object that can change, so that a bag keeps copies of it.
class Note final : public PropertyObject {
public:
    explicit Note(std::u16string s) : sText(std::move(s)) {}
    bool IsEqual(const PropertyObject& other) const override {
        const auto* note = dynamic_cast<const Note*>(&other);
        return note && note->sText == sText;
    }
    std::shared_ptr<const PropertyObject> Kept() const override { return std::make_shared<Note>(sText); }

    mutable std::u16string sText;
};

std::u16string NoteText(const PropertyValue& value) {
    return dynamic_cast<const Note&>(*value.ObjectOrNone()).sText;
}

TEST(PropertyBag, KeysCompareWithoutRegardToCase) {
    PropertyBag bag;
    bag.WriteProperty(u"BackColor", std::int32_t{7}, std::int32_t{0});
    EXPECT_EQ(bag.ReadProperty(u"backcolor").Plain().ToInteger(), 7);
    bag.WriteProperty(u"BACKCOLOR", std::int32_t{8}, std::int32_t{0});
    EXPECT_EQ(bag.Count(), 1U);
    EXPECT_EQ(bag.ReadProperty(u"BackColor").Plain().ToInteger(), 8);
    EXPECT_THAT(bag.Keys(), ElementsAre(u"BackColor"));
}

TEST(PropertyBag, AValueEqualToItsDefaultIsNotStored) {
    PropertyBag bag;
    bag.WriteProperty(u"Caption", u"", u"");
    bag.WriteProperty(u"Margin", std::int32_t{0}, std::int32_t{0});
    bag.WriteProperty(u"Picture", PropertyValue(), PropertyValue());
    bag.WriteProperty(u"Data", PropertyBytes{}, PropertyBytes{});
    EXPECT_EQ(bag.Count(), 0U);
    EXPECT_FALSE(bag.Contains(u"Caption"));
}

TEST(PropertyBag, WritingTheDefaultTakesAwayWhatWasStored) {
    PropertyBag bag;
    for (const char16_t* key : {u"A", u"B", u"C"})
        bag.WriteProperty(key, key, u"");
    bag.WriteProperty(u"b", u"", u"");
    EXPECT_THAT(bag.Keys(), ElementsAre(u"A", u"C"));
    EXPECT_EQ(bag.ReadProperty(u"C").Plain().ToText(), u"C");
    EXPECT_EQ(bag.ReadProperty(u"B", u"none").Plain().ToText(), u"none");
}

TEST(PropertyBag, WithoutADefaultEveryValueIsStored) {
    PropertyBag bag;
    bag.WriteProperty(u"Pics", std::int32_t{0});
    EXPECT_TRUE(bag.Contains(u"pics"));
}

TEST(PropertyBag, WhatIsNotStoredReadsAsItsDefault) {
    const PropertyBag bag;
    EXPECT_EQ(bag.ReadProperty(u"Style", std::int32_t{-1}).Plain().ToInteger(), -1);
    EXPECT_TRUE(bag.ReadProperty(u"Style").IsNothing());
}

TEST(PropertyBag, TheIntegerZeroIsNotTheBooleanFalse) {
    PropertyBag bag;
    bag.WriteProperty(u"X", false, std::int32_t{0});
    EXPECT_TRUE(bag.Contains(u"X"));
}

TEST(PropertyBag, BytesComeBackAsTheyWere) {
    PropertyBag bag;
    const PropertyBytes bytes{0, 255, 13, 10, 0};
    bag.WriteProperty(u"Data", bytes, PropertyBytes{});
    EXPECT_EQ(bag.ReadProperty(u"Data").Bytes(), bytes);
    EXPECT_EQ(NumberRaisedBy([&] { bag.ReadProperty(u"Data").Plain(); }), TypeMismatch().Number());
}

TEST(PropertyBag, AnObjectThatCanChangeIsTiedToNobody) {
    PropertyBag bag;
    const auto note = std::make_shared<Note>(u"one");
    bag.WriteProperty(u"Font", PropertyValue(note), PropertyValue());
    note->sText = u"two";
    const PropertyValue first = bag.ReadProperty(u"Font");
    EXPECT_EQ(NoteText(first), u"one");
    dynamic_cast<const Note&>(*first.ObjectOrNone()).sText = u"three";
    EXPECT_EQ(NoteText(bag.ReadProperty(u"Font")), u"one");
}

TEST(PropertyBag, AnObjectEqualToTheDefaultIsNotStored) {
    PropertyBag bag;
    bag.WriteProperty(u"Font", PropertyValue(std::make_shared<Note>(u"a")),
                      PropertyValue(std::make_shared<Note>(u"a")));
    EXPECT_FALSE(bag.Contains(u"Font"));
    bag.WriteProperty(u"Font", PropertyValue(std::make_shared<Note>(u"a")),
                      PropertyValue(std::make_shared<Note>(u"b")));
    EXPECT_TRUE(bag.Contains(u"Font"));
}

TEST(PropertyValue, NoObjectIsNothing) {
    EXPECT_TRUE(PropertyValue(std::shared_ptr<const PropertyObject>()).IsNothing());
    EXPECT_EQ(PropertyValue().ObjectOrNone(), nullptr);
    EXPECT_TRUE(PropertyValue().Bytes().empty());
}

TEST(PropertyValue, TheWrongKindRaisesTypeMismatch) {
    const PropertyValue note(std::make_shared<Note>(u"a"));
    EXPECT_EQ(NumberRaisedBy([&] { note.Plain(); }), TypeMismatch().Number());
    EXPECT_EQ(NumberRaisedBy([&] { note.Bytes(); }), TypeMismatch().Number());
    EXPECT_EQ(NumberRaisedBy([] { PropertyValue(u"a").ObjectOrNone(); }), TypeMismatch().Number());
    EXPECT_EQ(NumberRaisedBy([] { PropertyKind<std::int32_t>::Take(u"abc"); }), TypeMismatch().Number());
}

TEST(PropertyValue, ASixteenBitFieldRaisesOverflowBeyondItsRange) {
    constexpr std::int32_t kMost = std::numeric_limits<std::int16_t>::max();
    EXPECT_EQ(PropertyKind<std::int16_t>::Take(kMost), kMost);
    EXPECT_EQ(NumberRaisedBy([] { PropertyKind<std::int16_t>::Take(kMost + 1); }), Overflow().Number());
}

TEST(PropertyValue, KindsConvertAsFormFilesWriteThem) {
    EXPECT_TRUE(PropertyKind<bool>::Take(std::int32_t{-1}));
    EXPECT_FALSE(PropertyKind<bool>::Take(std::int32_t{0}));
    EXPECT_EQ(PropertyKind<std::int32_t>::Take(u"7"), 7);
    EXPECT_EQ(PropertyKind<std::u16string>::Take(std::int32_t{7}), u"7");
    EXPECT_EQ(PropertyKind<double>::Take(PropertyKind<double>::Make(8.25)), 8.25);
    EXPECT_EQ(PropertyKind<PropertyBytes>::Take(PropertyKind<PropertyBytes>::Make({1, 2})), (PropertyBytes{1, 2}));
}

} // namespace

} // namespace orvanta::testing
