#pragma once

#include "annotation/PaintArea.h"
#include "annotation/StrokeList.h"
#include "annotation/StrokeRenderer.h"
#include "platform/Graphics.h"
#include "platform/GraphicsContext.h"

#include <cstddef>
#include <limits>
#include <utility>
#include <vector>

namespace quillon {

/// Draws finished strokes in the order in which they lie one over the other, and can be halted
/// between any two of them:
/// 1. all strokes of the list that are not highlighter strokes, and the fading ones in their places
///    among them, in order;
/// 2. the highlighter strokes that step 1 has passed.
class StrokeWalk {
public:
    /// What one stretch of the walk may take. It ends with the stroke that reaches one of these.
    struct Budget {
        static constexpr std::size_t unlimited = std::numeric_limits<std::size_t>::max();

        std::size_t looks = unlimited;
        std::size_t segments = unlimited;
    };

    StrokeWalk(StrokeList strokes, FadingStrokes fading)
        : m_strokes(std::move(strokes))
        , m_fading(std::move(fading)) {}

    /// Draws the next strokes that meet `area`, which may only lose ground from one call to the
    /// next.
    void goOn(GraphicsContext& context, Graphics& graphics, const PaintArea& area, Budget budget);

    bool isAtEnd() const;

private:
    struct Stop {
        const FinishedStroke* stroke = nullptr;
        double opacity = 1;
    };

    bool isInList() const;
    /// The next stroke of step 1.
    Stop nextInList();

    StrokeList m_strokes;
    FadingStrokes m_fading;
    std::size_t m_nextStroke = 0;
    std::size_t m_nextFading = 0;
    std::vector<Stop> m_highlighters;
    std::size_t m_nextHighlighter = 0;
};

} // namespace quillon
