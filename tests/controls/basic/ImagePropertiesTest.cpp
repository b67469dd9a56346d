#include "controls/basic/ctlUniImage.h"

#include "controls/contract/ObjectValues.h"
#include "tests/controls/basic/FakeTip.h"
#include "tests/controls/basic/ImageFixture.h"
#include "tests/support/GdiCensus.h"
#include "tests/support/Unicode.h"
#include "tests/support/WindowCensus.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace orvanta {
namespace {

using testing::PictureOfSize;
using testing::PlainIcon;

class CountedImage final : public ctlUniImage {
public:
    using ctlUniImage::ctlUniImage;
    void OnPaint() override {
        ++nPaints;
        ctlUniImage::OnPaint();
    }
    int nPaints = 0;
};

class ImageProperties : public testing::ImageFixture {};

struct NamedValue {
    const char16_t* sKey;
    PropertyValue byDefault;
    PropertyValue other;
};

// All keys in the order of the bag, with the default and with another value.
std::vector<NamedValue> ImageValues() {
    const auto color = [](std::uint32_t n) { return PropertyValue(static_cast<std::int32_t>(n)); };
    return {
        {u"Picture", {}, PropertyKind<OlePicture>::Make(PictureOfSize(6, 4))},
        {u"Tip", u"", u"what this is"},
        {u"Enabled", true, false},
        {u"Border", false, true},
        {u"BackColor", color(0x8000000F), color(0x00123456)},
        {u"BorderColor", -1, color(0x80000006)},
        {u"RoundedBorders", true, false},
        {u"BackColorOut", -1, 0x00FFFFFF},
        {u"UseRoundRegions", false, true},
        {u"Stretch", false, true},
        {u"TransparencyType", 0, 1},
        {u"TransparentColor", -1, 0x00FF00FF},
        {u"XTransp", 0, 32767},
        {u"YTransp", 0, -32768},
        {u"OLEDropMode", 0, 1},
        {u"MousePointer", 0, 99},
        {u"MouseIcon", {}, PropertyKind<OlePicture>::Make(PlainIcon(32))},
    };
}

PropertyValue ValueOf(const ctlUniImage& image, std::u16string_view sKey) {
    PropertyValue value;
    EXPECT_TRUE(image.GetProperty(sKey, value));
    return value;
}

TEST_F(ImageProperties, TheTableHasTheseKeysInThisOrder) {
    std::vector<std::u16string> expected;
    for (const NamedValue& value : ImageValues())
        expected.emplace_back(value.sKey);
    EXPECT_EQ(Put<ctlUniImage>(40, 40).PropertyNames(), expected);
}

TEST_F(ImageProperties, AFreshControlAndOneLoadedFromAnEmptyBagHaveTheDefaults) {
    const auto& fresh = Put<ctlUniImage>(40, 40);
    const auto& loaded = form.Load<ctlUniImage>(u"loaded", {0, 0, 40, 40}, PropertyBag());
    for (const NamedValue& value : ImageValues()) {
        EXPECT_TRUE(ValueOf(fresh, value.sKey) == value.byDefault) << "fresh " << testing::ToUtf8(value.sKey);
        EXPECT_TRUE(ValueOf(loaded, value.sKey) == value.byDefault) << "loaded " << testing::ToUtf8(value.sKey);
    }
}

TEST_F(ImageProperties, DefaultsAreNotStored) {
    PropertyBag bag;
    Put<ctlUniImage>(40, 40).OnWriteProperties(bag);
    EXPECT_EQ(bag.Keys(), std::vector<std::u16string>());
}

TEST_F(ImageProperties, EachOtherValueIsStoredAloneAndComesBackFromTheBag) {
    for (const NamedValue& value : ImageValues()) {
        if (value.sKey == std::u16string_view(u"UseRoundRegions")) continue; // has a test of its own
        SCOPED_TRACE(testing::ToUtf8(value.sKey));
        auto& image = Put<ctlUniImage>(40, 40);
        ASSERT_TRUE(image.PutProperty(value.sKey, value.other));
        PropertyBag bag;
        image.OnWriteProperties(bag);
        EXPECT_EQ(bag.Keys(), std::vector<std::u16string>{value.sKey});
        form.Remove(image);
        const auto& loaded = form.Load<ctlUniImage>(u"loaded", {0, 0, 40, 40}, bag);
        for (const NamedValue& each : ImageValues()) {
            const bool bThis = each.sKey == std::u16string_view(value.sKey);
            EXPECT_TRUE(ValueOf(loaded, each.sKey) == (bThis ? value.other : each.byDefault))
                << testing::ToUtf8(each.sKey);
        }
        form.Remove(loaded);
    }
}

TEST_F(ImageProperties, UseRoundRegionsComesBackWithoutTouchingRoundedBorders) {
    PropertyBag bag;
    bag.WriteProperty(u"RoundedBorders", false);
    bag.WriteProperty(u"useroundregions", true);
    const auto& loaded = form.Load<ctlUniImage>(u"loaded", {0, 0, 40, 40}, bag);
    EXPECT_TRUE(loaded.UseRoundRegions());
    EXPECT_FALSE(loaded.RoundedBorders());
    EXPECT_EQ(loaded.Host().BackStyle(), 1); // both are needed for a mask
}

TEST_F(ImageProperties, UseRoundRegionsSetsRoundedBordersToTheSame) {
    auto& image = Put<ctlUniImage>(40, 40);
    image.UseRoundRegions(false);
    EXPECT_FALSE(image.RoundedBorders());
    image.UseRoundRegions(true);
    EXPECT_TRUE(image.RoundedBorders());
    EXPECT_TRUE(image.UseRoundRegions());
    image.UseRoundRegions(false);
    EXPECT_FALSE(image.RoundedBorders());
    EXPECT_FALSE(image.UseRoundRegions());
}

// Whether the window's shape has a pixel.
bool InShape(HWND window, int x, int y) {
    const OwnedRegion region(CreateRectRgn(0, 0, 0, 0));
    if (GetWindowRgn(window, region.Get()) == ERROR) return true;
    return PtInRegion(region.Get(), x, y) != FALSE;
}

// The shape is what a white rounded rectangle with corner 2 covers.
void ExpectRoundShape(const ctlUniImage& image, int width, int height) {
    EXPECT_EQ(image.Host().BackStyle(), 0);
    clsMEMDC mask;
    mask.CreateDC(width + 1, height + 1, OPAQUE);
    mask.DrawBackColor(0);
    const Selection pen(mask.Hdc(), GetStockObject(WHITE_PEN)), brush(mask.Hdc(), GetStockObject(WHITE_BRUSH));
    RoundRect(mask.Hdc(), 0, 0, width, height, 2, 2);
    int nDifferent = 0;
    for (int y = 0; y <= height; ++y) {
        for (int x = 0; x <= width; ++x) {
            if (InShape(image.hwnd(), x, y) != (GetPixel(mask.Hdc(), x, y) != 0)) ++nDifferent;
        }
    }
    EXPECT_EQ(nDifferent, 0);
}

TEST_F(ImageProperties, UseRoundRegionsGivesTheWindowAShapeThatFollowsItsSize) {
    auto& image = Put<ctlUniImage>(40, 30);
    EXPECT_EQ(image.Host().BackStyle(), 1);
    image.UseRoundRegions(true);
    ExpectRoundShape(image, 40, 30);
    image.Host().Size(60, 50);
    ExpectRoundShape(image, 60, 50);
    image.UseRoundRegions(false);
    EXPECT_EQ(image.Host().BackStyle(), 1);
    EXPECT_TRUE(InShape(image.hwnd(), 0, 0));
}

TEST_F(ImageProperties, WithoutRoundedBordersTheNextResizeTakesTheShapeAway) {
    auto& image = Put<ctlUniImage>(40, 30);
    image.UseRoundRegions(true);
    image.RoundedBorders(false);
    image.Host().Size(41, 30);
    EXPECT_EQ(image.Host().BackStyle(), 1);
    image.RoundedBorders(true);
    image.Host().Size(40, 30);
    EXPECT_EQ(image.Host().BackStyle(), 0);
}

TEST_F(ImageProperties, ByNameCaseDoesNotMatterAndAnUnknownNameIsAnswered) {
    auto& image = Put<ctlUniImage>(40, 40);
    EXPECT_TRUE(image.PutProperty(u"xTRANSP", 3));
    EXPECT_EQ(image.xTranspColor(), 3);
    EXPECT_FALSE(image.PutProperty(u"xTranspColor", 3));
    EXPECT_THROW(image.PutProperty(u"XTransp", 32768), Failure);
    EXPECT_EQ(image.xTranspColor(), 3);
}

using Setter = void (*)(ctlUniImage&);
constexpr Setter kPaintingSetters[] = {
    [](ctlUniImage& c) { c.Picture({}); },
    [](ctlUniImage& c) { c.Border(false); },
    [](ctlUniImage& c) { c.BackColor(0); },
    [](ctlUniImage& c) { c.BorderColor(0); },
    [](ctlUniImage& c) { c.RoundedBorders(true); },
    [](ctlUniImage& c) { c.BackColorOut(0); },
    [](ctlUniImage& c) { c.UseRoundRegions(false); },
    [](ctlUniImage& c) { c.Stretch(false); },
    [](ctlUniImage& c) { c.TransparencyType(0); },
    [](ctlUniImage& c) { c.TransparentColor(-1); },
    [](ctlUniImage& c) { c.xTranspColor(0); },
    [](ctlUniImage& c) { c.yTranspColor(0); },
    [](ctlUniImage& c) { c.Enabled(!c.Enabled()); },
};

TEST_F(ImageProperties, AtRunTimeNoSetterPaintsButEachAsksForAPaintEvenWithTheValueItHas) {
    auto& image = Put<CountedImage>(40, 40);
    for (const Setter set : kPaintingSetters) {
        Pump();
        image.nPaints = 0;
        set(image);
        EXPECT_EQ(image.nPaints, 0) << "setter " << &set - kPaintingSetters;
        EXPECT_TRUE(GetUpdateRect(image.hwnd(), nullptr, FALSE)) << "setter " << &set - kPaintingSetters;
        Pump();
        EXPECT_EQ(image.nPaints, 1) << "setter " << &set - kPaintingSetters;
    }
}

TEST_F(ImageProperties, AThousandSettersMakeOnePaint) {
    auto& image = Put<CountedImage>(40, 40);
    Pump();
    image.nPaints = 0;
    for (int n = 0; n < 1000; ++n)
        kPaintingSetters[static_cast<std::size_t>(n) % std::size(kPaintingSetters)](image);
    Pump();
    EXPECT_EQ(image.nPaints, 1);
}

TEST_F(ImageProperties, InDesignModeEachSetterPaintsAtOnce) {
    auto& image = Put<CountedImage>(40, 40, false);
    Pump();
    for (const Setter set : kPaintingSetters) {
        image.nPaints = 0;
        set(image);
        EXPECT_EQ(image.nPaints, 1) << "setter " << &set - kPaintingSetters;
    }
}

TEST_F(ImageProperties, TheseSettersAskForNoPaint) {
    auto& image = Put<CountedImage>(40, 40);
    Pump();
    image.nPaints = 0;
    image.Enabled(true); // as it is
    image.Tip(u"tip");
    image.OLEDropMode(1);
    image.MousePointer(2);
    image.MouseIcon(PlainIcon(32));
    EXPECT_FALSE(GetUpdateRect(image.hwnd(), nullptr, FALSE));
    Pump();
    EXPECT_EQ(image.nPaints, 0);
}

TEST_F(ImageProperties, OnlyTipAndOLEDropModeTellTheContainer) {
    auto& image = Put<ctlUniImage>(40, 40);
    std::vector<std::u16string> changed;
    form.HostOf(image)->Changed.Add([&](const std::u16string& sName) { changed.push_back(sName); });
    for (const Setter set : kPaintingSetters)
        set(image);
    image.MousePointer(2);
    image.MouseIcon({});
    EXPECT_EQ(changed, std::vector<std::u16string>());
    image.Tip(u"tip");
    image.OLEDropMode(1);
    EXPECT_EQ(changed, (std::vector<std::u16string>{u"Tip", u"OLEDropMode"}));
}

TEST_F(ImageProperties, AResizeRepaints) {
    auto& image = Put<CountedImage>(40, 40);
    Pump();
    image.nPaints = 0;
    image.Host().Size(50, 40);
    Pump();
    EXPECT_GE(image.nPaints, 1);
}

class ImageEvents : public ImageProperties {
protected:
    ctlUniImage& Watched(bool bUserMode = true) {
        auto& image = Put<ctlUniImage>(40, 40, bUserMode);
        image.Click.Add([this] { log.emplace_back("Click"); });
        image.DblClick.Add([this] { log.emplace_back("DblClick"); });
        const auto watch = [this](const char* name, MouseEvents::MouseEvent& event) {
            event.Add([this, name](std::int16_t& Button, std::int16_t& Shift, float& X, float& Y) {
                log.push_back(std::string(name) + " " + std::to_string(Button) + " " + std::to_string(Shift) + " " +
                              std::to_string(static_cast<int>(X)) + " " + std::to_string(static_cast<int>(Y)));
            });
        };
        watch("MouseDown", image.MouseDown);
        watch("MouseMove", image.MouseMove);
        watch("MouseUp", image.MouseUp);
        return image;
    }
    std::vector<std::string> log;
};

TEST_F(ImageEvents, APressAndAReleaseAreMouseDownMouseUpClick) {
    const auto& image = Watched();
    SendMessageW(image.hwnd(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 6));
    SendMessageW(image.hwnd(), WM_LBUTTONUP, 0, MAKELPARAM(7, 8));
    EXPECT_EQ(log, (std::vector<std::string>{"MouseDown 1 0 5 6", "MouseUp 1 0 7 8", "Click"}));
}

TEST_F(ImageEvents, ARealClickRaisesTheSameBehindTheMoveThatLeadsThere) {
    const auto& image = Watched();
    MoveTo(image, 5, 6);
    log.clear();
    Mouse(MOUSEEVENTF_LEFTDOWN);
    Mouse(MOUSEEVENTF_LEFTUP);
    std::erase(log, "MouseMove 0 0 5 6"); // the system may repeat it
    EXPECT_EQ(log, (std::vector<std::string>{"MouseDown 1 0 5 6", "MouseUp 1 0 5 6", "Click"}));
}

TEST_F(ImageEvents, ADragIsPassedOnWithArgumentsThatAHandlerMayChange) {
    auto& image = Watched();
    image.OLEStartDrag.Add([](DataObject& Data, std::int32_t& AllowedEffects) {
        Data.SetText(u"hill");
        AllowedEffects = kDropCopy;
    });
    image.OLEDragOver.Add([](DataObject&, std::int32_t& Effect, std::int16_t&, std::int16_t&, float&, float&,
                             std::int16_t&) { Effect = kDropNone; });
    DataObject data;
    std::int32_t lAllowed = 0, lEffect = kDropMove;
    std::int16_t iButton = 1, iShift = 0, iState = kDragOver;
    float x = 1, y = 2;
    image.OnOLEStartDrag(data, lAllowed);
    image.OnOLEDragOver(data, lEffect, iButton, iShift, x, y, iState);
    EXPECT_EQ(data.GetText(), u"hill");
    EXPECT_EQ(lAllowed, kDropCopy);
    EXPECT_EQ(lEffect, kDropNone);
}

TEST_F(ImageEvents, TheSecondPressOfADoubleClickIsDblClickAlone) {
    const auto& image = Watched();
    SendMessageW(image.hwnd(), WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(5, 6));
    SendMessageW(image.hwnd(), WM_LBUTTONUP, 0, MAKELPARAM(5, 6));
    EXPECT_EQ(log, (std::vector<std::string>{"DblClick", "MouseUp 1 0 5 6"}));
}

TEST_F(ImageEvents, AMoveIsMouseMoveInBothModes) {
    SendMessageW(Watched().hwnd(), WM_MOUSEMOVE, 0, MAKELPARAM(3, 4));
    EXPECT_EQ(log, (std::vector<std::string>{"MouseMove 0 0 3 4"}));
}

TEST_F(ImageEvents, AHandlerMayTakeTheControlAway) {
    auto& image = Watched();
    image.MouseDown.Add([&](std::int16_t&, std::int16_t&, float&, float&) { form.Remove(image); });
    HWND window = image.hwnd();
    SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 6));
    EXPECT_FALSE(IsWindow(window));
    EXPECT_TRUE(form.Controls().empty());
}

