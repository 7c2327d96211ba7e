#pragma once

#include <QWidget>

namespace quillon::desktop {

/// A thin line between two parts of a layout.
class Divider : public QWidget {
public:
    /// Between what stands above and what stands below, as wide as the layout.
    static Divider* across();
    /// Between what stands left and what stands right, `height` points high.
    static Divider* upright(qreal height);

    /// The line itself, at the left or the upper edge of `area` and along its longer side, in whole
    /// device pixels.
    static void paint(QPainter& painter, const QRectF& area, const QPalette& palette);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Divider() = default;
};

} // namespace quillon::desktop
