#include "desktop/qt/StatusArea.h"

#include "desktop/x11/XcbHandles.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>

#include <cstdint>

namespace quillon::desktop {

namespace {

const QString watcherService = QStringLiteral("org.kde.StatusNotifierWatcher");

} // namespace

StatusArea::StatusArea(X11EventFilter& events, xcb_connection_t* connection)
    : m_connection(connection)
    , m_manager(atomNamed(connection, "MANAGER"))
    , m_traySelection(atomNamed(connection, "_NET_SYSTEM_TRAY_S0"))
    , m_watcher(watcherService, QDBusConnection::sessionBus(),
                QDBusServiceWatcher::WatchForRegistration)
    // A new tray announces itself to clients that hear of changes to the root window's structure,
    // as Qt does.
    , m_events(events.addHandler([this](const xcb_generic_event_t& event) {
        if (announcesTray(event)) {
            appeared.send();
        }
        return false;
    })) {
    QObject::connect(&m_watcher, &QDBusServiceWatcher::serviceRegistered, &m_watcher,
                     [this] { appeared.send(); });
}

bool StatusArea::isPresent() const {
    const auto bus = QDBusConnection::sessionBus();
    return hasTray() || (bus.isConnected() && bus.interface()->isServiceRegistered(watcherService));
}

bool StatusArea::hasTray() const {
    const auto cookie = xcb_get_selection_owner(m_connection, m_traySelection);
    const XcbOwned<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(m_connection, cookie, nullptr));
    return reply && reply->owner != noWindow;
}

bool StatusArea::announcesTray(const xcb_generic_event_t& event) const {
    constexpr std::uint8_t sentBit = 0x80;
    if ((event.response_type & ~sentBit) != XCB_CLIENT_MESSAGE) {
        return false;
    }
    const auto& message = reinterpret_cast<const xcb_client_message_event_t&>(event);
    return message.type == m_manager && message.data.data32[1] == m_traySelection;
}

} // namespace quillon::desktop
