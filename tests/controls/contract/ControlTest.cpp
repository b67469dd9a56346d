#include "tests/controls/support/FormFixture.h"
#include "tests/controls/support/ProbeControl.h"

#include "plumbing/FaceDrawing.h"
#include "plumbing/TipBridge.h"
#include "tests/support/NumberRaisedBy.h"

#include <gmock/gmock.h>

namespace orvanta::testing {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// Notes what controls ask of the tooltip.
class NotedTips final : public TipPopup {
public:
    explicit NotedTips(std::vector<std::string>& notes) : m_notes(notes) {}
    void SetTip(std::u16string_view sTip, std::int32_t lMaxWidth, std::optional<std::u16string_view> sTag,
                std::int32_t XMax, std::int32_t YMax) override {
        m_sTip = sTip;
        m_notes.push_back(std::string(sTip.begin(), sTip.end()) + " " + std::to_string(lMaxWidth) +
                          (sTag ? " tag" : "") + " " + std::to_string(XMax) + " " + std::to_string(YMax));
    }
    void UpdateTip(std::u16string_view, std::int32_t, std::optional<std::u16string_view>, std::int32_t,
                   std::int32_t) override {}
    std::u16string GetTip() const override { return m_sTip; }
    std::u16string Tag() const override { return {}; }
    bool IsVisible() const override { return false; }
    void BackColor(OleColor) override {}
    void ForeColor(OleColor) override {}
    void SetFont(IFont*) override {}
    void Style(std::int32_t) override {}

private:
    std::vector<std::string>& m_notes;
    std::u16string m_sTip;
};

class ControlTest : public FormFixture {
protected:
    ControlTest() : probe(form.Add<ProbeControl>(u"Probe1", {10, 20, 100, 30})) {
        form.HostOf(probe)->Changed.Add([this](const std::u16string& s) { changed.emplace_back(s.begin(), s.end()); });
        SetTipPopupMaker([this] { return std::make_unique<NotedTips>(tips); });
        Show();
        probe.nPaints = 0;
        probe.TakeNotes();
    }
    ~ControlTest() override {
        SetTipPopupMaker(nullptr);
        TipsOn(false);
    }

