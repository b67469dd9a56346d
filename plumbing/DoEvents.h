#pragma once

struct tagMSG;

namespace orvanta {

// Lets the thread's message loop run: delivers all messages that wait, and those that they bring about, then comes
// back. Anything may have happened meanwhile: windows closed, members called. A request to quit stays in the queue for
// the thread's own loop and ends the delivery.
void DoEvents();

// What a message loop asks about each message before it delivers it: true when the message is done already, as a key
// that moves the focus is. Forms set it; without one every message is delivered.
using DialogStep = bool (*)(const tagMSG& message);
void SetDialogStep(DialogStep step);

} // namespace orvanta
