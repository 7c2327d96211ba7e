#pragma once

#include "toolbar/FloatingToolbarView.h"

#include <QImage>
#include <QWidget>

namespace quillon::desktop {

/// The colour wheel on the screen. A press in its square starts a drag, which may go on outside;
/// the arrow keys move the marker as the pointer does.
class HueSaturationWidget : public QWidget {
public:
    HueSaturationWidget(HueSaturationPicker& picker, QWidget& parent);

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void dragTo(QPointF place);
    /// The wheel's square, in the middle of the widget.
    QRectF square() const;
    QPointF markerPlace() const;
    QImage drawWheel(qreal scale) const;

    HueSaturationPicker& m_picker;
    QImage m_wheel;
    double m_wheelBrightness = -1;
    bool m_isDragging = false;
};

} // namespace quillon::desktop