    ProbeControl& probe;
    std::vector<std::string> changed;
    std::vector<std::string> tips;
};

TEST_F(ControlTest, AFreshControlShowsItsNameUntilItsCaptionIsSet) {
    EXPECT_EQ(probe.Caption(), u"Probe1");
    probe.Caption(u"Other");
    EXPECT_EQ(probe.Caption(), u"Other");
}

TEST_F(ControlTest, EnabledOfTheSameValueCausesNoRepaint) {
    probe.Enabled(true);
    Pump();
    EXPECT_EQ(probe.nPaints, 0);
    probe.Enabled(false);
    EXPECT_EQ(probe.nPaints, 0);
    Pump();
    EXPECT_EQ(probe.nPaints, 1);
    EXPECT_FALSE(probe.Enabled());
    EXPECT_FALSE(IsWindowEnabled(probe.hwnd()));
    probe.Enabled(false);
    Pump();
    EXPECT_EQ(probe.nPaints, 1);
}

TEST_F(ControlTest, ApplyFontChangesRepaintsEvenWhenTheFontIsUnchanged) {
    EXPECT_TRUE(probe.ApplyFontChanges().IsNothing());
    EXPECT_EQ(probe.nPaints, 0);
    Pump();
    EXPECT_EQ(probe.nPaints, 1);
}

TEST_F(ControlTest, ApplyFontChangesTakesUpTheFieldsOfTheFontObject) {
    OleFont font = probe.Font();
    font.Size(24);
    probe.ApplyFontChanges();
    EXPECT_EQ(probe.Font().Object(), font.Object());
    Pump();
    TEXTMETRICW metrics{};
    GetTextMetricsW(probe.Host().hDC(), &metrics);
    EXPECT_GT(metrics.tmHeight, 25);
}

TEST_F(ControlTest, UseRoundRegionsMovesRoundedBordersAlong) {
    probe.UseRoundRegions(true);
    EXPECT_TRUE(probe.RoundedBorders());
    probe.UseRoundRegions(false);
    EXPECT_FALSE(probe.RoundedBorders());
    EXPECT_FALSE(probe.UseRoundRegions());
}

TEST_F(ControlTest, NoRunTimeSetterPaintsByItself) {
    probe.Caption(u"a");
    probe.BackColor(0xFF);
    probe.Margin(3);
    probe.Enabled(false);
    probe.Tip(u"tip");
    probe.OLEDropMode(1);
    probe.MousePointer(2);
    probe.MouseIcon({});
    probe.Font(form.Font());
    EXPECT_EQ(probe.nPaints, 0);
    Pump();
    EXPECT_EQ(probe.nPaints, 1);
}

TEST_F(ControlTest, InDesignModeASetterShowsItsEffectAtOnce) {
    form.HostOf(probe)->UserMode(false);
    probe.nPaints = 0;
    probe.BackColor(0x0000FF);
    EXPECT_EQ(probe.nPaints, 1);
    EXPECT_EQ(WindowPixels(probe.hwnd()).At(1, 1), 0x0000FF);
}

TEST_F(ControlTest, ARetainedImageIsShownByTheSetter) {
    probe.Host().AutoRedraw(true);
    FillOrFrame(probe.Host().hDC(), {0, 0, 100, 30}, 0x00FF00, true);
    probe.Margin(1);
    EXPECT_EQ(WindowPixels(probe.hwnd()).At(50, 15), 0x00FF00);
    EXPECT_EQ(probe.nPaints, 0);
}

TEST_F(ControlTest, OnlyCaptionTipAndDropModeTellTheContainer) {
    probe.BackColor(1);
    probe.Margin(1);
    probe.Enabled(false);
    probe.Font(form.Font());
    probe.ApplyFontChanges();
    probe.MousePointer(3);
    probe.MouseIcon({});
    probe.UseRoundRegions(true);
    probe.RoundedBorders(false);
    EXPECT_THAT(changed, IsEmpty());
    probe.Caption(u"x");
    probe.Tip(u"y");
    probe.OLEDropMode(1);
    EXPECT_THAT(changed, ElementsAre("Caption", "Tip", "OLEDropMode"));
}

TEST_F(ControlTest, ATipIsNoReasonToRepaint) {
    probe.Tip(u"what it does");
    Pump();
    EXPECT_EQ(probe.nPaints, 0);
    EXPECT_EQ(probe.Tip(), u"what it does");
}

TEST_F(ControlTest, PointerAndDropModeAreNarrowedToSixteenBits) {
    probe.MousePointer(11);
    EXPECT_EQ(probe.MousePointer(), 11);
    EXPECT_EQ(NumberRaisedBy([this] { probe.MousePointer(32768); }), Overflow().Number());
    EXPECT_EQ(NumberRaisedBy([this] { probe.OLEDropMode(-32769); }), Overflow().Number());
    EXPECT_EQ(probe.MousePointer(), 11);
    EXPECT_EQ(probe.OLEDropMode(), 0);
    EXPECT_THAT(changed, IsEmpty());
}

TEST_F(ControlTest, AnyAmbientChangeRepaints) {
    form.HostOf(probe)->AmbientChanged(u"Whatever");
    Pump();
    EXPECT_EQ(probe.nPaints, 1);
}

TEST_F(ControlTest, EachMouseMoveInRunModeOffersTheTip) {
    TipsOn(true);
    probe.Tip(u"what it does");
    SendMessageW(probe.hwnd(), WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    SendMessageW(probe.hwnd(), WM_MOUSEMOVE, 0, MAKELPARAM(6, 5));
    EXPECT_THAT(tips, ElementsAre("what it does 300 0 0", "what it does 300 0 0"));
}

TEST_F(ControlTest, AControlWithoutATipTellsThePopupThatTheMouseHasLeft) {
    TipsOn(true);
    auto& other = form.Add<ProbeControl>(u"Probe2", {10, 60, 100, 30});
    SendMessageW(other.hwnd(), WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    EXPECT_THAT(tips, IsEmpty());
    probe.Tip(u"a");
    SendMessageW(probe.hwnd(), WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    SendMessageW(other.hwnd(), WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    SendMessageW(other.hwnd(), WM_MOUSEMOVE, 0, MAKELPARAM(6, 5));
    EXPECT_THAT(tips, ElementsAre("a 300 0 0", " 300 0 0"));
}

TEST_F(ControlTest, InDesignModeMovingTheMouseOverAControlShowsNoTip) {
    TipsOn(true);
    probe.Tip(u"what it does");
    form.HostOf(probe)->UserMode(false);
    SendMessageW(probe.hwnd(), WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    EXPECT_THAT(tips, IsEmpty());
}

TEST_F(ControlTest, TheTipComesBeforeTheEvent) {
    TipsOn(true);
    probe.Tip(u"a");
    probe.MouseMove.Add([this](auto&, auto&, auto&, auto&) { tips.emplace_back("event"); });
    SendMessageW(probe.hwnd(), WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    EXPECT_THAT(tips, ElementsAre("a 300 0 0", "event"));
}

TEST_F(ControlTest, AnAutomaticBorderIsSixtyEightLevelsDarkerThanAnyBack) {
    for (const OleColor back : {MakeColor(200, 100, 50), MakeColor(255, 255, 255), MakeColor(10, 68, 240)}) {
        probe.duringPaint = [&] {
            DrawFace(probe.Host().hDC(), probe.ClientArea(), back, true, kAutomatic, false, false, false, false, false,
                     0, kAutomatic, true);
        };
        const auto darker = [back](int shift) { return std::max(0, (back >> shift & 0xFF) - 68); };
        InvalidateRect(probe.hwnd(), nullptr, FALSE);
        EXPECT_EQ(Grab(probe).At(50, 0), MakeColor(darker(0), darker(8), darker(16)));
    }
}

TEST_F(ControlTest, ARepaintGuardKeepsDrawingFromStartingItselfAgain) {
    int nInside = 0;
    probe.duringPaint = [&] {
        ++nInside;
        probe.OnPaint();
    };
    probe.BackColor(3);
    Pump();
    EXPECT_EQ(nInside, 1);
    probe.BackColor(4);
    Pump();
    EXPECT_EQ(nInside, 2);
}

TEST_F(ControlTest, AFailureInADrawingRoutineIsDroppedAndTheNextPaintRuns) {
    probe.duringPaint = [] { throw OwnFailure(u"Probe", u"cannot draw"); };
    probe.BackColor(3);
    Pump();
    EXPECT_EQ(probe.nPaints, 1);
    probe.duringPaint = nullptr;
    probe.BackColor(4);
    Pump();
    EXPECT_EQ(probe.nPaints, 2);
    EXPECT_EQ(Grab(probe).At(1, 1), 4);
}

TEST_F(ControlTest, EveryPropertyMakesTheRoundTripThroughTheBag) {
    probe.Caption(u"Größe");
    probe.BackColor(0x123456);
    probe.Margin(-3);
    probe.UseRoundRegions(true);
    probe.Enabled(false);
    OleFont font = probe.Font();
    font.Bold(true);
    probe.Tip(u"Hinweis");
    probe.OLEDropMode(1);
    probe.MousePointer(99);
    const OlePicture icon = OlePicture::OfIcon(CopyIcon(LoadIconW(nullptr, IDI_APPLICATION)));
    probe.MouseIcon(icon);

    PropertyBag bag;
    probe.OnWriteProperties(bag);
    EXPECT_EQ(bag.Count(), probe.PropertyNames().size());
    auto& copy = form.Load<ProbeControl>(u"Probe2", {10, 60, 100, 30}, bag);
    for (const std::u16string& sName : probe.PropertyNames()) {
        PropertyValue mine;
        PropertyValue its;
        EXPECT_TRUE(probe.GetProperty(sName, mine));
        EXPECT_TRUE(copy.GetProperty(sName, its));
        EXPECT_TRUE(mine == its) << std::string(sName.begin(), sName.end());
    }
    EXPECT_TRUE(copy.Font().Bold());
    EXPECT_NE(copy.Font().Object(), probe.Font().Object());
    EXPECT_EQ(copy.MouseIcon().Object(), icon.Object());
    EXPECT_FALSE(copy.Enabled());
    EXPECT_THAT(copy.TakeNotes(), ElementsAre("ReadProperties", "Resize", "Show"));
}

TEST_F(ControlTest, AFreshControlStoresItsNameAlone) {
    PropertyBag bag;
    probe.OnWriteProperties(bag);
    EXPECT_THAT(bag.Keys(), ElementsAre(u"Caption"));
}

TEST_F(ControlTest, AFontThatIsNotStoredIsTheAmbientOneAndBelongsToTheControlAlone) {
    form.Font(OleFont::Create(u"Tahoma", 12));
    auto& first = form.Load<ProbeControl>(u"Probe2", {10, 60, 100, 30}, {});
    auto& second = form.Load<ProbeControl>(u"Probe3", {10, 100, 100, 30}, {});
    EXPECT_TRUE(first.Font().IsEqual(form.Font()));
    first.Font().Bold(true);
    EXPECT_FALSE(second.Font().Bold());
    EXPECT_FALSE(form.Font().Bold());
}

TEST_F(ControlTest, SettingByNameDoesWhatThePublicSetterDoes) {
    EXPECT_TRUE(probe.PutProperty(u"caption", u"by name"));
    EXPECT_THAT(changed, ElementsAre("Caption"));
    EXPECT_TRUE(probe.PutProperty(u"Enabled", false));
    EXPECT_FALSE(probe.Enabled());
    EXPECT_TRUE(probe.PutProperty(u"UseRoundRegions", true));
    EXPECT_TRUE(probe.RoundedBorders());
    EXPECT_FALSE(probe.PutProperty(u"Nonsense", true));
}

TEST_F(ControlTest, AHandlerThatRemovesTheControlEndsTheRaise) {
    bool bSecond = false;
    probe.Click.Add([this] { form.Remove(probe); });
    probe.Click.Add([&bSecond] { bSecond = true; });
    const HostCall call;
    probe.OnClick();
    EXPECT_TRUE(bSecond);
    EXPECT_TRUE(probe.Host().IsGone());
    EXPECT_EQ(probe.hwnd(), nullptr);
    // All that a control may still call does nothing.
    probe.Caption(u"late");
    probe.ApplyFontChanges();
    probe.Enabled(true);
    probe.UseRoundRegions(true);
    probe.OLEDropMode(1);
    probe.OLEDrag();
    probe.Host().Refresh();
    probe.Host().AutoRedraw(true);
    probe.Host().Size(10, 10);
    probe.Host().Extender().Left(4);
    probe.Host().Extender().Default(true);
    probe.Host().Extender().SetFocus();
    EXPECT_EQ(probe.Host().hDC(), nullptr);
    EXPECT_EQ(probe.Host().ScaleWidth(), 0.0F);
    EXPECT_EQ(probe.Host().Extender().Container().ContainerWindow(), nullptr);
    EXPECT_FALSE(probe.Host().Extender().Visible());
    EXPECT_FALSE(probe.Enabled());
}

} // namespace

} // namespace orvanta::testing
