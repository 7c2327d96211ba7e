#include "annotation/StrokeWalk.h"

namespace quillon {

void StrokeWalk::goOn(GraphicsContext& context, Graphics& graphics, const PaintArea& area,
                      Budget budget) {
    std::size_t looks = 0;
    std::size_t segments = 0;
    const auto draw = [&](const Stop& stop, BlendMode blendMode) {
        const FinishedStroke& finished = *stop.stroke;
        context.setOpacity(stop.opacity);
        segments += drawStroke(context, finished.stroke(), blendMode, finished.segments(), area);
    };
    const auto mayGoOn = [&] { return looks++ < budget.looks && segments < budget.segments; };
    while (isInList() && mayGoOn()) {
        const Stop stop = nextInList();
        if (!area.meets(stop.stroke->inkBounds(graphics))) {
            continue;
        }
        if (stop.stroke->stroke().tool == DrawingTool::highlighter) {
            m_highlighters.push_back(stop);
        } else {
            draw(stop, BlendMode::normal);
        }
    }
    while (!isInList() && !isAtEnd() && mayGoOn()) {
        draw(m_highlighters[m_nextHighlighter++], BlendMode::plusLighter);
    }
    context.setOpacity(1);
}

bool StrokeWalk::isAtEnd() const {
    return !isInList() && m_nextHighlighter == m_highlighters.size();
}

bool StrokeWalk::isInList() const {
    return m_nextStroke < m_strokes.size() || m_nextFading < m_fading.size();
}

StrokeWalk::Stop StrokeWalk::nextInList() {
    const bool isFading =
        m_nextFading < m_fading.size() &&
        (m_nextStroke == m_strokes.size() ||
         m_fading[m_nextFading].first->order() <= m_strokes.ref(m_nextStroke)->order());
    if (isFading) {
        const auto& [stroke, opacity] = m_fading[m_nextFading++];
        return {stroke.get(), opacity};
    }
    return {m_strokes.ref(m_nextStroke++).get(), 1};
}

} // namespace quillon
