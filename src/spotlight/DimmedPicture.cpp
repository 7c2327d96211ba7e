#include "spotlight/DimmedPicture.h"

#include <cmath>
#include <utility>

namespace quillon {

namespace {

/// A circle of a larger radius, in device pixels, is not worth the memory of its square.
constexpr CGFloat kLargestRadius = 1000;
/// As fine as curves are filled.
constexpr CGFloat kPhases = 64;

void fillAround(GraphicsContext& context, const CGRect& rect, const Circle& hole,
                const Color& color) {
    Path path;
    path.addRect(rect);
    path.addEllipse(hole.bounds());
    context.fillEvenOdd(path, color);
}

/// Fills what of `rect` lies outside of `square`.
void fillOutside(GraphicsContext& context, const CGRect& rect, const CGRect& square,
                 const Color& color) {
    const CGRect inside = rect.intersection(square);
    if (inside.isEmpty()) {
        context.fillRect(rect, color);
        return;
    }
    const CGRect parts[] = {
        {rect.x, rect.y, rect.width, inside.minY() - rect.minY()},
        {rect.x, inside.maxY(), rect.width, rect.maxY() - inside.maxY()},
        {rect.x, inside.y, inside.minX() - rect.minX(), inside.height},
        {inside.maxX(), inside.y, rect.maxX() - inside.maxX(), inside.height},
    };
    for (const CGRect& part : parts) {
        if (!part.isEmpty()) {
            context.fillRect(part, color);
        }
    }
}

/// Broken scales leave a place a little below the whole pixel at which it stands.
CGFloat inPhases(CGFloat place) {
    return std::round(place * kPhases) / kPhases;
}

} // namespace

CGFloat DimmedPicture::Look::reach() const {
    return std::ceil(radius) + 2;
}

void DimmedPicture::paint(GraphicsContext& context, const CGRect& rect, const Circle& circle,
                          const Color& color, CGFloat scale) {
    const auto picture = stamped(circle, color, scale);
    if (!picture) {
        fillAround(context, rect, circle, color);
        return;
    }
    const CGSize size = picture->stamp->size();
    const CGRect square{picture->corner.x, picture->corner.y, size.width, size.height};
    fillOutside(context, rect, square, color);
    context.draw(*picture->stamp, rect.intersection(square), square.origin());
}

std::optional<StampedPicture> DimmedPicture::stamped(const Circle& circle, const Color& color,
                                                     CGFloat scale) {
    const CGPoint center{inPhases(circle.center.x * scale), inPhases(circle.center.y * scale)};
    const CGPoint pixel{std::floor(center.x), std::floor(center.y)};
    const Look look{circle.radius * scale, center - pixel, color, scale};
    if (look.radius > kLargestRadius) {
        return std::nullopt;
    }
    if (!m_square || look != m_look) {
        paintSquare(look);
    }
    const CGPoint corner{pixel.x - look.reach(), pixel.y - look.reach()};
    return StampedPicture{color, m_square, {corner.x / scale, corner.y / scale}};
}

void DimmedPicture::paintSquare(const Look& look) {
    const CGFloat side = 2 * look.reach() / look.scale;
    const CGRect square{0, 0, side, side};
    const CGPoint center{(look.reach() + look.phase.x) / look.scale,
                         (look.reach() + look.phase.y) / look.scale};
    m_look = look;
    std::shared_ptr<Bitmap> bitmap = m_graphics.makeBitmap(square.size(), look.scale);
    bitmap->paint(square, [&](GraphicsContext& context) {
        fillAround(context, square, {center, look.radius / look.scale}, look.color);
    });
    m_square = std::move(bitmap);
}

} // namespace quillon
