#include "desktop/qt/settings/StopSlider.h"

#include "desktop/qt/settings/Look.h"
#include "desktop/qt/widgets/FocusRing.h"

#include <QLineF>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>

namespace quillon::desktop {

namespace {

constexpr qreal kKnobRadius = 8;
constexpr qreal kGrooveHeight = 4;

} // namespace

StopSlider::StopSlider(int lastStop, QWidget* parent)
    : QSlider(Qt::Horizontal, parent) {
    setRange(0, lastStop);
    setPageStep(std::max(1, lastStop / 10));
}

QSize StopSlider::sizeHint() const {
    return {100, 2 * (static_cast<int>(kKnobRadius) + FocusRing::room)};
}

QLineF StopSlider::groove() const {
    const qreal end = kKnobRadius + FocusRing::room;
    const qreal middle = height() / 2.0;
    return {end, middle, width() - end, middle};
}

void StopSlider::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QLineF line = groove();
    const QPointF knob = line.pointAt(maximum() > 0 ? qreal(value()) / maximum() : 0);

    painter.setPen(QPen(look::track(palette()), kGrooveHeight, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(line);
    painter.setPen(QPen(toQColor(SystemColor::controlAccentColor, palette()), kGrooveHeight,
                        Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(line.p1(), knob);

    painter.setPen(QPen(QColor(0, 0, 0, 60), 1));
    painter.setBrush(isSliderDown() ? QColor(235, 235, 235) : QColor(Qt::white));
    const qreal radius = kKnobRadius - 0.5;
    painter.drawEllipse(knob, radius, radius);
    if (FocusRing::isShown(*this)) {
        const QRectF circle(knob.x() - radius, knob.y() - radius, 2 * radius, 2 * radius);
        FocusRing::paint(painter, circle, radius, palette());
    }
}

void StopSlider::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        setSliderDown(true);
        moveTo(event->position().x());
    }
}

void StopSlider::mouseMoveEvent(QMouseEvent* event) {
    if (isSliderDown()) {
        moveTo(event->position().x());
    }
}

void StopSlider::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        setSliderDown(false);
        update();
    }
}

void StopSlider::wheelEvent(QWheelEvent* event) {
    // A page that scrolls under the pointer changes no setting.
    event->ignore();
}

void StopSlider::moveTo(qreal x) {
    const QLineF line = groove();
    const qreal part = std::clamp((x - line.x1()) / line.dx(), 0.0, 1.0);
    setValue(qRound(part * maximum()));
}

} // namespace quillon::desktop
