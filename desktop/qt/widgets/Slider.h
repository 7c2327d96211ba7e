#pragma once

#include <QColor>
#include <QLineF>
#include <QSlider>

#include <optional>

namespace quillon::desktop {

/// A slider of stops from 0 upward: a press on the track goes there at once.
class Slider : public QSlider {
public:
    explicit Slider(int lastStop, QWidget* parent = nullptr);

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
    /// The middle of the track from the first stop to the last.
    QLineF track() const;
    void goTo(qreal x);

    std::optional<QColor> m_accent;
};

} // namespace quillon::desktop
