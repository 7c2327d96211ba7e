#include "desktop/x11/CaptureSession.h"

#include "desktop/x11/CaptureErrors.h"
#include "desktop/x11/DisplayFrame.h"
#include "desktop/x11/XRectangles.h"
#include "desktop/x11/XcbHandles.h"

#include <algorithm>
#include <utility>

namespace quillon::desktop {

namespace {

/// Between two frames where each one is costly, or taken on the chance that something has changed.
constexpr double slowInterval = 1.0 / 15;

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
    , m_isOwnPicture(surroundings.isOwnPicture)
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

void CaptureSession::later(double seconds, std::function<void(CaptureSession&)> step) {
    m_mainQueue.get().asyncAfter(seconds, [weak = weak_from_this(), step = std::move(step)] {
        if (const auto session = weak.lock()) {
            step(*session);
        }
    });
}

void CaptureSession::handleEvents() {
    while (const XcbOwned<xcb_generic_event_t> event{xcb_poll_for_event(m_connection.get())}) {
        if (const auto changed = m_damage ? m_damage->noticeIn(*event) : std::nullopt) {
            if (overlap(*changed, m_display.frame)) {
                bookFrame(m_isOwnPicture(*changed) ? FrameHaste::later : FrameHaste::now);
            }
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

void CaptureSession::bookFrame(FrameHaste haste) {
    const double now = m_mainQueue.get().now();
    const double due = m_pacer.due(now, haste);
    if (m_due && *m_due <= due) {
        return;
    }
    m_due = due;
    later(due - now,
          [booking = ++m_booking](CaptureSession& session) { session.deliverBooked(booking); });
}

void CaptureSession::deliverBooked(std::uint64_t booking) {
    if (booking == m_booking && !m_reasonToEnd) {
        deliverFrame();
    }
}

void CaptureSession::deliverFrame() {
    m_due.reset();
    const bool hasChanged = takeDamage();
    const bool isFrame = hasChanged || std::exchange(m_isFrameOwed, false);
    if (isFrame) {
        m_isFrameOwed = false;
        m_pacer.spend(m_mainQueue.get().now());
    }
    // An answer to the question where the damage lay has brought along what came before it.
    handleEvents();
    if (!m_damage) {
        bookFrame();
    }
    if (isFrame) {
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
    return m_damage->takeWithin(m_display.frame);
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
