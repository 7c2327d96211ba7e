#include "desktop/qt/toolbar/BoundSlider.h"

#include <QSignalBlocker>

#include <utility>

namespace quillon::desktop {

namespace {

constexpr int kContinuousStops = 1000;

int lastStopOf(const BoundSlider::Range& range) {
    return range.step > 0 ? qRound((range.maximum - range.minimum) / range.step) : kContinuousStops;
}

} // namespace

BoundSlider::BoundSlider(Range range, Binding<CGFloat> value, QWidget& parent)
    : Slider(lastStopOf(range), &parent)
    , m_range(range)
    , m_binding(std::move(value)) {
    if (range.step <= 0) {
        setSingleStep(kContinuousStops / 100);
    }
    follow();
    connect(this, &QSlider::valueChanged, this,
            [this](int position) { m_binding.set(valueAt(position)); });
}

void BoundSlider::follow() {
    const QSignalBlocker silent(this);
    setValue(positionOf(m_binding.get()));
}

void BoundSlider::setBoundValue(double value) {
    setValue(positionOf(value));
}

int BoundSlider::positionOf(double value) const {
    const double within = qBound(m_range.minimum, value, m_range.maximum);
    const double share = (within - m_range.minimum) / (m_range.maximum - m_range.minimum);
    return qRound(share * maximum());
}

double BoundSlider::valueAt(int position) const {
    return m_range.minimum + (m_range.maximum - m_range.minimum) * position / maximum();
}

} // namespace quillon::desktop
