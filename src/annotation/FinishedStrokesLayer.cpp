#include "annotation/FinishedStrokesLayer.h"

#include <utility>

namespace quillon {

void FinishedStrokesLayer::layout(CGSize size, CGFloat scale) {
    m_size = size;
    m_scale = scale;
    m_bitmap.reset();
    m_aside = {};
}

Damage FinishedStrokesLayer::update(const StrokeList& strokes, FadingStrokes fading) {
    const auto difference = StrokeList::difference(m_strokes, strokes);
    const bool isSame = difference.isEmpty() && m_fading.empty() && fading.empty();
    if (isSame && (m_bitmap || strokes.empty())) {
        return {};
    }
    const DirtyCells dirty = changes(difference, fading);
    const bool fades = !m_fading.empty() || !fading.empty();
    const bool drawsOnTop = m_bitmap && !fades && isOneOnTop(difference, strokes, dirty);
    if (strokes.empty() && !fades) {
        putAside();
    }
    m_strokes = strokes;
    m_fading = std::move(fading);

    if (m_strokes.empty() && m_fading.empty()) {
        m_bitmap.reset();
    } else if (!m_bitmap) {
        if (!takeBack()) {
            paintAll();
        }
    } else if (drawsOnTop) {
        drawOnTop(*difference.added.front());
    } else {
        repaint(dirty);
    }
    Damage damage;
    for (const CGRect& rect : dirty.rects()) {
        damage.add(rect);
    }
    return damage;
}

DirtyCells FinishedStrokesLayer::changes(const StrokeList::Difference& difference,
                                         const FadingStrokes& fading) const {
    DirtyCells dirty(m_size, m_scale);
    const auto add = [&](const CGRect& ink) { dirty.add(ink); };
    const auto addInkOf = [&](const FinishedStroke& stroke) {
        // When many strokes change, most of them change what others have changed already.
        if (!dirty.cover(stroke.inkBounds(m_graphics))) {
            stroke.visitInk(m_graphics, add);
        }
    };
    for (const auto* strokes : {&difference.removed, &difference.added}) {
        for (const auto& stroke : *strokes) {
            addInkOf(*stroke);
        }
    }
    for (const auto& [before, after] : difference.replaced) {
        visitChangedInk(*before, *after, m_graphics, add);
    }
    for (const auto* faded : {&m_fading, &fading}) {
        for (const auto& [stroke, opacity] : *faded) {
            addInkOf(*stroke);
        }
    }
    return dirty;
}

void FinishedStrokesLayer::putAside() {
    // Of two pictures the one of more strokes is worth more.
    if (m_bitmap && m_strokes.size() >= m_aside.strokes.size()) {
        m_aside = {m_strokes, std::move(m_bitmap)};
    }
}

bool FinishedStrokesLayer::takeBack() {
    const bool isSame = m_aside.bitmap && m_fading.empty() &&
                        StrokeList::difference(m_aside.strokes, m_strokes).isEmpty();
    if (isSame) {
        m_bitmap = std::exchange(m_aside, {}).bitmap;
    }
    return isSame;
}

void FinishedStrokesLayer::draw(GraphicsContext& context, const CGRect& rect) const {
    if (m_bitmap) {
        context.draw(*m_bitmap, rect);
    }
}

bool FinishedStrokesLayer::isOneOnTop(const StrokeList::Difference& difference,
                                      const StrokeList& strokes, const DirtyCells& dirty) const {
    const auto& added = difference.added;
    const bool isOneAppended = difference.removed.empty() && difference.replaced.empty() &&
                               added.size() == 1 &&
                               added.front() == strokes.ref(strokes.size() - 1);
    if (!isOneAppended) {
        return false;
    }
    // Highlighter strokes are drawn over all others.
    if (added.front()->stroke().tool == DrawingTool::highlighter) {
        return true;
    }
    for (std::size_t index = 0; index + 1 < strokes.size(); ++index) {
        const auto& present = *strokes.ref(index);
        if (present.stroke().tool == DrawingTool::highlighter &&
            dirty.meets(present.inkBounds(m_graphics))) {
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

void FinishedStrokesLayer::repaint(const DirtyCells& dirty) {
    const auto rects = dirty.rects();
    if (rects.empty()) {
        return;
    }
    m_bitmap->paint(rects, [&](GraphicsContext& context) {
        const CGRect bounds = context.clipBounds();
        context.clear(bounds);
        drawStrokes(context, m_strokes, m_graphics, m_fading, PaintArea(bounds, dirty));
    });
}

void FinishedStrokesLayer::paintAll() {
    m_bitmap = m_graphics.makeBitmap(m_size, m_scale);
    m_bitmap->paint({0, 0, m_size.width, m_size.height}, [&](GraphicsContext& context) {
        drawStrokes(context, m_strokes, m_graphics, m_fading);
    });
}

} // namespace quillon
