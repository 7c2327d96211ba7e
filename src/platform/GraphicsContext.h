#pragma once

#include "foundation/Color.h"
#include "foundation/Geometry.h"
#include "platform/Path.h"

#include <string>

namespace quillon {

class Bitmap;
struct CGImage;

enum class BlendMode { normal, plusLighter };
enum class LineCap { butt, round };
enum class LineJoin { miter, round };

/// How a path is stroked. There is no dash.
struct StrokeStyle {
    CGFloat lineWidth = 1;
    LineCap lineCap = LineCap::butt;
    LineJoin lineJoin = LineJoin::miter;

    friend bool operator==(const StrokeStyle&, const StrokeStyle&) = default;
};

/// A blurred copy below what is drawn: the same outline in a colour of its own, whatever the colour
/// above. Half of `radius` is the standard deviation of the blur; the copy is moved by `offset`.
/// In points.
struct Shadow {
    Color color = Color::black;
    CGFloat radius = 0;
    CGSize offset;

    friend bool operator==(const Shadow&, const Shadow&) = default;
};

/// A single line of text in the system font, default weight and design.
struct Text {
    std::string string;
    CGFloat fontSize = 12;
    Color color = Color::black;

    friend bool operator==(const Text&, const Text&) = default;
};

/// Which point of a drawn element stands at the given place.
enum class Anchor { topLeading, center };

/// A two-dimensional vector drawing context in view coordinates, in points. Antialiased.
///
/// Blend mode and opacity are state: they start as normal and 1 in each layer and hold until they
/// are set again.
class GraphicsContext {
public:
    virtual ~GraphicsContext() = default;

    /// What lies outside of this need not be drawn; drawing it does no harm.
    virtual CGRect clipBounds() const = 0;

    virtual void setBlendMode(BlendMode mode) = 0;
    /// From 0 to 1, multiplied into everything drawn, also into a layer as a whole.
    virtual void setOpacity(double opacity) = 0;

    virtual void fill(const Path& path, const Color& color) = 0;
    /// Fills what an odd number of the path's outlines goes round: a hole in a rectangle.
    virtual void fillEvenOdd(const Path& path, const Color& color) = 0;
    /// With round caps and joins a pixel depends on nothing but its distance from the path: pieces
    /// of a path can be left out wherever they are far enough, and the rest keeps its pixels.
    virtual void stroke(const Path& path, const Color& color, const StrokeStyle& style) = 0;
    /// The shadow first, the stroke over it.
    virtual void strokeWithShadow(const Path& path, const Color& color, const StrokeStyle& style,
                                  const Shadow& shadow) = 0;
    virtual void drawText(const Text& text, CGPoint at, Anchor anchor) = 0;

    /// Replaces what stands in `rect` with full transparency, whatever the blend mode.
    virtual void clear(const CGRect& rect) = 0;
    /// Fills a rectangle of whole device pixels.
    virtual void fillRect(const CGRect& rect, const Color& color) = 0;
    /// Draws the part of a bitmap that lies in `rect` where it stands, pixel for pixel.
    virtual void draw(const Bitmap& bitmap, const CGRect& rect) = 0;
    /// The same of a bitmap whose corner stands at `origin`, a whole number of device pixels.
    virtual void draw(const Bitmap& bitmap, const CGRect& rect, CGPoint origin) = 0;
    /// Draws the picture stretched over `rect` with hard pixels: nothing is interpolated and no
    /// edge is softened.
    virtual void draw(const CGImage& image, const CGRect& rect) = 0;

    /// Calls `body` with the context of a fresh transparent layer, and draws what became of that
    /// layer with the blend mode and the opacity of this context.
    template <typename Body>
    void drawLayer(Body&& body) {
        body(beginLayer());
        endLayer();
    }

protected:
    virtual GraphicsContext& beginLayer() = 0;
    virtual void endLayer() = 0;
};

} // namespace quillon
