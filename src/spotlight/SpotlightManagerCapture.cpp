// The capture behind the lens: one chain of steps from the switch to a running stream.
//
// A step that waits hands the rest of its work to the capture or to the queue, wrapped in
// `m_lifetime.guard`: each `guard` is a suspension, and what is wanted is looked at again first
// thing after it.
#include "foundation/Description.h"
#include "foundation/PrintLine.h"
#include "model/AppSettings.h"
#include "platform/Host.h"
#include "spotlight/SpotlightManager.h"
#include "spotlight/StreamDelegate.h"
#include "spotlight/ZoomStreamOutput.h"

#include <algorithm>
#include <string>
#include <utility>
#include <variant>

namespace quillon {

namespace {

constexpr std::string_view kPrivacySettings =
    "x-apple.systempreferences:com.apple.preference.security?Privacy_ScreenCapture";

ScreenCapture& capture() {
    return Host::current().screenCapture();
}

SCStreamConfiguration streamConfiguration(const NSScreen& screen) {
    SCStreamConfiguration configuration;
    configuration.setWidth(integerPart(screen.frame.width * screen.backingScaleFactor));
    configuration.setHeight(integerPart(screen.frame.height * screen.backingScaleFactor));
    configuration.setMinimumFrameInterval({1, 60});
    configuration.setShowsCursor(false);
    configuration.setQueueDepth(5);
    configuration.setPixelFormat(kCVPixelFormatType_32BGRA);
    configuration.setScalesToFit(false);
    return configuration;
}

} // namespace

bool SpotlightManager::isWanted(Int generation) const {
    return isZoomEnabled && generation == m_zoomGeneration;
}

// 1. The lens comes up, and whether capturing is allowed is looked into.

void SpotlightManager::startZoom(Int generation) {
    if (!m_zoomWindow) {
        const CGFloat size = AppSettings::shared().zoomWindowSize;
        setZoomWindow(
            std::make_unique<ZoomWindow>(CGRect{0, 0, size, size}, factor(magnificationFactor)));
    }
    m_zoomWindow->orderFrontRegardless();
    m_currentScreen = Host::current().screens().mainScreen();
    if (!m_currentScreen) {
        return;
    }
    checkScreenRecordingPermission(
        m_lifetime.guard([this, generation, screen = *m_currentScreen](bool isGranted) {
            if (!isWanted(generation)) {
                return;
            }
            if (isGranted) {
                setupScreenCapture(screen, generation);
            } else {
                printLine("Screen recording permission not granted");
                requestScreenRecordingPermission();
            }
        }));
    startCursorTracking();
}

void SpotlightManager::checkScreenRecordingPermission(std::function<void(bool)> completion) {
    const auto answered =
        [this, completion = std::move(completion)](const ScreenCapture::ContentOutcome& outcome) {
            const auto* const error = std::get_if<CaptureError>(&outcome);
            if (error) {
                printLine("Screen recording permission check failed: " + error->text);
            }
            m_isScreenCapturePermissionGranted = !error;
            completion(!error);
        };
    Host::current().mainQueue().async(m_lifetime.guard([this, answered] {
        capture().getShareableContentExcludingDesktopWindows(
            {.excludingDesktopWindows = false, .onScreenWindowsOnly = true},
            m_lifetime.guard(answered));
    }));
}

void SpotlightManager::requestScreenRecordingPermission() {
    // Nothing waits for the user's answer: the next switching on tries again.
    capture().sharedPicker().setActive(true);
    Host::current().workspace().openURL(std::string(kPrivacySettings));
}

// 2. The display of the lens's screen is looked up.

void SpotlightManager::setupScreenCapture(const NSScreen& screen, Int generation) {
    Host::current().mainQueue().async(m_lifetime.guard([this, screen, generation] {
        printLine("Setting up screen capture for screen: " + screen.localizedName);
        capture().getShareableContent(m_lifetime.guard(
            [this, screen, generation](const ScreenCapture::ContentOutcome& outcome) {
                if (const auto* error = std::get_if<CaptureError>(&outcome)) {
                    printLine("Failed to start screen capture: " + error->text);
                    if (isWanted(generation)) {
                        handleScreenCaptureError(*error);
                    }
                } else if (isWanted(generation)) {
                    chooseDisplay(std::get<SCShareableContent>(outcome), screen, generation);
                }
            }));
    }));
}

void SpotlightManager::chooseDisplay(const SCShareableContent& content, const NSScreen& screen,
                                     Int generation) {
    printLine("Available displays: " + std::to_string(content.displays.size()));
    for (const SCDisplay& display : content.displays) {
        printLine("Display: " + std::to_string(display.displayID) + ", width: " +
                  std::to_string(display.width) + ", height: " + std::to_string(display.height));
    }
    const auto displayID = getDisplayID(screen);
    if (!displayID) {
        printLine("Could not find display ID for screen: " + screen.localizedName);
        return;
    }
    printLine("Using display ID: " + std::to_string(*displayID));
    const auto display = std::ranges::find(content.displays, *displayID, &SCDisplay::displayID);
    if (display != content.displays.end()) {
        setupStream(*display, screen, generation);
        return;
    }
    printLine("Could not find display in shareable content for ID: " + std::to_string(*displayID));
    if (!content.displays.empty()) {
        const SCDisplay& first = content.displays.front();
        printLine("Falling back to first display: " + std::to_string(first.displayID));
        setupStream(first, screen, generation);
    }
}

std::optional<CGDirectDisplayID> SpotlightManager::getDisplayID(const NSScreen& screen) const {
    const auto number = screen.deviceDescription.find("NSScreenNumber");
    if (number != screen.deviceDescription.end()) {
        if (const auto displayID = toUInt32(number->second)) {
            return displayID;
        }
    }
    constexpr int maxDisplays = 32;
    const auto active = capture().getActiveDisplayList(maxDisplays);
    if (active.error != kCGErrorSuccess) {
        printLine("Failed to get active display list: " + std::to_string(active.error));
        return std::nullopt;
    }
    // The bounds count from the top and the frame from the bottom. They are compared as they are,
    // so that as a rule only the primary screen finds itself.
    const auto found = std::ranges::find_if(active.displays, [&](CGDirectDisplayID display) {
        return capture().displayBounds(display) == screen.frame;
    });
    return found == active.displays.end() ? std::nullopt : std::optional(*found);
}

// 3. A stream of that display is made and started.

void SpotlightManager::setupStream(const SCDisplay& display, const NSScreen& screen,
                                   Int generation) {
    if (!isWanted(generation)) {
        return;
    }
    const SCContentFilter filter{display, {}};
    const SCStreamConfiguration configuration = streamConfiguration(screen);
    printLine("Stream configuration: " + std::to_string(configuration.width()) + "x" +
              std::to_string(configuration.height()) +
              ", scale: " + description(screen.backingScaleFactor));
    const auto stream = capture().makeStream(
        filter, configuration, std::make_shared<StreamDelegate>(shared_from_this(), generation));
    m_zoomStreamOutput = std::make_shared<ZoomStreamOutput>(weak_from_this());
    if (const auto error = stream->addStreamOutput(m_zoomStreamOutput, SCStreamOutputType::screen,
                                                   Host::current().mainQueue())) {
        streamFailed(*error, generation);
        return;
    }
    stream->startCapture(
        m_lifetime.guard([this, stream, generation](const CaptureOutcome& outcome) {
            if (outcome) {
                streamFailed(*outcome, generation);
            } else {
                streamStarted(stream, generation);
            }
        }));
}

void SpotlightManager::streamStarted(const std::shared_ptr<SCStream>& stream, Int generation) {
    if (isWanted(generation)) {
        m_screenCaptureStream = stream;
        printLine("Screen capture started successfully");
        return;
    }
    // Nobody else knows of this stream: it was not kept while it was starting.
    stream->stopCapture(m_lifetime.guard([this, stream, generation](const CaptureOutcome& outcome) {
        if (outcome) {
            streamFailed(*outcome, generation);
        }
    }));
}

void SpotlightManager::streamFailed(const CaptureError& error, Int generation) {
    printLine("Failed to add stream output or start capture: " + error.text);
    if (generation == m_zoomGeneration) {
        m_zoomStreamOutput = nullptr;
    }
    if (isWanted(generation)) {
        handleScreenCaptureError(error);
    }
}

void SpotlightManager::handleScreenCaptureError(const CaptureError& error) {
    if (error.domain == "SCStreamErrorDomain" ||
        error.domain.find("ScreenCapture") != std::string::npos) {
        printLine("Screen capture error (likely permission): " + error.text);
        m_isScreenCapturePermissionGranted = false;
        requestScreenRecordingPermission();
    }
}

// 4. The stream ends: of itself, or because the lens was switched off.

void SpotlightManager::streamStoppedBySystem(Int generation) {
    if (!isWanted(generation)) {
        return;
    }
    m_screenCaptureStream = nullptr;
    m_zoomStreamOutput = nullptr;
    m_isScreenCapturePermissionGranted = false;
    printLine("Attempting to restart screen capture...");
    if (m_currentScreen) {
        setupScreenCapture(*m_currentScreen, generation);
    }
}

void SpotlightManager::stopScreenCapture() {
    const auto stream = std::exchange(m_screenCaptureStream, nullptr);
    m_zoomStreamOutput = nullptr;
    if (!stream) {
        return;
    }
    // The work holds the stream until the stop is over, whatever becomes of the manager.
    Host::current().mainQueue().async([stream] {
        stream->stopCapture([stream](const CaptureOutcome& outcome) {
            printLine(outcome ? "Error stopping screen capture: " + outcome->text
                              : "Screen capture stopped");
        });
    });
}

} // namespace quillon
