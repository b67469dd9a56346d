#include "plumbing/TipBridge.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace orvanta {
namespace {

struct Calls {
    int nMade = 0;
    int nGone = 0;
    std::vector<std::u16string> log;
    std::u16string sTip;
    std::u16string sTag;
    bool bVisible = false;
};

class FakePopup final : public TipPopup {
public:
    explicit FakePopup(Calls& calls) : m_calls(calls) { ++calls.nMade; }
    ~FakePopup() override {
        ++m_calls.nGone;
        m_calls.sTip.clear();
        TipsOn(false);
    }
    void SetTip(std::u16string_view sTip, std::int32_t lMaxWidth, std::optional<std::u16string_view> sTag,
                std::int32_t XMax, std::int32_t YMax) override {
        Log(u"set", sTip, lMaxWidth, sTag, XMax, YMax);
    }
    void UpdateTip(std::u16string_view sTip, std::int32_t lMaxWidth, std::optional<std::u16string_view> sTag,
                   std::int32_t XMax, std::int32_t YMax) override {
        Log(u"update", sTip, lMaxWidth, sTag, XMax, YMax);
    }
    std::u16string GetTip() const override { return m_calls.sTip; }
    std::u16string Tag() const override { return m_calls.sTag; }
    bool IsVisible() const override { return m_calls.bVisible; }
    void BackColor(OleColor) override {}
    void ForeColor(OleColor) override {}
    void SetFont(IFont*) override {}
    void Style(std::int32_t) override {}

private:
    void Log(std::u16string s, std::u16string_view sTip, std::int32_t lMaxWidth,
             std::optional<std::u16string_view> sTag, std::int32_t XMax, std::int32_t YMax) {
        s.append(u" ").append(sTip).append(u" ").append(sTag.value_or(u"-"));
        for (const std::int32_t l : {lMaxWidth, XMax, YMax})
            for (const char c : " " + std::to_string(l))
                s.push_back(static_cast<char16_t>(c));
        m_calls.log.push_back(s);
        m_calls.sTip = sTip;
    }
    Calls& m_calls;
};

class TipBridge : public ::testing::Test {
protected:
    TipBridge() {
        SetTipPopupMaker([this] { return std::make_unique<FakePopup>(calls); });
    }
    ~TipBridge() override {
        SetTipPopupMaker(nullptr);
        PersistentTip(false);
        TipTransparency(0);
    }
    using Log = std::vector<std::u16string>;
    Calls calls;
};

TEST_F(TipBridge, TipsAreOffAtFirstAndNothingReachesThePopup) {
    EXPECT_FALSE(TipsOn());
    ShowControlTip(u"tip", 300);
    UpdateControlTip(u"tip", 300);
    EXPECT_EQ(ControlTip(), u"");
    EXPECT_EQ(ControlTipTag(), u"");
    EXPECT_FALSE(ControlTipIsVisible());
    EXPECT_EQ(calls.nMade, 0);
}

TEST_F(TipBridge, ATipMakesThePopupAtFirstUseAndGoesThrough) {
    TipsOn(true);
    ShowControlTip(u"one", 300);
    ShowControlTip(u"two", 200, u"tag", 7, 8);
    EXPECT_EQ(calls.nMade, 1);
    EXPECT_EQ(calls.log, (Log{u"set one - 300 0 0", u"set two tag 200 7 8"}));
}

TEST_F(TipBridge, AnEmptyTipIsNotPassedOnWhenThereIsNoTipToEnd) {
    TipsOn(true);
    ShowControlTip(u"", 300);
    EXPECT_EQ(calls.nMade, 0);
    TipPopupForSettings();
    ShowControlTip(u"", 300);
    EXPECT_TRUE(calls.log.empty());
}

TEST_F(TipBridge, AnEmptyTipEndsAPresentOne) {
    TipsOn(true);
    ShowControlTip(u"one", 300);
    ShowControlTip(u"", 300);
    ShowControlTip(u"", 300);
    EXPECT_EQ(calls.log, (Log{u"set one - 300 0 0", u"set  - 300 0 0"}));
}

TEST_F(TipBridge, AnEmptyTipWithATagIsPassedOnAlways) {
    TipsOn(true);
    ShowControlTip(u"", 300, u"");
    EXPECT_EQ(calls.log, Log{u"set   300 0 0"});
}

TEST_F(TipBridge, AnUpdateGoesThroughWhileTipsAreOn) {
    TipsOn(true);
    UpdateControlTip(u"new", 300, u"t", 1, 2);
    EXPECT_EQ(calls.log, Log{u"update new t 300 1 2"});
}

TEST_F(TipBridge, QuestionsAreAnsweredByThePopupWhileTipsAreOn) {
    TipsOn(true);
    ShowControlTip(u"one", 300);
    calls.sTag = u"tag";
    calls.bVisible = true;
    EXPECT_EQ(ControlTip(), u"one");
    EXPECT_EQ(ControlTipTag(), u"tag");
    EXPECT_TRUE(ControlTipIsVisible());
    TipsOn(false);
    EXPECT_EQ(ControlTip(), u"");
    EXPECT_EQ(ControlTipTag(), u"");
    EXPECT_FALSE(ControlTipIsVisible());
}

TEST_F(TipBridge, AskingMakesNoPopup) {
    TipsOn(true);
    EXPECT_FALSE(ControlTipIsVisible());
    EXPECT_EQ(ControlTip(), u"");
    EXPECT_EQ(calls.nMade, 0);
}

TEST_F(TipBridge, SettingsReachThePopupWhileTipsAreOff) {
    EXPECT_NE(TipPopupForSettings(), nullptr);
    EXPECT_EQ(TipPopupForSettings(), TipPopupForSettings());
    EXPECT_EQ(calls.nMade, 1);
}

TEST_F(TipBridge, UnloadingEndsThePopupAndTurnsTipsOffForTheProcess) {
    TipsOn(true);
    ShowControlTip(u"one", 300);
    UnloadTipPopup();
    EXPECT_EQ(calls.nGone, 1);
    EXPECT_FALSE(TipsOn());
    ShowControlTip(u"two", 300);
    EXPECT_EQ(calls.log.size(), 1u);
}

TEST_F(TipBridge, UnloadingWithoutAPopupTurnsTipsOffToo) {
    TipsOn(true);
    UnloadTipPopup();
    EXPECT_FALSE(TipsOn());
    EXPECT_EQ(calls.nMade, 0);
}

TEST_F(TipBridge, AfterUnloadingANewPopupIsMade) {
    TipsOn(true);
    ShowControlTip(u"one", 300);
    UnloadTipPopup();
    TipsOn(true);
    ShowControlTip(u"two", 300);
    EXPECT_EQ(calls.nMade, 2);
}

TEST_F(TipBridge, WithoutAMakerTipsShowNothing) {
    SetTipPopupMaker(nullptr);
    TipsOn(true);
    ShowControlTip(u"one", 300);
    UpdateControlTip(u"one", 300);
    EXPECT_EQ(TipPopupForSettings(), nullptr);
    EXPECT_EQ(calls.nMade, 0);
}

TEST_F(TipBridge, KeepsTheValuesOfTheProcess) {
    EXPECT_FALSE(PersistentTip());
    EXPECT_EQ(TipTransparency(), 0);
    PersistentTip(true);
    TipTransparency(50);
    EXPECT_TRUE(PersistentTip());
    EXPECT_EQ(TipTransparency(), 50);
    const std::int32_t lStarts = TipStarts();
    CountTipStart();
    EXPECT_EQ(TipStarts(), lStarts + 1);
}

} // namespace
} // namespace orvanta
