#pragma once

#include "desktop/support/Canvas.h"
#include "desktop/x11/CaptureProgram.h"
#include "desktop/x11/ServerAlone.h"

#include <cstdint>
#include <memory>

namespace quillon::test {

/// A desktop with one window on it, and a program that captures.
struct CaptureTest {
    explicit CaptureTest(const VirtualDesktop::Options& options = serverAlone)
        : desktop(options) {}

    /// What the last frame shows there, 0xFFRRGGBB; in pixels from the top left corner.
    std::uint32_t pixelAt(int x, int y) const {
        const int height = static_cast<int>(receiver->lastFrame->size().height);
        const auto rows = receiver->lastFrame->read(
            {static_cast<CGFloat>(x), static_cast<CGFloat>(height - 1 - y), 1, 1});
        return rows ? rows->pixels.at(0) : 0;
    }

    /// The frames of one second in which the window changes 240 times.
    int framesOfABusySecond() {
        const int before = receiver->frames;
        for (std::uint32_t change = 1; change <= 240; ++change) {
            canvas.fill({0, 0, 10, 10}, change);
            program.catchUp(*receiver);
            program.queue.advance(1.0 / 240);
        }
        return receiver->frames - before;
    }

    VirtualDesktop desktop;
    Canvas canvas{desktop.display(), {100, 50, 200, 100}};
    CaptureProgram program{desktop.display()};
    std::shared_ptr<FrameReceiver> receiver = std::make_shared<FrameReceiver>();
};

/// How many processes are attached to shared memory that this process has made.
int attachmentsOfOwnMemory();

} // namespace quillon::test
