#include "platform/Damage.h"

#include <algorithm>

namespace quillon {

namespace {

/// In square points. A rectangle of its own costs more than to paint this much beside.
constexpr CGFloat kFreeArea = 1024;

CGFloat area(const CGRect& rect) {
    return rect.width * rect.height;
}

CGFloat costOfMerging(const CGRect& a, const CGRect& b) {
    return area(a.unite(b)) - area(a) - area(b);
}

} // namespace

void Damage::add(const CGRect& rect) {
    if (rect.isEmpty()) {
        return;
    }
    // A rectangle that follows its predecessor closely, as the tail of a stroke does, joins it.
    if (!m_rects.empty() && costOfMerging(m_rects.back(), rect) <= kFreeArea) {
        m_rects.back() = m_rects.back().unite(rect);
        return;
    }
    if (m_rects.size() < maximumRectCount) {
        m_rects.push_back(rect);
        return;
    }
    auto& cheapest = *std::ranges::min_element(
        m_rects, {}, [&](const CGRect& present) { return costOfMerging(present, rect); });
    cheapest = cheapest.unite(rect);
}

void Damage::add(const Damage& other) {
    for (const auto& rect : other.m_rects) {
        add(rect);
    }
}

bool Damage::intersects(const CGRect& rect) const {
    return std::ranges::any_of(m_rects,
                               [&](const CGRect& present) { return present.intersects(rect); });
}

CGRect Damage::bounds() const {
    if (m_rects.empty()) {
        return {};
    }
    CGRect bounds = m_rects.front();
    for (const auto& rect : m_rects) {
        bounds = bounds.unite(rect);
    }
    return bounds;
}

} // namespace quillon
