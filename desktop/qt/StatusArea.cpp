#include "desktop/qt/StatusArea.h"

#include "desktop/x11/XcbHandles.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusVariant>

namespace quillon::desktop {

namespace {

const QString watcherName = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString watcherPath = QStringLiteral("/StatusNotifierWatcher");

} // namespace

StatusArea::StatusArea(X11EventFilter& events, xcb_connection_t* connection)
    : m_connection(connection)
    , m_manager(atomNamed(connection, "MANAGER"))
    , m_traySelection(atomNamed(connection, "_NET_SYSTEM_TRAY_S0"))
    , m_watcher(watcherName, QDBusConnection::sessionBus(),
                QDBusServiceWatcher::WatchForRegistration)
    // A new tray announces itself to clients that hear of changes to the root window's structure,
    // as Qt does.
    , m_events(events.addHandler([this](const xcb_generic_event_t& event) {
        if (announcesTray(event)) {
            changed.send();
        }
        return false;
    })) {
    QObject::connect(&m_watcher, &QDBusServiceWatcher::serviceRegistered, &m_watcher,
                     [this] { changed.send(); });

    m_hostAppeared.setSingleShot(true);
    QObject::connect(&m_hostAppeared, &QTimer::timeout, &m_hostAppeared,
                     [this] { changed.send(); });
    QDBusConnection::sessionBus().connect(watcherName, watcherPath, watcherName,
                                          QStringLiteral("StatusNotifierHostRegistered"),
                                          &m_hostAppeared, SLOT(start()));
}

bool StatusArea::isPresent() const {
    return hasTray() || hasNotifierHost();
}

bool StatusArea::hasTray() const {
    const auto cookie = xcb_get_selection_owner(m_connection, m_traySelection);
    const XcbOwned<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(m_connection, cookie, nullptr));
    return reply && reply->owner != noWindow;
}

bool StatusArea::hasNotifierHost() const {
    const auto bus = QDBusConnection::sessionBus();
    // To ask a service that is not there could start it.
    if (!bus.isConnected() || !bus.interface()->isServiceRegistered(watcherName)) {
        return false;
    }
    auto question = QDBusMessage::createMethodCall(
        watcherName, watcherPath, QStringLiteral("org.freedesktop.DBus.Properties"),
        QStringLiteral("Get"));
    question << watcherName << QStringLiteral("IsStatusNotifierHostRegistered");
    constexpr int patienceInMilliseconds = 1000;
    const auto answer = bus.call(question, QDBus::Block, patienceInMilliseconds);
    const auto value = answer.arguments().value(0).value<QDBusVariant>();
    return answer.type() == QDBusMessage::ReplyMessage && value.variant().toBool();
}

bool StatusArea::announcesTray(const xcb_generic_event_t& event) const {
    if (eventType(event) != XCB_CLIENT_MESSAGE) {
        return false;
    }
    const auto& message = eventAs<xcb_client_message_event_t>(event);
    return message.type == m_manager && message.data.data32[1] == m_traySelection;
}

} // namespace quillon::desktop
