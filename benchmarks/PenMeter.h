#pragma once

#include "benchmarks/Pens.h"
#include "benchmarks/Statistics.h"

#include "desktop/support/InputDriver.h"
#include "desktop/support/VirtualDesktop.h"

#include <chrono>
#include <cstdint>
#include <optional>
#include <vector>

namespace quillon::bench {

struct PenResult {
    /// Milliseconds from the motion event to the first changed pixel on the screen.
    Samples latency;
    /// The same of the first motion of each stroke alone.
    Samples latencyOfFirst;
    /// Motions that changed nothing in time.
    int missed = 0;
};

/// Draws as a hand would and times each motion.
///
/// 1. It looks at the small square round the place where the pointer is about to go.
/// 2. It moves the pointer there, one event, and starts the clock.
/// 3. It looks at the square again and again, as it stands on the root window with everything
///    composed over it, until a pixel differs.
/// 4. It rests, so that everybody is done with this motion before the next one.
class PenMeter {
public:
    explicit PenMeter(test::VirtualDesktop& desktop);

    /// Draws one wavy stroke of many motions along the upper edge.
    void measureStroke(PenResult& result);

    /// Waits until nothing of that stroke is to be seen.
    void awaitErased() const;

    /// Fills the screen with `strokes` wavy strokes of many motions each, and clears it again.
    PenResult measurePage(Pen& pen, int strokes);

private:
    using Pixels = std::vector<std::uint8_t>;

    void measureStrokeAlong(int baseline, PenResult& result);
    std::optional<std::chrono::duration<double, std::milli>> timeMotion(test::Pixel place);
    Pixels pixelsAround(test::Pixel place) const;

    test::XConnection& m_connection;
    test::InputDriver m_input;
    /// The screen in the middle of the upper edge, as it was before the last stroke there.
    Pixels m_blank;
};

} // namespace quillon::bench
