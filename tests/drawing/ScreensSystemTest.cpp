// The screens of the machine, through the real platform.
#include "drawing/clsScreens.h"

#include <gtest/gtest.h>
#include <windows.h>

namespace orvanta {
namespace {

TEST(ScreensSystem, MetricsAreThoseOfThePlatform) {
    const clsSystemMetrics metrics;
    EXPECT_EQ(metrics.GetMetric(SM_CXICON), GetSystemMetrics(SM_CXICON));
    EXPECT_EQ(metrics.ScreenWidth(), GetSystemMetrics(SM_CXSCREEN));
    EXPECT_GT(metrics.ScreenWidth(), 0);
    RECT work{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    EXPECT_EQ(metrics.WorkScreenLeft(), work.left);
    EXPECT_EQ(metrics.WorkScreenTop(), work.top);
    EXPECT_EQ(metrics.WorkScreenRight(), work.right);
    EXPECT_EQ(metrics.WorkScreenBottom(), work.bottom);
}

TEST(ScreensSystem, ThePrimaryMonitorIsFoundByPointRectangleAndWindow) {
    const clsScreens screens;
    const MonitorHandle monitor = screens.GetMonitorHandleFromPoint(5, 5);
    ASSERT_NE(monitor, nullptr);
    EXPECT_EQ(screens.GetMonitorHandleFromRect(5, 5, 15, 15), monitor);
    HWND window = CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 5, 5, 10, 10, nullptr, nullptr, nullptr, nullptr);
    EXPECT_EQ(screens.GetMonitorHandleFromWindow(window), monitor);
    DestroyWindow(window);
    EXPECT_TRUE(screens.IsPrimaryMon(monitor));
    EXPECT_TRUE(screens.Enabled(monitor));
    EXPECT_EQ(screens.Width(monitor), screens.WidthPriMon());
    EXPECT_EQ(screens.Height(monitor), screens.HeightPriMon());
    EXPECT_EQ(screens.WorkWidth(monitor), clsSystemMetrics().WorkScreenWidth());
    EXPECT_EQ(screens.Count(), GetSystemMetrics(SM_CMONITORS));
}

TEST(ScreensSystem, WhatIsFarOutsideHasTheNearestMonitor) {
    const clsScreens screens;
    EXPECT_NE(screens.GetMonitorHandleFromPoint(-100000, -100000), nullptr);
    EXPECT_NE(screens.GetMonitorHandleFromRect(-30000, -30000, -29990, -29990), nullptr);
    HWND window =
        CreateWindowExW(0, L"STATIC", L"", WS_POPUP, -30000, -30000, 10, 10, nullptr, nullptr, nullptr, nullptr);
    EXPECT_EQ(MonitorFromWindow(window, MONITOR_DEFAULTTONULL), nullptr);
    EXPECT_NE(screens.GetMonitorHandleFromWindow(window), nullptr);
    DestroyWindow(window);
}

TEST(ScreensSystem, AHandleThatIsNoMonitorIsEmpty) {
    const clsScreens screens;
    EXPECT_FALSE(screens.Enabled(nullptr));
    EXPECT_FALSE(screens.IsPrimaryMon(nullptr));
    EXPECT_EQ(screens.WorkWidth(nullptr), 0);
}

} // namespace
} // namespace orvanta
