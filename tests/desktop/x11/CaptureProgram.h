#pragma once

#include "desktop/support/Eventually.h"
#include "desktop/x11/X11ScreenCapture.h"
#include "support/HandTurnedQueue.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quillon::test {

/// Takes the frames of a stream, looks at a pixel of each, and hears of the end of the stream. With
/// the look the server has got everything that the frame had to say, and a change after it is new.
class FrameReceiver : public SCStreamOutput, public SCStreamDelegate {
public:
    void streamDidOutputSampleBuffer(SCStream& stream, const CMSampleBuffer& sampleBuffer,
                                     SCStreamOutputType type) override;
    void streamDidStopWithError(SCStream& stream, const CaptureError& error) override;

    int frames = 0;
    std::shared_ptr<const CVImageBuffer> lastFrame;
    std::vector<CaptureError> errors;
    /// Called with each frame, after the look.
    std::function<void(SCStream& stream)> onFrame;
};

/// A program that captures: its turns and its clock are in the test's hands.
class CaptureProgram {
public:
    explicit CaptureProgram(const std::string& displayName);

    /// What is there to be captured.
    ScreenCapture::ContentOutcome content();
    SCDisplay firstDisplay();

    /// A stream as the lens asks for it, of the first display unless told otherwise, that has been
    /// started without an error.
    std::shared_ptr<SCStream> start(const std::shared_ptr<FrameReceiver>& receiver,
                                    std::optional<SCDisplay> display = std::nullopt);
    std::shared_ptr<SCStream> make(const std::shared_ptr<FrameReceiver>& receiver,
                                   const SCContentFilter& filter,
                                   const SCStreamConfiguration& configuration);
    CaptureOutcome outcomeOf(SCStream& stream, void (SCStream::*step)(CaptureCompletion));

    /// Hears what the server has to tell and runs what is due. The clock stands still.
    void turn();
    /// Turns until `condition` holds while the clock runs on; false when it does not within the
    /// bound.
    bool turnUntil(const std::function<bool()>& condition);
    /// Takes a turn that has heard everything which the server had to tell of what was done before.
    void catchUp(const FrameReceiver& receiver);

    HandTurnedQueue queue;
    /// Where the program shows a picture of its own, in device pixels.
    xcb_rectangle_t ownPicture{};
    /// How many files are being watched.
    std::size_t watchCount() const { return m_watched.size(); }

    static SCStreamConfiguration configuration();

private:
    struct Watched {
        int file = -1;
        std::function<void()> whenReadable;
    };

    desktop::FileWatch watch();

    std::map<int, Watched> m_watched;
    int m_lastWatch = 0;

public:
    desktop::X11ScreenCapture capture;
};

} // namespace quillon::test
