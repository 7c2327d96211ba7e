#include "desktop/qt/SymbolPicture.h"

#include "desktop/qt/Blur.h"

#include <QCache>
#include <QPainter>
#include <QString>
#include <QSvgRenderer>

#include <memory>

namespace quillon::desktop {

namespace {

/// More than all symbols of the palette and the settings in both schemes of colour.
constexpr int kMostPictures = 256;

QImage drawn(const QString& file, int pixels, qreal scale, const QColor& color) {
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QSvgRenderer(file).render(&painter, QRectF(image.rect()));
    painter.end();
    QImage picture = tinted(image, color);
    picture.setDevicePixelRatio(scale);
    return picture;
}

} // namespace

QImage symbolPicture(const std::string& name, qreal side, qreal scale, const QColor& color) {
    static QCache<QString, QImage> pictures(kMostPictures);
    const int pixels = qRound(side * scale);
    const QString file = QStringLiteral(":/symbols/%1.svg").arg(QString::fromStdString(name));
    const QString key = QStringLiteral("%1 %2 %3 %4")
                            .arg(file)
                            .arg(pixels)
                            .arg(scale)
                            .arg(color.name(QColor::HexArgb));
    if (const QImage* kept = pictures.object(key)) {
        return *kept;
    }
    QImage picture = drawn(file, pixels, scale, color);
    pictures.insert(key, std::make_unique<QImage>(picture).release());
    return picture;
}

} // namespace quillon::desktop
