#include "desktop/qt/toolbar/Panel.h"

#include "desktop/qt/Appearance.h"
#include "desktop/qt/Blur.h"
#include "desktop/qt/QtConversions.h"

#include <QPainterPath>
#include <QtMath>

namespace quillon::desktop {

namespace {

QPainterPath roundedPath(const QRectF& rect, qreal radius) {
    QPainterPath path;
    path.addRoundedRect(rect, radius, radius);
    return path;
}

} // namespace

int shadowReach(const Shadow& shadow) {
    const qreal blur = blurReach(shadow.radius / 2);
    return qCeil(blur + qMax(qAbs(shadow.offset.width), qAbs(shadow.offset.height)));
}

void Panel::paint(QPainter& painter, const QRectF& rect, const QPalette& palette,
                  Material material) {
    const qreal scale = painter.device()->devicePixelRatio();
    if (m_picture.isNull() || m_size != rect.size() || m_picture.devicePixelRatio() != scale ||
        m_paletteKey != palette.cacheKey() || m_material != material) {
        m_material = material;
        m_picture = draw(rect.size(), scale, palette);
        m_size = rect.size();
        m_paletteKey = palette.cacheKey();
    }
    const int reach = shadowReach(PalettePanel::shadow);
    painter.drawImage(rect.topLeft() - QPointF(reach, reach), m_picture);
}

QImage Panel::draw(QSizeF size, qreal scale, const QPalette& palette) const {
    const auto& shadow = PalettePanel::shadow;
    const int reach = shadowReach(shadow);
    const QSizeF whole = size + QSizeF(2 * reach, 2 * reach);
    QImage picture((whole * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    const QRectF panel(QPointF(reach, reach), size);
    const QPainterPath outline = roundedPath(panel, PalettePanel::cornerRadius);

    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    if (m_material == Material::translucent) {
        painter.fillPath(outline.translated(shadow.offset.width, shadow.offset.height), Qt::black);
    }
    painter.end();
    picture = tinted(blurred(picture, shadow.radius / 2 * scale), toQColor(shadow.color));
    picture.setDevicePixelRatio(scale);

    painter.begin(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    // The material takes the place of the shadow below it, which would shine through.
    painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    painter.fillPath(outline, Qt::black);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    QColor material = panelMaterial(palette);
    if (m_material == Material::opaque) {
        material.setAlpha(255);
    }
    painter.fillPath(outline, material);
    const qreal inset = PalettePanel::borderLineWidth / 2;
    const QPainterPath border = roundedPath(panel.adjusted(inset, inset, -inset, -inset),
                                            PalettePanel::cornerRadius - inset);
    for (const QColor& color : {panelEdge(palette), toQColor(PalettePanel::borderColor)}) {
        painter.strokePath(border, QPen(color, PalettePanel::borderLineWidth));
    }
    return picture;
}

} // namespace quillon::desktop
