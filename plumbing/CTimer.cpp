#include "plumbing/CTimer.h"

#include "plumbing/MTimer.h"
#include "plumbing/ProgramFailure.h"

namespace orvanta {

std::shared_ptr<CTimer> CTimer::Create() {
    return std::shared_ptr<CTimer>(new CTimer);
}

CTimer::~CTimer() {
    Interval(0);
}

void CTimer::Interval(std::int32_t iIntervalA) {
    // The table's reference may be the last one, and it goes when the timer stops.
    const std::shared_ptr<CTimer> self = weak_from_this().lock();
    if (iIntervalA >= 1) {
        if (iIntervalA == m_iInterval) return;
        if (m_iInterval != 0) TimerDestroy(*this);
        m_iInterval = iIntervalA;
        if (!TimerCreate(*this)) ReportTimerFailure(kNoSystemTimer);
    } else if (m_iInterval > 0) {
        m_iInterval = 0;
        TimerDestroy(*this);
    }
}

void CTimer::ReportTimerFailure(std::uint32_t lCode) {
    const auto* sDescription = u"";
    switch (lCode) {
    // The number in the text is not the size of the table; both are as they always were.
    case kNoSlot: sDescription = u"No more than 10 timers allowed per class"; break;
    case kNoSystemTimer: sDescription = u"Can't create system timer"; break;
    default: break;
    }
    throw PlumbingFailure(lCode, sDescription);
}

} // namespace orvanta
