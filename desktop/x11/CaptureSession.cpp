#include "desktop/x11/CaptureSession.h"

#include "desktop/x11/CaptureErrors.h"
#include "desktop/x11/DisplayFrame.h"
#include "desktop/x11/XcbHandles.h"

#include <algorithm>
#include <utility>

namespace quillon::desktop {

namespace {

/// Between two frames where each one is costly, or taken on the chance that something has changed.
constexpr double slowInterval = 1.0 / 15;

bool equal(const xcb_rectangle_t& a, const xcb_rectangle_t& b) {
    return a.x == b.x && a.y == b.y && a.width == b.width && a.height == b.height;
}

} // namespace

CaptureSession::Opened CaptureSession::open(const CaptureSurroundings& surroundings,
                                            CGDirectDisplayID display, double minimumFrameInterval,
                                            FrameHandler frame, EndHandler end) {
    XcbConnection connection = connectTo(surroundings.displayName);
    if (!connection) {
        return noAnswerFrom(surroundings.displayName);
    }
    const auto layout = rootPixelLayout(*xcb_get_setup(connection.get()));
    if (!layout) {
        return captureError("The X server " + surroundings.displayName +
                            " has no pixels with colours of their own.");
    }
    const std::shared_ptr<CaptureSession> session(
        new CaptureSession(surroundings, std::move(connection), *layout, minimumFrameInterval));
    if (!session->findDisplay(display)) {
        return captureError("There is no display with the number " + std::to_string(display) + ".");
    }
    session->m_frame = std::move(frame);
    session->m_end = std::move(end);
    session->begin(surroundings.watch);
    return session;
}

CaptureSession::CaptureSession(const CaptureSurroundings& surroundings, XcbConnection connection,
                               const PixelLayout& layout, double minimumFrameInterval)
    : m_mainQueue(surroundings.mainQueue)
    , m_displayName(surroundings.displayName)
    , m_connection(std::move(connection))
    , m_root(rootWindow(m_connection.get()))
    , m_pixels(m_connection.get(), m_root, layout)
    , m_damage(ScreenDamage::isOffered(m_connection.get())
                   ? std::optional<ScreenDamage>(std::in_place, m_connection.get(), m_root)
                   : std::nullopt)
    , m_pacer(m_damage && m_pixels.usesSharedMemory()
                  ? minimumFrameInterval
                  : std::max(minimumFrameInterval, slowInterval)) {}

std::shared_ptr<const PixelRows> CaptureSession::read(const xcb_rectangle_t& rect) {
    auto rows = m_pixels.read(rect);
    // Events that came before the answer are in memory now, and nothing will wake the loop for
    // them.
    handleEvents();
    return rows;
}

bool CaptureSession::findDisplay(CGDirectDisplayID display) {
    const auto monitors = activeMonitors(m_connection.get(), m_root);
    const auto found = std::ranges::find(monitors, display, &Monitor::number);
    if (found == monitors.end()) {
        return false;
    }
    m_display = *found;
    const auto whole = rootFrame(m_connection.get(), m_root);
    m_isWholeRoot = whole && equal(*whole, m_display.frame);
    return true;
}

void CaptureSession::begin(const FileWatch& watch) {
    watchMonitors(m_connection.get(), m_root);
    // The server begins by telling that the whole screen is damaged, and the first frame needs no
    // such notice. With the answer to this question the notice is here.
    rootFrame(m_connection.get(), m_root);
    while (
        const XcbOwned<xcb_generic_event_t> event{xcb_poll_for_queued_event(m_connection.get())}) {
    }
    bookFrame();
    m_watch = watch(xcb_get_file_descriptor(m_connection.get()), [this] { handleEvents(); });
}

void CaptureSession::later(double seconds, void (CaptureSession::*step)()) {
    m_mainQueue.get().asyncAfter(seconds, [weak = weak_from_this(), step] {
        if (const auto session = weak.lock()) {
            (session.get()->*step)();
        }
    });
}

void CaptureSession::handleEvents() {
    while (const XcbOwned<xcb_generic_event_t> event{xcb_poll_for_event(m_connection.get())}) {
        if (m_damage && m_damage->isNotice(*event)) {
            bookFrame();
        } else if (tellsOfMonitors(m_connection.get(), *event) &&
                   !std::exchange(m_isCheckBooked, true)) {
            later(0, &CaptureSession::checkDisplay);
        }
    }
    if (xcb_connection_has_error(m_connection.get()) != 0) {
        // A broken connection can be read from without end.
        m_watch.cancel();
        endBecause(noAnswerFrom(m_displayName));
    }
}

void CaptureSession::bookFrame() {
    if (!std::exchange(m_isFrameBooked, true)) {
        later(m_pacer.book(m_mainQueue.get().now()), &CaptureSession::deliverFrame);
    }
}

void CaptureSession::deliverFrame() {
    m_isFrameBooked = false;
    if (m_reasonToEnd) {
        return;
    }
    const bool hasChanged = takeDamage();
    if (!m_damage) {
        bookFrame();
    }
    if (hasChanged || std::exchange(m_isFrameOwed, false)) {
        m_isFrameOwed = false;
        m_frame(std::make_shared<DisplayFrame>(weak_from_this(), m_display.frame));
    }
}

bool CaptureSession::takeDamage() {
    if (!m_damage) {
        return true;
    }
    if (m_isWholeRoot) {
        m_damage->take();
        return true;
    }
    const bool hasChanged = m_damage->takeWithin(m_display.frame);
    handleEvents();
    return hasChanged;
}

void CaptureSession::checkDisplay() {
    m_isCheckBooked = false;
    const Monitor before = m_display;
    const bool isThere = findDisplay(before.number);
    handleEvents();
    if (!isThere) {
        endBecause(captureError("The display " + before.name + " is not connected any more."));
    } else if (!equal(before.frame, m_display.frame)) {
        m_isFrameOwed = true;
        bookFrame();
    }
}

void CaptureSession::endBecause(CaptureError reason) {
    if (!m_reasonToEnd) {
        m_reasonToEnd = std::move(reason);
        later(0, &CaptureSession::end);
    }
}

void CaptureSession::end() {
    m_end(*m_reasonToEnd);
}

} // namespace quillon::desktop
