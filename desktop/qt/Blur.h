#pragma once

#include <QColor>
#include <QImage>

namespace quillon::desktop {

/// How far a blur reaches beyond what is blurred: three standard deviations, beyond which less than
/// three thousandths of it lie.
constexpr qreal blurReach(qreal deviation) {
    return 3 * deviation;
}

/// The coverage of a picture, blurred with a Gaussian of that standard deviation in pixels, as a
/// picture in black. What would reach beyond its edges is lost.
QImage blurred(const QImage& picture, qreal deviation);

/// A picture's coverage in one colour, whose own opacity is multiplied in.
QImage tinted(const QImage& picture, const QColor& color);

} // namespace quillon::desktop
