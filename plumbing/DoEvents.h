#pragma once

namespace orvanta {

// Lets the thread's message loop run: delivers all messages that wait, and those that they bring about, then comes
// back. Anything may have happened meanwhile: windows closed, members called. A request to quit stays in the queue for
// the thread's own loop and ends the delivery.
void DoEvents();

} // namespace orvanta
