#include "controls/contract/HostCall.h"

namespace orvanta {

namespace {

thread_local int t_nCalls = 0;

} // namespace

HostCall::HostCall() {
    ++t_nCalls;
}

HostCall::~HostCall() {
    --t_nCalls;
}

bool HostCall::Active() {
    return t_nCalls > 0;
}

} // namespace orvanta
