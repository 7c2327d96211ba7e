#include "spotlight/SpotlightView.h"

#include <utility>

namespace quillon {

SpotlightView::SpotlightView(const Value& value)
    : m_value(value) {}

void SpotlightView::setValue(const Value& value) {
    if (value == m_value) {
        return;
    }
    if (value.intensity != m_value.intensity) {
        m_damage.add(bounds());
    } else {
        m_damage.add(circle());
    }
    m_value = value;
    m_damage.add(circle());
    setNeedsUpdate();
}

void SpotlightView::layout(CGSize size, CGFloat /*scale*/) {
    m_size = size;
    m_damage.add(bounds());
    setNeedsUpdate();
}

Damage SpotlightView::takeDamage() {
    return std::exchange(m_damage, {});
}

void SpotlightView::paint(GraphicsContext& context, const CGRect& /*rect*/) {
    Path mask;
    mask.addRect(bounds());
    mask.addEllipse(circle());
    context.fillEvenOdd(mask, Color::black.opacity(m_value.intensity));
}

CGRect SpotlightView::circle() const {
    const auto& [center, radius, intensity] = m_value;
    return rectBetween({center.x - radius, center.y - radius},
                       {center.x + radius, center.y + radius});
}

} // namespace quillon
