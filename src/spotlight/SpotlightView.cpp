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
    if (value.intensity == m_value.intensity) {
        m_damage.add(differenceOfCircles(circleOf(m_value), circleOf(value)));
    } else {
        m_damage.add(bounds());
    }
    m_value = value;
    setNeedsUpdate();
}

void SpotlightView::layout(CGSize size, CGFloat scale) {
    m_scale = scale;
    m_size = size;
    m_damage.add(bounds());
    setNeedsUpdate();
}

Damage SpotlightView::takeDamage() {
    return std::exchange(m_damage, {});
}

void SpotlightView::paint(GraphicsContext& context, const CGRect& rect) {
    m_picture.paint(context, rect, circleOf(m_value), colorOf(m_value), m_scale);
}

std::optional<StampedPicture> SpotlightView::stampedPicture() {
    return m_picture.stamped(circleOf(m_value), colorOf(m_value), m_scale);
}

} // namespace quillon
