#include "plumbing/CTimer.h"

#include "base/Failure.h"
#include "plumbing/MTimer.h"
#include "tests/support/PatchedImport.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace orvanta {
namespace {

// The system's timers, recorded: what was set and killed, in order.
std::vector<std::pair<UINT_PTR, UINT>> g_set;
std::vector<UINT_PTR> g_killed;
bool g_bRefuse;
decltype(&SetTimer) g_setTimer;
decltype(&KillTimer) g_killTimer;

UINT_PTR WINAPI RecordSet(HWND hwnd, UINT_PTR id, UINT uInterval, TIMERPROC procedure) {
    if (g_bRefuse) return 0;
    EXPECT_EQ(hwnd, nullptr);
    EXPECT_EQ(id, 0u);
    EXPECT_EQ(procedure, &TimerCallback);
    const UINT_PTR given = g_setTimer(hwnd, id, uInterval, procedure);
    g_set.emplace_back(given, uInterval);
    return given;
}
BOOL WINAPI RecordKill(HWND hwnd, UINT_PTR id) {
    EXPECT_EQ(hwnd, nullptr);
    g_killed.push_back(id);
    return g_killTimer(hwnd, id);
}

class Timer : public ::testing::Test {
protected:
    Timer() : m_set("SetTimer", RecordSet), m_kill("KillTimer", RecordKill) {
        g_setTimer = m_set.Original();
        g_killTimer = m_kill.Original();
        g_set.clear();
        g_killed.clear();
        g_bRefuse = false;
        timer->ThatTime.Add([this] { ++nTicks; });
    }
    ~Timer() override { timer->Interval(0); }

    // Delivers messages until the timer has ticked n times, five seconds at most.
    void WaitForTicks(int n) {
        const ULONGLONG end = GetTickCount64() + 5000;
        while (nTicks < n && GetTickCount64() < end) {
            MSG message;
            MsgWaitForMultipleObjects(0, nullptr, FALSE, 50, QS_ALLINPUT);
            while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
                DispatchMessageW(&message);
        }
    }
    static void ExpectFailure(CTimer& failing, std::uint32_t lNumber, std::u16string_view sDescription) {
        try {
            failing.Interval(1000);
            FAIL() << "started";
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.Number(), lNumber);
            EXPECT_EQ(failure.Source(), u"plumbing_windows_tests.WindowProc");
            EXPECT_EQ(failure.Description(), sDescription);
        }
    }

    testing::PatchedImport<decltype(SetTimer)> m_set;
    testing::PatchedImport<decltype(KillTimer)> m_kill;
    std::shared_ptr<CTimer> timer = CTimer::Create();
    int nTicks = 0;
};

TEST_F(Timer, IsStoppedAtFirst) {
    EXPECT_EQ(timer->Interval(), 0);
    EXPECT_EQ(timer->TimerID(), 0u);
    EXPECT_TRUE(g_set.empty());
}

TEST_F(Timer, TicksUntilItIsStopped) {
    timer->Interval(10);
    WaitForTicks(3);
    EXPECT_GE(nTicks, 3);
    timer->Interval(0);
    const int nAtStop = nTicks;
    Sleep(30);
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
        DispatchMessageW(&message);
    EXPECT_EQ(nTicks, nAtStop);
    EXPECT_EQ(g_killed, std::vector<UINT_PTR>{g_set.at(0).first});
}

TEST_F(Timer, TheSameIntervalDoesNotStartItAnew) {
    timer->Interval(1000);
    timer->Interval(1000);
    EXPECT_EQ(g_set.size(), 1u);
    EXPECT_TRUE(g_killed.empty());
}

TEST_F(Timer, AnotherIntervalKillsOneSystemTimerAndStartsAnotherWithANewId) {
    timer->Interval(100);
    const std::uintptr_t first = timer->TimerID();
    timer->Interval(200);
    ASSERT_EQ(g_set.size(), 2u);
    EXPECT_EQ(g_set[0], (std::pair<UINT_PTR, UINT>(first, 100)));
    EXPECT_EQ(g_set[1].second, 200u);
    EXPECT_EQ(g_killed, std::vector<UINT_PTR>{first});
    EXPECT_EQ(timer->TimerID(), g_set[1].first);
    EXPECT_NE(timer->TimerID(), first);
    EXPECT_EQ(timer->Interval(), 200);
}

TEST_F(Timer, AStoppedTimerStaysAtZeroForZeroAndBelow) {
    timer->Interval(0);
    timer->Interval(-5);
    EXPECT_EQ(timer->Interval(), 0);
    EXPECT_TRUE(g_set.empty());
    EXPECT_TRUE(g_killed.empty());
}

TEST_F(Timer, ANegativeIntervalStopsARunningTimerAndLeavesZero) {
    timer->Interval(1000);
    timer->Interval(-5);
    EXPECT_EQ(timer->Interval(), 0);
    EXPECT_EQ(g_killed.size(), 1u);
}

