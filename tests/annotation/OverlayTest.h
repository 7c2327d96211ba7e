#pragma once

#include "annotation/TestStrokes.h"
#include "support/FakeHost.h"

#include <gtest/gtest.h>

#include <string_view>
#include <vector>

namespace quillon::test {

/// The overlay's root view on a host of fakes, 1000 by 700 points, brought up to date by hand.
class OverlayTest : public testing::Test {
protected:
    OverlayTest() {
        overlay.setUpdateRequest([this] { ++updateRequests; });
        overlay.layout({1000, 700}, 1);
        update();
    }

    AppSettings& settings() { return AppSettings::shared(); }
    DrawingState& state() { return overlay.drawingState(); }
    Damage update() { return overlay.takeDamage(); }
    void annotate(bool whiteboard = false) {
        settings().isAnnotationEnabled = true;
        settings().isWhiteboardMode = whiteboard;
        update();
    }
    void drag(CGPoint from, CGPoint to) {
        overlay.mouseDown(from);
        overlay.mouseDragged(to);
        overlay.mouseUp(to);
        update();
    }
    void post(std::string_view name) { host.notificationCenter().post(name); }
    /// What a paint of the whole view draws.
    std::vector<Drawing> painted() {
        RecordingContext context;
        overlay.paint(context, {0, 0, 1000, 700});
        return context.drawings;
    }

    FakeHost host;
    OverlayContainerView overlay{AppSettings::shared()};
    int updateRequests = 0;
};

} // namespace quillon::test
