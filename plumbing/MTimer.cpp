#include "plumbing/MTimer.h"

#include "plumbing/CTimer.h"
#include "plumbing/CallbackBorder.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>

namespace orvanta {

namespace {

struct TimerTable {
    std::array<std::shared_ptr<CTimer>, 100> aTimers;
    std::int16_t iMaxTimer = 0; // the highest slot used so far, counted from 1

    std::shared_ptr<CTimer>* Find(std::uintptr_t iTimerID) {
        const auto end = aTimers.begin() + iMaxTimer;
        const auto it = std::find_if(aTimers.begin(), end, [iTimerID](const std::shared_ptr<CTimer>& timer) {
            return timer && timer->TimerID() == iTimerID;
        });
        return it == end ? nullptr : &*it;
    }
};

TimerTable& Table() {
    // Never destroyed: a timer that still runs at the end of the program must not look for itself in a dead table.
    static TimerTable& table = *new TimerTable;
    return table;
}

} // namespace

bool TimerCreate(CTimer& oTimer) {
    oTimer.TimerID(SetTimer(nullptr, 0, static_cast<UINT>(oTimer.Interval()), TimerCallback));
    if (oTimer.TimerID() == 0) {
        oTimer.Interval(0);
        return false;
    }
    TimerTable& table = Table();
    const auto slot = std::find(table.aTimers.begin(), table.aTimers.end(), nullptr);
    if (slot == table.aTimers.end()) CTimer::ReportTimerFailure(CTimer::kNoSlot);
    *slot = oTimer.shared_from_this();
    const auto iSlot = static_cast<std::int16_t>(slot - table.aTimers.begin() + 1);
    table.iMaxTimer = std::max(table.iMaxTimer, iSlot);
    return true;
}

bool TimerDestroy(CTimer& oTimer) {
    std::shared_ptr<CTimer>* slot = Table().Find(oTimer.TimerID());
    if (!slot) return false;
    KillTimer(nullptr, oTimer.TimerID());
    // Out of the table first: letting go of the timer may run its destructor.
    const std::shared_ptr<CTimer> last = std::exchange(*slot, nullptr);
    return true;
}

void CALLBACK TimerCallback(HWND, UINT, UINT_PTR idEvent, DWORD) noexcept {
    std::shared_ptr<CTimer>* slot = Table().Find(idEvent);
    if (!slot) return;
    const std::shared_ptr<CTimer> timer = *slot;
    AtCallbackBorder([&timer] { timer->PulseTimer(); });
}

} // namespace orvanta
