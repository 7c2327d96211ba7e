#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>

/// How the settings window looks, light or dark, made of the desktop's own palette.
namespace quillon::desktop::look {

/// The page behind the groups, and a group on it.
QColor page(const QPalette& palette);
QColor group(const QPalette& palette);
/// A line around a group or between two rows, and a stronger one around a control.
QColor hairline(const QPalette& palette);
QColor outline(const QPalette& palette);
/// The empty part of a switch or a slider.
QColor track(const QPalette& palette);

// Text styles, by their names.
QFont body();
QFont caption();
QFont monospacedCaption();
QFont roundedBoldCaption();
QFont subheadline();
QFont headline();
QFont title();

/// The heights of the caption and of the second title, as glyphs beside such text have them.
inline constexpr int captionSize = 11;
inline constexpr int title2Size = 17;

} // namespace quillon::desktop::look
