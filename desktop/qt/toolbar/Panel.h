#pragma once

#include "toolbar/FloatingToolbarView.h"

#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QRectF>

namespace quillon::desktop {

/// The points that a shadow reaches beyond its figure, the same on every side, so that the figure
/// stays in the middle.
int shadowReach(const Shadow& shadow);

/// A panel of translucent material with its shadow and its border, kept as a picture until its
/// size, its scale or the look of the desktop changes.
class Panel {
public:
    enum class Material {
        translucent,
        /// The panel alone, with no shadow, for a screen that cannot show one.
        opaque,
    };

    /// `rect` in points.
    void paint(QPainter& painter, const QRectF& rect, const QPalette& palette, Material material);

private:
    QImage draw(QSizeF size, qreal scale, const QPalette& palette) const;

    QImage m_picture;
    QSizeF m_size;
    qint64 m_paletteKey = 0;
    Material m_material = Material::translucent;
};

} // namespace quillon::desktop
