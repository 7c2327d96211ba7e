#pragma once

#include "platform/Host.h"
#include "support/FakeDefaults.h"
#include "support/FakeHotKeys.h"
#include "support/FakeScreens.h"
#include "support/FakeStatusBar.h"
#include "support/FakeWindows.h"
#include "support/HandTurnedQueue.h"
#include "support/RecordingContext.h"

namespace quillon::test {

/// A host made of fakes, installed for as long as it lives.
struct FakeHost {
    HandTurnedQueue mainQueue;
    FakeDefaults userDefaults;
    FakeApplication application;
    FakeWindows windows;
    FakeScreens screens;
    FakeHotKeys hotKeys;
    FakeStatusBar statusBar;
    FakeImages images;
    RecordingGraphics graphics;
    Host host{{mainQueue, userDefaults, application, windows, screens, hotKeys, statusBar, images,
               graphics}};

    NotificationCenter& notificationCenter() { return host.notificationCenter(); }
};

} // namespace quillon::test
