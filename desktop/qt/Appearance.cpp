#include "desktop/qt/Appearance.h"

#include "desktop/qt/Blur.h"
#include "desktop/qt/QtConversions.h"

#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

namespace quillon::desktop {

namespace {

constexpr float kSecondaryAlpha = 0.62F;

} // namespace

bool isDark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightnessF() < 0.5F;
}

QColor toQColor(const SemanticColor& color, const QPalette& palette) {
    // A control that is out of service says so by its own description.
    const auto base = [&] {
        switch (color.role) {
        case SemanticColor::Role::clear:
            return QColor(Qt::transparent);
        case SemanticColor::Role::primary:
            return palette.color(QPalette::Active, QPalette::WindowText);
        case SemanticColor::Role::secondary: {
            QColor secondary = palette.color(QPalette::Active, QPalette::WindowText);
            secondary.setAlphaF(kSecondaryAlpha);
            return secondary;
        }
        case SemanticColor::Role::accent:
            return palette.color(QPalette::Active, QPalette::Highlight);
        case SemanticColor::Role::red:
            return toQColor(Color::red);
        }
        return QColor();
    };
    QColor result = base();
    result.setAlphaF(result.alphaF() * static_cast<float>(color.alpha));
    return result;
}

QColor panelMaterial(const QPalette& palette) {
    return isDark(palette) ? QColor(38, 38, 42, 218) : QColor(248, 248, 250, 218);
}

QColor popupMaterial(const QPalette& palette) {
    return isDark(palette) ? QColor(44, 44, 48, 248) : QColor(250, 250, 252, 248);
}

QColor hairline(const QPalette& palette) {
    return isDark(palette) ? QColor(0, 0, 0, 120) : QColor(0, 0, 0, 38);
}

QPixmap symbolPixmap(const std::string& name, qreal side, qreal scale, const QColor& color) {
    const int pixels = qRound(side * scale);
    const QString file = QStringLiteral(":/symbols/%1.svg").arg(QString::fromStdString(name));
    const QString key =
        QStringLiteral("%1 %2 %3").arg(file).arg(pixels).arg(color.name(QColor::HexArgb));
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap)) {
        pixmap.setDevicePixelRatio(scale);
        return pixmap;
    }
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QSvgRenderer(file).render(&painter, QRectF(image.rect()));
    painter.end();
    pixmap = QPixmap::fromImage(tinted(image, color));
    QPixmapCache::insert(key, pixmap);
    pixmap.setDevicePixelRatio(scale);
    return pixmap;
}

} // namespace quillon::desktop
