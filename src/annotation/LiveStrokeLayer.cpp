#include "annotation/LiveStrokeLayer.h"

#include "annotation/StrokeRenderer.h"

namespace quillon {

namespace {

std::size_t lastSegmentOf(const DrawingStroke& stroke) {
    const auto count = FreehandCurve(stroke.points).segmentCount();
    return count == 0 ? 0 : count - 1;
}

} // namespace

void LiveStrokeLayer::layout(CGSize size, CGFloat scale) {
    m_size = size;
    m_scale = scale;
    m_shape.reset();
}

Damage LiveStrokeLayer::update(const std::optional<DrawingStroke>& stroke) {
    const bool hasGrown = stroke && m_painted && stroke->id() == m_painted->id &&
                          formOf(*stroke) == StrokeForm::freehand && !stroke->isShape &&
                          stroke->points.size() >= m_painted->pointCount;
    if (hasGrown) {
        return showGrown(*stroke);
    }
    Damage damage;
    if (m_painted) {
        damage = m_painted->ink;
        m_painted.reset();
    }
    if (stroke) {
        damage.add(showOther(*stroke));
    }
    if (stroke && formOf(*stroke) == StrokeForm::shape) {
        compose(*stroke, damage);
    } else {
        m_shape.reset();
    }
    return damage;
}

Damage LiveStrokeLayer::showOther(const DrawingStroke& stroke) {
    Painted painted{stroke.id(), stroke.points.size(), strokeInk(stroke, 0, m_graphics), {}, {}};
    if (formOf(stroke) == StrokeForm::freehand) {
        painted.segments.extend(stroke.points);
        painted.inkOfLastSegment = strokeInk(stroke, lastSegmentOf(stroke), m_graphics);
    }
    m_painted = std::move(painted);
    return m_painted->ink;
}

Damage LiveStrokeLayer::showGrown(const DrawingStroke& stroke) {
    if (stroke.points.size() == m_painted->pointCount) {
        return {};
    }
    m_painted->pointCount = stroke.points.size();
    Damage damage = m_painted->inkOfLastSegment;
    const std::size_t firstChanged = m_painted->segments.extend(stroke.points);
    damage.add(strokeInk(stroke, firstChanged, m_graphics));
    m_painted->inkOfLastSegment = strokeInk(stroke, lastSegmentOf(stroke), m_graphics);
    m_painted->ink.add(damage);
    return damage;
}

void LiveStrokeLayer::compose(const DrawingStroke& shape, const Damage& damage) {
    if (!m_shape) {
        m_shape = m_graphics.makeBitmap(m_size, m_scale);
    }
    m_shape->paint(damage.rects(), [&](GraphicsContext& context) {
        context.clear(context.clipBounds());
        drawStroke(context, shape, blendModeOf(shape.tool), m_painted->segments);
    });
}

void LiveStrokeLayer::draw(GraphicsContext& context,
                           const std::optional<DrawingStroke>& stroke) const {
    if (m_shape) {
        context.draw(*m_shape, context.clipBounds());
    } else if (stroke && m_painted) {
        drawStroke(context, *stroke, blendModeOf(stroke->tool), m_painted->segments);
    }
}

} // namespace quillon
