#include "platform/FrameTicker.h"

#include "platform/Host.h"

#include <algorithm>
#include <utility>

namespace quillon {

namespace {

/// Of the quickest display, since a window may stand on any.
double secondsOfOneFrame() {
    double framesPerSecond = 0;
    for (const NSScreen& screen : Host::current().screens().screens()) {
        framesPerSecond = std::max(framesPerSecond, screen.maximumFramesPerSecond);
    }
    return 1 / (framesPerSecond > 0 ? framesPerSecond : NSScreen().maximumFramesPerSecond);
}

} // namespace

void FrameTicker::request(std::function<void()> frame) {
    if (std::exchange(m_isPending, true)) {
        return;
    }
    Host::current().mainQueue().asyncAfter(secondsOfOneFrame(),
                                           m_lifetime.guard([this, frame = std::move(frame)] {
                                               m_isPending = false;
                                               frame();
                                           }));
}

} // namespace quillon
