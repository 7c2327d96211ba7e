#include "support/HostAfterHost.h"

namespace quillon::test {

HostAfterHost::HostAfterHost() {
    replaceHost();
}

HostAfterHost::~HostAfterHost() = default;

void HostAfterHost::replaceHost() {
    auto ports = m_fakes.ports();
    ports.mainQueue = m_queue;
    m_host.reset();
    m_host.emplace(ports);
    m_fakes.windows.calls.clear();
}

} // namespace quillon::test
