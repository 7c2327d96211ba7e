#pragma once

#include "foundation/Date.h"
#include "foundation/Int.h"
#include "platform/CIImage.h"
#include "platform/SCStream.h"

#include <functional>
#include <memory>

namespace quillon {

class SpotlightManager;

/// Takes the frames of one stream, cuts out the square round the pointer, and gives it to the lens.
///
/// A frame that cannot be used prints its line and is dropped; the lens keeps the picture it has.
/// Main thread only.
class ZoomStreamOutput : public SCStreamOutput {
public:
    explicit ZoomStreamOutput(std::weak_ptr<SpotlightManager> manager,
                              std::function<Date()> now = Date::now);

    /// Frames since the rate was last printed.
    Int frameCount() const { return m_frameCount; }
    Date lastLogTime() const { return m_lastLogTime; }

    void streamDidOutputSampleBuffer(SCStream& stream, const CMSampleBuffer& sampleBuffer,
                                     SCStreamOutputType type) override;
    /// Near an edge of the screen the square is cut off there, and the picture is smaller.
    void processFrame(const CIImage& ciImage, const SpotlightManager& manager) const;

private:
    void countFrame();

    std::weak_ptr<SpotlightManager> m_manager;
    std::function<Date()> m_now;
    Int m_frameCount = 0;
    Date m_lastLogTime;
};

} // namespace quillon
