#pragma once

#include "desktop/qt/MonitorList.h"
#include "desktop/qt/OwnPresses.h"
#include "desktop/x11/RawPointerEvents.h"
#include "platform/EventMonitors.h"

#include <QBasicTimer>
#include <QObject>
#include <QPoint>
#include <QSocketNotifier>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace quillon::desktop {

/// The pointer's monitors: global ones on the raw events of the X server, local ones on the presses
/// that the toolkit delivers. Each of the two sources stands only while a monitor needs it.
///
/// The way of a burst of raw events:
/// 1. the connection of the raw events becomes readable, and all that waits there is taken at once;
/// 2. the server is asked where the pointer is now, and which window lies under it;
/// 3. unless that window is the program's own, the monitors hear of it; a motion with a button held
///    is dropped;
/// 4. the connection rests for a moment. What comes in the meantime waits, so that a mouse that
///    reports a thousand times a second is followed as often as a display can show.
class QtEventMonitors : public QObject, public EventMonitors {
public:
    /// What the rest of the host knows of the pointer.
    struct Surroundings {
        /// Turns a place in device pixels, from the top left, into global coordinates.
        std::function<CGPoint(QPoint)> toGlobal;
        /// Whether all events go to the program just now, wherever the pointer is.
        std::function<bool()> holdsPointer;
    };

    /// The connection is the one on which the program's windows are made.
    QtEventMonitors(xcb_connection_t* connection, std::string display, Surroundings surroundings);

    std::optional<EventMonitorToken>
    addGlobalMonitorForEventsMatchingMask(std::uint64_t mask, GlobalHandler handler) override;
    std::optional<EventMonitorToken>
    addLocalMonitorForEventsMatchingMask(std::uint64_t mask, LocalHandler handler) override;
    void removeMonitor(EventMonitorToken token) override;
    CGPoint mouseLocation() const override;

protected:
    bool event(QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    bool listen();
    void readRawEvents();
    void reportToGlobal(const RawPointerEvent& raw);

    xcb_connection_t* m_connection;
    std::string m_display;
    Surroundings m_surroundings;
    ClientIds m_ownIds;

    MonitorList<GlobalHandler> m_globalMonitors;
    MonitorList<LocalHandler> m_localMonitors;
    std::uint64_t m_lastToken = 0;

    std::unique_ptr<RawPointerEvents> m_rawEvents;
    std::unique_ptr<QSocketNotifier> m_notifier;
    std::unique_ptr<OwnPresses> m_ownPresses;
    QBasicTimer m_rest;
    /// Where the pointer is, while that is being reported.
    std::optional<CGPoint> m_reportedPlace;
};

} // namespace quillon::desktop
