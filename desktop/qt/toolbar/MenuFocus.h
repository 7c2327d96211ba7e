#pragma once

#include <QMenu>
#include <QObject>

#include <vector>

class QKeyEvent;

namespace quillon::desktop {

/// The keyboard's way through a menu that holds rows of controls above its plain entries.
///
/// The arrows go from control to control and from row to row, tab and back tab through all of them
/// in order, and below the last row the plain entries follow. Return works like a click. A slider
/// keeps the arrows along it.
class MenuFocus : public QObject {
public:
    explicit MenuFocus(QMenu& menu)
        : m_menu(menu) {}

    /// Below the rows that were added before.
    void addRow(const std::vector<QWidget*>& row);

    /// Brings the keyboard to the control.
    void goTo(QWidget& control);
    /// A key that came to the menu itself; false leaves it to the menu.
    bool handleKey(const QKeyEvent& event);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Place {
        std::size_t row;
        std::size_t column;
    };
    Place placeOf(const QObject* control) const;
    bool moveFrom(Place place, int key);
    void goToRow(std::size_t row, int x);
    /// Off the rows, past the first or the last one.
    void leaveDownward();
    void leaveUpward();
    QList<QAction*> plainEntries() const;

    QMenu& m_menu;
    std::vector<std::vector<QWidget*>> m_rows;
};

} // namespace quillon::desktop
