#pragma once

#include <QSlider>

namespace quillon::desktop {

/// A slider of stops from 0 upward: a click moves it to where it was made, the wheel leaves it
/// alone.
class StopSlider : public QSlider {
public:
    explicit StopSlider(int lastStop, QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    /// The middle line from the first stop to the last.
    QLineF groove() const;
    void moveTo(qreal x);
};

} // namespace quillon::desktop
