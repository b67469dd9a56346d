// After a warm-up, hundreds of rounds of forms with controls in every state leave nothing behind.
#include "controls/hosting/Form.h"
#include "tests/controls/support/FormFixture.h"
#include "tests/controls/support/ProbeControl.h"
#include "tests/support/GdiCensus.h"
#include "tests/support/WindowCensus.h"

namespace orvanta::testing {

namespace {

class HostLeakTest : public FormFixture {
protected:
    template<typename Round>
    void ExpectNoGrowth(int nRounds, Round round) {
        Show();
        for (int n = 0; n < 5; ++n)
            round();
        const GdiCensus objects = GdiCensus::Take();
        const int nWindows = CountOwnWindows();
        for (int n = 0; n < nRounds; ++n)
            round();
        EXPECT_EQ(GdiCensus::Take(), objects);
        EXPECT_EQ(CountOwnWindows(), nWindows);
    }
};

TEST_F(HostLeakTest, ControlsThatAreMadePaintedAndRemoved) {
    ExpectNoGrowth(2000, [this] {
        auto& probe = form.Add<ProbeControl>(u"Probe1", {10, 20, 60, 30});
        UpdateWindow(probe.hwnd());
        form.Remove(probe);
    });
}

TEST_F(HostLeakTest, EveryStateOfAHost) {
    const OlePicture icon = OlePicture::OfIcon(CopyIcon(LoadIconW(nullptr, IDI_APPLICATION)));
    ExpectNoGrowth(300, [&] {
        auto& probe = form.Add<ProbeControl>(u"Probe1", {10, 20, 60, 30});
        probe.UseRoundRegions(true);
        probe.Host().AutoRedraw(true);
        FillOrFrame(probe.Host().hDC(), {0, 0, 9, 9}, 0xFF, true);
        probe.Host().Size(80, 40);
        probe.Host().Font(OleFont::Create(u"Tahoma", 9));
        probe.Host().Refresh();
        probe.Host().AutoRedraw(false);
        probe.MouseIcon(icon);
        probe.MousePointer(99);
        probe.OLEDropMode(1);
        probe.Host().Refresh();
        PropertyBag bag;
        probe.OnWriteProperties(bag);
        auto& copy = form.Load<ProbeControl>(u"Probe2", {10, 80, 60, 30}, bag);
        UpdateWindow(copy.hwnd());
        probe.UseRoundRegions(false);
        form.Remove(probe);
        form.Remove(copy);
    });
}

TEST_F(HostLeakTest, FormsWithFramesThatAreShownAndClosed) {
    ExpectNoGrowth(200, [] {
        Form other(u"Other");
        auto& frame = other.Add<ProbeFrame>(u"Frame", {0, 0, 3000, 3000});
        other.Add<ProbeControl>(u"A", {0, 0, 1000, 300}, &frame);
        other.Add<ProbeControl>(u"B", {0, 3100, 1000, 300});
        other.Show();
        UpdateWindow(other.hWnd());
        Pump();
        other.Close();
    });
}

} // namespace

} // namespace orvanta::testing
