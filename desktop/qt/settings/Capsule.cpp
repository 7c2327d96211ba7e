#include "desktop/qt/settings/Capsule.h"

#include "desktop/qt/Appearance.h"
#include "settings/SettingsView.h"

#include <QPainter>

namespace quillon::desktop {

void Capsule::setFilled(bool filled) {
    m_isFilled = filled;
    const int x = filled ? qRound(ShortcutRow::capsulePaddingX) : 0;
    const int y = filled ? qRound(ShortcutRow::capsulePaddingY) : 0;
    setContentsMargins(x, y, x, y);
    update();
}

void Capsule::paintEvent(QPaintEvent* event) {
    if (m_isFilled) {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        QColor fill = toQColor(SystemColor::secondaryLabelColor, palette());
        fill.setAlphaF(static_cast<float>(ShortcutRow::capsuleOpacity));
        painter.setPen(Qt::NoPen);
        painter.setBrush(fill);
        painter.drawRoundedRect(rect(), height() / 2.0, height() / 2.0);
    }
    Label::paintEvent(event);
}

} // namespace quillon::desktop
