// After a warm-up, thousands of rounds of buttons and check boxes leave nothing behind.
#include "controls/basic/ctlUniButtonImageXP.h"
#include "controls/basic/ctlUniCheckXP.h"
#include "tests/controls/basic/Witness.h"
#include "tests/support/GdiCensus.h"
#include "tests/support/WindowCensus.h"

#include <functional>

namespace orvanta::testing {
namespace {

constexpr int kButtonRounds = 2000;

class ButtonLeaks : public FormFixture {
protected:
    ButtonLeaks() { Show(); }

    void ExpectNoGrowth(const std::function<void()>& round) {
        for (int n = 0; n < 5; ++n)
            round();
        Pump();
        const GdiCensus objects = GdiCensus::Take();
        const int nWindows = CountOwnWindows();
        for (int n = 0; n < kButtonRounds; ++n)
            round();
        Pump();
        EXPECT_EQ(GdiCensus::Take(), objects);
        EXPECT_EQ(CountOwnWindows(), nWindows);
    }
};

TEST_F(ButtonLeaks, AButtonWithAFittedPictureAndRoundCorners) {
    ExpectNoGrowth([this] {
        auto& button = form.Add<ctlUniButtonImageXP>(u"btn", {10, 10, 60, 20});
        button.Picture(SolidPicture(64, 64, 0x2040C0, 0));
        button.Stretch(true);
        button.UseRoundRegions(true);
        button.Font(OleFont::Create(u"Tahoma", 9));
        UpdateWindow(button.hwnd());
        button.Enabled(false);
        button.Style(-1);
        UpdateWindow(button.hwnd());
        form.Remove(button);
    });
}

TEST_F(ButtonLeaks, AButtonThatIsSavedAndLoaded) {
    ExpectNoGrowth([this] {
        auto& saved = form.Add<ctlUniButtonImageXP>(u"btn", {10, 10, 60, 20});
        saved.Picture(SolidPicture(8, 8, 0x2040C0, 0));
        saved.MouseIcon(SolidPicture(8, 8, 0x2040C0, 0));
        PropertyBag bag;
        saved.OnWriteProperties(bag);
        auto& loaded = form.Load<ctlUniButtonImageXP>(u"btnLoaded", {10, 40, 60, 20}, bag);
        UpdateWindow(loaded.hwnd());
        form.Remove(saved);
        form.Remove(loaded);
    });
}

TEST_F(ButtonLeaks, ACheckBoxInItsStates) {
    ExpectNoGrowth([this] {
        auto& check = form.Add<ctlUniCheckXP>(u"chk", {10, 10, 60, 20});
        UpdateWindow(check.hwnd());
        check.Host().Extender().SetFocus();
        check.Value(1);
        UpdateWindow(check.hwnd());
        check.Enabled(false);
        UpdateWindow(check.hwnd());
        form.Remove(check);
    });
}

} // namespace
} // namespace orvanta::testing
