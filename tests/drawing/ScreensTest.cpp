#include "drawing/clsScreens.h"

#include "tests/drawing/FakeScreens.h"

#include <gtest/gtest.h>

namespace orvanta {
namespace {

using testing::FakeScreens;

constexpr std::int32_t kUnknown = 0;
constexpr std::int32_t kNt4 = 7;

// Two screens: the primary one with a task bar at its bottom, and one to the left of and above it with none.
class Screens : public ::testing::Test {
protected:
    Screens() {
        platform.metrics = {{0, 1024}, {1, 768}, {76, -800}, {77, -100}, {78, 1824}, {79, 868}, {80, 2}, {81, 1}};
        platform.work = {10, 20, 1024, 740};
        platform.monitors[primary] = {{0, 0, 1024, 768}, {0, 5, 1020, 740}, true};
        platform.monitors[left] = {{-800, -100, 0, 500}, {-790, -90, -5, 495}, false};
        platform.found = left;
    }
    int handles[2] = {};
    MonitorHandle primary = &handles[0];
    MonitorHandle left = &handles[1];
    FakeScreens platform;
};

TEST_F(Screens, WithTheMonitorApiEachMonitorAnswersForItself) {
    const clsScreens screens(platform, kUnknown);
    EXPECT_EQ(screens.Count(), 2);
    EXPECT_TRUE(screens.IsPrimaryMon(primary));
    EXPECT_FALSE(screens.IsPrimaryMon(left));
    EXPECT_EQ(screens.Width(left), 800);
    EXPECT_EQ(screens.Height(left), 600);
    EXPECT_EQ(screens.left(left), -800);
    EXPECT_EQ(screens.top(left), -100);
    EXPECT_EQ(screens.WorkWidth(left), 785);
    EXPECT_EQ(screens.WorkHeight(left), 585);
    EXPECT_EQ(screens.WorkLeft(left), -790);
    EXPECT_EQ(screens.WorkTop(left), -90);
    EXPECT_TRUE(screens.Enabled(left));
}

TEST_F(Screens, TheVirtualScreenMayBeginLeftOfAndAboveThePrimaryOne) {
    const clsScreens screens(platform, kUnknown);
    EXPECT_EQ(screens.VirtualLeft(), -800);
    EXPECT_EQ(screens.VirtualTop(), -100);
    EXPECT_EQ(screens.VirtualWidth(), 1824);
    EXPECT_EQ(screens.VirtualHeight(), 868);
}

TEST_F(Screens, ColourDepthsAreTheSameWhenThePlatformSaysSo) {
    const clsScreens screens(platform, kUnknown);
    EXPECT_TRUE(screens.AllSameColourDepth());
    platform.metrics[81] = 0;
    EXPECT_FALSE(screens.AllSameColourDepth());
}

TEST_F(Screens, AMonitorWithAnEmptyRectangleIsNotEnabled) {
    int other = 0;
    const clsScreens screens(platform, kUnknown);
    EXPECT_FALSE(screens.Enabled(&other));
    platform.monitors[&other] = {{5, 5, 5, 6}, {}, false};
    EXPECT_TRUE(screens.Enabled(&other));
    platform.monitors[&other] = {{5, 5, 6, 5}, {}, false};
    EXPECT_TRUE(screens.Enabled(&other));
}

TEST_F(Screens, TheNearestMonitorIsAskedOfThePlatform) {
    const clsScreens screens(platform, kUnknown);
    EXPECT_EQ(screens.GetMonitorHandleFromPoint(-3, 4), left);
    EXPECT_EQ(platform.asked, (ScreenRect{-3, 4, 0, 0}));
    EXPECT_EQ(screens.GetMonitorHandleFromRect(1, 2, 3, 4), left);
    EXPECT_EQ(platform.asked, (ScreenRect{1, 2, 3, 4}));
    EXPECT_EQ(screens.GetMonitorHandleFromWindow(&handles[0]), left);
    EXPECT_EQ(platform.askedWindow, &handles[0]);
}

TEST_F(Screens, WithoutTheMonitorApiEveryAnswerIsThatOfTheOneScreen) {
    platform.metrics[81] = 0;
    const clsScreens screens(platform, kNt4);
    EXPECT_EQ(screens.Count(), 1);
    EXPECT_TRUE(screens.AllSameColourDepth());
    EXPECT_TRUE(screens.Enabled(nullptr));
    EXPECT_TRUE(screens.IsPrimaryMon(left));
    EXPECT_EQ(screens.Width(left), 1024);
    EXPECT_EQ(screens.Height(left), 768);
    EXPECT_EQ(screens.top(left), 0);
    EXPECT_EQ(screens.left(left), 0);
    EXPECT_EQ(screens.WorkWidth(left), 1014);
    EXPECT_EQ(screens.WorkHeight(left), 720);
    EXPECT_EQ(screens.WorkTop(left), 20);
    EXPECT_EQ(screens.WorkLeft(left), 10);
    EXPECT_EQ(screens.VirtualLeft(), 0);
    EXPECT_EQ(screens.VirtualTop(), 0);
    EXPECT_EQ(screens.VirtualWidth(), 1024);
    EXPECT_EQ(screens.VirtualHeight(), 768);
    EXPECT_EQ(screens.GetMonitorHandleFromPoint(1, 2), nullptr);
    EXPECT_EQ(screens.GetMonitorHandleFromWindow(&handles[0]), nullptr);
    EXPECT_EQ(screens.GetMonitorHandleFromRect(1, 2, 3, 4), nullptr);
}

TEST_F(Screens, ThePrimaryMonitorIsTheScreenEitherWay) {
    for (const std::int32_t lClass : {kUnknown, kNt4}) {
        const clsScreens screens(platform, lClass);
        EXPECT_EQ(screens.WidthPriMon(), 1024);
        EXPECT_EQ(screens.HeightPriMon(), 768);
    }
}

TEST_F(Screens, TheMonitorApiIsMissingOnTheOldSystemsOnly) {
    for (const std::int32_t lClass : {1, 2, 3, 6, 7})
        EXPECT_EQ(clsScreens(platform, lClass).Count(), 1) << lClass;
    for (const std::int32_t lClass : {0, 4, 5, 8, 9, 10, 11})
        EXPECT_EQ(clsScreens(platform, lClass).Count(), 2) << lClass;
}

} // namespace
} // namespace orvanta
