#include "desktop/qt/settings/SwitchWidget.h"

#include "desktop/qt/Appearance.h"
#include "desktop/qt/widgets/FocusRing.h"

#include <QPainter>

namespace quillon::desktop {

namespace {

constexpr QSizeF kTrack(36, 20);
constexpr qreal kKnobInset = 2;

} // namespace

SwitchWidget::SwitchWidget(QWidget* parent)
    : QCheckBox(parent) {
    setFixedSize(sizeHint());
}

QSize SwitchWidget::sizeHint() const {
    return (kTrack + QSizeF(2, 2) * FocusRing::room).toSize();
}

bool SwitchWidget::hitButton(const QPoint& place) const {
    return rect().contains(place);
}

void SwitchWidget::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QRectF track(QPointF(), kTrack);
    track.moveCenter(QRectF(rect()).center());
    const qreal radius = track.height() / 2;

    painter.setPen(Qt::NoPen);
    painter.setBrush(isChecked() ? toQColor(SystemColor::controlAccentColor, palette())
                                 : emptyTrack(palette()));
    painter.drawRoundedRect(track, radius, radius);

    QRectF knob = track.adjusted(kKnobInset, kKnobInset, -kKnobInset, -kKnobInset);
    if (isChecked()) {
        knob.setLeft(knob.right() - knob.height());
    } else {
        knob.setWidth(knob.height());
    }
    painter.setPen(QPen(QColor(0, 0, 0, 40), 0.5));
    painter.setBrush(Qt::white);
    painter.drawEllipse(knob);
    if (FocusRing::isShown(*this)) {
        FocusRing::paint(painter, track, radius, palette());
    }
}

} // namespace quillon::desktop
