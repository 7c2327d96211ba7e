#include "desktop/x11/X11CaptureStream.h"

#include "desktop/x11/CaptureErrors.h"

#include <utility>

namespace quillon::desktop {

namespace {

/// What is asked for beyond what this host does.
CaptureOutcome unsupportedWish(const SCContentFilter& filter,
                               const SCStreamConfiguration& configuration) {
    if (!filter.excludedWindows.empty()) {
        return captureError("On X11 no window can be left out of a capture.");
    }
    if (configuration.showsCursor()) {
        return captureError("On X11 the pointer is not part of a capture.");
    }
    if (configuration.scalesToFit()) {
        return captureError("On X11 a capture has the size of its display.");
    }
    if (configuration.pixelFormat() != kCVPixelFormatType_32BGRA) {
        return captureError("The only format of captured pixels is BGRA.");
    }
    return std::nullopt;
}

} // namespace

X11CaptureStream::X11CaptureStream(CaptureSurroundings surroundings, SCContentFilter filter,
                                   const SCStreamConfiguration& configuration,
                                   std::shared_ptr<SCStreamDelegate> delegate)
    : m_surroundings(std::move(surroundings))
    , m_filter(std::move(filter))
    , m_configuration(configuration)
    , m_delegate(std::move(delegate)) {}

CaptureOutcome X11CaptureStream::addStreamOutput(std::shared_ptr<SCStreamOutput> output,
                                                 SCStreamOutputType type,
                                                 MainQueue& sampleHandlerQueue) {
    if (type != SCStreamOutputType::screen) {
        return captureError("On X11 a stream gives pictures and no sound.");
    }
    if (&sampleHandlerQueue != &m_surroundings.mainQueue.get()) {
        return captureError("Frames come on the main queue only.");
    }
    m_outputs.push_back(std::move(output));
    return std::nullopt;
}

void X11CaptureStream::startCapture(CaptureCompletion completion) {
    if (m_session || m_isStarting) {
        completeLater(std::move(completion), captureError("The stream has been started before."));
        return;
    }
    m_isStarting = true;
    const auto start = [weak = weak_from_this(), attempt = ++m_attempt,
                        completion = std::move(completion)] {
        const auto stream = weak.lock();
        completion(stream ? stream->open(attempt)
                          : captureError("The stream went before it had started."));
    };
    m_surroundings.mainQueue.get().async(start);
}

void X11CaptureStream::stopCapture(CaptureCompletion completion) {
    const bool wasOn = m_session || m_isStarting;
    ++m_attempt;
    m_isStarting = false;
    m_session.reset();
    completeLater(std::move(completion),
                  wasOn ? CaptureOutcome() : captureError("The stream does not run."));
}

CaptureOutcome X11CaptureStream::open(std::uint64_t attempt) {
    if (attempt != m_attempt) {
        return captureError("The stream was stopped before it had started.");
    }
    m_isStarting = false;
    if (auto unsupported = unsupportedWish(m_filter, m_configuration)) {
        return unsupported;
    }
    auto opened = CaptureSession::open(
        m_surroundings, m_filter.display.displayID,
        m_configuration.minimumFrameInterval().seconds(),
        [this](const std::shared_ptr<const CVImageBuffer>& frame) { deliver(frame); },
        [this](const CaptureError& error) { endWith(error); });
    if (const auto* error = std::get_if<CaptureError>(&opened)) {
        return *error;
    }
    m_session = std::get<std::shared_ptr<CaptureSession>>(std::move(opened));
    return std::nullopt;
}

void X11CaptureStream::deliver(const std::shared_ptr<const CVImageBuffer>& frame) {
    const auto self = shared_from_this();
    const auto session = m_session;
    const auto outputs = m_outputs;
    for (const auto& output : outputs) {
        if (m_session != session) {
            return;
        }
        output->streamDidOutputSampleBuffer(*this, {frame}, SCStreamOutputType::screen);
    }
}

void X11CaptureStream::endWith(const CaptureError& error) {
    const auto self = shared_from_this();
    m_session.reset();
    if (m_delegate) {
        m_delegate->streamDidStopWithError(*this, error);
    }
}

void X11CaptureStream::completeLater(CaptureCompletion completion, CaptureOutcome outcome) {
    m_surroundings.mainQueue.get().async([completion = std::move(completion),
                                          outcome = std::move(outcome)] { completion(outcome); });
}

} // namespace quillon::desktop
