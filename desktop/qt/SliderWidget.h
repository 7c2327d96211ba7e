#pragma once

#include "foundation/Binding.h"
#include "foundation/Geometry.h"

#include <QColor>
#include <QSlider>

#include <optional>

namespace quillon::desktop {

/// A slider bound to a number: a press on the track goes there at once.
class SliderWidget : public QSlider {
public:
    struct Range {
        double minimum = 0;
        double maximum = 1;
        /// Nothing when it is 0: the slider is continuous.
        double step = 0;
    };

    SliderWidget(Range range, Binding<CGFloat> value, QWidget& parent);

    /// Shows the bound number, whoever changed it.
    void follow();

    const Range& range() const { return m_range; }
    double boundValue() const { return m_binding.get(); }
    /// Goes to the place nearest to `value`.
    void setBoundValue(double value);
    /// The colour of the part of the track below the value; without one it is the accent colour.
    void setAccent(const std::optional<QColor>& accent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void goTo(qreal x);
    double valueAt(int position) const;
    int positionOf(double value) const;

    Range m_range;
    Binding<CGFloat> m_binding;
    std::optional<QColor> m_accent;
};

} // namespace quillon::desktop
