#include "platform/Host.h"

#include "foundation/FatalError.h"

namespace quillon {

namespace {

Host* installedHost = nullptr;

} // namespace

Host::Host(const Ports& ports)
    : m_ports(ports) {
    if (installedHost) {
        fatalError("a second host was installed");
    }
    installedHost = this;
}

Host::~Host() {
    // Work may hold windows, which end with the host that showed them.
    mainQueue().clear();
    while (!m_sharedInstances.empty()) {
        m_sharedInstances.pop_back();
    }
    installedHost = nullptr;
}

Host& Host::current() {
    if (!installedHost) {
        fatalError("no host is installed");
    }
    return *installedHost;
}

} // namespace quillon
