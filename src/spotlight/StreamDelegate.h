#pragma once

#include "foundation/Int.h"
#include "platform/SCStream.h"

#include <memory>

namespace quillon {

class SpotlightManager;

/// Tells the manager that a stream ended of itself, and of which generation it was: the word may
/// come long after another stream has taken its place.
class StreamDelegate : public SCStreamDelegate {
public:
    StreamDelegate(std::shared_ptr<SpotlightManager> newManager, Int generation);

    Int generation() const { return m_generation; }

    /// Comes on any thread, prints there, and goes on in a turn of the main queue.
    void streamDidStopWithError(SCStream& stream, const CaptureError& error) override;

    /// Held for as long as the stream holds its delegate; null for none.
    std::shared_ptr<SpotlightManager> manager;

private:
    const Int m_generation;
};

} // namespace quillon
