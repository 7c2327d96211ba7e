#pragma once

#include "spotlight/SpotlightTest.h"
#include "spotlight/ZoomStreamOutput.h"
#include "spotlight/ZoomView.h"

#include <functional>
#include <sstream>
#include <string>
#include <vector>

namespace quillon::test {

using Lines = std::vector<std::string>;

inline const CaptureError kRefusal{"SCStreamErrorDomain", "The user declined"};
inline const CaptureError kMishap{"SomeOtherDomain", "Something broke"};

/// The manager before a capture whose steps wait for the test. The screen's display has number 1.
struct ZoomTest : SpotlightTest {
    ZoomTest() { host.screens.all.front().deviceDescription["NSScreenNumber"] = std::int64_t{1}; }

    FakeScreenCapture& capture() { return host.screenCapture; }

    /// What is printed while `steps` run, and in the turns that follow.
    Lines printedBy(const std::function<void()>& steps) {
        testing::internal::CaptureStdout();
        steps();
        host.mainQueue.run();
        std::istringstream output(testing::internal::GetCapturedStdout());
        Lines lines;
        for (std::string line; std::getline(output, line);) {
            lines.push_back(line);
        }
        return lines;
    }

    void setEnabled(bool enabled) {
        manager().isZoomEnabled = enabled;
        host.mainQueue.run();
    }
    // Each completes the step that has waited longest.
    void answerProbe(const ScreenCapture::ContentOutcome& outcome = SCShareableContent{}) {
        capture().probes.complete(outcome);
        host.mainQueue.run();
    }
    void answerLookup() { answerLookup(capture().content); }
    void answerLookup(const ScreenCapture::ContentOutcome& outcome) {
        capture().lookups.complete(outcome);
        host.mainQueue.run();
    }
    void answerStart(const CaptureOutcome& outcome = std::nullopt) {
        capture().starts.complete(outcome);
        host.mainQueue.run();
    }
    void answerStop(const CaptureOutcome& outcome = std::nullopt) {
        capture().stops.complete(outcome);
        host.mainQueue.run();
    }
    /// Switches on and lets every step succeed.
    void run() {
        setEnabled(true);
        answerProbe();
        answerLookup();
        answerStart();
    }

    /// No stream runs, none is kept, and no step waits.
    bool isAtRest() {
        return capture().runningStreams() == 0 && !manager().screenCaptureStream() &&
               capture().probes.count() == 0 && capture().lookups.count() == 0 &&
               capture().starts.count() == 0 && capture().stops.count() == 0;
    }

    const ZoomView::Value& lens() {
        auto& root = *manager().zoomWindow()->contentView()->rootView;
        return dynamic_cast<ZoomView&>(root).value();
    }
    /// The size of the picture in the lens, in pixels; zero while there is none.
    CGSize pictureSize() { return lens().image ? lens().image->size : CGSize::zero; }

    std::shared_ptr<FakeImageBuffer> frame = std::make_shared<FakeImageBuffer>(CGSize{1920, 1080});
};

} // namespace quillon::test
