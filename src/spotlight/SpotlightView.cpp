#include "spotlight/SpotlightView.h"

#include "platform/Host.h"
#include "spotlight/CircleDamage.h"

#include <cmath>
#include <utility>

namespace quillon {

namespace {

Circle circleOf(const SpotlightView::Value& value) {
    return {value.cursorLocation, std::abs(value.radius)};
}

Color colorOf(const SpotlightView::Value& value) {
    return Color::black.opacity(value.intensity);
}

} // namespace

SpotlightView::SpotlightView(const Value& value)
    : m_value(value)
    , m_picture(Host::current().graphics()) {}

void SpotlightView::setValue(const Value& value) {
    if (value == m_value) {
        return;
    }
    const Value before = std::exchange(m_value, value);
    if (value.intensity == before.intensity) {
        setNeedsDisplay(differenceOfCircles(circleOf(before), circleOf(value)));
    } else {
        setNeedsDisplay(bounds());
    }
}

void SpotlightView::layout(CGSize size, CGFloat scale) {
    m_scale = scale;
    m_size = size;
    setNeedsDisplay(bounds());
}

void SpotlightView::paint(GraphicsContext& context, const CGRect& rect) {
    m_picture.paint(context, rect, circleOf(m_value), colorOf(m_value), m_scale);
}

std::optional<StampedPicture> SpotlightView::stampedPicture() {
    return m_picture.stamped(circleOf(m_value), colorOf(m_value), m_scale);
}

} // namespace quillon
