#pragma once

#include "platform/Menu.h"

#include <QMenu>

namespace quillon {
class Application;
}

namespace quillon::desktop {

/// A menu on the screen, made of a menu that is a value. An entry sends its action to the
/// application, which outlives the menu.
///
/// Key equivalents work while the menu is open. Their command modifier is shown as Control, as this
/// desktop writes it; Super is accepted too.
class QtMenu : public QMenu {
public:
    QtMenu(const Menu& menu, Application& application);

private:
    void addItem(const MenuItem& item, Application& application);
};

} // namespace quillon::desktop
