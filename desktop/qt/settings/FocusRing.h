#pragma once

#include <QPainter>
#include <QPalette>
#include <QPen>
#include <QRectF>
#include <QWidget>

namespace quillon::desktop {

/// What shows that a control has the keyboard: a ring of the accent colour around it.
struct FocusRing {
    /// What a control leaves free on each side for it.
    static constexpr int room = 3;

    /// A control that got the keyboard by a click needs no ring until somebody works the window by
    /// keys.
    static bool isShown(const QWidget& control) {
        return control.hasFocus() && control.window()->testAttribute(Qt::WA_KeyboardFocusChange);
    }

    /// Around a shape with rounded corners.
    static void paint(QPainter& painter, const QRectF& shape, qreal radius,
                      const QPalette& palette) {
        constexpr qreal distance = 1.5;
        QColor color = palette.color(QPalette::Highlight);
        color.setAlphaF(0.7F);
        painter.setPen(QPen(color, 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(shape.adjusted(-distance, -distance, distance, distance),
                                radius + distance, radius + distance);
    }
};

} // namespace quillon::desktop
