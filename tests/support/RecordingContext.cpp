#include "support/RecordingContext.h"

namespace quillon::test {

RecordingContext::RecordingContext() = default;
RecordingContext::~RecordingContext() = default;

void RecordingContext::fill(const Path& path, const Color& color) {
    auto& drawing = record(Drawing::Kind::fill);
    drawing.path = path;
    drawing.color = color;
}

void RecordingContext::fillEvenOdd(const Path& path, const Color& color) {
    auto& drawing = record(Drawing::Kind::fillEvenOdd);
    drawing.path = path;
    drawing.color = color;
}

void RecordingContext::stroke(const Path& path, const Color& color, const StrokeStyle& style) {
    auto& drawing = record(Drawing::Kind::stroke);
    drawing.path = path;
    drawing.color = color;
    drawing.style = style;
}

void RecordingContext::strokeWithShadow(const Path& path, const Color& color,
                                        const StrokeStyle& style, const Shadow& shadow) {
    stroke(path, color, style);
    drawings.back().shadow = shadow;
}

void RecordingContext::drawText(const Text& text, CGPoint at, Anchor anchor) {
    auto& drawing = record(Drawing::Kind::text);
    drawing.text = text;
    drawing.at = at;
    drawing.anchor = anchor;
}

void RecordingContext::clear(const CGRect& rect) {
    record(Drawing::Kind::clear).rect = rect;
}

void RecordingContext::fillRect(const CGRect& rect, const Color& color) {
    auto& drawing = record(Drawing::Kind::fillRect);
    drawing.rect = rect;
    drawing.color = color;
}

void RecordingContext::draw(const Bitmap& bitmap, const CGRect& rect) {
    draw(bitmap, rect, {});
}

void RecordingContext::draw(const Bitmap& /*bitmap*/, const CGRect& rect, CGPoint origin) {
    auto& drawing = record(Drawing::Kind::bitmap);
    drawing.rect = rect;
    drawing.at = origin;
}

void RecordingContext::draw(const CGImage& image, const CGRect& rect) {
    auto& drawing = record(Drawing::Kind::image);
    drawing.image = image;
    drawing.rect = rect;
}

GraphicsContext& RecordingContext::beginLayer() {
    m_states.emplace_back();
    return *this;
}

void RecordingContext::endLayer() {
    m_states.pop_back();
}

Drawing& RecordingContext::record(Drawing::Kind kind) {
    auto& drawing = drawings.emplace_back();
    drawing.kind = kind;
    drawing.blendMode = m_states.back().blendMode;
    drawing.opacity = m_states.back().opacity;
    drawing.depth = static_cast<int>(m_states.size()) - 1;
    if (m_states.size() > 1) {
        drawing.receivedWith = m_states[m_states.size() - 2].blendMode;
        drawing.receivedOpacity = m_states[m_states.size() - 2].opacity;
    }
    return drawing;
}

std::unique_ptr<Bitmap> RecordingGraphics::makeBitmap(CGSize size, CGFloat scale) {
    auto bitmap = std::make_unique<RecordingBitmap>(size, scale, drawn);
    lastBitmap = bitmap.get();
    return bitmap;
}

CGRect RecordingGraphics::inkBounds(const Text& text) {
    return {0, 0, 0.5 * text.fontSize * static_cast<CGFloat>(text.string.size()),
            1.25 * text.fontSize};
}

} // namespace quillon::test
