#include "tests/controls/support/FormFixture.h"
#include "tests/controls/support/ProbeControl.h"

#include <gmock/gmock.h>

namespace orvanta::testing {

namespace {

using ::testing::ElementsAre;

class WindowHostTest : public FormFixture {};

TEST_F(WindowHostTest, AFreshControlGetsItsPropertiesThenItsSizeThenPaints) {
    auto& probe = form.Add<ProbeControl>(u"Probe1", {10, 20, 100, 30});
    EXPECT_THAT(probe.TakeNotes(), ElementsAre("InitProperties", "Resize"));
    EXPECT_EQ(probe.nPaints, 0);
    EXPECT_EQ(probe.Caption(), u"Probe1");
    Show();
    EXPECT_EQ(probe.nPaints, 1);
    EXPECT_EQ(probe.Host().ScaleWidth(), 100.0F);
    EXPECT_EQ(probe.Host().ScaleHeight(), 30.0F);
    EXPECT_EQ(Grab(probe).At(1, 1), 0xC0C0C0);
}

TEST_F(WindowHostTest, AThousandSettersGiveOnePaint) {
    auto& probe = form.Add<ProbeControl>(u"Probe1", {10, 20, 100, 30});
    Show();
    probe.nPaints = 0;
    for (int n = 0; n < 1000; ++n)
        probe.BackColor(n);
    EXPECT_EQ(probe.nPaints, 0);
    Pump();
    EXPECT_EQ(probe.nPaints, 1);
    EXPECT_EQ(Grab(probe).At(1, 1), 999);
}

} // namespace

} // namespace orvanta::testing
