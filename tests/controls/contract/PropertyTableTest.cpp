#include "controls/contract/PropertyTable.h"

#include "tests/support/NumberRaisedBy.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace orvanta::testing {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct Dial {
    static const PropertyTable<Dial>& Table() {
        using Rows = PropertyTable<Dial>;
        static const Rows table{
            Rows::Field(u"Caption", u"none", &Dial::sCaption, After::Notify | After::ShapeAndRepaint),
            Rows::Field(u"Position", std::int32_t{5}, &Dial::lPosition, After::OnlyOnChange | After::Repaint),
            Rows::Field(u"Steps", std::int16_t{10}, &Dial::iSteps),
            Rows::Field(u"Round", true, &Dial::bRound, &Dial::Round),
            Outside(),
        };
        return table;
    }

    void AfterChange(std::u16string_view sKey, After after) {
        std::string s(sKey.begin(), sKey.end());
        if (Has(after, After::Notify)) s += " notify";
        if (Has(after, After::Shape)) s += " shape";
        if (Has(after, After::Repaint)) s += " repaint";
        followed.push_back(s);
    }
    void Round(bool b) {
        bRound = b;
        followed.emplace_back("own setter");
    }

    std::u16string sCaption;
    std::int32_t lPosition = 0;
    std::int16_t iSteps = 0;
    bool bRound = false;
    std::int32_t lOutside = 3;
    std::vector<std::string> followed;

private:
    // A value that is no field for the table.
    static PropertyTable<Dial>::Row Outside() {
        PropertyTable<Dial>::Row row;
        row.sKey = u"Outside";
        row.defaultOf = [](const Dial&) { return PropertyValue(std::int32_t{9}); };
        row.get = [](const Dial& dial) { return PropertyValue(dial.lOutside); };
        row.load = [](Dial& dial, const PropertyValue& value) { dial.lOutside = value.Plain().ToInteger(); };
        row.set = [](Dial& dial, const PropertyValue& value) { dial.lOutside = value.Plain().ToInteger() * 2; };
        return row;
    }
};

TEST(PropertyTable, DefaultsGoIntoAllFieldsAndNothingFollows) {
    Dial dial;
    Dial::Table().SetDefaults(dial);
    EXPECT_EQ(dial.sCaption, u"none");
    EXPECT_EQ(dial.lPosition, 5);
    EXPECT_EQ(dial.iSteps, 10);
    EXPECT_TRUE(dial.bRound);
    EXPECT_EQ(dial.lOutside, 3);
    EXPECT_THAT(dial.followed, IsEmpty());
}

TEST(PropertyTable, EveryKeyMakesTheRoundTripThroughABag) {
    Dial dial;
    dial.sCaption = u"Volume";
    dial.lPosition = -7;
    dial.iSteps = 32767;
    dial.bRound = false;
    dial.lOutside = 4;
    PropertyBag bag;
    Dial::Table().Save(dial, bag);
    EXPECT_THAT(bag.Keys(), ElementsAre(u"Caption", u"Position", u"Steps", u"Round", u"Outside"));

    Dial copy;
    Dial::Table().Load(copy, bag);
    EXPECT_EQ(copy.sCaption, u"Volume");
    EXPECT_EQ(copy.lPosition, -7);
    EXPECT_EQ(copy.iSteps, 32767);
    EXPECT_FALSE(copy.bRound);
    EXPECT_EQ(copy.lOutside, 4);
    EXPECT_THAT(copy.followed, IsEmpty());
}

TEST(PropertyTable, DefaultsAreNotSavedAndComeBackWithALoad) {
    Dial dial;
    const PropertyBag empty;
    Dial::Table().Load(dial, empty);
    EXPECT_EQ(dial.sCaption, u"none");
    EXPECT_EQ(dial.lOutside, 9);
    PropertyBag bag;
    Dial::Table().Save(dial, bag);
    EXPECT_EQ(bag.Count(), 0U);
}

TEST(PropertyTable, ADamagedEntryIsSkippedAndTheNextOnesAreRead) {
    PropertyBag bag;
    bag.WriteProperty(u"Position", u"abc");
    bag.WriteProperty(u"Steps", std::int32_t{70000});
    bag.WriteProperty(u"Outside", std::int32_t{6});
    Dial dial;
    Dial::Table().Load(dial, bag);
    EXPECT_EQ(dial.lPosition, 0);
    EXPECT_EQ(dial.iSteps, 0);
    EXPECT_EQ(dial.lOutside, 6);
}

TEST(PropertyTable, ASetterStoresAndDoesWhatItsRowSays) {
    Dial dial;
    Dial::Table().Set(dial, &Dial::sCaption, u"a");
    Dial::Table().Set(dial, &Dial::sCaption, u"a");
    EXPECT_EQ(dial.sCaption, u"a");
    EXPECT_THAT(dial.followed, ElementsAre("Caption notify shape repaint", "Caption notify shape repaint"));
}

TEST(PropertyTable, OnlyOnChangeLeavesAnEqualValueWithoutConsequence) {
    Dial dial;
    Dial::Table().Set(dial, &Dial::lPosition, 0);
    EXPECT_THAT(dial.followed, IsEmpty());
    Dial::Table().Set(dial, &Dial::lPosition, 1);
    EXPECT_THAT(dial.followed, ElementsAre("Position repaint"));
}

TEST(PropertyTable, NamesReachValuesWithoutRegardToCase) {
    Dial dial;
    EXPECT_TRUE(Dial::Table().Put(dial, u"CAPTION", u"x"));
    EXPECT_TRUE(Dial::Table().Put(dial, u"position", u"12"));
    PropertyValue value;
    EXPECT_TRUE(Dial::Table().Get(dial, u"pOSITION", value));
    EXPECT_EQ(value.Plain().ToInteger(), 12);
    EXPECT_THAT(dial.followed, ElementsAre("Caption notify shape repaint", "Position repaint"));
    EXPECT_FALSE(Dial::Table().Put(dial, u"Colour", std::int32_t{1}));
    EXPECT_FALSE(Dial::Table().Get(dial, u"Colour", value));
}

TEST(PropertyTable, SettingByNameCallsTheSetterOfTheRow) {
    Dial dial;
    Dial::Table().Put(dial, u"Round", true);
    EXPECT_TRUE(dial.bRound);
    Dial::Table().Put(dial, u"Outside", std::int32_t{4});
    EXPECT_EQ(dial.lOutside, 8);
    EXPECT_THAT(dial.followed, ElementsAre("own setter"));
}

TEST(PropertyTable, SettingByNameRaisesWhatDoesNotConvert) {
    Dial dial;
    EXPECT_EQ(NumberRaisedBy([&] { Dial::Table().Put(dial, u"Steps", std::int32_t{-40000}); }), Overflow().Number());
    EXPECT_EQ(NumberRaisedBy([&] { Dial::Table().Put(dial, u"Steps", u"many"); }), TypeMismatch().Number());
    EXPECT_EQ(dial.iSteps, 0);
}

} // namespace

} // namespace orvanta::testing
