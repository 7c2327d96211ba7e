#pragma once

#include <QPainterPath>
#include <QWidget>

namespace quillon::desktop {

/// Makes a popup translucent, so that its corners can be round, where a compositor is at work.
/// Elsewhere they stay square. To be called before the popup is first shown.
void prepareSurface(QWidget& popup);

/// The outline of a popup's panel, as far as its surface allows.
QPainterPath surfaceOutline(const QWidget& popup, const QRectF& panel, qreal cornerRadius);

} // namespace quillon::desktop
