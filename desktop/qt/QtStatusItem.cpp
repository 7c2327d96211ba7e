#include "desktop/qt/QtStatusItem.h"

#include "desktop/qt/QtImages.h"
#include "platform/Application.h"

#include <QCursor>

namespace quillon::desktop {

QtStatusItem::QtStatusItem(StatusArea& area, Application& application)
    : m_area(area)
    , m_application(application)
    , m_areaChanged(area.changed.sink([this] { show(); })) {}

void QtStatusItem::setMenu(const Menu& menu) {
    m_menu = std::make_unique<QtMenu>(menu, m_application);
    if (m_trayIcon) {
        m_trayIcon->setContextMenu(m_menu.get());
    } else {
        show();
    }
}

void QtStatusItem::setImage(const Image& image) {
    m_icon = QtImages::icon(image, SymbolTint::panel);
    if (m_trayIcon) {
        m_trayIcon->setIcon(m_icon);
    }
}

void QtStatusItem::show() {
    if (m_trayIcon || !m_area.isPresent()) {
        return;
    }
    m_trayIcon = std::make_unique<QSystemTrayIcon>(m_icon);
    m_trayIcon->setToolTip(QStringLiteral("Quillon Mark"));
    m_trayIcon->setContextMenu(m_menu.get());
    QObject::connect(m_trayIcon.get(), &QSystemTrayIcon::activated, m_trayIcon.get(),
                     [this](auto reason) { clicked(reason); });
    m_trayIcon->show();
}

void QtStatusItem::clicked(QSystemTrayIcon::ActivationReason reason) {
    // The other button's menu is the tray's own business: it opens the same menu by itself.
    if (reason != QSystemTrayIcon::Trigger) {
        return;
    }
    if (m_menu) {
        m_menu->popup(QCursor::pos());
    } else {
        m_application.sendAction(m_action);
    }
}

} // namespace quillon::desktop
