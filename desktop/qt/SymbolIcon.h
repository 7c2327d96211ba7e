#pragma once

#include <QColor>
#include <QIcon>
#include <QIconEngine>
#include <QImage>
#include <QString>

#include <memory>

class QSvgRenderer;

namespace quillon::desktop {

/// How a picture is coloured where it is shown.
enum class SymbolTint {
    /// With the colours that it has.
    none,
    /// With the text colour of the place that shows it.
    foreground,
    /// For a panel of unknown colour: light, within a dark contour, so that it reads on both a dark
    /// and a light one.
    panel,
};

/// An icon drawn from an SVG at the very size at which it is shown.
class SymbolIcon : public QIconEngine {
public:
    static QIcon make(const QString& path, SymbolTint tint);

    SymbolIcon(const QString& path, SymbolTint tint);
    ~SymbolIcon() override;

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
    /// `size` is in device pixels.
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override;
    QIconEngine* clone() const override;
    bool isNull() override;

private:
    /// The picture in one colour, or in its own when `color` is not valid.
    QImage draw(QSize size, qreal inset, const QColor& color) const;
    QImage drawWithContour(QSize size) const;

    QString m_path;
    SymbolTint m_tint;
    std::unique_ptr<QSvgRenderer> m_renderer;
};

} // namespace quillon::desktop
