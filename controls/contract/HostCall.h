#pragma once

namespace orvanta {

// Marks the time in which code of a control is on the stack: while a host calls its control, and while a control raises
// an event. A control that is removed meanwhile loses its window at once, but its objects live until the last mark of
// the thread has gone, so that the code that is still running may come to its end.
class HostCall {
public:
    HostCall();
    HostCall(const HostCall&) = delete;
    HostCall& operator=(const HostCall&) = delete;
    ~HostCall();

    // Whether a mark of this thread stands.
    static bool Active();
};

} // namespace orvanta
