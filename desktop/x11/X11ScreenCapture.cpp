#include "desktop/x11/X11ScreenCapture.h"

#include "desktop/x11/CaptureErrors.h"
#include "desktop/x11/X11CaptureStream.h"
#include "desktop/x11/XcbHandles.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace quillon::desktop {

X11ScreenCapture::X11ScreenCapture(CaptureSurroundings surroundings, PointScale pointScale)
    : m_surroundings(std::move(surroundings))
    , m_pointScale(std::move(pointScale)) {}

void X11ScreenCapture::getShareableContentExcludingDesktopWindows(WindowsToList /*windows*/,
                                                                  ContentCompletion completion) {
    getShareableContent(std::move(completion));
}

void X11ScreenCapture::getShareableContent(ContentCompletion completion) {
    m_surroundings.mainQueue.get().async(
        [outcome = content(), completion = std::move(completion)] { completion(outcome); });
}

std::shared_ptr<SCStream> X11ScreenCapture::makeStream(const SCContentFilter& filter,
                                                       const SCStreamConfiguration& configuration,
                                                       std::shared_ptr<SCStreamDelegate> delegate) {
    return std::make_shared<X11CaptureStream>(m_surroundings, filter, configuration,
                                              std::move(delegate));
}

ScreenCapture::ActiveDisplayList X11ScreenCapture::getActiveDisplayList(int maxDisplays) {
    const auto all = monitors();
    if (all.empty()) {
        return {kCGErrorCannotComplete, {}};
    }
    ActiveDisplayList list;
    for (const Monitor& monitor : all) {
        if (std::ssize(list.displays) < maxDisplays) {
            list.displays.push_back(monitor.number);
        }
    }
    return list;
}

CGRect X11ScreenCapture::displayBounds(CGDirectDisplayID display) {
    const auto all = monitors();
    const auto found = std::ranges::find(all, display, &Monitor::number);
    return found == all.end() ? CGRect{} : boundsOf(*found, all.front());
}

std::vector<Monitor> X11ScreenCapture::monitors() const {
    const XcbConnection connection = connectTo(m_surroundings.displayName);
    return connection ? activeMonitors(connection.get(), rootWindow(connection.get()))
                      : std::vector<Monitor>();
}

ScreenCapture::ContentOutcome X11ScreenCapture::content() const {
    const XcbConnection connection = connectTo(m_surroundings.displayName);
    if (!connection) {
        return noAnswerFrom(m_surroundings.displayName);
    }
    SCShareableContent content;
    const auto all = activeMonitors(connection.get(), rootWindow(connection.get()));
    for (const Monitor& monitor : all) {
        const CGRect bounds = boundsOf(monitor, all.front());
        content.displays.push_back(
            {monitor.number, static_cast<int>(bounds.width), static_cast<int>(bounds.height)});
    }
    return content;
}

CGRect X11ScreenCapture::boundsOf(const Monitor& monitor, const Monitor& primary) const {
    const CGFloat scale = m_pointScale();
    const auto points = [scale](int pixels) { return std::round(pixels / scale); };
    return {points(monitor.frame.x - primary.frame.x), points(monitor.frame.y - primary.frame.y),
            points(monitor.frame.width), points(monitor.frame.height)};
}

} // namespace quillon::desktop
