#pragma once

#include "desktop/qt/X11EventFilter.h"
#include "foundation/Cancellable.h"
#include "foundation/Subject.h"

#include <QDBusServiceWatcher>
#include <QTimer>

namespace quillon::desktop {

/// Whether this desktop has a place for status items: a host of StatusNotifierItems, announced by
/// the watcher on the session bus, or a system tray that owns the X selection of that name.
///
/// Qt asks the watcher once in a process and never again, so no tray icon may be made before there
/// is a place for it. At the start of a session the watcher may be there long before the panel.
class StatusArea {
public:
    StatusArea(X11EventFilter& events, xcb_connection_t* connection);

    bool isPresent() const;

    /// Sent when a tray, a watcher or a host comes up; whether there is a place now has to be
    /// asked.
    Subject<> changed;

private:
    bool hasTray() const;
    bool hasNotifierHost() const;
    bool announcesTray(const xcb_generic_event_t& event) const;

    xcb_connection_t* m_connection;
    xcb_atom_t m_manager;
    xcb_atom_t m_traySelection;
    QDBusServiceWatcher m_watcher;
    /// Carries a signal of the bus over into a turn of its own.
    QTimer m_hostAppeared;
    Cancellable m_events;
};

} // namespace quillon::desktop
