#include "desktop/qt/settings/RoleLabel.h"

#include "desktop/qt/Appearance.h"

#include <QEvent>
#include <QGuiApplication>

namespace quillon::desktop {

RoleLabel::RoleLabel(SystemColor role, QWidget* parent)
    : QLabel(parent)
    , m_role(role) {
    setTextFormat(Qt::PlainText);
    applyRole();
}

void RoleLabel::setRole(SystemColor role) {
    m_role = role;
    applyRole();
}

void RoleLabel::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        applyRole();
    }
}

void RoleLabel::applyRole() {
    const QColor color = toQColor(m_role, QGuiApplication::palette());
    // To set a palette is a change of the palette in its turn.
    if (palette().color(QPalette::WindowText) != color) {
        QPalette own;
        own.setColor(QPalette::WindowText, color);
        setPalette(own);
    }
}

} // namespace quillon::desktop
