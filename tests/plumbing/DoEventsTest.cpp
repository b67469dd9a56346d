#include "plumbing/DoEvents.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <vector>

namespace orvanta {
namespace {

constexpr UINT kNote = WM_APP + 1;
constexpr UINT kPostAnother = WM_APP + 2;

std::vector<WPARAM> g_noted;

LRESULT CALLBACK Note(HWND hWindow, UINT uMsg, WPARAM wParam, LPARAM lParam) {
    if (uMsg == kNote || uMsg == WM_CHAR) g_noted.push_back(wParam);
    if (uMsg == kPostAnother) PostMessageW(hWindow, kNote, wParam, 0);
    return DefWindowProcW(hWindow, uMsg, wParam, lParam);
}

class DoEventsTest : public ::testing::Test {
protected:
    DoEventsTest() {
        SetWindowLongPtrW(hWindow, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Note));
        g_noted.clear();
    }
    ~DoEventsTest() override { DestroyWindow(hWindow); }

    HWND hWindow = CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
};

TEST_F(DoEventsTest, DeliversAllThatWaitsInOrder) {
    PostMessageW(hWindow, kNote, 1, 0);
    PostMessageW(hWindow, kNote, 2, 0);
    EXPECT_TRUE(g_noted.empty());
    DoEvents();
    EXPECT_EQ(g_noted, (std::vector<WPARAM>{1, 2}));
    DoEvents();
    EXPECT_EQ(g_noted.size(), 2u) << "with nothing waiting it comes back at once";
}

TEST_F(DoEventsTest, DeliversWhatAHandlerPostsToo) {
    PostMessageW(hWindow, kPostAnother, 3, 0);
    DoEvents();
    EXPECT_EQ(g_noted, (std::vector<WPARAM>{3}));
}

TEST_F(DoEventsTest, AsksTheDialogStepFirstAndDropsWhatItHasDone) {
    SetDialogStep([](const MSG& message) { return message.message == kNote && message.wParam == 2; });
    for (const WPARAM wParam : {1, 2, 3})
        PostMessageW(hWindow, kNote, wParam, 0);
    DoEvents();
    SetDialogStep(nullptr);
    EXPECT_EQ(g_noted, (std::vector<WPARAM>{1, 3}));
}

TEST_F(DoEventsTest, TurnsKeysIntoCharacters) {
    PostMessageW(hWindow, WM_KEYDOWN, 'A', 0x1E0001);
    DoEvents();
    EXPECT_EQ(g_noted, (std::vector<WPARAM>{'a'}));
}

TEST_F(DoEventsTest, LeavesTheRequestToQuitForTheLoop) {
    PostMessageW(hWindow, kNote, 4, 0);
    PostQuitMessage(7);
    DoEvents();
    EXPECT_EQ(g_noted, (std::vector<WPARAM>{4})) << "what waited before is delivered";
    MSG message{};
    ASSERT_TRUE(PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE));
    EXPECT_EQ(message.message, static_cast<UINT>(WM_QUIT));
    EXPECT_EQ(message.wParam, 7u);
}

} // namespace
} // namespace orvanta
