#pragma once

#include "support/FakePorts.h"

namespace quillon::test {

/// A host made of fakes, installed for as long as it lives.
struct FakeHost : FakePorts {
    FakeHost();
    ~FakeHost();
    FakeHost(const FakeHost&) = delete;
    FakeHost& operator=(const FakeHost&) = delete;

    Host host{ports()};

    NotificationCenter& notificationCenter() { return host.notificationCenter(); }
};

} // namespace quillon::test
