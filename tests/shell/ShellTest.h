#pragma once

#include "annotation/AnnotationCanvas.h"
#include "model/AppSettings.h"
#include "shell/AppDelegate.h"
#include "support/FakeHost.h"

#include <gtest/gtest.h>

#include <memory>
#include <string_view>

namespace quillon::test {

/// A delegate on a fresh host, not yet launched.
struct ShellTest : testing::Test {
    /// Launches, and lets the turns that follow run.
    void launch() {
        delegate->applicationDidFinishLaunching();
        host.mainQueue.run();
    }

    void post(std::string_view name) {
        host.notificationCenter().post(name);
        host.mainQueue.run();
    }

    AppSettings& settings() { return AppSettings::shared(); }

    /// The annotations that are on the overlay.
    DrawingState& annotations() {
        auto& root = *delegate->overlayWindow()->hostingView()->rootView;
        return dynamic_cast<OverlayContainerView&>(root).drawingState();
    }

    FakeHost host;
    std::unique_ptr<AppDelegate> delegate = std::make_unique<AppDelegate>();
};

} // namespace quillon::test
