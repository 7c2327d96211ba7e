#pragma once

#include "cursor/ClickAnimationView.h"
#include "cursor/CursorHighlightManager.h"
#include "cursor/HaloView.h"
#include "model/AppSettings.h"
#include "support/FakeHost.h"

#include <gtest/gtest.h>

namespace quillon::test {

/// The manager on a fresh host, with a pointer that the test moves and presses.
struct CursorTest : testing::Test {
    AppSettings& settings() { return AppSettings::shared(); }
    CursorHighlightManager& manager() { return CursorHighlightManager::shared(); }

    /// An event over another program, and the turns that follow.
    void sendToOthers(NSEventType type, CGPoint place) {
        host.eventMonitors.sendToOthers(type, place);
        host.mainQueue.run();
    }
    void movePointer(CGPoint place) { sendToOthers(NSEventType::mouseMoved, place); }
    /// A press in a window of the program.
    void press(NSEventType type, CGPoint place) {
        host.eventMonitors.sendToOwnWindow(type, place);
        host.mainQueue.run();
    }

    /// The look that the halo's window shows.
    const HaloView& halo() {
        return dynamic_cast<const HaloView&>(*manager().haloWindow()->contentView()->rootView);
    }

    FakeHost host;
};

} // namespace quillon::test
