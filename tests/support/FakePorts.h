#pragma once

#include "platform/Host.h"
#include "support/FakeDefaults.h"
#include "support/FakeEventMonitors.h"
#include "support/FakeHotKeys.h"
#include "support/FakeScreenCapture.h"
#include "support/FakeScreens.h"
#include "support/FakeStatusBar.h"
#include "support/FakeWindows.h"
#include "support/FakeWorkspace.h"
#include "support/HandTurnedQueue.h"
#include "support/RecordingContext.h"

namespace quillon::test {

/// A fake for every port, for a host that has yet to be made. A test may put a port of its own in
/// the place of one of them.
struct FakePorts {
    FakePorts();
    ~FakePorts();
    FakePorts(const FakePorts&) = delete;
    FakePorts& operator=(const FakePorts&) = delete;

    Host::Ports ports();

    HandTurnedQueue mainQueue;
    FakeDefaults userDefaults;
    FakeApplication application;
    FakeWindows windows;
    FakeScreens screens;
    FakeHotKeys hotKeys;
    FakeStatusBar statusBar;
    FakeImages images;
    RecordingGraphics graphics;
    FakeEventMonitors eventMonitors;
    FakeWorkspace workspace;
    FakeScreenCapture screenCapture;
};

} // namespace quillon::test
