#pragma once

#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QRectF>
#include <QWidget>

namespace quillon::desktop {

/// What shows that a control has the keyboard: a ring of the accent colour.
struct FocusRing {
    static constexpr int lineWidth = 2;
    /// What a control leaves free on each side for a ring around its shape.
    static constexpr int room = 3;

    /// A control that got the keyboard by a click needs no ring until somebody works the window by
    /// keys.
    static bool isShown(const QWidget& control);

    /// Around a shape with rounded corners.
    static void paint(QPainter& painter, const QRectF& shape, qreal radius,
                      const QPalette& palette);
    /// Within a shape with rounded corners, where there is no room around it.
    static void paintInside(QPainter& painter, const QRectF& shape, qreal radius,
                            const QPalette& palette);
    /// Along a figure.
    static void stroke(QPainter& painter, const QPainterPath& figure, const QPalette& palette);
};

} // namespace quillon::desktop
