#pragma once

namespace orvanta::testing {

// Lets one memory request of this program fail: the nth from the start of its life, counted from 1.
class FailingAllocation {
public:
    explicit FailingAllocation(int n);
    FailingAllocation(const FailingAllocation&) = delete;
    FailingAllocation& operator=(const FailingAllocation&) = delete;
    ~FailingAllocation();

    // Whether that request has come.
    static bool Happened();
};

} // namespace orvanta::testing
