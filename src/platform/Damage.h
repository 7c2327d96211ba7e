#pragma once

#include "foundation/Geometry.h"

#include <cstddef>
#include <vector>

namespace quillon {

/// The parts of a view that have to be painted anew: a short list of rectangles that may overlap.
///
/// Rectangles near each other are merged so that the list stays short, at the price of covering
/// more than was added; never less.
class Damage {
public:
    static constexpr std::size_t maximumRectCount = 48;

    void add(const CGRect& rect);
    void add(const Damage& other);
    void clear() { m_rects.clear(); }

    bool isEmpty() const { return m_rects.empty(); }
    const std::vector<CGRect>& rects() const { return m_rects; }
    bool intersects(const CGRect& rect) const;
    /// The smallest rectangle over all of it; all zero when there is none.
    CGRect bounds() const;

private:
    std::vector<CGRect> m_rects;
};

} // namespace quillon
