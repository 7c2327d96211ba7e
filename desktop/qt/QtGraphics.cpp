#include "desktop/qt/QtGraphics.h"

#include "desktop/qt/QtBitmap.h"
#include "desktop/qt/QtConversions.h"

#include <QFontMetricsF>
#include <QPainterPath>

namespace quillon::desktop {

std::unique_ptr<Bitmap> QtGraphics::makeBitmap(CGSize size, CGFloat scale) {
    return std::make_unique<QtBitmap>(size, scale);
}

CGRect QtGraphics::inkBounds(const Text& text) {
    const QFont font = systemFont(text.fontSize);
    const QFontMetricsF metrics(font);
    const QString string = QString::fromStdString(text.string);
    QPainterPath outlines;
    outlines.addText({}, font, string);
    // The first covers the line from its start to its end, the second what leans out of it, the
    // third marks that are piled up and come from another font.
    const QRectF ink = metrics.boundingRect(string)
                           .united(metrics.tightBoundingRect(string))
                           .united(outlines.boundingRect());
    return {ink.x(), ink.y() + metrics.ascent(), ink.width(), ink.height()};
}

} // namespace quillon::desktop
