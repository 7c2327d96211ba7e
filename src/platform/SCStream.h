#pragma once

#include "platform/CIImage.h"
#include "platform/MainQueue.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace quillon {

/// Why a step of a capture failed. The domain "SCStreamErrorDomain" means that the session does not
/// allow it, any other that something else went wrong. The text is for a person.
struct CaptureError {
    std::string domain;
    std::string text;

    friend bool operator==(const CaptureError&, const CaptureError&) = default;
};

/// Empty when the step succeeded.
using CaptureOutcome = std::optional<CaptureError>;
using CaptureCompletion = std::function<void(const CaptureOutcome&)>;

enum class SCStreamOutputType { screen = 0, audio = 1, microphone = 2 };

/// One delivery of a stream.
struct CMSampleBuffer {
    /// Null in a delivery without a picture.
    std::shared_ptr<const CVImageBuffer> imageBuffer;
};

inline std::shared_ptr<const CVImageBuffer>
CMSampleBufferGetImageBuffer(const CMSampleBuffer& sampleBuffer) {
    return sampleBuffer.imageBuffer;
}

class SCStream;

/// Hears of the end of a stream that nobody asked to stop.
class SCStreamDelegate {
public:
    virtual ~SCStreamDelegate() = default;

    /// May come on any thread, at most once for a stream and only after a start that succeeded.
    /// The stream delivers nothing more, and may be let go of.
    virtual void streamDidStopWithError(SCStream& stream, const CaptureError& error) = 0;
};

/// Takes the deliveries of a stream.
class SCStreamOutput {
public:
    virtual ~SCStreamOutput() = default;

    /// Comes on the queue that the output was added with. The picture is that of the moment at
    /// which its pixels are read, in this call or later: a receiver that wants the picture of the
    /// delivery reads it at once.
    virtual void streamDidOutputSampleBuffer(SCStream& stream, const CMSampleBuffer& sampleBuffer,
                                             SCStreamOutputType type) = 0;
};

/// A live capture of one display: a frame soon after the start, then one whenever the display has
/// changed, and none while it stands still. A frame's extent is the whole display in pixels.
///
/// A receiver whose own picture is on that display changes it by showing a frame. It comes to rest
/// only if it leaves its picture alone when the new one is equal to it.
///
/// It holds its delegate and its outputs. Letting go of it ends it without a word; completions that
/// are still to come do come.
class SCStream {
public:
    virtual ~SCStream() = default;

    /// Fails for a type that the host does not offer.
    virtual CaptureOutcome addStreamOutput(std::shared_ptr<SCStreamOutput> output,
                                           SCStreamOutputType type,
                                           MainQueue& sampleHandlerQueue) = 0;
    /// Completes on the main thread in a later turn. No frame comes before that.
    virtual void startCapture(CaptureCompletion completion) = 0;
    /// Completes on the main thread in a later turn; nothing is delivered after the call. To stop a
    /// stream that does not run is an error.
    virtual void stopCapture(CaptureCompletion completion) = 0;
};

} // namespace quillon
