#pragma once

#include "model/AppSettings.h"
#include "spotlight/SpotlightManager.h"
#include "spotlight/SpotlightView.h"
#include "support/FakeHost.h"

#include <gtest/gtest.h>

namespace quillon::test {

/// The manager on a fresh host, with a pointer that the test moves.
struct SpotlightTest : testing::Test {
    AppSettings& settings() { return AppSettings::shared(); }
    SpotlightManager& manager() { return SpotlightManager::shared(); }

    const SpotlightView::Value& shown() {
        auto& root = *manager().spotlightWindow()->contentView()->rootView;
        return dynamic_cast<SpotlightView&>(root).value();
    }

    /// The pointer moves over another program, and the turns that follow run.
    void movePointer(CGPoint place) {
        host.eventMonitors.sendToOthers(NSEventType::mouseMoved, place);
        host.mainQueue.run();
    }

    FakeHost host;
};

} // namespace quillon::test
