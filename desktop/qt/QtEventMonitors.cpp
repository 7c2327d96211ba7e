#include "desktop/qt/QtEventMonitors.h"

#include <QCoreApplication>
#include <QEvent>

#include <utility>

namespace quillon::desktop {

namespace {

NSEventType typeOf(const RawPointerEvent& raw) {
    if (raw.kind == RawPointerEvent::Kind::motion) {
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
    return m_reportedPlace ? *m_reportedPlace : globalPlace(pointerState(m_connection));
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
        m_notifier.reset();
        m_rawEvents.reset();
        m_waiting.clear();
    }
    if (m_localMonitors.isEmpty()) {
        m_ownPresses.reset();
    }
    readRawEvents();
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
    m_rawEvents->take(m_waiting);
    for (const RawPointerEvent& raw : std::exchange(m_waiting, {})) {
        reportToGlobal(raw);
    }
    // An answer of the server brings along what came before it, of which the descriptor then tells
    // nothing.
    m_rawEvents->take(m_waiting);
    if (!m_waiting.empty()) {
        QCoreApplication::postEvent(this, new QEvent(QEvent::User));
    }
}

void QtEventMonitors::reportToGlobal(const RawPointerEvent& raw) {
    const PointerState pointer = m_rawEvents->pointer();
    const bool isDrag = raw.kind == RawPointerEvent::Kind::motion && pointer.isButtonHeld;
    if (isDrag || m_surroundings.holdsPointer() || m_rawEvents->goesTo(m_ownIds, pointer)) {
        return;
    }
    m_reportedPlace = globalPlace(pointer);
    m_globalMonitors.report({typeOf(raw)});
    m_reportedPlace.reset();
}

} // namespace quillon::desktop
