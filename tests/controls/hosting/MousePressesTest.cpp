#include "controls/hosting/MousePresses.h"

#include <gtest/gtest.h>

namespace orvanta::testing {

namespace {

TEST(MousePresses, APressAndAReleaseOfOneButtonAreAClick) {
    MousePresses presses;
    for (const std::int16_t iButton : {std::int16_t{1}, std::int16_t{2}, std::int16_t{4}}) {
        presses.Press(iButton);
        EXPECT_TRUE(presses.Release(iButton, true));
        EXPECT_FALSE(presses.Release(iButton, true));
    }
}

TEST(MousePresses, AReleaseOutsideIsNoClick) {
    MousePresses presses;
    presses.Press(1);
    EXPECT_FALSE(presses.Release(1, false));
    EXPECT_FALSE(presses.Release(1, true));
}

TEST(MousePresses, OnlyTheButtonPressedLastCanClick) {
    MousePresses presses;
    presses.Press(1);
    presses.Press(2);
    EXPECT_FALSE(presses.Release(1, true));
    EXPECT_TRUE(presses.Release(2, true));
}

TEST(MousePresses, TheReleaseOfADoubleClickIsNoClickOfItsOwn) {
    MousePresses presses;
    presses.Press(1);
    EXPECT_TRUE(presses.Release(1, true));
    presses.DoublePress();
    EXPECT_FALSE(presses.Release(1, true));
}

TEST(MousePresses, ButtonsAndShiftComeFromTheKeyStateOfTheMessage) {
    EXPECT_EQ(ButtonsOfKeyState(0), 0);
    EXPECT_EQ(ButtonsOfKeyState(1 | 2), 3);
    EXPECT_EQ(ButtonsOfKeyState(16), 4);
    EXPECT_EQ(ButtonsOfKeyState(4 | 8 | 1), 1);
    EXPECT_EQ(ShiftOfKeyState(4), 1);
    EXPECT_EQ(ShiftOfKeyState(8), 2);
    EXPECT_EQ(ShiftOfKeyState(4 | 8 | 16 | 3), 3);
}

} // namespace

} // namespace orvanta::testing
