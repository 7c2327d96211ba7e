#pragma once

#include "desktop/x11/CaptureSession.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace quillon::desktop {

/// A stream of one display. While it runs it has a `CaptureSession`, else it holds nothing of the
/// server. It is the main thread that calls and is called.
class X11CaptureStream : public SCStream, public std::enable_shared_from_this<X11CaptureStream> {
public:
    X11CaptureStream(CaptureSurroundings surroundings, SCContentFilter filter,
                     const SCStreamConfiguration& configuration,
                     std::shared_ptr<SCStreamDelegate> delegate);

    CaptureOutcome addStreamOutput(std::shared_ptr<SCStreamOutput> output, SCStreamOutputType type,
                                   MainQueue& sampleHandlerQueue) override;
    void startCapture(CaptureCompletion completion) override;
    void stopCapture(CaptureCompletion completion) override;

private:
    CaptureOutcome open(std::uint64_t attempt);
    void deliver(const std::shared_ptr<const CVImageBuffer>& frame);
    void endWith(const CaptureError& error);
    void completeLater(CaptureCompletion completion, CaptureOutcome outcome);

    CaptureSurroundings m_surroundings;
    SCContentFilter m_filter;
    SCStreamConfiguration m_configuration;
    std::shared_ptr<SCStreamDelegate> m_delegate;
    std::vector<std::shared_ptr<SCStreamOutput>> m_outputs;

    std::shared_ptr<CaptureSession> m_session;
    bool m_isStarting = false;
    /// Counts starts and stops: a start that waits for its turn is over once it has changed.
    std::uint64_t m_attempt = 0;
};

} // namespace quillon::desktop
