#pragma once

#include <QColor>
#include <QImage>

#include <string>

namespace quillon::desktop {

/// The symbol of that name in one colour, drawn for a square of `side` points at `scale` device
/// pixels to a point. A name without a glyph gives an empty picture.
///
/// Pictures are kept and shared. The toolkit's own cache is not asked to: it would wake the program
/// half a minute later to look for what it could let go of.
QImage symbolPicture(const std::string& name, qreal side, qreal scale, const QColor& color);

} // namespace quillon::desktop
