#pragma once

#include "desktop/qt/X11EventFilter.h"
#include "foundation/Cancellable.h"
#include "foundation/Subject.h"

#include <QDBusServiceWatcher>

namespace quillon::desktop {

/// Whether this desktop has a place for status items: a StatusNotifierItem watcher on the session
/// bus, or a system tray that owns the X selection of that name.
///
/// Qt looks for the watcher once in a process and never again, so no tray icon may be made before
/// there is a place for it.
class StatusArea {
public:
    StatusArea(X11EventFilter& events, xcb_connection_t* connection);

    bool isPresent() const;

    /// Sent when a watcher or a tray comes up.
    Subject<> appeared;

private:
    bool hasTray() const;
    bool announcesTray(const xcb_generic_event_t& event) const;

    xcb_connection_t* m_connection;
    xcb_atom_t m_manager;
    xcb_atom_t m_traySelection;
    QDBusServiceWatcher m_watcher;
    Cancellable m_events;
};

} // namespace quillon::desktop
