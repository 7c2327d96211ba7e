#pragma once

#include "platform/CGImage.h"
#include "platform/Graphics.h"
#include "platform/GraphicsContext.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace quillon::test {

/// One thing that was drawn, with the state in force.
struct Drawing {
    enum class Kind { fill, fillEvenOdd, fillRect, stroke, text, clear, bitmap, image };

    Kind kind;
    Path path;
    Color color = Color::clear;
    StrokeStyle style;
    std::optional<Shadow> shadow;
    Text text;
    CGPoint at;
    Anchor anchor = Anchor::topLeading;
    CGRect rect;
    CGImage image;
    BlendMode blendMode = BlendMode::normal;
    double opacity = 1;
    /// How many layers deep it was drawn, and the blend mode and the opacity with which the
    /// innermost of them is received.
    int depth = 0;
    BlendMode receivedWith = BlendMode::normal;
    double receivedOpacity = 1;
};

/// A context that draws nothing and remembers everything.
class RecordingContext : public GraphicsContext {
public:
    RecordingContext();
    ~RecordingContext() override;

    CGRect clipBounds() const override { return clip; }
    void setBlendMode(BlendMode mode) override { m_states.back().blendMode = mode; }
    void setOpacity(double opacity) override { m_states.back().opacity = opacity; }

    void fill(const Path& path, const Color& color) override;
    void fillEvenOdd(const Path& path, const Color& color) override;
    void stroke(const Path& path, const Color& color, const StrokeStyle& style) override;
    void strokeWithShadow(const Path& path, const Color& color, const StrokeStyle& style,
                          const Shadow& shadow) override;
    void drawText(const Text& text, CGPoint at, Anchor anchor) override;
    void clear(const CGRect& rect) override;
    void fillRect(const CGRect& rect, const Color& color) override;
    void draw(const Bitmap& bitmap, const CGRect& rect) override;
    void draw(const Bitmap&, const CGRect& rect, CGPoint origin) override;
    void draw(const CGImage& image, const CGRect& rect) override;

    CGRect clip{-1e6, -1e6, 2e6, 2e6};
    std::vector<Drawing> drawings;

protected:
    GraphicsContext& beginLayer() override;
    void endLayer() override;

private:
    struct State {
        BlendMode blendMode = BlendMode::normal;
        double opacity = 1;
    };

    Drawing& record(Drawing::Kind kind);

    std::vector<State> m_states{1};
};

/// Bitmaps whose contents are the list of what was drawn into them. It must outlive them.
class RecordingGraphics : public Graphics {
public:
    class RecordingBitmap : public Bitmap {
    public:
        RecordingBitmap(CGSize size, CGFloat scale, std::vector<Drawing>& drawn)
            : m_size(size)
            , m_scale(scale)
            , m_drawn(drawn) {}
        CGSize size() const override { return m_size; }
        CGFloat scale() const override { return m_scale; }

        RecordingContext context;

    protected:
        GraphicsContext& beginPainting(std::span<const CGRect> clip) override {
            context.clip = clip.empty() ? CGRect{} : clip.front();
            for (const CGRect& rect : clip) {
                context.clip = context.clip.unite(rect);
            }
            m_before = context.drawings.size();
            return context;
        }
        void endPainting() override {
            const auto before = static_cast<std::ptrdiff_t>(m_before);
            m_drawn.insert(m_drawn.end(), context.drawings.begin() + before,
                           context.drawings.end());
        }

    private:
        CGSize m_size;
        CGFloat m_scale;
        std::vector<Drawing>& m_drawn;
        std::size_t m_before = 0;
    };

    std::unique_ptr<Bitmap> makeBitmap(CGSize size, CGFloat scale) override;
    /// Half an em for each byte, one em and a quarter high.
    CGRect inkBounds(const Text& text) override;

    RecordingBitmap* lastBitmap = nullptr;
    /// What was drawn into any bitmap, one after the other, also into those that are gone.
    std::vector<Drawing> drawn;
};

} // namespace quillon::test
