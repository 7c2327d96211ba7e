#include "platform/Host.h"

#include <cstdio>
#include <cstdlib>

namespace quillon {

namespace {

Host* installedHost = nullptr;

[[noreturn]] void stop(const char* reason) {
    std::fprintf(stderr, "quillon-mark: %s\n", reason);
    std::abort();
}

} // namespace

Host::Host(const Ports& ports)
    : m_ports(ports) {
    if (installedHost) {
        stop("a second host was installed");
    }
    installedHost = this;
}

Host::~Host() {
    while (!m_sharedInstances.empty()) {
        m_sharedInstances.pop_back();
    }
    installedHost = nullptr;
}

Host& Host::current() {
    if (!installedHost) {
        stop("no host is installed");
    }
    return *installedHost;
}

} // namespace quillon
