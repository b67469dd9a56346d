#include "controls/tips/ctlUniTooltipManager.h"

#include "controls/basic/ctlUniLabel.h"
#include "controls/contract/ObjectValues.h"
#include "controls/tips/ctlUniToolTip.h"
#include "plumbing/TipBridge.h"
#include "tests/controls/support/FormFixture.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace orvanta {
namespace {

// What the manager told the popup, and how many popups there were.
struct ToldPopup {
    int nMade = 0;
    int nEnded = 0;
    std::vector<std::string> told;
    OleColor lBack = -7, lFore = -7;
    std::int32_t lStyle = -7;
    IFont* font = nullptr;
    std::u16string sTip, sTag;
    std::int32_t lMaxWidth = 0, XMax = 0, YMax = 0;
    bool bVisible = false;
};

class RecordingPopup final : public TipPopup {
public:
    explicit RecordingPopup(ToldPopup& told) : m_told(told) { ++m_told.nMade; }
    ~RecordingPopup() override { ++m_told.nEnded; }
    RecordingPopup(const RecordingPopup&) = delete;
    RecordingPopup& operator=(const RecordingPopup&) = delete;

    void SetTip(std::u16string_view sTip, std::int32_t lMaxWidth, std::optional<std::u16string_view> sTag,
                std::int32_t XMax, std::int32_t YMax) override {
        Take("SetTip", sTip, lMaxWidth, sTag, XMax, YMax);
    }
    void UpdateTip(std::u16string_view sTip, std::int32_t lMaxWidth, std::optional<std::u16string_view> sTag,
                   std::int32_t XMax, std::int32_t YMax) override {
        Take("UpdateTip", sTip, lMaxWidth, sTag, XMax, YMax);
    }
    std::u16string GetTip() const override { return m_told.sTip; }
    std::u16string Tag() const override { return m_told.sTag; }
    bool IsVisible() const override { return m_told.bVisible; }
    void BackColor(OleColor lNewColor) override {
        m_told.told.emplace_back("BackColor");
        m_told.lBack = lNewColor;
    }
    void ForeColor(OleColor lNewColor) override {
        m_told.told.emplace_back("ForeColor");
        m_told.lFore = lNewColor;
    }
    void SetFont(IFont* oFont) override {
        m_told.told.emplace_back("SetFont");
        m_told.font = oFont;
    }
    void Style(std::int32_t New_Value) override {
        m_told.told.emplace_back("Style");
        m_told.lStyle = New_Value;
    }

private:
    void Take(const char* call, std::u16string_view sTip, std::int32_t lMaxWidth,
              std::optional<std::u16string_view> sTag, std::int32_t XMax, std::int32_t YMax) {
        m_told.told.emplace_back(call);
        m_told.sTip = sTip;
        if (sTag) m_told.sTag = *sTag;
        m_told.lMaxWidth = lMaxWidth;
        m_told.XMax = XMax;
        m_told.YMax = YMax;
    }

    ToldPopup& m_told;
};

class TooltipManagerTest : public testing::FormFixture {
protected:
    TooltipManagerTest() {
        SetTipPopupMaker([this] { return std::make_unique<RecordingPopup>(popup); });
        PersistentTip(false);
        TipTransparency(0);
    }
    ~TooltipManagerTest() override { SetTipPopupMaker({}); }

    ctlUniTooltipManager& Load(std::u16string_view sName = u"Tips") {
        return form.Load<ctlUniTooltipManager>(sName, {0, 0, 10, 10}, bag);
    }

