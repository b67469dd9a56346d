// After a warm-up, thousands of rounds of labels and frames in every shape leave nothing behind.
#include "controls/basic/ctlUniFrameXP.h"
#include "tests/controls/basic/LabelFixture.h"
#include "tests/support/GdiCensus.h"
#include "tests/support/WindowCensus.h"

#include <functional>

namespace orvanta::testing {
namespace {

constexpr int kLabelRounds = 2000;

class LabelLeaks : public FormFixture {
protected:
    LabelLeaks() { Show(); }

    void ExpectNoGrowth(const std::function<void()>& round) {
        for (int n = 0; n < 5; ++n)
            round();
        Pump();
        const GdiCensus objects = GdiCensus::Take();
        const int nWindows = CountOwnWindows();
        for (int n = 0; n < kLabelRounds; ++n)
            round();
        Pump();
        EXPECT_EQ(GdiCensus::Take(), objects);
        EXPECT_EQ(CountOwnWindows(), nWindows);
    }
    template<typename LabelType>
    void RunLabel(std::int32_t lBackStyle, bool bRound) {
        PropertyBag bag;
        bag.WriteProperty(u"Caption", u"text");
        bag.WriteProperty(u"BackStyle", lBackStyle);
        bag.WriteProperty(u"BorderStyle", 1);
        bag.WriteProperty(u"AutoSize", true);
        bag.WriteProperty(u"UseRoundRegions", bRound);
        ExpectNoGrowth([&] {
            auto& label = form.Load<LabelType>(u"lbl", {10, 10, 60, 20}, bag);
            UpdateWindow(label.hwnd());
            label.Refresh(true);
            form.Remove(label);
        });
    }
};

TEST_F(LabelLeaks, Opaque) {
    RunLabel<ctlUniLabel>(1, false);
}
TEST_F(LabelLeaks, Transparent) {
    RunLabel<ctlUniLabel>(0, false);
}
TEST_F(LabelLeaks, Round) {
    RunLabel<ctlUniLabel>(1, true);
}
TEST_F(LabelLeaks, TwinOpaque) {
    RunLabel<ctlUniLabelNoFlick>(1, false);
}
TEST_F(LabelLeaks, TwinTransparent) {
    RunLabel<ctlUniLabelNoFlick>(0, false);
}
TEST_F(LabelLeaks, TwinRound) {
    RunLabel<ctlUniLabelNoFlick>(1, true);
}

TEST_F(LabelLeaks, FramesWithAControlOnThem) {
    ExpectNoGrowth([this] {
        auto& frame = form.Add<ctlUniFrameXP>(u"fra", {10, 10, 60, 40});
        form.Add<ctlUniLabel>(u"lbl", {150, 300, 450, 150}, &frame);
        frame.UseShadow(true);
        for (const bool b : {true, false}) {
            frame.VistaStyle(b);
            RedrawWindow(frame.hwnd(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        }
        form.Remove(frame);
    });
}

} // namespace
} // namespace orvanta::testing
