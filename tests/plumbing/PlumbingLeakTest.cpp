// After a warm-up, thousands of rounds of timers, hooks and window classes leave nothing behind.
#include "base/Failure.h"
#include "plumbing/CTimer.h"
#include "plumbing/HookStore.h"
#include "plumbing/MSubclass.h"
#include "plumbing/cUniWindow.h"
#include "plumbing/modcUniWindow.h"
#include "tests/support/GdiCensus.h"
#include "tests/support/PatchedImport.h"
#include "tests/support/WindowCensus.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <set>
#include <vector>

namespace orvanta {
namespace {

constexpr int kRounds = 2000;

void ExpectNoGrowth(const std::function<void()>& round) {
    for (int n = 0; n < 5; ++n)
        round();
    const testing::GdiCensus objects = testing::GdiCensus::Take();
    const int nWindows = testing::CountOwnWindows();
    const std::size_t nHooked = HooksInForce().WindowCount();
    for (int n = 0; n < kRounds; ++n)
        round();
    EXPECT_EQ(testing::GdiCensus::Take(), objects);
    EXPECT_EQ(testing::CountOwnWindows(), nWindows);
    EXPECT_EQ(HooksInForce().WindowCount(), nHooked);
}

HWND MakeStatic() {
    return CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
}

struct Deaf final : ISubclass {
    void WindowProc(bool, bool&, LRESULT&, HWND, UINT, WPARAM, LPARAM) override {}
};

TEST(PlumbingLeaks, TheCensusSeesEachWindowThatIsLeftBehind) {
    HWND parent = MakeStatic(); // the platform has windows of its own while the program has one
    const int nBefore = testing::CountOwnWindows();
    HWND popup = MakeStatic();
    EXPECT_EQ(testing::CountOwnWindows(), nBefore + 1);
    CreateWindowExW(0, L"STATIC", L"", WS_CHILD, 0, 0, 5, 5, parent, nullptr, nullptr, nullptr);
    EXPECT_EQ(testing::CountOwnWindows(), nBefore + 2);
    HWND silent = CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 5, 5, HWND_MESSAGE, nullptr, nullptr, nullptr);
    EXPECT_EQ(testing::CountOwnWindows(), nBefore + 3);
    for (HWND hwnd : {silent, popup, parent})
        DestroyWindow(hwnd);
    EXPECT_LT(testing::CountOwnWindows(), nBefore);
}

TEST(PlumbingLeaks, HooksOnWindowsThatAreUnhookedAndOnWindowsThatDie) {
    Deaf first;
    Deaf second;
    ExpectNoGrowth([&] {
        HWND unhooked = MakeStatic();
        HWND dying = MakeStatic();
        for (HWND hwnd : {unhooked, dying}) {
            HookMessage(first, hwnd, WM_SIZE, mrBeforePrevious);
            HookMessage(second, hwnd, WM_SIZE, mrAfterPrevious);
            HookMessage(first, hwnd, WM_PAINT, mrAfterPrevious);
            EXPECT_THROW(HookMessage(first, hwnd, WM_PAINT, mrAfterPrevious), Failure);
            SendMessageW(hwnd, WM_SIZE, 0, 0);
        }
        UnhookMessage(first, unhooked, WM_SIZE);
        UnhookMessage(second, unhooked, WM_SIZE);
        UnhookMessage(first, unhooked, WM_PAINT);
        EXPECT_EQ(HooksInForce().Find(reinterpret_cast<HookStore::Address>(unhooked)), nullptr);
        DestroyWindow(unhooked);
        DestroyWindow(dying);
    });
}

TEST(PlumbingLeaks, WindowsThatAreDestroyedReplacedOrLeftToTheirObject) {
    ExpectNoGrowth([] {
        {
            cUniWindow window;
            ASSERT_TRUE(window.WindowClassRegister(u"OrvantaLeak", 0, nullptr, nullptr, nullptr, 0, 0));
            for (const std::int32_t iClass : {9, 0})
                ASSERT_TRUE(window.WindowCreate(0, WS_POPUP, iClass, 0, 0, 9, 9, u"x", nullptr, nullptr, nullptr));
            window.WindowDestroy();
            window.WindowClassUnregister();
        }
        cUniWindow other;
        ASSERT_TRUE(other.WindowCreate(0, WS_POPUP, 9, 0, 0, 9, 9, u"x", nullptr, nullptr, nullptr));
    });
    EXPECT_FALSE(IsClassRegistered(u"OrvantaLeak"));
    WNDCLASSEXW found{};
    found.cbSize = sizeof found;
    EXPECT_FALSE(GetClassInfoExW(GetModuleHandleW(nullptr), L"OrvantaLeak", &found));
}

// The system's timers that were set and not yet killed.
std::set<UINT_PTR> g_running;
decltype(&SetTimer) g_leakSetTimer;
decltype(&KillTimer) g_leakKillTimer;
UINT_PTR WINAPI NoteSet(HWND hwnd, UINT_PTR id, UINT uInterval, TIMERPROC procedure) {
    return *g_running.insert(g_leakSetTimer(hwnd, id, uInterval, procedure)).first;
}
BOOL WINAPI NoteKill(HWND hwnd, UINT_PTR id) {
    g_running.erase(id);
    return g_leakKillTimer(hwnd, id);
}

TEST(PlumbingLeaks, TimersThatAreStoppedRestartedOrLetGoOf) {
    const testing::PatchedImport<decltype(SetTimer)> set("SetTimer", NoteSet);
    const testing::PatchedImport<decltype(KillTimer)> kill("KillTimer", NoteKill);
    g_leakSetTimer = set.Original();
    g_leakKillTimer = kill.Original();
    g_running.clear();
    ExpectNoGrowth([] {
        const std::shared_ptr<CTimer> timer = CTimer::Create();
        timer->Interval(60000);
        timer->Interval(50000);
        timer->Interval(0);
        EXPECT_EQ(timer.use_count(), 1) << "the table lets go of it";
        timer->Interval(60000);
        EXPECT_EQ(timer.use_count(), 2);
        timer->Interval(-1);
    });
    EXPECT_TRUE(g_running.empty());

    // All slots of the table are free again.
    std::vector<std::shared_ptr<CTimer>> all(100);
    for (std::shared_ptr<CTimer>& each : all) {
        each = CTimer::Create();
        EXPECT_NO_THROW(each->Interval(60000));
    }
    EXPECT_EQ(g_running.size(), 100u);
    for (const std::shared_ptr<CTimer>& each : all)
        each->Interval(0);
    EXPECT_TRUE(g_running.empty());
}

} // namespace
} // namespace orvanta
