#include "desktop/qt/QtMenu.h"

#include "platform/Application.h"

#include <QAction>
#include <QKeySequence>
#include <QShortcut>

namespace quillon::desktop {

QtMenu::QtMenu(const Menu& menu, Application& application)
    : QMenu(QString::fromStdString(menu.title)) {
    for (const MenuItem& item : menu.items) {
        addItem(item, application);
    }
}

void QtMenu::addItem(const MenuItem& item, Application& application) {
    if (item.isSeparator) {
        addSeparator();
        return;
    }
    // In Qt's titles an ampersand marks a letter unless it is doubled.
    QAction* entry = addAction(QString::fromStdString(item.title).replace('&', "&&"));
    connect(entry, &QAction::triggered, this,
            [selector = item.action, &application] { application.sendAction(selector); });
    if (item.keyEquivalent.empty()) {
        return;
    }

    const QString key = QString::fromStdString(item.keyEquivalent).toUpper();
    entry->setShortcut(QKeySequence("Ctrl+" + key));
    entry->setShortcutVisibleInContextMenu(true);
    // The shortcut of an entry is heard only where the menu hangs in a menu bar, so the open menu
    // listens for itself.
    for (const char* modifier : {"Ctrl+", "Meta+"}) {
        auto* shortcut = new QShortcut(QKeySequence(modifier + key), this);
        connect(shortcut, &QShortcut::activated, entry, [this, entry] {
            close();
            entry->trigger();
        });
    }
}

} // namespace quillon::desktop
