#include "annotation/FinishedStrokesLayer.h"

#include <utility>

namespace quillon {

namespace {

/// Of one update; more than come by hand between two of them. What an undo brings may be more.
constexpr std::size_t kMostOnTop = 64;

/// What is to be shown is taken in squares of this many cells, several of them with one step while
/// they hold fewer pixels than a full one: together less than two full ones, which the host brings
/// to the screen by its shortest way.
constexpr std::size_t kTile = 16;
constexpr CGFloat kFullTile =
    CGFloat{kTile * kTile} * DirtyCells::cellPixels * DirtyCells::cellPixels;
/// What a rectangle costs to show besides its pixels, in pixels.
constexpr CGFloat kPixelsForRect = 1024;

/// To draw this much of a common pen takes less than a tenth of a millisecond, the look at so many
/// strokes about one.
constexpr StrokeWalk::Budget kStep{.looks = 1000, .segments = 32};

Damage damageOf(const std::vector<CGRect>& rects) {
    Damage damage;
    for (const CGRect& rect : rects) {
        damage.add(rect);
    }
    return damage;
}

} // namespace

void FinishedStrokesLayer::layout(CGSize size, CGFloat scale) {
    if (size == m_size && scale == m_scale) {
        return;
    }
    m_size = size;
    m_scale = scale;
    clear();
    m_aside.reset();
}

Damage FinishedStrokesLayer::update(const StrokeList& strokes, FadingStrokes fading) {
    auto difference = StrokeList::difference(m_strokes, strokes);
    if (difference.isEmpty() && m_fading.empty() && fading.empty()) {
        return {};
    }
    if (strokes.empty() && fading.empty()) {
        DirtyCells gone = changes(difference, fading);
        gone.add(behind());
        gone.add(m_unshown);
        putAside();
        clear();
        m_unshown = std::move(gone);
        return {};
    }
    if (!m_bitmap && fading.empty() && takeBack(strokes)) {
        m_unshown.add(changes(difference, fading));
        return {};
    }
    if (!m_bitmap) {
        m_bitmap = m_graphics.makeBitmap(m_size, m_scale);
    }
    rememberHighlighters(difference);
    const auto appended = takeAppended(difference, strokes);
    m_dirty.add(changes(difference, fading));
    m_strokes = strokes;
    m_fading = std::move(fading);
    return damageOf(drawOnTop(appended).rects());
}

void FinishedStrokesLayer::putAside() {
    // Of two pictures the one of more strokes is worth more.
    const bool isWorthMore = !m_aside || m_strokes.size() >= m_aside->strokes.size();
    if (m_bitmap && m_fading.empty() && isWorthMore) {
        m_aside = {m_strokes, std::move(m_bitmap), behind(), m_highlighted};
    }
}

bool FinishedStrokesLayer::takeBack(const StrokeList& strokes) {
    if (!m_aside || !StrokeList::difference(m_aside->strokes, strokes).isEmpty()) {
        return false;
    }
    auto aside = *std::exchange(m_aside, std::nullopt);
    m_strokes = strokes;
    m_bitmap = std::move(aside.bitmap);
    m_dirty = std::move(aside.dirty);
    m_highlighted = std::move(aside.highlighted);
    return true;
}

void FinishedStrokesLayer::clear() {
    m_strokes.clear();
    m_fading.clear();
    m_bitmap.reset();
    m_dirty = DirtyCells(m_size, m_scale);
    m_highlighted = m_dirty;
    m_unshown = m_dirty;
    m_repaint.reset();
}

std::vector<StrokeRef> FinishedStrokesLayer::takeAppended(StrokeList::Difference& difference,
                                                          const StrokeList& strokes) {
    auto& added = difference.added;
    std::size_t count = 0;
    while (count < added.size() &&
           added[added.size() - 1 - count] == strokes.ref(strokes.size() - 1 - count)) {
        ++count;
    }
    if (count > kMostOnTop) {
        return {};
    }
    const auto first = added.end() - static_cast<std::ptrdiff_t>(count);
    std::vector<StrokeRef> appended(first, added.end());
    added.erase(first, added.end());
    return appended;
}

DirtyCells FinishedStrokesLayer::drawOnTop(const std::vector<StrokeRef>& appended) {
    DirtyCells drawn(m_size, m_scale);
    for (const auto& stroke : appended) {
        DirtyCells ink(m_size, m_scale);
        stroke->visitInk(m_graphics, [&](const CGRect& piece) { ink.add(piece); });
        m_bitmap->paint(stroke->inkBounds(m_graphics), [&](GraphicsContext& context) {
            drawStroke(context, stroke->stroke(), blendModeOf(stroke->stroke().tool),
                       stroke->segments());
        });
        drawn.add(ink);
        if (m_repaint) {
            m_repaint->cells.remove(ink);
            m_dirty.add(ink);
        } else if (stroke->stroke().tool != DrawingTool::highlighter) {
            ink.keep(m_highlighted);
            m_dirty.add(ink);
        }
    }
    return drawn;
}

void FinishedStrokesLayer::rememberHighlighters(const StrokeList::Difference& difference) {
    const auto remember = [this](const FinishedStroke& stroke) {
        if (stroke.stroke().tool == DrawingTool::highlighter) {
            stroke.visitInk(m_graphics, [this](const CGRect& ink) { m_highlighted.add(ink); });
        }
    };
    for (const auto& stroke : difference.added) {
        remember(*stroke);
    }
    for (const auto& [before, after] : difference.replaced) {
        remember(*after);
    }
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

DirtyCells FinishedStrokesLayer::behind() const {
    DirtyCells cells = m_dirty;
    if (m_repaint) {
        cells.add(m_repaint->cells);
    }
    return cells;
}

Damage FinishedStrokesLayer::repaintStep() {
    if (!m_unshown.isEmpty()) {
        return damageOf(takePiece(m_unshown));
    }
    if (!isBehind()) {
        return {};
    }
    if (!m_repaint) {
        beginRepaint();
    }
    Repaint& repaint = *m_repaint;
    if (!repaint.walk.isAtEnd()) {
        repaint.sheet->paint(repaint.bounds, [&](GraphicsContext& context) {
            repaint.walk.goOn(context, m_graphics, PaintArea(repaint.bounds, repaint.cells), kStep);
        });
    }
    return repaint.walk.isAtEnd() ? bringOver() : Damage();
}

void FinishedStrokesLayer::beginRepaint() {
    const auto cells = std::exchange(m_dirty, DirtyCells(m_size, m_scale));
    m_repaint.emplace(Repaint{cells, damageOf(cells.rects()).bounds(),
                              StrokeWalk(m_strokes, m_fading),
                              m_graphics.makeBitmap(m_size, m_scale)});
}

Damage FinishedStrokesLayer::bringOver() {
    Repaint& repaint = *m_repaint;
    const auto piece = takePiece(repaint.cells);
    const Damage damage = damageOf(piece);
    m_bitmap->paint(damage.bounds(), [&](GraphicsContext& context) {
        for (const CGRect& rect : piece) {
            context.clear(rect);
            context.draw(*repaint.sheet, rect);
        }
    });
    if (repaint.cells.isEmpty()) {
        m_repaint.reset();
    }
    return damage;
}

std::vector<CGRect> FinishedStrokesLayer::takePiece(DirtyCells& cells) const {
    std::vector<CGRect> piece;
    CGFloat pixels = 0;
    while (pixels < kFullTile && !cells.isEmpty()) {
        for (const CGRect& rect : cells.takeTile(kTile)) {
            pixels += rect.width * rect.height * m_scale * m_scale + kPixelsForRect;
            piece.push_back(rect);
        }
    }
    return piece;
}

void FinishedStrokesLayer::draw(GraphicsContext& context, const CGRect& rect) const {
    if (m_bitmap) {
        context.draw(*m_bitmap, rect);
    }
}

} // namespace quillon
