#include "desktop/qt/QtEventMonitors.h"

#include "desktop/x11/XcbHandles.h"

#include <QCoreApplication>
#include <QEvent>
#include <QTimerEvent>

#include <chrono>
#include <utility>
#include <vector>

namespace quillon::desktop {

namespace {

/// Quicker than any display shows its pictures.
constexpr std::chrono::milliseconds kRest{4};

NSEventType typeOf(const RawPointerEvent& raw) {
    if (raw.kind != RawPointerEvent::Kind::press) {
        return NSEventType::mouseMoved;
    }
    switch (raw.button) {
    case XCB_BUTTON_INDEX_1:
        return NSEventType::leftMouseDown;
    case XCB_BUTTON_INDEX_3:
        return NSEventType::rightMouseDown;
    default:
        return NSEventType::otherMouseDown;
    }
}

} // namespace

QtEventMonitors::QtEventMonitors(xcb_connection_t* connection, std::string display,
                                 Surroundings surroundings)
    : m_connection(connection)
    , m_display(std::move(display))
    , m_surroundings(std::move(surroundings))
    , m_ownIds(connection) {}

std::optional<EventMonitorToken>
QtEventMonitors::addGlobalMonitorForEventsMatchingMask(std::uint64_t mask, GlobalHandler handler) {
    if (!m_rawEvents && !listen()) {
        return std::nullopt;
    }
    const EventMonitorToken token{++m_lastToken};
    m_globalMonitors.add(token, mask, std::move(handler));
    return token;
}

std::optional<EventMonitorToken>
QtEventMonitors::addLocalMonitorForEventsMatchingMask(std::uint64_t mask, LocalHandler handler) {
    if (!m_ownPresses) {
        m_ownPresses = std::make_unique<OwnPresses>(
            [this](const NSEvent& event) { m_localMonitors.report(event); });
    }
    const EventMonitorToken token{++m_lastToken};
    m_localMonitors.add(token, mask, std::move(handler));
    return token;
}

void QtEventMonitors::removeMonitor(EventMonitorToken token) {
    m_globalMonitors.remove(token);
    m_localMonitors.remove(token);
    // A source may be the one that is reporting just now; it goes once it has ended.
    QCoreApplication::postEvent(this, new QEvent(QEvent::User));
}

CGPoint QtEventMonitors::mouseLocation() const {
    if (m_reportedPlace) {
        return *m_reportedPlace;
    }
    const XcbOwned<xcb_query_pointer_reply_t> reply(xcb_query_pointer_reply(
        m_connection, xcb_query_pointer(m_connection, rootWindow(m_connection)), nullptr));
    return reply ? m_surroundings.toGlobal(QPoint(reply->root_x, reply->root_y)) : CGPoint();
}

bool QtEventMonitors::listen() {
    m_rawEvents = RawPointerEvents::listen(m_display);
    if (!m_rawEvents) {
        return false;
    }
    m_notifier =
        std::make_unique<QSocketNotifier>(m_rawEvents->fileDescriptor(), QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, [this] { readRawEvents(); });
    return true;
}

bool QtEventMonitors::event(QEvent* event) {
    if (event->type() != QEvent::User) {
        return QObject::event(event);
    }
    if (m_globalMonitors.isEmpty()) {
        m_rest.stop();
        m_notifier.reset();
        m_rawEvents.reset();
    }
    if (m_localMonitors.isEmpty()) {
        m_ownPresses.reset();
    }
    return true;
}

void QtEventMonitors::readRawEvents() {
    if (!m_rawEvents) {
        return;
    }
    if (!m_rawEvents->isAlive()) {
        m_notifier.reset();
        return;
    }
    std::vector<RawPointerEvent> events;
    m_rawEvents->take(events);
    if (events.empty()) {
        return;
    }
    for (const RawPointerEvent& raw : events) {
        reportToGlobal(raw);
    }
    m_notifier->setEnabled(false);
    m_rest.start(kRest.count(), Qt::PreciseTimer, this);
}

void QtEventMonitors::timerEvent(QTimerEvent* event) {
    if (event->timerId() != m_rest.timerId()) {
        return;
    }
    m_rest.stop();
    if (m_notifier) {
        m_notifier->setEnabled(true);
        // An answer of the server has brought along what came before it, of which the descriptor
        // tells nothing.
        readRawEvents();
    }
}

void QtEventMonitors::reportToGlobal(const RawPointerEvent& raw) {
    const PointerState pointer = m_rawEvents->pointer();
    const bool isDrag = raw.kind == RawPointerEvent::Kind::drag ||
                        (raw.kind == RawPointerEvent::Kind::motion && pointer.isButtonHeld);
    if (isDrag || m_surroundings.holdsPointer() || m_rawEvents->wasOver(m_ownIds)) {
        return;
    }
    m_reportedPlace = m_surroundings.toGlobal(QPoint(pointer.x, pointer.y));
    m_globalMonitors.report({typeOf(raw)});
    m_reportedPlace.reset();
}

} // namespace quillon::desktop
