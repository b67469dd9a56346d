#include "controls/hosting/RemovedHosts.h"

#include "controls/contract/HostCall.h"

#include <utility>
#include <vector>

namespace orvanta {

namespace {

thread_local std::vector<std::shared_ptr<void>> t_removed;

} // namespace

void KeepRemovedHost(std::shared_ptr<void> host) {
    t_removed.push_back(std::move(host));
}

void ReleaseRemovedHosts() {
    if (t_removed.empty() || HostCall::Active()) return;
    const std::vector<std::shared_ptr<void>> last = std::exchange(t_removed, {});
}

} // namespace orvanta
