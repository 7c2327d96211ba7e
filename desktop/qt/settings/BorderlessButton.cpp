#include "desktop/qt/settings/BorderlessButton.h"

#include "desktop/qt/Appearance.h"
#include "desktop/qt/TextStyles.h"
#include "desktop/qt/widgets/FocusRing.h"

#include <QPainter>

namespace quillon::desktop {

namespace {

constexpr qreal kCornerRadius = 5;

} // namespace

BorderlessButton::BorderlessButton(const QString& text, QWidget* parent)
    : QPushButton(text, parent) {
    setFlat(true);
    setFont(textStyle::body());
    setAttribute(Qt::WA_Hover);
}

void BorderlessButton::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF ground = QRectF(rect()).adjusted(FocusRing::room, FocusRing::room,
                                                  -FocusRing::room, -FocusRing::room);
    if (isEnabled() && (underMouse() || isDown())) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(
            toQColor(SystemColor::labelColor.opacity(isDown() ? 0.18 : 0.1), palette()));
        painter.drawRoundedRect(ground, kCornerRadius, kCornerRadius);
    }
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(rect(), Qt::AlignCenter, text());
    if (FocusRing::isShown(*this)) {
        FocusRing::paint(painter, ground, kCornerRadius, palette());
    }
}

} // namespace quillon::desktop
