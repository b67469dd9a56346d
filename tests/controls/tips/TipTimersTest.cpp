#include "controls/tips/TipTimers.h"

#include <gtest/gtest.h>

#include <vector>

namespace orvanta {
namespace {

class TipTimersTest : public ::testing::Test, public TipClock {
protected:
    std::int64_t Now() const override { return lNow; }
    void WakeAt(std::int64_t lTime) override { wakes.push_back(lTime); }

    void ElapseAt(std::int64_t lTime) {
        lNow = lTime;
        timers.Elapsed([this](TipTimer timer) {
            ticks.push_back(timer);
            if (onTick) onTick(timer);
        });
    }

    std::int64_t lNow = 0;
    std::vector<std::int64_t> wakes;
    std::vector<TipTimer> ticks;
    std::function<void(TipTimer)> onTick;
    TipTimers timers{*this};
};

using Ticks = std::vector<TipTimer>;
using enum TipTimer;

TEST_F(TipTimersTest, IntervalsAreFixedAndAllTimersAreStoppedAtFirst) {
    EXPECT_EQ(TipInterval(TimerActivate), 400);
    EXPECT_EQ(TipInterval(TimerHideTip), 3000);
    EXPECT_EQ(TipInterval(TimerActiveMM), 100);
    EXPECT_FALSE(timers.IsRunning(TimerActivate));
    EXPECT_FALSE(timers.IsRunning(TimerHideTip));
    EXPECT_FALSE(timers.IsRunning(TimerActiveMM));
}

TEST_F(TipTimersTest, RunningTimerTicksAgainAndAgain) {
    timers.Start(TimerActiveMM);
    ElapseAt(100);
    ElapseAt(199);
    ElapseAt(200);
    EXPECT_EQ(ticks, (Ticks{TimerActiveMM, TimerActiveMM}));
}

TEST_F(TipTimersTest, StartOfARunningTimerBeginsAnew) {
    timers.Start(TimerActivate);
    lNow = 300;
    timers.Start(TimerActivate);
    ElapseAt(400);
    EXPECT_TRUE(ticks.empty());
    ElapseAt(700);
    EXPECT_EQ(ticks, Ticks{TimerActivate});
}

TEST_F(TipTimersTest, StoppedTimerDoesNotTick) {
    timers.Start(TimerActivate);
    timers.Stop(TimerActivate);
    ElapseAt(1000);
    EXPECT_TRUE(ticks.empty());
}

TEST_F(TipTimersTest, TicksDueAtOnceComeInTheOrderActivateWatchHide) {
    timers.Start(TimerHideTip);
    timers.Start(TimerActiveMM);
    timers.Start(TimerActivate);
    ElapseAt(5000);
    EXPECT_EQ(ticks, (Ticks{TimerActivate, TimerActiveMM, TimerHideTip}));
}

TEST_F(TipTimersTest, TickThatStopsALaterTimerKeepsItFromTicking) {
    timers.Start(TimerHideTip);
    timers.Start(TimerActiveMM);
    onTick = [this](TipTimer) { timers.StopAll(); };
    ElapseAt(5000);
    EXPECT_EQ(ticks, Ticks{TimerActiveMM});
}

TEST_F(TipTimersTest, TimerStartedByATickWaitsItsWholeInterval) {
    timers.Start(TimerActivate);
    onTick = [this](TipTimer timer) {
        if (timer == TimerActivate) timers.Start(TimerActiveMM);
    };
    ElapseAt(5000);
    EXPECT_EQ(ticks, Ticks{TimerActivate});
    timers.Stop(TimerActivate);
    ElapseAt(5100);
    EXPECT_EQ(ticks, (Ticks{TimerActivate, TimerActiveMM}));
}

TEST_F(TipTimersTest, MissedTicksFoldIntoOne) {
    timers.Start(TimerActiveMM);
    ElapseAt(1050);
    EXPECT_EQ(ticks, Ticks{TimerActiveMM});
    EXPECT_EQ(wakes.back(), 1150);
}

TEST_F(TipTimersTest, ClockIsAskedForTheEarliestTickOnly) {
    timers.Start(TimerHideTip);
    EXPECT_EQ(wakes, std::vector<std::int64_t>{3000});
    timers.Start(TimerActivate);
    timers.Start(TimerActiveMM);
    EXPECT_EQ(wakes, (std::vector<std::int64_t>{3000, 400, 100}));
}

TEST_F(TipTimersTest, RestartAsksTheClockForNothingWhileItWakesEarlyEnough) {
    for (int n = 0; n < 50; ++n) {
        lNow = n;
        timers.Start(TimerActivate);
    }
    EXPECT_EQ(wakes, std::vector<std::int64_t>{400});
    ElapseAt(400);
    EXPECT_TRUE(ticks.empty());
    EXPECT_EQ(wakes.back(), 449);
}

TEST_F(TipTimersTest, WithAllTimersStoppedTheClockIsLeftAlone) {
    timers.Start(TimerActivate);
    timers.StopAll();
    ElapseAt(400);
    EXPECT_EQ(wakes.size(), 1u);
}

} // namespace
} // namespace orvanta
