#include "desktop/x11/CaptureProgram.h"

#include "desktop/x11/XRectangles.h"

#include <poll.h>

#include <stdexcept>
#include <utility>

namespace quillon::test {

void FrameReceiver::streamDidOutputSampleBuffer(SCStream& stream,
                                                const CMSampleBuffer& sampleBuffer,
                                                SCStreamOutputType /*type*/) {
    ++frames;
    lastFrame = CMSampleBufferGetImageBuffer(sampleBuffer);
    lastFrame->read({0, 0, 1, 1});
    if (onFrame) {
        onFrame(stream);
    }
}

void FrameReceiver::streamDidStopWithError(SCStream& /*stream*/, const CaptureError& error) {
    errors.push_back(error);
}

CaptureProgram::CaptureProgram(const std::string& displayName)
    : capture({displayName, queue, watch(),
               [this](const xcb_rectangle_t& rect) { return desktop::contains(ownPicture, rect); }},
              [] { return 1.0; }) {}

ScreenCapture::ContentOutcome CaptureProgram::content() {
    std::optional<ScreenCapture::ContentOutcome> found;
    capture.getShareableContent(
        [&](const ScreenCapture::ContentOutcome& outcome) { found = outcome; });
    queue.run();
    return found.value();
}

SCDisplay CaptureProgram::firstDisplay() {
    return std::get<SCShareableContent>(content()).displays.at(0);
}

SCStreamConfiguration CaptureProgram::configuration() {
    SCStreamConfiguration configuration;
    configuration.setMinimumFrameInterval({1, 60});
    configuration.setShowsCursor(false);
    configuration.setScalesToFit(false);
    return configuration;
}

std::shared_ptr<SCStream> CaptureProgram::make(const std::shared_ptr<FrameReceiver>& receiver,
                                               const SCContentFilter& filter,
                                               const SCStreamConfiguration& configuration) {
    auto stream = capture.makeStream(filter, configuration, receiver);
    if (stream->addStreamOutput(receiver, SCStreamOutputType::screen, queue)) {
        throw std::runtime_error("the stream takes no output");
    }
    return stream;
}

std::shared_ptr<SCStream> CaptureProgram::start(const std::shared_ptr<FrameReceiver>& receiver,
                                                std::optional<SCDisplay> display) {
    auto stream = make(receiver, {display ? *display : firstDisplay(), {}}, configuration());
    if (const auto error = outcomeOf(*stream, &SCStream::startCapture)) {
        throw std::runtime_error("the stream did not start: " + error->text);
    }
    turn();
    return stream;
}

CaptureOutcome CaptureProgram::outcomeOf(SCStream& stream,
                                         void (SCStream::*step)(CaptureCompletion)) {
    std::optional<CaptureOutcome> found;
    (stream.*step)([&](const CaptureOutcome& outcome) { found = outcome; });
    queue.turn();
    return found.value();
}

void CaptureProgram::turn() {
    const auto present = m_watched;
    for (const auto& [number, watched] : present) {
        pollfd file{watched.file, POLLIN, 0};
        if (m_watched.contains(number) && poll(&file, 1, 0) == 1) {
            watched.whenReadable();
        }
    }
    queue.run();
}

bool CaptureProgram::turnUntil(const std::function<bool()>& condition) {
    return eventually([&] {
        turn();
        queue.advance(0.005);
        return condition();
    });
}

void CaptureProgram::catchUp(const FrameReceiver& receiver) {
    // The answer to a read comes after everything that the server had to tell before.
    receiver.lastFrame->read({0, 0, 1, 1});
    turn();
}

desktop::FileWatch CaptureProgram::watch() {
    return [this](int file, std::function<void()> whenReadable) {
        const int number = ++m_lastWatch;
        m_watched[number] = {file, std::move(whenReadable)};
        return Cancellable([this, number] { m_watched.erase(number); });
    };
}

} // namespace quillon::test
