#pragma once

#include "base/Failure.h"
#include "plumbing/modUniMsgBox.h"

#include <utility>

namespace orvanta {

// Runs what a callback of the platform does. No exception may pass through the platform's own code, so a failure that
// nobody handled is shown to the user here, and the callback goes on behind the step.
template<typename Step>
void AtCallbackBorder(Step&& step) noexcept {
    try {
        std::forward<Step>(step)();
    } catch (const Failure& failure) {
        UniMsgError(failure.Description());
    }
}

} // namespace orvanta
