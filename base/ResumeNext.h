#pragma once

#include "base/Failure.h"

#include <utility>

namespace orvanta {

// Runs one step of a routine whose trap goes on with the next statement: a failure is handed to `report` and the step
// counts as not done. Anything that is no Failure passes through.
template<typename Report, typename Step>
bool ResumeNext(Report&& report, Step&& step) {
    try {
        std::forward<Step>(step)();
        return true;
    } catch (const Failure& failure) {
        std::forward<Report>(report)(failure);
        return false;
    }
}

// The same where failures are dropped.
template<typename Step>
bool IgnoreFailure(Step&& step) {
    return ResumeNext([](const Failure&) {}, std::forward<Step>(step));
}

} // namespace orvanta
