#pragma once

#include "desktop/qt/QtMenu.h"
#include "desktop/qt/StatusArea.h"
#include "platform/StatusBar.h"

#include <QSystemTrayIcon>

#include <memory>
#include <optional>
#include <string>

namespace quillon::desktop {

/// A status item as an icon in the tray. A click with either button opens its menu.
///
/// It shows as soon as the desktop has a place for it. Trays give every item the same room, so the
/// length and the size of the picture are theirs to choose.
class QtStatusItem : public StatusItem, private StatusBarButton {
public:
    /// Both outlive the item.
    QtStatusItem(StatusArea& area, Application& application);

    StatusBarButton* button() override { return this; }
    void setMenu(const Menu& menu) override;

private:
    void setImage(const Image& image) override;
    void setAction(std::string selector) override { m_action = std::move(selector); }

    void show();
    void clicked(QSystemTrayIcon::ActivationReason reason);

    StatusArea& m_area;
    Application& m_application;
    QIcon m_icon;
    std::string m_action;
    std::unique_ptr<QtMenu> m_menu;
    std::unique_ptr<QSystemTrayIcon> m_trayIcon;
    Cancellable m_areaChanged;
};

} // namespace quillon::desktop
