#include "spotlight/ZoomStreamOutput.h"

#include "foundation/Description.h"
#include "foundation/PrintLine.h"
#include "spotlight/SpotlightManager.h"
#include "spotlight/ZoomCaptureCoordinates.h"
#include "spotlight/ZoomGeometry.h"

#include <string>
#include <utility>

namespace quillon {

ZoomStreamOutput::ZoomStreamOutput(std::weak_ptr<SpotlightManager> manager,
                                   std::function<Date()> now)
    : m_manager(std::move(manager))
    , m_now(std::move(now))
    , m_lastLogTime(m_now()) {}

void ZoomStreamOutput::streamDidOutputSampleBuffer(SCStream& /*stream*/,
                                                   const CMSampleBuffer& sampleBuffer,
                                                   SCStreamOutputType type) {
    auto imageBuffer = CMSampleBufferGetImageBuffer(sampleBuffer);
    const auto manager = m_manager.lock();
    if (type != SCStreamOutputType::screen || !imageBuffer || !manager) {
        printLine("Stream output: missing image buffer or manager");
        return;
    }
    countFrame();
    processFrame(CIImage(std::move(imageBuffer)), *manager);
}

void ZoomStreamOutput::countFrame() {
    constexpr Int interval = 5;
    increment(m_frameCount);
    const Date now = m_now();
    if (now.secondsSinceReferenceDate - m_lastLogTime.secondsSinceReferenceDate > interval) {
        // The rate is taken over the fixed interval, not over the time that went by.
        printLine("ZoomStreamOutput: receiving frames at ~" +
                  std::to_string(m_frameCount / interval) + " fps");
        m_frameCount = 0;
        m_lastLogTime = now;
    }
}

void ZoomStreamOutput::processFrame(const CIImage& ciImage, const SpotlightManager& manager) const {
    const auto& screen = manager.currentScreen();
    ZoomWindow* const window = manager.zoomWindow();
    if (!screen || !window) {
        printLine("processFrame: missing screen or window");
        return;
    }
    const CIContext context;
    const CGFloat scale = screen->backingScaleFactor;
    const CGFloat magnification = factor(manager.magnificationFactor);
    const CGPoint center =
        ZoomCaptureCoordinates::imagePoint(manager.currentCursorLocation(), screen->frame, scale);
    const CGRect captureRect = zoomCaptureRect(center, window->frame().width, magnification, scale);
    const CGRect visible = captureRect.intersection(ciImage.extent());
    if (visible.isEmpty()) {
        printLine("processFrame: capture rect " + description(captureRect) +
                  " is outside image bounds " + description(ciImage.extent()));
        return;
    }
    const CIImage enlarged =
        ciImage.imageByCroppingToRect(visible).imageByApplyingTransform(magnification);
    const auto image = context.createCGImage(enlarged, enlarged.extent());
    if (!image) {
        printLine("processFrame: failed to create CGImage");
        return;
    }
    window->updateImage({*image, enlarged.extent().size()});
}

} // namespace quillon
