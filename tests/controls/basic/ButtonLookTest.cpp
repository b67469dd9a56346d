#include "controls/basic/ButtonLook.h"

#include <gtest/gtest.h>

namespace orvanta {
namespace {

TEST(ButtonLook, TheFaceIsDownWhileTheMouseButtonIsAndWhilePressedStandsOnATristateButton) {
    for (const bool bMouseDown : {false, true}) {
        for (const bool bTristate : {false, true}) {
            for (const bool bPressed : {false, true}) {
                ButtonState state;
                state.bMouseDown = bMouseDown;
                state.bTristate = bTristate;
                state.bPressed = bPressed;
                EXPECT_EQ(LookOfButton(state).bPressed, bMouseDown || (bTristate && bPressed));
            }
        }
    }
}

TEST(ButtonLook, TheFocusMarkNeedsTheFocusShowFocusAnEnabledButtonAndNoMouseButtonDown) {
    ButtonState state;
    state.bHasFocus = true;
    EXPECT_TRUE(LookOfButton(state).bFocus);
    for (bool ButtonState::*flag : {&ButtonState::bHasFocus, &ButtonState::bShowFocus, &ButtonState::bEnabled}) {
        ButtonState without = state;
        without.*flag = false;
        EXPECT_FALSE(LookOfButton(without).bFocus);
    }
    ButtonState held = state;
    held.bMouseDown = true;
    EXPECT_FALSE(LookOfButton(held).bFocus);
    ButtonState stuck = state;
    stuck.bTristate = stuck.bPressed = true;
    EXPECT_TRUE(LookOfButton(stuck).bFocus);
}

TEST(ButtonLook, DefaultAndCancelMarksGoAwayWithEnabled) {
    ButtonState state;
    state.bDefault = state.bCancel = true;
    EXPECT_EQ(LookOfButton(state), (ButtonLook{false, true, true, false}));
    state.bEnabled = false;
    EXPECT_EQ(LookOfButton(state), (ButtonLook{false, false, false, false}));
}

} // namespace
} // namespace orvanta
