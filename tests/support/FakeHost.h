#pragma once

#include "support/FakePorts.h"

namespace quillon::test {

/// A host made of fakes, installed for as long as it lives.
struct FakeHost : FakePorts {
    Host host{ports()};

    NotificationCenter& notificationCenter() { return host.notificationCenter(); }
};

} // namespace quillon::test
