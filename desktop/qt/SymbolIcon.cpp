#include "desktop/qt/SymbolIcon.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QSvgRenderer>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace quillon::desktop {

namespace {

constexpr QColor panelGlyph(250, 250, 250);
constexpr QColor panelContour(0, 0, 0, 215);

QColor foreground(QIcon::Mode mode) {
    const QPalette palette = QGuiApplication::palette();
    switch (mode) {
    case QIcon::Disabled:
        return palette.color(QPalette::Disabled, QPalette::WindowText);
    case QIcon::Selected:
        return palette.color(QPalette::HighlightedText);
    default:
        return palette.color(QPalette::WindowText);
    }
}

} // namespace

QIcon SymbolIcon::make(const QString& path, SymbolTint tint) {
    // The icon takes the engine over.
    return QIcon(new SymbolIcon(path, tint));
}

SymbolIcon::SymbolIcon(const QString& path, SymbolTint tint)
    : m_path(path)
    , m_tint(tint)
    , m_renderer(std::make_unique<QSvgRenderer>(path)) {}

SymbolIcon::~SymbolIcon() = default;

void SymbolIcon::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) {
    const qreal scale = painter->device()->devicePixelRatio();
    QPixmap picture = pixmap((QSizeF(rect.size()) * scale).toSize(), mode, state);
    picture.setDevicePixelRatio(scale);
    painter->drawPixmap(rect.topLeft(), picture);
}

QPixmap SymbolIcon::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State /*state*/) {
    switch (m_tint) {
    case SymbolTint::none:
        return QPixmap::fromImage(draw(size, 0, {}));
    case SymbolTint::foreground:
        return QPixmap::fromImage(draw(size, 0, foreground(mode)));
    case SymbolTint::panel:
        return QPixmap::fromImage(drawWithContour(size));
    }
    return {};
}

QList<QSize> SymbolIcon::availableSizes(QIcon::Mode /*mode*/, QIcon::State /*state*/) {
    // Any size can be drawn; these are the ones that panels ask for.
    return {{16, 16}, {22, 22}, {24, 24}, {32, 32}, {48, 48}, {64, 64}};
}

QIconEngine* SymbolIcon::clone() const {
    return new SymbolIcon(m_path, m_tint);
}

bool SymbolIcon::isNull() {
    return !m_renderer->isValid();
}

QImage SymbolIcon::draw(QSize size, qreal inset, const QColor& color) const {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal side = std::min(size.width(), size.height()) - 2 * inset;
    const QRectF square((size.width() - side) / 2, (size.height() - side) / 2, side, side);
    m_renderer->render(&painter, square);
    if (color.isValid()) {
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(image.rect(), color);
    }
    return image;
}

QImage SymbolIcon::drawWithContour(QSize size) const {
    // One point at the usual 22 points of a panel.
    const qreal width = std::max(std::min(size.width(), size.height()) / 22.0, 1.0);
    const QImage shadow = draw(size, width, QColor(panelContour.rgb()));

    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    constexpr int directions = 12;
    for (int i = 0; i < directions; ++i) {
        const double angle = 2 * std::numbers::pi * i / directions;
        painter.drawImage(QPointF(std::cos(angle), std::sin(angle)) * width, shadow);
    }
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.fillRect(image.rect(), panelContour);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.drawImage(0, 0, draw(size, width, panelGlyph));
    return image;
}

} // namespace quillon::desktop
