#pragma once

#include <algorithm>

namespace quillon::desktop {

/// How soon a frame is wanted.
enum class FrameHaste {
    /// As soon as one may come.
    now,
    /// Not before somebody else's change has had half of the time in which a frame may come.
    later,
};

/// Says when the next frame is due. Time is cut into slots of an interval each, one after the
/// other, and each has room for one frame. The first slot begins with the first frame after a rest.
///
/// Since the slots stand still, a picture that changes at their pace is shown whole: a change that
/// comes a little early waits for its slot, one that comes a little late is shown at once, and
/// neither takes the room of the next one.
class FramePacer {
public:
    explicit FramePacer(double interval)
        : m_interval(interval) {}

    /// When a frame may come that is wanted at `now`.
    double due(double now, FrameHaste haste) const {
        if (isAfterRest(now)) {
            return now;
        }
        const double patience = haste == FrameHaste::later ? m_interval / 2 : 0;
        return std::max(m_nextSlot + patience, now);
    }

    /// A frame has come, when it was due or later.
    void spend(double now) { m_nextSlot = (isAfterRest(now) ? now : m_nextSlot) + m_interval; }

private:
    /// A slot has gone by without a frame.
    bool isAfterRest(double now) const { return now >= m_nextSlot + m_interval; }

    double m_interval;
    /// The beginning of the first slot that has room. Long ago to begin with.
    double m_nextSlot = 0;
};

} // namespace quillon::desktop
