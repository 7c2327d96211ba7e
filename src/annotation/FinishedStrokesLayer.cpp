#include "annotation/FinishedStrokesLayer.h"

namespace quillon {

void FinishedStrokesLayer::layout(CGSize size, CGFloat scale) {
    m_size = size;
    m_scale = scale;
    m_bitmap.reset();
}

Damage FinishedStrokesLayer::update(const StrokeList& strokes, FadingStrokes fading) {
    const auto change = StrokeList::difference(m_strokes, strokes);
    const bool isOnlyAppended = change.isPureAppend && m_fading.empty() && fading.empty();
    Damage damage;
    for (const auto* strokesThatChange : {&change.removed, &change.added}) {
        for (const auto& stroke : *strokesThatChange) {
            damage.add(stroke->ink(m_graphics));
        }
    }
    for (const auto* faded : {&m_fading, &fading}) {
        for (const auto& [stroke, opacity] : *faded) {
            damage.add(stroke->ink(m_graphics));
        }
    }
    const bool drawsOnTop =
        isOnlyAppended && m_bitmap && change.added.size() == 1 && liesOnTop(*change.added.front());
    m_strokes = strokes;
    m_fading = std::move(fading);

    if (m_strokes.empty() && m_fading.empty()) {
        m_bitmap.reset();
    } else if (!m_bitmap) {
        m_bitmap = m_graphics.makeBitmap(m_size, m_scale);
        repaint({0, 0, m_size.width, m_size.height});
    } else if (drawsOnTop) {
        drawOnTop(*change.added.front());
    } else {
        for (const auto& rect : damage.rects()) {
            repaint(rect);
        }
    }
    return damage;
}

void FinishedStrokesLayer::draw(GraphicsContext& context, const CGRect& rect) const {
    if (m_bitmap) {
        context.draw(*m_bitmap, rect);
    }
}

bool FinishedStrokesLayer::liesOnTop(const FinishedStroke& added) const {
    // Highlighter strokes are drawn over all others. The list is still the one before the change.
    if (added.stroke().tool == DrawingTool::highlighter) {
        return true;
    }
    const CGRect& ink = added.inkBounds(m_graphics);
    for (std::size_t index = 0; index < m_strokes.size(); ++index) {
        const auto& present = *m_strokes.ref(index);
        if (present.stroke().tool == DrawingTool::highlighter &&
            present.inkBounds(m_graphics).intersects(ink)) {
            return false;
        }
    }
    return true;
}

void FinishedStrokesLayer::drawOnTop(const FinishedStroke& added) {
    m_bitmap->paint(added.inkBounds(m_graphics), [&](GraphicsContext& context) {
        const auto& stroke = added.stroke();
        drawStroke(context, stroke, blendModeOf(stroke.tool), added.segments());
    });
}

void FinishedStrokesLayer::repaint(const CGRect& rect) {
    m_bitmap->paint(rect, [&](GraphicsContext& context) {
        context.clear(context.clipBounds());
        drawStrokes(context, m_strokes, m_graphics, m_fading);
    });
}

} // namespace quillon