TEST_F(Timer, PulseTimerTicksByHand) {
    timer->PulseTimer();
    EXPECT_EQ(nTicks, 1);
}

TEST_F(Timer, TheHandlerMayStopItsOwnTimer) {
    timer->ThatTime.Add([this] { timer->Interval(0); });
    timer->Interval(10);
    WaitForTicks(1);
    EXPECT_EQ(nTicks, 1);
    EXPECT_EQ(timer->Interval(), 0);
}

TEST_F(Timer, ARunningTimerOutlivesItsOwner) {
    const std::weak_ptr<CTimer> watched = timer;
    timer->Interval(10);
    timer.reset();
    WaitForTicks(1);
    EXPECT_GE(nTicks, 1);
    timer = watched.lock();
    ASSERT_TRUE(timer);
}

TEST_F(Timer, ATimerWithoutAnOwnerMayStopItselfAndIsGoneThen) {
    const std::weak_ptr<CTimer> watched = timer;
    timer->ThatTime.Add([watched] { watched.lock()->Interval(0); });
    timer->Interval(10);
    timer.reset();
    WaitForTicks(1);
    EXPECT_TRUE(watched.expired());
    timer = CTimer::Create();
}

TEST_F(Timer, EachTimerHearsItsOwnTicksOnly) {
    const std::shared_ptr<CTimer> other = CTimer::Create();
    int nOther = 0;
    other->ThatTime.Add([&nOther] { ++nOther; });
    timer->Interval(1000);
    other->Interval(1000);
    TimerCallback(nullptr, WM_TIMER, other->TimerID(), 0);
    EXPECT_EQ(nOther, 1);
    EXPECT_EQ(nTicks, 0);
    other->Interval(0);
}

TEST_F(Timer, ATickForAnIdThatHasLeftTheTableDoesNothing) {
    timer->Interval(1000);
    timer->Interval(0);
    TimerCallback(nullptr, WM_TIMER, timer->TimerID(), 0);
    EXPECT_EQ(nTicks, 0);
}

TEST_F(Timer, AStoppedTimerKeepsItsLastIdAndTheTableHasItNoMore) {
    timer->Interval(1000);
    timer->Interval(0);
    EXPECT_EQ(timer->TimerID(), g_set.at(0).first);
    EXPECT_FALSE(TimerDestroy(*timer));
}

TEST_F(Timer, WithoutASystemTimerItFailsAndIsStopped) {
    g_bRefuse = true;
    ExpectFailure(*timer, 0x80043554, u"Can't create system timer");
    EXPECT_EQ(timer->Interval(), 0);
    EXPECT_EQ(timer->TimerID(), 0u);
}

TEST_F(Timer, TheHundredAndFirstFailsAndKeepsItsIntervalAndItsId) {
    std::vector<std::shared_ptr<CTimer>> running;
    for (int n = 0; n < 100; ++n) {
        running.push_back(CTimer::Create());
        running.back()->Interval(1000);
    }
    ExpectFailure(*timer, 0x80043553, u"No more than 10 timers allowed per class");
    EXPECT_EQ(timer->Interval(), 1000);
    EXPECT_EQ(timer->TimerID(), g_set.at(100).first);
    EXPECT_TRUE(g_killed.empty());
    TimerCallback(nullptr, WM_TIMER, timer->TimerID(), 0);
    EXPECT_EQ(nTicks, 0);
    KillTimer(nullptr, timer->TimerID());
    timer->Interval(0);

    running[40]->Interval(0);
    timer->Interval(1000);
    TimerCallback(nullptr, WM_TIMER, timer->TimerID(), 0);
    EXPECT_EQ(nTicks, 1);
    for (const std::shared_ptr<CTimer>& each : running)
        each->Interval(0);
}

TEST_F(Timer, ACodeUpToAThousandIsRaisedAsItStands) {
    try {
        CTimer::ReportTimerFailure(6);
        FAIL() << "nothing was raised";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.Number(), 6u);
        EXPECT_EQ(failure.Description(), u"Overflow");
    }
}

TEST_F(Timer, AFailureOfAHandlerStopsAtTheCallback) {
    static int nBoxes;
    nBoxes = 0;
    const auto count = [](HWND, LPCWSTR, LPCWSTR, UINT) WINAPI -> int { return ++nBoxes; };
    const testing::PatchedImport<decltype(MessageBoxW)> patch("MessageBoxW",
                                                              static_cast<decltype(&MessageBoxW)>(count));
    timer->ThatTime.Add([] { throw OwnFailure(u"T", u"Something went wrong"); });
    timer->Interval(1000);
    TimerCallback(nullptr, WM_TIMER, timer->TimerID(), 0);
    EXPECT_EQ(nBoxes, 1);
}

} // namespace
} // namespace orvanta