TEST_F(ImageEvents, AMoveShowsTheTipBeforeMouseMoveIsRaised) {
    const testing::FakeTipScope tips;
    auto& image = Watched();
    image.Tip(u"a hill");
    std::size_t nTipsAtEvent = 0;
    image.MouseMove.Add([&](std::int16_t&, std::int16_t&, float&, float&) { nTipsAtEvent = tips.Shown().size(); });
    image.OnMouseMove(0, 0, 3, 4);
    EXPECT_EQ(tips.Shown(), std::vector<std::u16string>{u"a hill"});
    EXPECT_EQ(tips.LastMaxWidth(), 300);
    EXPECT_EQ(nTipsAtEvent, 1U);
}

TEST_F(ImageEvents, InDesignModeAMoveShowsNoTip) {
    const testing::FakeTipScope tips;
    auto& image = Watched(false);
    image.Tip(u"a hill");
    image.OnMouseMove(0, 0, 3, 4);
    EXPECT_EQ(tips.Shown(), std::vector<std::u16string>());
}

TEST_F(ImageProperties, RoundsOfControlsLeaveNothingBehind) {
    const OlePicture picture = PictureOfSize(90, 60);
    const auto round = [&] {
        auto& image = Put<ctlUniImage>(40, 40);
        image.Picture(picture);
        Pump();
        image.Stretch(true);
        image.Border(true);
        image.Enabled(false);
        Pump();
        image.UseRoundRegions(true);
        image.Host().Size(50, 45);
        Pump();
        form.Remove(image);
        Pump();
    };
    for (int n = 0; n < 5; ++n)
        round();
    const testing::GdiCensus before = testing::GdiCensus::Take();
    const int nWindows = testing::CountOwnWindows();
    for (int n = 0; n < 200; ++n)
        round();
    EXPECT_EQ(testing::GdiCensus::Take(), before);
    EXPECT_EQ(testing::CountOwnWindows(), nWindows);
}

} // namespace
} // namespace orvanta
