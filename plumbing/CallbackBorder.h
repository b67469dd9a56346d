#pragma once

#include "base/Failure.h"
#include "plumbing/SystemAnsiCodePage.h"
#include "plumbing/modUniMsgBox.h"

#include <exception>
#include <utility>

namespace orvanta {

// Runs what a callback of the platform does. No exception may pass through the platform's own code, so one that
// nobody handled is shown to the user here, and the callback goes on behind the step.
template<typename Step>
void AtCallbackBorder(Step&& step) noexcept {
    try {
        std::forward<Step>(step)();
    } catch (const Failure& failure) {
        UniMsgError(failure.Description());
    } catch (const std::exception& exception) {
        UniMsgError(SystemAnsiCodePage::Instance().BytesToText(exception.what()));
    }
}

} // namespace orvanta
