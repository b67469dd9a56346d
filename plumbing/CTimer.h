#pragma once

#include "base/Event.h"

#include <cstdint>
#include <memory>

namespace orvanta {

// A timer without a window: raises ThatTime every Interval milliseconds from the message loop of the thread that
// started it, the user-interface thread.
//
// While it runs it is held by the table of running timers as well, so it lives on when its owner lets go of it; owners
// set Interval to 0 first.
class CTimer : public std::enable_shared_from_this<CTimer> {
public:
    static std::shared_ptr<CTimer> Create();
    CTimer(const CTimer&) = delete;
    CTimer& operator=(const CTimer&) = delete;
    ~CTimer();

    Event<> ThatTime;

    // Milliseconds, 0 when stopped. Setting a new value of 1 or more starts the timer anew, the present value changes
    // nothing, and a value below 1 stops it. Raises
    //   0x80043553  "No more than 10 timers allowed per class", when all slots of the table are taken; the value stays
    //   0x80043554  "Can't create system timer"; the timer is stopped then
    std::int32_t Interval() const { return m_iInterval; }
    void Interval(std::int32_t iIntervalA);

    // One tick by hand.
    void PulseTimer() const { ThatTime.Raise(); }

    // For the table of running timers: the id that the system gave. A stopped timer keeps its last one.
    std::uintptr_t TimerID() const { return m_iTimerID; }
    void TimerID(std::uintptr_t iTimerID) { m_iTimerID = iTimerID; }

    static constexpr std::uint32_t kNoSlot = 13651;
    static constexpr std::uint32_t kNoSystemTimer = 13652;
    // Raises the failure of a code: one of the two above, or a number of the run-time system.
    [[noreturn]] static void ReportTimerFailure(std::uint32_t lCode);

private:
    CTimer() = default;

    std::int32_t m_iInterval = 0;
    std::uintptr_t m_iTimerID = 0;
};

} // namespace orvanta
