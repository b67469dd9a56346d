#include "base/Failure.h"
#include "controls/contract/ObjectValues.h"
#include "tests/controls/basic/FakeTip.h"
#include "tests/controls/basic/FrameFixture.h"
#include "tests/controls/support/ProbeControl.h"

#include <gmock/gmock.h>

#include <functional>
#include <memory>
#include <utility>

namespace orvanta::testing {
namespace {

using Notes = std::vector<std::string>;
using Names = std::vector<std::u16string>;

class FrameProperties : public FrameFixture {};

// A value other than the default for each key, in the order of the bag.
std::vector<std::pair<std::u16string, PropertyValue>> OtherFrameValues() {
    return {
        {u"Font", PropertyKind<OleFont>::Make(OleFont::Create(u"Tahoma", 12))},
        {u"Caption", u"\u0416&x"},
        {u"Enabled", false},
        {u"ForeColor", 0x203040},
        {u"BorderColor", 0x304050},
        {u"BackColor", 0x102030},
        {u"Tip", u"a tip"},
        {u"VistaStyle", false},
        {u"BackColorOut", 0x405060},
        {u"TitleBackColor", 0x506070},
        {u"UseShadow", true},
        {u"OLEDropMode", 1},
        {u"MousePointer", 99},
        {u"MouseIcon", PropertyKind<OlePicture>::Make(SolidPicture(8, 6, 0x2040C0, 0))},
    };
}

void ExpectFrameDefaults(const ctlUniFrameXP& frame) {
    EXPECT_TRUE(frame.Enabled());
    EXPECT_EQ(frame.ForeColor(), static_cast<OleColor>(0x80000006));
    EXPECT_EQ(frame.BorderColor(), -1);
    EXPECT_EQ(frame.BackColor(), static_cast<OleColor>(0x8000000F));
    EXPECT_EQ(frame.Tip(), u"");
    EXPECT_EQ(frame.BackColorOut(), -1);
    EXPECT_EQ(frame.TitleBackColor(), -1);
    EXPECT_FALSE(frame.UseShadow());
    EXPECT_EQ(frame.OLEDropMode(), 0);
    EXPECT_EQ(frame.MousePointer(), 0);
    EXPECT_TRUE(frame.MouseIcon().IsEmpty());
}

TEST_F(FrameProperties, StandInTheirTableInTheOrderOfTheBag) {
    const auto& frame = form.Add<ctlUniFrameXP>(u"fraName", kFramePlace);
    Names names;
    for (const auto& [sKey, value] : OtherFrameValues())
        names.push_back(sKey);
    EXPECT_EQ(frame.PropertyNames(), names);
}

TEST_F(FrameProperties, AFreshFrameShowsItsNameAndIsEtchedUnlikeALoadedOne) {
    auto& frame = form.Add<ctlUniFrameXP>(u"fraName", kFramePlace);
    EXPECT_EQ(frame.Caption(), u"fraName");
    EXPECT_FALSE(frame.VistaStyle());
    ExpectFrameDefaults(frame);
    PropertyBag bag;
    frame.OnWriteProperties(bag);
    EXPECT_EQ(bag.Keys(), (Names{u"Caption", u"VistaStyle"}));
}

TEST_F(FrameProperties, ALoadFromAnEmptyBagBringsTheDefaultsOfTheTable) {
    auto& frame = form.Load<ctlUniFrameXP>(u"fraName", kFramePlace, {});
    EXPECT_EQ(frame.Caption(), u"");
    EXPECT_TRUE(frame.VistaStyle());
    ExpectFrameDefaults(frame);
    EXPECT_TRUE(frame.Font().IsEqual(form.Font()));
    PropertyBag bag;
    frame.OnWriteProperties(bag);
    EXPECT_EQ(bag.Count(), 0u);
}

TEST_F(FrameProperties, EveryKeyComesBackFromTheBag) {
    for (const auto& [sKey, value] : OtherFrameValues()) {
        SCOPED_TRACE(::testing::PrintToString(sKey));
        auto& saved = form.Load<ctlUniFrameXP>(u"fraSaved", kFramePlace, {});
        ASSERT_TRUE(saved.PutProperty(sKey, value));
        PropertyBag bag;
        saved.OnWriteProperties(bag);
        EXPECT_EQ(bag.Keys(), Names{sKey});
        auto& loaded = form.Load<ctlUniFrameXP>(u"fraLoaded", kFramePlace, bag);
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

TEST_F(FrameProperties, ALoadReachesEveryField) {
    PropertyBag bag;
    for (const auto& [sKey, value] : OtherFrameValues())
        bag.WriteProperty(sKey, value);
    auto& frame = form.Load<ctlUniFrameXP>(u"fraName", kFramePlace, bag);
    EXPECT_EQ(frame.Font().Name(), u"Tahoma");
    EXPECT_EQ(frame.Caption(), u"\u0416&x");
    EXPECT_FALSE(frame.Enabled());
    EXPECT_EQ(frame.ForeColor(), 0x203040);
    EXPECT_EQ(frame.BorderColor(), 0x304050);
    EXPECT_EQ(frame.BackColor(), 0x102030);
    EXPECT_EQ(frame.Tip(), u"a tip");
    EXPECT_FALSE(frame.VistaStyle());
    EXPECT_EQ(frame.BackColorOut(), 0x405060);
    EXPECT_EQ(frame.TitleBackColor(), 0x506070);
    EXPECT_TRUE(frame.UseShadow());
    EXPECT_EQ(frame.OLEDropMode(), 1);
    EXPECT_EQ(frame.MousePointer(), 99);
    EXPECT_FALSE(frame.MouseIcon().IsEmpty());
    EXPECT_FALSE(frame.Host().Enabled());
}

TEST_F(FrameProperties, EverySetterThatChangesTheLookAsksForARepaintEvenForTheSameValue) {
    auto& frame = Make(u"title");
    const std::function<void()> setters[] = {
        [&] { frame.Caption(u"x"); },   [&] { frame.ForeColor(1); },       [&] { frame.BorderColor(1); },
        [&] { frame.BackColor(1); },    [&] { frame.BackColorOut(1); },    [&] { frame.TitleBackColor(1); },
        [&] { frame.UseShadow(true); }, [&] { frame.Font(frame.Font()); }, [&] { frame.ApplyFontChanges(); },
    };
    for (std::size_t n = 0; n < std::size(setters); ++n) {
        SCOPED_TRACE(n);
        for (int nTime = 0; nTime < 2; ++nTime) {
            setters[n]();
            EXPECT_EQ(frame.Taken(), Notes{"repaint"});
        }
    }
}

TEST_F(FrameProperties, VistaStyleAsItIsAlreadyAsksForNoRepaint) {
    auto& frame = Make(u"title");
    frame.VistaStyle(true);
    EXPECT_EQ(frame.Taken(), Notes{});
    frame.VistaStyle(false);
    EXPECT_EQ(frame.Taken(), Notes{"repaint"});
    frame.VistaStyle(false);
    EXPECT_EQ(frame.Taken(), Notes{});
}

TEST_F(FrameProperties, WhatDoesNotChangeTheLookIsStoredOnly) {
    auto& frame = Make(u"title");
    frame.Tip(u"tip");
    frame.OLEDropMode(1);
    frame.MousePointer(2);
    frame.MouseIcon(SolidPicture(8, 6, 0, 0));
    EXPECT_EQ(frame.Taken(), Notes{});
    EXPECT_THROW(frame.OLEDropMode(-32769), Failure);
}

TEST_F(FrameProperties, OnlyCaptionTipAndOLEDropModeTellTheContainer) {
    auto& frame = Make(u"title");
    Names changed;
    form.HostOf(frame)->Changed.Add([&](const std::u16string& sName) {
        changed.push_back(sName);
        if (sName != u"Caption") return;
        EXPECT_EQ(frame.Taken(), Notes{"repaint"}); // of the font; its own comes behind
    });
    for (const auto& [sKey, value] : OtherFrameValues())
        EXPECT_TRUE(frame.PutProperty(sKey, value));
    EXPECT_EQ(changed, (Names{u"Caption", u"Tip", u"OLEDropMode"}));
}

TEST_F(FrameProperties, EnabledTellsTheWindowInRunModeAndAsksForARepaintOnlyThen) {
    auto& frame = Make(u"title");
    frame.Enabled(true);
    EXPECT_EQ(frame.Taken(), Notes{});
    frame.Enabled(false);
    EXPECT_EQ(frame.Taken(), Notes{"repaint"});
    EXPECT_FALSE(frame.Enabled());
    EXPECT_FALSE(IsWindowEnabled(frame.hwnd()));
    frame.Enabled(false);
    EXPECT_EQ(frame.Taken(), Notes{});
    frame.Enabled(true);
    EXPECT_EQ(frame.Taken(), Notes{"repaint"});
    EXPECT_TRUE(IsWindowEnabled(frame.hwnd()));
}

TEST_F(FrameProperties, EnabledInDesignModeKeepsTheWindowEnabledAndAlwaysRepaints) {
    form.UserMode(false);
    auto& frame = Make(u"title");
    for (const bool b : {false, false, true, true}) {
        frame.Enabled(b);
        EXPECT_EQ(frame.Taken(), Notes{"repaint"});
        EXPECT_EQ(frame.Enabled(), b);
        EXPECT_TRUE(IsWindowEnabled(frame.hwnd()));
    }
}

TEST_F(FrameProperties, APaintPutsTheWindowRightWhenTheModeHasChanged) {
    Show();
    auto& frame = Make(u"title");
    frame.Enabled(false);
    form.HostOf(frame)->UserMode(false);
    Grab(frame);
    EXPECT_TRUE(IsWindowEnabled(frame.hwnd()));
    EXPECT_FALSE(frame.Enabled());
    form.HostOf(frame)->UserMode(true);
    Grab(frame);
    EXPECT_FALSE(IsWindowEnabled(frame.hwnd()));
}

TEST_F(FrameProperties, NoSetterPaintsInRunModeAndABurstOfAThousandIsOnePaint) {
    Show();
    auto& frame = Make(u"title");
    Pump();
    frame.nPaints = 0;
    for (int n = 0; n < 1000; ++n)
        frame.Caption(n % 2 == 0 ? u"even" : u"odd");
    EXPECT_EQ(frame.nPaints, 0);
    Pump();
    EXPECT_EQ(frame.nPaints, 1);
}

TEST_F(FrameProperties, InDesignModeASetterPaintsAtOnce) {
    form.UserMode(false);
    Show();
    auto& frame = Make(u"title");
    Pump();
    frame.nPaints = 0;
    frame.BackColor(0x80FFFF);
    EXPECT_EQ(frame.nPaints, 1);
    EXPECT_EQ(WindowPixels(frame.hwnd()).At(100, 60), 0x80FFFF);
}

class FrameEvents : public FrameFixture {
protected:
    FrameEvents() {
        Show();
        NoDoubleClick();
    }
};

TEST_F(FrameEvents, MouseAndClicksAreRaisedInTheirOrderAndNoResize) {
    auto& frame = Make(u"title");
    MoveTo(frame, 50, 60);
    frame.Taken();
    Mouse(MOUSEEVENTF_LEFTDOWN);
    Mouse(MOUSEEVENTF_LEFTUP);
    EXPECT_EQ(frame.TakenEvents(), (Notes{"MouseDown 1 0 50,60", "MouseUp 1 0 50,60", "Click"}));
    Mouse(MOUSEEVENTF_LEFTDOWN);
    Mouse(MOUSEEVENTF_LEFTUP);
    EXPECT_EQ(frame.TakenEvents(), (Notes{"DblClick", "MouseUp 1 0 50,60"}));
    frame.Host().Size(220, 120);
    EXPECT_EQ(frame.Taken(), Notes{"repaint"});
}

TEST_F(FrameEvents, AMoveShowsTheTipInRunModeOnly) {
    for (const bool bUserMode : {true, false}) {
        const FakeTipScope tips;
        form.UserMode(bUserMode);
        auto& frame = Make(u"title");
        frame.Tip(u"what it is");
        frame.Taken();
        PostMouse(frame.hwnd(), WM_MOUSEMOVE, 0, 30, 4);
        Pump();
        EXPECT_EQ(tips.Shown().empty(), !bUserMode);
        EXPECT_THAT(frame.Taken(), ::testing::Contains("MouseMove 0 0 30,4"));
        form.Remove(frame);
    }
}

TEST_F(FrameEvents, AHandlerMayRemoveTheFrameWithAllThatStandsOnIt) {
    auto& frame = Make(u"title");
    form.Add<Frame>(u"fraInside", {300, 300, 900, 600}, &frame);
    frame.Click.Add([&] { form.Remove(frame); });
    Click(frame, 150, 90);
    EXPECT_TRUE(form.Controls().empty());
}

TEST_F(FrameEvents, EveryAmbientChangeAsksForARepaint) {
    auto& frame = Make(u"title");
    form.HostOf(frame)->AmbientChanged(u"whatever it is");
    EXPECT_EQ(frame.Taken(), Notes{"repaint"});
}

TEST_F(FrameProperties, EnabledIsTheFramesOwnFlagForCallersThatKnowOnlyAControl) {
    form.UserMode(false);
    auto& frame = Make(u"title");
    Control& control = frame;
    control.Enabled(false);
    EXPECT_FALSE(control.Enabled());
    EXPECT_FALSE(frame.Enabled());
    EXPECT_TRUE(IsWindowEnabled(frame.hwnd()));
    PropertyBag bag;
    frame.OnWriteProperties(bag);
    EXPECT_FALSE(PropertyKind<bool>::Take(bag.ReadProperty(u"Enabled", true)));
}

// The next control's message about its focus arrives while the setter is still at work.
TEST_F(FrameProperties, AFrameMayBeRemovedByTheControlInsideThatLosesTheFocus) {
    auto& frame = Make(u"title");
    auto& inner = form.Add<ProbeControl>(u"Inner", {150, 150, 600, 300}, &frame);
    form.Add<ProbeControl>(u"Other", {300, 10, 100, 30});
    Show();
    inner.Host().Extender().SetFocus();
    const std::weak_ptr<std::vector<std::string>> life = frame.journal;
    inner.duringExit = [&] { form.Remove(frame); };
    frame.Enabled(false);
    EXPECT_EQ(form.Find(u"fraName"), nullptr);
    EXPECT_FALSE(life.expired());
    PostMessageW(form.hWnd(), WM_NULL, 0, 0);
    Pump();
    EXPECT_TRUE(life.expired());
}

} // namespace
} // namespace orvanta::testing
