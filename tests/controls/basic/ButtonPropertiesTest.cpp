#include "controls/basic/ctlUniButtonImageXP.h"

#include "base/Failure.h"
#include "controls/contract/ObjectValues.h"
#include "tests/controls/basic/Witness.h"

#include <gtest/gtest.h>

#include <map>

namespace orvanta::testing {
namespace {

using Button = Witness<ctlUniButtonImageXP>;
using Texts = std::vector<std::string>;

constexpr ControlPlace kButtonPlace{10, 10, 120, 40};

class ButtonProperties : public FormFixture {};

OlePicture ButtonPicture() {
    return SolidPicture(8, 6, 0x2040C0, 0);
}

// A value other than the default for each key, in the order of the bag.
std::vector<std::pair<std::u16string, PropertyValue>> OtherButtonValues() {
    const auto color = [](std::int32_t l) { return PropertyValue(l); };
    return {
        {u"Picture", PropertyKind<OlePicture>::Make(ButtonPicture())},
        {u"Enabled", false},
        {u"Font", PropertyKind<OleFont>::Make(OleFont::Create(u"Tahoma", 12))},
        {u"Caption", u"\u0416&x"},
        {u"BackColor", color(0x102030)},
        {u"ForeColor", color(0x203040)},
        {u"BorderColor", color(0x304050)},
        {u"ShowFocus", false},
        {u"Tristate", true},
        {u"Pressed", true},
        {u"Tip", u"a tip"},
        {u"Style", 7},
        {u"RoundedBorders", false},
        {u"BackColorOut", color(0x405060)},
        {u"UseRoundRegions", true},
        {u"TransparencyType", 1},
        {u"TransparentColor", color(0x506070)},
        {u"xTranspColor", 3},
        {u"yTranspColor", -4},
        {u"ImagePos", 11},
        {u"OLEDropMode", 1},
        {u"MousePointer", 99},
        {u"MouseIcon", PropertyKind<OlePicture>::Make(ButtonPicture())},
        {u"DblClickEvent", true},
        {u"Stretch", true},
    };
}

TEST_F(ButtonProperties, StandInTheirTableInTheOrderOfTheBag) {
    const auto& button = form.Add<Button>(u"btnOp", kButtonPlace);
    std::vector<std::u16string> names;
    for (const auto& [sKey, value] : OtherButtonValues())
        names.push_back(sKey);
    EXPECT_EQ(button.PropertyNames(), names);
}

TEST_F(ButtonProperties, AFreshButtonShowsItsNameAndStartsWithStyleZeroAndABlackBorder) {
    const auto& button = form.Add<Button>(u"btnOp", kButtonPlace);
    EXPECT_EQ(button.Caption(), u"btnOp");
    EXPECT_EQ(button.Style(), 0);
    EXPECT_EQ(button.BorderColor(), 0);
    EXPECT_EQ(button.BackColor(), static_cast<OleColor>(0x8000000F));
    EXPECT_EQ(button.ForeColor(), static_cast<OleColor>(0x80000012));
    EXPECT_EQ(button.BackColorOut(), -1);
    EXPECT_FALSE(button.RoundedBorders());
    EXPECT_FALSE(button.UseRoundRegions());
    EXPECT_EQ(button.ImagePos(), 0);
    EXPECT_FALSE(button.Pressed());
    EXPECT_FALSE(button.Tristate());
    EXPECT_TRUE(button.Enabled());
}

TEST_F(ButtonProperties, ALoadFromAnEmptyBagBringsTheDefaultsOfTheTable) {
    auto& button = form.Load<Button>(u"btnOp", kButtonPlace, {});
    EXPECT_TRUE(button.Picture().IsEmpty());
    EXPECT_TRUE(button.Enabled());
    EXPECT_TRUE(button.Font().IsEqual(form.Font()));
    EXPECT_EQ(button.Caption(), u"");
    EXPECT_EQ(button.BackColor(), static_cast<OleColor>(0x8000000F));
    EXPECT_EQ(button.ForeColor(), static_cast<OleColor>(0x80000012));
    EXPECT_EQ(button.BorderColor(), -1);
    EXPECT_TRUE(button.ShowFocus());
    EXPECT_FALSE(button.Tristate());
    EXPECT_FALSE(button.Pressed());
    EXPECT_EQ(button.Tip(), u"");
    EXPECT_EQ(button.Style(), -1);
    EXPECT_TRUE(button.RoundedBorders());
    EXPECT_EQ(button.BackColorOut(), -1);
    EXPECT_FALSE(button.UseRoundRegions());
    EXPECT_EQ(button.TransparencyType(), 0);
    EXPECT_EQ(button.TransparentColor(), -1);
    EXPECT_EQ(button.xTranspColor(), 0);
    EXPECT_EQ(button.yTranspColor(), 0);
    EXPECT_EQ(button.ImagePos(), 0);
    EXPECT_EQ(button.OLEDropMode(), 0);
    EXPECT_EQ(button.MousePointer(), 0);
    EXPECT_TRUE(button.MouseIcon().IsEmpty());
    EXPECT_FALSE(button.DblClickEvent());
    EXPECT_FALSE(button.Stretch());

    PropertyBag bag;
    button.OnWriteProperties(bag);
    EXPECT_EQ(bag.Count(), 0u);
}

TEST_F(ButtonProperties, AFreshButtonIsSavedWithWhatDiffersFromTheTable) {
    auto& button = form.Add<Button>(u"btnOp", kButtonPlace);
    PropertyBag bag;
    button.OnWriteProperties(bag);
    EXPECT_EQ(bag.Keys(), (std::vector<std::u16string>{u"Caption", u"BorderColor", u"Style", u"RoundedBorders"}));
}

TEST_F(ButtonProperties, EveryKeyComesBackFromTheBag) {
    for (const auto& [sKey, value] : OtherButtonValues()) {
        SCOPED_TRACE(::testing::PrintToString(sKey));
        auto& saved = form.Load<Button>(u"btnSaved", kButtonPlace, {});
        // That key alone; rounded regions bring rounded borders with them, which are the default.
        ASSERT_TRUE(saved.PutProperty(sKey, value));
        PropertyBag bag;
        saved.OnWriteProperties(bag);
        EXPECT_EQ(bag.Keys(), std::vector<std::u16string>{sKey});
        auto& loaded = form.Load<Button>(u"btnLoaded", kButtonPlace, bag);
        PropertyValue before, after;
        ASSERT_TRUE(saved.GetProperty(sKey, before));
        ASSERT_TRUE(loaded.GetProperty(sKey, after));
        EXPECT_TRUE(before == after);
        PropertyBag again;
        loaded.OnWriteProperties(again);
        EXPECT_EQ(again.Keys(), bag.Keys());
        form.Remove(saved);
        form.Remove(loaded);
    }
}

TEST_F(ButtonProperties, ALoadReachesEveryField) {
    PropertyBag bag;
    for (const auto& [sKey, value] : OtherButtonValues())
        bag.WriteProperty(sKey, value);
    auto& button = form.Load<Button>(u"btnOp", kButtonPlace, bag);
    EXPECT_EQ(button.Picture().Width(), ButtonPicture().Width());
    EXPECT_FALSE(button.Enabled());
    EXPECT_EQ(button.Font().Name(), u"Tahoma");
    EXPECT_EQ(button.Caption(), u"\u0416&x");
    EXPECT_EQ(button.BackColor(), 0x102030);
    EXPECT_EQ(button.ForeColor(), 0x203040);
    EXPECT_EQ(button.BorderColor(), 0x304050);
    EXPECT_FALSE(button.ShowFocus());
    EXPECT_TRUE(button.Tristate());
    EXPECT_TRUE(button.Pressed());
    EXPECT_EQ(button.Tip(), u"a tip");
    EXPECT_EQ(button.Style(), 7);
    EXPECT_FALSE(button.RoundedBorders());
    EXPECT_EQ(button.BackColorOut(), 0x405060);
    EXPECT_TRUE(button.UseRoundRegions());
    EXPECT_EQ(button.TransparencyType(), 1);
    EXPECT_EQ(button.TransparentColor(), 0x506070);
    EXPECT_EQ(button.xTranspColor(), 3);
    EXPECT_EQ(button.yTranspColor(), -4);
    EXPECT_EQ(button.ImagePos(), 11);
    EXPECT_EQ(button.OLEDropMode(), 1);
    EXPECT_EQ(button.MousePointer(), 99);
    EXPECT_FALSE(button.MouseIcon().IsEmpty());
    EXPECT_TRUE(button.DblClickEvent());
    EXPECT_TRUE(button.Stretch());
    EXPECT_EQ(button.Host().AccessKeys(), u"x");
    EXPECT_EQ(button.TakenEvents(), Texts{"Resize"});
}

TEST_F(ButtonProperties, ThePictureIsKeptByReference) {
    auto& button = form.Add<Button>(u"btnOp", kButtonPlace);
    const OlePicture picture = ButtonPicture();
    button.Picture(picture);
    EXPECT_EQ(button.Picture().Object(), picture.Object());
}

TEST_F(ButtonProperties, EverySetterThatChangesTheLookAsksForARepaintEvenForTheSameValue) {
    auto& button = form.Load<Button>(u"btnOp", kButtonPlace, {});
    const OlePicture picture = ButtonPicture();
    const std::function<void()> setters[] = {
        [&] { button.Picture(picture); },     [&] { button.Font(button.Font()); },
        [&] { button.Caption(u"x"); },        [&] { button.BackColor(1); },
        [&] { button.ForeColor(1); },         [&] { button.BorderColor(1); },
        [&] { button.ShowFocus(true); },      [&] { button.Style(2); },
        [&] { button.RoundedBorders(true); }, [&] { button.BackColorOut(1); },
        [&] { button.TransparencyType(1); },  [&] { button.TransparentColor(1); },
        [&] { button.xTranspColor(1); },      [&] { button.yTranspColor(1); },
        [&] { button.ImagePos(1); },          [&] { button.Stretch(false); },
        [&] { button.Refresh(false); },       [&] { button.Refresh(true); },
        [&] { button.ApplyFontChanges(); },
    };
    button.Taken();
    for (std::size_t n = 0; n < std::size(setters); ++n) {
        SCOPED_TRACE(n);
        setters[n]();
        EXPECT_EQ(button.Taken(), Texts{"repaint"});
        setters[n]();
        EXPECT_EQ(button.Taken(), Texts{"repaint"});
    }
}

TEST_F(ButtonProperties, PressedAndTristateAndEnabledAskForARepaintOnlyOnAChange) {
    auto& button = form.Load<Button>(u"btnOp", kButtonPlace, {});
    button.Taken();
    button.Pressed(false);
    button.Tristate(false);
    button.Enabled(true);
    EXPECT_EQ(button.Taken(), Texts{});
    button.Pressed(true);
    EXPECT_EQ(button.Taken(), Texts{"repaint"});
    button.Tristate(true);
    EXPECT_EQ(button.Taken(), Texts{"repaint"});
    button.Enabled(false);
    EXPECT_EQ(button.Taken(), Texts{"repaint"});
}

TEST_F(ButtonProperties, WhatDoesNotChangeTheLookIsStoredOnly) {
    auto& button = form.Load<Button>(u"btnOp", kButtonPlace, {});
    button.Taken();
    button.DblClickEvent(true);
    button.Tip(u"tip");
    button.OLEDropMode(1);
    button.MousePointer(2);
    button.MouseIcon(ButtonPicture());
    EXPECT_EQ(button.Taken(), Texts{});
}

TEST_F(ButtonProperties, TheCaptionSetsTheAccessKeyThenTellsTheContainerThenAsksForARepaint) {
    auto& button = form.Load<Button>(u"btnOp", kButtonPlace, {});
    button.Taken();
    form.HostOf(button)->Changed.Add([&](const std::u16string& sName) {
        button.journal->push_back("changed");
        EXPECT_EQ(sName, u"Caption");
        EXPECT_EQ(button.Caption(), u"&Open");
        EXPECT_EQ(button.Host().AccessKeys(), u"O");
    });
    button.Caption(u"&Open");
    EXPECT_EQ(button.Taken(), (Texts{"changed", "repaint"}));
}

TEST_F(ButtonProperties, ACaptionWithoutKeyClearsTheAccessKey) {
    auto& button = form.Load<Button>(u"btnOp", kButtonPlace, {});
    button.Caption(u"&Open");
    button.Caption(u"Open");
    EXPECT_EQ(button.Host().AccessKeys(), u"");
    button.Caption(u"A && B");
    EXPECT_EQ(button.Host().AccessKeys(), u" ");
}

TEST_F(ButtonProperties, OnlyCaptionTipAndOLEDropModeTellTheContainer) {
    auto& button = form.Load<Button>(u"btnOp", kButtonPlace, {});
    std::vector<std::u16string> changed;
    form.HostOf(button)->Changed.Add([&](const std::u16string& sName) { changed.push_back(sName); });
    for (const auto& [sKey, value] : OtherButtonValues())
        EXPECT_TRUE(button.PutProperty(sKey, value));
    EXPECT_EQ(changed, (std::vector<std::u16string>{u"Caption", u"Tip", u"OLEDropMode"}));
}

TEST_F(ButtonProperties, UseRoundRegionsTakesRoundedBordersAlongAndGoesThroughTheResizeHandler) {
    auto& button = form.Add<Button>(u"btnOp", kButtonPlace);
    button.Taken();
    button.UseRoundRegions(true);
    EXPECT_TRUE(button.UseRoundRegions());
    EXPECT_TRUE(button.RoundedBorders());
    EXPECT_EQ(button.Taken(), (Texts{"repaint", "Resize"}));
    button.UseRoundRegions(false);
    EXPECT_FALSE(button.UseRoundRegions());
    EXPECT_FALSE(button.RoundedBorders());
    EXPECT_EQ(button.Taken(), (Texts{"repaint", "Resize"}));
}

TEST_F(ButtonProperties, ValueReadsPressedAndCanPressButNotRelease) {
    auto& button = form.Load<Button>(u"btnOp", kButtonPlace, {});
    button.Tristate(true);
    button.Taken();
    button.Value(false);
    EXPECT_EQ(button.Taken(), Texts{});
    EXPECT_FALSE(button.Value());
    button.Value(true);
    EXPECT_EQ(button.Taken(), (Texts{"repaint", "Click"}));
    EXPECT_TRUE(button.Value());
    EXPECT_TRUE(button.Pressed());
    button.Value(false);
    EXPECT_TRUE(button.Value());
    button.Value(true);
    EXPECT_FALSE(button.Value());
}

TEST_F(ButtonProperties, ValueOfAPlainButtonClicksAndStaysFalse) {
    auto& button = form.Load<Button>(u"btnOp", kButtonPlace, {});
    button.Taken();
    button.Value(true);
    EXPECT_EQ(button.Taken(), Texts{"Click"});
    EXPECT_FALSE(button.Value());
}

TEST_F(ButtonProperties, HostNumbersBeyond16BitsOverflow) {
    auto& button = form.Load<Button>(u"btnOp", kButtonPlace, {});
    EXPECT_THROW(button.OLEDropMode(32768), Failure);
    EXPECT_THROW(button.MousePointer(-32769), Failure);
}

TEST_F(ButtonProperties, TheTextOfTheWindowFollowsTheCaption) {
    auto& button = form.Add<Button>(u"btnOp", kButtonPlace);
    const auto text = [&button] {
        wchar_t buffer[64] = L"";
        GetWindowTextW(button.hwnd(), buffer, 64);
        return std::wstring(buffer);
    };
    EXPECT_EQ(text(), L"btnOp");
    button.Caption(u"\u0416");
    EXPECT_EQ(text(), L"\u0416");
}

} // namespace
} // namespace orvanta::testing
