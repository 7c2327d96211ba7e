#include "desktop/x11/X11ScreenCapture.h"

#include <utility>

namespace quillon::desktop {

namespace {

const CaptureError unsupported{"X11DisplayErrorDomain", "Capturing is not supported."};

class UnsupportedStream : public SCStream {
public:
    explicit UnsupportedStream(MainQueue& mainQueue)
        : m_mainQueue(mainQueue) {}

    CaptureOutcome addStreamOutput(std::shared_ptr<SCStreamOutput> /*output*/,
                                   SCStreamOutputType /*type*/,
                                   MainQueue& /*sampleHandlerQueue*/) override {
        return unsupported;
    }
    void startCapture(CaptureCompletion completion) override { refuse(std::move(completion)); }
    void stopCapture(CaptureCompletion completion) override { refuse(std::move(completion)); }

private:
    void refuse(CaptureCompletion completion) {
        m_mainQueue.async([completion = std::move(completion)] { completion(unsupported); });
    }

    MainQueue& m_mainQueue;
};

} // namespace

X11ScreenCapture::X11ScreenCapture(MainQueue& mainQueue)
    : m_mainQueue(mainQueue) {}

void X11ScreenCapture::getShareableContentExcludingDesktopWindows(WindowsToList /*windows*/,
                                                                  ContentCompletion completion) {
    getShareableContent(std::move(completion));
}

void X11ScreenCapture::getShareableContent(ContentCompletion completion) {
    m_mainQueue.async([completion = std::move(completion)] { completion(unsupported); });
}

std::shared_ptr<SCStream>
X11ScreenCapture::makeStream(const SCContentFilter& /*filter*/,
                             const SCStreamConfiguration& /*configuration*/,
                             std::shared_ptr<SCStreamDelegate> /*delegate*/) {
    return std::make_shared<UnsupportedStream>(m_mainQueue);
}

ScreenCapture::ActiveDisplayList X11ScreenCapture::getActiveDisplayList(int /*maxDisplays*/) {
    return {kCGErrorCannotComplete, {}};
}

CGRect X11ScreenCapture::displayBounds(CGDirectDisplayID /*display*/) {
    return {};
}

void X11ScreenCapture::setActive(bool /*isActive*/) {}

} // namespace quillon::desktop
