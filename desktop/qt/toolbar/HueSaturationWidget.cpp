#include "desktop/qt/toolbar/HueSaturationWidget.h"

#include "desktop/qt/Appearance.h"
#include "desktop/qt/QtConversions.h"
#include "desktop/qt/toolbar/Ring.h"
#include "desktop/qt/widgets/FocusRing.h"

#include <QConicalGradient>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QRadialGradient>

namespace quillon::desktop {

namespace {

/// How far an arrow key moves the marker, in points.
constexpr qreal kKeyStep = 3;

} // namespace

HueSaturationWidget::HueSaturationWidget(HueSaturationPicker& picker, QWidget& parent)
    : QWidget(&parent)
    , m_picker(picker) {
    setFocusPolicy(Qt::TabFocus);
    setAccessibleName(tr("Hue and saturation"));
}

QRectF HueSaturationWidget::square() const {
    const qreal side = HueSaturationPicker::side({QSizeF(size()).width(), QSizeF(size()).height()});
    return {(width() - side) / 2, (height() - side) / 2, side, side};
}

void HueSaturationWidget::showEvent(QShowEvent* /*event*/) {
    m_picker.appeared({square().width(), square().height()});
}

void HueSaturationWidget::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && square().contains(event->position())) {
        m_isDragging = true;
        dragTo(event->position());
    }
}

void HueSaturationWidget::mouseMoveEvent(QMouseEvent* event) {
    if (m_isDragging) {
        dragTo(event->position());
    }
}

void HueSaturationWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        m_isDragging = false;
    }
}

void HueSaturationWidget::keyPressEvent(QKeyEvent* event) {
    const QPointF place = markerPlace();
    switch (event->key()) {
    case Qt::Key_Left:
        return dragTo(place - QPointF(kKeyStep, 0));
    case Qt::Key_Right:
        return dragTo(place + QPointF(kKeyStep, 0));
    case Qt::Key_Up:
        return dragTo(place - QPointF(0, kKeyStep));
    case Qt::Key_Down:
        return dragTo(place + QPointF(0, kKeyStep));
    default:
        QWidget::keyPressEvent(event);
    }
}

void HueSaturationWidget::dragTo(QPointF place) {
    m_picker.dragChanged(fromQPointF(place - square().topLeft()), square().width());
    update();
}

QPointF HueSaturationWidget::markerPlace() const {
    const CGSize offset = m_picker.markerOffset(square().width());
    return square().center() + QPointF(offset.width, offset.height);
}

void HueSaturationWidget::paintEvent(QPaintEvent* /*event*/) {
    const qreal scale = devicePixelRatioF();
    if (m_wheel.size() != (square().size() * scale).toSize() ||
        m_wheelBrightness != m_picker.brightness()) {
        m_wheel = drawWheel(scale);
        m_wheelBrightness = m_picker.brightness();
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawImage(square().topLeft(), m_wheel);
    if (FocusRing::isShown(*this)) {
        FocusRing::stroke(
            painter, circle(square().center(), square().width() - FocusRing::lineWidth), palette());
    }
    paintRing(
        painter, circle(markerPlace(), HueSaturationPicker::markerDiameter),
        QPen(toQColor(HueSaturationPicker::markerColor), HueSaturationPicker::markerLineWidth),
        HueSaturationPicker::markerShadow);
}

QImage HueSaturationWidget::drawWheel(qreal scale) const {
    const QRectF area(QPointF(0, 0), square().size());
    QImage wheel((area.size() * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    wheel.setDevicePixelRatio(scale);
    wheel.fill(Qt::transparent);
    QPainter painter(&wheel);
    painter.setRenderHint(QPainter::Antialiasing);

    const auto layer = m_picker.radialLayer();
    QRadialGradient radial(area.center(), area.width() / 2);
    radial.setColorAt(0, toQColor(layer.center));
    radial.setColorAt(1, toQColor(layer.edge));
    painter.fillPath(circle(area.center(), area.width()), radial);

    // The toolkit's angle runs the other way round.
    QConicalGradient angular(area.center(), 0);
    const auto stops = m_picker.angularStops();
    for (std::size_t stop = 0; stop < stops.size(); ++stop) {
        const double turn = static_cast<double>(stop) / static_cast<double>(stops.size() - 1);
        angular.setColorAt(1 - turn, toQColor(stops[stop]));
    }
    const qreal border = HueSaturationPicker::angularMaskLineWidth(area.width());
    painter.strokePath(circle(area.center(), area.width() - border), QPen(angular, border));
    return wheel;
}

} // namespace quillon::desktop
