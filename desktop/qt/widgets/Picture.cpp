#include "desktop/qt/widgets/Picture.h"

#include "desktop/qt/Appearance.h"
#include "desktop/qt/QtImages.h"
#include "desktop/qt/SymbolPicture.h"

#include <QPainter>

#include <utility>

namespace quillon::desktop {

Picture::Picture(Image image, qreal side, const SystemColor& color)
    : m_image(std::move(image))
    , m_color(color) {
    setFixedSize(qRound(side), qRound(side));
}

Picture* Picture::ofSymbol(const std::string& name, qreal side, const SystemColor& color) {
    return new Picture(Image{Image::Kind::symbol, name, {}, {}}, side, color);
}

void Picture::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    if (m_image.kind == Image::Kind::asset) {
        QtImages::icon(m_image, SymbolTint::none).paint(&painter, rect());
    } else {
        painter.drawImage(0, 0,
                          symbolPicture(m_image.name, width(), devicePixelRatioF(),
                                        toQColor(m_color, palette())));
    }
}

} // namespace quillon::desktop
