#include "base/Failure.h"
#include "controls/contract/ObjectValues.h"
#include "tests/controls/basic/LabelFixture.h"

#include <functional>
#include <utility>

namespace orvanta::testing {
namespace {

using Notes = std::vector<std::string>;
using Names = std::vector<std::u16string>;

constexpr ControlPlace kLabelPlace{10, 10, 120, 30};

template<typename LabelType>
class LabelProperties : public LabelFixture<LabelType> {};
TYPED_TEST_SUITE(LabelProperties, BothLabels);

// A value other than the default for each key, in the order of the bag.
std::vector<std::pair<std::u16string, PropertyValue>> OtherLabelValues() {
    return {
        {u"Caption", u"\u0416&x"},
        {u"BackColor", 0x102030},
        {u"ForeColor", 0x203040},
        {u"BorderColor", 0x304050},
        {u"Alignment", 2},
        {u"VAlignment", 1},
        {u"BackStyle", 0},
        {u"BorderStyle", 1},
        {u"AutoSize", true},
        {u"Tip", u"a tip"},
        {u"Style", 7},
        {u"Enabled", false},
        {u"Margin", -7},
        {u"RoundedBorders", true},
        {u"BackColorOut", 0x405060},
        {u"UseRoundRegions", true},
        {u"Font", PropertyKind<OleFont>::Make(OleFont::Create(u"Tahoma", 12))},
        {u"OLEDropMode", 1},
        {u"MousePointer", 99},
        {u"MouseIcon", PropertyKind<OlePicture>::Make(SolidPicture(8, 6, 0x2040C0, 0))},
    };
}

PropertyValue BackStyleOf(const LabelControl& label) {
    PropertyValue value;
    EXPECT_TRUE(label.GetProperty(u"BackStyle", value));
    return value;
}

void ExpectLabelDefaults(const LabelControl& label) {
    EXPECT_EQ(label.BackColor(), static_cast<OleColor>(0x8000000F));
    EXPECT_EQ(label.ForeColor(), static_cast<OleColor>(0x80000012));
    EXPECT_EQ(label.BorderColor(), -1);
    EXPECT_EQ(label.Alignment(), 0);
    EXPECT_EQ(label.VAlignment(), 0);
    EXPECT_TRUE(BackStyleOf(label) == PropertyValue(1));
    EXPECT_EQ(label.BorderStyle(), 0);
    EXPECT_FALSE(label.AutoSize());
    EXPECT_EQ(label.Tip(), u"");
    EXPECT_EQ(label.Style(), 0);
    EXPECT_TRUE(label.Enabled());
    EXPECT_EQ(label.Margin(), 0);
    EXPECT_FALSE(label.RoundedBorders());
    EXPECT_EQ(label.BackColorOut(), -1);
    EXPECT_FALSE(label.UseRoundRegions());
    EXPECT_EQ(label.OLEDropMode(), 0);
    EXPECT_EQ(label.MousePointer(), 0);
    EXPECT_TRUE(label.MouseIcon().IsEmpty());
}

TYPED_TEST(LabelProperties, StandInTheirTableInTheOrderOfTheBag) {
    const auto& label = this->form.template Add<TypeParam>(u"lblName", kLabelPlace);
    Names names;
    for (const auto& [sKey, value] : OtherLabelValues())
        names.push_back(sKey);
    EXPECT_EQ(label.PropertyNames(), names);
}

TYPED_TEST(LabelProperties, AFreshLabelShowsItsNameAndIsFlatWhateverTheStyleOfTheProcess) {
    const auto& label = this->form.template Add<TypeParam>(u"lblName", kLabelPlace);
    EXPECT_EQ(label.Caption(), u"lblName");
    ExpectLabelDefaults(label);
    EXPECT_TRUE(label.Font().IsEqual(this->form.Font()));
}

TYPED_TEST(LabelProperties, ALoadFromAnEmptyBagBringsTheDefaultsAndNoCaption) {
    auto& label = this->form.template Load<TypeParam>(u"lblName", kLabelPlace, {});
    EXPECT_EQ(label.Caption(), u"");
    ExpectLabelDefaults(label);
    PropertyBag bag;
    label.OnWriteProperties(bag);
    EXPECT_EQ(bag.Count(), 0u);
}

TYPED_TEST(LabelProperties, AFreshLabelIsSavedWithItsCaptionAlone) {
    auto& label = this->form.template Add<TypeParam>(u"lblName", kLabelPlace);
    PropertyBag bag;
    label.OnWriteProperties(bag);
    EXPECT_EQ(bag.Keys(), Names{u"Caption"});
}

TYPED_TEST(LabelProperties, EveryKeyComesBackFromTheBag) {
    for (const auto& [sKey, value] : OtherLabelValues()) {
        SCOPED_TRACE(::testing::PrintToString(sKey));
        auto& saved = this->form.template Load<TypeParam>(u"lblSaved", kLabelPlace, {});
        ASSERT_TRUE(saved.PutProperty(sKey, value));
        PropertyBag bag;
        saved.OnWriteProperties(bag);
        EXPECT_EQ(bag.Keys(), sKey == u"UseRoundRegions" ? (Names{u"RoundedBorders", sKey}) : Names{sKey});
        auto& loaded = this->form.template Load<TypeParam>(u"lblLoaded", kLabelPlace, bag);
        PropertyValue before, after;
        ASSERT_TRUE(saved.GetProperty(sKey, before));
        ASSERT_TRUE(loaded.GetProperty(sKey, after));
        EXPECT_TRUE(before == after);
        PropertyBag again;
        loaded.OnWriteProperties(again);
        EXPECT_EQ(again.Keys(), bag.Keys());
        this->form.Remove(saved);
        this->form.Remove(loaded);
    }
}

TYPED_TEST(LabelProperties, ALoadReachesEveryField) {
    PropertyBag bag;
    for (const auto& [sKey, value] : OtherLabelValues())
        bag.WriteProperty(sKey, value);
    auto& label = this->form.template Load<TypeParam>(u"lblName", kLabelPlace, bag);
    EXPECT_EQ(label.Caption(), u"\u0416&x");
    EXPECT_EQ(label.BackColor(), 0x102030);
    EXPECT_EQ(label.ForeColor(), 0x203040);
    EXPECT_EQ(label.BorderColor(), 0x304050);
    EXPECT_EQ(label.Alignment(), 2);
    EXPECT_EQ(label.VAlignment(), 1);
    EXPECT_TRUE(BackStyleOf(label) == PropertyValue(0));
    EXPECT_EQ(label.BorderStyle(), 1);
    EXPECT_TRUE(label.AutoSize());
    EXPECT_EQ(label.Tip(), u"a tip");
    EXPECT_EQ(label.Style(), 7);
    EXPECT_FALSE(label.Enabled());
    EXPECT_EQ(label.Margin(), -7);
    EXPECT_TRUE(label.RoundedBorders());
    EXPECT_EQ(label.BackColorOut(), 0x405060);
    EXPECT_TRUE(label.UseRoundRegions());
    EXPECT_EQ(label.Font().Name(), u"Tahoma");
    EXPECT_EQ(label.OLEDropMode(), 1);
    EXPECT_EQ(label.MousePointer(), 99);
    EXPECT_FALSE(label.MouseIcon().IsEmpty());
    EXPECT_EQ(label.Host().AccessKeys(), u"");
}

TYPED_TEST(LabelProperties, ColorsAndStylesAskForARepaintEvenForTheSameValue) {
    auto& label = this->Make(kLabelPlace, u"text");
    const std::function<void()> setters[] = {
        [&] { label.BackColor(1); }, [&] { label.ForeColor(1); },    [&] { label.BorderColor(1); },
        [&] { label.Style(2); },     [&] { label.BackColorOut(1); }, [&] { label.UseRoundRegions(false); },
    };
    for (std::size_t n = 0; n < std::size(setters); ++n) {
        SCOPED_TRACE(n);
        for (int nTime = 0; nTime < 2; ++nTime) {
            setters[n]();
            EXPECT_EQ(label.Taken(), Notes{"repaint"});
        }
    }
}

TYPED_TEST(LabelProperties, WhatMovesTheTextBuildsTheShapeFirstEvenForTheSameValue) {
    auto& label = this->Make(kLabelPlace, u"text");
    const std::function<void()> setters[] = {
        [&] { label.Margin(3); },          [&] { label.Alignment(1); },
        [&] { label.VAlignment(1); },      [&] { label.PutProperty(u"BackStyle", 2); },
        [&] { label.BorderStyle(1); },     [&] { label.RoundedBorders(true); },
        [&] { label.Font(label.Font()); }, [&] { label.ApplyFontChanges(); },
        [&] { label.Caption(u"other"); },
    };
    for (std::size_t n = 0; n < std::size(setters); ++n) {
        SCOPED_TRACE(n);
        for (int nTime = 0; nTime < 2; ++nTime) {
            setters[n]();
            EXPECT_EQ(label.Taken(), (Notes{"shape", "repaint"}));
        }
    }
}

TYPED_TEST(LabelProperties, AutoSizeAndEnabledDoSomethingOnlyOnAChange) {
    auto& label = this->Make(kLabelPlace, u"");
    label.AutoSize(false);
    label.Enabled(true);
    EXPECT_EQ(label.Taken(), Notes{});
    label.AutoSize(true);
    EXPECT_EQ(label.Taken(), (Notes{"shape", "repaint"}));
    label.AutoSize(true);
    EXPECT_EQ(label.Taken(), Notes{});
    label.Enabled(false);
    EXPECT_EQ(label.Taken(), Notes{"repaint"});
    label.Enabled(false);
    EXPECT_EQ(label.Taken(), Notes{});
}

TYPED_TEST(LabelProperties, WhatDoesNotChangeTheLookIsStoredOnly) {
    auto& label = this->Make(kLabelPlace, u"text");
    label.Tip(u"tip");
    label.OLEDropMode(1);
    label.MousePointer(2);
    label.MouseIcon(SolidPicture(8, 6, 0, 0));
    EXPECT_EQ(label.Taken(), Notes{});
}

TYPED_TEST(LabelProperties, TheCaptionIsStoredThenToldToTheContainerThenShown) {
    auto& label = this->Make(kLabelPlace, u"text");
    this->form.HostOf(label)->Changed.Add([&](const std::u16string& sName) {
        label.journal->push_back("changed");
        EXPECT_EQ(sName, u"Caption");
        EXPECT_EQ(label.Caption(), u"other");
    });
    label.Caption(u"other");
    EXPECT_EQ(label.Taken(), (Notes{"changed", "shape", "repaint"}));
}

TYPED_TEST(LabelProperties, OnlyCaptionTipAndOLEDropModeTellTheContainer) {
    auto& label = this->Make(kLabelPlace, u"text");
    Names changed;
    this->form.HostOf(label)->Changed.Add([&](const std::u16string& sName) { changed.push_back(sName); });
    for (const auto& [sKey, value] : OtherLabelValues())
        EXPECT_TRUE(label.PutProperty(sKey, value));
    EXPECT_EQ(changed, (Names{u"Caption", u"Tip", u"OLEDropMode"}));
}

TYPED_TEST(LabelProperties, UseRoundRegionsTakesRoundedBordersAlongInBothDirections) {
    auto& label = this->Make(kLabelPlace, u"text");
    label.UseRoundRegions(true);
    EXPECT_TRUE(label.UseRoundRegions());
    EXPECT_TRUE(label.RoundedBorders());
    label.UseRoundRegions(false);
    EXPECT_FALSE(label.UseRoundRegions());
    EXPECT_FALSE(label.RoundedBorders());
    label.RoundedBorders(true);
    EXPECT_FALSE(label.UseRoundRegions());
}

TYPED_TEST(LabelProperties, NumbersBeyond16BitsOverflow) {
    auto& label = this->Make(kLabelPlace, u"text");
    EXPECT_THROW(label.PutProperty(u"Margin", 32768), Failure);
    EXPECT_THROW(label.OLEDropMode(32768), Failure);
    EXPECT_THROW(label.MousePointer(-32769), Failure);
    EXPECT_EQ(label.Margin(), 0);
}

TYPED_TEST(LabelProperties, AmpersandsMakeNoAccessKey) {
    auto& label = this->Make(kLabelPlace, u"text");
    label.Caption(u"&Open");
    EXPECT_EQ(label.Host().AccessKeys(), u"");
}

TYPED_TEST(LabelProperties, ALabelTakesNoFocus) {
    auto& label = this->Make(kLabelPlace, u"text");
    EXPECT_EQ(label.Host().Extender().TabIndex(), -1);
}

TYPED_TEST(LabelProperties, EveryAmbientChangeAsksForARepaint) {
    auto& label = this->Make(kLabelPlace, u"text");
    this->form.HostOf(label)->AmbientChanged(u"whatever it is");
    EXPECT_EQ(label.Taken(), Notes{"repaint"});
}

template<typename LabelType>
concept HasPublicBackStyle = requires(LabelType& label) {
    label.BackStyle();
    label.BackStyle(0);
};
template<typename LabelType>
concept HasHdc = requires(LabelType& label) {
    label.Hdc();
};

TEST(LabelMembers, OnlyTheTwinHasBackStyleAndHdcInPublic) {
    EXPECT_FALSE(HasPublicBackStyle<ctlUniLabel>);
    EXPECT_FALSE(HasHdc<ctlUniLabel>);
    EXPECT_TRUE(HasPublicBackStyle<ctlUniLabelNoFlick>);
    EXPECT_TRUE(HasHdc<ctlUniLabelNoFlick>);
}

} // namespace
} // namespace orvanta::testing
