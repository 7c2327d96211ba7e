#pragma once

#include "foundation/Lifetime.h"

#include <functional>

namespace quillon {

/// Times the frames of an animation, one at a time: it ticks only as long as it is asked to. Keep
/// it as a member of what is animated.
class FrameTicker {
public:
    /// Calls `frame` when the display is due to show its next picture. While that is pending,
    /// further requests add nothing.
    void request(std::function<void()> frame);

private:
    bool m_isPending = false;
    Lifetime m_lifetime;
};

} // namespace quillon
