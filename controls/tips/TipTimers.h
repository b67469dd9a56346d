#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>

namespace orvanta {

// Where the tip's timers take their time from. Milliseconds of a clock that never goes back.
class TipClock {
public:
    virtual std::int64_t Now() const = 0;
    // Asks for one call of TipTimers::Elapsed at that time or later, instead of the call asked for before.
    virtual void WakeAt(std::int64_t lTime) = 0;

protected:
    ~TipClock() = default;
};

// The three timers of the tooltip popup, in the order in which their ticks come when several are due at once.
enum class TipTimer : std::uint8_t {
    TimerActivate, // how long the cursor must rest before the tip shows
    TimerActiveMM, // watches the cursor while a tip is shown
    TimerHideTip,  // how long a tip stays
};
inline constexpr std::size_t kTipTimerCount = 3;
constexpr std::int64_t TipInterval(TipTimer timer) {
    return timer == TipTimer::TimerActivate ? 400 : timer == TipTimer::TimerActiveMM ? 100 : 3000;
}

// Runs them on one clock: a mouse that moves starts timers all the time, and the clock is asked for nothing as long as
// it wakes early enough. Ticks that were missed fold into one.
class TipTimers {
public:
    explicit TipTimers(TipClock& clock) : m_clock(clock) {}

    // From the beginning, also when it runs.
    void Start(TipTimer timer);
    void Stop(TipTimer timer) { m_due[Index(timer)].reset(); }
    void StopAll() { m_due.fill(std::nullopt); }
    bool IsRunning(TipTimer timer) const { return m_due[Index(timer)].has_value(); }

    // Calls tick for every timer that is due now. A tick may start and stop any of them.
    void Elapsed(const std::function<void(TipTimer)>& tick);

private:
    static std::size_t Index(TipTimer timer) { return static_cast<std::size_t>(timer); }
    void WakeForNext();

    TipClock& m_clock;
    std::array<std::optional<std::int64_t>, kTipTimerCount> m_due;
    std::optional<std::int64_t> m_wake; // what the clock was asked for last
};

} // namespace orvanta
