#include "plumbing/SharedInput.h"

#include <gtest/gtest.h>
#include <windows.h>

namespace orvanta {
namespace {

void Key(WORD vk, bool bDown) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = vk;
    input.ki.dwFlags = bDown ? 0u : static_cast<DWORD>(KEYEVENTF_KEYUP);
    SendInput(1, &input, sizeof input);
}

class KeyState : public ::testing::Test {
protected:
    KeyState()
        : m_window(CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 10, 10, nullptr, nullptr, nullptr,
                                   nullptr)) {
        SetForegroundWindow(m_window);
    }
    ~KeyState() override {
        for (const WORD vk : {WORD{VK_SHIFT}, WORD{VK_CONTROL}, WORD{VK_MENU}})
            Key(vk, false);
        DestroyWindow(m_window);
    }
    HWND m_window;
};

TEST_F(KeyState, AKeyIsDownFromItsPressToItsRelease) {
    EXPECT_FALSE(IsKeyDown('Q'));
    Key('Q', true);
    EXPECT_TRUE(IsKeyDown('Q'));
    Key('Q', false);
    EXPECT_FALSE(IsKeyDown('Q'));
}

TEST_F(KeyState, ShiftCtrlAndAltAreOneTwoAndFour) {
    EXPECT_EQ(KeyShiftState(), 0);
    Key(16, true);
    EXPECT_EQ(KeyShiftState(), 1);
    Key(17, true);
    EXPECT_EQ(KeyShiftState(), 3);
    Key(18, true);
    EXPECT_EQ(KeyShiftState(), 7);
    Key(16, false);
    Key(17, false);
    EXPECT_EQ(KeyShiftState(), 4);
}

} // namespace
} // namespace orvanta
