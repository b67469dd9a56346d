#include "tests/plumbing/FailingAllocation.h"

#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

thread_local int g_nUntilFailure = 0;
thread_local bool g_bHappened = false;

} // namespace

void* operator new(std::size_t n) {
    if (g_nUntilFailure > 0 && --g_nUntilFailure == 0) {
        g_bHappened = true;
        throw std::bad_alloc();
    }
    if (void* p = std::malloc(n ? n : 1)) return p;
    throw std::bad_alloc();
}
void operator delete(void* p) noexcept {
    std::free(p);
}
void operator delete(void* p, std::size_t) noexcept {
    std::free(p);
}

namespace orvanta::testing {

FailingAllocation::FailingAllocation(int n) {
    g_bHappened = false;
    g_nUntilFailure = n;
}
FailingAllocation::~FailingAllocation() {
    g_nUntilFailure = 0;
}
bool FailingAllocation::Happened() {
    return g_bHappened;
}

} // namespace orvanta::testing
