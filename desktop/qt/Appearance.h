#pragma once

#include "platform/SystemColor.h"

#include <QColor>
#include <QPalette>

/// How the program's own controls look, light or dark as the desktop is.
namespace quillon::desktop {

bool isDark(const QPalette& palette);

/// `part` of `over`, from 0 to 1, on `ground`. Opaque.
QColor blended(const QColor& ground, const QColor& over, float part);

/// As an active control shows it: one that is out of service says so by its own description.
QColor toQColor(const SystemColor& color, const QPalette& palette);

/// The translucent material of panels that float over the screen: legible over white, black and
/// anything between.
QColor panelMaterial(const QPalette& palette);
/// The nearly opaque material of menus and popovers, which are read at leisure.
QColor popupMaterial(const QPalette& palette);
/// The ground of a page, and that of a group of rows on it.
QColor pageGround(const QPalette& palette);
QColor groupGround(const QPalette& palette);
/// The thin line between two parts.
QColor separator(const QPalette& palette);
/// The empty part of a switch or a slider.
QColor emptyTrack(const QPalette& palette);
/// The line around a control or a colour.
QColor outline(const QPalette& palette);
/// The line round a panel or a popup.
QColor panelEdge(const QPalette& palette);

} // namespace quillon::desktop
