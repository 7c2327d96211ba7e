#include "desktop/qt/toolbar/MenuFocus.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QSlider>
#include <QWidgetAction>

#include <algorithm>
#include <cstdlib>

namespace quillon::desktop {

namespace {

int centerOf(const QWidget& control) {
    return control.mapToGlobal(control.rect().center()).x();
}

} // namespace

void MenuFocus::addRow(const std::vector<QWidget*>& row) {
    if (row.empty()) {
        return;
    }
    for (QWidget* control : row) {
        control->installEventFilter(this);
    }
    m_rows.push_back(row);
}

void MenuFocus::goTo(QWidget& control) {
    m_menu.setActiveAction(nullptr);
    // The toolkit marks a window as worked by keys at tab alone.
    m_menu.setAttribute(Qt::WA_KeyboardFocusChange);
    control.setFocus(Qt::TabFocusReason);
}

bool MenuFocus::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) {
        return QObject::eventFilter(watched, event);
    }
    const int key = static_cast<QKeyEvent*>(event)->key();
    auto* button = qobject_cast<QAbstractButton*>(watched);
    if (button && (key == Qt::Key_Return || key == Qt::Key_Enter)) {
        button->click();
        return true;
    }
    const bool isAlong = key == Qt::Key_Left || key == Qt::Key_Right;
    if (isAlong && qobject_cast<QSlider*>(watched)) {
        return false;
    }
    return moveFrom(placeOf(watched), key);
}

MenuFocus::Place MenuFocus::placeOf(const QObject* control) const {
    for (std::size_t row = 0; row < m_rows.size(); ++row) {
        const auto found = std::find(m_rows[row].begin(), m_rows[row].end(), control);
        if (found != m_rows[row].end()) {
            return {row, static_cast<std::size_t>(found - m_rows[row].begin())};
        }
    }
    return {0, 0};
}

bool MenuFocus::moveFrom(Place place, int key) {
    const auto& row = m_rows[place.row];
    const bool isFirst = place.column == 0;
    const bool isLast = place.column + 1 == row.size();
    const int x = centerOf(*row[place.column]);
    switch (key) {
    case Qt::Key_Left:
        goTo(*row[isFirst ? 0 : place.column - 1]);
        return true;
    case Qt::Key_Right:
        goTo(*row[isLast ? place.column : place.column + 1]);
        return true;
    case Qt::Key_Tab:
        if (!isLast) {
            goTo(*row[place.column + 1]);
        } else if (place.row + 1 < m_rows.size()) {
            goTo(*m_rows[place.row + 1].front());
        } else {
            leaveDownward();
        }
        return true;
    case Qt::Key_Backtab:
        if (!isFirst) {
            goTo(*row[place.column - 1]);
        } else if (place.row > 0) {
            goTo(*m_rows[place.row - 1].back());
        } else {
            leaveUpward();
        }
        return true;
    case Qt::Key_Down:
        place.row + 1 < m_rows.size() ? goToRow(place.row + 1, x) : leaveDownward();
        return true;
    case Qt::Key_Up:
        place.row > 0 ? goToRow(place.row - 1, x) : leaveUpward();
        return true;
    default:
        return false;
    }
}

void MenuFocus::goToRow(std::size_t row, int x) {
    goTo(**std::min_element(
        m_rows[row].begin(), m_rows[row].end(), [x](const QWidget* one, const QWidget* other) {
            return std::abs(centerOf(*one) - x) < std::abs(centerOf(*other) - x);
        }));
}

QList<QAction*> MenuFocus::plainEntries() const {
    QList<QAction*> entries;
    for (QAction* action : m_menu.actions()) {
        if (!action->isSeparator() && !qobject_cast<QWidgetAction*>(action)) {
            entries.append(action);
        }
    }
    return entries;
}

void MenuFocus::leaveDownward() {
    const auto entries = plainEntries();
    if (entries.isEmpty()) {
        goTo(*m_rows.front().front());
    } else {
        m_menu.setFocus(Qt::PopupFocusReason);
        m_menu.setActiveAction(entries.first());
    }
}

void MenuFocus::leaveUpward() {
    const auto entries = plainEntries();
    if (entries.isEmpty()) {
        goTo(*m_rows.back().back());
    } else {
        m_menu.setFocus(Qt::PopupFocusReason);
        m_menu.setActiveAction(entries.last());
    }
}

bool MenuFocus::handleKey(const QKeyEvent& event) {
    if (m_rows.empty()) {
        return false;
    }
    const auto entries = plainEntries();
    const QAction* active = m_menu.activeAction();
    const bool isFirst = !entries.isEmpty() && active == entries.first();
    const bool isLast = !entries.isEmpty() && active == entries.last();
    switch (event.key()) {
    case Qt::Key_Down:
    case Qt::Key_Tab:
        if (!active || isLast) {
            goTo(*m_rows.front().front());
            return true;
        }
        return false;
    case Qt::Key_Up:
    case Qt::Key_Backtab:
        if (isFirst) {
            goTo(event.key() == Qt::Key_Up ? *m_rows.back().front() : *m_rows.back().back());
        } else if (!active) {
            leaveUpward();
        }
        return isFirst || !active;
    default:
        return false;
    }
}

} // namespace quillon::desktop
