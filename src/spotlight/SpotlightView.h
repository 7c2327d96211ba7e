#pragma once

#include "platform/ContentView.h"
#include "spotlight/DimmedPicture.h"

#include <optional>

namespace quillon {

/// Black of some opacity over everything but a circle. The circle's edge is hard: no feather, no
/// ring. What of the circle lies outside of the view is not shown.
class SpotlightView : public ContentView {
public:
    /// What is to be seen, replaced as a whole. Nothing moves between two of them: the circle
    /// jumps.
    struct Value {
        /// The centre of the circle, in view coordinates, in points.
        CGPoint cursorLocation;
        CGFloat radius = 0;
        /// The opacity of the black, from 0 to 1.
        double intensity = 0;

        friend bool operator==(const Value&, const Value&) = default;
    };

    explicit SpotlightView(const Value& value);

    const Value& value() const { return m_value; }
    /// A circle that moves or changes its size damages its old and its new place and no more.
    void setValue(const Value& value);

    void layout(CGSize size, CGFloat scale) override;
    void paint(GraphicsContext& context, const CGRect& rect) override;
    std::optional<StampedPicture> stampedPicture() override;

private:
    CGRect bounds() const { return {0, 0, m_size.width, m_size.height}; }

    Value m_value;
    CGSize m_size;
    CGFloat m_scale = 1;
    DimmedPicture m_picture;
};

} // namespace quillon
