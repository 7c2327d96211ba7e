#include "desktop/qt/widgets/Slider.h"

#include "desktop/qt/Appearance.h"
#include "desktop/qt/widgets/FocusRing.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace quillon::desktop {

namespace {

constexpr qreal kKnobRadius = 7.5;
constexpr qreal kTrackWidth = 4;
/// From the middle of the knob to the edges: half its outline belongs to the room of the ring.
constexpr int kReach = 10;
constexpr int kUsualWidth = 150;

} // namespace

Slider::Slider(int lastStop, QWidget* parent)
    : QSlider(Qt::Horizontal, parent) {
    setRange(0, lastStop);
    setPageStep(std::max(1, lastStop / 10));
}

void Slider::setAccent(const std::optional<QColor>& accent) {
    m_accent = accent;
    update();
}

QSize Slider::sizeHint() const {
    return {kUsualWidth, 2 * kReach};
}

QSize Slider::minimumSizeHint() const {
    return {4 * kReach, 2 * kReach};
}

QLineF Slider::track() const {
    const qreal middle = height() / 2.0;
    return {kReach, middle, QSizeF(size()).width() - kReach, middle};
}

void Slider::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QLineF whole = track();
    const QPointF knob = whole.pointAt(maximum() > 0 ? qreal(value()) / maximum() : 0);
    const auto drawTrack = [&](const QLineF& part, const QColor& color) {
        painter.setPen(QPen(color, kTrackWidth, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(part);
    };
    drawTrack(whole, emptyTrack(palette()));
    drawTrack({whole.p1(), knob},
              m_accent.value_or(toQColor(SystemColor::controlAccentColor, palette())));

    painter.setPen(QPen(QColor(0, 0, 0, 60), 1));
    painter.setBrush(isSliderDown() ? QColor(235, 235, 235) : QColor(Qt::white));
    painter.drawEllipse(knob, kKnobRadius, kKnobRadius);
    if (FocusRing::isShown(*this)) {
        QRectF circle(0, 0, 2 * kKnobRadius, 2 * kKnobRadius);
        circle.moveCenter(knob);
        FocusRing::paint(painter, circle, kKnobRadius, palette());
    }
}

void Slider::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        setSliderDown(true);
        goTo(event->position().x());
    }
}

void Slider::mouseMoveEvent(QMouseEvent* event) {
    if (isSliderDown()) {
        goTo(event->position().x());
    }
}

void Slider::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        setSliderDown(false);
        update();
    }
}

void Slider::goTo(qreal x) {
    const QLineF whole = track();
    const qreal share = (x - whole.x1()) / whole.dx();
    setValue(qRound(std::clamp(share, 0.0, 1.0) * maximum()));
}

} // namespace quillon::desktop
