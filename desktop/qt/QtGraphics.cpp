#include "desktop/qt/QtGraphics.h"

#include "desktop/qt/QtBitmap.h"
#include "desktop/qt/QtConversions.h"

#include <QFontMetricsF>

namespace quillon::desktop {

std::unique_ptr<Bitmap> QtGraphics::makeBitmap(CGSize size, CGFloat scale) {
    return std::make_unique<QtBitmap>(size, scale);
}

CGRect QtGraphics::inkBounds(const Text& text) {
    const QFontMetricsF metrics(systemFont(text.fontSize));
    const QString string = QString::fromStdString(text.string);
    // The first covers the line from its start to its end, the second what leans out of it.
    const QRectF ink = metrics.boundingRect(string).united(metrics.tightBoundingRect(string));
    return {ink.x(), ink.y() + metrics.ascent(), ink.width(), ink.height()};
}

} // namespace quillon::desktop
