#include "drawing/clsSystemMetrics.h"

#include "tests/drawing/FakeScreens.h"

#include <gtest/gtest.h>

namespace orvanta {
namespace {

using testing::FakeScreens;

struct NamedMetric {
    const char* name;
    std::int32_t (clsSystemMetrics::*member)() const;
    std::int32_t index;
};

TEST(SystemMetrics, EachNameIsItsIndex) {
    const NamedMetric metrics[] = {
        {"WindowBorderWidth", &clsSystemMetrics::WindowBorderWidth, 5},
        {"WindowBorderHeight", &clsSystemMetrics::WindowBorderHeight, 6},
        {"MouseButtons", &clsSystemMetrics::MouseButtons, 43},
        {"CursorWidth", &clsSystemMetrics::CursorWidth, 13},
        {"CursorHeight", &clsSystemMetrics::CursorHeight, 14},
        {"FrameWidth", &clsSystemMetrics::FrameWidth, 32},
        {"FrameHeight", &clsSystemMetrics::FrameHeight, 33},
        {"FullScreenWidth", &clsSystemMetrics::FullScreenWidth, 16},
        {"FullScreenHeight", &clsSystemMetrics::FullScreenHeight, 17},
        {"ScreenWidth", &clsSystemMetrics::ScreenWidth, 0},
        {"ScreenHeight", &clsSystemMetrics::ScreenHeight, 1},
        {"HScrollBmpWidth", &clsSystemMetrics::HScrollBmpWidth, 21},
        {"HScrollBmpHeight", &clsSystemMetrics::HScrollBmpHeight, 3},
        {"VScrollBmpWidth", &clsSystemMetrics::VScrollBmpWidth, 2},
        {"VScrollBmpHeight", &clsSystemMetrics::VScrollBmpHeight, 20},
        {"IconWidth", &clsSystemMetrics::IconWidth, 11},
        {"IconHeight", &clsSystemMetrics::IconHeight, 12},
        {"WindowMinWidth", &clsSystemMetrics::WindowMinWidth, 28},
        {"WindowMinHeight", &clsSystemMetrics::WindowMinHeight, 29},
        {"TitleBarButtonWidth", &clsSystemMetrics::TitleBarButtonWidth, 30},
        {"TitleBarButtonHeight", &clsSystemMetrics::TitleBarButtonHeight, 31},
        {"SmallIconWidth", &clsSystemMetrics::SmallIconWidth, 49},
        {"SmallIconHeight", &clsSystemMetrics::SmallIconHeight, 50},
        {"TitleBarSmallButtonWidth", &clsSystemMetrics::TitleBarSmallButtonWidth, 52},
        {"TitleBarSmallButtonHeight", &clsSystemMetrics::TitleBarSmallButtonHeight, 53},
        {"TitleBarHeight", &clsSystemMetrics::TitleBarHeight, 4},
        {"MenuBarHeight", &clsSystemMetrics::MenuBarHeight, 15},
        {"SmallTitleBarHeight", &clsSystemMetrics::SmallTitleBarHeight, 51},
        {"VirtualScreensLeft", &clsSystemMetrics::VirtualScreensLeft, 76},
        {"VirtualScreensTop", &clsSystemMetrics::VirtualScreensTop, 77},
        {"VirtualScreensWidth", &clsSystemMetrics::VirtualScreensWidth, 78},
        {"VirtualScreensHeight", &clsSystemMetrics::VirtualScreensHeight, 79},
        {"MonitorsCount", &clsSystemMetrics::MonitorsCount, 80},
    };
    FakeScreens screens;
    const clsSystemMetrics system(screens);
    for (const NamedMetric& metric : metrics) {
        screens.metrics = {{metric.index, 4711}};
        EXPECT_EQ((system.*metric.member)(), 4711) << metric.name;
    }
}

TEST(SystemMetrics, AnyIndexCanBeAskedFor) {
    FakeScreens screens;
    screens.metrics = {{99, -5}};
    EXPECT_EQ(clsSystemMetrics(screens).GetMetric(99), -5);
}

TEST(SystemMetrics, ABooleanIsAnyValueButZero) {
    FakeScreens screens;
    const clsSystemMetrics system(screens);
    EXPECT_FALSE(system.MousePresent());
    EXPECT_FALSE(system.MouseWheelPresent());
    EXPECT_FALSE(system.MouseSwapButtons());
    screens.metrics = {{19, 2}};
    EXPECT_TRUE(system.MousePresent());
    EXPECT_FALSE(system.MouseWheelPresent());
    screens.metrics = {{75, 2}};
    EXPECT_TRUE(system.MouseWheelPresent());
    screens.metrics = {{23, -4}};
    EXPECT_TRUE(system.MouseSwapButtons());
}

TEST(SystemMetrics, TheNetworkIsPresentByTheLowestBitOnly) {
    FakeScreens screens;
    const clsSystemMetrics system(screens);
    screens.metrics = {{63, 2}};
    EXPECT_FALSE(system.NetworkPresent());
    screens.metrics = {{63, 3}};
    EXPECT_TRUE(system.NetworkPresent());
}

TEST(SystemMetrics, TheWorkScreenIsTheWorkAreaOfThePlatform) {
    FakeScreens screens;
    screens.work = {40, 30, 1000, 700};
    const clsSystemMetrics system(screens);
    EXPECT_EQ(system.WorkScreenLeft(), 40);
    EXPECT_EQ(system.WorkScreenTop(), 30);
    EXPECT_EQ(system.WorkScreenRight(), 1000);
    EXPECT_EQ(system.WorkScreenBottom(), 700);
    EXPECT_EQ(system.WorkScreenWidth(), 960);
    EXPECT_EQ(system.WorkScreenHeight(), 670);
}

} // namespace
} // namespace orvanta
