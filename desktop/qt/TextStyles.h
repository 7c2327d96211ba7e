#pragma once

#include <QFont>

/// The styles of the program's own texts, by their names. Sizes in logical pixels.
namespace quillon::desktop::textStyle {

QFont body();
QFont caption();
QFont monospacedCaption();
QFont roundedBoldCaption();
QFont subheadline();
QFont headline();
QFont title();

/// A wide font drawn narrower, within reason, rather than the text cut off at `room`.
QFont fitting(QFont font, const QString& text, qreal room);

/// The heights of the caption and of the second title, as glyphs beside such text have them.
inline constexpr qreal captionSize = 11;
inline constexpr qreal title2Size = 17;

} // namespace quillon::desktop::textStyle