    ToldPopup popup;
    PropertyBag bag;
};

TEST_F(TooltipManagerTest, FreshOneHasTheDefaultsAndStartsNothing) {
    auto& manager = form.Add<ctlUniTooltipManager>(u"Tips", {0, 0, 10, 10});
    EXPECT_FALSE(manager.PersistentTip());
    EXPECT_TRUE(manager.ActivateTips());
    EXPECT_EQ(manager.TipBgColor(), static_cast<OleColor>(0x80000018u));
    EXPECT_EQ(manager.TipFgColor(), static_cast<OleColor>(0x80000017u));
    EXPECT_EQ(manager.Style(), -1);
    EXPECT_EQ(manager.Transparency(), 0);
    EXPECT_FALSE(TipsOn());
    EXPECT_EQ(popup.nMade, 0);
}

TEST_F(TooltipManagerTest, KeysStandInTheOrderOfTheBag) {
    auto& manager = Load();
    EXPECT_EQ(manager.PropertyNames(),
              (std::vector<std::u16string>{u"PersistentTip", u"ActivateTips", u"Font", u"TipBgColor", u"TipFgColor",
                                           u"Style", u"Transparency"}));
}

TEST_F(TooltipManagerTest, LoadTurnsTipsOnAndCountsTheStart) {
    const std::int32_t lStarts = TipStarts();
    Load();
    EXPECT_TRUE(TipsOn());
    EXPECT_EQ(TipStarts(), lStarts + 1);
}

TEST_F(TooltipManagerTest, LoadGivesThePopupItsLookInOrder) {
    bag.WriteProperty(u"TipBgColor", PropertyKind<OleColor>::Make(0x112233));
    bag.WriteProperty(u"TipFgColor", PropertyKind<OleColor>::Make(0x445566));
    bag.WriteProperty(u"Style", PropertyKind<std::int32_t>::Make(4));
    bag.WriteProperty(u"Transparency", PropertyKind<std::int16_t>::Make(30));
    auto& manager = Load();
    EXPECT_EQ(popup.nMade, 1);
    EXPECT_EQ(popup.told, (std::vector<std::string>{"BackColor", "ForeColor", "SetFont", "Style"}));
    EXPECT_EQ(popup.lBack, 0x112233);
    EXPECT_EQ(popup.lFore, 0x445566);
    EXPECT_EQ(popup.lStyle, 4);
    EXPECT_EQ(popup.font, manager.TipFont().Object());
    EXPECT_EQ(TipTransparency(), 30);
}

TEST_F(TooltipManagerTest, PropertiesSurviveSavingAndLoading) {
    auto& manager = Load();
    manager.TipBgColor(1);
    manager.TipFgColor(2);
    manager.Style(3);
    manager.Transparency(4);
    manager.PersistentTip(true);
    manager.TipFont(OleFont::Create(u"Tahoma", 12));
    PropertyBag saved;
    manager.OnWriteProperties(saved);
    auto& copy = form.Load<ctlUniTooltipManager>(u"Copy", {0, 0, 10, 10}, saved);
    EXPECT_EQ(copy.TipBgColor(), 1);
    EXPECT_EQ(copy.TipFgColor(), 2);
    EXPECT_EQ(copy.Style(), 3);
    EXPECT_EQ(copy.Transparency(), 4);
    EXPECT_TRUE(copy.PersistentTip());
    EXPECT_EQ(copy.TipFont().Name(), u"Tahoma");
}

TEST_F(TooltipManagerTest, InactiveOneLeavesTheFlagAsItWas) {
    bag.WriteProperty(u"ActivateTips", PropertyKind<bool>::Make(false));
    bag.WriteProperty(u"PersistentTip", PropertyKind<bool>::Make(true));
    const std::int32_t lStarts = TipStarts();
    Load();
    EXPECT_FALSE(TipsOn());
    EXPECT_EQ(TipStarts(), lStarts);
    EXPECT_EQ(popup.nMade, 0);
    EXPECT_TRUE(PersistentTip()); // copied before the flag is looked at
}

TEST_F(TooltipManagerTest, InactiveOneLeavesOthersWorking) {
    Load(u"First");
    bag.WriteProperty(u"ActivateTips", PropertyKind<bool>::Make(false));
    auto& second = Load(u"Second");
    EXPECT_TRUE(TipsOn());
    form.Remove(second);
    EXPECT_TRUE(TipsOn());
    EXPECT_EQ(popup.nEnded, 0);
}

TEST_F(TooltipManagerTest, LastLoadedDecidesTheLook) {
    bag.WriteProperty(u"Style", PropertyKind<std::int32_t>::Make(1));
    Load(u"First");
    bag.WriteProperty(u"Style", PropertyKind<std::int32_t>::Make(2));
    Load(u"Second");
    EXPECT_EQ(popup.lStyle, 2);
    EXPECT_EQ(popup.nMade, 1);
}

TEST_F(TooltipManagerTest, EndOfAnActiveOneTurnsTipsOffForTheProcess) {
    auto& first = Load(u"First");
    Load(u"Second");
    form.Remove(first);
    EXPECT_FALSE(TipsOn());
    EXPECT_EQ(popup.nEnded, 1);
    ShowControlTip(u"tip", 300);
    EXPECT_EQ(popup.nMade, 1);
}

TEST_F(TooltipManagerTest, ClosingItsFormTurnsTipsOffForOtherForms) {
    {
        Form other(u"Other");
        other.Load<ctlUniTooltipManager>(u"Tips", {0, 0, 10, 10}, bag);
        EXPECT_TRUE(TipsOn());
        other.Close();
    }
    EXPECT_FALSE(TipsOn());
    EXPECT_EQ(popup.nEnded, 1);
}

TEST_F(TooltipManagerTest, TipsTurnedOffComeBackWithTheNextStartOfAnyManager) {
    auto& first = Load(u"First");
    auto& second = Load(u"Second");
    first.ActivateTips(false);
    EXPECT_FALSE(first.ActivateTips());
    EXPECT_FALSE(TipsOn());
    EXPECT_EQ(popup.nEnded, 1);
    second.ActivateTips(true);
    EXPECT_TRUE(TipsOn());
    EXPECT_EQ(popup.nMade, 2);
    form.Remove(first); // it is not active any more
    EXPECT_TRUE(TipsOn());
}

TEST_F(TooltipManagerTest, DesignModeTurnsNothingOn) {
    form.UserMode(false);
    auto& manager = Load();
    manager.ActivateTips(true);
    manager.TipBgColor(5);
    manager.TipFgColor(6);
    manager.Style(7);
    manager.Transparency(8);
    manager.TipFont(OleFont::Create(u"Tahoma", 12));
    EXPECT_FALSE(TipsOn());
    EXPECT_EQ(popup.nMade, 0);
    EXPECT_EQ(TipTransparency(), 0);
    EXPECT_EQ(manager.TipBgColor(), 5);
    EXPECT_EQ(manager.Transparency(), 8);
}

TEST_F(TooltipManagerTest, PersistenceIsTakenAtOnceInDesignModeToo) {
    form.UserMode(false);
    auto& manager = Load();
    manager.PersistentTip(true);
    EXPECT_TRUE(PersistentTip());
    manager.PersistentTip(false);
    EXPECT_FALSE(PersistentTip());
}

TEST_F(TooltipManagerTest, SettersMakeThePopupInRunModeEvenWhileTipsAreOff) {
    bag.WriteProperty(u"ActivateTips", PropertyKind<bool>::Make(false));
    auto& manager = Load();
    manager.Transparency(50);
    EXPECT_EQ(popup.nMade, 1);
    EXPECT_EQ(TipTransparency(), 50);
    EXPECT_FALSE(TipsOn());
    manager.Style(2);
    EXPECT_EQ(popup.lStyle, 2);
    EXPECT_EQ(popup.nMade, 1);
}

TEST_F(TooltipManagerTest, ByNameItsPropertiesDoWhatTheirSettersDo) {
    auto& manager = Load();
    EXPECT_TRUE(manager.PutProperty(u"tipbgcolor", PropertyKind<OleColor>::Make(9)));
    EXPECT_EQ(popup.lBack, 9);
    const OleFont font = OleFont::Create(u"Tahoma", 12);
    EXPECT_TRUE(manager.PutProperty(u"Font", PropertyKind<OleFont>::Make(font)));
    EXPECT_EQ(popup.font, manager.TipFont().Object());
    EXPECT_EQ(manager.TipFont().Name(), u"Tahoma");
    EXPECT_TRUE(manager.PutProperty(u"ActivateTips", PropertyKind<bool>::Make(false)));
    EXPECT_FALSE(TipsOn());
}

TEST_F(TooltipManagerTest, TipMembersGoToThePopupWhileTipsAreOn) {
    auto& manager = Load();
    manager.SetTip(u"tip", 120, u"tag", 30, 40);
    EXPECT_EQ(popup.told.back(), "SetTip");
    EXPECT_EQ(popup.lMaxWidth, 120);
    EXPECT_EQ(popup.XMax, 30);
    EXPECT_EQ(popup.YMax, 40);
    EXPECT_EQ(manager.GetTip(), u"tip");
    EXPECT_EQ(manager.GetTipTag(), u"tag");
    manager.UpdateTip(u"more", 10);
    EXPECT_EQ(popup.told.back(), "UpdateTip");
    EXPECT_EQ(popup.sTip, u"more");
    EXPECT_EQ(popup.sTag, u"tag");
    popup.bVisible = true;
    EXPECT_TRUE(manager.TipIsVisible());
    manager.HideTip();
    EXPECT_EQ(popup.told.back(), "SetTip");
    EXPECT_EQ(popup.sTip, u"");
    EXPECT_EQ(popup.lMaxWidth, 300);
}

TEST_F(TooltipManagerTest, TipMembersDoNothingWhileTipsAreOffAndMakeNoPopup) {
    auto& manager = form.Add<ctlUniTooltipManager>(u"Tips", {0, 0, 10, 10});
    manager.SetTip(u"tip", 120);
    manager.UpdateTip(u"tip", 120);
    manager.HideTip();
    EXPECT_EQ(manager.GetTip(), u"");
    EXPECT_EQ(manager.GetTipTag(), u"");
    EXPECT_FALSE(manager.TipIsVisible());
    EXPECT_EQ(popup.nMade, 0);
}

TEST_F(TooltipManagerTest, FormWithoutAManagerShowsNoTips) {
    auto& label = form.Add<ctlUniLabel>(u"Label1", {100, 100, 100, 40});
    label.Tip(u"tip");
    Show();
    MoveTo(label, 5, 5);
    MoveTo(label, 9, 9);
    EXPECT_EQ(popup.nMade, 0);
}

TEST_F(TooltipManagerTest, ControlsReachThePopupThroughIt) {
    Load();
    auto& label = form.Add<ctlUniLabel>(u"Label1", {100, 100, 100, 40});
    label.Tip(u"tip of the label");
    Show();
    MoveTo(label, 5, 5);
    EXPECT_EQ(popup.sTip, u"tip of the label");
    EXPECT_EQ(popup.lMaxWidth, 300);
}

TEST_F(TooltipManagerTest, WithoutAnotherMakerThePopupIsTheRealOne) {
    SetTipPopupMaker({});
    auto& manager = Load();
    EXPECT_NE(dynamic_cast<ctlUniToolTip*>(TipPopupForSettings()), nullptr);
    EXPECT_EQ(popup.nMade, 0);
    form.Remove(manager);
}

TEST_F(TooltipManagerTest, IsNotShownAtRunTimeAndTakesNoFocus) {
    auto& manager = Load();
    Show();
    EXPECT_FALSE(IsWindowVisible(manager.hwnd()));
    EXPECT_EQ(manager.Host().Extender().TabIndex(), -1);
}

TEST_F(TooltipManagerTest, DesignerShowsAnIconOfFixedSize) {
    form.UserMode(false);
    auto& manager = form.Add<ctlUniTooltipManager>(u"Tips", {10, 10, 200, 100});
    Show();
    // 16 pixels times 30 twips are 32 pixels.
    EXPECT_EQ(manager.Host().Width(), 32);
    EXPECT_EQ(manager.Host().Height(), 32);
    const testing::WindowPixels pixels = Grab(manager);
    EXPECT_EQ(pixels.At(8 + 8, 8 + 4), MakeColor(255, 255, 225));
    EXPECT_EQ(pixels.At(0, 0), pixels.At(8, 8)); // outside of the drawing nothing is drawn
    manager.Host().Size(90, 90);
    EXPECT_EQ(manager.Host().Width(), 32);
}

} // namespace
} // namespace orvanta
