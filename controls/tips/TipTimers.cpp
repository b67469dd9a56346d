#include "controls/tips/TipTimers.h"

namespace orvanta {

void TipTimers::Start(TipTimer timer) {
    m_due[Index(timer)] = m_clock.Now() + TipInterval(timer);
    WakeForNext();
}

void TipTimers::Elapsed(const std::function<void(TipTimer)>& tick) {
    m_wake.reset();
    const std::int64_t lNow = m_clock.Now();
    for (std::size_t n = 0; n < kTipTimerCount; ++n) {
        if (!m_due[n] || *m_due[n] > lNow) continue;
        const auto timer = static_cast<TipTimer>(n);
        m_due[n] = lNow + TipInterval(timer);
        tick(timer);
    }
    WakeForNext();
}

void TipTimers::WakeForNext() {
    std::optional<std::int64_t> next;
    for (const auto& due : m_due) {
        if (due && (!next || *due < *next)) next = due;
    }
    if (!next || (m_wake && *m_wake <= *next)) return;
    m_wake = next;
    m_clock.WakeAt(*next);
}

} // namespace orvanta
