#pragma once

#include <memory>

namespace orvanta {

// Where hosts and controls go whose windows are destroyed: code of theirs may still be running. They are let go by the
// next message that arrives while no HostCall stands in this thread, and at the latest with the thread.
void KeepRemovedHost(std::shared_ptr<void> host);
void ReleaseRemovedHosts();

} // namespace orvanta
