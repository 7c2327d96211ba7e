#include "desktop/qt/SliderWidget.h"

#include "desktop/qt/Appearance.h"

#include <QMouseEvent>
#include <QPainter>
#include <QSignalBlocker>

#include <utility>

namespace quillon::desktop {

namespace {

constexpr qreal kKnob = 16;
constexpr qreal kTrack = 4;
constexpr int kContinuousPositions = 1000;

} // namespace

SliderWidget::SliderWidget(Range range, Binding<CGFloat> value, QWidget& parent)
    : QSlider(Qt::Horizontal, &parent)
    , m_range(range)
    , m_binding(std::move(value)) {
    const bool hasSteps = range.step > 0;
    setRange(0, hasSteps ? qRound((range.maximum - range.minimum) / range.step)
                         : kContinuousPositions);
    setSingleStep(hasSteps ? 1 : kContinuousPositions / 100);
    setPageStep(hasSteps ? qMax(maximum() / 10, 1) : kContinuousPositions / 10);
    follow();
    connect(this, &QSlider::valueChanged, this,
            [this](int position) { m_binding.set(valueAt(position)); });
}

void SliderWidget::follow() {
    const QSignalBlocker silent(this);
    setValue(positionOf(m_binding.get()));
}

void SliderWidget::setBoundValue(double value) {
    setValue(positionOf(value));
}

int SliderWidget::positionOf(double value) const {
    const double within = qBound(m_range.minimum, value, m_range.maximum);
    const double share = (within - m_range.minimum) / (m_range.maximum - m_range.minimum);
    return qRound(share * maximum());
}

double SliderWidget::valueAt(int position) const {
    return m_range.minimum + (m_range.maximum - m_range.minimum) * position / maximum();
}

void SliderWidget::setAccent(const std::optional<QColor>& accent) {
    m_accent = accent;
    update();
}

QSize SliderWidget::sizeHint() const {
    return {150, qRound(kKnob) + 2};
}

QSize SliderWidget::minimumSizeHint() const {
    return {3 * qRound(kKnob), qRound(kKnob) + 2};
}

void SliderWidget::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        setSliderDown(true);
        goTo(event->position().x());
    }
}

void SliderWidget::mouseMoveEvent(QMouseEvent* event) {
    if (isSliderDown()) {
        goTo(event->position().x());
    }
}

void SliderWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        setSliderDown(false);
    }
}

void SliderWidget::goTo(qreal x) {
    const qreal share = (x - kKnob / 2) / (width() - kKnob);
    setValue(qRound(qBound(0.0, share, 1.0) * maximum()));
}

void SliderWidget::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal share = static_cast<qreal>(value()) / maximum();
    const qreal knob = kKnob / 2 + share * (width() - kKnob);
    const QRectF track(kKnob / 2 - kTrack / 2, (height() - kTrack) / 2, width() - kKnob + kTrack,
                       kTrack);
    painter.setPen(Qt::NoPen);
    painter.setBrush(toQColor(SystemColor::labelColor.opacity(0.16), palette()));
    painter.drawRoundedRect(track, kTrack / 2, kTrack / 2);
    painter.setBrush(m_accent.value_or(toQColor(SystemColor::controlAccentColor, palette())));
    painter.drawRoundedRect(QRectF(track.topLeft(), QPointF(knob, track.bottom())), kTrack / 2,
                            kTrack / 2);

    painter.setPen(hasFocus() ? QPen(toQColor(SystemColor::controlAccentColor, palette()), 2)
                              : QPen(QColor(0, 0, 0, 60), 1));
    painter.setBrush(Qt::white);
    painter.drawEllipse(QPointF(knob, height() / 2.0), kKnob / 2 - 1, kKnob / 2 - 1);
}

} // namespace quillon::desktop
