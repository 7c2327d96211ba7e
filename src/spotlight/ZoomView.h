#pragma once

#include "platform/CGImage.h"
#include "platform/ContentView.h"

#include <optional>

namespace quillon {

/// What the lens shows, over the black of its window, from the inside out:
/// 1. the picture with hard pixels, whole and in proportion, or black with a line of text while
///    there is none yet;
/// 2. the crosshair over its middle;
/// 3. all of that cut to a rounded rectangle with continuous corners;
/// 4. the outline of that shape.
///
/// The shape throws a shadow of radius 10 too, black on the black of the window, so that nothing of
/// it is to be seen and nothing is painted for it.
class ZoomView : public ContentView {
public:
    /// What is to be seen, replaced as a whole.
    struct Value {
        /// Carried along; the picture arrives already enlarged.
        CGFloat magnification = 2;
        std::optional<NSImage> image;
        bool showCrosshair = true;

        friend bool operator==(const Value&, const Value&) = default;
    };

    explicit ZoomView(Value value);

    const Value& value() const { return m_value; }
    /// The same value again leaves the picture alone, so that a lens that shows itself comes to
    /// rest.
    void setValue(Value value);

    void layout(CGSize size, CGFloat scale) override;
    void paint(GraphicsContext& context, const CGRect& rect) override;

private:
    void paintPicture(GraphicsContext& context) const;
    void paintPlaceholder(GraphicsContext& context) const;
    CGRect bounds() const { return {0, 0, m_size.width, m_size.height}; }

    Value m_value;
    CGSize m_size;
};

} // namespace quillon
